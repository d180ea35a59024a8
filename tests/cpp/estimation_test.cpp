// SPDX-License-Identifier: MIT
// The order of a getter's list, which no estimate shows.

#include <gtest/gtest.h>

#include <vector>

#include "estimation/nei_getter.hpp"

namespace gravelox {
namespace {

TEST(NeiGetter, KeepsTheNearestFirstThroughBothLimits) {
  location_list samples;  // along a diagonal, in the order 3, 1, 4, 0, 2, 5 from the target
  for (const double step : {4, -2, 5, 1, 3, -6}) samples.push_back(step * location(1, 1, 1));
  const Neighborhood search(samples);
  const std::vector<int> holes{7, 7, 7, -1, 7, 7};
  nei_buffer buffer;
  const auto neighbors = [&](int count, double radius, int octant, int hole) {
    return create_nei_getter(samples, search, count, radius, octant, holes, hole)(location(0, 0, 0),
                                                                                  buffer);
  };
  using ids = std::vector<std::size_t>;
  EXPECT_EQ(neighbors(6, -1, -1, -1), (ids{3, 1, 4, 0, 2, 5}));
  EXPECT_EQ(neighbors(-1, -8, 0, 0), (ids{3, 1, 4, 0}));
  EXPECT_EQ(neighbors(6, -1, 3, -1), (ids{3, 1, 4, 0, 5}));
  for (int round = 0; round < 3; ++round) EXPECT_EQ(neighbors(6, -1, 2, 2), (ids{3, 1, 4}));
}

}  // namespace
}  // namespace gravelox
