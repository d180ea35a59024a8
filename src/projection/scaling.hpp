// SPDX-License-Identifier: MIT
#pragma once

// Multidimensional scaling: points whose mutual distances match given ones, by the gradient solver.
//
// Fits start from several random configurations, or from a guess; the first that fits to `eps`, or
// the best one, is kept. Distances of 0 and below, and of 1e20 and above, mark missing pairs. They
// do count for the box of random starts, so that with a pair at 1e20 every random start loses, and
// the result is an empty list: such tables need a guess. Source: Kruskal (1964).

#include <vector>

#include "projection/distance_graphs.hpp"
#include "projection/point_list.hpp"

namespace gravelox {

/// What both fits take. Fits do not depend on n_threads, and failures of the solver are not
/// reported: a try that fails does not win.
struct scaling_settings {
  int n_iterations;
  bool debug;
  int n_threads;
  int seed;

  /// Tries; below 1 the result is empty.
  int ntries;

  /// The cost that ends the tries.
  double eps;
};

/// N points in dim dimensions from a full table, with the residuals (|x_i - x_j| - d) / d of both
/// directions, or the mean of their squares as the one residual.
///
/// With do_sphering all points lie at the same fitted distance from the origin. sphering_weight is
/// not used. Random starts are uniform in -dmax..dmax, where dmax is the greatest distance; an
/// initial_guess of another number of rows than N is ignored. Each try draws its engine's seed,
/// also where it starts from the guess.
///
/// For some 50 points: an iteration costs the sixth power of the number of points in the solver,
/// once there are more. Throws std::invalid_argument for a dim or N below 1, a table that is not
/// N x N, a guess of N rows that have not dim coordinates, and sizes that no memory holds.
point_list dense_MDS(int dim, int N, const distance_table& D, const point_list& initial_guess,
                     const scaling_settings& settings, bool optimize_mean = false,
                     bool do_sphering = false, double sphering_weight = 1e-6);

/// The same from a list of pairs, with one residual a pair; random starts are uniform in 0..dmax.
/// Throws std::invalid_argument also for an empty list and for places outside 0 to N - 1.
point_list sparse_MDS(int dim, int N, const std::vector<dist_pair>& D,
                      const point_list& initial_guess, const scaling_settings& settings);

}  // namespace gravelox
