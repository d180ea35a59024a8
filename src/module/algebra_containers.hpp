// SPDX-License-Identifier: MIT
#pragma once

// Vectors and matrices of the language as Python containers: indices, slices, arrays and text.

#include "module/casters.hpp"

#include <string>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"
#include "module/language_types.hpp"

namespace gravelox {

/// Above numpy's arrays and scalars: with one of them on the left the operators here are asked.
inline void stand_above_arrays(py::object& bound_class) {
  bound_class.attr("__array_priority__") = 1000;
}

/// The methods of the class of matrices; its class and that of vectors are registered before.
template <number T>
void bind_matrix(py::class_<JetMatrix<T>>& matrix);

/// The positions that a slice of Python's selects.
inline std::vector<std::size_t> positions_of(const py::slice& slice, std::size_t size) {
  py::ssize_t start = 0;
  py::ssize_t stop = 0;
  py::ssize_t step = 0;
  py::ssize_t n = 0;
  if (!slice.compute(static_cast<py::ssize_t>(size), &start, &stop, &step, &n)) {
    throw py::error_already_set();
  }
  std::vector<std::size_t> positions;
  for (py::ssize_t i = 0; i < n; ++i) {
    positions.push_back(static_cast<std::size_t>(start + i * step));
  }
  return positions;
}

inline py::slice limits(int start, int stop) { return {start, stop, 1}; }

template <number T>
T get_element(const JetList<T>& x, int index) {
  return x[position_of(index, x.size())];
}

template <number T>
void set_element(JetList<T>& x, int index, const T& value) {
  x[position_of(index, x.size())] = value;
}

template <number T>
JetList<T> get_slice(const JetList<T>& x, const py::slice& index) {
  JetList<T> result;
  for (const std::size_t i : positions_of(index, x.size())) result.push_back(x[i]);
  return result;
}

template <number T>
void fill_slice(JetList<T>& x, const py::slice& index, const T& value) {
  for (const std::size_t i : positions_of(index, x.size())) x[i] = value;
}

/// The values come as a copy: they may be of the same vector.
template <number T>
void set_slice(JetList<T>& x, const py::slice& index, JetList<T> value) {
  const std::vector<std::size_t> positions = positions_of(index, x.size());
  check_same_size("value", value.size(), positions.size(), "element of the slice");
  for (std::size_t i = 0; i < positions.size(); ++i) x[positions[i]] = std::move(value[i]);
}

template <number T>
JetList<T> slice_between(const JetList<T>& x, int start, int stop) {
  return get_slice(x, limits(start, stop));
}

template <number T>
JetMatrix<T> matrix_of_rows(const std::vector<std::vector<T>>& rows) {
  std::vector<JetList<T>> lists(rows.begin(), rows.end());
  return JetMatrix<T>(std::move(lists));
}

template <number T>
JetList<T> get_row(const JetMatrix<T>& m, int id) {
  return m[position_of(id, m.nrows())];
}

template <number T>
void set_row(JetMatrix<T>& m, int id, const JetList<T>& value) {
  m.set_row(position_of(id, m.nrows()), value);
}

template <number T>
T get_cell(const JetMatrix<T>& m, const std::pair<int, int>& id) {
  return m(position_of(id.first, m.nrows()), position_of(id.second, m.ncols()));
}

template <number T>
void set_cell(JetMatrix<T>& m, const std::pair<int, int>& id, const T& value) {
  m(position_of(id.first, m.nrows()), position_of(id.second, m.ncols())) = value;
}

template <number T>
JetMatrix<T> get_rows(const JetMatrix<T>& m, const py::slice& id) {
  std::vector<JetList<T>> rows;
  for (const std::size_t i : positions_of(id, m.nrows())) rows.push_back(m[i]);
  return JetMatrix<T>(std::move(rows));
}

template <number T>
JetMatrix<T> rows_between(const JetMatrix<T>& m, int start, int stop) {
  return get_rows(m, limits(start, stop));
}

template <number T>
JetMatrix<T> part_between(const JetMatrix<T>& m, int row_start, int row_stop, int column_start,
                          int column_stop) {
  std::vector<JetList<T>> rows;
  for (const std::size_t i : positions_of(limits(row_start, row_stop), m.nrows())) {
    rows.push_back(slice_between(m[i], column_start, column_stop));
  }
  return JetMatrix<T>(std::move(rows));
}

template <number T>
std::string text_of_vector(const JetList<T>& x) {
  std::string text = "[";
  for (std::size_t i = 0; i < x.size(); ++i) text += text_of(i > 0 ? ", " : "", value_of(x[i]));
  return text + "]";
}

template <number T>
std::string text_of_matrix(const JetMatrix<T>& m) {
  std::string text = "[";
  for (std::size_t i = 0; i < m.nrows(); ++i) text += (i > 0 ? ", " : "") + text_of_vector(m[i]);
  return text + "]";
}

template <number T>
std::vector<std::vector<double>> values_of_matrix(const JetMatrix<T>& m) {
  std::vector<std::vector<double>> rows;
  for (const JetList<T>& row : m.rows()) rows.push_back(values_of(row));
  return rows;
}

template <number T>
py::array array_of_values(const JetList<T>& x) {
  const std::vector<double> values = values_of(x);
  return py::array_t<double>(static_cast<py::ssize_t>(values.size()), values.data());
}

template <number T>
py::array array_of_values(const JetMatrix<T>& m) {
  const std::vector<double> values = values_of(elements(m));
  return py::array_t<double>({m.nrows(), m.ncols()}, values.data());
}

/// numpy's protocol: the type may be told, and a copy is always made.
inline py::array as_type(const py::array& values, const py::object& dtype) {
  return dtype.is_none() ? values : py::array(values.attr("astype")(dtype));
}

template <number T>
py::array vector_array(const JetList<T>& x, const py::object& dtype, const py::object& /*copy*/) {
  return as_type(array_of_values(x), dtype);
}

template <number T>
py::array matrix_array(const JetMatrix<T>& m, const py::object& dtype, const py::object& /*copy*/) {
  return as_type(array_of_values(m), dtype);
}

/// The derivatives of jets one after another, in an array of this shape and a last axis of seven.
inline py::array partials_array(const JetList<jet>& x, std::vector<py::ssize_t> shape) {
  shape.push_back(jet::DIMENSION);
  py::array_t<double> result(std::move(shape));
  double* next = result.mutable_data();
  for (const jet& element : x) {
    for (int k = 0; k < jet::DIMENSION; ++k) *next++ = element.v[k];
  }
  return result;
}

inline py::array partials_of(const jet& x) { return partials_array(JetList<jet>{x}, {}); }

inline py::array partials_of_vector(const JetList<jet>& x) {
  return partials_array(x, {static_cast<py::ssize_t>(x.size())});
}

inline py::array partials_of_matrix(const JetMatrix<jet>& m) {
  return partials_array(elements(m),
                        {static_cast<py::ssize_t>(m.nrows()), static_cast<py::ssize_t>(m.ncols())});
}

template <number T>
JetList<T> map_elements(const JetList<T>& x, const py::object& f) {
  const python_callback callback(f, "f");
  JetList<T> result;
  for (const T& element : x) result.push_back(callback(&to_number<T>, element));
  return result;
}

template <number T>
JetMatrix<T> map_rows(const JetMatrix<T>& m, const py::object& f) {
  std::vector<JetList<T>> rows;
  for (const JetList<T>& row : m.rows()) rows.push_back(map_elements(row, f));
  return JetMatrix<T>(std::move(rows));
}

}  // namespace gravelox
