"""Expressions against the same ones in Python, fits of them against scipy, and Markov chains.

An evaluation is timed in the kernels' program, as C++ asks for it, and as a call from Python, which
pays for the way there and back too. Fits are timed on the wall clock; both sides stop where a step
no longer changes the cost by a millionth.
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

# The expression and its values are those of kernels.cpp. Its leaves count once in each place.
NAMES = ("lag", "nugget", "sill", "rate", "far_sill", "far_rate")
VALUES = (0.7, 0.1, 0.4, -1.5, 0.5, -0.5)
SIZES = {"nodes": 20, "operations": 11}
N_CALLS = 20_000
N_RESIDUALS, TRUTH, START = 10_000, (0.1, 0.4, -2.0, 0.5, -0.2), (0.2, 0.5, -1.0, 0.4, -0.1)
RANGES, SHARES, KNN, N_SAMPLES = [300.0, 200.0, 100.0], (0.5, 0.3, 0.2), 8, 1_000


def deviation(lag, nugget, sill, rate, far_sill, far_rate, exp=math.exp, sqrt=math.sqrt):
    """Of a nugget and two nested structures."""
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
        check_same(run()["result"], deviation(*VALUES))
        ours, theirs = lambda: 1.0 / run()["items_per_second"], per_call(deviation, *VALUES)
        return Figure(name, SIZES, 1, goal=goal, **bench.compare(ours, theirs, advantage))

    figure.__name__ = name
    return figure


def call_figure(name, nodes, argument):
    def figure(bench):
        """A call from Python with what `argument` makes of the values."""
        args = [nodes.Variable(name, 0.0) for name in NAMES]
        body = deviation(*args, nodes.exp, nodes.sqrt)
        compiled, values = nodes.Function.Scalar(args, body).ScalarFunction(), argument(VALUES)
        result = compiled(values)
        check_same(getattr(result, "value", result), deviation(*VALUES))
        sides = per_call(compiled, values), per_call(deviation, *VALUES)
        return Figure(name, SIZES, 1, **bench.compare(*sides, advantage))

    figure.__name__ = name
    return figure


def fit_figure(name, n_threads, builds, goal=None):
    def figure(bench):
        """Five parameters to many residuals, against a model over arrays, which takes differences.
        Where ours `builds` it starts without expressions.
        """
        lags = np.linspace(0.0, 10.0, N_RESIDUALS)
        noise = np.random.RandomState(1).normal(0, 0.02, N_RESIDUALS)
        values = deviation(lags, *TRUTH, np.exp, np.sqrt) + noise
        pairs = list(zip(lags.tolist(), values.tolist()))

        def build():
            args, m = [jet.ast.Variable(name, x) for name, x in zip(NAMES[1:], START)], jet.ast
            bodies = [deviation(lag, *args, m.exp, m.sqrt) - value for lag, value in pairs]
            return [m.Function.Scalar(args, body) for body in bodies], args, {}

        def residuals(args):
            return deviation(lags, *args, np.exp, np.sqrt) - values

        solve = partial(ceres.solve, n_threads=n_threads)
        ours = (lambda: solve(*build())) if builds else partial(solve, *build())
        theirs = partial(least_squares, residuals, START, ftol=1e-6)
        if not math.isclose(ours()[1], theirs().cost, rel_tol=1e-5):
            raise RuntimeError("the two sides do not find the same fit")
        sides = (per_item(fit, 1, time.perf_counter) for fit in (ours, theirs))
        times = bench.compare_least(*sides, slowdown)
        sizes = {"parameters": len(START), "residuals": N_RESIDUALS}
        return Figure(name, sizes, gx.check_n_threads(n_threads), goal=goal, **times)

    figure.__name__ = name
    return figure


def markov_chain(bench):
    """A target; the transiogram has three classes, which forget each other exponentially."""
    u, v = (ast.Variable(name, [0.0] * 3) for name in "uv")
    lag = (u - v) / RANGES
    kept = ast.exp(-3.0 * ast.sqrt(lag * lag))
    table = [[p + (float(j == k) - p) * kept for k, p in enumerate(SHARES)] for j in range(3)]
    transitions, search = gx.transiogram.Transiogram(u, v, table), gx.Ellipsoid(1, 1, 1, 90, 0, 0)
    targets, samples = bench.targets[: bench.n_targets // 2], bench.samples[:N_SAMPLES]
    classes = np.digitize(bench.values[:N_SAMPLES], [1.2, 1.7]).tolist()
    given = targets, samples, classes, transitions, search
    simulate = partial(gx.markov_chain.simulation, *given, knn=KNN)
    sizes = {"targets": len(targets), "samples": N_SAMPLES, "classes": len(SHARES), "knn": KNN}
    return Figure("markov_chain", sizes, 1, **bench.time(per_item(simulate, len(targets))))


FIGURES = (
    expression_figure("double", ">= 10"),
    expression_figure("jet"),
    call_figure("expression_call_double", ast, algebra.RealVector),
    call_figure("expression_call_jet", jet.ast, algebra.JetVector),
    call_figure("expression_call_list", ast, list),
    fit_figure("expression_fit", 1, False, "<= 4"),
    fit_figure("expression_fit_threads", 0, False, "<= 4"),
    fit_figure("expression_build_fit", 1, True),
    fit_figure("expression_build_fit_threads", 0, True),
    markov_chain,
)
