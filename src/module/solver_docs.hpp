// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-module of the solver.

namespace gravelox::docs {

constexpr const char* solve_scalars = "Fit scalar variables by non-linear least squares.";
constexpr const char* solve_vectors = "Fit vector variables by non-linear least squares.";

}  // namespace gravelox::docs
