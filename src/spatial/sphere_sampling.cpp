// SPDX-License-Identifier: MIT
#include "spatial/sphere_sampling.hpp"

#include <Eigen/Core>
#include <cmath>
#include <numbers>

#include "common/integer.hpp"
#include "common/random.hpp"
#include "spatial/anisotropy.hpp"

namespace gravelox {

namespace {

/// The digits of the index in the base, mirrored at the radix point.
double radical_inverse(std::int64_t index, std::int64_t base) {
  double result = 0.0;
  double weight = 1.0;
  for (; index > 0; index /= base) {
    weight /= static_cast<double>(base);
    result += weight * static_cast<double>(index % base);
  }
  return result;
}

Eigen::Matrix3d random_rotation(std::int64_t seed) {
  random_engine engine = create_engine(seed);
  const double azimuth = 360.0 * uniform01(engine);
  const double dip = -90.0 * uniform01(engine);
  const double rake = 360.0 * uniform01(engine);
  return rotation_matrix(azimuth, dip, rake);
}

}  // namespace

location halton_direction(std::int64_t index) {
  const double z = radical_inverse(index, 3);
  const double phi = 2.0 * std::numbers::pi * radical_inverse(index, 2);
  const double radius = std::sqrt(1.0 - z * z);
  return {std::cos(phi) * radius, std::sin(phi) * radius, z};
}

location_list generate_random_semisphere(int size, std::int64_t seed) {
  if (size < 1) return {};
  const Eigen::Matrix3d rotation = random_rotation(seed);
  location_list points(to_size(size));
  for (int i = 0; i < size; ++i) points[to_size(i)] = rotation * halton_direction(seed + i);
  return points;
}

location_list generate_random_sphere(int size, std::int64_t seed) {
  if (size < 1) return {};
  const Eigen::Matrix3d rotation = random_rotation(seed);
  const std::size_t half = to_size(size);
  location_list points(2 * half);
  for (std::size_t i = 0; i < half; ++i) {
    const auto index = seed + static_cast<std::int64_t>(i);
    points[i] = rotation * halton_direction(index);
    points[half + i] = rotation * -halton_direction(index + size);
  }
  return points;
}

}  // namespace gravelox
