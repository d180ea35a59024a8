from __future__ import annotations
import gravelox
import gravelox.transiogram
import numpy
import numpy.typing
from . import jet
__all__: list[str] = ['ConditionalSampler', 'ConditionalSamplerPtr', 'Default', 'UnconditionalSampler', 'UnconditionalSamplerPtr', 'jet', 'simulation']
class ConditionalSampler:
    """

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
    """
    @staticmethod
    def Default(transiogram: gravelox.transiogram.Transiogram) -> ConditionalSampler:
        """
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
        """
class UnconditionalSampler:
    """

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
    """
    @staticmethod
    def Default(transiogram: gravelox.transiogram.Transiogram) -> UnconditionalSampler:
        """
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
        """
def Default(transiogram: gravelox.transiogram.Transiogram) -> UnconditionalSampler:
    """
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
    """
def simulation(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, transiogram: gravelox.transiogram.Transiogram, search_ani: gravelox.Ellipsoid, r: float = -1.0, knn: int = 32, n_previous: int = 32, seed: int = 141412) -> list[int]:
    """
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
    """
ConditionalSamplerPtr = ConditionalSampler
UnconditionalSamplerPtr = UnconditionalSampler
