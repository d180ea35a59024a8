// SPDX-License-Identifier: MIT
#include "language/matrix_algebra.hpp"

#include <Eigen/LU>
#include <Eigen/SVD>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

template <number T>
using dense = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic>;

template <number T>
dense<T> to_dense(const JetMatrix<T>& m) {
  dense<T> result(to_index(m.nrows()), to_index(m.ncols()));
  for (std::size_t i = 0; i < m.nrows(); ++i) {
    for (std::size_t j = 0; j < m.ncols(); ++j) result(to_index(i), to_index(j)) = m(i, j);
  }
  return result;
}

template <number T>
JetMatrix<T> from_dense(const dense<T>& m) {
  JetMatrix<T> result(to_size(m.rows()), to_size(m.cols()));
  for (std::size_t i = 0; i < result.nrows(); ++i) {
    for (std::size_t j = 0; j < result.ncols(); ++j) {
      result(i, j) = m(to_index(i), to_index(j));
    }
  }
  return result;
}

template <number T>
dense<T> to_column(const JetList<T>& x) {
  dense<T> result(to_index(x.size()), 1);
  for (std::size_t i = 0; i < x.size(); ++i) result(to_index(i), 0) = x[i];
  return result;
}

template <number T>
JetList<T> from_column(const dense<T>& m) {
  JetList<T> result(to_size(m.rows()));
  for (std::size_t i = 0; i < result.size(); ++i) result[i] = m(to_index(i), 0);
  return result;
}

template <number T>
void check_square(const JetMatrix<T>& m) {
  if (m.nrows() == m.ncols()) return;
  refuse("matrix", "a square one", text_of(m.nrows(), " x ", m.ncols()));
}

/// The decomposition of a matrix of at least one row.
template <number T>
Eigen::PartialPivLU<dense<T>> decompose(const JetMatrix<T>& m) {
  return Eigen::PartialPivLU<dense<T>>(to_dense(m));
}

/// A thin decomposition of values, and what its differential needs.
struct decomposition {
  MatrixXd u;
  VectorXd s;
  MatrixXd v;
  MatrixXd gap;        // 1 / (s_j^2 - s_i^2), 0 for equal ones
  VectorXd inverse_s;  // 0 for a singular value of 0
};

/// The library decomposes neither empty matrices nor what is not finite: no singular values, or
/// NaN.
decomposition factors_of_values(const MatrixXd& values) {
  const Index n = std::min(values.rows(), values.cols());
  if (n > 0 && values.allFinite()) {
    const Eigen::JacobiSVD<MatrixXd> svd(values, Eigen::ComputeThinU | Eigen::ComputeThinV);
    return {svd.matrixU(), svd.singularValues(), svd.matrixV(), {}, {}};
  }
  const double nan = std::numeric_limits<double>::quiet_NaN();
  return {MatrixXd::Constant(values.rows(), n, nan),
          VectorXd::Constant(n, nan),
          MatrixXd::Constant(values.cols(), n, nan),
          {},
          {}};
}

decomposition decompose_values(const MatrixXd& values) {
  decomposition result = factors_of_values(values);
  const VectorXd& s = result.s;
  const double rounding = s.size() > 0 ? s[0] * std::numeric_limits<double>::epsilon() : 0.0;
  result.gap.setZero(s.size(), s.size());
  result.inverse_s.setZero(s.size());
  for (Index i = 0; i < s.size(); ++i) {
    if (s[i] > rounding) result.inverse_s[i] = 1.0 / s[i];
    for (Index j = 0; j < s.size(); ++j) {
      const double difference = (s[j] - s[i]) * (s[j] + s[i]);
      if (std::abs(s[j] - s[i]) > rounding) result.gap(i, j) = 1.0 / difference;
    }
  }
  return result;
}

struct differential {
  MatrixXd du;
  VectorXd ds;
  MatrixXd dv;
};

/// Of the decomposition, for a change da of the matrix. With P = u^T da v the singular values
/// change by the diagonal of P; singular vectors turn among themselves by its other elements, and
/// out of their span by what of da lies outside.
differential differentiate(const decomposition& d, const MatrixXd& da) {
  const MatrixXd p = d.u.transpose() * da * d.v;
  const auto s = d.s.asDiagonal();
  const MatrixXd left = p * s + s * p.transpose();
  const MatrixXd right = s * p + p.transpose() * s;
  const MatrixXd outside_u = da * d.v - d.u * p;
  const MatrixXd outside_v = da.transpose() * d.u - d.v * p.transpose();
  return {d.u * d.gap.cwiseProduct(left) + outside_u * d.inverse_s.asDiagonal(), p.diagonal(),
          d.v * d.gap.cwiseProduct(right) + outside_v * d.inverse_s.asDiagonal()};
}

dense<double> values_of(const dense<double>& m) { return m; }

dense<double> values_of(const dense<jet>& m) {
  return m.unaryExpr([](const jet& x) { return x.a; });
}

dense<double> partial_of(const dense<jet>& m, int k) {
  return m.unaryExpr([k](const jet& x) { return x.v[k]; });
}

/// Adds derivative k to jets.
void set_partial(dense<jet>& m, int k, const MatrixXd& partial) {
  for (Index j = 0; j < m.cols(); ++j) {
    for (Index i = 0; i < m.rows(); ++i) m(i, j).v[k] = partial(i, j);
  }
}

