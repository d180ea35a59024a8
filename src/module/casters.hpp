// SPDX-License-Identifier: MIT
#pragma once

// The one header of the bindings that includes pybind11, and every source of the module includes it
// first: two sources that saw different casters for one type would break the one-definition rule,
// and no compiler tells.
//
// Its header for callables is left out on purpose: it would turn the classes that hold a callable
// (Estimator, Kernel, SpatialFunction) into plain Python functions.

#include <pybind11/cast.h>
#include <pybind11/gil_safe_call_once.h>

#include "module/scalar_casters.hpp"
// Scalars first: the headers below use their casters.
#include <pybind11/eigen.h>
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "module/list_casters.hpp"
#include "module/matrix_casters.hpp"

namespace gravelox {

namespace py = pybind11;

/// Gives the interpreter lock up while the function runs: a search for it lists the functions that
/// do so.
using release_gil = py::call_guard<py::gil_scoped_release>;

}  // namespace gravelox
