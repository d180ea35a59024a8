"""Variograms of grids, against their transforms alone and against the same map by numpy and scipy.

All figures are of whole calls on a cubic grid of which a fifth is missing, given as a
CartesianGrid, over a working grid of as many cells.
"""

import subprocess
import sys
import time
from pathlib import Path

import gravelox as gx
import numpy as np
import scipy.fft
from harness import SIDE, Figure, advantage, check_same, per_item, slowdown

N_CELLS = 128  # on each axis
N_DIRECTIONS, N_LAGS, BANDWIDTH = 300, 75, 1.0

EVERY_LAG = 2 * N_CELLS - 1
# A variogram reads the lags of up to half the grid: those meet no lag that wraps around already if
# the transforms are one and a half times as long as the grid.
HALF_THE_LAGS = N_CELLS + N_CELLS // 2

N_CELLS_MEMORY = 200


def field(n):
    waves = np.sin(np.linspace(0.0, 9.0, n))
    values = waves[:, None, None] * waves[None, :, None] + waves
    values += np.random.RandomState(1).normal(0.0, 0.3, (n, n, n))
    values[np.random.RandomState(2).random_sample((n, n, n)) < 0.2] = np.nan
    return values


def variogram(values, n_threads=1, size=(N_DIRECTIONS, N_LAGS, BANDWIDTH)):
    """A call that computes the variogram of a cube."""
    n = len(values)
    grid = gx.CartesianGrid((SIDE, SIDE, SIDE), (n, n, n))
    data = values.ravel()

    def call():
        gx.set_fft_n_threads(n_threads)
        return gx.compute_variogram(grid, data, *size, n_threads=n_threads, nx=n, ny=n, nz=n)

    return call


def map_by_hand(values, length, fft, **options):
    """Semivariances and pair counts of all lags, as one writes it with numpy or scipy."""
    shape, axes = (length,) * 3, (0, 1, 2)
    indicator = np.isfinite(values).astype(float)
    known = np.where(indicator, values - np.nanmean(values), 0.0)
    first, second, pairs = (
        fft.rfftn(part, shape, axes, **options) for part in (known, known**2, indicator)
    )
    sums = second * pairs.conj() + pairs * second.conj() - 2.0 * first * first.conj()
    sums = fft.irfftn(sums, shape, axes, **options)
    counts = fft.irfftn(pairs * pairs.conj(), shape, axes, **options)
    some = counts > 1e-8
    return np.divide(0.5 * sums, counts, out=np.zeros(shape), where=some), counts


def check_map():
    """A map by hand, folded into lags, gives the variogram of a small grid.

    With no more lags than a leaf of our tree holds our search for them is exact.
    """
    n, reach = 10, 5
    values = field(n)
    ours = variogram(values, size=(1, 5, BANDWIDTH))()
    # The corners of a grid are cells: the working grid ends before the last ones.
    inside = values.copy()
    inside[-1] = inside[:, -1] = inside[:, :, -1] = np.nan
    semivariances, counts = map_by_hand(inside, n + reach, scipy.fft, workers=1)
    cells = np.stack(np.meshgrid(*[np.arange(-reach, reach + 1)] * 3, indexing="ij"), axis=-1)
    cells = cells.reshape(-1, 3)
    lags = np.array(ours.lags()) / (SIDE * (n - 1) / n)
    distances = np.linalg.norm(cells[:, None] / n - lags, axis=-1)
    weights = (distances < BANDWIDTH * np.sqrt(3.0) / n) * counts[tuple(cells.T)][:, None]
    check_same(ours.variogram(), semivariances[tuple(cells.T)] @ weights / weights.sum(axis=0))


def sizes(**other):
    lags = {"directions": 2 * N_DIRECTIONS, "lags": N_LAGS, "bandwidth": BANDWIDTH}
    return {"cells": [N_CELLS] * 3, **lags, **other}


def against_transforms(bench, name, length, goal):
    whole = per_item(variogram(field(N_CELLS)), 1)
    times = bench.compare_least(whole, bench.kernel(f"transforms/{length}"), slowdown)
    return Figure(name, sizes(transforms=[length] * 3), 1, goal=goal, **times)


def grid_variogram(bench):
    """A whole call against the five transforms that the map of every lag takes."""
    return against_transforms(bench, "grid_variogram", EVERY_LAG, "<= 1.5")


def grid_variogram_half(bench):
    """The same against the shorter transforms that the call really makes do with."""
    return against_transforms(bench, "grid_variogram_half", HALF_THE_LAGS, None)


def against_map(bench, name, least_length, goal, fft, **options):
    """A whole call against the map alone: theirs leaves out directions and the fold into lags."""
    check_map()
    values = field(N_CELLS)
    length = scipy.fft.next_fast_len(least_length, real=True)
    times = bench.compare_least(
        per_item(variogram(values), 1),
        per_item(lambda: map_by_hand(values, length, fft, **options), 1),
        advantage,
    )
    return Figure(name, sizes(other_transforms=[length] * 3), 1, goal=goal, **times)


def grid_variogram_numpy(bench):
    return against_map(bench, "grid_variogram_numpy", EVERY_LAG, ">= 1", np.fft)


def grid_variogram_scipy(bench):
    return against_map(bench, "grid_variogram_scipy", EVERY_LAG, ">= 1", scipy.fft, workers=1)


def grid_variogram_tuned(bench):
    """scipy at its best: it too leaves out the lags that nobody reads."""
    return against_map(bench, "grid_variogram_tuned", HALF_THE_LAGS, None, scipy.fft, workers=1)


def grid_variogram_threads(bench):
    """Two threads against one, on the wall clock."""
    values = field(N_CELLS)
    two, one = (per_item(variogram(values, n), 1, time.perf_counter) for n in (2, 1))
    times = bench.compare_least(two, one, advantage)
    return Figure("grid_variogram_threads", sizes(), 2, goal=">= 1.7", **times)


def grid_variogram_memory(bench):
    """What a call adds to the memory of a process at its peak, in maps of every lag."""
    n = N_CELLS_MEMORY
    command = [sys.executable, Path(__file__).with_name("grid_variogram_memory.py"), str(n)]
    output = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
    maps = int(output) / (8 * (2 * n - 1) ** 3)
    of = {"cells": [n] * 3, "map": [2 * n - 1] * 3, "bytes": int(output)}
    return Figure("grid_variogram_memory", of, 1, ratio=maps, goal="< 5")


FIGURES = (
    grid_variogram,
    grid_variogram_half,
    grid_variogram_numpy,
    grid_variogram_scipy,
    grid_variogram_tuned,
    grid_variogram_threads,
    grid_variogram_memory,
)
