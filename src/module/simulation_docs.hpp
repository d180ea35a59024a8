// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the simulation family.

namespace gravelox::docs {

constexpr const char* simulator_factory = R"(
Turns a covariance model and a seed into a realisation.

Made by `SimulatorFactory.TBSIM` or `SimulatorFactory.FIM`, for a fixed extent.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> factory = gravelox.SimulatorFactory.TBSIM(corners)
>>> field = factory([gravelox.Covariance.spherical(1.0, ellipsoid)], 42)
>>> field((20, 30, 10)) == field((20, 30, 10))
True
)";

constexpr const char* simulator_factory_call = R"(
A realisation of a covariance model.

Parameters
----------
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the realisation.

Returns
-------
SpatialFunction
    The field, in data units.

Raises
------
ValueError
    If the grid of a Fourier integral does not fit in memory.
)";

constexpr const char* factory_fim = R"(
A factory of realisations by the Fourier integral method, see `FIM`.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
nx, ny, nz : int
    Cells of the grid along the axes of isotropic space; below 1 they count as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SimulatorFactory
    To be called with models and seeds.

Raises
------
ValueError
    If `corners` are empty or not finite.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* factory_fim_of_cube = R"(
A factory of realisations by the Fourier integral method on a grid of equal sizes, see `FIM`.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
n : int
    Cells of the grid along each axis of isotropic space; below 1 it counts as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SimulatorFactory
    To be called with models and seeds.

Raises
------
ValueError
    If `corners` are empty or not finite.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* factory_tbsim = R"(
A factory of realisations by turning bands, see `TBSIM`.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose extent the field covers, such as `CartesianGrid.corners()`, in metres or another
    length unit. The two ends of a diagonal alone do not span a box.
n : int
    Number of lines; without any the field is 0.

Returns
-------
SimulatorFactory
    To be called with models and seeds.

Raises
------
ValueError
    If `corners` are empty or not finite.

References
----------
Matheron, G. (1973). The intrinsic random functions and their applications. Advances in Applied
Probability 5, 439-468.

Lantuejoul, C. (2002). Geostatistical Simulation: Models and Algorithms. Springer.
)";

constexpr const char* simulator_generator = R"(
Turns a seed into a realisation of a fixed model.

Made by `SimulatorGenerator.TBSIM`, `SimulatorGenerator.FIM` or `SimulatorGenerator.Pool`.
Realisations are cheap: those of a frozen field only turn it, those of a pool only weigh its fields
anew. They share what they need, so a realisation stays valid without its generator.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> generator = gravelox.SimulatorGenerator.TBSIM(
...     corners, cov, 42, n=100, n_base_simulation_points=20)
>>> first, second = generator(1), generator(2)
>>> first((20, 30, 10)) == generator(1)((20, 30, 10)), first((20, 30, 10)) == second((20, 30, 10))
(True, False)
)";

constexpr const char* simulator_generator_call = R"(
A realisation, the same for the same seed.

Parameters
----------
seed : int
    Seed of the realisation.

Returns
-------
SpatialFunction
    The field, in data units.
)";

constexpr const char* generator_ensemble = R"(
A field that blends local models: a realisation itself, and not a generator.

Its value at a location is that of `unconditional_ensemble_simulation` with the same arguments.
White noise (a nugget) is a fresh draw at each evaluation.

Parameters
----------
local_covs : LocalCovariances
    The models, their centres and their errors.
sim_factory : SimulatorFactory
    Makes the realisation of each model.
max_weight : float
    Share of the squared weight that goes to models whose centre is the location (nearer than
    1e-20), where there are others too.
power_a : float
    Exponent of the distance.
seed : int
    Seed of the realisation.

Returns
-------
SpatialFunction
    The field, in data units.

Raises
------
ValueError
    If the lists of `local_covs` differ in length or a centre is not finite.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> models = [[gravelox.Covariance.spherical(sill, ellipsoid)] for sill in (1.0, 4.0)]
