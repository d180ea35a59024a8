// SPDX-License-Identifier: MIT
#include "estimation/cell_thinning.hpp"

#include <cmath>

#include "common/checks.hpp"

namespace gravelox {

void cell_thinning::restart(double cell_size) {
  cell_size_ = cell_size;
  taken_.clear();
}

bool cell_thinning::takes(const location& point) {
  const location cell = point / cell_size_;
  return taken_.insert({std::trunc(cell.x()), std::trunc(cell.y()), std::trunc(cell.z())}).second;
}

void check_scales(std::string_view name, const std::vector<double>& scales) {
  check_finite(name, scales);
  for (const double scale : scales) {
    if (scale == 0.0) refuse(name, "cell sizes other than 0", scale);
  }
}

}  // namespace gravelox
