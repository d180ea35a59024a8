"""Kriging and the moving window."""

from functools import partial

import gravelox
import numpy as np
import pytest
from oracles.estimation import kriging, limited, moving_window, structures

METRIC = ((30.0, 18.0, 8.0), (25.0, -15.0, 35.0))
MODEL = [
    ("nugget", 0.2, (1, 1, 1), (0, 0, 0)),
    ("spherical", 0.9, *METRIC),
    ("exponential", 0.4, *METRIC),
    ("gaussian", 0.3, (12.0, 12.0, 5.0), (90.0, 0.0, 0.0)),
    ("spherical", 0.25, *METRIC),
]


def test_estimates_against_dense_systems(rng):
    samples, values = rng.uniform(0, 40, (150, 3)), rng.lognormal(0, 1, 150)
    targets = np.vstack([rng.uniform(0, 40, (40, 3)), samples[:3]])
    search = gravelox.Neighborhood(samples, gravelox.Ellipsoid(*METRIC))
    dhids = rng.integers(0, 12, 150).tolist()
    limits = {"max_neighbors_octant": 4, "dhids": dhids, "max_neis_by_dhid": 3}
    candidates = [search.find_neighbors(target, 40) for target in targets]
    neighbors = [limited(i, samples, t, 4, dhids, 3) for i, t in zip(candidates, targets)]
    assert min(map(len, neighbors)) > 5

    def dense(system, **mean):
        pairs = zip(neighbors, targets)
        return np.transpose([system(MODEL, samples[i], values[i], t, **mean) for i, t in pairs])

    def found(function, *mean, data=values):
        rest = (structures(MODEL), *mean, search, 40)
        return np.array(function(targets, samples, data, *rest, **limits))

    ordinary = found(gravelox.compute_ordinary_kriging)
    # Estimates of zeros are the multipliers.
    multipliers, _ = found(gravelox.compute_ordinary_kriging, data=np.zeros(150))
    assert np.allclose([*ordinary, multipliers], dense(kriging), rtol=1e-9, atol=1e-9)
    assert np.abs(multipliers).max() > 1e-3
    for mean in (0.0, 5.5):
        simple = found(gravelox.compute_simple_kriging, mean)
        assert np.allclose(simple, dense(kriging, mean=mean)[:2], rtol=1e-9, atol=1e-9)
    rest = (search, samples, values, structures(MODEL), 40)
    window = gravelox.moving_window_estimation(targets, *rest, **limits)
    assert np.allclose(window, dense(moving_window), rtol=1e-12, atol=0)


def test_textbook_case():
    """Isaaks and Srivastava (1989), chapter 12."""
    x = [61, 63, 64, 68, 71, 73, 75]
    samples = np.column_stack([x, [139, 140, 129, 128, 140, 141, 128], np.zeros(7)])
    covs = structures([("exponential", 10, (10, 10, 10), (0, 0, 0))])
    run = partial(gravelox.compute_ordinary_kriging, [(65, 137, 0)], samples)
    search = gravelox.Neighborhood(samples)
    (estimate,), (variance,) = run([477, 696, 227, 646, 606, 791, 783], covs, search, 7)
    (multiplier,), _ = run([0] * 7, covs, search, 7)
    assert estimate - multiplier == pytest.approx(592.7, abs=0.05)
    assert variance == pytest.approx(8.96, abs=0.005)


def test_few_neighbors():
    samples, values = [(0, 0, 0), (0, 0, 50)], [3.0, 8.0]
    search = gravelox.Neighborhood(samples)
    covs = structures([("spherical", 2.0, (10, 10, 10), (90, 0, 0))])
    targets = [(9, 0, 0), (11, 0, 0), (0, 0, 25)]  # one, one beyond the covariance, none
    rest = (targets, samples, values, covs)
    for found in (
        gravelox.compute_simple_kriging(*rest, 99, search, 0, 20.0),
        gravelox.compute_ordinary_kriging(*rest, search, 0, 20.0),
    ):
        assert np.array_equal(found, [[3, 3, np.nan], [0, 0, 0]], equal_nan=True)
    window = gravelox.moving_window_estimation(targets, search, samples, values, covs, 0, 20.0)
    assert np.array_equal(window, [3, np.nan, np.nan], equal_nan=True)


@pytest.mark.parametrize("shape", ["spherical", "gaussian", "nugget"])
def test_coincident_samples_and_targets_on_samples(shape, rng):
    places, values = rng.uniform(0, 10, (6, 3)), rng.normal(4, 1, 6)
    targets = [*rng.uniform(0, 10, (5, 3)), *places]
    covs = structures([(shape, 1.0, (25, 20, 15), (10, 20, 30))])
    found = []
    for n in (1, 3):
        samples, data = np.repeat(places, n, axis=0), np.repeat(values, n)
        rest, search = (targets, samples, data, covs), gravelox.Neighborhood(samples)
        found.append(gravelox.compute_simple_kriging(*rest, 4, search, 6 * n))
        found.append(gravelox.compute_ordinary_kriging(*rest, search, 6 * n))
    assert np.isfinite(found).all()
    on_samples = np.array(found)[:2, :, 5:]  # the variances stand on the floor
    assert np.allclose(on_samples, [values, [1e-10] * 6], rtol=1e-9, atol=0)
    if shape != "gaussian":  # whose systems are nearly singular without duplicates too
        assert np.allclose(found[0], found[2], rtol=1e-6, atol=1e-9)
