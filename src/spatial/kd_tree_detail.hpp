// SPDX-License-Identifier: MIT
#pragma once

// How both neighbourhood classes set up and ask their trees. Private to their sources: the tree
// library appears nowhere else.

#include <cstddef>
#include <limits>
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

/// The tree's list of points in the order of its leaves; its name varies with the library's
/// version.
template <typename Tree>
auto& leaf_order(Tree& tree) {
  if constexpr (requires { tree.vAcc_; }) {
    return tree.vAcc_;
  } else {
    return tree.vAcc;
  }
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
  bool empty() const { return found_.empty(); }
  void sort() {}  // newer versions of the library ask for it; order is the caller's business
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

/// What a count search collects: the nearest so far, in order; of points at equal distance the one
/// met first comes first.
class nearest_result_set {
 public:
  using DistanceType = double;
  using IndexType = std::size_t;

  /// For k of at least 1; both arrays have k places, and keep what they have where none is found.
  nearest_result_set(std::size_t k, std::size_t* ids, double* squared_distances)
      : k_(k), ids_(ids), squared_distances_(squared_distances) {
    squared_distances_[k - 1] = std::numeric_limits<double>::max();
  }

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  void sort() {}
  bool full() const { return size_ == k_; }
  double worstDist() const { return squared_distances_[k_ - 1]; }

  bool addPoint(double squared_distance, std::size_t id) {
    if (full() && worstDist() <= squared_distance) return true;
    std::size_t place = full() ? k_ - 1 : size_++;
    for (; place > 0 && squared_distances_[place - 1] > squared_distance; --place) {
      squared_distances_[place] = squared_distances_[place - 1];
      ids_[place] = ids_[place - 1];
    }
    squared_distances_[place] = squared_distance;
    ids_[place] = id;
    return true;
  }

 private:
  std::size_t k_;
  std::size_t size_ = 0;
  std::size_t* ids_;
  double* squared_distances_;
};

/// The k nearest into k slots of ids; what no point fills stays 0.
template <typename Tree>
void search_by_count(const Tree& tree, const location& center, std::size_t k,
                     neighbor_buffer& buffer) {
  buffer.ids.assign(k, 0);
  buffer.squared_distances.assign(k, 0.0);
  buffer.n_found = 0;
  if (k == 0) return;
  nearest_result_set nearest(k, buffer.ids.data(), buffer.squared_distances.data());
  tree.findNeighbors(nearest, center.data(), search_parameters(search_eps));
  buffer.n_found = nearest.size();
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
  buffer.n_found = buffer.ids.size();
}

}  // namespace gravelox::detail
