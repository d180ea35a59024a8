// SPDX-License-Identifier: MIT
#include "spatial/axes.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace gravelox {

namespace {

using std::numbers::pi;
using axis = Eigen::Vector3d;

const axis x_axis = axis::UnitX();
const axis y_axis = axis::UnitY();
const axis z_axis = axis::UnitZ();

/// Whether v points away from the first of the references that it is not at right angles to.
bool points_away(const axis& v, std::initializer_list<axis> references) {
  const axis unit = v / v.norm();
  std::size_t left = references.size();
  for (const axis& reference : references) {
    const double to_front = (unit - reference).norm();
    const double to_back = (unit + reference).norm();
    const bool is_last = --left == 0;
    // The last reference decides whatever the difference.
    if (is_last || std::abs(to_front - to_back) > 1e-8) return to_front > to_back;
  }
  return false;
}

/// Whether the third axis is to be turned round. On a tie the second axis decides, as it stood
/// before its own flip.
bool third_points_away(const axis& v3, const axis& v2) {
  const axis unit = v3 / v3.norm();
  const double to_front = (unit - z_axis).norm();
  const double to_back = (unit + z_axis).norm();
  if (std::abs(to_front - to_back) > 1e-8) return to_front > to_back;
  return points_away(v2, {x_axis, y_axis});
}

}  // namespace

Eigen::Matrix3d orthogonolize_axes(const Eigen::Matrix3d& T, bool sort) {
  const axis v1 = T.row(0);
  const axis u2 = T.row(1);
  const axis u3 = T.row(2);
  const axis v2 = u2 - (u2.dot(v1) / v1.dot(v1)) * v1;
  const axis v3 = u3 - (u3.dot(v2) / v2.dot(v2)) * v2 - (u3.dot(v1) / v1.dot(v1)) * v1;

  double sign1 = 1.0;
  double sign2 = 1.0;
  double sign3 = 1.0;
  if (sort) {
    if (points_away(v1, {x_axis, y_axis, z_axis})) sign1 = -1.0;
    if (points_away(v2, {y_axis, x_axis, z_axis})) sign2 = -1.0;
    if (third_points_away(v3, v2)) sign3 = -1.0;
  }
  Eigen::Matrix3d result;
  result.row(0) = sign1 * v1;
  result.row(1) = sign2 * v2;
  result.row(2) = sign3 * v3;
  return result;
}

Eigen::Matrix3d sort_matrix3d(const Eigen::Matrix3d& T, bool orthogonalize) {
  struct row {
    double length;
    Eigen::Index index;
  };
  std::array<row, 3> rows{{{T.row(0).norm(), 0}, {T.row(1).norm(), 1}, {T.row(2).norm(), 2}}};
  // Insertion, which keeps the order of ties and also ends on lengths that are not numbers.
  for (std::size_t i = 1; i < rows.size(); ++i) {
    for (std::size_t j = i; j > 0 && rows[j].length < rows[j - 1].length; --j) {
      std::swap(rows[j], rows[j - 1]);
    }
  }
  Eigen::Matrix3d sorted;
  for (Eigen::Index i = 0; i < 3; ++i) {
    sorted.row(i) = T.row(rows[static_cast<std::size_t>(i)].index);
  }
  return orthogonalize ? orthogonolize_axes(sorted, true) : sorted;
}

EllipsoidInfo extract_ellipsoid_info(const Eigen::Matrix3d& T) {
  const Eigen::Matrix3d sorted = sort_matrix3d(T, true);
  const auto range = [&sorted](Eigen::Index i) {
    const double length = sorted.row(i).norm();
    return length > 0.0 ? 1.0 / length : 1.0;
  };
  const Eigen::Vector3d ranges(range(0), range(1), range(2));
  const Eigen::Matrix3d q = ranges.asDiagonal() * sorted;

  double x = 0.0;
  if (std::abs(q(0, 2)) < 0.99999999) {
    x = std::asin(-q(0, 2));
  } else {
    x = q(0, 2) < 0.0 ? pi / 2.0 : -pi / 2.0;
  }
  double a = 0.0;
  double k = 0.0;
  if (std::abs(std::cos(x)) > 1e-6) {
    a = std::atan2(q(0, 1), q(0, 0));
    k = std::atan2(q(1, 2), q(2, 2));
  } else if (x > 0.0) {
    // A vertical first axis: azimuth and rake turn about the same line, and azimuth takes it all.
    a = std::atan2(q(2, 1), q(2, 0));
  } else {
    a = std::fmod(3.0 * pi - std::atan2(-q(2, 1), q(2, 0)), 2.0 * pi);
  }
  EllipsoidInfo info;
  info.r1 = ranges[0];
  info.r2 = ranges[1];
  info.r3 = ranges[2];
  info.azimuth = std::fmod(450.0 - 180.0 * a / pi, 360.0);
  info.dip = -180.0 * x / pi;
  info.rake = 180.0 * k / pi;
  return info;
}

}  // namespace gravelox
