// SPDX-License-Identifier: MIT
#pragma once

// Sparse lists of pairs out of full tables of distances.

#include <cstddef>
#include <vector>

namespace gravelox {

/// The distance of two points, given by their places in a list.
struct dist_pair {
  int i;
  int j;
  double d;
};

/// A table of distances, a row for each point. Where it is not symmetric, the mean of both
/// directions counts.
using distance_table = std::vector<std::vector<double>>;

inline double symmetric_distance(const distance_table& D, std::size_t i, std::size_t j) {
  return (D[i][j] + D[j][i]) / 2.0;
}

/// Throws std::invalid_argument, for an argument of this name, unless the table is square.
void check_square(const char* name, const distance_table& D);

/// For each point pairs with K_neighbors random points. A point that an earlier pair has reached
/// takes part only if a random index is at most n_active, so all do with n_active at the number of
/// points.
///
/// Draws: for each reached point the index, for each point that takes part its partners. Pairs may
/// repeat, and a point may be paired with itself. Throws std::invalid_argument for a table that is
/// not square and a negative K_neighbors.
std::vector<dist_pair> create_sparse_dist_matrix(const distance_table& D, int K_neighbors,
                                                 int n_active, int seed);

/// The edges (parent, point, distance) of a tree of least total length, by the point's place. Pairs
/// at 1e20 and above are not connected: parts that only they join give a tree each. Of equal edges
/// the one to the higher place comes first. Throws std::invalid_argument for a table that is not
/// square. Source: Prim (1957).
std::vector<dist_pair> create_minimum_spanning_tree(const distance_table& D);

}  // namespace gravelox
