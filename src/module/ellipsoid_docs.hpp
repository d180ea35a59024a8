// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the spatial family: functions of location, ellipsoids and samplers.

namespace gravelox::docs {

constexpr const char* spatial_function = R"(
A value for each location, such as a covariance model or one realisation of a field.

Instances come from other functions of the module.

Examples
--------
>>> import gravelox
>>> f = gravelox.covariance_computer([gravelox.Covariance.nugget(2.0)])
>>> f((0, 0, 0))
2.0
)";

constexpr const char* spatial_function_call = R"(
The value at a location.

Parameters
----------
location : array_like of shape (3,)
    Coordinates (x, y, z) in length units; for a covariance model, the lag vector.

Returns
-------
float
    The value, in data units.
)";

constexpr const char* spatial_function_call_list = R"(
Values at many locations, in parallel.

Parameters
----------
locations : array_like of shape (n, 3)
    Coordinates (x, y, z) in length units; for a covariance model, lag vectors.
n_threads : int
    Threads; 0 means all. Values do not depend on it, white noise (a nugget) of a field excepted.

Returns
-------
list of float
    One value for each location in order, in data units.

Raises
------
ValueError
    If a coordinate is not finite.

Examples
--------
>>> import gravelox
>>> f = gravelox.covariance_computer([gravelox.Covariance.nugget(2.0)])
>>> f([(0, 0, 0), (1, 0, 0)])
[2.0, 0.0]
)";

constexpr const char* ellipsoid_info = R"(
Ranges and angles of an ellipsoid, as read off its matrix by `Ellipsoid.info`.

Examples
--------
>>> import gravelox
>>> gravelox.Ellipsoid(5, 10, 2, 0, 0, 0).info().r1()
10.0
)";

constexpr const char* ellipsoid_info_r1 = R"(
The largest range, in length units.

Returns
-------
float
    The length of the longest semi-axis.
)";

constexpr const char* ellipsoid_info_r2 = R"(
The middle range, in length units.

Returns
-------
float
    The length of the middle semi-axis.
)";

constexpr const char* ellipsoid_info_r3 = R"(
The smallest range, in length units.

Returns
-------
float
    The length of the shortest semi-axis.
)";

constexpr const char* ellipsoid_info_azimuth = R"(
The azimuth of the longest axis, in degrees clockwise from north.

Returns
-------
float
    An angle in [0, 360).
)";

constexpr const char* ellipsoid_info_dip = R"(
The dip of the longest axis, in degrees, positive upward.

Returns
-------
float
    An angle in [-90, 90].
)";

constexpr const char* ellipsoid_info_rake = R"(
The turn of the other two axes about the longest one, in degrees.

Returns
-------
float
    An angle in [-180, 180]; 0 where the longest axis is vertical.
)";

constexpr const char* ellipsoid = R"(
An anisotropy: the linear map to a space in which the ellipsoid is the unit sphere.

Distances of covariances, neighbour searches and variograms are measured after this map. x is
east, y north, z up. The axis of range r1 points along the azimuth (clockwise from north) and the
dip (positive upward); rake turns the axes of r2 and r3 about it. All angles are in degrees.
Azimuth 90, dip 0, rake 0 lays the axes along x, y and z. Instances never change.

Examples
--------
>>> import gravelox
>>> gravelox.Ellipsoid(10, 5, 2, 0, 0, 0).forward((0, 10, 0)).round(6).tolist()
[1.0, 0.0, 0.0]
)";

constexpr const char* ellipsoid_from_matrix = R"(
An ellipsoid from its matrix, taken as it stands.

Parameters
----------
anisotropy_matrix : array_like of shape (3, 3)
    The map from real to isotropic coordinates; its rows are the axes, each of length 1 / range.
    A singular matrix is not refused: its inverse has infinities and NaN.
)";

constexpr const char* ellipsoid_from_ranges = R"(
An ellipsoid from ranges and angles.

Parameters
----------
r1, r2, r3 : float
    Ranges (semi-axes) in length units. One that is not above 1e-30 counts as 1.
azimuth, dip, rake : float
    Angles in degrees.
)";

constexpr const char* ellipsoid_from_vectors = R"(
An ellipsoid from ranges and angles in two vectors.

Parameters
----------
length : array_like of shape (3,)
    Ranges (r1, r2, r3) in length units. One that is not above 1e-30 counts as 1.
rotation : array_like of shape (3,)
    Angles (azimuth, dip, rake) in degrees.
)";

