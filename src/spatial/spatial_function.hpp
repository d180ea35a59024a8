// SPDX-License-Identifier: MIT
#pragma once

// SpatialFunction: a value for each location, such as one realisation of a simulated field.

#include <functional>
#include <vector>

#include "common/location.hpp"

namespace gravelox {

/// A callable from a location to a value. It holds copies of what it needs; many threads may call
/// it at once unless its maker says otherwise.
using SpatialFunction = std::function<double(const location&)>;

/// The values at all locations in order, evaluated in parallel. Throws std::invalid_argument for
/// coordinates that are not finite, and what the function throws.
std::vector<double> evaluate(const SpatialFunction& function, const location_list& locations,
                             int n_threads = 0);

}  // namespace gravelox
