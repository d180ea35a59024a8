// SPDX-License-Identifier: MIT
#include "simulation/line_field.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "common/integer.hpp"
#include "common/vector_clones.hpp"

namespace gravelox {

namespace {

constexpr std::size_t n_lanes = 8;
using lanes = std::array<double, n_lanes>;

/// Angles up to this size are reduced without loss; points of larger ones take the library's
/// cosine.
constexpr double greatest_angle = 1e8;

/// cos(x) within 1 ulp of 1 for |x| of at most greatest_angle. The library's own does not
/// vectorise.
///
/// x = k pi + r with a whole k and |r| of at most pi / 2. cos(r) is Taylor's series, whose
/// remainder after r^22 lies below 2^-60; an odd k turns the sign.
inline double cosine(double x) {
  constexpr double shift = 0x1.8p52;  // the last bits of a sum with it are the sum's whole part
  // Products of the first two with k are exact.
  constexpr double pi_high = 0x1.921fb50000000p+1;
  constexpr double pi_mid = 0x1.110b460000000p-25;
  constexpr double pi_low = 0x1.1a62633145c07p-53;
  constexpr double inverse_pi = 0x1.45f306dc9c883p-2;
  constexpr std::array<double, 11> coefficients{1.0 / 2432902008176640000.0,
                                                -1.0 / 6402373705728000.0,
                                                1.0 / 20922789888000.0,
                                                -1.0 / 87178291200.0,
                                                1.0 / 479001600.0,
                                                -1.0 / 3628800.0,
                                                1.0 / 40320.0,
                                                -1.0 / 720.0,
                                                1.0 / 24.0,
                                                -1.0 / 2.0,
                                                1.0};

  const double shifted = x * inverse_pi + shift;
  const double k = shifted - shift;
  const double r = ((x - k * pi_high) - k * pi_mid) - k * pi_low;
  const double square = r * r;
  double series = -1.0 / 1124000727777607680000.0;
  for (const double coefficient : coefficients) series = series * square + coefficient;
  const std::uint64_t sign = std::bit_cast<std::uint64_t>(shifted) << 63U;
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(series) ^ sign);
}

/// The line directions and the place of an evaluation.
struct line_view {
  std::size_t n;
  const double* dx;
  const double* dy;
  const double* dz;
  double x, y, z;
};

template <typename Directions>
line_view view_of(const Directions& of, const location& point) {
  return {of.x.size(), of.x.data(), of.y.data(), of.z.data(), point.x(), point.y(), point.z()};
}

/// Lines are taken in chunks whose intermediate values stay in the nearest cache.
constexpr std::size_t chunk_size = 64;
using chunk = std::array<double, chunk_size>;

inline void positions_of(const line_view& lines, std::size_t first, std::size_t n,
                         double* position) {
  const double* dx = lines.dx + first;
  const double* dy = lines.dy + first;
  const double* dz = lines.dz + first;
  const double x = lines.x;
  const double y = lines.y;
  const double z = lines.z;
  for (std::size_t l = 0; l < n; ++l) position[l] = dx[l] * x + dy[l] * y + dz[l] * z;
}

/// Adds value l to lane l % n_lanes; sets the values after n to 0 first.
inline void add_to_lanes(chunk& values, std::size_t n, double* sums) {
  for (std::size_t l = n; l < chunk_size; ++l) values[l] = 0.0;
  for (std::size_t first = 0; first < chunk_size; first += n_lanes) {
    for (std::size_t lane = 0; lane < n_lanes; ++lane) sums[lane] += values[first + lane];
  }
}

GRAVELOX_VECTOR_CLONES void add_cosines(const line_view& lines, const double* phases,
                                        const double* weights, double* sums) {
  for (std::size_t first = 0; first < lines.n; first += chunk_size) {
    const std::size_t n = std::min(chunk_size, lines.n - first);
    chunk values;
    positions_of(lines, first, n, values.data());
    for (std::size_t l = 0; l < n; ++l) {
      values[l] = cosine(values[l] + phases[first + l]) * weights[first + l];
    }
    add_to_lanes(values, n, sums);
  }
}

GRAVELOX_VECTOR_CLONES void add_sawtooths(const line_view& lines, const double* origins,
                                          const double* last_cells, const std::int32_t* first_cells,
                                          const double* signs, double* sums) {
  for (std::size_t first = 0; first < lines.n; first += chunk_size) {
    const std::size_t n = std::min(chunk_size, lines.n - first);
    chunk values;
    std::array<std::int32_t, chunk_size> places;
    positions_of(lines, first, n, values.data());
    for (std::size_t l = 0; l < n; ++l) {
      const double x = values[l] - origins[first + l];
      const double next = std::floor(x) + 1.0;
      const double above = next > 0.0 ? next : 0.0;
      const double last = last_cells[first + l];
      const double cell = above < last ? above : last;
      places[l] = first_cells[first + l] + static_cast<std::int32_t>(cell);
      values[l] = x - cell + 0.5;
    }
    for (std::size_t l = 0; l < n; ++l) values[l] *= signs[places[l]];
    add_to_lanes(values, n, sums);
  }
}

double sum_of(const lanes& sums) {
  double sum = 0.0;
  for (const double lane : sums) sum += lane;
  return sum;
}

}  // namespace

void line_field::directions::add(const location& direction) {
  x.push_back(direction.x());
  y.push_back(direction.y());
  z.push_back(direction.z());
}

void line_field::add(const cosine_line& line, double weight) {
  cosine_directions_.add(line.direction);
  phases_.push_back(line.phase);
  cosine_weights_.push_back(weight);
  greatest_frequency_ = std::max(greatest_frequency_, line.direction.norm());
}

void line_field::add(const sign_line& line, double weight) {
  // Every place of a sign has to be an int, that of the last one too.
  const int end = to_int(weighted_signs_.size() + line.signs.size());
  sign_directions_.add(line.direction);
  origins_.push_back(line.origin);
  last_cells_.push_back(static_cast<double>(line.signs.size() - 1));
  first_cells_.push_back(end - to_int(line.signs.size()));
  for (const double sign : line.signs) weighted_signs_.push_back(sign * weight);
}

double line_field::operator()(const location& point) const {
  lanes sums{};
  if (!phases_.empty()) add_cosine_lines(point, sums.data());
  if (!origins_.empty()) {
    const line_view lines = view_of(sign_directions_, point);
    add_sawtooths(lines, origins_.data(), last_cells_.data(), first_cells_.data(),
                  weighted_signs_.data(), sums.data());
  }
  double sum = sum_of(sums);
  for (const SpatialFunction& noise : noises_) sum += noise(point);
  return sum;
}

void line_field::add_cosine_lines(const location& point, double* sums) const {
  const line_view lines = view_of(cosine_directions_, point);
  if (greatest_frequency_ * point.norm() < greatest_angle) {
    add_cosines(lines, phases_.data(), cosine_weights_.data(), sums);
  } else {
    for (std::size_t l = 0; l < lines.n; ++l) {
      double position = 0.0;
      positions_of(lines, l, 1, &position);
      sums[l % n_lanes] += std::cos(position + phases_[l]) * cosine_weights_[l];
    }
  }
}

}  // namespace gravelox
