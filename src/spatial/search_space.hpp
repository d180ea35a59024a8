// SPDX-License-Identifier: MIT
#pragma once

// The space in which neighbours are searched: that of an ellipsoid, or real space.

#include <string_view>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// An immutable map from real coordinates; many threads may use it at once.
class search_space {
 public:
  /// Real space, and the space of an ellipsoid.
  search_space() = default;
  explicit search_space(const Ellipsoid& ellipsoid) : has_ellipsoid_(true), ellipsoid_(ellipsoid) {}

  location map(const location& point) const {
    return has_ellipsoid_ ? ellipsoid_.forward(point) : point;
  }

  /// The same for arguments of this name; throws std::invalid_argument for coordinates that are not
  /// finite, before the map or after it.
  location map_checked(std::string_view name, const location& point) const;
  location_list map_checked(std::string_view name, const location_list& points) const;

 private:
  bool has_ellipsoid_ = false;
  Ellipsoid ellipsoid_;
};

/// Throws std::invalid_argument for locations, an argument of this name, that are not finite before
/// the ellipsoid's map or after it.
void check_mapped(std::string_view name, const location_list& points, const Ellipsoid& ellipsoid);

}  // namespace gravelox
