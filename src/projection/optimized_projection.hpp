// SPDX-License-Identifier: MIT
#pragma once

// A radial map between spaces of any dimension whose centres and weights come from an optimiser.

#include <vector>

#include "projection/point_list.hpp"

namespace gravelox {

/// Each centre c has a weight vector, and a point x takes the sum of s[i] weights[i], where s
/// solves the bordered system of the kernel exp(-3 |a - b|^2) between centres with the right side
/// of its values at x. Its last unknown, which the border adds, is left out; so the image of a
/// centre is not that centre's weight vector.
///
/// Fields may be set at any time; what does not fit together is refused when a point is mapped.
struct Optimized_nd_projection {
  point_list centers;

  /// One a centre. Only the first is ever fitted, and mapping reads none of them.
  std::vector<double> scales;

  point_list weights;

  /// Throws std::invalid_argument without centres, for lists or points that do not fit together,
  /// and for coordinates that are not finite. Two equal centres make the system singular: the image
  /// is what its decomposition gives.
  point project(const point& x) const;

  /// In order; does not depend on n_threads.
  point_list project(const point_list& X, int n_threads = 0) const;

  /// Fits a map of n_centers centres from din to dout dimensions to pairs of points, in least
  /// squares, with derivatives by differences and at most n_iterations steps.
  ///
  /// Starts are uniform in the boxes of the sources and the targets, and draw for each centre its
  /// coordinates, a scale of 1 to 2 (the last one stays), and its weights. A step costs as many
  /// evaluations as there are parameters. Failures of the solver are not reported: the map stays
  /// where the solver leaves it. Does not depend on n_threads.
  ///
  /// Throws std::invalid_argument for empty lists, different numbers of sources and targets, points
  /// that have not din and dout coordinates, coordinates that are not finite, n_centers, din or
  /// dout below 1, a negative n_iterations, and sizes that no memory holds.
  static Optimized_nd_projection optimize(const point_list& source, const point_list& target,
                                          int n_centers, int din, int dout, int n_threads,
                                          int n_iterations, bool debug = false, int seed = 12345);
};

}  // namespace gravelox
