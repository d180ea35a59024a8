"""Measures gravelox and holds the figures against its goals.

Prints one line of JSON a figure and a table at the end. `seconds` is the time of one item (a
target, a point, a value, a query), `other_seconds` that of the same work done otherwise; both are
the least of several rounds. The two sides take turns, and `ratio` is the median of the rounds'
ratios: on a shared machine both sides of a round have the same luck. Figures of one thread are
processor time.
"""

import argparse
import json
import operator
import os
import statistics
import subprocess
import sys
import time
from dataclasses import asdict, dataclass
from typing import Callable, Optional

# Read when numpy is imported: one thread is one thread on both sides.
for library in ("OMP", "OPENBLAS", "MKL", "BLIS"):
    os.environ[f"{library}_NUM_THREADS"] = "1"

import gravelox as gx  # noqa: E402
import numpy as np  # noqa: E402
from scipy.spatial import cKDTree  # noqa: E402

# Points, model and numbers of neighbours are those of kernels.cpp.
SAMPLE_SEED, TARGET_SEED, SIDE = 1, 2, 1000.0
N_SAMPLES, N_NEIGHBORS, N_NEIGHBORS_IDW = 20_000, 32, 16
ANISOTROPY = gx.Ellipsoid(300, 200, 100, 30, 20, 10)
NUGGET, SPHERICAL, EXPONENTIAL = 1e-5, 5e-5, 4e-5
MODEL = [
    gx.Covariance.nugget(NUGGET),
    gx.Covariance.spherical(SPHERICAL, ANISOTROPY),
    gx.Covariance.exponential(EXPONENTIAL, ANISOTROPY),
]

# A tree that prunes at (1 + eps) times the distance skips what ours does at 11 times its square.
EPS = 2.3166

COMPARE = {"<=": operator.le, ">=": operator.ge, "<": operator.lt}


@dataclass
class Figure:
    name: str
    sizes: dict
    threads: int
    seconds: float
    other_seconds: Optional[float] = None
    ratio: Optional[float] = None
    goal: Optional[str] = None  # "<= 3.2" of the ratio, or "< 2e-9 s" of the seconds

    def is_met(self):
        if self.goal is None:
            return None
        relation, limit, *unit = self.goal.split()
        return COMPARE[relation](self.seconds if unit else self.ratio, float(limit))


class Bench:
    """What the benchmarks share: sizes, points and ways to time."""

    def __init__(self, kernels, quick):
        self.kernels = kernels
        self.repetitions = 3 if quick else 9
        self.n_targets = 20_000 if quick else 100_000
        self.n_boundary = 100_000 if quick else 1_000_000
        self.samples = uniform_points(N_SAMPLES, SAMPLE_SEED)
        self.values = values_at(self.samples)
        self.targets = uniform_points(self.n_targets, TARGET_SEED)

    def time(self, ours: Callable[[], float]):
        return {"seconds": min(ours() for _ in range(self.repetitions))}

    def compare(self, ours: Callable[[], float], other: Callable[[], float], ratio):
        """The times of a figure and their ratio, ratio(ours, other)."""
        rounds = [(ours(), other()) for _ in range(self.repetitions)]
        return {
            "seconds": min(ours for ours, _ in rounds),
            "other_seconds": min(other for _, other in rounds),
            "ratio": statistics.median(ratio(*times) for times in rounds),
        }

    def kernel(self, name):
        """A timer of one item of a benchmark of the kernels' program."""
        command = [self.kernels, f"--benchmark_filter=^{name}/", "--benchmark_format=json"]

        def run():
            output = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
            (entry,) = json.loads(output)["benchmarks"]
            return 1.0 / entry["items_per_second"]

        return run


def uniform_points(n, seed):
    words = np.random.RandomState(seed).randint(0, 2**32, (n, 3), np.uint32)
    return words * (SIDE / 2**32)


def values_at(points):
    return points.sum(axis=1) / SIDE


def per_item(call, n, clock=time.process_time):
    """A timer of call(), for each of its n items; the result is freed after the clock stops."""

    def run():
        start = clock()
        result = call()
        seconds = clock() - start
        del result
        return seconds / n

    return run


