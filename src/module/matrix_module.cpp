// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <utility>

#include "language/matrix_algebra.hpp"
#include "module/algebra_containers.hpp"
#include "module/algebra_docs.hpp"
#include "module/language_types.hpp"

namespace gravelox {

namespace {

using py::arg;
using py::is_operator;

template <number T>
using matrix_class = py::class_<JetMatrix<T>>;

/// A statistic of all elements, and of columns or rows.
template <number T, T (*statistic)(const JetList<T>&)>
void bind_statistic(matrix_class<T>& matrix, const char* name) {
  matrix
      .def(
          name, [](const JetMatrix<T>& m) { return statistic(elements(m)); },
          docs::matrix_statistic)
      .def(
          name, [](const JetMatrix<T>& m, int axis) { return along_axis(statistic, m, axis); },
          arg("axis"), docs::matrix_axis_statistic);
}

template <number T>
void bind_matrix_operators(matrix_class<T>& matrix) {
  using V = JetList<T>;
  using M = JetMatrix<T>;
  using S = scalar_argument<T>;
  const char* by_matrix = docs::matrix_by_matrix;
  const char* by_scalar = docs::matrix_by_scalar;
  const char* product = docs::matrix_product;
  matrix
      .def(
          "__add__", [](const M& a, const M& x) { return a + x; }, is_operator(), arg("x"),
          by_matrix)
      .def(
          "__radd__", [](const M& a, const M& x) { return x + a; }, is_operator(), arg("x"),
          by_matrix)
      .def(
          "__sub__", [](const M& a, const M& x) { return a - x; }, is_operator(), arg("x"),
          by_matrix)
      .def(
          "__rsub__", [](const M& a, const M& x) { return x - a; }, is_operator(), arg("x"),
          by_matrix)
      .def(
          "__mul__", [](const M& a, const M& x) { return a * x; }, is_operator(), arg("x"), product)
      .def(
          "__mul__", [](const M& a, const V& x) { return a * x; }, is_operator(), arg("x"), product)
      .def(
          "__mul__", [](const M& a, const S& x) { return a * x.value; }, is_operator(), arg("x"),
          by_scalar)
      .def(
          "__rmul__", [](const M& a, const M& x) { return x * a; }, is_operator(), arg("x"),
          product)
      .def(
          "__rmul__", [](const M& a, const V& x) { return x * a; }, is_operator(), arg("x"),
          product)
      .def(
          "__rmul__", [](const M& a, const S& x) { return a * x.value; }, is_operator(), arg("x"),
          by_scalar)
      .def(
          "__truediv__", [](const M& a, const S& x) { return a / x.value; }, is_operator(),
          arg("x"), by_scalar);
}

template <number T>
py::tuple svd_tuple(const JetMatrix<T>& m) {
  svd_factors<T> factors = compute_svd(m);
  return py::make_tuple(std::move(factors.u), std::move(factors.s), std::move(factors.v));
}

}  // namespace

template <number T>
void bind_matrix(py::class_<JetMatrix<T>>& matrix) {
  using M = JetMatrix<T>;
  using right_side = const JetList<T>&;
  matrix.def(py::init(&matrix_of_rows<T>), arg("matrix"), docs::matrix_init);
  py::implicitly_convertible<py::sequence, M>();
  bind_matrix_operators<T>(matrix);
  matrix.def("inverse", &inverse<T>, docs::matrix_inverse)
      .def("transpose", &transpose<T>, docs::matrix_transpose)
      .def("determinant", &determinant<T>, docs::matrix_determinant);
  bind_statistic<T, norm<T>>(matrix, "norm");
  matrix.def("orthogonalize", &orthogonalize<T>, docs::matrix_orthogonalize)
      .def("orthonormalize", &orthonormalize<T>, docs::matrix_orthonormalize)
      .def("SVD", &svd_tuple<T>, docs::matrix_svd)
      .def("solve", py::overload_cast<const M&, right_side>(&solve<T>), arg("b"),
           docs::matrix_solve)
      .def("solve", py::overload_cast<const M&, const M&>(&solve<T>), arg("b"), docs::matrix_solve);
  bind_statistic<T, sum<T>>(matrix, "sum");
  bind_statistic<T, mean<T>>(matrix, "mean");
  bind_statistic<T, var<T>>(matrix, "var");
  bind_statistic<T, stddev<T>>(matrix, "stddev");
  matrix.def("nrows", &M::nrows, docs::matrix_sizes)
      .def("ncols", &M::ncols, docs::matrix_sizes)
      .def(
          "shape", [](const M& m) { return py::make_tuple(m.nrows(), m.ncols()); },
          docs::matrix_sizes)
      .def("__len__", &M::nrows, docs::matrix_sizes)
      .def("__getitem__", &get_row<T>, arg("id"), docs::matrix_get_row)
      .def("__setitem__", &set_row<T>, arg("id"), arg("value"), docs::matrix_set_row)
      .def("__getitem__", &get_cell<T>, arg("id"), docs::matrix_get)
      .def("__setitem__", &set_cell<T>, arg("id"), arg("value"), docs::matrix_set)
      .def("__getitem__", &get_rows<T>, arg("id"), docs::matrix_get_rows)
      .def("slice", &rows_between<T>, arg("start"), arg("stop"), docs::matrix_slice)
      .def("slice", &part_between<T>, arg("row_start"), arg("row_stop"), arg("column_start"),
           arg("column_stop"), docs::matrix_slice_both)
      .def("__str__", py::overload_cast<const M&>(&text_of_values<T>), docs::text)
      .def("tolist", py::overload_cast<const M&>(&values_of<T>), docs::tolist)
      .def("__array__", &matrix_array<T>, arg("dtype") = py::none(), arg("copy") = py::none(),
           docs::array)
      .def(
          "__list__", [](const M& m) { return array_of_values(m); }, docs::list_array)
      .def(
          "__iter__", [](const M& m) { return py::iter(py::cast(m.rows())); }, docs::iter);
  if constexpr (std::same_as<T, jet>) {
    matrix.def_property_readonly("partials", &partials_of_matrix, docs::partials);
  }
  stand_above_arrays(matrix);
}

template void bind_matrix<double>(py::class_<JetMatrix<double>>& matrix);
template void bind_matrix<jet>(py::class_<JetMatrix<jet>>& matrix);

}  // namespace gravelox
