// SPDX-License-Identifier: MIT
#pragma once

// The elementary functions of the language. A new one is one row of the table in the source: the
// containers, the expressions and the bindings take them from there.

#include <span>

#include "common/number.hpp"

namespace gravelox {

/// A function of one number, under its name in scripts.
template <number T>
struct elementary_function {
  const char* name;
  T (*apply)(const T&);
};

/// All of them. Over jets they carry the derivatives along; outside its domain a function gives NaN
/// or infinity.
///
/// Three are shapes of structures over the scaled lag: `spherical`, which is 0 beyond 1,
/// `gaussian`, exp(-3 x), and `exponential`, exp(-3 x^2). In the last two names the exponents stand
/// the other way round than in the kernels of covariances.
template <number T>
std::span<const elementary_function<T>> elementary_functions();

/// x to a fixed power. The power 0 is 1 without derivatives, at 0 too.
template <number T>
T power(const T& x, double p);

}  // namespace gravelox
