// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the maps between spaces.

namespace gravelox::docs {

constexpr const char* project_point = R"(
The image of one point under the map.

Parameters
----------
x : array_like of shape (m,)
    A point, of as many coordinates as the map takes. An empty sequence is an empty list of points.

Returns
-------
numpy.ndarray
    Its image, with the numbers that it has in a list.

Raises
------
ValueError
    If `x` has another number of coordinates, or one is not finite.
)";

constexpr const char* project_list = R"(
The images of a list of points under the map, in parallel.

Parameters
----------
X : array_like of shape (n, m)
    Points in rows, as an array or a list of vectors. Vectors of one coordinate are points too.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of numpy.ndarray
    Their images, in order; empty for an empty list.

Raises
------
ValueError
    If a point has another number of coordinates than the map takes, or one is not finite.
)";

constexpr const char* idw_projection = R"(
A map that blends known images by inverse distance.

A point x takes the source point s nearest to it, at a distance d0 (of equal ones the first).
Blended are the `K` points whose images lie nearest to the image of s: they are chosen in the target
space, around that image, and not around x, so that points of another limb of a fold stay out. Their
distances from x mix both spaces: wp (|target[s] - target[j]| + d0) + (1 - wp) |x - source[j]|.

The weights are 1 / (distance + 1e-10)^power_a. Images jump where x passes to another nearest point.

References
----------
Shepard, D. (1968). A two-dimensional interpolation function for irregularly-spaced data.
Proceedings of the 23rd ACM National Conference, 517-524.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> angles = np.linspace(0, np.pi, 31)
>>> arch = np.column_stack([np.cos(angles), np.sin(angles)])
>>> flat = np.column_stack([angles, np.zeros(31)])  # the arch, unrolled
>>> unroll = gravelox.IDWProjection(arch, flat, power_a=2.0, wp=0.5, K=4)
>>> np.allclose(unroll.project(arch), flat)
True
>>> u, v = unroll.project((0.1, 1.1))
>>> bool(abs(u - np.arctan2(1.1, 0.1)) < 0.05), float(v)
(True, 0.0)
)";

constexpr const char* idw_projection_init = R"(
Make a map of pairs of points.

Parameters
----------
source : array_like of shape (n, m)
    Points in rows; they are copied.
target : array_like of shape (n, m)
    Where each of them lands, of as many coordinates.
power_a : float
    Exponent of the inverse distance.
wp : float
    Weight of distances in the target space, from 0 (those in the source space alone) to 1; not
    checked. Bring both spaces to one unit.
K : int
    How many images are blended, 1 to n.

Raises
------
ValueError
    If the lists are empty or differ in size or number of coordinates, a coordinate is not finite,
    or `K` lies outside 1 to n.
)";

constexpr const char* gaussian_mixture_projection = R"(
A map that blends known images with the weights of a kernel.

Points are chosen in the target space, and distances mixed, as in `IDWProjection`. The weights are
kernel(distance * power_a): one over `power_a` is the range of the kernel. Where all of them are 0,
so beyond the range of a spherical kernel, the image is NaN. A known point is blended with the
others, and does not land on its image.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> angles = np.linspace(0, np.pi, 31)
>>> arch, flat = np.array([np.cos(angles), np.sin(angles)]).T, np.array([angles, 0 * angles]).T
>>> unroll = gravelox.GaussianMixtureProjection(arch, flat, 2.0, 0.5, 4, gravelox.Kernel.spherical)
>>> bool(abs(unroll.project((0, 1.1))[0] - np.pi / 2) < 0.05)
True
>>> bool(np.isnan(unroll.project((0, 9))).all())  # out of the kernel's range
True
)";

constexpr const char* gaussian_mixture_projection_init = R"(
Make a map of pairs of points.

Parameters
----------
source : array_like of shape (n, m)
    Points in rows; they are copied.
target : array_like of shape (n, m)
    Where each of them lands, of as many coordinates.
