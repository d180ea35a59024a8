// SPDX-License-Identifier: MIT
#pragma once

// Non-linear least squares over expressions: variables such that half the sum of the squared costs
// is least, with exact derivatives.
//
// Each cost is planned once, with the values of its constants and free variables. Evaluations touch
// no node: costs may share variables and run on any number of threads, on which no result depends.
// Variables are read alone: they keep their values and kinds.

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "common/number.hpp"
#include "language/function.hpp"

namespace gravelox::ast {

struct solver_options {
  /// Steps that are tried at most; 0 gives the start values and their cost.
  int n_iterations = 1000;

  /// The residual beyond which a cost counts less and less (Cauchy's loss, scale^2 log(1 + r^2 /
  /// scale^2), r^2 being summed over the residuals of a vector cost); below 1e-10 there is none.
  double cauchy_loss = 0.0;

  int n_threads = 0;

  /// Progress on the standard output, and a report on the standard error.
  bool debug = false;
};

/// Each cost is a number, a vector body counting by its norm, and takes the variables' values by
/// position.
struct scalar_problem {
  using values = std::vector<double>;
  using bounds = std::map<std::string, std::pair<double, double>>;

  std::vector<FunctionPtr<jet>> costs;

  /// All count as scalars, and where a cost reads a vector by its element 0. Start values outside
  /// their bounds are moved onto them.
  std::vector<VariablePtr<jet>> variables;

  /// Lower and upper bounds by name; names of no variable have no effect.
  bounds boundary;
};

/// Each cost has a residual for each element of its body, and takes vectors or scalars by position.
struct vector_problem {
  using values = std::vector<std::vector<double>>;
  using bounds = std::map<std::string, std::pair<std::vector<double>, std::vector<double>>>;

  std::vector<FunctionPtr<jet>> costs;

  /// Each in its kind, with a bound for each element (of a scalar, element 0).
  std::vector<VariablePtr<jet>> variables;

  bounds boundary;
};

/// The values by variable name, the last of equal names, and the final cost: half the sum of the
/// squared residuals, or of their losses.
template <typename Values>
struct solution {
  std::map<std::string, typename Values::value_type> values;
  double final_cost;
};

/// Called on the calling thread with the current values, in the order of the variables, at the
/// start and after each step that is tried; false ends the fit with the values as they are. An
/// exception ends it too and leaves solve as it is. May be empty.
template <typename Values>
using validation = std::function<bool(const Values&)>;

/// Throws std::invalid_argument for no variable, a variable or cost that is none, an empty vector
/// variable, more arguments of a cost than variables, bounds that are NaN or too few, a loss whose
/// scale has no finite square;
/// std::runtime_error with the solver's message for what it refuses, such as a lower bound that is
/// not below its upper one or a start that is not finite, and where it fails at the start.
solution<scalar_problem::values> solve(const scalar_problem& problem, const solver_options& options,
                                       const validation<scalar_problem::values>& go_on);
solution<vector_problem::values> solve(const vector_problem& problem, const solver_options& options,
                                       const validation<vector_problem::values>& go_on);

}  // namespace gravelox::ast
