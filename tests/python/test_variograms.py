"""Variograms of grids and of scattered samples, their smoothing, and model variograms."""

import gravelox
import numpy as np
import pytest
from gravelox import Rotation, compute_exp_variogram, compute_variogram
from numpy.testing import assert_allclose, assert_array_equal
from oracles import variography
from oracles.variography import rows_of


def same(*varios):
    return np.array_equal(*map(rows_of, varios))


def check(vario, expected):
    rows, directions = np.reshape(expected[0], (-1, 6)), expected[1]
    # A count that is whole but for rounding may be truncated to either side.
    truncated = rows_of(vario) - rows + [0, 0, 0, 0, 0.5, 0]
    assert np.all(abs(truncated) <= np.array([0, 0, 0, 0, 0.5, 0]) + 1e-9 * (1 + abs(rows)))
    assert_allclose(vario.directions(), directions, atol=1e-12)


BOX = np.array([(x, y, z) for x in (0, 30) for y in (0, 20) for z in (0, 10)]) + 1000.0
TURNED, PLANE = (70, 20, 30), BOX[::2]
GRIDS = [((6, 5, 4), (90, 0, 0), BOX), ((7, 4, 5), TURNED, BOX), ((9, 6, 1), (90, 0, 0), PLANE)]


@pytest.mark.parametrize(("counts", "rotation", "corners"), GRIDS)
def test_variogram_of_a_grid(rng, counts, rotation, corners):
    locations = rng.uniform(corners.min(axis=0) - 3, corners.max(axis=0) + 3, (200, 3))
    data = np.where(rng.uniform(size=200) < 0.2, np.nan, 1e5 + rng.normal(size=200))
    turn = Rotation(*rotation)
    origin = turn.backward(gravelox.BoundingBox(turn.forward(corners)).lower())
    for seed, n, bandwidth in ((5, 200, 1.0), (9, 200, 1.7), (5, 0, 1.0)):
        rest = {"seed": seed, "origin": origin, "rotation": rotation, "bandwidth": bandwidth}
        rest.update(n_lags=9, corners=corners, locations=locations[:n], data=data[:n])
        counted = dict(zip(("nx", "ny", "nz"), counts))
        vario = compute_variogram(**counted, n_directions=7, **rest)
        check(vario, variography.of_grid(counts=counts, n_rays=7, **rest))


def test_forms_of_a_grid(rng):
    frame, sizes = {"origin": (1, 2, 3), "rotation": TURNED}, {"nx": 13, "ny": 11, "nz": 9}
    grid, rest = gravelox.CartesianGrid((30, 20, 10), (7, 6, 5), **frame), (6, 8, 1.3)
    data, mask = rng.normal(size=210), rng.uniform(size=210) < 0.6
    laid = grid.corners(), grid.locations(), data, 13, 11, 9
    of_grid = compute_variogram(grid, data, *rest, **sizes)
    assert same(of_grid, compute_variogram(*laid, *rest, **frame))
    blocks = compute_variogram(gravelox.BlockModel(grid, mask), data[mask], *rest, **sizes)
    data[~mask] = np.nan
    assert same(blocks, compute_variogram(grid, data, *rest, **sizes))
    data = [1.0, *[np.nan] * 209]
    rows = rows_of(compute_variogram(grid, data, *rest, **sizes))
    assert len(rows) > 0
    assert np.all(rows[:, 3:5] == [0, 1])


FEW = {"n_directions": 4, "angle_tol": 25, "bandwidth": 0.4, "n_lags": 12}
SAMPLES = [({**FEW, "n_centers": n}, (30, 20, 10)) for n in (0, 20, 87, 89)]
SAMPLES += [({**FEW, "window_size": w, "tol": 0.5}, (30, 20, 0)) for w in (-1, 0, 5)]
SAMPLES += [({**FEW, "angle_tol": 70}, (30, 0, 0)), (FEW, (0, 0, 0))]
SAMPLES += [({"n_directions": 6}, (9, 9, 5))]


