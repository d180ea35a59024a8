// SPDX-License-Identifier: MIT
#include "common/random.hpp"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace gravelox {

namespace {

constexpr double two_log_two = 1.3862943611198906;

}  // namespace

std::vector<random_engine> create_engines(std::size_t n, random_engine& master) {
  std::vector<random_engine> engines;
  engines.reserve(n);
  for (std::size_t i = 0; i < n; ++i) engines.emplace_back(master());
  return engines;
}

double normal_distribution::from_point(double v1, double& v2) {
  double s = v1 * v1 + v2 * v2;
  double log_s = 0.0;
  if (s > 0.0001) {
    log_s = std::log(s);
  } else {
    // Near the centre the squares lose precision: the point is scaled up by a power of two first.
    const int e = std::ilogb(std::max(std::abs(v1), std::abs(v2)));
    v1 = std::scalbn(v1, -e);
    v2 = std::scalbn(v2, -e);
    s = v1 * v1 + v2 * v2;
    log_s = std::log(s) + e * two_log_two;
  }
  const double f = std::sqrt(-2.0 * log_s / s);
  v2 *= f;
  return f * v1;
}

double normal_distribution::operator()(random_engine& engine) {
  if (has_second_) {
    has_second_ = false;
    return second_;
  }
  double v1 = 0.0;
  double v2 = 0.0;
  do {
    v1 = 2.0 * uniform01(engine) - 1.0;
    v2 = 2.0 * uniform01(engine) - 1.0;
  } while (v1 * v1 + v2 * v2 >= 1.0 || v1 == 0.0 || v2 == 0.0);
  const double first = from_point(v1, v2);
  second_ = v2;
  has_second_ = true;
  return first;
}

float float_normal_distribution::operator()(random_engine& engine) {
  if (has_second_) {
    has_second_ = false;
    return second_;
  }
  const auto draw = [&engine] {
    return 2.0F * (static_cast<float>(engine() >> 8U) * 0x1p-24F) - 1.0F;
  };
  float v1 = 0.0F;
  float v2 = 0.0F;
  float s = 0.0F;
  do {
    v1 = draw();
    v2 = draw();
    s = v1 * v1 + v2 * v2;
  } while (s >= 1.0F || s == 0.0F);
  const float f = std::sqrt(-2.0F * std::log(s) / s);
  second_ = f * v2;
  has_second_ = true;
  return f * v1;
}

double gamma(random_engine& engine, int shape, double scale) {
  if (shape < 1 || shape >= 20) {
    throw std::invalid_argument("shape: expected 1 to 19, got " + std::to_string(shape));
  }
  double product = uniform01(engine);
  for (int i = 1; i < shape; ++i) {
    double factor = 0.0;
    do {
      factor = uniform01(engine);
    } while (factor == 0.0);
    product *= factor;
  }
  return -std::log(product) * scale;
}

std::uint32_t uniform_index(random_engine& engine, std::uint32_t n) {
  if (n == 0) throw std::invalid_argument("n: expected at least 1, got 0");
  std::uint64_t product = std::uint64_t{engine()} * n;
  if (static_cast<std::uint32_t>(product) < n) {
    const std::uint32_t threshold = (0U - n) % n;
    while (static_cast<std::uint32_t>(product) < threshold) {
      product = std::uint64_t{engine()} * n;
    }
  }
  return static_cast<std::uint32_t>(product >> 32U);
}

}  // namespace gravelox
