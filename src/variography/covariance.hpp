// SPDX-License-Identifier: MIT
#pragma once

// Covariance: one structure of a covariance model; a model is a list of them, added up.

#include <iosfwd>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// A sill, an anisotropy and a shape. The value at a lag vector h is sill * kernel(|ellipsoid(h)|);
/// the zero lag is a point like any other, so a model's value there is the sum of its sills.
///
/// The type is a label for printing and for the tables of kernels; evaluation uses the kernel
/// alone.
struct Covariance {
  using Type = covariance_type;

  /// A structure with the kernel of its type.
  Covariance(Type structure_type, double structure_sill, const Ellipsoid& anisotropy);

  Covariance(Type structure_type, double structure_sill, const Ellipsoid& anisotropy,
             Kernel structure_kernel);

  /// A nugget: its sill for lags shorter than 1e-8 length units, and 0 beyond.
  static Covariance nugget(double sill);

  double operator()(const location& h) const { return sill * kernel(ellipsoid.forward(h).norm()); }

  Type type;
  double sill;
  Ellipsoid ellipsoid;
  Kernel kernel;
};

/// "{sill:1,anisotropy:{r1: ...} ,type:spherical}".
std::ostream& operator<<(std::ostream& out, const Covariance& cov);

/// "[", each structure followed by ",", "]".
std::ostream& operator<<(std::ostream& out, const std::vector<Covariance>& covs);

}  // namespace gravelox
