// SPDX-License-Identifier: MIT
#pragma once

// Defaults of grids; they carry their own text, so that signatures read the same on every run.

#include "module/casters.hpp"

#include "common/location.hpp"

namespace gravelox {

inline py::arg_v default_origin() { return {"origin", location(location::Zero()), "(0, 0, 0)"}; }

inline py::arg_v default_rotation() { return {"rotation", location(90.0, 0.0, 0.0), "(90, 0, 0)"}; }

}  // namespace gravelox
