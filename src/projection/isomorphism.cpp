// SPDX-License-Identifier: MIT
#include "projection/isomorphism.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/least_squares_detail.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/report.hpp"
#include "common/robust_power.hpp"
#include "common/statistics.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

/// Centre, scale, weight.
/// A centre, a scale, and a weight.
constexpr std::size_t n_per_center = 3;

/// The image of x under n triples of parameters.
template <number T>
T map_forward(const T* p, std::size_t n, cov_kernel<T> kernel, const T& x) {
  using std::abs;
  T values(0.0);
  T weights(0.0);
  for (std::size_t i = 0; i < n; ++i, p += n_per_center) {
    const T k = kernel(abs(x - p[0]) * p[1]);
    values += k * p[2];
    weights += k;
  }
  return values / weights;
}

/// The errors of one partition, each divided by their number, and their root mean square.
struct ProjectionResidual {
  double inv_std;
  std::vector<double> source;
  std::vector<double> target;
  std::size_t n_centers;
  covariance_type type;

  template <number T>
  bool operator()(T const* const* parameters, T* residuals) const {
    using std::sqrt;
    const cov_kernel<T> kernel = create_cov_kernel<T>(type);
    const std::size_t size = source.size();
    const auto n = static_cast<double>(size);
    T sum_of_squares(0.0);
    for (std::size_t i = 0; i < size; ++i) {
      const T estimate = map_forward<T>(parameters[0], n_centers, kernel, T(source[i]));
      const T r = robust_power(T(2.0 * (estimate - target[i]) * inv_std), 0.5);
      residuals[i] = r / n;
      sum_of_squares += r * r;
    }
    // Of no samples this is not a number, and the solver stops where it starts.
    residuals[size] = robust_power(T(2.0 * sqrt(T(sum_of_squares / n))), 0.5);
    return true;
  }
};

/// Of the arguments min_<name> and max_<name>, with what the form of the call adds to them.
void check_bounds(const std::string& name, const parameter_bounds& bounds,
                  const std::string& suffix = "") {
  const std::string least = "min_" + name + suffix;
  const std::string greatest = "max_" + name + suffix;
  check_finite(least, bounds.least);
  check_finite(greatest, bounds.greatest);
  if (bounds.least > bounds.greatest) {
    refuse(greatest, text_of("at least ", least, ", ", bounds.least), bounds.greatest);
  }
}

void check_fit(const std::vector<double>& source, const std::vector<double>& target,
               const projection_fit& fit) {
  check_not_empty("source", source.size());
  check_same_size("target", target.size(), source.size(), "source value");
  check_finite("source", source);
  check_finite("target", target);
  check_bounds("weight", fit.weight);
  check_bounds("center", fit.center);
  check_at_least("n_partitions", fit.n_partitions, 0);
  check_at_least("min_partition_size", fit.min_partition_size, 0);
  check_at_least("max_partition_size", fit.max_partition_size, fit.min_partition_size);
  check_finite("cauchy_loss", fit.cauchy_loss);
  check_at_least("n_iterations", fit.n_iterations, 0);
}

void check_shape(const projection_shape& shape, const projection_fit& fit, std::size_t n_samples,
                 const std::string& suffix = "") {
  check_at_least("n_centers" + suffix, shape.n_centers, 1);
  check_bounds("beta", shape.beta, suffix);
  const double largest =
      std::min(static_cast<double>(n_samples), fit.max_partition_size + 1.0) + 1.0;
  const double n_parameters = 3.0 * shape.n_centers;
  check_memory("n_centers" + suffix, n_parameters);
  check_memory("n_partitions", detail::memory_of_fit(fit.n_partitions * largest, n_parameters));
}

std::size_t draw_sample(std::size_t n, random_engine& engine) { return engine() % n; }

