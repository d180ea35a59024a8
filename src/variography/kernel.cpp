// SPDX-License-Identifier: MIT
#include "variography/kernel.hpp"

#include <Eigen/Core>
#include <array>
#include <cmath>
#include <utility>

#include "common/integer.hpp"

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

// The batch forms. Where the compiler vectorises the scalar formula, that formula serves.

template <double (*value)(const double&)>
void add_scalar(const double* h, std::size_t n, double sill, double* sums) {
  for (std::size_t i = 0; i < n; ++i) sums[i] += sill * value(h[i]);
}

/// exp(-3 x), by the matrix library's vectorised exponential.
void add_exp(const double* x, std::size_t n, double sill, double* sums) {
  using array = Eigen::Array<double, Eigen::Dynamic, 1>;
  const Eigen::Map<const array, Eigen::Aligned16> exponents(x, to_index(n));
  Eigen::Map<array, Eigen::Aligned16>(sums, to_index(n)) += sill * (-3.0 * exponents).exp();
}

/// The square root of a double lies below 1e-8 exactly where the double lies below 1e-16.
void add_nugget_of_squares(const double* h2, std::size_t n, double sill, double* sums) {
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
