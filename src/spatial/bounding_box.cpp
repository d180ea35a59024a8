// SPDX-License-Identifier: MIT
#include "spatial/bounding_box.hpp"

#include <algorithm>
#include <limits>

namespace gravelox {

namespace {

constexpr double unbounded = 1e30;

/// The least and greatest coordinates, infinite where there is none.
struct coordinate_bounds {
  location least = location::Constant(std::numeric_limits<double>::infinity());
  location greatest = -least;

  explicit coordinate_bounds(const location_list& points) {
    for (const location& point : points) {
      for (Eigen::Index axis = 0; axis < 3; ++axis) {
        least[axis] = std::min(least[axis], point[axis]);
        greatest[axis] = std::max(greatest[axis], point[axis]);
      }
    }
  }

  location length() const { return (greatest - least).cwiseMax(0.0); }
};

}  // namespace

location extent(const location_list& points) { return coordinate_bounds(points).length(); }

BoundingBox::BoundingBox(const location_list& corners) : corners_(corners) {
  const coordinate_bounds bounds(corners);
  lower_ = bounds.least.cwiseMin(unbounded);
  upper_ = bounds.greatest.cwiseMax(-unbounded);
  length_ = bounds.length();
}

}  // namespace gravelox
