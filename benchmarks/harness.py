"""What the families of benchmarks share: figures, points and ways to time."""

import json
import operator
import statistics
import subprocess
import time
from dataclasses import dataclass
from typing import Callable, Optional

import numpy as np

# Points and numbers of neighbours are those of kernels.cpp.
SAMPLE_SEED, TARGET_SEED, SIDE = 1, 2, 1000.0
N_SAMPLES, N_NEIGHBORS, N_NEIGHBORS_IDW = 20_000, 32, 16

# A tree that prunes at (1 + eps) times the distance skips what ours does at 11 times its square.
SEARCH_EPS = 2.3166

COMPARE = {"<=": operator.le, ">=": operator.ge, "<": operator.lt}


class Skipped(Exception):
    """What a figure needs is not there."""


@dataclass
class Figure:
    name: str
    sizes: dict
    threads: int
    seconds: Optional[float] = None
    other_seconds: Optional[float] = None
    ratio: Optional[float] = None
    spread: Optional[float] = None  # the greatest of the times behind `seconds` over the least
    goal: Optional[str] = None  # "<= 3.2" of the ratio, or "< 2e-9 s" of the seconds

    def is_met(self):
        if self.goal is None:
            return None
        relation, limit, *unit = self.goal.split()
        return COMPARE[relation](self.seconds if unit else self.ratio, float(limit))


class Bench:
    """What the benchmarks share: sizes, points and ways to time."""

    def __init__(self, kernels, quick, repetitions=None):
        self.kernels = kernels
        self.repetitions = repetitions or (3 if quick else 9)
        self.n_targets = 20_000 if quick else 100_000
        self.n_boundary = 100_000 if quick else 1_000_000
        self.samples = uniform_points(N_SAMPLES, SAMPLE_SEED)
        self.values = values_at(self.samples)
        self.targets = uniform_points(self.n_targets, TARGET_SEED)

    def time(self, ours: Callable[[], float]):
        times = [ours() for _ in range(self.repetitions)]
        return {"seconds": min(times), "spread": max(times) / min(times)}

    def compare(self, ours: Callable[[], float], other: Callable[[], float], ratio):
        """The times of a figure and their ratio: the median of ratio(ours, other) of the rounds."""
        rounds = [(ours(), other()) for _ in range(self.repetitions)]
        return {
            **least_times(rounds),
            "ratio": statistics.median(ratio(*times) for times in rounds),
        }

    def compare_least(self, ours: Callable[[], float], other: Callable[[], float], ratio):
        """The same with the ratio of the least times: where others on the machine disturb one side
        alone, as on the wall clock, or where their use of the memory does.
        """
        times = least_times([(ours(), other()) for _ in range(self.repetitions)])
        return {**times, "ratio": ratio(times["seconds"], times["other_seconds"])}

    def kernel_entry(self, name):
        """A call that gives what a benchmark of the kernels' program reports."""
        if self.kernels is None:
            raise Skipped("it needs --kernels")
        command = [self.kernels, f"--benchmark_filter=^{name}/", "--benchmark_format=json"]

        def run():
            output = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
            (entry,) = json.loads(output)["benchmarks"]
            return entry

        return run

    def kernel(self, name):
        """A timer of one item of a benchmark of the kernels' program."""
        run = self.kernel_entry(name)
        return lambda: 1.0 / run()["items_per_second"]


def least_times(rounds):
    ours, other = zip(*rounds)
    return {
        "seconds": min(ours),
        "other_seconds": min(other),
        "spread": max(ours) / min(ours),
    }


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


def share_of_linear(threads):
    """The speed-up of ours on this many threads over the other on one, as a share of it."""
    return lambda ours, other: other / ours / threads


def check_same(ours, theirs):
    if not np.allclose(ours, theirs, rtol=1e-9, atol=0):
        raise RuntimeError("the two sides do not do the same work")
