"""Unconditional simulation: turning bands against numpy and gstools, Fourier integrals against
their transforms alone.

The time of turning bands is that of one line at one point.
"""

import time

import gravelox as gx
import numpy as np
from harness import (
    SIDE,
    Figure,
    Skipped,
    advantage,
    per_item,
    share_of_linear,
    slowdown,
    uniform_points,
)

N_LINES, N_POINTS = 600, 1_000_000
RANGES = (SIDE / 4.0, SIDE / 8.0, SIDE / 16.0)
CORNERS = [(x, y, z) for x in (0.0, SIDE) for y in (0.0, SIDE) for z in (0.0, SIDE)]
N_CELLS = 128  # of the Fourier integral, on each axis


def structure(kind, ranges=RANGES):
    return getattr(gx.Covariance, kind)(1.0, gx.Ellipsoid(*ranges, 30.0, 20.0, 10.0))


def n_points(bench):
    """A tenth of the points in a quick run."""
    return N_POINTS * bench.n_targets // 100_000


def field(bench, kind, n_threads=1, ranges=RANGES):
    """A call that evaluates a field at all points, and the points."""
    points = uniform_points(n_points(bench), 3)
    simulator = gx.TBSIM(CORNERS, structure(kind, ranges), 1, N_LINES)
    return lambda: simulator(points, n_threads), points


def figure(name, bench, goal, times, threads=1):
    sizes = {"lines": N_LINES, "points": n_points(bench)}
    return Figure(name, sizes, threads, goal=goal, **times)


def lines_of(kind, goal):
    def tbsim(bench):
        call, points = field(bench, kind)
        times = bench.time(per_item(call, len(points) * N_LINES))
        return figure(f"tbsim_{kind}", bench, goal, times)

    tbsim.__name__ = f"tbsim_{kind}"
    return tbsim


def cosines_in_blocks(points, block=4096):
    """A sum of cosines as one writes it with numpy: the same number of lines, all drawn at once."""
    random = np.random.RandomState(1)
    directions = random.normal(size=(3, N_LINES)) / 100.0
    phases = random.uniform(0.0, 2.0 * np.pi, N_LINES)
    values = np.empty(len(points))
    for first in range(0, len(points), block):
        angles = points[first : first + block] @ directions + phases
        values[first : first + block] = np.cos(angles, out=angles).sum(axis=1)
    return values * np.sqrt(2.0 / N_LINES)


def tbsim_numpy(bench):
    """The Gaussian structure's cosines, by us and by numpy."""
    call, points = field(bench, "gaussian")
    n = len(points) * N_LINES
    part = points[: len(points) // 10]
    theirs = per_item(lambda: cosines_in_blocks(part), len(part) * N_LINES)
    return figure("tbsim_numpy", bench, ">= 4", bench.compare(per_item(call, n), theirs, advantage))


def tbsim_gstools(bench):
    """The Gaussian structure by us and by the randomisation method of gstools."""
    try:
        import gstools
    except ImportError as error:
        raise Skipped("gstools is not installed") from error
    call, points = field(bench, "gaussian", ranges=(RANGES[0],) * 3)
    model = gstools.Gaussian(dim=3, var=1.0, len_scale=RANGES[0] / np.sqrt(3.0))
    theirs = gstools.SRF(model, seed=1, mode_no=N_LINES)
    part = tuple(points[: len(points) // 10].T.copy())
    timer = per_item(lambda: theirs(part), len(part[0]) * N_LINES)
    times = bench.compare(per_item(call, len(points) * N_LINES), timer, advantage)
    return figure("tbsim_gstools", bench, None, times)


def tbsim_threads(bench):
    """All threads on the wall clock: the speed-up as a share of the machine's cores."""
    threads = gx.check_n_threads(0)
    every, one = (
        per_item(call, len(points) * N_LINES, time.perf_counter)
        for call, points in (field(bench, "gaussian", n) for n in (threads, 1))
    )
    times = bench.compare_least(every, one, share_of_linear(threads))
    return figure("tbsim_threads", bench, ">= 0.85", times, threads)


def fim(bench):
    """The construction of a field at 128 cells an axis, against its two transforms alone."""
    spherical = structure("spherical")

    def construct():
        return gx.FIM(CORNERS, spherical, 1, N_CELLS, n_threads=1)

    transforms = bench.kernel(f"transforms/{N_CELLS}")
    # The kernel's are five, of this size.
    times = bench.compare(per_item(construct, 1), lambda: transforms() * 2.0 / 5.0, slowdown)
    return Figure("fim", {"cells": N_CELLS}, 1, **times)


FIGURES = (
    lines_of("gaussian", "< 4.5e-9 s"),
    lines_of("spherical", "< 1.5e-9 s"),
    lines_of("exponential", "< 1.5e-9 s"),
    tbsim_numpy,
    tbsim_gstools,
    tbsim_threads,
    fim,
)
