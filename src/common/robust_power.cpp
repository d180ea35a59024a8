// SPDX-License-Identifier: MIT
#include "common/robust_power.hpp"

#include <cmath>

namespace gravelox {

using std::abs;
using std::pow;

template <number T>
T robust_power(const T& x, double p) {
  const T size = abs(x);
  if (size <= T(1.0)) return x;
  const T outer = pow(size, p) / T(p) - T(1.0 / p) + T(1.0);
  return x < T(0.0) ? T(-outer) : outer;
}

template double robust_power(const double&, double);
template jet robust_power(const jet&, double);

}  // namespace gravelox
