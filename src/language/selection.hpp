// SPDX-License-Identifier: MIT
#pragma once

// Parts of vectors and matrices, by positions that have been checked.

#include <cstddef>
#include <vector>

#include "language/jet_list.hpp"
#include "language/jet_matrix.hpp"

namespace gravelox {

using positions = std::vector<std::size_t>;

/// The elements at the positions, in their order.
template <number T>
JetList<T> select(const JetList<T>& x, const positions& elements);

/// Writes one value to all positions, or a value to each; std::invalid_argument for another number
/// of values.
template <number T>
void fill(JetList<T>& x, const positions& elements, const T& value);
template <number T>
void replace(JetList<T>& x, const positions& elements, const JetList<T>& values);

/// Whole rows, or the elements where rows and columns meet.
template <number T>
JetMatrix<T> select_rows(const JetMatrix<T>& m, const positions& rows);
template <number T>
JetMatrix<T> select(const JetMatrix<T>& m, const positions& rows, const positions& columns);

}  // namespace gravelox
