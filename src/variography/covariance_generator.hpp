// SPDX-License-Identifier: MIT
#pragma once

// Random nested models around a given anisotropy, as starting points of searches.

#include <vector>

#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// n_covs models of n_kernels structures of the shape `cov_kernel` and a nugget, the sills of each
/// adding up to 1.
///
/// The first model has the given ellipsoid in all its structures and a nugget of 0. In the others
/// the ranges are the ellipsoid's largest times vectors whose lengths add up to a draw on
/// [min_str_range, max_str_range), and the angles are the ellipsoid's, each plus a draw on
/// [-delta_angle, delta_angle) degrees; sills are draws on [min_sill, max_sill) before they are
/// normalised. The label of the structures is spherical whatever the shape.
///
/// Draws from one engine, model by model: for each structure four uniforms for its ranges; the sum
/// of lengths; for each structure three angles (none in the first model) and a sill; the nugget's
/// sill (none in the first). Without kernels the first model's nugget is NaN. Throws
/// std::invalid_argument for a negative n_kernels.
std::vector<std::vector<Covariance>> generate_covariances(const Ellipsoid& ellipsoid, int n_kernels,
                                                          const Kernel& cov_kernel, int n_covs,
                                                          int seed, double delta_angle,
                                                          double min_str_range,
                                                          double max_str_range, double min_sill,
                                                          double max_sill);

}  // namespace gravelox
