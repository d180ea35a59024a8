// SPDX-License-Identifier: MIT
#include "spatial/ellipsoid.hpp"

#include <Eigen/LU>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "spatial/anisotropy.hpp"
#include "spatial/sphere_sampling.hpp"

namespace gravelox {

namespace {

location_list map_all(const Eigen::Matrix3d& matrix, const location_list& locs, int n_threads) {
  location_list mapped(locs.size());
  parallel_for(locs.size(), n_threads, [&](std::size_t i, int) { mapped[i] = matrix * locs[i]; });
  return mapped;
}

/// A row of length 1 / r as a vector of length r along it.
Eigen::Vector3d axis_of_row(const Eigen::Matrix3d& matrix, Eigen::Index row) {
  const Eigen::Vector3d axis = sort_matrix3d(matrix, true).row(row);
  return axis / std::pow(axis.norm(), 2);
}

std::size_t count_of(int n) { return n > 0 ? to_size(n) : 0; }

}  // namespace

Ellipsoid::Ellipsoid()
    : matrix_(Eigen::Matrix3d::Identity()), inv_matrix_(Eigen::Matrix3d::Identity()) {}

Ellipsoid::Ellipsoid(const Eigen::Matrix3d& anisotropy_matrix)
    : matrix_(anisotropy_matrix), inv_matrix_(anisotropy_matrix.inverse()) {}

Ellipsoid::Ellipsoid(double r1, double r2, double r3, double azimuth, double dip, double rake)
    : Ellipsoid(anisotropy_matrix(r1, r2, r3, azimuth, dip, rake)) {}

Ellipsoid::Ellipsoid(const Eigen::Vector3d& length, const Eigen::Vector3d& rotation)
    : Ellipsoid(length[0], length[1], length[2], rotation[0], rotation[1], rotation[2]) {}

Ellipsoid::Ellipsoid(const EllipsoidInfo& ellipsoid_info)
    : Ellipsoid(ellipsoid_info.r1, ellipsoid_info.r2, ellipsoid_info.r3, ellipsoid_info.azimuth,
                ellipsoid_info.dip, ellipsoid_info.rake) {}

EllipsoidInfo Ellipsoid::info() const { return extract_ellipsoid_info(sort_matrix3d(matrix_)); }

location_list Ellipsoid::forward(const location_list& locs, int n_threads) const {
  return map_all(matrix_, locs, n_threads);
}

location_list Ellipsoid::backward(const location_list& locs, int n_threads) const {
  return map_all(inv_matrix_, locs, n_threads);
}

location_list Ellipsoid::surface(int n_points, std::int64_t seed) const {
  location_list points = generate_random_sphere(n_points, seed);
  for (location& point : points) point = inv_matrix_ * point;
  return points;
}

location_list Ellipsoid::volume(int n_points, int n_lags, std::int64_t seed) const {
  if (n_points < 1 || n_lags < 1) return {};
  random_engine engine = create_engine(seed);
  normal_distribution normal;
  location_list points;
  points.reserve(2 * count_of(n_points) * count_of(n_lags));
  for (int lag = 0; lag < n_lags; ++lag) {
    const double scale = std::abs(normal(engine));
    for (const location& point :
         surface(n_points, seed + static_cast<std::int64_t>(points.size()))) {
      points.emplace_back(scale * point);
    }
  }
  return points;
}

std::pair<location_list, std::vector<int>> Ellipsoid::directions(int n_directions, int n_lags,
                                                                 std::int64_t seed) const {
  random_engine engine = create_engine(seed);
  normal_distribution normal;
  const location_list rays = surface(n_directions, seed);
  std::pair<location_list, std::vector<int>> result;
  auto& [points, ids] = result;
  points.reserve(rays.size() * count_of(n_lags));
  ids.reserve(points.capacity());
  for (std::size_t ray = 0; ray < rays.size(); ++ray) {
    for (int lag = 0; lag < n_lags; ++lag) {
      points.emplace_back(std::abs(normal(engine)) * rays[ray]);
      ids.push_back(to_int(ray));
    }
  }
  return result;
}

Eigen::Vector3d Ellipsoid::major_axis() const { return axis_of_row(matrix_, 0); }
Eigen::Vector3d Ellipsoid::mid_axis() const { return axis_of_row(matrix_, 1); }
Eigen::Vector3d Ellipsoid::minor_axis() const { return axis_of_row(matrix_, 2); }

std::string Ellipsoid::to_string() const {
  const EllipsoidInfo values = info();
  const auto print = [&values](char* text, std::size_t size) {
    return std::snprintf(text, size, "{r1: %f, r2: %f, r3: %f, azimuth: %f, dip: %f, rake: %f} ",
                         values.r1, values.r2, values.r3, values.azimuth, values.dip, values.rake);
  };
  // A range near the largest double takes some three hundred digits, hence the measuring pass.
  std::string text(static_cast<std::size_t>(print(nullptr, 0)), ' ');
  print(text.data(), text.size() + 1);
  return text;
}

void check_ellipsoid(std::string_view name, const Ellipsoid& ellipsoid) {
  if (ellipsoid.matrix().allFinite()) return;
  refuse(name, "an ellipsoid with a finite matrix", "one with infinities or NaN");
}

Ellipsoid Rotation(double azimuth, double dip, double rake) {
  return {1.0, 1.0, 1.0, azimuth, dip, rake};
}

Eigen::Vector3d Direction(double azimuth, double dip) {
  return rotation_matrix(azimuth, dip, 0.0).row(0);
}

}  // namespace gravelox
