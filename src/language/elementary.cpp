// SPDX-License-Identifier: MIT
#include "language/elementary.hpp"

#include <array>
#include <cmath>

namespace gravelox {

namespace {

// Of the overloads for doubles and for jets, calls below take the one of their argument.
using std::exp;
using std::pow;

template <number T>
T square(const T& x) {
  return x * x;
}

template <number T>
T cube(const T& x) {
  return x * x * x;
}

double sigmoid_value(double x) { return 1.0 / (exp(-x) + 1.0); }

/// The derivative is s(x) s(-x): by the rule for quotients it would be NaN where exp(-x) is
/// infinite.
template <number T>
T sigmoid(const T& x) {
  if constexpr (std::same_as<T, double>) {
    return sigmoid_value(x);
  } else {
    const double value = sigmoid_value(x.a);
    return T(value, value * sigmoid_value(-x.a) * x.v);
  }
}

template <number T>
T spherical_shape(const T& x) {
  return x > T(1.0) ? T(0.0) : T(1.0 - 1.5 * x + 0.5 * x * x * x);
}

template <number T>
T linear_decay(const T& x) {
  return exp(-3.0 * x);
}

template <number T>
T squared_decay(const T& x) {
  return exp(-3.0 * x * x);
}

/// A library function as one that has an address for both numbers.
#define GRAVELOX_LIBRARY_FUNCTION(name) \
  template <number T>                   \
  T library_##name(const T& x) {        \
    using std::name;                    \
    return name(x);                     \
  }

GRAVELOX_LIBRARY_FUNCTION(sin)
GRAVELOX_LIBRARY_FUNCTION(cos)
GRAVELOX_LIBRARY_FUNCTION(tan)
GRAVELOX_LIBRARY_FUNCTION(asin)
GRAVELOX_LIBRARY_FUNCTION(acos)
GRAVELOX_LIBRARY_FUNCTION(atan)
GRAVELOX_LIBRARY_FUNCTION(sinh)
GRAVELOX_LIBRARY_FUNCTION(cosh)
GRAVELOX_LIBRARY_FUNCTION(tanh)
GRAVELOX_LIBRARY_FUNCTION(exp)
GRAVELOX_LIBRARY_FUNCTION(sqrt)
GRAVELOX_LIBRARY_FUNCTION(abs)
GRAVELOX_LIBRARY_FUNCTION(log)
GRAVELOX_LIBRARY_FUNCTION(log10)
GRAVELOX_LIBRARY_FUNCTION(log2)

#undef GRAVELOX_LIBRARY_FUNCTION

template <number T>
constexpr auto table = std::to_array<elementary_function<T>>({
    {"sin", library_sin<T>},       {"cos", library_cos<T>},
    {"tan", library_tan<T>},       {"asin", library_asin<T>},
    {"acos", library_acos<T>},     {"atan", library_atan<T>},
    {"sinh", library_sinh<T>},     {"cosh", library_cosh<T>},
    {"tanh", library_tanh<T>},     {"exp", library_exp<T>},
    {"sqrt", library_sqrt<T>},     {"abs", library_abs<T>},
    {"log", library_log<T>},       {"ln", library_log<T>},
    {"log10", library_log10<T>},   {"log2", library_log2<T>},
    {"pow2", square<T>},           {"pow3", cube<T>},
    {"sigmoid", sigmoid<T>},       {"spherical", spherical_shape<T>},
    {"gaussian", linear_decay<T>}, {"exponential", squared_decay<T>},
});

}  // namespace

template <number T>
std::span<const elementary_function<T>> elementary_functions() {
  return table<T>;
}

template <number T>
T power(const T& x, double p) {
  return p == 0.0 ? T(1.0) : T(pow(x, p));
}

template std::span<const elementary_function<double>> elementary_functions();
template std::span<const elementary_function<jet>> elementary_functions();
template double power(const double&, double);
template jet power(const jet&, double);

}  // namespace gravelox
