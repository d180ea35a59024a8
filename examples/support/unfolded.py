# SPDX-License-Identifier: MIT
"""The flat space of a layer: a cloud inside of it, distances over the cloud, and their scaling."""

from __future__ import annotations

from dataclasses import dataclass

import gravelox
import numpy as np

from support.blocks import Blocks
from support.fold import Fold
from support.samples import Array, Samples

N_DRAWS = 90_000  # of the cloud; about one in three falls into a block
LONGEST_STEP = 5.0  # metres, of a path over the cloud: limbs are farther apart
APART = 11.0  # metres between the points that are scaled
N_PAIRS = 12  # random ones of each of these


@dataclass(frozen=True)
class Path:
    """A path inside the layer, from its end back to its start."""

    places: Array
    length: float

    def straight(self) -> float:
        return float(np.linalg.norm(self.places[-1] - self.places[0]))


@dataclass(frozen=True)
class Cloud:
    """Random points that fill the layer, close enough for paths inside of it."""

    points: Array
    search: gravelox.Neighborhood

    @staticmethod
    def of(blocks: Blocks, seed: int) -> Cloud:
        """Its points lie in blocks that are made a little larger, so that neighbours meet."""
        dx, dy, dz = 0.7 * blocks.cell_size
        reach = gravelox.Ellipsoid(dx, dy, dz, 90, 0, 0)
        inside = gravelox.Neighborhood(blocks.locations, reach)
        points = gravelox.create_random_dense_set(blocks.locations, inside, 1.0, N_DRAWS, seed)
        return Cloud(np.array(points), gravelox.Neighborhood(points))

    def spread(self) -> Array:
        """Some of the points, none nearer than APART to another."""
        chosen = self.points[:1]
        for point in self.points:
            if np.linalg.norm(chosen - point, axis=1).min() > APART:
                chosen = np.vstack([chosen, point])
        return chosen

    def distances(self, places: Array, threads: int) -> Array:
        return np.array(
            gravelox.compute_geodesic_based_distance_matrix(
                places, self.search, LONGEST_STEP, 0, self.points, threads
            )
        )

    def longest_detour(self, places: Array, distances: Array) -> Path:
        """That between two places in one section whose distance is longest for a straight line."""
        lags = places[:, None] - places
        straight = np.linalg.norm(lags, axis=2)
        near = np.abs(lags[:, :, 1]) < APART / 2
        detours = np.where(near, distances / np.maximum(straight, 1), 0)
        start, end = (int(one) for one in np.unravel_index(detours.argmax(), detours.shape))
        path, length, _ = gravelox.compute_geodesics(
            places, start, end, self.search, LONGEST_STEP, 0, self.points
        )
        return Path(np.array(path), length)


@dataclass(frozen=True)
class FlatSpace:
    """Points spread over the layer, distances inside of it, and places in a plane (n, 3)."""

    points: Array
    distances: Array
    places: Array

    @staticmethod
    def of(cloud: Cloud, seed: int, threads: int) -> FlatSpace:
        """Points that the cloud leaves alone are left out: random points have a few of these."""
        points = cloud.spread()
        distances = cloud.distances(points, threads)
        joined = np.median(np.maximum(distances, distances.T), axis=1) < 1e20
        points, distances = points[joined], distances[np.ix_(joined, joined)]
        pairs = gravelox.create_sparse_dist_matrix(distances.tolist(), N_PAIRS, len(points), seed)
        plane = gravelox.sparse_MDS(
            2, len(points), pairs, _guess(distances), n_iterations=12, n_threads=threads, ntries=1
        )
        return FlatSpace(points, distances, _along_axes(np.array(plane)))

    def carry(self, places: Array, threads: int) -> Array:
        """Into the plane; its third coordinate is 0.

        Each place is blended from points that lie near each other in the plane, so those of the
        other limbs stay out. The range, 100 m, makes the kernel all but straight between them.
        """
        kernel = gravelox.Kernel.exponential
        carrier = gravelox.OKProjection(
            self.points, self.places, power_a=0.01, wp=0.1, K=12, kernel=kernel
        )
        return np.array(carrier.project(places, threads))


def _guess(distances: Array) -> Array:
    """Places by the greatest eigenvectors, as if the distances were straight (Torgerson, 1952)."""
    squares = ((distances + distances.T) / 2) ** 2
    means = squares.mean(axis=0)
    products = (means + means[:, None] - means.mean() - squares) / 2
    values, vectors = np.linalg.eigh(products)
    return np.asarray(vectors[:, -2:] * np.sqrt(values[-2:]))


def _along_axes(plane: Array) -> Array:
    """Principal axes, the longest first, and a third coordinate of 0."""
    centred = plane - plane.mean(axis=0)
    axes = np.linalg.svd(centred, full_matrices=False)[2]
    return np.column_stack([centred @ axes.T, np.zeros(len(plane))])


@dataclass(frozen=True)
class Estimates:
    """Those of all blocks, by a covariance with these ranges."""

    name: str
    ranges: tuple[float, ...]
    values: Array


@dataclass(frozen=True)
class Study:
    """What is known and what was found; estimates are of plain kriging twice, then unfolded."""

    fold: Fold
    samples: Samples
    blocks: Blocks
    known: Array
    space: FlatSpace
    path: Path
    flat_samples: Samples
    flat_blocks: Array
    estimates: list[Estimates]

    def misplaced(self) -> tuple[Array, float]:
        """How far blocks lie from where they belong in the plane, and the scale of the plane.

        After the motion and the scale that bring both together best (Schönemann, 1970).
        """
        found = self.flat_blocks[:, :2] - self.flat_blocks[:, :2].mean(axis=0)
        true = self.fold.unfolded(self.blocks.locations)[:, :2]
        true -= true.mean(axis=0)
        left, values, right = np.linalg.svd(found.T @ true)
        scale = float(values.sum() / np.sum(found**2))
        return np.linalg.norm(scale * found @ left @ right - true, axis=1), 1 / scale
