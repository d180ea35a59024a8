// SPDX-License-Identifier: MIT
#pragma once

// Least-squares fits by the gradient solver. Private to the sources of the fits.

#include <ceres/dynamic_autodiff_cost_function.h>
#include <ceres/evaluation_callback.h>
#include <ceres/problem.h>

#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/report.hpp"

namespace gravelox::detail {

/// Derivatives that one pass over a functor takes along.
constexpr int derivative_stride = 7;

/// Doubles that a fit takes: its Jacobian here, in the solver, and in the decomposition.
constexpr double memory_of_fit(double n_residuals, double n_parameters) {
  return 3.0 * n_residuals * n_parameters;
}

/// The scale of a Cauchy loss for an argument of scripts: below 1e-10, and for NaN, there is none.
/// The loss takes its square: std::invalid_argument where that is not finite.
inline double loss_scale_of(double cauchy_loss) {
  if (!(cauchy_loss >= 1e-10)) return 0.0;
  if (!std::isfinite(cauchy_loss * cauchy_loss)) {
    refuse("cauchy_loss", "a number with a finite square", cauchy_loss);
  }
  return cauchy_loss;
}

/// How the solver runs. With `debug` its progress and its report are printed, otherwise its log is
/// quiet too.
struct solver_settings {
  int n_iterations;
  int n_threads;
  bool debug;
  void (*report)(const std::string&) = print_to_error;

  /// Called with the parameters in place after each step that is tried; false ends the fit.
  std::function<bool()> go_on = nullptr;
};

/// What came of a solve: the final cost, and the reason where the solver gave up.
struct solver_outcome {
  double final_cost;
  std::string failure;
};

/// Residual blocks over blocks of parameters.
///
/// Left to itself the solver adds up the costs of blocks in the order in which its threads get to
/// them, so that fits differ from run to run. Here the blocks are evaluated by our own parallel
/// loop and the solver, on one thread, collects them in order: fits do not depend on the threads.
class least_squares_problem : private ceres::EvaluationCallback {
 public:
  using parameter_blocks = std::vector<std::vector<double>>;

  /// Start values of one block, or of several; no block may be empty.
  explicit least_squares_problem(std::vector<double> start);
  explicit least_squares_problem(parameter_blocks start);
  ~least_squares_problem() override;

  /// Adds a functor of n_residuals residuals over all blocks, with a Cauchy loss of this scale
  /// where it is above 0.
  template <typename Functor>
  void add(std::unique_ptr<Functor> functor, int n_residuals, double loss_scale) {
    auto cost = std::make_unique<ceres::DynamicAutoDiffCostFunction<Functor, derivative_stride>>(
        functor.release());
    for (const std::vector<double>& block : blocks_) {
      cost->AddParameterBlock(to_int(block.size()));
    }
    cost->SetNumResiduals(n_residuals);
    add_cost(std::move(cost), loss_scale);
  }

  template <typename Functor>
  void add(const Functor& functor, int n_residuals, double loss_scale) {
    add(std::make_unique<Functor>(functor), n_residuals, loss_scale);
  }

  /// Bounds of a parameter of the first block, or of any. Equal ones hold it.
  void set_bounds(std::size_t parameter, double lower, double upper);
  void set_bounds(std::size_t block, std::size_t parameter, double lower, double upper);

  /// After a failure the parameters stay where the solver leaves them.
  solver_outcome solve(const solver_settings& settings);

  /// Those of the first block, and of all.
  const std::vector<double>& parameters() const { return blocks_.front(); }
  const parameter_blocks& blocks() const { return blocks_; }

 private:
  class stored_cost;

  void add_cost(std::unique_ptr<ceres::CostFunction> cost, double loss_scale);
  void PrepareForEvaluation(bool evaluate_jacobians, bool new_evaluation_point) override;

  parameter_blocks blocks_;
  std::vector<double*> block_pointers_;
  std::unique_ptr<ceres::Problem> problem_;
  std::vector<stored_cost*> costs_;
  int n_threads_ = 1;
};

}  // namespace gravelox::detail
