// SPDX-License-Identifier: MIT
#pragma once

// The thread state of the Fourier transform library, which is process-wide.

#include <mutex>

namespace gravelox {

/// Guards changes of the library's thread state and its planner, neither of which is thread-safe.
/// Whoever plans several transforms in one go may hold it throughout: it is recursive.
std::recursive_mutex& fft_mutex();

/// Readies the library for threads; only the first call does anything. Hold fft_mutex. A process
/// that is forked off later plans for one thread, until it asks for another number itself.
void ready_fft_threads();

/// Sets the number of threads of plans made from now on to check_n_threads(n_threads).
void set_fft_n_threads(int n_threads = 0);

/// The same, and for parallel regions that do not ask for a number as well; hold fft_mutex while
/// the transforms that it is for are planned.
void set_up_fft(int n_threads);

}  // namespace gravelox
