// SPDX-License-Identifier: MIT
#include "common/random.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <stdexcept>
#include <utility>
#include <vector>

// Pinned values come from tests/python/oracles/random_draws.py: the same draws in plain Python over
// the words of numpy's Mersenne Twister, seeded with 2024.

namespace gravelox {
namespace {

class RandomTest : public testing::Test {
 protected:
  random_engine engine = create_engine(2024);
};

TEST_F(RandomTest, UniformTakesTwoWordsLowBitsFirst) {
  for (const double pinned : {0x1.83a99bf52d103p-1, 0x1.7a3d150165f19p-1, 0x1.30b2ec4860557p-1}) {
    EXPECT_EQ(uniform01(engine), pinned);
  }
  engine = create_engine(2024);
  EXPECT_EQ(uniform(engine, -3.0, 5.0), 0x1.83a99bf52d103p-1 * 8.0 - 3.0);
}

TEST_F(RandomTest, ASeedCountsModuloTheWord) {
  EXPECT_EQ(create_engine(-1), random_engine(4294967295U));
  EXPECT_EQ(create_engine(4294967295), random_engine(4294967295U));
}

TEST_F(RandomTest, NormalKeepsTheSecondOfAPair) {
  normal_distribution normal;
  EXPECT_DOUBLE_EQ(normal(engine), 0x1.be915b9625b42p-1);
  EXPECT_DOUBLE_EQ(normal(engine), 0x1.9e9aa4a6c5294p-1);
  EXPECT_DOUBLE_EQ(normal(engine), 0x1.bbd0bd7903adep-3);
}

TEST_F(RandomTest, NormalOfAPointNearTheCentre) {
  // Both sides of the branch at a squared radius of 1e-4, down to squares that underflow.
  const std::vector<std::pair<double, double>> directions{{0.6, 0.7}, {-0.6, 0.1}, {0.01, -0.9}};
  for (const double scale : {0.1, 0.02, 0.01, 0.004, 1e-4, 1e-100, 1e-200, 1e-300}) {
    for (const auto& [x, y] : directions) {
      const double radius = std::hypot(x * scale, y * scale);
      const double length = std::sqrt(-4.0 * std::log(radius));
      double v2 = y * scale;
      const double first = normal_distribution::from_point(x * scale, v2);
      EXPECT_NEAR(first, length * x * scale / radius, 1e-13 * length);
      EXPECT_NEAR(v2, length * y * scale / radius, 1e-13 * length);
    }
  }
}

TEST_F(RandomTest, FloatNormal) {
  float_normal_distribution normal;
  EXPECT_FLOAT_EQ(normal(engine), 0.5056394338607788F);
  EXPECT_FLOAT_EQ(normal(engine), 1.4773348569869995F);
  EXPECT_FLOAT_EQ(normal(engine), 0.8830285668373108F);
}

TEST_F(RandomTest, Gamma) {
  EXPECT_DOUBLE_EQ(gamma(engine, 1, 1.0), 0x1.1cddafb803411p-2);
  EXPECT_DOUBLE_EQ(gamma(engine, 3, 2.0), 0x1.dead401464afep+0);
  EXPECT_DOUBLE_EQ(gamma(engine, 19, 0.5), 0x1.5ff5b104dcd67p+3);
  EXPECT_THROW(gamma(engine, 0, 1.0), std::invalid_argument);
  EXPECT_THROW(gamma(engine, 20, 1.0), std::invalid_argument);
}

TEST_F(RandomTest, IndexRejectsWhatWouldFavourSomeValues) {
  // The fifth range rejects every second word: these eight draws take eleven.
  const std::vector<std::uint32_t> ranges{1,          2,          10,         1000,
                                          2147483649, 2147483649, 2147483649, 2147483649};
  const std::vector<std::uint32_t> pinned{0,         1,          6,         738,
                                          404053261, 1277999890, 440274836, 227768288};
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    EXPECT_EQ(uniform_index(engine, ranges[i]), pinned[i]);
  }
  EXPECT_EQ(uniform_index(engine, 4294967295), 160432443U);
  EXPECT_EQ(engine(), 3123472611U);
  EXPECT_THROW(uniform_index(engine, 0), std::invalid_argument);
}

TEST_F(RandomTest, ShuffleGoesUpwards) {
  std::vector<int> values(12);
  std::iota(values.begin(), values.end(), 0);
  shuffle(values, engine);
  EXPECT_EQ(values, (std::vector<int>{7, 11, 9, 4, 6, 1, 2, 0, 8, 3, 10, 5}));
  EXPECT_EQ(engine(), 160432444U);
}

}  // namespace
}  // namespace gravelox
