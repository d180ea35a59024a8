// SPDX-License-Identifier: MIT
#pragma once

// Lists at the boundary. Included by casters.hpp only, after pybind11's headers.
//
// The stock casters touch a Python object for each element. Here an array of the right type goes in
// with one pass over its memory, and a list of small arrays without the generic conversion;
// anything else takes the general road, element by element. Every list is a copy.

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "common/location.hpp"

namespace pybind11::detail {

/// numpy's descriptor of a type; a reference is held for the life of the process, so that no call
/// looks it up again.
template <typename T>
PyObject* descriptor_of() {
  static gil_safe_call_once_and_store<dtype> storage;
  return storage.call_once_and_store_result([] { return dtype::of<T>(); }).get_stored().ptr();
}

/// The array's memory if the object is an array of this type, of native byte order, with that many
/// dimensions; otherwise null.
template <typename T>
const PyArray_Proxy* array_of(handle source, int n_dimensions) {
  const auto& api = npy_api::get();
  if (!api.PyArray_Check_(source.ptr())) return nullptr;
  PyObject* const wanted = descriptor_of<T>();
  const PyArray_Proxy* proxy = array_proxy(source.ptr());
  if (proxy->nd != n_dimensions) return nullptr;
  if (proxy->descr != wanted && !api.PyArray_EquivTypes_(proxy->descr, wanted)) return nullptr;
  return proxy;
}

template <typename T>
T read(const char* memory) {
  if constexpr (std::is_same_v<T, bool>) {
    return *memory != 0;  // an array that views other data as bools may hold any byte
  } else {
    T value;
    std::memcpy(&value, memory, sizeof(T));
    return value;
  }
}

/// One place to read a location from an array of shape (3,) or (3, 1).
inline bool read_location(const PyArray_Proxy& array, gravelox::location& result) {
  if (array.dimensions[0] != 3) return false;
  const ssize_t stride = array.strides[0];
  result = {read<double>(array.data), read<double>(array.data + stride),
            read<double>(array.data + 2 * stride)};
  return true;
}

/// Calls load_element(element) for each element of a sequence that is not text, as long as it
/// returns true; begin(n) comes first and makes room for n, which is no more than is cheap: an
/// object may claim any length.
///
/// Elements are iterated over, not looked up: to a column of a table an index is a label. Lists are
/// read directly, and their length is asked for again at each step, since a conversion may run
/// Python code that changes them.
template <typename Begin, typename LoadElement>
bool load_sequence(handle source, const Begin& begin, const LoadElement& load_element) {
  if (PySequence_Check(source.ptr()) == 0 || isinstance<bytes>(source) || isinstance<str>(source)) {
    return false;
  }
  const ssize_t size = PySequence_Size(source.ptr());
  if (size < 0) {
    PyErr_Clear();
    return false;
  }
  constexpr ssize_t most_room = 1 << 20;
  begin(static_cast<std::size_t>(std::min(size, most_room)));
  if (PyList_CheckExact(source.ptr()) != 0) {
    for (ssize_t i = 0; i < size; ++i) {
      if (i >= PyList_GET_SIZE(source.ptr())) return false;
      if (!load_element(reinterpret_borrow<object>(PyList_GET_ITEM(source.ptr(), i)))) return false;
    }
    return true;
  }
  ssize_t n_loaded = 0;
  for (const handle element : iter(source)) {
    if (n_loaded == size || !load_element(element)) return false;
    ++n_loaded;
  }
  return n_loaded == size;
}

/// The point list of the whole system. A (n, 3) array is a list of points, (3, 3) and (1, 3)
/// included; a (3, 1) array is one point and no list.
template <>
class type_caster<std::vector<gravelox::location>> {
 public:
  PYBIND11_TYPE_CASTER(std::vector<gravelox::location>,
                       const_name("list[numpy.ndarray[numpy.float64[3, 1]]]"));

  bool load(handle source, bool convert) {
    if (const PyArray_Proxy* table = array_of<double>(source, 2)) return load_table(*table);
    if (convert && may_be_table(source)) {
      const auto doubles = array_t<double>::ensure(source);
      if (doubles && doubles.ndim() == 2) return load_table(*array_proxy(doubles.ptr()));
    }
    return load_sequence(
        source,
        [this](std::size_t n) {
          value.clear();
          value.reserve(n);
        },
        [this, convert](handle element) {
          gravelox::location point;
          if (!load_location(element, convert, point)) return false;
          value.push_back(point);
          return true;
        });
  }

  static handle cast(const std::vector<gravelox::location>& source, return_value_policy /*policy*/,
                     handle /*parent*/) {
    const auto& api = npy_api::get();
    PyObject* const float64 = descriptor_of<double>();
    const Py_intptr_t shape[1] = {3};
    list result(source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
      Py_INCREF(float64);  // a new array takes a reference to its type over
      PyObject* array = api.PyArray_NewFromDescr_(api.PyArray_Type_, float64, 1, shape, nullptr,
                                                  nullptr, 0, nullptr);
      if (array == nullptr) throw error_already_set();
      std::memcpy(array_proxy(array)->data, source[i].data(), 3 * sizeof(double));
      PyList_SET_ITEM(result.ptr(), static_cast<ssize_t>(i), array);
    }
    return result.release();
  }

