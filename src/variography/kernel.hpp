// SPDX-License-Identifier: MIT
#pragma once

// Kernel: the normalised shape of a covariance structure, as a function of the distance in
// isotropic space, where the ellipsoid has radius 1.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "common/number.hpp"

namespace gravelox {

/// The label of a structure. Any other value counts as nugget.
enum class covariance_type : int {
  spherical = 1,
  gaussian = 2,
  exponential = 3,
  nugget = 4,
  idw = 5
};

/// "spherical", "gaussian", "exponential", "nugget" or "idw".
std::string to_text(covariance_type type);

/// The type of one of these words; any other text is a nugget.
covariance_type to_covariance_type(std::string_view text);

/// The type of one of these words; throws std::invalid_argument for any other text of an argument
/// of this name.
covariance_type to_known_type(std::string_view name, std::string_view text);

/// The type of "spherical", "gaussian" or "exponential", the shapes that a fit can take; throws
/// std::invalid_argument for any other word of an argument of this name.
covariance_type to_fitted_type(std::string_view name, std::string_view text);

/// What there is to know of one shape; the rows stand in kernel.cpp.
struct kernel_shape;

/// A shape of structures, called with a distance h:
///
///   spherical    1 - 1.5 h + 0.5 h^3 up to 1, and 0 beyond; a negative h is not folded
///   gaussian     exp(-3 h^2)
///   exponential  exp(-3 h)
///   nugget       1 below 1e-8, otherwise 0
///   idw          1e6 below 1e-6, otherwise 1 / h^2
///
/// Ranges are therefore practical ones: gaussian and exponential reach exp(-3) at h = 1. A kernel
/// may also be any other function of h, such as a table. Many threads may call one object at once.
class Kernel {
 public:
  explicit Kernel(covariance_type type);

  /// Calling an empty function throws std::bad_function_call.
  explicit Kernel(std::function<double(double)> function);

  double operator()(double h) const;

  /// Whether add_to takes squared distances: shapes that can do without the square root.
  bool takes_squares() const;

  /// Adds sill times the value at each of n distances (squares of them if takes_squares) to `sums`.
  /// Values may differ from operator() in the last places.
  void add_to(const double* distances, std::size_t n, double sill, double* sums) const;

 private:
  const kernel_shape* shape_;
  std::function<double(double)> function_;
};

/// The value of a shape in a differentiable model.
template <number T>
using cov_kernel = T (*)(const T& h);

/// The shapes of Kernel for doubles and jets, except that the nugget ends at 1e-30: a smooth fit
/// must not take close samples for one.
template <number T>
cov_kernel<T> create_cov_kernel(covariance_type type);

}  // namespace gravelox
