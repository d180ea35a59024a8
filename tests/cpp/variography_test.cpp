// SPDX-License-Identifier: MIT
// What scripts do not reach of kernels, models and maps: text, tables, derivatives, every lag.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/integer.hpp"
#include "common/number.hpp"
#include "common/random.hpp"
#include "variography/cov_computer.hpp"
#include "variography/covariance.hpp"
#include "variography/differentiable_covariance.hpp"
#include "variography/kernel_table.hpp"
#include "variography/variogram_map.hpp"

namespace gravelox {
namespace {

using type = covariance_type;

const location lag(2, 1.5, -0.7);

Covariance structure(type label) { return {label, 2.5, Ellipsoid(10, 6, 3, 30, -20, 40)}; }

TEST(CovarianceType, WhatIsNotListedIsANugget) {
  int number = 0;
  for (const char* word : {"spherical", "gaussian", "exponential", "nugget", "idw"}) {
    EXPECT_EQ(static_cast<int>(to_covariance_type(word)), ++number);
  }
  EXPECT_EQ(to_covariance_type("Idw"), type::nugget);
  for (const int other : {-1, 0, 6}) EXPECT_EQ(to_text(static_cast<type>(other)), "nugget");
}

TEST(Kernel, ThresholdsOfNuggetAndInverseDistance) {
  EXPECT_EQ(create_cov_kernel<double>(type::nugget)(std::nextafter(1e-30, 0.0)), 1.0);
  EXPECT_EQ(create_cov_kernel<jet>(type::nugget)(jet(1e-30)).a, 0.0);
  EXPECT_EQ(Kernel(type::idw)(0.99e-6), 1e6);
  EXPECT_DOUBLE_EQ(Kernel(type::idw)(1e-6), 1e12);
}

TEST(Covariance, Prints) {
  std::ostringstream out;
  out << std::vector<Covariance>{Covariance::nugget(3), structure(type::gaussian)};
  EXPECT_EQ(out.str().rfind("[{sill:3,anisotropy:{r1: ", 0), 0U);
  EXPECT_NE(out.str().find("} ,type:nugget},{sill:2.5,anisotropy:{r1: 10.0"), std::string::npos);
}

// The process keeps its tables, so each test has a type of its own.

TEST(KernelTable, ServesSmallerRequestsWithItsOwnSteps) {
  const Covariance cov = structure(type::spherical);
  const Kernel fine = get_kernel(cov, 1000);
  const Kernel coarse = get_kernel(cov, 10);
  for (const double h : {0.0, 0.0625, 0.35, 0.99}) {
    EXPECT_EQ(fine(h), cov.kernel(std::trunc(1000 * h) / 1000)) << h;
    EXPECT_EQ(coarse(-h), cov.kernel(std::trunc(10 * h) / 1000)) << h;
  }
  for (const double h : {1.0, 3e6, 1e300, HUGE_VAL, -HUGE_VAL}) EXPECT_EQ(fine(h), 0.0) << h;
  const location beyond_half = 0.505 * cov.ellipsoid.major_axis();
  EXPECT_EQ(create_cov_computer({cov, cov}, 10)(beyond_half), 5.0 * cov.kernel(5.0 / 1000));
}

TEST(KernelTable, FormulaBeyondTheTable) {
  const Kernel kernel = get_kernel(structure(type::gaussian), 8);
  EXPECT_EQ(kernel(0.9999), std::exp(-3 * 0.875 * 0.875));
  EXPECT_DOUBLE_EQ(kernel(-1.25), std::exp(-3 * 1.25 * 1.25));
  for (const double h : {1e9, 1e300, HUGE_VAL}) EXPECT_EQ(kernel(h), 0.0) << h;
  EXPECT_TRUE(std::isnan(kernel(std::nan(""))));
}

TEST(KernelTable, LabelChoosesTheTableAndTheKernelFillsIt) {
  const auto own = [](type label) {
    return Covariance(label, 1.0, Ellipsoid(1, 1, 1, 0, 0, 0), Kernel([](double h) { return h; }));
  };
  EXPECT_EQ(get_kernel(own(type::exponential), 64)(0.51), 0.5);
  EXPECT_DOUBLE_EQ(get_kernel(own(type::exponential), 64)(2.0), std::exp(-6));
  EXPECT_EQ(get_kernel(structure(type::exponential), 64)(0.51), 0.5);
  for (const type label : {type::nugget, type::idw, static_cast<type>(9)}) {
    EXPECT_EQ(get_kernel(own(label), 4)(0.3), 0.3);
  }
  EXPECT_THROW(get_kernel(structure(type::exponential), -1), std::invalid_argument);
}

TEST(DifferentiableCovariance, DerivativesAreThoseOfFiniteDifferences) {
  const std::array<double, 7> at{10, 6, 3, 30, -20, 40, 2.5};
  for (const type label : {type::spherical, type::gaussian, type::exponential, type::idw}) {
    const auto value = [&](int k, double step) {
      auto p = at;
      p[k] += step;
      return create_cov<double>(label, p[0], p[1], p[2], p[3], p[4], p[5], p[6])(lag);
    };
    std::array<jet, 7> p;
    for (int k = 0; k < 7; ++k) p[k] = jet(at[k], k);
    const auto cov = create_cov<jet>(label, p[0], p[1], p[2], p[3], p[4], p[5], p[6]);
    const jet result = cov(lag.cast<jet>());
    EXPECT_NEAR(result.a, structure(label)(lag), 1e-12) << to_text(label);
    for (int k = 0; k < 7; ++k) {
      const double slope = (value(k, 1e-5) - value(k, -1e-5)) / 2e-5;
      EXPECT_NEAR(result.v[k], slope, 1e-7) << to_text(label) << " " << k;
    }
  }
  const auto unit = create_cov<double>(type::gaussian, 10, 1, 1, 0, 0, 0, 1);
  EXPECT_EQ(create_cov<double>(type::gaussian, 10, 0, -4, 0, 0, 0, 1)(lag), unit(lag));
}

TEST(NestedCovariance, AddsStructuresAndANuggetAtShortLags) {
  const generic_cov_structure<double> a{type::spherical, 10, 6, 3, 30, -20, 40, 2.5};
  const generic_cov_structure<double> b{type::nugget, 1, 1, 1, 0, 0, 0, 0.25};
  const auto nested = create_nested_cov<double>({a, b, a}, 0.5);
  EXPECT_EQ(nested(location(0, 0, 0)), 5.75);
  EXPECT_NEAR(nested(location(0.99e-10, 0, 0)) - nested(location(1.01e-10, 0, 0)), 0.5, 1e-8);
  EXPECT_NEAR(nested(lag), 2 * structure(type::spherical)(lag), 1e-12);
  EXPECT_EQ(create_nested_cov<jet>({}, jet(0.5, 0))((1e-11 * lag).cast<jet>()).v[0], 1.0);
}

void check_map(const std::vector<double>& values, const cell_triple& counts, int part) {
  const auto [nx, ny, nz] = counts;
  const cell_triple reach((nx - 1) / part, (ny - 1) / part, (nz - 1) / part);
  const variogram_map map = compute_variogram_map(values, counts, reach, 2);
  std::map<cell_triple, std::pair<double, int>> pairs;
  for (int a = 0; a < nx * ny * nz; ++a) {
    for (int b = 0; b < nx * ny * nz; ++b) {
      const cell_triple h(a / nz / ny - b / nz / ny, a / nz % ny - b / nz % ny, a % nz - b % nz);
      const double step = values[to_size(a)] - values[to_size(b)];
      pairs[h].first += std::isnan(step) ? 0.0 : 0.5 * step * step;
      pairs[h].second += std::isnan(step) ? 0 : 1;
    }
  }
  for (const auto& [h, expected] : pairs) {
    const auto [i, j, k] = h;
    if (cell_triple(i * part / nx, j * part / ny, k * part / nz) != cell_triple(0, 0, 0)) continue;
    EXPECT_EQ(map.n_pairs(i, j, k), expected.second) << i << " " << j << " " << k;
    EXPECT_NEAR(map.value(i, j, k), expected.first / std::max(expected.second, 1), 1e-9);
  }
}

TEST(VariogramMap, IsThatOfAllPairsOfCells) {
  random_engine engine = create_engine(7);
  for (const auto& [nx, ny, nz] : {cell_triple(5, 4, 3), {1, 7, 2}, {13, 1, 11}, {1, 1, 1}}) {
    for (const double missing : {0.0, 0.4, 1.0}) {
      std::vector<double> values(to_size(nx * ny * nz));
      for (double& value : values) {
        value = uniform01(engine) < missing ? std::nan("") : 1e6 + uniform01(engine);
      }
      for (const int part : {1, 2}) check_map(values, {nx, ny, nz}, part);
    }
  }
}

}  // namespace
}  // namespace gravelox
