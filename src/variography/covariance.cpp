// SPDX-License-Identifier: MIT
#include "variography/covariance.hpp"

#include <ostream>
#include <utility>

namespace gravelox {

Covariance::Covariance(Type structure_type, double structure_sill, const Ellipsoid& anisotropy)
    : Covariance(structure_type, structure_sill, anisotropy, Kernel(structure_type)) {}

Covariance::Covariance(Type structure_type, double structure_sill, const Ellipsoid& anisotropy,
                       Kernel structure_kernel)
    : type(structure_type),
      sill(structure_sill),
      ellipsoid(anisotropy),
      kernel(std::move(structure_kernel)) {}

Covariance Covariance::nugget(double sill) {
  return {Type::nugget, sill, Ellipsoid(1, 1, 1, 0, 0, 0)};
}

std::ostream& operator<<(std::ostream& out, const Covariance& cov) {
  return out << "{sill:" << cov.sill << ",anisotropy:" << cov.ellipsoid.to_string()
             << ",type:" << to_text(cov.type) << "}";
}

std::ostream& operator<<(std::ostream& out, const std::vector<Covariance>& covs) {
  out << "[";
  for (const Covariance& cov : covs) out << cov << ",";
  return out << "]";
}

}  // namespace gravelox