>>> local = gravelox.LocalCovariances([(20, 50, 10), (80, 50, 10)], models, [1.0, 1.0])
>>> factory = gravelox.SimulatorFactory.TBSIM(corners)
>>> field = gravelox.SimulatorGenerator.Ensemble(local, factory, 0.9, 2.0, 42)
>>> location = (50, 20, 10)
>>> [field(location)] == gravelox.unconditional_ensemble_simulation(
...     [location], local, factory, 0.9, 2.0, 42, 0)
True
)";

constexpr const char* generator_fim = R"(
Views of Fourier integral fields of one structure, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
cov : Covariance
    The structure.
seed : int
    Seed of the frozen field.
nx, ny, nz : int
    Cells of the grid along the axes of isotropic space; below 1 they count as 1.
n_threads : int
    Threads that make and freeze the field; 0 means all. It repeats only for an equal number. It
    becomes the thread count of the transform library and of the parallel runtime as well, for later
    calls too.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

The variance is below the sill, as it is with `FIM`. Corners that do not differ along an axis give a
field that is constant along it, of half the variance if it is the third: give the box some depth.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* generator_fim_of_model = R"(
Views of Fourier integral fields of a model, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the frozen field.
nx, ny, nz : int
    Cells of the grid along the axes of isotropic space; below 1 they count as 1.
n_threads : int
    Threads that make and freeze the field; 0 means all. It repeats only for an equal number. It
    becomes the thread count of the transform library and of the parallel runtime as well, for later
    calls too.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

Each structure is frozen and turned by itself. Nuggets are white noise, which is not a function of
the location and repeats only for an equal number of threads.

The variance is below the sill, as it is with `FIM`. Corners that do not differ along an axis give a
field that is constant along it, of half the variance if it is the third: give the box some depth.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* generator_fim_of_cube = R"(
Views of Fourier integral fields of one structure on a grid of equal sizes, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
cov : Covariance
    The structure.
seed : int
    Seed of the frozen field.
n : int
    Cells of the grid along each axis of isotropic space; below 1 it counts as 1.
n_threads : int
    Threads that make and freeze the field; 0 means all. It repeats only for an equal number. It
    becomes the thread count of the transform library and of the parallel runtime as well, for later
    calls too.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

The variance is below the sill, as it is with `FIM`. Corners that do not differ along an axis give a
field that is constant along it, of half the variance if it is the third: give the box some depth.

Name the arguments: by position, `FIM(corners, cov, seed, n, n_threads,
n_base_simulation_points)` is a call of the overload that takes `nx`, `ny` and `nz`.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* generator_fim_of_model_and_cube = R"(
Views of Fourier integral fields of a model on a grid of equal sizes, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the frozen field.
n : int
    Cells of the grid along each axis of isotropic space; below 1 it counts as 1.
n_threads : int
    Threads that make and freeze the field; 0 means all. It repeats only for an equal number. It
    becomes the thread count of the transform library and of the parallel runtime as well, for later
    calls too.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

Each structure is frozen and turned by itself. Nuggets are white noise, which is not a function of
the location and repeats only for an equal number of threads.

The variance is below the sill, as it is with `FIM`. Corners that do not differ along an axis give a
field that is constant along it, of half the variance if it is the third: give the box some depth.

Name the arguments: by position, `FIM(corners, cov, seed, n, n_threads,
n_base_simulation_points)` is a call of the overload that takes `nx`, `ny` and `nz`.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.
)";

constexpr const char* generator_tbsim = R"(
Views of turning-bands fields of one structure, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
cov : Covariance
    The structure.
seed : int
    Seed of the frozen field.
n : int
    Number of lines; without any the field is 0.
n_threads : int
    Threads that freeze the field; 0 means all. It does not depend on them, white noise excepted.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
Corners that lie in a plane make a frozen grid one range thick, which a turned view leaves at once:
give the box some depth.

The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

Lines are those of `TBSIM`, with its covariance of exponential structures.

References
----------
Matheron, G. (1973). The intrinsic random functions and their applications. Advances in Applied
Probability 5, 439-468.

Lantuejoul, C. (2002). Geostatistical Simulation: Models and Algorithms. Springer.
)";

constexpr const char* generator_tbsim_of_model = R"(
Views of turning-bands fields of a model, turned by the seed.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box the views are meant for, in metres or another length unit.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the frozen field.
n : int
    Number of lines; without any the field is 0.
