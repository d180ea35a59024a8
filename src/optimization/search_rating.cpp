// SPDX-License-Identifier: MIT
#include "optimization/search_rating.hpp"

#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"

namespace gravelox {

idw_rating create_search_rating(const location_list& data_locs, const std::vector<double>& data,
                                int max_nei_size, int n_centers, idw_rating_parameters parameters,
                                int seed, int n_threads) {
  check_fold_samples("data", data_locs, data);
  random_engine engine = create_engine(seed);
  // The threads have a word each, although the search gives their engines a seed of its own.
  engine.discard(n_thread_slots(n_threads));
  const fold_list folds =
      create_folds(data_locs, data, parameters.max_distance, max_nei_size, n_centers, engine());
  parameters.max_size = to_int(data_locs.size() + 2);
  return idw_rating(folds, parameters, engine(), n_threads);
}

}  // namespace gravelox
