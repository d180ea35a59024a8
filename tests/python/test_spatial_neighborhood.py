"""Neighbour searches, against the same trees in Python."""

import gravelox
import numpy as np
import pytest
from gravelox import DynamicNeighborhood, Neighborhood
from oracles import spatial

N = 400
ELLIPSOID = gravelox.Ellipsoid(60, 30, 10, 30, 20, 10)
CLOUDS = {
    "scattered": lambda rng: rng.uniform(0, 100, (N, 3)),
    "lattice": lambda rng: rng.integers(0, 7, (N, 3)) * 15.0,
    "plane": lambda rng: rng.uniform(0, 100, (N, 3)) * [1, 1, 0],
    "one place": lambda rng: np.full((N, 3), 50.0),
}


@pytest.mark.parametrize("cloud", CLOUDS)
@pytest.mark.parametrize("ellipsoid", [None, ELLIPSOID], ids=["plain", "ellipsoid"])
@pytest.mark.parametrize("hood_type", [Neighborhood, DynamicNeighborhood])
def test_trees(hood_type, ellipsoid, cloud, rng):
    points = CLOUDS[cloud](rng)
    centers = np.concatenate([rng.uniform(-20, 120, (25, 3)), points[:10]])
    hood, mapped, mapped_centers, unit = hood_type(points), points, centers, 50.0
    if ellipsoid:
        hood, unit = hood_type(points, ellipsoid), 1.0
        mapped, mapped_centers = (np.array(ellipsoid.forward(p)) for p in (points, centers))
    mapped, static = mapped.tolist(), hood_type is Neighborhood
    trees = [spatial.Tree(mapped, range(N))] if static else spatial.forest(mapped)

    def expected(target, factor, **what):
        found = spatial.Found(**what)
        for tree in trees:
            tree.search(target, factor, found)
        return found

    for center, target in zip(centers, mapped_centers.tolist()):
        for k in (1, 7, 32, N + 5):
            assert hood.find_neighbors(center, k) == expected(target, 11.0, k=min(k, N)).ids
        assert hood.nearest_neighbor(center) == hood.find_neighbors(center, 1)[0]
        for radius in (0.3 * unit, -0.3 * unit, unit, 10 * unit):
            factor = 11.0 if static else float(np.float32(radius * radius) + np.float32(1))
            found = expected(target, factor, radius=radius)
            ids = hood.find_neighbors(center, radius)
            if static:  # sorted, ties in any order
                distances = dict(zip(found.ids, found.distances))
                assert [distances[i] for i in ids] == sorted(found.distances)
                assert set(ids) == set(found.ids)
            else:
                assert ids == found.ids


@pytest.mark.parametrize("hood_type", [Neighborhood, DynamicNeighborhood])
def test_radius(hood_type):
    hood = hood_type([(9, 0, 0), (0, 2, 0), (10, 0, 0)], gravelox.Ellipsoid(10, 1, 1, 90, 0, 0))
    assert hood.find_neighbors((0, 0, 0), 1.0) == hood.find_neighbors((0, 0, 0), -1.0) == [0]
    assert hood.find_neighbors((9, 0, 0), 0.0) == hood.find_neighbors((9, 0, 0), 0) == []
    assert sorted(hood.find_neighbors((0, 0, 0), np.nextafter(1.0, 2.0))) == [0, 2]
    empty = hood_type([])
    assert empty.find_neighbors((0, 0, 0), 9.0) == empty.find_neighbors((0, 0, 0), 9) == []


def test_any_sequence_of_additions_and_removals(rng):
    """In a cube so small that the factor of the radius query is 1, which makes it exact."""
    side, hood = 1e-5, DynamicNeighborhood()
    points, entered, removed = np.empty((0, 3)), [], set()
    for _ in range(250):
        if rng.random() < 0.6:
            new = rng.uniform(0, side, (rng.choice([0, 1, 1, 1, 2, 15]), 3))
            hood.add_point(new[0]) if len(new) == 1 else hood.add_points(new)
            added = range(len(points), len(points) + len(new) + 1)
            points, entered = np.concatenate([points, new]), [*entered, *added]
            removed -= set(added)  # an id that comes in again is alive again
        else:
            gone = int(rng.integers(0, len(points) + 30))
            hood.remove_point(gone)
            removed |= {gone} if gone < len(entered) else set()
        center = rng.uniform(0, side, 3)
        distances = np.linalg.norm(points - center, axis=1)
        alive = [i for i in entered if i < len(points) and i not in removed]
        within = hood.find_neighbors(center, 0.5 * side)
        assert set(within) == {i for i in alive if distances[i] < 0.5 * side}
        assert all(within.count(i) <= alive.count(i) for i in set(within))
        ids = hood.find_neighbors(center, len(points) + 9)
        if len(alive) <= len(points):
            expected = sorted(alive, key=lambda i: distances[i])
            assert ids == expected + [0] * (len(points) - len(alive))
        else:
            assert (len(ids), set(ids) - set(alive)) == (len(points), set())
            assert (np.diff(distances[ids]) >= 0).all()
