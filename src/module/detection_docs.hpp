// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the detection of patterns: clusters by angles, and the sub-module grid_detector.

namespace gravelox::docs {

constexpr const char* compute_angular_distance = R"(
The angle at a point between the lines to two others, in radians and without orientation.

Parameters
----------
A : array_like of shape (3,)
    Coordinates of the first point, in length units.
B : array_like of shape (3,)
    Coordinates of the second point.
C : array_like of shape (3,)
    Coordinates of the point where the angle is.

Returns
-------
float
    The angle, 0 to pi / 2: lines in opposite directions make an angle of 0. It is pi / 2 where `A`
    or `B` is less than 1e-15 from `C`, and pi / 2 or NaN where squares of distances overflow.

Raises
------
ValueError
    If a coordinate is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.compute_angular_distance((1, 0, 0), (-1, 1, 0), (0, 0, 0)), 6)  # pi / 4
0.785398
)";

constexpr const char* find_clusters = R"(
Label points that lie on planes and lines, by the angles that triples of nearby points make.

Neighbours are the points within `r_tol` in the space of `anisotropy`, the point itself included, as
`Neighborhood` finds them; angles are taken on real coordinates. The angles of a point i with its
neighbour j are those that `compute_angular_distance` gives at each neighbour of j and at each
neighbour of i. An angle is narrow if it is strictly below `angular_tol`. The support of i with j is
the share of narrow ones.

A point opens a cluster if the share over all its neighbours is at least `support_threshold`. The
cluster goes on from i to j if the share of the two is strictly above it, they have at least
`min_support_size` narrow angles, and one at least is at a neighbour of i and one at a neighbour of
j. So equality opens a cluster and does not carry it on. A point without any neighbour, itself
included (an `r_tol` of 0), opens a cluster of its own.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations in length units.
anisotropy : Ellipsoid
    The map before distances are taken; `Rotation(90, 0)` for none.
r_tol : float
    Radius of neighbours in that space; a location exactly at it is left out. Negative, it counts by
    its absolute value.
angular_tol : float
    Tolerance in degrees, by its absolute value. All angles are narrow from above 90 on.
support_threshold : float
    Share of narrow angles, 0 to 1. Above 1 nothing is labelled where points have neighbours.
min_support_size : int
    Least number of narrow angles of two neighbours.
n_threads : int
    Threads; 0 means all. The labels do not depend on it.

Returns
-------
list of int
    Labels 0, 1, 2 ... in the order of the first point of each cluster; -1 for none.

Raises
------
ValueError
    If a coordinate or the matrix of `anisotropy` is not finite, `r_tol`, `angular_tol` or
    `support_threshold` is NaN, or the neighbours within `r_tol` do not fit in memory.

Notes
-----
The time grows with the square of the number of neighbours: choose `r_tol` for a few dozen. Each
neighbour of each location takes 8 bytes.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> t = np.arange(30)
>>> east = np.column_stack([t, 0 * t, 0 * t])
>>> steep = np.column_stack([0 * t + 40, 0 * t, t])  # 40 m off
>>> sphere = gravelox.Rotation(90, 0)
>>> labels = gravelox.find_clusters(np.vstack([east, steep]), sphere, 5.0, 5.0, 0.5, 3)
>>> labels == [0] * 30 + [1] * 30
True
)";

constexpr const char* compute_angular_distance_between_clusters = R"(
The least angle between each two clusters where they come close, in degrees.

For labels a and b this is the least angle of `compute_angular_distance` between a point p of a and
a point q of b within `r_tol` of each other, as a third point sees them: a point of b within `r_tol`
of p, or the point of b whose position in b is that in a of a point of a within `r_tol` of p. The
second rule reads positions in one cluster as positions in another. That is settled, and results
rely on it; a position past the end of b is skipped.

Parameters
----------
anisotropy : Ellipsoid
    The map before distances are taken.
locs : array_like of shape (n, 3)
    Locations in length units.
clusters : array_like of int
    A label for each location, as of `find_clusters`; those below 0 are left out.
