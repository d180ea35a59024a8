// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the distribution family.

namespace gravelox::docs {

constexpr const char* rng = R"(
A random engine, the 32-bit Mersenne Twister, that distributions draw from.

References
----------
Matsumoto, M. and Nishimura, T. (1998). Mersenne Twister: a 623-dimensionally equidistributed
uniform pseudo-random number generator. ACM Transactions on Modeling and Computer Simulation 8,
3-30.

Examples
--------
>>> import gravelox
>>> uniform = gravelox.uniform_distribution(0, 10)
>>> rng = gravelox.RNG(7)
>>> first, second = uniform(rng), uniform(rng)
>>> first == second, first == uniform(gravelox.RNG(7))
(False, True)
)";

constexpr const char* rng_init = R"(
Make an engine from a seed.

Parameters
----------
seed : int
    The seed; a negative one counts modulo 2^32.
)";

constexpr const char* distribution = R"(
A distribution of one variable, parametric or that of samples.

Instances come from the functions whose names end in `_distribution`. `PDF` and `CDF` give its
density, its distribution function and its quantiles. Every draw is the quantile of a uniform
number.

Examples
--------
>>> import gravelox
>>> gaussian = gravelox.gaussian_distribution(10.0, 2.0)
>>> draws = gaussian.simulate(10000)
>>> round(sum(draws) / len(draws))
10
)";

constexpr const char* distribution_call = R"(
One draw, which moves the engine on.

Parameters
----------
rng : RNG
    The engine. No two threads may use it at once.

Returns
-------
float
    The draw, in data units.
)";

constexpr const char* distribution_simulate = R"(
Draw from one engine.

This overload takes a second number by position, as the seed: `simulate(5, 1)` has the seed 1. To
draw in parallel, name `n_threads` or give all three numbers.

Parameters
----------
n : int
    How many draws.
seed : int
    Seed of the engine.

Returns
-------
list of float
    The draws in order, in data units.

Raises
------
ValueError
    If `n` is negative.

Examples
--------
>>> import gravelox
>>> gaussian = gravelox.gaussian_distribution()
>>> gaussian.simulate(5, 1) == gaussian.simulate(5, seed=1)
True
)";

constexpr const char* distribution_simulate_in_parallel = R"(
Draw in parallel, each thread from an engine of its own.

Parameters
----------
n : int
    How many draws.
n_threads : int
    Threads; 0 means all. Draws repeat only for an equal number.
seed : int
    Seed of the engines.

Returns
-------
list of float
    The draws, in data units.

Raises
------
ValueError
    If `n` is negative.

Examples
--------
>>> import gravelox
>>> gaussian = gravelox.gaussian_distribution()
>>> gaussian.simulate(5, n_threads=2) == gaussian.simulate(5, 2, 12515)
True
)";

constexpr const char* distribution_histogram = R"(
The draws of `simulate` in ascending order.

Parameters
----------
n : int
    How many draws.
seed : int
    Seed of the engine.

Returns
-------
list of float
    The draws, in data units.

Raises
------
ValueError
    If `n` is negative.
)";

constexpr const char* distribution_cdf = R"(
Empirical distribution function of draws.

It is exclusive: each draw stands beside the share of draws before it.

Parameters
----------
n : int
    How many draws.
seed : int
    Seed of the engine.

Returns
-------
values : list of float
    The draws in ascending order, in data units.
probs : list of float
    0, 1 / n, 2 / n and so on.

Raises
------
ValueError
    If `n` is negative.

Examples
--------
>>> import gravelox
>>> values, probs = gravelox.gaussian_distribution().cdf(4)
>>> values == sorted(values), probs
(True, [0.0, 0.25, 0.5, 0.75])
)";

constexpr const char* pdf = R"(
The density and the quantiles of a distribution.

Of a data distribution the density is a mass and does not integrate to 1: half the weight between
the neighbours of a value in the table.

Examples
--------
>>> import gravelox
>>> pdf = gravelox.PDF(gravelox.gaussian_distribution(10.0, 2.0))
>>> round(pdf.value(10.0), 4), round(pdf.median(), 4), round(pdf.q90(), 4)
(0.1995, 10.0, 12.5631)
)";

constexpr const char* pdf_init = R"(
View a distribution by its density.

Parameters
----------
dist : Distribution
    The distribution.
)";

constexpr const char* pdf_value = R"(
The density at a value.

Parameters
----------
x : float
    The value, in data units.

Returns
-------
float
    The density, in units of 1 / data units; the mass at the value for a data distribution.

Raises
------
ValueError
    If the value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
    gamma distribution.
)";

constexpr const char* view_prob = R"(
The quantile of a probability.

Parameters
----------
p : float
    The probability. Parametric distributions hold it within 1e-16 and 0.9999999999999999. A data
    distribution takes any number: beyond its table it goes on in straight lines.

Returns
-------
float
    The value that is not exceeded with the probability, in data units.

Raises
------
ValueError
    If the probability is NaN, for parametric distributions.
OverflowError
    If the value does not fit into a float, as for some gamma and Student distributions.
)";

