// SPDX-License-Identifier: MIT
#pragma once

// Vectors and matrices of the language as Python containers: indices, slices, arrays and text.

#include "module/casters.hpp"

#include <utility>
#include <vector>

#include "language/selection.hpp"
#include "language/subscript.hpp"
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
inline positions positions_of(const py::slice& slice, std::size_t size) {
  py::ssize_t start = 0;
  py::ssize_t stop = 0;
  py::ssize_t step = 0;
  py::ssize_t n = 0;
  if (!slice.compute(static_cast<py::ssize_t>(size), &start, &stop, &step, &n)) {
    throw py::error_already_set();
  }
  positions selected;
  for (py::ssize_t i = 0; i < n; ++i) {
    selected.push_back(static_cast<std::size_t>(start + i * step));
  }
  return selected;
}

inline py::slice limits(int start, int stop) { return {start, stop, 1}; }

template <number T>
T get_element(const JetList<T>& x, int index) {
  return x[position_of(index, x.size())];
}

template <number T>
void set_element(JetList<T>& x, int index, const scalar_argument<T>& value) {
  x[position_of(index, x.size())] = value;
}

template <number T>
JetList<T> get_slice(const JetList<T>& x, const py::slice& index) {
  return select(x, positions_of(index, x.size()));
}

template <number T>
void fill_slice(JetList<T>& x, const py::slice& index, const scalar_argument<T>& value) {
  fill(x, positions_of(index, x.size()), value.value);
}

/// The values come as a copy: they may be of the same vector.
template <number T>
void set_slice(JetList<T>& x, const py::slice& index, JetList<T> value) {
  replace(x, positions_of(index, x.size()), value);
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
void set_cell(JetMatrix<T>& m, const std::pair<int, int>& id, const scalar_argument<T>& value) {
  m(position_of(id.first, m.nrows()), position_of(id.second, m.ncols())) = value;
}

template <number T>
JetMatrix<T> get_rows(const JetMatrix<T>& m, const py::slice& id) {
  return select_rows(m, positions_of(id, m.nrows()));
}

template <number T>
JetMatrix<T> rows_between(const JetMatrix<T>& m, int start, int stop) {
  return get_rows(m, limits(start, stop));
}

template <number T>
JetMatrix<T> part_between(const JetMatrix<T>& m, int row_start, int row_stop, int column_start,
                          int column_stop) {
  return select(m, positions_of(limits(row_start, row_stop), m.nrows()),
                positions_of(limits(column_start, column_stop), m.ncols()));
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
  return py::array_t<double>(std::move(shape), partials_of(x).data());
}

inline py::array partials_of_scalar(const jet& x) { return partials_array(JetList<jet>{x}, {}); }

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
