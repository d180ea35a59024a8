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

}  // namespace gravelox::docs
