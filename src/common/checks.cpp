// SPDX-License-Identifier: MIT
#include "common/checks.hpp"

#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string>

namespace gravelox {

namespace {

template <typename... Parts>
[[noreturn]] void refuse(std::string_view name, const Parts&... parts) {
  std::ostringstream text;
  text << name << ": expected ";
  (text << ... << parts);
  throw std::invalid_argument(text.str());
}

[[noreturn]] void refuse_location(std::string_view name, const location& value,
                                  const std::string& where) {
  refuse(name, "finite coordinates, got (", value[0], ", ", value[1], ", ", value[2], ")", where);
}

}  // namespace

void check_same_size(std::string_view name, std::size_t size, std::size_t expected,
                     std::string_view per) {
  if (size != expected) refuse(name, expected, " values, one per ", per, ", got ", size);
}

void check_not_empty(std::string_view name, std::size_t size) {
  if (size == 0) refuse(name, "at least 1 value, got 0");
}

void check_positive(std::string_view name, double value) {
  if (!(value > 0.0) || std::isinf(value)) refuse(name, "a positive number, got ", value);
}

void check_at_least(std::string_view name, long long value, long long least) {
  if (value < least) refuse(name, "at least ", least, ", got ", value);
}

void check_index(std::string_view name, long long index, std::size_t size) {
  if (index < 0 || static_cast<std::size_t>(index) >= size) {
    refuse(name, "an index from 0 to below ", size, ", got ", index);
  }
}

void check_finite(std::string_view name, double value) {
  if (!std::isfinite(value)) refuse(name, "a finite number, got ", value);
}

void check_finite(std::string_view name, const location& value) {
  if (!value.allFinite()) refuse_location(name, value, "");
}

void check_finite(std::string_view name, std::span<const double> values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!std::isfinite(values[i])) {
      refuse(name, "finite numbers, got ", values[i], " at position ", i);
    }
  }
}

void check_finite(std::string_view name, const location_list& values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!values[i].allFinite()) {
      refuse_location(name, values[i], " at position " + std::to_string(i));
    }
  }
}

}  // namespace gravelox
