// SPDX-License-Identifier: MIT
#include "spatial/search_space.hpp"

#include <algorithm>
#include <string>

#include "common/checks.hpp"

namespace gravelox {

namespace {

std::string after_map(std::string_view name) { return std::string(name) + " under the ellipsoid"; }

}  // namespace

location search_space::map_checked(std::string_view name, const location& point) const {
  check_finite(name, point);
  location mapped = map(point);
  check_finite(after_map(name), mapped);
  return mapped;
}

location_list search_space::map_checked(std::string_view name, const location_list& points) const {
  check_finite(name, points);
  location_list mapped(points.size());
  std::transform(points.begin(), points.end(), mapped.begin(),
                 [this](const location& point) { return map(point); });
  check_finite(after_map(name), mapped);
  return mapped;
}

void check_mapped(std::string_view name, const location_list& points, const Ellipsoid& ellipsoid) {
  search_space(ellipsoid).map_checked(name, points);
}

}  // namespace gravelox
