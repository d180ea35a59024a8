// SPDX-License-Identifier: MIT
#pragma once

// Matrices and vectors at the boundary. Included by casters.hpp only, after pybind11's headers.

#include <utility>

namespace gravelox {

/// A matrix or vector that came as an array of as many dimensions as its name says.
struct two_dimensional_array {
  Eigen::MatrixXd values;
};

struct one_dimensional_array {
  Eigen::VectorXd values;
};

/// A point for functions that also take lists of points: an empty list is a list without points.
struct point_array {
  Eigen::VectorXd values;
};

}  // namespace gravelox

namespace pybind11::detail {

/// The stock casters take (n,) for (n, 1) and the other way round, and with that the overload of a
/// table the calls for a point.
template <typename Array, typename Values, int n_dimensions>
class dimension_caster {
 public:
  PYBIND11_TYPE_CASTER(Array, make_caster<Values>::name);

  bool load(handle source, bool convert) {
    if (!convert && !isinstance<array_t<double>>(source)) return false;
    const auto doubles = array_t<double>::ensure(source);
    if (!doubles || doubles.ndim() != n_dimensions) return false;
    make_caster<Values> general;
    if (!general.load(doubles, convert)) return false;
    value.values = cast_op<Values&&>(std::move(general));
    return true;
  }
};

template <>
class type_caster<gravelox::two_dimensional_array>
    : public dimension_caster<gravelox::two_dimensional_array, Eigen::MatrixXd, 2> {};

template <>
class type_caster<gravelox::one_dimensional_array>
    : public dimension_caster<gravelox::one_dimensional_array, Eigen::VectorXd, 1> {};

template <>
class type_caster<gravelox::point_array>
    : public dimension_caster<gravelox::point_array, Eigen::VectorXd, 1> {
 public:
  bool load(handle source, bool convert) {
    return dimension_caster::load(source, convert) && value.values.size() > 0;
  }
};

}  // namespace pybind11::detail
