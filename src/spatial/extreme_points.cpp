// SPDX-License-Identifier: MIT
#include "spatial/extreme_points.hpp"

#include <cstddef>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/parallel_for.hpp"
#include "spatial/sphere_sampling.hpp"

namespace gravelox {

namespace {

using position_pair = std::pair<std::size_t, std::size_t>;

/// The positions of the least and of the greatest coordinate along a ray.
position_pair ends_along(const location& ray, const location_list& locations) {
  position_pair ends(0, 0);
  double least = ray.dot(locations.front());
  double greatest = least;
  for (std::size_t i = 1; i < locations.size(); ++i) {
    const double coordinate = ray.dot(locations[i]);
    if (coordinate < least) {
      least = coordinate;
      ends.first = i;
    }
    if (coordinate > greatest) {
      greatest = coordinate;
      ends.second = i;
    }
  }
  return ends;
}

}  // namespace

location_list extreme_points(const location_list& locations, int n_rays, std::int64_t seed,
                             int n_threads) {
  check_finite("locations", locations);
  if (locations.empty()) return {};
  const location_list rays = generate_random_sphere(n_rays, seed);
  std::vector<position_pair> ends(rays.size());
  parallel_for(rays.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    ends[i] = ends_along(rays[i], locations);
  });

  std::vector<bool> is_taken(locations.size(), false);
  location_list result;
  for (const auto& [behind, ahead] : ends) {
    for (const std::size_t position : {behind, ahead}) {
      if (!is_taken[position]) result.push_back(locations[position]);
      is_taken[position] = true;
    }
  }
  return result;
}

}  // namespace gravelox