n_threads : int
    Threads that freeze the field; 0 means all. It does not depend on them, white noise excepted.
n_base_simulation_points : int
    Cells of the frozen grid along each axis, at least 1.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Raises
------
ValueError
    If `corners` are empty or not finite, `n_base_simulation_points` is below 1, or a grid does not
    fit in memory.

Notes
-----
Corners that lie in a plane make a frozen grid one range thick, which a turned view leaves at once:
give the box some depth.

The field is frozen on a grid of `n_base_simulation_points` cells along each axis and is constant
within a cell. With a box L ranges long and of a diagonal of D ranges a cell is
L (0.25 + 0.75 D) / `n_base_simulation_points` ranges long: keep it well below 1. At 100 points and
equal sides it is 0.06 for a box of two ranges, 0.34 for five and 1.3 for ten.

Views are turned about the origin of coordinates, and repeat themselves beyond the frozen grid, with
a seam at its faces: put the origin near the middle of the corners.

Each structure is frozen and turned by itself. Nuggets are white noise, which is not a function of
the location and repeats only for an equal number of threads.

Lines are those of `TBSIM`, with its covariance of exponential structures.

References
----------
Matheron, G. (1973). The intrinsic random functions and their applications. Advances in Applied
Probability 5, 439-468.

Lantuejoul, C. (2002). Geostatistical Simulation: Models and Algorithms. Springer.
)";

constexpr const char* generator_pool = R"(
A generator of random mixtures of the same fields.

Each seed gives weights whose squares add up to 1: a mixture of independent fields of equal variance
has that variance.

Parameters
----------
simulators : list of SpatialFunction
    The fields; without any, mixtures are 0.

Returns
-------
SimulatorGenerator
    To be called with seeds.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.gaussian(1.0, ellipsoid)
>>> fields = [gravelox.TBSIM(corners, cov, seed) for seed in (1, 2, 3)]
>>> pool = gravelox.SimulatorGenerator.Pool(fields)
>>> first, again, other = (pool(seed)((20, 30, 10)) for seed in (42, 42, 43))
>>> first == again, first == other
(True, False)
)";

constexpr const char* unconditional_ensemble_simulation = R"(
Blend one realisation of each local model into a field that is not stationary, in parallel.

The value at a location is the sum of all realisations there, weighted by the square root of
(distance error)^-`power_a` as a share of its sum over the models; distance is that of the location
to the centre of a model, error the error of that model. Squares of weights add up to 1. Every
realisation is evaluated at every location.

Parameters
----------
locs : array_like of shape (n, 3)
    Where to evaluate, in metres or another length unit.
local_covs : LocalCovariances
    The models, their centres and their errors.
simulator_factory : SimulatorFactory
    Makes the realisation of each model.
max_weight : float
    Share of the squared weight that goes to models whose centre is the location (nearer than
    1e-20), where there are others too.
power_a : float
    Exponent of the distance.
seed : int
    Seed of the realisation.
n_threads : int
    Threads; 0 means all. Values do not depend on it, white noise (a nugget) excepted.

Returns
-------
list of float
    One value for each location, in data units. 0 where the location is a centre and no other model
    has weight, as with a single model.

Raises
------
ValueError
    If the lists of `local_covs` differ in length or a coordinate is not finite.

Notes
-----
A model whose error is 0 or less counts as centred on every location. Weights that add up to 1e-10
or less are not rescaled, so values fade out where all centres are that far away.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> models = [[gravelox.Covariance.spherical(sill, ellipsoid)] for sill in (1.0, 4.0)]
>>> local = gravelox.LocalCovariances([(20, 50, 10), (80, 50, 10)], models, [1.0, 1.0])
>>> factory = gravelox.SimulatorFactory.TBSIM(corners)
>>> values = gravelox.unconditional_ensemble_simulation(
...     [(50, 20, 10), (70, 20, 10)], local, factory, 0.9, 2.0, 42, 0)
>>> len(values)
2
)";

constexpr const char* simulate = R"(
Make an unconditional field honour samples.

The result is the field plus the estimate of what the samples differ from it by. Targets do not
depend on each other.

