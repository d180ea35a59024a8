"""Estimates and simulations from many local models, and blends of ellipsoids."""

import gravelox
import numpy as np
import pytest
from gravelox import Ellipsoid, Neighborhood
from numpy.testing import assert_allclose
from oracles import optimization, spatial
from oracles.estimation import limited, structures

NUGGET = ("nugget", 0.3, (1, 1, 1), (0, 0, 0))
MODELS = [[("spherical", 0.7, (20 + 3 * i, 9, 5), (40 * i, 10, 0)), NUGGET] for i in range(5)]
COVS, SEARCH = [structures(model) for model in MODELS], Ellipsoid(20, 12, 9, 30, 10, 5)
HOLES, ERRORS = [*range(10)] * 6, np.array([0.5, 2.0, 0.0, 1e3, 1.0])


@pytest.fixture
def campaign(rng):
    """Targets, samples, values, and centers of models, the first of which is a target."""
    targets, samples, centers = (rng.uniform(0, 30, (n, 3)) for n in (25, 60, 5))
    return np.vstack([centers[:1], targets]), samples, rng.lognormal(1, 1, 60), centers


# Samples, distance, models, samples by octant and hole, power, weight of close models; then the
# scale of the errors, whether data are standardised and kriging is simple, the mean.
LIMITS = [(8, -1, 0, 2, 1, 2, 0.5), (-1, 0.6, 3, -1, -1, 3, 0.9), (1, 9, 2, -1, -1, 0.7, 0.2)]
LIMITS += [(6, -1, 4, -1, 2, 2, 0), (6, 2, -1, -1, -1, 1, 1)]
FORMS = [(1, 1, 0, 9.0), (1, 0, 1, 4.0), (1e12, 1, 1, 0.4), (0, 0, 0, 1.0)]


@pytest.mark.parametrize(("scale", "normal", "simple", "mean"), FORMS)
@pytest.mark.parametrize("limits", LIMITS)
def test_estimates(limits, scale, normal, simple, mean, campaign):
    (targets, samples, values, centers), (n, reach, k, octant, hole, *rest) = campaign, limits
    models, hood = Neighborhood(centers, SEARCH), Neighborhood(samples, SEARCH)
    shift, unit = (values.mean(), values.std()) if normal else (0.0, 1.0)
    first, errors = n if n > 0 else reach, scale * ERRORS
    expected = optimization.ensemble_estimates(
        *(targets, samples, (values - shift) / unit, centers, MODELS, errors),
        lambda t: limited(hood.find_neighbors(t, first), samples, t, octant, HOLES, hole),
        lambda t: models.find_neighbors(t, k if k > 0 else 5),
        *(*rest, mean if simple else None),
    )
    cut = gravelox.LocalCovariances(centers, COVS, errors), SEARCH, n, reach, k, octant, *rest
    run, form = (targets, samples, values, *cut), (simple, mean, HOLES, hole)
    found = gravelox.ensemble_estimation(*run, 2, normal, None, *form)
    assert_allclose(found, np.array([*expected]) * unit + shift, rtol=1e-7)
    assert np.isfinite(found).any() == (rest[1] > 0 or scale == 1)
    again = gravelox.EnsembleEstimation(*cut, normal, *form)(targets, hood, samples, values)
    again = [again, gravelox.ensemble_estimation(*run, 0, normal, hood, *form)]
    assert np.array(again).tobytes() == np.array(found).tobytes() * 2


@pytest.mark.parametrize(("n", "reach", "k"), [(8, -1, 3), (-1, 0.5, 9), (1, -1, 0)])
def test_weights_that_fall_exponentially(n, reach, k, campaign):
    targets, *data, centers = campaign
    hood, models = Neighborhood(data[0], SEARCH), Neighborhood(centers, SEARCH)
    local, expected = gravelox.LocalCovariances(centers, COVS, -ERRORS), []
    for target in targets:
        near = models.find_neighbors(target, k)
        run = [([target], *data, COVS[m], hood, n, reach, 2, 1, HOLES, 1) for m in near]
        e = [gravelox.compute_ordinary_kriging(*each)[0][0] for each in run]
        d = optimization.lengths(centers[near], target)
        weights = np.exp(-((d * 0.1) ** 1.5) - abs(ERRORS[near] * 0.7) ** 0.4)
        expected.append(weights @ e / weights.sum() if near else np.nan)
    run = targets, *data, local, SEARCH, n, reach, 2, k, 0.7, 1.5, 0.1, 0.4, 0, HOLES, 1
    assert_allclose(gravelox.compute_simple_ensemble_estimation(*run), expected, rtol=1e-12)


def test_simulation(campaign):
    (targets, *data, centers), cut = campaign, (9, -1, 3, 2, 2, 0.5)
    local = gravelox.LocalCovariances(centers, COVS, [1, 2, 3, 4, 5])
    factory = gravelox.SimulatorFactory.TBSIM(targets, 20)
    field = gravelox.SimulatorGenerator.Ensemble(local, factory, 0.5, 2, 8)
    estimator = gravelox.EnsembleEstimation(local, SEARCH, *cut, False, True, 0.0, HOLES, 2)
    expected = gravelox.simulate(field, estimator, targets, Neighborhood(data[0], SEARCH), *data, 1)
    run = targets, *data, local, SEARCH, factory, *cut, 8, 1, HOLES, 2
    assert gravelox.ensemble_simulation(*run) == expected


@pytest.mark.parametrize("spread", [5, 40, 180])
def test_blends_of_ellipsoids(spread, rng):
    ranges = rng.permuted(rng.uniform((9, 4, 1), (15, 8, 3), (7, 3)), axis=1)
    angles, weights = rng.uniform(-spread, spread, (7, 3)), rng.integers(0, 4, 7) / 2.0
    weights[[0, 3]] = 5.0
    for n in (7, 2, 1):
        w, ellipsoids = weights[:n], [*map(Ellipsoid, ranges[:n], angles[:n])]
        infos = np.array([spatial.ranges_and_angles(e.matrix()) for e in ellipsoids])
        lists = np.hstack([ranges, angles])[:n]
        blends = gravelox.ensemble_model(*lists.T, w), gravelox.ensemble_ellipsoid(w, ellipsoids)
        for table, found in zip((lists, infos), blends):
            rows = [spatial.anisotropy(1.0 / (row[:3] + 1e-6), row[3:]) for row in table]
            assert_allclose(found.matrix(), optimization.blended(w, rows), rtol=1e-9, atol=1e-9)


def test_ellipsoids_at_targets(campaign):
    targets, places, weights, _ = campaign
    ellipsoids = [Ellipsoid(9 + i % 5, 5, 2, 3 * i, i, 0) for i in range(60)]
    run = targets, places, ellipsoids, weights, 0, 4.0, 2, 0.3, 0, HOLES, 1
    for target, found in zip(targets, gravelox.ensemble_local_ellipsoids(*run)):
        near = Neighborhood(places).find_neighbors(target, 4.0)
        near, blend = limited(near, places, target, 2, HOLES, 1), Ellipsoid(np.eye(3))
        if near:
            w = weights[near] / (optimization.lengths(places[near], target) ** 3 + 0.3)
            blend = gravelox.ensemble_ellipsoid(w, [ellipsoids[i] for i in near])
        assert_allclose(found.matrix(), blend.matrix(), rtol=1e-9, atol=1e-12)
