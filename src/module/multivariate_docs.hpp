// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the multivariate transforms.

namespace gravelox::docs {

constexpr const char* ppmt = R"(
The projection pursuit multivariate transform: data to independent normal scores, and back.

Coordinates (features) are in rows and points (samples) in columns. Each step standardises the
coordinates, turns them into their principal axes or at random, and maps the one coordinate whose
quantiles are farthest from normal onto the Gaussian. There is no stopping rule: the chain
has `n_steps` steps. It does not change, and threads may share it.

A step's map is an `NScore` of the data: values up to the least of its coordinate all have the score
-8.22, and values above the greatest reach 8.21 at most. A point outside the data may therefore come
back on their edge. Steps stretch the gaps between points on the way back: rounding grows with their
number, and hundreds of steps do not give data back. A few dozen did for 2,000 points.

References
----------
Barnett, R. M., Manchuk, J. G. and Deutsch, C. V. (2014). Projection pursuit multivariate transform.
Mathematical Geosciences 46, 337-359.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> rng = np.random.RandomState(7)
>>> x = rng.normal(size=1000)
>>> data = np.array([x, x**2 + 0.3 * rng.normal(size=1000)])  # 2 coordinates, 1,000 points
>>> chain = gravelox.PPMT(data, 30)
>>> scores = chain.forward(data)
>>> scores.shape, bool(abs(np.corrcoef(scores)[0, 1]) < 0.1)
((2, 1000), True)
>>> np.allclose(chain.backward(scores), data)
True
>>> chain.forward(data[:, 0]).shape, chain.forward(data[:, :1]).shape  # a point, a table
((2,), (2, 1))
)";

constexpr const char* ppmt_init = R"(
Fit the chain to data.

Parameters
----------
data : array_like of shape (d, n)
    Coordinates in rows, points in columns, each row in a unit of its own; at least 2 points, and at
    least as many as coordinates.
n_steps : int
    Steps, all of which are taken. Below 1 the chain is empty and gives everything back as it came.
prob_random_rotation : float
    Probability of a random rotation in place of principal axes: 0 or less for none, 1 for all. The
    first step never takes one.
n_threads : int
    Threads; 0 means all. The chain does not depend on it.
seed : int
    Seed of the steps; a negative one counts modulo 2^32.

Raises
------
ValueError
    "Data must have at least 2 elements" for fewer than 2 points; for fewer points than coordinates,
    an empty `data`, numbers that are not finite, or a coordinate that does not vary.
)";

constexpr const char* ppmt_forward = R"(
Scores of a table of points, in parallel.

Parameters
----------
data : numpy.ndarray of shape (d, n)
    Coordinates in rows, points in columns, in data units. Two dimensions are a table, (d, 1) too;
    one dimension is a point.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
numpy.ndarray of shape (d, n)
    Scores, without unit, in the places of their values. A point has the same ones alone.

Raises
------
ValueError
    If `data` has another number of coordinates than the chain, or a number is not finite.
)";

constexpr const char* ppmt_backward = R"(
Data of a table of scores, in parallel.

Parameters
----------
data : numpy.ndarray of shape (d, n)
    Scores, coordinates in rows, points in columns. Two dimensions are a table, (d, 1) too; one
    dimension is a point.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
numpy.ndarray of shape (d, n)
    Values, in data units. A point has the same ones alone.

Raises
------
ValueError
    If `data` has another number of coordinates than the chain, or a number is not finite.
)";

constexpr const char* ppmt_forward_of_point = R"(
The same for one point, with the numbers that it has as a column of a table.

Parameters
----------
u : numpy.ndarray of shape (d,)
    Its coordinates or its scores. One dimension is a point; two are a table, coordinates in rows.

Returns
-------
numpy.ndarray of shape (d,)
    Its scores by `forward`, its values in data units by `backward`.

Raises
------
ValueError
    If `u` has another length than the chain's number of coordinates, or a number is not finite.
)";

constexpr const char* ppmt_backward_of_point = ppmt_forward_of_point;

constexpr const char* create_random_orthogonal_matrix = R"(
A random orthogonal matrix: the factor Q of a matrix of standard normals.

`create_random_rotation` is the same. Signs stay as Householder's decomposition gives them: it may
be a reflection, and draws are not uniform over all orthogonal matrices.

Parameters
----------
N : int
    Rows and columns, at least 1.
seed : int
    Seed; a negative one counts modulo 2^32.

Returns
-------
numpy.ndarray of shape (N, N)
    The matrix Q, for points in columns (`Q @ x`) or rows (`x @ Q`); its transpose undoes it.

Raises
------
ValueError
    If `N` is below 1, or the matrix does not fit into memory.

References
----------
Stewart, G. W. (1980). The efficient generation of random orthogonal matrices with an application to
condition estimators. SIAM Journal on Numerical Analysis 17, 403-409.
)";

constexpr const char* create_random_rotation = create_random_orthogonal_matrix;

constexpr const char* compute_svd_decomposition = R"(
The thin singular value decomposition A = U diag(s) V^T, with scaled singular values.

