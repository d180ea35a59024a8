"""The seeded streams, against the same draws over numpy's Mersenne Twister."""

import gravelox
import numpy as np
import pytest
from oracles import spatial

ELLIPSOID = gravelox.Ellipsoid(5, 3, 2, 10, 20, 30)
seeded = pytest.mark.parametrize("seed", [0, 1, 12356, 2**31 - 1, -1, -(2**31)])


def close(result, expected):
    np.testing.assert_allclose(result, expected, rtol=1e-12, atol=1e-11)


@seeded
def test_spheres_and_surfaces(seed):
    sphere = spatial.sphere_points(5, seed)
    close(gravelox.generate_random_semisphere(5, seed), sphere[:5])
    close(gravelox.generate_random_sphere(5, seed), sphere)
    close(ELLIPSOID.surface(5, seed), sphere @ ELLIPSOID.inv_matrix().T)
    assert gravelox.generate_random_sphere(-1, seed) == ELLIPSOID.volume(5, 0, seed) == []


@seeded
def test_normals_scale_volume_and_directions(seed):
    draws = spatial.Draws(seed)
    shells = [abs(draws.normal()) * spatial.sphere_points(3, seed + 6 * i) for i in range(5)]
    close(ELLIPSOID.volume(3, 5, seed), np.concatenate(shells) @ ELLIPSOID.inv_matrix().T)

    draws = spatial.Draws(seed)
    scales = np.abs([[[draws.normal()] for _ in range(5)] for _ in range(6)])
    points, ids = ELLIPSOID.directions(3, 5, seed)
    close(np.reshape(points, (6, 5, 3)), scales * np.array(ELLIPSOID.surface(3, seed))[:, None])
    assert ids == [ray for ray in range(6) for _ in range(5)]


BOX = ([1.0, 2.0, -30.0], [101.0, 52.0, 5.0], 7, 0.25, 0.75, 4)
CAMPAIGN = (300, 200, 5, 10, 80, -90, -45, 50, 90, 3, 8, 2, 9)


@pytest.mark.parametrize(
    ("arguments", "sizes", "pinned"),
    [
        (BOX, [0, 7, 7, 7, 7], (21308.2283222, 13846.202607, -973.954574916)),
        (CAMPAIGN, [4, 7, 7, 5, 5], (-48151.52554, 22398.72191, -8043.931873)),
        ((*CAMPAIGN, ELLIPSOID), [4, 7, 7, 5, 5], (-116310.0259, 107126.0862, 93083.25402)),
    ],
)
def test_drill_holes(arguments, sizes, pinned):
    """Sums of locations times places in the list, from the same draws in plain Python."""
    locations, holes = gravelox.create_random_drillholes(*arguments, seed=5)
    assert holes == np.repeat(range(5), sizes).tolist()
    np.testing.assert_allclose(np.arange(1, 29) @ locations, pinned, rtol=1e-9)
    assert gravelox.create_random_drillholes(*BOX[:5], 0) == ([], [])
