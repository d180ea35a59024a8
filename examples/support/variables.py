# SPDX-License-Identifier: MIT
"""Several variables at the same places: columns of a CSV file, or attributes of a terrain."""

from __future__ import annotations

import csv
import math
from collections.abc import Sequence
from dataclasses import dataclass
from pathlib import Path

import numpy as np
from numpy.lib.stride_tricks import sliding_window_view
from numpy.typing import NDArray

from support.samples import MIN_SAMPLES, Array, InputError, elevation_samples

REACH = 5  # cells about a cell that make up its surroundings


@dataclass(frozen=True)
class Variables:
    """Values of (d, n), variables in rows and samples in columns, and where they are from."""

    values: Array
    labels: list[str]
    note: str


def terrain_attributes() -> Variables:
    """Five attributes of the cells that the other examples take for samples.

    Curvature is the sum of the second derivatives along east and north: above 0 in hollows.
    """
    samples, terrain = elevation_samples()
    heights, (dx, dy, _) = terrain.values, terrain.cell_size
    rises = np.gradient(heights, dx, dy)
    bends = np.gradient(rises[0], dx, axis=0) + np.gradient(rises[1], dy, axis=1)
    slopes = np.degrees(np.arctan(np.hypot(*rises)))
    around = _surroundings(heights, terrain.drawn)
    relief = np.nanmax(around, axis=1) - np.nanmin(around, axis=1)
    rows = [samples.values, slopes[terrain.drawn], relief, np.nanstd(around, axis=1)]
    rows.append(1000 * bends[terrain.drawn])
    labels = ["height (m)", "slope (degrees)", "relief (m)", "deviation (m)", "curvature (1/km)"]
    return Variables(np.array(rows), labels, f"{len(relief):,} cells of the elevation model")


def _surroundings(heights: Array, chosen: NDArray[np.bool_]) -> Array:
    """For each chosen cell the cells up to REACH away, NaN beyond the terrain."""
    steps = np.arange(-REACH, REACH + 1)
    disc = np.add.outer(steps**2, steps**2) <= REACH**2
    padded = np.pad(heights, REACH, constant_values=np.nan)
    return np.asarray(sliding_window_view(padded, disc.shape)[chosen][:, disc])


def read_variables(path: Path, columns: Sequence[str]) -> Variables:
    """Columns of a CSV file with a header; rows where one of them is empty are left out."""
    try:
        with path.open(newline="", encoding="utf-8-sig") as file:
            reader = csv.DictReader(file, restval="")
            header = reader.fieldnames = [name.strip() for name in reader.fieldnames or []]
            rows = [(reader.line_num, row) for row in reader]
    except (OSError, UnicodeDecodeError, csv.Error) as error:
        raise InputError(f"{path}: cannot be read: {error}") from error
    if not header:
        raise InputError(f"{path}: the file is empty")
    if len(set(columns)) != len(columns) or len(columns) < 2:
        raise InputError(f"--columns: expected two or more of {', '.join(header)}")
    for wanted in columns:
        if wanted not in header:
            raise InputError(f'{path}: no column "{wanted}"; there are {", ".join(header)}')
    points = [
        [_number(path, line, name, row[name]) for name in columns]
        for line, row in rows
        if all(row[name].strip() for name in columns)
    ]
    if len(points) < MIN_SAMPLES:
        raise InputError(
            f"{path}: expected at least {MIN_SAMPLES} rows with all values, found {len(points)}"
        )
    values = np.array(points).T
    for name, one in zip(columns, values):
        if np.ptp(one) == 0:
            raise InputError(f'column "{name}": all values are equal')
    note = f"{len(points):,} rows, {len(rows) - len(points):,} without all values left out"
    return Variables(values, list(columns), note)


def _number(path: Path, line: int, name: str, text: str) -> float:
    try:
        number = float(text)
    except ValueError:
        number = math.nan
    if not math.isfinite(number):
        raise InputError(f'{path}, line {line}, column "{name}": "{text}" is not a number')
    return number
