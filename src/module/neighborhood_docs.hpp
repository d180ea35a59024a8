// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the spatial family: neighbour searches.

namespace gravelox::docs {

constexpr const char* neighborhood = R"(
A search tree over a fixed list of locations.

Ids are positions in the list. With an ellipsoid all distances are measured in its space: a radius
of 1 is then the ellipsoid itself. The search is approximate by design and always the same: a part
of the tree is entered only if eleven times the squared distance to its region is at most the
squared distance of the worst point found so far, so a close point across a split can be missed.

Examples
--------
>>> import gravelox
>>> hood = gravelox.Neighborhood([(0, 0, 0), (1, 0, 0), (5, 0, 0)])
>>> hood.find_neighbors((0.9, 0, 0), 2)
[1, 0]
>>> hood.find_neighbors((0.9, 0, 0), max_radius=0.5)
[1]
)";

constexpr const char* neighborhood_with_ellipsoid = R"(
A search in the space of an ellipsoid.

Parameters
----------
locations : array_like of shape (n, 3)
    Locations in length units; they are copied.
ellipsoid : Ellipsoid
    The map before any distance is taken.

Raises
------
ValueError
    If a coordinate is NaN or infinite.
)";

constexpr const char* neighborhood_init = R"(
A search in real coordinates.

Parameters
----------
locations : array_like of shape (n, 3)
    Locations in length units; they are copied.

Raises
------
ValueError
    If a coordinate is NaN or infinite.
)";

constexpr const char* find_neighbors_by_count = R"(
The nearest locations, chosen when the second argument is an int.

Parameters
----------
center : array_like of shape (3,)
    Real coordinates of the centre.
max_size : int
    How many; at most as many as are stored.

Returns
-------
list of int
    Ids, nearest first; of equal distances the one met first in the tree.

Raises
------
ValueError
    If `max_size` is negative or a coordinate is not finite.
)";

constexpr const char* find_neighbors_by_count_dynamic = R"(
The nearest locations, chosen when the second argument is an int.

Parameters
----------
center : array_like of shape (3,)
    Real coordinates of the centre.
max_size : int
    How many; at most as many as were stored, removed ones included.

Returns
-------
list of int
    Ids, nearest first. An id entered twice can come twice, and places that no location fills,
    since some were removed, are 0 at the end.

Raises
------
ValueError
    If `max_size` is negative or a coordinate is not finite.
)";

constexpr const char* find_neighbors_by_radius = R"(
The locations within a radius, chosen when the second argument is a float.

Parameters
----------
center : array_like of shape (3,)
    Real coordinates of the centre.
max_radius : float
    Radius in the space of the search. A location exactly at the radius is left out; a negative
    radius counts by its absolute value.

Returns
-------
list of int
    Ids, nearest first; ties in no particular order.

Raises
------
ValueError
    If a coordinate is not finite.
)";

constexpr const char* find_neighbors_by_radius_unsorted = R"(
The locations within a radius, chosen when the second argument is a float.

The error factor of this search is 1 + `max_radius` squared: the larger the radius, the more points
beyond a split it misses. Use it with an ellipsoid and radii near 1.

Parameters
----------
center : array_like of shape (3,)
    Real coordinates of the centre.
max_radius : float
    Radius in the space of the search. A location exactly at the radius is left out; a negative
    radius counts by its absolute value.

Returns
-------
list of int
    Ids in the order of the search: not sorted by distance. An id added twice can come twice.

Raises
------
ValueError
    If a coordinate is not finite.
)";

constexpr const char* nearest_neighbor_positional = R"(
The nearest location, as far as the approximate search finds it.

Parameters
----------
arg0 : array_like of shape (3,)
    Real coordinates of the centre.

Returns
-------
int
    The id.

Raises
------
ValueError
    If nothing is stored or a coordinate is not finite.
)";

constexpr const char* nearest_neighbor = R"(
The nearest location, as far as the approximate search finds it.

Parameters
----------
point : array_like of shape (3,)
    Real coordinates of the centre.

Returns
-------
int
    The id; 0 where all locations have been removed.

Raises
------
ValueError
    If nothing was ever stored or a coordinate is not finite.
)";

constexpr const char* dynamic_neighborhood = R"(
A search over a list of locations that grows and shrinks.

Queries follow the rules of `Neighborhood`. Ids count on through additions, and removals shift
none. Each addition also enters the id after its last one, which the next addition then enters a
second time: queries may list such an id twice once its location is there. Do not change an object
while another thread queries it.

Examples
--------
>>> import gravelox
>>> hood = gravelox.DynamicNeighborhood([(0, 0, 0), (1, 0, 0)])
>>> hood.add_point((0.1, 0, 0))
>>> hood.remove_point(0)
>>> hood.nearest_neighbor((0, 0, 0))
2
)";

constexpr const char* dynamic_neighborhood_empty = R"(
An empty search in real coordinates.
)";

constexpr const char* dynamic_neighborhood_empty_with_ellipsoid = R"(
An empty search in the space of an ellipsoid.

Parameters
----------
ellipsoid : Ellipsoid
    The map before any distance is taken.
)";

constexpr const char* add_point = R"(
Add a location; its id is the number of locations stored so far.

Parameters
----------
point : array_like of shape (3,)
    Real coordinates.

Raises
------
ValueError
    If a coordinate is not finite.
)";

constexpr const char* add_points = R"(
Add locations; their ids count on from the number of locations stored so far.

Parameters
----------
points : array_like of shape (n, 3)
    Real coordinates.

Raises
------
ValueError
    If a coordinate is not finite.
)";

constexpr const char* remove_point = R"(
Leave a location out of all queries from now on.

A search by count still returns as many ids as locations were stored, if asked for that many;
places that no location fills are 0.

Parameters
----------
id : int
    The id; one that was never added is ignored.

Raises
------
ValueError
    If `id` is negative.
)";

}  // namespace gravelox::docs
