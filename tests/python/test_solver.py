"""Fits by expressions: certified problems, scipy's solver, and the rules of a solve."""

from functools import partial

import numpy as np
import pytest
from gravelox import ceres
from gravelox.jet import ast
from gravelox.jet.ast import Function, Variable
from numpy.testing import assert_allclose
from oracles.language import DATA, FITS, MODELS, PLAIN, SQUARES
from scipy.optimize import least_squares


def problem(residuals, start):
    args = [Variable(name, value) for name, value in zip("abcdefghijkl", start)]
    return [Function.Scalar(args, residual) for residual in residuals(args)], args


def solve(residuals, start, boundary=(), **options):
    found, cost = ceres.solve(*problem(residuals, start), dict(boundary), **options)
    return [*found.values()], cost


def residuals_of(name, b, m=PLAIN):
    named = m | dict(zip("abcdefg", b))
    return [eval(MODELS[name], named | {"x": x}) - y for y, x in DATA[name].T.tolist()]


def test_certified_problems():
    """The solver stops at steps that change the cost by less than 1e-6, a bit above the least."""
    digits, lost = {}, {"BoxBOD 1", "MGH10 1", "MGH17 1"}  # from where it goes elsewhere
    for name, (*starts, certified) in FITS.items():
        least = np.sum(np.square(residuals_of(name, certified)))
        assert least == pytest.approx(SQUARES[name], rel=1e-9)
        for i, start in enumerate(starts, 1):
            found, cost = solve(partial(residuals_of, name, m=vars(ast)), start)
            digits[f"{name} {i}"] = -np.log10(max(abs(found / certified - 1.0)))
            assert (2.0 * cost / least - 1.0 < 2e-6) == (f"{name} {i}" not in lost), name
    print(digits, "on average", np.maximum([*digits.values()], 0.0).mean())
    assert sum(n >= 4.0 for n in digits.values()) >= 12
    assert {name for name, n in digits.items() if n < 2.7} == lost


def rosenbrock(x):
    return [r for u, v in zip(x, x[1:]) for r in (10.0 * (v - u * u), 1.0 - u)]


def powell(x):
    pairs = (x[1] - 2.0 * x[2]) * (x[1] - 2.0 * x[2]), (x[0] - x[3]) * (x[0] - x[3])
    return [x[0] + 10.0 * x[1], 5**0.5 * (x[2] - x[3]), pairs[0], 10**0.5 * pairs[1]]


def test_known_minima():
    starts = [-1.2, 1.0], [0.5] * 12, [3.0, -1.0, 0.0, 1.0]
    for start, residuals, minimum in zip(starts, (rosenbrock, rosenbrock, powell), (1.0, 1.0, 0.0)):
        found, cost = solve(residuals, start)
        assert_allclose([*found, 1e6 * cost], [minimum] * len(start) + [0.0], atol=1e-3)


X, START = np.linspace(0.0, 4.0, 60), [1.0, 1.0, 0.0]
Y = 2.0 * np.exp(-0.8 * X) + 0.3 + np.random.default_rng(5).normal(0, 0.02, 60)
Y[4::9] += 1.5


def decay(b, exp=ast.exp):
    return [b[0] * exp(b[1] * -x) + b[2] - y for x, y in zip(X.tolist(), Y.tolist())]


@pytest.mark.parametrize("loss", [0.0, 9e-11, 0.05, 0.3])
@pytest.mark.parametrize("boundary", [{}, {"b": (0.9, 1.2)}, {"b": (0.2, 0.7)}, {"c": (-1, 0.25)}])
def test_bounds_and_losses_are_those_of_scipy(boundary, loss):
    """The start is moved onto the bounds; where they bind the solver stops early."""
    found, cost = solve(decay, START, boundary, cauchy_loss=loss)
    limits = np.transpose([boundary.get(name, (-np.inf, np.inf)) for name in "abc"])
    robust = {"loss": "cauchy", "f_scale": loss} if loss > 1e-10 else {}
    run = partial(least_squares, bounds=limits, xtol=1e-12, ftol=1e-12, **robust)
    start = np.clip([2.0, 0.8, 0.3], limits[0] + 0.01, limits[1] - 0.01)
    expected = run(lambda b: np.array(decay(b, np.exp)), start)
    assert -1e-9 < cost / expected.cost - 1.0 < (0.01 if boundary else 1e-6)
    assert_allclose(found, expected.x, atol=0.02 if boundary else 1e-3)
    assert (abs(limits - found).min() == 0.0) == bool(boundary)


