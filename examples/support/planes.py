# SPDX-License-Identifier: MIT
"""Points on dipping planes in a cloud of others, and the plane that a set of points lies on."""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path
from typing import NamedTuple

import numpy as np
from numpy.typing import NDArray

from support.samples import Array
from support.variables import read_variables

Labels = NDArray[np.int32]

BOX = np.array([250.0, 100.0, 80.0])  # of the scene, in metres
LENGTH, WIDTH, NOISE = 90.0, 70.0, 0.5  # of its planes: along strike, down dip, and off them
GAP = 10.0  # of the first one, along strike
N_ON_A_PLANE, N_AROUND = 1000, 2000


class Attitude(NamedTuple):
    """The direction in which a plane dips (degrees, clockwise from north) and how steeply."""

    direction: float
    dip: float

    def axes(self) -> Array:
        """Along strike, down dip, and the upper normal, in rows."""
        azimuth, dip = np.radians(self)
        east, north = np.sin(azimuth), np.cos(azimuth)
        down = np.array([east * np.cos(dip), north * np.cos(dip), -np.sin(dip)])
        strike = np.array([north, -east, 0.0])
        return np.array([strike, down, np.cross(down, strike)])


CENTRES = ((40.0, 50.0, 40.0), (125.0, 50.0, 40.0), (210.0, 50.0, 40.0))
ATTITUDES = (Attitude(80, 70), Attitude(105, 50), Attitude(265, 75))


@dataclass(frozen=True)
class Scene:
    """Points (n, 3) and, where it is known, the number of the plane of each, -1 for none."""

    points: Array
    planes: Labels | None
    note: str


def read_scene(path: Path) -> Scene:
    table = read_variables(path, ("x", "y", "z"))
    return Scene(table.values.T.copy(), None, table.note)


def made_scene(seed: int) -> Scene:
    """Three planes, the first with a gap across, in a cloud of points in the box."""
    rng = np.random.default_rng(seed)
    sets = []
    for number, (centre, attitude) in enumerate(zip(CENTRES, ATTITUDES)):
        along = rng.uniform(-LENGTH / 2, LENGTH / 2, N_ON_A_PLANE)
        down = rng.uniform(-WIDTH / 2, WIDTH / 2, N_ON_A_PLANE)
        off = rng.normal(0, NOISE, N_ON_A_PLANE)
        kept = (number > 0) | (np.abs(along) > GAP / 2)
        sets.append(centre + np.column_stack([along, down, off])[kept] @ attitude.axes())
    sets.append(rng.uniform(0, 1, (N_AROUND, 3)) * BOX)
    planes = np.repeat(np.array([0, 1, 2, -1], np.int32), [len(one) for one in sets])
    n_on = np.count_nonzero(planes >= 0)
    note = f"{n_on:,} on three planes, {N_AROUND:,} around them"
    return Scene(np.vstack(sets), planes, note)


def fitted_plane(points: Array) -> tuple[Attitude, float]:
    """The attitude of the plane nearest to points, and their standard deviation off it."""
    _, sizes, axes = np.linalg.svd(points - points.mean(axis=0), full_matrices=False)
    normal = axes[2] if axes[2, 2] >= 0 else -axes[2]
    direction = np.degrees(np.arctan2(normal[0], normal[1])) % 360
    dip = np.degrees(np.arccos(min(normal[2], 1.0)))
    return Attitude(direction, dip), sizes[2] / np.sqrt(len(points))
