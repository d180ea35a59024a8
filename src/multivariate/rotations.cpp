// SPDX-License-Identifier: MIT
#include "multivariate/rotations.hpp"

#include <Eigen/QR>
#include <Eigen/SVD>
#include <cmath>

#include "common/checks.hpp"
#include "common/memory.hpp"
#include "common/text.hpp"
#include "multivariate/matrix_checks.hpp"

namespace gravelox {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

svd_decomposition compute_svd_decomposition(const MatrixXd& A, bool is_surface) {
  check_matrix("A", A);
  const Eigen::BDCSVD<MatrixXd> svd(A, Eigen::ComputeThinU | Eigen::ComputeThinV);
  const VectorXd& s = svd.singularValues();
  const auto rows = static_cast<double>(A.rows());
  const auto columns = static_cast<double>(A.cols());
  const double scale = columns / std::sqrt(is_surface ? rows * columns : rows);
  return {scale * s, svd.matrixV(), svd.matrixU(), s};
}

rotation_set compute_optimum_rotation(const MatrixXd& A, bool is_surface, bool is_ppmt) {
  if (A.rows() < A.cols()) {
    refuse("A", "at least as many rows as columns", text_of(A.rows(), " x ", A.cols()));
  }
  const auto [scaled, v, u, s] = compute_svd_decomposition(A, is_surface);
  constexpr double least_scale = 1e-30;
  VectorXd d1 = VectorXd::Ones(A.cols());
  VectorXd d2 = VectorXd::Ones(A.cols());
  for (Index i = 0; i < scaled.size(); ++i) {
    if (is_ppmt || scaled[i] < least_scale) continue;
    d1[i] = 1.0 / scaled[i];
    d2[i] = scaled[i];
  }
  const MatrixXd vt = v.transpose();
  return {v * d2.asDiagonal(), d1.asDiagonal() * vt, d2.asDiagonal() * vt, v * d1.asDiagonal()};
}

MatrixXd draw_orthogonal_matrix(Index n, random_engine& engine) {
  normal_distribution normal;
  MatrixXd normals(n, n);
  for (Index row = 0; row < n; ++row) {
    for (Index column = 0; column < n; ++column) normals(row, column) = normal(engine);
  }
  return Eigen::HouseholderQR<MatrixXd>(normals).householderQ();
}

MatrixXd create_random_orthogonal_matrix(int N, std::int64_t seed) {
  check_at_least("N", N, 1);
  check_memory("N", 3.0 * N * N);
  random_engine engine = create_engine(seed);
  return draw_orthogonal_matrix(N, engine);
}

}  // namespace gravelox
