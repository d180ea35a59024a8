// SPDX-License-Identifier: MIT
#pragma once

// Clusters of points that lie on planes and lines, told apart by the angles that triples of nearby
// points make: along a structure a third point sees two others almost in line, in a cloud of
// scattered points it does not.

#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// The angle at C between the lines to A and to B, without orientation: 0 to pi / 2 (radians), and
/// pi / 2 where A or B is less than 1e-15 from C. pi / 2 or NaN where squares of lengths overflow.
/// Throws std::invalid_argument for coordinates that are not finite.
double compute_angular_distance(const location& A, const location& B, const location& C);

/// A label for each point, 0, 1, 2 ... in the order of the first point of each cluster, -1 for
/// none.
///
/// Neighbours are those of a Neighborhood within r_tol in the space of the anisotropy, the point
/// itself included; angles are taken on real coordinates. The angles of a point i with its
/// neighbour j are those at every neighbour of j and at every neighbour of i, one of both being
/// counted twice; an angle is narrow if it is strictly below |angular_tol| (degrees).
///
/// A point opens a cluster where narrow angles with all its neighbours are at least the share
/// support_threshold of all; so does one without neighbours. A cluster grows from i to j where
/// narrow angles are strictly more than that share and at least min_support_size, and one at least
/// stands at a neighbour of i and one at a neighbour of j.
///
/// Labels do not depend on the number of threads. The cost grows with the square of the number of
/// neighbours; memory takes 8 bytes for each neighbour of each point. Throws std::invalid_argument
/// for an anisotropy, or coordinates before or after its map, that are not finite, for tolerances
/// or a threshold that are NaN, and for an r_tol with more neighbours than fit in memory.
std::vector<int> find_clusters(const location_list& locs, const Ellipsoid& anisotropy, double r_tol,
                               double angular_tol, double support_threshold, int min_support_size,
                               int n_threads = 0);

}  // namespace gravelox
