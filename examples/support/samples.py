# SPDX-License-Identifier: MIT
"""Samples for the examples: from a CSV file, or drawn from a measured elevation model."""

from __future__ import annotations

import csv
import math
from dataclasses import dataclass, field
from pathlib import Path
from typing import NamedTuple

import numpy as np
from matplotlib import cbook
from numpy.typing import NDArray

Array = NDArray[np.float64]

MIN_SAMPLES = 10  # fewer leave nothing to choose a model from
METRES_PER_DEGREE = 111_195.0  # of latitude, on a sphere of 6,371 km


class InputError(Exception):
    """Input that a user has to mend; the text is one line that says where and what."""


class Columns(NamedTuple):
    """Names of columns. For z and hole None takes a column of that name if there is one.

    An empty name means that there is none: flat data, or no drill holes.
    """

    x: str
    y: str
    z: str | None
    value: str
    hole: str | None


@dataclass(frozen=True)
class Samples:
    """Samples at distinct places: locations (n, 3), values (n,), holes (n,) or empty."""

    locations: Array
    values: Array
    holes: NDArray[np.int32]
    axes: tuple[str, str, str]
    label: str
    notes: list[str] = field(default_factory=list)

    @property
    def flat(self) -> bool:
        return bool(np.ptp(self.locations[:, 2]) == 0)

    def select(self, chosen: NDArray[np.bool_]) -> Samples:
        holes = self.holes[chosen] if self.holes.size else self.holes
        return Samples(self.locations[chosen], self.values[chosen], holes, self.axes, self.label)


@dataclass(frozen=True)
class Truth:
    """A surface known on every cell: values by (i, j), cells drawn as samples, cell size."""

    values: Array
    drawn: NDArray[np.bool_]
    cell_size: Array

    def at(self, locations: Array) -> tuple[Array, NDArray[np.bool_]]:
        """Known values at locations that stand on cells, and which cells were not drawn."""
        steps = locations[:, :2] / self.cell_size[:2]
        i, j = np.rint(steps).astype(int).T
        if np.abs(steps - np.column_stack([i, j])).max() > 1e-6:
            raise ValueError("locations: expected places of cells of the elevation model")
        return self.values[i, j], ~self.drawn[i, j]


def elevation_samples(n_samples: int = 2000, seed: int = 1) -> tuple[Samples, Truth]:
    """Cells drawn at random from matplotlib's elevation model, and the whole model as truth."""
    with np.load(cbook.get_sample_data("jacksboro_fault_dem.npz", asfileobj=False)) as stored:
        # Rows run from north to south; the system's y points north.
        heights = stored["elevation"][::-1].T.astype(float)
        dx, dy = float(stored["dx"]), float(stored["dy"])
        latitude = math.radians(float(stored["ymin"] + stored["ymax"]) / 2)
    cell_size = np.array([METRES_PER_DEGREE * dx * math.cos(latitude), METRES_PER_DEGREE * dy, 1.0])
    drawn = np.zeros(heights.shape, dtype=bool)
    drawn.flat[np.random.default_rng(seed).choice(heights.size, n_samples, replace=False)] = True
    i, j = np.nonzero(drawn)
    locations = np.column_stack([i, j, np.zeros(n_samples)]) * cell_size
    holes = np.empty(0, dtype=np.int32)
    axes = ("east (m)", "north (m)", "up (m)")
    samples = Samples(locations, heights[drawn], holes, axes, "height (m)")
    return samples, Truth(heights, drawn, cell_size)


def read_samples(path: Path, columns: Columns) -> Samples:
    """Samples of a CSV file with a header; rows with an empty value cell are left out."""
    rows = _read_rows(path)
    header = [name.strip() for name in rows[0]]
    columns = _with_usual_names(header, columns)
    where = _positions(path, header, columns)
    points: list[list[float]] = []
    names: list[str] = []
    n_empty = 0
    for line, row in enumerate(rows[1:], start=2):
        if not any(cell.strip() for cell in row):
            continue
        if not _cell(row, where[columns.value]):
            n_empty += 1
            continue
        points.append(_numbers(path, line, row, columns, where))
        if columns.hole:
            names.append(_cell(row, where[columns.hole]))
            if not names[-1]:
                raise InputError(f'{path}, line {line}, column "{columns.hole}": no name of a hole')
    if len(points) < MIN_SAMPLES:
        raise InputError(
            f"{path}: expected at least {MIN_SAMPLES} rows with a value, found {len(points)}"
        )
    notes = [f"{n_empty} rows without a value left out"] if n_empty else []
    return _distinct(np.array(points), names, columns, notes)


def _read_rows(path: Path) -> list[list[str]]:
    try:
        with path.open(newline="", encoding="utf-8-sig") as file:
            rows = list(csv.reader(file))
    except (OSError, UnicodeDecodeError, csv.Error) as error:
        reason = getattr(error, "strerror", None) or error
        raise InputError(f"{path}: cannot be read: {reason}") from error
    if not rows:
        raise InputError(f"{path}: the file is empty")
    return rows


def _with_usual_names(header: list[str], columns: Columns) -> Columns:
    """Columns z and hole are taken where nothing is said of them and they are there and free."""
    free = set(header).difference(columns)
    z = "z" if columns.z is None and "z" in free else columns.z
    hole = "hole" if columns.hole is None and "hole" in free else columns.hole
    return columns._replace(z=z, hole=hole)


def _positions(path: Path, header: list[str], columns: Columns) -> dict[str, int]:
    """Where the wanted columns stand in the header."""
    for wanted in columns:
        if wanted and wanted not in header:
            raise InputError(f'{path}: no column "{wanted}"; there are {", ".join(header)}')
    return {name: header.index(name) for name in columns if name}


def _cell(row: list[str], position: int) -> str:
    return row[position].strip() if position < len(row) else ""


def _numbers(
    path: Path, line: int, row: list[str], columns: Columns, where: dict[str, int]
) -> list[float]:
    """x, y, z and value of a row, with z 0 where there is no such column."""
    numbers = []
    for name in (columns.x, columns.y, columns.z, columns.value):
        text = _cell(row, where[name]) if name else "0"
        try:
            number = float(text)
        except ValueError:
            number = math.nan
        if not math.isfinite(number):
            raise InputError(f'{path}, line {line}, column "{name}": "{text}" is not a number')
        numbers.append(number)
    return numbers


def _distinct(points: Array, names: list[str], columns: Columns, notes: list[str]) -> Samples:
    """One sample a place: two samples at one place make a kriging system singular."""
    locations, first, place = np.unique(
        points[:, :3], axis=0, return_index=True, return_inverse=True
    )
    place = place.ravel()
    values = np.bincount(place, points[:, 3]) / np.bincount(place)
    if np.ptp(values) == 0:
        raise InputError(f'column "{columns.value}": all values are equal, nothing to estimate')
    if len(values) < len(points):
        notes = [*notes, f"{len(points) - len(values)} samples averaged with one at their place"]
    numbers = np.unique(names, return_inverse=True)[1].astype(np.int32)
    holes = numbers[first] if names else np.empty(0, dtype=np.int32)
    axes = (columns.x, columns.y, columns.z or "z")
    return Samples(locations, values, holes, axes, columns.value, notes)
