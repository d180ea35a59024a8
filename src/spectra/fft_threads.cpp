// SPDX-License-Identifier: MIT
#include "spectra/fft_threads.hpp"

#include <fftw3.h>
#include <omp.h>
#include <pthread.h>

#include "common/threads.hpp"

namespace gravelox {

namespace {

bool fft_threads_ready = false;

}  // namespace

std::recursive_mutex& fft_mutex() {
  static std::recursive_mutex mutex;
  return mutex;
}

void ready_fft_threads() {
  if (fft_threads_ready) return;
  fftw_init_threads();
  // The library keeps its threads from one transform to the next, and a forked process has none of
  // them: it would wait for them for ever.
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
  fftw_plan_with_nthreads(check_n_threads(n_threads));
}

}  // namespace gravelox
