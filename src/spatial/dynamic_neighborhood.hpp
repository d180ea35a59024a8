// SPDX-License-Identifier: MIT
#pragma once

// The queries of Neighborhood over a list that grows and shrinks.

#include <cstddef>
#include <memory>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/search_space.hpp"

namespace gravelox {

/// A forest of k-d trees over a growing list of locations; ids count on through additions, and a
/// removal shifts none.
///
/// Growing enters one id too many, as seeded results have come to depend on: an addition of c
/// points to n stored ones adds the ids n to n + c, and the next addition adds n + c again. Until
/// then that id has no location and no query finds it; afterwards it stands in the index twice, and
/// a query may list it twice.
///
/// Queries may run at once on many threads, but not beside an addition or a removal.
class DynamicNeighborhood {
 public:
  /// Additions throw std::invalid_argument for coordinates that are not finite.
  DynamicNeighborhood();
  explicit DynamicNeighborhood(const Ellipsoid& ellipsoid);
  DynamicNeighborhood(const location_list& locations, const Ellipsoid& ellipsoid);
  explicit DynamicNeighborhood(const location_list& locations);
  ~DynamicNeighborhood();
  DynamicNeighborhood(const DynamicNeighborhood&) = delete;
  DynamicNeighborhood& operator=(const DynamicNeighborhood&) = delete;
  DynamicNeighborhood(DynamicNeighborhood&&) noexcept;
  DynamicNeighborhood& operator=(DynamicNeighborhood&&) noexcept;

  /// The max_size nearest, nearest first, by the rule of Neighborhood. The length is the smaller of
  /// max_size and the number of stored points, removed ones included; places that no live point
  /// fills are 0.
  std::vector<std::size_t> find_neighbors(const location& center, int max_size) const;

  /// All strictly within the radius, in the order in which the forest is searched: not sorted. The
  /// error factor is 1 + max_radius^2 here.
  std::vector<std::size_t> find_neighbors(const location& center, double max_radius) const;

  /// The first of find_neighbors(point, 1); throws std::invalid_argument where nothing was stored.
  std::size_t nearest_neighbor(const location& point) const;

  /// The point gets the id size().
  void add_point(const location& point);

  /// An empty list adds the one id too many all the same.
  void add_points(const location_list& points);

  /// Leaves the point out of all queries from now on. An id that was never added is ignored; throws
  /// std::invalid_argument for a negative one.
  void remove_point(int id);

  /// The number of stored points, removed ones included.
  std::size_t size() const;

 private:
  struct index;

  DynamicNeighborhood(const location_list& locations, const search_space& space);

  search_space space_;
  std::unique_ptr<index> index_;
};

}  // namespace gravelox
