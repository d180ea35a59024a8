"""Distances around obstacles and sparse graphs, against scipy and plain models."""

import gravelox
import numpy as np
import pytest
from gravelox import Ellipsoid, Neighborhood, compute_geodesics
from numpy.testing import assert_allclose
from oracles import projection as plain
from scipy.sparse import csgraph

METRIC = Ellipsoid(2, 1, 0.5, 30, 20, 10)


def triples(pairs):
    return [(p.i, p.j, p.d) for p in pairs]


@pytest.mark.parametrize(("knn", "eps"), [(12, 0.0), (0, 0.15), (3, 9.0)])
def test_shortest_paths(knn, eps, rng):
    dense, locs = rng.uniform(0, 1, (300, 3)), rng.uniform(0, 1, (9, 3))
    locs[8], hood = locs[0] + 1e-9, Neighborhood(dense, METRIC)
    nodes, edges = [hood.nearest_neighbor(p) for p in locs], plain.graph(hood, dense, knn or eps)
    rest, ids = (hood, eps, knn, dense), {tuple(p): i for i, p in enumerate(dense)}
    expected = np.minimum(csgraph.dijkstra(edges, indices=nodes), 1e30)
    table = gravelox.compute_geodesic_based_distance_matrix(locs, *rest)
    assert_allclose(table, expected[:, nodes], rtol=1e-13)
    assert (np.max(table) == 1e30) == (knn < 12)
    for i, j in np.ndindex(9, 9):
        path, length, distances = compute_geodesics(locs, i, j, *rest)
        path, near = [ids[tuple(p)] for p in path], expected[i] <= length
        assert length == distances[nodes[j]] == pytest.approx(table[i][j], rel=1e-13)
        assert_allclose(np.array(distances)[near], expected[i][near], rtol=1e-13)
        assert path[:1] + path[-1:] == ([nodes[j], nodes[i]] if length < 1e30 else [])
        steps = [edges[a, b] for a, b in zip(path[1:], path)]
        assert (sum(steps), len({*path})) == (pytest.approx(length if path else 0), len(path))
    assert compute_geodesics(locs, 3, -1, *rest) == ([], 1e30, pytest.approx(expected[3]))


@pytest.mark.parametrize("n_decimals", [1, 15])  # few make ties
def test_spanning_trees(n_decimals, rng):
    table, is_apart = rng.uniform(1, 3, (60, 60)).round(n_decimals), np.arange(60) % 3 == 0
    table[is_apart[:, None] ^ is_apart] = 1e20
    table[7], table[:, 7] = 3e20, 0
    even = (table + table.T) / 2
    expected = csgraph.minimum_spanning_tree(np.where(even < 1e20, np.triu(even, 1), np.inf))
    tree, found = np.zeros((60, 60)), triples(gravelox.create_minimum_spanning_tree(table))
    for i, j, tree[i, j] in found:
        assert tree[i, j] == even[i, j]
    assert (len(found), csgraph.connected_components(tree)[0]) == (57, 3)
    assert tree.sum() == pytest.approx(expected.sum())
    assert gravelox.create_minimum_spanning_tree([]) == []


@pytest.mark.parametrize(("n_neighbors", "n_active"), [(3, 4), (1, 40), (2, -1), (0, 9)])
def test_sparse_pairs(n_neighbors, n_active, rng):
    run = rng.uniform(0, 1, (40, 40)), n_neighbors, n_active, -7
    assert triples(gravelox.create_sparse_dist_matrix(*run)) == [*plain.sparse_pairs(*run)]


def test_dense_sets(rng):
    points, hood = rng.uniform(-5, 9, (30, 3)), Neighborhood(rng.uniform(0, 9, (20, 3)), METRIC)
    found = gravelox.create_random_dense_set(points, hood, 2, 400, -7)
    assert_allclose(found, plain.dense_set(points, hood, 2.0, 400, -7), rtol=1e-14)
    assert 0 < len(found) < 400


@pytest.mark.parametrize("n_neighbors", [4, 8])
def test_flood_fill(n_neighbors, rng):
    points, surface = (
        rng.uniform(-1, 1, (400, 3)),
        Neighborhood(rng.uniform(-1, 1, (99, 3)), METRIC),
    )
    found = gravelox.flood_fill_using_ball(points, n_neighbors, surface, 0.2)
    assert found == plain.flood_fill(points, n_neighbors, surface, 0.2)
    assert np.bincount(np.add(found, 1))[1:].max() > 20


EAST, NORTH = Ellipsoid(10, 1, 1, 90, 0, 0), Ellipsoid(10, 1, 1, 0, 0, 0)
# Radius or count, and how many steps one goes; the metric is 10 times as long to the east.
REACHES = [(0.31, 0, 1), (0.61, 0, 2), (0, 3, 1), (0, 5, 2), (3e-9, 1, 0), (0.29, 0, 0), (0, 0, 0)]


@pytest.mark.parametrize(("eps", "knn", "reach"), REACHES)
def test_paths_along_a_line(eps, knn, reach, rng):
    order = rng.permutation(9)
    line, expected = np.outer(order, [3.0, 0, 0]), 3.0 * abs(order[:, None] - order)
    expected[(expected > 0) & (reach == 0)] = 1e30
    hood = Neighborhood(line, EAST)
    table = gravelox.compute_geodesic_based_distance_matrix(line, hood, eps, knn, line)
    assert_allclose(table, expected, rtol=1e-15)
    start, end = order.argmin(), order.argmax()
    path, length, distances = compute_geodesics(line, start, end, hood, eps, knn, line)
    steps = np.diff(np.ravel([p[:1] for p in path])[::-1])
    assert (length, sum(steps)) == ((24.0, 24.0) if reach else (1e30, 0.0))
    assert all(0 < step <= 3 * max(reach, knn - 1) for step in steps)  # counts go on from an end
    if reach:
        assert (path[0].tolist(), path[-1].tolist()) == ([24, 0, 0], [0, 0, 0])
        assert distances == expected[start].tolist()


@pytest.mark.parametrize(("metric", "axis"), [(EAST, 0), (NORTH, 1)])
def test_rows_of_a_grid_are_apart_under_an_ellipsoid(metric, axis):
    x = np.transpose(np.indices((3, 3, 1)).reshape(3, 9)) * 1.0
    table = gravelox.compute_geodesic_based_distance_matrix(x, Neighborhood(x, metric), 0.3, 0, x)
    lag = abs(x[:, None] - x)
    assert_allclose(table, np.where(lag[..., 1 - axis] == 0, lag[..., axis], 1e30))


@pytest.mark.parametrize("n_neighbors", [0, 1])
def test_floods_that_join_nothing(n_neighbors, rng):
    points, surface = rng.uniform(-1, 1, (60, 3)), rng.uniform(-1, 1, (20, 3))
    hood = Neighborhood(surface, METRIC)
    at_wall = [len(hood.find_neighbors(p, 0.3)) > 0 for p in points]
    found = gravelox.flood_fill_using_ball(points, n_neighbors, hood, 0.3)
    assert found == np.where(at_wall, -1, np.arange(60)).tolist()
    assert 0 < sum(at_wall) < 60
