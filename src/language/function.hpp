// SPDX-License-Identifier: MIT
#pragma once

// Functions of expressions: a body with its arguments, and the callables that are compiled from it.

#include <cstddef>
#include <memory>
#include <vector>

#include "language/expression.hpp"
#include "language/jet_matrix.hpp"

namespace gravelox::ast {

namespace detail {
template <number T>
struct plans;
}  // namespace detail

/// A body with arguments. As a node it gives what its body gives with the arguments' own values.
template <number T>
class Function final : public Expression<T> {
 public:
  /// Throws std::runtime_error "Invalid argument!!!" for no body, a kernel as body, or an argument
  /// that is none.
  Function(std::vector<VariablePtr<T>> args, ExpressionPtr<T> body);

  const std::vector<VariablePtr<T>>& args() const { return args_; }
  Expression<T>& body() const { return *this->operands_.front(); }

  /// An input goes to the body, where a variable takes it.
  using Expression<T>::eval;
  using Expression<T>::eval_vector;
  const T& eval() override;
  const T& eval(const T& x) override;
  const JetList<T>& eval_vector() override;
  const JetList<T>& eval_vector(const JetList<T>& x) override;

 private:
  Expression<T>& innermost_body() const;
  void open(detail::planner<T>& plan, variable_kind form) override;
  void close(detail::planner<T>& plan, variable_kind form, int stage) override;

  std::vector<VariablePtr<T>> args_;
};

template <number T>
using FunctionPtr = std::shared_ptr<Function<T>>;

/// The function of expressions: its body with each of the first arguments replaced by the listed
/// expression in its place. A scalar argument takes element 0 of a vector, a scalar goes to element
/// 0 of a vector argument.
///
/// All expressions are worked out before the body, and when the evaluation ends the arguments keep
/// what they were bound to, last of all by their last composition in it. Until then variables have
/// their own values everywhere but in the body.
///
/// Throws std::runtime_error "Invalid argument!!!" for no function, or a listed expression that is
/// none or a kernel; std::invalid_argument for more expressions than arguments.
template <number T>
TransformationPtr<T> compose(const FunctionPtr<T>& function,
                             std::vector<ExpressionPtr<T>> expressions);

/// What the compiled callables share: a call stores the inputs in the variables, which keep them,
/// and evaluates the tree in place. So calls of functions with a node in common take turns. Copies
/// share their plan.
template <number T>
class CompiledFunction {
 public:
  /// Throws std::runtime_error "Invalid argument!!!" for no function.
  explicit CompiledFunction(FunctionPtr<T> function);

 protected:
  /// Stores the inputs, by position; arguments beyond them keep their values. Throws
  /// std::invalid_argument for more inputs than arguments, std::out_of_range for an empty row where
  /// a scalar is wanted.
  void bind(const JetList<T>& x) const;
  void bind(const std::vector<JetList<T>>& rows) const;

  /// The body's scalar, or the norm of its vector.
  T scalar_result() const;

  /// The body's vector, or one of its scalar.
  JetList<T> vector_result() const;

 private:
  void run(variable_kind form) const;

  FunctionPtr<T> function_;
  std::vector<VariablePtr<T>> args_;
  std::shared_ptr<detail::plans<T>> plans_;
};

/// Numbers to a number.
template <number T>
class ScalarFunction : public CompiledFunction<T> {
 public:
  using CompiledFunction<T>::CompiledFunction;
  T operator()(const JetList<T>& args) const;
};

/// Vectors, one an argument, to a vector.
template <number T>
class TransFunction : public CompiledFunction<T> {
 public:
  using CompiledFunction<T>::CompiledFunction;
  JetList<T> operator()(const std::vector<JetList<T>>& args) const;
};

/// Vectors, one an argument, to a number.
template <number T>
class KernelFunction : public CompiledFunction<T> {
 public:
  using CompiledFunction<T>::CompiledFunction;
  T operator()(const std::vector<JetList<T>>& args) const;
};

/// A compiled function over vectors as a node. It cannot be evaluated as one: every evaluation
/// throws std::runtime_error "invalid call!!!\n".
template <number T>
class Kernel final : public Expression<T> {
 public:
  explicit Kernel(KernelFunction<T> function);

  const KernelFunction<T>& function() const { return function_; }

  using Expression<T>::eval;
  using Expression<T>::eval_vector;
  const T& eval() override;
  const T& eval(const T& x) override;
  const JetList<T>& eval_vector() override;
  const JetList<T>& eval_vector(const JetList<T>& x) override;

 private:
  void open(detail::planner<T>& plan, variable_kind form) override;

  KernelFunction<T> function_;
};

/// A cost as a script sees it: its function at a list of scalars. The solver evaluates costs by
/// plans of its own, which touch no node.
template <number T>
class AbstractScalarCost : public ScalarFunction<T> {
 public:
  using ScalarFunction<T>::ScalarFunction;
};

}  // namespace gravelox::ast