 private:
  /// Arrays of other types, and tables of other packages that turn into arrays.
  static bool may_be_table(handle source) {
    const bool is_plain = PyList_Check(source.ptr()) != 0 || PyTuple_Check(source.ptr()) != 0;
    return !is_plain && PyObject_HasAttrString(source.ptr(), "__array__") != 0;
  }

  bool load_table(const PyArray_Proxy& table) {
    if (table.dimensions[1] != 3) return false;
    const auto n = static_cast<std::size_t>(table.dimensions[0]);
    value.resize(n);
    const auto size = static_cast<ssize_t>(sizeof(double));
    if (table.strides[1] == size && table.strides[0] == 3 * size) {
      // Three packed doubles a point, on either side; the array's need not be aligned.
      if (n > 0) std::memcpy(value.data()->data(), table.data, n * 3 * sizeof(double));
      return true;
    }
    for (std::size_t i = 0; i < n; ++i) {
      const char* row = table.data + static_cast<ssize_t>(i) * table.strides[0];
      value[i] = {read<double>(row), read<double>(row + table.strides[1]),
                  read<double>(row + 2 * table.strides[1])};
    }
    return true;
  }

  static bool load_location(handle element, bool convert, gravelox::location& result) {
    if (const PyArray_Proxy* array = array_of<double>(element, 1)) {
      return read_location(*array, result);
    }
    if (convert && load_triple(element, result)) return true;
    make_caster<gravelox::location> general;
    if (!general.load(element, convert)) return false;
    result = cast_op<gravelox::location&>(general);
    return true;
  }

  /// A list or tuple of three Python floats, which is what most scripts write.
  static bool load_triple(handle element, gravelox::location& result) {
    const bool is_tuple = PyTuple_CheckExact(element.ptr()) != 0;
    if (!is_tuple && PyList_CheckExact(element.ptr()) == 0) return false;
    if (PySequence_Fast_GET_SIZE(element.ptr()) != 3) return false;
    PyObject** items = PySequence_Fast_ITEMS(element.ptr());
    for (int axis = 0; axis < 3; ++axis) {
      if (PyFloat_Check(items[axis]) == 0) return false;
      result[axis] = PyFloat_AS_DOUBLE(items[axis]);
    }
    return true;
  }
};

/// Lists of numbers: a one-dimensional array of one of the types `Stored` goes in directly.
template <typename T, typename... Stored>
class number_list_caster {
 public:
  using element_caster = make_caster<T>;
  PYBIND11_TYPE_CASTER(std::vector<T>,
                       const_name("list[") + element_caster::name + const_name("]"));

  bool load(handle source, bool convert) {
    if ((load_array_of<Stored>(source) || ...)) return true;
    return load_sequence(
        source,
        [this](std::size_t n) {
          value.clear();
          value.reserve(n);
        },
        [this, convert](handle element) {
          element_caster number;
          if (!number.load(element, convert)) return false;
          value.push_back(cast_op<T>(number));
          return true;
        });
  }

  static handle cast(const std::vector<T>& source, return_value_policy policy, handle parent) {
    list result(source.size());
    ssize_t i = 0;
    for (const T number : source) {
      const handle element = element_caster::cast(number, policy, parent);
      if (!element) throw error_already_set();
      PyList_SET_ITEM(result.ptr(), i++, element.ptr());
    }
    return result.release();
  }

 private:
  /// False also where a value does not fit, which the general road then refuses.
  template <typename Number>
  bool load_array_of(handle source) {
    const PyArray_Proxy* array = array_of<Number>(source, 1);
    if (array == nullptr) return false;
    const auto n = static_cast<std::size_t>(array->dimensions[0]);
    value.resize(n);
    if constexpr (std::is_same_v<T, Number> && !std::is_same_v<T, bool>) {
      if (array->strides[0] == static_cast<ssize_t>(sizeof(T))) {
        if (n > 0) std::memcpy(value.data(), array->data, n * sizeof(T));
        return true;
      }
    }
    for (std::size_t i = 0; i < n; ++i) {
      const auto number = read<Number>(array->data + static_cast<ssize_t>(i) * array->strides[0]);
      if constexpr (sizeof(Number) > sizeof(T)) {
        if (number < std::numeric_limits<T>::min() || number > std::numeric_limits<T>::max()) {
          return false;
        }
      }
      value[i] = static_cast<T>(number);
    }
    return true;
  }
};

template <>
class type_caster<std::vector<double>> : public number_list_caster<double, double> {};

/// numpy's default integers have 64 bits.
template <>
class type_caster<std::vector<int>> : public number_list_caster<int, std::int64_t, std::int32_t> {};

template <>
class type_caster<std::vector<bool>> : public number_list_caster<bool, bool> {};

}  // namespace pybind11::detail
