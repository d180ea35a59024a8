// SPDX-License-Identifier: MIT
#include "spatial/anisotropy.hpp"

#include <cmath>
#include <numbers>

namespace gravelox {

namespace {

using std::cos;
using std::sin;

template <number T>
T radians(const T& degrees) {
  return degrees / T(180.0) * T(std::numbers::pi);
}

template <number T>
T reciprocal_range(const T& range) {
  return range > T(1e-30) ? T(1.0) / range : T(1.0);
}

}  // namespace

template <number T>
Eigen::Matrix<T, 3, 3> rotation_matrix(const T& azimuth, const T& dip, const T& rake) {
  const T a = radians(T(T(90.0) - azimuth));
  const T d = radians(T(-dip));
  const T k = radians(rake);
  const T zero(0.0);
  const T one(1.0);
  Eigen::Matrix<T, 3, 3> rx;
  Eigen::Matrix<T, 3, 3> ry;
  Eigen::Matrix<T, 3, 3> rz;
  rz << cos(a), sin(a), zero, -sin(a), cos(a), zero, zero, zero, one;
  ry << cos(d), zero, -sin(d), zero, one, zero, sin(d), zero, cos(d);
  rx << one, zero, zero, zero, cos(k), sin(k), zero, -sin(k), cos(k);
  return rx * ry * rz;
}

template <number T>
Eigen::Matrix<T, 3, 3> anisotropy_matrix(const T& r1, const T& r2, const T& r3, const T& azimuth,
                                         const T& dip, const T& rake) {
  Eigen::Matrix<T, 3, 3> m = rotation_matrix(azimuth, dip, rake);
  m.row(0) *= reciprocal_range(r1);
  m.row(1) *= reciprocal_range(r2);
  m.row(2) *= reciprocal_range(r3);
  return m;
}

template Eigen::Matrix<double, 3, 3> rotation_matrix(const double&, const double&, const double&);
template Eigen::Matrix<jet, 3, 3> rotation_matrix(const jet&, const jet&, const jet&);
template Eigen::Matrix<double, 3, 3> anisotropy_matrix(const double&, const double&, const double&,
                                                       const double&, const double&, const double&);
template Eigen::Matrix<jet, 3, 3> anisotropy_matrix(const jet&, const jet&, const jet&, const jet&,
                                                    const jet&, const jet&);

}  // namespace gravelox
