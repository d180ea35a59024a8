// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of distance graphs, geodesic distances and multidimensional scaling.

namespace gravelox::docs {

constexpr const char* dist_pair = R"(
The distance of two points, which are given by their places in a list.

Examples
--------
>>> import gravelox
>>> pair = gravelox.DistPair(0, 3, 12.5)
>>> pair.d = 13.0
>>> pair.i, pair.j, pair.d
(0, 3, 13.0)
)";

constexpr const char* dist_pair_init = R"(
Make a pair; its places are checked where it is used.

Parameters
----------
i : int
    Place of one point.
j : int
    Place of the other.
d : float
    Their distance, in length units.
)";

constexpr const char* dist_pair_i = "Place of one point; for a spanning tree that nearer its root.";
constexpr const char* dist_pair_j = "Place of the other point.";
constexpr const char* dist_pair_d = "Their distance, in length units.";

constexpr const char* create_sparse_dist_matrix = R"(
Random pairs of a table of distances, for scaling without all pairs.

For each point in order, partners are drawn from all points. A point that an earlier pair has
reached takes part only if a random place is at most `n_active`: with a probability of (n_active +
1) / n. So n and above make all take part, and a negative number none that has been reached. Pairs
may repeat, and a point may be paired with itself; scaling leaves out the latter, whose distance is
0.

Parameters
----------
D : array_like of shape (n, n)
    Distances. Of both directions the mean is taken.
K_neighbors : int
    Pairs of each point that takes part.
n_active : int
    How readily reached points take part, see above.
seed : int
    Seed; a negative one counts modulo 2^32.

Returns
-------
list of DistPair
    The pairs, by their first point. Unreachable ones keep their 1e30, see `sparse_MDS`.

Raises
------
ValueError
    If `D` is not square, `K_neighbors` is negative, or the pairs do not fit into memory.
)";

constexpr const char* create_minimum_spanning_tree = R"(
The tree of least total length that joins all points of a table of distances.

Pairs at 1e20 and above are not joined: parts that only they would join give a tree each. Of equal
distances the one to the point of the higher place is taken first.

Parameters
----------
D : array_like of shape (n, n)
    Distances. Of both directions the mean is taken.

Returns
-------
list of DistPair
    Edges (parent, point, distance), by the place of the point; roots have none.

Raises
------
ValueError
    If `D` is not square.

References
----------
Prim, R. C. (1957). Shortest connection networks and some generalizations. Bell System Technical
Journal 36, 1389-1401.

Examples
--------
>>> import gravelox
>>> table = [[0, 1, 5], [1, 0, 2], [5, 2, 0]]
>>> [(edge.i, edge.j, edge.d) for edge in gravelox.create_minimum_spanning_tree(table)]
[(0, 1, 1.0), (1, 2, 2.0)]
)";

constexpr const char* flood_fill_using_ball = R"(
Labels of the parts of a set of points that a ball can reach without touching a surface.

A flood goes from point to point over the nearest neighbours, and stops at points within `eps` of
the surface. A label is spent on each point that no earlier flood has reached, also on one at the
surface, which does not get it: labels rise with the place of a part's first point, with gaps.
Nearness is not mutual, so a part that is reached one way only may be split.

Parameters
----------
locs : array_like of shape (n, 3)
    Points that fill the space, in length units.
k_neis : int
    Neighbours that a flood goes on to. The nearest of a point is the point itself: 1 joins none.
surface_nei : Neighborhood
    Points of the surface.
eps : float
    Radius of the ball, in length units; in the space of the ellipsoid of `surface_nei` if it has
    one.

Returns
-------
list of int
    The label of each point; -1 within `eps` of the surface.

Raises
------
ValueError
    If `k_neis` is negative, a coordinate is not finite, or `eps` is NaN.

Examples
--------
>>> import gravelox
>>> wall = gravelox.Neighborhood([(2, 0, 0)])
>>> gravelox.flood_fill_using_ball([(0, 0, 0), (1, 0, 0), (2, 0, 0), (3, 0, 0)], 3, wall, 0.5)
[0, 0, -1, 2]
)";