/// Centres at random samples, with their targets for weights.
std::vector<double> start_parameters(const std::vector<double>& source,
                                     const std::vector<double>& target,
                                     const projection_shape& shape, random_engine& engine) {
  std::vector<double> start;
  for (int i = 0; i < shape.n_centers; ++i) {
    const std::size_t sample = draw_sample(source.size(), engine);
    start.insert(start.end(),
                 {source[sample], (shape.beta.least + shape.beta.greatest) / 2.0, target[sample]});
  }
  return start;
}

std::size_t draw_size(std::size_t n, const projection_fit& fit, random_engine& engine) {
  const auto least = static_cast<std::uint64_t>(fit.min_partition_size);
  const std::uint64_t n_sizes = static_cast<std::uint64_t>(fit.max_partition_size) - least + 1;
  const std::uint64_t size = least + 1 + engine() % n_sizes;
  return size >= n ? n - 1 : size;
}

/// Of arguments that have been checked.
Projection fit_projection(const std::vector<double>& source, const std::vector<double>& target,
                          const projection_shape& shape, const projection_fit& fit) {
  random_engine engine = create_engine(fit.seed);
  const double inv_std = 1.0 / compute_moments(source).deviation;
  const std::size_t n_centers = to_size(shape.n_centers);
  detail::least_squares_problem problem(start_parameters(source, target, shape, engine));
  for (int k = 0; k < fit.n_partitions; ++k) {
    ProjectionResidual partition{inv_std, {}, {}, n_centers, shape.kernel};
    const std::size_t size = draw_size(source.size(), fit, engine);
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t sample = draw_sample(source.size(), engine);
      partition.source.push_back(source[sample]);
      partition.target.push_back(target[sample]);
    }
    problem.add(partition, to_int(size + 1), fit.cauchy_loss);
  }
  for (std::size_t i = 0; i < n_centers; ++i) {
    problem.set_bounds(n_per_center * i, fit.center.least, fit.center.greatest);
    problem.set_bounds(n_per_center * i + 1, shape.beta.least, shape.beta.greatest);
    problem.set_bounds(n_per_center * i + 2, fit.weight.least, fit.weight.greatest);
  }
  problem.solve({fit.n_iterations, fit.n_threads, fit.debug, print_to_output});
  return Projection(problem.parameters(), shape.kernel);
}

/// A map with gaps, as a compact kernel leaves them, has no way back.
void check_images(const std::vector<double>& images) {
  for (std::size_t i = 0; i < images.size(); ++i) {
    if (!std::isfinite(images[i])) {
      refuse("source", "values that the fitted projection maps to finite ones",
             text_of(images[i], " at position ", i));
    }
  }
}

/// The least and the greatest value.
parameter_bounds range_of(std::string_view name, const std::vector<double>& data) {
  check_not_empty(name, data.size());
  check_finite(name, data);
  const auto [least, greatest] = std::minmax_element(data.begin(), data.end());
  if (*least == *greatest) refuse(name, "values that differ", text_of("only ", *least));
  return {*least, *greatest};
}

/// Bounds that lie tol times the range beyond it.
parameter_bounds widened(const parameter_bounds& range, double tol) {
  const double margin = tol * (range.greatest - range.least);
  return {range.least - margin, range.greatest + margin};
}

/// The size of a partition that holds this multiple of its share of n samples.
int relative_size(std::string_view name, std::size_t n, double share, int n_partitions) {
  const double size = static_cast<double>(n) * share / n_partitions;
  constexpr double greatest = 1e9;
  if (!(size >= 0.0 && size <= greatest)) {
    refuse(name, "partitions of 0 to 1e9 samples", text_of(size, " from a share of ", share));
  }
  return static_cast<int>(size) + 1;
}

}  // namespace

Projection::Projection(std::vector<double> parameters, covariance_type kernel)
    : parameters_(std::move(parameters)),
      type_(kernel),
      kernel_(create_cov_kernel<double>(kernel)) {
  parameters_.resize(parameters_.size() - parameters_.size() % n_per_center);
}

double Projection::forward(double u) const {
  return map_forward<double>(parameters_.data(), parameters_.size() / n_per_center, kernel_, u);
}

