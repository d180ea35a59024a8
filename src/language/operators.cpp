// SPDX-License-Identifier: MIT
#include "language/operators.hpp"

#include <functional>
#include <stdexcept>
#include <utility>

#include "language/elementary.hpp"
#include "language/program_detail.hpp"

namespace gravelox::ast {

namespace {

using detail::instruction;

// The steps: a scalar's or a vector's form of an operation over two operands or one. An operation's
// kind is set when it is built.

template <number T, typename Operation>
void of_scalars(const instruction<T>& step, cell<T>* const* cells) {
  cells[step.result]->scalar = Operation()(cells[step.left]->scalar, cells[step.right]->scalar);
}

template <number T, typename Operation>
void of_vectors(const instruction<T>& step, cell<T>* const* cells) {
  const JetList<T>& lhs = cells[step.left]->vector;
  const JetList<T>& rhs = cells[step.right]->vector;
  check_same_length(lhs, rhs);
  JetList<T>& result = cells[step.result]->vector;
  result.resize(lhs.size());
  for (std::size_t i = 0; i < lhs.size(); ++i) result[i] = Operation()(lhs[i], rhs[i]);
}

template <number T>
void dot_of_vectors(const instruction<T>& step, cell<T>* const* cells) {
  const JetList<T>& lhs = cells[step.left]->vector;
  const JetList<T>& rhs = cells[step.right]->vector;
  check_same_length(lhs, rhs);
  cells[step.result]->scalar = dot(lhs, rhs);
}

template <number T>
void of_scalar(const instruction<T>& step, cell<T>* const* cells) {
  cells[step.result]->scalar = step.function(cells[step.left]->scalar);
}

template <number T, typename Function>
void of_elements(const JetList<T>& x, JetList<T>& result, const Function& function) {
  result.resize(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) result[i] = function(x[i]);
}

template <number T>
void of_vector(const instruction<T>& step, cell<T>* const* cells) {
  of_elements(cells[step.left]->vector, cells[step.result]->vector, step.function);
}

template <number T>
void power_of_scalar(const instruction<T>& step, cell<T>* const* cells) {
  cells[step.result]->scalar = power(cells[step.left]->scalar, value_of(cells[step.right]->scalar));
}

template <number T>
void power_of_vector(const instruction<T>& step, cell<T>* const* cells) {
  const double p = value_of(cells[step.right]->scalar);
  of_elements(cells[step.left]->vector, cells[step.result]->vector,
              [p](const T& x) { return power(x, p); });
}

/// One step over one operand or two.
template <number T>
class Operation final : public Transformation<T> {
 public:
  using operands = std::vector<ExpressionPtr<T>>;

  Operation(const instruction<T>& step, variable_kind form, operands nodes)
      : Transformation<T>(form, std::move(nodes)), step_(step) {
    for (std::size_t i = 0; i < this->operands_.size(); ++i) {
      forms_[i] = this->operands_[i]->kind();
    }
  }

 private:
  void open(detail::planner<T>& plan, variable_kind form) override {
    this->check_form(form);
    plan.then_close(*this, form);
    for (std::size_t i = this->operands_.size(); i-- > 0;) {
      plan.visit(*this->operands_[i], forms_[i]);
    }
  }

  void close(detail::planner<T>& plan, variable_kind form, int /*stage*/) override {
    instruction<T> step = step_;
    if (this->operands_.size() > 1) step.right = plan.take_operand();
    step.left = plan.take_operand();
    plan.emit_result(*this, form, step);
  }

  instruction<T> step_;
  variable_kind forms_[2] = {};  // in which the operands are wanted, whatever they turn into later
};

/// The steps of an arithmetic operation.
template <number T>
struct operation_steps {
  typename instruction<T>::operation of_scalars;
  typename instruction<T>::operation of_vectors;
  variable_kind of_vectors_kind;
};

template <number T>
operation_steps<T> steps_of(arithmetic operation) {
  switch (operation) {
    case arithmetic::sum:
      return {of_scalars<T, std::plus<>>, of_vectors<T, std::plus<>>, variable_kind::vector};
    case arithmetic::difference:
      return {of_scalars<T, std::minus<>>, of_vectors<T, std::minus<>>, variable_kind::vector};
    case arithmetic::product:
      return {of_scalars<T, std::multiplies<>>, dot_of_vectors<T>, variable_kind::scalar};
    case arithmetic::quotient:
      break;
  }
  return {of_scalars<T, std::divides<>>, of_vectors<T, std::divides<>>, variable_kind::vector};
}

template <number T>
void check_operand(const ExpressionPtr<T>& operand, const char* message) {
  if (!operand || operand->type() == object_type::kernel) throw std::runtime_error(message);
}

template <number T>
TransformationPtr<T> make_operation(const instruction<T>& step, variable_kind form,
                                    typename Operation<T>::operands nodes) {
  return std::make_shared<Operation<T>>(step, form, std::move(nodes));
}

}  // namespace

template <number T>
TransformationPtr<T> combine(arithmetic operation, const ExpressionPtr<T>& lhs,
                             const ExpressionPtr<T>& rhs) {
  check_operand(lhs, "Invalid lhs!!!");
  check_operand(rhs, "Invalid rhs!!!");
  if (lhs->kind() != rhs->kind()) throw std::runtime_error("Invalid variable types");
  const operation_steps<T> steps = steps_of<T>(operation);
  if (lhs->kind() == variable_kind::scalar) {
    return make_operation<T>({.run = steps.of_scalars}, variable_kind::scalar, {lhs, rhs});
  }
  return make_operation<T>({.run = steps.of_vectors}, steps.of_vectors_kind, {lhs, rhs});
}

template <number T>
TransformationPtr<T> apply(T (*function)(const T&), const ExpressionPtr<T>& x) {
  check_operand(x, "Invalid argument!!!");
  const auto run = x->kind() == variable_kind::scalar ? of_scalar<T> : of_vector<T>;
  return make_operation<T>({.run = run, .function = function}, x->kind(), {x});
}

template <number T>
TransformationPtr<T> pow(const ExpressionPtr<T>& x, double p) {
  check_operand(x, "Invalid argument!!!");
  const auto run = x->kind() == variable_kind::scalar ? power_of_scalar<T> : power_of_vector<T>;
  return make_operation<T>({.run = run}, x->kind(), {x, std::make_shared<Value<T>>(T(p))});
}

#define GRAVELOX_INSTANTIATE(T)                                                  \
  template TransformationPtr<T> combine(arithmetic, const ExpressionPtr<T>&,     \
                                        const ExpressionPtr<T>&);                \
  template TransformationPtr<T> apply(T (*)(const T&), const ExpressionPtr<T>&); \
  template TransformationPtr<T> pow(const ExpressionPtr<T>&, double)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox::ast
