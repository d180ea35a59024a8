// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the covariance family.

namespace gravelox::docs {

constexpr const char* kernel = R"(
The normalised shape of a covariance structure, called with a distance in isotropic space.

At a distance of 1, the range, a spherical kernel reaches 0, and the gaussian and the exponential
kernel reach exp(-3): ranges are practical ranges.

Examples
--------
>>> import gravelox
>>> gravelox.Kernel.spherical(0.5)
0.3125
)";

constexpr const char* kernel_call = R"(
The value of the shape.

Parameters
----------
h : float
    Distance divided by the range. A negative one is taken as it is.

Returns
-------
float
    1 at distance 0 for the named shapes.
)";

constexpr const char* kernel_spherical = R"(
The spherical kernel: 1 - 1.5 h + 0.5 h^3 up to h = 1, and 0 beyond.
)";

constexpr const char* kernel_gaussian = R"(
The gaussian kernel: exp(-3 h^2).
)";

constexpr const char* kernel_exponential = R"(
The exponential kernel: exp(-3 h).
)";

constexpr const char* covariance = R"(
One structure of a covariance model: a sill, an anisotropy and a shape.

A model is a list of structures, added up. Instances come from the static methods.

Examples
--------
>>> import gravelox
>>> ellipsoid = gravelox.Ellipsoid(100, 50, 20, 45, 0, 0)
>>> model = [gravelox.Covariance.nugget(0.1), gravelox.Covariance.spherical(0.9, ellipsoid)]
>>> gravelox.covariance_computer(model)((0, 0, 0))
1.0
)";

constexpr const char* covariance_spherical = R"(
A spherical structure: sill (1 - 1.5 h + 0.5 h^3) up to the range, and 0 beyond.

Parameters
----------
sill : float
    Variance of the structure, in data units squared; for ordinary kriging scaled down, see
    `OrdinaryKriging`.
ellipsoid : Ellipsoid
    Its ranges and axes.

Returns
-------
Covariance
    The structure.
)";

constexpr const char* covariance_gaussian = R"(
A gaussian structure: sill exp(-3 h^2), h being the distance divided by the range.

Parameters
----------
sill : float
    Variance of the structure, in data units squared; for ordinary kriging scaled down, see
    `OrdinaryKriging`.
ellipsoid : Ellipsoid
    Its practical ranges and axes.

Returns
-------
Covariance
    The structure.
)";

constexpr const char* covariance_exponential = R"(
An exponential structure: sill exp(-3 h), h being the distance divided by the range.

Parameters
----------
sill : float
    Variance of the structure, in data units squared; for ordinary kriging scaled down, see
    `OrdinaryKriging`.
ellipsoid : Ellipsoid
    Its practical ranges and axes.

Returns
-------
Covariance
    The structure.
)";

constexpr const char* covariance_nugget = R"(
A nugget: its sill for lags shorter than 1e-8 length units, and 0 beyond.

Parameters
----------
sill : float
    Variance of the nugget, in data units squared; for ordinary kriging scaled down, see
    `OrdinaryKriging`.

Returns
-------
Covariance
    The structure.
)";

constexpr const char* covariance_type = R"(
The label of the structure.

Returns
-------
str
    "spherical", "gaussian", "exponential", "nugget" or "idw".
)";

constexpr const char* covariance_ellipsoid = R"(
The anisotropy of the structure.

Returns
-------
Ellipsoid
    A copy.
)";

constexpr const char* covariance_sill = R"(
The sill of the structure.

Returns
-------
float
    Variance, in the units that the structure was made with.
)";

constexpr const char* covariance_call = R"(
The covariance at a lag.

Parameters
----------
h : array_like of shape (3,)
    Lag vector in length units.

Returns
-------
float
    The sill times the kernel at the lag's length in isotropic space.
)";

constexpr const char* covariance_computer = R"(
A covariance model as a function of the lag vector.

Parameters
----------
covs : list of Covariance
    The structures; without any the function is 0.

Returns
-------
SpatialFunction
    The sum of the structures. At a lag of 0 that is the sum of the sills, nugget included.

Examples
--------
>>> import gravelox
>>> covs = [gravelox.Covariance.spherical(2.0, gravelox.Ellipsoid(10, 10, 10, 90, 0, 0))]
>>> gravelox.covariance_computer(covs)((10, 0, 0))
0.0
)";

constexpr const char* generate_covariances = R"(
Random nested models around an anisotropy, as starting points of a search.

Parameters
----------
ellipsoid : Ellipsoid
    The anisotropy to start from; the first model has it in every structure and no nugget.
n_kernels : int
    Structures in a model, beside the nugget.
cov_kernel : Kernel
    The shape of those structures. Their label reads "spherical" whatever the shape.
n_covs : int
    Number of models; below 1 there are none.
seed : int
    Seed of all draws.
delta_angle : float
    Greatest change of azimuth, dip and rake, in degrees.
min_str_range, max_str_range : float
    Bounds of the summed lengths of the structures' range vectors, as multiples of the largest
    range of `ellipsoid`.
min_sill, max_sill : float
    Bounds of the sills before they are scaled to add up to 1.

Returns
-------
list of list of Covariance
    `n_covs` models of `n_kernels` structures and a nugget, in this order.

Raises
------
ValueError
    If `n_kernels` is negative.

Examples
--------
>>> import gravelox
>>> sphere = gravelox.Ellipsoid(100, 100, 100, 0, 0, 0)
>>> shape = gravelox.Kernel.spherical
>>> models = gravelox.generate_covariances(sphere, 2, shape, 3, 1, 10, 0.5, 1, 0.1, 1)
>>> [len(model) for model in models]
[3, 3, 3]
)";

}  // namespace gravelox::docs
