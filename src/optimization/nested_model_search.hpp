// SPDX-License-Identifier: MIT
#pragma once

// The search for a nested model of samples, rated by inverse distance cross-validation.

#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// optimize_covariance over n_covs random models around an ellipsoid (generate_covariances), rated
/// by inverse distance cross-validation in n_centers folds of up to max_nei_size samples.
std::pair<std::vector<Covariance>, double> optimize_covariance_using_idw(
    const location_list& data_locs, const std::vector<double>& data, const Ellipsoid& ellipsoid,
    const Kernel& cov_kernel, int n_kernels, int n_covs, double delta_angle, double min_str_range,
    double max_str_range, double min_sill, double max_sill, double power_a, double max_distance,
    int max_nei_size, int min_partition_size, int max_partition_size, int n_partitions,
    double regularization_const, int n_centers, int n_iterations, int n_iterations_without_upgrade,
    int seed, int n_threads, bool debug);

}  // namespace gravelox
