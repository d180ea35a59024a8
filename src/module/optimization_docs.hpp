// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the family of model optimisation.

namespace gravelox::docs {

constexpr const char* local_covariances = R"(
Covariance models that hold around centres, each with its error.

The three lists run parallel. Reading one gives a copy: to change it, assign a whole list.

Examples
--------
>>> import gravelox
>>> steep = gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(60, 40, 20, 30, -60, 0))
>>> flat = gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(60, 40, 20, 30, 0, 0))
>>> local = gravelox.LocalCovariances([(0, 0, 0), (100, 0, 0)], [[steep], [flat]], [1.0, 0.5])
>>> local.errors
[1.0, 0.5]
)";

constexpr const char* local_covariances_init = R"(
Make a set of local models.

Parameters
----------
centers : array_like of shape (n, 3)
    Where the models hold, in metres or another length unit.
covariances : list of list of Covariance
    A model for each centre.
errors : sequence of float of length n
    The error of each model, above 0. It multiplies distances to the centre where models are
    blended: the greater it is, the less the model weighs.

Raises
------
ValueError
    If the lists differ in length or a centre is not finite.
)";

constexpr const char* local_covariances_centers = R"(
Where the models hold: a list of numpy.ndarray of shape (3,), in length units.
)";

constexpr const char* local_covariances_covariances = R"(
The models: a list of Covariance for each centre.
)";

constexpr const char* local_covariances_errors = R"(
The error of each model, which multiplies distances to its centre.
)";

constexpr const char* ellipsoid_optimization_parameters = R"(
Settings of a search for ellipsoids, for `optimize_ellipsoid` and `optimize_local_ellipsoids`.

