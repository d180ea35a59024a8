// SPDX-License-Identifier: MIT
#pragma once

// Linear systems of projections. Private to their sources.

#include <Eigen/SVD>
#include <limits>

namespace gravelox::detail {

/// The least-squares solution of A x = B, for singular and for oblong systems too; NaN where the
/// system has elements that are not finite, which the decomposition must not meet.
inline Eigen::MatrixXd solve_by_thin_svd(const Eigen::MatrixXd& A, const Eigen::MatrixXd& B) {
  if (!A.allFinite() || !B.allFinite()) {
    return Eigen::MatrixXd::Constant(A.cols(), B.cols(), std::numeric_limits<double>::quiet_NaN());
  }
  return Eigen::BDCSVD<Eigen::MatrixXd>(A, Eigen::ComputeThinU | Eigen::ComputeThinV).solve(B);
}

}  // namespace gravelox::detail
