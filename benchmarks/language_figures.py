"""Expressions against the same ones in Python, fits of them against scipy, and Markov chains.

The evaluation of an expression is timed in the kernels' program, as C++ asks for it, and as a call
from Python, which pays for the way there and back too. Fits are timed on the wall clock; both sides
stop where a step no longer changes the cost by a millionth.
"""

import math
import time
from functools import partial
from itertools import repeat

import gravelox as gx
import numpy as np
from gravelox import algebra, ast, ceres, jet
from harness import Figure, advantage, check_same, per_item, slowdown
from scipy.optimize import least_squares

# The expression, its arguments and their values are those of kernels.cpp. Nodes are its leaves,
# each in each of its places, and its operations.
NAMES = ("lag", "nugget", "sill", "rate", "far_sill", "far_rate")
VALUES = (0.7, 0.1, 0.4, -1.5, 0.5, -0.5)
SIZES = {"nodes": 20, "operations": 11}
N_RESIDUALS, TRUTH, START = 10_000, (0.1, 0.4, -2.0, 0.5, -0.2), (0.2, 0.5, -1.0, 0.4, -0.1)
N_CALLS = 20_000
RANGES, SHARES, KNN, N_SAMPLES = (300.0, 200.0, 100.0), (0.5, 0.3, 0.2), 8, 1_000


def semivariance(m, lag, nugget, sill, rate, far_sill, far_rate):
    """Two nested structures and a nugget, from the functions of a module."""
    near, far = 1.0 - m.exp(lag * rate), 1.0 - m.exp(lag * far_rate)
    return nugget + sill * near + far_sill * far


def deviation(m, *args):
    return m.sqrt(semivariance(m, *args))


def plain(lag, nugget, sill, rate, far_sill, far_rate, exp=math.exp, sqrt=math.sqrt):
    """The same in Python over floats, as one expression."""
    return sqrt(nugget + sill * (1.0 - exp(lag * rate)) + far_sill * (1.0 - exp(lag * far_rate)))


def per_call(function, *args):
    def calls():
        for _ in repeat(None, N_CALLS):
            function(*args)

    return per_item(calls, N_CALLS)


def expression_figure(number, goal=None):
    name = f"expression_{number}"

    def figure(bench):
        """An evaluation in C++ against a call of the same in Python over floats."""
        run = bench.kernel_entry(f"expression<{number}>")
        check_same(run()["result"], plain(*VALUES))
        times = bench.compare(
            lambda: 1.0 / run()["items_per_second"], per_call(plain, *VALUES), advantage
        )
        return Figure(name, SIZES, 1, goal=goal, **times)

    figure.__name__ = name
    return figure


def call_figure(number, nodes, argument):
    """A call from Python with what `argument` makes of the values."""
    name = f"expression_call_{number}"

    def figure(bench):
        variables = [nodes.Variable(name, 0.0) for name in NAMES]
        body = deviation(nodes, *variables)
        compiled, args = nodes.Function.Scalar(variables, body).ScalarFunction(), argument(VALUES)
        check_same(np.array(getattr(compiled(args), "value", compiled(args))), plain(*VALUES))
        times = bench.compare(per_call(compiled, args), per_call(plain, *VALUES), advantage)
        return Figure(name, SIZES, 1, **times)

    figure.__name__ = name
    return figure


def fit_figure(name, n_threads, builds, goal=None):
    def figure(bench):
        """Five parameters to 10,000 residuals, against a model over arrays; with `builds` ours
        starts without expressions.
        """
        lags = np.linspace(0.0, 10.0, N_RESIDUALS)
        noise = np.random.RandomState(1).normal(0, 0.02, N_RESIDUALS)
        values = semivariance(np, lags, *TRUTH) + noise
        pairs = list(zip(lags.tolist(), values.tolist()))

        def build():
            variables = [jet.ast.Variable(name, x) for name, x in zip(NAMES[1:], START)]
            bodies = [semivariance(jet.ast, lag, *variables) - value for lag, value in pairs]
            return [jet.ast.Function.Scalar(variables, body) for body in bodies], variables, {}

        solve = partial(ceres.solve, n_threads=n_threads)
        ours = (lambda: solve(*build())) if builds else partial(solve, *build())
        theirs = partial(
            least_squares, lambda args: semivariance(np, lags, *args) - values, START, ftol=1e-6
        )
        if not math.isclose(ours()[1], theirs().cost, rel_tol=1e-5):
            raise RuntimeError("the two sides do not find the same fit")
        times = bench.compare_least(
            *(per_item(fit, 1, time.perf_counter) for fit in (ours, theirs)), slowdown
        )
        sizes = {"parameters": len(START), "residuals": N_RESIDUALS}
        return Figure(name, sizes, gx.check_n_threads(n_threads), goal=goal, **times)

    figure.__name__ = name
    return figure


def transiogram():
    """Of three classes, that forget each other exponentially."""
    u, v = (ast.Variable(name, [0.0] * 3) for name in "uv")
    lag = (u - v) / list(RANGES)
    kept = ast.exp(-3.0 * ast.sqrt(lag * lag))
    table = [[p + (float(j == k) - p) * kept for k, p in enumerate(SHARES)] for j in range(3)]
    return gx.transiogram.Transiogram(u, v, table)


def markov_chain(bench):
    """A target of a simulation, with samples."""
    targets, samples = bench.targets[: bench.n_targets // 2], bench.samples[:N_SAMPLES]
    classes = np.digitize(bench.values[:N_SAMPLES], [1.2, 1.7]).tolist()
    plain_search = gx.Ellipsoid(1, 1, 1, 90, 0, 0)
    simulate = partial(
        gx.markov_chain.simulation, targets, samples, classes, transiogram(), plain_search, knn=KNN
    )
    sizes = {"targets": len(targets), "samples": N_SAMPLES, "classes": len(SHARES), "knn": KNN}
    return Figure("markov_chain", sizes, 1, **bench.time(per_item(simulate, len(targets))))


FIGURES = (
    expression_figure("double", ">= 10"),
    expression_figure("jet"),
    call_figure("double", ast, algebra.RealVector),
    call_figure("jet", jet.ast, algebra.JetVector),
    call_figure("list", ast, list),
    fit_figure("fit_of_expressions", 1, False, "<= 4"),
    fit_figure("fit_of_expressions_threads", 0, False, "<= 4"),
    fit_figure("fit_and_building", 1, True),
    fit_figure("fit_and_building_threads", 0, True),
    markov_chain,
)
