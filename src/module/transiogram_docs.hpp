// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of transition functions and of the simulation along them.

namespace gravelox::docs {

constexpr const char* transiogram = R"(
A table of transition functions between classes of two locations.

Entry (class_u, class_v) is the probability of `class_v` at the location v, seen from `class_u` at
the location u. It may depend on more than the distance: on the direction, so that one class tends
to follow another upwards, and on the places themselves. Nobody checks that a row adds up to 1.

Entries are Python callables, or expressions of two variables. The table of `transiogram` takes
those of `ast`, the one of `transiogram.jet` those of `jet.ast`. A call stores the locations in the
variables, so that tables with a node in common belong to one thread at a time; Python callables
take turns by themselves. `TransiogramPtr` is another name of the class.

References
----------
Carle, S. F. and Fogg, G. E. (1996). Transition probability-based indicator geostatistics.
Mathematical Geology 28, 453-476.

Li, W. (2006). Transiogram: a spatial relationship measure for categorical data. International
Journal of Geographical Information Science 20, 693-699.

Examples
--------
>>> import gravelox
>>> from gravelox.ast import Variable, exp, sqrt
>>> u, v = Variable("u", [0.0] * 3), Variable("v", [0.0] * 3)
>>> lag = (u - v) / [200.0, 200.0, 10.0]  # in ranges
>>> loss = 1.0 - exp(-3.0 * sqrt(lag * lag))  # of two vectors, * is the dot product
>>> shares = 0.25, 0.75
>>> table = gravelox.transiogram.Transiogram(
...     u, v, [[float(j == k) + (p - float(j == k)) * loss for k, p in enumerate(shares)]
...            for j in range(2)])
>>> table(0, 0, [0, 0, 0], [0, 0, 0]), round(table(0, 1, [0, 0, 0], [0, 0, 10]), 4)
(1.0, 0.7127)
>>> print(table(1, [0, 0, 0], [0, 0, 1000]), table([0, 0, 0], [0, 0, 10]).shape())
[0.25, 0.75] (2, 2)
>>> u.vec.tolist()  # a call leaves the locations there
[0.0, 0.0, 0.0]
>>> same = gravelox.transiogram.Transiogram([[lambda u, v: 1 / (1 + (u - v).norm())]])
>>> same(0, 0, [0, 0, 0], [0, 0, 1])
0.5
)";

constexpr const char* transiogram_init = R"(
Make a table of Python callables.

Parameters
----------
kernel_matrix : list of list of callable
    One row for each class at u, one entry for each class at v: f(u, v) takes two vectors of three
    coordinates and gives a number.

Raises
------
TypeError
    If an entry cannot be called.
)";

constexpr const char* transiogram_init_of_expressions = R"(
Make a table of expressions of two locations.

Parameters
----------
class_u : Variable
    The variable that takes u, as a vector of three coordinates.
class_v : Variable
    The variable that takes v.
kernels : list of list of Expression
    One row for each class at u, one scalar expression for each class at v.

Raises
------
RuntimeError
    "Invalid argument!!!" where a variable or an expression is None, and "Invalid variable types"
    for an expression that gives vectors.
)";

constexpr const char* transiogram_entry = R"(
One entry of the table at two locations.

Parameters
----------
class_u : int
    Class at u, from 0 on.
class_v : int
    Class at v, from 0 on.
u : vector of length 3
    Coordinates of the one location.
v : vector of length 3
    Those of the other.

Returns
-------
float or Jet
    The probability of `class_v`, as the entry gives it.

Raises
------
IndexError
    "invalid vector subscript" for a class that the table has not.
)";

constexpr const char* transiogram_row = R"(
One row of the table at two locations.

Parameters
----------
class_u : int
    Class at u, from 0 on.
u : vector of length 3
    Coordinates of the one location.
v : vector of length 3
    Those of the other.

Returns
-------
vector of length n
    An entry for each class at v; none for an empty row.

Raises
------
IndexError
    "invalid vector subscript" for a class that the table has not.
)";

constexpr const char* transiogram_table = R"(
The whole table at two locations.

Parameters
----------
u : vector of length 3
    Coordinates of the one location.
v : vector of length 3
    Those of the other.

Returns
-------
matrix of shape (n, n)
    Classes at u in rows, classes at v in columns.

Raises
------
ValueError
    If rows differ in length.
)";

constexpr const char* unconditional_sampler = R"(
What draws a class where nothing is known.

Scripts make the default one; `simulation` makes its own. `UnconditionalSamplerPtr` is another name
of the class.

