// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-module of the solver.

namespace gravelox::docs {

constexpr const char* solve_scalars = R"(
Fit scalar variables by non-linear least squares, with exact derivatives.

Sought are the values for which half the sum of the squared costs is least, from the variables' own
values on (Levenberg and Marquardt's method, dense QR). **Costs take the values by position**: the
first argument of a cost is the first of `variables`, whatever its name, and so on; a cost may have
fewer arguments than there are variables. A vector body counts by its norm.

Costs are planned once, with the values that other variables and constants have then, and touch no
node while they run: costs may share variables at any number of threads. Variables keep their values
and kinds.

Parameters
----------
costs : list of Function
    The residuals, functions of `jet.ast`, in one unit where there is a `cauchy_loss`.
variables : list of Variable
    The variables of `jet.ast`, all taken as scalars; a vector counts by its element 0. A start value
    outside its bounds is moved onto them.
boundary : dict of str to tuple of float
    Lower and upper bounds by the variables' names; infinite ones do not bound. Names of no variable
    have no effect.
n_iterations : int
    Steps that are tried at most; 0 gives the start values and their cost.
cauchy_loss : float
    Residuals beyond this size count less and less: a residual r enters the cost with
    s^2 log(1 + r^2 / s^2) in place of r^2, s being the size. Below 1e-10 there is no loss.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
debug : bool
    Whether progress goes to the standard output of the process, and a report to its standard error.
validation_cb : callable or None
    Called at the start and after each step that is tried, with the current values as a list in the
    order of `variables`. False ends the fit with these values; an exception ends it and passes
    through.

Returns
-------
values : dict of str to float
    The values by name; of variables of one name the last one's.
cost : float
    The final cost: half the sum of the squared residuals, or of what the loss makes of them.

Raises
------
ValueError
    Without variables, for a cost with more arguments than there are variables, a bound that is NaN,
    a `cauchy_loss` whose square is infinite, or more costs than memory holds.
RuntimeError
    With the solver's message for what it refuses: a lower bound that is not below its upper one, a
    start that is not finite, costs that cannot be evaluated at the start.

Examples
--------
>>> from gravelox import ceres
>>> from gravelox.jet.ast import Function, Variable, exp
>>> sill, reach = Variable("sill", 1.0), Variable("reach", 50.0)
>>> lags, semivariances = [10.0, 20.0, 40.0, 80.0], [0.5184, 0.9024, 1.3976, 1.8186]
>>> costs = [Function.Scalar([sill, reach], sill * (1.0 - exp(-3.0 * h / reach)) - g)
...          for h, g in zip(lags, semivariances)]
>>> found, cost = ceres.solve(costs, [sill, reach], {"reach": (1.0, 500.0)})
>>> round(found["sill"], 2), round(found["reach"], 1), cost < 1e-4
(2.0, 100.0, True)
>>> sill.scalar.value  # as it was
1.0
)";

constexpr const char* solve_vectors = R"(
Fit vector variables, and scalars beside them, by non-linear least squares with exact derivatives.

As `ceres.solve`, but for this: each variable is fitted in its kind, and each cost has a residual
for each element of its body. A Cauchy loss takes all residuals of a cost together, by the sum of
their squares.

Parameters
----------
costs : list of Function
    Functions of `jet.ast`, which take the variables' values by position.
variables : list of Variable
    The variables of `jet.ast`; no vector may be empty.
boundary : dict of str to tuple of list of float
    Lower and upper bounds by the variables' names, one for each element; of a scalar variable
    element 0. Names of no variable have no effect.
n_iterations : int
    Steps that are tried at most; 0 gives the start values and their cost.
cauchy_loss : float
    The size of a cost beyond which it counts less and less; below 1e-10 there is no loss.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
debug : bool
    Whether progress goes to the standard output of the process, and a report to its standard error.
validation_cb : callable or None
    Called at the start and after each step that is tried, with the current values as a list of
    lists. False ends the fit with these values; an exception ends it and passes through.

Returns
-------
values : dict of str to list of float
    The values by name; of variables of one name the last one's.
cost : float
    The final cost: half the sum of the squared residuals, or of what the loss makes of them.

Raises
------
ValueError
    Without variables, for an empty vector, a cost with more arguments than there are variables,
    too few bounds or one that is NaN, a `cauchy_loss` whose square is infinite, or more residuals
    than memory holds.
RuntimeError
    With the solver's message for what it refuses: a lower bound that is not below its upper one, a
    start that is not finite, costs that cannot be evaluated at the start.

Examples
--------
>>> from gravelox.ceres import vec
>>> from gravelox.jet.ast import Function, Variable
>>> centre = Variable("centre", [0.0, 0.0])
>>> places = [(1.0, 1.0), (1.2, 0.9), (0.8, 1.1), (9.0, 9.0)]
>>> costs = [Function.Vector([centre], centre - [x, y]) for x, y in places]
>>> found, cost = vec.solve(costs, [centre], {})  # their mean
>>> [round(x, 3) for x in found["centre"]]
[3.0, 3.0]
>>> found, cost = vec.solve(costs, [centre], {}, cauchy_loss=0.5)  # hardly moved by the last one
>>> all(abs(x - 1) < 0.1 for x in found["centre"])
True
)";

}  // namespace gravelox::docs
