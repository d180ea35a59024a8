// SPDX-License-Identifier: MIT
#include "estimation/cross_validation.hpp"

#include <cmath>
#include <limits>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/statistics.hpp"
#include "common/vector_clones.hpp"
#include "estimation/cell_thinning.hpp"
#include "estimation/kriging_detail.hpp"
#include "estimation/nei_getter.hpp"

namespace gravelox {

namespace {

constexpr double threshold = 1e-10;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

using error_table = std::vector<std::vector<double>>;

/// What a thread needs to validate sample by sample.
template <typename Scratch>
struct alignas(64) validator {
  explicit validator(random_engine::result_type seed) : engine(seed) {}

  random_engine engine;
  partition_sampler::scratch candidates;
  partition_list partitions;
  Scratch own;
};

/// One for each thread, with an engine seeded by the next word of the seed's.
template <typename Scratch>
std::vector<validator<Scratch>> create_validators(int n_threads, int seed) {
  random_engine master = create_engine(seed);
  std::vector<validator<Scratch>> validators;
  const std::size_t n = n_thread_slots(n_threads);
  validators.reserve(n);
  for (std::size_t i = 0; i < n; ++i) validators.emplace_back(master());
  return validators;
}

/// The errors of all samples, estimate(sample, data, partitions, scratch, row) giving those of one.
template <typename Scratch, typename Estimate>
error_table cross_validate(const location_list& data_locs, const std::vector<double>& data_values,
                           double max_distance, int max_size, const partition_sizes& sizes,
                           int n_threads, int seed, const Estimate& estimate) {
  check_same_size("data_values", data_values.size(), data_locs.size(), "location");
  const partition_sampler sampler(data_locs, max_distance, max_size, sizes, "n_partition_size");
  const std::vector<double> data = standardized(data_values, compute_moments(data_values));
  check_memory("n_partition_size", static_cast<double>(data.size()) * sizes.n_partitions);
  auto validators = create_validators<Scratch>(n_threads, seed);
  error_table errors(data.size(), std::vector<double>(to_size(sizes.n_partitions), not_a_number));
  parallel_for(data.size(), n_threads, [&](std::size_t i, int thread_number) {
    validator<Scratch>& mine = validators[to_size(thread_number)];
    mine.partitions.clear();
    sampler.draw(i, mine.engine, mine.candidates, mine.partitions);
    if (mine.partitions.size() > 0) estimate(i, data, mine.partitions, mine.own, errors[i]);
  });
  return errors;
}

error_table validate_kriging(const location_list& data_locs, const std::vector<double>& data_values,
                             const std::vector<Covariance>& covs, std::optional<double> mean,
                             double max_distance, int max_size, const partition_sizes& sizes,
                             int n_threads, int seed) {
  const detail::kriging_model model(covs);
  const auto estimate = [&](std::size_t i, const std::vector<double>& data,
                            const partition_list& partitions, detail::kriging_system& system,
                            std::vector<double>& row) {
    for (std::size_t k = 0; k < row.size(); ++k) {
      row[k] = detail::krige(model, mean, data_locs, data, partitions[k], data_locs[i], system) -
               data[i];
    }
  };
  return cross_validate<detail::kriging_system>(data_locs, data_values, max_distance, max_size,
                                                sizes, n_threads, seed, estimate);
}

/// 1 / (1 - covariance) for each covariance, -1 where that distance is too short to count.
///
/// A pass of its own: the division is the dearest step of a weight, and here it vectorises.
GRAVELOX_VECTOR_CLONES void take_reciprocals(const double* covariances, std::size_t n,
                                             double* reciprocals) {
  for (std::size_t i = 0; i < n; ++i) {
    const double g = 1.0 - covariances[i];
    reciprocals[i] = g > threshold ? 1.0 / g : -1.0;
  }
}

/// What a thread needs to validate at several scales.
struct multi_scale_scratch {
  nei_buffer neighbors;
  std::vector<std::size_t> members;
  cell_thinning thinning;
  detail::kriging_system system;
};

}  // namespace

idw_validation::idw_validation(const std::vector<Covariance>& covs, double power_a)
    : cov_(create_cov_computer(covs)), f_(create_power_function(power_a)) {}

void idw_validation::operator()(const location_list& data_locs, std::span<const double> data,
                                std::size_t sample, const partition_list& partitions,
                                std::size_t first, scratch& buffer,
                                std::span<double> errors) const {
  // The partitions of a sample lie side by side: their covariances are worked out in one go.
  const std::size_t begin = first == 0 ? 0 : partitions.ends[first - 1];
  const std::size_t end = partitions.ends[first + errors.size() - 1];
  const auto members = std::span(partitions.members).subspan(begin, end - begin);
  buffer.lags.set(data_locs, members, data_locs[sample], data_locs[sample]);
  buffer.reciprocals.resize(members.size());
  double* reciprocals = buffer.reciprocals.data();
  take_reciprocals(cov_.to_target(buffer.lags), members.size(), reciprocals);
  const power_function f = f_;
  std::size_t i = 0;
  for (std::size_t k = 0; k < errors.size(); ++k) {
    double sum = 0.0;
    double weights = 0.0;
    for (; i < partitions.ends[first + k] - begin; ++i) {
      if (reciprocals[i] < 0.0) continue;
      const double weight = f(reciprocals[i]);
      sum += weight * data[members[i]];
      weights += weight;
    }
    errors[k] = weights > threshold ? sum / weights - data[sample] : not_a_number;
  }
}

error_table kfold_cross_validation_using_idw(const location_list& data_locs,
                                             const std::vector<double>& data_values,
                                             const std::vector<Covariance>& covs,
                                             double max_distance, int max_size, double power_a,
                                             int min_partition_size, int max_partition_size,
                                             int n_partition_size, int n_threads, int seed) {
  const idw_validation validate(covs, power_a);
  const auto estimate = [&](std::size_t i, const std::vector<double>& data,
                            const partition_list& partitions, idw_validation::scratch& buffer,
                            std::vector<double>& row) {
    validate(data_locs, data, i, partitions, 0, buffer, row);
  };
  return cross_validate<idw_validation::scratch>(
      data_locs, data_values, max_distance, max_size,
      {min_partition_size, max_partition_size, n_partition_size}, n_threads, seed, estimate);
}

error_table kfold_cross_validation_using_sk(const location_list& data_locs,
                                            const std::vector<double>& data_values,
                                            const std::vector<Covariance>& covs,
                                            double max_distance, int max_size,
                                            int min_partition_size, int max_partition_size,
                                            int n_partition_size, int n_threads, int seed) {
  return validate_kriging(data_locs, data_values, covs, 0.0, max_distance, max_size,
                          {min_partition_size, max_partition_size, n_partition_size}, n_threads,
                          seed);
}

error_table kfold_cross_validation_using_ok(const location_list& data_locs,
                                            const std::vector<double>& data_values,
                                            const std::vector<Covariance>& covs,
                                            double max_distance, int max_size,
                                            int min_partition_size, int max_partition_size,
                                            int n_partition_size, int n_threads, int seed) {
  return validate_kriging(data_locs, data_values, covs, std::nullopt, max_distance, max_size,
                          {min_partition_size, max_partition_size, n_partition_size}, n_threads,
                          seed);
}

double multi_scale_cross_validation_error(
    const location_list& data_locs, const std::vector<double>& data,
    const std::vector<Covariance>& cov, double range1, double range2, double range3,
    const std::vector<double>& scales, int max_size, double max_radius, int max_neis_octant,
    int n_threads, int seed, const std::vector<int>& dhids, int max_neis_by_dhid) {
  check_same_size("data", data.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  check_not_empty("scales", scales.size());
  check_scales("scales", scales);
  const Ellipsoid ellipsoid(range1, range2, range3, 90.0, 0.0, 0.0);
  const Neighborhood neighborhood(data_locs, ellipsoid);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_size, max_radius,
                                              max_neis_octant, dhids, max_neis_by_dhid);
  const detail::kriging_model model(cov);
  const std::vector<double> values = standardized(data, compute_moments(data));
  auto validators = create_validators<multi_scale_scratch>(n_threads, seed);
  std::vector<double> errors(data.size(), not_a_number);
  parallel_for(data.size(), n_threads, [&](std::size_t i, int thread_number) {
    validator<multi_scale_scratch>& mine = validators[to_size(thread_number)];
    auto& [neighbors, members, thinning, system] = mine.own;
    std::vector<std::size_t> neis = getter(data_locs[i], neighbors);
    std::erase(neis, i);
    if (neis.size() <= 2) return;
    errors[i] = 0.0;
    for (const double scale : scales) {
      shuffle(neis, mine.engine);
      thinning.restart(scale);
      members.clear();
      for (const std::size_t nei : neis) {
        if (thinning.takes(ellipsoid.forward(data_locs[nei]))) members.push_back(nei);
      }
      const double estimate =
          detail::krige(model, 0.0, data_locs, values, members, data_locs[i], system);
      errors[i] += std::abs(estimate - values[i]) / static_cast<double>(scales.size());
    }
  });
  std::erase_if(errors, [](double error) { return std::isnan(error); });
  return errors.empty() ? not_a_number : compute_moments(errors).mean;
}

}  // namespace gravelox
