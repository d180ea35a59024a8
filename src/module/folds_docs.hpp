// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the family of folds and cross-validation.

namespace gravelox::docs {

constexpr const char* create_folds = R"(
Cut groups of neighbours out of the samples, each around a centre of high value.

The first centre is the sample of the highest value; the others are drawn from the upper half of the
values, and one may be drawn again. Groups overlap, and not every sample need be in one. Both
searches are as approximate as a `Neighborhood`. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data_values : sequence of float of length n
    Values of the samples, in data units.
max_distance : float
    Greatest distance of a member to its centre, inclusive, in length units.
max_size : int
    Candidates are this many nearest samples; below 1, or from the number of samples on, all within
    `max_distance`.
n_centers : int
    Number of groups. Those without members are left out; where none is left, as for 0, all samples
    make one group.
seed : int
    Seed of the centres.

Returns
-------
list of tuple of (list of numpy.ndarray of shape (3,), list of float)
    Locations and values of each group, nearest to its centre first.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, or
    `n_centers` is negative.

Examples
--------
>>> import gravelox
>>> locations = [(float(x), 0, 0) for x in range(10)]
>>> folds = gravelox.create_folds(locations, range(10), 2.5, -1, 4)
>>> len(folds)
4
>>> folds[0][1]
[9.0, 8.0, 7.0]
)";

constexpr const char* kfold_cross_validation_using_idw = R"(
Cross-validation errors of inverse distances in a covariance model, by random partitions.

Data are standardised first by their mean and population standard deviation, so errors are in units
of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
random partition of the samples near it; it never takes part in its own estimate.

Weights are 1 / (1 - covariance)^`power_a`. Samples whose covariance with the target is 1 or more
are left out: with a total sill above 1 these are the nearest. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data_values : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The model, with a total sill of 1.
max_distance : float
    Candidates of a sample are strictly nearer than this, in length units and whatever the model's
    anisotropy.
max_size : int
    Candidates are this many nearest samples, the sample itself included; below 1 all within
    `max_distance`.
power_a : float
    Exponent of the distance.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
    of them. Where the upper bound lies below the lower one, nearly all partitions are.
n_partition_size : int
    Partitions of each sample: how many errors it gets, and not a size.
n_threads : int
    Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
seed : int
    Seed of the partitions.

Returns
-------
list of list of float
    A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
    standard deviations. NaN throughout for a sample with fewer than three candidates; single ones
    are NaN where no sample of the partition has weight.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, a count is negative, or
    `max_partition_size` is `min_partition_size` less 1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> locations = np.random.RandomState(1).uniform(0, 100, (200, 3))
>>> values = np.sin(locations[:, 0] / 20)
>>> sphere = gravelox.Ellipsoid(40, 40, 40, 90, 0, 0)
>>> errors = gravelox.kfold_cross_validation_using_idw(
...     locations, values, [gravelox.Covariance.spherical(1.0, sphere)], 50.0, n_partition_size=4)
>>> np.shape(errors)
(200, 4)
>>> bool(np.nanmean(np.abs(errors)) < 0.6)
True
)";

constexpr const char* kfold_cross_validation_using_sk = R"(
Cross-validation errors of simple kriging, by random partitions.

Data are standardised first by their mean and population standard deviation, so errors are in units
of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
random partition of the samples near it; it never takes part in its own estimate.

The mean of the standardised data, 0, is the known mean. The scale of the sills does not matter, nor
is there a threshold on weights: each partition of a sample with candidates has an error. The
interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data_values : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The model.
max_distance : float
    Candidates of a sample are strictly nearer than this, in length units and whatever the model's
    anisotropy.
max_size : int
    Candidates are this many nearest samples, the sample itself included; below 1 all within
    `max_distance`.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
    of them. Where the upper bound lies below the lower one, nearly all partitions are.
n_partition_size : int
    Partitions of each sample: how many errors it gets, and not a size.
n_threads : int
    Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
seed : int
    Seed of the partitions.

Returns
-------
list of list of float
    A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
    standard deviations. NaN throughout for a sample with fewer than three candidates.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, a count is negative, or
    `max_partition_size` is `min_partition_size` less 1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* kfold_cross_validation_using_ok = R"(
