// SPDX-License-Identifier: MIT
#pragma once

// The inner loops of variograms of scattered samples: pairs of neighbours, sorted into lags.

#include <cstddef>
#include <limits>
#include <vector>

#include "common/location.hpp"
#include "spatial/neighbor_buffer.hpp"

namespace gravelox {

/// Whether the angle between a lag and a direction is at most a tolerance (radians). An angle that
/// is not a number, that of a lag of length 0, is.
class angle_test {
 public:
  explicit angle_test(double tolerance);

  /// For the length of a lag, and of its part along the direction.
  bool operator()(double length, double part) const {
    if (part >= surely_within_ * length) return true;
    if (part < surely_outside_ * length) return false;
    return is_within(length, part);
  }

 private:
  /// Takes the arc, for angles next to the tolerance alone.
  bool is_within(double length, double part) const;

  double tolerance_;
  double surely_within_ = std::numeric_limits<double>::infinity();
  double surely_outside_ = -std::numeric_limits<double>::infinity();
};

/// The lags of one direction by length, with the mean semivariance and the number of the pairs of
/// each.
struct direction_lags {
  std::vector<double> lengths;
  std::vector<double> means;
  std::vector<double> counts;
};

/// The lengths of a direction's lags, and sums over the pairs that fall to each.
class lag_bins {
 public:
  /// Takes the lengths in any order.
  explicit lag_bins(std::vector<double> lengths);

  /// Adds a pair to the first length not below its own, if there is one.
  void add(double length, double semivariance) {
    const std::size_t bin = first_not_below(length);
    if (bin == lengths_.size()) return;
    sums_[bin] += semivariance;
    counts_[bin] += 1.0;
  }

  /// Means over each lag and the lags up to `window` away: the same as though each pair went to all
  /// of these lags. A negative window leaves all of them without pairs.
  direction_lags means_over(int window) const;

 private:
  std::size_t first_not_below(double length) const {
    if (lengths_.empty()) return 0;
    std::size_t lag = n_below_step_[step_of(length)];
    while (lag < lengths_.size() && lengths_[lag] < length) ++lag;
    return lag;
  }

  /// Never falls as the length grows, so lengths of earlier steps are below all of a later one.
  std::size_t step_of(double length) const {
    const double step = (length - lengths_.front()) * steps_per_length_;
    if (!(step > 0.0)) return 0;
    return static_cast<std::size_t>(step < last_step_ ? step : last_step_);
  }

  std::vector<double> lengths_;
  std::vector<double> sums_;
  std::vector<double> counts_;

  /// Equal steps of length, each with the number of lag lengths below it, so that the place of a
  /// pair is found without a search: only the few lengths within its own step are compared.
  std::vector<std::size_t> n_below_step_;
  double steps_per_length_ = 0.0;
  double last_step_ = 0.0;
};

/// Samples as separate arrays.
struct sample_arrays {
  std::vector<double> x, y, z, value;
};

/// Pairs: the length of each lag, the length of its part along the direction, the semivariance.
struct pair_arrays {
  std::vector<double> length, part, semivariance;
};

/// Finds the pairs around a centre and sorts them into bins, many at a time; one a thread.
class pair_finder {
 public:
  /// The neighbours of the centre at hand.
  neighbor_buffer neighbors;

  /// Adds each pair of the neighbours whose lag is along the axis.
  void add_pairs(const location_list& data_locs, const std::vector<double>& data_values,
                 const location& axis, const angle_test& is_along, lag_bins& bins);

 private:
  void gather(const location_list& data_locs, const std::vector<double>& data_values);
  void append_pairs_of(std::size_t a, const location& axis);
  void flush(const angle_test& is_along, lag_bins& bins);

  sample_arrays samples_;
  pair_arrays pairs_;
  std::size_t n_pairs_ = 0;
};

}  // namespace gravelox
