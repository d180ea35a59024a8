// SPDX-License-Identifier: MIT
#include "common/threads.hpp"

#include <thread>

namespace gravelox {

int check_n_threads(int n_threads) {
  const unsigned hardware = std::thread::hardware_concurrency();
  // Read as unsigned, a negative request is larger than any hardware count.
  const auto requested = static_cast<unsigned>(n_threads);
  return static_cast<int>(requested == 0 || requested > hardware ? hardware : requested);
}

}  // namespace gravelox
