// SPDX-License-Identifier: MIT
#pragma once

// The transform of residuals by which a fit shrugs off outliers.

#include "common/number.hpp"

namespace gravelox {

/// x up to a size of 1, and sign(x) (|x|^p / p - 1 / p + 1) beyond, where value and slope go on
/// without a step. With p below 1 large residuals grow more slowly than they do themselves.
template <number T>
T robust_power(const T& x, double p);

}  // namespace gravelox
