// SPDX-License-Identifier: MIT
#pragma once

// Transition functions between categories, as tables of functions of two locations.

#include <cstddef>
#include <functional>
#include <vector>

#include "language/expression.hpp"
#include "language/jet_list.hpp"
#include "language/jet_matrix.hpp"

namespace gravelox {

/// Entry (class_u, class_v) is the probability of class_v at a location v, seen from class_u at a
/// location u. Rows may differ in length, but for the whole table at once.
///
/// Source: Carle and Fogg (1996).
template <number T>
class AbstractTransiogram {
 public:
  using kernel = std::function<T(const JetList<T>& u, const JetList<T>& v)>;
  using kernel_table = std::vector<std::vector<kernel>>;

  /// Of any functions. Calling an empty one throws std::bad_function_call.
  explicit AbstractTransiogram(kernel_table kernels);

  /// Of expressions of two variables, which take the locations as vectors. A call stores them
  /// there, so that tables with a node in common belong to one thread at a time. Throws
  /// std::runtime_error "Invalid argument!!!" without a variable or an expression, and "Invalid
  /// variable types" for the expression of a vector.
  AbstractTransiogram(const ast::VariablePtr<T>& class_u, const ast::VariablePtr<T>& class_v,
                      const std::vector<std::vector<ast::ExpressionPtr<T>>>& kernels);

  /// One entry, a row, or the whole table. Throws std::out_of_range "invalid vector subscript" for
  /// a class that is not there, and std::invalid_argument for a table whose rows differ in length.
  T operator()(int class_u, int class_v, const JetList<T>& u, const JetList<T>& v) const;
  JetList<T> operator()(int class_u, const JetList<T>& u, const JetList<T>& v) const;
  JetMatrix<T> operator()(const JetList<T>& u, const JetList<T>& v) const;

  const kernel_table& kernels() const { return kernels_; }

  /// For the owner of functions that refer back to the table: none are left.
  void clear() { kernels_.clear(); }

 private:
  const std::vector<kernel>& row(int class_u) const;

  kernel_table kernels_;
};

}  // namespace gravelox
