// SPDX-License-Identifier: MIT
#pragma once

// The registration of each family of names. The order of the calls in module.cpp and of the names
// within a family are part of the interface: overloads chain in that order.

#include "module/casters.hpp"

namespace gravelox {

void register_frame_module(py::module_& m);
void register_spatial_module(py::module_& m);
void register_covariance_module(py::module_& m);
void register_grid_module(py::module_& m);
void register_estimation_module(py::module_& m);
void register_variography_module(py::module_& m);
void register_spectra_module(py::module_& m);

}  // namespace gravelox
