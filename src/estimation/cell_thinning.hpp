// SPDX-License-Identifier: MIT
#pragma once

// Thinning out of samples: at most one in each cell of a regular lattice.

#include <array>
#include <set>
#include <string_view>
#include <vector>

#include "common/location.hpp"

namespace gravelox {

/// Remembers which cells of a lattice are taken. Cells are counted by truncation towards zero, so
/// those about the origin are twice as wide.
class cell_thinning {
 public:
  /// Forgets all cells and sets their size, in the units of the points.
  void restart(double cell_size);

  /// Whether the point is the first of its cell; the cell is taken from then on.
  bool takes(const location& point);

 private:
  double cell_size_ = 1.0;
  std::set<std::array<double, 3>> taken_;
};

/// Throws std::invalid_argument for a size that is 0 or not finite.
void check_scales(std::string_view name, const std::vector<double>& scales);

}  // namespace gravelox