The fields cannot be read back. Those functions' own default is another one: `n_rays` 600,
`n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and `regularization_const`
0.001, where a record made here without arguments has 400, 8, 150, 50 and 0.025: a shorter search,
held to shorter ranges. All other fields are the same.

Examples
--------
>>> import gravelox
>>> quick = gravelox.EllipsoidOptimizationParameters(n_rays=100, tol=0.01, n_threads=1)
>>> thorough = gravelox.EllipsoidOptimizationParameters(
...     n_rays=600, n_scales=5, n_iterations=2000, n_iterations_without_upgrade=100,
...     regularization_const=0.001)  # what a call without a record takes
)";

constexpr const char* ellipsoid_optimization_parameters_init = R"(
Make the settings of a search.

Parameters
----------
power_a : float
    Exponent of the distance 1 - covariance.
max_nei_size : int
    Most samples in a group; below 1 there is no limit.
min_partition_size : int
    Least size of a partition.
max_partitions_size : int
    Greatest size of a partition. The name has one more "s" than everywhere else.
n_partitions : int
    Partitions of each sample: how often it is estimated.
n_centers : int
    Groups of samples that a candidate is rated on.
n_rays : int
    Half the number of directions of the candidates' axes. The number of candidates grows with its
    square.
n_scales : int
    Half the number of ellipsoids for each frame of axes.
n_iterations : int
    Most candidates that a thread rates in the first phase; of the second phase the tries of all
    threads together, plus one for each thread.
n_iterations_without_upgrade : int
    A thread that has rated this many candidates without a better one leaves the first phase.
tol : float
    Greatest cosine of two directions that count as at right angles: a tolerance of the candidates'
    axes, and not of convergence. The number of candidates grows with it.
regularization_const : float
    Weight of the penalty on ranges; 0 for none. It acts on numbers of length units: in metres the
    default punishes long ranges so hard that the search may end at ranges near 0.
seed : int
    Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
n_threads : int
    Threads; 0 means all. The result repeats for an equal number only.
debug : bool
    Whether to print each improvement, on the standard output and the standard error of the process
    (not on `sys.stdout`).

Notes
-----
With the values here there are some 10,000 candidates, most of which are never rated; with those of
a call without a record some 14,000.
)";

constexpr const char* ellipsoid_lbfgs_parameters = R"(
Settings of the gradient fits of `optimize_local_ellipsoids_using_lbfgs`.

The solver is a trust-region one, whatever the name. The fields cannot be read back.

Examples
--------
>>> import gravelox
>>> parameters = gravelox.EllipsoidLBFGSParameters(regularization_const=0.1, n_threads=1)
)";

constexpr const char* ellipsoid_lbfgs_parameters_init = R"(
Make the settings of local gradient fits.

Parameters
----------
regularization_const : float
    Weight of the prior on ranges for each partition, and of the penalty on ranges in the rating of
    the results.
cauchy_loss : float
    Scale of a Cauchy loss on errors, which bounds the pull of outliers; below 1e-10 there is none.
min_partition_size : int
    Least number of samples that estimate the others.
max_partition_size : int
    In a fit the bound that their number stays below, in the rating of the fits the greatest size of
    a partition. Not equal to `min_partition_size`.
n_partitions : int
    Partitions of each group.
n_iterations : int
    Most iterations of the solver.
seed : int
    Seed of groups and partitions.
n_threads : int
    Threads; 0 means all. Ellipsoids do not depend on it, their errors do.
debug : bool
    Whether to print how fits go on, on the standard output and the standard error of the process
    (not on `sys.stdout`).
)";

constexpr const char* covariance_error_function = R"(
A rating of covariance models, the lower the better: one by cross-validation, or one of your own.

Examples
--------
>>> import gravelox
>>> def misfit(model, n_threads):
...     return abs(sum(structure.sill() for structure in model) - 1)
>>> rating = gravelox.CovarianceErrorFunction.Custom(misfit)
>>> sphere = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
>>> rating([gravelox.Covariance.spherical(0.75, sphere)])
0.25
)";

constexpr const char* covariance_error_function_idw = R"(
The rating of `compute_covariance_error_idw`, over given groups of samples.

Parameters
----------
folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
    Groups of samples, locations in length units and values in data units, as `create_folds` makes
    them.
max_distance : float
    Samples count for each other where they are strictly nearer than this, in length units.
power_a : float
    Exponent of the distance 1 - covariance.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive.
n_partitions : int
    Partitions of each sample: how often it is estimated.
regularization_const : float
    Weight of the penalty on ranges; 0 for none.
seed : int
    Seed of the partitions: all models are rated on the same ones.

Returns
-------
CovarianceErrorFunction
    To be called with models.

Raises
------
ValueError
    If `folds` are empty, the locations and values of one differ in length, a coordinate is not
    finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.
)";

constexpr const char* covariance_error_function_custom = R"(
A rating by a Python function.

A search calls it from its threads, in any order but one call at a time, so more threads do not make
it faster. An exception in it ends the search and is raised by it.

Parameters
----------
python_callback : callable
    Takes the model (a list of Covariance) and the number of threads that the rating may use, both
    by position, and gives a float. A NaN or an infinity never wins, and a first
    model rated NaN stays the best.

Returns
-------
CovarianceErrorFunction
    To be called with models. What the function returns and is not a number raises TypeError.
)";

constexpr const char* covariance_error_function_call = R"(
Rate a model.

Parameters
----------
covariance : list of Covariance
    The model.
n_threads : int
    Threads; 0 means all. A rating by cross-validation grows with it, see
    `compute_covariance_error_idw`; a Python function gets the number as it is.

Returns
-------
float
    The error; the lower the better.
)";

constexpr const char* optimize_covariance = R"(
Search a list of covariance models for the one of the least error, and improve it.

A search has two phases. In the first each thread rates its share of the candidates and keeps the
best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
the candidates be too large rather than too small.

Parameters
----------
covs : list of list of Covariance
    The candidates, not empty. The first is rated with all threads, the others with one each.
error_function : CovarianceErrorFunction
    The rating.
n_iterations : int
    Most candidates that a thread rates in the first phase; of the second phase the tries of all
    threads together, plus one for each thread.
n_iterations_without_upgrade : int
    A thread that has rated this many candidates without a better one leaves the first phase.
n_threads : int
    Threads; 0 means all. The result repeats for an equal number only.
debug : bool
    Whether to print each improvement, on the standard output and the standard error of the process
    (not on `sys.stdout`).

Returns
-------
model : list of Covariance
    The best model; its sills and kernels are those of a candidate.
error : float
    Its rating by one thread, or by all where none was better than the first candidate's by all.

Raises
------
ValueError
    If `covs` is empty or a number of iterations negative.

Notes
-----
All of the second phase draws from one fixed seed. A nugget is left as it is. With 0 iterations no
candidate but the first is rated.

Examples
--------
The first phase takes the candidate of range 45, whose error is 15; the second shrinks it:

>>> import gravelox
>>> def off(model, n_threads):
...     return abs(model[0].ellipsoid().info().r1() - 30)
>>> spheres = [gravelox.Ellipsoid(r, r, r, 90, 0, 0) for r in (10, 45, 80)]
>>> models = [[gravelox.Covariance.spherical(1.0, sphere)] for sphere in spheres]
>>> rating = gravelox.CovarianceErrorFunction.Custom(off)
>>> model, error = gravelox.optimize_covariance(models, rating, 300, n_threads=1)
>>> error < 5
True
)";

constexpr const char* optimize_ellipsoid_using_idw = R"(
Search for the ellipsoid by which samples estimate each other best, by inverse distance.

Candidates are random ellipsoids, see `generate_ellipsoids`, rated by `compute_ellipsoid_error_idw`
on random groups of samples. The interpreter lock is released.

A search has two phases. In the first each thread rates its share of the candidates and keeps the
best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
the candidates be too large rather than too small.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
cov_kernel : Kernel
    The shape of the covariance, of sill 1.
min_range, max_range : float
    Bounds of the candidates' sizes, in length units; see `generate_ellipsoids`.
power_a : float
    Exponent of the distance 1 - covariance.
max_distance : float
    Reach of a group from its centre, and distance within which its samples count for each other, in
    length units.
max_nei_size : int
    Most samples in a group; below 1 there is no limit. Within a group all samples are candidates.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive.
n_partitions : int
    Partitions of each sample: how often it is estimated.
regularization_const : float
    Weight of the penalty on ranges; 0 for none.
n_centers : int
    Groups of samples that a candidate is rated on.
n_rays : int
    Half the number of directions of the candidates' axes. The number of candidates grows with its
    square.
n_scales : int
    Half the number of ellipsoids for each frame of axes.
n_iterations : int
    Most candidates that a thread rates in the first phase; of the second phase the tries of all
    threads together, plus one for each thread.
n_iterations_without_upgrade : int
    A thread that has rated this many candidates without a better one leaves the first phase.
tol : float
    Greatest cosine of two directions that count as at right angles: a tolerance of the candidates'
    axes, and not of convergence. The number of candidates grows with it.
seed : int
    Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
n_threads : int
    Threads; 0 means all. The result repeats for an equal number only.
debug : bool
    Whether to print each improvement, on the standard output and the standard error of the process
    (not on `sys.stdout`).

Returns
-------
ellipsoid : Ellipsoid
    The best one, as the anisotropy of a covariance or of a search.
error : float
    Its rating by one thread: mean absolute error in standard deviations, with the penalty.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
    count is negative, there is no candidate, or `max_partition_size` is `min_partition_size` less
    1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* optimize_ellipsoid = R"(
Search for the ellipsoid of samples, with sizes as shares of their extent.

It is `optimize_ellipsoid_using_idw` with lengths in units of the diagonal of the samples' box, and
all samples within reach of each other. The interpreter lock is released.

A search has two phases. In the first each thread rates its share of the candidates and keeps the
best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
the candidates be too large rather than too small.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
cov_kernel : Kernel
    The shape of the covariance, of sill 1.
min_range, max_range : float
    Bounds of the candidates' sizes, as shares of the diagonal.
parameters : EllipsoidOptimizationParameters
    Settings. What is left out here is not the record that a call without arguments makes: it has
    `n_rays` 600, `n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and
    `regularization_const` 0.001.

