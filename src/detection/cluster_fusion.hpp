// SPDX-License-Identifier: MIT
#pragma once

// Clusters that touch made one.

#include <vector>

#include "common/location.hpp"

namespace gravelox::grid_detector {

/// New labels: clusters with points strictly nearer to each other than max_distance (length units),
/// or joined by a chain of such clusters, are one. They count 0, 1, 2 ... in the order of the first
/// point of each; -1 stays -1, and any other label is a cluster. No near pair is missed.
/// Squares of distances are compared, so a max_distance with a square of 0 (0, and any below
/// 1e-162) joins none. The labels do not depend on the number of threads.
///
/// Throws std::invalid_argument for locations that are not finite, labels of another number, and a
/// max_distance that is negative or NaN.
std::vector<int> cluster_fusion(const location_list& locs, const std::vector<int>& initial_clusters,
                                double max_distance, int n_threads = 0);

}  // namespace gravelox::grid_detector
