// SPDX-License-Identifier: MIT
#pragma once

// The point of the whole system: x east, y north, z up, in the user's length unit (metres as a
// rule).

#include <Eigen/Core>
#include <vector>

namespace gravelox {

using location = Eigen::Vector3d;

/// Locations in the caller's order. A fixed-size 3-vector needs no special allocator.
using location_list = std::vector<location>;

}  // namespace gravelox