constexpr const char* create_random_dense_set = R"(
Random points of a box that have a sample near: a cloud that fills a region, for shortest paths.

Parameters
----------
pts : array_like of shape (n, 3)
    Points that span the box, in length units.
nei : Neighborhood
    Samples of the region.
eps : float
    How far from a sample the region reaches, in length units; in the space of the ellipsoid of
    `nei` if it has one.
max_pts : int
    Points that are drawn, uniformly in the box; those without a sample within `eps` are dropped.
seed : int
    Seed; a negative one counts modulo 2^32.

Returns
-------
list of numpy.ndarray of shape (3,)
    The points that are kept, `max_pts` at most.

Raises
------
ValueError
    If `pts` is empty, a coordinate is not finite, `eps` is NaN or `max_pts` negative.
)";

constexpr const char* compute_geodesics = R"(
The shortest path between two locations over a cloud of points.

It goes from the dense point nearest to the one location to that nearest to the other; the steps to
the locations themselves are not part of it. Steps lead from a dense point to its neighbours by
`dense_nei`, whose search is approximate, and who need not be neighbours the other way round. Steps
that are too long leave the region: choose `eps` below the gaps that paths should not jump, and a
cloud that is dense enough for it. Paths over random points wind: lengths are some per cent too
great.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations, in length units.
start : int
    Place of the location where the path starts.
end : int
    Place of that where it ends; below 0 the distances of all dense points are asked for.
dense_nei : Neighborhood
    A search made of `dense_set`. With an ellipsoid, who is a neighbour is judged in its space;
    lengths are those in real space.
eps : float
    Longest step, where `knn` is 0 or below; otherwise not used.
knn : int
    How many nearest points a step may lead to; the nearest of a point is the point itself.
dense_set : array_like of shape (m, 3)
    Points that fill the region, in length units.

Returns
-------
path : list of numpy.ndarray of shape (3,)
    Dense points from the end back to the start; empty without a path.
length : float
    Its length, in length units; 1e30 without a path.
distances : list of float
    Distances of all dense points from the start, 1e30 where none is found. With an `end` the search
    stops there: what lies farther is not settled, and may be too great.

Raises
------
ValueError
    If `dense_set` is empty or has another size than `dense_nei`, a coordinate is not finite, `eps`
    is NaN, or `start` or `end` is no place in `locs`.

References
----------
Dijkstra, E. W. (1959). A note on two problems in connexion with graphs. Numerische Mathematik 1,
269-271.

Examples
--------
>>> import gravelox
>>> corner = [(0, 0, 0), (1, 0, 0), (2, 0, 0), (2, 1, 0), (2, 2, 0)]
>>> hood = gravelox.Neighborhood(corner)
>>> path, length, _ = gravelox.compute_geodesics(corner, 0, 4, hood, 1.1, 0, corner)
>>> length, path[0].tolist()
(4.0, [2.0, 2.0, 0.0])
)";

constexpr const char* compute_geodesic_based_distance_matrix = R"(
Lengths of the shortest paths between all locations over a cloud of points, in parallel.

The paths are those of `compute_geodesics`. There is one search a location over edges that are kept
in memory.

Parameters
----------
locs : array_like of shape (n, 3)
    Locations, in length units.
dense_nei : Neighborhood
    A search made of `dense_set`.
eps : float
    Longest step, where `knn` is 0 or below; otherwise not used.
knn : int
    How many nearest points a step may lead to; the nearest of a point is the point itself.
dense_set : array_like of shape (m, 3)
    Points that fill the region, in length units.
n_threads : int
    Threads; 0 means all. The result does not depend on it.

Returns
-------
list of list of float
    Entry (i, j) is the length from i to j, 1e30 where there is no path; 0 for locations with the
    same nearest dense point. The table need not be symmetric.

Raises
------
ValueError
    If `dense_set` is empty or has another size than `dense_nei`, a coordinate is not finite, `eps`
    is NaN, or table or edges do not fit into memory.