power_a : float
    What distances are multiplied with: 1 / range, and no exponent.
wp : float
    Weight of distances in the target space, from 0 (those in the source space alone) to 1; not
    checked. Bring both spaces to one unit.
K : int
    How many images are blended, 1 to n.
kernel : Kernel
    Shape of the weights, or of the covariance.

Raises
------
ValueError
    If the lists are empty or differ in size or number of coordinates, a coordinate is not finite,
    or `K` lies outside 1 to n.
)";

constexpr const char* ok_projection = R"(
A map that blends known images with the weights of ordinary kriging.

Points are chosen in the target space, and distances mixed, as in `IDWProjection`; the covariance is
kernel(distance * power_a). The distance d0 of x from its nearest source point counts between any
two blended points too, and so on the diagonal: with `wp` above 0 it is below 1 there, as if x lay
off the surface that the points are on. Known points land on their images. A singular system is
solved in the sense of least squares. A point costs the third power of `K`.

References
----------
Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> angles = np.linspace(0, np.pi, 31)
>>> arch, flat = np.array([np.cos(angles), np.sin(angles)]).T, np.array([angles, 0 * angles]).T
>>> unroll = gravelox.OKProjection(arch, flat, 0.5, 0.5, 4, gravelox.Kernel.exponential)
>>> np.allclose(unroll.project(arch), flat)
True
>>> bool(abs(unroll.project((0, 1.1))[0] - np.pi / 2) < 0.05)
True
)";

constexpr const char* ok_projection_init = gaussian_mixture_projection_init;

constexpr const char* mds_projection = R"(
A radial basis map, which may lead into a space of another dimension.

The image of x is the sum over control points c of kernel(|x - c| * power_a) times a vector of
weights, fitted to the known images by least squares. There is no constant: far from all control
points images go to 0.

References
----------
Broomhead, D. S. and Lowe, D. (1988). Multivariable functional interpolation and adaptive networks.
Complex Systems 2, 321-355.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> angles = np.linspace(0, np.pi, 31)
>>> arch = np.column_stack([np.cos(angles), np.sin(angles)])
>>> unroll = gravelox.MDSProjection(arch, angles[:, None], arch[::3], 0.5, gravelox.Kernel.gaussian)
>>> bool(np.abs(np.array(unroll.project(arch))[:, 0] - angles).max() < 0.01)
True
>>> unroll.project((0, 1)).shape  # from two dimensions to one
(1,)
)";

constexpr const char* mds_projection_init = R"(
Fit a map to pairs of points.

Parameters
----------
source : array_like of shape (n, m)
    Points in rows.
target : array_like of shape (n, k)
    Where each of them lands; k is the dimension of the images.
control_points : array_like of shape (c, m)
    Where the kernels stand, such as some of the sources. With c = n the map goes through all pairs.
power_a : float
    What distances are multiplied with: 1 / range of the kernels.
kernel : Kernel
    Shape of the kernels.

Raises
------
ValueError
    If a list is empty, `source` and `target` differ in size, points in the number of coordinates,
    or a coordinate is not finite.
)";

constexpr const char* optimized_projection = R"(
A radial map between spaces of any dimension whose centres are fitted too.

The image of x is the sum of s[i] weights[i]: s solves the system of the kernel exp(-3 d^2) between
centres, with a border of ones, for its values at x, and its last unknown is left out. No scale
enters the kernel, so bring points to a unit in which centres lie about 1 apart. The image of a
centre is not its weight vector. A list has its system decomposed once, a point alone each time.

Attributes may be set; a map that does not fit together is refused when it is used.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> x = np.random.RandomState(7).uniform(-1, 1, (40, 2))
>>> bent = np.column_stack([x, x[:, 0] ** 2])
>>> start, fitted = (
...     gravelox.OptimizedNDProjection.optimize(x, bent, 6, 2, 3, n_threads=1, n_iterations=n)
...     for n in (0, 30))
>>> errors = [np.abs(map.project(x) - bent).mean() for map in (start, fitted)]
>>> bool(errors[1] < 0.3 * errors[0])
True
)";

