// SPDX-License-Identifier: MIT
#include <algorithm>
#include <deque>

#include "common/checks.hpp"
#include "common/text.hpp"
#include "language/bound_program_detail.hpp"

namespace gravelox::ast::detail {

namespace {

/// The cells of one thread's runs; they only grow in number.
template <number T>
class frame {
 public:
  cell<T>* const* of_size(std::size_t n) {
    while (cells_.size() < n) addresses_.push_back(&cells_.emplace_back());
    return addresses_.data();
  }

 private:
  std::deque<cell<T>> cells_;
  std::vector<cell<T>*> addresses_;
};

/// An argument that the body does not read.
constexpr std::uint32_t unread = ~std::uint32_t{0};

}  // namespace

void check_n_inputs(std::size_t n_inputs, std::size_t n_args) {
  if (n_inputs <= n_args) return;
  refuse("args", text_of("at most ", n_args, " values, one per argument"), text_of(n_inputs));
}

template <number T>
T scalar_of(const cell<T>& result) {
  return result.kind == variable_kind::scalar ? result.scalar : norm(result.vector);
}

template <number T>
bound_program<T>::bound_program(Function<T>& function) {
  planner<T> plan;
  program_text<T> text = plan.plan(function, function.body().kind());
  steps_ = std::move(text.steps);
  n_cells_ = text.owners.size();
  result_ = text.result;
  for (std::size_t i = 0; i < n_cells_; ++i) {
    const Expression<T>* owner = text.owners[i];
    if (owner != nullptr) store_leaf(plan, *owner, static_cast<std::uint32_t>(i));
  }
  args_.reserve(function.args().size());
  for (const VariablePtr<T>& arg : function.args()) {
    args_.push_back(
        {plan.cell_of_leaf(*arg).value_or(unread), plan.reads(*arg, variable_kind::vector)});
  }
}

template <number T>
void bound_program<T>::store_leaf(const planner<T>& plan, const Expression<T>& leaf,
                                  std::uint32_t number) {
  if (leaf.type() != object_type::value && leaf.type() != object_type::variable) return;
  const cell<T>& own = planner<T>::cell_of(leaf);
  if (plan.reads(leaf, variable_kind::scalar)) scalars_.push_back({number, value_of(own.scalar)});
  if (plan.reads(leaf, variable_kind::vector)) vectors_.push_back({number, values_of(own.vector)});
}

template <number T>
template <number U>
const cell<T>& bound_program<T>::run(std::span<const U> inputs) const {
  cell<T>* const* cells = start();
  for (std::size_t i = 0; i < std::min(inputs.size(), args_.size()); ++i) {
    if (args_[i].cell == unread) continue;
    cell<T>& bound = *cells[args_[i].cell];
    bound.scalar = T(inputs[i]);
    if (args_[i].is_vector) set_first(bound.vector, T(inputs[i]));
  }
  return finish(cells);
}

template <number T>
template <number U>
const cell<T>& bound_program<T>::run(U const* const* vectors,
                                     std::span<const std::size_t> sizes) const {
  cell<T>* const* cells = start();
  for (std::size_t i = 0; i < std::min(sizes.size(), args_.size()); ++i) {
    if (args_[i].cell == unread) continue;
    cell<T>& bound = *cells[args_[i].cell];
    bound.scalar = T(vectors[i][0]);
    if (!args_[i].is_vector) continue;
    bound.vector.resize(sizes[i]);
    for (std::size_t k = 0; k < sizes[i]; ++k) bound.vector[k] = T(vectors[i][k]);
  }
  return finish(cells);
}

template <number T>
cell<T>* const* bound_program<T>::start() const {
  static thread_local frame<T> memory;
  cell<T>* const* cells = memory.of_size(n_cells_);
  for (const scalar_leaf& leaf : scalars_) cells[leaf.cell]->scalar = T(leaf.value);
  for (const vector_leaf& leaf : vectors_) {
    JetList<T>& vector = cells[leaf.cell]->vector;
    vector.resize(leaf.values.size());
    for (std::size_t i = 0; i < leaf.values.size(); ++i) vector[i] = T(leaf.values[i]);
  }
  return cells;
}

template <number T>
const cell<T>& bound_program<T>::finish(cell<T>* const* cells) const {
  for (const instruction<T>& step : steps_) step.run(step, cells);
  return *cells[result_];
}

template class bound_program<double>;
template class bound_program<jet>;
template double scalar_of(const cell<double>&);
template jet scalar_of(const cell<jet>&);
template const cell<double>& bound_program<double>::run(std::span<const double>) const;
template const cell<jet>& bound_program<jet>::run(std::span<const double>) const;
template const cell<jet>& bound_program<jet>::run(std::span<const jet>) const;
template const cell<jet>& bound_program<jet>::run(double const* const*,
                                                  std::span<const std::size_t>) const;
template const cell<jet>& bound_program<jet>::run(jet const* const*,
                                                  std::span<const std::size_t>) const;

}  // namespace gravelox::ast::detail
