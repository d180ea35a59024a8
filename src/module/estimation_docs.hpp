// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the estimation family.

namespace gravelox::docs {

constexpr const char* estimator = R"(
An estimator with its parameters, made by `IDW`, one of the krigings or `EnsembleEstimation`.

It keeps no state between calls and can be used on any data.

Examples
--------
>>> import gravelox
>>> locations = [(0, 0, 0), (1, 0, 0)]
>>> estimator = gravelox.IDW(max_neighbors=2)
>>> estimates = estimator([(0, 0, 0)], gravelox.Neighborhood(locations), locations, [10, 20])
>>> round(estimates[0], 6)
11.0
)";

constexpr const char* estimator_call = R"(
Estimate at the targets, in parallel.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate.
neighborhood : Neighborhood
    A search over the samples' locations.
data_locs : array_like of shape (n, 3)
    Locations of the samples, those of the neighbourhood first.
data : sequence of float of length n
    Values of the samples, in data units.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.

Returns
-------
list of float
    One estimate for each target, in data units; NaN where no sample is found.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
    locations than `data_locs`.
)";

constexpr const char* idw = R"(
Inverse distance estimation with weights 1 / distance^`power_a`.

Distances are those in real coordinates. A single neighbour gives its value.

Parameters
----------
power_a : float
    Exponent of the distance.
max_weight : float
    Share of the estimate that goes to samples on the target (nearer than 1e-30), where there are
    any; the others get the rest. With 0, samples on the target are left out.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
Estimator
    To be called with targets, a neighbourhood and samples.

References
----------
Shepard, D. (1968). A two-dimensional interpolation function for irregularly-spaced data.
Proceedings of the 23rd ACM National Conference, 517-524.
)";

constexpr const char* idw_with_covariances = R"(
Inverse distance estimation whose distance is 1 minus the covariance.

Weights are 1 / (1 - covariance)^`power_a`, so the model's anisotropy shapes them.

Parameters
----------
covs : list of Covariance
    The model, with a total sill of 1.
power_a : float
    Exponent of the distance.
max_weight : float
    Share of the estimate that goes to samples on the target, where there are any; the others get
    the rest. With 0, samples on the target are left out.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
Estimator
    To be called with targets, a neighbourhood and samples.
)";

constexpr const char* simple_kriging = R"(
Simple kriging: the mean is known.

Parameters
----------
covs : list of Covariance
    The covariance model.
mean : float
    The mean of the data, in data units.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
Estimator
    To be called with targets, a neighbourhood and samples.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.
)";

constexpr const char* ordinary_kriging = R"(
Ordinary kriging: the mean is unknown.

The estimate is the weighted sum of the samples plus the Lagrange multiplier of the system. The
multiplier has the unit of the covariance and grows with the sills; with sills in data units
squared the estimates are plainly wrong. The weights do not depend on the scale of the sills, so
scale them: let them add up to about 1e-4 of the data's standard deviation, and divide the variances
by the same factor to have them in data units squared.

Parameters
----------
covs : list of Covariance
    The covariance model.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
Estimator
    To be called with targets, a neighbourhood and samples.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.
)";

constexpr const char* ensemble_estimation_estimator = R"(
Estimation by many local models: nearby ones each krige a target, and their estimates are blended.

The estimate is the mean of the models' estimates with weights (distance error)^-`power_a`, where
distance is that of the target to the centre of a model, in real coordinates, and error the error of
that model. Estimates are those of `ensemble_estimation` with the same arguments.

Parameters
----------
local_covs : LocalCovariances
    The models, their centres and their errors.