The estimator to condition a Gaussian field of mean 0 with is simple kriging of mean 0 and of the
model of the field, `SimpleKriging(covs, 0.0, max_neighbors)`: ordinary kriging's estimate carries
its Lagrange multiplier. Samples have to be normal scores, see `NScore`, and results go back through
its `backward`.

Parameters
----------
simulator : SpatialFunction
    The unconditional field, by `TBSIM`, `FIM` or a generator.
estimator : Estimator
    Estimates the differences at the targets.
target_locs : array_like of shape (m, 3)
    Where to simulate, in metres or another length unit.
neighborhood : Neighborhood
    A search over the samples' locations.
data_locs : array_like of shape (n, 3)
    Locations of the samples, those of the neighbourhood first.
data : sequence of float of length n
    Values of the samples, in the units of the field.
n_threads : int
    Threads; 0 means all. Values do not depend on it, white noise (a nugget) excepted.

Returns
-------
list of float
    One value for each target; NaN where the estimator gives NaN, as it does without neighbours. At
    a sample's location the value of the sample, where the estimator is exact.

Raises
------
ValueError
    If `data` and `data_locs` differ in length, a coordinate is not finite, or the neighbourhood
    holds more locations than `data_locs`.

Notes
-----
White noise (a nugget) in the field is not a function of the location: each evaluation is a fresh
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
>>> covs = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(60, 40, 20, 30, 0, 0))]
>>> locations, scores = [(20, 30, 0), (25, 35, 0)], [1.2, -0.4]
>>> kriging = gravelox.SimpleKriging(covs, 0.0, max_neighbors=2)
>>> hood = gravelox.Neighborhood(locations)
>>> targets = [(20, 30, 0), (22, 33, 0)]
>>> fields = [gravelox.TBSIM(corners, covs, seed) for seed in (1, 2)]
>>> one, two = (gravelox.simulate(f, kriging, targets, hood, locations, scores) for f in fields)
>>> round(one[0], 4), round(two[0], 4), one[1] == two[1]
(1.2, 1.2, False)
)";

constexpr const char* simulator = R"(
The sum of fields.

A model's field is the sum of those of its structures, for instance.

Parameters
----------
simulators : list of SpatialFunction
    The fields, in data units.

Returns
-------
SpatialFunction
    Their sum at each location; 0 for an empty list.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.gaussian(1.0, ellipsoid)
>>> fields = [gravelox.TBSIM(corners, cov, seed) for seed in (1, 2)]
>>> total = gravelox.simulator(fields)
>>> total((20, 30, 10)) == fields[0]((20, 30, 10)) + fields[1]((20, 30, 10))
True
)";

constexpr const char* fim = R"(
A Gaussian field of one structure by the Fourier integral method.

The field is unconditional: `simulate` makes it honour samples. The correlation is sampled on a grid
of isotropic space, transformed, given random phases, and transformed back. Evaluations then only
look values up.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
cov : Covariance
    The structure.
seed : int
    Seed of the realisation.
nx, ny, nz : int
    Cells of the grid along the axes of isotropic space; below 1 they count as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SpatialFunction
    The field, in data units; NaN where the sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite, or the grid does not fit in memory.

Notes
-----
The grid is one and a half times as long as the box of the corners, and has one cell along an axis
on which they do not differ. A location takes the value of its cell, and beyond the grid that of the
nearest one. The grid is periodic: where a range exceeds half the box, its ends are correlated.

One half of the spectrum is held, up to the highest frequency along the third axis. Its planes of
frequency zero and of the highest frequency there are their own mirror images and keep half their
power under random phases, so the variance lies below the sill: at 0.79 to 0.92 of it where the
corners are one to three ranges apart along every axis and 0.95 at five, but at 0.8 where they are
one range apart along the third axis alone, 0.6 at a fifth of a range, and 0.5 with a single cell.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.FIM(corners, cov, 42, 64, 64, 32, n_threads=1)
>>> field((20, 30, 10)) == field((20, 30, 10))
True
)";

constexpr const char* fim_of_model = R"(
A Gaussian field of a model by the Fourier integral method.

