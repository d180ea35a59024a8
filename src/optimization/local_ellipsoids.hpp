// SPDX-License-Identifier: MIT
#pragma once

// Local anisotropies: an ellipsoid for each of several groups of samples.

#include <string>
#include <vector>

#include "common/location.hpp"
#include "optimization/ellipsoid_search.hpp"
#include "variography/kernel.hpp"
#include "variography/local_covariances.hpp"

namespace gravelox {

/// The settings of local gradient fits; see optimize_ellipsoid_using_kfold.
struct ellipsoid_lbfgs_parameters {
  double regularization_const = 1.0;
  double cauchy_loss = 0.0;
  int min_partition_size = 15;
  int max_partition_size = 30;
  int n_partitions = 7;
  int n_iterations = 1000;
  int seed = 123151;
  int n_threads = 0;
  bool debug = false;
};

/// A model of one structure of sill 1 for each group, found by optimize_ellipsoid_using_idw on the
/// group's samples, at the mean of their locations, with the error of the search.
///
/// Groups are n_centers folds of up to center_size samples within a radius of the diagonal of the
/// samples' box / n_centers * center_max_size (the plain count, not its cube root). min_range and
/// max_range are fractions of the diagonal of a group's own box. Every search has the same seed.
/// Throws std::invalid_argument for an n_centers below 1 and as the search does.
LocalCovariances optimize_local_ellipsoids(
    const location_list& data_locs, const std::vector<double>& data, const Kernel& cov_kernel,
    double min_range, double max_range, int n_centers, double center_max_size, int center_size,
    const ellipsoid_optimization_parameters& parameters = ellipsoid_optimization_parameters());

/// The same by optimize_ellipsoid_using_kfold on n_local_centers folds of each group, of up to
/// local_center_size samples within the same radius, with ranges up to max_local_range (length
/// units). The solver is of the trust-region kind, whatever the name says.
///
/// The prior's constant is multiplied by the number of local folds and partitions. An error is the
/// rating of the group's model on all groups by inverse distance cross-validation, plus 0.0001 to
/// keep it above zero; errors are then divided by their sum. That rating depends on the number of
/// threads; the ellipsoids do not.
LocalCovariances optimize_local_ellipsoids_using_lbfgs(
    const location_list& data_locs, const std::vector<double>& data, const std::string& cov_type,
    int n_centers, int n_local_centers, double center_max_size, int center_size,
    int local_center_size, double max_local_range, const ellipsoid_lbfgs_parameters& parameters);

}  // namespace gravelox
