// SPDX-License-Identifier: MIT
#include "estimation/inverse_distance.hpp"

#include <cmath>
#include <limits>

#include "common/power.hpp"
#include "estimation/estimation_detail.hpp"
#include "variography/cov_computer.hpp"

namespace gravelox {

namespace {

constexpr double threshold = 1e-30;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

/// The weighted mean of samples away from the target, blended with that of samples on it.
class blend {
 public:
  explicit blend(double max_weight) : max_weight_(max_weight) {}

  void add_far(double weight, double value) {
    far_weight_ += weight;
    far_sum_ += weight * value;
  }

  void add_close(double value) {
    close_weight_ += max_weight_;
    close_sum_ += max_weight_ * value;
  }

  double value() const {
    const double far_size = std::abs(far_weight_);
    const double close_size = std::abs(close_weight_);
    if (far_size > threshold && close_size < threshold) return far_sum_ / far_weight_;
    if (close_size > threshold) {
      const double close = close_sum_ / close_weight_;
      if (far_size < threshold) return close;
      return far_sum_ / far_weight_ * (1.0 - max_weight_) + max_weight_ * close;
    }
    return not_a_number;
  }

 private:
  double max_weight_;
  double far_weight_ = 0.0;
  double far_sum_ = 0.0;
  double close_weight_ = 0.0;
  double close_sum_ = 0.0;
};

/// The run of both forms; add_all(target, neis, scratch, mean) adds two neighbours or more.
template <typename Scratch, typename AddAll>
std::vector<double> estimate_all(const location_list& target_locs, const nei_getter& getter,
                                 const std::vector<double>& data, double max_weight, int n_threads,
                                 const AddAll& add_all) {
  std::vector<double> estimates(target_locs.size(), not_a_number);
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, Scratch& scratch) {
    if (neis.size() == 1) {
      estimates[index] = data[neis.front()];
      return;
    }
    blend mean(max_weight);
    add_all(target, neis, scratch, mean);
    estimates[index] = mean.value();
  };
  detail::for_each_target<Scratch>(target_locs, getter, n_threads, estimate);
  return estimates;
}

}  // namespace

std::vector<double> idw_estimation(const location_list& target_locs, const location_list& data_locs,
                                   const std::vector<double>& data, double power_a,
                                   double max_weight, const Neighborhood& neighborhood,
                                   int max_neighbors, double max_radius, int max_neighbors_octant,
                                   int n_threads, const std::vector<int>& dhids,
                                   int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  using distance_list = std::vector<double>;
  const auto add_all = [&](const location& target, const std::vector<std::size_t>& neis,
                           distance_list& distances, blend& mean) {
    // All distances first: the samples lie scattered in memory, and so they are fetched together.
    distances.clear();
    for (const std::size_t nei : neis) distances.push_back((data_locs[nei] - target).norm());
    for (std::size_t i = 0; i < neis.size(); ++i) {
      if (distances[i] < threshold) {
        mean.add_close(data[neis[i]]);
      } else {
        mean.add_far(1.0 / std::pow(distances[i], power_a), data[neis[i]]);
      }
    }
  };
  return estimate_all<distance_list>(target_locs, getter, data, max_weight, n_threads, add_all);
}

std::vector<double> idw_estimation(const location_list& target_locs, const location_list& data_locs,
                                   const std::vector<double>& data,
                                   const std::vector<Covariance>& covs, double power_a,
                                   double max_weight, const Neighborhood& neighborhood,
                                   int max_neighbors, double max_radius, int max_neighbors_octant,
                                   int n_threads, const std::vector<int>& dhids,
                                   int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  const cov_computer cov = create_cov_computer(covs);
  const power_function f = create_power_function(power_a);
  const auto add_all = [&](const location& target, const std::vector<std::size_t>& neis,
                           lag_buffer& lags, blend& mean) {
    lags.set(data_locs, neis, target, target);
    const double* covariances = cov.to_target(lags);
    for (std::size_t i = 0; i < neis.size(); ++i) {
      const double value = data[neis[i]];
      if ((data_locs[neis[i]] - target).norm() > threshold) {
        mean.add_far(1.0 / f(1.0 - covariances[i]), value);
      } else {
        mean.add_close(value);
      }
    }
  };
  return estimate_all<lag_buffer>(target_locs, getter, data, max_weight, n_threads, add_all);
}

Estimator create_idw_estimator(double power_a, double max_weight, int max_neighbors,
                               double max_radius, int max_neighbors_octant,
                               const std::vector<int>& dhids, int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return idw_estimation(target_locs, data_locs, data, power_a, max_weight, neighborhood,
                          max_neighbors, max_radius, max_neighbors_octant, n_threads, dhids,
                          max_neis_by_dhid);
  };
}

Estimator create_idw_estimator(const std::vector<Covariance>& covs, double power_a,
                               double max_weight, int max_neighbors, double max_radius,
                               int max_neighbors_octant, const std::vector<int>& dhids,
                               int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return idw_estimation(target_locs, data_locs, data, covs, power_a, max_weight, neighborhood,
                          max_neighbors, max_radius, max_neighbors_octant, n_threads, dhids,
                          max_neis_by_dhid);
  };
}

}  // namespace gravelox