constexpr const char* ellipsoid_from_info = R"(
An ellipsoid from a record of ranges and angles.

Parameters
----------
ellipsoid_info : EllipsoidInfo
    Ranges and angles. Of an ellipsoid whose axes are left-handed after sorting, the record does
    not give that ellipsoid back.
)";

constexpr const char* ellipsoid_info_method = R"(
Ranges and angles of the axes, by descending range.

Returns
-------
EllipsoidInfo
    The reading of the matrix; a constructor's ranges come back sorted, with the angles to suit.
)";

constexpr const char* ellipsoid_forward = R"(
Map a location from real to isotropic coordinates.

Parameters
----------
location : array_like of shape (3,)
    Real coordinates, in length units.

Returns
-------
ndarray of shape (3,)
    Isotropic coordinates; a point on the ellipsoid has length 1.
)";

constexpr const char* ellipsoid_backward = R"(
Map a location from isotropic to real coordinates.

Parameters
----------
location : array_like of shape (3,)
    Isotropic coordinates.

Returns
-------
ndarray of shape (3,)
    Real coordinates, in length units.
)";

constexpr const char* ellipsoid_forward_list = R"(
Map many locations from real to isotropic coordinates, in parallel.

Parameters
----------
locs : array_like of shape (n, 3)
    Real coordinates, in length units.
n_threads : int
    Threads; 0 means all.

Returns
-------
list of ndarray of shape (3,)
    Isotropic coordinates in the order of `locs`, the same for any number of threads.
)";

constexpr const char* ellipsoid_backward_list = R"(
Map many locations from isotropic to real coordinates, in parallel.

Parameters
----------
locs : array_like of shape (n, 3)
    Isotropic coordinates.
n_threads : int
    Threads; 0 means all.

Returns
-------
list of ndarray of shape (3,)
    Real coordinates in the order of `locs`, the same for any number of threads.
)";

constexpr const char* ellipsoid_matrix = R"(
The map from real to isotropic coordinates.

Returns
-------
ndarray of shape (3, 3)
    A copy of the matrix.
)";

constexpr const char* ellipsoid_inv_matrix = R"(
The map from isotropic to real coordinates.

Returns
-------
ndarray of shape (3, 3)
    A copy of the inverse matrix.
)";

constexpr const char* ellipsoid_surface = R"(
Points spread evenly over the ellipsoid's surface.

Parameters
----------
n_points : int
    Half the number of points; below 1 there are none.
seed : int
    Seed of the Halton indices and of their random rotation.

Returns
-------
list of ndarray of shape (3,)
    2 `n_points` points in real coordinates, around the origin. See `generate_random_sphere`.
)";

constexpr const char* ellipsoid_volume = R"(
Points scattered through the ellipsoid and around it.

Parameters
----------
n_points : int
    Half the number of points of one lag.
n_lags : int
    Number of lags: surfaces scaled by the absolute value of a standard normal draw.
seed : int
    Seed of the draws; the surfaces' seeds count on from it.

Returns
-------
list of ndarray of shape (3,)
    2 `n_points` `n_lags` points in real coordinates, denser towards the origin and unbounded.
)";

constexpr const char* ellipsoid_directions = R"(
Points along rays from the origin through the ellipsoid's surface.

Parameters
----------
n_directions : int
    Half the number of rays.
n_lags : int
    Number of points on each ray, at absolute standard normal multiples of the surface point.
seed : int
    Seed of the rays and of the draws.

Returns
-------
points : list of ndarray of shape (3,)
    2 `n_directions` `n_lags` points in real coordinates, ray by ray.
ids : list of int
    The number of the ray of each point, from 0.
)";

constexpr const char* ellipsoid_major_axis = R"(
The longest axis.

Returns
-------
ndarray of shape (3,)
    A vector along the axis, as long as its range, pointing towards +x (on a tie +y, then +z).
)";

constexpr const char* ellipsoid_mid_axis = R"(
The middle axis.

Returns
-------
ndarray of shape (3,)
    A vector along the axis, as long as its range, pointing towards +y (on a tie +x, then +z).
)";

constexpr const char* ellipsoid_minor_axis = R"(
The shortest axis.

Returns
-------
ndarray of shape (3,)
    A vector along the axis, as long as its range, pointing towards +z where it is not horizontal.
)";

constexpr const char* ellipsoid_str = R"(
The values of `info` as text.

