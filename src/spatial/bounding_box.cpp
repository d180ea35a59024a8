// SPDX-License-Identifier: MIT
#include "spatial/bounding_box.hpp"

#include <algorithm>
#include <limits>

namespace gravelox {

namespace {

constexpr double unbounded = 1e30;

}  // namespace

BoundingBox::BoundingBox(const location_list& corners)
    : lower_(location::Constant(unbounded)),
      upper_(location::Constant(-unbounded)),
      length_(location::Zero()),
      corners_(corners) {
  for (Eigen::Index axis = 0; axis < 3; ++axis) {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    for (const location& corner : corners) {
      least = std::min(least, corner[axis]);
      greatest = std::max(greatest, corner[axis]);
    }
    lower_[axis] = std::min(lower_[axis], least);
    upper_[axis] = std::max(upper_[axis], greatest);
    length_[axis] = std::max(0.0, greatest - least);
  }
}

}  // namespace gravelox
