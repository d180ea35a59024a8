// SPDX-License-Identifier: MIT
#pragma once

// A check for sizes that a caller can ask for and no machine can hold: the system grants memory
// that it does not have, and ends the process when it is used.

#include <array>
#include <string_view>

namespace gravelox {

/// Throws std::invalid_argument where `n_arrays` arrays of doubles of these sizes (none below 1)
/// need more than the machine's memory; the message tells the sizes.
void check_grid_memory(std::string_view name, const std::array<int, 3>& sizes, double n_arrays);

/// The same for that many doubles, which an argument asks for.
void check_memory(std::string_view name, double n_doubles);

}  // namespace gravelox
