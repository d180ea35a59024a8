"""Simulated fields against plain models, their moments against theory, and conditioning."""

from concurrent.futures import ThreadPoolExecutor
from functools import partial

import gravelox
import numpy as np
import pytest
from gravelox import FIM, TBSIM, SimulatorFactory, SimulatorGenerator
from numpy.testing import assert_allclose
from oracles import simulation, spatial
from oracles.estimation import structures
from oracles.simulation import box_corners, noise, parts, weighted, words
from scipy import stats

METRIC, UNIT = ((60.0, 31.0, 12.0), (30.0, -20.0, 50.0)), ((1, 1, 1), (90, 0, 0))
ONE = {kind: (kind, 2.0, *METRIC) for kind in ("spherical", "gaussian", "exponential")}
NUGGET, OTHER = ("nugget", 0.5, *UNIT), ("gaussian", 0.7, (20, 9, 30), (0, 0, 0))
MODEL = [ONE["exponential"], NUGGET, OTHER, ONE["spherical"]]
CORNERS = np.array([(3.0, -80.0, 5.0), (101.0, 10.0, 44.0), (50.0, 60.0, 20.0)])
BACK = np.linalg.inv(spatial.anisotropy(*METRIC)).T
bands = partial(simulation.turning_bands, CORNERS)


def close(found, expected):
    assert_allclose(found, expected, rtol=0, atol=1e-9)
    assert len(np.unique(found)) > len(found) // 3


@pytest.fixture
def points(rng):
    return rng.uniform((-200, -200, -50), (250, 200, 100), (120, 3))  # many beyond the corners


LONG = np.array([(0.0, 0, 0), (13000, 5, 0)])  # some lines have more than 10000 cells
LINES = [(CORNERS, ONE[kind], n) for kind in ONE for n in (1, 7, 600)] + [(CORNERS, NUGGET, 3)]
LINES += [(LONG, (kind, 1.0, *UNIT), 8) for kind in ONE] + [(CORNERS[:1], ONE["spherical"], 9)]


@pytest.mark.parametrize(("corners", "structure", "n"), LINES)
def test_turning_bands(corners, structure, n, points):
    expected = simulation.turning_bands(corners, structure, -7, n)(points)
    (cov, negative), default = structures([structure, (structure[0], -1, *METRIC)]), n == 600
    close(TBSIM(corners, cov, -7, *([] if default else [n]))(points, 1), expected)
    assert np.isnan(TBSIM(corners, negative, -7)(points)).all()
    assert {*TBSIM(corners, cov, 5, 0)(points), *TBSIM(corners, cov, 5, -3)(points)} == {0.0}


def test_fields_of_a_model(points):
    covs, one, by_factory = structures(MODEL), {"n_threads": 1}, SimulatorFactory.FIM
    field, cube = TBSIM(CORNERS, covs, 5, n=40), partial(simulation.Fourier, CORNERS, size=[8] * 3)
    expected = weighted(parts(MODEL, 5, partial(bands, size=40)))(points)
    close([field(p) for p in points], expected)
    close(SimulatorFactory.TBSIM(CORNERS, 40)(covs, 5)(points, 1), expected)
    expected = weighted(parts(MODEL, 5, cube))(points)
    for n in ((8,), (8, 8, 8)):
        for field in (FIM(CORNERS, covs, 5, *n, **one), by_factory(CORNERS, *n, **one)(covs, 5)):
            close(field(points, 1), expected)
    pair = [FIM(CORNERS, covs[0], 6, n=9, **one), FIM(CORNERS, covs[2], 6, **one)]
    assert pair[1](points) == FIM(CORNERS, covs[2], 6, 128, 128, 128, 1)(points)
    close(gravelox.simulator(pair)(points), weighted(pair)(points))


def test_white_noise(points, rng):
    made, n = partial(TBSIM, CORNERS, structures([NUGGET]), 9), gravelox.check_n_threads(2)
    draws = [np.array(noise(0.5**0.5, words(9, 1)[0], t)(points)) for t in range(n)]
    two = [d[: len(part)] for d, part in zip(draws, np.array_split(points, n))]
    close(made()(points, 1), draws[0])
    close(made()(points, 2), np.concatenate(two))
    with ThreadPoolExecutor(2) as pool:
        values = [*pool.map(made(), np.split(points, 2), (1, 1))]
    close(np.sort(np.ravel(values)), np.sort(draws[0]))
    run = points[40:], gravelox.Neighborhood(points[:40]), points[:40]  # drawn for samples first
    data, estimator = rng.normal(size=40), gravelox.IDW(2, 0.5, 8)
    expected = draws[0][40:] + estimator(*run, data - draws[0][:40], 1)
    close(gravelox.simulate(made(), estimator, *run, data, 1), expected)


