// SPDX-License-Identifier: MIT
#include "estimation/moving_window.hpp"

#include <cmath>
#include <limits>

#include "estimation/estimation_detail.hpp"
#include "variography/cov_computer.hpp"

namespace gravelox {

std::vector<double> moving_window_estimation(
    const location_list& target_locs, const Neighborhood& nei, const location_list& data_locs,
    const std::vector<double>& data, const std::vector<Covariance>& covs, int max_neighbors,
    double max_radius, int max_neighbors_octant, const std::vector<int>& dhids,
    int max_neis_by_dhid, int n_threads) {
  detail::check_samples(target_locs, data_locs, data);
  check_neighborhood("nei", nei, data_locs);
  const nei_getter getter = create_nei_getter(data_locs, nei, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  const cov_computer cov = create_cov_computer(covs);
  std::vector<double> estimates(target_locs.size(), std::numeric_limits<double>::quiet_NaN());
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, lag_buffer& lags) {
    lags.set(data_locs, neis, target, target);
    const double* weights = cov.to_target(lags);
    double weight_sum = 0.0;
    double value_sum = 0.0;
    for (std::size_t i = 0; i < neis.size(); ++i) {
      weight_sum += weights[i];
      value_sum += weights[i] * data[neis[i]];
    }
    if (std::abs(weight_sum) > 1e-30) estimates[index] = value_sum / weight_sum;
  };
  detail::for_each_target<lag_buffer>(target_locs, getter, n_threads, estimate);
  return estimates;
}

}  // namespace gravelox
