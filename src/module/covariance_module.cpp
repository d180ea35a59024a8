// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/covariance_docs.hpp"
#include "module/families.hpp"
#include "spatial/spatial_function.hpp"
#include "variography/cov_computer.hpp"
#include "variography/covariance.hpp"
#include "variography/covariance_generator.hpp"

namespace gravelox {

namespace {

using py::arg;

template <covariance_type type>
Kernel kernel_of(const py::object& /*cls*/) {
  return Kernel(type);
}

template <covariance_type type>
Covariance structure_of(double sill, const Ellipsoid& ellipsoid) {
  return {type, sill, ellipsoid};
}

SpatialFunction covariance_function(const std::vector<Covariance>& covs) {
  return create_cov_computer(covs);
}

void bind_kernel(py::module_& m) {
  py::class_<Kernel>(m, "Kernel", docs::kernel)
      .def("__call__", &Kernel::operator(), arg("h"), docs::kernel_call)
      .def_property_readonly_static("spherical", &kernel_of<covariance_type::spherical>,
                                    docs::kernel_spherical)
      .def_property_readonly_static("gaussian", &kernel_of<covariance_type::gaussian>,
                                    docs::kernel_gaussian)
      .def_property_readonly_static("exponential", &kernel_of<covariance_type::exponential>,
                                    docs::kernel_exponential);
}

void bind_covariance(py::module_& m) {
  py::class_<Covariance>(m, "Covariance", docs::covariance)
      .def_static("spherical", &structure_of<covariance_type::spherical>, arg("sill"),
                  arg("ellipsoid"), docs::covariance_spherical)
      .def_static("gaussian", &structure_of<covariance_type::gaussian>, arg("sill"),
                  arg("ellipsoid"), docs::covariance_gaussian)
      .def_static("exponential", &structure_of<covariance_type::exponential>, arg("sill"),
                  arg("ellipsoid"), docs::covariance_exponential)
      .def_static("nugget", &Covariance::nugget, arg("sill"), docs::covariance_nugget)
      .def(
          "type", [](const Covariance& cov) { return to_text(cov.type); }, docs::covariance_type)
      .def(
          "ellipsoid", [](const Covariance& cov) { return cov.ellipsoid; },
          docs::covariance_ellipsoid)
      .def(
          "sill", [](const Covariance& cov) { return cov.sill; }, docs::covariance_sill)
      .def("__call__", &Covariance::operator(), arg("h"), docs::covariance_call);
}

}  // namespace

void register_covariance_module(py::module_& m) {
  bind_kernel(m);
  bind_covariance(m);
  m.def("covariance_computer", &covariance_function, arg("covs"), docs::covariance_computer);
  m.def("generate_covariances", &generate_covariances, arg("ellipsoid"), arg("n_kernels"),
        arg("cov_kernel"), arg("n_covs"), arg("seed"), arg("delta_angle"), arg("min_str_range"),
        arg("max_str_range"), arg("min_sill"), arg("max_sill"), docs::generate_covariances);
}

}  // namespace gravelox
