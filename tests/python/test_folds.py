"""Folds of samples, and how well models predict samples from random parts of their neighbours."""

import gravelox
import numpy as np
import pytest
from numpy.testing import assert_allclose
from oracles import optimization
from oracles.estimation import inverse_distance, limited, structures

MODEL = [("spherical", 0.6, (9, 5, 4), (30, 10, 0)), ("nugget", 0.4, (1, 1, 1), (0, 0, 0))]
COVS, METRIC = structures(MODEL), gravelox.Ellipsoid(4, 9, 2, 90, 0, 0)


@pytest.fixture
def samples(rng):
    """On a grid, so that distances tie and equal a limit, with values that tie."""
    places = np.array([*np.ndindex(6, 6, 6)])[rng.permutation(216)[:60]] - 2.0
    return places, rng.integers(0, 30, 60) / 3.0


def rows(parts):
    return [np.column_stack(part).tolist() for part in parts]


CUTS = [(4.0, -1, 8, 3), (4.0, 0, 8, -7), (3.0, 12, 8, 21315), (1.0, 59, 50, 0), (2.0, 60, 8, 1)]
CUTS += [(4.0, 61, 8, 2), (0.0, 5, 8, 2), (-1.0, -1, 8, 2), (9.0, 5, 0, 3), (99.0, 7, 1, 3)]


@pytest.mark.parametrize("cut", CUTS)
def test_folds(cut, samples):
    for n in (1, 2, 60):
        few = [part[:n] for part in samples]
        found = rows(gravelox.create_folds(*few, *cut))
        assert found == rows(optimization.folds(*few, *cut))
    assert cut[0] >= 0 or len(found) == 1  # of all samples


@pytest.mark.parametrize("scales", [[2.5, 0.5, 6.0], [1.0], []])
@pytest.mark.parametrize("sizes", [(4, 9), (1, 50)])
def test_folds_of_thinned_samples(sizes, scales, samples):
    run = 5, *sizes, 4.0, scales, METRIC, *samples, 1.0, 1, 1, 77
    expected = optimization.multiscale_folds(5, sizes, 4.0, scales, METRIC.matrix(), *samples, 77)
    assert rows(gravelox.create_folds_using_multiscale(*run)) == rows(expected)


# Largest distance and number, least and largest partition, partitions.
RUNS = [(4.0, -1, 3, 8, 4), (4.0, 0, 1, 1, 3), (3.0, 59, 0, 2, 3), (6.0, 60, 3, 9, 2)]
RUNS += [(6.0, 8, 90, 99, 2), (9.0, 12, 7, 4, 2), (2.0, -1, 2, 3, 2), (3.0, 70, 2, 3, 0)]
LOCAL = {"sk": [(optimization.kriged(MODEL, 0.0), [])], "ok": [(optimization.kriged(MODEL), [])]}
LOCAL["idw"] = [
    (lambda s, *of, p=p: inverse_distance(s, *of, p, 0, MODEL) if len(s) else np.nan, [p])
    for p in (3, 1.7, 0)
]


@pytest.mark.parametrize("n_threads", [1, gravelox.check_n_threads(2)])
@pytest.mark.parametrize("method", LOCAL)
@pytest.mark.parametrize("run", RUNS)
def test_cross_validation_by_random_partitions(method, run, n_threads, samples):
    *reach, low, high, n = run
    function = getattr(gravelox, f"kfold_cross_validation_using_{method}")
    for seed, (estimate, power) in enumerate(LOCAL[method], -5):
        found = function(*samples, COVS, *reach, *power, low, high, n, n_threads, seed)
        expected = optimization.kfold(*samples, estimate, *reach, (low, high), n, seed, n_threads)
        assert_allclose(np.reshape(found, (60, n)), expected, rtol=1e-7, atol=1e-9)
        assert np.isfinite(expected).any() or n == 0


def test_error_over_scales_that_take_all_neighbors(samples):
    (locs, values), run = samples, gravelox.multi_scale_cross_validation_error
    near, z = gravelox.Neighborhood(locs, METRIC).find_neighbors, optimization.standardized(values)
    ids = [[j for j in limited(near(x, 20), locs, x, 4) if any(locs[j] != x)] for x in locs]
    local = [optimization.kriged(MODEL, 0.0)(locs[i], z[i], x) for i, x in zip(ids, locs)]
    assert min(map(len, ids)) > 2
    found = run(*samples, COVS, 4, 9, 2, [0.01, 0.05], 20, -1, 4)
    assert found == pytest.approx(np.abs(local - z).mean(), rel=1e-9)
    assert np.isnan(run(*samples, COVS, 4, 9, 2, [0.01], 3, -1, -1))  # the sample and two others
