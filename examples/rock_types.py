# SPDX-License-Identifier: MIT
"""Rock types on a section: transitions counted in holes, a chain fitted to them, realisations.

The section is drawn at random, so that the truth between its holes is known. Writes rock_types.png
and transitions.png into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
import time
from dataclasses import dataclass
from pathlib import Path

import gravelox
import numpy as np
from block_model import make_folder
from gravelox.jet.ast import Function, Variable, cos, exp, sin
from support.options import count, two_or_more
from support.rock_pictures import draw_section, draw_transitions
from support.rocks import (
    NAMES,
    Classes,
    Section,
    Transitions,
    chain,
    from_hole_to_hole,
    make_section,
    most_frequent,
    upward,
)
from support.samples import Array, InputError
from tqdm import tqdm

ABOUT = 20.0  # metres, the length of which the fit's variables are about 1


@dataclass(frozen=True)
class Chain:
    """A chain's angle, the lengths of its two decays upwards, and the stretch sideways."""

    shares: Array
    angle: float
    lengths: tuple[float, float]
    stretch: float

    def at(self, lags: Array) -> Array:
        """Its transitions (n, 3, 3) at lags upwards."""
        decays = [np.exp(-lags / length) for length in self.lengths]
        rows = chain(self.shares, np.cos(self.angle), np.sin(self.angle), decays)
        return np.moveaxis(np.array(rows), 2, 0)

    def transiogram(self) -> gravelox.transiogram.Transiogram:
        """Over places whose first coordinate is divided by the stretch."""
        nodes = gravelox.ast
        u, v = nodes.Variable("u", [0.0] * 3), nodes.Variable("v", [0.0] * 3)
        lag = u - v
        length = nodes.sqrt(lag * lag)
        decays = [nodes.exp(length * (-1 / one)) for one in self.lengths]
        angle = float(np.cos(self.angle)), float(np.sin(self.angle))
        return gravelox.transiogram.Transiogram(u, v, chain(self.shares, *angle, decays))


def main() -> int:
    options = parse_arguments()
    try:
        run(options)
    except InputError as error:
        print(f"rock_types.py: {error}", file=sys.stderr)
        return 2
    return 0


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n\n")[0])
    add = parser.add_argument
    add("--realisations", type=two_or_more, default=40, help="their number (%(default)s)")
    add("--neighbors", type=count, default=4, help="cells and samples that count (%(default)s)")
    add("--section", type=count, default=1, help="seed of the section (%(default)s)")
    add("--seed", type=count, default=1, help="of the first realisation (%(default)s)")
    add("--out", type=Path, default=Path("rock_types"), help="output folder (%(default)s)")
    return parser.parse_args()


def run(options: argparse.Namespace) -> None:
    make_folder(options.out)
    section = make_section(options.section)
    counted = upward(section.truth[section.holes]), from_hole_to_hole(section)
    shares = np.bincount(section.truth[section.holes].ravel(), minlength=3)
    fitted = fit(shares / shares.sum(), *counted)
    begin = time.perf_counter()
    realisations = simulate(section, fitted, options)
    seconds = (time.perf_counter() - begin) / len(realisations)
    pictures = options.out / "rock_types.png", options.out / "transitions.png"
    draw_section(pictures[0], section, realisations)
    draw_transitions(pictures[1], counted, fitted, realisations)
    print_tables(section, fitted, realisations, seconds)
    print(f"\nwritten: {', '.join(map(str, pictures))}")


def fit(shares: Array, up: Transitions, sideways: Transitions) -> Chain:
    """By least squares over all entries at all lags, each weighed by its pairs."""
    angle, short = Variable("angle", 0.0), Variable("short", 0.5)
    long, stretch = Variable("long", 2.0), Variable("stretch", 1.0)
    variables = [angle, short, long, stretch]
    costs = []
    for counted, divisor in ((up, 1.0), (sideways, stretch * 10.0)):
        for lag, shares_at, pairs in zip(counted.lags / ABOUT, counted.shares, counted.pairs):
            decays = [exp(-lag / (divisor * one)) for one in (short, long)]
            rows = chain(shares, cos(angle), sin(angle), decays)
            roots = np.sqrt(pairs / up.pairs.mean())
            costs += [
                Function.Scalar(variables, (rows[j][k] - shares_at[j, k]) * roots[j, k])
                for j in range(3)
                for k in range(3)
            ]
    bounds = {one.name: (0.01, 100.0) for one in (short, long, stretch)}
    found, _ = gravelox.ceres.solve(costs, variables, bounds)
    lengths = found["short"] * ABOUT, found["long"] * ABOUT
    return Chain(shares, found["angle"], lengths, 10 * found["stretch"])


