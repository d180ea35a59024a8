// SPDX-License-Identifier: MIT
#include "optimization/ensemble_model.hpp"

#include <Eigen/Core>
#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <string_view>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "estimation/nei_getter.hpp"
#include "spatial/axes.hpp"

namespace gravelox {

namespace {

/// An ellipsoid on its way into a mean.
struct weighted_axes {
  double weight;
  std::size_t place;
  Eigen::Matrix3d matrix;
};

struct alignment {
  Eigen::Matrix3d matrix;
  double error;
};

constexpr std::array<std::array<int, 3>, 6> permutations{
    {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};

/// The axes of a matrix in the order and with the signs nearest to those of another. Axes that are
/// not numbers stay as they are.
alignment align(const Eigen::Matrix3d& matrix, const Eigen::Matrix3d& reference) {
  alignment best{matrix, 1e40};
  for (const std::array<int, 3>& permutation : permutations) {
    alignment tried{Eigen::Matrix3d::Zero(), 0.0};
    for (Eigen::Index row = 0; row < 3; ++row) {
      const Eigen::RowVector3d axis = matrix.row(permutation[to_size(row)]);
      const double as_it_is = (axis - reference.row(row)).squaredNorm();
      const double turned = (axis + reference.row(row)).squaredNorm();
      tried.matrix.row(row) = turned < as_it_is ? Eigen::RowVector3d(-axis) : axis;
      tried.error += turned < as_it_is ? turned : as_it_is;
    }
    if (tried.error < best.error) best = tried;
  }
  return best;
}

/// The mean of these axes, which are used up.
Ellipsoid blend(std::vector<weighted_axes>& parts) {
  // A total order also of weights that are not numbers.
  std::sort(parts.begin(), parts.end(), [](const weighted_axes& a, const weighted_axes& b) {
    const std::weak_ordering order = std::weak_order(b.weight, a.weight);
    return std::is_eq(order) ? a.place < b.place : std::is_lt(order);
  });
  Eigen::Matrix3d mean = parts.front().matrix;
  double weight_sum = parts.front().weight;
  parts.erase(parts.begin());
  while (!parts.empty()) {
    auto next = parts.begin();
    alignment closest = align(next->matrix, mean);
    for (auto part = next + 1; part != parts.end(); ++part) {
      const alignment aligned = align(part->matrix, mean);
      if (aligned.error < closest.error) {
        closest = aligned;
        next = part;
      }
    }
    const double new_sum = weight_sum + next->weight;
    mean = (mean * weight_sum + closest.matrix * next->weight) / new_sum;
    weight_sum = new_sum;
    parts.erase(next);
  }
  return Ellipsoid(sort_matrix3d(mean, true));
}

Eigen::Matrix3d reciprocal_axes(double r1, double r2, double r3, double azimuth, double dip,
                                double rake) {
  const auto invert = [](double range) { return 1.0 / (range + 1e-6); };
  return Ellipsoid(invert(r1), invert(r2), invert(r3), azimuth, dip, rake).matrix();
}

Eigen::Matrix3d reciprocal_axes(const Ellipsoid& ellipsoid) {
  const EllipsoidInfo info = extract_ellipsoid_info(sort_matrix3d(ellipsoid.matrix(), true));
  return reciprocal_axes(info.r1, info.r2, info.r3, info.azimuth, info.dip, info.rake);
}

void check_ellipsoids(const std::vector<Ellipsoid>& ellipsoids) {
  for (const Ellipsoid& ellipsoid : ellipsoids) check_ellipsoid("ellipsoids", ellipsoid);
}

/// The buffers of a thread.
struct alignas(64) ensemble_scratch {
  nei_buffer neighbors;
  std::vector<weighted_axes> parts;
};

}  // namespace

Ellipsoid ensemble_model(const std::vector<double>& r1, const std::vector<double>& r2,
                         const std::vector<double>& r3, const std::vector<double>& azimuth,
                         const std::vector<double>& dip, const std::vector<double>& rake,
                         const std::vector<double>& w) {
  check_not_empty("w", w.size());
  using named_list = std::pair<std::string_view, const std::vector<double>&>;
  for (const auto& [name, values] :
       {named_list{"r1", r1}, named_list{"r2", r2}, named_list{"r3", r3},
        named_list{"azimuth", azimuth}, named_list{"dip", dip}, named_list{"rake", rake},
        named_list{"w", w}}) {
    check_same_size(name, values.size(), w.size(), "weight");
    check_finite(name, values);
  }
  std::vector<weighted_axes> parts;
  parts.reserve(w.size());
  for (std::size_t i = 0; i < w.size(); ++i) {
    parts.push_back({w[i], i, reciprocal_axes(r1[i], r2[i], r3[i], azimuth[i], dip[i], rake[i])});
  }
  return blend(parts);
}

Ellipsoid ensemble_ellipsoid(const std::vector<double>& w,
                             const std::vector<Ellipsoid>& ellipsoids) {
  check_not_empty("w", w.size());
  check_same_size("ellipsoids", ellipsoids.size(), w.size(), "weight");
  check_finite("w", w);
  check_ellipsoids(ellipsoids);
  std::vector<weighted_axes> parts;
  parts.reserve(w.size());
  for (std::size_t i = 0; i < w.size(); ++i) {
    parts.push_back({w[i], i, reciprocal_axes(ellipsoids[i])});
  }
  return blend(parts);
}

std::vector<Ellipsoid> ensemble_local_ellipsoids(
    const location_list& target_locs, const location_list& ellipsoid_locs,
    const std::vector<Ellipsoid>& ellipsoids, const std::vector<double>& ellipsoid_weights,
    int n_neis, double max_radius, int max_neis_octant, double eps, int n_threads,
    const std::vector<int>& dhids, int max_neis_by_dhid) {
  check_same_size("ellipsoids", ellipsoids.size(), ellipsoid_locs.size(), "location");
  check_same_size("ellipsoid_weights", ellipsoid_weights.size(), ellipsoid_locs.size(), "location");
  check_finite("target_locs", target_locs);
  check_finite("ellipsoid_locs", ellipsoid_locs);
  check_finite("ellipsoid_weights", ellipsoid_weights);
  check_finite("eps", eps);
  check_ellipsoids(ellipsoids);

  const Neighborhood search(ellipsoid_locs);
  const nei_getter getter = create_nei_getter(ellipsoid_locs, search, n_neis, max_radius,
                                              max_neis_octant, dhids, max_neis_by_dhid);
  std::vector<Eigen::Matrix3d> axes;
  axes.reserve(ellipsoids.size());
  for (const Ellipsoid& ellipsoid : ellipsoids) axes.push_back(reciprocal_axes(ellipsoid));

  std::vector<Ellipsoid> results(target_locs.size());
  std::vector<ensemble_scratch> scratch(n_thread_slots(n_threads));
  parallel_for(target_locs.size(), n_threads, [&](std::size_t index, int thread_number) {
    auto& [neighbors, parts] = scratch[to_size(thread_number)];
    const location& target = target_locs[index];
    parts.clear();
    for (const std::size_t k : getter(target, neighbors)) {
      const double d = (ellipsoid_locs[k] - target).norm();
      parts.push_back({ellipsoid_weights[k] / (d * d * d + eps), parts.size(), axes[k]});
    }
    if (!parts.empty()) results[index] = blend(parts);
  });
  return results;
}

}  // namespace gravelox
