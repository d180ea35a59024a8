"""The seeded streams, against the same draws over numpy's Mersenne Twister."""

import gravelox
import numpy as np
import pytest
from oracles import spatial
from oracles.random_draws import Draws

pytestmark = pytest.mark.parametrize("seed", [0, 1, 12356, 2**31 - 1, -1, -(2**31)])
BOX = ([1.0, 2.0, -30.0], [101.0, 52.0, 5.0], 7, 0.25, 0.75, 4)
CAMPAIGN = [(300.0, 200.0), 5, (10.0, 80.0), (-90.0, -45.0), (50.0, 90.0), (3.0, 8.0), (2, 9)]
ELLIPSOID = gravelox.Ellipsoid(5, 3, 2, 10, 20, 30)


def close(result, expected):
    np.testing.assert_allclose(result, expected, rtol=1e-12, atol=1e-11)


def test_spheres_and_surfaces(seed):
    sphere = spatial.sphere_points(5, seed, True)
    close(gravelox.generate_random_semisphere(5, seed), sphere[:5])
    close(gravelox.generate_random_sphere(5, seed), sphere)
    close(ELLIPSOID.surface(5, seed), sphere @ ELLIPSOID.inv_matrix().T)
    for nothing in (gravelox.generate_random_sphere(-1, seed), ELLIPSOID.volume(5, 0, seed)):
        assert nothing == []


def test_normals_scale_volume_and_directions(seed):
    draws = Draws(seed)
    shells = [abs(draws.normal()) * spatial.sphere_points(3, seed + 6 * i, True) for i in range(5)]
    close(ELLIPSOID.volume(3, 5, seed), np.concatenate(shells) @ ELLIPSOID.inv_matrix().T)

    draws = Draws(seed)
    scales = np.abs([[[draws.normal()] for _ in range(5)] for _ in range(6)])
    points, ids = ELLIPSOID.directions(3, 5, seed)
    close(np.reshape(points, (6, 5, 3)), scales * np.array(ELLIPSOID.surface(3, seed))[:, None])
    assert ids == [ray for ray in range(6) for _ in range(5)]


def check_holes(result, expected):
    close(result[0], [location for location, _ in expected])
    assert result[1] == [hole for _, hole in expected]


def test_drill_holes(seed):
    check_holes(gravelox.create_random_drillholes(*BOX, seed), spatial.box_holes(*BOX, seed))
    flat = [x for part in CAMPAIGN for x in (part if isinstance(part, tuple) else (part,))]
    turned = spatial.campaign_holes(*CAMPAIGN, spatial.rotation(0, 0).T, seed)
    check_holes(gravelox.create_random_drillholes(*flat, seed=seed), turned)
    deformed = spatial.campaign_holes(*CAMPAIGN, ELLIPSOID.inv_matrix(), seed)
    check_holes(gravelox.create_random_drillholes(*flat, ELLIPSOID, seed), deformed)
    assert gravelox.create_random_drillholes(*BOX[:5], 0, seed) == ([], [])