References
----------
Tenenbaum, J. B., de Silva, V. and Langford, J. C. (2000). A global geometric framework for
nonlinear dimensionality reduction. Science 290, 2319-2323.
)";

constexpr const char* dense_mds = R"(
Points whose mutual distances come near to a full table, by least squares.

For some 50 points: a step of the solver took 0.01, 0.2 and 33 s at 50, 100 and 300. `sparse_MDS` of
some pairs serves a few hundred points, `mds_using_random_search` more. The residuals are relative
errors, (distance - d) / d, of both directions of a pair.

Distances of 0 and below and of 1e20 and above mark missing pairs. They still count for the box of
random starts: with a pair at 1e20 or above every random start loses, and the result is an empty
list. Such a table needs an `initial_guess`.

Parameters
----------
dim : int
    Dimension of the points, at least 1.
N : int
    Points, at least 1.
D : array_like of shape (N, N)
    Distances. Of both directions the mean counts.
initial_guess : array_like of shape (N, dim)
    Where all tries start. With another number of rows than `N` it is ignored; without it, tries
    start anywhere within the greatest distance of the origin on each axis.
n_iterations : int
    Steps of a try at most; 0 gives the start.
debug : bool
    Whether to print the steps, on the standard output of the process (not on `sys.stdout`).
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of the starts; a negative one counts modulo 2^32.
ntries : int
    Tries, of which the best is taken; below 1 the result is empty. From a guess all are the same.
eps : float
    Tries end with the first whose cost, half the sum of squared residuals, lies below this.
optimize_mean : bool
    Whether the mean of squared errors is the one residual. Its steps are poor: after 100 of them 20
    random points were out by as much as their distances, where the other form had them exactly.
do_sphering : bool
    Whether all points lie at one distance from the origin, which is fitted too.
sphering_weight : float
    Not used.

Returns
-------
list of numpy.ndarray of shape (dim,)
    The points, up to a motion and a reflection; an empty list if no try succeeds.

Raises
------
ValueError
    If `dim` or `N` is below 1, `D` not of N x N, `n_iterations` negative, `eps` NaN, a point of a
    guess of `N` rows not of `dim` coordinates, or the derivatives do not fit into memory.

References
----------
Kruskal, J. B. (1964). Multidimensional scaling by optimizing goodness of fit to a nonmetric
hypothesis. Psychometrika 29, 1-27.

Examples
--------
>>> import gravelox
>>> side = [[0, 3, 5], [3, 0, 4], [5, 4, 0]]
>>> a, b, c = gravelox.dense_MDS(2, 3, side, eps=1e-12)
>>> round(float(((a - c) ** 2).sum() ** 0.5), 4)
5.0
>>> side[0][2] = side[2][0] = 1e30  # a missing pair
>>> gravelox.dense_MDS(2, 3, side), len(gravelox.dense_MDS(2, 3, side, [(0, 0), (3, 1), (4, 4)]))
([], 3)
)";

constexpr const char* sparse_mds = R"(
Points whose mutual distances come near to a list of pairs, by least squares.

For some hundred points: with ten pairs a point, a step took 0.02, 0.15 and 0.5 s at 100, 200 and
300 points in two dimensions, and up to three times that in three. `mds_using_random_search` serves
more; `create_sparse_dist_matrix` makes the pairs. There is one residual a pair, the relative error
(distance - d) / d.

Distances of 0 and below and of 1e20 and above mark missing pairs; leave out the latter or give an
`initial_guess`. They count for the box of random starts: with one of them every random start loses,
and the result is an empty list.

Parameters
----------
dim : int
    Dimension of the points, at least 1.
N : int
    Points, at least 1. Those without a pair stay where they start.
D : list of DistPair
    Pairs, at least one. A repeated one weighs more.
initial_guess : array_like of shape (N, dim)
    Where all tries start. With another number of rows than `N` it is ignored; without it,
    coordinates start between 0 and the greatest distance.
