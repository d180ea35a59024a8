// SPDX-License-Identifier: MIT
#pragma once

// The Fourier integral method: a whole unconditional field on a regular grid of isotropic space, by
// two Fourier transforms, and then looked up cell by cell.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "simulation/simulators.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/grid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

namespace fft {

/// The field of one structure, on a grid one and a half times as long as the corners' box in
/// isotropic space; along an axis on which they do not differ it has one cell. Immutable, and many
/// threads may evaluate it at once.
///
/// The correlation is sampled on the grid, transformed, given random phases, and transformed back.
/// The phases come from one engine a thread, seeded by a master engine of `seed`, so a field
/// repeats for the same number of threads. The planes of frequency zero and of the highest
/// frequency on the third axis keep half their power: the variance lies below the sill, at about
/// 0.8 to 0.9 of it where the corners are one to three ranges apart, and at half of it where they
/// do not differ on that axis. Of an even number of cells the last cell has the value that belongs
/// behind it (Pardo-Iguzquiza and Chica-Olmo, 1993).
///
/// Construction sets the number of threads of the transform library and of the parallel runtime to
/// n_threads, and holds fft_mutex throughout. Needs memory for about three arrays of the grid's
/// size. Throws std::invalid_argument where corners are empty or not finite, or the grid does not
/// fit in memory.
class FimCovSimulation {
 public:
  /// Dimensions below 1 count as 1.
  FimCovSimulation(const location_list& corners, int nx, int ny, int nz, const Covariance& cov,
                   std::int64_t seed, int n_threads = 0);

  /// The value of the cell of a location; beyond the grid that of the nearest cell.
  double operator()(const location& point) const;

 private:
  void place_grid(const location_list& corners, int n_threads);
  void simulate(const Covariance& cov, std::int64_t seed, int n_threads);

  location length_;
  location cell_;
  location origin_;
  int nx_;
  int ny_;
  int nz_;
  Ellipsoid ellipsoid_;
  double amplitude_;
  std::vector<double> field_;
};

}  // namespace fft

/// A realisation of one structure, and of a model, as simulate_structures sums it.
SpatialFunction create_fim_simulator(const location_list& corners, const Covariance& cov, int nx,
                                     int ny, int nz, std::int64_t seed, int n_threads = 0);
SpatialFunction create_fim_simulator(const location_list& corners,
                                     const std::vector<Covariance>& covs, int nx, int ny, int nz,
                                     std::int64_t seed, int n_threads = 0);

SimulatorFactory create_fim_factory(const location_list& corners, int nx, int ny, int nz,
                                    int n_threads = 0);

}  // namespace gravelox
