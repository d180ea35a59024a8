// SPDX-License-Identifier: MIT
#pragma once

// Checks of arguments, for the head of a public function, before any work is done.
//
// Each takes the argument's name first and throws std::invalid_argument (ValueError in Python) with
// a message of one style: "data: expected 120 values, one per location, got 118". They are for what
// would otherwise read outside memory, divide by zero, hang or give noise; nothing that has a
// defined result is refused.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/location.hpp"

namespace gravelox {

/// Throws "<name>: expected <expected>, got <got>", for what none of the checks below says.
[[noreturn]] void refuse(std::string_view name, const std::string& expected,
                         const std::string& got);

/// The same for a number, as streams print it: six digits, and an exponent where it is shorter.
[[noreturn]] void refuse(std::string_view name, const std::string& expected, double got);

/// "nx x ny x nz", for messages about grids and arrays.
std::string text_of_sizes(long long nx, long long ny, long long nz);

/// `size` values where `expected` are wanted; `per` says one for each of what ("location").
void check_same_size(std::string_view name, std::size_t size, std::size_t expected,
                     std::string_view per);

/// At least one value.
void check_not_empty(std::string_view name, std::size_t size);

/// A number above 0 and finite.
void check_positive(std::string_view name, double value);

/// A whole number of at least `least`.
void check_at_least(std::string_view name, long long value, long long least);

/// An index in 0..size-1.
void check_index(std::string_view name, long long index, std::size_t size);

/// Any number, infinities included.
void check_not_nan(std::string_view name, double value);

/// No NaN and no infinity; the message names the first offending position.
void check_finite(std::string_view name, double value);
void check_finite(std::string_view name, const location& value);
void check_finite(std::string_view name, std::span<const double> values);
void check_finite(std::string_view name, const location_list& values);

}  // namespace gravelox
