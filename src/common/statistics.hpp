// SPDX-License-Identifier: MIT
#pragma once

// Mean and standard deviation of samples. The order of summation is part of the result, so it is
// written once.

#include <span>
#include <vector>

namespace gravelox {

/// The mean of values and their population standard deviation, in the values' units.
struct moments {
  double mean;
  double deviation;
};

/// Sums of x / n and of (x - mean)^2 / n, in the order of the values. Of no values both are 0; NaN
/// spreads to both.
moments compute_moments(std::span<const double> values);

/// (x - mean) / deviation for each value: a deviation of 0 gives NaN and infinities.
std::vector<double> standardized(std::span<const double> values, const moments& scale);

}  // namespace gravelox
