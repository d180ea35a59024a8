// SPDX-License-Identifier: MIT
#pragma once

// The distribution of samples.

#include <vector>

#include "distributions/real_dist.hpp"

namespace gravelox {

/// The distribution of the data with optional weights; an empty list weighs all the same. Values
/// within 1e-16 of each other count as one, with their weights summed.
///
/// It runs through the points (value, weight of all values below), from (least value, 1e-16) on, so
/// the greatest value has the probability of 1 less its own weight. Quantile and distribution
/// function interpolate between these points and go on in a straight line beyond them, below 0 and
/// above 1 as well. The density is a mass: half the weight between the points next to the first
/// value not below x, at either end that between the outer two points.
///
/// Throws std::invalid_argument "Data must have at least 2 elements", and where data are not
/// finite, or weights are of another number, negative, not finite, or all zero.
real_dist data_distribution(const std::vector<double>& data,
                            const std::vector<double>& weight = {});

}  // namespace gravelox
