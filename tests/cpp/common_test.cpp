// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/power.hpp"

namespace gravelox {
namespace {

TEST(ParallelFor, GivesEachThreadOneBlock) {
  for (const int n_threads : {0, 1, 2, 3, -1}) {
    const auto slots = static_cast<int>(n_thread_slots(n_threads));
    std::vector<int> visits(1001, 0);
    std::vector<int> thread_of(1001, -1);
    parallel_for(1001, n_threads, [&](std::size_t i, int thread) {
      ++visits[i];
      thread_of[i] = thread;
    });
    EXPECT_EQ(visits, std::vector<int>(1001, 1));
    EXPECT_TRUE(std::is_sorted(thread_of.begin(), thread_of.end()));
    EXPECT_EQ(thread_of.front(), 0);
    EXPECT_EQ(thread_of.back(), slots - 1);
  }
  parallel_for(0, 0, [](std::size_t, int) { ADD_FAILURE(); });
}

TEST(ParallelFor, OneThreadOrOneIndexOpensNoRegion) {
  int calls = 0;
  const auto body = [&](std::size_t, int thread) {
    ++calls;
    EXPECT_EQ(thread, 0);
    EXPECT_EQ(omp_get_level(), 0);
  };
  parallel_for(100, 1, body);
  parallel_for(1, 0, body);
  EXPECT_EQ(calls, 101);
}

TEST(ParallelFor, ALoopInALoopStaysOnItsThread) {
  std::vector<int> visits(2000, 0);
  parallel_for(50, 2, [&](std::size_t i, int) {
    const auto caller = std::this_thread::get_id();
    parallel_for(40, 2, [&](std::size_t j, int thread) {
      EXPECT_EQ(thread, 0);
      EXPECT_EQ(std::this_thread::get_id(), caller);
      ++visits[i * 40 + j];
    });
  });
  EXPECT_EQ(visits, std::vector<int>(2000, 1));
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

TEST(Checks, NameTheArgumentAndWhatIsWrong) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  const std::vector<std::pair<std::function<void()>, std::string>> cases{
      {[] { check_same_size("data", 118, 120, "location"); },
       "120 values, one per location, got 118"},
      {[] { check_not_empty("data", 0); }, "at least 1 value, got 0"},
      {[] { check_positive("data", 0.0); }, "a positive number, got 0"},
      {[=] { check_positive("data", nan); }, "a positive number, got nan"},
      {[=] { check_positive("data", infinity); }, "a positive number, got inf"},
      {[] { check_at_least("data", -1, 0); }, "at least 0, got -1"},
      {[] { check_index("data", -1, 5); }, "an index from 0 to below 5, got -1"},
      {[] { check_index("data", 5, 5); }, "an index from 0 to below 5, got 5"},
      {[=] { check_finite("data", -infinity); }, "a finite number, got -inf"},
      {[=] {
         check_finite("data", std::vector{1.0, nan, nan});
       },
       "finite numbers, got nan at position 1"},
      {[=] { check_finite("data", location(1, nan, 2)); }, "finite coordinates, got (1, nan, 2)"},
      {[=] {
         check_finite("data", location_list{{1, 2, 3}, {1, 2, infinity}});
       },
       "finite coordinates, got (1, 2, inf) at position 1"},
  };
  for (const auto& [check, message] : cases) {
    try {
      check();
      ADD_FAILURE() << "passed: " << message;
    } catch (const std::invalid_argument& error) {
      EXPECT_EQ(error.what(), "data: expected " + message);
    }
  }
  EXPECT_NO_THROW(check_index("data", 4, 5));
  EXPECT_NO_THROW(check_at_least("data", 3, 3));
}

TEST(Integer, RefusesWhatDoesNotFit) {
  EXPECT_EQ(to_int(2147483647U), 2147483647);
  EXPECT_THROW(to_int(2147483648U), std::invalid_argument);
}

TEST(Power, WholeExponentsAreProducts) {
  EXPECT_EQ(create_power_function(3.0 + 9e-7)(1.1), 1.1 * 1.1 * 1.1);
  EXPECT_EQ(create_power_function(2.0 - 9e-7)(1.1), 1.1 * 1.1);
  EXPECT_EQ(create_power_function(1.0 + 9e-7)(1.1), 1.1);
  for (const double exponent : {3.0 + 2e-6, 2.0 - 2e-6, 1.0 - 2e-6, 0.0, -1.0, 2.5}) {
    EXPECT_EQ(create_power_function(exponent)(1.1), std::pow(1.1, exponent));
  }
}

}  // namespace
}  // namespace gravelox
