// SPDX-License-Identifier: MIT
#include "language/transiogram.hpp"

#include <memory>
#include <stdexcept>
#include <utility>

#include "language/function.hpp"
#include "language/subscript.hpp"

namespace gravelox {

namespace {

/// An element of a list; classes come from callers, and those below 0 are none.
template <typename List>
const auto& element(const List& list, int index) {
  const auto i = static_cast<std::size_t>(index);
  check_subscript(i, list.size());
  return list[i];
}

template <typename Pointer>
void check_pointer(const Pointer& pointer) {
  if (!pointer) throw std::runtime_error("Invalid argument!!!");
}

/// An expression of the two locations, planned once: as a function without arguments of its own.
template <number T>
typename AbstractTransiogram<T>::kernel create_kernel(const ast::VariablePtr<T>& class_u,
                                                      const ast::VariablePtr<T>& class_v,
                                                      const ast::ExpressionPtr<T>& expression) {
  using arguments = std::vector<ast::VariablePtr<T>>;
  const ast::ScalarFunction<T> entry(std::make_shared<ast::Function<T>>(arguments{}, expression));
  if (expression->kind() != ast::variable_kind::scalar) {
    throw std::runtime_error("Invalid variable types");
  }
  return [class_u, class_v, entry](const JetList<T>& u, const JetList<T>& v) {
    class_u->eval_vector(u);
    class_v->eval_vector(v);
    return entry({});
  };
}

}  // namespace

template <number T>
AbstractTransiogram<T>::AbstractTransiogram(kernel_table kernels) : kernels_(std::move(kernels)) {}

template <number T>
AbstractTransiogram<T>::AbstractTransiogram(
    const ast::VariablePtr<T>& class_u, const ast::VariablePtr<T>& class_v,
    const std::vector<std::vector<ast::ExpressionPtr<T>>>& kernels) {
  check_pointer(class_u);
  check_pointer(class_v);
  for (const std::vector<ast::ExpressionPtr<T>>& row : kernels) {
    kernels_.emplace_back();
    for (const ast::ExpressionPtr<T>& expression : row) {
      kernels_.back().push_back(create_kernel<T>(class_u, class_v, expression));
    }
  }
}

template <number T>
const std::vector<typename AbstractTransiogram<T>::kernel>& AbstractTransiogram<T>::row(
    int class_u) const {
  return element(kernels_, class_u);
}

template <number T>
T AbstractTransiogram<T>::operator()(int class_u, int class_v, const JetList<T>& u,
                                     const JetList<T>& v) const {
  return element(row(class_u), class_v)(u, v);
}

template <number T>
JetList<T> AbstractTransiogram<T>::operator()(int class_u, const JetList<T>& u,
                                              const JetList<T>& v) const {
  JetList<T> values;
  for (const kernel& entry : row(class_u)) values.push_back(entry(u, v));
  return values;
}

template <number T>
JetMatrix<T> AbstractTransiogram<T>::operator()(const JetList<T>& u, const JetList<T>& v) const {
  std::vector<JetList<T>> rows;
  for (int class_u = 0; static_cast<std::size_t>(class_u) < kernels_.size(); ++class_u) {
    rows.push_back((*this)(class_u, u, v));
  }
  return JetMatrix<T>(std::move(rows));
}

template class AbstractTransiogram<double>;
template class AbstractTransiogram<jet>;

}  // namespace gravelox
