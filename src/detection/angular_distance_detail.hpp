// SPDX-License-Identifier: MIT
#pragma once

// Angles between lines for inner loops, whose coordinates have been checked before.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "common/location.hpp"

namespace gravelox::detail {

/// See compute_angular_distance. Rounding can carry the cosine of lines in line past 1.
inline double angular_distance(const location& A, const location& B, const location& C) {
  constexpr double least_length = 1e-15;
  const location a = A - C;
  const location b = B - C;
  const double length_a = a.norm();
  const double length_b = b.norm();
  if (length_a < least_length || length_b < least_length) return std::numbers::pi / 2.0;
  const double cosine = std::abs(a.dot(b)) / (length_a * length_b);
  return std::acos(cosine > 1.0 ? 1.0 : cosine);
}

/// Whether angles are strictly below a tolerance (radians, at least 0).
class angle_test {
 public:
  explicit angle_test(double tolerance) : tolerance_(tolerance) {
    const double cosine = tolerance > std::numbers::pi / 2.0 ? -1.0 : std::cos(tolerance);
    const double limit = std::copysign(cosine * cosine, cosine);
    narrow_above_ = limit + rounding;
    wide_below_ = limit - rounding;
  }

  /// tolerance > angular_distance(A, B, C). Squares of cosines tell it without roots and an arc
  /// cosine, where they differ from that of the tolerance by more than any rounding.
  bool is_narrow(const location& A, const location& B, const location& C) const {
    const location a = A - C;
    const location b = B - C;
    const double dot = a.dot(b);
    const double squared_a = a.squaredNorm();
    const double squared_b = b.squaredNorm();
    const double squares = squared_a * squared_b;
    const bool is_above = dot * dot > narrow_above_ * squares;
    const bool is_below = dot * dot < wide_below_ * squares;
    const bool is_in_range = std::min(squared_a, squared_b) > 1e-28 && squares < 1e300;
    if (is_in_range && is_above != is_below) return is_above;
    return tolerance_ > angular_distance(A, B, C);
  }

 private:
  static constexpr double rounding = 1e-12;

  double tolerance_;
  double narrow_above_;
  double wide_below_;
};

}  // namespace gravelox::detail
