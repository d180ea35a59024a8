// SPDX-License-Identifier: MIT
#include "projection/mds_projection.hpp"

#include <utility>

#include "common/checks.hpp"
#include "common/memory.hpp"
#include "projection/thin_svd_detail.hpp"

namespace gravelox {

MDS_projection::MDS_projection(const point_list& source, const point_list& target,
                               const point_list& control_points, double power_a, Kernel kernel)
    : control_points_(columns_of("control_points", control_points)),
      power_a_(power_a),
      kernel_(std::move(kernel)) {
  const Eigen::MatrixXd sources = columns_of("source", source);
  const Eigen::MatrixXd targets = columns_of("target", target);
  check_same_size("target", target.size(), source.size(), "source point");
  check_points("control_points", control_points, sources.rows());
  const Eigen::Index n = sources.cols();
  const Eigen::Index n_controls = control_points_.cols();
  check_memory("control_points", 3.0 * static_cast<double>(n) * static_cast<double>(n_controls));

  Eigen::MatrixXd A(n, n_controls);
  for (Eigen::Index j = 0; j < n_controls; ++j) {
    for (Eigen::Index i = 0; i < n; ++i) {
      A(i, j) = kernel_((sources.col(i) - control_points_.col(j)).norm() * power_a_);
    }
  }
  weights_ = detail::solve_by_thin_svd(A, targets.transpose());
}

point MDS_projection::image(const point& x) const {
  point sum = point::Zero(weights_.cols());
  for (Eigen::Index i = 0; i < control_points_.cols(); ++i) {
    sum += kernel_((x - control_points_.col(i)).norm() * power_a_) * weights_.row(i).transpose();
  }
  return sum;
}

}  // namespace gravelox
