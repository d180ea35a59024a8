// SPDX-License-Identifier: MIT
#pragma once

// The density of a multivariate Gaussian.

#include <Eigen/Core>
#include <cstddef>

namespace gravelox {

/// What the density needs of a covariance, worked out once: many threads may use it at once.
class gaussian_shape {
 public:
  /// A covariance of d by d, by a singular value decomposition. It counts as singular, with a
  /// density of 0 everywhere, if a singular value is below 1e-12 or an element is not finite.
  explicit gaussian_shape(const Eigen::MatrixXd& covariance);

  bool is_singular() const { return is_singular_; }

  /// The inverse; not there for a singular covariance.
  const Eigen::MatrixXd& inverse() const { return inverse_; }

  /// The density at a point, both of length d; 0 where its logarithm is below -700. Without
  /// dimensions it is 1.
  double density(const double* x, const double* mean) const;

  /// The same at rows first to first + n - 1 of a matrix of points, n at most block_size.
  void densities(const Eigen::MatrixXd& points, Eigen::Index first, Eigen::Index n,
                 const double* mean, double* result) const;

  /// As many points as densities() takes at once.
  static constexpr Eigen::Index block_size = 64;

 private:
  double from_square(double square) const;

  bool is_singular_;
  /// Of exponents: d log(2 pi) plus the logarithm of the determinant.
  double log_scale_ = 0.0;
  Eigen::MatrixXd inverse_;
};

/// The density at x of the Gaussian with this mean and covariance; see gaussian_shape. Throws
/// std::invalid_argument for sizes that differ.
double gaussian_density(const Eigen::VectorXd& x, const Eigen::VectorXd& mean,
                        const Eigen::MatrixXd& covariance);

}  // namespace gravelox
