// SPDX-License-Identifier: MIT
#pragma once

// Random rotations and ellipsoids as candidates of a search, and the rotation that boxes a cloud
// most tightly.

#include <Eigen/Core>
#include <cstdint>
#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// The rotation, as an ellipsoid of ranges 1, whose box around the cloud has the least sum of
/// log(length + 1), with that box in rotated coordinates.
///
/// A random search over the extreme points of the cloud. Its first candidate is the identity; every
/// other one draws azimuth in [0, 360), dip in [-90, 0) and rake in [0, 180). The cost is taken on
/// sample_size of the extreme points, all of them where they are not more: the same ones for every
/// candidate, or a new choice each time without use_fixed_samples. The box returned is that of all
/// extreme points.
///
/// The master engine of the seed first gives each thread its engine, then the fixed choice. Each
/// thread has its own stretch of candidates, so the result repeats for the same number of threads
/// only. Throws std::invalid_argument where locations are empty or not finite, n_rays is below 1 or
/// another count negative.
std::pair<BoundingBox, Ellipsoid> optimize_rotation(
    const location_list& locations, int sample_size = 30000, int n_iterations = 20000,
    int n_threads = 0, std::int64_t seed = 12356, bool use_fixed_samples = true, int n_rays = 600);

/// A matrix for each pair of 2 n_rays random directions whose cosine is below tol (in size): the
/// rows are the first, what the second has at right angles to it, which is not scaled to length 1
/// again, and their cross product. In shuffled order. tol close to 0 gives few matrices, all nearly
/// rotations.
std::vector<Eigen::Matrix3d> generate_rotations(int n_rays, std::int64_t seed, double tol);

/// 2 n_scales ellipsoids for each matrix of generate_rotations, shuffled. Their ranges share one
/// factor, uniform between min_range and max_range, and have the proportions of a random direction.
std::vector<Ellipsoid> generate_ellipsoids(double min_range, double max_range, int n_rays,
                                           int n_scales, std::int64_t seed, double tol);

}  // namespace gravelox
