// SPDX-License-Identifier: MIT
#include "spatial/neighborhood.hpp"

#include <algorithm>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spatial/kd_tree_detail.hpp"

namespace gravelox {

namespace {

using point_cloud = detail::PointCloud<double>;
using tree_metric = nanoflann::L2_Simple_Adaptor<double, point_cloud, double, std::size_t>;
using tree_type = nanoflann::KDTreeSingleIndexAdaptor<tree_metric, point_cloud, 3, std::size_t>;

}  // namespace

/// The tree refers to its points: they live and die together, at one address.
struct Neighborhood::index {
  explicit index(location_list locations)
      : cloud{std::move(locations)}, tree(3, cloud, detail::tree_parameters()) {}

  point_cloud cloud;
  tree_type tree;
};

Neighborhood::Neighborhood(const location_list& locations, const Ellipsoid& ellipsoid)
    : has_ellipsoid_(true), ellipsoid_(ellipsoid) {
  check_finite("locations", locations);
  location_list mapped = ellipsoid.forward(locations, 1);
  check_finite("locations under the ellipsoid", mapped);
  index_ = std::make_shared<const index>(std::move(mapped));
}

Neighborhood::Neighborhood(const location_list& locations) : has_ellipsoid_(false) {
  check_finite("locations", locations);
  index_ = std::make_shared<const index>(locations);
}

location Neighborhood::to_search_space(const location& point) const {
  return has_ellipsoid_ ? ellipsoid_.forward(point) : point;
}

void Neighborhood::find_neighbors(const location& center, int max_size,
                                  neighbor_buffer& buffer) const {
  const std::size_t k = std::min(to_size(std::max(max_size, 0)), size());
  detail::search_by_count(index_->tree, to_search_space(center), k, buffer);
}

void Neighborhood::find_neighbors(const location& center, double max_radius,
                                  neighbor_buffer& buffer) const {
  detail::search_by_radius(index_->tree, to_search_space(center), max_radius, detail::search_eps,
                           buffer);
  std::sort(buffer.found.begin(), buffer.found.end(), nanoflann::IndexDist_Sorter());
  detail::store_found_ids(buffer);
}

std::vector<std::size_t> Neighborhood::find_neighbors(const location& center, int max_size) const {
  check_finite("center", to_search_space(center));
  check_at_least("max_size", max_size, 0);
  neighbor_buffer buffer;
  find_neighbors(center, max_size, buffer);
  return std::move(buffer.ids);
}

std::vector<std::size_t> Neighborhood::find_neighbors(const location& center,
                                                      double max_radius) const {
  check_finite("center", to_search_space(center));
  neighbor_buffer buffer;
  find_neighbors(center, max_radius, buffer);
  return std::move(buffer.ids);
}

std::size_t Neighborhood::nearest_neighbor(const location& point) const {
  check_not_empty("locations of the neighbourhood", size());
  return find_neighbors(point, 1).front();
}

std::size_t Neighborhood::size() const { return index_->cloud.points.size(); }

}  // namespace gravelox