Examples
--------
>>> import gravelox
>>> table = gravelox.transiogram.Transiogram([[lambda u, v: 1.0]])
>>> sampler = gravelox.markov_chain.UnconditionalSampler.Default(table)
>>> type(sampler).__name__
'UnconditionalSampler'
)";

constexpr const char* conditional_sampler = R"(
What draws a class at a location from the known classes around it.

Scripts make the default one; `simulation` makes its own. `ConditionalSamplerPtr` is another name of
the class.

Examples
--------
>>> import gravelox
>>> table = gravelox.transiogram.Transiogram([[lambda u, v: 1.0]])
>>> sampler = gravelox.markov_chain.ConditionalSampler.Default(table)
>>> type(sampler).__name__
'ConditionalSampler'
)";

constexpr const char* unconditional_sampler_default = R"(
The unconditional sampler: all classes of the table are equally likely.

Parameters
----------
transiogram : Transiogram
    The table. The sampler keeps it alive.

Returns
-------
UnconditionalSampler
    One word of the engine, modulo the number of rows.

Raises
------
ValueError
    If the table has no rows.
)";

constexpr const char* conditional_sampler_default = R"(
The conditional sampler: rows of the known classes around, averaged by distance.

The row of each known class, seen from its location, weighs 1 / (d^2 + 1e-6) at the distance d. The
mean is divided by its sum, so that rows need not add up to 1. Classes are put into random order,
and a uniform draws one of them by their cumulative probabilities; none, -1, where these are NaN.

Parameters
----------
transiogram : Transiogram
    The table. The sampler keeps it alive.

Returns
-------
ConditionalSampler
    The sampler.
)";

constexpr const char* simulation = R"(
Simulate a class at each target, along a random path, by the transitions of a transiogram.

Each target of the path is drawn from the rows of the classes around it, those of targets visited
before and those of samples, as `ConditionalSampler.Default` says; where there are none, all classes
are equally likely. Classes are numbered from 0 on. One below 0 is none: it conditions nothing, but
takes a place among the neighbours that are found.

**Samples condition at their places in the ellipsoid's isotropic space**, targets at their own
coordinates: distances between the two only mean something under an ellipsoid of radii 1 and angles
(90, 0, 0), whose space is the plain one. So keep that ellipsoid where there are samples. Put
anisotropy into the transiogram, or stretch all coordinates before.

A target on a sample nearly always takes its class, as the weight is 1e6 there. One cell away it
is one neighbour among many. Rows are averaged, not multiplied, so realisations are more ragged than
their transiogram, and more so with more neighbours.

Parameters
----------
target_locs : list of locations
    Where classes are wanted, in coordinates.
data_locs : list of locations
    Those of samples; may be empty.
data_values : list of int
    The class of each sample; below 0 for none.
transiogram : Transiogram
    A square table with a row for each class.
search_ani : Ellipsoid
    The metric of the search.
r : float
    Radius of the search in the ellipsoid's isotropic space. At 0 and below the `knn` nearest are
    taken. Among visited targets a search by radius has the error factor 1 + r^2, so it misses many
    where `r` is above 1 or so.
knn : int
    Neighbours asked for where `r` is not above 0: so many visited targets, and as many samples. The
    growing search lists most visited targets twice, so that there are about half as many different
    ones, which count twice.
n_previous : int
    The most entries of visited targets that condition one, in the search's order, which is nearest
    first by `knn` only; 0 counts as 1. Samples have no such limit.
seed : int
    Seed of the path and of all draws; a negative one counts modulo 2^32.

Returns
-------
list of int
    A class for each target, in the targets' order; -1 where the probabilities are NaN.

Raises
------
ValueError
    If `data_values` and `data_locs` differ in length; for a class that the table has not, a table
    without rows or not square, a coordinate that is not finite, or a negative `knn` where it
    counts.

Notes
-----
On one thread, with the interpreter lock held. An exception of a Python callable ends the simulation
and passes through. Over `jet` probabilities count by their values.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> def stay(u, v):
...     return 0.5 + 0.5 * np.exp(-3 * (u - v).norm() / 30)
>>> def change(u, v):
...     return 1 - stay(u, v)
>>> table = gravelox.transiogram.Transiogram([[stay, change], [change, stay]])
>>> targets = [(x, 0, 0) for x in range(0, 200)]
>>> plain = gravelox.Ellipsoid(1, 1, 1, 90, 0, 0)
>>> classes = gravelox.markov_chain.simulation(
...     targets, [(0, 0, 0), (199, 0, 0)], [0, 1], table, plain, knn=8)
>>> len(classes), classes[0], classes[-1], sorted(set(classes))
(200, 0, 1, [0, 1])
)";

}  // namespace gravelox::docs
