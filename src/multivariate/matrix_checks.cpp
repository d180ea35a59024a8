// SPDX-License-Identifier: MIT
#include "multivariate/matrix_checks.hpp"

#include <cmath>

#include "common/checks.hpp"
#include "common/text.hpp"

namespace gravelox {

void check_matrix(std::string_view name, const Eigen::Ref<const Eigen::MatrixXd>& matrix) {
  if (matrix.size() == 0) {
    refuse(name, "at least 1 row and 1 column", text_of(matrix.rows(), " x ", matrix.cols()));
  }
  for (Eigen::Index column = 0; column < matrix.cols(); ++column) {
    for (Eigen::Index row = 0; row < matrix.rows(); ++row) {
      const double value = matrix(row, column);
      if (!std::isfinite(value)) {
        refuse(name, "finite values", text_of(value, " at [", row, ", ", column, "]"));
      }
    }
  }
}

}  // namespace gravelox
