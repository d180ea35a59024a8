// SPDX-License-Identifier: MIT
#pragma once

// The two number types of templates: plain doubles, and jets that carry seven derivatives along.
//
// A template over a number is declared in its header, written in its source, and instantiated at
// the source's end for both. A jet divides through the reciprocal, so its value may differ from the
// double's in the last place.

#include <ceres/jet.h>

#include <concepts>

namespace gravelox {

using jet = ceres::Jet<double, 7>;

template <typename T>
concept number = std::same_as<T, double> || std::same_as<T, jet>;

}  // namespace gravelox