constexpr const char* pdf_values = R"(
Densities at many values, in parallel.

Parameters
----------
list : list of float
    Values, in data units.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    A density for each value, in units of 1 / data units; masses for a data distribution.

Raises
------
ValueError
    If a value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
    gamma distribution.
)";

constexpr const char* view_probs = R"(
Quantiles of many probabilities, in parallel.

Parameters
----------
list : list of float
    Probabilities. Parametric distributions hold them within 1e-16 and 0.9999999999999999. A data
    distribution takes any numbers: beyond its table it goes on in straight lines.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    A quantile for each probability, in data units.
)";

constexpr const char* pdf_min = R"(
The quantile of 1e-16, which is finite without a lower bound too.

Returns
-------
float
    In data units; the least value of a data distribution.
)";

constexpr const char* pdf_max = R"(
The quantile of 0.9999999999999999, which is finite without an upper bound too.

Returns
-------
float
    In data units. That of a data distribution lies beyond its greatest value.
)";

constexpr const char* pdf_median = R"(
The quantile of 0.5.

Returns
-------
float
    In data units.
)";

constexpr const char* pdf_q90 = R"(
The quantile of 0.9.

Returns
-------
float
    In data units.
)";

constexpr const char* pdf_q75 = R"(
The quantile of 0.75.

Returns
-------
float
    In data units.
)";

constexpr const char* cdf = R"(
The distribution function and the quantiles of a distribution.

Examples
--------
>>> import gravelox
>>> cdf = gravelox.CDF(gravelox.gaussian_distribution(10.0, 2.0))
>>> round(cdf.value(10.0), 4), round(cdf.prob(0.975), 4)
(0.5, 13.9199)
)";

constexpr const char* cdf_init = R"(
View a distribution by its distribution function.

Parameters
----------
dist : Distribution
    The distribution.
)";

constexpr const char* cdf_value = R"(
The probability of a value or less.

Parameters
----------
x : float
    The value, in data units.

Returns
-------
float
    The probability. A data distribution goes on in straight lines beyond its values, below 0 and
    above 1 as well.

Raises
------
ValueError
    If the value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
    gamma distribution.
)";

constexpr const char* cdf_values = R"(
Probabilities of many values, in parallel.

Parameters
----------
list : list of float
    Values, in data units.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    A probability for each value. A data distribution goes on in straight lines beyond its values,
    below 0 and above 1 as well.

Raises
------
ValueError
    If a value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
    gamma distribution.
)";

constexpr const char* nscore = R"(
A map of one distribution onto another, such as samples onto the Gaussian: the normal score.

A value goes through the distribution function of one and the quantile of the other, so order is
kept. Equal samples share one score. Tails are those of the two distributions, see
`data_distribution`.

References
----------
Journel, A. G. and Huijbregts, C. J. (1978). Mining Geostatistics. Academic Press.

Examples
--------
>>> import gravelox
>>> scores = gravelox.NScore(
...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
>>> [round(score, 4) for score in scores.forward([2.0, 8.0])]
[-0.6745, 0.6745]
>>> round(scores.backward(0.6745), 3)
8.0
)";

constexpr const char* nscore_init = R"(
Pair two distributions.

Parameters
----------
source : Distribution
    The distribution of the values, by `data_distribution` for a normal score.
target : Distribution
    The distribution of the scores, `gaussian_distribution()` for a normal score.
)";

constexpr const char* nscore_forward = R"(
The score of a value.

Scores of values up to the least sample are that of the probability 1e-16, -8.22 for the standard
Gaussian, that of the least sample included. The score of the greatest sample is that of 1 less its
weight; above it scores rise up to 8.21, that of 0.9999999999999999.

Parameters
----------
x : float
    The value, in data units.

Returns
-------
float
    The score.

Examples
--------
>>> import gravelox
>>> scores = gravelox.NScore(
...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
>>> round(scores.forward(1.0), 2), round(scores.forward(-100.0), 2)
(-8.22, -8.22)
)";

constexpr const char* nscore_forward_list = R"(
Scores of many values, in parallel.

Scores of values up to the least sample are that of the probability 1e-16, -8.22 for the standard
Gaussian, that of the least sample included. The score of the greatest sample is that of 1 less its
weight; above it scores rise up to 8.21, that of 0.9999999999999999.

Parameters
----------
x : list of float
    Values, in data units.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    A score for each value.
)";

constexpr const char* nscore_backward = R"(
The value of a score.

Scores above that of the greatest sample give values beyond it, along a straight line.

Parameters
----------
y : float
    The score.

Returns
-------
float
    The value, in data units.

Examples
--------
>>> import gravelox
>>> scores = gravelox.NScore(
...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
>>> round(scores.backward(scores.forward(3.0)), 6)
3.0
)";

constexpr const char* nscore_backward_list = R"(
Values of many scores, in parallel.

Scores above that of the greatest sample give values beyond it, along a straight line.

Parameters
----------
y : list of float
    Scores.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    A value for each score, in data units.
)";

constexpr const char* gaussian_distribution = R"(
The Gaussian distribution.

Parameters
----------
mean : float
    Mean, in data units.
