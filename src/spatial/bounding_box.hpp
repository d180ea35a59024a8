// SPDX-License-Identifier: MIT
#pragma once

// The axis-aligned box around a set of points.

#include "common/location.hpp"

namespace gravelox {

/// Per axis the greatest distance between two of the points; 0 without points.
location extent(const location_list& points);

/// An immutable box with the points that it was made from. Without points lower is 1e30, upper
/// -1e30 and length 0 on every axis.
class BoundingBox {
 public:
  explicit BoundingBox(const location_list& corners);

  const location_list& corners() const { return corners_; }
  const location& lower() const { return lower_; }
  const location& upper() const { return upper_; }

  /// Per axis the greatest distance between two of the points.
  const location& length() const { return length_; }

 private:
  location lower_;
  location upper_;
  location length_;
  location_list corners_;
};

}  // namespace gravelox