ellipsoid_search : Ellipsoid
    The metric in which the nearest centres are searched, in length units. Samples are searched in
    the neighbourhood that the estimator is called with.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_distance`.
max_distance : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value.
max_cov_neis : int
    Models are the ones of this many nearest centres; below 1 all of them.
max_neis_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
power_a : float
    Exponent of the distance to a centre.
max_weight : float
    Share of the estimate that goes to models whose distance times error is at most 1e-20, where
    there are others too.
run_normalization : bool
    Whether to krige (data - mean) / deviation, with the population standard deviation of the data,
    and to scale the estimates back. Data that are all equal may then give NaN.
use_sk : bool
    Whether to use simple kriging of the mean `sk_mean` in place of ordinary kriging.
sk_mean : float
    The mean of simple kriging, in data units; with `run_normalization` in standard deviations from
    the mean of the data, so that 0 is that mean.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
Estimator
    To be called with targets, a neighbourhood and samples. A target without samples or models is
    NaN, and so is one whose weights add up to 1e-10 or less.

Raises
------
ValueError
    If the lists of `local_covs` differ in length, or a centre or the ellipsoid is not finite.

Notes
-----
A model whose error is 0 or less, or not a number, counts as centred on every target. A single
sample is no special case: it goes through the system of each model.

Ordinary kriging's estimate is the weighted sum of the samples plus the Lagrange multiplier of the
system, which has the unit of the covariance. With `run_normalization` the samples' standard
deviation is 1, and so models with a total sill of 1 give estimates that are plainly wrong. Use
`use_sk`, whose estimate has no multiplier, or scale the sills: the weights do not depend on their
scale. A total of 1e-4 will do with `run_normalization`, otherwise of 1e-4 of the data's standard
deviation.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

Examples
--------
Long ranges to the east on the one side, to the north on the other:

>>> import gravelox
>>> locations = [(0, 0, 0), (20, 0, 0), (80, 0, 0), (100, 0, 0)]
>>> covs = [[gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(90, 30, 30, azimuth, 0, 0))]
...         for azimuth in (90, 0)]
>>> local = gravelox.LocalCovariances([(10, 0, 0), (90, 0, 0)], covs, [1.0, 1.0])
>>> search = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
>>> estimator = gravelox.EnsembleEstimation(local, search, 4, -1, 2, -1, 2.0, 0.9, use_sk=True)
>>> hood = gravelox.Neighborhood(locations)
>>> estimates = estimator([(50, 0, 0), (20, 0, 0)], hood, locations, [1, 3, 5, 7])
>>> [round(estimate, 6) for estimate in estimates]
[4.0, 3.0]
)";

constexpr const char* compute_simple_kriging = R"(
Estimates and variances of simple kriging, in parallel.

Each target has a system of its own over its neighbours. The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate.
data_locs : array_like of shape (n, 3)
    Locations of the samples, those of the neighbourhood first.
data : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The covariance model.
mean : float
    The mean of the data, in data units.
neighborhood : Neighborhood
    A search over the samples' locations.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
estimates : list of float
    One for each target, in data units. NaN without neighbours, and the sample's value with a
    single one.
variances : list of float
    Kriging variances, in units of the sills; 0 with fewer than two neighbours, otherwise at least
    1e-10.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
    locations than `data_locs`.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

Examples
--------
>>> import gravelox
>>> locations = [(0, 0, 0), (10, 0, 0)]
>>> covs = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
>>> estimates, variances = gravelox.compute_simple_kriging(
...     [(5, 0, 0)], locations, [1.0, 3.0], covs, 2.0, gravelox.Neighborhood(locations), 2)
>>> round(estimates[0], 6)
2.0
)";

constexpr const char* compute_ordinary_kriging = R"(
Estimates and variances of ordinary kriging, in parallel.

The estimate is the weighted sum of the samples plus the Lagrange multiplier of the system. The
multiplier has the unit of the covariance and grows with the sills; with sills in data units
squared the estimates are plainly wrong. The weights do not depend on the scale of the sills, so
scale them: let them add up to about 1e-4 of the data's standard deviation, and divide the variances
by the same factor to have them in data units squared.

Each target has a system of its own over its neighbours. The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate.
data_locs : array_like of shape (n, 3)
    Locations of the samples, those of the neighbourhood first.
data : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The covariance model.
neighborhood : Neighborhood
    A search over the samples' locations.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
estimates : list of float
    One for each target, in data units. NaN without neighbours, and the sample's value with a
    single one.
variances : list of float
    Kriging variances, in units of the sills; 0 with fewer than two neighbours, otherwise at least
    1e-10.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
    locations than `data_locs`.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

Examples
--------
>>> import gravelox
>>> locations = [(0, 0, 0), (10, 0, 0)]
>>> scale = 1e-6  # of the sill, so that the multiplier does not show
>>> covs = [gravelox.Covariance.spherical(scale, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
>>> estimates, variances = gravelox.compute_ordinary_kriging(
...     [(5, 0, 0)], locations, [1.0, 3.0], covs, gravelox.Neighborhood(locations), 2)
>>> round(estimates[0], 4), round(variances[0] / scale, 4)
(2.0, 0.3906)
)";

constexpr const char* compute_simple_ensemble_estimation = R"(
Estimation by many local models with weights that fall exponentially, in parallel.

The estimate is the mean of the ordinary kriging estimates of the models around a target, each
weighted by exp(-(distance `lambda_r`)^`alpha` - |error `lambda_e`|^`beta`), where distance is
that of the target to the centre of a model, in real coordinates, and error the error of that model.
The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate.
data_locs : array_like of shape (n, 3)
    Locations of the samples.
data : sequence of float of length n
    Values of the samples, in data units.
local_covs : LocalCovariances
    The models, their centres and their errors.
ellipsoid_search : Ellipsoid
    The metric in which samples and centres are searched, in length units.
n_neis : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the metric of `ellipsoid_search`, used only without `n_neis`. A negative
    radius counts by its absolute value.
max_neis_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
n_cov_neis : int
    Models are the ones of this many nearest centres; with 0 every target is NaN.
lambda_e : float
    Scale of the errors, in one over their unit.
alpha : float
    Exponent of the distance.
lambda_r : float
    Scale of the distance, in one over length units, at least 0.
beta : float
    Exponent of the error.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
list of float
    One estimate for each target, in data units. NaN without samples or models, and where all
    centres are so far away that every weight is 0; the sample's value with a single sample.

Raises
------
ValueError
    If lists differ in length, a coordinate or the ellipsoid is not finite, or `n_cov_neis` is
    negative.

Notes
-----
The estimate of each model is that of `compute_ordinary_kriging`: the weighted sum of the samples
plus the Lagrange multiplier of the system, which has the unit of the covariance. With sills in data
units squared the estimates are plainly wrong. The weights do not depend on the scale of the sills,
so scale them: let them add up to about 1e-4 of the data's standard deviation. `ensemble_estimation`
can also use simple kriging, whose estimate has no multiplier.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

Examples
--------
>>> import gravelox
>>> locations = [(0, 0, 0), (20, 0, 0), (80, 0, 0), (100, 0, 0)]
>>> scale = 1e-6  # of the sill, so that the multiplier does not show
>>> covs = [[gravelox.Covariance.spherical(scale, gravelox.Ellipsoid(90, 30, 30, azimuth, 0, 0))]
...         for azimuth in (90, 0)]
>>> local = gravelox.LocalCovariances([(10, 0, 0), (90, 0, 0)], covs, [1.0, 1.0])
>>> search = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
>>> estimates = gravelox.compute_simple_ensemble_estimation(
...     [(50, 0, 0), (20, 0, 0)], locations, [1, 3, 5, 7], local, search, 4, -1, -1, 2,
...     1.0, 1.0, 0.05, 1.0)
>>> [round(estimate, 4) for estimate in estimates]
[4.0, 3.0]
)";

constexpr const char* moving_window_estimation = R"(
A mean of the neighbours, weighted by a covariance model as a smoothing kernel.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate.
nei : Neighborhood
    A search over the samples' locations.
data_locs : array_like of shape (n, 3)
    Locations of the samples, those of the neighbourhood first.
data : sequence of float of length n
    Values of the samples, in data units.
covs : list of Covariance
    The weights: the covariance between target and sample, not inverted.
max_neighbors : int
    Candidates are this many nearest samples; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
    negative radius counts by its absolute value, so the default is a radius of 1.
max_neighbors_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.

Returns
-------
list of float
    One mean for each target, in data units. NaN without neighbours and where the weights add up
    to 0, with a single neighbour as well.

Raises
------
ValueError
    If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
    locations than `data_locs`.

Examples
--------
>>> import gravelox
>>> locations = [(0, 0, 0), (10, 0, 0)]
>>> covs = [gravelox.Covariance.gaussian(1.0, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
>>> hood = gravelox.Neighborhood(locations)
>>> gravelox.moving_window_estimation([(5, 0, 0)], hood, locations, [1, 3], covs, 2)
[2.0]
)";

}  // namespace gravelox::docs
