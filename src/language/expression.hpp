// SPDX-License-Identifier: MIT
#pragma once

// The nodes of expression trees over doubles or jets.
//
// Nodes are shared: a node keeps its operands alive. Each keeps the result of its last evaluation,
// so that trees with a node in common belong to one thread at a time. Trees of any depth are
// evaluated and destroyed in constant stack; a node that occurs several times is evaluated once.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "language/jet_list.hpp"

namespace gravelox::ast {

enum class object_type : std::int32_t {
  value,
  variable,
  transformation,
  expression,
  kernel,
  function
};

/// What a node gives: a vector or one number.
enum class variable_kind : std::int32_t { vector, scalar };

/// "value", "variable", "transformation", "expression", "kernel" or "function"; "invald" otherwise.
const char* name_of(object_type type);

/// "scalar" or "vector".
const char* name_of(variable_kind kind);

/// A result. The number is meant for scalars and the elements for vectors; the other form may hold
/// what it held before.
template <number T>
struct cell {
  variable_kind kind = variable_kind::scalar;
  T scalar = T(0.0);
  JetList<T> vector;
};

namespace detail {

template <number T>
class planner;

/// Where the plan of an evaluation, known by the number of its scope, keeps a node's result.
struct memo {
  std::uint64_t scope = 0;
  std::uint32_t cell = 0;
};

}  // namespace detail

template <number T>
class Expression {
 public:
  Expression(const Expression&) = delete;
  Expression& operator=(const Expression&) = delete;

  /// Not recursive: operands that nothing else holds are destroyed one after another.
  virtual ~Expression();

  object_type type() const { return type_; }

  /// What the node gave last, or will give. It changes when a node is evaluated in the other form.
  variable_kind kind() const { return result_.kind; }

  /// The current results as they are: zero, and a vector of one zero, before there is any.
  const T& scalar() const { return result_.scalar; }
  const JetList<T>& vec() const { return result_.vector; }

  /// Writes type, kind and value to the standard output. After a scalar the line ends; the elements
  /// of a vector stand in brackets, each with ", " after it, and the line stays open. Derivatives
  /// are left out.
  void print() const;

  /// The scalar result as the node stands, with x as input, or with the scalar of e as input. Only
  /// variables, and functions whose body is one, have a use for an input. The reference holds until
  /// the next evaluation.
  ///
  /// Throws std::runtime_error "invalid eval call!!!" for a value of the other kind, "invalid
  /// call!!!\n" for a kernel, std::bad_function_call for an operation without a scalar form, and
  /// for a tree of more than 4,194,304 steps.
  virtual const T& eval() = 0;
  virtual const T& eval(const T& x) = 0;
  const T& eval(Expression& e);

  /// The same for vectors.
  virtual const JetList<T>& eval_vector() = 0;
  virtual const JetList<T>& eval_vector(const JetList<T>& x) = 0;
  const JetList<T>& eval_vector(Expression& e);

 protected:
  using children = std::vector<std::shared_ptr<Expression>>;

  Expression(object_type type, variable_kind kind, children operands = {})
      : operands_(std::move(operands)), result_{kind, T(0.0), JetList<T>(1)}, type_(type) {}

  /// Plans and runs an evaluation of the tree below, in place.
  void evaluate(variable_kind form);

  /// Opens the node in a plan: its result is announced, or its operands and then its closing are.
  /// Closing comes with the operands' results, in as many stages as the node asks for.
  virtual void open(detail::planner<T>& plan, variable_kind form) = 0;
  virtual void close(detail::planner<T>& plan, variable_kind form, int stage);

  children operands_;
  cell<T> result_;

 private:
  friend class detail::planner<T>;

  object_type type_;
  detail::memo memos_[2];
};

template <number T>
using ExpressionPtr = std::shared_ptr<Expression<T>>;

/// A constant. Evaluated in the other kind it throws std::runtime_error "invalid eval call!!!".
template <number T>
class Value final : public Expression<T> {
 public:
  explicit Value(const T& scalar);
  explicit Value(JetList<T> vector);

  using Expression<T>::eval;
  using Expression<T>::eval_vector;
  const T& eval() override;
  const T& eval(const T& x) override;
  const JetList<T>& eval_vector() override;
  const JetList<T>& eval_vector(const JetList<T>& x) override;

 private:
  void check_kind(variable_kind form) const;
  void open(detail::planner<T>& plan, variable_kind form) override;
};

/// The one way in which values enter a tree. All trees with the variable see its value.
template <number T>
class Variable final : public Expression<T> {
 public:
  Variable(std::string name, const T& scalar);
  Variable(std::string name, JetList<T> vector);

  /// With the value that the expression has now, in the expression's kind. Throws
  /// std::runtime_error "Invalid argument!!!" without an expression.
  Variable(std::string name, const ExpressionPtr<T>& start);

  const std::string& name() const { return name_; }

  /// Inputs are stored, and set the kind. Without one the stored value comes back, in either form.
  using Expression<T>::eval;
  using Expression<T>::eval_vector;
  const T& eval() override;
  const T& eval(const T& x) override;
  const JetList<T>& eval_vector() override;
  const JetList<T>& eval_vector(const JetList<T>& x) override;

  /// Changes the kind alone.
  void set_kind(variable_kind kind) { this->result_.kind = kind; }

  /// Stores a number, by the kind: as the scalar, or in element 0 of the vector.
  void bind(const T& x);

  /// Stores a vector, by the kind: its element 0 as the scalar, or all of it as the vector. Throws
  /// std::out_of_range "invalid vector subscript" for an empty one where a scalar is wanted.
  void bind(const JetList<T>& x);

 private:
  void open(detail::planner<T>& plan, variable_kind form) override;

  std::string name_;
};

template <number T>
using VariablePtr = std::shared_ptr<Variable<T>>;

/// A node that works its result out from operands; it has no use for inputs. It has one form:
/// asked for the other it throws std::bad_function_call.
template <number T>
class Transformation : public Expression<T> {
 public:
  using Expression<T>::eval;
  using Expression<T>::eval_vector;
  const T& eval() override;
  const T& eval(const T& x) override;
  const JetList<T>& eval_vector() override;
  const JetList<T>& eval_vector(const JetList<T>& x) override;

 protected:
  Transformation(variable_kind form, typename Expression<T>::children operands)
      : Expression<T>(object_type::transformation, form, std::move(operands)), form_(form) {}

  void check_form(variable_kind form) const;

 private:
  variable_kind form_;
};

template <number T>
using TransformationPtr = std::shared_ptr<Transformation<T>>;

}  // namespace gravelox::ast
