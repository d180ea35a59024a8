// SPDX-License-Identifier: MIT
#include "common/memory.hpp"

#include <unistd.h>

#include "common/checks.hpp"

namespace gravelox {

void check_grid_memory(std::string_view name, const std::array<int, 3>& sizes, double n_arrays) {
  const double n_cells = static_cast<double>(sizes[0]) * sizes[1] * sizes[2];
  const double memory =
      static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGE_SIZE));
  if (n_cells * n_arrays * sizeof(double) > memory) {
    refuse(name, "a grid that fits in memory",
           text_of_sizes(sizes[0], sizes[1], sizes[2]) + " cells");
  }
}

}  // namespace gravelox
