// SPDX-License-Identifier: MIT
#pragma once

// What the bindings of the language share: numbers at the boundary.
//
// Over doubles, functions take and give Python floats, and accept a Real for one. Over jets they
// take and give Jet objects, and accept floats.

#include "module/casters.hpp"

#include <concepts>
#include <memory>
#include <string>
#include <type_traits>

#include "language/jet_list.hpp"
#include "language/jet_matrix.hpp"
#include "module/python_callback.hpp"

namespace gravelox {

/// A double as an object of its own class.
struct Real {
  double value;
};

template <number T>
using bound_number = std::conditional_t<std::same_as<T, double>, Real, jet>;

inline double number_of(const Real& x) { return x.value; }
inline const jet& number_of(const jet& x) { return x; }

/// A callback's result as a number; Python's TypeError for what is none.
template <number T>
T to_number(const py::object& result) {
  if constexpr (std::same_as<T, double>) {
    return to_float(result);
  } else {
    py::detail::make_caster<T> caster;
    // None would pass for a jet that is not there.
    if (!result.is_none() && caster.load(result, true)) return py::detail::cast_op<T&>(caster);
    return T(to_float(result));
  }
}

/// A number where a function takes a vector too. An array or a list of one number is no scalar,
/// though arrays of one element turn into floats.
template <number T>
struct scalar_argument {
  T value = T(0.0);
  operator const T&() const { return value; }
};

}  // namespace gravelox

namespace pybind11::detail {

template <gravelox::number T>
class type_caster<gravelox::scalar_argument<T>> {
 public:
  PYBIND11_TYPE_CASTER(gravelox::scalar_argument<T>, make_caster<T>::name);

  bool load(handle source, bool convert) {
    if (!source || source.is_none() || has_length(source)) return false;
    make_caster<T> number;
    if (number.load(source, convert)) {
      value.value = cast_op<T&>(number);
      return true;
    }
    // Numbers of numpy, arrays without dimensions among them.
    make_caster<double> plain;
    if (!convert || !plain.load(source, convert)) return false;
    value.value = T(cast_op<double>(plain));
    return true;
  }

 private:
  static bool has_length(handle source) {
    if (PySequence_Check(source.ptr()) == 0) return false;
    if (PySequence_Size(source.ptr()) >= 0) return true;
    PyErr_Clear();
    return false;
  }
};

}  // namespace pybind11::detail
