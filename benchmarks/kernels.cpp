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
#include <atomic>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <numbers>
#include <numeric>
#include <span>
#include <string_view>
#include <vector>

#include "common/integer.hpp"
#include "common/location.hpp"
#include "common/random.hpp"
#include "detection/angular_distance_detail.hpp"
#include "estimation/folds.hpp"
#include "estimation/inverse_distance.hpp"
#include "estimation/kriging.hpp"
#include "estimation/random_partitions.hpp"
#include "language/elementary.hpp"
#include "language/function.hpp"
#include "language/operators.hpp"
#include "optimization/covariance_error.hpp"
#include "optimization/covariance_search.hpp"
#include "optimization/ellipsoid_search.hpp"
#include "optimization/search_rating.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/neighbor_buffer.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/rotation_sampling.hpp"
#include "spatial/sphere_sampling.hpp"
#include "variography/cov_computer.hpp"
#include "variography/covariance.hpp"

namespace {

using namespace gravelox;

/// Blocks of memory that the program has asked for.
std::atomic<std::int64_t> n_allocations = 0;

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

std::vector<std::vector<std::size_t>> neighbors_within(const location_list& points, double radius) {
  const Neighborhood neighborhood(points);
  std::vector<std::vector<std::size_t>> neighbors;
  for (const location& point : points) {
    neighbors.push_back(neighborhood.find_neighbors(point, radius));
  }
  return neighbors;
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

struct kriging_system {
  Eigen::MatrixXd a;
  Eigen::VectorXd b;
};

/// The system of a target and these samples, bordered for ordinary kriging.
template <typename Id>
kriging_system system_of(const cov_computer& cov, const location_list& samples,
                         std::span<const Id> members, const location& target, bool is_bordered) {
  const Eigen::Index n = to_index(members.size());
  const Eigen::Index order = is_bordered ? n + 1 : n;
  kriging_system system{Eigen::MatrixXd::Ones(order, order), Eigen::VectorXd::Ones(order)};
  if (is_bordered) system.a(n, n) = 0.0;
  for (Eigen::Index i = 0; i < n; ++i) {
    const location& sample = samples[members[static_cast<std::size_t>(i)]];
    system.b(i) = cov(sample - target);
    for (Eigen::Index j = 0; j < n; ++j) {
      system.a(i, j) = cov(sample - samples[members[static_cast<std::size_t>(j)]]);
    }
  }
  return system;
}

/// The floor of kriging: each system factored and solved, and nothing else.
///
/// A kriging run has its system in the cache when it solves it. Here a few systems at a time are
/// copied to the same place before the clock starts: they are in the cache too, and are still all
/// different, so that no branch predictor learns their pivots.
void solve_all(benchmark::State& state, const std::vector<kriging_system>& systems) {
  constexpr std::size_t at_once = 32;
  const std::size_t n = systems.size() / at_once * at_once;
  std::vector<kriging_system> block(at_once);
  Eigen::LDLT<Eigen::MatrixXd> decomposition;
  Eigen::VectorXd x;
  std::size_t first = 0;
  for (auto _ : state) {
    std::copy_n(systems.begin() + static_cast<std::ptrdiff_t>(first), at_once, block.begin());
    const std::clock_t start = std::clock();
    for (const kriging_system& system : block) {
      decomposition.compute(system.a);
      x = decomposition.solve(system.b);
      benchmark::DoNotOptimize(x.data());
      benchmark::ClobberMemory();
    }
    state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    first = (first + at_once) % n;
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(at_once));
}

void ldlt(benchmark::State& state) {
  const kriging_case run;
  std::vector<kriging_system> systems;
  for (std::size_t i = 0; i < n_targets; ++i) {
    systems.push_back(
        system_of(run.cov, run.samples, std::span(run.neighbors[i]), run.targets[i], true));
  }
  solve_all(state, systems);
}

/// The systems of cross-validation by kriging with its defaults: those of the random partitions of
/// 500 samples. The argument is 0 for simple kriging and 1 for ordinary kriging.
void partition_ldlt(benchmark::State& state) {
  const location_list samples = uniform_points(500, sample_seed);
  const partition_sampler sampler(samples, 2.0 * side, -1, {10, 40, 15}, "n_partition_size");
  random_engine master(123451);
  random_engine engine(master());
  const cov_computer cov = create_cov_computer(model());
  partition_sampler::scratch scratch;
  partition_list partitions;
  std::vector<kriging_system> systems;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    partitions.clear();
    sampler.draw(i, engine, scratch, partitions);
    for (std::size_t k = 0; k < partitions.size(); ++k) {
      systems.push_back(system_of(cov, samples, partitions[k], samples[i], state.range(0) == 1));
    }
  }
  solve_all(state, systems);
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

/// The bare count of the angles of a clustering, of one point: by all of them, or by the squares of
/// their cosines (1).
void angles(benchmark::State& state) {
  constexpr std::size_t n_points = 10000;
  constexpr double radius = 127.0;
  constexpr double tolerance = 10.0 * std::numbers::pi / 180.0;
  const location_list points = uniform_points(n_points, sample_seed);
  const std::vector<std::vector<std::size_t>> neighbors = neighbors_within(points, radius);
  const detail::angle_test test(tolerance);
  const bool by_squares = state.range(0) == 1;
  const auto is_narrow = [&](std::size_t i, std::size_t j, std::size_t k) {
    if (by_squares) return test.is_narrow(points[i], points[j], points[k]);
    return tolerance > detail::angular_distance(points[i], points[j], points[k]);
  };
  std::size_t n_neighbors_found = 0;
  for (auto _ : state) {
    std::size_t n_narrow = 0;
    n_neighbors_found = 0;
    for (std::size_t i = 0; i < n_points; ++i) {
      n_neighbors_found += neighbors[i].size();
      for (const std::size_t j : neighbors[i]) {
        for (const std::size_t k : neighbors[j]) n_narrow += is_narrow(i, j, k) ? 1 : 0;
        for (const std::size_t k : neighbors[i]) n_narrow += is_narrow(i, j, k) ? 1 : 0;
      }
    }
    benchmark::DoNotOptimize(n_narrow);
  }
  state.counters["neighbors"] = static_cast<double>(n_neighbors_found) / n_points;
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n_points));
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

/// The first argument of a benchmark.
std::size_t size_argument(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

/// The samples of a search for an ellipsoid with the defaults, and what it does before its first
/// try.
struct search_case {
  explicit search_case(std::size_t n) : samples(uniform_points(n, sample_seed)) {}

  std::vector<Ellipsoid> candidates() const {
    return generate_ellipsoids(0.1 * diagonal, diagonal, defaults.n_rays, defaults.n_scales,
                               defaults.seed, defaults.tol);
  }

  idw_rating_parameters rating_parameters() const {
    return {diagonal,
            to_int(samples.size() + 2),
            defaults.power_a,
            {defaults.min_partition_size, defaults.max_partition_size, defaults.n_partitions},
            defaults.regularization_const};
  }

  idw_rating rating(int n_threads) const {
    return create_search_rating(samples, values, defaults.max_nei_size, defaults.n_centers,
                                rating_parameters(), defaults.seed, n_threads);
  }

  ellipsoid_optimization_parameters defaults;
  location_list samples;
  std::vector<double> values = values_at(samples);
  double diagonal = extent(samples).norm();
};

/// That search on the wall clock; an item is a try, a rating of one model. The arguments are the
/// numbers of samples and of threads (0: all).
void search(benchmark::State& state) {
  const search_case run(size_argument(state));
  const auto n_threads = static_cast<int>(state.range(1));
  const idw_rating rating = run.rating(n_threads);
  std::vector<std::vector<Covariance>> models;
  for (const Ellipsoid& candidate : run.candidates()) {
    models.push_back({{covariance_type::spherical, 1.0, candidate}});
  }
  std::atomic<std::int64_t> n_ratings = 0;
  const CovarianceErrorFunction counted = [&](const std::vector<Covariance>& model, int n) {
    ++n_ratings;
    return rating(model, n);
  };
  for (auto _ : state) {
    benchmark::DoNotOptimize(optimize_covariance(models, counted, run.defaults.n_iterations,
                                                 run.defaults.n_iterations_without_upgrade,
                                                 n_threads, false));
  }
  // The rating of the model that a search starts from is no try.
  const std::int64_t n_tries = n_ratings - static_cast<std::int64_t>(state.iterations());
  state.SetItemsProcessed(n_tries);
  state.counters["tries"] = static_cast<double>(n_tries) / static_cast<double>(state.iterations());
}

void search_candidates(benchmark::State& state) {
  const search_case run(500);
  for (auto _ : state) benchmark::DoNotOptimize(run.candidates().data());
  state.SetItemsProcessed(state.iterations());
}

/// The folds and the random partitions of their samples. The argument is the number of samples.
void search_partitions(benchmark::State& state) {
  const search_case run(size_argument(state));
  for (auto _ : state) {
    const idw_rating rating = run.rating(1);
    benchmark::DoNotOptimize(&rating);
  }
  state.SetItemsProcessed(state.iterations());
}

/// A rating of that search, and its lags: those to the members of all partitions of a sample make
/// one batch.
struct rating_case {
  rating_case() {
    for (const auto& [locations, values] : folds) {
      const partition_sampler sampler(locations, parameters.max_distance, parameters.max_size,
                                      parameters.sizes, "n_partitions");
      random_engine master(seed);
      random_engine engine(master());
      partition_sampler::scratch scratch;
      for (std::size_t i = 0; i < locations.size(); ++i) {
        partition_list partitions;
        sampler.draw(i, engine, scratch, partitions);
        batches.push_back(partitions.members.size());
        n_partitions += partitions.size();
        n_lags += static_cast<std::int64_t>(batches.back());
      }
    }
  }

  static constexpr int seed = 1;
  search_case run{2000};
  idw_rating_parameters parameters = run.rating_parameters();
  fold_list folds = create_folds(run.samples, run.values, run.diagonal, run.defaults.max_nei_size,
                                 run.defaults.n_centers, seed);
  std::vector<Covariance> structure{{covariance_type::spherical, 1.0, anisotropy()}};
  std::vector<std::size_t> batches;
  std::size_t n_partitions = 0;
  std::int64_t n_lags = 0;
};

/// A rating; an item is a lag.
void rating(benchmark::State& state) {
  const rating_case run;
  const idw_rating rate(run.folds, run.parameters, rating_case::seed, 1);
  for (auto _ : state) benchmark::DoNotOptimize(rate(run.structure, 1));
  state.SetItemsProcessed(state.iterations() * run.n_lags);
}

/// The floor of a rating: the covariances of as many lags in batches of the same lengths. With the
/// argument 0 a buffer for each length has its samples beforehand, with 1 they are set each time.
void rating_floor(benchmark::State& state) {
  const rating_case run;
  const cov_computer cov = create_cov_computer(run.structure);
  const location_list& samples = run.folds.front().first;
  std::vector<std::uint32_t> members(*std::max_element(run.batches.begin(), run.batches.end()));
  std::iota(members.begin(), members.end(), 1U);
  std::vector<lag_buffer> buffers(members.size() + 1);
  const auto set = [&](std::size_t n) {
    buffers[n].set(samples, std::span(members).first(n), samples.front(), samples.front());
  };
  for (std::size_t n = 0; n < buffers.size(); ++n) set(n);
  const bool sets = state.range(0) == 1;
  for (auto _ : state) {
    for (const std::size_t n : run.batches) {
      if (sets) set(n);
      benchmark::DoNotOptimize(cov.to_target(buffers[n]));
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * run.n_lags);
}

/// How many blocks of memory a rating asks for, and how many more for each further partition: all
/// folds are there a second time.
void rating_allocations(benchmark::State& state) {
  const rating_case run;
  fold_list twice = run.folds;
  twice.insert(twice.end(), run.folds.begin(), run.folds.end());
  const idw_rating rate(run.folds, run.parameters, rating_case::seed, 1);
  const idw_rating rate_twice(twice, run.parameters, rating_case::seed, 1);
  const auto count = [&](const idw_rating& one) {
    const std::int64_t before = n_allocations;
    benchmark::DoNotOptimize(one(run.structure, 1));
    return static_cast<double>(n_allocations - before);
  };
  double once = 0.0;
  double more = 0.0;
  for (auto _ : state) {
    once = count(rate);
    more = count(rate_twice) - once;
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["a_rating"] = once;
  state.counters["a_partition"] = more / static_cast<double>(run.n_partitions);
}

template <number T>
ast::ExpressionPtr<T> apply(std::string_view name, const ast::ExpressionPtr<T>& x) {
  const auto functions = elementary_functions<T>();
  const auto found = std::find_if(functions.begin(), functions.end(),
                                  [&](const auto& function) { return function.name == name; });
  return ast::apply<T>(found->apply, x);
}

/// sqrt(nugget + sill (1 - exp(lag rate)) + far_sill (1 - exp(lag far_rate))).
template <number T>
ast::FunctionPtr<T> deviation() {
  using enum ast::arithmetic;
  using node = ast::ExpressionPtr<T>;
  std::vector<ast::VariablePtr<T>> args;
  for (const char* name : {"lag", "nugget", "sill", "rate", "far_sill", "far_rate"}) {
    args.push_back(std::make_shared<ast::Variable<T>>(name, T(0.0)));
  }
  const auto structure = [&](const node& sill, const node& rate) {
    const node kept = apply<T>("exp", ast::combine<T>(product, args[0], rate));
    const node one = std::make_shared<ast::Value<T>>(T(1.0));
    return ast::combine<T>(product, sill, ast::combine<T>(difference, one, kept));
  };
  const node near = ast::combine<T>(sum, args[1], structure(args[2], args[3]));
  const node semivariance = ast::combine<T>(sum, near, structure(args[4], args[5]));
  return std::make_shared<ast::Function<T>>(args, apply<T>("sqrt", semivariance));
}

/// An evaluation of a compiled function of 20 nodes; over jets with derivatives by all arguments.
template <number T>
void expression(benchmark::State& state) {
  const ast::ScalarFunction<T> compiled(deviation<T>());
  JetList<T> args{T(0.7), T(0.1), T(0.4), T(-1.5), T(0.5), T(-0.5)};
  if constexpr (std::same_as<T, jet>) {
    for (std::size_t i = 0; i < args.size(); ++i) args[i].v[to_index(i)] = 1.0;
  }
  T result(0.0);
  for (auto _ : state) {
    benchmark::DoNotOptimize(args.begin());
    result = compiled(args);
    benchmark::DoNotOptimize(&result);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["result"] = value_of(result);
}

// Short runs: the machine may be shared, and of several short ones some are undisturbed.
constexpr double min_seconds = 0.1;

BENCHMARK(ldlt)->MinTime(min_seconds)->UseManualTime();
BENCHMARK(lags)->MinTime(min_seconds);
BENCHMARK(ordinary_kriging)->MinTime(min_seconds);
BENCHMARK(inverse_distance)->MinTime(min_seconds);
BENCHMARK(query)->MinTime(min_seconds)->Arg(20000)->Arg(100000);
BENCHMARK(angles)->MinTime(min_seconds)->Arg(0)->Arg(1);
BENCHMARK(tree)->MinTime(min_seconds)->Arg(20000)->Arg(100000);
BENCHMARK(transforms)->MinTime(min_seconds)->Arg(128)->Arg(192)->Arg(255);
BENCHMARK(pairs)->MinTime(min_seconds)->Arg(0)->Arg(1)->Arg(4);
BENCHMARK(partition_ldlt)->MinTime(min_seconds)->UseManualTime()->Arg(0)->Arg(1);
BENCHMARK(search)->Iterations(1)->UseRealTime()->ArgsProduct({{500, 2000}, {0, 1}});
BENCHMARK(search_candidates)->MinTime(min_seconds);
BENCHMARK(search_partitions)->MinTime(min_seconds)->Arg(500)->Arg(2000);
BENCHMARK(rating)->MinTime(min_seconds);
BENCHMARK(rating_floor)->MinTime(min_seconds)->Arg(0)->Arg(1);
BENCHMARK(rating_allocations)->Iterations(1);
BENCHMARK(expression<double>)->MinTime(min_seconds);
BENCHMARK(expression<jet>)->MinTime(min_seconds);

}  // namespace

// The memory of the matrix library comes from malloc and goes past operator new. This one counts,
// and leaves the work to the one of the C library.
extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
void* __libc_malloc(std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)

void* malloc(std::size_t size) {
  n_allocations.fetch_add(1, std::memory_order_relaxed);
  return __libc_malloc(size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) {
  n_allocations.fetch_add(1, std::memory_order_relaxed);
  return __libc_memalign(alignment, size);
}
}

BENCHMARK_MAIN();
