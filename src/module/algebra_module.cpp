// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <array>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "common/text.hpp"
#include "language/elementary.hpp"
#include "module/algebra_containers.hpp"
#include "module/algebra_docs.hpp"
#include "module/families.hpp"
#include "module/language_types.hpp"

namespace gravelox {

namespace {

using py::arg;
using py::is_operator;

template <number T>
using vector_class = py::class_<JetList<T>>;

jet jet_of(double value, const std::vector<double>& partials) {
  check_same_size("partials", partials.size(), jet::DIMENSION, "parameter");
  jet result(value);
  for (int k = 0; k < jet::DIMENSION; ++k) result.v[k] = partials[static_cast<std::size_t>(k)];
  return result;
}

template <number T>
void bind_scalar(py::module_& m, const std::string& name) {
  using P = bound_number<T>;
  using S = scalar_argument<T>;
  py::class_<P> scalar(m, name.c_str(), docs::scalar_class);
  scalar.def(py::init<double>(), arg("value"), docs::scalar_init);
  if constexpr (std::same_as<T, jet>) {
    scalar.def(py::init(&jet_of), arg("value"), arg("partials"), docs::scalar_init_partials);
    py::implicitly_convertible<double, P>();
    py::implicitly_convertible<int, P>();
    py::implicitly_convertible<Real, P>();
  }
  const char* doc = docs::scalar_arithmetic;
  scalar
      .def(
          "__add__", [](const P& a, const S& x) { return T(number_of(a) + x.value); },
          is_operator(), arg("x"), doc)
      .def(
          "__radd__", [](const P& a, const S& x) { return T(x.value + number_of(a)); },
          is_operator(), arg("x"), doc)
      .def(
          "__mul__", [](const P& a, const S& x) { return T(number_of(a) * x.value); },
          is_operator(), arg("x"), doc)
      .def(
          "__rmul__", [](const P& a, const S& x) { return T(x.value * number_of(a)); },
          is_operator(), arg("x"), doc)
      .def(
          "__sub__", [](const P& a, const S& x) { return T(number_of(a) - x.value); },
          is_operator(), arg("x"), doc)
      .def(
          "__rsub__", [](const P& a, const S& x) { return T(x.value - number_of(a)); },
          is_operator(), arg("x"), doc)
      .def(
          "__truediv__", [](const P& a, const S& x) { return T(number_of(a) / x.value); },
          is_operator(), arg("x"), doc)
      .def(
          "__rtruediv__", [](const P& a, const S& x) { return T(x.value / number_of(a)); },
          is_operator(), arg("x"), doc)
      .def(
          "__str__", [](const P& a) { return text_of(value_of(number_of(a))); }, docs::text)
      .def_property_readonly(
          "value", [](const P& a) { return value_of(number_of(a)); }, docs::scalar_value);
  if constexpr (std::same_as<T, jet>) {
    scalar.def_property_readonly("partials", &partials_of_scalar, docs::partials);
  } else {
    scalar.def(
        "__float__", [](const P& a) { return a.value; }, docs::scalar_float);
  }
  stand_above_arrays(scalar);
}

template <number T>
void bind_vector_operators(vector_class<T>& vector) {
  using V = JetList<T>;
  using S = scalar_argument<T>;
  const char* by_vector = docs::vector_by_vector;
  const char* by_scalar = docs::vector_by_scalar;
  vector
      .def(
          "__add__", [](const V& a, const V& x) { return a + x; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__radd__", [](const V& a, const V& x) { return x + a; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__sub__", [](const V& a, const V& x) { return a - x; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__rsub__", [](const V& a, const V& x) { return x - a; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__mul__", [](const V& a, const V& x) { return a * x; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__mul__", [](const V& a, const S& x) { return a * x.value; }, is_operator(), arg("x"),
          by_scalar)
      .def(
          "__rmul__", [](const V& a, const V& x) { return x * a; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__rmul__", [](const V& a, const S& x) { return a * x.value; }, is_operator(), arg("x"),
          by_scalar)
      .def(
          "__truediv__", [](const V& a, const S& x) { return a / x.value; }, is_operator(),
          arg("x"), by_scalar)
      .def(
          "__truediv__", [](const V& a, const V& x) { return a / x; }, is_operator(), arg("x"),
          by_vector)
      .def(
          "__rtruediv__", [](const V& a, const S& x) { return x.value / a; }, is_operator(),
          arg("x"), by_scalar)
      .def(
          "__rtruediv__", [](const V& a, const V& x) { return x / a; }, is_operator(), arg("x"),
          by_vector);
}

template <number T>
void bind_vector(vector_class<T>& vector) {
  using V = JetList<T>;
  vector.def(py::init<std::vector<T>>(), arg("vector"), docs::vector_init);
  py::implicitly_convertible<py::sequence, V>();
  bind_vector_operators<T>(vector);
  vector.def("norm", &norm<T>, docs::vector_norm)
      .def("normalize", &normalize<T>, docs::vector_normalize)
      .def("dot", &dot<T>, arg("x"), docs::vector_dot)
      .def("sum", &sum<T>, docs::vector_statistic)
      .def("mean", &mean<T>, docs::vector_statistic)
      .def("var", &var<T>, docs::vector_statistic)
      .def("stddev", &stddev<T>, docs::vector_statistic)
      .def("size", &V::size, docs::vector_size)
      .def("__len__", &V::size, docs::vector_size)
      .def("__getitem__", &get_element<T>, arg("index"), docs::vector_get)
      .def("__setitem__", &set_element<T>, arg("index"), arg("value"), docs::vector_set)
      .def("__setitem__", &fill_slice<T>, arg("index"), arg("value"), docs::vector_set_slice)
      .def("__setitem__", &set_slice<T>, arg("index"), arg("value"), docs::vector_set_slice_vector)
      .def("__getitem__", &get_slice<T>, arg("index"), docs::vector_get_slice)
      .def("slice", &slice_between<T>, arg("start"), arg("stop"), docs::vector_slice)
      .def("__str__", py::overload_cast<const V&>(&text_of_values<T>), docs::text)
      .def("tolist", py::overload_cast<const V&>(&values_of<T>), docs::tolist)
      .def("__array__", &vector_array<T>, arg("dtype") = py::none(), arg("copy") = py::none(),
           docs::array)
      .def(
          "__list__", [](const V& x) { return array_of_values(x); }, docs::list_array)
      .def(
          "__iter__", [](const V& x) { return py::iter(py::cast(x.values())); }, docs::iter);
  if constexpr (std::same_as<T, jet>) {
    vector.def_property_readonly("partials", &partials_of_vector, docs::partials);
  }
  stand_above_arrays(vector);
}

template <number T>
void bind_elementary_functions(py::module_& m) {
  for (const elementary_function<T>& function : elementary_functions<T>()) {
    const auto f = function.apply;
    m.def(
        function.name, [f](const scalar_argument<T>& x) { return f(x.value); }, arg("x"),
        docs::elementary_scalar);
    m.def(
        function.name, [f](const JetList<T>& x) { return apply(f, x); }, arg("x"),
        docs::elementary_vector);
    m.def(
        function.name, [f](const JetMatrix<T>& x) { return apply(f, x); }, arg("x"),
        docs::elementary_matrix);
  }
}

template <number T>
void bind_makers(py::module_& m) {
  using V = JetList<T>;
  using M = JetMatrix<T>;
  m.def(
      "matrix", [](const M& x) { return x; }, arg("x"), docs::make_matrix);
  m.def("matrix", &repeat<T>, arg("n"), arg("x"), docs::repeat_matrix);
  m.def(
      "vector", [](const V& x) { return x; }, arg("x"), docs::make_vector);
  m.def(
      "value", [](double x) { return bound_number<T>{x}; }, arg("x"), docs::make_value);
  m.def("pow", py::overload_cast<const M&, double>(&gravelox::pow<T>), arg("matrix"), arg("p"),
        docs::pow_matrix);
  m.def(
      "pow", [](int n, const V& vector, double p) { return repeat(n, pow(vector, p)); }, arg("n"),
      arg("vector"), arg("p"), docs::pow_rows);
  m.def("pow", py::overload_cast<const V&, double>(&gravelox::pow<T>), arg("vector"), arg("p"),
        docs::pow_vector);
  m.def("map", &map_elements<T>, arg("x"), arg("f"), docs::map_vector);
  m.def("map", &map_rows<T>, arg("x"), arg("f"), docs::map_matrix);
  m.def(
      "map", [](const V& x, int n, const py::object& f) { return repeat(n, map_elements(x, f)); },
      arg("x"), arg("n"), arg("f"), docs::map_rows);
}

template <number T>
void register_algebra_module(py::module_& m, const std::string& prefix) {
  bind_scalar<T>(m, prefix);
  vector_class<T> vector(m, (prefix + "Vector").c_str(), docs::vector_class);
  py::class_<JetMatrix<T>> matrix(m, (prefix + "Matrix").c_str(), docs::matrix_class);
  bind_vector<T>(vector);
  bind_matrix<T>(matrix);
  bind_elementary_functions<T>(m);
  bind_makers<T>(m);
}

}  // namespace

void register_language_module(py::module_& m) {
  py::module_ jet_module = m.def_submodule("jet");
  py::module_ algebra = m.def_submodule("algebra");
  register_algebra_module<double>(algebra, "Real");
  register_algebra_module<jet>(algebra, "Jet");
  py::module_ jet_ast = jet_module.def_submodule("ast");
  register_ast_module<jet>(jet_ast);
  py::module_ ast_module = m.def_submodule("ast");
  register_ast_module<double>(ast_module);
}

}  // namespace gravelox
