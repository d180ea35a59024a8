"""Kriging and inverse distance, against their floors and against numpy, scipy and PyKrige."""

import time

import gravelox as gx
import numpy as np
from harness import (
    N_NEIGHBORS,
    N_NEIGHBORS_IDW,
    N_SAMPLES,
    SEARCH_EPS,
    Figure,
    Skipped,
    advantage,
    check_same,
    per_item,
    share_of_linear,
    slowdown,
)
from scipy.spatial import cKDTree

# The model of kernels.cpp.
ANISOTROPY = gx.Ellipsoid(300, 200, 100, 30, 20, 10)
NUGGET, SPHERICAL, EXPONENTIAL = 1e-5, 5e-5, 4e-5
MODEL = [
    gx.Covariance.nugget(NUGGET),
    gx.Covariance.spherical(SPHERICAL, ANISOTROPY),
    gx.Covariance.exponential(EXPONENTIAL, ANISOTROPY),
]


def krige(bench, n_threads=1):
    neighborhood = gx.Neighborhood(bench.samples, ANISOTROPY)
    return lambda: gx.compute_ordinary_kriging(
        bench.targets,
        bench.samples,
        bench.values,
        MODEL,
        neighborhood,
        N_NEIGHBORS,
        n_threads=n_threads,
    )


def kriging_sizes(bench, **other):
    sizes = {"samples": N_SAMPLES, "targets": bench.n_targets, "neighbors": N_NEIGHBORS}
    return {**sizes, **other}


def kriging_floor(bench):
    """A whole run against the decomposition and solution of its systems alone."""
    whole = per_item(krige(bench), bench.n_targets)
    times = bench.compare(whole, bench.kernel("ldlt"), slowdown)
    return Figure("kriging_floor", kriging_sizes(bench), 1, goal="<= 3.2", **times)


def covariance_of(distance):
    spherical = np.where(distance < 1.0, 1.0 - 1.5 * distance + 0.5 * distance**3, 0.0)
    nugget = np.where(distance < 1e-8, NUGGET, 0.0)
    return nugget + SPHERICAL * spherical + EXPONENTIAL * np.exp(-3.0 * distance)


def krige_with_numpy(tree, samples, values, targets, distances_between):
    """Ordinary kriging of a batch; coordinates are in the isotropic space."""
    neis = tree.query(targets, N_NEIGHBORS)[1]
    n, k = neis.shape
    near = samples[neis]
    matrix = np.ones((n, k + 1, k + 1))
    matrix[:, :k, :k] = covariance_of(distances_between(near))
    matrix[:, k, k] = 0.0
    right = np.ones((n, k + 1))
    right[:, :k] = covariance_of(np.linalg.norm(near - targets[:, None], axis=-1))
    solution = np.linalg.solve(matrix, right[:, :, None])[:, :, 0]
    # As in this system: the multiplier belongs to the estimate.
    estimates = (solution[:, :k] * values[neis]).sum(axis=1) + solution[:, k]
    variances = covariance_of(np.zeros(1)) - (solution * right).sum(axis=1)
    return estimates, variances


def plain_distances(near):
    return np.linalg.norm(near[:, :, None] - near[:, None], axis=-1)


def distances_by_axis(near):
    squares = (near[:, :, None, 0] - near[:, None, :, 0]) ** 2
    squares += (near[:, :, None, 1] - near[:, None, :, 1]) ** 2
    squares += (near[:, :, None, 2] - near[:, None, :, 2]) ** 2
    return np.sqrt(squares, out=squares)


