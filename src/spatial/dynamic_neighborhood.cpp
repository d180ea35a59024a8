// SPDX-License-Identifier: MIT
#include "spatial/dynamic_neighborhood.hpp"

#include <algorithm>
#include <limits>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spatial/kd_tree_detail.hpp"

namespace gravelox {

namespace {

/// A point cloud that answers for ids which have no location yet, so that a tree can be built with
/// them: they stand where the last stored point is.
struct growing_cloud : detail::PointCloud<double> {
  double kdtree_get_pt(std::size_t id, std::size_t dimension) const {
    if (points.empty()) return 0.0;
    return PointCloud::kdtree_get_pt(std::min(id, points.size() - 1), dimension);
  }
};

using simple_metric = nanoflann::L2_Simple_Adaptor<double, growing_cloud, double, std::size_t>;

/// Ids without a location are infinitely far, so that no query finds them.
struct stored_points_metric : simple_metric {
  using simple_metric::simple_metric;

  double evalMetric(const double* center, std::size_t id, std::size_t size) const {
    if (id >= data_source.points.size()) return std::numeric_limits<double>::infinity();
    return simple_metric::evalMetric(center, id, size);
  }
};

using tree_type =
    nanoflann::KDTreeSingleIndexDynamicAdaptor<stored_points_metric, growing_cloud, 3, std::size_t>;

}  // namespace

struct DynamicNeighborhood::index {
  explicit index(location_list locations)
      : cloud{{std::move(locations)}}, tree(3, cloud, detail::tree_parameters()) {}

  /// Stores the points and tells the trees one id more than there are.
  void add(const location_list& points) {
    const std::size_t first = cloud.points.size();
    cloud.points.insert(cloud.points.end(), points.begin(), points.end());
    try {
      tree.addPoints(first, cloud.points.size());
    } catch (...) {
      // Ids without a location are never found: what the trees have taken in does no harm.
      cloud.points.resize(first);
      throw;
    }
  }

  growing_cloud cloud;
  tree_type tree;
};

DynamicNeighborhood::DynamicNeighborhood() : DynamicNeighborhood(location_list(), search_space()) {}

DynamicNeighborhood::DynamicNeighborhood(const Ellipsoid& ellipsoid)
    : DynamicNeighborhood(location_list(), search_space(ellipsoid)) {}

DynamicNeighborhood::DynamicNeighborhood(const location_list& locations, const Ellipsoid& ellipsoid)
    : DynamicNeighborhood(locations, search_space(ellipsoid)) {}

DynamicNeighborhood::DynamicNeighborhood(const location_list& locations)
    : DynamicNeighborhood(locations, search_space()) {}

DynamicNeighborhood::DynamicNeighborhood(const location_list& locations, const search_space& space)
    : space_(space), index_(std::make_unique<index>(space.map_checked("locations", locations))) {}

DynamicNeighborhood::~DynamicNeighborhood() = default;
DynamicNeighborhood::DynamicNeighborhood(DynamicNeighborhood&&) noexcept = default;
DynamicNeighborhood& DynamicNeighborhood::operator=(DynamicNeighborhood&&) noexcept = default;

std::vector<std::size_t> DynamicNeighborhood::find_neighbors(const location& center,
                                                             int max_size) const {
  check_at_least("max_size", max_size, 0);
  neighbor_buffer buffer;
  detail::search_by_count(index_->tree, space_.map_checked("center", center),
                          std::min(to_size(max_size), size()), buffer);
  return std::move(buffer.ids);
}

std::vector<std::size_t> DynamicNeighborhood::find_neighbors(const location& center,
                                                             double max_radius) const {
  neighbor_buffer buffer;
  const auto eps = static_cast<float>(max_radius * max_radius);
  detail::search_by_radius(index_->tree, space_.map_checked("center", center), max_radius, eps,
                           buffer);
  detail::store_found_ids(buffer);
  return std::move(buffer.ids);
}

std::size_t DynamicNeighborhood::nearest_neighbor(const location& point) const {
  check_not_empty("locations of the neighbourhood", size());
  check_finite("point", point);
  return find_neighbors(point, 1).front();
}

void DynamicNeighborhood::add_point(const location& point) {
  index_->add({space_.map_checked("point", point)});
}

void DynamicNeighborhood::add_points(const location_list& points) {
  index_->add(space_.map_checked("points", points));
}

void DynamicNeighborhood::remove_point(int id) {
  check_at_least("id", id, 0);
  index_->tree.removePoint(to_size(id));
}

std::size_t DynamicNeighborhood::size() const { return index_->cloud.points.size(); }

}  // namespace gravelox
