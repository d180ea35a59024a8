"""Clusters by angles and by features, against plain models and in scenes that are known."""

import math
from itertools import product

import gravelox
import numpy as np
import pytest
from gravelox import grid_detector
from numpy.testing import assert_allclose
from oracles import detection as plain
from oracles.spatial import rotation

SPHERE, METRIC = gravelox.Rotation(90, 0), gravelox.Ellipsoid(1.5, 1, 0.8, 30, 20, 10)
Hood, SEEDS = gravelox.Neighborhood, pytest.mark.parametrize("seed", range(6))


def scene(seed, n=50):
    """Scattered points, nodes of a grid with many ties, or lines of points; under an ellipsoid."""
    rng = np.random.default_rng(seed)
    starts, steps = rng.uniform(0, 4, (n // 10, 3)), rng.uniform(0, 2, (n, 1))
    lines = np.repeat(starts, 10, axis=0) + steps + rng.normal(0, 0.02, (n, 3))
    locs = [rng.uniform(0, 4, (n, 3)), rng.integers(0, 4, (n, 3)) * 1.0, lines][seed % 3]
    return rng, locs, (SPHERE, METRIC)[seed % 2]


def test_angles_have_no_orientation():
    near, x, rest = (-2e-15, 0, 0), (1, 0, 0), (0, 0, 0)
    rows = [((0.1, 0.2, 0.3), (-0.7, -1.4, -2.1), 0)]  # the cosine is past 1 if it is not clamped
    rows += [(near, x, 0), ((9e-16, 0, 0), x, 90), ((1, -1, 0), near, 45), (rest, rest, 90)]
    for a, b, expected in rows + [(b, a, expected) for a, b, expected in rows]:
        found = gravelox.compute_angular_distance(a, b, rest)
        assert_allclose(found, math.radians(expected), atol=1e-7)


# Of three points in line each has 8 narrow angles of 18, and with another one 2 of 6.
BELOW, ABOVE = np.nextafter(1 / 3, 0), np.nextafter(4 / 9, 1)
ONE = [(3, 1, BELOW, 2), (3, -1, BELOW, -1), (3, 90, 0.3, 0), (3, 90.1, 0.99, 6)]
APART = [(3, 1, 1 / 3, 2), (3, 1, BELOW, 3), (3, 1, 4 / 9, 2), (3, 0, -1, 0), (3, 90.1, 1, 6)]
NONE = [(3, 1, ABOVE, 2), (3, 0, 1e-9, 0), (3, 90, 0.5, 0), (3, 90, 2, 0)]
LIMITS = [(ONE, [0, 0, 0]), ([*APART, (0, 1, 2, 9)], [0, 1, 2]), (NONE, [-1, -1, -1])]


@pytest.mark.parametrize(("limits", "expected"), [(own, e) for rows, e in LIMITS for own in rows])
def test_limits_of_angular_clusters(limits, expected):
    assert gravelox.find_clusters([(1, 0, 0), (3, 0, 0), (2, 0, 0)], SPHERE, *limits) == expected


@SEEDS
def test_angular_clusters(seed):
    _, locs, metric = scene(seed)
    near = [Hood(locs, metric).find_neighbors(p, 1.3) for p in locs]
    for settings in ((45, 0.3, 5), (20, 0.15, 9), (-60, 0.5, 0), (8, 0.07, 1), (90, 0.85, 30)):
        expected = plain.angular_clusters(locs.tolist(), near, *settings)
        assert gravelox.find_clusters(locs, metric, 1.3, *settings) == expected, settings


ATTITUDES = [(170, 20, 65), (15, -10, 50), (355, 5, -75)]
PLANES, LINES = (500, 60, 0.4, 2, (11, 20, 0.15, 10)), (60, 0, 0.05, 0, (8, 8, 0.4, 5))


@pytest.mark.parametrize(("n", "width", "noise", "axis", "settings"), [PLANES, LINES])
def test_structures_are_found_apart_and_their_pieces_joined(n, width, noise, axis, settings, rng):
    truth, points = np.repeat([0, 1, 2, -1], n), rng.uniform(0, (250, 90, 80), (4 * n, 3))
    for i, angles in enumerate(ATTITUDES):
        local = rng.uniform(-0.5, 0.5, (n, 3)) * [1, width, 0] + rng.normal(0, noise, (n, 3))
        local[:, 0] += np.linspace(-40, 40, n)
        local[:, 0] += np.copysign(6 * (i == 0), local[:, 0])  # a gap in the first
        points[truth == i] = local @ rotation(*angles) + [40 + 85 * i, 45, 40]
    labels = np.array(gravelox.find_clusters(points, SPHERE, *settings))
    labels[np.bincount(labels + 1)[labels + 1] < n / 10] = -1
    assert len({*labels[truth == 0]} - {-1}) == 2
    D = gravelox.compute_angular_distance_between_clusters(SPHERE, points, labels, 42)
    merged = np.array(gravelox.merge_clusters(D, points, labels, [], 15, 42, SPHERE))
    for i, angles in enumerate(ATTITUDES):
        own = merged == np.bincount(merged[truth == i] + 1).argmax() - 1
        assert np.mean(own[truth == i]) > 0.85
        assert np.mean(truth[own] == i) > 0.95
        axes = np.linalg.svd(points[own] - points[own].mean(axis=0), full_matrices=False)[2]
        assert abs(axes[axis] @ rotation(*angles)[axis]) > math.cos(math.radians(2))


@SEEDS
def test_angles_between_clusters(seed):
    rng, locs, metric = scene(seed)
    labels = rng.choice([-2, -1, 0, 0, 0, 3, 7, 9], 50)
    D = gravelox.compute_angular_distance_between_clusters(metric, locs, labels, 1.2)
    found = {(a, b): angle for a, row in D.items() for b, angle in row.items()}
    wanted = plain.cluster_angles(locs, labels, lambda p, q: Hood(p, metric).find_neighbors(q, 1.2))
    assert [*found] == sorted(wanted)
    assert all(D.values())
    assert_allclose([*found.values()], [wanted[pair] for pair in found], atol=3e-6)


@SEEDS
def test_mergers(seed):
    rng, locs, metric = scene(seed)
    near = [Hood(locs, metric).find_neighbors(p, 0.9) for p in locs]
    labels, names = rng.choice([-2, -1, 0, 1, 2, 3, 4, 8], 50), (-2, 0, 1, 2, 3, 4, 8)
    D = {a: {b: float(rng.integers(0, 9)) for b in names if rng.random() < 0.5} for a in names}
    for rows, ignored in product((names, names[:-2]), ([], [8, 3], [8, 4])):
        held, rest = {a: D[a] for a in rows}, (locs, labels, ignored, 5.0, 0.9, metric)
        try:
            expected = plain.merged(held, labels, near, ignored, 5.0)
        except KeyError:
            with pytest.raises(IndexError, match=r"^invalid map<K, T> key$"):
                gravelox.merge_clusters(held, *rest)
        else:
            assert gravelox.merge_clusters(held, *rest) == expected
    assert gravelox.merge_clusters({}, np.eye(3), [2, 0, 2], [], 5, 1, SPHERE) == [2, 0, 2]


@SEEDS
def test_points_with_like_features(seed):
    rng, locs, metric = scene(seed)
    locs *= (0.6, 1.0, 0.6)[seed % 3]
    features, hood = rng.choice([0, 0.3, 0.4, 1], (50, 2)), Hood(locs, metric)
    for radius, n_neis, tolerance in ((1.3, 0, 0.5), (0, 9, 0.4), (-1, 14, 9), (2.3, 0, 0)):
        near = [hood.find_neighbors(p, radius if radius > 0 else n_neis) for p in locs]
        like = plain.like_neighbors(features, near, tolerance)
        first, last = (locs, features, hood, tolerance), (radius, n_neis)
        found = grid_detector.find_clusters(*first, features[7], *last)
        assert found == plain.regions(features, like, tolerance, features[7])
        for degrees in (2, 7, -10, 45, 90):
            found = grid_detector.detect_grid_aligned_points(*first, degrees, *last)
            assert found == plain.aligned(locs, like, degrees), degrees


def test_families_of_lines():
    """Of equal size: by ascending angle with x, three at most; a spacing of 2 hides one."""
    turns, t = np.radians([90, 60, 60, 30, 0]), np.arange(3) * [[1], [1], [2], [1], [1]]
    lines = t.T * np.cos(turns), t.T * np.sin(turns) + 9 * np.arange(5), 0.0 * t.T
    locs = np.transpose(lines).reshape(-1, 3)
    call, rest = grid_detector.detect_grid_aligned_points, ([[]] * 15, Hood(locs), 0, 2)
    assert call(locs, *rest, 4.5, 0) == np.repeat([-1, 3, -1, 2, 1], 3).tolist()
    assert call(locs, *rest, 0, 1) == [-1] * 15


@SEEDS
def test_fusion(seed):
    rng, locs, _ = scene(seed, 300)
    for labels in (rng.choice([-2, -1, -1, *range(40, 0, -1)], 300), np.arange(300) % 251 - 1):
        for distance in (0, 0.1, 0.3, 0.5, 1, 1.1, 1e200, math.inf):
            found = grid_detector.cluster_fusion(locs, labels, distance)
            assert found == plain.fused(locs, labels, distance), distance


FLAT, WIDE = gravelox.Ellipsoid(4, 4, 1, 90, 0, 0), gravelox.Ellipsoid(4, 4, 4, 90, 0, 0)


@pytest.mark.parametrize(("metric", "n_layers"), [(FLAT, 2), (WIDE, 1)])
def test_layers_under_an_ellipsoid(metric, n_layers, rng):
    """Two above each other, which a search as high as it is wide joins."""
    floor = [(i, j) for j in range(12) for i in range(12)] + rng.uniform(0, 0.3, (144, 2))
    locs, layers = np.array([(x, y, z) for z in (0, 1.5) for x, y in floor]), np.repeat([0, 1], 144)
    quarters, greys, hood = 2 * layers + (locs[:, 0] > 6), np.ones((288, 1)), Hood(locs, metric)
    expected = (layers * (n_layers - 1)).tolist()
    assert grid_detector.find_clusters(locs, greys, hood, 0.1, [1.0], 0.8, 0) == expected
    D = gravelox.compute_angular_distance_between_clusters(metric, locs, quarters, 0.8)
    beside = {(a, b) for a in range(4) for b in range(4) if n_layers == 1 or a // 2 == b // 2}
    assert {(a, b) for a in D for b in D[a]} == beside
    if n_layers == 2:
        labels = gravelox.find_clusters(locs, metric, 0.8, 15, 0.1, 10)
        assert {*labels[:144]} & {*labels[144:]} <= {-1} < {*labels, -1}
        merged = gravelox.merge_clusters(D, locs, quarters, [], 20, 0.8, metric)
        assert merged == (2 * layers).tolist()
