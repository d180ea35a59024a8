// SPDX-License-Identifier: MIT
#pragma once

// A nested model from the lags of a variogram map.

#include <string>
#include <vector>

#include "common/location.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// n_structures structures and a nugget, fitted to a variogram value and a weight at each lag;
/// their sills add up to total_sill.
///
/// Weights are multiplied by (1 / (|lag| / R + 0.0001))^b, R being a third of the length of
/// (max_r1, max_r2, max_r3): with b above 0 short lags count more. Lags whose variogram is above
/// threshold * total_sill, the plateau, drop out; their weights still count in the sum by which the
/// weights are scaled. Residuals count by their root where they are large, a cauchy_loss of at
/// least 1e-10 dampens them further, and a regularization_const above 0 adds a prior for short
/// ranges.
///
/// Every structure starts from an equal share of the sill, the middle of the bounds of its ranges
/// (length units) and axes along the coordinates; see optimize_ellipsoid_using_kfold for what
/// turned axes mean. Structures of a fit are in no order of size. Does not depend on n_threads.
///
/// Throws std::invalid_argument for an unknown kernel, lists of different lengths, lags that are
/// not finite, without structures, for bounds that are not finite or in the wrong order, and a
/// negative n_iterations.
std::vector<Covariance> extract_covariance_from_varmap(
    const location_list& lags, const std::vector<double>& variogram,
    const std::vector<double>& weight, int n_structures, const std::string& cov_kernel,
    double min_r1, double min_r2, double min_r3, double max_r1, double max_r2, double max_r3,
    double total_sill, int n_iterations, double b, double cauchy_loss, double regularization_const,
    double threshold, int n_threads, bool debug);

}  // namespace gravelox
