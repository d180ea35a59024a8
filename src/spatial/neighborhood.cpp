// SPDX-License-Identifier: MIT
#include "spatial/neighborhood.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spatial/kd_tree_detail.hpp"

namespace gravelox {

namespace {

using point_cloud = detail::PointCloud<double>;
/// Half as wide as a size: a query is faster the less memory it touches.
using place = std::uint32_t;
using tree_metric = nanoflann::L2_Simple_Adaptor<double, point_cloud, double, place>;
using tree_type = nanoflann::KDTreeSingleIndexAdaptor<tree_metric, point_cloud, 3, place>;

location_list with_places(location_list locations) {
  if (locations.size() > std::numeric_limits<place>::max()) {
    refuse("locations", "fewer than 2^32", std::to_string(locations.size()));
  }
  return locations;
}

}  // namespace

/// The tree refers to its points: they live and die together, at one address.
///
/// Once it is built the points are put in the order of its leaves, so that a query reads memory in
/// sequence; the tree then counts places in that order, and ids_ has the id of each.
class Neighborhood::index {
 public:
  explicit index(location_list locations)
      : cloud_{with_places(std::move(locations))}, tree_(3, cloud_, detail::tree_parameters()) {
    ids_ = detail::leaf_order(tree_);
    location_list sorted(ids_.size());
    for (std::size_t i = 0; i < ids_.size(); ++i) sorted[i] = cloud_.points[ids_[i]];
    cloud_.points = std::move(sorted);
    auto& places = detail::leaf_order(tree_);
    std::iota(places.begin(), places.end(), place{0});
  }

  void search_by_count(const location& center, std::size_t k, neighbor_buffer& buffer) const {
    detail::search_by_count(tree_, center, k, buffer);
    for (std::size_t i = 0; i < buffer.n_found; ++i) buffer.ids[i] = ids_[buffer.ids[i]];
  }

  void search_by_radius(const location& center, double max_radius, neighbor_buffer& buffer) const {
    detail::search_by_radius(tree_, center, max_radius, detail::search_eps, buffer);
    for (auto& [id, squared_distance] : buffer.found) id = ids_[id];
  }

  std::size_t size() const { return ids_.size(); }

  /// location_of(id) gives each location, mapped; there are as many as stored.
  template <typename LocationOf>
  bool is_over(const LocationOf& location_of) const {
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      if (cloud_.points[i] != location_of(ids_[i])) return false;
    }
    return true;
  }

 private:
  point_cloud cloud_;
  tree_type tree_;
  std::vector<place> ids_;
};

Neighborhood::Neighborhood(const location_list& locations, const Ellipsoid& ellipsoid)
    : Neighborhood(locations, search_space(ellipsoid)) {}

Neighborhood::Neighborhood(const location_list& locations)
    : Neighborhood(locations, search_space()) {}

Neighborhood::Neighborhood(const location_list& locations, const search_space& space)
    : space_(space),
      index_(std::make_shared<const index>(space.map_checked("locations", locations))) {}

void Neighborhood::find_neighbors(const location& center, int max_size,
                                  neighbor_buffer& buffer) const {
  const std::size_t k = std::min(to_size(std::max(max_size, 0)), size());
  index_->search_by_count(space_.map(center), k, buffer);
}

void Neighborhood::find_neighbors(const location& center, double max_radius,
                                  neighbor_buffer& buffer) const {
  index_->search_by_radius(space_.map(center), max_radius, buffer);
  std::sort(buffer.found.begin(), buffer.found.end(), nanoflann::IndexDist_Sorter());
  detail::store_found_ids(buffer);
}

std::vector<std::size_t> Neighborhood::find_neighbors(const location& center, int max_size) const {
  space_.map_checked("center", center);
  check_at_least("max_size", max_size, 0);
  neighbor_buffer buffer;
  find_neighbors(center, max_size, buffer);
  return std::move(buffer.ids);
}

std::vector<std::size_t> Neighborhood::find_neighbors(const location& center,
                                                      double max_radius) const {
  space_.map_checked("center", center);
  neighbor_buffer buffer;
  find_neighbors(center, max_radius, buffer);
  return std::move(buffer.ids);
}

std::size_t Neighborhood::nearest_neighbor(const location& point) const {
  check_not_empty("locations of the neighbourhood", size());
  return find_neighbors(point, 1).front();
}

std::size_t Neighborhood::size() const { return index_->size(); }

bool Neighborhood::is_over(const location_list& locations) const {
  return locations.size() == size() &&
         index_->is_over([&](std::size_t id) { return space_.map(locations[id]); });
}

}  // namespace gravelox
