// SPDX-License-Identifier: MIT
#pragma once

// Rotation and anisotropy matrices from ranges and angles, for doubles and jets alike.

#include <Eigen/Core>

#include "common/number.hpp"

namespace gravelox {

/// The rotation R = Rx(rake) Ry(-dip) Rz(90 - azimuth) for angles in degrees, applied to columns.
/// Its first row is the unit vector at the azimuth (clockwise from north) and dip (positive
/// upward); rake turns the second and third rows about it. Azimuth 90, dip 0, rake 0 is the
/// identity.
template <number T>
Eigen::Matrix<T, 3, 3> rotation_matrix(const T& azimuth, const T& dip, const T& rake);

/// The map from real to isotropic coordinates: the rows of the rotation, each divided by its range.
/// A range not above 1e-30 (zero, negative, NaN) counts as 1.
template <number T>
Eigen::Matrix<T, 3, 3> anisotropy_matrix(const T& r1, const T& r2, const T& r3, const T& azimuth,
                                         const T& dip, const T& rake);

}  // namespace gravelox