def against_numpy(bench, name, batch, distances_between, goal):
    def theirs(n_samples, n_targets, batch):
        samples = bench.samples[:n_samples] @ ANISOTROPY.matrix().T
        targets = bench.targets[:n_targets] @ ANISOTROPY.matrix().T
        tree = cKDTree(samples)
        parts = [
            krige_with_numpy(tree, samples, bench.values, part, distances_between)
            for part in np.array_split(targets, n_targets // batch)
        ]
        return np.concatenate(parts, axis=1)

    # With as many samples as neighbours both searches are exact.
    few = bench.samples[:N_NEIGHBORS]
    hood = gx.Neighborhood(few, ANISOTROPY)
    ours = gx.compute_ordinary_kriging(
        bench.targets[:50], few, bench.values[:N_NEIGHBORS], MODEL, hood, N_NEIGHBORS
    )
    check_same(ours, theirs(N_NEIGHBORS, 50, 50))

    n = 5_000
    times = bench.compare(
        per_item(krige(bench), bench.n_targets),
        per_item(lambda: theirs(N_SAMPLES, n, batch), n),
        advantage,
    )
    sizes = kriging_sizes(bench, other_targets=n, other_batch=batch)
    return Figure(name, sizes, 1, goal=goal, **times)


def kriging_numpy(bench):
    """numpy as one writes it by hand (a tree, then one batch of systems) against a whole run."""
    return against_numpy(bench, "kriging_numpy", 5_000, plain_distances, ">= 10")


def kriging_tuned(bench):
    """The same with numpy at its best: batches that stay in the cache, fewer temporaries."""
    return against_numpy(bench, "kriging_tuned", 100, distances_by_axis, None)


def kriging_pykrige(bench):
    """PyKrige's moving window against a whole run, on as many samples as it can take.

    Its constructor, which is not timed, solves a system of all the earlier samples for each sample:
    a few hundred of them are what it can take. Each run builds the matrix of all of them.
    """
    try:
        from pykrige.ok3d import OrdinaryKriging3D
    except ImportError as error:
        raise Skipped("PyKrige is not there") from error
    n_samples, n = 500, 2_000
    total = NUGGET + SPHERICAL + EXPONENTIAL
    samples = bench.samples[:n_samples]
    values = bench.values[:n_samples]
    mapped = samples @ ANISOTROPY.matrix().T
    other = OrdinaryKriging3D(
        *mapped.T,
        values,
        variogram_model="custom",
        variogram_parameters=[],
        variogram_function=lambda _, distance: total - covariance_of(distance),
    )
    points = bench.targets[:n] @ ANISOTROPY.matrix().T
    neighborhood = gx.Neighborhood(samples, ANISOTROPY)

    def theirs():
        return other.execute("points", *points.T, backend="loop", n_closest_points=N_NEIGHBORS)

    def ours():
        return gx.compute_ordinary_kriging(
            bench.targets[:n], samples, values, MODEL, neighborhood, N_NEIGHBORS, n_threads=1
        )

    times = bench.compare(per_item(ours, n), per_item(theirs, n), advantage)
    sizes = {"samples": n_samples, "targets": n, "neighbors": N_NEIGHBORS}
    return Figure("kriging_pykrige", sizes, 1, **times)


def kriging_threads(bench):
    """All threads on the wall clock: the speed-up as a share of the machine's cores."""
    threads = gx.check_n_threads(0)
    every, one = (
        per_item(krige(bench, n), bench.n_targets, time.perf_counter) for n in (threads, 1)
    )
    times = bench.compare_least(every, one, share_of_linear(threads))
    return Figure("kriging_threads", kriging_sizes(bench), threads, goal=">= 0.85", **times)


def inverse_distance(bench):
    """Inverse squared distance: a whole call against a tree and numpy."""

    def sides(n_samples):
        """Our call and theirs, with the first n_samples."""
        samples, values = bench.samples[:n_samples], bench.values[:n_samples]
        neighborhood, other_tree = gx.Neighborhood(samples), cKDTree(samples)
        estimator = gx.IDW(power_a=2.0, max_neighbors=N_NEIGHBORS_IDW)

        def theirs():
            distances, neis = other_tree.query(
                bench.targets, N_NEIGHBORS_IDW, eps=SEARCH_EPS, workers=1
            )
            weights = 1.0 / distances**2
            return (weights * values[neis]).sum(axis=1) / weights.sum(axis=1)

        return lambda: estimator(bench.targets, neighborhood, samples, values, 1), theirs

    # With as many samples as neighbours both searches are exact.
    check_same(*(side() for side in sides(N_NEIGHBORS_IDW)))
    n = bench.n_targets
    times = bench.compare(*(per_item(side, n) for side in sides(N_SAMPLES)), advantage)
    sizes = {"samples": N_SAMPLES, "targets": n, "neighbors": N_NEIGHBORS_IDW}
    return Figure("inverse_distance", sizes, 1, goal=">= 1.5", **times)


FIGURES = (
    kriging_floor,
    kriging_numpy,
    kriging_tuned,
    kriging_pykrige,
    kriging_threads,
    inverse_distance,
)
