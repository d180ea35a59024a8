// SPDX-License-Identifier: MIT
#pragma once

// Clusters that are pieces of one structure: the least angle between them where they come close,
// and a merger of those whose angle is small.

#include <map>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// Angles (degrees) between clusters by their labels, D[a][b]; pairs without one have no entry.
using cluster_angles = std::map<int, std::map<int, double>>;

/// For each ordered pair of labels above -1, one with itself included, the least angle
/// (compute_angular_distance) between a point p of a and a point q of b within r_tol of each other
/// as another point sees it: one of b within r_tol of p, or one at a position in b that is the
/// position in a of a point within r_tol of p. The second rule reads positions of one list in the
/// other, a settled reading that results depend on; positions past the end of b are skipped.
///
/// Distances are those of Neighborhoods, one for each label, in the space of the anisotropy. A pair
/// with nothing near, or with no angle below 90 degrees, has no entry, and a label without entries
/// no row; D need not be symmetric. Throws std::invalid_argument for a number of labels other than
/// that of locs, for an anisotropy, or coordinates before or after its map, that are not finite,
/// and for an r_tol that is NaN or has more near pairs of two labels than fit in memory.
cluster_angles compute_angular_distance_between_clusters(const Ellipsoid& anisotropy,
                                                         const location_list& locs,
                                                         const std::vector<int>& clusters,
                                                         double r_tol);

/// New labels, those of D's clusters merged where D is strictly below angular_tol (degrees).
///
/// From each point in turn whose label c has not been merged a flood runs through the points within
/// r_tol in the space of ani, over points of labels y with D[c][y] small enough; c's own points
/// count only if D[c][c] is. The labels reached then stand for c. Labels of -1 and ignored ones
/// neither start a flood nor are reached. The result takes one step from a label to the one it
/// stands for: where that was merged later in turn, it keeps the first.
///
/// Throws std::out_of_range "invalid map<K, T> key" where a flood from c meets a point with a label
/// that counts and D has no row for c; std::invalid_argument for a number of labels other than
/// that of locs, an ellipsoid, or coordinates before or after its map, that are not finite, and
/// tolerances that are NaN.
std::vector<int> merge_clusters(const cluster_angles& D, const location_list& locs,
                                const std::vector<int>& clusters,
                                const std::vector<int>& ignored_ids, double angular_tol,
                                double r_tol, const Ellipsoid& ani);

}  // namespace gravelox