std_dev : float
    Standard deviation, in data units, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `std_dev` is not above 0, or a parameter is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.gaussian_distribution()).value(1.0), 4)
0.8413
)";

constexpr const char* lognormal_distribution = R"(
The lognormal distribution.

Parameters
----------
m : float
    Mean of the logarithm.
s : float
    Standard deviation of the logarithm, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `s` is not above 0, or a parameter is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.PDF(gravelox.lognormal_distribution(1.0, 0.5)).median(), 4)
2.7183
)";

constexpr const char* student_t_distribution = R"(
Student's t distribution.

Parameters
----------
n : float
    Degrees of freedom, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `n` is not above 0.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.student_t_distribution(10)).prob(0.975), 4)
2.2281
)";

constexpr const char* fisher_f_distribution = R"(
Fisher's F distribution.

Parameters
----------
m : float
    Degrees of freedom of the numerator, above 0 and at most 1e15.
n : float
    Degrees of freedom of the denominator, above 0 and at most 1e15.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If a parameter is not above 0 or not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.fisher_f_distribution(5, 10)).prob(0.95), 4)
3.3258
)";

constexpr const char* cauchy_distribution = R"(
The Cauchy distribution.

Parameters
----------
a : float
    Location (the median), in data units.
b : float
    Scale (half the interquartile range), in data units, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `b` is not above 0, or a parameter is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.PDF(gravelox.cauchy_distribution(1.0, 2.0)).q75(), 4)
3.0
)";

constexpr const char* chi_squared_distribution = R"(
The chi-squared distribution.

Parameters
----------
k : float
    Degrees of freedom, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `k` is not above 0 or not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.chi_squared_distribution(3)).prob(0.95), 4)
7.8147
)";

constexpr const char* extreme_value_distribution = R"(
The extreme value distribution of the greatest values (type I, Gumbel).

Parameters
----------
a : float
    Location (the mode), in data units.
b : float
    Scale, in data units, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `b` is not above 0, or a parameter is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.extreme_value_distribution(1.0, 2.0)).value(1.0), 4)
0.3679
)";

constexpr const char* weibull_distribution = R"(
The Weibull distribution.

Parameters
----------
a : float
    Shape, above 0.
b : float
    Scale, in data units, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If a parameter is not above 0 or not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.weibull_distribution(2.0, 3.0)).value(3.0), 4)
0.6321
)";

constexpr const char* exponential_distribution = R"(
The exponential distribution.

Python has a keyword of the name of its parameter: give it by position, or as
`**{"lambda": 2.0}`.

Parameters
----------
lambda : float
    Rate (1 / mean), in units of 1 / data units, above 0.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `lambda` is not above 0 or not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.PDF(gravelox.exponential_distribution(2.0)).median(), 4)
0.3466
)";

constexpr const char* uniform_distribution = R"(
The uniform distribution.

Parameters
----------
a : float
    Lower end, in data units.
b : float
    Upper end, in data units, above `a`.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If `a` is not below `b`, or a parameter is not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.PDF(gravelox.uniform_distribution(2.0, 4.0)).q90(), 4)
3.8
)";

constexpr const char* gamma_distribution = R"(
The gamma distribution.

Parameters
----------
alpha : float
    Shape, above 0.
beta : float
    Scale, in data units, above 0: the mean is alpha beta.

Returns
-------
Distribution
    The distribution.

Raises
------
ValueError
    If a parameter is not above 0 or not finite.

Examples
--------
>>> import gravelox
>>> round(gravelox.CDF(gravelox.gamma_distribution(2.0, 3.0)).value(6.0), 4)
0.594
)";

constexpr const char* data_distribution = R"(
The distribution of samples, with or without weights.

Samples within 1e-16 of each other count as one, with their weights summed. The table of the
distribution is exclusive: the probability of a value is the share of the weight below it, 1e-16 for
the least and 1 less its own share for the greatest value.

Between the values, quantiles and probabilities are interpolated linearly. Beyond both ends they go
on in straight lines and are not clamped: probabilities fall below 0 and rise above 1, and draws
reach beyond the greatest value, as often as its weight tells. To have an upper tail end somewhere
or a lower tail at all, put its end among the data with a small weight.

Parameters
----------
data : sequence of float of length n
    The samples, in data units, in any order; at least 2.
weight : sequence of float of length n
    Their weights, by declustering for instance, which need not add up to 1; empty: all equal.

Returns
-------
Distribution
    The distribution. Its density is a mass: half the weight between the neighbours of a value.

Raises
------
ValueError
    "Data must have at least 2 elements", or if a number is not finite, or weights are of another
    length, negative, or all 0.

Examples
--------
>>> import gravelox
>>> cdf = gravelox.CDF(gravelox.data_distribution([1.0, 2.0]))
>>> round(cdf.value(2.0), 6), round(cdf.prob(0.75), 6)
(0.5, 2.5)
>>> weighted = gravelox.CDF(gravelox.data_distribution([1.0, 2.0], [3.0, 1.0]))
>>> round(weighted.value(2.0), 6)
0.75
)";

}  // namespace gravelox::docs
