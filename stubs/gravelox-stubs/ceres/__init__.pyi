from __future__ import annotations
import gravelox.jet.ast
import typing
from . import vec
__all__: list[str] = ['solve', 'vec']
def solve(costs: list[gravelox.jet.ast.Function], variables: list[gravelox.jet.ast.Variable], boundary: dict[str, tuple[float, float]], n_iterations: int = 1000, cauchy_loss: float = 0.0, n_threads: int = 0, debug: bool = False, validation_cb: typing.Any = None) -> tuple[dict[str, float], float]:
    """
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
    """
