// SPDX-License-Identifier: MIT
#include "variography/kernel.hpp"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>

#include "common/checks.hpp"
#include "common/vector_clones.hpp"

namespace gravelox {

namespace {

using std::exp;

template <typename T>
T spherical(const T& h) {
  return h > T(1.0) ? T(0.0) : T(1.0) - T(1.5) * h + T(0.5) * h * h * h;
}

template <typename T>
T gaussian(const T& h) {
  return exp(T(-3.0) * h * h);
}

template <typename T>
T exponential(const T& h) {
  return exp(T(-3.0) * h);
}

template <typename T>
T nugget(const T& h) {
  return h < T(1e-8) ? T(1.0) : T(0.0);
}

template <typename T>
T differentiable_nugget(const T& h) {
  return h < T(1e-30) ? T(1.0) : T(0.0);
}

template <typename T>
T idw(const T& h) {
  return h < T(1e-6) ? T(1e6) : T(1.0) / (h * h);
}

// The batch forms. They vectorise, and a value does not depend on its place in the array: the
// vector form of an operation rounds as the scalar one does.

template <double (*value)(const double&)>
GRAVELOX_VECTOR_CLONES void add_scalar(const double* h, std::size_t n, double sill, double* sums) {
  for (std::size_t i = 0; i < n; ++i) sums[i] += sill * value(h[i]);
}

/// exp(x) for x of at most 0, within 1.2 ulp; 0 below -708. The library's own does not vectorise.
///
/// x = k log(2) + r with a whole k and |r| of at most log(2) / 2. exp(r) is Taylor's series, whose
/// remainder after r^13 lies below 2^-57; 2^k is put together from its bits.
inline double exp_of_negative(double x) {
  constexpr double shift = 0x1.8p52;  // the last bits of a sum with it are the sum's whole part
  constexpr double log2_high = 0x1.62e42fefa0000p-1;  // so short that its product with k is exact
  constexpr double log2_low = 0x1.cf79abc9e3b39p-40;
  constexpr std::array<double, 12> inverse_factorials{
      1.0 / 479001600, 1.0 / 39916800, 1.0 / 3628800, 1.0 / 362880, 1.0 / 40320, 1.0 / 5040,
      1.0 / 720,       1.0 / 120,      1.0 / 24,      1.0 / 6,      1.0 / 2,     1.0};

  const double shifted = x * std::numbers::log2e + shift;
  const double k = shifted - shift;
  const double r = (x - k * log2_high) - k * log2_low;
  double series = 1.0 / 6227020800;
  for (const double coefficient : inverse_factorials) series = series * r + coefficient;
  series = series * r + 1.0;
  const std::uint64_t power = (std::bit_cast<std::uint64_t>(shifted) + 1023U) << 52U;
  const double result = series * std::bit_cast<double>(power);
  return x < -708.0 ? 0.0 : result;
}

/// exp(-3 x)
GRAVELOX_VECTOR_CLONES void add_exp(const double* x, std::size_t n, double sill, double* sums) {
  for (std::size_t i = 0; i < n; ++i) sums[i] += sill * exp_of_negative(-3.0 * x[i]);
}

/// The square root of a double lies below 1e-8 exactly where the double lies below 1e-16.
GRAVELOX_VECTOR_CLONES void add_nugget_of_squares(const double* h2, std::size_t n, double sill,
                                                  double* sums) {
  for (std::size_t i = 0; i < n; ++i) sums[i] += h2[i] < 1e-16 ? sill : 0.0;
}

}  // namespace

struct kernel_shape {
  covariance_type type;
  std::string_view text;
  double (*value)(const double&);
  void (*add)(const double* distances, std::size_t n, double sill, double* sums);
  bool takes_squares;
  cov_kernel<double> differentiable;
  cov_kernel<jet> differentiable_jet;
};

namespace {

constexpr std::array<kernel_shape, 5> shapes{{
    {covariance_type::spherical, "spherical", gravelox::spherical<double>,
     add_scalar<gravelox::spherical<double>>, false, gravelox::spherical<double>,
     gravelox::spherical<jet>},
    {covariance_type::gaussian, "gaussian", gravelox::gaussian<double>, add_exp, true,
     gravelox::gaussian<double>, gravelox::gaussian<jet>},
    {covariance_type::exponential, "exponential", gravelox::exponential<double>, add_exp, false,
     gravelox::exponential<double>, gravelox::exponential<jet>},
    {covariance_type::idw, "idw", gravelox::idw<double>, add_scalar<gravelox::idw<double>>, false,
     gravelox::idw<double>, gravelox::idw<jet>},
    {covariance_type::nugget, "nugget", gravelox::nugget<double>, add_nugget_of_squares, true,
     differentiable_nugget<double>, differentiable_nugget<jet>},
}};

/// The row of a type or text; what is not listed is the last one, the nugget.
template <typename Matches>
const kernel_shape& find_shape(const Matches& matches) {
  for (const kernel_shape& shape : shapes) {
    if (matches(shape)) return shape;
  }
  return shapes.back();
}

const kernel_shape& shape_of(covariance_type type) {
  return find_shape([type](const kernel_shape& shape) { return shape.type == type; });
}

}  // namespace

std::string to_text(covariance_type type) { return std::string(shape_of(type).text); }

covariance_type to_covariance_type(std::string_view text) {
  return find_shape([text](const kernel_shape& shape) { return shape.text == text; }).type;
}

covariance_type to_known_type(std::string_view name, std::string_view text) {
  const covariance_type type = to_covariance_type(text);
  if (to_text(type) != text) {
    refuse(name, R"("spherical", "gaussian", "exponential", "nugget" or "idw")",
           '"' + std::string(text) + '"');
  }
  return type;
}

covariance_type to_fitted_type(std::string_view name, std::string_view text) {
  const covariance_type type = to_covariance_type(text);
  if (type == covariance_type::nugget || type == covariance_type::idw) {
    refuse(name, R"("spherical", "gaussian" or "exponential")", '"' + std::string(text) + '"');
  }
  return type;
}

Kernel::Kernel(covariance_type type) : shape_(&shape_of(type)) {}

Kernel::Kernel(std::function<double(double)> function)
    : shape_(nullptr), function_(std::move(function)) {}

double Kernel::operator()(double h) const {
  return shape_ != nullptr ? shape_->value(h) : function_(h);
}

bool Kernel::takes_squares() const { return shape_ != nullptr && shape_->takes_squares; }

void Kernel::add_to(const double* distances, std::size_t n, double sill, double* sums) const {
  if (shape_ != nullptr) {
    shape_->add(distances, n, sill, sums);
    return;
  }
  for (std::size_t i = 0; i < n; ++i) sums[i] += sill * function_(distances[i]);
}

template <>
cov_kernel<double> create_cov_kernel<double>(covariance_type type) {
  return shape_of(type).differentiable;
}

template <>
cov_kernel<jet> create_cov_kernel<jet>(covariance_type type) {
  return shape_of(type).differentiable_jet;
}

}  // namespace gravelox
