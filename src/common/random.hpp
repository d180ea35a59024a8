// SPDX-License-Identifier: MIT
#pragma once

// Every random draw of the system goes through this header.
//
// The engine is fixed by the C++ standard to the bit, but the library's distributions and
// std::shuffle are not: with them a seed would mean something else on each toolchain.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace gravelox {

/// The 32-bit Mersenne Twister (Matsumoto and Nishimura, 1998), seeded with one 32-bit word.
using random_engine = std::mt19937;

/// An engine for a seed as scripts give it; a negative one counts modulo 2^32.
inline random_engine create_engine(std::int64_t seed) {
  return random_engine(static_cast<std::uint32_t>(seed));
}

/// n engines, one a thread as a rule, each seeded with the next word of the master.
std::vector<random_engine> create_engines(std::size_t n, random_engine& master);

/// A uniform in [0, 1) with 53 random bits, from two words a, b: ((b << 21) + (a >> 11)) * 2^-53.
inline double uniform01(random_engine& engine) {
  const std::uint64_t a = engine();
  const std::uint64_t b = engine();
  return static_cast<double>((b << 21U) + (a >> 11U)) * 0x1p-53;
}

/// A uniform in [lo, hi): uniform01 * (hi - lo) + lo.
inline double uniform(random_engine& engine, double lo, double hi) {
  return uniform01(engine) * (hi - lo) + lo;
}

/// Standard normals by the polar method (Marsaglia and Bray, 1964).
///
/// Draws come in pairs; the second is kept for the next call of the same object. A fresh pair takes
/// four words a try and tries until the point lies inside the unit circle, off both axes.
class normal_distribution {
 public:
  double operator()(random_engine& engine);

  /// The standard normal of a point (v1, v2) inside the unit circle; the second is stored in v2.
  static double from_point(double v1, double& v2);

 private:
  bool has_second_ = false;
  double second_ = 0.0;
};

/// Standard normals in 32-bit floats by the polar method on 24-bit uniforms (one word each).
class float_normal_distribution {
 public:
  float operator()(random_engine& engine);

 private:
  bool has_second_ = false;
  float second_ = 0.0F;
};

/// A gamma draw of whole shape, 1 to 19, and a scale: -log of the product of `shape` uniforms,
/// times the scale. The first factor is taken as it comes, later ones are drawn again where they
/// are 0.
double gamma(random_engine& engine, int shape, double scale);

/// A whole number in 0..n-1, all equally likely, by multiply and reject (Lemire, 2019); n at
/// least 1.
std::uint32_t uniform_index(random_engine& engine, std::uint32_t n);

/// Shuffles in place by Fisher-Yates from the second element upwards: element i changes places with
/// element uniform_index(engine, i + 1). A list of fewer than two elements draws nothing.
template <typename T>
void shuffle(std::vector<T>& values, random_engine& engine) {
  for (std::size_t i = 1; i < values.size(); ++i) {
    const std::size_t other = uniform_index(engine, static_cast<std::uint32_t>(i + 1));
    if (other != i) std::swap(values[i], values[other]);
  }
}

}  // namespace gravelox
