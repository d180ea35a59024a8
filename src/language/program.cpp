// SPDX-License-Identifier: MIT
#include <algorithm>
#include <atomic>
#include <stdexcept>

#include "common/text.hpp"
#include "language/program_detail.hpp"

namespace gravelox::ast::detail {

namespace {

/// Bounds the memory of a plan: functions of functions may double at each level.
constexpr std::size_t most_steps = std::size_t{1} << 22;

/// Scopes of all plans are told apart, as nodes keep the number of the last one that they were in.
std::uint64_t new_scope_id() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

constexpr std::size_t slot_of(variable_kind form) { return form == variable_kind::scalar ? 1 : 0; }

}  // namespace

template <number T>
program_text<T> planner<T>::plan(Expression<T>& root, variable_kind form) {
  scopes_.assign(1, {new_scope_id(), {}});
  visit(root, form);
  while (!tasks_.empty()) {
    const task next = tasks_.back();
    tasks_.pop_back();
    if (next.stage < 0) {
      open(*next.node, next.form);
    } else {
      next.node->close(*this, next.form, next.stage);
    }
  }
  text_.result = take_operand();
  return std::move(text_);
}

/// A result that the scope has already is not worked out again.
template <number T>
void planner<T>::open(Expression<T>& node, variable_kind form) {
  const memo& known = node.memos_[slot_of(form)];
  const bool is_leaf = node.type() == object_type::value || node.type() == object_type::variable;
  if (!is_leaf && known.scope == scopes_.back().id) {
    operands_.push_back(known.cell);
  } else {
    node.open(*this, form);
  }
}

template <number T>
bool planner<T>::reads(const Expression<T>& leaf, variable_kind form) const {
  return leaf.memos_[slot_of(form)].scope == scopes_.front().id;
}

template <number T>
std::optional<std::uint32_t> planner<T>::cell_of_leaf(const Expression<T>& leaf) const {
  for (const memo& known : leaf.memos_) {
    if (known.scope == scopes_.front().id) return known.cell;
  }
  return std::nullopt;
}

template <number T>
void planner<T>::visit(Expression<T>& node, variable_kind form) {
  constexpr int opening = -1;
  tasks_.push_back({&node, form, opening});
}

template <number T>
void planner<T>::then_close(Expression<T>& node, variable_kind form, int stage) {
  tasks_.push_back({&node, form, stage});
}

template <number T>
void planner<T>::announce_leaf(Expression<T>& leaf, variable_kind form) {
  operands_.push_back(leaf_cell(leaf, form));
}

template <number T>
void planner<T>::announce_variable(Variable<T>& variable, variable_kind form) {
  for (std::size_t i = scopes_.size(); i-- > 1;) {
    for (const binding& bound : scopes_[i].bindings) {
      if (bound.argument == &variable && bound.value.kind == form) {
        operands_.push_back(bound.value.cell);
        return;
      }
    }
  }
  announce_leaf(variable, form);
}

template <number T>
std::uint32_t planner<T>::take_operand() {
  const cell_number last = operands_.back();
  operands_.pop_back();
  return last;
}

template <number T>
void planner<T>::emit_result(Expression<T>& node, variable_kind form, instruction<T> step) {
  const bool is_outermost = scopes_.size() == 1;
  step.result = new_cell(is_outermost ? &node : nullptr);
  text_.steps.push_back(step);
  node.memos_[slot_of(form)] = {scopes_.back().id, step.result};
  operands_.push_back(step.result);
}

template <number T>
std::uint32_t planner<T>::emit(instruction<T> step) {
  step.result = new_cell(nullptr);
  text_.steps.push_back(step);
  return step.result;
}

template <number T>
void planner<T>::enter_scope(std::vector<binding> bindings) {
  for (std::size_t i = bindings.size(); i-- > 0;) {
    text_.bindings[bindings[i].argument] = lasting(bindings[i].value);
  }
  scopes_.push_back({new_scope_id(), std::move(bindings)});
}

/// A value that is there when the evaluation ends. A variable's own may be replaced by then.
template <number T>
bound_value planner<T>::lasting(const bound_value& value) {
  const Expression<T>* owner = text_.owners[value.cell];
  if (owner == nullptr || owner->type() != object_type::variable) return value;
  return {value.kind, emit({.run = copy_of<T>(value.kind), .left = value.cell})};
}

template <number T>
std::uint32_t planner<T>::new_cell(Expression<T>* owner) {
  if (text_.owners.size() == most_steps) {
    throw std::runtime_error(text_of("expression: more than ", most_steps, " steps"));
  }
  text_.owners.push_back(owner);
  return static_cast<cell_number>(text_.owners.size() - 1);
}

/// Leaves have one cell in all scopes and for both forms.
template <number T>
std::uint32_t planner<T>::leaf_cell(Expression<T>& leaf, variable_kind form) {
  const std::optional<cell_number> known = cell_of_leaf(leaf);
  const cell_number number = known ? *known : new_cell(&leaf);
  leaf.memos_[slot_of(form)] = {scopes_.front().id, number};
  return number;
}

template <number T>
program<T>::program(Expression<T>& root, variable_kind form) {
  program_text<T> text = planner<T>().plan(root, form);
  steps_ = std::move(text.steps);
  bindings_ = std::move(text.bindings);
  cells_.reserve(text.owners.size() + bindings_.size());
  for (Expression<T>* owner : text.owners) {
    cells_.push_back(owner != nullptr ? &planner<T>::cell_of(*owner) : &own_cells_.emplace_back());
  }
  for (const auto& [argument, value] : bindings_) {
    const auto result = static_cast<std::uint32_t>(cells_.size());
    steps_.push_back({.run = copy_of<T>(value.kind), .result = result, .left = value.cell});
    cells_.push_back(&planner<T>::cell_of(*argument));
  }
}

template <number T>
bool program<T>::is_current() const {
  return std::all_of(bindings_.begin(), bindings_.end(), [](const auto& binding) {
    return binding.first->kind() == binding.second.kind;
  });
}

template <number T>
void program<T>::run() {
  for (const instruction<T>& step : steps_) step.run(step, cells_.data());
}

namespace {

template <number T>
void copy_scalar(const instruction<T>& step, cell<T>* const* cells) {
  cell<T>& result = *cells[step.result];
  result.scalar = cells[step.left]->scalar;
  result.kind = variable_kind::scalar;
}

template <number T>
void copy_vector(const instruction<T>& step, cell<T>* const* cells) {
  cell<T>& result = *cells[step.result];
  result.vector = cells[step.left]->vector;
  result.kind = variable_kind::vector;
}

}  // namespace

template <number T>
typename instruction<T>::operation copy_of(variable_kind form) {
  return form == variable_kind::scalar ? copy_scalar<T> : copy_vector<T>;
}

template <number T>
void take_first(const instruction<T>& step, cell<T>* const* cells) {
  cells[step.result]->scalar = cells[step.left]->vector.at(0);
}

template <number T>
void replace_first(const instruction<T>& step, cell<T>* const* cells) {
  cell<T>& result = *cells[step.result];
  result.vector = cells[step.left]->vector;
  result.kind = variable_kind::vector;
  set_first(result.vector, cells[step.right]->scalar);
}

#define GRAVELOX_INSTANTIATE(T)                                          \
  template class planner<T>;                                             \
  template class program<T>;                                             \
  template typename instruction<T>::operation copy_of<T>(variable_kind); \
  template void take_first(const instruction<T>&, cell<T>* const*);      \
  template void replace_first(const instruction<T>&, cell<T>* const*)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox::ast::detail
