// SPDX-License-Identifier: MIT
#include "language/expression_solver.hpp"

#include <algorithm>
#include <exception>
#include <memory>
#include <numeric>
#include <optional>
#include <span>
#include <stdexcept>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/least_squares_detail.hpp"
#include "common/memory.hpp"
#include "common/text.hpp"
#include "language/expression_costs_detail.hpp"

namespace gravelox::ast {

namespace {

using gravelox::detail::least_squares_problem;
using blocks = least_squares_problem::parameter_blocks;
using program = detail::bound_program<jet>;

template <typename Problem>
void check_problem(const Problem& problem) {
  check_not_empty("variables", problem.variables.size());
  for (const VariablePtr<jet>& variable : problem.variables) {
    if (!variable) refuse("variables", "variables", "None");
  }
  const std::size_t n_variables = problem.variables.size();
  for (const FunctionPtr<jet>& cost : problem.costs) {
    if (!cost) refuse("costs", "functions", "None");
    if (cost->args().size() > n_variables) {
      refuse("costs", text_of("at most ", n_variables, " arguments, one per variable"),
             text_of(cost->args().size()));
    }
  }
}

/// The bounds of one parameter of a block.
struct bound {
  std::size_t block;
  std::size_t parameter;
  double lower;
  double upper;
};

bound checked_bound(const std::string& name, const bound& limits) {
  check_not_nan("boundary of " + name, limits.lower);
  check_not_nan("boundary of " + name, limits.upper);
  return limits;
}

std::vector<bound> bounds_of(const scalar_problem& problem) {
  std::vector<bound> bounds;
  for (std::size_t i = 0; i < problem.variables.size(); ++i) {
    const std::string& name = problem.variables[i]->name();
    const auto found = problem.boundary.find(name);
    if (found == problem.boundary.end()) continue;
    bounds.push_back(checked_bound(name, {0, i, found->second.first, found->second.second}));
  }
  return bounds;
}

std::vector<bound> bounds_of(const vector_problem& problem, const blocks& start) {
  std::vector<bound> bounds;
  for (std::size_t i = 0; i < problem.variables.size(); ++i) {
    const std::string& name = problem.variables[i]->name();
    const auto found = problem.boundary.find(name);
    if (found == problem.boundary.end()) continue;
    const auto& [lower, upper] = found->second;
    const std::size_t n = start[i].size();
    const std::size_t n_limits = std::min(lower.size(), upper.size());
    if (n_limits < n) {
      refuse("boundary of " + name, text_of("two lists of at least ", n, " values"),
             text_of(lower.size(), " and ", upper.size()));
    }
    for (std::size_t k = 0; k < n; ++k) {
      bounds.push_back(checked_bound(name, {i, k, lower[k], upper[k]}));
    }
  }
  return bounds;
}

/// Puts costs into residual blocks: several into one, since the solver has work of its own for each
/// block, which is more than that of a small cost. With a loss, which is one block's, each has its
/// own.
template <typename Costs, typename Sizes>
class cost_collector {
 public:
  cost_collector(least_squares_problem& fit, Sizes sizes, double loss_scale)
      : fit_(fit), sizes_(std::move(sizes)), loss_scale_(loss_scale) {}

  void add(program cost, std::size_t n_residuals) {
    constexpr std::size_t most_together = 64;
    programs_.push_back(std::move(cost));
    n_residuals_ += n_residuals;
    if (loss_scale_ > 0.0 || programs_.size() == most_together) finish_block();
  }

  void finish_block() {
    if (n_residuals_ > 0) {
      fit_.add(std::make_unique<Costs>(std::move(programs_), sizes_), to_int(n_residuals_),
               loss_scale_);
    }
    programs_.clear();
    n_residuals_ = 0;
  }

