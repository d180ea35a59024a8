// SPDX-License-Identifier: MIT
#pragma once

// The search for the covariance model that a rating likes best.

#include <utility>
#include <vector>

#include "common/location.hpp"
#include "optimization/covariance_error.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// The best model found and its error.
///
/// First the list is scanned, each thread over its own stretch of it: a thread that has met more
/// than n_iterations candidates, or more than n_iterations_without_upgrade since its last
/// improvement, rates no further ones. Then n_iterations + n_threads tries shrink and tilt each
/// thread's own best: every structure but nuggets, whose draws are, from the thread's engine, two
/// words that are dropped, a factor on [0.1, 1) for each of its ranges, which are then sorted, and
/// a turn on [-15, 15) degrees for azimuth, dip and rake. Ranges therefore only shrink.
///
/// Candidates are rated with one thread, at the same time; only the first of the list, where the
/// search starts, is rated with all, and by a rating that adds up threads it then looks worse than
/// it is. Equal errors and NaN never replace a model; among threads the lower one wins. The
/// engines' seed is fixed: results repeat for the same number of threads.
///
/// With `debug` every improvement is printed. Throws std::invalid_argument without candidates and
/// for negative counts. An exception of the error function ends the search at once.
std::pair<std::vector<Covariance>, double> optimize_covariance(
    const std::vector<std::vector<Covariance>>& covs, const CovarianceErrorFunction& error_function,
    int n_iterations, int n_iterations_without_upgrade, int n_threads, bool debug);

/// The rating of a search over samples, in n_centers folds of up to max_nei_size of them. The
/// engine of the seed skips a word for each thread and then draws the seed of the folds and that of
/// the rating. Within a fold all samples are candidates, whatever the max_size of the parameters.
/// Throws std::invalid_argument for lists of different lengths and as create_folds and idw_rating
/// do.
idw_rating create_search_rating(const location_list& data_locs, const std::vector<double>& data,
                                int max_nei_size, int n_centers, idw_rating_parameters parameters,
                                int seed, int n_threads);

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
