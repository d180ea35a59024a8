"""Point lists across the boundary, trees and queries."""

import gravelox as gx
import numpy as np
from harness import (
    N_NEIGHBORS,
    SAMPLE_SEED,
    SEARCH_EPS,
    Figure,
    advantage,
    per_item,
    uniform_points,
)
from scipy.spatial import cKDTree


def crossing(targets=(), values=()):
    """A call that ends as soon as its arguments have crossed the boundary.

    Everything is converted before an estimator looks at it, and the first thing that it looks at is
    whether there is one value for each sample. There are no samples here: what is measured is the
    conversion, the copy's memory included, and an exception of about a microsecond.
    """
    estimator = gx.IDW(max_neighbors=1)
    neighborhood = gx.Neighborhood([])
    values = [0.0] if len(values) == 0 else values

    def call():
        try:
            estimator(targets, neighborhood, [], values, 1)
        except ValueError:
            return
        raise RuntimeError("the call was meant to be refused")

    return call


def boundary(name, bench, call, goal):
    times = bench.time(per_item(call, bench.n_boundary))
    return Figure(name, {"items": bench.n_boundary}, 1, goal=goal, **times)


def boundary_array(bench):
    """A (n, 3) float64 array as the point list, for each point."""
    points = uniform_points(bench.n_boundary, SAMPLE_SEED)
    return boundary("boundary_array", bench, crossing(targets=points), "< 2e-9 s")


def boundary_list(bench):
    """A list of arrays of 3 as the point list, for each point."""
    points = [row.copy() for row in uniform_points(bench.n_boundary, SAMPLE_SEED)]
    return boundary("boundary_list", bench, crossing(targets=points), "< 15e-9 s")


def boundary_values(bench):
    """A float64 array as a list of numbers, for each value."""
    values = np.random.RandomState(SAMPLE_SEED).random_sample(bench.n_boundary)
    return boundary("boundary_values", bench, crossing(values=values), "< 2e-9 s")


def boundary_result(bench):
    """A list of locations that comes out, for each point.

    The locations of a grid cost a few nanoseconds each to compute, which count here.
    """
    side = round(bench.n_boundary ** (1 / 3))
    bench.n_boundary = side**3
    grid = gx.CartesianGrid((1.0, 1.0, 1.0), (side, side, side))
    return boundary("boundary_result", bench, grid.locations, "< 150e-9 s")


def query(bench, n_samples):
    """The 32 nearest: a buffer of ours against a batch of scipy's."""
    tree = cKDTree(uniform_points(n_samples, SAMPLE_SEED))
    n = 5_000
    targets = bench.targets[:n]
    theirs = per_item(lambda: tree.query(targets, N_NEIGHBORS, eps=SEARCH_EPS, workers=1), n)
    times = bench.compare(bench.kernel(f"query/{n_samples}"), theirs, advantage)
    sizes = {"points": n_samples, "queries": n, "neighbors": N_NEIGHBORS}
    return Figure(f"query_{n_samples}", sizes, 1, goal=">= 1.8", **times)


def query_20000(bench):
    return query(bench, 20_000)


def query_100000(bench):
    return query(bench, 100_000)


def tree(bench, n_samples):
    """The time to build, for each point; an array goes in on both sides."""
    points = uniform_points(n_samples, SAMPLE_SEED)
    ours = per_item(lambda: gx.Neighborhood(points), n_samples)
    times = bench.compare(ours, per_item(lambda: cKDTree(points), n_samples), advantage)
    return Figure(f"tree_{n_samples}", {"points": n_samples}, 1, **times)


def tree_20000(bench):
    return tree(bench, 20_000)


def tree_100000(bench):
    return tree(bench, 100_000)


FIGURES = (
    boundary_array,
    boundary_list,
    boundary_values,
    boundary_result,
    query_20000,
    query_100000,
    tree_20000,
    tree_100000,
)
