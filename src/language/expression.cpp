// SPDX-License-Identifier: MIT
#include "language/expression.hpp"

#include <functional>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "common/text.hpp"
#include "language/program_detail.hpp"

namespace gravelox::ast {

const char* name_of(object_type type) {
  switch (type) {
    case object_type::value:
      return "value";
    case object_type::variable:
      return "variable";
    case object_type::transformation:
      return "transformation";
    case object_type::expression:
      return "expression";
    case object_type::kernel:
      return "kernel";
    case object_type::function:
      return "function";
  }
  return "invald";
}

const char* name_of(variable_kind kind) {
  return kind == variable_kind::scalar ? "scalar" : "vector";
}

template <number T>
Expression<T>::~Expression() {
  children pending = std::move(operands_);
  while (!pending.empty()) {
    const std::shared_ptr<Expression> node = std::move(pending.back());
    pending.pop_back();
    if (!node || node.use_count() > 1) continue;
    for (std::shared_ptr<Expression>& operand : node->operands_) {
      pending.push_back(std::move(operand));
    }
    node->operands_.clear();
  }
}

template <number T>
void Expression<T>::print() const {
  std::string text =
      text_of("type = ", name_of(type()), " variable_type = ", name_of(kind()), " value = ");
  if (kind() == variable_kind::scalar) {
    text += text_of(value_of(scalar()), "\n");
  } else {
    text += "[";
    for (const T& element : result_.vector) text += text_of(value_of(element), ", ");
    text += "]";
  }
  std::cout << text << std::flush;
}

template <number T>
const T& Expression<T>::eval(Expression& e) {
  const T input = e.eval();
  return eval(input);
}

template <number T>
const JetList<T>& Expression<T>::eval_vector(Expression& e) {
  const JetList<T> input = e.eval_vector();
  return eval_vector(input);
}

template <number T>
void Expression<T>::evaluate(variable_kind form) {
  detail::program<T>(*this, form).run();
}

template <number T>
void Expression<T>::close(detail::planner<T>& /*plan*/, variable_kind /*form*/, int /*stage*/) {}

template <number T>
Value<T>::Value(const T& scalar) : Expression<T>(object_type::value, variable_kind::scalar) {
  this->result_.scalar = scalar;
}

template <number T>
Value<T>::Value(JetList<T> vector) : Expression<T>(object_type::value, variable_kind::vector) {
  this->result_.vector = std::move(vector);
}

template <number T>
void Value<T>::check_kind(variable_kind form) const {
  if (this->kind() != form) throw std::runtime_error("invalid eval call!!!");
}

template <number T>
const T& Value<T>::eval() {
  check_kind(variable_kind::scalar);
  return this->result_.scalar;
}

template <number T>
const T& Value<T>::eval(const T& /*x*/) {
  return eval();
}

template <number T>
const JetList<T>& Value<T>::eval_vector() {
  check_kind(variable_kind::vector);
  return this->result_.vector;
}

template <number T>
const JetList<T>& Value<T>::eval_vector(const JetList<T>& /*x*/) {
  return eval_vector();
}

template <number T>
void Value<T>::open(detail::planner<T>& plan, variable_kind form) {
  check_kind(form);
  plan.announce_leaf(*this, form);
}

template <number T>
Variable<T>::Variable(std::string name, const T& scalar)
    : Expression<T>(object_type::variable, variable_kind::scalar), name_(std::move(name)) {
  this->result_.scalar = scalar;
}

template <number T>
Variable<T>::Variable(std::string name, JetList<T> vector)
    : Expression<T>(object_type::variable, variable_kind::vector), name_(std::move(name)) {
  this->result_.vector = std::move(vector);
}

template <number T>
Variable<T>::Variable(std::string name, const ExpressionPtr<T>& start)
    : Expression<T>(object_type::variable, variable_kind::scalar), name_(std::move(name)) {
  if (!start) throw std::runtime_error("Invalid argument!!!");
  if (start->kind() == variable_kind::scalar) {
    eval(start->eval());
  } else {
    eval_vector(start->eval_vector());
  }
}

template <number T>
const T& Variable<T>::eval() {
  return this->result_.scalar;
}

template <number T>
const T& Variable<T>::eval(const T& x) {
  this->result_.scalar = x;
  set_kind(variable_kind::scalar);
  return this->result_.scalar;
}

template <number T>
const JetList<T>& Variable<T>::eval_vector() {
  return this->result_.vector;
}

template <number T>
const JetList<T>& Variable<T>::eval_vector(const JetList<T>& x) {
  this->result_.vector = x;
  set_kind(variable_kind::vector);
  return this->result_.vector;
}

template <number T>
void Variable<T>::bind(const T& x) {
  if (this->kind() == variable_kind::scalar) {
    this->result_.scalar = x;
  } else {
    detail::set_first(this->result_.vector, x);
  }
}

template <number T>
void Variable<T>::bind(const JetList<T>& x) {
  if (this->kind() == variable_kind::scalar) {
    this->result_.scalar = x.at(0);
  } else {
    this->result_.vector = x;
  }
}

template <number T>
void Variable<T>::open(detail::planner<T>& plan, variable_kind form) {
  plan.announce_variable(*this, form);
}

template <number T>
const T& Transformation<T>::eval() {
  this->evaluate(variable_kind::scalar);
  return this->result_.scalar;
}

template <number T>
const T& Transformation<T>::eval(const T& /*x*/) {
  return eval();
}

template <number T>
const JetList<T>& Transformation<T>::eval_vector() {
  this->evaluate(variable_kind::vector);
  return this->result_.vector;
}

template <number T>
const JetList<T>& Transformation<T>::eval_vector(const JetList<T>& /*x*/) {
  return eval_vector();
}

template <number T>
void Transformation<T>::check_form(variable_kind form) const {
  if (form != form_) throw std::bad_function_call();
}

template class Expression<double>;
template class Expression<jet>;
template class Value<double>;
template class Value<jet>;
template class Variable<double>;
template class Variable<jet>;
template class Transformation<double>;
template class Transformation<jet>;

}  // namespace gravelox::ast
