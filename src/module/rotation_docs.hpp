// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sampling of rotations and ellipsoids.

namespace gravelox::docs {

constexpr const char* optimize_rotation = R"(
Find the rotation that gives a cloud of points the tightest box, by random search.

The cost of a rotation is the sum of log(length + 1) over the three sides of the box. Candidates
are the identity and random rotations of azimuth 0 to 360, dip -90 to 0 and rake 0 to 180 degrees.
Only the extreme points of the cloud count (`extreme_points`, with the same seed).

Parameters
----------
locations : array_like of shape (n, 3)
    The cloud, in metres or another length unit.
sample_size : int
    How many of the extreme points the cost is taken on; all of them where they are not more.
n_iterations : int
    Number of candidates, the identity included.
n_threads : int
    Threads; 0 means all. Each has candidates of its own, so the result repeats for the same number
    of threads only.
seed : int
    Seed of the search.
use_fixed_samples : bool
    Whether every candidate is tried on the same points; otherwise each draws its own.
n_rays : int
    The extreme points are those along this many random rays, and as many to the other side.

Returns
-------
box : BoundingBox
    The box of all extreme points in the rotated frame.
rotation : Ellipsoid
    The rotation, as an ellipsoid of ranges 1: `forward` turns a location into the frame.

Raises
------
ValueError
    If `locations` is empty or not finite, `n_rays` below 1, or another count negative.

Examples
--------
A flat slab that dips by 30 degrees towards the east:

>>> import gravelox
>>> import numpy as np
>>> slab = np.random.RandomState(1).uniform(-1, 1, (500, 3)) * [10, 10, 1]
>>> tilt = gravelox.Rotation(90, -30, 0)
>>> box, rotation = gravelox.optimize_rotation([tilt.backward(p) for p in slab], n_threads=1)
>>> [round(float(side)) for side in sorted(box.length())]
[2, 21, 21]
)";

constexpr const char* extreme_points = R"(
Outermost locations of a cloud, as a small stand-in for its hull.

Along each of 2 `n_rays` random directions (`generate_random_sphere`) they are the location that
lies farthest back, then the one farthest ahead; each location comes once.

Parameters
----------
locations : array_like of shape (n, 3)
    The cloud, in metres or another length unit.
n_rays : int
    Half the number of directions; below 1 there are none.
seed : int
    Seed of the directions.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of numpy.ndarray of shape (3,)
    The extreme locations, in the order in which the rays find them.

Raises
------
ValueError
    If a coordinate is not finite.

Examples
--------
>>> import gravelox
>>> triangle = [(0, 0, 0), (4, 0, 0), (0, 4, 0), (1, 1, 0)]
>>> sorted(tuple(map(float, p)) for p in gravelox.extreme_points(triangle))
[(0.0, 0.0, 0.0), (0.0, 4.0, 0.0), (4.0, 0.0, 0.0)]
)";

constexpr const char* generate_rotations = R"(
Random frames from pairs of random directions that are nearly at right angles.

For each pair of 2 `n_rays` directions (`generate_random_sphere`) whose cosine is below `tol` in
size there is a matrix: its rows are the first direction, what the second has at right angles to it,
and their cross product. The second row is not scaled to length 1 again, so the matrix is a rotation
only up to about `tol` squared.

Parameters
----------
n_rays : int
    Half the number of directions; below 1 there are none.
seed : int
    Seed of the directions and of the shuffle.
tol : float
    Greatest cosine of a pair; 0 gives an empty list.

Returns
-------
list of numpy.ndarray of shape (3, 3)
    The frames, shuffled.

Examples
--------
>>> import gravelox
>>> frames = gravelox.generate_rotations(20, 1, 0.01)
>>> max(float(abs(m @ m.T - [[1, 0, 0], [0, 1, 0], [0, 0, 1]]).max()) for m in frames) < 1e-3
True
)";

constexpr const char* generate_ellipsoids = R"(
Random ellipsoids of random ranges and rotations, as candidates of a search.

Each frame of `generate_rotations` carries 2 `n_scales` ellipsoids, whose ranges have the
proportions of a random direction and share a random factor.

Parameters
----------
min_range, max_range : float
    Bounds of the factor, in metres or another length unit: no range is above `max_range`.
n_rays : int
    Half the number of directions of the frames.
n_scales : int
    Half the number of ellipsoids for each frame; below 1 there are none.
seed : int
    Seed of all draws.
tol : float
    Greatest cosine of a pair of directions that makes a frame.

Returns
-------
list of Ellipsoid
    The ellipsoids, shuffled.

Examples
--------
>>> import gravelox
>>> ellipsoids = gravelox.generate_ellipsoids(10.0, 50.0, 10, 4, 1, 0.05)
>>> len(ellipsoids) == 8 * len(gravelox.generate_rotations(10, 1, 0.05))
True
>>> max(e.info().r1() for e in ellipsoids) < 50.1
True
)";

}  // namespace gravelox::docs
