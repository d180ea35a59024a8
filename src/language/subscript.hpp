// SPDX-License-Identifier: MIT
#pragma once

// Subscripts of vectors, matrices and tables of the language.

#include <cstddef>

namespace gravelox {

/// Throws std::out_of_range "invalid vector subscript".
void check_subscript(std::size_t i, std::size_t size);

/// The position of a script's index, which counts from the end if it is negative. Throws
/// std::out_of_range "invalid vector subscript".
std::size_t position_of(int index, std::size_t size);

}  // namespace gravelox
