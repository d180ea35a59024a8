"""Projections between spaces, scaling and geodesic distances, against shortest paths by scipy,
scaling by scikit-learn, and the distances and decompositions that projections cannot do without.

The time of a fit is that of one iteration, beside a whole call of scikit-learn on the same table:
the ratio tells how many iterations fit into that call. A move of the random search is one try.
"""

import time
from functools import partial

import gravelox as gx
import numpy as np
from harness import SIDE, Figure, advantage, check_same, per_item, share_of_linear, slowdown
from scipy.sparse import csgraph, csr_matrix
from scipy.spatial.distance import cdist
from sklearn.manifold import MDS

N_DENSE, KNN = 10_000, 20
DIMENSION = 3
N_PAIRED, N_BLENDED = 300, 16
FEW_MOVES, MANY_MOVES = 100, 2_000  # the difference leaves out the preparation of a search


def geodesics(bench):
    """Points that fill a box, the search for them, sizes, and a call that makes the table of
    distances of the first points on a number of threads.
    """
    dense = bench.samples[:N_DENSE]
    n = 100 * bench.n_targets // 100_000
    hood = gx.Neighborhood(dense)

    def table(n_threads):
        return gx.compute_geodesic_based_distance_matrix(
            dense[:n], hood, 0.0, KNN, dense, n_threads
        )

    return dense, hood, {"dense_points": N_DENSE, "knn": KNN, "sources": n}, table


def geodesic_sources(bench):
    """The paths from a source; the graph is made within our call, and ready for scipy's."""
    dense, hood, sizes, table = geodesics(bench)
    n = sizes["sources"]
    ids = np.array([hood.find_neighbors(point, KNN)[1:] for point in dense])  # the first is itself
    lengths = np.linalg.norm(dense[ids] - dense[:, None], axis=2)
    graph = csr_matrix((lengths.ravel(), ids.ravel(), range(0, ids.size + 1, KNN - 1)))
    theirs = partial(csgraph.dijkstra, graph, indices=range(n))
    check_same(table(1), theirs()[:, :n])
    times = bench.compare(per_item(partial(table, 1), n), per_item(theirs, n), advantage)
    return Figure("geodesic_sources", sizes, 1, goal=">= 1", **times)


def geodesic_threads(bench):
    """All threads on the wall clock: the speed-up as a share of the machine's cores."""
    *_, sizes, table = geodesics(bench)
    threads = gx.check_n_threads(0)
    every, one = (
        per_item(partial(table, n), sizes["sources"], time.perf_counter) for n in (threads, 1)
    )
    times = bench.compare_least(every, one, share_of_linear(threads))
    return Figure("geodesic_threads", sizes, threads, goal=">= 0.85", **times)


def noisy_table(n):
    """Distances that no configuration has: a fit does not end before its last iteration."""
    random = np.random.RandomState(1)
    points = random.uniform(0, SIDE, (n, 3))
    noise = np.triu(random.normal(0, 0.1, (n, n)), 1)
    return cdist(points, points) * np.exp(noise + noise.T)


def difference(call, few, many):
    """A timer of one of the items that call(many) does more than call(few)."""

    def run():
        less, more = (per_item(partial(call, n), 1)() for n in (few, many))
        return (more - less) / (many - few)

    return run


def fit_figure(name, fit, n_points, few, many):
    def figure(bench):
        """An iteration of fit(table, n_iterations) on one thread, from one random start."""
        table = noisy_table(n_points)
        ours = partial(fit, table)
        if np.array_equal(ours(many - 1), ours(many)):
            raise RuntimeError("the fit ends before its last iteration")
        scaling = MDS(DIMENSION, dissimilarity="precomputed", random_state=1)
        theirs = per_item(lambda: scaling.fit(table), 1)
        times = bench.compare(difference(ours, few, many), theirs, advantage)
        return Figure(name, {"points": n_points}, 1, **times)

    figure.__name__ = name
    return figure


def dense_fit(table, n_iterations):
    return gx.dense_MDS(DIMENSION, len(table), table, [], n_iterations, n_threads=1, ntries=1)


def sparse_fit(table, n_iterations):
    """With five random partners a point."""
    n = len(table)
    pairs = gx.create_sparse_dist_matrix(table, 5, n, 1)
    return gx.sparse_MDS(DIMENSION, n, pairs, [], n_iterations, n_threads=1, ntries=1)


def search_figure(max_size):
    name = f"scaling_search_{max_size}"

    def figure(bench):
        """A move of 1 to max_size of 300 points with 20 neighbours each, on one thread."""
        table = noisy_table(N_PAIRED)
        nearest = table.argsort(axis=1)[:, 1 : KNN + 1]
        pairs = [(i, int(j), table[i, j]) for i in range(N_PAIRED) for j in nearest[i]]
        guess = np.float32(np.random.RandomState(2).uniform(0, SIDE, (N_PAIRED, DIMENSION)))
        rest = DIMENSION, guess, pairs, [10.0, 1.0], 1

        def search(n_moves):
            return gx.mds_using_random_search(*rest, n_moves, 1, max_size=max_size)

        sizes = {"points": N_PAIRED, "neighbors": KNN, "max_size": max_size}
        times = bench.time(difference(search, FEW_MOVES, MANY_MOVES * 100 // max_size))
        return Figure(name, sizes, 1, **times)

    figure.__name__ = name
    return figure


def paired_points(bench):
    """Points and their images under a smooth map."""
    source = bench.samples[:N_PAIRED]
    return source, source + 0.05 * SIDE * np.sin(10.0 / SIDE * source)


def projection_figure(bench, name, projection, floor):
    points = bench.targets
    project = per_item(lambda: projection.project(points, n_threads=1), len(points))
    sizes = {"pairs": N_PAIRED, "blended": N_BLENDED, "points": len(points)}
    return Figure(name, sizes, 1, **bench.compare(project, floor, slowdown))


def projection_idw(bench):
    """A list of points, against their distances from all known ones and the least of those."""
    source, target = paired_points(bench)
    parts = np.split(bench.targets, bench.n_targets // 1_000)
    floor = per_item(
        lambda: [cdist(part, source).argmin(axis=1) for part in parts], bench.n_targets
    )
    projection = gx.IDWProjection(source, target, 2.0, 0.5, N_BLENDED)
    return projection_figure(bench, "projection_idw", projection, floor)


def projection_ok(bench):
    """The same by kriging, against the decompositions of such systems alone."""
    source, target = paired_points(bench)
    between = cdist(target, target)
    ids = between.argsort(axis=1)[:, :N_BLENDED]
    covariances = np.exp(-3.0 * between[ids[:, :, None], ids[:, None]] / SIDE)
    systems = np.pad(covariances, ((0, 0), (0, 1), (0, 1)), constant_values=1.0)
    systems[:, -1, -1] = 0.0
    floor = per_item(lambda: np.linalg.svd(systems, full_matrices=False), N_PAIRED)
    kernel = gx.Kernel.exponential
    projection = gx.OKProjection(source, target, 1.0 / SIDE, 0.5, N_BLENDED, kernel)
    return projection_figure(bench, "projection_ok", projection, floor)


FIGURES = (
    geodesic_sources,
    geodesic_threads,
    fit_figure("dense_mds_iteration", dense_fit, 50, 2, 12),
    fit_figure("sparse_mds_iteration", sparse_fit, 300, 0, 1),
    search_figure(100),
    search_figure(5),
    projection_idw,
    projection_ok,
)
