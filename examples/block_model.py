# SPDX-License-Identifier: MIT
"""From samples to a block model, by inverse distance and by ordinary kriging.

Takes a CSV file of samples, or without one draws 2,000 cells of an elevation model that comes with
matplotlib and judges the estimates by all its other cells. Writes blocks.csv and block_model.png
into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import math
import sys
import time
from dataclasses import replace
from pathlib import Path

import gravelox
import numpy as np
from support.blocks import Blocks, blocks_near_samples, count_neighbors
from support.model import Model, choose_range
from support.options import parse_arguments
from support.pictures import draw_maps, draw_sections
from support.report import Estimates, print_table, write_blocks
from support.samples import (
    Array,
    Columns,
    InputError,
    Samples,
    Truth,
    elevation_samples,
    read_samples,
)
from support.scaled_kriging import Limits, krige
from tqdm import tqdm

SLICE = 2000  # targets a call: small enough for the bar to move, large enough for all threads


def main() -> int:
    options = parse_arguments((__doc__ or "").partition("\n\n")[0])
    try:
        run(options)
    except InputError as error:
        print(f"block_model.py: {error}", file=sys.stderr)
        return 2
    return 0


def run(options: argparse.Namespace) -> None:
    samples, truth = load(options)
    make_folder(options.out)
    limits = Limits(options.neighbors, options.octant, options.per_hole)
    model = choose_model(samples, limits, options)
    cell_size = truth.cell_size if truth else block_size(samples, options.block)
    blocks = blocks_near_samples(samples, cell_size, model.ellipsoid(), options.reach)
    estimates = estimate(samples, blocks, model, limits)

    write_blocks(options.out / "blocks.csv", blocks, estimates)
    picture = options.out / "block_model.png"
    if samples.flat:
        draw_maps(picture, samples, blocks, estimates, truth)
    else:
        draw_sections(picture, samples, blocks, estimates)
    print_table(samples, blocks, model, estimates, truth)
    print(f"\nwritten: {options.out / 'blocks.csv'}, {picture}")


def load(options: argparse.Namespace) -> tuple[Samples, Truth | None]:
    if options.csv is None:
        return elevation_samples()
    columns = Columns(options.x, options.y, options.z, options.value, options.hole)
    samples = read_samples(options.csv, columns)
    return replace(samples, label=options.label or samples.label), None


def make_folder(folder: Path) -> None:
    try:
        folder.mkdir(parents=True, exist_ok=True)
    except OSError as error:
        raise InputError(f"{folder}: cannot be made: {error.strerror}") from error


def choose_model(samples: Samples, limits: Limits, options: argparse.Namespace) -> Model:
    """The model that the options give; a range that they leave open comes from the samples.

    A spherical structure falls linearly near lag 0: it suits ground that is continuous but rough
    at the samples' spacing. A Gaussian one would take the ground for smooth between samples, and
    its variances there for much too small. Assays of a drill hole differ even side by side, hence
    a nugget.
    """
    nugget = options.nugget
    if nugget is None:
        nugget = 0.2 if samples.holes.size else 0.0
    if options.ranges:
        return Model(options.kernel, nugget, tuple(options.ranges), tuple(options.angles))
    side, height = extents(samples)
    shape = Model(options.kernel, nugget, (side, side, height or side), tuple(options.angles))
    return choose_range(samples, shape, limits)


def extents(samples: Samples) -> tuple[float, float]:
    """The longer horizontal side of the samples' box (its height if it has none), its height."""
    x, y, z = np.ptp(samples.locations, axis=0)
    return float(max(x, y) or z), float(z)


def block_size(samples: Samples, wanted: list[float] | None) -> Array:
    """The wanted size, or round numbers: about 50 blocks along and 40 down the samples' box."""
    if wanted:
        return np.array(wanted)
    side, height = extents(samples)
    return np.array([rounded(side / 50)] * 2 + [rounded(height / 40) if height else 1.0])


def rounded(number: float) -> float:
    """The nearest of 1, 2, 5 times a power of ten."""
    power = 10.0 ** math.floor(math.log10(number))
    return min((power, 2 * power, 5 * power, 10 * power), key=lambda one: abs(one - number))


def estimate(samples: Samples, blocks: Blocks, model: Model, limits: Limits) -> Estimates:
    """Both methods over slices of blocks, which give the rows of one call over all of them."""
    search = gravelox.Neighborhood(samples.locations, model.ellipsoid())
    structures = model.structures(float(np.var(samples.values)))
    inverse_distance = gravelox.IDW(
        power_a=2,
        max_neighbors=limits.neighbors,
        max_neighbors_octant=limits.octant,
        dhids=samples.holes,
        max_neis_by_dhid=limits.hole,
    )
    result = Estimates(len(blocks.locations))
    with tqdm(total=len(blocks.locations), unit=" blocks", desc="estimating") as bar:
        for start in range(0, len(blocks.locations), SLICE):
            rows = slice(start, start + SLICE)
            targets = blocks.locations[rows]
            begin = time.perf_counter()
            result.inverse_distance[rows] = inverse_distance(
                targets, search, samples.locations, samples.values
            )
            between = time.perf_counter()
            result.kriged[rows], result.variances[rows] = krige(
                targets, samples, structures, search, limits
            )
            result.seconds += between - begin, time.perf_counter() - between
            result.n_neighbors[rows] = count_neighbors(targets, samples, search, limits)
            bar.update(len(targets))
    return result


if __name__ == "__main__":
    sys.exit(main())