Returns
-------
ellipsoid : Ellipsoid
    The best one, with ranges in length units.
error : float
    Its rating by one thread: mean absolute error in standard deviations, with the penalty.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
    count of the settings is negative, or there is no candidate.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.

Examples
--------
Values that change along y only; the best ellipsoid is longest along x and z:

>>> import gravelox
>>> import numpy as np
>>> locations = np.random.RandomState(1).uniform(0, 100, (150, 3))
>>> parameters = gravelox.EllipsoidOptimizationParameters(
...     n_rays=20, tol=0.05, n_iterations=60, n_threads=1)
>>> ellipsoid, error = gravelox.optimize_ellipsoid(
...     locations, np.sin(locations[:, 1] / 15), gravelox.Kernel.spherical, 0.1, 0.8, parameters)
>>> along = ellipsoid.minor_axis()
>>> bool(abs(along[1]) > 0.7 * np.linalg.norm(along))
True
)";

constexpr const char* compute_ellipsoid_error_idw = R"(
The rating of an ellipsoid: error of inverse distance estimation, times a penalty on ranges.

It is `compute_covariance_error_idw` of one structure of sill 1. The interpreter lock is released.

Parameters
----------
ellipsoid : Ellipsoid
    The ellipsoid to rate, with ranges in length units.