Cross-validation errors of ordinary kriging, by random partitions.

Data are standardised first by their mean and population standard deviation, so errors are in units
of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
random partition of the samples near it; it never takes part in its own estimate.

The Lagrange multiplier is part of the estimate, and so of the errors. It has the unit of the sills:
let these add up to 1, the variance of the standardised data, and it is about -0.1 in partitions of
ten samples under a model of short ranges, and less in larger ones and under long ranges. Sills in
the data's own units squared make errors that tell of the sills only. The weights do not depend on
the scale of the sills: for the errors of the weighted sum alone let them add up to 1e-4, whatever
the unit of the data. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data_values : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The model, with sills for data of variance 1.
max_distance : float
    Candidates of a sample are strictly nearer than this, in length units and whatever the model's
    anisotropy.
max_size : int
    Candidates are this many nearest samples, the sample itself included; below 1 all within
    `max_distance`.
min_partition_size, max_partition_size : int
    Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
    of them. Where the upper bound lies below the lower one, nearly all partitions are.
n_partition_size : int
    Partitions of each sample: how many errors it gets, and not a size.
n_threads : int
    Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
seed : int
    Seed of the partitions.

Returns
-------
list of list of float
    A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
    standard deviations. NaN throughout for a sample with fewer than three candidates.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, a count is negative, or
    `max_partition_size` is `min_partition_size` less 1.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

constexpr const char* create_folds_using_multiscale = R"(
Cut groups of neighbours out of samples thinned at several scales.

At each scale space is divided into cells, in the metric of an ellipsoid, and one random sample of
each cell is kept; `create_folds` makes `n_partitions` groups of these.

Parameters
----------
n_partitions : int
    Groups at each scale: the `n_centers` of `create_folds`.
min_partition_size : int
    Groups with fewer members are left out.
max_partition_size : int
    Most members of a group; below 1 all within `max_distance`.
max_distance : float
    Greatest distance of a member to its centre, inclusive, in length units.
scales : sequence of float
    Sides of the cells in the space of `search_ellipsoid`, in multiples of its ranges.
search_ellipsoid : Ellipsoid
    The metric of the cells.
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
max_radius : float
    Accepted and not used.
max_size : int
    Accepted and not used.
max_neis_octant : int
    Accepted and not used.
seed : int
    Seed of the samples kept and of the centres.
n_threads : int
    Accepted and not used.
dhids : list of int
    Accepted and not used.
max_neis_by_dhid : int
    Accepted and not used.

Returns
-------
list of tuple of (list of numpy.ndarray of shape (3,), list of float)
    Locations and values of each group, scale by scale.

Raises
------
ValueError
    If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
    `n_partitions` is negative, or a scale is 0 or not finite.

Notes
-----
Cells are counted from the origin of coordinates towards 0 on both sides: those along a coordinate
plane are twice as wide.
)";

constexpr const char* multi_scale_cross_validation_error = R"(
Mean absolute error of simple kriging from neighbours thinned at several scales.

Data are standardised first, and 0 is the known mean. A sample is estimated from its neighbours
without itself; at each scale they are shuffled and the first in each cell is kept. The absolute
errors are averaged over the scales of a sample, then over the samples.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data : sequence of float of length n
    Values of the samples, in data units.
cov : list of Covariance
    The model.
range1, range2, range3 : float
    Ranges along x, y and z of the ellipsoid that gives the metric of the search and of the cells,
    in length units.
scales : sequence of float
    Sides of the cells in multiples of the ranges.
max_size : int
    Candidates are this many nearest samples, the sample itself included; 0 and below switch to
    `max_radius`.
max_radius : float
    Radius of the search in multiples of the ranges, used only without `max_size`. A negative radius
    counts by its absolute value.
max_neis_octant : int
    Most samples in each octant around the sample (real coordinates); 0 and below: no limit.
n_threads : int
    Threads; 0 means all. Each has an engine of its own, so the error repeats only for an equal
    number.
seed : int
    Seed of the shuffles.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
float
    The error in standard deviations. Samples with fewer than three neighbours have none; NaN if
    that is all of them.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, there are no scales, or one is 0 or not
    finite.

References
----------
Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
Royal Statistical Society B 36, 111-147.
)";

}  // namespace gravelox::docs
