"""Points from their distances: known configurations, starts of tries, a plain random search."""

import re
import time
from functools import partial

import gravelox
import numpy as np
import pytest
from gravelox import DistPair, dense_MDS, sparse_MDS
from numpy.testing import assert_allclose, assert_array_equal
from oracles import projection as plain
from scipy.optimize import least_squares
from scipy.spatial.distance import cdist, pdist, squareform

search = gravelox.mds_using_random_search


def sparse(dim, n, table, *rest, **options):
    pairs = [DistPair(i, j, table[i][j]) for i, j in zip(*np.triu_indices(n, 1))]
    return sparse_MDS(dim, n, pairs, *rest, **options)


@pytest.mark.parametrize("form", [dense_MDS, sparse])
@pytest.mark.parametrize("dim", [2, 3])
def test_known_configurations(form, dim, rng):
    x = rng.normal(0, 20, (9, dim))
    table, (i, j) = cdist(x, x), np.transpose([(0, 3), (2, 5), (1, 7), (4, 6)])
    found, (table[i, j]) = form(dim, 9, table, ntries=40, eps=1e-20), (1e20, 1e30, 0, -4)
    table[j, i] = table[i, j]
    assert form(dim, 9, table) == []  # with missing pairs random starts lose
    known = form(dim, 9, table, x + rng.normal(0, 0.5, x.shape), eps=1e-20)
    assert_allclose([pdist(found), pdist(known)], [pdist(x)] * 2, rtol=1e-6)


def on_sphere(x, radius=1):
    return radius * x / np.linalg.norm(x, axis=1)[:, None]


@pytest.mark.parametrize("radius", [0.5, 1, 3])
def test_points_on_a_sphere(radius, rng):
    x = on_sphere(rng.normal(size=(9, 3)), radius)
    found = dense_MDS(3, 9, cdist(x, x), do_sphering=True)
    assert_allclose(pdist(found), pdist(x), rtol=1e-6)
    assert_allclose(np.linalg.norm(found, axis=1), radius, rtol=1e-6)


FORMS = [(dense_MDS, {"optimize_mean": a, "do_sphering": b}) for a in (0, 1) for b in (0, 1)]


@pytest.mark.parametrize(("form", "options"), [*FORMS, (sparse, {})])
def test_tries(form, options, rng, capfd):
    table, ways = rng.uniform(1, 9, (7, 7)), 1 + (form is dense_MDS)
    table[2, 5], (i, j) = -50, np.triu_indices(7, 1)
    d = (table[i, j] + (ways - 1) * table[j, i]) / ways
    i, j, d, high = i[d > 0], j[d > 0], d[d > 0], table.max() if ways == 2 else d.max()
    starts = plain.starts_of_scaling((7, 3), (1 - ways) * high, high, -7, 4)
    starts = [on_sphere(x) if options.get("do_sphering") else x for x in starts]
    squares = np.array([plain.relative_errors(x, i, j, d) ** 2 for x in starts])
    means, sums = squares.mean(axis=1) ** 2 / 2, squares.sum(axis=1) * ways / 2
    costs = means if options.get("optimize_mean") else sums
    run = partial(form, 3, 7, table, np.ones((6, 3)), 0, True, 1, -7, **options)
    for n, eps, n_run in ((4, 0, 4), (4, 1e9, 1), (1, 0, 1), (0, 0, 0)):
        found, (out, _) = run(ntries=n, eps=eps), capfd.readouterr()
        assert_allclose(found, starts[costs[:n_run].argmin()] if n else [], rtol=1e-12)
        reported = re.findall(r"^ +0 +(\S+)", out, re.MULTILINE)
        assert_allclose([*map(float, reported)], costs[:n_run], rtol=2e-6)


@pytest.fixture
def data(rng):
    """A start near eight points, and their distances, with some that do not count."""
    x = rng.normal(size=(8, 3))
    pairs = [(i, j, np.linalg.norm(x[i] - x[j])) for i, j in np.ndindex(8, 8) if i < j]
    pairs += [(3, 3, 1.0), *[(j, i, 9.0) for i, j, _ in pairs], (0, 1, 1e-31)]
    return np.float32(x + rng.normal(0, 0.3, x.shape)), pairs


def test_random_search(data):
    run = data[0], [(5, 2, 1e-31), *data[1][9:]], [1, 0.3, 0.01]
    found = search(3, *run, 40, 5, 1, -7, False, 4)
    assert {row.dtype for row in found} == {np.dtype(np.float32)}
    assert_allclose(found, plain.random_search(*run, 200, -7, 4), rtol=1e-4, atol=1e-5)


def test_errors_of_a_search(data, capfd):
    d, known = np.array([t[2] for t in data[1][:28]]), [DistPair(*t) for t in data[1][:28]]
    run = partial(search, 3, *data, [1, 0.1, 0.01, 1e-3], n_tries_by_iteration=9, n_threads=1)
    found = [run(n_iterations=n) for n in (0, 1, 10, 100, 1000, 9000)]
    errors = [(2 * abs(pdist(x) / d - 1)).sum() for x in found]
    assert max(np.diff(errors)) < 0
    assert abs(pdist(found[5]) / pdist(sparse_MDS(3, 8, known, data[0])) - 1).mean() < 0.05
    rivals = search(3, *data, [1, 0.1], 200, 9, n_threads=2)
    assert (2 * abs(pdist(rivals) / d - 1)).sum() < 0.5 * errors[0]
    assert_array_equal(run(n_iterations=5000, debug=True, target_e=0.5), found[4])
    line = r"Iteration 1000 error: (\S+) mean_absolute_error: (\S+) n_killed: 0\n"
    line, text = line + "Target error reached at iteration 1000\n", "".join(capfd.readouterr())
    reported, mean = re.fullmatch(line, text).groups(), abs(pdist(found[4]) - d).mean()
    assert_allclose([*map(float, reported)], [errors[4], mean], rtol=1e-3)
    assert np.any(np.array(run(n_iterations=9000, debug=True)) != found[5])  # with shorter moves
    start = time.monotonic()
    run(n_iterations=2**31 - 1, time_limit=0, debug=True, target_e=0)
    assert 1 < time.monotonic() - start < 9
    assert "\nStopping due to time limit at iteration " in capfd.readouterr().out


def test_forms_find_the_same_minimum(rng):
    """Of distances that no configuration has; with one residual the solver comes less far."""
    x = rng.uniform(0, 9, (8, 2))
    noisy = pdist(x) * rng.uniform(0.8, 1.2, 28)
    table = squareform(noisy)
    (i, j), start = np.triu_indices(8, 1), x + rng.normal(0, 0.1, x.shape)

    def errors(flat):
        return plain.relative_errors(np.reshape(flat, (8, 2)), i, j, noisy)

    best = least_squares(errors, start.ravel(), xtol=1e-13, ftol=1e-13, gtol=1e-13)
    found = [form(2, 8, table, start, 300, ntries=1) for form in (dense_MDS, sparse)]
    for one in found:
        assert sum(errors(one) ** 2) / 2 == pytest.approx(best.cost, rel=1e-5)
        assert_allclose(pdist(one), pdist(best.x.reshape(8, 2)), rtol=1e-2)
    single = dense_MDS(2, 8, table, start, 300, ntries=1, optimize_mean=True)
    costs = [np.sum(errors(one) ** 2) / 2 for one in (start, single)]
    assert best.cost * (1 - 1e-9) < costs[1] < costs[0]
