// SPDX-License-Identifier: MIT
#pragma once

// Random subsets of the samples around a sample, from which cross-validation estimates it.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "common/location.hpp"
#include "common/random.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

/// How large the partitions are, both ends included, and how many each sample has.
struct partition_sizes {
  int min_partition_size;
  int max_partition_size;
  int n_partitions;
};

/// Partitions one after another: their members, and where each of them ends.
struct partition_list {
  std::vector<std::uint32_t> members;
  std::vector<std::size_t> ends;

  void clear();

  /// The number of partitions.
  std::size_t size() const { return ends.size(); }

  /// The members of one.
  std::span<const std::uint32_t> operator[](std::size_t partition) const;
};

/// Draws the partitions of a sample out of its candidates: those of a search around it, itself
/// excepted, that are strictly closer than max_distance. The search takes the max_size nearest; all
/// samples in order where max_size is at least their number; all it finds within max_distance where
/// it is below 1.
///
/// It refers to the locations, which must outlive it. Many threads may draw at once, each with its
/// own scratch.
class partition_sampler {
 public:
  struct scratch {
    neighbor_buffer neighbors;
    std::vector<std::uint32_t> candidates;
  };

  /// Throws std::invalid_argument for locations that are not finite, a negative number of
  /// partitions, a negative min_partition_size, and a max_partition_size one below it, whose range
  /// holds no size; a smaller one wraps around to sizes that take all candidates. The argument that
  /// gives the number of partitions has the name `count_name`.
  partition_sampler(const location_list& data_locs, double max_distance, int max_size,
                    const partition_sizes& sizes, std::string_view count_name);

  /// Appends the n_partitions partitions of a sample to the list; none where it has fewer than
  /// three candidates. For each, one word of the engine gives the size, then the candidates are
  /// shuffled, on top of the shuffles before, and the first of them are taken.
  void draw(std::size_t sample, random_engine& engine, scratch& buffer, partition_list& list) const;

 private:
  void find_candidates(std::size_t sample, scratch& buffer) const;

  const location_list& data_locs_;
  double max_distance_;
  int max_size_;
  std::uint32_t least_size_;
  std::uint32_t n_sizes_;
  int n_partitions_;
  /// Not there where all samples are candidates.
  std::optional<Neighborhood> neighborhood_;
};

}  // namespace gravelox
