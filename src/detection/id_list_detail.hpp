// SPDX-License-Identifier: MIT
#pragma once

// Neighbours that are kept for many points at once.

#include <cstdint>
#include <vector>

namespace gravelox::detail {

/// Ids in a width that holds each one of a search. An id takes no more than a double, even in a
/// list that doubles as it grows.
using id_list = std::vector<std::uint32_t>;

}  // namespace gravelox::detail
