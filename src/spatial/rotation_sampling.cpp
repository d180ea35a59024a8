// SPDX-License-Identifier: MIT
#include "spatial/rotation_sampling.hpp"

#include <Eigen/Geometry>
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "spatial/axes.hpp"
#include "spatial/extreme_points.hpp"
#include "spatial/sphere_sampling.hpp"

namespace gravelox {

namespace {

/// What a thread of the search has of its own.
struct rotation_searcher {
  random_engine engine;
  double best_cost = 1e30;
  Ellipsoid best;
  location_list points;  // those of the candidate at hand, rotated

  explicit rotation_searcher(random_engine::result_type seed) : engine(seed) {}

  Ellipsoid draw_rotation() {
    const double azimuth = uniform(engine, 0.0, 360.0);
    const double dip = uniform(engine, -90.0, 0.0);
    const double rake = uniform(engine, 0.0, 180.0);
    return {1.0, 1.0, 1.0, azimuth, dip, rake};
  }

  void keep_if_better(const Ellipsoid& candidate) {
    const location length = extent(points);
    const double cost =
        std::log(length.y() + 1.0) + std::log(length.x() + 1.0) + std::log(length.z() + 1.0);
    if (best_cost > cost) {
      best_cost = cost;
      best = candidate;
    }
  }
};

std::vector<rotation_searcher> create_searchers(int n_threads, random_engine& master) {
  std::vector<rotation_searcher> searchers;
  const std::size_t n = n_thread_slots(n_threads);
  searchers.reserve(n);
  for (std::size_t i = 0; i < n; ++i) searchers.emplace_back(master());
  return searchers;
}

/// The hull itself where all of it is asked for, otherwise random picks from it.
location_list pick_samples(const location_list& hull, std::size_t sample_size,
                           random_engine& engine) {
  if (sample_size == hull.size()) return hull;
  location_list samples(sample_size);
  for (location& sample : samples) sample = hull[engine() % hull.size()];
  return samples;
}

/// The matrix of two directions: the first scaled to length 1, then what the second, scaled too,
/// has beyond `cosine` times the first.
Eigen::Matrix3d frame_of(const location& first, const location& second, double cosine) {
  const location v = second / second.norm() - cosine * first;
  Eigen::Matrix3d frame;
  frame << first.transpose(), v.transpose(), first.cross(v).transpose();
  return frame;
}

}  // namespace

std::pair<BoundingBox, Ellipsoid> optimize_rotation(const location_list& locations, int sample_size,
                                                    int n_iterations, int n_threads,
                                                    std::int64_t seed, bool use_fixed_samples,
                                                    int n_rays) {
  check_not_empty("locations", locations.size());
  check_at_least("sample_size", sample_size, 0);
  check_at_least("n_iterations", n_iterations, 0);
  check_at_least("n_rays", n_rays, 1);
  const location_list hull = extreme_points(locations, n_rays, seed, n_threads);
  const std::size_t n_samples = std::min(to_size(sample_size), hull.size());

  random_engine master = create_engine(seed);
  std::vector<rotation_searcher> searchers = create_searchers(n_threads, master);
  const location_list fixed_samples = pick_samples(hull, n_samples, master);
  parallel_for(to_size(n_iterations), n_threads, [&](std::size_t t, int thread_number) {
    rotation_searcher& searcher = searchers[to_size(thread_number)];
    const Ellipsoid candidate =
        t == 0 ? Ellipsoid(1.0, 1.0, 1.0, 90.0, 0.0, 0.0) : searcher.draw_rotation();
    searcher.points.resize(n_samples);
    for (std::size_t i = 0; i < n_samples; ++i) {
      const location& point =
          use_fixed_samples ? fixed_samples[i] : hull[searcher.engine() % hull.size()];
      searcher.points[i] = candidate.forward(point);
    }
    searcher.keep_if_better(candidate);
  });

  // Of equal costs the first thread's counts.
  const auto best = std::min_element(
      searchers.begin(), searchers.end(),
      [](const auto& left, const auto& right) { return left.best_cost < right.best_cost; });
  return {BoundingBox(best->best.forward(hull, n_threads)), best->best};
}

std::vector<Eigen::Matrix3d> generate_rotations(int n_rays, std::int64_t seed, double tol) {
  random_engine engine = create_engine(seed);
  const location_list directions = generate_random_sphere(n_rays, engine());
  std::vector<Eigen::Matrix3d> rotations;
  for (std::size_t i = 0; i < directions.size(); ++i) {
    const location first = directions[i] / directions[i].norm();
    for (std::size_t j = i + 1; j < directions.size(); ++j) {
      const double cosine = first.dot(directions[j]);
      if (tol > std::abs(cosine)) rotations.push_back(frame_of(first, directions[j], cosine));
    }
  }
  shuffle(rotations, engine);
  return rotations;
}

std::vector<Ellipsoid> generate_ellipsoids(double min_range, double max_range, int n_rays,
                                           int n_scales, std::int64_t seed, double tol) {
  // Two engines of one seed: the rotations have their own.
  random_engine engine = create_engine(seed);
  std::vector<Ellipsoid> ellipsoids;
  for (const Eigen::Matrix3d& rotation : generate_rotations(n_rays, seed, tol)) {
    for (const location& proportions : generate_random_sphere(n_scales, engine())) {
      const double scale = uniform(engine, min_range, max_range);
      const Eigen::Vector3d ranges = scale * proportions;
      const Eigen::Matrix3d matrix = ranges.cwiseInverse().asDiagonal() * rotation;
      ellipsoids.emplace_back(sort_matrix3d(matrix, true));
    }
  }
  shuffle(ellipsoids, engine);
  return ellipsoids;
}

}  // namespace gravelox
