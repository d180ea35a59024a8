// SPDX-License-Identifier: MIT

// Kernels and floors that a script cannot time without its own overhead. Each benchmark counts its
// items (systems, queries, points, pairs): 1 / items_per_second is the processor time of one.
//
// Points, model and sizes are those of the scripts beside it, which form ratios of these figures to
// whole runs.

#include <benchmark/benchmark.h>
#include <fftw3.h>

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <memory>
#include <numbers>
#include <vector>

#include "common/integer.hpp"
#include "common/location.hpp"
#include "common/random.hpp"
#include "estimation/inverse_distance.hpp"
#include "estimation/kriging.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/neighbor_buffer.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/sphere_sampling.hpp"
#include "variography/cov_computer.hpp"
#include "variography/covariance.hpp"

namespace {

using namespace gravelox;

constexpr std::uint32_t sample_seed = 1;
constexpr std::uint32_t target_seed = 2;
constexpr double side = 1000.0;
constexpr std::size_t n_samples = 20000;
constexpr std::size_t n_targets = 4992;
constexpr int n_neighbors = 32;
constexpr int n_neighbors_idw = 16;

/// Uniform in the cube. One 32-bit word of the engine a coordinate, which numpy draws just so.
location_list uniform_points(std::size_t n, std::uint32_t seed) {
  random_engine engine(seed);
  location_list points(n);
  for (location& point : points) {
    for (double& coordinate : point) coordinate = static_cast<double>(engine()) * (side / 0x1p32);
  }
  return points;
}

std::vector<double> values_at(const location_list& points) {
  std::vector<double> values;
  for (const location& point : points) values.push_back(point.sum() / side);
  return values;
}

Ellipsoid anisotropy() { return {300.0, 200.0, 100.0, 30.0, 20.0, 10.0}; }

std::vector<Covariance> model() {
  return {Covariance::nugget(1e-5), Covariance(covariance_type::spherical, 5e-5, anisotropy()),
          Covariance(covariance_type::exponential, 4e-5, anisotropy())};
}

/// Samples and targets, with the neighbours of each target as a kriging run sees them.
struct kriging_case {
  location_list samples = uniform_points(n_samples, sample_seed);
  location_list targets = uniform_points(n_targets, target_seed);
  std::vector<std::vector<std::size_t>> neighbors;
  cov_computer cov = create_cov_computer(model());

