// SPDX-License-Identifier: MIT
#pragma once

// Rotations of data in any number of dimensions, from their singular value decomposition or at
// random.

#include <Eigen/Core>
#include <cstdint>
#include <tuple>

#include "common/random.hpp"

namespace gravelox {

/// Scaled singular values, V, U and singular values of A, thin.
using svd_decomposition =
    std::tuple<Eigen::VectorXd, Eigen::MatrixXd, Eigen::MatrixXd, Eigen::VectorXd>;

/// A = U diag(s) V^T. The scaled values are s c / sqrt(r) for A of r rows and c columns, or s c /
/// sqrt(r c) with is_surface. Throws std::invalid_argument for an empty A and for elements that are
/// not finite.
svd_decomposition compute_svd_decomposition(const Eigen::MatrixXd& A, bool is_surface = false);

using rotation_set = std::tuple<Eigen::MatrixXd, Eigen::MatrixXd, Eigen::MatrixXd, Eigen::MatrixXd>;

/// V D2, D1 V^T, D2 V^T and V D1, D2 being the diagonal matrix of the scaled singular values and D1
/// its inverse; ones stand in both for values below 1e-30, and for all of them with is_ppmt. Throws
/// std::invalid_argument as compute_svd_decomposition does and for fewer rows than columns.
rotation_set compute_optimum_rotation(const Eigen::MatrixXd& A, bool is_surface = false,
                                      bool is_ppmt = false);

/// The orthogonal factor of an N by N matrix of standard normals, drawn row by row (Stewart, 1980);
/// it may be a reflection. Throws std::invalid_argument for an N below 1 or beyond the memory.
Eigen::MatrixXd create_random_orthogonal_matrix(int N, std::int64_t seed);

/// The same from an engine, for an N that fits.
Eigen::MatrixXd draw_orthogonal_matrix(Eigen::Index n, random_engine& engine);

}  // namespace gravelox
