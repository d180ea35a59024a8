// SPDX-License-Identifier: MIT
#pragma once

// What the makers of experimental variograms share. Private to their sources.

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/experimental_variogram.hpp"

namespace gravelox::detail {

/// Collects the lags of a variogram, direction by direction.
class variogram_builder {
 public:
  /// Adds a lag with a sum or mean of pair counts. The count reported is its whole part, kept
  /// within an int.
  void add(const location& lag, double value, double n_pairs, std::size_t direction_id) {
    lags_.push_back(lag);
    variogram_.push_back(value);
    npairs_.push_back(whole_count(n_pairs));
    direction_ids_.push_back(to_int(direction_id));
  }

  /// The whole part of a count; what is not a number counts nothing.
  static int whole_count(double n_pairs) {
    constexpr int most = std::numeric_limits<int>::max();
    if (!(n_pairs > 0.0)) return 0;
    return n_pairs < most ? static_cast<int>(n_pairs) : most;
  }

  bool empty() const { return lags_.empty(); }

  /// The variogram of the lags so far, which are handed over.
  experimental_variogram build(location_list directions) {
    return {std::move(lags_), std::move(variogram_), std::move(npairs_), std::move(direction_ids_),
            std::move(directions)};
  }

 private:
  location_list lags_;
  std::vector<double> variogram_;
  std::vector<int> npairs_;
  std::vector<int> direction_ids_;
};

/// Lags are drawn in a space where the samples' extent is 1: it has to be there and back from it.
inline void check_extent(std::string_view name, const Ellipsoid& space) {
  if (!space.matrix().allFinite() || !space.inv_matrix().allFinite()) {
    refuse(name, "an extent within the range of numbers", "one that overflows");
  }
}

/// That there are not more lags than an int can number.
inline void check_lag_counts(int n_directions, int n_lags) {
  check_at_least("n_directions", n_directions, 0);
  check_at_least("n_lags", n_lags, 0);
  const auto n = 2 * static_cast<long long>(n_directions);
  if (n > 0 && n_lags > std::numeric_limits<int>::max() / n) {
    refuse("n_lags", "at most 2147483647 lags in all",
           std::to_string(n_lags) + " on each of " + std::to_string(n) + " directions");
  }
}

}  // namespace gravelox::detail
