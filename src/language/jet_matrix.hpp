// SPDX-License-Identifier: MIT
#pragma once

// A matrix over doubles or jets, by rows, with its element-wise operations and statistics. Its
// linear algebra stands in matrix_algebra.hpp.

#include <cstddef>
#include <string>
#include <vector>

#include "language/jet_list.hpp"

namespace gravelox {

template <number T>
class JetMatrix {
 public:
  JetMatrix() = default;

  /// A matrix of zeros.
  JetMatrix(std::size_t n_rows, std::size_t n_cols) : rows_(n_rows, JetList<T>(n_cols)) {}

  /// Throws std::invalid_argument for rows that differ in length.
  explicit JetMatrix(std::vector<JetList<T>> rows);

  std::size_t nrows() const { return rows_.size(); }

  /// The length of the first row; 0 without rows.
  std::size_t ncols() const { return rows_.empty() ? 0 : rows_.front().size(); }

  /// A row, or an element, by indices that have been checked.
  const JetList<T>& operator[](std::size_t i) const { return rows_[i]; }
  T& operator()(std::size_t i, std::size_t j) { return rows_[i][j]; }
  const T& operator()(std::size_t i, std::size_t j) const { return rows_[i][j]; }

  /// Writes a row. Throws std::out_of_range "invalid vector subscript", and std::invalid_argument
  /// for another length than the matrix has columns.
  void set_row(std::size_t i, const JetList<T>& values);

  const std::vector<JetList<T>>& rows() const { return rows_; }

  bool operator==(const JetMatrix&) const = default;

 private:
  std::vector<JetList<T>> rows_;
};

/// The values without derivatives, by rows.
template <number T>
std::vector<std::vector<double>> values_of(const JetMatrix<T>& m);

/// The values in brackets: "[[1, 2.5], [3, 4]]".
template <number T>
std::string text_of_values(const JetMatrix<T>& m);

/// The function at each element.
template <number T>
JetMatrix<T> apply(T (*function)(const T&), const JetMatrix<T>& m);

/// n rows, each the vector x. Throws std::invalid_argument for a negative n, or for more than fits
/// into memory.
template <number T>
JetMatrix<T> repeat(int n, const JetList<T>& x);

/// Element by element; std::invalid_argument for shapes that differ.
template <number T>
JetMatrix<T> operator+(const JetMatrix<T>& a, const JetMatrix<T>& b);
template <number T>
JetMatrix<T> operator-(const JetMatrix<T>& a, const JetMatrix<T>& b);

/// Each element with a number.
template <number T>
JetMatrix<T> operator*(const JetMatrix<T>& m, const T& factor);
template <number T>
JetMatrix<T> operator/(const JetMatrix<T>& m, const T& divisor);

/// Each element to a power, as of vectors.
template <number T>
JetMatrix<T> pow(const JetMatrix<T>& m, double p);

template <number T>
JetMatrix<T> transpose(const JetMatrix<T>& m);

/// All elements in one vector, row by row: a statistic of the matrix is that of this vector.
template <number T>
JetList<T> elements(const JetMatrix<T>& m);

/// The statistic of each column (axis 0) or row (axis 1); std::invalid_argument for another axis.
template <number T>
JetList<T> along_axis(T (*statistic)(const JetList<T>&), const JetMatrix<T>& m, int axis);

}  // namespace gravelox
