// SPDX-License-Identifier: MIT
#pragma once

// SpatialFunction: a value for each location, such as one realisation of a simulated field.

#include <functional>

#include "common/location.hpp"

namespace gravelox {

/// A callable from a location to a value. It holds copies of what it needs; many threads may call
/// it at once unless its maker says otherwise.
using SpatialFunction = std::function<double(const location&)>;

}  // namespace gravelox
