// SPDX-License-Identifier: MIT
#include "spectra/fft_threads.hpp"

#include <fftw3.h>
#include <omp.h>
#include <pthread.h>

#include <cstddef>

#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/threads.hpp"

namespace gravelox {

namespace {

bool fft_threads_ready = false;

/// Runs the jobs of a transform on the threads of the parallel loops. The library has threads of
/// its own, but two pools take the cores from each other, as both wait busily for work.
void run_jobs(void* (*work)(char*), char* jobs, std::size_t job_size, int n_jobs, void* /*data*/) {
  parallel_for(to_size(n_jobs), n_jobs,
               [&](std::size_t i, int /*thread_number*/) { work(jobs + i * job_size); });
}

}  // namespace

std::recursive_mutex& fft_mutex() {
  static std::recursive_mutex mutex;
  return mutex;
}

void ready_fft_threads() {
  if (fft_threads_ready) return;
  fftw_init_threads();
  fftw_threads_set_callback(&run_jobs, nullptr);
  // A forked process has none of the threads that the parallel loops left behind: it would wait for
  // them for ever.
  pthread_atfork(nullptr, nullptr, [] { fftw_plan_with_nthreads(1); });
  fft_threads_ready = true;
}

void set_fft_n_threads(int n_threads) {
  const std::lock_guard lock(fft_mutex());
  ready_fft_threads();
  fftw_plan_with_nthreads(check_n_threads(n_threads));
}

void set_up_fft(int n_threads) {
  const std::lock_guard lock(fft_mutex());
  ready_fft_threads();
  omp_set_num_threads(check_n_threads(n_threads));
  set_fft_n_threads(n_threads);
}

}  // namespace gravelox
