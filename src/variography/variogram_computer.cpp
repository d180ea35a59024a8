// SPDX-License-Identifier: MIT
#include "variography/variogram_computer.hpp"

#include "common/checks.hpp"
#include "variography/cov_computer.hpp"

namespace gravelox {

SpatialFunction create_variogram_computer(const std::vector<Covariance>& covs, double data_var) {
  check_not_empty("cov", covs.size());
  const cov_computer covariance = create_cov_computer(covs);
  const double total_sill = covariance(location::Zero());
  if (total_sill == 0.0) refuse("cov", "sills that do not add up to 0", "0");
  return [covariance, total_sill, data_var](const location& lag) {
    return (1.0 - covariance(lag) / total_sill) * data_var;
  };
}

}  // namespace gravelox
