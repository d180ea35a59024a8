// SPDX-License-Identifier: MIT
#pragma once

// Least-squares fits with derivatives by differences, for residuals that come all at once. Private
// to the sources of the fits.

#include <ceres/dynamic_numeric_diff_cost_function.h>

#include <cstddef>
#include <memory>
#include <vector>

#include "common/integer.hpp"

namespace gravelox::detail {

/// How the solver runs; without `debug` its log is quiet too.
struct numeric_fit_settings {
  int n_iterations;
  int n_threads;
  bool debug;

  /// The block that the solver eliminates first; below 0 it chooses.
  int eliminated_block = -1;
};

/// Fits the blocks, in place, to one block of residuals, and returns the final cost; NaN where the
/// solver gave up before the first step. With one block of residuals the solver library (2.1) has
/// one order of sums, so a fit does not depend on its threads.
double fit_numerically(std::unique_ptr<ceres::CostFunction> cost,
                       std::vector<std::vector<double>>& blocks,
                       const numeric_fit_settings& settings);

/// Derivatives are central differences of the functor, which gives all residuals.
template <typename Functor>
double fit_numerically(const Functor& functor, int n_residuals,
                       std::vector<std::vector<double>>& blocks,
                       const numeric_fit_settings& settings) {
  auto cost = std::make_unique<ceres::DynamicNumericDiffCostFunction<Functor, ceres::CENTRAL>>(
      new Functor(functor));
  for (const std::vector<double>& block : blocks) {
    cost->AddParameterBlock(to_int(block.size()));
  }
  cost->SetNumResiduals(n_residuals);
  return fit_numerically(std::move(cost), blocks, settings);
}

/// The threads for the residuals of one evaluation. Few terms are done before other threads have
/// woken up, the more so on a busy machine.
inline int threads_of_evaluation(std::size_t n_terms, int n_threads) {
  constexpr std::size_t least_terms = 5000;
  return n_terms < least_terms ? 1 : n_threads;
}

}  // namespace gravelox::detail