def simulate(section: Section, fitted: Chain, options: argparse.Namespace) -> Classes:
    """Realisations (n, COLUMNS, LEVELS).

    Sideways distances are divided by the stretch. So the weights of neighbours go by the
    distances of the chain, and the search needs no ellipsoid of its own, under which samples would
    be elsewhere than targets.
    """
    places = section.places / (fitted.stretch, 1, 1)
    plain = gravelox.Ellipsoid(1, 1, 1, 90, 0, 0)
    logged = section.truth.ravel()[section.in_holes]
    table = fitted.transiogram()
    realisations = []
    for number in tqdm(range(options.realisations), unit=" realisations"):
        classes = gravelox.markov_chain.simulation(
            places,
            places[section.in_holes],
            logged,
            table,
            plain,
            knn=options.neighbors,
            n_previous=options.neighbors,
            seed=options.seed + number,
        )
        realisations.append(np.array(classes, np.int32).reshape(section.truth.shape))
    return np.array(realisations)


def print_tables(section: Section, fitted: Chain, realisations: Classes, seconds: float) -> None:
    inside, truth = section.in_holes, section.truth.ravel()
    cells = realisations.reshape(len(realisations), -1)
    _line("section", f"{truth.size:,} cells, {inside.sum()} of them in {len(section.holes)} holes")
    short, long = sorted(fitted.lengths)
    _line("chain", f"decays over {short:.1f} m and {long:.1f} m, stretch {fitted.stretch:.1f}")
    _line("least entry of the chain", f"{fitted.at(np.linspace(0, 100, 201)).min():.3f}")
    _line(
        "realisations", f"{len(cells)}, {seconds:.1f} s each, {truth.size / seconds:,.0f} cells/s"
    )
    _line("cells in holes as logged", f"{np.mean(cells[:, inside] == truth[inside]):.2%}")
    print()
    _row("share of", NAMES)
    for name, some in (("truth", truth), ("holes", truth[inside]), ("realisations", cells.ravel())):
        _row(name, [f"{one:.3f}" for one in np.bincount(some, minlength=3) / some.size])
    print()
    away = ~inside
    likeliest, likelihood = most_frequent(cells)
    nearest = truth[inside][_nearest(section, fitted)]
    for name, guess in (("most frequent type", likeliest), ("type of the nearest sample", nearest)):
        _line(f"right, {name}", f"{np.mean(guess[away] == truth[away]):.1%}")
    _line("right, one realisation", f"{np.mean(cells[:, away] == truth[away]):.1%}")
    print()
    _row("frequency of the first", ["cells", "right"])
    for low, high in ((0.0, 0.5), (0.5, 0.65), (0.65, 0.8), (0.8, 1.0)):
        chosen = away & (likelihood > low) & (likelihood <= high)
        if chosen.any():
            right = np.mean(likeliest[chosen] == truth[chosen])
            _row(f"{low:.0%} to {high:.0%}", [f"{chosen.sum():,}", f"{right:.1%}"])


def _nearest(section: Section, fitted: Chain) -> Array:
    """For each cell its nearest sample in the chain's distances."""
    places = section.places / (fitted.stretch, 1, 1)
    samples = places[section.in_holes]
    return np.array([np.argmin(((samples - place) ** 2).sum(axis=1)) for place in places])


def _line(name: str, text: str) -> None:
    print(f"{name:34}{text}")


def _row(name: str, cells: list[str] | tuple[str, ...]) -> None:
    print(f"{name:34}" + "".join(f"{cell:>12}" for cell in cells))


if __name__ == "__main__":
    sys.exit(main())
