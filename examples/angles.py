# SPDX-License-Identifier: MIT
"""Draws azimuth, dip and rake: the picture of docs/conventions.md.

Usage: angles.py [PNG]. The axes come from gravelox itself, the arcs from the words of the page;
a picture in which an arc does not end on its axis would show that the two disagree.
"""

from __future__ import annotations

import sys

import gravelox
import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.patches import Arc

AZIMUTH, DIP, RAKE = 65.0, 35.0, 30.0

FIRST, SECOND, THIRD = "C0", "C1", "C2"


def main(path: str) -> None:
    figure, (plan, section, along) = plt.subplots(1, 3, figsize=(9, 2.8), layout="constrained")
    draw_azimuth(plan)
    draw_dip(section)
    draw_rake(along)
    for axis in (plan, section, along):
        axis.set(xlim=(-1.35, 1.35), ylim=(-0.4, 1.4), aspect="equal")
        axis.axis("off")
    figure.savefig(path, dpi=100)
    print(f"written: {path}")


def draw_azimuth(axis: Axes) -> None:
    """Seen from above: clockwise from north to the first axis."""
    east, north, _ = gravelox.Direction(AZIMUTH, 0)
    axis.set_title("azimuth: clockwise from north\n(seen from above)", fontsize=10)
    _frame(axis, "x, east", "y, north")
    _arrow(axis, east, north, "r1", FIRST)
    _arc(axis, 90 - AZIMUTH, 90, "azimuth")


def draw_dip(axis: Axes) -> None:
    """Seen from the side, in the vertical plane of the azimuth: upwards from the horizontal."""
    east, north, up = gravelox.Direction(AZIMUTH, DIP)
    axis.set_title("dip: positive upwards\n(vertical plane of the azimuth)", fontsize=10)
    _frame(axis, "horizontal", "z, up")
    _arrow(axis, float(np.hypot(east, north)), up, "r1", FIRST)
    _arc(axis, 0, DIP, "dip")


def draw_rake(axis: Axes) -> None:
    """Seen along the first axis: clockwise from the horizontal on the left."""
    _, left, above = gravelox.Rotation(AZIMUTH, DIP, 0).matrix()
    _, second, third = gravelox.Rotation(AZIMUTH, DIP, RAKE).matrix()
    axis.set_title("rake: lifts the second axis\n(seen from the centre along r1)", fontsize=10)
    _frame(axis, "horizontal,\nto the left", "square to\nr1, upwards", mirrored=True)
    axis.plot(0, 0, marker="x", markersize=9, color=FIRST)
    axis.annotate("r1, into\nthe page", (0.08, -0.3), color=FIRST, fontsize=9)
    _arrow(axis, -float(second @ left), float(second @ above), "r2", SECOND)
    _arrow(axis, -float(third @ left), float(third @ above), "r3", THIRD)
    _arc(axis, 180 - RAKE, 180, "rake")


def _frame(axis: Axes, across: str, upwards: str, mirrored: bool = False) -> None:
    """Thin reference axes with their names at the ends; mirrored: across points left."""
    side = -1 if mirrored else 1
    style = {"arrowstyle": "->", "color": "0.6"}
    axis.annotate("", (side * 1.0, 0), (-side * 0.3, 0), arrowprops=style)
    axis.annotate("", (0, 1.0), (0, -0.3), arrowprops=style)
    axis.text(side * 1.0, -0.08, across, ha="center", va="top", fontsize=9, color="0.4")
    axis.text(0, 1.03, upwards, ha="center", va="bottom", fontsize=9, color="0.4")


def _arrow(axis: Axes, x: float, y: float, name: str, colour: str) -> None:
    style = {"arrowstyle": "-|>", "color": colour, "lw": 2, "shrinkA": 0, "shrinkB": 0}
    axis.annotate("", (x, y), (0, 0), arrowprops=style)
    axis.text(1.1 * x, 1.1 * y, name, ha="center", va="center", fontsize=10, color=colour)


def _arc(axis: Axes, begin: float, end: float, name: str) -> None:
    """An arc between two mathematical angles in degrees, with its name in the middle."""
    axis.add_patch(Arc((0, 0), 1.0, 1.0, theta1=begin, theta2=end, color="black"))
    middle = np.radians((begin + end) / 2)
    x, y = 0.55 * np.cos(middle), 0.55 * np.sin(middle)
    axis.text(x, y, name, ha="left" if x > 0 else "right", va="bottom", fontsize=9)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "angles.png")
