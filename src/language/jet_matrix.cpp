// SPDX-License-Identifier: MIT
#include "language/jet_matrix.hpp"

#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

template <number T>
void check_same_shape(const JetMatrix<T>& a, const JetMatrix<T>& b) {
  if (a.nrows() == b.nrows() && a.ncols() == b.ncols()) return;
  refuse("matrix", text_of("the shape of the other matrix, ", a.nrows(), " x ", a.ncols()),
         text_of(b.nrows(), " x ", b.ncols()));
}

/// operation(row) for each row.
template <number T, typename Operation>
JetMatrix<T> by_rows(const JetMatrix<T>& m, const Operation& operation) {
  std::vector<JetList<T>> rows;
  rows.reserve(m.nrows());
  for (const JetList<T>& row : m.rows()) rows.push_back(operation(row));
  return JetMatrix<T>(std::move(rows));
}

}  // namespace

template <number T>
JetMatrix<T>::JetMatrix(std::vector<JetList<T>> rows) : rows_(std::move(rows)) {
  for (const JetList<T>& row : rows_) {
    check_same_size("matrix", row.size(), ncols(), "element of the first row");
  }
}

template <number T>
void JetMatrix<T>::set_row(std::size_t i, const JetList<T>& values) {
  check_subscript(i, nrows());
  check_same_size("value", values.size(), ncols(), "column");
  rows_[i] = values;
}

template <number T>
std::vector<std::vector<double>> values_of(const JetMatrix<T>& m) {
  std::vector<std::vector<double>> rows;
  for (const JetList<T>& row : m.rows()) rows.push_back(values_of(row));
  return rows;
}

template <number T>
std::string text_of_values(const JetMatrix<T>& m) {
  std::string text = "[";
  for (std::size_t i = 0; i < m.nrows(); ++i) text += (i > 0 ? ", " : "") + text_of_values(m[i]);
  return text + "]";
}

template <number T>
JetMatrix<T> apply(T (*function)(const T&), const JetMatrix<T>& m) {
  return by_rows(m, [function](const JetList<T>& row) { return apply(function, row); });
}

template <number T>
JetMatrix<T> repeat(int n, const JetList<T>& x) {
  check_at_least("n", n, 0);
  const std::size_t row = sizeof(JetList<T>) + x.size() * sizeof(T);
  check_memory("n", static_cast<double>(row) / sizeof(double) * n);
  return JetMatrix<T>(std::vector<JetList<T>>(to_size(n), x));
}

template <number T>
JetMatrix<T> operator+(const JetMatrix<T>& a, const JetMatrix<T>& b) {
  check_same_shape(a, b);
  JetMatrix<T> result = a;
  for (std::size_t i = 0; i < a.nrows(); ++i) result.set_row(i, a[i] + b[i]);
  return result;
}

template <number T>
JetMatrix<T> operator-(const JetMatrix<T>& a, const JetMatrix<T>& b) {
  check_same_shape(a, b);
  JetMatrix<T> result = a;
  for (std::size_t i = 0; i < a.nrows(); ++i) result.set_row(i, a[i] - b[i]);
  return result;
}

template <number T>
JetMatrix<T> operator*(const JetMatrix<T>& m, const T& factor) {
  return by_rows(m, [&](const JetList<T>& row) { return row * factor; });
}

template <number T>
JetMatrix<T> operator/(const JetMatrix<T>& m, const T& divisor) {
  return by_rows(m, [&](const JetList<T>& row) { return row / divisor; });
}

template <number T>
JetMatrix<T> pow(const JetMatrix<T>& m, double p) {
  return by_rows(m, [p](const JetList<T>& row) { return pow(row, p); });
}

template <number T>
JetMatrix<T> transpose(const JetMatrix<T>& m) {
  JetMatrix<T> result(m.ncols(), m.nrows());
  for (std::size_t i = 0; i < m.nrows(); ++i) {
    for (std::size_t j = 0; j < m.ncols(); ++j) result(j, i) = m(i, j);
  }
  return result;
}

template <number T>
JetList<T> elements(const JetMatrix<T>& m) {
  JetList<T> result;
  for (const JetList<T>& row : m.rows()) {
    for (const T& element : row) result.push_back(element);
  }
  return result;
}

template <number T>
JetList<T> along_axis(T (*statistic)(const JetList<T>&), const JetMatrix<T>& m, int axis) {
  if (axis != 0 && axis != 1) refuse("axis", "0 (columns) or 1 (rows)", axis);
  const JetMatrix<T> lines = axis == 0 ? transpose(m) : m;
  JetList<T> result;
  for (const JetList<T>& line : lines.rows()) result.push_back(statistic(line));
  return result;
}

#define GRAVELOX_INSTANTIATE(T)                                              \
  template class JetMatrix<T>;                                               \
  template std::vector<std::vector<double>> values_of(const JetMatrix<T>&);  \
  template std::string text_of_values(const JetMatrix<T>&);                  \
  template JetMatrix<T> apply(T (*)(const T&), const JetMatrix<T>&);         \
  template JetMatrix<T> repeat(int, const JetList<T>&);                      \
  template JetMatrix<T> operator+(const JetMatrix<T>&, const JetMatrix<T>&); \
  template JetMatrix<T> operator-(const JetMatrix<T>&, const JetMatrix<T>&); \
  template JetMatrix<T> operator*(const JetMatrix<T>&, const T&);            \
  template JetMatrix<T> operator/(const JetMatrix<T>&, const T&);            \
  template JetMatrix<T> pow(const JetMatrix<T>&, double);                    \
  template JetMatrix<T> transpose(const JetMatrix<T>&);                      \
  template JetList<T> elements(const JetMatrix<T>&);                         \
  template JetList<T> along_axis(T (*)(const JetList<T>&), const JetMatrix<T>&, int)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox
