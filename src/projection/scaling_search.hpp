// SPDX-License-Identifier: MIT
#pragma once

// Multidimensional scaling by a random search, for more points than the gradient solver can take.

#include <Eigen/Core>
#include <cstdint>
#include <tuple>
#include <vector>

namespace gravelox {

/// Points of 32-bit floats.
using float_point_list = std::vector<Eigen::VectorXf>;

/// Two places and their distance.
using distance_triple = std::tuple<int, int, double>;

struct scaling_search_settings {
  int n_iterations;
  int n_tries_by_iteration;
  int n_threads;
  int seed;
  bool debug;

  /// The most points that a try moves.
  int max_size;

  /// Seconds; the search ends within an iteration after the next whole second.
  double time_limit;

  /// With debug, the mean error that ends the search.
  double target_e;
};

/// Moves the points of the guess until their distances match, and returns the best configuration.
///
/// Every thread keeps a configuration and tries moves of 1 to max_size random points by normals
/// times one of max_distortions; moves that lower the error 2 ||x_i - x_j| - d| / d, summed over
/// the pairs, are kept. After each iteration the best configuration is the result so far, and
/// configurations more than 1 % worse are replaced by it. Pairs below 1e-30 and of a point with
/// itself are left out, and of a repeated pair the first distance counts. Coordinates, distances
/// and errors are 32-bit floats.
///
/// With `debug` progress is printed on the standard output once a second and every 1,000
/// iterations; only then moves shrink to twice the mean error, and target_e ends the search. So
/// reports change the result, and results depend on the clock with them or where the time limit
/// strikes.
///
/// Draws of a try, from its thread's engine: the distortion, the number of points, the points, and
/// the normals of each moved point. Results depend on the number of threads.
///
/// Throws std::invalid_argument for an empty guess, one whose points have not dim finite
/// coordinates, places outside of it, distances that are not finite, empty max_distortions, a
/// max_size below 1, and a time limit that is not a number.
float_point_list mds_using_random_search(int dim, const float_point_list& initial_guess,
                                         const std::vector<distance_triple>& D,
                                         const std::vector<double>& max_distortions,
                                         const scaling_search_settings& settings);

}  // namespace gravelox
