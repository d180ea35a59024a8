// SPDX-License-Identifier: MIT
#include "spatial/drillholes.hpp"

#include "common/random.hpp"

namespace gravelox {

drillhole_samples create_random_drillholes(const location& bottom, const location& top,
                                           int n_samples_by_dh, double min_len, double max_len,
                                           int n_drillholes, int seed) {
  random_engine engine = create_engine(seed);
  const location extent = top - bottom;
  const double n = n_samples_by_dh;
  const double sz = (bottom.z() - top.z()) / n;
  drillhole_samples samples;
  auto& [locations, ids] = samples;
  for (int hole = 0; hole < n_drillholes; ++hole) {
    const double ax = uniform01(engine) * extent.x() + bottom.x();
    const double ay = uniform01(engine) * extent.y() + bottom.y();
    const double bx = uniform01(engine) * extent.x() + bottom.x();
    const double by = uniform01(engine) * extent.y() + bottom.y();
    const double sx = (ax - bx) / n;
    const double sy = (ay - by) / n;
    const double fraction = uniform(engine, min_len, max_len);
    for (int i = 0; i < n_samples_by_dh; ++i) {
      locations.emplace_back(bx + fraction * sx * i, by + fraction * sy * i,
                             top.z() + fraction * sz * i);
      ids.push_back(hole + 1);
    }
  }
  return samples;
}

drillhole_samples create_random_drillholes(double l1, double l2, int n_drillholes,
                                           double min_azimuth, double max_azimuth, double min_dip,
                                           double max_dip, double min_length, double max_length,
                                           double min_dist_to_bottom, double max_dist_to_bottom,
                                           int min_n_samples_by_dh, int max_n_samples_by_dh,
                                           const Ellipsoid& deformation, int seed) {
  random_engine engine = create_engine(seed);
  drillhole_samples samples;
  auto& [locations, ids] = samples;
  for (int hole = 0; hole < n_drillholes; ++hole) {
    const double x = uniform01(engine) * l1;
    const double y = uniform01(engine) * l2;
    const double z = uniform01(engine) * max_dist_to_bottom + min_dist_to_bottom;
    const location collar(x, y, z);
    const double azimuth = uniform(engine, min_azimuth, max_azimuth);
    const double dip = uniform(engine, min_dip, max_dip);
    const location direction = Direction(azimuth, dip);
    const double length = uniform(engine, min_length, max_length);
    const int n = static_cast<int>(uniform(engine, min_n_samples_by_dh, max_n_samples_by_dh));
    const double step = length / n;
    for (int i = 0; i < n; ++i) {
      locations.push_back(deformation.backward(collar + i * step * direction));
      ids.push_back(hole);
    }
  }
  return samples;
}

}  // namespace gravelox
