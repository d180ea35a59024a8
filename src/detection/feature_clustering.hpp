// SPDX-License-Identifier: MIT
#pragma once

// Connected regions of points with like features.

#include <Eigen/Core>
#include <vector>

#include "common/location.hpp"
#include "detection/feature_list.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox::grid_detector {

/// A label for each point, 0, 1, 2 ... in the order of the first point of each region, -1 for none.
///
/// A region opens at a point whose features differ from the background colour by color_tolerance at
/// most (Euclidean distance) and grows from a point to those of its neighbours that differ from it,
/// not from the background, by no more: it may drift away from that colour. The labels do not
/// depend on the number of threads.
///
/// Throws std::invalid_argument as featured_points does, and for a background colour of another
/// length than the features or not finite.
std::vector<int> find_clusters(const location_list& locs, const feature_list& features,
                               const Neighborhood& nei, double color_tolerance,
                               const Eigen::VectorXd& background_color, double radius, int n_neis,
                               int n_threads = 0);

}  // namespace gravelox::grid_detector