@pytest.mark.parametrize(("options", "extent"), SAMPLES)
def test_variogram_of_samples(rng, options, extent):
    for n, n_places in ((90, 90), (70, 70), (90, 30)):  # of the last, some lie at one place
        locations = rng.uniform(0, extent, (n_places, 3))[np.arange(n) % n_places]
        values = rng.normal(size=n).round(1)
        vario = compute_exp_variogram(locations, values, **options)
        check(vario, variography.of_samples(locations, values, **options))
    assert same(vario, compute_exp_variogram(locations, values, **options, seed=7))
    assert compute_exp_variogram([], [], **options).variogram() == []


def test_variogram_of_a_few_samples_by_value():
    i = np.arange(12)
    locations = np.transpose([i * 7 % 12, i * 5 % 11, i % 3])
    few = {**FEW, "n_directions": 2, "n_centers": 6, "n_lags": 5, "window_size": 1}
    *lags, values, counts, ids = rows_of(compute_exp_variogram(locations, i % 5, **few)).T
    assert_array_equal([ids, counts], [[1] * 4 + [2] * 5, [8, 25, 25, 17, 22, 30, 34, 12, 4]])
    assert_allclose(values * counts, [21, 76, 76, 55, 58, 92, 100, 42, 8], rtol=1e-12)
    assert_allclose(lags @ i[:9], (218.413992796, -131.68221328, -98.854841333))


SMOOTH = [(5, 0, 2, 0.3, 2, 0.25, 7), (0, 6, 2, 0.5, 1, 0.9, 0), (4, 8, 1, 9, 0.7, 1, 3)]


@pytest.mark.parametrize("arguments", SMOOTH)
def test_smooth_variogram(rng, arguments):
    directions, ids = np.array(gravelox.generate_random_sphere(2, 3)), rng.integers(0, 3, 60)
    lags = directions[ids] * rng.uniform(0.1, 3, (60, 1)) + rng.normal(0, 0.1, (60, 3))
    lags[0] = 0.02 * arguments[2] * directions[3]  # has no lags: all new ones fall here
    old = lags, rng.uniform(size=60), rng.integers(2, 60, 60), ids, directions
    vario = gravelox.smooth_variogram(gravelox.ExperimentalVariogram(*old), *arguments, seed=11)
    check(vario, variography.smoothed(old, *arguments, seed=11))
    if arguments[5] == 1:
        assert_allclose(vario.get_variogram_by_direction_id(3)[1], [old[1][0]] * 4)


def test_directions_of_a_variogram():
    lags, directions = np.arange(12.0).reshape(4, 3), [(1, 0, 0), (0, 1, 0), (0, 0, 1), (0, 1, 0)]
    vario = gravelox.ExperimentalVariogram(lags, range(4), range(4), [3, 1, 0, 1], directions)
    empty = gravelox.ExperimentalVariogram([], [], [], [], directions)
    assert vario.lags_by_dir() == [[2], [1, 3], [], [0]]
    for (found, values, counts), places in (
        (vario.get_variogram((0, 5, 0.1)), [1, 3]),  # the first of equally near directions
        (vario.get_variogram(dir=(0.1, 0, 1)), [2]),  # directions without lags do not count
        (vario.get_variogram(azimuth=80, dip=9), [2]),
        (vario.get_variogram_by_direction_id(3), [0]),
        (vario.get_variogram_by_direction_id(2), []),
        (empty.get_variogram(80, 9), []),
    ):
        assert counts == values == places
        assert_array_equal(found, [lags[i] for i in places])


def test_variogram_of_a_model():
    metric, covs = gravelox.Ellipsoid(10, 5, 2, 90, 0, 0), [gravelox.Covariance.nugget(1)]
    model = gravelox.variogram_computer([*covs, gravelox.Covariance.spherical(3, metric)], 8)
    lags = [(0, 0, 0), (5, 0, 0), (0, 5, 0), (0, 0, 1e9)]
    assert_allclose([model(h) for h in lags], [0, 8 - 6 * 0.3125, 8, 8])