The scale is c / sqrt(r) for r rows and c columns: mind its numerator. The usual scale, which makes
standard deviations along the principal axes of centred points in rows, is 1 / sqrt(r).

Parameters
----------
A : array_like of shape (r, c)
    The matrix; for data, points in rows and coordinates in columns, unlike `PPMT`.
is_surface : bool
    Whether the scale is c / sqrt(r c) instead.

Returns
-------
scaled : numpy.ndarray of shape (k,)
    The singular values times the scale, in the unit of `A`; k is the lesser of r and c.
V : numpy.ndarray of shape (c, k)
    Right singular vectors, in columns.
U : numpy.ndarray of shape (r, k)
    Left singular vectors, in columns.
s : numpy.ndarray of shape (k,)
    The singular values, from the greatest to the least, in the unit of `A`.

Raises
------
ValueError
    If `A` is empty or a number is not finite.
)";

constexpr const char* compute_optimum_rotation = R"(
Matrices that carry data into their principal axes, with or without scales, and back.

With V and the scaled singular values t of `compute_svd_decomposition`, D2 = diag(t) and D1 is its
inverse. The numerator c of the scale stays in them: centred points end with standard deviations of 1 /
c, not of 1 (1 / sqrt(c) with `is_surface`).

Parameters
----------
A : array_like of shape (r, c)
    Points in rows and coordinates in columns, unlike `PPMT`, with c at most r.
is_surface : bool
    Scale of the singular values, see `compute_svd_decomposition`.
is_ppmt : bool
    Whether all scales are 1: rotations alone, as `PPMT` takes them. Values below 1e-30 have the
    scale 1 at any rate.

Returns
-------
from_axes : numpy.ndarray of shape (c, c)
    V D2, which undoes `to_axes`.
to_axes : numpy.ndarray of shape (c, c)
    D1 V^T, for points in columns: `to_axes @ x`.
rows_from_axes : numpy.ndarray of shape (c, c)
    D2 V^T, which undoes `rows_to_axes`.
rows_to_axes : numpy.ndarray of shape (c, c)
    V D1, for points in rows: `A @ rows_to_axes`.

Raises
------
ValueError
    If `A` is empty, has fewer rows than columns, or a number is not finite.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> points = np.random.RandomState(7).normal(size=(500, 3)) * [5, 2, 1]  # in rows
>>> _, _, back, there = gravelox.compute_optimum_rotation(points)
>>> turned = points @ there
>>> np.allclose(turned @ back, points), np.allclose(turned.T @ turned / 500, np.eye(3) / 3**2)
(True, True)
>>> _, _, back, there = gravelox.compute_optimum_rotation(points, is_ppmt=True)
>>> np.allclose(there @ there.T, np.eye(3)), np.allclose(back, there.T)
(True, True)
)";

constexpr const char* gmm_params = R"(
A mixture of K Gaussians in d features, such as `GMMFitter.fit` returns and `SCT` takes.

Components are in rows of `means`. `GMMFitter.fit` takes samples in rows, `SCT` in columns.

Examples
--------
>>> import gravelox
>>> mixture = gravelox.GMMParams(2, [0.4, 0.6], [[0, 5], [3, 9]], [[[1, 0], [0, 1]]] * 2)
>>> mixture.n_components, mixture.means.shape
(2, (2, 2))
)";

constexpr const char* gmm_params_init = R"(
Make a mixture; nothing is checked before `SCT` takes it.

Parameters
----------
n_components : int
    The number of components K.
weights : array_like of shape (K,)
    Proportions, which add up to 1.
means : array_like of shape (K, d)
    Components in rows and features in columns, in data units.
covariances : list of array_like of shape (d, d)
    One for each component, in data units squared, with features as in `means`.
)";

constexpr const char* gmm_params_n_components = "The number of components K.";
constexpr const char* gmm_params_weights = "Proportions of the components, shape (K,); a copy.";
constexpr const char* gmm_params_means =
    "Means, shape (K, d): components in rows, features in columns, in data units; a copy.";
constexpr const char* gmm_params_covariances =
    "Covariances, K of shape (d, d), features as in `means`, in data units squared; copies.";

constexpr const char* gmm_fitter = R"(
The settings of a fit of a Gaussian mixture by expectation-maximisation.

`fit` takes samples in rows and features in columns, the other way round than `SCT` and `PPMT`. Each
fit starts from the seed.

References
----------
Dempster, A. P., Laird, N. M. and Rubin, D. B. (1977). Maximum likelihood from incomplete data via
the EM algorithm. Journal of the Royal Statistical Society B 39, 1-38.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> rng = np.random.RandomState(7)
>>> samples = np.vstack([rng.normal(0, 1, (300, 2)), rng.normal(8, 1, (700, 2))])
>>> samples.shape  # 1,000 samples in rows
(1000, 2)
>>> mixture = gravelox.GMMFitter(2).fit(samples)
>>> sorted(round(float(weight), 2) for weight in mixture.weights)
[0.3, 0.7]
)";

constexpr const char* gmm_fitter_init = R"(
Set up a fit; `fit` takes samples in rows.

Parameters
----------
n_components : int
    Components, at least 1.
max_iter : int
    Steps at most; below 1 the fit is the random start.
