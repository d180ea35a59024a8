// SPDX-License-Identifier: MIT
#pragma once

// The search for the anisotropy of samples: candidate ellipsoids, rated by inverse distance
// cross-validation.

#include <utility>
#include <vector>

#include "common/location.hpp"
#include "estimation/folds.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// The settings of a search over ellipsoids. These defaults hold for a search without a record;
/// scripts that make one start from others, for a quicker search.
struct ellipsoid_optimization_parameters {
  double power_a = 3.0;
  int max_nei_size = 400;
  int min_partition_size = 15;
  int max_partition_size = 25;
  int n_partitions = 4;
  int n_centers = 10;
  int n_rays = 600;
  int n_scales = 5;
  int n_iterations = 2000;
  int n_iterations_without_upgrade = 100;
  double tol = 0.002;
  double regularization_const = 0.001;
  int seed = 1231;
  int n_threads = 0;
  bool debug = false;
};

/// A model of one structure of sill 1. Its label is spherical whatever the kernel, which is what
/// counts.
std::vector<Covariance> model_of(const Ellipsoid& ellipsoid, const Kernel& cov_kernel);

/// The best ellipsoid found and its error: optimize_covariance over models of one structure of sill
/// 1, one for each of generate_ellipsoids(min_range, max_range, n_rays, n_scales, seed, tol), tol
/// being the tolerance of their right angles. Ranges and max_distance are in length units.
///
/// Folds have up to max_nei_size samples about n_centers centres (create_folds); within a fold all
/// samples closer than max_distance are candidates. Throws std::invalid_argument where there are no
/// candidates, and as create_search_rating and optimize_covariance do.
std::pair<Ellipsoid, double> optimize_ellipsoid_using_idw(
    const location_list& data_locs, const std::vector<double>& data, const Kernel& cov_kernel,
    double min_range, double max_range, double power_a, double max_distance, int max_nei_size,
    int min_partition_size, int max_partition_size, int n_partitions, double regularization_const,
    int n_centers, int n_rays, int n_scales, int n_iterations, int n_iterations_without_upgrade,
    double tol, int seed, int n_threads, bool debug);

/// The same with ranges as fractions of the diagonal of the samples' box, which is the max_distance
/// too.
std::pair<Ellipsoid, double> optimize_ellipsoid(
    const location_list& data_locs, const std::vector<double>& data, const Kernel& cov_kernel,
    double min_range, double max_range,
    const ellipsoid_optimization_parameters& parameters = ellipsoid_optimization_parameters());

/// The rating of an ellipsoid as a model of one structure of sill 1; see idw_rating.
double compute_ellipsoid_error_idw(const Ellipsoid& ellipsoid, const Kernel& cov_kernel,
                                   const fold_list& folds, double max_distance, int max_size,
                                   double power_a, int min_partition_size, int max_partition_size,
                                   int n_partitions, double regularization_const, int n_threads = 0,
                                   int seed = 2131);

}  // namespace gravelox
