// SPDX-License-Identifier: MIT
// Arrays of transforms, which scripts do not reach.

#include <gtest/gtest.h>

#include <algorithm>
#include <complex>
#include <cstddef>
#include <stdexcept>
#include <tuple>
#include <vector>

#include "common/random.hpp"
#include "spectra/fft_array.hpp"

namespace gravelox::fft {
namespace {

void check_backward(const complex_array& spectrum, array result, const array& signal) {
  const auto n = static_cast<std::size_t>(result.size());
  for (int time = 0; time < 2; ++time) {  // the spectrum is not used up
    backward(spectrum, result);
    for (std::size_t i = 0; i < n; ++i) EXPECT_NEAR(result[i], double(n) * signal[i], 1e-10);
  }
}

TEST(FftArray, TransformsForwardAndBack) {
  random_engine engine = create_engine(3);
  for (const auto& [nx, ny, nz] : {std::tuple(7, 1, 1), {1, 9, 1}, {1, 4, 6}, {3, 4, 5}}) {
    array signal(nx, ny, nz, 0.0);
    std::generate_n(signal.data(), signal.size(), [&engine] { return uniform01(engine); });
    const complex_array spectrum = forward(signal);
    check_backward(spectrum, array(nx, ny, nz, -1.0), signal);
    if (nx > 1) continue;
    complex_array plane(2, ny, nz / 2 + 1, 1);
    std::copy_n(spectrum.data(), spectrum.size(), plane.data());
    check_backward(plane, array(ny, nz, 1, -1.0), signal);
  }
}

TEST(FftArray, CopiesOwnTheirElements) {
  std::vector<double> outside{1, 2, 3, 4};
  array view(outside.data(), 2, 1, 2);
  const array copy = view;
  array assigned(1, 0.0);
  assigned = view;
  view[0] = 9.0;
  EXPECT_EQ(outside[0], 9.0);
  EXPECT_EQ(copy[0] + assigned[0], 2.0);
  complex_array spectrum({1, 2}, {3, 4});
  complex_array later;
  EXPECT_EQ(later.size(), 0);
  later = spectrum;
  spectrum[1] = 0.0;
  EXPECT_EQ(later[1], std::complex(2.0, 4.0));
}

TEST(FftArray, DimensionsAndSizesThatDoNotFit) {
  EXPECT_EQ(array({1, 2, 3, 4, 5, 6}, 1, 2, 3).n_dims(), 2);
  EXPECT_EQ(array(2, 1, 3, 0.5).n_dims(), 3);
  EXPECT_THROW(array(std::vector<double>(5), 1, 2, 3), std::invalid_argument);
  EXPECT_THROW(complex_array({1, 2}, {3}), std::invalid_argument);
  array longer(9, 0.0);
  EXPECT_THROW(backward(complex_array({1, 2}, {3, 4}), longer), std::invalid_argument);
  EXPECT_THROW(backward(forward(array(2, 2, 2, 1.0)), longer), std::invalid_argument);
}

}  // namespace
}  // namespace gravelox::fft
