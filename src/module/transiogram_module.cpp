// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <memory>
#include <string>
#include <vector>

#include "language/markov_chain.hpp"
#include "language/transiogram.hpp"
#include "module/families.hpp"
#include "module/language_types.hpp"
#include "module/python_callback.hpp"
#include "module/transiogram_docs.hpp"

namespace gravelox {

namespace {

using py::arg;

template <number T>
using shared_transiogram = std::shared_ptr<AbstractTransiogram<T>>;

/// A transition function in Python.
template <number T>
struct python_kernel {
  python_callback callback;

  T operator()(const JetList<T>& u, const JetList<T>& v) const {
    return callback(&to_number<T>, u, v);
  }
};

template <number T>
shared_transiogram<T> create_transiogram(
    const std::vector<std::vector<py::object>>& kernel_matrix) {
  typename AbstractTransiogram<T>::kernel_table kernels;
  for (const std::vector<py::object>& row : kernel_matrix) {
    kernels.emplace_back();
    for (const py::object& callable : row) {
      kernels.back().push_back(python_kernel<T>{python_callback(callable, "kernel_matrix")});
    }
  }
  return std::make_shared<AbstractTransiogram<T>>(std::move(kernels));
}

/// The table of a wrapper, once there is one: the collector may come by before.
template <number T>
AbstractTransiogram<T>* table_of(PyObject* self) {
  auto holder = reinterpret_cast<py::detail::instance*>(self)->get_value_and_holder();
  if (!holder.holder_constructed()) return nullptr;
  return static_cast<AbstractTransiogram<T>*>(holder.value_ptr());
}

template <number T>
int traverse(PyObject* self, visitproc visit, void* arg) {
#if PY_VERSION_HEX >= 0x03090000
  Py_VISIT(Py_TYPE(self));
#endif
  const AbstractTransiogram<T>* table = table_of<T>(self);
  if (table == nullptr) return 0;
  for (const auto& row : table->kernels()) {
    for (const auto& kernel : row) {
      const auto* python = kernel.template target<python_kernel<T>>();
      if (python != nullptr) Py_VISIT(python->callback.object());
    }
  }
  return 0;
}

template <number T>
int clear(PyObject* self) {
  if (AbstractTransiogram<T>* table = table_of<T>(self)) table->clear();
  return 0;
}

/// Callables may refer back to their table: Python's collector finds such cycles.
template <number T>
void take_part_in_collection(PyHeapTypeObject* heap_type) {
  PyTypeObject& type = heap_type->ht_type;
  type.tp_flags |= Py_TPFLAGS_HAVE_GC;
  type.tp_traverse = &traverse<T>;
  type.tp_clear = &clear<T>;
}

template <number T>
UnconditionalSampler<T> default_unconditional(const shared_transiogram<T>& transiogram) {
  return UnconditionalSampler<T>::Default(transiogram);
}

template <number T>
ConditionalSampler<T> default_conditional(const shared_transiogram<T>& transiogram) {
  return ConditionalSampler<T>::Default(transiogram);
}

template <number T>
std::vector<int> simulate_classes(const location_list& target_locs, const location_list& data_locs,
                                  const std::vector<int>& data_values,
                                  const shared_transiogram<T>& transiogram,
                                  const Ellipsoid& search_ani, double r, int knn, int n_previous,
                                  int seed) {
  return markov_chain_simulation<T>(target_locs, data_locs, data_values, transiogram, search_ani,
                                    {r, knn, n_previous}, seed);
}

template <number T>
void register_transiogram(py::module_& m) {
  using Table = AbstractTransiogram<T>;
  using V = JetList<T>;
  py::class_<Table, shared_transiogram<T>> table(
      m, "Transiogram", py::custom_type_setup(&take_part_in_collection<T>), docs::transiogram);
  m.attr("TransiogramPtr") = table;
  table.def(py::init(&create_transiogram<T>), arg("kernel_matrix"), docs::transiogram_init)
      .def(py::init<const ast::VariablePtr<T>&, const ast::VariablePtr<T>&,
                    const std::vector<std::vector<ast::ExpressionPtr<T>>>&>(),
           arg("class_u"), arg("class_v"), arg("kernels"), docs::transiogram_init_of_expressions)
      .def("__call__",
           py::overload_cast<int, int, const V&, const V&>(&Table::operator(), py::const_),
           arg("class_u"), arg("class_v"), arg("u"), arg("v"), docs::transiogram_entry)
      .def("__call__", py::overload_cast<int, const V&, const V&>(&Table::operator(), py::const_),
           arg("class_u"), arg("u"), arg("v"), docs::transiogram_row)
      .def("__call__", py::overload_cast<const V&, const V&>(&Table::operator(), py::const_),
           arg("u"), arg("v"), docs::transiogram_table);
}

/// The names of a class and of its shared pointer, which is what scripts hold.
template <typename Sampler>
py::class_<Sampler> declare_sampler(py::module_& m, const std::string& name, const char* doc) {
  const std::string pointer_name = name + "Ptr";
  py::class_<Sampler> sampler(m, pointer_name.c_str(), doc);
  sampler.attr("__name__") = name;
  sampler.attr("__qualname__") = name;
  return sampler;
}

template <number T>
void register_markov(py::module_& m) {
  auto unconditional = declare_sampler<UnconditionalSampler<T>>(m, "UnconditionalSampler",
                                                                docs::unconditional_sampler);
  auto conditional =
      declare_sampler<ConditionalSampler<T>>(m, "ConditionalSampler", docs::conditional_sampler);
  m.attr("UnconditionalSampler") = unconditional;
  m.attr("ConditionalSampler") = conditional;
  const py::keep_alive<0, 1> with_transiogram;
  const py::arg transiogram = arg("transiogram").none(false);
  unconditional.def_static("Default", &default_unconditional<T>, transiogram, with_transiogram,
                           docs::unconditional_sampler_default);
  conditional.def_static("Default", &default_conditional<T>, transiogram, with_transiogram,
                         docs::conditional_sampler_default);
  m.def("Default", &default_unconditional<T>, transiogram, with_transiogram,
        docs::unconditional_sampler_default);
  m.def("simulation", &simulate_classes<T>, arg("target_locs"), arg("data_locs"),
        arg("data_values"), transiogram, arg("search_ani"), arg("r") = -1.0, arg("knn") = 32,
        arg("n_previous") = 32, arg("seed") = 141412, docs::simulation);
}

}  // namespace

void register_transiogram_module(py::module_& m) {
  py::module_ transiogram = m.def_submodule("transiogram");
  register_transiogram<double>(transiogram);
  py::module_ jets = transiogram.def_submodule("jet");
  register_transiogram<jet>(jets);
}

void register_markov_module(py::module_& m) {
  py::module_ markov_chain = m.def_submodule("markov_chain");
  register_markov<double>(markov_chain);
  py::module_ jets = markov_chain.def_submodule("jet");
  register_markov<jet>(jets);
}

}  // namespace gravelox
