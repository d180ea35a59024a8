// SPDX-License-Identifier: MIT
#pragma once

// LocalCovariances: covariance models that hold around centres.

#include <vector>

#include "common/location.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// Three lists that run parallel: a centre, its model, and the error of that model, which
/// multiplies distances to the centre where models are blended.
struct LocalCovariances {
  location_list centers;
  std::vector<std::vector<Covariance>> covariances;
  std::vector<double> errors;
};

/// Throws std::invalid_argument where the lists differ in length or a centre is not finite.
void check_local_covariances(const LocalCovariances& local_covs);

}  // namespace gravelox
