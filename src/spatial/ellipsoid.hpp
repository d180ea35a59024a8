// SPDX-License-Identifier: MIT
#pragma once

// Ellipsoid: the anisotropy of the whole system, a linear map between real space and an isotropic
// space in which the ellipsoid is the unit sphere. Distances of every covariance, neighbour search
// and variogram are measured after this map.

#include <Eigen/Core>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/axes.hpp"

namespace gravelox {

/// An immutable pair of 3 by 3 matrices: real to isotropic coordinates, and back.
///
/// Ranges and angles are not kept; info() reads them off the matrix. Any thread may call any
/// member. Nothing refuses odd numbers: a singular matrix has infinities and NaN in its inverse.
class Ellipsoid {
 public:
  /// The unit sphere, with both matrices the identity.
  Ellipsoid();

  /// Takes the matrix as it stands.
  explicit Ellipsoid(const Eigen::Matrix3d& anisotropy_matrix);

  /// Ranges in length units along the axes of rotation_matrix, angles in degrees. A range not above
  /// 1e-30 counts as 1.
  Ellipsoid(double r1, double r2, double r3, double azimuth, double dip, double rake);

  /// The same from (r1, r2, r3) and (azimuth, dip, rake).
  Ellipsoid(const Eigen::Vector3d& length, const Eigen::Vector3d& rotation);

  /// The same from a record of ranges and angles.
  explicit Ellipsoid(const EllipsoidInfo& ellipsoid_info);

  /// Ranges in descending order, with the angles of the axes in that order.
  EllipsoidInfo info() const;

  /// Real to isotropic coordinates.
  location forward(const location& real) const { return matrix_ * real; }

  /// Isotropic to real coordinates.
  location backward(const location& isotropic) const { return inv_matrix_ * isotropic; }

  /// The same for each element, in parallel; element i of the result is that of element i.
  location_list forward(const location_list& locs, int n_threads = 0) const;
  location_list backward(const location_list& locs, int n_threads = 0) const;

  const Eigen::Matrix3d& matrix() const { return matrix_; }
  const Eigen::Matrix3d& inv_matrix() const { return inv_matrix_; }

  /// 2 n_points points on the surface: generate_random_sphere, mapped back to real space. Here and
  /// below, a count below 1 gives an empty list.
  location_list surface(int n_points = 600, std::int64_t seed = 12546) const;

  /// Points scattered through the ellipsoid's neighbourhood: for each lag one half-normal draw
  /// scales a new surface, whose seed counts on by the number of points so far.
  location_list volume(int n_points = 600, int n_lags = 300, std::int64_t seed = 12356) const;

  /// Points along 2 n_directions rays, n_lags on each at half-normal multiples of the ray, with the
  /// number of the ray of each point.
  std::pair<location_list, std::vector<int>> directions(int n_directions = 600, int n_lags = 300,
                                                        std::int64_t seed = 12356) const;

  /// The axes as vectors of length r, by descending range, signs as in sort_matrix3d.
  Eigen::Vector3d major_axis() const;
  Eigen::Vector3d mid_axis() const;
  Eigen::Vector3d minor_axis() const;

  /// "{r1: 10.000000, r2: ..., rake: 0.000000} ", the values being those of info().
  std::string to_string() const;

 private:
  Eigen::Matrix3d matrix_;
  Eigen::Matrix3d inv_matrix_;
};

/// Throws std::invalid_argument where the matrix of the ellipsoid, an argument of this name, is not
/// finite: searches and distances need finite coordinates.
void check_ellipsoid(std::string_view name, const Ellipsoid& ellipsoid);

/// The unit sphere turned by the angles (degrees).
Ellipsoid Rotation(double azimuth, double dip, double rake = 0.0);

/// The unit vector at an azimuth and dip (degrees).
Eigen::Vector3d Direction(double azimuth, double dip);

}  // namespace gravelox
