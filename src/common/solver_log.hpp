// SPDX-License-Identifier: MIT
#pragma once

// The log of the solver library, which writes to the standard error.

namespace gravelox {

/// While one lives, the solver's log keeps quiet, short of errors that end the process. Solves on
/// several threads each have one; the log speaks again when the last has gone, and until then a
/// solve without one is silent too.
class quiet_solver_log {
 public:
  quiet_solver_log();
  ~quiet_solver_log();
  quiet_solver_log(const quiet_solver_log&) = delete;
  quiet_solver_log& operator=(const quiet_solver_log&) = delete;
};

}  // namespace gravelox
