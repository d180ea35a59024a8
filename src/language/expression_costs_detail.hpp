// SPDX-License-Identifier: MIT
#pragma once

// Costs of a fit as functors of the solver library. Private to the sources of the language.

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "common/number.hpp"
#include "language/bound_program_detail.hpp"

namespace gravelox::ast::detail {

/// A residual in the number that the solver asks for: derivatives are dropped where it wants none.
inline void store(const jet& value, double& residual) { residual = value.a; }
inline void store(const jet& value, jet& residual) { residual = value; }

/// Several scalar costs over one block of parameters, one residual each.
class scalar_costs {
 public:
  scalar_costs(std::vector<bound_program<jet>> programs, std::size_t n_parameters)
      : programs_(std::move(programs)), n_parameters_(n_parameters) {}

  template <number T>
  bool operator()(T const* const* blocks, T* residuals) const {
    const std::span<const T> inputs(blocks[0], n_parameters_);
    for (const bound_program<jet>& cost : programs_) {
      store(scalar_of(cost.run(inputs)), *residuals++);
    }
    return true;
  }

 private:
  std::vector<bound_program<jet>> programs_;
  std::size_t n_parameters_;
};

/// Several costs over several blocks of parameters, with a residual for each element of a body.
class vector_costs {
 public:
  vector_costs(std::vector<bound_program<jet>> programs, std::vector<std::size_t> block_sizes)
      : programs_(std::move(programs)), block_sizes_(std::move(block_sizes)) {}

  template <number T>
  bool operator()(T const* const* blocks, T* residuals) const {
    for (const bound_program<jet>& cost : programs_) {
      const cell<jet>& result = cost.run(blocks, block_sizes_);
      if (result.kind == variable_kind::scalar) {
        store(result.scalar, *residuals++);
      } else {
        for (const jet& element : result.vector) store(element, *residuals++);
      }
    }
    return true;
  }

 private:
  std::vector<bound_program<jet>> programs_;
  std::vector<std::size_t> block_sizes_;
};

}  // namespace gravelox::ast::detail
