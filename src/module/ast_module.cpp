// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <memory>
#include <string>
#include <utility>

#include "language/elementary.hpp"
#include "language/function.hpp"
#include "language/operators.hpp"
#include "module/ast_docs.hpp"
#include "module/families.hpp"
#include "module/language_types.hpp"

namespace gravelox {

namespace {

using py::arg;

template <typename Node, typename... Bases>
using node_class = py::class_<Node, Bases..., std::shared_ptr<Node>>;

/// The classes of one number type: all are declared before any method, whose signature may name
/// them.
template <number T>
struct ast_classes {
  node_class<ast::Expression<T>> expression;
  node_class<ast::Variable<T>, ast::Expression<T>> variable;
  node_class<ast::Value<T>, ast::Expression<T>> value;
  node_class<ast::Transformation<T>, ast::Expression<T>> transformation;
  node_class<ast::Kernel<T>, ast::Expression<T>> kernel;
  node_class<ast::Function<T>, ast::Expression<T>> function;
  py::class_<ast::ScalarFunction<T>> scalar_function;
  py::class_<ast::TransFunction<T>> trans_function;
  py::class_<ast::KernelFunction<T>> kernel_function;
  py::class_<ast::AbstractScalarCost<T>> scalar_cost;

  explicit ast_classes(py::module_& m)
      : expression(m, "Expression", docs::expression),
        variable(m, "Variable", docs::variable),
        value(m, "Value", docs::value),
        transformation(m, "Transformation", docs::transformation),
        kernel(m, "Kernel", docs::kernel),
        function(m, "Function", docs::function),
        scalar_function(m, "ScalarFunction", docs::scalar_function),
        trans_function(m, "TransFunction", docs::trans_function),
        kernel_function(m, "KernelFunction", docs::kernel_function),
        scalar_cost(m, "ScalarCost", docs::scalar_cost) {
    // Scripts hold nodes by shared pointers: those have the class's own name and another one.
    m.attr("ExpressionPtr") = expression;
    m.attr("VariablePtr") = variable;
    m.attr("ValuePtr") = value;
    m.attr("TransformationPtr") = transformation;
    m.attr("KernelPtr") = kernel;
    m.attr("FunctionPtr") = function;
  }
};

template <number T>
void bind_evaluation(node_class<ast::Expression<T>>& expression) {
  using E = ast::Expression<T>;
  using V = JetList<T>;
  expression
      .def_property_readonly(
          "type", [](const E& e) { return static_cast<int>(e.type()); }, docs::expression_type)
      .def_property_readonly(
          "variable_type_name", [](const E& e) { return name_of(e.kind()); },
          docs::expression_kind_name)
      .def_property_readonly(
          "object_type_name", [](const E& e) { return name_of(e.type()); },
          docs::expression_type_name)
      .def_property_readonly(
          "vec", [](const E& e) { return e.vec(); }, docs::expression_vec)
      .def_property_readonly(
          "scalar", [](const E& e) { return e.scalar(); }, docs::expression_scalar)
      .def("print", &E::print, docs::expression_print)
      .def(
          "eval", [](E& e) { return T(e.eval()); }, docs::expression_eval)
      .def(
          "eval", [](E& e, const scalar_argument<T>& scalar) { return T(e.eval(scalar.value)); },
          arg("scalar"), docs::expression_eval_scalar)
      .def(
          "eval_vector", [](E& e) { return V(e.eval_vector()); }, docs::expression_eval_vector)
      .def(
          "eval_vector", [](E& e, const V& vector) { return V(e.eval_vector(vector)); },
          arg("vector"), docs::expression_eval_vector_of);
}

template <number T, ast::arithmetic operation, bool is_reflected>
ast::TransformationPtr<T> with_node(const ast::ExpressionPtr<T>& self,
                                    const ast::ExpressionPtr<T>& x) {
  return is_reflected ? ast::combine(operation, x, self) : ast::combine(operation, self, x);
}

template <number T, ast::arithmetic operation, bool is_reflected>
ast::TransformationPtr<T> with_scalar(const ast::ExpressionPtr<T>& self,
                                      const scalar_argument<T>& x) {
  return with_node<T, operation, is_reflected>(self, std::make_shared<ast::Value<T>>(x.value));
}

template <number T, ast::arithmetic operation, bool is_reflected>
ast::TransformationPtr<T> with_vector(const ast::ExpressionPtr<T>& self, const JetList<T>& x) {
  return with_node<T, operation, is_reflected>(self, std::make_shared<ast::Value<T>>(x));
}

/// One operator, with a node, a number or a vector on its other side.
template <number T, ast::arithmetic operation, bool is_reflected>
void bind_operator(node_class<ast::Expression<T>>& expression, const char* name) {
  expression
      .def(name, &with_node<T, operation, is_reflected>, py::is_operator(), arg("x"),
           docs::expression_with_node)
      .def(name, &with_scalar<T, operation, is_reflected>, py::is_operator(), arg("x"),
           docs::expression_with_scalar)
      .def(name, &with_vector<T, operation, is_reflected>, py::is_operator(), arg("x"),
           docs::expression_with_vector);
}

template <number T>
void bind_arithmetic(node_class<ast::Expression<T>>& expression) {
  using ast::arithmetic;
  bind_operator<T, arithmetic::sum, false>(expression, "__add__");
  bind_operator<T, arithmetic::sum, true>(expression, "__radd__");
  bind_operator<T, arithmetic::difference, false>(expression, "__sub__");
  bind_operator<T, arithmetic::difference, true>(expression, "__rsub__");
  bind_operator<T, arithmetic::product, false>(expression, "__mul__");
  bind_operator<T, arithmetic::product, true>(expression, "__rmul__");
  bind_operator<T, arithmetic::quotient, false>(expression, "__truediv__");
  bind_operator<T, arithmetic::quotient, true>(expression, "__rtruediv__");
  // With a numpy scalar or array on the left the reflected operators are asked.
  expression.attr("__array_priority__") = 1000;
}

template <number T>
void bind_leaves(ast_classes<T>& classes) {
  using Variable = ast::Variable<T>;
  classes.variable
      .def(py::init<std::string, scalar_argument<T>>(), arg("name"), arg("scalar"),
           docs::variable_init_scalar)
      .def(py::init<std::string, JetList<T>>(), arg("name"), arg("vector"),
           docs::variable_init_vector)
      .def(py::init<std::string, const ast::ExpressionPtr<T>&>(), arg("name"), arg("expression"),
           docs::variable_init_expression)
      .def_property_readonly("name", &Variable::name, docs::variable_name)
      .def_property_readonly(
          "type_name", [](const Variable& x) { return name_of(x.type()); },
          docs::variable_type_name);
  classes.value.def(py::init<scalar_argument<T>>(), arg("scalar"), docs::value_init_scalar)
      .def(py::init<JetList<T>>(), arg("vector"), docs::value_init_vector);
}

template <number T>
ast::FunctionPtr<T> make_function(std::vector<ast::VariablePtr<T>> args, ast::ExpressionPtr<T> l) {
  return std::make_shared<ast::Function<T>>(std::move(args), std::move(l));
}

/// A function of one argument takes a vector whole, one of several by its elements.
template <number T>
ast::TransformationPtr<T> compose_with_vector(const ast::FunctionPtr<T>& function,
                                              const JetList<T>& x) {
  std::vector<ast::ExpressionPtr<T>> constants;
  if (function->args().size() == 1) {
    constants.push_back(std::make_shared<ast::Value<T>>(x));
  } else {
    for (const T& element : x) constants.push_back(std::make_shared<ast::Value<T>>(element));
  }
  return ast::compose(function, std::move(constants));
}

template <number T>
void bind_function(ast_classes<T>& classes) {
  using F = ast::FunctionPtr<T>;
  classes.function
      .def_static("Scalar", &make_function<T>, arg("args"), arg("l"), docs::function_make)
      .def_static("Vector", &make_function<T>, arg("args"), arg("l"), docs::function_make)
      .def(
          "ScalarFunction", [](const F& f) { return ast::ScalarFunction<T>(f); },
          docs::function_scalar_function)
      .def(
          "Transformation", [](const F& f) { return ast::TransFunction<T>(f); },
          docs::function_transformation)
      .def(
          "Kernel", [](const F& f) { return ast::KernelFunction<T>(f); }, docs::function_kernel)
      .def("__call__", &ast::compose<T>, arg("args"), docs::function_call)
      .def(
          "__call__",
          [](const F& f, const ast::ExpressionPtr<T>& x) { return ast::compose<T>(f, {x}); },
          arg("x"), docs::function_call_expression)
      .def("__call__", &compose_with_vector<T>, arg("x"), docs::function_call_vector);
}

template <number T>
void bind_compiled(ast_classes<T>& classes) {
  using F = ast::FunctionPtr<T>;
  classes.scalar_function.def("__call__", &ast::ScalarFunction<T>::operator(), arg("args"),
                              docs::scalar_function_call);
  classes.trans_function.def("__call__", &ast::TransFunction<T>::operator(), arg("args"),
                             docs::trans_function_call);
  classes.kernel_function.def("__call__", &ast::KernelFunction<T>::operator(), arg("args"),
                              docs::kernel_function_call);
  classes.kernel.def(py::init([](const F& function) {
                       return std::make_shared<ast::Kernel<T>>(ast::KernelFunction<T>(function));
                     }),
                     arg("function"), docs::kernel_init);
  classes.scalar_cost.def(py::init<const F&>(), arg("cost"), docs::scalar_cost_init)
      .def("__call__", &ast::ScalarFunction<T>::operator(), arg("x"), docs::scalar_cost_call);
}

template <number T>
void bind_functions_of_expressions(py::module_& m) {
  using E = ast::ExpressionPtr<T>;
  for (const elementary_function<T>& function : elementary_functions<T>()) {
    m.def(
        function.name, [f = function.apply](const E& x) { return ast::apply(f, x); }, arg("x"),
        docs::expression_function);
  }
  m.def("pow", &ast::pow<T>, arg("x"), arg("p"), docs::expression_pow);
}

}  // namespace

template <number T>
void register_ast_module(py::module_& m) {
  ast_classes<T> classes(m);
  bind_evaluation<T>(classes.expression);
  bind_arithmetic<T>(classes.expression);
  bind_leaves<T>(classes);
  bind_function<T>(classes);
  bind_compiled<T>(classes);
  bind_functions_of_expressions<T>(m);
}

template void register_ast_module<double>(py::module_& m);
template void register_ast_module<jet>(py::module_& m);

}  // namespace gravelox
