// SPDX-License-Identifier: MIT
#pragma once

// A noisy experimental variogram, resampled at new lags along the same directions.

#include <cstdint>

#include "variography/experimental_variogram.hpp"

namespace gravelox {

/// New lags, each a mean of the old ones near it, weighted by pair counts and by distance^-power_a.
///
/// Each direction gets n_lags new lags, or as many as it had where n_lags is below 1, at |z| times
/// its greatest lag plus 0.02 max_r, z standard normal. Old lags are the max_n_neis nearest, or
/// all within max_r where that is below 1; those beyond max_r or farther than `bandwidth` from the
/// line through the new lag along its direction are left out. Old lags on the new one (within
/// 1e-30) take the share max_weight where there are others too. Pair counts are averaged in the
/// same way and cut to whole numbers; lags left with none are dropped.
///
/// The engine of `seed` gives sampling_size words away first, then the lengths, direction by
/// direction, from one normal object. The result does not depend on the number of threads. Throws
/// std::runtime_error "No lags..." where there is no new lag to fill and "No lags found" where all
/// stay empty, and std::invalid_argument where sampling_size is negative, words are to pick from a
/// vario without lags, or a number is not finite (bandwidth may be infinite).
experimental_variogram smooth_variogram(const experimental_variogram& vario, int n_lags,
                                        int max_n_neis, double max_r, double bandwidth,
                                        double power_a, double max_weight, int sampling_size,
                                        int n_threads = 0, std::int64_t seed = 123151);

}  // namespace gravelox