std::vector<double> Projection::forward(const std::vector<double>& u, int n_threads) const {
  std::vector<double> images(u.size());
  parallel_for(u.size(), n_threads,
               [&](std::size_t i, int /*thread_number*/) { images[i] = forward(u[i]); });
  return images;
}

Isomorphism::Isomorphism(const serialized& parameters, covariance_type kernel)
    : forward_proj_(parameters.first, kernel), backward_proj_(parameters.second, kernel) {}

Isomorphism::Isomorphism(Projection forward_proj, Projection backward_proj)
    : forward_proj_(std::move(forward_proj)), backward_proj_(std::move(backward_proj)) {}

Isomorphism::serialized Isomorphism::serialize() const {
  return {forward_proj_.serialize(), backward_proj_.serialize()};
}

std::vector<double> Isomorphism::forward(const std::vector<double>& u, int n_threads) const {
  return forward_proj_.forward(u, n_threads);
}

std::vector<double> Isomorphism::backward(const std::vector<double>& u, int n_threads) const {
  return backward_proj_.forward(u, n_threads);
}

Projection optimize_projection(const std::vector<double>& source, const std::vector<double>& target,
                               const projection_shape& shape, const projection_fit& fit) {
  check_fit(source, target, fit);
  check_shape(shape, fit, source.size());
  return fit_projection(source, target, shape, fit);
}

Isomorphism optimize_isomorphism(const std::vector<double>& source,
                                 const std::vector<double>& target,
                                 const projection_shape& forward_shape,
                                 const projection_shape& backward_shape,
                                 const projection_fit& fit) {
  check_fit(source, target, fit);
  check_shape(forward_shape, fit, source.size(), "_forward");
  check_shape(backward_shape, fit, source.size(), "_backward");
  Projection forward_proj = fit_projection(source, target, forward_shape, fit);
  const std::vector<double> mapped = forward_proj.forward(source, fit.n_threads);
  check_images(mapped);
  projection_fit fit_back = fit;
  std::swap(fit_back.weight, fit_back.center);
  Projection backward_proj = fit_projection(mapped, source, backward_shape, fit_back);
  return {std::move(forward_proj), std::move(backward_proj)};
}

Isomorphism optimize_isomorphism(const std::vector<double>& source_data,
                                 const std::vector<double>& target_data,
                                 const isomorphism_parameters& iso_params) {
  const parameter_bounds source_range = range_of("source_data", source_data);
  const parameter_bounds target_range = range_of("target_data", target_data);
  check_same_size("target_data", target_data.size(), source_data.size(), "source value");
  check_at_least("n_partitions", iso_params.n_partitions, 1);
  check_finite("weight_tol", iso_params.weight_tol);
  check_finite("center_tol", iso_params.center_tol);
  check_bounds("beta", {iso_params.min_beta, iso_params.max_beta});
  const auto betas = [&](const parameter_bounds& range) {
    const double length = range.greatest - range.least;
    return parameter_bounds{iso_params.min_beta / length, iso_params.max_beta / length};
  };
  const auto size = [&](std::string_view name, double share) {
    return relative_size(name, source_data.size(), share, iso_params.n_partitions);
  };
  const projection_fit fit{widened(target_range, iso_params.weight_tol),
                           widened(source_range, iso_params.center_tol),
                           iso_params.n_partitions,
                           size("min_partition_size", iso_params.min_partition_size),
                           size("max_partition_size", iso_params.max_partition_size),
                           iso_params.cauchy_loss,
                           iso_params.n_iterations,
                           iso_params.n_threads,
                           iso_params.seed,
                           iso_params.debug};
  return optimize_isomorphism(
      source_data, target_data,
      {iso_params.kernel_forward, iso_params.n_centers_forward, betas(source_range)},
      {iso_params.kernel_backward, iso_params.n_centers_backward, betas(target_range)}, fit);
}

}  // namespace gravelox
