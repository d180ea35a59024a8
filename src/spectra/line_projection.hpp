// SPDX-License-Identifier: MIT
#pragma once

// Scattered samples along a line, resampled to regular positions by a kernel average, and back.
//
// Both directions weigh a sample at distance d by exp(-(d b / s)^power_a), s being the scale of the
// direction. Where the weights of a target add up to nothing, or to NaN, its value is 0.

#include <utility>
#include <vector>

namespace gravelox::fft {

/// (positions, values) of n_points regular positions: from the least x, in steps of dx = (greatest
/// x - least x) / n_points, which ends one step short of the greatest. The samples of a position
/// are the first one not below it and window_size to each side of that, in the order of x; samples
/// of equal x keep their order. The scale is dx.
///
/// No points give two empty lists, and samples that all share one x zeros (unless power_a is 0).
/// Throws std::invalid_argument where lists differ in length, x is empty or not finite, or a count
/// is negative.
std::pair<std::vector<double>, std::vector<double>> project_to_line(const std::vector<double>& x,
                                                                    const std::vector<double>& data,
                                                                    double b, double power_a,
                                                                    int n_points, int window_size);

/// A value for each target position. The samples of a target run from the first source position not
/// below target - dr to the first one not below target + dr, that one included, so that there is
/// always one: past the last source it is the last. The scale is dr.
///
/// Throws std::invalid_argument where lists differ in length, there are targets but no sources, or
/// a position is not finite or dr not a number.
std::vector<double> project_back_to_source(const std::vector<double>& target_x,
                                           const std::vector<double>& source_x,
                                           const std::vector<double>& source_data, double dr,
                                           double b, double power_a);

}  // namespace gravelox::fft