constexpr const char* optimized_projection_init = R"(
Make a map of its parts.

Parameters
----------
centers : array_like of shape (c, m)
    Centres in rows.
scales : sequence of float
    Not used: the map of any scales, of any number of them, is the same.
weights : array_like of shape (c, k)
    A weight vector for each centre; k is the dimension of the images.
)";

constexpr const char* optimized_projection_centers = R"(
Centres, a list of numpy.ndarray of shape (m,). Reading gives a copy: assign a whole list.
)";

constexpr const char* optimized_projection_scales = R"(
Scales, a list of float, a copy. Nothing reads them; a fit gives the first a value, and 0 to others.
)";

constexpr const char* optimized_projection_weights = R"(
A weight vector for each centre, a list of numpy.ndarray of shape (k,), a copy: assign a whole list.
)";

constexpr const char* optimized_projection_optimize = R"(
Fit centres and weights to pairs of points, by least squares from a random start.

Centres start anywhere in the box of the sources, weights in that of the targets. Derivatives are
differences: a step costs an evaluation for each number that is fitted, twice. A failure of the
solver is not reported: the map stays where the solver leaves it.

Parameters
----------
source : array_like of shape (n, din)
    Points in rows.
target : array_like of shape (n, dout)
    Where each of them lands.
n_centers : int
    Centres, at least 1.
din : int
    Dimension of the sources.
dout : int
    Dimension of the targets.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
n_iterations : int
    Steps at most; 0 gives the start.
debug : bool
    Whether to print the steps, on the standard output of the process (not on `sys.stdout`).
seed : int
    Seed of the start; a negative one counts modulo 2^32.

Returns
-------
OptimizedNDProjection
    The map. Its `scales` hold a number that nothing uses.

Raises
------
ValueError
    If the lists are empty or differ in size, points have not `din` and `dout` coordinates, one is
    not finite, `n_iterations` is negative, or another number below 1.
)";

constexpr const char* projection = R"(
A map of one variable: the mean of weights w under kernel(|u - c| * s), for centres c with scales s.

A kernel is named by "spherical", "gaussian", "exponential", "nugget" or "idw". Where all kernels
are 0 the image is NaN: out of the range 1 / s of a spherical one, and far out under the gaussian
and the exponential too. `serialize` has no kernel in it, a pickle has, so that it comes back as the
same map.

Examples
--------
>>> import gravelox
>>> import pickle
>>> step = gravelox.Projection([0, 1, 5, 10, 1, 7], "gaussian")  # weight 5 at 0, and 7 at 10
>>> round(step.forward(5), 6), step.forward([1, 9])
(6.0, [5.0, 7.0])
>>> gravelox.Projection(step.serialize()).forward(5.2) == step.forward(5.2)  # exponential
False
>>> pickle.loads(pickle.dumps(step)).forward(5.2) == step.forward(5.2)
True
)";

constexpr const char* projection_init = R"(
Make a map of its parameters.

Parameters
----------
parameters : sequence of float
    A centre, a scale and a weight, for one centre after another; one or two numbers too many are
    lost. Scales are in one over the unit of the centres. Without centres all images are NaN.
kernel : str
    Word of the kernel.

Raises
------
ValueError
    If the word is unknown; the message lists the known ones.
)";

constexpr const char* projection_serialize = R"(
Centre, scale and weight of one centre after another, without the word of the kernel.

Returns
-------
list of float
    What the constructor takes.
)";

constexpr const char* map_value = R"(
The image of a value.

Parameters
----------
u : float
    A value, in the unit of the centres.

Returns
-------
float
    The image, in the unit of the weights; NaN where all kernels are 0.
)";

constexpr const char* map_values = R"(
The images of a list of values, in parallel.

