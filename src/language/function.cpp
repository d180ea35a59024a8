// SPDX-License-Identifier: MIT
#include "language/function.hpp"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "common/checks.hpp"
#include "common/text.hpp"
#include "language/bound_program_detail.hpp"
#include "language/program_detail.hpp"

namespace gravelox::ast {

namespace detail {

/// The plans of a compiled function, made when they are first needed.
template <number T>
struct plans {
  std::unique_ptr<program<T>> of_scalar;
  std::unique_ptr<program<T>> of_vector;
};

}  // namespace detail

namespace {

[[noreturn]] void refuse_argument() { throw std::runtime_error("Invalid argument!!!"); }

template <number T>
bool can_be_evaluated(const ExpressionPtr<T>& node) {
  return node && node->type() != object_type::kernel;
}

/// A body with expressions in place of its arguments.
template <number T>
class Composition final : public Transformation<T> {
 public:
  /// The listed expressions stand among the operands, and the function after them.
  Composition(FunctionPtr<T> function, std::vector<ExpressionPtr<T>> expressions)
      : Transformation<T>(function->body().kind(), std::move(expressions)), function_(*function) {
    for (const ExpressionPtr<T>& expression : this->operands_) kinds_.push_back(expression->kind());
    this->operands_.push_back(std::move(function));
  }

 private:
  using binding = typename detail::planner<T>::binding;

  static constexpr int bind_arguments = 0;
  static constexpr int return_result = 1;

  void open(detail::planner<T>& plan, variable_kind form) override {
    this->check_form(form);
    plan.then_close(*this, form, bind_arguments);
    for (std::size_t i = kinds_.size(); i-- > 0;) plan.visit(*this->operands_[i], kinds_[i]);
  }

  void close(detail::planner<T>& plan, variable_kind form, int stage) override {
    if (stage == bind_arguments) {
      plan.enter_scope(bindings(plan));
      plan.then_close(*this, form, return_result);
      plan.visit(function_.body(), form);
    } else {
      plan.leave_scope();
      plan.emit_result(*this, form, {.run = detail::copy_of<T>(form), .left = plan.take_operand()});
    }
  }

  std::vector<binding> bindings(detail::planner<T>& plan) const {
    std::vector<binding> result;
    for (std::size_t i = kinds_.size(); i-- > 0;) {
      Variable<T>& argument = *function_.args()[i];
      result.push_back({&argument, bound(plan, argument, kinds_[i], plan.take_operand())});
    }
    // Of an argument that is listed twice the later place counts, as when they are stored in turn.
    return result;
  }

  static detail::bound_value bound(detail::planner<T>& plan, Variable<T>& argument,
                                   variable_kind kind, std::uint32_t cell) {
    if (argument.kind() == kind) return {kind, cell};
    if (argument.kind() == variable_kind::scalar) {
      return {variable_kind::scalar, plan.emit({.run = detail::take_first<T>, .left = cell})};
    }
    const std::uint32_t own = plan.leaf_cell(argument, variable_kind::vector);
    return {variable_kind::vector,
            plan.emit({.run = detail::replace_first<T>, .left = own, .right = cell})};
  }

