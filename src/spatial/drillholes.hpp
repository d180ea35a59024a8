// SPDX-License-Identifier: MIT
#pragma once

// Synthetic drill holes: sample locations with the structure of a drilling campaign, for trying out
// estimators and searches.

#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// Sample locations with the hole id of each.
using drillhole_samples = std::pair<location_list, std::vector<int>>;

/// Straight holes inside a box, with ids from 1.
///
/// A hole runs from a collar at the level of `top` towards a foot at the level of `bottom`, both
/// uniform in the box's plan. Samples stand at steps of 1 / n_samples_by_dh of a fraction of that
/// run, uniform on [min_len, max_len), the first at the collar. Each hole takes five uniforms: foot
/// x, y, collar x, y, fraction. A count below 1 gives no samples.
drillhole_samples create_random_drillholes(const location& bottom, const location& top,
                                           int n_samples_by_dh, double min_len, double max_len,
                                           int n_drillholes, int seed = 121415);

/// Holes of a campaign over a rectangle l1 by l2 (length units), with ids from 0.
///
/// Each hole takes seven uniforms: collar x, y on the rectangle; collar z from min_dist_to_bottom
/// to the sum of both distances (the second is not a bound but an extent); azimuth and dip of the
/// direction (degrees); length; number of samples, truncated. The samples, at equal steps from the
/// collar, then go through the backward map of `deformation`; the default turns the holes by 90
/// degrees about z, since azimuth 0 is not the identity.
drillhole_samples create_random_drillholes(
    double l1, double l2, int n_drillholes, double min_azimuth, double max_azimuth, double min_dip,
    double max_dip, double min_length, double max_length, double min_dist_to_bottom,
    double max_dist_to_bottom, int min_n_samples_by_dh, int max_n_samples_by_dh,
    const Ellipsoid& deformation = Ellipsoid(1, 1, 1, 0, 0, 0), int seed = 121415);

}  // namespace gravelox