The field is unconditional: `simulate` makes it honour samples. The correlation is sampled on a grid
of isotropic space, transformed, given random phases, and transformed back. Evaluations then only
look values up.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the realisation.
nx, ny, nz : int
    Cells of the grid along the axes of isotropic space; below 1 they count as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SpatialFunction
    The field, in data units; NaN where a sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite, or the grid does not fit in memory.

Notes
-----
The grid is one and a half times as long as the box of the corners, and has one cell along an axis
on which they do not differ. A location takes the value of its cell, and beyond the grid that of the
nearest one. The grid is periodic: where a range exceeds half the box, its ends are correlated.

One half of the spectrum is held, up to the highest frequency along the third axis. Its planes of
frequency zero and of the highest frequency there are their own mirror images and keep half their
power under random phases, so the variance lies below the sill: at 0.79 to 0.92 of it where the
corners are one to three ranges apart along every axis and 0.95 at five, but at 0.8 where they are
one range apart along the third axis alone, 0.6 at a fifth of a range, and 0.5 with a single cell.

White noise (a nugget) is not a function of the location: each evaluation is a fresh draw, and a run
repeats only for an equal number of threads.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.FIM(corners, [cov], 42, 64, 64, 32, n_threads=1)
>>> field((20, 30, 10)) == field((20, 30, 10))
True
)";

constexpr const char* fim_of_cube = R"(
A Gaussian field of one structure by the Fourier integral method, on a grid of equal sizes.

The field is unconditional: `simulate` makes it honour samples. The correlation is sampled on a grid
of isotropic space, transformed, given random phases, and transformed back. Evaluations then only
look values up.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
cov : Covariance
    The structure.
seed : int
    Seed of the realisation.
n : int
    Cells of the grid along each axis of isotropic space; below 1 it counts as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SpatialFunction
    The field, in data units; NaN where the sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite, or the grid does not fit in memory.

Notes
-----
The grid is one and a half times as long as the box of the corners, and has one cell along an axis
on which they do not differ. A location takes the value of its cell, and beyond the grid that of the
nearest one. The grid is periodic: where a range exceeds half the box, its ends are correlated.

One half of the spectrum is held, up to the highest frequency along the third axis. Its planes of
frequency zero and of the highest frequency there are their own mirror images and keep half their
power under random phases, so the variance lies below the sill: at 0.79 to 0.92 of it where the
corners are one to three ranges apart along every axis and 0.95 at five, but at 0.8 where they are
one range apart along the third axis alone, 0.6 at a fifth of a range, and 0.5 with a single cell.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.FIM(corners, cov, 42, 64, n_threads=1)
>>> field((20, 30, 10)) == field((20, 30, 10))
True
)";

constexpr const char* fim_of_model_and_cube = R"(
A Gaussian field of a model by the Fourier integral method, on a grid of equal sizes.

The field is unconditional: `simulate` makes it honour samples. The correlation is sampled on a grid
of isotropic space, transformed, given random phases, and transformed back. Evaluations then only
look values up.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose box in isotropic space is the extent of the field, such as
    `CartesianGrid.corners()`, in metres or another length unit.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the realisation.
n : int
    Cells of the grid along each axis of isotropic space; below 1 it counts as 1.
n_threads : int
    Threads; 0 means all. The field repeats only for an equal number. It becomes the thread count of
    the transform library and of the parallel runtime as well, for later calls too.

Returns
-------
SpatialFunction
    The field, in data units; NaN where a sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite, or the grid does not fit in memory.

Notes
-----
The grid is one and a half times as long as the box of the corners, and has one cell along an axis
on which they do not differ. A location takes the value of its cell, and beyond the grid that of the
nearest one. The grid is periodic: where a range exceeds half the box, its ends are correlated.

One half of the spectrum is held, up to the highest frequency along the third axis. Its planes of
frequency zero and of the highest frequency there are their own mirror images and keep half their
power under random phases, so the variance lies below the sill: at 0.79 to 0.92 of it where the
corners are one to three ranges apart along every axis and 0.95 at five, but at 0.8 where they are
one range apart along the third axis alone, 0.6 at a fifth of a range, and 0.5 with a single cell.