cov_kernel : Kernel
    The shape of the covariance.
folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
    Groups of samples, locations in length units and values in data units, as `create_folds` makes
    them.
max_distance : float
    Samples count for each other where they are strictly nearer than this, in length units.
max_size : int
    Most candidates of a sample, itself included; below 1 there is no limit but `max_distance`.
power_a : float
    Exponent of the distance 1 - covariance.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive.
n_partitions : int
    Partitions of each sample: how often it is estimated.
regularization_const : float
    Weight of the penalty on ranges; 0 for none.
n_threads : int
    Threads; 0 means all. The rating grows with it: compare ratings by one thread only.
seed : int
    Seed of the partitions.

Returns
-------
float
    The error in standard deviations, with the penalty.

Raises
------
ValueError
    If `folds` are empty, the locations and values of one differ in length, a coordinate is not
    finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* optimize_ellipsoid_using_kfold = R"(
Fit an ellipsoid by which random parts of the samples estimate the rest, by a gradient search.

Each group is cut `n_partitions` times into samples that estimate, by inverse distance to the power
3 in the variogram's metric, and samples that are estimated. The sill, three ranges and three angles
that make the squares of damped errors least are sought; the mean error of a partition counts as one
more. Derivatives are automatic, the solver is that of Levenberg and Marquardt. A fit is local: it
starts from axes along the grid. The interpreter lock is released.

Parameters
----------
folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
    Groups of samples, locations in length units and values in data units, as `create_folds` makes
    them.
cov_type : str
    The covariance: "spherical", "gaussian" or "exponential".
r1_max, r2_max, r3_max : float
    Greatest ranges along x, y and z before the fit turns them, in length units. A fit starts from
    half of them and stays above a thousandth.
regularization_const : float
    Weight of a prior that prefers short ranges to long ones; 0 for none.
cauchy_loss : float
    Scale of a Cauchy loss on errors, which bounds the pull of outliers; below 1e-10 there is none.
min_partition_size, max_partition_size : int
    Bounds of the number of samples that estimate, the upper one exclusive and not equal to the
    lower one. Where a group has fewer, all but two of it estimate.
