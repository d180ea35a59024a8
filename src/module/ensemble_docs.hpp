// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the blends of local models.

namespace gravelox::docs {

constexpr const char* ensemble_model = R"(
Blend ellipsoids of given reciprocal ranges and angles into one.

Axes of two ellipsoids share no order and no sign, so they are aligned before their matrices are
averaged. The heaviest ellipsoid starts the mean; then, again and again, the one that is most like
the mean so far joins it by weight, with its axes in the order and with the signs that differ least
from the mean's. The interpreter lock is released.

Parameters
----------
r1, r2, r3 : sequence of float of length n
    Ranges, which are inverted on entry: ellipsoids with ranges 1 / (r + 1e-6) are blended. So give
    reciprocal ranges, in one over length units.
azimuth, dip, rake : sequence of float of length n
    Angles in degrees.
w : sequence of float of length n
    Weights. One of 0 adds nothing; NaN comes out where those of the first two to be blended, or of
    all so far, add up to 0.

Returns
-------
Ellipsoid
    With reciprocal ranges given, the blend in length units. Its axes are sorted and made
    orthogonal.

Raises
------
ValueError
    If the lists are empty, differ in length, or hold a number that is not finite.

Notes
-----
Costs the square of the number of ellipsoids.

Examples
--------
Ranges of 100, 50 and 20 at two azimuths:

>>> import gravelox
>>> blend = gravelox.ensemble_model(
...     [1 / 100, 1 / 100], [1 / 50, 1 / 50], [1 / 20, 1 / 20], [30, 50], [0, 0], [0, 0], [1, 1])
>>> info = blend.info()
>>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
(102, 51, 20, 40.0)
)";

constexpr const char* ensemble_ellipsoid = R"(
Blend ellipsoids into one, whose ranges come out reciprocal.

The ranges and angles of the ellipsoids go into `ensemble_model` as they are. That inverts ranges,
and so those of the result are one over the blended ranges, the longest axis of the blend being its
shortest; the example turns it back. The interpreter lock is released.

Parameters
----------
w : sequence of float of length n
    Weights. One of 0 adds nothing; NaN comes out where those of the first two to be blended, or of
    all so far, add up to 0.
ellipsoids : list of Ellipsoid
    The ellipsoids, n of them, in length units.

Returns
-------
Ellipsoid
    The blend, with ranges in one over length units: divide each row of its matrix by its squared
    length to have it in length units.

Raises
------
ValueError
    If the lists are empty, differ in length, or hold a number that is not finite.

Notes
-----
What is averaged are axes as long as their ranges, so ranges that differ by much are averaged
plainly: 10 and 30 give 20. Each range is 1e-6 greater in the blend.

Ellipsoids enter as `info` reads them. One whose axes are left-handed after sorting, which a rake
other than 0 may bring about, reads as another ellipsoid, turned about its longest axis: see to it
that Ellipsoid(ellipsoid.info()) is still the ellipsoid.

Examples
--------
>>> import gravelox
>>> ellipsoids = [gravelox.Ellipsoid(100, 50, 20, azimuth, 0, 0) for azimuth in (30, 50)]
>>> reciprocal = gravelox.ensemble_ellipsoid([1, 1], ellipsoids)
>>> axes = reciprocal.matrix()
>>> blend = gravelox.Ellipsoid(axes / (axes**2).sum(axis=1, keepdims=True))
>>> info = blend.info()
>>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
(98, 49, 20, 40.0)
)";

constexpr const char* ensemble_local_ellipsoids = R"(
Blend the ellipsoids around each target into one, in parallel; ranges come out reciprocal.

Each result is `ensemble_ellipsoid` of the nearby ellipsoids with the weights
weight / (distance^3 + `eps`), so its ranges are one over the blended ranges; the example turns one
back. The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to blend, in metres or another length unit.
ellipsoid_locs : array_like of shape (n, 3)
    Where the ellipsoids hold.
ellipsoids : list of Ellipsoid
    The ellipsoids, n of them, in length units.
ellipsoid_weights : sequence of float of length n
    Weights before the distance counts, such as one over the error of each ellipsoid.
n_neis : int
    Candidates are this many nearest ellipsoids; 0 and below switch to `max_radius`.
max_radius : float
    Radius of the search in length units, used only without `n_neis`. A negative radius counts by
    its absolute value, so the default is a radius of 1.
max_neis_octant : int
    Most ellipsoids in each octant around the target; 0 and below: no limit.
eps : float
    Added to the cubed distance, above 0, in cubed length units: it bounds the weight of an
    ellipsoid at the target.
n_threads : int
    Threads; 0 means all. Ellipsoids do not depend on it.
dhids : list of int
    Drill-hole id of each ellipsoid, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most ellipsoids of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
list of Ellipsoid
    One for each target, with ranges in one over length units: divide each row of its matrix by its
    squared length to have it in length units. The unit sphere where there are no neighbours.

Raises
------
ValueError
    If lists differ in length or hold a number that is not finite, or `eps` is not finite.

Notes
-----
Ellipsoids enter as `info` reads them. One whose axes are left-handed after sorting, which a rake
other than 0 may bring about, reads as another ellipsoid, turned about its longest axis: see to it
that Ellipsoid(ellipsoid.info()) is still the ellipsoid.

Examples
--------
>>> import gravelox
>>> ellipsoids = [gravelox.Ellipsoid(100, 50, 20, azimuth, 0, 0) for azimuth in (30, 50)]
>>> centers = [(0, 0, 0), (200, 0, 0)]
>>> results = gravelox.ensemble_local_ellipsoids([(100, 0, 0)], centers, ellipsoids, [1, 1])
>>> axes = results[0].matrix()
>>> info = gravelox.Ellipsoid(axes / (axes**2).sum(axis=1, keepdims=True)).info()
>>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
(98, 49, 20, 40.0)
)";

