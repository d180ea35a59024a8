// SPDX-License-Identifier: MIT
#include "estimation/kriging.hpp"

#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

#include "estimation/estimation_detail.hpp"
#include "estimation/kriging_detail.hpp"

namespace gravelox {

namespace {

/// Kriging at all targets; ordinary without a mean.
kriging_result krige_all(const location_list& target_locs, const nei_getter& getter,
                         const location_list& data_locs, const std::vector<double>& data,
                         const std::vector<Covariance>& covs, std::optional<double> mean,
                         int n_threads) {
  const detail::kriging_model model(covs);
  std::vector<double> estimates(target_locs.size(), 0.0);
  std::vector<double> variances(target_locs.size(), 0.0);
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, detail::kriging_system& system) {
    if (neis.empty()) {
      estimates[index] = std::numeric_limits<double>::quiet_NaN();
    } else if (neis.size() == 1) {
      estimates[index] = data[neis.front()];
    } else {
      estimates[index] = detail::krige(model, mean, data_locs, data, neis, target, system);
      variances[index] = system.variance(model);
    }
  };
  detail::for_each_target<detail::kriging_system>(target_locs, getter, n_threads, estimate);
  return {std::move(estimates), std::move(variances)};
}

}  // namespace

kriging_result compute_simple_kriging(const location_list& target_locs,
                                      const location_list& data_locs,
                                      const std::vector<double>& data,
                                      const std::vector<Covariance>& covs, double mean,
                                      const Neighborhood& neighborhood, int max_neighbors,
                                      double max_radius, int max_neighbors_octant, int n_threads,
                                      const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  return krige_all(target_locs, getter, data_locs, data, covs, mean, n_threads);
}

kriging_result compute_ordinary_kriging(const location_list& target_locs,
                                        const location_list& data_locs,
                                        const std::vector<double>& data,
                                        const std::vector<Covariance>& covs,
                                        const Neighborhood& neighborhood, int max_neighbors,
                                        double max_radius, int max_neighbors_octant, int n_threads,
                                        const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  return krige_all(target_locs, getter, data_locs, data, covs, std::nullopt, n_threads);
}

Estimator create_sk_estimator(const std::vector<Covariance>& covs, double mean, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return std::get<0>(compute_simple_kriging(
        target_locs, data_locs, data, covs, mean, neighborhood, max_neighbors, max_radius,
        max_neighbors_octant, n_threads, dhids, max_neis_by_dhid));
  };
}

Estimator create_ok_estimator(const std::vector<Covariance>& covs, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return std::get<0>(compute_ordinary_kriging(target_locs, data_locs, data, covs, neighborhood,
                                                max_neighbors, max_radius, max_neighbors_octant,
                                                n_threads, dhids, max_neis_by_dhid));
  };
}

}  // namespace gravelox
