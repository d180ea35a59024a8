// SPDX-License-Identifier: MIT
#include "language/markov_chain.hpp"

#include <cstddef>
#include <numeric>
#include <string_view>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"
#include "spatial/dynamic_neighborhood.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

namespace {

template <number T>
JetList<T> to_list(const location& loc) {
  return {T(loc.x()), T(loc.y()), T(loc.z())};
}

/// The weighted mean of the rows of the known classes, divided by its sum. No classes on the way
/// give NaN, which the draw turns into no class.
template <number T>
std::vector<double> class_probabilities(const AbstractTransiogram<T>& transiogram,
                                        const conditioning_list& known, const location& x) {
  constexpr double offset = 1e-06;
  const JetList<T> v = to_list<T>(x);
  std::vector<double> prob;
  double weights = 0.0;
  for (const auto& [loc, class_u] : known) {
    const JetList<T> row = transiogram(class_u, to_list<T>(loc), v);
    if (prob.empty()) prob.assign(row.size(), 0.0);
    check_same_size("transiogram", row.size(), prob.size(), "class");
    const double d = (x - loc).norm();
    const double w = 1.0 / (d * d + offset);
    for (std::size_t k = 0; k < prob.size(); ++k) prob[k] += w * value_of(row[k]);
    weights += w;
  }
  for (double& p : prob) p /= weights;
  const double sum = std::accumulate(prob.begin(), prob.end(), 0.0);
  for (double& p : prob) p /= sum;
  return prob;
}

/// A class, by the cumulative probabilities in a random order of the classes; -1 if none lies above
/// the uniform.
int draw_class(const std::vector<double>& prob, random_engine& engine) {
  std::vector<std::size_t> classes(prob.size());
  std::iota(classes.begin(), classes.end(), std::size_t{0});
  shuffle(classes, engine);
  const double u = uniform01(engine);
  double cumulative = 0.0;
  for (const std::size_t k : classes) {
    cumulative += prob[k];
    if (cumulative > u) return to_int(k);
  }
  return -1;
}

template <number T>
void check_there(const transiogram_ptr<T>& transiogram) {
  if (!transiogram) refuse("transiogram", "a transiogram", "none");
  if (transiogram->kernels().empty()) refuse("transiogram", "at least 1 row", "0");
}

template <number T>
void check_square(const AbstractTransiogram<T>& transiogram) {
  const auto& rows = transiogram.kernels();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].size() == rows.size()) continue;
    refuse("transiogram", text_of("a square table of ", rows.size(), " rows"),
           text_of(rows[i].size(), " entries in row ", i));
  }
}

/// The neighbours by the limits of a simulation.
template <typename Search>
std::vector<std::size_t> find_neighbors(const Search& search, const location& x,
                                        const neighbor_limits& limits) {
  return limits.r > 0.0 ? search.find_neighbors(x, limits.r) : search.find_neighbors(x, limits.knn);
}

/// The samples, for the search and as they condition targets.
class hard_data {
 public:
  hard_data(const location_list& locs, const std::vector<int>& values, const Ellipsoid& search_ani)
      : locs_(locs), values_(values), search_ani_(search_ani), search_(locs, search_ani) {}

  /// Adds those near x that have a class, at their places in isotropic space.
  void condition(const location& x, const neighbor_limits& limits, conditioning_list& known) const {
    for (const std::size_t m : find_neighbors(search_, x, limits)) {
      if (values_[m] >= 0) known.emplace_back(search_ani_.matrix() * locs_[m], values_[m]);
    }
  }

 private:
  const location_list& locs_;
  const std::vector<int>& values_;
  const Ellipsoid& search_ani_;
  Neighborhood search_;
};

/// The targets that have been visited. Ids of the search are steps of the path.
class visited_targets {
 public:
  visited_targets(const location_list& locs, const Ellipsoid& search_ani)
      : locs_(locs), search_(search_ani) {}

