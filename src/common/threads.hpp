// SPDX-License-Identifier: MIT
#pragma once

// How a requested number of threads becomes a real one.

namespace gravelox {

/// The number of threads for a request, H being the hardware's count: 1 to H stand as they are; 0,
/// anything above H and every negative request give H. No arithmetic is done on negative requests:
/// -2 is all of H, not H less two. Where the system cannot tell its count (H = 0) the result is 0.
int check_n_threads(int n_threads);

}  // namespace gravelox
