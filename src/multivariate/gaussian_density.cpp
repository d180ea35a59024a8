// SPDX-License-Identifier: MIT
#include "multivariate/gaussian_density.hpp"

#include <Eigen/SVD>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"
#include "common/vector_clones.hpp"

namespace gravelox {

namespace {

constexpr double least_singular_value = 1e-12;
constexpr double least_exponent = -700.0;
constexpr std::size_t block = gaussian_shape::block_size;

using block_array = std::array<double, block>;

/// Adds to each square the product of the deviations' row with a row of the inverse times all
/// deviations. The sums run in the same order for a block as for a single point.
GRAVELOX_VECTOR_CLONES void add_row(const block_array* deviations, std::size_t d, std::size_t row,
                                    const double* inverse_row, std::size_t stride, std::size_t n,
                                    double* squares) {
  block_array products;
  for (std::size_t i = 0; i < n; ++i) products[i] = inverse_row[0] * deviations[0][i];
  for (std::size_t c = 1; c < d; ++c) {
    const double factor = inverse_row[c * stride];
    for (std::size_t i = 0; i < n; ++i) products[i] += factor * deviations[c][i];
  }
  for (std::size_t i = 0; i < n; ++i) squares[i] += deviations[row][i] * products[i];
}

}  // namespace

gaussian_shape::gaussian_shape(const Eigen::MatrixXd& covariance)
    : is_singular_(!covariance.allFinite()) {
  const Eigen::Index d = covariance.rows();
  if (is_singular_ || d == 0) return;
  const Eigen::BDCSVD<Eigen::MatrixXd> svd(covariance, Eigen::ComputeThinU | Eigen::ComputeThinV);
  is_singular_ = (svd.singularValues().array() < least_singular_value).any();
  if (is_singular_) return;
  double log_determinant = 0.0;
  for (const double value : svd.singularValues()) log_determinant += std::log(value);
  log_scale_ = static_cast<double>(d) * std::log(2.0 * std::numbers::pi) + log_determinant;
  inverse_ = svd.solve(Eigen::MatrixXd::Identity(d, d));
}

double gaussian_shape::from_square(double square) const {
  const double exponent = -0.5 * (log_scale_ + square);
  return exponent < least_exponent ? 0.0 : std::exp(exponent);
}

double gaussian_shape::density(const double* x, const double* mean) const {
  if (is_singular_) return 0.0;
  if (inverse_.rows() == 0) return 1.0;
  double square = 0.0;
  for (Eigen::Index row = 0; row < inverse_.rows(); ++row) {
    double product = inverse_(row, 0) * (x[0] - mean[0]);
    for (Eigen::Index c = 1; c < inverse_.cols(); ++c)
      product += inverse_(row, c) * (x[c] - mean[c]);
    square += (x[row] - mean[row]) * product;
  }
  return from_square(square);
}

void gaussian_shape::densities(const Eigen::MatrixXd& points, Eigen::Index first, Eigen::Index n,
                               const double* mean, double* result) const {
  const auto size = to_size(n);
  if (is_singular_ || inverse_.rows() == 0) {
    std::fill_n(result, size, is_singular_ ? 0.0 : 1.0);
    return;
  }
  const auto d = to_size(inverse_.rows());
  thread_local std::vector<block_array> deviations;
  if (deviations.size() < d) deviations.resize(d);
  for (std::size_t c = 0; c < d; ++c) {
    const double* column = points.col(static_cast<Eigen::Index>(c)).data() + first;
    for (std::size_t i = 0; i < size; ++i) deviations[c][i] = column[i] - mean[c];
  }
  block_array squares{};
  for (std::size_t row = 0; row < d; ++row) {
    add_row(deviations.data(), d, row, inverse_.data() + row, d, size, squares.data());
  }
  for (std::size_t i = 0; i < size; ++i) result[i] = from_square(squares[i]);
}

double gaussian_density(const Eigen::VectorXd& x, const Eigen::VectorXd& mean,
                        const Eigen::MatrixXd& covariance) {
  const Eigen::Index d = x.size();
  if (mean.size() != d || covariance.rows() != d || covariance.cols() != d) {
    refuse("mean and covariance", text_of(d, " and ", d, " x ", d, " values, as x has"),
           text_of(mean.size(), " and ", covariance.rows(), " x ", covariance.cols()));
  }
  return gaussian_shape(covariance).density(x.data(), mean.data());
}

}  // namespace gravelox
