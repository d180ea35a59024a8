# SPDX-License-Identifier: MIT
"""From samples to their spatial structure: principal axes, directional variograms, a model, maps.

Takes a CSV file of samples, or without one draws 2,000 cells of an elevation model that comes with
matplotlib. Writes variogram.png and variogram_map.png into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
import time
from collections.abc import Callable
from dataclasses import dataclass, field, replace
from pathlib import Path
from typing import TypeVar

import gravelox
import numpy as np
from block_model import block_size, load, make_folder
from support.directional import Directional, Lags, along, line_text, principal_axes
from support.nested import Nested, fit
from support.options import parse_variography_arguments
from support.samples import Array, InputError, Samples, Truth
from support.variogram_maps import (
    Map,
    krige_blocks,
    map_of_blocks,
    map_of_samples,
    map_of_terrain,
    variance_text,
)
from support.variogram_pictures import NAMES, Labels, draw_directional, draw_maps

Result = TypeVar("Result")


@dataclass
class Stopwatch:
    """Seconds by what they were spent on."""

    seconds: dict[str, float] = field(default_factory=dict)

    def time(self, name: str, call: Callable[[], Result]) -> Result:
        begin = time.perf_counter()
        result = call()
        self.seconds[name] = time.perf_counter() - begin
        return result


@dataclass(frozen=True)
class Structure:
    """Principal axes by the lags up to a length, the variograms along them, and a model."""

    window: float
    axes: Array
    curves: list[Directional]
    model: Nested


def main() -> int:
    options = parse_variography_arguments((__doc__ or "").partition("\n\n")[0])
    try:
        run(options)
    except InputError as error:
        print(f"variography.py: {error}", file=sys.stderr)
        return 2
    return 0


def run(options: argparse.Namespace) -> None:
    samples, truth = load(options)
    samples = take_logarithms(samples) if options.log else samples
    check_extent(samples)
    make_folder(options.out)
    watch = Stopwatch()
    box, rotation = watch.time("box", lambda: gravelox.optimize_rotation(samples.locations))
    structure = find_structure(samples, options, watch)
    maps = make_maps(samples, truth, structure.model, options, watch)
    pictures = draw(samples, structure, maps, options)

    print_samples(samples)
    print_box(samples, box, rotation)
    print_structure(structure)
    print_seconds(watch)
    print(f"\nwritten: {', '.join(map(str, pictures))}")


def take_logarithms(samples: Samples) -> Samples:
    if samples.values.min() <= 0:
        raise InputError(f"--log: expected values above 0, the least is {samples.values.min():g}")
    return replace(samples, values=np.log(samples.values), label=f"log {samples.label}")


def check_extent(samples: Samples) -> None:
    if len(box_sides(samples)) < (2 if samples.flat else 3):
        raise InputError("expected samples that spread in a plane or in space, found them in line")


def box_sides(samples: Samples) -> Array:
    """Those of the samples' box along x, y, z that are not 0."""
    sides = np.ptp(samples.locations, axis=0)
    return np.asarray(sides[sides > 0])


def find_structure(samples: Samples, options: argparse.Namespace, watch: Stopwatch) -> Structure:
    lags = watch.time("variogram of the samples", lambda: scattered_lags(samples, options))
    window = options.window or float(box_sides(samples).min()) / 2
    axes = principal_axes(lags, window, samples.flat)
    curves = [
        along(lags, axis, float(np.ptp(samples.locations @ axis)) / 2, options.cone)
        for axis in (axes[:2] if samples.flat else axes)
    ]
    return Structure(window, axes, curves, fit(curves, axes, float(np.var(samples.values))))


def scattered_lags(samples: Samples, options: argparse.Namespace) -> Lags:
    """Lags along random directions.

    The centres are all samples unless said otherwise: fewer are drawn from the highest values, and
    pairs around those differ more than others. A pair goes to one lag only: a window would carry
    pairs from longer lags to the shortest ones, and make a nugget of them.
    """
    variogram = gravelox.compute_exp_variogram(
        samples.locations,
        samples.values,
        n_centers=options.centers or len(samples.values),
        angle_tol=options.angle_tol,
        n_lags=options.lags,
        window_size=0,
        bandwidth=options.bandwidth or (0.02 if samples.flat else 0.01),
        n_directions=options.directions or (300 if samples.flat else 100),
    )
    return Lags.of(variogram)


def make_maps(
    samples: Samples,
    truth: Truth | None,
    model: Nested,
    options: argparse.Namespace,
    watch: Stopwatch,
) -> list[Map]:
    """Of the samples, and of the terrain where it is known, else of kriged blocks."""
    cell_size = block_size(samples, options.block)
    of_samples = watch.time("map of the samples", lambda: map_of_samples(samples, cell_size))
    if truth:
        return [of_samples, watch.time("map of the terrain", lambda: map_of_terrain(truth))]
    blocks, estimates = watch.time("kriging", lambda: krige_blocks(samples, model, cell_size))
    of_blocks = watch.time("map of the blocks", lambda: map_of_blocks(blocks, estimates))
    return [of_samples, of_blocks]


def draw(
    samples: Samples, structure: Structure, maps: list[Map], options: argparse.Namespace
) -> list[Path]:
    pictures = [options.out / "variogram.png", options.out / "variogram_map.png"]
    squared = "" if options.log else ", unit squared"
    labels = Labels(f"semivariance of {samples.label}{squared}", options.unit)
    variance = float(np.var(samples.values))
    draw_directional(pictures[0], structure.curves, structure.model, variance, labels)
    draw_maps(pictures[1], maps, structure.axes * structure.window, samples.flat, labels)
    return pictures


def print_samples(samples: Samples) -> None:
    _line("samples", "; ".join([f"{len(samples.values):,}", *samples.notes]))
    _line("values", f"{samples.label}, {variance_text(samples.values)}")


def print_box(samples: Samples, box: gravelox.BoundingBox, rotation: gravelox.Ellipsoid) -> None:
    info = rotation.info()
    sides = " x ".join(f"{side:,.0f}" for side in np.ptp(samples.locations, axis=0))
    _line("box along x, y, z", sides)
    turned = " ".join(f"{angle:.1f}" for angle in (info.azimuth(), info.dip(), info.rake()))
    _line("rotation of the tightest box", f"azimuth, dip, rake {turned}")
    for side, axis in zip(box.length(), rotation.matrix()):
        _line("", f"{side:,.0f} along {line_text(axis)}")


def print_structure(structure: Structure) -> None:
    model = structure.model
    title = f"axes, by lags up to {structure.window:,.0f}"
    print(f"\n{title:56}{'reach':>10}{'lags':>8}{'short':>10}{'long range':>12}")
    for name, curve, short, long in zip(NAMES, structure.curves, *model.ranges):
        numbers = f"{curve.reach:10,.0f}{len(curve.lags.values):8,}{short:10,.0f}{long:12,.0f}"
        _line(name, f"{line_text(curve.axis):22}{numbers}")
    short_share, long_share = model.shares
    shares = f"nugget {model.nugget:.0%}, short {short_share:.0%}, long {long_share:.0%}"
    _line("model, spherical", f"{shares} of the variance")
    turned = " ".join(f"{angle:.1f}" for angle in model.angles)
    _line("", f"azimuth, dip, rake {turned}")


def print_seconds(watch: Stopwatch) -> None:
    print()
    for name, seconds in watch.seconds.items():
        _line(f"seconds, {name}", f"{seconds:.2f}")


def _line(name: str, text: str) -> None:
    print(f"{name:34}{text}")


if __name__ == "__main__":
    sys.exit(main())
