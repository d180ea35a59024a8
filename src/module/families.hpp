// SPDX-License-Identifier: MIT
#pragma once

// The registration of each family of names. The order of the calls in module.cpp and of the names
// within a family are part of the interface: overloads chain in that order.

#include "module/casters.hpp"

#include "common/number.hpp"

namespace gravelox {

void register_frame_module(py::module_& m);

/// The first names of the family of spatial primitives: clusters by angles.
void register_detection_module(py::module_& m);

void register_spatial_module(py::module_& m);
void register_covariance_module(py::module_& m);
void register_grid_module(py::module_& m);
void register_simulation_module(py::module_& m);
void register_distribution_module(py::module_& m);
void register_estimation_module(py::module_& m);
void register_variography_module(py::module_& m);
void register_folds_module(py::module_& m);
void register_optimization_module(py::module_& m);

/// The other names of the family of optimisation, in this order: blends of local models, maps
/// between spaces, distance graphs with geodesics and scaling.
void register_ensembles(py::module_& m);
void register_projections(py::module_& m);
void register_graphs(py::module_& m);

void register_spectra_module(py::module_& m);
void register_rotation_module(py::module_& m);

/// The sub-modules `jet`, `algebra`, `jet.ast` and `ast`.
void register_language_module(py::module_& m);

/// The expressions over one number type.
template <number T>
void register_ast_module(py::module_& m);

void register_ceres_module(py::module_& m);

/// The sub-modules `transiogram` and `markov_chain`, each with its `jet`.
void register_transiogram_module(py::module_& m);
void register_markov_module(py::module_& m);

void register_mixture_module(py::module_& m);
void register_grid_detector_module(py::module_& m);

/// The argument `dhids` of estimators, by default no hole ids.
inline py::arg_v no_dhids() { return {"dhids", std::vector<int>(), "[]"}; }

/// Registers a class before the place of its name: a signature prints the Python name only of a
/// class that is registered. It stays alive until place_class.
template <typename T>
void register_early(py::module_& m, const char* name, const char* doc) {
  py::class_<T>(m, name, doc).inc_ref();
  py::delattr(m, name);
}

/// Puts such a class in its place among the names of the module.
template <typename T>
py::class_<T> place_class(py::module_& m) {
  auto placed = py::reinterpret_borrow<py::class_<T>>(py::type::of<T>());
  m.attr(placed.attr("__name__")) = placed;
  return placed;
}

}  // namespace gravelox
