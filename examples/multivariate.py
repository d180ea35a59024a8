# SPDX-License-Identifier: MIT
"""From related variables to independent normal scores, and from simulated scores back.

Takes columns of a CSV file, or without one five attributes of 2,000 cells of an elevation model
that comes with matplotlib. Writes multivariate.png into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
import time
from collections.abc import Iterator, Sequence
from dataclasses import dataclass
from itertools import combinations
from pathlib import Path

import gravelox
import numpy as np
from block_model import make_folder
from support.samples import Array, InputError
from support.scatter_matrices import draw_scatter_matrices
from support.scores import normal_scores
from support.simulation_options import natural
from support.variables import Variables, read_variables, terrain_attributes
from tqdm import tqdm


@dataclass(frozen=True)
class Margins:
    """The normal score of each variable by itself."""

    maps: list[gravelox.NScore]

    @staticmethod
    def of(values: Array) -> Margins:
        return Margins([normal_scores(row, np.ones(len(row))) for row in values])

    def forward(self, values: Array) -> Array:
        return np.array([one.forward(row) for one, row in zip(self.maps, values)])

    def backward(self, scores: Array) -> Array:
        return np.array([one.backward(row) for one, row in zip(self.maps, scores)])


@dataclass(frozen=True)
class Study:
    """All arrays are of (d, n), variables in rows."""

    samples: Variables
    scores: Array
    restored: Array
    simulated: Array
    seconds: float


def main() -> int:
    options = parse_arguments()
    try:
        run(options)
    except InputError as error:
        print(f"multivariate.py: {error}", file=sys.stderr)
        return 2
    return 0


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n\n")[0])
    add = parser.add_argument
    add("csv", nargs="?", type=Path, help="samples with a header; without: an elevation model")
    add("--columns", nargs="+", default=[], metavar="NAME", help="those of the variables")
    add("--steps", type=natural, default=30, help="steps of the chain (%(default)s)")
    add("--seed", type=natural, default=1, help="a number from 1 on (%(default)s)")
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")
    add("--out", type=Path, default=Path("multivariate"), help="output folder (%(default)s)")
    return parser.parse_args()


def run(options: argparse.Namespace) -> None:
    samples = read_variables(options.csv, options.columns) if options.csv else terrain_attributes()
    make_folder(options.out)
    rng = np.random.default_rng(options.seed)
    study = carry_out(samples, rng, options)
    picture = options.out / "multivariate.png"
    draw_scatter_matrices(picture, samples, study.scores, study.simulated, rng)
    print_tables(study, options)
    print(f"\nwritten: {picture}")


def carry_out(samples: Variables, rng: np.random.Generator, options: argparse.Namespace) -> Study:
    """The chain takes each variable's own normal scores.

    They keep simulated values within the range of the samples: steps on the values themselves would
    carry a few beyond it, to slopes below 0.
    """
    stages = _stages("margins", "chain", "scores", "back", "simulation")
    next(stages)
    margins = Margins.of(samples.values)
    normal = margins.forward(samples.values)
    next(stages)
    begin = time.perf_counter()
    chain = gravelox.PPMT(normal, options.steps, n_threads=options.threads, seed=options.seed)
    seconds = time.perf_counter() - begin
    next(stages)
    scores = chain.forward(normal, options.threads)
    next(stages)
    restored = margins.backward(chain.backward(scores, options.threads))
    next(stages)
    independent = rng.normal(size=scores.shape)  # fields of each score, in a study of the ground
    simulated = margins.backward(chain.backward(independent, options.threads))
    next(stages, None)
    return Study(samples, scores, restored, simulated, seconds)


def _stages(*names: str) -> Iterator[None]:
    """A bar that moves on from stage to stage."""
    with tqdm(total=len(names), unit=" stages") as bar:
        for name in names:
            bar.set_description(name)
            yield
            bar.update()


def print_tables(study: Study, options: argparse.Namespace) -> None:
    samples, labels = study.samples.values, study.samples.labels
    deviations = samples.std(axis=1, keepdims=True)
    missed = np.abs((study.restored - samples) / deviations).max()
    far = np.count_nonzero(np.abs(study.scores) > 4)
    _line("samples", study.samples.note)
    _line("chain", f"{options.steps} steps in {study.seconds:.1f} s")
    _line("samples from their scores", f"missed by {missed:.1g} standard deviations at most")
    _line("scores beyond 4 in size", f"{far} of {study.scores.size:,}")

    print()
    both = (samples, study.simulated)
    _row("", ["mean", "", "deviation"])
    _row("", ["samples", "simulated"] * 2)
    for label, *rows in zip(labels, *both):
        numbers = [*(row.mean() for row in rows), *(row.std() for row in rows)]
        _row(label, [f"{number:.4g}" for number in numbers])

    print()
    _row("", ["correlation", "", "", "of ranks"])
    _row("", ["samples", "scores", "simulated", "samples", "simulated"])
    sets = [samples, study.scores, study.simulated, _ranks(samples), _ranks(study.simulated)]
    tables = [np.corrcoef(one) for one in sets]
    for pair in combinations(range(len(labels)), 2):
        names = " and ".join(labels[one].partition(" (")[0] for one in pair)
        _row(names, [f"{round(table[pair], 2) + 0.0:.2f}" for table in tables])
    differences = [f"{abs(tables[a] - tables[b]).max():.2f}" for a, b in ((0, 2), (3, 4))]
    print()
    _row("greatest difference", ["", "", differences[0], "", differences[1]])


def _ranks(values: Array) -> Array:
    """Those of each row; equal values share the mean of theirs."""
    ranks = []
    for row in values:
        _, place, counts = np.unique(row, return_inverse=True, return_counts=True)
        ranks.append((np.cumsum(counts) - (counts - 1) / 2)[place.ravel()])
    return np.array(ranks)


def _line(name: str, text: str) -> None:
    print(f"{name:30}{text}")


def _row(name: str, cells: Sequence[str]) -> None:
    print(f"{name:30}" + "".join(f"{cell:>12}" for cell in cells))


if __name__ == "__main__":
    sys.exit(main())
