// SPDX-License-Identifier: MIT
#include "common/memory.hpp"

#include <unistd.h>

#include "common/checks.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

bool fits_in_memory(double n_doubles) {
  // Asked once: the answer takes a system call, and loops check as they go.
  static const double memory =
      static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGE_SIZE));
  return n_doubles * sizeof(double) <= memory;
}

}  // namespace

void check_grid_memory(std::string_view name, const std::array<int, 3>& sizes, double n_arrays) {
  const double n_cells = static_cast<double>(sizes[0]) * sizes[1] * sizes[2];
  if (!fits_in_memory(n_cells * n_arrays)) {
    refuse(name, "a grid that fits in memory",
           text_of_sizes(sizes[0], sizes[1], sizes[2]) + " cells");
  }
}

void check_memory(std::string_view name, double n_doubles) {
  if (fits_in_memory(n_doubles)) return;
  refuse(name, "a number whose work fits in memory",
         text_of("one that takes ", n_doubles * sizeof(double) / 1e9, " GB"));
}

}  // namespace gravelox
