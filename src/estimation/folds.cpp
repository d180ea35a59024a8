// SPDX-License-Identifier: MIT
#include "estimation/folds.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/random.hpp"
#include "common/text.hpp"
#include "estimation/cell_thinning.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

namespace {

/// 0 to n - 1.
std::vector<std::size_t> counted(std::size_t n) {
  std::vector<std::size_t> indices(n);
  std::iota(indices.begin(), indices.end(), std::size_t{0});
  return indices;
}

/// Sample indices by falling value.
std::vector<std::size_t> rank_by_value(const std::vector<double>& values) {
  std::vector<std::size_t> ranks = counted(values.size());
  std::stable_sort(ranks.begin(), ranks.end(),
                   [&](std::size_t i, std::size_t j) { return values[i] > values[j]; });
  return ranks;
}

fold pick(const location_list& data_locs, const std::vector<double>& data,
          const std::vector<std::size_t>& samples) {
  fold picked;
  for (const std::size_t sample : samples) {
    picked.first.push_back(data_locs[sample]);
    picked.second.push_back(data[sample]);
  }
  return picked;
}

/// The samples that are the first of their cell, in the order of a random walk.
std::vector<std::size_t> thin_out(const location_list& isotropic_locs, double scale,
                                  random_engine& engine) {
  std::vector<std::size_t> walk = counted(isotropic_locs.size());
  shuffle(walk, engine);
  cell_thinning thinning;
  thinning.restart(scale);
  std::erase_if(walk, [&](std::size_t i) { return !thinning.takes(isotropic_locs[i]); });
  return walk;
}

}  // namespace

fold_list create_folds(const location_list& data_locs, const std::vector<double>& data_values,
                       double max_distance, int max_size, int n_centers, std::int64_t seed) {
  check_fold_samples("data_values", data_locs, data_values);
  check_at_least("n_centers", n_centers, 0);
  constexpr double least_size = 10.0;
  check_memory("n_centers", n_centers * least_size);
  const std::size_t n = data_locs.size();
  random_engine engine = create_engine(seed);
  const std::vector<std::size_t> ranks = rank_by_value(data_values);
  const Neighborhood neighborhood(data_locs);
  const bool by_radius = max_size < 1 || to_size(max_size) >= n;
  fold_list folds;
  neighbor_buffer candidates;
  for (int i = 0; i < n_centers; ++i) {
    const location& center = data_locs[ranks[i == 0 ? 0 : engine() % (n / 2 + 1)]];
    if (by_radius) {
      neighborhood.find_neighbors(center, max_distance, candidates);
    } else {
      neighborhood.find_neighbors(center, max_size, candidates);
    }
    candidates.ids.resize(candidates.n_found);
    std::erase_if(candidates.ids, [&](std::size_t sample) {
      return !((data_locs[sample] - center).norm() <= max_distance);
    });
    if (!candidates.ids.empty()) folds.push_back(pick(data_locs, data_values, candidates.ids));
  }
  if (folds.empty()) folds.emplace_back(data_locs, data_values);
  return folds;
}

fold_list create_folds_using_multiscale(int n_partitions, int min_partition_size,
                                        int max_partition_size, double max_distance,
                                        const std::vector<double>& scales,
                                        const Ellipsoid& search_ellipsoid,
                                        const location_list& data_locs,
                                        const std::vector<double>& data, std::int64_t seed) {
  check_fold_samples("data", data_locs, data);
  check_at_least("n_partitions", n_partitions, 0);
  check_scales("scales", scales);
  const location_list isotropic_locs = search_ellipsoid.forward(data_locs, 1);
  check_finite("data_locs in the space of search_ellipsoid", isotropic_locs);
  random_engine engine = create_engine(seed);
  fold_list folds;
  for (const double scale : scales) {
    const fold kept = pick(data_locs, data, thin_out(isotropic_locs, scale, engine));
    for (fold& candidate : create_folds(kept.first, kept.second, max_distance, max_partition_size,
                                        n_partitions, engine())) {
      const bool is_large = std::cmp_greater_equal(candidate.first.size(), min_partition_size);
      if (is_large) folds.push_back(std::move(candidate));
    }
  }
  return folds;
}

void check_fold_samples(std::string_view name, const location_list& data_locs,
                        const std::vector<double>& data) {
  check_not_empty("data_locs", data_locs.size());
  check_same_size(name, data.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  for (const double value : data) check_not_nan(name, value);
}

void check_folds(std::string_view name, const fold_list& folds) {
  check_not_empty(name, folds.size());
  for (std::size_t i = 0; i < folds.size(); ++i) {
    const std::string which = text_of(name, "[", i, "]");
    check_same_size(which, folds[i].second.size(), folds[i].first.size(), "location");
    check_finite(which, folds[i].first);
  }
}

}  // namespace gravelox