  kriging_case() {
    const Neighborhood neighborhood(samples, anisotropy());
    for (const location& target : targets) {
      neighbors.push_back(neighborhood.find_neighbors(target, n_neighbors));
    }
  }
};

struct ordinary_system {
  Eigen::MatrixXd a;
  Eigen::VectorXd b;
};

ordinary_system ordinary_system_of(const kriging_case& run, std::size_t index) {
  const std::vector<std::size_t>& neis = run.neighbors[index];
  const Eigen::Index n = to_index(neis.size());
  ordinary_system system{Eigen::MatrixXd::Ones(n + 1, n + 1), Eigen::VectorXd::Ones(n + 1)};
  system.a(n, n) = 0.0;
  for (Eigen::Index i = 0; i < n; ++i) {
    const location& sample = run.samples[neis[static_cast<std::size_t>(i)]];
    system.b(i) = run.cov(sample - run.targets[index]);
    for (Eigen::Index j = 0; j < n; ++j) {
      system.a(i, j) = run.cov(sample - run.samples[neis[static_cast<std::size_t>(j)]]);
    }
  }
  return system;
}

/// The floor of ordinary kriging: each system factored and solved, and nothing else.
///
/// A kriging run has its system in the cache when it solves it. Here a few systems at a time are
/// copied to the same place before the clock starts: they are in the cache too, and are still all
/// different, so that no branch predictor learns their pivots.
void ldlt(benchmark::State& state) {
  constexpr std::size_t at_once = 32;
  static_assert(n_targets % at_once == 0);
  const kriging_case run;
  std::vector<ordinary_system> systems;
  for (std::size_t i = 0; i < n_targets; ++i) systems.push_back(ordinary_system_of(run, i));

  std::vector<ordinary_system> block(at_once);
  Eigen::LDLT<Eigen::MatrixXd> decomposition;
  Eigen::VectorXd x;
  std::size_t first = 0;
  for (auto _ : state) {
    std::copy_n(systems.begin() + static_cast<std::ptrdiff_t>(first), at_once, block.begin());
    const std::clock_t start = std::clock();
    for (const ordinary_system& system : block) {
      decomposition.compute(system.a);
      x = decomposition.solve(system.b);
      benchmark::DoNotOptimize(x.data());
      benchmark::ClobberMemory();
    }
    state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    first = (first + at_once) % n_targets;
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(at_once));
}

/// The covariances of one system: 32 with the target and 496 among the samples.
void lags(benchmark::State& state) {
  const kriging_case run;
  lag_buffer buffer;
  for (auto _ : state) {
    for (std::size_t index = 0; index < n_targets; ++index) {
      const std::vector<std::size_t>& neis = run.neighbors[index];
      buffer.set(run.samples, neis, run.targets[index], run.samples[neis.front()]);
      benchmark::DoNotOptimize(run.cov.to_target_and_between(buffer));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n_targets));
}

/// The argument of this and of the next is the number of samples.
void query(benchmark::State& state) {
  const auto size = static_cast<std::size_t>(state.range(0));
  const Neighborhood neighborhood(uniform_points(size, sample_seed));
  const location_list targets = uniform_points(n_targets, target_seed);
  neighbor_buffer buffer;
  for (auto _ : state) {
    for (const location& target : targets) {
      neighborhood.find_neighbors(target, n_neighbors, buffer);
      benchmark::DoNotOptimize(buffer.ids.data());
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n_targets));
}

void tree(benchmark::State& state) {
  const auto size = static_cast<std::size_t>(state.range(0));
  const location_list samples = uniform_points(size, sample_seed);
  for (auto _ : state) benchmark::DoNotOptimize(Neighborhood(samples).size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void inverse_distance(benchmark::State& state) {
  const location_list samples = uniform_points(n_samples, sample_seed);
  const location_list targets = uniform_points(n_targets, target_seed);
  const std::vector<double> values = values_at(samples);
  const Neighborhood neighborhood(samples);
  for (auto _ : state) {
    benchmark::DoNotOptimize(idw_estimation(targets, samples, values, 2.0, 0.9, neighborhood,
                                            n_neighbors_idw, -1.0, -1, 1, {}, -1));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n_targets));
}

void ordinary_kriging(benchmark::State& state) {
  const kriging_case run;
  const std::vector<double> values = values_at(run.samples);
  const Neighborhood neighborhood(run.samples, anisotropy());
  for (auto _ : state) {
    benchmark::DoNotOptimize(compute_ordinary_kriging(
        run.targets, run.samples, values, model(), neighborhood, n_neighbors, -1.0, -1, 1, {}, -1));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n_targets));
}

struct fft_free {
  void operator()(void* memory) const { fftw_free(memory); }
};

template <typename T>
std::unique_ptr<T[], fft_free> fft_array(std::size_t n) {
  std::unique_ptr<T[], fft_free> elements(static_cast<T*>(fftw_malloc(n * sizeof(T))));
  std::fill_n(reinterpret_cast<double*>(elements.get()), n * sizeof(T) / sizeof(double), 1.0);
  return elements;
}

/// The floor of a variogram map: its five transforms, three forward and two back, of cubes of this
/// length. Planning is left out, and so is fresh memory.
void transforms(benchmark::State& state) {
  constexpr unsigned planner_flags = FFTW_ESTIMATE_PATIENT;  // those of the map
  const auto length = static_cast<int>(state.range(0));
  const std::size_t size = to_size(length) * to_size(length);
  const auto values = fft_array<double>(size * to_size(length));
  const auto result = fft_array<double>(size * to_size(length));
  std::array<std::unique_ptr<fftw_complex[], fft_free>, 3> spectra;
  for (auto& spectrum : spectra) spectrum = fft_array<fftw_complex>(size * to_size(length / 2 + 1));
  const fftw_plan forward =
      fftw_plan_dft_r2c_3d(length, length, length, values.get(), spectra[0].get(), planner_flags);
  const fftw_plan backward =
      fftw_plan_dft_c2r_3d(length, length, length, spectra[0].get(), result.get(), planner_flags);
  for (auto _ : state) {
    for (auto& spectrum : spectra) fftw_execute_dft_r2c(forward, values.get(), spectrum.get());
    fftw_execute_dft_c2r(backward, spectra[0].get(), result.get());
    fftw_execute_dft_c2r(backward, spectra[1].get(), result.get());
    benchmark::ClobberMemory();
  }
  fftw_destroy_plan(forward);
  fftw_destroy_plan(backward);
  state.SetItemsProcessed(state.iterations());
}

/// A lag of equal steps of length: the sum of its semivariances and its pairs.
struct plain_lag {
  double sum = 0.0;
  double n = 0.0;
};

/// The floor of a variogram of samples: a plain loop over all their pairs, each of which goes to a
/// lag by its length, along each of these directions (the argument, 0 for pairs of all angles) that
/// it lies within 22.5 degrees of.
void pairs(benchmark::State& state) {
  constexpr std::size_t n_points = 5000;
  constexpr std::size_t n_lags = 75;
  constexpr double lags_per_length = n_lags / (2.0 * side);
  const auto n_directions = static_cast<std::size_t>(state.range(0));
  const double least_cosine = std::cos(22.5 * std::numbers::pi / 180.0);
  const location_list samples = uniform_points(n_points, sample_seed);
  const std::vector<double> values = values_at(samples);
  const location_list directions = generate_random_sphere(4, 1);
  std::vector<std::array<plain_lag, n_lags>> lags(std::max(n_directions, std::size_t{1}));
  for (auto _ : state) {
    for (std::size_t a = 0; a < n_points; ++a) {
      for (std::size_t b = a + 1; b < n_points; ++b) {
        const location lag = samples[a] - samples[b];
        const double length = lag.norm();
        const double difference = values[a] - values[b];
        const auto place = static_cast<std::size_t>(length * lags_per_length);
        const auto add = [&](std::size_t direction) {
          lags[direction][place].sum += 0.5 * difference * difference;
          lags[direction][place].n += 1.0;
        };
        if (n_directions == 0) add(0);
        for (std::size_t d = 0; d < n_directions; ++d) {
          if (std::abs(lag.dot(directions[d])) >= least_cosine * length) add(d);
        }
      }
    }
    benchmark::DoNotOptimize(lags.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() *
                          static_cast<std::int64_t>(n_points * (n_points - 1) / 2));
}

// Short runs: the machine may be shared, and of several short ones some are undisturbed.
constexpr double min_seconds = 0.1;

BENCHMARK(ldlt)->MinTime(min_seconds)->UseManualTime();
BENCHMARK(lags)->MinTime(min_seconds);
BENCHMARK(ordinary_kriging)->MinTime(min_seconds);
BENCHMARK(inverse_distance)->MinTime(min_seconds);
BENCHMARK(query)->MinTime(min_seconds)->Arg(20000)->Arg(100000);
BENCHMARK(tree)->MinTime(min_seconds)->Arg(20000)->Arg(100000);
BENCHMARK(transforms)->MinTime(min_seconds)->Arg(128)->Arg(192)->Arg(255);
BENCHMARK(pairs)->MinTime(min_seconds)->Arg(0)->Arg(1)->Arg(4);

}  // namespace

BENCHMARK_MAIN();
