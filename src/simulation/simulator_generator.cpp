// SPDX-License-Identifier: MIT
#include "simulation/simulator_generator.hpp"

#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/random.hpp"
#include "simulation/fourier_integral.hpp"
#include "simulation/turning_bands.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/grid.hpp"

namespace gravelox {

namespace {

/// The values of a field at the cells of a grid, in the space of an ellipsoid.
struct frozen_field {
  std::vector<double> values;
  Ellipsoid ellipsoid;
  CartesianGrid grid;
};

void check_points(int n) {
  check_at_least("n_base_simulation_points", n, 1);
  check_grid_memory("n_base_simulation_points", {n, n, n}, 5);
}

/// The cell of a coordinate in an axis of n cells that repeats itself. A coordinate less than a
/// cell below the first one counts as in it.
int wrapped_cell(double coordinate, int n) {
  const double cell = std::trunc(coordinate);
  if (cell >= 0.0 && cell < n) return static_cast<int>(cell);
  const double wrapped = cell - n * std::floor(cell / n);
  // Coordinates too large to tell their cell, or not numbers, have the first one's.
  return wrapped >= 0.0 && wrapped < n ? static_cast<int>(wrapped) : 0;
}

double value_at(const frozen_field& field, const Ellipsoid& rotation, const location& point) {
  const location turned = rotation.forward(field.ellipsoid.forward(point));
  const location cell = field.grid.cell_coordinates(turned);
  const auto [nx, ny, nz] = field.grid.number_of_cells();
  const int id = field.grid.index(wrapped_cell(cell.x(), nx), wrapped_cell(cell.y(), ny),
                                  wrapped_cell(cell.z(), nz));
  return field.values[to_size(id)];
}

/// The corners of a box: x outermost, then y, then z, each from low to high.
location_list corners_of(const location& low, const location& high) {
  location_list corners;
  for (const double x : {low.x(), high.x()}) {
    for (const double y : {low.y(), high.y()}) {
      for (const double z : {low.z(), high.z()}) corners.emplace_back(x, y, z);
    }
  }
  return corners;
}

/// The corners' box in isotropic space, enlarged by the half length of its diagonal times its size.
/// The upper end starts from the lower end's new place.
location_list enlarged_corners(const location_list& corners, const Ellipsoid& ellipsoid,
                               int n_threads) {
  const BoundingBox real_box(corners);
  const BoundingBox box(
      ellipsoid.forward(corners_of(real_box.lower(), real_box.upper()), n_threads));
  const location size = box.upper() - box.lower();
  const double half_diagonal = 0.5 * size.norm();
  // Sizes this large overflow when they are multiplied.
  check_finite("corners under the ellipsoid, enlarged", half_diagonal * size);
  const location low = (box.lower() + box.upper()) * 0.5 - half_diagonal * size;
  const location high = (low + box.upper()) * 0.5 + half_diagonal * size;
  return corners_of(low, high);
}

/// A generator of one structure; simulate(corners, cov) makes its field in isotropic space.
template <typename Simulate>
SimulatorGenerator generator_of(const location_list& corners, const Covariance& cov, int n_threads,
                                int n_base_simulation_points, const Simulate& simulate) {
  check_simulation(corners, cov);
  check_points(n_base_simulation_points);
  const location_list box = enlarged_corners(corners, cov.ellipsoid, n_threads);
  const Covariance isotropic(cov.type, cov.sill, Ellipsoid(1, 1, 1, 0, 0, 0), cov.kernel);
  return create_simulator_generator(cov.ellipsoid, box, simulate(box, isotropic),
                                    n_base_simulation_points, n_threads);
}

/// A generator of a model; make_generator(cov, seed) makes that of a structure.
SimulatorGenerator generator_of_model(const std::vector<Covariance>& covs, std::int64_t seed,
                                      const structure_maker<SimulatorGenerator>& make_generator) {
  const auto make_nugget = [](const Covariance& cov, std::int64_t /*seed*/) {
    return [amplitude = std::sqrt(cov.sill)](std::int64_t own_seed) {
      return create_nugget_simulator(amplitude, own_seed);
    };
  };
  return create_simulator_generator(
      make_structures<SimulatorGenerator>(covs, seed, make_nugget, make_generator));
}

}  // namespace

SimulatorGenerator create_simulator_generator(const Ellipsoid& ellipsoid,
                                              const location_list& corners,
                                              const SpatialFunction& base_simulator,
                                              int n_base_simulation_points, int n_threads) {
  check_corners(corners);
  check_points(n_base_simulation_points);
  const int n = n_base_simulation_points;
  const BoundingBox box(corners);
  const CartesianGrid grid(box.length(), {n, n, n}, box.lower());
  auto values = evaluate(base_simulator, grid.locations(), n_threads);
  const auto field =
      std::make_shared<const frozen_field>(frozen_field{std::move(values), ellipsoid, grid});
  return [field](std::int64_t seed) -> SpatialFunction {
    random_engine engine = create_engine(seed);
    const double azimuth = uniform01(engine) * 360.0 - 180.0;
    const double dip = uniform01(engine) * 360.0 - 180.0;
    const double rake = uniform01(engine) * 360.0 - 180.0;
    const Ellipsoid rotation(1, 1, 1, azimuth, dip, rake);
    return [field, rotation](const location& point) { return value_at(*field, rotation, point); };
  };
}

SimulatorGenerator create_simulator_generator(const std::vector<SimulatorGenerator>& generators) {
  return [generators](std::int64_t seed) {
    random_engine engine = create_engine(seed);
    std::vector<SpatialFunction> parts;
    parts.reserve(generators.size());
    for (const SimulatorGenerator& generator : generators) parts.push_back(generator(engine()));
    return create_simulator(parts);
  };
}

SimulatorGenerator create_simulator_pool(const std::vector<SpatialFunction>& simulators) {
  return [simulators](std::int64_t seed) -> SpatialFunction {
    random_engine engine = create_engine(seed);
    std::vector<double> weights(simulators.size());
    double sum = 0.0;
    for (double& weight : weights) {
      weight = uniform01(engine);
      sum += weight;
    }
    for (double& weight : weights) weight = std::sqrt(weight / sum);
    return [simulators, weights](const location& point) {
      double value = 0.0;
      for (std::size_t i = 0; i < weights.size(); ++i) value += weights[i] * simulators[i](point);
      return value;
    };
  };
}

SimulatorGenerator create_tbsim_simulator_generator(const location_list& corners,
                                                    const Covariance& cov, std::int64_t seed,
                                                    int n_lines, int n_threads,
                                                    int n_base_simulation_points) {
  return generator_of(corners, cov, n_threads, n_base_simulation_points,
                      [&](const location_list& box, const Covariance& isotropic) {
                        return create_tbsim_simulator(box, isotropic, seed, n_lines);
                      });
}

SimulatorGenerator create_tbsim_simulator_generator(const location_list& corners,
                                                    const std::vector<Covariance>& covs,
                                                    std::int64_t seed, int n_lines, int n_threads,
                                                    int n_base_simulation_points) {
  check_corners(corners);
  check_points(n_base_simulation_points);
  return generator_of_model(covs, seed, [&](const Covariance& cov, std::int64_t own_seed) {
    return create_tbsim_simulator_generator(corners, cov, own_seed, n_lines, n_threads,
                                            n_base_simulation_points);
  });
}

SimulatorGenerator create_fim_simulator_generator(const location_list& corners,
                                                  const Covariance& cov, std::int64_t seed, int nx,
                                                  int ny, int nz, int n_threads,
                                                  int n_base_simulation_points) {
  return generator_of(corners, cov, n_threads, n_base_simulation_points,
                      [&](const location_list& box, const Covariance& isotropic) {
                        return create_fim_simulator(box, isotropic, nx, ny, nz, seed, n_threads);
                      });
}

SimulatorGenerator create_fim_simulator_generator(const location_list& corners,
                                                  const std::vector<Covariance>& covs,
                                                  std::int64_t seed, int nx, int ny, int nz,
                                                  int n_threads, int n_base_simulation_points) {
  check_corners(corners);
  check_points(n_base_simulation_points);
  return generator_of_model(covs, seed, [&](const Covariance& cov, std::int64_t own_seed) {
    return create_fim_simulator_generator(corners, cov, own_seed, nx, ny, nz, n_threads,
                                          n_base_simulation_points);
  });
}

}  // namespace gravelox
