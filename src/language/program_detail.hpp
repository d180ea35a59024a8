// SPDX-License-Identifier: MIT
#pragma once

// Evaluation of expression trees: a tree is planned once, as a list of steps in the order of
// evaluation, and the list is run, without recursion and without allocation when sizes repeat.
// Private to the sources of the language.
//
// A composition is a substitution: in the body of its function the arguments stand for the listed
// expressions. So a plan has scopes, and the results of one node in two scopes are two cells.
// Outside of such bodies variables have the values of the start of the evaluation, in whatever
// order operands are worked out: what arguments are bound to is stored in them when it ends.

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "language/expression.hpp"

namespace gravelox::ast::detail {

/// One step: where its result goes and where its operands are, as numbers of cells.
template <number T>
struct instruction {
  using operation = void (*)(const instruction&, cell<T>* const* cells);

  operation run;
  T (*function)(const T&) = nullptr;
  std::uint32_t result = 0;
  std::uint32_t left = 0;
  std::uint32_t right = 0;
};

/// Overwrites element 0; an empty vector gets it.
template <number T>
void set_first(JetList<T>& vector, const T& x) {
  if (vector.empty()) vector.resize(1);
  vector[0] = x;
}

/// The value of an argument: its kind, which is the argument's own, and its cell.
struct bound_value {
  variable_kind kind;
  std::uint32_t cell;
};

/// What planning leaves: the steps, the nodes that own cells (null for a cell of a plan's own), the
/// cell of the result, and what compositions bind their arguments to at last.
template <number T>
struct program_text {
  std::vector<instruction<T>> steps;
  std::vector<Expression<T>*> owners;
  std::uint32_t result = 0;
  std::map<Variable<T>*, bound_value> bindings;
};

/// Plans one evaluation. Nodes take part through open and close; the tree is walked with a stack of
/// its own, and operands' results are handed from step to step on another.
template <number T>
class planner {
 public:
  using cell_number = std::uint32_t;

  /// An argument in the body of a function, and what it stands for there.
  struct binding {
    Variable<T>* argument;
    bound_value value;
  };

  /// The plan of a tree in a form. Throws as evaluations do.
  program_text<T> plan(Expression<T>& root, variable_kind form);

  /// After planning: whether the tree reads that form of a leaf, and the leaf's cell if it reads
  /// any.
  bool reads(const Expression<T>& leaf, variable_kind form) const;
  std::optional<cell_number> cell_of_leaf(const Expression<T>& leaf) const;

  /// Where a node keeps its result.
  static cell<T>& cell_of(Expression<T>& node) { return node.result_; }
  static const cell<T>& cell_of(const Expression<T>& node) { return node.result_; }

  /// Puts work before all that is still to do: what is asked for last comes first.
  void visit(Expression<T>& node, variable_kind form);
  void then_close(Expression<T>& node, variable_kind form, int stage = 0);

  /// The result of a leaf: in its own cell, or for a variable where its scope says.
  void announce_leaf(Expression<T>& leaf, variable_kind form);
  void announce_variable(Variable<T>& variable, variable_kind form);

  /// The cell of the last operand that has no taker yet.
  cell_number take_operand();

  /// Adds a step whose result is the node's, or one for the plan's own use.
  void emit_result(Expression<T>& node, variable_kind form, instruction<T> step);
  cell_number emit(instruction<T> step);

  /// The cell of a leaf's own value.
  cell_number leaf_cell(Expression<T>& leaf, variable_kind form);

  /// The body of a function. Of an argument that is bound twice the first binding counts.
  void enter_scope(std::vector<binding> bindings);
  void leave_scope() { scopes_.pop_back(); }

 private:
  struct task {
    Expression<T>* node;
    variable_kind form;
    int stage;
  };
  struct scope {
    std::uint64_t id;
    std::vector<binding> bindings;
  };

  cell_number new_cell(Expression<T>* owner);
  bound_value lasting(const bound_value& value);
  void open(Expression<T>& node, variable_kind form);

  std::vector<task> tasks_;
  std::vector<cell_number> operands_;
  std::vector<scope> scopes_;
  program_text<T> text_;
};

/// A plan over the nodes' own results, which a run fills.
template <number T>
class program {
 public:
  program(Expression<T>& root, variable_kind form);

  /// Whether the arguments of compositions have the kinds that they were planned with.
  bool is_current() const;

  void run();

 private:
  std::vector<instruction<T>> steps_;
  std::deque<cell<T>> own_cells_;
  std::vector<cell<T>*> cells_;
  std::map<Variable<T>*, bound_value> bindings_;
};

/// The step that copies the value of a cell.
template <number T>
typename instruction<T>::operation copy_of(variable_kind form);

/// Steps for compositions: element 0 of a cell, and the vector of the left cell with the number of
/// the right one in its place 0.
template <number T>
void take_first(const instruction<T>& step, cell<T>* const* cells);
template <number T>
void replace_first(const instruction<T>& step, cell<T>* const* cells);

}  // namespace gravelox::ast::detail
