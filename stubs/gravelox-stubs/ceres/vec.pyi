from __future__ import annotations
import gravelox.jet.ast
import typing
__all__: list[str] = ['solve']
def solve(costs: list[gravelox.jet.ast.Function], variables: list[gravelox.jet.ast.Variable], boundary: dict[str, tuple[list[float], list[float]]], n_iterations: int = 1000, cauchy_loss: float = 0.0, n_threads: int = 0, debug: bool = False, validation_cb: typing.Any = None) -> tuple[dict[str, list[float]], float]:
    """
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
    """
