# SPDX-License-Identifier: MIT
"""Finds the planes on which points lie, and makes one of the pieces of a plane.

Takes columns x, y and z of a CSV file, or without one makes three planes with noise in a cloud of
points, one of them with a gap across. Writes structures.png and structures.csv into the output
folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
import time
from collections.abc import Sequence
from dataclasses import dataclass
from pathlib import Path

import gravelox
import numpy as np
from block_model import make_folder
from support.options import positive, share
from support.planes import ATTITUDES, Labels, Scene, fitted_plane, made_scene, read_scene
from support.samples import InputError
from support.simulation_options import natural
from support.structure_pictures import draw_labels

SPHERE = gravelox.Rotation(90, 0)  # distances as they are


@dataclass(frozen=True)
class Clusters:
    """Labels of the points, -1 for none: as found, and after the merger."""

    found: Labels
    merged: Labels
    seconds: float


def main() -> int:
    options = parse_arguments()
    try:
        run(options)
    except InputError as error:
        print(f"structures.py: {error}", file=sys.stderr)
        return 2
    return 0


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n\n")[0])
    add = parser.add_argument
    add("csv", nargs="?", type=Path, help="points with a header; without: a scene that is made")
    add("--radius", type=positive, default=9, help="of neighbours, length units (%(default)s)")
    add("--angle", type=positive, default=15, help="tolerance in degrees (%(default)s)")
    add("--support", type=share, default=0.15, help="share of narrow angles (%(default)s)")
    add("--least", type=natural, default=30, help="points of a cluster that counts (%(default)s)")
    add("--reach", type=positive, default=35, help="of a merger, length units (%(default)s)")
    add("--seed", type=natural, default=1, help="a number from 1 on (%(default)s)")
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")
    add("--out", type=Path, default=Path("structures"), help="output folder (%(default)s)")
    return parser.parse_args()


def run(options: argparse.Namespace) -> None:
    scene = read_scene(options.csv) if options.csv else made_scene(options.seed)
    make_folder(options.out)
    clusters = find(scene, options)
    print_tables(scene, clusters, options)
    picture, table = (options.out / f"structures.{kind}" for kind in ("png", "csv"))
    panels = {"clusters found": clusters.found, "pieces merged": clusters.merged}
    draw_labels(picture, scene.points, panels)
    columns = np.column_stack([scene.points, clusters.merged])
    np.savetxt(table, columns, "%.10g", ",", header="x,y,z,label", comments="")
    print(f"\nwritten: {picture}, {table}")


def find(scene: Scene, options: argparse.Namespace) -> Clusters:
    """Clusters of a few points, which chance makes too, count as none."""
    begin = time.perf_counter()
    settings = (options.radius, options.angle, options.support, 10, options.threads)
    found = np.array(gravelox.find_clusters(scene.points, SPHERE, *settings), np.int32)
    seconds = time.perf_counter() - begin
    found = without_small(found, options.least)
    angles = gravelox.compute_angular_distance_between_clusters(
        SPHERE, scene.points, found, options.reach
    )
    merged = gravelox.merge_clusters(
        angles, scene.points, found, [], options.angle, options.reach, SPHERE
    )
    return Clusters(found, np.array(merged, np.int32), seconds)


def without_small(labels: Labels, least: int) -> Labels:
    """Those of at least so many points, counted anew."""
    names, counts = np.unique(labels[labels >= 0], return_counts=True)
    kept = names[counts >= least]
    return np.where(np.isin(labels, kept), np.searchsorted(kept, labels), -1).astype(np.int32)


def print_tables(scene: Scene, clusters: Clusters, options: argparse.Namespace) -> None:
    _line("points", f"{len(scene.points):,}: {scene.note}")
    n_found, n_merged = (len(_names(one)) for one in (clusters.found, clusters.merged))
    _line(
        "clusters found", f"{n_found} of {options.least} points or more, {clusters.seconds:.2f} s"
    )
    _line("clusters after the merger", f"{n_merged}")
    if scene.planes is not None:
        on_plane, labelled = scene.planes >= 0, clusters.merged >= 0
        _line("points of planes with a label", f"{labelled[on_plane].mean():.0%}")
        _line("points around with a label", f"{labelled[~on_plane].mean():.0%}")

    print()
    known = ["plane", "its points", "dips to", "dip"] if scene.planes is not None else []
    _row("label", ["points", "dips to", "dip", "off it", *known])
    for label in _names(clusters.merged):
        members = clusters.merged == label
        attitude, off = fitted_plane(scene.points[members])
        cells = [f"{members.sum():,}", f"{attitude.direction:.0f}", f"{attitude.dip:.0f}"]
        _row(str(label), [*cells, f"{off:.2g}", *_truth(scene, members)])


def _names(labels: Labels) -> list[int]:
    return [int(name) for name in np.unique(labels[labels >= 0])]


def _truth(scene: Scene, members: np.ndarray) -> list[str]:
    """The plane that most members are from, how many they are, and its attitude."""
    if scene.planes is None:
        return []
    counts = [int(np.sum(members & (scene.planes == plane))) for plane in range(len(ATTITUDES))]
    plane = int(np.argmax(counts))
    attitude = ATTITUDES[plane]
    return [str(plane), f"{counts[plane]:,}", f"{attitude.direction:.0f}", f"{attitude.dip:.0f}"]


def _line(name: str, text: str) -> None:
    print(f"{name:32}{text}")


def _row(name: str, cells: Sequence[str]) -> None:
    print(f"{name:8}" + "".join(f"{cell:>11}" for cell in cells))


if __name__ == "__main__":
    sys.exit(main())