 private:
  least_squares_problem& fit_;
  Sizes sizes_;
  double loss_scale_;
  std::vector<program> programs_;
  std::size_t n_residuals_ = 0;
};

void check_fit_memory(std::size_t n_residuals, std::size_t n_parameters) {
  const double n_doubles = gravelox::detail::memory_of_fit(static_cast<double>(n_residuals),
                                                           static_cast<double>(n_parameters));
  check_memory("costs", n_doubles);
}

std::vector<program> plan_costs(const std::vector<FunctionPtr<jet>>& functions) {
  std::vector<program> costs;
  costs.reserve(functions.size());
  for (const FunctionPtr<jet>& function : functions) costs.emplace_back(*function);
  return costs;
}

void add_scalar_costs(std::vector<program> costs, double loss_scale, least_squares_problem& fit) {
  const std::vector<double>& start = fit.parameters();
  check_fit_memory(costs.size(), start.size());
  cost_collector<detail::scalar_costs, std::size_t> collector(fit, start.size(), loss_scale);
  for (program& cost : costs) {
    // What an evaluation refuses is refused here, before the solver runs.
    if (cost.has_vectors()) cost.run(std::span<const double>(start));
    collector.add(std::move(cost), 1);
  }
  collector.finish_block();
}

void add_vector_costs(std::vector<program> costs, double loss_scale, least_squares_problem& fit) {
  std::vector<std::size_t> sizes;
  std::vector<const double*> start;
  for (const std::vector<double>& block : fit.blocks()) {
    sizes.push_back(block.size());
    start.push_back(block.data());
  }
  const std::size_t n_parameters = std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
  cost_collector<detail::vector_costs, std::vector<std::size_t>> collector(fit, sizes, loss_scale);
  std::size_t n_residuals = 0;
  for (program& cost : costs) {
    const cell<jet>& result = cost.run(start.data(), sizes);
    const std::size_t n = result.kind == variable_kind::scalar ? 1 : result.vector.size();
    n_residuals += n;
    check_fit_memory(n_residuals, n_parameters);
    collector.add(std::move(cost), n);
  }
  collector.finish_block();
}

blocks moved_onto(const std::vector<bound>& bounds, blocks start) {
  for (const bound& limits : bounds) {
    double& value = start[limits.block][limits.parameter];
    value = std::min(std::max(value, limits.lower), limits.upper);
  }
  return start;
}

/// Solves a fit that has its costs, and gives the final blocks and cost.
std::pair<blocks, double> solve_fit(least_squares_problem& fit, const std::vector<bound>& bounds,
                                    const solver_options& options,
                                    const std::function<bool(const blocks&)>& go_on) {
  for (const bound& limits : bounds) {
    fit.set_bounds(limits.block, limits.parameter, limits.lower, limits.upper);
  }
  gravelox::detail::solver_settings settings{options.n_iterations, options.n_threads,
                                             options.debug};
  // A stopped solver goes back to the start; the values that it was stopped at are kept here.
  std::optional<blocks> stopped_at;
  // The solver library is left by its own road before an exception goes on.
  std::exception_ptr exception;
  if (go_on) {
    settings.go_on = [&] {
      try {
        if (go_on(fit.blocks())) return true;
      } catch (...) {
        exception = std::current_exception();
      }
      stopped_at = fit.blocks();
      return false;
    };
  }
  const gravelox::detail::solver_outcome outcome = fit.solve(settings);
  if (exception) std::rethrow_exception(exception);
  if (!outcome.failure.empty()) throw std::runtime_error(outcome.failure);
  return {stopped_at.value_or(fit.blocks()), outcome.final_cost};
}

std::vector<double> start_value(const Variable<jet>& variable) {
  if (variable.kind() == variable_kind::scalar) return {value_of(variable.scalar())};
  check_not_empty("variable " + variable.name(), variable.vec().size());
  return values_of(variable.vec());
}

/// Where costs read a vector as one, its element 0 is what a scalar fit changes.
double scalar_start_value(const Variable<jet>& variable, std::size_t arg,
                          const std::vector<program>& costs) {
  const bool is_read = std::any_of(costs.begin(), costs.end(),
                                   [&](const program& cost) { return cost.reads_vector(arg); });
  return is_read ? start_value(variable).front() : value_of(variable.scalar());
}

}  // namespace

solution<scalar_problem::values> solve(const scalar_problem& problem, const solver_options& options,
                                       const validation<scalar_problem::values>& go_on) {
  check_problem(problem);
  const double loss_scale = gravelox::detail::loss_scale_of(options.cauchy_loss);
  const std::vector<bound> bounds = bounds_of(problem);
  std::vector<program> costs = plan_costs(problem.costs);
  blocks start(1);
  for (std::size_t i = 0; i < problem.variables.size(); ++i) {
    start.front().push_back(scalar_start_value(*problem.variables[i], i, costs));
  }
  least_squares_problem fit(moved_onto(bounds, std::move(start)));
  add_scalar_costs(std::move(costs), loss_scale, fit);
  std::function<bool(const blocks&)> validate;
  if (go_on) validate = [&](const blocks& current) { return go_on(current.front()); };
  const auto found = solve_fit(fit, bounds, options, validate);
  solution<scalar_problem::values> result{{}, found.second};
  for (std::size_t i = 0; i < problem.variables.size(); ++i) {
    result.values[problem.variables[i]->name()] = found.first.front()[i];
  }
  return result;
}

solution<vector_problem::values> solve(const vector_problem& problem, const solver_options& options,
                                       const validation<vector_problem::values>& go_on) {
  check_problem(problem);
  const double loss_scale = gravelox::detail::loss_scale_of(options.cauchy_loss);
  blocks start;
  for (const VariablePtr<jet>& variable : problem.variables) {
    start.push_back(start_value(*variable));
  }
  const std::vector<bound> bounds = bounds_of(problem, start);
  least_squares_problem fit(moved_onto(bounds, std::move(start)));
  add_vector_costs(plan_costs(problem.costs), loss_scale, fit);
  const auto found = solve_fit(fit, bounds, options, go_on);
  solution<vector_problem::values> result{{}, found.second};
  for (std::size_t i = 0; i < problem.variables.size(); ++i) {
    result.values[problem.variables[i]->name()] = found.first[i];
  }
  return result;
}

}  // namespace gravelox::ast
