// SPDX-License-Identifier: MIT
#pragma once

// The lines of a turning-bands field, held as arrays so that one evaluation runs over all of them
// in wide vectors.

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/spatial_function.hpp"

namespace gravelox {

/// cos(direction . p + phase)
struct cosine_line {
  location direction;
  double phase;
};

/// With x = direction . p - origin and cell i = floor(x) + 1, held within the cells:
/// signs[i] (x - i + 0.5)
struct sign_line {
  location direction;
  double origin;
  std::vector<double> signs;
};

/// A sum of lines, each times its weight, and of white noises. Many threads may evaluate it at once
/// when it is complete.
class line_field {
 public:
  void add(const cosine_line& line, double weight);
  void add(const sign_line& line, double weight);
  void add(SpatialFunction noise) { noises_.push_back(std::move(noise)); }

  /// Values are added in fixed lanes of eight lines, whatever the processor.
  double operator()(const location& point) const;

 private:
  struct directions {
    std::vector<double> x, y, z;

    void add(const location& direction);
  };

  void add_cosine_lines(const location& point, double* sums) const;

  directions cosine_directions_;
  std::vector<double> phases_;
  std::vector<double> cosine_weights_;
  double greatest_frequency_ = 0.0;

  directions sign_directions_;
  std::vector<double> origins_;
  std::vector<double> last_cells_;
  std::vector<std::int32_t> first_cells_;  // the place of each line's signs
  std::vector<double> weighted_signs_;     // of all lines

  std::vector<SpatialFunction> noises_;
};

}  // namespace gravelox
