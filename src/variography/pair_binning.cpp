// SPDX-License-Identifier: MIT
#include "variography/pair_binning.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "common/integer.hpp"
#include "common/vector_clones.hpp"

namespace gravelox {

namespace {

/// Pairs are collected up to about this number before they are sorted into bins.
constexpr std::size_t batch = 2048;

struct sample {
  double x, y, z, value;
};

/// Where the others of a sample's pairs start, and where the pairs go.
struct pair_pointers {
  const double *x, *y, *z, *value;
  double *length, *part, *semivariance;
};

/// The pairs of sample a with n others, for a direction d.
GRAVELOX_VECTOR_CLONES void make_pairs(const sample& from, const sample& direction, std::size_t n,
                                       const pair_pointers& pointers) {
  const sample a = from;
  const sample d = direction;
  const pair_pointers to = pointers;
  for (std::size_t b = 0; b < n; ++b) {
    const double hx = a.x - to.x[b];
    const double hy = a.y - to.y[b];
    const double hz = a.z - to.z[b];
    const double difference = a.value - to.value[b];
    to.length[b] = std::sqrt(hx * hx + hy * hy + hz * hz);
    to.part[b] = std::abs(hx * d.x + hy * d.y + hz * d.z);
    to.semivariance[b] = 0.5 * difference * difference;
  }
}

}  // namespace

angle_test::angle_test(double tolerance) : tolerance_(tolerance) {
  constexpr double margin = 1e-12;
  if (!(tolerance >= 0.0 && tolerance <= std::numbers::pi)) return;
  surely_within_ = std::cos(tolerance) + margin;
  surely_outside_ = std::cos(tolerance) - margin;
}

bool angle_test::is_within(double length, double part) const {
  return !(std::acos(part / length) > tolerance_);
}

lag_bins::lag_bins(std::vector<double> lengths)
    : lengths_(std::move(lengths)), sums_(lengths_.size(), 0.0), counts_(lengths_.size(), 0.0) {
  constexpr std::size_t steps_per_lag = 8;
  if (lengths_.empty()) return;
  std::sort(lengths_.begin(), lengths_.end());
  n_below_step_.resize(steps_per_lag * lengths_.size());
  const double span = lengths_.back() - lengths_.front();
  last_step_ = static_cast<double>(n_below_step_.size() - 1);
  steps_per_length_ = span > 0.0 ? last_step_ / span : 0.0;
  std::size_t lag = 0;
  for (std::size_t step = 0; step < n_below_step_.size(); ++step) {
    while (lag < lengths_.size() && step_of(lengths_[lag]) < step) ++lag;
    n_below_step_[step] = lag;
  }
}

direction_lags lag_bins::means_over(int window) const {
  const std::size_t n = lengths_.size();
  direction_lags lags{lengths_, std::vector<double>(n, 0.0), std::vector<double>(n, 0.0)};
  if (window < 0) return lags;
  const std::size_t reach = std::min(to_size(window), n);
  for (std::size_t lag = 0; lag < n; ++lag) {
    const std::size_t end = std::min(lag + reach + 1, n);
    double sum = 0.0;
    for (std::size_t bin = lag - std::min(lag, reach); bin < end; ++bin) {
      sum += sums_[bin];
      lags.counts[lag] += counts_[bin];
    }
    if (lags.counts[lag] > 0.0) lags.means[lag] = sum / lags.counts[lag];
  }
  return lags;
}

void pair_finder::add_pairs(const location_list& data_locs, const std::vector<double>& data_values,
                            const location& axis, const angle_test& is_along, lag_bins& bins) {
  gather(data_locs, data_values);
  for (std::size_t a = 0; a < neighbors.ids.size(); ++a) {
    append_pairs_of(a, axis);
    if (n_pairs_ >= batch) flush(is_along, bins);
  }
  flush(is_along, bins);
}

void pair_finder::gather(const location_list& data_locs, const std::vector<double>& data_values) {
  const std::size_t n = neighbors.ids.size();
  for (auto* array : {&samples_.x, &samples_.y, &samples_.z, &samples_.value}) array->resize(n);
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t id = neighbors.ids[i];
    samples_.x[i] = data_locs[id].x();
    samples_.y[i] = data_locs[id].y();
    samples_.z[i] = data_locs[id].z();
    samples_.value[i] = data_values[id];
  }
  const std::size_t room = std::max(batch + n, pairs_.length.size());
  for (auto* array : {&pairs_.length, &pairs_.part, &pairs_.semivariance}) array->resize(room);
}

void pair_finder::append_pairs_of(std::size_t a, const location& axis) {
  const std::size_t first = a + 1;
  const std::size_t n = samples_.x.size() - first;
  const sample from{samples_.x[a], samples_.y[a], samples_.z[a], samples_.value[a]};
  const sample direction{axis.x(), axis.y(), axis.z(), 0.0};
  make_pairs(from, direction, n,
             {samples_.x.data() + first, samples_.y.data() + first, samples_.z.data() + first,
              samples_.value.data() + first, pairs_.length.data() + n_pairs_,
              pairs_.part.data() + n_pairs_, pairs_.semivariance.data() + n_pairs_});
  n_pairs_ += n;
}

/// Pairs along the direction move up before they are sorted into bins: no branch depends on them.
void pair_finder::flush(const angle_test& is_along, lag_bins& bins) {
  std::size_t n_along = 0;
  for (std::size_t i = 0; i < n_pairs_; ++i) {
    const bool is_kept = is_along(pairs_.length[i], pairs_.part[i]);
    pairs_.length[n_along] = pairs_.length[i];
    pairs_.semivariance[n_along] = pairs_.semivariance[i];
    n_along += is_kept ? 1 : 0;
  }
  for (std::size_t i = 0; i < n_along; ++i) bins.add(pairs_.length[i], pairs_.semivariance[i]);
  n_pairs_ = 0;
}

}  // namespace gravelox
