// SPDX-License-Identifier: MIT
#include "variography/variogram_map.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "spectra/fft_array.hpp"

namespace gravelox {

namespace {

void check_axis(int count, int reach) {
  check_at_least("counts", count, 1);
  check_at_least("reach", reach, 0);
  check_index("reach", reach, to_size(count));
}

std::size_t width(int reach) { return 2 * to_size(reach) + 1; }

double mean_of_defined(const std::vector<double>& values) {
  double sum = 0.0;
  std::size_t n = 0;
  for (const double value : values) {
    if (std::isnan(value)) continue;
    sum += value;
    ++n;
  }
  return n == 0 ? 0.0 : sum / static_cast<double>(n);
}

/// A grid in an array that is padded with zeros to the lengths of its transforms. All transforms
/// share this one array, since fresh memory is slow at this size.
class padded_grid {
 public:
  padded_grid(const std::vector<double>& values, const cell_triple& counts,
              const cell_triple& reach, int n_threads)
      : values_(values),
        counts_(counts),
        padded_(padded_length(std::get<0>(counts), std::get<0>(reach)),
                padded_length(std::get<1>(counts), std::get<1>(reach)),
                padded_length(std::get<2>(counts), std::get<2>(reach)), 0.0),
        n_threads_(n_threads) {}

  /// The transform of f(value) over the cells that have a value; everywhere else is 0. Not after
  /// `correlation`.
  template <typename F>
  fft::complex_array transform(const F& f) {
    const auto nx = to_size(std::get<0>(counts_));
    const auto ny = to_size(std::get<1>(counts_));
    const auto nz = to_size(std::get<2>(counts_));
    parallel_for(nx, n_threads_, [&](std::size_t i, int /*thread_number*/) {
      for (std::size_t j = 0; j < ny; ++j) {
        const double* row = &values_[(i * ny + j) * nz];
        double* padded_row = &padded_(i, j, 0);
        for (std::size_t k = 0; k < nz; ++k) {
          if (!std::isnan(row[k])) padded_row[k] = f(row[k]);
        }
      }
    });
    return fft::forward(padded_);
  }

  /// Takes a spectrum back; `at_lag` reads the result.
  void correlation(fft::complex_array spectrum) { fft::backward(std::move(spectrum), padded_); }

  /// The correlation at a lag in cells; negative lags wrap around.
  double at_lag(int i, int j, int k) const {
    return padded_(wrapped(i, padded_.nx()), wrapped(j, padded_.ny()), wrapped(k, padded_.nz())) /
           static_cast<double>(padded_.size());
  }

 private:
  static std::int64_t padded_length(int count, int reach) {
    return fft::fast_length(std::int64_t{count} + reach);
  }

  static std::size_t wrapped(int lag, std::int64_t length) {
    return static_cast<std::size_t>(lag < 0 ? lag + length : lag);
  }

  const std::vector<double>& values_;
  cell_triple counts_;
  fft::array padded_;
  int n_threads_;
};

/// With Q the squares, F the values and I the indicator of defined cells, as spectra: the squared
/// differences summed over the pairs of each lag are Q I* + I Q* - 2 F F*, the pairs I I*. Both are
/// real. The first goes to `values`, the second to `indicator`.
void correlate(fft::complex_array& values, const fft::complex_array& squares,
               fft::complex_array& indicator, int n_threads) {
  const auto n_rows = static_cast<std::size_t>(values.nx());
  const std::size_t row_size = n_rows == 0 ? 0 : static_cast<std::size_t>(values.size()) / n_rows;
  parallel_for(n_rows, n_threads, [&](std::size_t row, int /*thread_number*/) {
    for (std::size_t i = row * row_size; i < (row + 1) * row_size; ++i) {
      const std::complex<double> q = squares[i];
      const std::complex<double> n = indicator[i];
      const double cross = q.real() * n.real() + q.imag() * n.imag();
      values[i] = 2.0 * (cross - std::norm(values[i]));
      indicator[i] = std::norm(n);
    }
  });
}

/// The spectra of the sums of squared differences and of the pair counts of all lags.
std::pair<fft::complex_array, fft::complex_array> correlation_spectra(padded_grid& grid,
                                                                      double mean, int n_threads) {
  fft::complex_array values = grid.transform([mean](double value) { return value - mean; });
  const fft::complex_array squares =
      grid.transform([mean](double value) { return (value - mean) * (value - mean); });
  fft::complex_array indicator = grid.transform([](double /*value*/) { return 1.0; });
  correlate(values, squares, indicator, n_threads);
  return {std::move(values), std::move(indicator)};
}

/// Calls body(i, j, k) for each lag within the reach, in parallel over i.
template <typename Body>
void for_each_lag(const cell_triple& reach, int n_threads, const Body& body) {
  const int reach_x = std::get<0>(reach);
  const int reach_y = std::get<1>(reach);
  const int reach_z = std::get<2>(reach);
  parallel_for(width(reach_x), n_threads, [&](std::size_t row, int /*thread_number*/) {
    const int i = static_cast<int>(row) - reach_x;
    for (int j = -reach_y; j <= reach_y; ++j) {
      for (int k = -reach_z; k <= reach_z; ++k) body(i, j, k);
    }
  });
}

}  // namespace

variogram_map::variogram_map(const cell_triple& reach)
    : reach_(reach),
      rows_(width(std::get<1>(reach))),
      columns_(width(std::get<2>(reach))),
      values_(width(std::get<0>(reach)) * rows_ * columns_, 0.0),
      n_pairs_(values_.size(), 0.0) {}

variogram_map compute_variogram_map(const std::vector<double>& values, const cell_triple& counts,
                                    const cell_triple& reach, int n_threads) {
  const auto [nx, ny, nz] = counts;
  check_axis(nx, std::get<0>(reach));
  check_axis(ny, std::get<1>(reach));
  check_axis(nz, std::get<2>(reach));
  check_same_size("values", values.size(), to_size(nx) * to_size(ny) * to_size(nz), "cell");

  variogram_map map(reach);
  padded_grid grid(values, counts, reach, n_threads);
  auto [sums, pairs] = correlation_spectra(grid, mean_of_defined(values), n_threads);
  // Counts are whole and semivariances not negative; the transforms leave rounding on both.
  grid.correlation(std::move(pairs));
  for_each_lag(reach, n_threads, [&](int i, int j, int k) {
    map.set_n_pairs(i, j, k, std::max(std::round(grid.at_lag(i, j, k)), 0.0));
  });
  grid.correlation(std::move(sums));
  for_each_lag(reach, n_threads, [&](int i, int j, int k) {
    const double n_pairs = map.n_pairs(i, j, k);
    if (n_pairs == 0.0) return;
    map.set_value(i, j, k, std::max(0.5 * grid.at_lag(i, j, k) / n_pairs, 0.0));
  });
  return map;
}

}  // namespace gravelox