/// The matrix of cofactors, transposed, of a matrix of any rank.
MatrixXd adjugate(const decomposition& d) {
  VectorXd products = VectorXd::Ones(d.s.size());
  for (Index i = 0; i < d.s.size(); ++i) {
    for (Index j = 0; j < d.s.size(); ++j) {
      if (j != i) products[i] *= d.s[j];
    }
  }
  const double orientation = d.u.determinant() * d.v.determinant();
  return orientation * d.v * products.asDiagonal() * d.u.transpose();
}

/// 0 with its derivatives by Jacobi's formula. Elimination divides by pivots, of which one is 0.
jet singular_determinant(const dense<jet>& m) {
  const MatrixXd cofactors = adjugate(decompose_values(values_of(m))).transpose();
  jet result(0.0);
  for (int k = 0; k < jet::DIMENSION; ++k) {
    result.v[k] = cofactors.cwiseProduct(partial_of(m, k)).sum();
  }
  return result;
}

template <number T>
JetMatrix<T> gram_schmidt(const JetMatrix<T>& m, bool normalized) {
  JetMatrix<T> result = m;
  for (std::size_t i = 0; i < m.nrows(); ++i) {
    JetList<T> row = m[i];
    for (std::size_t j = 0; j < i; ++j) {
      const T square = dot(result[j], result[j]);
      if (square != T(0.0)) row = row - result[j] * T(dot(row, result[j]) / square);
    }
    result.set_row(i, normalized ? normalize(row) : row);
  }
  return result;
}

}  // namespace

template <number T>
JetMatrix<T> operator*(const JetMatrix<T>& a, const JetMatrix<T>& b) {
  check_same_size("matrix", b.nrows(), a.ncols(), "column of the left factor");
  JetMatrix<T> result(a.nrows(), b.ncols());
  for (std::size_t i = 0; i < a.nrows(); ++i) result.set_row(i, a[i] * b);
  return result;
}

template <number T>
JetList<T> operator*(const JetMatrix<T>& a, const JetList<T>& x) {
  check_same_size("vector", x.size(), a.ncols(), "column of the matrix");
  JetList<T> result;
  for (const JetList<T>& row : a.rows()) result.push_back(dot(row, x));
  return result;
}

template <number T>
JetList<T> operator*(const JetList<T>& x, const JetMatrix<T>& a) {
  check_same_size("vector", x.size(), a.nrows(), "row of the matrix");
  JetList<T> result(a.ncols());
  for (std::size_t i = 0; i < a.nrows(); ++i) {
    for (std::size_t j = 0; j < a.ncols(); ++j) result[j] += x[i] * a(i, j);
  }
  return result;
}

template <number T>
JetMatrix<T> inverse(const JetMatrix<T>& m) {
  check_square(m);
  if (m.nrows() == 0) return m;
  return from_dense<T>(decompose(m).inverse());
}

template <number T>
T determinant(const JetMatrix<T>& m) {
  check_square(m);
  if (m.nrows() == 0) return T(1.0);
  const Eigen::PartialPivLU<dense<T>> lu = decompose(m);
  if constexpr (std::same_as<T, jet>) {
    if ((values_of(dense<T>(lu.matrixLU().diagonal())).array() == 0.0).any()) {
      return singular_determinant(to_dense(m));
    }
  }
  return lu.determinant();
}

template <number T>
JetList<T> solve(const JetMatrix<T>& m, const JetList<T>& b) {
  check_square(m);
  check_same_size("b", b.size(), m.nrows(), "row of the matrix");
  return b.empty() ? b : from_column<T>(decompose(m).solve(to_column(b)));
}

template <number T>
JetMatrix<T> solve(const JetMatrix<T>& m, const JetMatrix<T>& b) {
  check_square(m);
  check_same_size("b", b.nrows(), m.nrows(), "row of the matrix");
  return b.nrows() == 0 ? b : from_dense<T>(decompose(m).solve(to_dense(b)));
}

template <number T>
svd_factors<T> compute_svd(const JetMatrix<T>& m) {
  const dense<T> matrix = to_dense(m);
  const decomposition values = decompose_values(values_of(matrix));
  dense<T> u = values.u.cast<T>();
  dense<T> s = values.s.cast<T>();
  dense<T> v = values.v.cast<T>();
  if constexpr (std::same_as<T, jet>) {
    for (int k = 0; k < jet::DIMENSION; ++k) {
      const differential change = differentiate(values, partial_of(matrix, k));
      set_partial(u, k, change.du);
      set_partial(s, k, change.ds);
      set_partial(v, k, change.dv);
    }
  }
  return {from_dense<T>(u), from_column<T>(s), from_dense<T>(v)};
}

template <number T>
JetMatrix<T> orthogonalize(const JetMatrix<T>& m) {
  return gram_schmidt(m, false);
}

template <number T>
JetMatrix<T> orthonormalize(const JetMatrix<T>& m) {
  return gram_schmidt(m, true);
}

#define GRAVELOX_INSTANTIATE(T)                                              \
  template JetMatrix<T> operator*(const JetMatrix<T>&, const JetMatrix<T>&); \
  template JetList<T> operator*(const JetMatrix<T>&, const JetList<T>&);     \
  template JetList<T> operator*(const JetList<T>&, const JetMatrix<T>&);     \
  template JetMatrix<T> inverse(const JetMatrix<T>&);                        \
  template T determinant(const JetMatrix<T>&);                               \
  template JetList<T> solve(const JetMatrix<T>&, const JetList<T>&);         \
  template JetMatrix<T> solve(const JetMatrix<T>&, const JetMatrix<T>&);     \
  template svd_factors<T> compute_svd(const JetMatrix<T>&);                  \
  template JetMatrix<T> orthogonalize(const JetMatrix<T>&);                  \
  template JetMatrix<T> orthonormalize(const JetMatrix<T>&)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox
