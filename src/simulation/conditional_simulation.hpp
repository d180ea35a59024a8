// SPDX-License-Identifier: MIT
#pragma once

// An unconditional field made to honour samples.

#include <vector>

#include "common/location.hpp"
#include "estimation/estimator.hpp"
#include "simulation/simulators.hpp"

namespace gravelox {

/// The field at the targets plus the estimate of what the samples differ from it by; NaN where the
/// estimator gives NaN. Condition a Gaussian field of mean 0 by simple kriging of that mean.
///
/// The field is evaluated at the samples first and at the targets last, which counts for white
/// noise. Targets do not depend on each other. Throws std::invalid_argument where data and
/// locations differ in number or a coordinate is not finite, and what the estimator throws
/// (Journel, 1974).
std::vector<double> simulate(const SpatialFunction& simulator, const Estimator& estimator,
                             const location_list& target_locs, const Neighborhood& neighborhood,
                             const location_list& data_locs, const std::vector<double>& data,
                             int n_threads = 0);

}  // namespace gravelox
