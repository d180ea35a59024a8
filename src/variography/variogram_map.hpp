// SPDX-License-Identifier: MIT
#pragma once

// The semivariance of a regular grid at every lag at once, by Fourier transforms.

#include <cstddef>
#include <vector>

#include "spatial/grid.hpp"

namespace gravelox {

/// Semivariance and number of pairs for each lag of -reach..reach cells on each axis, k fastest.
/// Every pair counts at its lag and at the opposite one.
class variogram_map {
 public:
  explicit variogram_map(const cell_triple& reach);

  /// The semivariance at a lag in cells, 0 where there is no pair.
  double value(int i, int j, int k) const { return values_[place(i, j, k)]; }

  /// The number of pairs at a lag, a whole number.
  double n_pairs(int i, int j, int k) const { return n_pairs_[place(i, j, k)]; }

  void set_value(int i, int j, int k, double value) { values_[place(i, j, k)] = value; }
  void set_n_pairs(int i, int j, int k, double n_pairs) { n_pairs_[place(i, j, k)] = n_pairs; }

  const cell_triple& reach() const { return reach_; }

 private:
  std::size_t place(int i, int j, int k) const {
    const auto [reach_x, reach_y, reach_z] = reach_;
    const auto row =
        static_cast<std::size_t>(i + reach_x) * rows_ + static_cast<std::size_t>(j + reach_y);
    return row * columns_ + static_cast<std::size_t>(k + reach_z);
  }

  cell_triple reach_;
  std::size_t rows_;
  std::size_t columns_;
  std::vector<double> values_;
  std::vector<double> n_pairs_;
};

/// The map of a grid of values in the order of cell ids (k fastest), NaN where a cell has none
/// (Marcotte, 1996).
///
/// Takes three transforms forward and two back, of lengths of at least counts + reach: at that
/// length no lag within the reach meets one that wraps around. The reach is the greatest lag in
/// cells on each axis, 0 to counts - 1, and counts - 1 gives every lag. Values are taken relative
/// to their mean, which changes no difference and keeps the precision of data far from zero.
///
/// Needs at most four arrays of the transforms' size beside the map. Transforms run on the threads
/// of set_fft_n_threads, the rest on n_threads. Throws std::invalid_argument where a count is below
/// 1, a reach out of range, or values are not one for each cell.
variogram_map compute_variogram_map(const std::vector<double>& values, const cell_triple& counts,
                                    const cell_triple& reach, int n_threads);

}  // namespace gravelox
