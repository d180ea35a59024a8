// SPDX-License-Identifier: MIT
#include "optimization/nested_model_search.hpp"

#include "common/checks.hpp"
#include "optimization/covariance_search.hpp"
#include "optimization/search_rating.hpp"
#include "variography/covariance_generator.hpp"

namespace gravelox {

std::pair<std::vector<Covariance>, double> optimize_covariance_using_idw(
    const location_list& data_locs, const std::vector<double>& data, const Ellipsoid& ellipsoid,
    const Kernel& cov_kernel, int n_kernels, int n_covs, double delta_angle, double min_str_range,
    double max_str_range, double min_sill, double max_sill, double power_a, double max_distance,
    int max_nei_size, int min_partition_size, int max_partition_size, int n_partitions,
    double regularization_const, int n_centers, int n_iterations, int n_iterations_without_upgrade,
    int seed, int n_threads, bool debug) {
  check_at_least("n_covs", n_covs, 1);
  const idw_rating rating =
      create_search_rating(data_locs, data, max_nei_size, n_centers,
                           {max_distance,
                            0,
                            power_a,
                            {min_partition_size, max_partition_size, n_partitions},
                            regularization_const},
                           seed, n_threads);
  const std::vector<std::vector<Covariance>> covs =
      generate_covariances(ellipsoid, n_kernels, cov_kernel, n_covs, seed, delta_angle,
                           min_str_range, max_str_range, min_sill, max_sill);
  return optimize_covariance(covs, rating, n_iterations, n_iterations_without_upgrade, n_threads,
                             debug);
}

}  // namespace gravelox
