// SPDX-License-Identifier: MIT
#include "optimization/ellipsoid_search.hpp"

#include "common/checks.hpp"
#include "optimization/covariance_search.hpp"
#include "optimization/search_rating.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/rotation_sampling.hpp"

namespace gravelox {

std::vector<Covariance> model_of(const Ellipsoid& ellipsoid, const Kernel& cov_kernel) {
  return {{covariance_type::spherical, 1.0, ellipsoid, cov_kernel}};
}

std::pair<Ellipsoid, double> optimize_ellipsoid_using_idw(
    const location_list& data_locs, const std::vector<double>& data, const Kernel& cov_kernel,
    double min_range, double max_range, double power_a, double max_distance, int max_nei_size,
    int min_partition_size, int max_partition_size, int n_partitions, double regularization_const,
    int n_centers, int n_rays, int n_scales, int n_iterations, int n_iterations_without_upgrade,
    double tol, int seed, int n_threads, bool debug) {
  const idw_rating rating =
      create_search_rating(data_locs, data, max_nei_size, n_centers,
                           {max_distance,
                            0,
                            power_a,
                            {min_partition_size, max_partition_size, n_partitions},
                            regularization_const},
                           seed, n_threads);
  std::vector<std::vector<Covariance>> models;
  for (const Ellipsoid& candidate :
       generate_ellipsoids(min_range, max_range, n_rays, n_scales, seed, tol)) {
    models.push_back(model_of(candidate, cov_kernel));
  }
  if (models.empty()) refuse("n_rays, n_scales and tol", "candidate ellipsoids", "none");
  const auto [best, error] = optimize_covariance(models, rating, n_iterations,
                                                 n_iterations_without_upgrade, n_threads, debug);
  return {best.front().ellipsoid, error};
}

std::pair<Ellipsoid, double> optimize_ellipsoid(
    const location_list& data_locs, const std::vector<double>& data, const Kernel& cov_kernel,
    double min_range, double max_range, const ellipsoid_optimization_parameters& parameters) {
  const double diagonal = extent(data_locs).norm();
  return optimize_ellipsoid_using_idw(
      data_locs, data, cov_kernel, min_range * diagonal, max_range * diagonal, parameters.power_a,
      diagonal, parameters.max_nei_size, parameters.min_partition_size,
      parameters.max_partition_size, parameters.n_partitions, parameters.regularization_const,
      parameters.n_centers, parameters.n_rays, parameters.n_scales, parameters.n_iterations,
      parameters.n_iterations_without_upgrade, parameters.tol, parameters.seed,
      parameters.n_threads, parameters.debug);
}

double compute_ellipsoid_error_idw(const Ellipsoid& ellipsoid, const Kernel& cov_kernel,
                                   const fold_list& folds, double max_distance, int max_size,
                                   double power_a, int min_partition_size, int max_partition_size,
                                   int n_partitions, double regularization_const, int n_threads,
                                   int seed) {
  return compute_covariance_error_idw(model_of(ellipsoid, cov_kernel), folds, max_distance,
                                      max_size, power_a, min_partition_size, max_partition_size,
                                      n_partitions, regularization_const, n_threads, seed);
}

}  // namespace gravelox
