// SPDX-License-Identifier: MIT
#pragma once

// Least-squares fits of structures by the gradient solver. Private to the sources of the fits.

#include <ceres/dynamic_autodiff_cost_function.h>
#include <ceres/evaluation_callback.h>
#include <ceres/problem.h>

#include <cstddef>
#include <memory>
#include <numbers>
#include <utility>
#include <vector>

#include "common/number.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/differentiable_covariance.hpp"

namespace gravelox::detail {

/// Parameters of one structure: sill (or share of it), r1, r2, r3, and three angles in radians.
constexpr int n_structure_parameters = 7;

/// The covariance of a structure with the metric diag(1 / r) Rx(p[6]) Ry(p[5]) Rz(p[4]), the turns
/// being those of rotation_matrix: angles of 0 leave the axes along the coordinates.
template <number T>
generic_cov<T> create_fitted_cov(covariance_type type, const T* p) {
  const T degrees(180.0 / std::numbers::pi);
  return create_cov<T>(type, p[1], p[2], p[3], T(90.0) - p[4] * degrees, -p[5] * degrees,
                       p[6] * degrees, p[0]);
}

/// The ellipsoid that is handed out for the parameters of a structure: Rz(p[4]) Ry(p[5]) Rx(p[6])
/// diag(1 / r), sorted and made orthogonal. Its ranges stand on the other side of the turns than in
/// the fitted metric; the two agree where the axes lie along the coordinates.
Ellipsoid fitted_ellipsoid(const double* p);

/// The prior on the parameters of structures: it draws each range towards its lower end, where it
/// costs half of what it costs at its upper one, and the sill towards 1.
struct Regularization {
  double r1_max;
  double r2_max;
  double r3_max;
  double regularization_const;
  int n_structures;

  int n_residuals() const { return 4 * n_structures; }

  template <typename T>
  bool operator()(T const* const* parameters, T* residuals) const {
    const T c(regularization_const);
    for (int k = 0; k < n_structures; ++k) {
      const T* p = parameters[0] + n_structure_parameters * k;
      const double max_ranges[] = {r1_max, r2_max, r3_max};
      for (int axis = 0; axis < 3; ++axis) {
        const T x = (p[axis + 1] - max_ranges[axis]) / max_ranges[axis];
        const T cost = x * x + 1.0;
        *residuals++ = x < T(0.0) ? T(c / cost) : T(c * cost);
      }
      *residuals++ = 0.001 * c * (p[0] - 1.0) * (p[0] - 1.0);
    }
    return true;
  }
};

/// Doubles that a fit takes: its Jacobian here, in the solver, and in the decomposition.
constexpr double memory_of_fit(double n_residuals, double n_parameters) {
  return 3.0 * n_residuals * n_parameters;
}

/// How the solver runs.
struct solver_settings {
  int n_iterations;
  int n_threads;
  bool debug;
};

/// Residual blocks over one block of parameters.
///
/// Left to itself the solver adds up the costs of blocks in the order in which its threads get to
/// them, so that fits differ from run to run. Here the blocks are evaluated by our own parallel
/// loop and the solver, on one thread, collects them in order: fits do not depend on the threads.
class least_squares_problem : private ceres::EvaluationCallback {
 public:
  explicit least_squares_problem(std::vector<double> start);
  ~least_squares_problem() override;

  /// Adds a functor of n_residuals residuals, with a Cauchy loss of this scale where it is at least
  /// 1e-10.
  template <typename Functor>
  void add(const Functor& functor, int n_residuals, double cauchy_loss) {
    auto cost =
        std::make_unique<ceres::DynamicAutoDiffCostFunction<Functor, n_structure_parameters>>(
            new Functor(functor));
    cost->AddParameterBlock(static_cast<int>(parameters_.size()));
    cost->SetNumResiduals(n_residuals);
    add_cost(std::move(cost), cauchy_loss);
  }

  void set_bounds(std::size_t parameter, double lower, double upper);

  /// Solves and returns the final cost. A failure is not reported: the parameters stay where the
  /// solver leaves them.
  double solve(const solver_settings& settings);

  const std::vector<double>& parameters() const { return parameters_; }

 private:
  class stored_cost;

  void add_cost(std::unique_ptr<ceres::CostFunction> cost, double cauchy_loss);
  void PrepareForEvaluation(bool evaluate_jacobians, bool new_evaluation_point) override;

  std::vector<double> parameters_;
  std::unique_ptr<ceres::Problem> problem_;
  std::vector<stored_cost*> costs_;
  int n_threads_ = 1;
};

}  // namespace gravelox::detail
