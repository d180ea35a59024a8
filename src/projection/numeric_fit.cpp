// SPDX-License-Identifier: MIT
#include <ceres/ordered_groups.h>
#include <ceres/problem.h>
#include <ceres/solver.h>

#include <limits>
#include <optional>

#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/solver_log.hpp"
#include "projection/numeric_fit_detail.hpp"

namespace gravelox::detail {

double fit_numerically(std::unique_ptr<ceres::CostFunction> cost,
                       std::vector<std::vector<double>>& blocks,
                       const numeric_fit_settings& settings) {
  std::vector<double*> pointers;
  pointers.reserve(blocks.size());
  for (std::vector<double>& block : blocks) pointers.push_back(block.data());
  ceres::Problem problem;
  problem.AddResidualBlock(cost.release(), nullptr, pointers);

  ceres::Solver::Options options;
  options.linear_solver_type = ceres::ITERATIVE_SCHUR;
  options.max_num_iterations = settings.n_iterations;
  options.num_threads = static_cast<int>(n_thread_slots(settings.n_threads));
  options.minimizer_progress_to_stdout = settings.debug;
  if (settings.eliminated_block >= 0) {
    options.linear_solver_ordering = std::make_shared<ceres::ParameterBlockOrdering>();
    for (int i = 0; i < to_int(pointers.size()); ++i) {
      const int group = i == settings.eliminated_block ? 0 : 1;
      options.linear_solver_ordering->AddElementToGroup(pointers[to_size(i)], group);
    }
  }
  std::optional<quiet_solver_log> quiet;
  if (!settings.debug) quiet.emplace();
  ceres::Solver::Summary summary;
  ceres::Solve(options, &problem, &summary);
  // Without a first evaluation the summary holds a cost below 0, which would pass for the best.
  return summary.final_cost < 0.0 ? std::numeric_limits<double>::quiet_NaN() : summary.final_cost;
}

}  // namespace gravelox::detail
