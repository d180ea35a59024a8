// SPDX-License-Identifier: MIT
#include <ceres/cost_function.h>
#include <ceres/loss_function.h>
#include <ceres/solver.h>

#include <algorithm>
#include <numbers>
#include <optional>

#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/report.hpp"
#include "common/solver_log.hpp"
#include "optimization/least_squares_detail.hpp"
#include "spatial/anisotropy.hpp"
#include "spatial/axes.hpp"

namespace gravelox::detail {

Ellipsoid fitted_ellipsoid(const double* p) {
  constexpr double degrees = 180.0 / std::numbers::pi;
  // Rz(a) Ry(b) Rx(c) is the transpose of Rx(-c) Ry(-b) Rz(-a).
  Eigen::Matrix3d matrix =
      rotation_matrix(90.0 + p[4] * degrees, p[5] * degrees, -p[6] * degrees).transpose();
  for (Eigen::Index axis = 0; axis < 3; ++axis) {
    const double range = p[axis + 1];
    if (range > 1e-30) matrix.col(axis) /= range;
  }
  return Ellipsoid(sort_matrix3d(matrix, true));
}

/// A cost function whose values are worked out beforehand.
class least_squares_problem::stored_cost final : public ceres::CostFunction {
 public:
  explicit stored_cost(std::unique_ptr<ceres::CostFunction> cost) : cost_(std::move(cost)) {
    set_num_residuals(cost_->num_residuals());
    *mutable_parameter_block_sizes() = cost_->parameter_block_sizes();
    const auto n = to_size(num_residuals());
    residuals_.resize(n);
    jacobian_.resize(n * to_size(parameter_block_sizes().front()));
  }

  void prepare(const double* parameters, bool evaluate_jacobians) {
    double* jacobian = jacobian_.data();
    is_valid_ =
        cost_->Evaluate(&parameters, residuals_.data(), evaluate_jacobians ? &jacobian : nullptr);
  }

  bool Evaluate(double const* const* /*parameters*/, double* residuals,
                double** jacobians) const override {
    std::copy(residuals_.begin(), residuals_.end(), residuals);
    if (jacobians != nullptr && jacobians[0] != nullptr) {
      std::copy(jacobian_.begin(), jacobian_.end(), jacobians[0]);
    }
    return is_valid_;
  }

 private:
  std::unique_ptr<ceres::CostFunction> cost_;
  std::vector<double> residuals_;
  std::vector<double> jacobian_;
  bool is_valid_ = false;
};

least_squares_problem::least_squares_problem(std::vector<double> start)
    : parameters_(std::move(start)) {
  ceres::Problem::Options options;
  options.evaluation_callback = this;
  problem_ = std::make_unique<ceres::Problem>(options);
  problem_->AddParameterBlock(parameters_.data(), static_cast<int>(parameters_.size()));
}

least_squares_problem::~least_squares_problem() = default;

void least_squares_problem::add_cost(std::unique_ptr<ceres::CostFunction> cost,
                                     double cauchy_loss) {
  constexpr double least_scale = 1e-10;
  auto stored = std::make_unique<stored_cost>(std::move(cost));
  costs_.push_back(stored.get());
  auto loss =
      cauchy_loss >= least_scale ? std::make_unique<ceres::CauchyLoss>(cauchy_loss) : nullptr;
  problem_->AddResidualBlock(stored.release(), loss.release(), parameters_.data());
}

void least_squares_problem::set_bounds(std::size_t parameter, double lower, double upper) {
  const int index = static_cast<int>(parameter);
  problem_->SetParameterLowerBound(parameters_.data(), index, lower);
  problem_->SetParameterUpperBound(parameters_.data(), index, upper);
}

double least_squares_problem::solve(const solver_settings& settings) {
  n_threads_ = settings.n_threads;
  ceres::Solver::Options options;
  options.linear_solver_type = ceres::DENSE_QR;
  options.max_num_iterations = settings.n_iterations;
  options.num_threads = 1;
  options.minimizer_progress_to_stdout = settings.debug;
  std::optional<quiet_solver_log> quiet;
  if (!settings.debug) quiet.emplace();
  ceres::Solver::Summary summary;
  ceres::Solve(options, problem_.get(), &summary);
  if (settings.debug) print_to_error(summary.FullReport());
  return summary.final_cost;
}

void least_squares_problem::PrepareForEvaluation(bool evaluate_jacobians,
                                                 bool /*new_evaluation_point*/) {
  // Few residuals are done before other threads have woken up, the more so on a busy machine.
  constexpr int least_residuals = 1000;
  const int n_threads = problem_->NumResiduals() < least_residuals ? 1 : n_threads_;
  parallel_for(costs_.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    costs_[i]->prepare(parameters_.data(), evaluate_jacobians);
  });
}

}  // namespace gravelox::detail
