// SPDX-License-Identifier: MIT
#pragma once

// A mean over a moving window, weighted by a covariance model that acts as a smoothing kernel.

#include <vector>

#include "common/location.hpp"
#include "spatial/neighborhood.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// The mean of the neighbours, weighted by cov(sample - target). NaN without neighbours and where
/// the weights cancel out (their sum within 1e-30 of 0), also for a single neighbour. Checks as in
/// idw_estimation.
std::vector<double> moving_window_estimation(
    const location_list& target_locs, const Neighborhood& nei, const location_list& data_locs,
    const std::vector<double>& data, const std::vector<Covariance>& covs, int max_neighbors,
    double max_radius, int max_neighbors_octant, const std::vector<int>& dhids,
    int max_neis_by_dhid, int n_threads);

}  // namespace gravelox