Returns
-------
str
    "{r1: 10.000000, r2: ..., rake: 0.000000} ", the closing blank included.
)";

constexpr const char* rotation = R"(
The unit sphere, turned: an ellipsoid with all ranges 1.

Parameters
----------
azimuth, dip : float
    Direction of the first axis, in degrees.
rake : float
    Turn of the other axes about the first, in degrees.

Returns
-------
Ellipsoid
    Its matrix is the rotation.

Examples
--------
>>> import gravelox
>>> gravelox.Rotation(90, 0).matrix().round(6).tolist()
[[1.0, 0.0, 0.0], [0.0, 1.0, 0.0], [0.0, 0.0, 1.0]]
)";

constexpr const char* generate_random_semisphere = R"(
Unit vectors spread evenly over a randomly turned half sphere.

Parameters
----------
size : int
    Number of vectors; below 1 there are none.
seed : int
    First index of the Halton sequence, and seed of the rotation.

Returns
-------
list of ndarray of shape (3,)
    `size` unit vectors.

References
----------
Halton, J. H. (1960). On the efficiency of certain quasi-random sequences of points in evaluating
multi-dimensional integrals. Numerische Mathematik 2, 84-90.

Examples
--------
>>> import gravelox
>>> len(gravelox.generate_random_semisphere(5, seed=1))
5
)";

constexpr const char* generate_random_sphere = R"(
Unit vectors spread evenly over the sphere.

Parameters
----------
size : int
    Half the number of vectors; below 1 there are none.
seed : int
    First index of the Halton sequence, and seed of the rotation.

Returns
-------
list of ndarray of shape (3,)
    2 `size` unit vectors. The second half is no mirror of the first: it has other indices.

References
----------
Halton, J. H. (1960). On the efficiency of certain quasi-random sequences of points in evaluating
multi-dimensional integrals. Numerische Mathematik 2, 84-90.

Examples
--------
>>> import gravelox
>>> len(gravelox.generate_random_sphere(5, seed=1))
10
)";

constexpr const char* extract_ellipsoid_info = R"(
Ranges and angles of an anisotropy matrix.

Parameters
----------
T : array_like of shape (3, 3)
    A matrix whose rows are axes of length 1 / range, in any order.

Returns
-------
EllipsoidInfo
    Ranges in descending order; azimuth in [0, 360), dip in [-90, 90], rake in [-180, 180]
    degrees. A vertical longest axis has rake 0.

Examples
--------
>>> import gravelox
>>> gravelox.extract_ellipsoid_info([[0.5, 0, 0], [0, 0.1, 0], [0, 0, 1]]).r1()
10.0
)";

constexpr const char* sort_matrix3d = R"(
Sort the rows of a matrix by ascending length, hence by descending range.

Parameters
----------
T : array_like of shape (3, 3)
    Rows of equal length keep their order. Equal means to the last bit: the rows of a rotated
    sphere may change places by rounding.
orthogonalize : bool
    Whether to pass the result through `orthogonolize_axes`.

Returns
-------
ndarray of shape (3, 3)
    The sorted rows.

Examples
--------
>>> import gravelox
>>> gravelox.sort_matrix3d([[2, 0, 0], [0, 1, 0], [0, 0, 3]])[0].tolist()
[0.0, 1.0, 0.0]
)";

constexpr const char* orthogonolize_axes = R"(
Make the rows of a matrix orthogonal, without scaling them to unit length (Gram-Schmidt).

Parameters
----------
T : array_like of shape (3, 3)
    Rows that are not zero.
sort : bool
    Whether to turn the rows round so that they point towards +x, +y and +z, with rules for ties.

Returns
-------
ndarray of shape (3, 3)
    The orthogonal rows.

Examples
--------
>>> import gravelox
>>> gravelox.orthogonolize_axes([[1, 0, 0], [1, 1, 0], [0, 0, 2]]).tolist()
[[1.0, 0.0, 0.0], [0.0, 1.0, 0.0], [0.0, 0.0, 2.0]]
)";

constexpr const char* direction = R"(
The unit vector at an azimuth and a dip.

Parameters
----------
azimuth : float
    Degrees clockwise from north.
dip : float
    Degrees, positive upward.

Returns
-------
ndarray of shape (3,)
    (sin azimuth cos dip, cos azimuth cos dip, sin dip).

Examples
--------
>>> import gravelox
>>> gravelox.Direction(90, 0).round(6).tolist()
[1.0, 0.0, 0.0]
)";

}  // namespace gravelox::docs