r_tol : float
    Radius of neighbours in the space of `anisotropy`, as `Neighborhood` finds them.

Returns
-------
dict of int to dict of int to float
    D[a][b] in degrees, labels in ascending order, a pair of a label with itself included. A pair
    that does not come close, or has no angle below 90 degrees, has no entry; a label without
    entries has no row. D[a][b] and D[b][a] may differ.

Raises
------
ValueError
    If `clusters` and `locs` differ in length, a coordinate or the matrix of `anisotropy` is not
    finite, `r_tol` is NaN, or the near pairs of two clusters do not fit in memory.

Examples
--------
>>> import gravelox
>>> locs = [(x, 0, 0) for x in range(10)] + [(10, y, 0) for y in range(2, 10)]
>>> sphere = gravelox.Rotation(90, 0)
>>> labels = [0] * 10 + [1] * 8
>>> D = gravelox.compute_angular_distance_between_clusters(sphere, locs, labels, 3.5)
>>> D[0][0], sorted(D[0])
(0.0, [0, 1])
)";

constexpr const char* merge_clusters = R"(
Merge clusters that come close to each other and whose angle is small.

From each point in turn, whose label c has not been merged yet, a flood runs from point to point
within `r_tol`. It takes points of a label y only if `D[c][y]` is there and strictly below
`angular_tol`: points of c itself too only if `D[c][c]` is. Labels reached that way are merged into
c. The result follows a merger by one step: a label whose target was merged later in turn keeps its
first target.

Parameters
----------
D : dict of int to dict of int to float
    Angles in degrees, as of `compute_angular_distance_between_clusters`.
locs : array_like of shape (n, 3)
    Locations in length units.
clusters : array_like of int
    A label for each location, -1 for none.
ignored_ids : array_like of int
    Labels that stay as they are and stop a flood.
angular_tol : float
    Tolerance in degrees.
r_tol : float
    Radius of neighbours in the space of `ani`, as `Neighborhood` finds them.
ani : Ellipsoid
    The map before distances are taken.

Returns
-------
list of int
    The new label of each location, one of those of `clusters`; -1 stays.

Raises
------
ValueError
    If `clusters` and `locs` differ in length, a coordinate or the matrix of `ani` is not finite, or
    `angular_tol` or `r_tol` is NaN.
IndexError
    "invalid map<K, T> key" if a flood from a label that has no row in `D` meets a point whose label
    is neither -1 nor ignored.

Notes
-----
The search is approximate: a gap is sure to be crossed only if `r_tol` is 3.4 times as wide.
A cluster of a few points has no row in `D` if it has no angle below 90 degrees: ignore it.

Examples
--------
>>> import gravelox
>>> locs = [(x, 0, 0) for x in range(20) if x not in (9, 10)]  # a line with a gap of 3
>>> labels = [0] * 9 + [1] * 9
>>> sphere = gravelox.Rotation(90, 0)
>>> D = gravelox.compute_angular_distance_between_clusters(sphere, locs, labels, 10.2)
>>> gravelox.merge_clusters(D, locs, labels, [], 10.0, 10.2, sphere) == [0] * 18
True
)";

constexpr const char* detect_grid_aligned_points = R"(
Label points that line up with their like neighbours in the commonest orientations.

For a point i and each ordered pair of its like neighbours a and b, theta_a is the angle between the
line from i to a and the x axis, from 0 to pi / 2. theta_b is the arc cosine of the difference in x
between b and i, by absolute value and 1 at most, which is not divided by their distance: it is an
angle at a distance of 1 only, so give locations in units of the spacing. This asymmetry is settled,
and results rely on it. If the two differ by the tolerance at most, i, a and b belong to the family
(theta_a + theta_b) / (2 tolerance), truncated.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations in length units.
features : list of array_like of shape (m,)
    Features of each location, such as colours, all of one length.
nei : Neighborhood
    A search over `locs`.
color_tolerance : float
    Greatest Euclidean distance of the features of like neighbours, in their unit.
angle_tolerance_deg : float
    Tolerance in degrees, by its absolute value, not 0.
