// SPDX-License-Identifier: MIT
#pragma once

// Distances inside a region, around what is solid: shortest paths over a dense set of points that
// fills the free space.

#include <tuple>
#include <vector>

#include "common/location.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

/// A path, its length, and the distance of each dense point from the start: 1e30 where no path has
/// been found.
using geodesic = std::tuple<location_list, double, std::vector<double>>;

/// Random points of the box around pts that have a sample of nei within eps of them. max_pts is the
/// number of draws, three uniforms each (z, y, x), not that of the points that are kept.
///
/// Throws std::invalid_argument for an empty pts, coordinates that are not finite, an eps that is
/// not a number, and a negative max_pts.
location_list create_random_dense_set(const location_list& pts, const Neighborhood& nei, double eps,
                                      int max_pts, int seed);

/// Labels of the parts of locs that are connected over k_neis nearest neighbours and stay eps clear
/// of the surface; -1 for points within eps of it.
///
/// A label is spent on each point that no earlier flood has reached, also on one at the surface: so
/// labels rise with the place of a part's first point, with gaps. Throws std::invalid_argument for
/// coordinates that are not finite, a negative k_neis, and an eps that is not a number.
std::vector<int> flood_fill_using_ball(const location_list& locs, int k_neis,
                                       const Neighborhood& surface_nei, double eps);

/// The shortest path over dense_set from the dense point nearest to locs[start] to the one nearest
/// to locs[end], listed from its end back to its start.
///
/// Dense points are joined to their knn nearest, or for a knn of 0 and below to all within eps; the
/// nearness is that of dense_nei, lengths are Euclidean. The search stops at the end: distances of
/// points farther than that are not settled, or 1e30. An end below 0 asks for the distances of all
/// points, with an empty path of 1e30; so does an end that cannot be reached.
///
/// dense_nei has to be made of dense_set. Throws std::invalid_argument for a dense_set that is
/// empty or of another size than dense_nei, coordinates that are not finite, and indices outside
/// locs. Source: Dijkstra (1959).
geodesic compute_geodesics(const location_list& locs, int start, int end,
                           const Neighborhood& dense_nei, double eps, int knn,
                           const location_list& dense_set);

/// The lengths of the shortest paths between all locs: entry (i, j) starts at i. 1e30 stands where
/// there is no path; the table need not be symmetric, since one point can be among the nearest of
/// another and not the other way round. The graph is made once, then there is one search a
/// location. Does not depend on n_threads. Throws as compute_geodesics does, and for a graph that
/// no memory holds.
std::vector<std::vector<double>> compute_geodesic_based_distance_matrix(
    const location_list& locs, const Neighborhood& dense_nei, double eps, int knn,
    const location_list& dense_set, int n_threads = 0);

}  // namespace gravelox
