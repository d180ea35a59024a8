// SPDX-License-Identifier: MIT
#pragma once

// Several ellipsoids blended into one. The axes of two ellipsoids share no order and no sign, so
// they are aligned before their matrices are averaged.

#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// The weighted mean of ellipsoids with the ranges 1 / (r + 1e-6) and these angles (degrees): the
/// caller gives reciprocal ranges. A range not above 1e-30 counts as 1, as in every ellipsoid.
///
/// The heaviest (of equal ones the first) starts the mean; then, again and again, the one that is
/// most like the mean so far joins it by weight, its axes in the order and with the signs that
/// differ least from the mean's (sum of squared differences of the matrices). The axes of the
/// result are sorted and made orthogonal. Weights that add up to 0 on the way give a matrix of
/// infinities and NaN.
///
/// Costs the square of the number of ellipsoids. Throws std::invalid_argument where the lists are
/// empty, differ in length or hold numbers that are not finite.
Ellipsoid ensemble_model(const std::vector<double>& r1, const std::vector<double>& r2,
                         const std::vector<double>& r3, const std::vector<double>& azimuth,
                         const std::vector<double>& dip, const std::vector<double>& rake,
                         const std::vector<double>& w);

/// ensemble_model of the ranges and angles that the ellipsoids read as. These are plain ranges, so
/// those of the result are reciprocal: a range r stands for a mean of 1 / r. Ellipsoids with
/// left-handed axes enter as the ellipsoids of their ranges and angles (extract_ellipsoid_info).
Ellipsoid ensemble_ellipsoid(const std::vector<double>& w,
                             const std::vector<Ellipsoid>& ellipsoids);

/// ensemble_ellipsoid of the ellipsoids around each target, with the weights
/// ellipsoid_weights / (d^3 + eps) for the distance d to the target; ranges are reciprocal here
/// too. A target without neighbours gets the unit sphere.
///
/// The limits are those of create_nei_getter, over the ellipsoids' locations. Throws
/// std::invalid_argument where lists differ in length or numbers are not finite.
std::vector<Ellipsoid> ensemble_local_ellipsoids(
    const location_list& target_locs, const location_list& ellipsoid_locs,
    const std::vector<Ellipsoid>& ellipsoids, const std::vector<double>& ellipsoid_weights,
    int n_neis = 20, double max_radius = -1.0, int max_neis_octant = -1, double eps = 0.01,
    int n_threads = 0, const std::vector<int>& dhids = {}, int max_neis_by_dhid = -1);

}  // namespace gravelox