tol : float
    Change of the log-likelihood below which steps end. It is absolute, for all samples together.
reg_covar : float
    Added to all variances in each step, in data units squared.
seed : int
    Seed of the start, 0 to 4294967295.

Raises
------
ValueError
    "Number of components must be positive."
)";

constexpr const char* gmm_fitter_fit = R"(
Fit a mixture to samples in rows, all of the same weight.

It starts from random labels, and steps until the total log-likelihood changes by less than `tol`. A
line on the standard output of the process, not of `sys.stdout`, tells the end: "EM Converged at
iteration 12" or "Warning: EM algorithm did not converge within 100 iterations." (not an error).
Densities are plain numbers: a sample too far from all components belongs to all alike.

Parameters
----------
x : array_like of shape (n, d)
    Samples in rows, features in columns, in data units: the transpose of what `SCT` takes.

Returns
-------
GMMParams
    The mixture. For another number of threads (OMP_NUM_THREADS) its last bits may differ.

Raises
------
ValueError
    "n_samples must be >= n_components.", or if `x` is empty or a number is not finite.
)";

constexpr const char* gmm_fitter_fit_weighted = R"(
Fit a mixture to samples in rows, with weights.

As the other overload. The log-likelihood of the stopping rule is unweighted and absolute: weights
enter the mixture alone.

Parameters
----------
x : array_like of shape (n, d)
    Samples in rows, features in columns, in data units: the transpose of what `SCT` takes.
weights : array_like of shape (n,)
    One for each row, by declustering for instance, of any sum, as they are. Only zeros give a
    mixture whose weights are NaN.

Returns
-------
GMMParams
    The mixture. For another number of threads (OMP_NUM_THREADS) its last bits may differ.

Raises
------
ValueError
    "n_samples must be >= n_components.", "X and sample_weights must have the same number of
    samples.", or if `x` is empty or a number is not finite.
)";

constexpr const char* sct = R"(
The stepwise conditional transform: data to independent normal scores by a mixture, and back.

Features are in rows and samples in columns, the other way round than in `GMMFitter.fit`. Feature 0
goes through its own distribution in the mixture, each later one through that given all before it.
A component drops out of a conditional distribution where its variance is below 1e-10, the
covariance before it singular, or its weight at most 1e-100; without any the value is NaN.

References
----------
Leuangthong, O. and Deutsch, C. V. (2003). Stepwise conditional transformation for simulation of
multiple variables. Mathematical Geology 35, 155-173.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> mixture = gravelox.GMMParams(
...     2, [0.4, 0.6], [[0, 5], [3, 9]], [[[1, 0.5], [0.5, 2]], [[2, -1], [-1, 1]]])
>>> transform = gravelox.SCT(mixture)
>>> data = np.array([[0.0, 1.0, 3.0], [5.0, 4.0, 9.5]])  # 2 features, 3 samples
>>> scores = transform.forward(data)
>>> scores.shape, np.allclose(transform.backward(scores), data)
((2, 3), True)
)";

constexpr const char* sct_init = R"(
Make a transform of a mixture; it takes features in rows and samples in columns.

Weights that miss a sum of 1 by more than 1e-6 are scaled to it, with a line on the standard error
of the process: "Warning: GMM weights do not sum to 1. Renormalizing."

Parameters
----------
gmm_params : GMMParams
    The mixture, copied. Its features, the columns of `means`, are the rows of data.

Raises
------
ValueError
    "GMM parameters have inconsistent dimensions.", or for a covariance of another size (the message
    names the component), no features, or a number that is not finite.
)";

constexpr const char* sct_forward = R"(
Scores of samples in columns.

Nothing is clamped on this way, unlike in `backward`.

Parameters
----------
x : array_like of shape (d, n)
    Features in rows, samples in columns, in data units: the transpose of `GMMFitter.fit`.

Returns
-------
numpy.ndarray of shape (d, n)
    Scores, without unit; NaN where no component is of use.

Raises
------
ValueError
    "Input data Z has incorrect number of features.", or if a number is not finite.
OverflowError
    If a value is so far out that its probability is 0 or 1; the message names the first one.
)";

constexpr const char* sct_backward = R"(
Data of scores in columns, by a root finder.

Probabilities are clamped to 1e-9 and 0.999999999, that is scores to -6 and 6, so infinite ones have
values too. `forward` does not clamp: what it gives beyond comes back nearer. Where a root is not
found the value is NaN, and the standard error of the process has a line with the reason, "Warning:
Root finding failed with exception: ...".

Parameters
----------
x : array_like of shape (d, n)
    Scores, features in rows, samples in columns. After a NaN the rest of its column is NaN.

Returns
-------
numpy.ndarray of shape (d, n)
    Values, in data units; NaN where no component is of use, and in the rest of that column.

Raises
------
ValueError
    "Input data SCT_Z has incorrect number of features."

References
----------
Alefeld, G. E., Potra, F. A. and Shi, Y. (1995). Algorithm 748: enclosing zeros of continuous
functions. ACM Transactions on Mathematical Software 21, 327-344.
)";

}  // namespace gravelox::docs