  /// Adds those near x that have a class, at their own places. One more is looked at as long as
  /// there are fewer than n_previous.
  void condition(const location& x, const neighbor_limits& limits, conditioning_list& known) const {
    if (targets_.empty()) return;
    for (const std::size_t m : find_neighbors(search_, x, limits)) {
      if (classes_[m] >= 0) known.emplace_back(locs_[targets_[m]], classes_[m]);
      if (std::ssize(known) >= limits.n_previous) return;
    }
  }

  void add(std::size_t target, int drawn) {
    targets_.push_back(target);
    classes_.push_back(drawn);
    search_.add_point(locs_[target]);
  }

 private:
  const location_list& locs_;
  DynamicNeighborhood search_;
  std::vector<std::size_t> targets_;
  std::vector<int> classes_;
};

}  // namespace

template <number T>
UnconditionalSampler<T> UnconditionalSampler<T>::Default(const transiogram_ptr<T>& transiogram) {
  check_there<T>(transiogram);
  return {[transiogram](random_engine& engine, double /*unused*/) {
    return to_int(engine() % transiogram->kernels().size());
  }};
}

template <number T>
ConditionalSampler<T> ConditionalSampler<T>::Default(const transiogram_ptr<T>& transiogram) {
  check_there<T>(transiogram);
  return {[transiogram](random_engine& engine, const conditioning_list& known, const location& x,
                        double /*unused*/) {
    return draw_class(class_probabilities(*transiogram, known, x), engine);
  }};
}

template <number T>
std::vector<int> markov_chain_simulation(const location_list& target_locs,
                                         const location_list& data_locs,
                                         const std::vector<int>& data_values,
                                         const transiogram_ptr<T>& transiogram,
                                         const Ellipsoid& search_ani, const neighbor_limits& limits,
                                         int seed, UnconditionalSampler<T> unconditional,
                                         ConditionalSampler<T> conditional) {
  check_finite("target_locs", target_locs);
  check_finite("data_locs", data_locs);
  check_same_size("data_values", data_values.size(), data_locs.size(), "location");
  check_there<T>(transiogram);
  check_square(*transiogram);
  for (const int c : data_values) {
    if (c >= 0) check_index("data_values", c, transiogram->kernels().size());
  }
  if (!(limits.r > 0.0)) check_at_least("knn", limits.knn, 0);
  if (!unconditional.draw) unconditional = UnconditionalSampler<T>::Default(transiogram);
  if (!conditional.draw) conditional = ConditionalSampler<T>::Default(transiogram);

  const hard_data data(data_locs, data_values, search_ani);
  visited_targets visited(target_locs, search_ani);
  random_engine engine = create_engine(seed);
  std::vector<std::size_t> path(target_locs.size());
  std::iota(path.begin(), path.end(), std::size_t{0});
  shuffle(path, engine);
  std::vector<int> classes(target_locs.size(), -1);
  conditioning_list known;
  for (const std::size_t i : path) {
    const location& x = target_locs[i];
    known.clear();
    visited.condition(x, limits, known);
    data.condition(x, limits, known);
    classes[i] =
        known.empty() ? unconditional.draw(engine, 0.0) : conditional.draw(engine, known, x, 0.0);
    visited.add(i, classes[i]);
  }
  return classes;
}

template struct UnconditionalSampler<double>;
template struct UnconditionalSampler<jet>;
template struct ConditionalSampler<double>;
template struct ConditionalSampler<jet>;

template std::vector<int> markov_chain_simulation<double>(
    const location_list&, const location_list&, const std::vector<int>&,
    const transiogram_ptr<double>&, const Ellipsoid&, const neighbor_limits&, int,
    UnconditionalSampler<double>, ConditionalSampler<double>);
template std::vector<int> markov_chain_simulation<jet>(const location_list&, const location_list&,
                                                       const std::vector<int>&,
                                                       const transiogram_ptr<jet>&,
                                                       const Ellipsoid&, const neighbor_limits&,
                                                       int, UnconditionalSampler<jet>,
                                                       ConditionalSampler<jet>);

}  // namespace gravelox
