// SPDX-License-Identifier: MIT
#pragma once

// The one place that opens a parallel region for a loop over result slots.

#include <omp.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <mutex>

#include "common/threads.hpp"

namespace gravelox {

/// The number of buffers that a loop with this request needs, one a thread: at least 1, and at
/// least every thread number that parallel_for hands out, plus one.
inline std::size_t n_thread_slots(int n_threads) {
  return static_cast<std::size_t>(std::max(check_n_threads(n_threads), 1));
}

/// The threads that a parallel region has when nothing else is said; parallel_for uses no more of
/// them than the hardware has.
inline int default_n_threads() { return omp_get_max_threads(); }

/// The number of the calling thread in the innermost parallel region, 0 outside of all.
inline int current_thread_number() { return omp_get_thread_num(); }

/// Keeps the exception of the lowest index among those thrown by the iterations of a loop.
class first_exception {
 public:
  void keep(std::size_t index) {
    const std::lock_guard lock(mutex_);
    if (!exception_ || index < index_) {
      exception_ = std::current_exception();
      index_ = index;
    }
  }

  void rethrow() const {
    if (exception_) std::rethrow_exception(exception_);
  }

 private:
  std::mutex mutex_;
  std::exception_ptr exception_;
  std::size_t index_ = 0;
};

/// Calls body(index, thread_number) for each index in 0..n-1, in contiguous blocks of indices, one
/// block a thread, on check_n_threads(n_threads) threads.
///
/// Thread numbers run from 0 and stay below n_thread_slots(n_threads). A loop of one thread or one
/// index opens no region at all, so that a process forked after a parallel run can still call it;
/// a loop inside another loop's body runs on the calling thread. An exception in a body lets the
/// loop end; the one of the lowest index is then thrown on the calling thread.
template <typename Body>
void parallel_for(std::size_t n, int n_threads, const Body& body) {
  first_exception failure;
  const auto guarded_body = [&](std::size_t index, int thread_number) {
    try {
      body(index, thread_number);
    } catch (...) {
      failure.keep(index);
    }
  };
  const std::size_t threads = omp_in_parallel() ? 1 : std::min(n_thread_slots(n_threads), n);
  if (threads <= 1) {
    for (std::size_t i = 0; i < n; ++i) guarded_body(i, 0);
  } else {
    const int region_size = static_cast<int>(threads);
    const auto end = static_cast<std::int64_t>(n);
#pragma omp parallel for num_threads(region_size) schedule(static)
    for (std::int64_t i = 0; i < end; ++i) {
      guarded_body(static_cast<std::size_t>(i), omp_get_thread_num());
    }
  }
  failure.rethrow();
}

}  // namespace gravelox
