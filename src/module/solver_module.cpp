// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <utility>
#include <vector>

#include "language/expression_solver.hpp"
#include "module/families.hpp"
#include "module/python_callback.hpp"
#include "module/solver_docs.hpp"

namespace gravelox {

namespace {

using py::arg;

bool truth_of(const py::object& result) {
  const int truth = PyObject_IsTrue(result.ptr());
  if (truth < 0) throw py::error_already_set();
  return truth != 0;
}

template <typename Values>
ast::validation<Values> validation_of(const py::object& validation_cb) {
  if (validation_cb.is_none()) return nullptr;
  return [callback = python_callback(validation_cb, "validation_cb")](const Values& values) {
    return callback(truth_of, values);
  };
}

template <typename Problem>
auto solve(std::vector<ast::FunctionPtr<jet>> costs, std::vector<ast::VariablePtr<jet>> variables,
           typename Problem::bounds boundary, int n_iterations, double cauchy_loss, int n_threads,
           bool debug, const py::object& validation_cb) {
  using values = typename Problem::values;
  const Problem problem{std::move(costs), std::move(variables), std::move(boundary)};
  ast::solution<values> result = ast::solve(problem, {n_iterations, cauchy_loss, n_threads, debug},
                                            validation_of<values>(validation_cb));
  return std::make_pair(std::move(result.values), result.final_cost);
}

template <typename Problem>
void bind_solve(py::module_& m, const char* doc) {
  m.def("solve", &solve<Problem>, arg("costs"), arg("variables"), arg("boundary"),
        arg("n_iterations") = 1000, arg("cauchy_loss") = 0.0, arg("n_threads") = 0,
        arg("debug") = false, arg("validation_cb") = py::none(), doc);
}

}  // namespace

void register_ceres_module(py::module_& m) {
  py::module_ ceres = m.def_submodule("ceres");
  bind_solve<ast::scalar_problem>(ceres, docs::solve_scalars);
  py::module_ vec = ceres.def_submodule("vec");
  bind_solve<ast::vector_problem>(vec, docs::solve_vectors);
}

}  // namespace gravelox