def slowdown(ours, other):
    return ours / other


def advantage(ours, other):
    return other / ours


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


def check_same(ours, theirs):
    if not np.allclose(ours, theirs, rtol=1e-9, atol=0):
        raise RuntimeError("the two sides do not do the same work")


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
        return f"kriging_pykrige: skipped, PyKrige is not there ({error})"
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
    times = bench.compare(every, one, slowdown)
    # Others on the machine take cores away from one side alone: the least times count.
    times["ratio"] = times["other_seconds"] / times["seconds"] / threads
    return Figure("kriging_threads", kriging_sizes(bench), threads, goal=">= 0.85", **times)


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
    theirs = per_item(lambda: tree.query(targets, N_NEIGHBORS, eps=EPS, workers=1), n)
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


def inverse_distance(bench):
    """Inverse squared distance: a whole call against a tree and numpy."""

    def sides(n_samples):
        """Our call and theirs, with the first n_samples."""
        samples, values = bench.samples[:n_samples], bench.values[:n_samples]
        neighborhood, other_tree = gx.Neighborhood(samples), cKDTree(samples)
        estimator = gx.IDW(power_a=2.0, max_neighbors=N_NEIGHBORS_IDW)

        def theirs():
            distances, neis = other_tree.query(bench.targets, N_NEIGHBORS_IDW, eps=EPS, workers=1)
            weights = 1.0 / distances**2
            return (weights * values[neis]).sum(axis=1) / weights.sum(axis=1)

        return lambda: estimator(bench.targets, neighborhood, samples, values, 1), theirs

    # With as many samples as neighbours both searches are exact.
    check_same(*(side() for side in sides(N_NEIGHBORS_IDW)))
    n = bench.n_targets
    times = bench.compare(*(per_item(side, n) for side in sides(N_SAMPLES)), advantage)
    sizes = {"samples": N_SAMPLES, "targets": n, "neighbors": N_NEIGHBORS_IDW}
    return Figure("inverse_distance", sizes, 1, goal=">= 1.5", **times)


BENCHMARKS = {
    function.__name__: function
    for function in (
        kriging_floor,
        kriging_numpy,
        kriging_tuned,
        kriging_pykrige,
        kriging_threads,
        boundary_array,
        boundary_list,
        boundary_values,
        boundary_result,
        query_20000,
        query_100000,
        tree_20000,
        tree_100000,
        inverse_distance,
    )
}
NEED_KERNELS = {"kriging_floor", "query_20000", "query_100000"}


def readable(seconds):
    if seconds is None:
        return ""
    return f"{seconds * 1e9:.3g} ns" if seconds < 1e-6 else f"{seconds * 1e6:.3g} us"


def print_table(figures):
    print(f"\n{'figure':<18}{'each':>12}{'other':>12}{'ratio':>8}  {'goal':<12}result")
    for figure in figures:
        ratio = f"{figure.ratio:.2f}" if figure.ratio else ""
        result = {None: "", True: "met", False: "MISSED"}[figure.is_met()]
        print(
            f"{figure.name:<18}{readable(figure.seconds):>12}{readable(figure.other_seconds):>12}"
            f"{ratio:>8}  {figure.goal or '':<12}{result}"
        )


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("names", nargs="*", metavar="NAME", help=", ".join(BENCHMARKS))
    parser.add_argument("--kernels", metavar="PATH", help="the program made from kernels.cpp")
    parser.add_argument("--quick", action="store_true", help="smaller sizes, fewer repetitions")
    arguments = parser.parse_args()
    unknown = set(arguments.names) - set(BENCHMARKS)
    if unknown:
        parser.error(f"no figure named {', '.join(sorted(unknown))}")

    figures = []
    for name in arguments.names or BENCHMARKS:
        if name in NEED_KERNELS and arguments.kernels is None:
            print(f"{name}: skipped, it needs --kernels")
            continue
        figure = BENCHMARKS[name](Bench(arguments.kernels, arguments.quick))
        if isinstance(figure, Figure):
            print(json.dumps(asdict(figure)), flush=True)
            figures.append(figure)
        else:
            print(figure, flush=True)
    print_table(figures)


if __name__ == "__main__":
    sys.exit(main())
