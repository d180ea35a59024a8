// SPDX-License-Identifier: MIT
#pragma once

// Checks of matrices, for the head of a public function.

#include <Eigen/Core>
#include <string_view>

namespace gravelox {

/// Throws std::invalid_argument, for an argument of this name, without rows or columns, and for an
/// element that is not finite.
void check_matrix(std::string_view name, const Eigen::Ref<const Eigen::MatrixXd>& matrix);

}  // namespace gravelox
