// SPDX-License-Identifier: MIT
#pragma once

// experimental_variogram: what both variogram estimators and the smoothing give.

#include <cstddef>
#include <tuple>
#include <vector>

#include "common/location.hpp"

namespace gravelox {

/// Lag vectors, their semivariances and their pair counts, one of each a lag.
using variogram_points = std::tuple<location_list, std::vector<double>, std::vector<int>>;

/// An immutable cloud of lags, grouped by direction: a lag is a sample point of lag space, not the
/// centre of a regular bin. Many threads may use it at once.
class experimental_variogram {
 public:
  /// Directions are unit vectors, direction_id has the position of each lag's among them. Throws
  /// std::invalid_argument where the first four differ in length or an id is out of range.
  experimental_variogram(location_list lags, std::vector<double> variogram, std::vector<int> npairs,
                         std::vector<int> direction_id, location_list directions);

  /// The positions of each direction's lags, ascending.
  const std::vector<std::vector<int>>& lags_by_dir() const { return lags_by_dir_; }

  /// Lag vectors in real coordinates.
  const location_list& lags() const { return lags_; }
  const std::vector<double>& variogram() const { return variogram_; }
  const std::vector<int>& npairs() const { return npairs_; }
  const std::vector<int>& direction_ids() const { return direction_ids_; }

  /// All directions, those without lags too.
  const location_list& directions() const { return directions_; }

  /// The lags of the direction nearest to this one (scaled to length 1 first), of those that have
  /// any; the first of several that are equally near. Three empty lists where there is none, and
  /// for a zero vector.
  variogram_points get_variogram(const location& dir) const;

  /// The same for an azimuth and a dip in degrees.
  variogram_points get_variogram(double azimuth, double dip) const;

  /// The lags of a direction; throws std::invalid_argument where the id is out of range.
  variogram_points get_variogram_by_direction_id(int direction_id) const;

 private:
  location_list directions_;
  std::vector<int> direction_ids_;
  std::vector<int> npairs_;
  std::vector<double> variogram_;
  location_list lags_;
  std::vector<std::vector<int>> lags_by_dir_;
};

}  // namespace gravelox