n_iterations : int
    Steps of a try at most; 0 gives the start.
debug : bool
    Whether to print the steps, on the standard output of the process (not on `sys.stdout`).
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of the starts; a negative one counts modulo 2^32.
ntries : int
    Tries, of which the best is taken; below 1 the result is empty. From a guess all are the same.
eps : float
    Tries end with the first whose cost, half the sum of squared residuals, lies below this.

Returns
-------
list of numpy.ndarray of shape (dim,)
    The points, up to a motion and a reflection; an empty list if no try succeeds.

Raises
------
ValueError
    If `dim` or `N` is below 1, `D` empty or with a place outside 0 to N - 1, `n_iterations`
    negative, `eps` NaN, a point of a guess of `N` rows not of `dim` coordinates, or the derivatives
    do not fit into memory.

References
----------
Kruskal, J. B. (1964). Multidimensional scaling by optimizing goodness of fit to a nonmetric
hypothesis. Psychometrika 29, 1-27.
)";

constexpr const char* mds_using_random_search = R"(
Points whose mutual distances come near to a list of them, by random moves; for many points.

Each thread moves 1 to `max_size` random points of its own configuration by normal deviates, and
keeps moves that lower the error: 2 |distance - d| / d, summed over the pairs. After each iteration
the best configuration is the result so far; those more than 1 % worse are replaced by it. All is
done in 32-bit floats.

The result depends on the number of threads, and on the clock once `time_limit` is hit or with
`debug`: `debug` changes the search. Only with it are moves scaled down, to twice the mean error,
and does `target_e` end the search.

Parameters
----------
dim : int
    Dimension of the points, at least 1.
initial_guess : list of numpy.ndarray of shape (dim,)
    Where the search starts, a point each; read as float32.
D : list of tuple of (int, int, float)
    Two places in the guess, and their distance. Those below 1e-30, and of a point with itself, are
    left out, and the first of a repeated pair counts. Leave out unreachable pairs yourself: 1e30 is
    a distance here.
max_distortions : sequence of float
    Standard deviations of moves, in length units; each try takes one at random. Without `debug`
    they do not shrink, so give small ones beside great ones.
n_iterations : int
    Iterations at most.
n_tries_by_iteration : int
    Moves that are tried in an iteration, by all threads together.
n_threads : int
    Threads; 0 means all. The result depends on it.
seed : int
    Seed; a negative one counts modulo 2^32.
debug : bool
    Whether to print progress, once a second and every 1,000 iterations, on the standard output of
    the process (not on `sys.stdout`), to scale moves, and to heed `target_e`.
max_size : int
    Most points that a try moves, at least 1; they are drawn with replacement.
time_limit : float
    Seconds: the search ends within an iteration of the next whole second.
target_e : float
    Mean absolute error, in length units, that ends the search; with `debug` alone.

Returns
-------
list of numpy.ndarray of shape (dim,)
    The best configuration, of float32; the guess where no move lowers the error.

Raises
------
ValueError
    If `dim` or `max_size` is below 1, `initial_guess` or `max_distortions` empty, a point of the
    guess not of `dim` coordinates, a place outside of it, a coordinate or distance not finite, or
    `time_limit` NaN.

Examples
--------
>>> import gravelox
>>> import numpy as np
>>> places = np.random.RandomState(7).uniform(0, 10, (40, 2))
>>> triples = [(i, j, np.linalg.norm(places[i] - places[j])) for i in range(40) for j in range(i)]
>>> guess = places[:, ::-1] + np.random.RandomState(8).normal(size=(40, 2))
>>> found = gravelox.mds_using_random_search(
...     2, guess, triples, [1.0, 0.1, 0.01], 200, 50, n_threads=1, max_size=4)
>>> lengths = [np.linalg.norm(found[i] - found[j]) for i, j, _ in triples]
>>> bool(np.abs(np.array(lengths) - [d for *_, d in triples]).mean() < 0.1), found[0].dtype.name
(True, 'float32')
)";

}  // namespace gravelox::docs
