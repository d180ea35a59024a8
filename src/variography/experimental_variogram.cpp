// SPDX-License-Identifier: MIT
#include "variography/experimental_variogram.hpp"

#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

experimental_variogram::experimental_variogram(location_list lags, std::vector<double> variogram,
                                               std::vector<int> npairs,
                                               std::vector<int> direction_id,
                                               location_list directions)
    : directions_(std::move(directions)),
      direction_ids_(std::move(direction_id)),
      npairs_(std::move(npairs)),
      variogram_(std::move(variogram)),
      lags_(std::move(lags)),
      lags_by_dir_(directions_.size()) {
  check_same_size("variogram", variogram_.size(), lags_.size(), "lag");
  check_same_size("npairs", npairs_.size(), lags_.size(), "lag");
  check_same_size("direction_id", direction_ids_.size(), lags_.size(), "lag");
  for (const int id : direction_ids_) check_index("direction_id", id, directions_.size());
  for (std::size_t i = 0; i < lags_.size(); ++i) {
    lags_by_dir_[to_size(direction_ids_[i])].push_back(to_int(i));
  }
}

variogram_points experimental_variogram::get_variogram(const location& dir) const {
  // Stable: vectors so long or short that their squares overflow have a direction too.
  const location unit = dir.stableNormalized();
  if (!(unit.norm() > 0.0)) return {};
  double nearest = 1e30;
  std::size_t nearest_id = directions_.size();
  for (std::size_t id = 0; id < directions_.size(); ++id) {
    const double distance = (directions_[id] - unit).norm();
    if (!lags_by_dir_[id].empty() && distance < nearest) {
      nearest = distance;
      nearest_id = id;
    }
  }
  if (nearest_id == directions_.size()) return {};
  return get_variogram_by_direction_id(to_int(nearest_id));
}

variogram_points experimental_variogram::get_variogram(double azimuth, double dip) const {
  return get_variogram(Direction(azimuth, dip));
}

variogram_points experimental_variogram::get_variogram_by_direction_id(int direction_id) const {
  check_index("direction_id", direction_id, directions_.size());
  variogram_points points;
  auto& [lags, values, counts] = points;
  for (const int position : lags_by_dir_[to_size(direction_id)]) {
    lags.push_back(lags_[to_size(position)]);
    values.push_back(variogram_[to_size(position)]);
    counts.push_back(npairs_[to_size(position)]);
  }
  return points;
}

}  // namespace gravelox
