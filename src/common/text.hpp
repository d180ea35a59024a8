// SPDX-License-Identifier: MIT
#pragma once

// Values in messages and progress lines.

#include <sstream>
#include <string>

namespace gravelox {

/// The values as streams print them, one after another: numbers with six digits, and an exponent
/// where it is shorter.
template <typename... Parts>
std::string text_of(const Parts&... parts) {
  std::ostringstream text;
  (text << ... << parts);
  return text.str();
}

}  // namespace gravelox
