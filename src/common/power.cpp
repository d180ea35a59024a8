// SPDX-License-Identifier: MIT
#include "common/power.hpp"

namespace gravelox {

namespace {

constexpr double exponent_tolerance = 1e-6;

bool is_near(double power_a, double exponent) {
  return std::abs(power_a - exponent) < exponent_tolerance;
}

}  // namespace

power_function::power_function(double power_a)
    : form_(is_near(power_a, 3.0)   ? form::cube
            : is_near(power_a, 2.0) ? form::square
            : is_near(power_a, 1.0) ? form::identity
                                    : form::general),
      power_a_(power_a) {}

power_function create_power_function(double power_a) { return power_function(power_a); }

}  // namespace gravelox
