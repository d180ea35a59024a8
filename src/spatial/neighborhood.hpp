// SPDX-License-Identifier: MIT
#pragma once

// Nearest-neighbour and radius queries over a fixed list of locations, in the space of an optional
// ellipsoid: a radius of 1 under an ellipsoid means the ellipsoid itself.

#include <cstddef>
#include <memory>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/neighbor_buffer.hpp"
#include "spatial/search_space.hpp"

namespace gravelox {

/// A k-d tree over copies of the locations. Ids are positions in the list.
///
/// No query is exact: a subtree is entered only if eleven times the squared distance to its region
/// is at most the current worst squared distance. Close points across a split can be missed.
/// Models are fitted with this search, so they are used with it: it is never made exact. Of points
/// at equal distance the one met first comes first, whatever its id.
///
/// Copies share the tree, which never changes. Many threads may query one object at once.
class Neighborhood {
 public:
  /// Both throw std::invalid_argument for coordinates that are not finite, also after the map. An
  /// empty list is legal: every query finds nothing.
  Neighborhood(const location_list& locations, const Ellipsoid& ellipsoid);
  explicit Neighborhood(const location_list& locations);

  /// The max_size nearest (fewer where fewer are stored), nearest first. 0 gives an empty list;
  /// throws std::invalid_argument for a negative count or a centre that is not finite. Where
  /// squared distances overflow, places that no location fills are 0.
  std::vector<std::size_t> find_neighbors(const location& center, int max_size) const;

  /// All strictly within the radius, nearest first; one exactly at the radius is left out. A
  /// negative radius counts by its absolute value. Ties stand in no particular order.
  std::vector<std::size_t> find_neighbors(const location& center, double max_radius) const;

  /// The same into a buffer, for loops over finite centres.
  void find_neighbors(const location& center, int max_size, neighbor_buffer& buffer) const;
  void find_neighbors(const location& center, double max_radius, neighbor_buffer& buffer) const;

  /// The first of find_neighbors(point, 1); throws std::invalid_argument where nothing is stored.
  std::size_t nearest_neighbor(const location& point) const;

  /// The number of locations.
  std::size_t size() const;

  /// Whether these are the locations of the search, in the order of its ids.
  bool is_over(const location_list& locations) const;

  /// A query by radius misses no point nearer than this share of its radius: a little less than the
  /// root of an eleventh.
  static constexpr double complete_share = 0.3;

 private:
  class index;

  Neighborhood(const location_list& locations, const search_space& space);

  search_space space_;
  std::shared_ptr<const index> index_;
};

}  // namespace gravelox
