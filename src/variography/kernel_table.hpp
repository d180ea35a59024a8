// SPDX-License-Identifier: MIT
#pragma once

// Tabulated kernels: one array read in place of one exponential.

#include "variography/covariance.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// The kernel of a structure as a step function with n steps to a unit of |h|; beyond the table a
/// spherical kernel is 0 and the others are their formulas. Types other than spherical, gaussian
/// and exponential have no table: their own kernel is returned.
///
/// The process keeps one table for each of the three types, filled from the kernel of the first
/// structure that needs it that long. A table at least n long serves as it is, whatever n it was
/// filled for: the steps are then those of the largest n seen, not of this one. Functions returned
/// earlier keep the table that they were made with. Any thread may call this at any time.
Kernel get_kernel(const Covariance& cov, int n);

}  // namespace gravelox
