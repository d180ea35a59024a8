// SPDX-License-Identifier: MIT
#pragma once

// How both neighbourhood classes set up and ask their trees. Private to their sources: the tree
// library appears nowhere else.

#include <cstddef>
#include <nanoflann.hpp>
#include <utility>
#include <vector>

#include "common/integer.hpp"
#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/neighbor_buffer.hpp"

namespace gravelox::detail {

constexpr std::size_t leaf_max_size = 10;

/// Added to 1 this is the error factor of every search but one: a far subtree whose region lies
/// beyond an eleventh of the current worst squared distance is skipped. Estimates depend on it.
constexpr float search_eps = 10.0F;

inline nanoflann::KDTreeSingleIndexAdaptorParams tree_parameters() {
  return nanoflann::KDTreeSingleIndexAdaptorParams(leaf_max_size);
}

/// The search record of the library: up to 1.4 an ignored field stands before eps.
inline auto search_parameters(float eps) {
#if NANOFLANN_VERSION >= 0x150
  return nanoflann::SearchParameters(eps);
#else
  return nanoflann::SearchParams(0, eps);
#endif
}

/// The points as the trees read them, already in the ellipsoid's space.
template <typename T>
struct PointCloud {
  std::vector<Eigen::Matrix<T, 3, 1>> points;

  std::size_t kdtree_get_point_count() const { return points.size(); }
  T kdtree_get_pt(std::size_t index, std::size_t dimension) const {
    return points[index][to_index(dimension)];
  }
  template <typename Box>
  bool kdtree_get_bbox(Box& /*box*/) const {
    return false;
  }
};

/// What a radius search collects, in the order of the traversal: all strictly below the threshold.
class radius_result_set {
 public:
  using DistanceType = double;
  using IndexType = std::size_t;

  radius_result_set(double squared_radius, std::vector<std::pair<std::size_t, double>>& found)
      : squared_radius_(squared_radius), found_(found) {
    found_.clear();
  }

  std::size_t size() const { return found_.size(); }
  bool full() const { return true; }
  double worstDist() const { return squared_radius_; }

  bool addPoint(double squared_distance, std::size_t id) {
    if (squared_distance < squared_radius_) found_.emplace_back(id, squared_distance);
    return true;
  }

 private:
  double squared_radius_;
  std::vector<std::pair<std::size_t, double>>& found_;
};

/// The k nearest of k slots that start at id 0; what no point fills stays 0.
template <typename Tree>
void search_by_count(const Tree& tree, const location& center, std::size_t k,
                     neighbor_buffer& buffer) {
  buffer.ids.assign(k, 0);
  buffer.squared_distances.assign(k, 0.0);
  if (k == 0) return;
  nanoflann::KNNResultSet<double, std::size_t> nearest(k);
  nearest.init(buffer.ids.data(), buffer.squared_distances.data());
  tree.findNeighbors(nearest, center.data(), search_parameters(search_eps));
}

/// The points strictly within the radius into `buffer.found`, in the order of the traversal.
template <typename Tree>
void search_by_radius(const Tree& tree, const location& center, double max_radius, float eps,
                      neighbor_buffer& buffer) {
  radius_result_set within(max_radius * max_radius, buffer.found);
  tree.findNeighbors(within, center.data(), search_parameters(eps));
}

/// The ids of `buffer.found`, in its order.
inline void store_found_ids(neighbor_buffer& buffer) {
  buffer.ids.clear();
  for (const auto& [id, squared_distance] : buffer.found) buffer.ids.push_back(id);
}

}  // namespace gravelox::detail
