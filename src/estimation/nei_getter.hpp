// SPDX-License-Identifier: MIT
#pragma once

// The neighbour getter: how every local estimator sees the samples around a target.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "common/location.hpp"
#include "spatial/neighbor_buffer.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

/// Scratch of a getter, one a thread; `neighbors.ids` holds the last result.
struct nei_buffer {
  neighbor_buffer neighbors;

  /// Samples taken per hole, valid where the stamp is that of the current target.
  std::vector<int> hole_counts;
  std::vector<std::uint64_t> hole_stamps;
  std::uint64_t stamp = 0;
};

/// How many samples a target may see; limits of 0 and below do not act.
struct neighbor_limits {
  int max_neighbors;
  double max_radius;
  int max_neighbors_octant;
  std::vector<int> dhids;
  int max_neis_by_dhid;
};

/// A callable from a location to sample indices, nearest first in the neighbourhood's metric.
///
/// With max_neighbors of 1 or more the candidates are that many nearest samples, and max_radius
/// plays no part; otherwise they are all samples strictly within |max_radius| in the
/// neighbourhood's metric. Candidates then pass the octant limit and after it the drill-hole limit;
/// a sample that is dropped is not made up for by a farther one.
///
/// It refers to the neighbourhood and the locations, which must outlive it. Immutable; many threads
/// may call it at once, each with its own buffer.
class nei_getter {
 public:
  nei_getter(const location_list& data_locs, const Neighborhood& neighborhood,
             const neighbor_limits& limits);

  std::vector<std::size_t> operator()(const location& target) const;

  /// The same into the buffer, whose ids are returned.
  const std::vector<std::size_t>& operator()(const location& target, nei_buffer& buffer) const;

 private:
  void limit_octants(const location& target, std::vector<std::size_t>& ids) const;
  void limit_holes(nei_buffer& buffer) const;

  const location_list& data_locs_;
  const Neighborhood& neighborhood_;
  int max_neighbors_;
  double max_radius_;
  int max_neighbors_octant_;
  int max_neis_by_dhid_;
  /// The hole of each sample, counted from 0; empty without a limit.
  std::vector<std::size_t> holes_;
  std::size_t n_holes_ = 0;
};

/// Throws std::invalid_argument where the neighbourhood, an argument of this name, holds more
/// samples than data_locs; it may hold fewer.
void check_neighborhood(std::string_view name, const Neighborhood& neighborhood,
                        const location_list& data_locs);

/// The getter of one estimation run. Throws std::invalid_argument where `dhids` is neither empty
/// nor one for each sample, and as check_neighborhood does. Without `dhids` no limit by hole acts.
nei_getter create_nei_getter(const location_list& data_locs, const Neighborhood& neighborhood,
                             int max_neighbors, double max_radius, int max_neighbors_octant,
                             const std::vector<int>& dhids, int max_neis_by_dhid);

}  // namespace gravelox
