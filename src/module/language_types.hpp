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
    if (caster.load(result, true)) return py::detail::cast_op<T&>(caster);
    return T(to_float(result));
  }
}

/// The position of a script's index, which counts from the end if it is negative. Throws
/// std::out_of_range "invalid vector subscript".
inline std::size_t position_of(int index, std::size_t size) {
  const auto n = static_cast<long long>(size);
  const long long position = index < 0 ? index + n : index;
  if (position < 0 || position >= n) throw std::out_of_range("invalid vector subscript");
  return static_cast<std::size_t>(position);
}

}  // namespace gravelox
