"""Extreme points of a cloud, candidate rotations and ellipsoids, and the tightest box."""

import gravelox
import numpy as np
import pytest
from numpy.testing import assert_allclose, assert_array_equal
from oracles import spatial, variography


@pytest.mark.parametrize(("seed", "tol"), [(0, 0.7), (4, 0.1), (121315, 0.4), (4, 0.0)])
def test_candidate_rotations_and_ellipsoids(seed, tol):
    turns = gravelox.generate_rotations(5, seed, tol)
    assert_allclose(turns, variography.rotations(5, seed, tol), atol=1e-12)
    found = [e.matrix() for e in gravelox.generate_ellipsoids(2, 9, 5, 3, seed, tol)]
    expected = variography.ellipsoids(2, 9, 5, 3, seed, tol)
    assert_allclose(found, expected, rtol=1e-9, atol=1e-12)


@pytest.fixture
def cloud(rng):
    return rng.uniform(0, (40, 12, 4), (2000, 3)) @ spatial.rotation(25, -30, 100)


@pytest.mark.parametrize("options", [(999, 1), (999, 60), (7, 60), (7, 60, False), (0, 9), (9, 0)])
def test_search_of_the_tightest_box(cloud, options):
    sample_size, n_iterations, fixed = (*options, True)[:3]
    for points in (cloud, np.tile(cloud[:5] * [1, 1, 0], (2, 1)), cloud[:1]):
        box, turn = gravelox.optimize_rotation(points, sample_size, n_iterations, 1, 8, fixed, 50)
        hull, matrix = variography.tightest_box(points, sample_size, n_iterations, 8, fixed, 50)
        assert_allclose(turn.matrix(), matrix, atol=1e-12)
        assert_allclose(box.corners(), hull, rtol=1e-12, atol=1e-12)


def test_tightest_box_of_a_turned_box(cloud):
    (box, turn), (again, _) = (gravelox.optimize_rotation(cloud, n_threads=2) for _ in range(2))
    assert_array_equal(box.corners(), again.corners())
    volume, before = (np.prod(np.ptp(points, axis=0)) for points in (turn.forward(cloud), cloud))
    assert 0.95 * volume < np.prod(box.length()) < 1.2 * 40 * 12 * 4 < 0.5 * before
