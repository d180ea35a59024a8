// SPDX-License-Identifier: MIT
#pragma once

// The power function of inverse distance weights.

#include <cmath>

namespace gravelox {

/// x to a fixed exponent, with the common whole exponents as products; see create_power_function.
class power_function {
 public:
  explicit power_function(double power_a);

  double operator()(double x) const {
    switch (form_) {
      case form::cube:
        return x * x * x;
      case form::square:
        return x * x;
      case form::identity:
        return x;
      case form::general:
        break;
    }
    return std::pow(x, power_a_);
  }

 private:
  enum class form { cube, square, identity, general };

  form form_;
  double power_a_;
};

/// The function x -> x * x * x, x * x or x for an exponent within 1e-6 of 3, 2 or 1, otherwise
/// x -> pow(x, power_a).
power_function create_power_function(double power_a);

}  // namespace gravelox