n_partitions : int
    Partitions of each group.
n_iterations : int
    Most iterations of the solver.
seed : int
    Seed of the partitions.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
debug : bool
    Whether to print iterations on the standard output and a report on the standard error of the
    process (not on `sys.stdout`).

Returns
-------
Ellipsoid
    The fit, or what it reached after `n_iterations`; nothing tells of a fit that failed. Where
    values are all equal, or a partition is just as large as its group and leaves nothing to
    estimate, it is the start: take a `min_partition_size` well below the sizes of the groups.

Raises
------
ValueError
    If `folds` are empty, the locations and values of one differ in length, a coordinate is not
    finite, a partition has no sample that estimates, `cov_type` is unknown, a greatest range is not
    above 0, a count is negative, or the two partition sizes are equal.

Notes
-----
Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
There take a search, or turn the samples until their structure lies along the coordinates, and rate
the result with `compute_ellipsoid_error_idw`.

References
----------
Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
of the Society for Industrial and Applied Mathematics 11, 431-441.
)";

constexpr const char* compute_covariance_error_idw = R"(
The rating of a covariance model: error of inverse distance estimation, times a penalty on ranges.

Each group of samples is cross-validated with `kfold_cross_validation_using_idw` by itself, so
errors are in units of the group's own standard deviation. The error is multiplied by
1 + `regularization_const` P, where P is the sum of log(1 + r^2) over the ranges of all structures,
a nugget's (of 1) included. The interpreter lock is released.

Parameters
----------
cov : list of Covariance
    The model, with a total sill of 1.
folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
    Groups of samples, locations in length units and values in data units, as `create_folds` makes
    them.
max_distance : float
    Samples count for each other where they are strictly nearer than this, in length units.
max_size : int
    Most candidates of a sample, itself included; below 1 there is no limit but `max_distance`.
power_a : float
    Exponent of the distance 1 - covariance.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive.
n_partitions : int
    Partitions of each sample: how often it is estimated.
regularization_const : float
    Weight of the penalty on ranges; 0 for none.
n_threads : int
    Threads; 0 means all. The rating is a sum over threads of each one's mean absolute error: by n
    threads it is about n times as large. Compare ratings by one thread only.
seed : int
    Seed of the partitions, the same for all groups.

Returns
-------
float
    The error in standard deviations, with the penalty. Errors that are not finite are left out;
    where all are, the rating is a perfect 0.

Raises
------
ValueError
    If `folds` are empty, the locations and values of one differ in length, a coordinate is not
    finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.

Notes
-----
The penalty is on numbers, not on lengths: it weighs more in feet than in metres.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* optimize_covariance_using_idw = R"(
Search for the nested covariance model by which samples estimate each other best.

Candidates are those of `generate_covariances`, rated by `compute_covariance_error_idw` on random
groups of samples. The interpreter lock is released.

A search has two phases. In the first each thread rates its share of the candidates and keeps the
best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
the candidates be too large rather than too small.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
ellipsoid : Ellipsoid
    The anisotropy to start from, in length units.
cov_kernel : Kernel
    The shape of all structures but the nugget.
n_kernels : int
    Structures in a model, beside the nugget.
n_covs : int
    Number of candidates.
delta_angle : float
    Greatest change of azimuth, dip and rake among the candidates, in degrees.
min_str_range, max_str_range : float
    Bounds of the summed lengths of the structures' range vectors, as multiples of the largest range
    of `ellipsoid`.
min_sill, max_sill : float
    Bounds of the sills before they are scaled to add up to 1.
min_range, max_range : float
    Accepted and not used.
power_a : float
    Exponent of the distance 1 - covariance.
max_distance : float
    Reach of a group from its centre, and distance within which its samples count for each other, in
    length units.
max_nei_size : int
    Most samples in a group; below 1 there is no limit. Within a group all samples are candidates.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive.
n_partitions : int
    Partitions of each sample: how often it is estimated.
