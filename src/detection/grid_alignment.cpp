// SPDX-License-Identifier: MIT
#include "detection/grid_alignment.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <numeric>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "detection/featured_points_detail.hpp"

namespace gravelox::grid_detector {

namespace {

using detail::featured_points;
using id_list = featured_points::id_list;

constexpr std::size_t n_families = 3;

/// A whole number, in a type that holds it however small the tolerance is.
using family = double;

/// The families of each point, in ascending order.
using membership = std::vector<std::vector<family>>;

/// The angles of the line to a neighbour with the x axis (radians), by its direction and by its
/// plain difference.
struct neighbor_angles {
  std::size_t id;
  double of_direction;
  double of_difference;
};

/// What is no number, since a difference overflows, counts as 1 too.
double folded_angle(double x) {
  const double cosine = std::abs(x);
  return std::acos(cosine < 1.0 ? cosine : 1.0);
}

neighbor_angles angles_to(std::size_t id, const location& from, const location& to) {
  const location difference = to - from;
  return {id, folded_angle(difference.normalized().x()), folded_angle(difference.x())};
}

void join(std::size_t point, family joined, membership& families) {
  std::vector<family>& own = families[point];
  const auto place = std::lower_bound(own.begin(), own.end(), joined);
  if (place == own.end() || *place != joined) own.insert(place, joined);
}

void add_pairs(std::size_t point, const std::vector<neighbor_angles>& neighbors, double tolerance,
               membership& families) {
  for (const neighbor_angles& a : neighbors) {
    for (const neighbor_angles& b : neighbors) {
      if (b.id == a.id || std::abs(a.of_direction - b.of_difference) > tolerance) continue;
      const double sum = std::abs(a.of_direction + b.of_difference);
      const family joined = std::trunc(sum / (2.0 * tolerance));
      join(point, joined, families);
      join(a.id, joined, families);
      join(b.id, joined, families);
    }
  }
}

membership find_families(const featured_points& points, double tolerance, int n_threads) {
  membership families(points.size());
  std::vector<neighbor_angles> neighbors;
  id_list all(points.size());
  std::iota(all.begin(), all.end(), 0);
  const auto is_wanted = [](std::size_t) { return true; };
  points.visit_like_neighbors(
      all, is_wanted, n_threads, [&](std::size_t point, const id_list& like) {
        neighbors.clear();
        for (const std::size_t id : like) {
          neighbors.push_back(angles_to(id, points.location_of(point), points.location_of(id)));
        }
        add_pairs(point, neighbors, tolerance, families);
      });
  return families;
}

/// The families with the most members, of equally large ones the smaller number first.
std::vector<family> largest(const membership& families) {
  std::map<family, std::size_t> sizes;
  for (const std::vector<family>& own : families) {
    for (const family one : own) ++sizes[one];
  }
  std::vector<std::pair<family, std::size_t>> ranked(sizes.begin(), sizes.end());
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& one, const auto& other) { return one.second > other.second; });
  ranked.resize(std::min(ranked.size(), n_families));
  std::vector<family> chosen;
  chosen.reserve(ranked.size());
  for (const auto& [number, size] : ranked) chosen.push_back(number);
  return chosen;
}

}  // namespace

std::vector<int> detect_grid_aligned_points(const location_list& locs, const feature_list& features,
                                            const Neighborhood& nei, double color_tolerance,
                                            double angle_tolerance_deg, double radius, int n_neis,
                                            int n_threads) {
  const featured_points points(locs, features, nei, color_tolerance, radius, n_neis);
  const double tolerance = std::abs(angle_tolerance_deg * std::numbers::pi / 180.0);
  if (!(tolerance > 0.0))
    refuse("angle_tolerance_deg", "an angle other than 0", angle_tolerance_deg);
  const membership families = find_families(points, tolerance, n_threads);
  const std::vector<family> chosen = largest(families);
  std::vector<int> labels(locs.size(), -1);
  for (std::size_t i = 0; i < locs.size(); ++i) {
    const auto found = std::find_if(chosen.begin(), chosen.end(), [&](family one) {
      return std::binary_search(families[i].begin(), families[i].end(), one);
    });
    if (found != chosen.end()) labels[i] = static_cast<int>(found - chosen.begin()) + 1;
  }
  return labels;
}

}  // namespace gravelox::grid_detector
