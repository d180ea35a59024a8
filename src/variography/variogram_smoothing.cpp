// SPDX-License-Identifier: MIT
#include "variography/variogram_smoothing.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/power.hpp"
#include "common/random.hpp"
#include "spatial/neighborhood.hpp"
#include "variography/variography_detail.hpp"

namespace gravelox {

namespace {

constexpr double coincident = 1e-30;

/// A new lag of a direction, and what the old ones near it give.
struct new_lag {
  location lag;
  std::size_t direction_id;
  double value = 0.0;
  double npairs = 0.0;
};

double greatest_length(const experimental_variogram& vario, const std::vector<int>& positions) {
  double greatest = 0.0;
  for (const int position : positions) {
    greatest = std::max(greatest, vario.lags()[to_size(position)].norm());
  }
  return greatest;
}

/// New lags in the order of directions, those of a direction by length.
std::vector<new_lag> draw_new_lags(const experimental_variogram& vario, int n_lags, double max_r,
                                   random_engine& engine) {
  std::vector<new_lag> drawn;
  normal_distribution normal;
  std::vector<double> lengths;
  for (std::size_t id = 0; id < vario.directions().size(); ++id) {
    const std::vector<int>& positions = vario.lags_by_dir()[id];
    const double greatest = greatest_length(vario, positions);
    lengths.resize(n_lags >= 1 ? to_size(n_lags) : positions.size());
    for (double& length : lengths) {
      length = std::abs(normal(engine)) * greatest + 0.02 * max_r;
    }
    std::sort(lengths.begin(), lengths.end());
    for (const double length : lengths) {
      drawn.push_back({length * vario.directions()[id], id});
    }
  }
  return drawn;
}

/// Weighted sums of semivariances and pair counts.
struct weighted_sums {
  double weight = 0.0;
  double value = 0.0;
  double npairs = 0.0;

  void add(double w, double v, double n) {
    weight += w;
    value += w * v;
    npairs += w * n;
  }

  double mean_value() const { return value / weight; }
  double mean_npairs() const { return npairs / weight; }
};

/// Fills a new lag from the old ones near it.
class lag_filler {
 public:
  lag_filler(const experimental_variogram& vario, int max_n_neis, double max_r, double bandwidth,
             double power_a, double max_weight)
      : vario_(vario),
        neighborhood_(vario.lags()),
        max_n_neis_(max_n_neis),
        max_r_(max_r),
        bandwidth_(bandwidth),
        power_(create_power_function(power_a)),
        max_weight_(max_weight) {
    for (const int count : vario.npairs()) total_npairs_ += count;
  }

  void fill(new_lag& to_fill, neighbor_buffer& buffer) const {
    const location& lag = to_fill.lag;
    const location& direction = vario_.directions()[to_fill.direction_id];
    find_neighbors(lag, buffer);
    weighted_sums far;
    weighted_sums exact;
    for (std::size_t i = 0; i < buffer.n_found; ++i) {
      const std::size_t nei = buffer.ids[i];
      const location offset = lag - vario_.lags()[nei];
      const double distance = offset.norm();
      if (distance > max_r_) continue;
      if ((offset - offset.dot(direction) * direction).norm() > bandwidth_) continue;
      const double npairs = vario_.npairs()[nei];
      const double weight = npairs / total_npairs_;
      if (distance > coincident) {
        far.add(power_(1.0 / distance) * weight, vario_.variogram()[nei], npairs);
      } else {
        exact.add(weight, vario_.variogram()[nei], npairs);
      }
    }
    set(to_fill, far, exact);
  }

 private:
  void find_neighbors(const location& lag, neighbor_buffer& buffer) const {
    if (max_n_neis_ < 1) {
      neighborhood_.find_neighbors(lag, max_r_, buffer);
    } else {
      neighborhood_.find_neighbors(lag, max_n_neis_, buffer);
    }
  }

  void set(new_lag& lag, const weighted_sums& far, const weighted_sums& exact) const {
    if (exact.weight > 0.0 && far.weight > 0.0) {
      lag.value = far.mean_value() * (1.0 - max_weight_) + exact.mean_value() * max_weight_;
      lag.npairs = far.mean_npairs() * (1.0 - max_weight_) + exact.mean_npairs() * max_weight_;
    } else if (exact.weight > 0.0 || far.weight > 0.0) {
      const weighted_sums& only = exact.weight > 0.0 ? exact : far;
      lag.value = only.mean_value();
      lag.npairs = only.mean_npairs();
    }
  }

  const experimental_variogram& vario_;
  Neighborhood neighborhood_;
  int max_n_neis_;
  double max_r_;
  double bandwidth_;
  power_function power_;
  double max_weight_;
  double total_npairs_ = 0.0;
};

experimental_variogram with_pairs(const std::vector<new_lag>& lags,
                                  const location_list& directions) {
  detail::variogram_builder builder;
  for (const new_lag& lag : lags) {
    if (detail::variogram_builder::whole_count(lag.npairs) < 1) continue;
    builder.add(lag.lag, lag.value, lag.npairs, lag.direction_id);
  }
  if (builder.empty()) throw std::runtime_error("No lags found");
  return builder.build(directions);
}

}  // namespace

experimental_variogram smooth_variogram(const experimental_variogram& vario, int n_lags,
                                        int max_n_neis, double max_r, double bandwidth,
                                        double power_a, double max_weight, int sampling_size,
                                        int n_threads, std::int64_t seed) {
  check_finite("vario", vario.lags());
  check_finite("max_r", max_r);
  check_not_nan("bandwidth", bandwidth);
  check_finite("power_a", power_a);
  check_finite("max_weight", max_weight);
  check_at_least("sampling_size", sampling_size, 0);
  if (sampling_size > 0) check_not_empty("vario", vario.lags().size());

  random_engine engine = create_engine(seed);
  // A pick of an old lag each, which nothing reads: they only advance the engine.
  engine.discard(to_size(sampling_size));
  const lag_filler filler(vario, max_n_neis, max_r, bandwidth, power_a, max_weight);
  std::vector<new_lag> lags = draw_new_lags(vario, n_lags, max_r, engine);
  if (lags.empty()) throw std::runtime_error("No lags...");

  std::vector<neighbor_buffer> buffers(n_thread_slots(n_threads));
  parallel_for(lags.size(), n_threads, [&](std::size_t index, int thread_number) {
    filler.fill(lags[index], buffers[to_size(thread_number)]);
  });
  return with_pairs(lags, vario.directions());
}

}  // namespace gravelox
