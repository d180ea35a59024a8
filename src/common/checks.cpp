// SPDX-License-Identifier: MIT
#include "common/checks.hpp"

#include <cmath>
#include <stdexcept>
#include <string>

#include "common/text.hpp"

namespace gravelox {

namespace {

[[noreturn]] void refuse_location(std::string_view name, const location& value,
                                  const std::string& where) {
  refuse(name, "finite coordinates",
         text_of("(", value[0], ", ", value[1], ", ", value[2], ")", where));
}

}  // namespace

void refuse(std::string_view name, const std::string& expected, const std::string& got) {
  throw std::invalid_argument(text_of(name, ": expected ", expected, ", got ", got));
}

void refuse(std::string_view name, const std::string& expected, double got) {
  refuse(name, expected, text_of(got));
}

std::string text_of_sizes(long long nx, long long ny, long long nz) {
  return text_of(nx, " x ", ny, " x ", nz);
}

void check_same_size(std::string_view name, std::size_t size, std::size_t expected,
                     std::string_view per) {
  if (size != expected) refuse(name, text_of(expected, " values, one per ", per), text_of(size));
}

void check_not_empty(std::string_view name, std::size_t size) {
  if (size == 0) refuse(name, "at least 1 value", "0");
}

void check_positive(std::string_view name, double value) {
  if (!(value > 0.0) || std::isinf(value)) refuse(name, "a positive number", text_of(value));
}

void check_at_least(std::string_view name, long long value, long long least) {
  if (value < least) refuse(name, text_of("at least ", least), text_of(value));
}

void check_index(std::string_view name, long long index, std::size_t size) {
  if (index < 0 || static_cast<std::size_t>(index) >= size) {
    refuse(name, text_of("an index from 0 to below ", size), text_of(index));
  }
}

void check_not_nan(std::string_view name, double value) {
  if (std::isnan(value)) refuse(name, "a number", "nan");
}

void check_finite(std::string_view name, double value) {
  if (!std::isfinite(value)) refuse(name, "a finite number", text_of(value));
}

void check_finite(std::string_view name, const location& value) {
  if (!value.allFinite()) refuse_location(name, value, "");
}

void check_finite(std::string_view name, std::span<const double> values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!std::isfinite(values[i])) {
      refuse(name, "finite numbers", text_of(values[i], " at position ", i));
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
