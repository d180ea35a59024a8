// SPDX-License-Identifier: MIT
#pragma once

// Covariance models in a number type that may carry derivatives, for fits by a gradient search.

#include <Eigen/Core>
#include <vector>

#include "common/number.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// One structure by its parameters: ranges in length units, angles in degrees.
template <number T>
struct generic_cov_structure {
  covariance_type type;
  T r1, r2, r3;
  T azimuth, dip, rake;
  T sill;
};

/// A function of a lag vector, such as create_cov returns.
template <number T>
class generic_cov {
 public:
  explicit generic_cov(const generic_cov_structure<T>& structure);

  /// sill * kernel(|M h|). At the zero lag a jet has no derivatives but those of the sill.
  T operator()(const Eigen::Matrix<T, 3, 1>& h) const;

 private:
  Eigen::Matrix<T, 3, 3> matrix_;
  T sill_;
  cov_kernel<T> kernel_;
};

/// The sum of several structures and a nugget, such as create_nested_cov returns.
template <number T>
class generic_nested_cov {
 public:
  generic_nested_cov(const std::vector<generic_cov_structure<T>>& structures, const T& nugget);

  /// The nugget counts where h is shorter than 1e-10 length units.
  T operator()(const Eigen::Matrix<T, 3, 1>& h) const;

 private:
  std::vector<generic_cov<T>> structures_;
  T nugget_;
};

/// One structure from its type, ranges (length units), angles (degrees) and sill.
template <number T>
generic_cov<T> create_cov(covariance_type type, const T& r1, const T& r2, const T& r3,
                          const T& azimuth, const T& dip, const T& rake, const T& sill);

/// The sum of the structures and of a nugget of this sill.
template <number T>
generic_nested_cov<T> create_nested_cov(const std::vector<generic_cov_structure<T>>& structures,
                                        const T& nugget);

}  // namespace gravelox
