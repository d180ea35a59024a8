// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/robust_power.hpp"

namespace gravelox {
namespace {

TEST(ParallelFor, GivesEachThreadOneBlock) {
  for (const int n_threads : {0, 1, 2, 3, -1}) {
    std::atomic<int> calls = 0;
    std::vector<int> thread_of(1001, -1);
    parallel_for(1001, n_threads, [&](std::size_t i, int thread) {
      ++calls;
      thread_of[i] = thread;
    });
    EXPECT_EQ(calls, 1001);
    EXPECT_TRUE(std::is_sorted(thread_of.begin(), thread_of.end()));
    EXPECT_EQ(thread_of.front(), 0);
    EXPECT_EQ(thread_of.back(), static_cast<int>(n_thread_slots(n_threads)) - 1);
  }
  parallel_for(0, 0, [](std::size_t, int) { ADD_FAILURE(); });
}

TEST(ParallelFor, OneThreadOneIndexAndALoopInALoopStayOnTheCaller) {
  std::atomic<int> calls = 0;
  const auto loop = [&calls](std::size_t n, int n_threads) {
    const int level = omp_get_level();
    const auto caller = std::this_thread::get_id();
    parallel_for(n, n_threads, [&](std::size_t, int thread) {
      ++calls;
      EXPECT_EQ(thread, 0);
      EXPECT_EQ(omp_get_level(), level);
      EXPECT_EQ(std::this_thread::get_id(), caller);
    });
  };
  loop(100, 1);
  loop(1, 0);
  parallel_for(50, 2, [&](std::size_t, int) { loop(40, 2); });
  EXPECT_EQ(calls, 2101);
}

TEST(ParallelFor, ThrowsTheExceptionOfTheLowestIndexAfterTheLoop) {
  for (const int n_threads : {1, 2, 2, 2, 2}) {
    std::atomic<int> done = 0;
    const auto body = [&](std::size_t i, int) {
      if (i % 300 == 299) throw std::out_of_range(std::to_string(i));
      ++done;
    };
    try {
      parallel_for(1000, n_threads, body);
      ADD_FAILURE() << "nothing thrown";
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), "299");
    }
    if (n_thread_slots(n_threads) > 1) {
      EXPECT_EQ(done, 997);
    }
  }
}

// The pinned values come from the same draws in plain Python, over the words of numpy's Mersenne
// Twister. Seeds, uniforms and normals are compared in tests/python/test_random.py.
class RandomTest : public testing::Test {
 protected:
  random_engine engine = create_engine(2024);
};

TEST_F(RandomTest, NormalOfAPointNearTheCentre) {
  // Both sides of the branch at a squared radius of 1e-4, down to squares that underflow.
  for (const double scale : {0.1, 0.02, 0.01, 0.004, 1e-4, 1e-100, 1e-200, 1e-300}) {
    const double radius = std::hypot(0.6 * scale, 0.7 * scale);
    const double length = std::sqrt(-4.0 * std::log(radius));
    double second = 0.7 * scale;
    const double first = normal_distribution::from_point(-0.6 * scale, second);
    EXPECT_NEAR(first, length * -0.6 * scale / radius, 1e-13 * length);
    EXPECT_NEAR(second, length * 0.7 * scale / radius, 1e-13 * length);
  }
}

TEST_F(RandomTest, FloatNormalAndGamma) {
  float_normal_distribution normal;
  EXPECT_FLOAT_EQ(normal(engine), 0.5056394338607788F);
  EXPECT_FLOAT_EQ(normal(engine), 1.4773348569869995F);
  engine = create_engine(2024);
  EXPECT_DOUBLE_EQ(gamma(engine, 1, 1.0), 0x1.1cddafb803411p-2);
  EXPECT_DOUBLE_EQ(gamma(engine, 3, 2.0), 0x1.dead401464afep+0);
  for (const int shape : {0, 20}) EXPECT_THROW(gamma(engine, shape, 1.0), std::invalid_argument);
}

TEST_F(RandomTest, IndexRejectsWhatWouldFavourSomeValues) {
  const std::uint32_t half = 2147483649;  // rejects every second word
  std::vector<std::uint32_t> drawn;
  for (const std::uint32_t range : {1U, 2U, 10U, 1000U, half, half, half, half, 4294967295U}) {
    drawn.push_back(uniform_index(engine, range));
  }
  EXPECT_EQ(drawn, (std::vector<std::uint32_t>{0, 1, 6, 738, 404053261, 1277999890, 440274836,
                                               227768288, 160432443}));
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

TEST(RobustPower, GoesOnAsARootBeyondOne) {
  for (const double x : {-3.0, -1.0, -0.4, 0.0, 1.0, 2.25}) {
    const double size = std::abs(x);
    const double expected = size <= 1.0 ? size : 2.0 * std::sqrt(size) - 1.0;
    EXPECT_DOUBLE_EQ(robust_power(x, 0.5), std::copysign(expected, x));
    const jet at = robust_power(jet(x, 2), 0.5);
    EXPECT_DOUBLE_EQ(at.a, robust_power(x, 0.5));
    EXPECT_DOUBLE_EQ(at.v[2], size <= 1.0 ? 1.0 : 1.0 / std::sqrt(size));
  }
}

}  // namespace
}  // namespace gravelox
