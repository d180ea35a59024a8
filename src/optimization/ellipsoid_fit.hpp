// SPDX-License-Identifier: MIT
#pragma once

// The fit of an anisotropy by a gradient search.

#include <string>

#include "estimation/folds.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// The ellipsoid whose inverse distance estimates (power 3, distance 1 - covariance) predict the
/// samples of each fold best from random partitions of it. Errors are in standard deviations of all
/// values; large ones count by their root, and the mean error of a partition counts as one more.
///
/// Ranges lie between 0.001 times their maximum and their maximum (length units), and start in the
/// middle, with the axes along the coordinates. A regularization_const above 0 adds a prior for
/// short ranges, a cauchy_loss of at least 1e-10 a robust loss of each partition. Where the axes
/// end up turned, the fitted metric and the ellipsoid differ: see fitted_ellipsoid in the source.
///
/// Draws from one engine of the seed, n_partitions times for each fold: a word for the number of
/// conditioning samples, min_partition_size up to below max_partition_size (two less than the fold
/// where it has fewer), then a shuffle. With as many as the fold nothing is left to predict, and
/// the solver stops where it starts, as it does for equal values. Does not depend on n_threads.
///
/// With a `final_cost` the solver's cost is stored there. Throws std::invalid_argument for unknown
/// kernels, as check_folds does, for maximal ranges that are not above 0, negative counts, equal
/// partition sizes, and a partition without a conditioning sample.
Ellipsoid optimize_ellipsoid_using_kfold(const fold_list& folds, const std::string& cov_type,
                                         double r1_max, double r2_max, double r3_max,
                                         double regularization_const, double cauchy_loss,
                                         int min_partition_size, int max_partition_size,
                                         int n_partitions, int n_iterations, int seed,
                                         int n_threads, bool debug, double* final_cost = nullptr);

}  // namespace gravelox
