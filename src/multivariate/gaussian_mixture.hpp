// SPDX-License-Identifier: MIT
#pragma once

// Gaussian mixtures with full covariances, fitted by expectation-maximisation (Dempster, Laird and
// Rubin, 1977).

#include <Eigen/Core>
#include <cstdint>
#include <optional>
#include <vector>

namespace gravelox {

/// A mixture of n_components Gaussians in d dimensions: their proportions, a mean a row (K by d),
/// and a d by d covariance each. Nothing is checked here.
struct GMMParams {
  int n_components = 0;
  Eigen::VectorXd weights;
  Eigen::MatrixXd means;
  std::vector<Eigen::MatrixXd> covariances;
};

/// The settings of a fit; one object can fit any number of samples, from the same seed each time.
class GMMFitter {
 public:
  /// Throws std::invalid_argument "Number of components must be positive."
  explicit GMMFitter(int n_components, int max_iter = 100, double tol = 0.0001,
                     double reg_covar = 1e-06, std::uint32_t seed = 42);

  /// The mixture of samples in rows, with a weight each or all the same.
  ///
  /// Starts from random labels: a word of the seed's engine or more for each sample, then one draw
  /// for each component without samples, which is placed on one of the first n_components samples.
  /// Steps until the log-likelihood, which weights do not enter, changes by less than tol, or
  /// max_iter times; a line on the standard output says which. Densities are not logarithms: a
  /// sample that is far from all components belongs to all alike. reg_covar is added to the
  /// variances.
  ///
  /// Runs on the threads that parallel regions have by default; their number may change the last
  /// bits. Throws std::invalid_argument for fewer samples than components ("n_samples must be >=
  /// n_components."), another number of weights ("X and sample_weights must have the same number of
  /// samples."), no features, and for numbers that are not finite.
  GMMParams fit(const Eigen::MatrixXd& x,
                const std::optional<Eigen::VectorXd>& weights = std::nullopt) const;

 private:
  int n_components_;
  int max_iter_;
  double tol_;
  double reg_covar_;
  std::uint32_t seed_;
};

}  // namespace gravelox
