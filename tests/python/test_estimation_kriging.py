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
COVS = structures(MODEL)


class Case:
    """Samples in holes, targets among and upon them, and the neighbours that limits leave."""

    def __init__(self, rng):
        self.samples, self.values = rng.uniform(0, 40, (150, 3)), rng.lognormal(0, 1, 150)
        self.targets = np.vstack([rng.uniform(0, 40, (40, 3)), self.samples[:3]])
        dhids = rng.integers(0, 12, 150).tolist()
        self.search = gravelox.Neighborhood(self.samples, gravelox.Ellipsoid(*sum(METRIC, ())))
        self.neighbors = [
            limited(self.search.find_neighbors(target, 40), self.samples, target, 4, dhids, 3)
            for target in self.targets
        ]
        assert min(map(len, self.neighbors)) > 5
        self.limits = {"max_neighbors_octant": 4, "dhids": dhids, "max_neis_by_dhid": 3}

    def expected(self, function):
        pairs = zip(self.neighbors, self.targets)
        rows = [function(MODEL, self.samples[i], self.values[i], target) for i, target in pairs]
        return np.transpose(rows)

    def ordinary(self, covs, targets):
        """Estimates, variances and multipliers, which are the estimates of zeros."""
        run = partial(gravelox.compute_ordinary_kriging, targets, self.samples)
        run = partial(run, covs=covs, neighborhood=self.search, max_neighbors=40, **self.limits)
        return np.array([*run(data=self.values), run(data=np.zeros(150))[0]])

    def simple(self, mean, targets):
        run = partial(gravelox.compute_simple_kriging, targets, self.samples, self.values, COVS)
        return np.array(run(mean, self.search, 40, **self.limits))

    def window(self, targets):
        run = partial(gravelox.moving_window_estimation, targets, self.search, self.samples)
        return np.array(run(self.values, COVS, 40, **self.limits))

    def estimate(self, create, *args, targets):
        estimator = create(*args, max_neighbors=40, **self.limits)
        return np.array(estimator(targets, self.search, self.samples, self.values))


@pytest.fixture
def case(rng):
    return Case(rng)


def test_estimates_against_dense_systems(case):
    found = case.ordinary(COVS, case.targets)
    assert np.allclose(found, case.expected(kriging), rtol=1e-9, atol=1e-9)
    assert np.abs(found[2]).max() > 1e-3
    by_object = case.estimate(gravelox.OrdinaryKriging, COVS, targets=case.targets)
    assert np.array_equal(by_object, found[0])
    for mean in (0.0, 5.5):
        found, dense = case.simple(mean, case.targets), case.expected(partial(kriging, mean=mean))
        assert np.allclose(found, dense[:2], rtol=1e-9, atol=1e-9)
        by_object = case.estimate(gravelox.SimpleKriging, COVS, mean, targets=case.targets)
        assert np.array_equal(by_object, found[0])
    window = case.expected(moving_window)
    assert np.allclose(case.window(case.targets), window, rtol=1e-12, atol=0)


def test_weights_do_not_depend_on_the_scale_of_the_sills(case):
    plain, small = (case.ordinary(structures(MODEL, f), case.targets) for f in (1.0, 1e-6))
    assert np.allclose(plain[0] - plain[2], small[0] - small[2], rtol=1e-9)
    away = slice(40)  # the variances on samples stand on the floor
    assert np.allclose(plain[1:, away], 1e6 * small[1:, away], rtol=1e-8)


@pytest.mark.parametrize("rows", [slice(7, 8), slice(7, 30)])
def test_a_slice_of_the_targets_gives_the_rows_of_the_whole(case, rows):
    for run in (
        partial(case.ordinary, COVS),
        partial(case.simple, 1),
        case.window,
        lambda targets: case.estimate(gravelox.IDW, targets=targets),
        lambda targets: case.estimate(gravelox.IDW, COVS, targets=targets),
    ):
        assert np.array_equal(run(case.targets[rows]), run(case.targets)[..., rows])


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
    rest = (search, 0, 20.0)
    simple = gravelox.compute_simple_kriging(targets, samples, values, covs, 99, *rest)
    ordinary = gravelox.compute_ordinary_kriging(targets, samples, values, covs, *rest)
    assert np.array_equal(simple, [[3, 3, np.nan], [0, 0, 0]], equal_nan=True)
    assert np.array_equal(ordinary, simple, equal_nan=True)
    run = partial(gravelox.moving_window_estimation, targets, search, samples, values, covs)
    assert np.array_equal(run(0, 20.0), [3, np.nan, np.nan], equal_nan=True)


@pytest.mark.parametrize(("shape", "reach"), [("nugget", 1e-8), ("exponential", 230)])
def test_moving_window_ends_where_the_weights_vanish(shape, reach):
    covs = structures([(shape, 1.0, (10, 10, 10), (90, 0, 0))])
    for x, expected in ((0.99 * reach, 3), (1.01 * reach, np.nan)):
        samples = [(x, 0, 0), (0, 999, 0)]
        rest = (gravelox.Neighborhood(samples), samples, [3, 5], covs, 2)
        found = gravelox.moving_window_estimation([(0, 0, 0)], *rest)
        assert found == pytest.approx([expected], nan_ok=True)


def test_targets_on_samples_have_their_values_and_the_least_variance(rng):
    samples, values = rng.uniform(0, 20, (12, 3)), rng.normal(4, 1, 12)
    covs = structures([("spherical", 1.0, (25, 20, 15), (10, 20, 30))])
    rest = (samples, samples, values, covs)
    search = gravelox.Neighborhood(samples)
    for found in (
        gravelox.compute_simple_kriging(*rest, 7, search, 12),
        gravelox.compute_ordinary_kriging(*rest, search, 12),
    ):
        assert np.allclose(found, [values, [1e-10] * 12], rtol=1e-9, atol=0)


@pytest.mark.parametrize("shape", ["spherical", "gaussian", "nugget"])
def test_coincident_samples_give_finite_results(shape, rng):
    places, values = rng.uniform(0, 10, (6, 3)), rng.normal(4, 1, 6)
    targets = [*rng.uniform(0, 10, (5, 3)), places[4]]
    covs = structures([(shape, 1.0, (25, 20, 15), (10, 20, 30))])
    found = []
    for n in (1, 3):
        samples, data = np.repeat(places, n, axis=0), np.repeat(values, n)
        rest, search = (targets, samples, data, covs), gravelox.Neighborhood(samples)
        found.append(gravelox.compute_simple_kriging(*rest, 4, search, 6 * n))
        assert np.isfinite(gravelox.compute_ordinary_kriging(*rest, search, 6 * n)).all()
    assert np.isfinite(found).all()
    if shape != "gaussian":  # whose systems are nearly singular without duplicates too
        assert np.allclose(*found, rtol=1e-6, atol=1e-9)
