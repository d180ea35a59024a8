// SPDX-License-Identifier: MIT
#include "common/least_squares_detail.hpp"

#include <ceres/cost_function.h>
#include <ceres/iteration_callback.h>
#include <ceres/loss_function.h>
#include <ceres/solver.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/solver_log.hpp"

namespace gravelox::detail {

namespace {

/// Asks before each further step.
class step_callback final : public ceres::IterationCallback {
 public:
  explicit step_callback(const std::function<bool()>& go_on) : go_on_(go_on) {}

  ceres::CallbackReturnType operator()(const ceres::IterationSummary& /*summary*/) override {
    return go_on_() ? ceres::SOLVER_CONTINUE : ceres::SOLVER_ABORT;
  }

 private:
  const std::function<bool()>& go_on_;
};

}  // namespace

/// A cost function whose values are worked out beforehand.
class least_squares_problem::stored_cost final : public ceres::CostFunction {
 public:
  explicit stored_cost(std::unique_ptr<ceres::CostFunction> cost) : cost_(std::move(cost)) {
    set_num_residuals(cost_->num_residuals());
    *mutable_parameter_block_sizes() = cost_->parameter_block_sizes();
    const auto n = to_size(num_residuals());
    residuals_.resize(n);
    for (const int size : parameter_block_sizes()) jacobians_.emplace_back(n * to_size(size));
    for (std::vector<double>& jacobian : jacobians_) pointers_.push_back(jacobian.data());
  }

  void prepare(const double* const* parameters, bool evaluate_jacobians) {
    is_valid_ = cost_->Evaluate(parameters, residuals_.data(),
                                evaluate_jacobians ? pointers_.data() : nullptr);
  }

  bool Evaluate(double const* const* /*parameters*/, double* residuals,
                double** jacobians) const override {
    std::copy(residuals_.begin(), residuals_.end(), residuals);
    for (std::size_t i = 0; jacobians != nullptr && i < jacobians_.size(); ++i) {
      if (jacobians[i] == nullptr) continue;
      std::copy(jacobians_[i].begin(), jacobians_[i].end(), jacobians[i]);
    }
    return is_valid_;
  }

 private:
  std::unique_ptr<ceres::CostFunction> cost_;
  std::vector<double> residuals_;
  std::vector<std::vector<double>> jacobians_;
  std::vector<double*> pointers_;
  bool is_valid_ = false;
};

least_squares_problem::least_squares_problem(std::vector<double> start)
    : least_squares_problem(parameter_blocks{std::move(start)}) {}

least_squares_problem::least_squares_problem(parameter_blocks start) : blocks_(std::move(start)) {
  ceres::Problem::Options options;
  options.evaluation_callback = this;
  problem_ = std::make_unique<ceres::Problem>(options);
  for (std::vector<double>& block : blocks_) {
    problem_->AddParameterBlock(block.data(), to_int(block.size()));
    block_pointers_.push_back(block.data());
  }
}

least_squares_problem::~least_squares_problem() = default;

void least_squares_problem::add_cost(std::unique_ptr<ceres::CostFunction> cost, double loss_scale) {
  auto stored = std::make_unique<stored_cost>(std::move(cost));
  costs_.push_back(stored.get());
  auto loss = loss_scale > 0.0 ? std::make_unique<ceres::CauchyLoss>(loss_scale) : nullptr;
  problem_->AddResidualBlock(stored.release(), loss.release(), block_pointers_);
}

void least_squares_problem::set_bounds(std::size_t parameter, double lower, double upper) {
  set_bounds(0, parameter, lower, upper);
}

void least_squares_problem::set_bounds(std::size_t block, std::size_t parameter, double lower,
                                       double upper) {
  const int index = static_cast<int>(parameter);
  // The solver would take equal bounds for a contradiction.
  if (upper == lower) upper = std::nextafter(lower, std::numeric_limits<double>::infinity());
  problem_->SetParameterLowerBound(block_pointers_[block], index, lower);
  problem_->SetParameterUpperBound(block_pointers_[block], index, upper);
}

solver_outcome least_squares_problem::solve(const solver_settings& settings) {
  n_threads_ = settings.n_threads;
  ceres::Solver::Options options;
  options.linear_solver_type = ceres::DENSE_QR;
  options.max_num_iterations = settings.n_iterations;
  options.num_threads = 1;
  options.minimizer_progress_to_stdout = settings.debug;
  step_callback after_step(settings.go_on);
  if (settings.go_on) {
    options.update_state_every_iteration = true;
    options.callbacks.push_back(&after_step);
  }
  std::optional<quiet_solver_log> quiet;
  if (!settings.debug) quiet.emplace();
  ceres::Solver::Summary summary;
  ceres::Solve(options, problem_.get(), &summary);
  if (settings.debug) settings.report(summary.FullReport());
  const bool has_failed = summary.termination_type == ceres::FAILURE;
  return {summary.final_cost, has_failed ? summary.message : ""};
}

void least_squares_problem::PrepareForEvaluation(bool evaluate_jacobians,
                                                 bool /*new_evaluation_point*/) {
  // Few residuals are done before other threads have woken up, the more so on a busy machine.
  constexpr int least_residuals = 1000;
  const int n_threads = problem_->NumResiduals() < least_residuals ? 1 : n_threads_;
  parallel_for(costs_.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    costs_[i]->prepare(block_pointers_.data(), evaluate_jacobians);
  });
}

}  // namespace gravelox::detail
