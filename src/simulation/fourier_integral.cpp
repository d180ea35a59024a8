// SPDX-License-Identifier: MIT
#include "simulation/fourier_integral.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <memory>
#include <mutex>
#include <numbers>
#include <utility>

#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "spatial/bounding_box.hpp"
#include "spectra/fft_array.hpp"
#include "spectra/fft_threads.hpp"
#include "variography/kernel_table.hpp"

namespace gravelox {

namespace fft {

namespace {

constexpr int kernel_steps = 2000000;

/// The most arrays of the grid's size that are alive at once: the real one beside its spectrum, or
/// later beside the field. Where axes have one cell these are longer than the grid.
double n_arrays(double nx, double ny, double nz) {
  const double spectrum = 2.0 * nx * ny * (std::floor(nz / 2.0) + 1.0);
  const double field = (nx + 1.0) * (ny + 1.0) * (nz + 1.0);
  return 1.0 + (spectrum + field) / (nx * ny * nz);
}

/// The signed step of a place in a periodic axis of n: the upper half counts from behind.
int step_of(std::size_t place, int n) {
  const int i = static_cast<int>(place);
  return i <= n / 2 ? i : i - n;
}

/// The place in a periodic axis that cell `i` of the field is copied from. Cells run from step
/// -n / 2 to n / 2; of an even n these are one more than there are cells, and the last two share
/// the last cell, in which the later one stays.
std::size_t source_of(std::size_t cell, int n) {
  const int i = static_cast<int>(cell);
  const int step = n % 2 == 0 && i == n - 1 ? n / 2 : i - n / 2;
  return to_size(step < 0 ? step + n : step);
}

std::size_t cell_of(double coordinate, int n) {
  const double last = n - 1;
  // In this order what is not a number counts as in the first cell.
  return static_cast<std::size_t>(coordinate > 0.0 ? std::min(coordinate, last) : 0.0);
}

/// Keeps the modulus of a spectrum's square root and draws its phases anew.
void randomise(complex_array& spectrum, double size, std::int64_t seed, int n_threads) {
  random_engine master = create_engine(seed);
  std::vector<random_engine> engines = create_engines(n_thread_slots(n_threads), master);
  const auto n = static_cast<std::size_t>(spectrum.size());
  parallel_for(n, n_threads, [&](std::size_t i, int thread_number) {
    const double re = spectrum[i].real();
    const double im = spectrum[i].imag();
    const double a = std::sqrt(std::sqrt(re * re + im * im) / size);
    const double phi = uniform(engines[to_size(thread_number)], -1.0, 1.0) * std::numbers::pi;
    spectrum[i] = {a * std::cos(phi), a * std::sin(phi)};
  });
}

}  // namespace

FimCovSimulation::FimCovSimulation(const location_list& corners, int nx, int ny, int nz,
                                   const Covariance& cov, std::int64_t seed, int n_threads)
    : nx_(std::max(nx, 1)),
      ny_(std::max(ny, 1)),
      nz_(std::max(nz, 1)),
      ellipsoid_(cov.ellipsoid),
      amplitude_(std::sqrt(cov.sill)) {
  check_simulation(corners, cov);
  place_grid(corners, n_threads);
  check_grid_memory("n or nx, ny, nz", {nx_, ny_, nz_}, n_arrays(nx_, ny_, nz_));
  const std::lock_guard lock(fft_mutex());
  set_up_fft(n_threads);
  simulate(cov, seed, n_threads);
}

void FimCovSimulation::place_grid(const location_list& corners, int n_threads) {
  const BoundingBox box(ellipsoid_.forward(corners, n_threads));
  length_ = 1.5 * box.length();
  if (length_.x() < 1e-20) nx_ = 1;
  if (length_.y() < 1e-20) ny_ = 1;
  if (length_.z() < 1e-20) nz_ = 1;
  cell_ = length_.cwiseQuotient(location(nx_, ny_, nz_)).array() + 1e-20;
  origin_ = box.lower() - 2.0 * cell_;
}

void FimCovSimulation::simulate(const Covariance& cov, std::int64_t seed, int n_threads) {
  const auto nx = to_size(nx_);
  const auto ny = to_size(ny_);
  const auto nz = to_size(nz_);
  const Kernel kernel = get_kernel(cov, kernel_steps);
  array values(nx_, ny_, nz_, 0.0);
  parallel_for(nx, n_threads, [&](std::size_t ix, int /*thread_number*/) {
    const double x = step_of(ix, nx_) * cell_.x();
    for (std::size_t iy = 0; iy < ny; ++iy) {
      const double y = step_of(iy, ny_) * cell_.y();
      for (std::size_t iz = 0; iz < nz; ++iz) {
        const double z = step_of(iz, nz_) * cell_.z();
        values[(ix * ny + iy) * nz + iz] = kernel(std::sqrt(x * x + y * y + z * z));
      }
    }
  });

  complex_array spectrum = forward(values);
  randomise(spectrum, static_cast<double>(values.size()), seed, n_threads);
  backward(std::move(spectrum), values);

  field_.assign((nx + 1) * (ny + 1) * (nz + 1), 0.0);
  parallel_for(nx, n_threads, [&](std::size_t ix, int /*thread_number*/) {
    for (std::size_t iy = 0; iy < ny; ++iy) {
      for (std::size_t iz = 0; iz < nz; ++iz) {
        const std::size_t row = source_of(ix, nx_) * ny + source_of(iy, ny_);
        field_[(ix * ny + iy) * nz + iz] = values[row * nz + source_of(iz, nz_)];
      }
    }
  });
}

double FimCovSimulation::operator()(const location& point) const {
  const location g = (ellipsoid_.forward(point) - origin_).cwiseQuotient(cell_);
  const std::size_t row = cell_of(g.x(), nx_) * to_size(ny_) + cell_of(g.y(), ny_);
  return field_[row * to_size(nz_) + cell_of(g.z(), nz_)] * amplitude_;
}

}  // namespace fft

SpatialFunction create_fim_simulator(const location_list& corners, const Covariance& cov, int nx,
                                     int ny, int nz, std::int64_t seed, int n_threads) {
  const auto field =
      std::make_shared<const fft::FimCovSimulation>(corners, nx, ny, nz, cov, seed, n_threads);
  return [field](const location& point) { return (*field)(point); };
}

SpatialFunction create_fim_simulator(const location_list& corners,
                                     const std::vector<Covariance>& covs, int nx, int ny, int nz,
                                     std::int64_t seed, int n_threads) {
  check_corners(corners);
  return simulate_structures(covs, seed, [&](const Covariance& cov, std::int64_t own_seed) {
    return create_fim_simulator(corners, cov, nx, ny, nz, own_seed, n_threads);
  });
}

SimulatorFactory create_fim_factory(const location_list& corners, int nx, int ny, int nz,
                                    int n_threads) {
  check_corners(corners);
  return [=](const std::vector<Covariance>& covs, std::int64_t seed) {
    return create_fim_simulator(corners, covs, nx, ny, nz, seed, n_threads);
  };
}

}  // namespace gravelox
