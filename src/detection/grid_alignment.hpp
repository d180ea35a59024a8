// SPDX-License-Identifier: MIT
#pragma once

// Points that line up with their like neighbours, as the nodes of a grid do.

#include <vector>

#include "common/location.hpp"
#include "detection/feature_list.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox::grid_detector {

/// A label for each point: 1, 2 and 3 for the points of the three families of orientations with the
/// most members, -1 for the others. A point of several has the least label.
///
/// For each point i and each ordered pair of its like neighbours a and b, let theta_a be the angle
/// of the line from i to a with the x axis, 0 to pi / 2, and theta_b the arc cosine of the plain
/// difference in x between b and i, by absolute value and 1 at most. With tol the absolute
/// angle_tolerance_deg in radians, pairs whose two differ by tol at most put i, a and b into the
/// family (theta_a + theta_b) / (2 tol), truncated. theta_b depends on the length unit: angles of b
/// come out only at distances near 1. Results rely on it.
///
/// Like neighbours have features that differ by color_tolerance at most (Euclidean distance). Of
/// families with equally many members the one of the smaller angle comes first. The labels do not
/// depend on the number of threads; the cost grows with the square of the number of neighbours.
///
/// Throws std::invalid_argument as featured_points does, and for an angle_tolerance_deg of 0 or
/// NaN.
std::vector<int> detect_grid_aligned_points(const location_list& locs, const feature_list& features,
                                            const Neighborhood& nei, double color_tolerance,
                                            double angle_tolerance_deg, double radius, int n_neis,
                                            int n_threads = 0);

}  // namespace gravelox::grid_detector