def test_blocks_of_vectors():
    c, k = Variable("c", [1.0, 0.0]), Variable("k", 0.1)
    bodies = [c * [1.0, x] * ast.exp(k * -x) + 0.3 - y for x, y in zip(X.tolist(), Y.tolist())]
    costs = [Function.Vector([c, k], body) for body in (*bodies, c - [1.5, 0.5])]
    boundary = {"c": ([-9.0, -0.2], [9.0, 9.0]), "k": ([0.0], [0.6]), "z": ([], [])}

    def residuals(b):  # of the last cost the norm
        single = (b[0] + b[1] * X) * np.exp(-b[2] * X) + 0.3 - Y
        return np.append(single, np.hypot(b[0] - 1.5, b[1] - 0.5))

    start, least = {"c": [1.0, 0.0], "k": [0.1]}, 0.5 * sum(residuals([1.0, 0.0, 0.1]) ** 2)
    assert ceres.vec.solve(costs, [c, k], boundary, 0) == (start, pytest.approx(least))
    found, cost = ceres.vec.solve(costs, [c, k], boundary, cauchy_loss=0.1)
    run = partial(least_squares, bounds=([-9, -0.2, 0], [9, 9, 0.6]), loss="cauchy", f_scale=0.1)
    expected = run(residuals, [1, 0, 0.1], xtol=1e-12, ftol=1e-12)
    assert -1e-9 < cost / expected.cost - 1.0 < 1e-3
    assert_allclose([*found["c"], *found["k"]], expected.x, atol=0.02)
    assert (found["c"][1], c.vec.tolist(), k.scalar.value) == (-0.2, [1.0, 0.0], 0.1)


def test_variables_keep_what_they_hold():
    a, b = Variable("a", 1.0), Variable("b", [5.0, 6.0])
    p, q = Variable("p", 7.0), Variable("q", 8.0)  # take values by their places
    solution = ceres.solve([Function.Scalar([p, q], p - 2.0 * q)], [b, a], {"a": (2, 3)}, 0)
    assert solution == ({"a": 2.0, "b": 0.0}, 8.0)
    assert ceres.solve([Function.Scalar([b], b * b)], [b], {}, 0) == ({"b": 5.0}, 1860.5)
    assert [x.variable_type_name for x in (a, b)] == ["scalar", "vector"]
    assert [x.scalar.value for x in (a, p, q)] + b.vec.tolist() == [1.0, 7.0, 8.0, 5.0, 6.0]
    twins = [Variable("k", 1.0), Variable("k", 2.0)]
    assert ceres.solve([Function.Scalar(twins, 3 * twins[0])], twins, {}, 0) == ({"k": 2.0}, 4.5)


@pytest.mark.parametrize("run", [ceres.solve, ceres.vec.solve])
def test_validation(run):
    costs, args = problem(decay, START)

    def go(*given, **options):
        seen, answers = [], iter(given)
        options["validation_cb"] = lambda current: seen.append(current) or next(answers)
        found, cost = run(costs, args, {}, **options)
        assert [*found.values()] == seen[-1]
        assert cost == pytest.approx(0.5 * np.sum(np.square(decay(np.ravel(seen[-1]), np.exp))))
        return seen

    steps = go(*[1, "yes", [0]] * 99)
    assert steps[0] == (START if run is ceres.solve else [[x] for x in START])
    for n, no in ((0, False), (1, ()), (3, None)):
        assert go(*[True] * n, no) == go(*[True] * 9, n_iterations=n) == steps[: n + 1]
    assert steps[0] != steps[1] != steps[2]
    with pytest.raises(StopIteration):
        go(True, True)
    assert [x.scalar.value for x in args] == START


def test_losses_without_a_scale():
    plain = solve(decay, START)
    for loss in (0.0, -1.0, -np.inf, np.nan, 9e-11):
        assert solve(decay, START, cauchy_loss=loss) == plain
    for run, loss in ((run, x) for run in (ceres.solve, ceres.vec.solve) for x in (1.4e154, 1e200)):
        with pytest.raises(ValueError, match=r"cauchy_loss: .*finite square"):
            run(*problem(decay, START), {}, cauchy_loss=loss)


@pytest.mark.parametrize("run", [ceres.solve, ceres.vec.solve])
def test_answers_without_a_truth_value(run):
    class Unsure:
        def __bool__(self):
            raise LookupError("no truth")

    costs, args = problem(decay, START)
    for answer, error in ((np.ones(2), ValueError), (Unsure(), LookupError)):
        answers = iter([answer])
        with pytest.raises(error, match="truth"):
            run(costs, args, {}, validation_cb=lambda x, answers=answers: next(answers))
        assert [*answers] == []
    assert run(costs, args, {})[1] < run(costs, args, {}, 0)[1]


def test_vectors_in_a_fit_of_scalars():
    """Its first element is fitted, also where a body reads the vector."""
    b, c = Variable("b", [5.0, 6.0]), Variable("c", 1.0)
    costs = [Function.Scalar([b, c], body) for body in (b - [1.0, 6.0], c + b * [1.0, 1.0] - 9.0)]
    found, cost = ceres.solve(costs, [b, c], {}, 200)
    assert_allclose([found["b"], found["c"], cost], [1.0, 2.0, 0.0], atol=1e-2)
    kinds = [x.variable_type_name for x in (b, c)]
    assert (kinds, b.vec.tolist(), c.scalar.value) == (["vector", "scalar"], [5.0, 6.0], 1.0)
