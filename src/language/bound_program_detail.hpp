// SPDX-License-Identifier: MIT
#pragma once

// A function planned apart from its tree: what the solver evaluates. Private to the sources of the
// language.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "language/function.hpp"
#include "language/program_detail.hpp"

namespace gravelox::ast::detail {

/// Throws std::invalid_argument for more inputs than arguments.
void check_n_inputs(std::size_t n_inputs, std::size_t n_args);

/// The number of a scalar result, or the norm of a vector.
template <number T>
T scalar_of(const cell<T>& result);

/// The steps of a function, with the values that its leaves have when it is made (their derivatives
/// are left out: a run's come from its inputs). Runs work in the memory of their thread, so that
/// any number of threads may run programs of trees with variables in common. That memory, some 100
/// bytes a step, is as large as the thread's largest program took it, and lasts as long as the
/// thread.
template <number T>
class bound_program {
 public:
  explicit bound_program(Function<T>& function);

  /// Whether the body reads an argument as a vector.
  bool reads_vector(std::size_t arg) const { return arg < args_.size() && args_[arg].is_vector; }

  /// Whether a result depends on lengths of vectors, which a run checks.
  bool has_vectors() const { return !vectors_.empty(); }

  /// The result for one number for each of the first arguments, or for one vector each of these
  /// sizes, none of them empty. A number counts as element 0 where the body reads a vector, and
  /// element 0 of a vector where it reads a number. Doubles are inputs without derivatives. The
  /// result holds until the thread's next run.
  template <number U>
  const cell<T>& run(std::span<const U> inputs) const;
  template <number U>
  const cell<T>& run(U const* const* vectors, std::span<const std::size_t> sizes) const;

 private:
  struct scalar_leaf {
    std::uint32_t cell;
    double value;
  };
  struct vector_leaf {
    std::uint32_t cell;
    std::vector<double> values;
  };
  struct argument {
    std::uint32_t cell;
    bool is_vector;
  };

  void store_leaf(const planner<T>& plan, const Expression<T>& leaf, std::uint32_t number);
  cell<T>* const* start() const;
  const cell<T>& finish(cell<T>* const* cells) const;

  std::vector<instruction<T>> steps_;
  std::vector<scalar_leaf> scalars_;
  std::vector<vector_leaf> vectors_;
  std::vector<argument> args_;
  std::size_t n_cells_;
  std::uint32_t result_;
};

}  // namespace gravelox::ast::detail
