from __future__ import annotations
import gravelox
import numpy
import numpy.typing
__all__: list[str] = ['cluster_fusion', 'detect_grid_aligned_points', 'find_clusters']
def cluster_fusion(locs: numpy.typing.ArrayLike, initial_clusters: numpy.typing.ArrayLike, max_distance: float, n_threads: int = 0) -> list[int]:
    """
    Make clusters one whose points come near to each other, and number what results.

    Parameters
    ----------
    locs : array_like of shape (n, 3)
        Locations in length units.
    initial_clusters : array_like of int
        A label for each location; -1 for none.
    max_distance : float
        Two clusters are one if points of theirs are strictly nearer than this, in length units, and so
        are clusters joined by a chain of such. 0 joins none, nor does one whose square is 0 in
        floating point.
    n_threads : int
        Threads; 0 means all. The labels do not depend on it.

    Returns
    -------
    list of int
        Labels 0, 1, 2 ... in the order of the first point of each cluster; -1 stays -1.

    Raises
    ------
    ValueError
        If `initial_clusters` and `locs` differ in length, a coordinate is not finite, or `max_distance`
        is negative or NaN.

    Examples
    --------
    >>> import gravelox
    >>> locs = [(x, 0, 0) for x in (0, 1, 3, 4, 9, 10)]
    >>> gravelox.grid_detector.cluster_fusion(locs, [7, 7, 4, 4, -1, 5], 2.5)
    [0, 0, 0, 0, -1, 1]
    """
def detect_grid_aligned_points(locs: numpy.typing.ArrayLike, features: numpy.typing.ArrayLike, nei: gravelox.Neighborhood, color_tolerance: float, angle_tolerance_deg: float, radius: float, n_neis: int, n_threads: int = 0) -> list[int]:
    """
    Label points that line up with their like neighbours in the commonest orientations.

    For a point i and each ordered pair of its like neighbours a and b, theta_a is the angle between the
    line from i to a and the x axis, from 0 to pi / 2. theta_b is the arc cosine of the difference in x
    between b and i, by absolute value and 1 at most, which is not divided by their distance: it is an
    angle at a distance of 1 only, so give locations in units of the spacing. This asymmetry is settled,
    and results rely on it. If the two differ by the tolerance at most, i, a and b belong to the family
    (theta_a + theta_b) / (2 tolerance), truncated.

    Parameters
    ----------
    locs : array_like of shape (n, 3)
        Locations in length units.
    features : list of array_like of shape (m,)
        Features of each location, such as colours, all of one length.
    nei : Neighborhood
        A search over `locs`.
    color_tolerance : float
        Greatest Euclidean distance of the features of like neighbours, in their unit.
    angle_tolerance_deg : float
        Tolerance in degrees, by its absolute value, not 0.
    radius : float
        Radius of neighbours in the space of `nei`; 0 or less: the `n_neis` nearest instead.
    n_neis : int
        Number of neighbours, the point itself included, where there is no radius.
    n_threads : int
        Threads of the neighbour queries; 0 means all. The labels do not depend on it.

    Returns
    -------
    list of int
        1, 2 and 3 for the members of the three families with the most, the least of them where there
        are several; -1 for all others. Of families with equally many members the one of the smaller
        angles comes first.

    Raises
    ------
    ValueError
        If `features` and `locs` differ in length, the features in theirs, `nei` is over other
        locations, a number is not finite, `angle_tolerance_deg` is 0, a tolerance or the radius is NaN,
        or `n_neis` is negative and there is no radius.

    Notes
    -----
    The time grows with the square of the number of neighbours.

    Examples
    --------
    >>> import gravelox
    >>> locs = [(x, y, 0) for x in range(3) for y in range(3)] + [(2.5, 0.3, 0)]
    >>> greys = [(0.5,)] * 10
    >>> nei = gravelox.Neighborhood(locs)
    >>> gravelox.grid_detector.detect_grid_aligned_points(locs, greys, nei, 0.1, 2.0, 1.1, 0)
    [1, 1, 1, 1, 1, 1, 1, 1, 1, -1]
    """
def find_clusters(locs: numpy.typing.ArrayLike, features: numpy.typing.ArrayLike, nei: gravelox.Neighborhood, color_tolerance: float, background_color: numpy.typing.ArrayLike, radius: float, n_neis: int, n_threads: int = 0) -> list[int]:
    """
    Label connected regions of like points that begin near a background colour.

    A region opens at each point, in order, whose features differ from `background_color` by
    `color_tolerance` at most, and that no region has reached. It grows from a point to those of its
    neighbours whose features differ from that point's, not from the background, by no more: a region
    may drift away from the colour that it began with.

    Parameters
    ----------
    locs : array_like of shape (n, 3)
        Locations in length units.
    features : list of array_like of shape (m,)
        Features of each location, such as colours, all of one length.
    nei : Neighborhood
        A search over `locs`.
    color_tolerance : float
        Greatest Euclidean distance of like features, in their unit; 0 for equal ones.
    background_color : array_like of shape (m,)
        Features at which regions begin.
    radius : float
        Radius of neighbours in the space of `nei`; 0 or less: the `n_neis` nearest instead.
    n_neis : int
        Number of neighbours, the point itself included, where there is no radius.
    n_threads : int
        Threads of the neighbour queries; 0 means all. The labels do not depend on it.

    Returns
    -------
    list of int
        Labels 0, 1, 2 ... in the order of the first point of each region; -1 for points not reached.

    Raises
    ------
    ValueError
        If `features` and `locs` differ in length, the features and `background_color` in theirs, `nei`
        is over other locations, a number is not finite, the tolerance or the radius is NaN, or `n_neis`
        is negative and there is no radius.

    Examples
    --------
    >>> import gravelox
    >>> locs = [(x, 0, 0) for x in range(8)]
    >>> greys = [(g,) for g in (0.0, 0.1, 0.2, 0.9, 0.9, 0.0, 0.1, 0.9)]
    >>> nei = gravelox.Neighborhood(locs)
    >>> gravelox.grid_detector.find_clusters(locs, greys, nei, 0.15, (0.0,), 1.5, 0)
    [0, 0, 0, -1, -1, 1, 1, -1]
    """
