// SPDX-License-Identifier: MIT
#include "estimation/random_partitions.hpp"

#include <algorithm>
#include <numeric>

#include "common/checks.hpp"
#include "common/integer.hpp"

namespace gravelox {

void partition_list::clear() {
  members.clear();
  ends.clear();
}

std::span<const std::uint32_t> partition_list::operator[](std::size_t partition) const {
  const std::size_t begin = partition == 0 ? 0 : ends[partition - 1];
  return std::span(members).subspan(begin, ends[partition] - begin);
}

partition_sampler::partition_sampler(const location_list& data_locs, double max_distance,
                                     int max_size, const partition_sizes& sizes,
                                     std::string_view count_name)
    : data_locs_(data_locs),
      max_distance_(max_distance),
      max_size_(max_size),
      least_size_(static_cast<std::uint32_t>(sizes.min_partition_size)),
      n_sizes_(static_cast<std::uint32_t>(sizes.max_partition_size) - least_size_ + 1),
      n_partitions_(sizes.n_partitions) {
  check_finite("data_locs", data_locs);
  check_at_least(count_name, sizes.n_partitions, 0);
  check_at_least("min_partition_size", sizes.min_partition_size, 0);
  if (n_sizes_ == 0) {
    refuse("max_partition_size", "at least min_partition_size, " + std::to_string(least_size_),
           sizes.max_partition_size);
  }
  const bool takes_all = max_size >= 1 && to_size(max_size) >= data_locs.size();
  if (!takes_all) neighborhood_.emplace(data_locs);
}

void partition_sampler::find_candidates(std::size_t sample, scratch& buffer) const {
  const location& center = data_locs_[sample];
  buffer.candidates.clear();
  const auto add_if_close = [&](std::size_t other) {
    if (other != sample && (data_locs_[other] - center).norm() < max_distance_) {
      buffer.candidates.push_back(static_cast<std::uint32_t>(other));
    }
  };
  if (!neighborhood_) {
    for (std::size_t i = 0; i < data_locs_.size(); ++i) add_if_close(i);
    return;
  }
  if (max_size_ < 1) {
    neighborhood_->find_neighbors(center, max_distance_, buffer.neighbors);
  } else {
    neighborhood_->find_neighbors(center, max_size_, buffer.neighbors);
  }
  const auto found = std::span(buffer.neighbors.ids).first(buffer.neighbors.n_found);
  for (const std::size_t i : found) add_if_close(i);
}

void partition_sampler::draw(std::size_t sample, random_engine& engine, scratch& buffer,
                             partition_list& list) const {
  find_candidates(sample, buffer);
  std::vector<std::uint32_t>& candidates = buffer.candidates;
  if (candidates.size() <= 2) return;
  for (int k = 0; k < n_partitions_; ++k) {
    const std::size_t size = engine() % n_sizes_ + std::size_t{least_size_};
    shuffle(candidates, engine);
    const auto end =
        candidates.begin() + static_cast<std::ptrdiff_t>(std::min(size, candidates.size()));
    list.members.insert(list.members.end(), candidates.begin(), end);
    list.ends.push_back(list.members.size());
  }
}

}  // namespace gravelox
