// SPDX-License-Identifier: MIT
#include "variography/local_covariances.hpp"

#include "common/checks.hpp"

namespace gravelox {

void check_local_covariances(const LocalCovariances& local_covs) {
  check_same_size("covariances", local_covs.covariances.size(), local_covs.centers.size(),
                  "center");
  check_same_size("errors", local_covs.errors.size(), local_covs.centers.size(), "center");
  check_finite("centers", local_covs.centers);
}

}  // namespace gravelox
