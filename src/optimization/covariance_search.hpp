// SPDX-License-Identifier: MIT
#pragma once

// The search for the covariance model that a rating likes best.

#include <utility>
#include <vector>

#include "optimization/covariance_error.hpp"
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

}  // namespace gravelox
