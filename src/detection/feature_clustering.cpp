// SPDX-License-Identifier: MIT
#include "detection/feature_clustering.hpp"

#include <cstddef>
#include <utility>

#include "detection/featured_points_detail.hpp"

namespace gravelox::grid_detector {

namespace {

using detail::featured_points;
using id_list = featured_points::id_list;

/// Labels the region of a point, one ring of neighbours after another.
void grow_region(std::size_t seed, int label, const featured_points& points, int n_threads,
                 std::vector<int>& labels) {
  labels[seed] = label;
  const auto is_free = [&labels](std::size_t id) { return labels[id] == -1; };
  for (id_list ring{seed}; !ring.empty();) {
    id_list next_ring;
    points.visit_like_neighbors(ring, is_free, n_threads, [&](std::size_t, const id_list& like) {
      for (const std::size_t next : like) {
        if (!is_free(next)) continue;
        labels[next] = label;
        next_ring.push_back(next);
      }
    });
    ring = std::move(next_ring);
  }
}

}  // namespace

std::vector<int> find_clusters(const location_list& locs, const feature_list& features,
                               const Neighborhood& nei, double color_tolerance,
                               const Eigen::VectorXd& background_color, double radius, int n_neis,
                               int n_threads) {
  const featured_points points(locs, features, nei, color_tolerance, radius, n_neis);
  points.check_color("background_color", background_color);
  std::vector<int> labels(locs.size(), -1);
  int n_regions = 0;
  for (std::size_t i = 0; i < locs.size(); ++i) {
    if (labels[i] != -1 || !points.is_like(i, background_color)) continue;
    grow_region(i, n_regions++, points, n_threads, labels);
  }
  return labels;
}

}  // namespace gravelox::grid_detector
