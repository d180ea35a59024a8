// SPDX-License-Identifier: MIT
// White noise from more threads than it has engines, which scripts cannot have.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "common/threads.hpp"
#include "simulation/simulators.hpp"

namespace gravelox {
namespace {

TEST(NuggetSimulator, SharesItsEngines) {
  std::vector<double> found;
  std::vector<double> expected;
  const auto draw = [](const SpatialFunction& field, int n_threads, std::vector<double>& all) {
#pragma omp parallel num_threads(n_threads)
    for (int i = 0; i < 3000; ++i) {
      const double value = field(location::Zero());
#pragma omp critical
      all.push_back(value);
    }
  };
  const int n_engines = check_n_threads(0);
  draw(create_nugget_simulator(1.0, 5), 3 * n_engines + 1, found);
  const SpatialFunction calm = create_nugget_simulator(1.0, 5);
  for (const int n : {n_engines, n_engines, n_engines, 1}) draw(calm, n, expected);
  std::sort(found.begin(), found.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace gravelox
