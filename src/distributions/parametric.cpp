// SPDX-License-Identifier: MIT
#include "distributions/parametric.hpp"

#include <algorithm>
#include <boost/math/distributions/cauchy.hpp>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/exponential.hpp>
#include <boost/math/distributions/extreme_value.hpp>
#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/gamma.hpp>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <boost/math/distributions/uniform.hpp>
#include <boost/math/distributions/weibull.hpp>
#include <string_view>

#include "common/checks.hpp"

namespace gravelox {

namespace {

template <typename Distribution>
real_dist from(const Distribution& dist) {
  return {
      [dist](random_engine& engine) { return boost::math::quantile(dist, uniform01(engine)); },
      [dist](double p) {
        const double inner = std::clamp(p, least_probability, greatest_probability);
        return boost::math::quantile(dist, inner);
      },
      [dist](double x) { return boost::math::cdf(dist, x); },
      [dist](double x) { return boost::math::pdf(dist, x); },
  };
}

/// Beyond this many the library's iterations do not end in any useful time, and the distribution
/// does not change any more.
void check_degrees_of_freedom(std::string_view name, double value) {
  constexpr double most = 1e15;
  if (value > most) refuse(name, "at most 1e15 degrees of freedom", value);
}

}  // namespace

real_dist gaussian_distribution(double mean, double std_dev) {
  return from(boost::math::normal_distribution<>(mean, std_dev));
}

real_dist lognormal_distribution(double m, double s) {
  return from(boost::math::lognormal_distribution<>(m, s));
}

real_dist student_t_distribution(double n) {
  return from(boost::math::students_t_distribution<>(n));
}

real_dist fisher_f_distribution(double m, double n) {
  check_degrees_of_freedom("m", m);
  check_degrees_of_freedom("n", n);
  return from(boost::math::fisher_f_distribution<>(m, n));
}

real_dist cauchy_distribution(double a, double b) {
  return from(boost::math::cauchy_distribution<>(a, b));
}

real_dist extreme_value_distribution(double a, double b) {
  return from(boost::math::extreme_value_distribution<>(a, b));
}

real_dist chi_squared_distribution(double k) {
  return from(boost::math::chi_squared_distribution<>(k));
}

real_dist weibull_distribution(double a, double b) {
  return from(boost::math::weibull_distribution<>(a, b));
}

real_dist exponential_distribution(double lambda) {
  return from(boost::math::exponential_distribution<>(lambda));
}

real_dist uniform_distribution(double a, double b) {
  return from(boost::math::uniform_distribution<>(a, b));
}

real_dist gamma_distribution(double alpha, double beta) {
  return from(boost::math::gamma_distribution<>(alpha, beta));
}

}  // namespace gravelox
