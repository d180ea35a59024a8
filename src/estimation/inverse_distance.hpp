// SPDX-License-Identifier: MIT
#pragma once

// Inverse distance estimation (Shepard, 1968): a weighted mean of the neighbours.

#include <vector>

#include "common/location.hpp"
#include "estimation/estimator.hpp"
#include "spatial/neighborhood.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// Weights 1 / d^power_a of the real distance d between sample and target.
///
/// Samples on the target (d below 1e-30) share `max_weight` of the estimate between them, and the
/// others the rest; with a max_weight of 0 samples on the target drop out. A single neighbour gives
/// its value; no neighbour gives NaN. All estimators throw std::invalid_argument for lists of
/// different lengths and for coordinates that are not finite.
std::vector<double> idw_estimation(const location_list& target_locs, const location_list& data_locs,
                                   const std::vector<double>& data, double power_a,
                                   double max_weight, const Neighborhood& neighborhood,
                                   int max_neighbors, double max_radius, int max_neighbors_octant,
                                   int n_threads, const std::vector<int>& dhids,
                                   int max_neis_by_dhid);

/// The same with weights 1 / f(1 - cov(sample - target)), f being the power function of power_a;
/// `covs` should have a total sill of 1. A sample is on the target where d is not above 1e-30. Zero
/// and negative arguments of f give infinite and negative weights, which are passed on.
std::vector<double> idw_estimation(const location_list& target_locs, const location_list& data_locs,
                                   const std::vector<double>& data,
                                   const std::vector<Covariance>& covs, double power_a,
                                   double max_weight, const Neighborhood& neighborhood,
                                   int max_neighbors, double max_radius, int max_neighbors_octant,
                                   int n_threads, const std::vector<int>& dhids,
                                   int max_neis_by_dhid);

/// Estimators that hold these parameters.
Estimator create_idw_estimator(double power_a, double max_weight, int max_neighbors,
                               double max_radius, int max_neighbors_octant,
                               const std::vector<int>& dhids, int max_neis_by_dhid);
Estimator create_idw_estimator(const std::vector<Covariance>& covs, double power_a,
                               double max_weight, int max_neighbors, double max_radius,
                               int max_neighbors_octant, const std::vector<int>& dhids,
                               int max_neis_by_dhid);

}  // namespace gravelox