radius : float
    Radius of neighbours in the space of `nei`; 0 or less: the `n_neis` nearest instead.
n_neis : int
    Number of neighbours, the point itself included, where there is no radius.
n_threads : int
    Threads of the neighbour queries; 0 means all. The labels do not depend on it.

Returns
-------
list of int
    1, 2 and 3 for the members of the three families with the most, the least of them where there
    are several; -1 for all others. Of families with equally many members the one of the smaller
    angles comes first.

Raises
------
ValueError
    If `features` and `locs` differ in length, the features in theirs, `nei` is over other
    locations, a number is not finite, `angle_tolerance_deg` is 0, a tolerance or the radius is NaN,
    or `n_neis` is negative and there is no radius.

Notes
-----
The time grows with the square of the number of neighbours.

Examples
--------
>>> import gravelox
>>> locs = [(x, y, 0) for x in range(3) for y in range(3)] + [(2.5, 0.3, 0)]
>>> greys = [(0.5,)] * 10
>>> nei = gravelox.Neighborhood(locs)
>>> gravelox.grid_detector.detect_grid_aligned_points(locs, greys, nei, 0.1, 2.0, 1.1, 0)
[1, 1, 1, 1, 1, 1, 1, 1, 1, -1]
)";

constexpr const char* find_clusters_of_features = R"(
Label connected regions of like points that begin near a background colour.

A region opens at each point, in order, whose features differ from `background_color` by
`color_tolerance` at most, and that no region has reached. It grows from a point to those of its
neighbours whose features differ from that point's, not from the background, by no more: a region
may drift away from the colour that it began with.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations in length units.
features : list of array_like of shape (m,)
    Features of each location, such as colours, all of one length.
nei : Neighborhood
    A search over `locs`.
color_tolerance : float
    Greatest Euclidean distance of like features, in their unit; 0 for equal ones.
background_color : array_like of shape (m,)
    Features at which regions begin.
radius : float
    Radius of neighbours in the space of `nei`; 0 or less: the `n_neis` nearest instead.
n_neis : int
    Number of neighbours, the point itself included, where there is no radius.
n_threads : int
    Threads of the neighbour queries; 0 means all. The labels do not depend on it.

Returns
-------
list of int
    Labels 0, 1, 2 ... in the order of the first point of each region; -1 for points not reached.

Raises
------
ValueError
    If `features` and `locs` differ in length, the features and `background_color` in theirs, `nei`
    is over other locations, a number is not finite, the tolerance or the radius is NaN, or `n_neis`
    is negative and there is no radius.

Examples
--------
>>> import gravelox
>>> locs = [(x, 0, 0) for x in range(8)]
>>> greys = [(g,) for g in (0.0, 0.1, 0.2, 0.9, 0.9, 0.0, 0.1, 0.9)]
>>> nei = gravelox.Neighborhood(locs)
>>> gravelox.grid_detector.find_clusters(locs, greys, nei, 0.15, (0.0,), 1.5, 0)
[0, 0, 0, -1, -1, 1, 1, -1]
)";

constexpr const char* cluster_fusion = R"(
Make clusters one whose points come near to each other, and number what results.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations in length units.
initial_clusters : array_like of int
    A label for each location; -1 for none.
max_distance : float
    Two clusters are one if points of theirs are strictly nearer than this, in length units, and so
    are clusters joined by a chain of such. 0 joins none, nor does one whose square is 0 in
    floating point.
n_threads : int
    Threads; 0 means all. The labels do not depend on it.

Returns
-------
list of int
    Labels 0, 1, 2 ... in the order of the first point of each cluster; -1 stays -1.

Raises
------
ValueError
    If `initial_clusters` and `locs` differ in length, a coordinate is not finite, or `max_distance`
    is negative or NaN.

Examples
--------
>>> import gravelox
>>> locs = [(x, 0, 0) for x in (0, 1, 3, 4, 9, 10)]
>>> gravelox.grid_detector.cluster_fusion(locs, [7, 7, 4, 4, -1, 5], 2.5)
[0, 0, 0, 0, -1, 1]
)";

}  // namespace gravelox::docs
