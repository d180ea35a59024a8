// SPDX-License-Identifier: MIT
#include "common/integer.hpp"

#include <limits>
#include <stdexcept>
#include <string>

namespace gravelox {

int to_int(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw std::invalid_argument("size: " + std::to_string(size) + " does not fit into 32 bits");
  }
  return static_cast<int>(size);
}

}  // namespace gravelox
