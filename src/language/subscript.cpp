// SPDX-License-Identifier: MIT
#include "language/subscript.hpp"

#include <stdexcept>

namespace gravelox {

void check_subscript(std::size_t i, std::size_t size) {
  if (i >= size) throw std::out_of_range("invalid vector subscript");
}

std::size_t position_of(int index, std::size_t size) {
  // What lies before the first element turns into a subscript beyond the last one.
  const std::size_t position = static_cast<std::size_t>(index) + (index < 0 ? size : 0);
  check_subscript(position, size);
  return position;
}

}  // namespace gravelox