regularization_const : float
    Weight of the penalty on ranges; 0 for none.
n_centers : int
    Groups of samples that a candidate is rated on.
n_rays : int
    Accepted and not used.
n_scales : int
    Accepted and not used.
n_iterations : int
    Most candidates that a thread rates in the first phase; of the second phase the tries of all
    threads together, plus one for each thread.
n_iterations_without_upgrade : int
    A thread that has rated this many candidates without a better one leaves the first phase.
tol : float
    Accepted and not used.
seed : int
    Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
n_threads : int
    Threads; 0 means all. The result repeats for an equal number only.
debug : bool
    Whether to print each improvement, on the standard output and the standard error of the process
    (not on `sys.stdout`).

Returns
-------
model : list of Covariance
    The best model: `n_kernels` structures and a nugget, with sills that add up to 1.
error : float
    Its rating by one thread: mean absolute error in standard deviations, with the penalty.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
    count is negative, `n_covs` is below 1, or `max_partition_size` is `min_partition_size` less 1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* optimize_local_ellipsoids = R"(
Fit an ellipsoid to each of several groups of samples by a search of candidates.

Groups are those of `create_folds` with a radius of `center_max_size` times the diagonal of the
samples' box divided by `n_centers` (by the number itself, and not by its cube root). Each is
searched as by `optimize_ellipsoid`, with the same seed. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
cov_kernel : Kernel
    The shape of the covariances, of sill 1.
min_range, max_range : float
    Bounds of the candidates' sizes, as shares of the diagonal of a group's own box.
n_centers : int
    Number of groups, at least 1.
center_max_size : float
    Scales the radius of a group, see above.
center_size : int
    Most samples in a group; below 1 there is no limit but the radius.
