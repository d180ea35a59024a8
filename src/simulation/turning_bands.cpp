// SPDX-License-Identifier: MIT
#include "simulation/turning_bands.hpp"

#include <cmath>
#include <cstddef>
#include <memory>
#include <numbers>
#include <utility>

#include "common/random.hpp"
#include "simulation/line_field.hpp"
#include "spatial/sphere_sampling.hpp"

namespace gravelox {

namespace {

constexpr double most_cells = 10000.0;

/// The scaled direction of a line as seen from real space: the map to isotropic space is part of
/// it.
location in_real_space(const location& direction, const Ellipsoid& ellipsoid) {
  return ellipsoid.matrix().transpose() * direction;
}

/// Adds a line of signs over the span of the corners, each sign negative where negative(engine) is
/// true, or white noise where the line has too many cells.
template <typename Negative>
void add_sign_line(line_field& field, double amplitude, const location_list& corners,
                   const location& direction, random_engine& engine, const Negative& negative) {
  double least = 1e30;
  double greatest = -1e30;
  for (const location& corner : corners) {
    const double t = direction.dot(corner);
    if (t < least) least = t;
    if (t > greatest) greatest = t;
  }
  const double n_cells = std::ceil(greatest - least) + 2.0;
  // Nor can a line serve whose positions overflow.
  if (!(greatest >= least && n_cells <= most_cells)) {
    field.add(create_nugget_simulator(amplitude, engine()));
    return;
  }
  sign_line line{direction, least - uniform01(engine), {}};
  line.signs.resize(static_cast<std::size_t>(n_cells) + 2);
  for (double& sign : line.signs) sign = negative(engine) ? -1.0 : 1.0;
  field.add(line, amplitude * 2.0 * std::sqrt(3.0));
}

void add_spherical_line(line_field& field, double amplitude, const location_list& corners,
                        const location& direction, const Ellipsoid& ellipsoid, std::int64_t seed) {
  random_engine engine = create_engine(seed);
  add_sign_line(field, amplitude, corners, in_real_space(direction, ellipsoid), engine,
                [](random_engine& own) { return 0.5 > uniform01(own); });
}

/// The unit of an exponential line.
double draw_unit(random_engine& engine) {
  const double kind = uniform(engine, 0.0, 3.0);
  if (kind < 1.0) return gamma(engine, 3, 1.0 / 3.0);
  if (kind < 2.0) return gamma(engine, 2, 1.0 / 3.0);
  return 1.0;
}

void add_exponential_line(line_field& field, double amplitude, const location_list& corners,
                          const location& direction, const Ellipsoid& ellipsoid,
                          std::int64_t seed) {
  random_engine engine = create_engine(seed);
  const double scale = draw_unit(engine);
  // The uniform of the kind serves the signs as well, so that one in six is negative.
  add_sign_line(field, amplitude, corners, in_real_space(direction, ellipsoid) / scale, engine,
                [](random_engine& own) { return 0.5 > uniform(own, 0.0, 3.0); });
}

void add_gaussian_line(line_field& field, double amplitude, const location& direction,
                       const Ellipsoid& ellipsoid, std::int64_t seed) {
  random_engine engine = create_engine(seed);
  normal_distribution normal;
  const double g1 = normal(engine);
  const double g2 = normal(engine);
  const double g3 = normal(engine);
  const double phase = uniform(engine, 0.0, 2.0 * std::numbers::pi);
  const double frequency = std::sqrt(6.0 * (g1 * g1 + g2 * g2 + g3 * g3));
  field.add(cosine_line{in_real_space(direction, ellipsoid) * frequency, phase},
            amplitude * std::sqrt(2.0));
}

void add_line(line_field& field, double amplitude, const location_list& corners,
              const location& direction, const Covariance& cov, std::int64_t seed) {
  switch (cov.type) {
    case covariance_type::spherical:
      add_spherical_line(field, amplitude, corners, direction, cov.ellipsoid, seed);
      return;
    case covariance_type::exponential:
      add_exponential_line(field, amplitude, corners, direction, cov.ellipsoid, seed);
      return;
    case covariance_type::gaussian:
      add_gaussian_line(field, amplitude, direction, cov.ellipsoid, seed);
      return;
    default:
      field.add(create_nugget_simulator(amplitude, seed));
  }
}

SpatialFunction as_function(line_field field) {
  const auto shared = std::make_shared<const line_field>(std::move(field));
  return [shared](const location& point) { return (*shared)(point); };
}

}  // namespace

SpatialFunction spherical_line_simulator(double amplitude, const location_list& corners,
                                         const location& direction, const Ellipsoid& ellipsoid,
                                         std::int64_t seed) {
  check_corners(corners);
  line_field field;
  add_spherical_line(field, amplitude, corners, direction, ellipsoid, seed);
  return as_function(std::move(field));
}

SpatialFunction exponential_line_simulator(double amplitude, const location_list& corners,
                                           const location& direction, const Ellipsoid& ellipsoid,
                                           std::int64_t seed) {
  check_corners(corners);
  line_field field;
  add_exponential_line(field, amplitude, corners, direction, ellipsoid, seed);
  return as_function(std::move(field));
}

SpatialFunction gaussian_line_simulator(double amplitude, const location& direction,
                                        const Ellipsoid& ellipsoid, std::int64_t seed) {
  line_field field;
  add_gaussian_line(field, amplitude, direction, ellipsoid, seed);
  return as_function(std::move(field));
}

SpatialFunction create_tbsim_simulator(const location_list& corners, const Covariance& cov,
                                       std::int64_t seed, int n_lines) {
  constexpr std::int64_t n_direction_seeds = 99999999;
  check_simulation(corners, cov);
  line_field field;
  random_engine engine = create_engine(seed);
  const std::int64_t direction_seed = engine() % n_direction_seeds;
  const double amplitude = std::sqrt(cov.sill / n_lines);
  for (const location& direction : generate_random_semisphere(n_lines, direction_seed)) {
    add_line(field, amplitude, corners, direction, cov, engine());
  }
  return as_function(std::move(field));
}

SpatialFunction create_tbsim_simulator(const location_list& corners,
                                       const std::vector<Covariance>& covs, std::int64_t seed,
                                       int n_lines) {
  check_corners(corners);
  return simulate_structures(covs, seed, [&](const Covariance& cov, std::int64_t own_seed) {
    return create_tbsim_simulator(corners, cov, own_seed, n_lines);
  });
}

SimulatorFactory create_tbsim_factory(const location_list& corners, int n_lines) {
  check_corners(corners);
  return [corners, n_lines](const std::vector<Covariance>& covs, std::int64_t seed) {
    return create_tbsim_simulator(corners, covs, seed, n_lines);
  };
}

}  // namespace gravelox