Parameters
----------
u : sequence of float
    Values, in the unit of the centres.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of float
    The images, in order; NaN where all kernels are 0.
)";

constexpr const char* projection_forward = map_value;
constexpr const char* projection_forward_list = map_values;

constexpr const char* isomorphism = R"(
A map of one variable, and another that was fitted to undo it.

The second undoes the first as far as its fit goes: `backward(forward(u))` comes near to u within
the data, and NaN comes far out, see `Projection`. A pickle carries the words of both kernels; one
without words loads with "exponential". `serialize` has none.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> scores = np.random.RandomState(7).normal(size=200)
>>> quick = gravelox.IsomorphismParameters(n_centers_forward=9, n_centers_backward=12)
>>> pair = gravelox.optimize_isomorphism(np.exp(scores), scores, quick)
>>> bool(abs(pair.forward(2.0) - np.log(2)) < 0.2), bool(abs(pair.backward(0.7) - 2) < 0.2)
(True, True)
>>> same = gravelox.Isomorphism(pair.serialize(), "exponential")
>>> same.forward(2.0) == pair.forward(2.0)
True
)";

constexpr const char* isomorphism_init = R"(
Make a pair of maps of their parameters.

Parameters
----------
parameters : tuple of two sequences of float
    Centre, scale and weight of one centre after another, of the map forward and the one backward.
kernel : str
    Word of the kernel of both: "spherical", "gaussian", "exponential", "nugget" or "idw".

Raises
------
ValueError
    If the word is unknown; the message lists the known ones.
)";

constexpr const char* isomorphism_init_of_projections = R"(
Make a pair of two maps, which may have different kernels.

Parameters
----------
forward_proj : Projection
    The map forward.
backward_proj : Projection
    The map backward. Whether it undoes the first is not checked.
)";

constexpr const char* isomorphism_serialize = R"(
Centre, scale and weight of one centre after another, of both maps, without words of kernels.

Returns
-------
tuple of two lists of float
    What the constructor takes.
)";

constexpr const char* isomorphism_forward = map_value;
constexpr const char* isomorphism_forward_list = map_values;
constexpr const char* isomorphism_backward = map_value;
constexpr const char* isomorphism_backward_list = map_values;

constexpr const char* isomorphism_parameters = R"(
Settings of a fit of an `Isomorphism`, relative to the ranges of the data.

The fields cannot be read back.

Examples
--------
>>> import gravelox
>>> quick = gravelox.IsomorphismParameters(n_centers_forward=9, n_centers_backward=12)
>>> steady = gravelox.IsomorphismParameters(kernel_forward="gaussian", cauchy_loss=0.5, n_threads=1)
)";

constexpr const char* isomorphism_parameters_init = R"(
Make the settings of a fit.

Parameters
----------
kernel_forward : str
    Word of the kernel of the map forward, see `Projection`.
n_centers_forward : int
    Its centres, at least 1.
kernel_backward : str
    Word of the kernel of the map backward.
n_centers_backward : int
    Its centres, at least 1.
weight_tol, center_tol : float
    How far images may lie beyond the targets, and centres of the map forward beyond the sources, in
    multiples of their ranges. For the map backward they change places.
min_beta, max_beta : float
    Scales: bounds, divided by the range of the sources for the map forward, and by that of the
    targets for the one backward. So 4 is a kernel that reaches a quarter of the data.
min_partition_size, max_partition_size : float
    Sizes of the random subsamples, in multiples of one part in `n_partitions` of the samples.
n_partitions : int
    Subsamples, at least 1.
cauchy_loss : float
    Scale of a Cauchy loss on the errors of a subsample, against outliers; 0 for none.
n_iterations : int
    Steps at most of either fit.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of both fits; a negative one counts modulo 2^32.
debug : bool
    Whether to print steps and reports, on the standard output of the process (not on
    `sys.stdout`).

Raises
------
ValueError
    If a word is unknown; the message lists the known ones. Other fields are checked by the fit.
)";

