// SPDX-License-Identifier: MIT
#include "optimization/structure_fit_detail.hpp"
#include "spatial/anisotropy.hpp"
#include "spatial/axes.hpp"

namespace gravelox::detail {

Ellipsoid fitted_ellipsoid(const double* p) {
  constexpr double degrees = 180.0 / std::numbers::pi;
  // Rz(a) Ry(b) Rx(c) is the transpose of Rx(-c) Ry(-b) Rz(-a).
  Eigen::Matrix3d matrix =
      rotation_matrix(90.0 + p[4] * degrees, p[5] * degrees, -p[6] * degrees).transpose();
  for (Eigen::Index axis = 0; axis < 3; ++axis) {
    const double range = p[axis + 1];
    if (range > 1e-30) matrix.col(axis) /= range;
  }
  return Ellipsoid(sort_matrix3d(matrix, true));
}

}  // namespace gravelox::detail