White noise (a nugget) is not a function of the location: each evaluation is a fresh draw, and a run
repeats only for an equal number of threads.

References
----------
Pardo-Iguzquiza, E. and Chica-Olmo, M. (1993). The Fourier integral method: an efficient spectral
method for simulation of random fields. Mathematical Geology 25, 177-217.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.FIM(corners, [cov], 42, 64, n_threads=1)
>>> field((20, 30, 10)) == field((20, 30, 10))
True
)";

constexpr const char* tbsim = R"(
A Gaussian field of one structure by turning bands.

The field is unconditional: `simulate` makes it honour samples. It is the sum of `n` one-dimensional
processes, each along a line of its own, and needs no grid. An evaluation costs
a product and a cosine or a look-up for each line.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose extent the field covers, such as `CartesianGrid.corners()`, in metres or another
    length unit. The two ends of a diagonal alone do not span a box.
cov : Covariance
    The structure.
seed : int
    Seed of the realisation.
n : int
    Number of lines; without any the field is 0.

Returns
-------
SpatialFunction
    The field, in data units; NaN where the sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite.

Notes
-----
The field is meant for the extent of the corners: beyond it spherical and exponential lines go on in
a straight line. A line of more than 10000 cells, each about a range long, becomes white noise.

The covariance is that of the kernel for spherical and Gaussian structures. That of an exponential
one is about 0.69 of the sill at 0.1 and 0.14 at 0.5 of the practical range, where the kernel has
0.74 and 0.22.

White noise (a nugget) is not a function of the location: each evaluation is a fresh draw, and a run
repeats only for an equal number of threads.

References
----------
Matheron, G. (1973). The intrinsic random functions and their applications. Advances in Applied
Probability 5, 439-468.

Lantuejoul, C. (2002). Geostatistical Simulation: Models and Algorithms. Springer.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.TBSIM(corners, cov, 42)
>>> values = field([(20, 30, 10), (21, 30, 10)])
>>> values[0] == field((20, 30, 10)), values[0] == values[1]
(True, False)
)";

constexpr const char* tbsim_of_model = R"(
A Gaussian field of a model by turning bands.

The field is unconditional: `simulate` makes it honour samples. It is the sum of `n` one-dimensional
processes for each structure, each along a line of its own, and needs no grid. An evaluation costs
a product and a cosine or a look-up for each line.

Parameters
----------
corners : array_like of shape (m, 3)
    Locations whose extent the field covers, such as `CartesianGrid.corners()`, in metres or another
    length unit. The two ends of a diagonal alone do not span a box.
covs : list of Covariance
    The model. Each structure has a field of its own, from a seed of its own.
seed : int
    Seed of the realisation.
n : int
    Number of lines; without any the field is 0.

Returns
-------
SpatialFunction
    The field, in data units; NaN where a sill is negative.

Raises
------
ValueError
    If `corners` are empty or not finite.

Notes
-----
The field is meant for the extent of the corners: beyond it spherical and exponential lines go on in
a straight line. A line of more than 10000 cells, each about a range long, becomes white noise.

The covariance is that of the kernel for spherical and Gaussian structures. That of an exponential
one is about 0.69 of the sill at 0.1 and 0.14 at 0.5 of the practical range, where the kernel has
0.74 and 0.22.

White noise (a nugget) is not a function of the location: each evaluation is a fresh draw, and a run
repeats only for an equal number of threads.

References
----------
Matheron, G. (1973). The intrinsic random functions and their applications. Advances in Applied
Probability 5, 439-468.

Lantuejoul, C. (2002). Geostatistical Simulation: Models and Algorithms. Springer.

Examples
--------
>>> import gravelox
>>> corners = gravelox.CartesianGrid((100, 100, 20), (10, 10, 4)).corners()
>>> ellipsoid = gravelox.Ellipsoid(60, 40, 20, 30, 0, 0)
>>> cov = gravelox.Covariance.spherical(1.0, ellipsoid)
>>> field = gravelox.TBSIM(corners, [cov], 42)
>>> values = field([(20, 30, 10), (21, 30, 10)])
>>> values[0] == field((20, 30, 10)), values[0] == values[1]
(True, False)
)";

}  // namespace gravelox::docs