constexpr const char* ensemble_estimation = R"(
Estimation by many local models: nearby ones each krige a target, and their estimates are blended.

The estimate is the mean of the models' estimates with weights (distance error)^-`power_a`, where
distance is that of the target to the centre of a model, in real coordinates, and error the error of
that model. `EnsembleEstimation` is the same as an estimator. The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to estimate, in metres or another length unit.
data_locs : array_like of shape (n, 3)
    Locations of the samples.
data : sequence of float of length n
    Values of the samples, in data units.
local_covs : LocalCovariances
    The models, their centres and their errors.
search_ellipsoid : Ellipsoid
    The metric in which the nearest centres are searched, and the samples without `data_nei`, in
    length units.
max_size : int
    Candidates are this many nearest samples; 0 and below switch to `max_distance`.
max_distance : float
    Radius of the search for samples in its metric, used only without `max_size`. A negative radius
    counts by its absolute value.
max_cov_neis : int
    Models are the ones of this many nearest centres; below 1 all of them.
max_neis_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
power_a : float
    Exponent of the distance to a centre.
max_weight : float
    Share of the estimate that goes to models whose distance times error is at most 1e-20, where
    there are others too.
n_threads : int
    Threads; 0 means all. Estimates do not depend on it.
run_normalization : bool
    Whether to krige (data - mean) / deviation, with the population standard deviation of the data,
    and to scale the estimates back. Data that are all equal may then give NaN.
data_nei : Neighborhood or None
    A search over the samples' locations, `data_locs` beginning with those; None makes one with the
    search ellipsoid.
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
list of float
    One estimate for each target, in data units. NaN without samples or models, and where weights
    add up to 1e-10 or less.

Raises
------
ValueError
    If lists differ in length, a coordinate or the ellipsoid is not finite, or `data_nei` holds more
    locations than `data_locs`.

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
>>> estimates = gravelox.ensemble_estimation(
...     [(50, 0, 0), (20, 0, 0)], locations, [1, 3, 5, 7], local, search, 4, -1, 2, -1, 2.0, 0.9,
...     use_sk=True)
>>> [round(estimate, 6) for estimate in estimates]
[4.0, 3.0]
)";

constexpr const char* ensemble_simulation = R"(
Blend one realisation of each local model into a field and make it honour samples, in parallel.

The field is that of `unconditional_ensemble_simulation`. What the samples differ from it by is
estimated by the same models, as by `ensemble_estimation` with simple kriging of mean 0 and no
normalisation, and added. The interpreter lock is released.

Parameters
----------
target_locs : array_like of shape (m, 3)
    Where to simulate, in metres or another length unit.
data_locs : array_like of shape (n, 3)
    Locations of the samples.
data : sequence of float of length n
    Values of the samples: normal scores, see `NScore`, or others of mean 0 whose variance the
    models' sills add up to.
local_covs : LocalCovariances
    The models, their centres and their errors.
search_ellipsoid : Ellipsoid
    The metric in which samples and centres are searched, in length units.
simulator_factory : SimulatorFactory
    Makes the realisation of each model.
max_size : int
    Candidates are this many nearest samples; 0 and below switch to `max_distance`.
max_distance : float
    Radius of the search in the metric of `search_ellipsoid`, used only without `max_size`. A
    negative radius counts by its absolute value.
max_cov_neis : int
    Models that estimate are the ones of this many nearest centres; below 1 all of them. The field
    has all of them at every location.
max_neis_octant : int
    Most samples in each octant around the target (real coordinates); 0 and below: no limit.
power_a : float
    Exponent of the distance to a centre.
max_weight : float
    Share of the estimate, and of the squared weight in the field, that goes to models whose
    distance times error is at most 1e-20, where there are others too.
seed : int
    Seed of the realisation.
n_threads : int
    Threads; 0 means all. Values do not depend on it, white noise (a nugget) excepted.
dhids : list of int
    Drill-hole id of each sample, or an empty list: no limit by hole.
max_neis_by_dhid : int
    Most samples of one hole, counted after the octant limit; 0 and below: no limit.

Returns
-------
list of float
    One value for each target, in the units of the data; NaN without samples or models, and where
    the weights of the estimates add up to 1e-10 or less. At a sample's location the value of the
    sample, where models have no nugget.

Raises
------
ValueError
    If lists differ in length, or a coordinate or the ellipsoid is not finite.

Notes
-----
White noise (a nugget) in a model is not a function of the location: each evaluation is a fresh
draw, first at the samples, then at the targets. A target on a sample therefore does not have its
value. A run repeats only for an equal number of threads.

References
----------
Journel, A. G. (1974). Geostatistics for conditional simulation of ore bodies. Economic Geology 69,
673-687.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> covs = [[gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(60, 40, 20, azimuth, 0, 0))]
...         for azimuth in (30, 120)]
>>> local = gravelox.LocalCovariances([(20, 50, 10), (80, 50, 10)], covs, [1.0, 1.0])
>>> search = gravelox.Ellipsoid(50, 50, 20, 90, 0, 0)
>>> factory = gravelox.SimulatorFactory.TBSIM(corners)
>>> locations, scores = [(20, 30, 0), (25, 35, 0)], [1.2, -0.4]
>>> one, two = (
...     gravelox.ensemble_simulation(
...         [(20, 30, 0), (22, 33, 0)], locations, scores, local, search, factory, 2, -1, 2, -1,
...         2.0, 0.9, seed)
...     for seed in (1, 2))
>>> round(one[0], 4), round(two[0], 4), one[1] == two[1]
(1.2, 1.2, False)
)";

}  // namespace gravelox::docs
