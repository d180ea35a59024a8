// SPDX-License-Identifier: MIT
#pragma once

// The frame of every local estimator: checks, then one parallel loop over the targets. Private to
// the estimators' sources.

#include <cstddef>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/location.hpp"
#include "common/parallel_for.hpp"
#include "estimation/nei_getter.hpp"

namespace gravelox::detail {

/// What every run demands of its locations and values.
inline void check_samples(const location_list& target_locs, const location_list& data_locs,
                          const std::vector<double>& data) {
  check_same_size("data", data.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  check_finite("target_locs", target_locs);
}

/// Scratch of one thread, away from the cache lines of its neighbours.
template <typename Scratch>
struct alignas(64) thread_scratch {
  nei_buffer neighbors;
  Scratch own;
};

/// Calls body(index, target, neis, scratch) for each target in parallel, neis being the getter's
/// list and scratch the thread's own buffers.
template <typename Scratch, typename Body>
void for_each_target(const location_list& target_locs, const nei_getter& getter, int n_threads,
                     const Body& body) {
  std::vector<thread_scratch<Scratch>> scratch(n_thread_slots(n_threads));
  parallel_for(target_locs.size(), n_threads, [&](std::size_t index, int thread_number) {
    thread_scratch<Scratch>& mine = scratch[to_size(thread_number)];
    const location& target = target_locs[index];
    body(index, target, getter(target, mine.neighbors), mine.own);
  });
}

}  // namespace gravelox::detail
