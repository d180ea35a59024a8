// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/families.hpp"
#include "module/optimization_docs.hpp"
#include "variography/local_covariances.hpp"

namespace gravelox {

namespace {

using py::arg;

LocalCovariances local_covariances(const location_list& centers,
                                   const std::vector<std::vector<Covariance>>& covariances,
                                   const std::vector<double>& errors) {
  LocalCovariances result{centers, covariances, errors};
  check_local_covariances(result);
  return result;
}

}  // namespace

void register_optimization_module(py::module_& m) {
  place_class<LocalCovariances>(m)
      .def(py::init(&local_covariances), arg("centers"), arg("covariances"), arg("errors"),
           docs::local_covariances_init)
      .def_readwrite("centers", &LocalCovariances::centers, docs::local_covariances_centers)
      .def_readwrite("covariances", &LocalCovariances::covariances,
                     docs::local_covariances_covariances)
      .def_readwrite("errors", &LocalCovariances::errors, docs::local_covariances_errors);
}

}  // namespace gravelox
