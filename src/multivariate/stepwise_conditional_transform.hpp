// SPDX-License-Identifier: MIT
#pragma once

// The stepwise conditional transform: multivariate data to independent normal scores and back
// (Leuangthong and Deutsch, 2003), with the conditional distributions of a Gaussian mixture.

#include <Eigen/Core>
#include <memory>

#include "multivariate/gaussian_mixture.hpp"

namespace gravelox {

/// An immutable transform; many threads may use it at once.
///
/// The first feature goes through its marginal distribution, each other one through its
/// distribution given the data values of all features before it. Components of a conditional
/// distribution whose variance is below 1e-10, whose covariance of the conditions is singular, or
/// whose weight is at most 1e-100 drop out; without any the value is NaN.
class SCT {
 public:
  /// Weights that miss a sum of 1 by more than 1e-6 are scaled to it, with a warning on the
  /// standard error. Throws std::invalid_argument "GMM parameters have inconsistent dimensions."
  /// where the numbers of components differ, for covariances of another size, no features, and
  /// numbers that are not finite.
  explicit SCT(const GMMParams& gmm_params);

  /// Scores of samples in columns, features in rows. Throws std::invalid_argument "Input data Z has
  /// incorrect number of features." and for numbers that are not finite; std::overflow_error, for
  /// the first of them, where a value is so far out that its probability is 0 or 1.
  Eigen::MatrixXd forward(const Eigen::MatrixXd& x) const;

  /// Values of scores in columns, features in rows, by a root finder for each value (Alefeld, Potra
  /// and Shi, 1995). Probabilities are held between 1e-9 and 0.999999999, so that infinite scores
  /// have values too. A NaN makes the rest of its sample NaN. Throws std::invalid_argument "Input
  /// data SCT_Z has incorrect number of features."
  Eigen::MatrixXd backward(const Eigen::MatrixXd& x) const;

 private:
  class model;

  std::shared_ptr<const model> model_;
};

}  // namespace gravelox
