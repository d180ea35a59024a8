// SPDX-License-Identifier: MIT
#pragma once

// Numbers at the boundary. Included by casters.hpp only, right after pybind11's own casters.
//
// The stock casters know Python's int and float alone: a numpy.float32 would fail the strict pass
// over the overloads and, in the lenient one, be truncated into the first overload that takes an
// int. Here a numpy scalar goes where a Python number of its value would go.

#include <utility>

namespace pybind11::detail {

/// The types of numpy scalars that Python's own checks do not know as numbers.
struct numpy_scalar_types {
  object floating;
  object boolean;
};

inline const numpy_scalar_types& numpy_scalars() {
  static gil_safe_call_once_and_store<numpy_scalar_types> storage;
  const auto look_up = [] {
    const auto numpy = reinterpret_steal<object>(PyImport_ImportModule("numpy"));
    if (!numpy) throw error_already_set();
    return numpy_scalar_types{numpy.attr("floating"), numpy.attr("bool_")};
  };
  return storage.call_once_and_store_result(look_up).get_stored();
}

inline bool is_of_type(handle source, const object& type) {
  return PyObject_TypeCheck(source.ptr(), reinterpret_cast<PyTypeObject*>(type.ptr())) != 0;
}

/// Floats strictly: Python floats and numpy floating scalars. Otherwise anything with __float__ or
/// __index__, as in the stock caster.
template <>
class type_caster<double> {
 public:
  PYBIND11_TYPE_CASTER(double, const_name("float"));

  bool load(handle source, bool convert) {
    if (!source) return false;
    if (PyFloat_Check(source.ptr())) {
      value = PyFloat_AS_DOUBLE(source.ptr());
      return true;
    }
    if (!convert && !is_of_type(source, numpy_scalars().floating)) return false;
    value = PyFloat_AsDouble(source.ptr());
    if (value == -1.0 && PyErr_Occurred() != nullptr) {
      PyErr_Clear();
      return false;
    }
    return true;
  }

  static handle cast(double source, return_value_policy /*policy*/, handle /*parent*/) {
    return PyFloat_FromDouble(source);
  }
};

/// Whole numbers of 32 bits: anything with __index__, and so never a float; numpy bools as
/// Python's.
template <typename T>
class whole_number_caster {
 public:
  PYBIND11_TYPE_CASTER(T, const_name("int"));

  bool load(handle source, bool /*convert*/) {
    if (!source) return false;
    // Before the index: a numpy bool has one, and warns when it is used.
    if (is_of_type(source, numpy_scalars().boolean)) {
      value = static_cast<T>(PyObject_IsTrue(source.ptr()));
      return true;
    }
    if (PyIndex_Check(source.ptr()) == 0) return false;
    const object whole = reinterpret_steal<object>(PyNumber_Index(source.ptr()));
    int overflow = 0;
    const long number = whole ? PyLong_AsLongAndOverflow(whole.ptr(), &overflow) : 0;
    if (PyErr_Occurred() != nullptr) {
      PyErr_Clear();
      return false;
    }
    if (overflow != 0 || !std::in_range<T>(number)) return false;
    value = static_cast<T>(number);
    return true;
  }

  static handle cast(T source, return_value_policy /*policy*/, handle /*parent*/) {
    return PyLong_FromLong(source);
  }
};

template <>
class type_caster<int> : public whole_number_caster<int> {};

template <>
class type_caster<unsigned> : public whole_number_caster<unsigned> {};

}  // namespace pybind11::detail
