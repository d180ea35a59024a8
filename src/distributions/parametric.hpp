// SPDX-License-Identifier: MIT
#pragma once

// The parametric distributions.
//
// Bad parameters throw std::domain_error (ValueError in Python) with the text of the statistics
// library. Quantiles are taken between least_probability and greatest_probability; draws are not
// held back in this way.

#include "distributions/real_dist.hpp"

namespace gravelox {

real_dist gaussian_distribution(double mean = 0.0, double std_dev = 1.0);

/// Mean m and standard deviation s of the logarithm.
real_dist lognormal_distribution(double m, double s);

/// n degrees of freedom.
real_dist student_t_distribution(double n);

/// m and n degrees of freedom, at most 1e15 (std::invalid_argument).
real_dist fisher_f_distribution(double m, double n);

/// Location a and scale b, here and in the next one.
real_dist cauchy_distribution(double a, double b);
real_dist extreme_value_distribution(double a, double b);

/// k degrees of freedom.
real_dist chi_squared_distribution(double k);

/// Shape a and scale b.
real_dist weibull_distribution(double a, double b);

/// Rate lambda.
real_dist exponential_distribution(double lambda);

/// Uniform from a to b.
real_dist uniform_distribution(double a, double b);

/// Shape alpha and scale beta.
real_dist gamma_distribution(double alpha, double beta);

}  // namespace gravelox