constexpr const char* optimize_projection = R"(
Fit a `Projection` to pairs of values, on random subsamples, by least squares with bounds.

Centres start at random samples, with their targets for weights and the middle of the bounds for
scales. Errors are divided by half the standard deviation of the sources, also where targets have
another unit: beyond it they count by their square root. A failure of the solver is not reported:
the map stays where the solver leaves it.

Parameters
----------
source, target : sequence of float
    Values, and where each of them lands.
kernel : str
    Word of the kernel, see `Projection`.
n_centers : int
    Centres, at least 1.
min_weight, max_weight : float
    Bounds of weights, in the unit of the targets. Images lie between them too.
min_beta, max_beta : float
    Bounds of scales, in one over the unit of the sources.
min_center, max_center : float
    Bounds of centres, in the unit of the sources. Equal bounds hold a number.
n_partitions : int
    Subsamples; 0 gives the start.
min_partition_size, max_partition_size : int
    Their sizes, less 1: 9 and 9 are 10 samples, drawn with replacement. Where there are not more
    samples than that, one less than all.
cauchy_loss : float
    Scale of a Cauchy loss on the errors of a subsample, against outliers; 0 and below for none.
n_iterations : int
    Steps at most; 0 gives the start.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of start and subsamples; a negative one counts modulo 2^32.
debug : bool
    Whether to print steps and a report, on the standard output of the process (not on
    `sys.stdout`).

Returns
-------
Projection
    The map.

Raises
------
ValueError
    If the word is unknown, the lists are empty or differ in length, a number is not finite,
    `n_centers` is below 1, another count negative, a least bound above its greatest, or the fit
    does not fit into memory.
)";

constexpr const char* optimize_isomorphism = R"(
Fit a map to pairs of values, and a second that undoes it.

Both fits are those of `optimize_projection`, from the same seed. The map backward is fitted to the
images that the map forward gives, and not to the targets. For it the bounds of weights and of
centres change places: `min_weight` and `max_weight` bound its centres.

Parameters
----------
source, target : sequence of float
    Values, and where each of them lands.
kernel_type_forward : str
    Word of the kernel forward, see `Projection`.
n_centers_forward : int
    Centres of the map forward, at least 1.
min_beta_forward, max_beta_forward : float
    Bounds of its scales, in one over the unit of the sources.
kernel_type_backward : str
    Word of the kernel backward.
n_centers_backward : int
    Centres of the map backward, at least 1.
min_beta_backward, max_beta_backward : float
    Bounds of its scales, in one over the unit of the targets.
min_weight, max_weight : float
    Bounds of weights forward and of centres backward, in the unit of the targets.
min_center, max_center : float
    Bounds of centres forward and of weights backward, in the unit of the sources.
n_partitions, min_partition_size, max_partition_size : int
    Subsamples of each fit, and their sizes less 1.
cauchy_loss : float
    Scale of a Cauchy loss on the errors of a subsample; 0 and below for none.
n_iterations : int
    Steps at most of either fit.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of both fits; a negative one counts modulo 2^32.
debug : bool
    Whether to print steps and reports, on the standard output of the process (not on
    `sys.stdout`).

Returns
-------
Isomorphism
    Both maps.

Raises
------
ValueError
    As `optimize_projection`, and if the map forward gives an image that is not finite.
)";

constexpr const char* optimize_isomorphism_by_parameters = R"(
Fit a map to pairs of values, and a second that undoes it, with bounds from the data.

As the other overload, with the bounds and sizes that `iso_params` gives in multiples of the ranges
and the number of the data.

Parameters
----------
source_data, target_data : sequence of float
    Values, and where each of them lands. Bring both to one unit, see `optimize_projection`.
iso_params : IsomorphismParameters
    The settings.

Returns
-------
Isomorphism
    Both maps.

Raises
------
ValueError
    As the other overload, and if the sources or the targets are all the same.
)";

}  // namespace gravelox::docs
