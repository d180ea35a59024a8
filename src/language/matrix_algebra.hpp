// SPDX-License-Identifier: MIT
#pragma once

// Linear algebra of matrices over doubles or jets. Derivatives are carried through all of it.
// Nothing is checked but shapes: a singular matrix gives what its decomposition gives, mostly
// infinities or NaN.

#include "language/jet_list.hpp"
#include "language/jet_matrix.hpp"

namespace gravelox {

/// Products; std::invalid_argument for sizes that do not fit. A vector stands as a column on the
/// right and as a row on the left.
template <number T>
JetMatrix<T> operator*(const JetMatrix<T>& a, const JetMatrix<T>& b);
template <number T>
JetList<T> operator*(const JetMatrix<T>& a, const JetList<T>& x);
template <number T>
JetList<T> operator*(const JetList<T>& x, const JetMatrix<T>& a);

/// By LU with partial pivoting; std::invalid_argument for a matrix that is not square. The
/// determinant of an empty matrix is 1.
template <number T>
JetMatrix<T> inverse(const JetMatrix<T>& m);
template <number T>
T determinant(const JetMatrix<T>& m);

/// The x of m x = b, for one right side or for one in each column. std::invalid_argument for a
/// matrix that is not square or a right side of another length.
template <number T>
JetList<T> solve(const JetMatrix<T>& m, const JetList<T>& b);
template <number T>
JetMatrix<T> solve(const JetMatrix<T>& m, const JetMatrix<T>& b);

/// m = u diag(s) v^T.
template <number T>
struct svd_factors {
  JetMatrix<T> u;
  JetList<T> s;
  JetMatrix<T> v;
};

/// The thin decomposition, singular values descending. Singular vectors of equal singular values
/// turn among themselves without a rule: their derivatives leave those turns out.
template <number T>
svd_factors<T> compute_svd(const JetMatrix<T>& m);

/// Rows made orthogonal from the first on (Gram-Schmidt), without and with normalising. A row that
/// depends on the ones before it becomes zero up to rounding, and normalised it is noise or NaN.
template <number T>
JetMatrix<T> orthogonalize(const JetMatrix<T>& m);
template <number T>
JetMatrix<T> orthonormalize(const JetMatrix<T>& m);

}  // namespace gravelox