  Function<T>& function_;
  std::vector<variable_kind> kinds_;
};

}  // namespace

template <number T>
Function<T>::Function(std::vector<VariablePtr<T>> args, ExpressionPtr<T> body)
    : Expression<T>(object_type::function, body ? body->kind() : variable_kind::scalar, {body}),
      args_(std::move(args)) {
  if (!can_be_evaluated(body)) refuse_argument();
  if (std::find(args_.begin(), args_.end(), nullptr) != args_.end()) refuse_argument();
}

template <number T>
const T& Function<T>::eval() {
  this->evaluate(variable_kind::scalar);
  return this->result_.scalar;
}

template <number T>
const T& Function<T>::eval(const T& x) {
  Expression<T>& innermost = innermost_body();
  if (innermost.type() == object_type::variable) innermost.eval(x);
  return eval();
}

template <number T>
const JetList<T>& Function<T>::eval_vector() {
  this->evaluate(variable_kind::vector);
  return this->result_.vector;
}

template <number T>
const JetList<T>& Function<T>::eval_vector(const JetList<T>& x) {
  Expression<T>& innermost = innermost_body();
  if (innermost.type() == object_type::variable) innermost.eval_vector(x);
  return eval_vector();
}

template <number T>
Expression<T>& Function<T>::innermost_body() const {
  Expression<T>* inner = &body();
  while (inner->type() == object_type::function) inner = &static_cast<Function*>(inner)->body();
  return *inner;
}

template <number T>
void Function<T>::open(detail::planner<T>& plan, variable_kind form) {
  plan.then_close(*this, form);
  plan.visit(body(), form);
}

template <number T>
void Function<T>::close(detail::planner<T>& plan, variable_kind form, int /*stage*/) {
  plan.emit_result(*this, form, {.run = detail::copy_of<T>(form), .left = plan.take_operand()});
}

template <number T>
TransformationPtr<T> compose(const FunctionPtr<T>& function,
                             std::vector<ExpressionPtr<T>> expressions) {
  if (!function) refuse_argument();
  for (const ExpressionPtr<T>& expression : expressions) {
    if (!can_be_evaluated(expression)) refuse_argument();
  }
  detail::check_n_inputs(expressions.size(), function->args().size());
  return std::make_shared<Composition<T>>(function, std::move(expressions));
}

template <number T>
CompiledFunction<T>::CompiledFunction(FunctionPtr<T> function)
    : function_(std::move(function)), plans_(std::make_shared<detail::plans<T>>()) {
  if (!function_) refuse_argument();
  args_ = function_->args();
}

template <number T>
void CompiledFunction<T>::bind(const JetList<T>& x) const {
  detail::check_n_inputs(x.size(), args_.size());
  for (std::size_t i = 0; i < x.size(); ++i) args_[i]->bind(x[i]);
}

template <number T>
void CompiledFunction<T>::bind(const std::vector<JetList<T>>& rows) const {
  detail::check_n_inputs(rows.size(), args_.size());
  for (std::size_t i = 0; i < rows.size(); ++i) args_[i]->bind(rows[i]);
}

template <number T>
T CompiledFunction<T>::scalar_result() const {
  const variable_kind form = function_->body().kind();
  run(form);
  return form == variable_kind::scalar ? function_->scalar() : norm(function_->vec());
}

template <number T>
JetList<T> CompiledFunction<T>::vector_result() const {
  const variable_kind form = function_->body().kind();
  run(form);
  if (form == variable_kind::scalar) return JetList<T>(1, function_->scalar());
  return function_->vec();
}

template <number T>
void CompiledFunction<T>::run(variable_kind form) const {
  auto& plan = form == variable_kind::scalar ? plans_->of_scalar : plans_->of_vector;
  if (!plan || !plan->is_current()) {
    plan = std::make_unique<detail::program<T>>(*function_, form);
  }
  plan->run();
}

template <number T>
T ScalarFunction<T>::operator()(const JetList<T>& args) const {
  this->bind(args);
  return this->scalar_result();
}

template <number T>
JetList<T> TransFunction<T>::operator()(const std::vector<JetList<T>>& args) const {
  this->bind(args);
  return this->vector_result();
}

template <number T>
T KernelFunction<T>::operator()(const std::vector<JetList<T>>& args) const {
  this->bind(args);
  return this->scalar_result();
}

namespace {

[[noreturn]] void refuse_call() { throw std::runtime_error("invalid call!!!\n"); }

}  // namespace

template <number T>
Kernel<T>::Kernel(KernelFunction<T> function)
    : Expression<T>(object_type::kernel, variable_kind::scalar), function_(std::move(function)) {}

template <number T>
const T& Kernel<T>::eval() {
  refuse_call();
}

template <number T>
const T& Kernel<T>::eval(const T& /*x*/) {
  refuse_call();
}

template <number T>
const JetList<T>& Kernel<T>::eval_vector() {
  refuse_call();
}

template <number T>
const JetList<T>& Kernel<T>::eval_vector(const JetList<T>& /*x*/) {
  refuse_call();
}

template <number T>
void Kernel<T>::open(detail::planner<T>& /*plan*/, variable_kind /*form*/) {
  refuse_call();
}

#define GRAVELOX_INSTANTIATE(T)       \
  template class Function<T>;         \
  template class CompiledFunction<T>; \
  template class ScalarFunction<T>;   \
  template class TransFunction<T>;    \
  template class KernelFunction<T>;   \
  template class Kernel<T>

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

template TransformationPtr<double> compose(const FunctionPtr<double>&,
                                           std::vector<ExpressionPtr<double>>);
template TransformationPtr<jet> compose(const FunctionPtr<jet>&, std::vector<ExpressionPtr<jet>>);

}  // namespace gravelox::ast
