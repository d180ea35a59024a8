// SPDX-License-Identifier: MIT
#pragma once

// Categorical simulation along a random path, from the transitions of a transiogram.

#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "common/location.hpp"
#include "common/number.hpp"
#include "common/random.hpp"
#include "language/transiogram.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

template <number T>
using transiogram_ptr = std::shared_ptr<const AbstractTransiogram<T>>;

/// Locations with their classes.
using conditioning_list = std::vector<std::tuple<location, int>>;

/// Draws a class where nothing is known; the double is 0 and has no meaning. Copies share the
/// function.
template <number T>
struct UnconditionalSampler {
  std::function<int(random_engine&, double)> draw;

  /// All classes of the transiogram are equally likely: one word, modulo their number. Throws
  /// std::invalid_argument for a transiogram without rows. Keeps the transiogram alive.
  static UnconditionalSampler Default(const transiogram_ptr<T>& transiogram);
};

/// Draws a class at a location from what is known around it; the double is 0 and has no meaning.
template <number T>
struct ConditionalSampler {
  std::function<int(random_engine&, const conditioning_list&, const location&, double)> draw;

  /// The rows of the known classes, seen from their locations, are averaged with the weights
  /// 1 / (d^2 + 1e-6), d being the distance, and divided by their sum, so that rows need not add up
  /// to 1. The class is drawn from them by a shuffle of the classes and a uniform; -1 where no
  /// cumulative probability lies above it, as with NaN. Keeps the transiogram alive.
  static ConditionalSampler Default(const transiogram_ptr<T>& transiogram);
};

/// How many neighbours a simulation looks at.
struct neighbor_limits {
  /// The radius of the search in the space of its ellipsoid; at 0 and below the knn nearest count.
  double r = -1.0;
  int knn = 32;

  /// The most simulated neighbours that condition a target; 0 counts as 1. Samples have no limit
  /// but the search's own.
  int n_previous = 32;
};

/// A class for each target, in order; -1 where none was drawn.
///
/// Targets are visited along a shuffled path. Each is drawn from the classes at targets that were
/// visited before and at samples, nearest first, by the conditional sampler, or by the
/// unconditional one where there are none. Classes below 0 are none: such samples and targets
/// condition nothing, though they take places in the search.
///
/// Samples enter at their place in the ellipsoid's isotropic space, simulated neighbours and the
/// target at their own coordinates; results have come to depend on it. An empty sampler stands for
/// the default one. Draws, all from one engine: the path, then what the samplers draw. Not for
/// several threads at once where the transiogram is not.
///
/// Throws std::invalid_argument for data of different sizes, classes that the transiogram has not,
/// a transiogram without rows or one that is not square, coordinates that are not finite, and a
/// negative knn where it counts.
template <number T>
std::vector<int> markov_chain_simulation(const location_list& target_locs,
                                         const location_list& data_locs,
                                         const std::vector<int>& data_values,
                                         const transiogram_ptr<T>& transiogram,
                                         const Ellipsoid& search_ani, const neighbor_limits& limits,
                                         int seed, UnconditionalSampler<T> unconditional = {},
                                         ConditionalSampler<T> conditional = {});

}  // namespace gravelox
