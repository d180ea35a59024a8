// SPDX-License-Identifier: MIT
#pragma once

// The variogram of a covariance model.

#include <vector>

#include "spatial/spatial_function.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// The function of a lag vector (1 - C(h) / C(0)) data_var: the model rescaled to the variance of
/// the data, whatever its own sills add up to. Throws std::invalid_argument for an empty model and
/// one whose sills add up to 0.
SpatialFunction create_variogram_computer(const std::vector<Covariance>& covs, double data_var);

}  // namespace gravelox
