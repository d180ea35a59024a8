// SPDX-License-Identifier: MIT
#include "estimation/nei_getter.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

#include "common/checks.hpp"

namespace gravelox {

namespace {

/// A difference of exactly 0 lies on the negative side.
std::size_t octant_of(const location& sample, const location& target) {
  return (sample.x() - target.x() > 0.0 ? 1U : 0U) + (sample.y() - target.y() > 0.0 ? 2U : 0U) +
         (sample.z() - target.z() > 0.0 ? 4U : 0U);
}

}  // namespace

nei_getter::nei_getter(const location_list& data_locs, const Neighborhood& neighborhood,
                       const neighbor_limits& limits)
    : data_locs_(data_locs),
      neighborhood_(neighborhood),
      max_neighbors_(limits.max_neighbors),
      max_radius_(limits.max_radius),
      max_neighbors_octant_(limits.max_neighbors_octant),
      max_neis_by_dhid_(limits.max_neis_by_dhid) {
  if (max_neis_by_dhid_ <= 0) return;
  std::unordered_map<int, std::size_t> number_of_hole;
  holes_.reserve(limits.dhids.size());
  for (const int dhid : limits.dhids) {
    holes_.push_back(number_of_hole.try_emplace(dhid, number_of_hole.size()).first->second);
  }
  n_holes_ = number_of_hole.size();
}

std::vector<std::size_t> nei_getter::operator()(const location& target) const {
  nei_buffer buffer;
  (*this)(target, buffer);
  return buffer.neighbors.ids;
}

const std::vector<std::size_t>& nei_getter::operator()(const location& target,
                                                       nei_buffer& buffer) const {
  if (max_neighbors_ >= 1) {
    neighborhood_.find_neighbors(target, max_neighbors_, buffer.neighbors);
  } else {
    neighborhood_.find_neighbors(target, max_radius_, buffer.neighbors);
  }
  // Fewer than asked for are found only where squared distances overflow.
  buffer.neighbors.ids.resize(buffer.neighbors.n_found);
  if (max_neighbors_octant_ > 0) limit_octants(target, buffer.neighbors.ids);
  if (!holes_.empty()) limit_holes(buffer);
  return buffer.neighbors.ids;
}

void nei_getter::limit_octants(const location& target, std::vector<std::size_t>& ids) const {
  std::array<int, 8> counts{};
  const auto is_beyond = [&](std::size_t id) {
    int& count = counts[octant_of(data_locs_[id], target)];
    if (count >= max_neighbors_octant_) return true;
    ++count;
    return false;
  };
  ids.erase(std::remove_if(ids.begin(), ids.end(), is_beyond), ids.end());
}

void nei_getter::limit_holes(nei_buffer& buffer) const {
  if (buffer.hole_counts.size() != n_holes_) {
    buffer.hole_counts.assign(n_holes_, 0);
    buffer.hole_stamps.assign(n_holes_, buffer.stamp);
  }
  ++buffer.stamp;
  const auto is_beyond = [&](std::size_t id) {
    const std::size_t hole = holes_[id];
    if (buffer.hole_stamps[hole] != buffer.stamp) {
      buffer.hole_stamps[hole] = buffer.stamp;
      buffer.hole_counts[hole] = 0;
    }
    if (buffer.hole_counts[hole] >= max_neis_by_dhid_) return true;
    ++buffer.hole_counts[hole];
    return false;
  };
  std::vector<std::size_t>& ids = buffer.neighbors.ids;
  ids.erase(std::remove_if(ids.begin(), ids.end(), is_beyond), ids.end());
}

void check_neighborhood(std::string_view name, const Neighborhood& neighborhood,
                        const location_list& data_locs) {
  if (neighborhood.size() <= data_locs.size()) return;
  refuse(name,
         "at most " + std::to_string(data_locs.size()) + " samples, as many as there are data_locs",
         std::to_string(neighborhood.size()));
}

nei_getter create_nei_getter(const location_list& data_locs, const Neighborhood& neighborhood,
                             int max_neighbors, double max_radius, int max_neighbors_octant,
                             const std::vector<int>& dhids, int max_neis_by_dhid) {
  check_neighborhood("neighborhood", neighborhood, data_locs);
  if (!dhids.empty()) check_same_size("dhids", dhids.size(), data_locs.size(), "location");
  const neighbor_limits limits{max_neighbors, max_radius, max_neighbors_octant, dhids,
                               max_neis_by_dhid};
  return {data_locs, neighborhood, limits};
}

}  // namespace gravelox
