// SPDX-License-Identifier: MIT
#pragma once

// From a matrix back to axes, ranges and angles.
//
// A matrix here is an anisotropy map: its rows are the axes of an ellipsoid, each of length 1 /
// range.

#include <Eigen/Core>

namespace gravelox {

/// Ranges (lengths of the semi-axes, in length units) and angles (degrees) of an ellipsoid.
struct EllipsoidInfo {
  double r1 = 1.0;
  double r2 = 1.0;
  double r3 = 1.0;
  double azimuth = 0.0;
  double dip = 0.0;
  double rake = 0.0;
};

/// The rows by Gram-Schmidt, lengths as they come out. With `sort` the rows also get signs: the
/// first points towards +x (on a tie +y, then +z), the second towards +y (then +x, +z), the third
/// towards +z; where the third is at right angles to z, the second's direction before its own flip,
/// tested on x and then on y, decides for it. A zero row gives NaN and no flip.
Eigen::Matrix3d orthogonolize_axes(const Eigen::Matrix3d& T, bool sort = true);

/// The rows by ascending length, hence by descending range; rows of equal length keep their order
/// (equal to the last bit: the rounding of a rotated sphere may reorder its rows).
/// With `orthogonalize` the result goes through orthogonolize_axes.
Eigen::Matrix3d sort_matrix3d(const Eigen::Matrix3d& T, bool orthogonalize = true);

/// Ranges and angles of a matrix: r1 >= r2 >= r3, azimuth in [0, 360), dip in [-90, 90], rake in
/// [-180, 180]; a vertical first axis reads rake 0. The sign rule of the axes may leave them
/// left-handed, and they are read as they stand: Ellipsoid(extract_ellipsoid_info(M)) is then
/// another ellipsoid than M's.
EllipsoidInfo extract_ellipsoid_info(const Eigen::Matrix3d& T);

}  // namespace gravelox