ellipsoid_opt_params : EllipsoidOptimizationParameters
    Settings. What is left out here is not the record that a call without arguments makes: it has
    `n_rays` 600, `n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and
    `regularization_const` 0.001.

Returns
-------
LocalCovariances
    For each group the mean of its locations, a model of one structure of sill 1, whose label reads
    "spherical" whatever the kernel, and the error as the search rated it. Two groups may share a
    centre.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
    `n_centers` is below 1, or a count of the settings is negative.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* optimize_local_ellipsoids_using_lbfgs = R"(
Fit an ellipsoid to each of several groups of samples by a gradient search.

Groups are those of `create_folds` with a radius of `center_max_size` times the diagonal of the
samples' box divided by `n_centers` (by the number itself, and not by its cube root). Each is
cut into groups in turn, of the same radius, which `optimize_ellipsoid_using_kfold` fits; its prior
weighs `regularization_const` for each partition. The solver is a trust-region one, whatever the
name. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
cov_type : str
    The covariance: "spherical", "gaussian" or "exponential".
n_centers : int
    Number of groups, at least 1.
n_local_centers : int
    Groups within a group; for 0 it stays whole.
center_max_size : float
    Scales the radius of a group, see above.
center_size : int
    Most samples in a group; below 1 there is no limit but the radius.
local_center_size : int
    Most samples in a group of a group, and most candidates of a sample where results are rated.
max_local_range : float
    Greatest range of an ellipsoid, in length units.
ellipsoid_opt_params : EllipsoidLBFGSParameters
    Settings.

Returns
-------
LocalCovariances
    For each group the mean of its locations, a model of one structure of sill 1, and an error: its
    rating by `compute_covariance_error_idw` on all groups, not its own alone. The errors, each with
    1e-4 added, are divided by their sum and add up to 1.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
    `cov_type` is unknown, `n_centers` is below 1, a count is negative, `max_local_range` is not
    above 0, the two partition sizes are equal, or a group within a group holds too few samples for
    one to estimate another.

Notes
-----
Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
There take a search, or turn the samples until their structure lies along the coordinates, and rate
the result with `compute_ellipsoid_error_idw`.

References
----------
Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
of the Society for Industrial and Applied Mathematics 11, 431-441.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> locations = np.random.RandomState(1).uniform(0, 100, (300, 3))
>>> values = np.sin(locations[:, 1] / 15)
>>> parameters = gravelox.EllipsoidLBFGSParameters(n_partitions=2, n_iterations=20, n_threads=1)
>>> local = gravelox.optimize_local_ellipsoids_using_lbfgs(
...     locations, values, "spherical", 3, 2, 1.0, 100, 60, 80.0, parameters)
>>> len(local.centers), round(sum(local.errors), 6)
(3, 1.0)
)";

constexpr const char* extract_covariance_from_varmap = R"(
Fit a nested covariance model with a nugget to the lags of an experimental variogram.

Derivatives are automatic, the solver is that of Levenberg and Marquardt. A fit is local: it starts
from axes along the grid. The interpreter lock is released.

Parameters
----------
lags : array_like of shape (n, 3)
    Lag vectors, in length units.
variogram : sequence of float of length n
    Semivariances, in data units squared.
weight : sequence of float of length n
    Weights, such as pair counts.
n_structures : int
    Structures beside the nugget, at least 1.
cov_kernel : str
    Their shape: "spherical", "gaussian" or "exponential".
min_r1, min_r2, min_r3 : float
    Least ranges along x, y and z before the fit turns them, in length units, the same for all
    structures.
max_r1, max_r2, max_r3 : float
    Greatest ranges, likewise. A fit starts from the middle; equal bounds hold a range.
total_sill : float
    Sum of all sills, in data units squared; not 0.
n_iterations : int
    Most iterations of the solver.
b : float
    Lags are weighted by 1 / length^`b`, in units of a third of the vector of greatest ranges; 0 for
    none.
cauchy_loss : float
    Scale of a Cauchy loss on misfits, which bounds the pull of outliers; below 1e-10 there is none.
regularization_const : float
    Weight of a prior that prefers short ranges to long ones, shared by the structures; 0 for none.
threshold : float
    Lags with semivariances above this multiple of `total_sill` are left out.
seed : int
    Accepted and not used: a fit draws nothing.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
debug : bool
    Whether to print iterations on the standard output and a report on the standard error of the
    process (not on `sys.stdout`).

Returns
-------
list of Covariance
    `n_structures` structures and a nugget, whose sills add up to `total_sill`. Nothing tells of a
    fit that failed.

Raises
------
ValueError
    If lists differ in length, a coordinate or a bound is not finite, `n_structures` is below 1,
    `n_iterations` is negative, `cov_kernel` is unknown, or a least range is above its greatest.

Notes
-----
Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
There turn the lags until their structure lies along the coordinates, and set the variogram of the
result beside them.

All structures start from the same ranges; what tells them apart in a fit is little, so look at how
much each differs from the others.

References
----------
Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
of the Society for Industrial and Applied Mathematics 11, 431-441.

Examples
--------
A variogram map of a known model:

>>> import gravelox
>>> import numpy as np
>>> model = [gravelox.Covariance.spherical(3.0, gravelox.Ellipsoid(40, 20, 10, 90, 0, 0)),
...          gravelox.Covariance.nugget(1.0)]
>>> lags = np.random.RandomState(1).normal(0, 12, (300, 3))
>>> values = [*map(gravelox.variogram_computer(model, 4.0), lags)]
>>> fitted = gravelox.extract_covariance_from_varmap(
...     lags, values, [1.0] * 300, 1, "spherical", 1, 1, 1, 80, 80, 80, 4.0, 200, 0.0, 0.0, 0.0,
...     1.2, 0, debug=False)
>>> len(fitted), round(sum(structure.sill() for structure in fitted), 6)
(2, 4.0)
>>> bool(abs(fitted[0].ellipsoid().info().r1() - 40) < 4)
True
)";

}  // namespace gravelox::docs
