# SPDX-License-Identifier: MIT
"""A nested variogram model, written as an expression, fitted to a variogram with outliers.

Takes a CSV file of samples, or without one draws 2,000 cells of an elevation model that comes with
matplotlib. Some lags of the experimental variogram are spoiled on purpose: a fit by squares follows
them, one with a robust loss does not. Writes fit_expression.png into the output folder and prints a
table.
"""

from __future__ import annotations

import argparse
import sys
import time
from dataclasses import dataclass
from pathlib import Path

import gravelox
import numpy as np
from block_model import load, make_folder
from gravelox.jet.ast import Function, Value, Variable, spherical
from support.fit_pictures import draw_fits
from support.lags import Curve, experimental_curve, spoil
from support.options import add_files, count, positive, share
from support.samples import Array, InputError
from tqdm import tqdm

START = {"nugget": 0.1, "short sill": 0.4, "short range": 0.2, "long sill": 0.5, "long range": 1.0}
RANGES = ("short range", "long range")


@dataclass(frozen=True)
class Fit:
    """What a fit has found, by name, in variances and reaches, and its model at all lags."""

    name: str
    found: dict[str, float]
    at_lags: Array
    smooth: tuple[Array, Array]
    steps: int
    seconds: float


class Model:
    """A nugget and two spherical structures, over lags up to a length.

    Lags and ranges are in units of that length, sills in variances of the samples: all variables
    are about 1 in size.
    """

    def __init__(self, reach: float, start: dict[str, float]) -> None:
        lag = Variable("lag", 0.0)
        self.reach = reach
        self.variables = [Variable(name, start[name]) for name in START]
        nugget, short, near, long, far = self.variables
        body = nugget + short * (1.0 - spherical(lag / near)) + long * (1.0 - spherical(lag / far))
        self.semivariance = Function.Scalar([lag, *self.variables], body)
        self.bounds = dict.fromkeys(START, (0.0, np.inf))
        self.bounds.update({"short range": (0.02, 0.5), "long range": (0.5, 4.0)})

    def cost(self, length: float, value: float, weight: float) -> Function:
        """A lag's misfit in variances, times the root of its weight."""
        misfit = self.semivariance(Value(length / self.reach)) - value
        return Function.Scalar(self.variables, misfit * np.sqrt(weight))

    def fit(self, name: str, curve: Curve, loss: float, n_threads: int) -> Fit:
        steps = -1  # the first call is at the start

        def follow(_: list[float]) -> bool:
            nonlocal steps
            steps += 1
            return True

        begin = time.perf_counter()
        costs = [self.cost(*lag) for lag in zip(curve.lengths, curve.values, curve.weights)]
        found, _ = gravelox.ceres.solve(
            costs,
            self.variables,
            self.bounds,
            cauchy_loss=loss,
            n_threads=n_threads,
            validation_cb=follow,
        )
        seconds = time.perf_counter() - begin
        lengths = np.linspace(0, self.reach, 200)[1:]
        smooth = lengths, self.at(found, lengths)
        return Fit(name, found, self.at(found, curve.lengths), smooth, steps, seconds)

    def at(self, found: dict[str, float], lengths: Array) -> Array:
        compiled = self.semivariance.ScalarFunction()
        values = [found[name] for name in START]
        return np.array([compiled([length / self.reach, *values]).value for length in lengths])


def main() -> int:
    options = parse_arguments()
    try:
        run(options)
    except InputError as error:
        print(f"fit_expression.py: {error}", file=sys.stderr)
        return 2
    return 0


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n\n")[0])
    add_files(parser, Path("fit_expression"))
    add = parser.add_argument
    add("--unit", default="m", help="length unit, for the picture (%(default)s)")
    add("--lags", type=count, default=50, help="lags of the variogram (%(default)s)")
    add("--spoiled", type=share, default=0.2, help="share of lags to spoil (%(default)s)")
    add("--loss", type=positive, default=0.03, help="scale of the loss, in variances (%(default)s)")
    add("--seed", type=count, default=1, help="of the spoiled lags (%(default)s)")
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")
    return parser.parse_args()


def run(options: argparse.Namespace) -> None:
    samples, _ = load(options)
    make_folder(options.out)
    with tqdm(total=4, unit=" stages", desc="variogram", leave=False) as bar:
        clean = experimental_curve(samples, options.lags)
        spoiled = spoil(clean, options.spoiled, np.random.default_rng(options.seed))
        fits: list[Fit] = []
        # Costs with a loss have several minima: the last fit starts where the one before it ends.
        for name, curve, loss in (
            ("as they were, squares", clean, 0.0),
            ("spoiled, squares", spoiled, 0.0),
            ("spoiled, Cauchy loss", spoiled, options.loss),
        ):
            bar.update()
            bar.set_description(name)
            start = fits[-1].found if loss > 0 else START
            fits.append(Model(clean.reach, start).fit(name, curve, loss, options.threads))
        bar.update()
    picture = options.out / "fit_expression.png"
    draw_fits(picture, spoiled, fits, options.loss, samples.label, options.unit)
    print_tables(clean, spoiled, fits)
    print(f"\nwritten: {picture}")


def print_tables(clean: Curve, spoiled: Curve, fits: list[Fit]) -> None:
    print(f"{len(clean.values)} lags up to {clean.reach:,.4g}, {spoiled.outliers.sum()} spoiled\n")
    _row("", [fit.name for fit in fits])
    for name in START:
        unit = clean.reach if name in RANGES else 1.0
        _row(name, [f"{unit * fit.found[name]:,.4g}" for fit in fits])
    good = ~spoiled.outliers
    roots = [np.sqrt(np.mean((fit.at_lags - clean.values)[good] ** 2)) for fit in fits]
    _row("misfit of the other lags", [f"{root:.4f}" for root in roots])
    moved = [np.abs(fit.smooth[1] - fits[0].smooth[1]).max() for fit in fits]
    _row("farthest from the first", [f"{one:.4f}" for one in moved])
    _row("steps", [str(fit.steps) for fit in fits])
    _row("milliseconds", [f"{1000 * fit.seconds:.1f}" for fit in fits])


def _row(name: str, cells: list[str]) -> None:
    print(f"{name:26}" + "".join(f"{cell:>24}" for cell in cells))


if __name__ == "__main__":
    sys.exit(main())