def check_moments(simulate, points, theory):
    """points[j, k] is point k of lag j, lag 0 first."""
    fields = np.array([simulate(seed)(points.reshape(-1, 3)) for seed in range(500)])
    fields = fields.reshape(500, *points.shape[:2])
    products = (fields * fields[:, :1]).mean(axis=2)
    errors = products.std(axis=0) / 500**0.5
    assert np.all(abs(products.mean(axis=0) - theory) < 4.5 * errors)
    assert errors.max() < 0.03 * theory[0]
    assert stats.kstest(fields[:, 0, 0] / theory[0] ** 0.5, "norm").pvalue > 0.001


@pytest.mark.parametrize("kind", ONE)
def test_moments_of_turning_bands(kind, rng):
    covs, lags = structures([ONE[kind]]), np.outer([0.1, 0.3, 0.5, 0.9], [1, 0, 0])
    steps = np.concatenate([np.zeros((1, 3)), lags, lags[:, ::-1]])
    points = (rng.uniform(0, 12, (1, 100, 3)) + steps[:, None]) @ BACK
    theory = 2.0 * np.array([simulation.lines_covariance(kind, h) for h in steps.sum(axis=1)])
    check_moments(lambda seed: TBSIM(points[0], covs, seed, 200), points, theory)
    assert kind != "exponential" or np.allclose(theory[[1, 3]], [1.38, 0.28], atol=0.01)


@pytest.mark.parametrize("kind", ONE)
def test_moments_of_fourier_integrals(kind, rng):
    (cov,), corners = structures([ONE[kind]]), box_corners([0] * 3, [2] * 3) @ BACK
    grid = simulation.Fourier(corners, ONE[kind], 0, (16, 15, 12))
    steps = [(0, 0, 0), (1, 0, 0), (3, 0, 0), (0, 0, 1), (0, 0, 2)]
    cells = rng.integers(2, 7, (1, 80, 3)) + np.reshape(steps, (-1, 1, 3)) + 0.5
    points, theory = (grid.origin + grid.cell * cells) @ BACK, [grid.covariance[h] for h in steps]
    check_moments(lambda seed: FIM(corners, cov, seed, 16, 15, 12), points, theory)


PLANE, FLAT = CORNERS * [1, 1, 0] + [0, 0, 7], ("exponential", 2.0, (60, 31, 12), (30, 0, 0))
GRIDS = [(CORNERS, ONE[k], n) for k in ONE for n in ((9, 8, 7), (6, 1, 0), (4, 7, 10), (2, 3, 2))]


@pytest.mark.parametrize(("corners", "structure", "counts"), [*GRIDS, (PLANE, FLAT, (9, 8, 7))])
def test_fourier_integral(corners, structure, counts, points):
    (cov,), field = structures([structure]), simulation.Fourier(corners, structure, -4, counts)
    assert_allclose(FIM(corners, cov, -4, *counts, 1)(points), field(points), atol=1e-9)
    assert len(np.unique(field(points))) >= min(field.field.size, 120) // 4
    assert FIM(corners, cov, -4, *counts, 2)(points) == FIM(corners, cov, -4, *counts, 2)(points)


# The first cells of a frozen grid lie on edges of Fourier cells, where rounding decides.
MAKERS = [("TBSIM", simulation.turning_bands, [30], 1), ("FIM", simulation.Fourier, [7, 5, 6], 0.5)]


