// SPDX-License-Identifier: MIT
#pragma once

// The projection pursuit multivariate transform (Barnett, Manchuk and Deutsch, 2014): a chain of
// invertible steps that carries data towards a multivariate standard normal.

#include <Eigen/Core>
#include <cstdint>
#include <memory>
#include <vector>

namespace gravelox {

/// An immutable chain; many threads may use it at once.
///
/// Data have coordinates in rows and points in columns. Each step standardises the coordinates,
/// turns the data into their principal axes, or at random with the probability of a random
/// rotation (never in the first step), and maps the coordinate whose quantiles are farthest from
/// normal onto the normal distribution. There is no test for an end: it has n_steps steps, and none
/// with n_steps below 1, where data come back as they are.
class PPMT {
 public:
  /// Fits the chain. An engine of the seed gives each step a seed; a step's engine draws a uniform
  /// and then, for a random rotation, its normals. The chain does not depend on n_threads.
  ///
  /// Throws std::invalid_argument "Data must have at least 2 elements" for fewer than 2 points; for
  /// fewer points than coordinates, an empty matrix, numbers that are not finite, a coordinate
  /// that does not vary, and coordinates that depend on each other so far that an axis has no
  /// variance, as those of no more points than coordinates may.
  PPMT(const Eigen::MatrixXd& data, int n_steps, double prob_random_rotation = 0.37,
       int n_threads = 0, std::int64_t seed = 123154);

  /// Scores of data, and data of scores, coordinates in rows. A point gives the same numbers alone
  /// as among others. Throws std::invalid_argument for another number of coordinates than the
  /// chain's, and for numbers that are not finite.
  Eigen::MatrixXd forward(const Eigen::MatrixXd& data, int n_threads = 0) const;
  Eigen::MatrixXd backward(const Eigen::MatrixXd& data, int n_threads = 0) const;

  /// The same for one point.
  Eigen::VectorXd forward(const Eigen::VectorXd& u) const;
  Eigen::VectorXd backward(const Eigen::VectorXd& u) const;

 private:
  struct Step;

  /// Points (columns) through all steps and back, in place.
  void carry_forward(Eigen::Ref<Eigen::MatrixXd> points, Eigen::VectorXd& scratch) const;
  void carry_backward(Eigen::Ref<Eigen::MatrixXd> points, Eigen::VectorXd& scratch) const;

  void check_points(const char* name, const Eigen::Ref<const Eigen::MatrixXd>& points) const;

  std::vector<std::shared_ptr<const Step>> steps_;
};

}  // namespace gravelox
