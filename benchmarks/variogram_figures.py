"""Variograms of scattered samples, against plain loops over pairs, scikit-gstat and gstools.

Seconds are of a pair: of each time that two samples are looked at together along a direction.
"""

import time

import gravelox as gx
import numpy as np
from harness import (
    SIDE,
    Figure,
    Skipped,
    advantage,
    check_same,
    per_item,
    share_of_linear,
    slowdown,
)

N_SAMPLES = 5_000  # as in kernels.cpp
N_PAIRS = N_SAMPLES * (N_SAMPLES - 1) // 2

# Along each direction every pair once: one centre, in an ellipsoid that takes in all samples.
EVERY_PAIR = {"n_centers": 1, "bandwidth": 1000.0}
EVERY_ANGLE, SOME_ANGLES = 90.0, 22.5
WITHOUT_DIRECTION = {"angle_tol": EVERY_ANGLE, "n_directions": 1}  # these make two directions
FOUR_DIRECTIONS = {"angle_tol": SOME_ANGLES, "n_directions": 2}
N_LAGS_PACKAGES = 15


def samples_of(bench):
    """The samples with values that are highest in the middle.

    The first centre is the highest sample. No query is exact, but one from the middle finds all.
    """
    samples = bench.samples[:N_SAMPLES]
    return samples, np.exp(-np.linalg.norm(samples - SIDE / 2, axis=1) / (0.3 * SIDE))


def variogram(bench, n_threads=1, **options):
    samples, values = samples_of(bench)
    return lambda: gx.compute_exp_variogram(samples, values, n_threads=n_threads, **options)


def pairs(bench, **options):
    """How many pairs a call looks at, and how many of these come into a lag.

    It counts them itself: without a window a pair comes into one lag; with a lag longer than all
    pairs and every angle allowed each pair comes into it.
    """
    once = {**options, "window_size": 0}
    all_in_one = {"angle_tol": EVERY_ANGLE, "n_lags": 1, "lag_tol": 10.0}
    looked_at, counted = (
        sum(variogram(bench, **call)().npairs()) for call in ({**once, **all_in_one}, once)
    )
    return {"pairs": looked_at, "pairs_in_lags": counted}


def against_loop(bench, name, n_directions, options):
    """A whole call against a plain loop over every pair of the same samples, which tests so many
    directions at each (0: takes all pairs)."""
    n = pairs(bench, **options)
    loop = bench.kernel(f"pairs/{n_directions}")
    times = bench.compare_least(
        per_item(variogram(bench, **options), n["pairs"]),
        lambda: loop() / max(n_directions, 1),
        slowdown,
    )
    return Figure(name, {"samples": N_SAMPLES, **n}, 1, **times)


def variogram_defaults(bench):
    """600 directions and 60 centres: a pair, its share of 600 trees and 36,000 queries included,
    against one of a loop over a single direction."""
    return against_loop(bench, "variogram_defaults", 1, {})


def variogram_in_lags(bench):
    """The same call for each pair that comes into a lag."""
    n = pairs(bench)
    times = bench.time(per_item(variogram(bench), n["pairs_in_lags"]))
    return Figure("variogram_in_lags", {"samples": N_SAMPLES, **n}, 1, **times)


def variogram_all_centers(bench):
    return against_loop(bench, "variogram_all_centers", 1, {"n_centers": N_SAMPLES})


def variogram_loop(bench):
    """Every pair, whatever its angle, along the two directions that are the least there are."""
    return against_loop(bench, "variogram_loop", 0, {**EVERY_PAIR, **WITHOUT_DIRECTION})


def variogram_loop_4(bench):
    """Every pair along four directions."""
    return against_loop(bench, "variogram_loop_4", 4, {**EVERY_PAIR, **FOUR_DIRECTIONS})


def variogram_threads(bench):
    """All threads on the wall clock: the speed-up as a share of the machine's cores."""
    threads, n = gx.check_n_threads(0), pairs(bench)
    every, one = (
        per_item(variogram(bench, n_threads), n["pairs"], time.perf_counter)
        for n_threads in (threads, 1)
    )
    times = bench.compare_least(every, one, share_of_linear(threads))
    sizes = {"samples": N_SAMPLES, **n}
    return Figure("variogram_threads", sizes, threads, goal=">= 0.85", **times)


def curve(vario, direction_id):
    """The lengths of the lags of a direction, ascending, and their semivariances."""
    lags, semivariances, _ = vario.get_variogram_by_direction_id(direction_id)
    return np.linalg.norm(lags, axis=1), semivariances


def against_package(bench, name, options, theirs, n_together):
    """Ours against theirs(samples, values, lags, directions, direction_id), which gives the
    semivariances of one direction and may compute those of n_together with it.

    A lag has the pairs that are longer than the lag before. Few lags favour them: their time grows
    with each one.
    """
    options = {**EVERY_PAIR, **options, "n_lags": N_LAGS_PACKAGES, "window_size": 0}
    samples, values = samples_of(bench)
    few = samples[:1000], values[:1000]
    vario = gx.compute_exp_variogram(*few, **options)
    directions = np.array(vario.directions())
    for direction_id in range(len(directions)):
        lags, semivariances = curve(vario, direction_id)
        check_same(semivariances, theirs(*few, lags, directions, direction_id))

    n = pairs(bench, **options)
    if n["pairs"] != len(directions) * N_PAIRS:
        raise RuntimeError("the two sides do not look at the same pairs")
    call = variogram(bench, **options)
    lags, _ = curve(call(), 0)
    times = bench.compare_least(
        per_item(call, n["pairs"]),
        per_item(lambda: theirs(samples, values, lags, directions, 0), n_together * N_PAIRS),
        advantage,
    )
    sizes = {"samples": N_SAMPLES, **n, "lags": N_LAGS_PACKAGES}
    return Figure(name, sizes, 1, goal=">= 5", **times)


def variogram_gstat(bench):
    """scikit-gstat without direction, and without a model fitted to the result."""
    try:
        from skgstat import Variogram
    except ImportError as error:
        raise Skipped("scikit-gstat is not there") from error

    def theirs(samples, values, lags, _directions, _direction_id):
        return Variogram(samples, values, bin_func=lags, fit_method=None).experimental

    return against_package(bench, "variogram_gstat", WITHOUT_DIRECTION, theirs, 1)


def import_gstools():
    try:
        import gstools
    except ImportError as error:
        raise Skipped("GSTools is not there") from error
    gstools.config.NUM_THREADS = 1
    return gstools


def variogram_gstools(bench):
    """GSTools without direction."""
    gstools = import_gstools()

    def theirs(samples, values, lags, _directions, _direction_id):
        return gstools.vario_estimate(samples.T, values, np.append(0.0, lags))[1]

    return against_package(bench, "variogram_gstools", WITHOUT_DIRECTION, theirs, 1)


def variogram_gstools_4(bench):
    """GSTools along four directions, all of them at once."""
    gstools = import_gstools()

    def theirs(samples, values, lags, directions, direction_id):
        edges, tolerance = np.append(0.0, lags), np.radians(SOME_ANGLES)
        _, semivariances = gstools.vario_estimate(
            samples.T, values, edges, direction=directions, angles_tol=tolerance
        )
        return semivariances[direction_id]

    return against_package(bench, "variogram_gstools_4", FOUR_DIRECTIONS, theirs, 4)


FIGURES = (
    variogram_defaults,
    variogram_in_lags,
    variogram_all_centers,
    variogram_loop,
    variogram_loop_4,
    variogram_threads,
    variogram_gstat,
    variogram_gstools,
    variogram_gstools_4,
)