@pytest.mark.parametrize(("name", "maker", "n", "share"), MAKERS)
def test_turned_views_of_a_frozen_field(name, maker, n, share, points):
    make, generator = partial(maker, size=n if n[1:] else n[0]), getattr(SimulatorGenerator, name)

    def agree(view, expected):
        assert np.isclose(view(points, 1), expected(points), rtol=0, atol=1e-9).mean() >= share

    def frozen(structure, seed, corners=CORNERS):
        return simulation.frozen_views(corners, structure, seed, make, 11)

    for corners, structure in ((CORNERS, ONE["spherical"]), (PLANE, FLAT)):
        views = generator(corners, *structures([structure]), 8, *n, 1, 11)
        for seed in (-3, 0):
            agree(views(seed), frozen(structure, 8, corners)(seed))
    view = generator(CORNERS, structures(MODEL[:3]), 8, *n, 1, 11)(5)  # outlives its generator
    views = parts(MODEL[:3], 8, frozen, lambda amplitude, _: partial(noise, amplitude))
    agree(view, weighted([make_view(seed) for make_view, seed in zip(views, words(5, 3))]))


def test_moments_of_views_and_pools(rng):
    points, covs = rng.uniform(-2000, 2000, (60, 3)), structures([ONE["spherical"]])
    views = [SimulatorGenerator.TBSIM(CORNERS, covs, seed, 60, 1, 8)(7) for seed in range(300)]
    fields = [[TBSIM(points, covs, 3 * seed + i, 60) for i in range(3)] for seed in range(300)]
    pools = [SimulatorGenerator.Pool(three)(seed) for seed, three in enumerate(fields)]
    shares = np.array(
        [(draws := simulation.Engine(299)).uniform(), draws.uniform(), draws.uniform()]
    )
    close(pools[-1](points), weighted(fields[-1], np.sqrt(shares / shares.sum()))(points))
    assert SimulatorGenerator.Pool([])(3)(points) == [0.0] * 60
    for mixed in (views, pools):
        values = np.array([field(points) for field in mixed])
        for means, expected in ((values.mean(axis=1), 0.0), ((values**2).mean(axis=1), 2.0)):
            assert abs(means.mean() - expected) < 4.5 * means.std() / 300**0.5 < 0.4


def test_conditioning_by_simple_kriging(rng):
    locs, data, points = (
        rng.uniform(0, 30, (40, 3)),
        rng.normal(size=40),
        rng.uniform(0, 40, (60, 3)),
    )
    hood, covs = (
        gravelox.Neighborhood(locs, gravelox.Ellipsoid(*METRIC)),
        structures([ONE["spherical"]]),
    )
    mean, variance = gravelox.compute_simple_kriging(points, locs, data, covs, 0.0, hood, 40)
    run = gravelox.SimpleKriging(covs, 0.0, 40), np.vstack([locs, points]), hood, locs, data
    fields = [TBSIM(run[1], covs, seed, 100) for seed in range(300)]
    values = np.array([gravelox.simulate(field, *run) for field in fields])
    assert_allclose(values[:, :40], np.tile(data, (300, 1)), atol=1e-9)
    assert np.all(abs(values[:, 40:].mean(axis=0) - mean) < 4.5 * np.sqrt(np.divide(variance, 300)))
    assert abs((values[:, 40:].var(axis=0) / variance).mean() - 1.0) < 0.1 < np.ptp(variance)


@pytest.mark.parametrize(("power", "max_weight"), [(1, 0.3), (2, 0.0), (3, 1.0), (0.5, 0.7)])
def test_ensembles(power, max_weight, points):
    centers, errors = points[[0, 1, 1, 2, 3]], np.array([0.5, 2.0, 1.0, 0.0, 1e4])
    models = [[ONE["gaussian"]], [FLAT, OTHER], [OTHER], [ONE["exponential"]], [FLAT]]
    for n, scale in ((5, 1.0), (3, 1.0), (2, 1e12), (1, 1.0), (0, 1.0)):  # 1e12 leaves no weight
        seeded, local = [*zip(models, words(-11, n))], (centers[:n], scale * errors[:n])
        fields = [weighted(parts(m, seed, partial(bands, size=9))) for m, seed in seeded]
        expected = [*simulation.ensemble(points, fields, *local, max_weight, power)] or [0.0] * 120
        covs = gravelox.LocalCovariances(local[0], [structures(m) for m, _ in seeded], local[1])
        rest = covs, SimulatorFactory.TBSIM(CORNERS, 9), max_weight, power, -11
        found = gravelox.unconditional_ensemble_simulation(points, *rest, 1)
        assert_allclose(found, expected, rtol=1e-7)
        assert SimulatorGenerator.Ensemble(*rest)(points) == found
        assert n != 1 or found[0] == 0.0
