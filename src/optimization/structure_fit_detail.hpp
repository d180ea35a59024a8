// SPDX-License-Identifier: MIT
#pragma once

// What least-squares fits of covariance structures share. Private to the sources of the fits.

#include <numbers>

#include "common/number.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/differentiable_covariance.hpp"

namespace gravelox::detail {

/// Parameters of one structure: sill (or share of it), r1, r2, r3, and three angles in radians.
constexpr int n_structure_parameters = 7;

/// The covariance of a structure with the metric diag(1 / r) Rx(p[6]) Ry(p[5]) Rz(p[4]), the turns
/// being those of rotation_matrix: angles of 0 leave the axes along the coordinates.
template <number T>
generic_cov<T> create_fitted_cov(covariance_type type, const T* p) {
  const T degrees(180.0 / std::numbers::pi);
  return create_cov<T>(type, p[1], p[2], p[3], T(90.0) - p[4] * degrees, -p[5] * degrees,
                       p[6] * degrees, p[0]);
}

/// The ellipsoid that is handed out for the parameters of a structure: Rz(p[4]) Ry(p[5]) Rx(p[6])
/// diag(1 / r), sorted and made orthogonal. Its ranges stand on the other side of the turns than in
/// the fitted metric; the two agree where the axes lie along the coordinates.
Ellipsoid fitted_ellipsoid(const double* p);

/// The prior on the parameters of structures: it draws each range towards its lower end, where it
/// costs half of what it costs at its upper one, and the sill towards 1.
struct Regularization {
  double r1_max;
  double r2_max;
  double r3_max;
  double regularization_const;
  int n_structures;

  int n_residuals() const { return 4 * n_structures; }

  template <typename T>
  bool operator()(T const* const* parameters, T* residuals) const {
    const T c(regularization_const);
    for (int k = 0; k < n_structures; ++k) {
      const T* p = parameters[0] + n_structure_parameters * k;
      const double max_ranges[] = {r1_max, r2_max, r3_max};
      for (int axis = 0; axis < 3; ++axis) {
        const T x = (p[axis + 1] - max_ranges[axis]) / max_ranges[axis];
        const T cost = x * x + 1.0;
        *residuals++ = x < T(0.0) ? T(c / cost) : T(c * cost);
      }
      *residuals++ = 0.001 * c * (p[0] - 1.0) * (p[0] - 1.0);
    }
    return true;
  }
};

}  // namespace gravelox::detail
