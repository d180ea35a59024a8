// SPDX-License-Identifier: MIT
#pragma once

// Simple and ordinary kriging (Matheron, 1963): each target has a system of its own over its
// neighbours.

#include <tuple>
#include <vector>

#include "common/location.hpp"
#include "estimation/estimator.hpp"
#include "spatial/neighborhood.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// Estimates and kriging variances, one for each target.
using kriging_result = std::tuple<std::vector<double>, std::vector<double>>;

/// Kriging with a known mean.
///
/// A target without neighbours has the estimate NaN and the variance 0, one with a single neighbour
/// that sample's value and the variance 0. Variances of systems are at least 1e-10. Weights are
/// used as the decomposition gives them; a singular system (coincident samples) gives its solution.
kriging_result compute_simple_kriging(const location_list& target_locs,
                                      const location_list& data_locs,
                                      const std::vector<double>& data,
                                      const std::vector<Covariance>& covs, double mean,
                                      const Neighborhood& neighborhood, int max_neighbors,
                                      double max_radius, int max_neighbors_octant, int n_threads,
                                      const std::vector<int>& dhids, int max_neis_by_dhid);

/// Kriging with an unknown mean. The estimate is the weighted sum of the values plus the Lagrange
/// multiplier, which has the unit of the sills: scale the sills so that they are small beside the
/// data (the weights do not depend on their scale).
kriging_result compute_ordinary_kriging(const location_list& target_locs,
                                        const location_list& data_locs,
                                        const std::vector<double>& data,
                                        const std::vector<Covariance>& covs,
                                        const Neighborhood& neighborhood, int max_neighbors,
                                        double max_radius, int max_neighbors_octant, int n_threads,
                                        const std::vector<int>& dhids, int max_neis_by_dhid);

/// Estimators that hold these parameters and drop the variances.
Estimator create_sk_estimator(const std::vector<Covariance>& covs, double mean, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid);
Estimator create_ok_estimator(const std::vector<Covariance>& covs, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid);

}  // namespace gravelox
