from __future__ import annotations
import numpy
import numpy.typing
import typing
from . import algebra
from . import ast
from . import ceres
from . import fft
from . import grid_detector
from . import jet
from . import markov_chain
from . import transiogram
__all__: list[str] = ['BlockModel', 'BoundingBox', 'CDF', 'CartesianGrid', 'Covariance', 'CovarianceErrorFunction', 'Direction', 'DistPair', 'Distribution', 'DynamicNeighborhood', 'Ellipsoid', 'EllipsoidInfo', 'EllipsoidLBFGSParameters', 'EllipsoidOptimizationParameters', 'EnsembleEstimation', 'Estimator', 'ExperimentalVariogram', 'FIM', 'GMMFitter', 'GMMParams', 'GaussianMixtureProjection', 'IDW', 'IDWProjection', 'Isomorphism', 'IsomorphismParameters', 'Kernel', 'LocalCovariances', 'MDSProjection', 'NScore', 'Neighborhood', 'OKProjection', 'OptimizedNDProjection', 'OrdinaryKriging', 'PDF', 'PPMT', 'Projection', 'RNG', 'Rotation', 'SCT', 'SimpleKriging', 'SimulatorFactory', 'SimulatorGenerator', 'SpatialFunction', 'TBSIM', 'algebra', 'ast', 'cauchy_distribution', 'ceres', 'check_n_threads', 'chi_squared_distribution', 'compute_angular_distance', 'compute_angular_distance_between_clusters', 'compute_covariance_error_idw', 'compute_ellipsoid_error_idw', 'compute_exp_variogram', 'compute_geodesic_based_distance_matrix', 'compute_geodesics', 'compute_optimum_rotation', 'compute_ordinary_kriging', 'compute_simple_ensemble_estimation', 'compute_simple_kriging', 'compute_svd_decomposition', 'compute_variogram', 'covariance_computer', 'create_folds', 'create_folds_using_multiscale', 'create_minimum_spanning_tree', 'create_random_dense_set', 'create_random_drillholes', 'create_random_orthogonal_matrix', 'create_random_rotation', 'create_sparse_dist_matrix', 'data_distribution', 'dense_MDS', 'ensemble_ellipsoid', 'ensemble_estimation', 'ensemble_local_ellipsoids', 'ensemble_model', 'ensemble_simulation', 'exponential_distribution', 'extract_covariance_from_varmap', 'extract_ellipsoid_info', 'extreme_points', 'extreme_value_distribution', 'fft', 'find_clusters', 'fisher_f_distribution', 'flood_fill_using_ball', 'gamma_distribution', 'gaussian_distribution', 'generate_covariances', 'generate_ellipsoids', 'generate_random_semisphere', 'generate_random_sphere', 'generate_rotations', 'grid_detector', 'jet', 'kfold_cross_validation_using_idw', 'kfold_cross_validation_using_ok', 'kfold_cross_validation_using_sk', 'lognormal_distribution', 'markov_chain', 'mds_using_random_search', 'merge_clusters', 'moving_window_estimation', 'multi_scale_cross_validation_error', 'optimize_covariance', 'optimize_covariance_using_idw', 'optimize_ellipsoid', 'optimize_ellipsoid_using_idw', 'optimize_ellipsoid_using_kfold', 'optimize_isomorphism', 'optimize_local_ellipsoids', 'optimize_local_ellipsoids_using_lbfgs', 'optimize_projection', 'optimize_rotation', 'orthogonolize_axes', 'set_fft_n_threads', 'simulate', 'simulator', 'smooth_variogram', 'sort_matrix3d', 'sparse_MDS', 'student_t_distribution', 'transiogram', 'unconditional_ensemble_simulation', 'uniform_distribution', 'variogram_computer', 'weibull_distribution']
class BlockModel:
    """

    A grid with a mask of active cells.

    Positions count the active cells by ascending id.

    Examples
    --------
    >>> import gravelox
    >>> grid = gravelox.CartesianGrid((10, 10, 10), (2, 2, 2))
    >>> blocks = gravelox.BlockModel(grid, [False] * 7 + [True])
    >>> len(blocks), blocks.full_size(), blocks(0).tolist()
    (1, 8, [5.0, 5.0, 5.0])
    """
    @typing.overload
    def __call__(self, i: int, j: int, k: int) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The location of an active cell by its indices.

        Parameters
        ----------
        i, j, k : int
            The indices of the cell in the grid.

        Returns
        -------
        ndarray of shape (3,)
            The low corner of the cell.

        Raises
        ------
        RuntimeError
            If the cell is masked.
        ValueError
            If an index lies outside the grid.
        """
    @typing.overload
    def __call__(self, i: int) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The location of the active cell at a position.

        Parameters
        ----------
        i : int
            Position among the active cells, from 0.

        Returns
        -------
        ndarray of shape (3,)
            The low corner of the cell.

        Raises
        ------
        ValueError
            If there is no such position.
        """
    def __init__(self, base_grid: CartesianGrid, mask: numpy.typing.ArrayLike) -> None:
        """
        A block model over a grid.

        Parameters
        ----------
        base_grid : CartesianGrid
            The grid; it is copied.
        mask : sequence of bool
            One flag for each cell in the order of ids, True for an active one.

        Raises
        ------
        ValueError
            If `mask` has another length than the grid.
        """
    def __len__(self) -> int:
        """
        The number of active cells.

        Returns
        -------
        int
            The number of flags that are True.
        """
    def base_grid(self) -> CartesianGrid:
        """
        The grid of the block model.

        Returns
        -------
        CartesianGrid
            A copy.
        """
    def bounding_box(self) -> BoundingBox:
        """
        The axis-aligned box of the grid's corners.

        Returns
        -------
        BoundingBox
            It holds all cell locations.
        """
    def cell_size(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The diagonal of a cell.

        Returns
        -------
        ndarray of shape (3,)
            Length units; under a rotation in real coordinates, with their signs.
        """
    def full_size(self) -> int:
        """
        The number of all cells of the grid.

        Returns
        -------
        int
            Active and masked cells.
        """
    def ijk(self, i: int) -> tuple[int, int, int]:
        """
        The indices of the active cell at a position.

        Parameters
        ----------
        i : int
            Position among the active cells, from 0.

        Returns
        -------
        tuple of three int
            i, j and k in the grid.

        Raises
        ------
        ValueError
            If there is no such position.
        """
    def locations(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        The locations of the active cells.

        Returns
        -------
        list of ndarray of shape (3,)
            By ascending id.
        """
    def number_of_cells(self) -> tuple[int, int, int]:
        """
        The numbers of cells of the grid.

        Returns
        -------
        tuple of three int
            Along i, j and k.
        """
class BoundingBox:
    """

    The axis-aligned box around a set of points.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.BoundingBox([(0, 0, 0), (1, 2, 3)]).length().tolist()
    [1.0, 2.0, 3.0]
    """
    def __init__(self, corners: numpy.typing.ArrayLike) -> None:
        """
        The box of some points.

        Parameters
        ----------
        corners : array_like of shape (n, 3)
            The points. Without any the box is empty: lower is 1e30, upper -1e30 on each axis.
        """
    def corners(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        The points that the box was made from.

        Returns
        -------
        list of ndarray of shape (3,)
            In their order.
        """
    def length(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The extents of the box.

        Returns
        -------
        ndarray of shape (3,)
            Per axis the greatest distance between two of the points, 0 without points.
        """
    def lower(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The least coordinates of the box.

        Returns
        -------
        ndarray of shape (3,)
            Length units.
        """
    def upper(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The greatest coordinates of the box.

        Returns
        -------
        ndarray of shape (3,)
            Length units.
        """
class CDF:
    """

    The distribution function and the quantiles of a distribution.

    Examples
    --------
    >>> import gravelox
    >>> cdf = gravelox.CDF(gravelox.gaussian_distribution(10.0, 2.0))
    >>> round(cdf.value(10.0), 4), round(cdf.prob(0.975), 4)
    (0.5, 13.9199)
    """
    def __init__(self, dist: Distribution) -> None:
        """
        View a distribution by its distribution function.

        Parameters
        ----------
        dist : Distribution
            The distribution.
        """
    def prob(self, p: float) -> float:
        """
        The quantile of a probability.

        Parameters
        ----------
        p : float
            The probability. Parametric distributions hold it within 1e-16 and 0.9999999999999999. A data
            distribution takes any number: beyond its table it goes on in straight lines.

        Returns
        -------
        float
            The value that is not exceeded with the probability, in data units.

        Raises
        ------
        ValueError
            If the probability is NaN, for parametric distributions.
        OverflowError
            If the value does not fit into a float, as for some gamma and Student distributions.
        """
    def probs(self, list: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Quantiles of many probabilities, in parallel.

        Parameters
        ----------
        list : list of float
            Probabilities. Parametric distributions hold them within 1e-16 and 0.9999999999999999. A data
            distribution takes any numbers: beyond its table it goes on in straight lines.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A quantile for each probability, in data units.
        """
    def value(self, x: float) -> float:
        """
        The probability of a value or less.

        Parameters
        ----------
        x : float
            The value, in data units.

        Returns
        -------
        float
            The probability. A data distribution goes on in straight lines beyond its values, below 0 and
            above 1 as well.

        Raises
        ------
        ValueError
            If the value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
            gamma distribution.
        """
    def values(self, list: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Probabilities of many values, in parallel.

        Parameters
        ----------
        list : list of float
            Values, in data units.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A probability for each value. A data distribution goes on in straight lines beyond its values,
            below 0 and above 1 as well.

        Raises
        ------
        ValueError
            If a value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
            gamma distribution.
        """
class CartesianGrid:
    """

    A regular grid, which may be rotated.

    Cells are counted k fastest, then j, then i. The location of a cell is its low corner, and cell
    (0, 0, 0) stands at the origin. With the default rotation (90, 0, 0) i, j and k run along x, y and
    z; an azimuth of 0 lets i run north and j west.

    Examples
    --------
    >>> import gravelox
    >>> grid = gravelox.CartesianGrid((10, 10, 10), (2, 2, 2))
    >>> len(grid), grid.ijk(7), grid(1, 1, 1).tolist()
    (8, (1, 1, 1), [5.0, 5.0, 5.0])
    """
    @typing.overload
    def __call__(self, i: int, j: int, k: int) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The location of a cell.

        Parameters
        ----------
        i, j, k : int
            The indices of the cell.

        Returns
        -------
        ndarray of shape (3,)
            The low corner of the cell.

        Raises
        ------
        ValueError
            If an index lies outside the grid.
        """
    @typing.overload
    def __call__(self, i: int) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The location of a cell by its id.

        Parameters
        ----------
        i : int
            The id of the cell.

        Returns
        -------
        ndarray of shape (3,)
            The low corner of the cell.

        Raises
        ------
        ValueError
            If the id lies outside the grid.
        """
    @typing.overload
    def __init__(self, length: numpy.typing.ArrayLike, number_of_cells: tuple[int, int, int], origin: numpy.typing.ArrayLike = (0, 0, 0), rotation: numpy.typing.ArrayLike = (90, 0, 0)) -> None:
        """
        A grid from its lengths and numbers of cells.

        Three whole numbers in second place are counts, also where sizes are meant: for those give the
        argument its name, `cell_size=(10, 10, 5)`.

        Parameters
        ----------
        length : array_like of shape (3,)
            Lengths along i, j, k, in length units. One that is not above 1e-30 counts as 1.
        number_of_cells : tuple of three int
            Cells along i, j, k, each at least 1.
        origin : array_like of shape (3,)
            Location of cell (0, 0, 0).
        rotation : array_like of shape (3,)
            Azimuth, dip and rake in degrees.

        Raises
        ------
        ValueError
            If a count is below 1 or there are more than 2147483647 cells.
        """
    @typing.overload
    def __init__(self, length: numpy.typing.ArrayLike, cell_size: numpy.typing.ArrayLike, origin: numpy.typing.ArrayLike = (0, 0, 0), rotation: numpy.typing.ArrayLike = (90, 0, 0)) -> None:
        """
        A grid from its lengths and cell sizes; name `cell_size` where the sizes are whole numbers.

        Parameters
        ----------
        length : array_like of shape (3,)
            Lengths along i, j, k, in length units. One that is not above 1e-30 counts as 1.
        cell_size : array_like of shape (3,)
            Sizes of a cell along i, j, k. The counts are the whole parts of length / cell_size, as
            doubles have it: 0.3 / 0.1 gives 2 cells.
        origin : array_like of shape (3,)
            Location of cell (0, 0, 0).
        rotation : array_like of shape (3,)
            Azimuth, dip and rake in degrees.

        Raises
        ------
        ValueError
            If a count would be below 1 or there are more than 2147483647 cells.
        """
    @typing.overload
    def __init__(self, number_of_cells: tuple[int, int, int], cell_size: numpy.typing.ArrayLike, origin: numpy.typing.ArrayLike = (0, 0, 0), rotation: numpy.typing.ArrayLike = (90, 0, 0)) -> None:
        """
        A grid from its numbers and sizes of cells; give them by name.

        Parameters
        ----------
        number_of_cells : tuple of three int
            Cells along i, j, k, each at least 1. They are counted again from length and size, so rounding
            may give one fewer.
        cell_size : array_like of shape (3,)
            Sizes of a cell along i, j, k, in length units.
        origin : array_like of shape (3,)
            Location of cell (0, 0, 0).
        rotation : array_like of shape (3,)
            Azimuth, dip and rake in degrees.

        Raises
        ------
        ValueError
            If a count is below 1 or there are more than 2147483647 cells.
        """
    def __len__(self) -> int:
        """
        The number of cells.

        Returns
        -------
        int
            The product of the three counts.
        """
    def bounding_box(self) -> BoundingBox:
        """
        The axis-aligned box of the grid's corners.

        Returns
        -------
        BoundingBox
            It holds all cell locations.
        """
    def cell_size(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The diagonal of a cell.

        Returns
        -------
        ndarray of shape (3,)
            Length units; under a rotation in real coordinates, with their signs.
        """
    def corners(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        The 8 outermost cell locations of the grid.

        Returns
        -------
        list of ndarray of shape (3,)
            Low corners of cells, not the ends of the grid; k runs fastest.
        """
    def ijk(self, i: int) -> tuple[int, int, int]:
        """
        The indices of a cell.

        Parameters
        ----------
        i : int
            The id of the cell.

        Returns
        -------
        tuple of three int
            i, j and k.

        Raises
        ------
        ValueError
            If the id lies outside the grid.
        """
    def index(self, arg0: int, arg1: int, arg2: int) -> int:
        """
        The id of a cell: (i ny + j) nz + k.

        Parameters
        ----------
        arg0, arg1, arg2 : int
            The indices i, j, k.

        Returns
        -------
        int
            The id.

        Raises
        ------
        ValueError
            If an index lies outside the grid.
        """
    def locations(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        The locations of all cells.

        Returns
        -------
        list of ndarray of shape (3,)
            In the order of the ids.
        """
    def number_of_cells(self) -> tuple[int, int, int]:
        """
        The numbers of cells of the grid.

        Returns
        -------
        tuple of three int
            Along i, j and k.
        """
    def transformation(self) -> Ellipsoid:
        """
        The map from real coordinates, relative to the origin, to the unit cube.

        Returns
        -------
        Ellipsoid
            A copy.
        """
class Covariance:
    """

    One structure of a covariance model: a sill, an anisotropy and a shape.

    A model is a list of structures, added up. Instances come from the static methods.

    Examples
    --------
    >>> import gravelox
    >>> ellipsoid = gravelox.Ellipsoid(100, 50, 20, 45, 0, 0)
    >>> model = [gravelox.Covariance.nugget(0.1), gravelox.Covariance.spherical(0.9, ellipsoid)]
    >>> gravelox.covariance_computer(model)((0, 0, 0))
    1.0
    """
    @staticmethod
    def exponential(sill: float, ellipsoid: Ellipsoid) -> Covariance:
        """
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
        """
    @staticmethod
    def gaussian(sill: float, ellipsoid: Ellipsoid) -> Covariance:
        """
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
        """
    @staticmethod
    def nugget(sill: float) -> Covariance:
        """
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
        """
    @staticmethod
    def spherical(sill: float, ellipsoid: Ellipsoid) -> Covariance:
        """
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
        """
    def __call__(self, h: numpy.typing.ArrayLike) -> float:
        """
        The covariance at a lag.

        Parameters
        ----------
        h : array_like of shape (3,)
            Lag vector in length units.

        Returns
        -------
        float
            The sill times the kernel at the lag's length in isotropic space.
        """
    def ellipsoid(self) -> Ellipsoid:
        """
        The anisotropy of the structure.

        Returns
        -------
        Ellipsoid
            A copy.
        """
    def sill(self) -> float:
        """
        The sill of the structure.

        Returns
        -------
        float
            Variance, in the units that the structure was made with.
        """
    def type(self) -> str:
        """
        The label of the structure.

        Returns
        -------
        str
            "spherical", "gaussian", "exponential", "nugget" or "idw".
        """
class CovarianceErrorFunction:
    """

    A rating of covariance models, the lower the better: one by cross-validation, or one of your own.

    Examples
    --------
    >>> import gravelox
    >>> def misfit(model, n_threads):
    ...     return abs(sum(structure.sill() for structure in model) - 1)
    >>> rating = gravelox.CovarianceErrorFunction.Custom(misfit)
    >>> sphere = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
    >>> rating([gravelox.Covariance.spherical(0.75, sphere)])
    0.25
    """
    @staticmethod
    def Custom(python_callback: typing.Any) -> CovarianceErrorFunction:
        """
        A rating by a Python function.

        A search calls it from its threads, in any order but one call at a time, so more threads do not make
        it faster. An exception in it ends the search and is raised by it.

        Parameters
        ----------
        python_callback : callable
            Takes the model (a list of Covariance) and the number of threads that the rating may use, both
            by position, and gives a float. A NaN or an infinity never wins, and a first
            model rated NaN stays the best.

        Returns
        -------
        CovarianceErrorFunction
            To be called with models. What the function returns and is not a number raises TypeError.
        """
    @staticmethod
    def IDW(folds: list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]], max_distance: float, power_a: float = 3.0, min_partition_size: int = 15, max_partition_size: int = 25, n_partitions: int = 5, regularization_const: float = 0.001, seed: int = 21314) -> CovarianceErrorFunction:
        """
        The rating of `compute_covariance_error_idw`, over given groups of samples.

        Parameters
        ----------
        folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
            Groups of samples, locations in length units and values in data units, as `create_folds` makes
            them.
        max_distance : float
            Samples count for each other where they are strictly nearer than this, in length units.
        power_a : float
            Exponent of the distance 1 - covariance.
        min_partition_size, max_partition_size : int
            Bounds of the size of a partition, both inclusive.
        n_partitions : int
            Partitions of each sample: how often it is estimated.
        regularization_const : float
            Weight of the penalty on ranges; 0 for none.
        seed : int
            Seed of the partitions: all models are rated on the same ones.

        Returns
        -------
        CovarianceErrorFunction
            To be called with models.

        Raises
        ------
        ValueError
            If `folds` are empty, the locations and values of one differ in length, a coordinate is not
            finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.
        """
    def __call__(self, covariance: list[Covariance], n_threads: int = 0) -> float:
        """
        Rate a model.

        Parameters
        ----------
        covariance : list of Covariance
            The model.
        n_threads : int
            Threads; 0 means all. A rating by cross-validation grows with it, see
            `compute_covariance_error_idw`; a Python function gets the number as it is.

        Returns
        -------
        float
            The error; the lower the better.
        """
class DistPair:
    """

    The distance of two points, which are given by their places in a list.

    Examples
    --------
    >>> import gravelox
    >>> pair = gravelox.DistPair(0, 3, 12.5)
    >>> pair.d = 13.0
    >>> pair.i, pair.j, pair.d
    (0, 3, 13.0)
    """
    def __init__(self, i: int, j: int, d: float) -> None:
        """
        Make a pair; its places are checked where it is used.

        Parameters
        ----------
        i : int
            Place of one point.
        j : int
            Place of the other.
        d : float
            Their distance, in length units.
        """
    @property
    def d(self) -> float:
        """
        Their distance, in length units.
        """
    @d.setter
    def d(self, arg0: float) -> None:
        ...
    @property
    def i(self) -> int:
        """
        Place of one point; for a spanning tree that nearer its root.
        """
    @i.setter
    def i(self, arg0: int) -> None:
        ...
    @property
    def j(self) -> int:
        """
        Place of the other point.
        """
    @j.setter
    def j(self, arg0: int) -> None:
        ...
class Distribution:
    """

    A distribution of one variable, parametric or that of samples.

    Instances come from the functions whose names end in `_distribution`. `PDF` and `CDF` give its
    density, its distribution function and its quantiles. Every draw is the quantile of a uniform
    number.

    Examples
    --------
    >>> import gravelox
    >>> gaussian = gravelox.gaussian_distribution(10.0, 2.0)
    >>> draws = gaussian.simulate(10000)
    >>> round(sum(draws) / len(draws))
    10
    """
    def __call__(self, rng: RNG) -> float:
        """
        One draw, which moves the engine on.

        Parameters
        ----------
        rng : RNG
            The engine. No two threads may use it at once.

        Returns
        -------
        float
            The draw, in data units.
        """
    def cdf(self, n: int, seed: int = 12515) -> tuple[list[float], list[float]]:
        """
        Empirical distribution function of draws.

        It is exclusive: each draw stands beside the share of draws before it.

        Parameters
        ----------
        n : int
            How many draws.
        seed : int
            Seed of the engine.

        Returns
        -------
        values : list of float
            The draws in ascending order, in data units.
        probs : list of float
            0, 1 / n, 2 / n and so on.

        Raises
        ------
        ValueError
            If `n` is negative.

        Examples
        --------
        >>> import gravelox
        >>> values, probs = gravelox.gaussian_distribution().cdf(4)
        >>> values == sorted(values), probs
        (True, [0.0, 0.25, 0.5, 0.75])
        """
    def histogram(self, n: int, seed: int = 12515) -> list[float]:
        """
        The draws of `simulate` in ascending order.

        Parameters
        ----------
        n : int
            How many draws.
        seed : int
            Seed of the engine.

        Returns
        -------
        list of float
            The draws, in data units.

        Raises
        ------
        ValueError
            If `n` is negative.
        """
    @typing.overload
    def simulate(self, n: int, seed: int = 12515) -> list[float]:
        """
        Draw from one engine.

        This overload takes a second number by position, as the seed: `simulate(5, 1)` has the seed 1. To
        draw in parallel, name `n_threads` or give all three numbers.

        Parameters
        ----------
        n : int
            How many draws.
        seed : int
            Seed of the engine.

        Returns
        -------
        list of float
            The draws in order, in data units.

        Raises
        ------
        ValueError
            If `n` is negative.

        Examples
        --------
        >>> import gravelox
        >>> gaussian = gravelox.gaussian_distribution()
        >>> gaussian.simulate(5, 1) == gaussian.simulate(5, seed=1)
        True
        """
    @typing.overload
    def simulate(self, n: int, n_threads: int = 0, seed: int = 12515) -> list[float]:
        """
        Draw in parallel, each thread from an engine of its own.

        Parameters
        ----------
        n : int
            How many draws.
        n_threads : int
            Threads; 0 means all. Draws repeat only for an equal number.
        seed : int
            Seed of the engines.

        Returns
        -------
        list of float
            The draws, in data units.

        Raises
        ------
        ValueError
            If `n` is negative.

        Examples
        --------
        >>> import gravelox
        >>> gaussian = gravelox.gaussian_distribution()
        >>> gaussian.simulate(5, n_threads=2) == gaussian.simulate(5, 2, 12515)
        True
        """
class DynamicNeighborhood:
    """

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
    """
    @typing.overload
    def __init__(self) -> None:
        """
        An empty search in real coordinates.
        """
    @typing.overload
    def __init__(self, ellipsoid: Ellipsoid) -> None:
        """
        An empty search in the space of an ellipsoid.

        Parameters
        ----------
        ellipsoid : Ellipsoid
            The map before any distance is taken.
        """
    @typing.overload
    def __init__(self, locations: numpy.typing.ArrayLike, ellipsoid: Ellipsoid) -> None:
        """
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
        """
    @typing.overload
    def __init__(self, locations: numpy.typing.ArrayLike) -> None:
        """
        A search in real coordinates.

        Parameters
        ----------
        locations : array_like of shape (n, 3)
            Locations in length units; they are copied.

        Raises
        ------
        ValueError
            If a coordinate is NaN or infinite.
        """
    def add_point(self, point: numpy.typing.ArrayLike) -> None:
        """
        Add a location; its id is the number of locations stored so far.

        Parameters
        ----------
        point : array_like of shape (3,)
            Real coordinates.

        Raises
        ------
        ValueError
            If a coordinate is not finite.
        """
    def add_points(self, points: numpy.typing.ArrayLike) -> None:
        """
        Add locations; their ids count on from the number of locations stored so far.

        Parameters
        ----------
        points : array_like of shape (n, 3)
            Real coordinates.

        Raises
        ------
        ValueError
            If a coordinate is not finite.
        """
    @typing.overload
    def find_neighbors(self, center: numpy.typing.ArrayLike, max_size: int) -> list[int]:
        """
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
        """
    @typing.overload
    def find_neighbors(self, center: numpy.typing.ArrayLike, max_radius: float) -> list[int]:
        """
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
        """
    def nearest_neighbor(self, point: numpy.typing.ArrayLike) -> int:
        """
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
        """
    def remove_point(self, id: int) -> None:
        """
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
        """
class Ellipsoid:
    """

    An anisotropy: the linear map to a space in which the ellipsoid is the unit sphere.

    Distances of covariances, neighbour searches and variograms are measured after this map. x is
    east, y north, z up. The axis of range r1 points along the azimuth (clockwise from north) and the
    dip (positive upward); rake turns the axes of r2 and r3 about it. All angles are in degrees.
    Azimuth 90, dip 0, rake 0 lays the axes along x, y and z. Instances never change.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.Ellipsoid(10, 5, 2, 0, 0, 0).forward((0, 10, 0)).round(6).tolist()
    [1.0, 0.0, 0.0]
    """
    @typing.overload
    def __init__(self, anisotropy_matrix: numpy.typing.ArrayLike) -> None:
        """
        An ellipsoid from its matrix, taken as it stands.

        Parameters
        ----------
        anisotropy_matrix : array_like of shape (3, 3)
            The map from real to isotropic coordinates; its rows are the axes, each of length 1 / range.
            A singular matrix is not refused: its inverse has infinities and NaN.
        """
    @typing.overload
    def __init__(self, r1: float, r2: float, r3: float, azimuth: float, dip: float, rake: float) -> None:
        """
        An ellipsoid from ranges and angles.

        Parameters
        ----------
        r1, r2, r3 : float
            Ranges (semi-axes) in length units. One that is not above 1e-30 counts as 1.
        azimuth, dip, rake : float
            Angles in degrees.
        """
    @typing.overload
    def __init__(self, length: numpy.typing.ArrayLike, rotation: numpy.typing.ArrayLike) -> None:
        """
        An ellipsoid from ranges and angles in two vectors.

        Parameters
        ----------
        length : array_like of shape (3,)
            Ranges (r1, r2, r3) in length units. One that is not above 1e-30 counts as 1.
        rotation : array_like of shape (3,)
            Angles (azimuth, dip, rake) in degrees.
        """
    @typing.overload
    def __init__(self, ellipsoid_info: EllipsoidInfo) -> None:
        """
        An ellipsoid from a record of ranges and angles.

        Parameters
        ----------
        ellipsoid_info : EllipsoidInfo
            Ranges and angles. Of an ellipsoid whose axes are left-handed after sorting, the record does
            not give that ellipsoid back.
        """
    def __str__(self) -> str:
        """
        The values of `info` as text.

        Returns
        -------
        str
            "{r1: 10.000000, r2: ..., rake: 0.000000} ", the closing blank included.
        """
    @typing.overload
    def backward(self, location: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        Map a location from isotropic to real coordinates.

        Parameters
        ----------
        location : array_like of shape (3,)
            Isotropic coordinates.

        Returns
        -------
        ndarray of shape (3,)
            Real coordinates, in length units.
        """
    @typing.overload
    def backward(self, locs: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Map many locations from isotropic to real coordinates, in parallel.

        Parameters
        ----------
        locs : array_like of shape (n, 3)
            Isotropic coordinates.
        n_threads : int
            Threads; 0 means all.

        Returns
        -------
        list of ndarray of shape (3,)
            Real coordinates in the order of `locs`, the same for any number of threads.
        """
    def directions(self, n_directions: int = 600, n_lags: int = 300, seed: int = 12356) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[int]]:
        """
        Points along rays from the origin through the ellipsoid's surface.

        Parameters
        ----------
        n_directions : int
            Half the number of rays.
        n_lags : int
            Number of points on each ray, at absolute standard normal multiples of the surface point.
        seed : int
            Seed of the rays and of the draws.

        Returns
        -------
        points : list of ndarray of shape (3,)
            2 `n_directions` `n_lags` points in real coordinates, ray by ray.
        ids : list of int
            The number of the ray of each point, from 0.
        """
    @typing.overload
    def forward(self, location: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        Map a location from real to isotropic coordinates.

        Parameters
        ----------
        location : array_like of shape (3,)
            Real coordinates, in length units.

        Returns
        -------
        ndarray of shape (3,)
            Isotropic coordinates; a point on the ellipsoid has length 1.
        """
    @typing.overload
    def forward(self, locs: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Map many locations from real to isotropic coordinates, in parallel.

        Parameters
        ----------
        locs : array_like of shape (n, 3)
            Real coordinates, in length units.
        n_threads : int
            Threads; 0 means all.

        Returns
        -------
        list of ndarray of shape (3,)
            Isotropic coordinates in the order of `locs`, the same for any number of threads.
        """
    def info(self) -> EllipsoidInfo:
        """
        Ranges and angles of the axes, by descending range.

        Returns
        -------
        EllipsoidInfo
            The reading of the matrix; a constructor's ranges come back sorted, with the angles to suit.
        """
    def inv_matrix(self) -> numpy.ndarray[numpy.float64[3, 3]]:
        """
        The map from isotropic to real coordinates.

        Returns
        -------
        ndarray of shape (3, 3)
            A copy of the inverse matrix.
        """
    def major_axis(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The longest axis.

        Returns
        -------
        ndarray of shape (3,)
            A vector along the axis, as long as its range, pointing towards +x (on a tie +y, then +z).
        """
    def matrix(self) -> numpy.ndarray[numpy.float64[3, 3]]:
        """
        The map from real to isotropic coordinates.

        Returns
        -------
        ndarray of shape (3, 3)
            A copy of the matrix.
        """
    def mid_axis(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The middle axis.

        Returns
        -------
        ndarray of shape (3,)
            A vector along the axis, as long as its range, pointing towards +y (on a tie +x, then +z).
        """
    def minor_axis(self) -> numpy.ndarray[numpy.float64[3, 1]]:
        """
        The shortest axis.

        Returns
        -------
        ndarray of shape (3,)
            A vector along the axis, as long as its range, pointing towards +z where it is not horizontal.
        """
    def surface(self, n_points: int = 600, seed: int = 12546) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Points spread evenly over the ellipsoid's surface.

        Parameters
        ----------
        n_points : int
            Half the number of points; below 1 there are none.
        seed : int
            Seed of the Halton indices and of their random rotation.

        Returns
        -------
        list of ndarray of shape (3,)
            2 `n_points` points in real coordinates, around the origin. See `generate_random_sphere`.
        """
    def volume(self, n_points: int = 600, n_lags: int = 300, seed: int = 12356) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Points scattered through the ellipsoid and around it.

        Parameters
        ----------
        n_points : int
            Half the number of points of one lag.
        n_lags : int
            Number of lags: surfaces scaled by the absolute value of a standard normal draw.
        seed : int
            Seed of the draws; the surfaces' seeds count on from it.

        Returns
        -------
        list of ndarray of shape (3,)
            2 `n_points` `n_lags` points in real coordinates, denser towards the origin and unbounded.
        """
class EllipsoidInfo:
    """

    Ranges and angles of an ellipsoid, as read off its matrix by `Ellipsoid.info`.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.Ellipsoid(5, 10, 2, 0, 0, 0).info().r1()
    10.0
    """
    def azimuth(self) -> float:
        """
        The azimuth of the longest axis, in degrees clockwise from north.

        Returns
        -------
        float
            An angle in [0, 360).
        """
    def dip(self) -> float:
        """
        The dip of the longest axis, in degrees, positive upward.

        Returns
        -------
        float
            An angle in [-90, 90].
        """
    def r1(self) -> float:
        """
        The largest range, in length units.

        Returns
        -------
        float
            The length of the longest semi-axis.
        """
    def r2(self) -> float:
        """
        The middle range, in length units.

        Returns
        -------
        float
            The length of the middle semi-axis.
        """
    def r3(self) -> float:
        """
        The smallest range, in length units.

        Returns
        -------
        float
            The length of the shortest semi-axis.
        """
    def rake(self) -> float:
        """
        The turn of the other two axes about the longest one, in degrees.

        Returns
        -------
        float
            An angle in [-180, 180]; 0 where the longest axis is vertical.
        """
class EllipsoidLBFGSParameters:
    """

    Settings of the gradient fits of `optimize_local_ellipsoids_using_lbfgs`.

    The solver is a trust-region one, whatever the name. The fields cannot be read back.

    Examples
    --------
    >>> import gravelox
    >>> parameters = gravelox.EllipsoidLBFGSParameters(regularization_const=0.1, n_threads=1)
    """
    def __init__(self, regularization_const: float = 1.0, cauchy_loss: float = 0.0, min_partition_size: int = 15, max_partition_size: int = 30, n_partitions: int = 7, n_iterations: int = 1000, seed: int = 123151, n_threads: int = 0, debug: bool = False) -> None:
        """
        Make the settings of local gradient fits.

        Parameters
        ----------
        regularization_const : float
            Weight of the prior on ranges for each partition, and of the penalty on ranges in the rating of
            the results.
        cauchy_loss : float
            Scale of a Cauchy loss on errors, which bounds the pull of outliers; below 1e-10 there is none.
        min_partition_size : int
            Least number of samples that estimate the others.
        max_partition_size : int
            In a fit the bound that their number stays below, in the rating of the fits the greatest size of
            a partition. Not equal to `min_partition_size`.
        n_partitions : int
            Partitions of each group.
        n_iterations : int
            Most iterations of the solver.
        seed : int
            Seed of groups and partitions.
        n_threads : int
            Threads; 0 means all. Ellipsoids do not depend on it, their errors do.
        debug : bool
            Whether to print how fits go on, on the standard output and the standard error of the process
            (not on `sys.stdout`).
        """
class EllipsoidOptimizationParameters:
    """

    Settings of a search for ellipsoids, for `optimize_ellipsoid` and `optimize_local_ellipsoids`.

    The fields cannot be read back. Those functions' own default is another one: `n_rays` 600,
    `n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and `regularization_const`
    0.001, where a record made here without arguments has 400, 8, 150, 50 and 0.025: a shorter search,
    held to shorter ranges. All other fields are the same.

    Examples
    --------
    >>> import gravelox
    >>> quick = gravelox.EllipsoidOptimizationParameters(n_rays=100, tol=0.01, n_threads=1)
    >>> thorough = gravelox.EllipsoidOptimizationParameters(
    ...     n_rays=600, n_scales=5, n_iterations=2000, n_iterations_without_upgrade=100,
    ...     regularization_const=0.001)  # what a call without a record takes
    """
    def __init__(self, power_a: float = 3.0, max_nei_size: int = 400, min_partition_size: int = 15, max_partitions_size: int = 25, n_partitions: int = 4, n_centers: int = 10, n_rays: int = 400, n_scales: int = 8, n_iterations: int = 150, n_iterations_without_upgrade: int = 50, tol: float = 0.002, regularization_const: float = 0.025, seed: int = 1231, n_threads: int = 0, debug: bool = False) -> None:
        """
        Make the settings of a search.

        Parameters
        ----------
        power_a : float
            Exponent of the distance 1 - covariance.
        max_nei_size : int
            Most samples in a group; below 1 there is no limit.
        min_partition_size : int
            Least size of a partition.
        max_partitions_size : int
            Greatest size of a partition. The name has one more "s" than everywhere else.
        n_partitions : int
            Partitions of each sample: how often it is estimated.
        n_centers : int
            Groups of samples that a candidate is rated on.
        n_rays : int
            Half the number of directions of the candidates' axes. The number of candidates grows with its
            square.
        n_scales : int
            Half the number of ellipsoids for each frame of axes.
        n_iterations : int
            Most candidates that a thread rates in the first phase; of the second phase the tries of all
            threads together, plus one for each thread.
        n_iterations_without_upgrade : int
            A thread that has rated this many candidates without a better one leaves the first phase.
        tol : float
            Greatest cosine of two directions that count as at right angles: a tolerance of the candidates'
            axes, and not of convergence. The number of candidates grows with it.
        regularization_const : float
            Weight of the penalty on ranges; 0 for none. It acts on numbers of length units: in metres the
            default punishes long ranges so hard that the search may end at ranges near 0.
        seed : int
            Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
        n_threads : int
            Threads; 0 means all. The result repeats for an equal number only.
        debug : bool
            Whether to print each improvement, on the standard output and the standard error of the process
            (not on `sys.stdout`).

        Notes
        -----
        With the values here there are some 10,000 candidates, most of which are never rated; with those of
        a call without a record some 14,000.
        """
class Estimator:
    """

    An estimator with its parameters, made by `IDW`, one of the krigings or `EnsembleEstimation`.

    It keeps no state between calls and can be used on any data.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(0, 0, 0), (1, 0, 0)]
    >>> estimator = gravelox.IDW(max_neighbors=2)
    >>> estimates = estimator([(0, 0, 0)], gravelox.Neighborhood(locations), locations, [10, 20])
    >>> round(estimates[0], 6)
    11.0
    """
    def __call__(self, target_locs: numpy.typing.ArrayLike, neighborhood: Neighborhood, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Estimate at the targets, in parallel.

        Parameters
        ----------
        target_locs : array_like of shape (m, 3)
            Where to estimate.
        neighborhood : Neighborhood
            A search over the samples' locations.
        data_locs : array_like of shape (n, 3)
            Locations of the samples, those of the neighbourhood first.
        data : sequence of float of length n
            Values of the samples, in data units.
        n_threads : int
            Threads; 0 means all. Estimates do not depend on it.

        Returns
        -------
        list of float
            One estimate for each target, in data units; NaN where no sample is found.

        Raises
        ------
        ValueError
            If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
            locations than `data_locs`.
        """
class ExperimentalVariogram:
    """

    A cloud of lags with their semivariances and pair counts, grouped by direction.

    Lags are sample points of lag space, not the centres of regular bins. The object does not change,
    and everything that it returns is a copy.

    Examples
    --------
    >>> import gravelox
    >>> variogram = gravelox.ExperimentalVariogram(
    ...     [(1, 0, 0), (0, 1, 0), (2, 0, 0)], [0.5, 0.7, 0.9], [40, 30, 20], [0, 1, 0],
    ...     [(1, 0, 0), (0, 1, 0)])
    >>> lags, values, npairs = variogram.get_variogram(90, 0)
    >>> values, npairs
    ([0.5, 0.9], [40, 20])
    """
    def __init__(self, lags: numpy.typing.ArrayLike, variogram: numpy.typing.ArrayLike, npairs: numpy.typing.ArrayLike, direction_id: numpy.typing.ArrayLike, directions: numpy.typing.ArrayLike) -> None:
        """
        Make a variogram from its lags.

        Parameters
        ----------
        lags : array_like of shape (n, 3)
            Lag vectors, in metres or another length unit.
        variogram : list of float of length n
            Semivariances, in data units squared.
        npairs : list of int of length n
            Pair counts.
        direction_id : list of int of length n
            The position of each lag's direction in `directions`.
        directions : array_like of shape (m, 3)
            Unit vectors.

        Raises
        ------
        ValueError
            If lists differ in length or an id is out of range.
        """
    def direction_ids(self) -> list[int]:
        """
        The direction of each lag.

        Returns
        -------
        list of int
            Positions in `directions()`.
        """
    def directions(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        All directions, those without lags too.

        Returns
        -------
        list of numpy.ndarray of shape (3,)
            Unit vectors.
        """
    @typing.overload
    def get_variogram(self, azimuth: float, dip: float) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float], list[int]]:
        """
        Lags of the direction nearest to an azimuth and dip.

        Parameters
        ----------
        azimuth : float
            Degrees clockwise from north.
        dip : float
            Degrees, positive upward.

        Returns
        -------
        lags : list of numpy.ndarray of shape (3,)
            Lag vectors, in the order of positions (by length, where the module made the variogram).
        variogram : list of float
            Semivariances, in data units squared.
        npairs : list of int
            Pair counts.

        Notes
        -----
        Of the directions that have lags. Opposite directions are two. Three empty lists where there is
        none.
        """
    @typing.overload
    def get_variogram(self, dir: numpy.typing.ArrayLike) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float], list[int]]:
        """
        Lags of the direction nearest to a vector.

        Parameters
        ----------
        dir : array_like of shape (3,)
            A vector of any length; for one of length 0 the lists are empty.

        Returns
        -------
        lags : list of numpy.ndarray of shape (3,)
            Lag vectors, in the order of positions (by length, where the module made the variogram).
        variogram : list of float
            Semivariances, in data units squared.
        npairs : list of int
            Pair counts.

        Notes
        -----
        Of the directions that have lags. Opposite directions are two. Three empty lists where there is
        none.
        """
    def get_variogram_by_direction_id(self, direction_id: int) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float], list[int]]:
        """
        Lags of a direction.

        Parameters
        ----------
        direction_id : int
            A position in `directions()`.

        Returns
        -------
        lags : list of numpy.ndarray of shape (3,)
            Lag vectors, in the order of positions (by length, where the module made the variogram).
        variogram : list of float
            Semivariances, in data units squared.
        npairs : list of int
            Pair counts.

        Raises
        ------
        ValueError
            If the id is out of range.
        """
    def lags(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Lag vectors.

        Returns
        -------
        list of numpy.ndarray of shape (3,)
            In metres or another length unit, in the order of positions.
        """
    def lags_by_dir(self) -> list[list[int]]:
        """
        Positions of the lags of each direction.

        Returns
        -------
        list of list of int
            One list for each direction, ascending; empty for a direction without lags.
        """
    def npairs(self) -> list[int]:
        """
        Pair counts.

        Returns
        -------
        list of int
            One for each lag.
        """
    def variogram(self) -> list[float]:
        """
        Semivariances.

        Returns
        -------
        list of float
            One for each lag, in data units squared.
        """
class GMMFitter:
    """

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
    """
    def __init__(self, n_components: int, max_iter: int = 100, tol: float = 0.0001, reg_covar: float = 1e-06, seed: int = 42) -> None:
        """
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
        """
    @typing.overload
    def fit(self, x: numpy.typing.ArrayLike) -> GMMParams:
        """
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
        """
    @typing.overload
    def fit(self, x: numpy.typing.ArrayLike, weights: numpy.typing.ArrayLike) -> GMMParams:
        """
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
        """
class GMMParams:
    """

    A mixture of K Gaussians in d features, such as `GMMFitter.fit` returns and `SCT` takes.

    Components are in rows of `means`. `GMMFitter.fit` takes samples in rows, `SCT` in columns.

    Examples
    --------
    >>> import gravelox
    >>> mixture = gravelox.GMMParams(2, [0.4, 0.6], [[0, 5], [3, 9]], [[[1, 0], [0, 1]]] * 2)
    >>> mixture.n_components, mixture.means.shape
    (2, (2, 2))
    """
    def __init__(self, n_components: int, weights: numpy.typing.ArrayLike, means: numpy.typing.ArrayLike, covariances: numpy.typing.ArrayLike) -> None:
        """
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
        """
    @property
    def covariances(self) -> list[numpy.ndarray[numpy.float64[m, n]]]:
        """
        Covariances, K of shape (d, d), features as in `means`, in data units squared; copies.
        """
    @property
    def means(self) -> numpy.ndarray[numpy.float64[m, n]]:
        """
        Means, shape (K, d): components in rows, features in columns, in data units; a copy.
        """
    @property
    def n_components(self) -> int:
        """
        The number of components K.
        """
    @property
    def weights(self) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
        Proportions of the components, shape (K,); a copy.
        """
class GaussianMixtureProjection:
    """

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
    """
    def __init__(self, source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, power_a: float, wp: float, K: int, kernel: Kernel) -> None:
        """
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
        """
    @typing.overload
    def project(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def project(self, X: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
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
        """
class IDWProjection:
    """

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
    """
    def __init__(self, source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, power_a: float, wp: float, K: int) -> None:
        """
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
        """
    @typing.overload
    def project(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def project(self, X: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
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
        """
class Isomorphism:
    """

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
    """
    def __getstate__(self) -> typing.Any:
        ...
    @typing.overload
    def __init__(self, parameters: tuple[list[float], list[float]], kernel: str = 'exponential') -> None:
        """
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
        """
    @typing.overload
    def __init__(self, forward_proj: Projection, backward_proj: Projection) -> None:
        """
        Make a pair of two maps, which may have different kernels.

        Parameters
        ----------
        forward_proj : Projection
            The map forward.
        backward_proj : Projection
            The map backward. Whether it undoes the first is not checked.
        """
    def __setstate__(self, arg0: typing.Any) -> None:
        ...
    @typing.overload
    def backward(self, u: float) -> float:
        """
        The image of a value.

        Parameters
        ----------
        u : float
            A value, in the unit of the centres.

        Returns
        -------
        float
            The image, in the unit of the weights; NaN where all kernels are 0.
        """
    @typing.overload
    def backward(self, u: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
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
        """
    @typing.overload
    def forward(self, u: float) -> float:
        """
        The image of a value.

        Parameters
        ----------
        u : float
            A value, in the unit of the centres.

        Returns
        -------
        float
            The image, in the unit of the weights; NaN where all kernels are 0.
        """
    @typing.overload
    def forward(self, u: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
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
        """
    def serialize(self) -> tuple[list[float], list[float]]:
        """
        Centre, scale and weight of one centre after another, of both maps, without words of kernels.

        Returns
        -------
        tuple of two lists of float
            What the constructor takes.
        """
class IsomorphismParameters:
    """

    Settings of a fit of an `Isomorphism`, relative to the ranges of the data.

    The fields cannot be read back.

    Examples
    --------
    >>> import gravelox
    >>> quick = gravelox.IsomorphismParameters(n_centers_forward=9, n_centers_backward=12)
    >>> steady = gravelox.IsomorphismParameters(kernel_forward="gaussian", cauchy_loss=0.5, n_threads=1)
    """
    def __init__(self, kernel_forward: str = 'exponential', n_centers_forward: int = 27, kernel_backward: str = 'exponential', n_centers_backward: int = 33, weight_tol: float = 10.0, center_tol: float = 10.0, min_beta: float = 1e-06, max_beta: float = 4.0, min_partition_size: float = 0.5, max_partition_size: float = 2.0, n_partitions: int = 20, cauchy_loss: float = 0.0, n_iterations: int = 50, n_threads: int = 0, seed: int = 123154, debug: bool = False) -> None:
        """
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
        """
class Kernel:
    """

    The normalised shape of a covariance structure, called with a distance in isotropic space.

    At a distance of 1, the range, a spherical kernel reaches 0, and the gaussian and the exponential
    kernel reach exp(-3): ranges are practical ranges.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.Kernel.spherical(0.5)
    0.3125
    """
    exponential: typing.ClassVar[Kernel]  # value = <gravelox.Kernel object>
    gaussian: typing.ClassVar[Kernel]  # value = <gravelox.Kernel object>
    spherical: typing.ClassVar[Kernel]  # value = <gravelox.Kernel object>
    def __call__(self, h: float) -> float:
        """
        The value of the shape.

        Parameters
        ----------
        h : float
            Distance divided by the range. A negative one is taken as it is.

        Returns
        -------
        float
            1 at distance 0 for the named shapes.
        """
class LocalCovariances:
    """

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
    """
    def __init__(self, centers: numpy.typing.ArrayLike, covariances: list[list[Covariance]], errors: numpy.typing.ArrayLike) -> None:
        """
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
        """
    @property
    def centers(self) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
        """
        Where the models hold: a list of numpy.ndarray of shape (3,), in length units.
        """
    @centers.setter
    def centers(self, arg0: numpy.typing.ArrayLike) -> None:
        ...
    @property
    def covariances(self) -> list[list[Covariance]]:
        """
        The models: a list of Covariance for each centre.
        """
    @covariances.setter
    def covariances(self, arg0: list[list[Covariance]]) -> None:
        ...
    @property
    def errors(self) -> list[float]:
        """
        The error of each model, which multiplies distances to its centre.
        """
    @errors.setter
    def errors(self, arg0: numpy.typing.ArrayLike) -> None:
        ...
class MDSProjection:
    """

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
    """
    def __init__(self, source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, control_points: numpy.typing.ArrayLike, power_a: float, kernel: Kernel) -> None:
        """
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
        """
    @typing.overload
    def project(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def project(self, X: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
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
        """
class NScore:
    """

    A map of one distribution onto another, such as samples onto the Gaussian: the normal score.

    A value goes through the distribution function of one and the quantile of the other, so order is
    kept. Equal samples share one score. Tails are those of the two distributions, see
    `data_distribution`.

    References
    ----------
    Journel, A. G. and Huijbregts, C. J. (1978). Mining Geostatistics. Academic Press.

    Examples
    --------
    >>> import gravelox
    >>> scores = gravelox.NScore(
    ...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
    >>> [round(score, 4) for score in scores.forward([2.0, 8.0])]
    [-0.6745, 0.6745]
    >>> round(scores.backward(0.6745), 3)
    8.0
    """
    def __init__(self, source: Distribution, target: Distribution) -> None:
        """
        Pair two distributions.

        Parameters
        ----------
        source : Distribution
            The distribution of the values, by `data_distribution` for a normal score.
        target : Distribution
            The distribution of the scores, `gaussian_distribution()` for a normal score.
        """
    @typing.overload
    def backward(self, y: float) -> float:
        """
        The value of a score.

        Scores above that of the greatest sample give values beyond it, along a straight line.

        Parameters
        ----------
        y : float
            The score.

        Returns
        -------
        float
            The value, in data units.

        Examples
        --------
        >>> import gravelox
        >>> scores = gravelox.NScore(
        ...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
        >>> round(scores.backward(scores.forward(3.0)), 6)
        3.0
        """
    @typing.overload
    def backward(self, y: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Values of many scores, in parallel.

        Scores above that of the greatest sample give values beyond it, along a straight line.

        Parameters
        ----------
        y : list of float
            Scores.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A value for each score, in data units.
        """
    @typing.overload
    def forward(self, x: float) -> float:
        """
        The score of a value.

        Scores of values up to the least sample are that of the probability 1e-16, -8.22 for the standard
        Gaussian, that of the least sample included. The score of the greatest sample is that of 1 less its
        weight; above it scores rise up to 8.21, that of 0.9999999999999999.

        Parameters
        ----------
        x : float
            The value, in data units.

        Returns
        -------
        float
            The score.

        Examples
        --------
        >>> import gravelox
        >>> scores = gravelox.NScore(
        ...     gravelox.data_distribution([1.0, 2.0, 4.0, 8.0]), gravelox.gaussian_distribution())
        >>> round(scores.forward(1.0), 2), round(scores.forward(-100.0), 2)
        (-8.22, -8.22)
        """
    @typing.overload
    def forward(self, x: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Scores of many values, in parallel.

        Scores of values up to the least sample are that of the probability 1e-16, -8.22 for the standard
        Gaussian, that of the least sample included. The score of the greatest sample is that of 1 less its
        weight; above it scores rise up to 8.21, that of 0.9999999999999999.

        Parameters
        ----------
        x : list of float
            Values, in data units.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A score for each value.
        """
class Neighborhood:
    """

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
    """
    @typing.overload
    def __init__(self, locations: numpy.typing.ArrayLike, ellipsoid: Ellipsoid) -> None:
        """
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
        """
    @typing.overload
    def __init__(self, locations: numpy.typing.ArrayLike) -> None:
        """
        A search in real coordinates.

        Parameters
        ----------
        locations : array_like of shape (n, 3)
            Locations in length units; they are copied.

        Raises
        ------
        ValueError
            If a coordinate is NaN or infinite.
        """
    @typing.overload
    def find_neighbors(self, center: numpy.typing.ArrayLike, max_size: int) -> list[int]:
        """
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
        """
    @typing.overload
    def find_neighbors(self, center: numpy.typing.ArrayLike, max_radius: float) -> list[int]:
        """
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
        """
    def nearest_neighbor(self, arg0: numpy.typing.ArrayLike) -> int:
        """
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
        """
class OKProjection:
    """

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
    """
    def __init__(self, source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, power_a: float, wp: float, K: int, kernel: Kernel) -> None:
        """
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
        """
    @typing.overload
    def project(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def project(self, X: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
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
        """
class OptimizedNDProjection:
    """

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
    """
    @staticmethod
    def optimize(source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, n_centers: int, din: int, dout: int, n_threads: int, n_iterations: int, debug: bool = False, seed: int = 12345) -> OptimizedNDProjection:
        """
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
        """
    def __init__(self, centers: numpy.typing.ArrayLike, scales: numpy.typing.ArrayLike, weights: numpy.typing.ArrayLike) -> None:
        """
        Make a map of its parts.

        Parameters
        ----------
        centers : array_like of shape (c, m)
            Centres in rows.
        scales : sequence of float
            Not used: the map of any scales, of any number of them, is the same.
        weights : array_like of shape (c, k)
            A weight vector for each centre; k is the dimension of the images.
        """
    @typing.overload
    def project(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def project(self, X: numpy.typing.ArrayLike, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
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
        """
    @property
    def centers(self) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
        Centres, a list of numpy.ndarray of shape (m,). Reading gives a copy: assign a whole list.
        """
    @centers.setter
    def centers(self, arg0: numpy.typing.ArrayLike) -> None:
        ...
    @property
    def scales(self) -> list[float]:
        """
        Scales, a list of float, a copy. Nothing reads them; a fit gives the first a value, and 0 to others.
        """
    @scales.setter
    def scales(self, arg0: numpy.typing.ArrayLike) -> None:
        ...
    @property
    def weights(self) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
        """
        A weight vector for each centre, a list of numpy.ndarray of shape (k,), a copy: assign a whole list.
        """
    @weights.setter
    def weights(self, arg0: numpy.typing.ArrayLike) -> None:
        ...
class PDF:
    """

    The density and the quantiles of a distribution.

    Of a data distribution the density is a mass and does not integrate to 1: half the weight between
    the neighbours of a value in the table.

    Examples
    --------
    >>> import gravelox
    >>> pdf = gravelox.PDF(gravelox.gaussian_distribution(10.0, 2.0))
    >>> round(pdf.value(10.0), 4), round(pdf.median(), 4), round(pdf.q90(), 4)
    (0.1995, 10.0, 12.5631)
    """
    def __init__(self, dist: Distribution) -> None:
        """
        View a distribution by its density.

        Parameters
        ----------
        dist : Distribution
            The distribution.
        """
    def max(self) -> float:
        """
        The quantile of 0.9999999999999999, which is finite without an upper bound too.

        Returns
        -------
        float
            In data units. That of a data distribution lies beyond its greatest value.
        """
    def median(self) -> float:
        """
        The quantile of 0.5.

        Returns
        -------
        float
            In data units.
        """
    def min(self) -> float:
        """
        The quantile of 1e-16, which is finite without a lower bound too.

        Returns
        -------
        float
            In data units; the least value of a data distribution.
        """
    def prob(self, p: float) -> float:
        """
        The quantile of a probability.

        Parameters
        ----------
        p : float
            The probability. Parametric distributions hold it within 1e-16 and 0.9999999999999999. A data
            distribution takes any number: beyond its table it goes on in straight lines.

        Returns
        -------
        float
            The value that is not exceeded with the probability, in data units.

        Raises
        ------
        ValueError
            If the probability is NaN, for parametric distributions.
        OverflowError
            If the value does not fit into a float, as for some gamma and Student distributions.
        """
    def probs(self, list: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Quantiles of many probabilities, in parallel.

        Parameters
        ----------
        list : list of float
            Probabilities. Parametric distributions hold them within 1e-16 and 0.9999999999999999. A data
            distribution takes any numbers: beyond its table it goes on in straight lines.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A quantile for each probability, in data units.
        """
    def q75(self) -> float:
        """
        The quantile of 0.75.

        Returns
        -------
        float
            In data units.
        """
    def q90(self) -> float:
        """
        The quantile of 0.9.

        Returns
        -------
        float
            In data units.
        """
    def value(self, x: float) -> float:
        """
        The density at a value.

        Parameters
        ----------
        x : float
            The value, in data units.

        Returns
        -------
        float
            The density, in units of 1 / data units; the mass at the value for a data distribution.

        Raises
        ------
        ValueError
            If the value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
            gamma distribution.
        """
    def values(self, list: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Densities at many values, in parallel.

        Parameters
        ----------
        list : list of float
            Values, in data units.
        n_threads : int
            Threads; 0 means all. The result does not depend on it.

        Returns
        -------
        list of float
            A density for each value, in units of 1 / data units; masses for a data distribution.

        Raises
        ------
        ValueError
            If a value is outside the support of a lognormal, F, chi-squared, Weibull, exponential or
            gamma distribution.
        """
class PPMT:
    """

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
    """
    def __init__(self, data: numpy.typing.ArrayLike, n_steps: int, prob_random_rotation: float = 0.37, n_threads: int = 0, seed: int = 123154) -> None:
        """
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
        """
    @typing.overload
    def backward(self, data: numpy.typing.ArrayLike, n_threads: int = 0) -> numpy.ndarray[numpy.float64[m, n]]:
        """
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
        """
    @typing.overload
    def backward(self, u: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
    @typing.overload
    def forward(self, data: numpy.typing.ArrayLike, n_threads: int = 0) -> numpy.ndarray[numpy.float64[m, n]]:
        """
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
        """
    @typing.overload
    def forward(self, u: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, 1]]:
        """
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
        """
class Projection:
    """

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
    """
    def __getstate__(self) -> typing.Any:
        ...
    def __init__(self, parameters: numpy.typing.ArrayLike, kernel: str = 'exponential') -> None:
        """
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
        """
    def __setstate__(self, arg0: typing.Any) -> None:
        ...
    @typing.overload
    def forward(self, u: float) -> float:
        """
        The image of a value.

        Parameters
        ----------
        u : float
            A value, in the unit of the centres.

        Returns
        -------
        float
            The image, in the unit of the weights; NaN where all kernels are 0.
        """
    @typing.overload
    def forward(self, u: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
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
        """
    def serialize(self) -> list[float]:
        """
        Centre, scale and weight of one centre after another, without the word of the kernel.

        Returns
        -------
        list of float
            What the constructor takes.
        """
class RNG:
    """

    A random engine, the 32-bit Mersenne Twister, that distributions draw from.

    References
    ----------
    Matsumoto, M. and Nishimura, T. (1998). Mersenne Twister: a 623-dimensionally equidistributed
    uniform pseudo-random number generator. ACM Transactions on Modeling and Computer Simulation 8,
    3-30.

    Examples
    --------
    >>> import gravelox
    >>> uniform = gravelox.uniform_distribution(0, 10)
    >>> rng = gravelox.RNG(7)
    >>> first, second = uniform(rng), uniform(rng)
    >>> first == second, first == uniform(gravelox.RNG(7))
    (False, True)
    """
    def __init__(self, seed: int) -> None:
        """
        Make an engine from a seed.

        Parameters
        ----------
        seed : int
            The seed; a negative one counts modulo 2^32.
        """
class SCT:
    """

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
    """
    def __init__(self, gmm_params: GMMParams) -> None:
        """
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
        """
    def backward(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, n]]:
        """
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
        """
    def forward(self, x: numpy.typing.ArrayLike) -> numpy.ndarray[numpy.float64[m, n]]:
        """
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
        """
class SimulatorFactory:
    """

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
    """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, nx: int, ny: int, nz: int, n_threads: int = 0) -> SimulatorFactory:
        """
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
        """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, n: int = 128, n_threads: int = 0) -> SimulatorFactory:
        """
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
        """
    @staticmethod
    def TBSIM(corners: numpy.typing.ArrayLike, n: int = 600) -> SimulatorFactory:
        """
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
        """
    def __call__(self, covs: list[Covariance], seed: int) -> SpatialFunction:
        """
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
        """
class SimulatorGenerator:
    """

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
    """
    @staticmethod
    def Ensemble(local_covs: LocalCovariances, sim_factory: SimulatorFactory, max_weight: float, power_a: float, seed: int) -> SpatialFunction:
        """
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
        """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, nx: int, ny: int, nz: int, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, nx: int, ny: int, nz: int, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, n: int = 128, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    @typing.overload
    def FIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, n: int = 128, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    def Pool(simulators: list[SpatialFunction]) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    @typing.overload
    def TBSIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, n: int = 600, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    @staticmethod
    @typing.overload
    def TBSIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, n: int = 600, n_threads: int = 0, n_base_simulation_points: int = 100) -> SimulatorGenerator:
        """
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
        """
    def __call__(self, seed: int) -> SpatialFunction:
        """
        A realisation, the same for the same seed.

        Parameters
        ----------
        seed : int
            Seed of the realisation.

        Returns
        -------
        SpatialFunction
            The field, in data units.
        """
class SpatialFunction:
    """

    A value for each location, such as a covariance model or one realisation of a field.

    Instances come from other functions of the module.

    Examples
    --------
    >>> import gravelox
    >>> f = gravelox.covariance_computer([gravelox.Covariance.nugget(2.0)])
    >>> f((0, 0, 0))
    2.0
    """
    @typing.overload
    def __call__(self, location: numpy.typing.ArrayLike) -> float:
        """
        The value at a location.

        Parameters
        ----------
        location : array_like of shape (3,)
            Coordinates (x, y, z) in length units; for a covariance model, the lag vector.

        Returns
        -------
        float
            The value, in data units.
        """
    @typing.overload
    def __call__(self, locations: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
        """
        Values at many locations, in parallel.

        Parameters
        ----------
        locations : array_like of shape (n, 3)
            Coordinates (x, y, z) in length units; for a covariance model, lag vectors.
        n_threads : int
            Threads; 0 means all. Values do not depend on it, white noise (a nugget) of a field excepted.

        Returns
        -------
        list of float
            One value for each location in order, in data units.

        Raises
        ------
        ValueError
            If a coordinate is not finite.

        Examples
        --------
        >>> import gravelox
        >>> f = gravelox.covariance_computer([gravelox.Covariance.nugget(2.0)])
        >>> f([(0, 0, 0), (1, 0, 0)])
        [2.0, 0.0]
        """
def Direction(azimuth: float, dip: float) -> numpy.ndarray[numpy.float64[3, 1]]:
    """
    The unit vector at an azimuth and a dip.

    Parameters
    ----------
    azimuth : float
        Degrees clockwise from north.
    dip : float
        Degrees, positive upward.

    Returns
    -------
    ndarray of shape (3,)
        (sin azimuth cos dip, cos azimuth cos dip, sin dip).

    Examples
    --------
    >>> import gravelox
    >>> gravelox.Direction(90, 0).round(6).tolist()
    [1.0, 0.0, 0.0]
    """
def EnsembleEstimation(local_covs: LocalCovariances, ellipsoid_search: Ellipsoid, max_neighbors: int, max_distance: float, max_cov_neis: int, max_neis_octant: int, power_a: float, max_weight: float, run_normalization: bool = True, use_sk: bool = False, sk_mean: float = 0.0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> Estimator:
    """
    Estimation by many local models: nearby ones each krige a target, and their estimates are blended.

    The estimate is the mean of the models' estimates with weights (distance error)^-`power_a`, where
    distance is that of the target to the centre of a model, in real coordinates, and error the error of
    that model. Estimates are those of `ensemble_estimation` with the same arguments.

    Parameters
    ----------
    local_covs : LocalCovariances
        The models, their centres and their errors.
    ellipsoid_search : Ellipsoid
        The metric in which the nearest centres are searched, in length units. Samples are searched in
        the neighbourhood that the estimator is called with.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_distance`.
    max_distance : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value.
    max_cov_neis : int
        Models are the ones of this many nearest centres; below 1 all of them.
    max_neis_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    power_a : float
        Exponent of the distance to a centre.
    max_weight : float
        Share of the estimate that goes to models whose distance times error is at most 1e-20, where
        there are others too.
    run_normalization : bool
        Whether to krige (data - mean) / deviation, with the population standard deviation of the data,
        and to scale the estimates back. Data that are all equal may then give NaN.
    use_sk : bool
        Whether to use simple kriging of the mean `sk_mean` in place of ordinary kriging.
    sk_mean : float
        The mean of simple kriging, in data units; with `run_normalization` in standard deviations from
        the mean of the data, so that 0 is that mean.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    Estimator
        To be called with targets, a neighbourhood and samples. A target without samples or models is
        NaN, and so is one whose weights add up to 1e-10 or less.

    Raises
    ------
    ValueError
        If the lists of `local_covs` differ in length, or a centre or the ellipsoid is not finite.

    Notes
    -----
    A model whose error is 0 or less, or not a number, counts as centred on every target. A single
    sample is no special case: it goes through the system of each model.

    Ordinary kriging's estimate is the weighted sum of the samples plus the Lagrange multiplier of the
    system, which has the unit of the covariance. With `run_normalization` the samples' standard
    deviation is 1, and so models with a total sill of 1 give estimates that are plainly wrong. Use
    `use_sk`, whose estimate has no multiplier, or scale the sills: the weights do not depend on their
    scale. A total of 1e-4 will do with `run_normalization`, otherwise of 1e-4 of the data's standard
    deviation.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

    Examples
    --------
    Long ranges to the east on the one side, to the north on the other:

    >>> import gravelox
    >>> locations = [(0, 0, 0), (20, 0, 0), (80, 0, 0), (100, 0, 0)]
    >>> covs = [[gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(90, 30, 30, azimuth, 0, 0))]
    ...         for azimuth in (90, 0)]
    >>> local = gravelox.LocalCovariances([(10, 0, 0), (90, 0, 0)], covs, [1.0, 1.0])
    >>> search = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
    >>> estimator = gravelox.EnsembleEstimation(local, search, 4, -1, 2, -1, 2.0, 0.9, use_sk=True)
    >>> hood = gravelox.Neighborhood(locations)
    >>> estimates = estimator([(50, 0, 0), (20, 0, 0)], hood, locations, [1, 3, 5, 7])
    >>> [round(estimate, 6) for estimate in estimates]
    [4.0, 3.0]
    """
@typing.overload
def FIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, nx: int, ny: int, nz: int, n_threads: int = 0) -> SpatialFunction:
    """
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
    """
@typing.overload
def FIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, nx: int, ny: int, nz: int, n_threads: int = 0) -> SpatialFunction:
    """
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
    """
@typing.overload
def FIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, n: int = 128, n_threads: int = 0) -> SpatialFunction:
    """
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
    """
@typing.overload
def FIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, n: int = 128, n_threads: int = 0) -> SpatialFunction:
    """
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
    """
@typing.overload
def IDW(power_a: float = 2.0, max_weight: float = 0.9, max_neighbors: int = -1, max_radius: float = -1.0, max_neighbors_octant: int = -1, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> Estimator:
    """
    Inverse distance estimation with weights 1 / distance^`power_a`.

    Distances are those in real coordinates. A single neighbour gives its value.

    Parameters
    ----------
    power_a : float
        Exponent of the distance.
    max_weight : float
        Share of the estimate that goes to samples on the target (nearer than 1e-30), where there are
        any; the others get the rest. With 0, samples on the target are left out.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    Estimator
        To be called with targets, a neighbourhood and samples.

    References
    ----------
    Shepard, D. (1968). A two-dimensional interpolation function for irregularly-spaced data.
    Proceedings of the 23rd ACM National Conference, 517-524.
    """
@typing.overload
def IDW(covs: list[Covariance], power_a: float = 2.0, max_weight: float = 0.9, max_neighbors: int = -1, max_radius: float = -1.0, max_neighbors_octant: int = -1, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> Estimator:
    """
    Inverse distance estimation whose distance is 1 minus the covariance.

    Weights are 1 / (1 - covariance)^`power_a`, so the model's anisotropy shapes them.

    Parameters
    ----------
    covs : list of Covariance
        The model, with a total sill of 1.
    power_a : float
        Exponent of the distance.
    max_weight : float
        Share of the estimate that goes to samples on the target, where there are any; the others get
        the rest. With 0, samples on the target are left out.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    Estimator
        To be called with targets, a neighbourhood and samples.
    """
def OrdinaryKriging(covs: list[Covariance], max_neighbors: int = -1, max_radius: float = -1.0, max_neighbors_octant: int = -1, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> Estimator:
    """
    Ordinary kriging: the mean is unknown.

    The estimate is the weighted sum of the samples plus the Lagrange multiplier of the system. The
    multiplier has the unit of the covariance and grows with the sills; with sills in data units
    squared the estimates are plainly wrong. The weights do not depend on the scale of the sills, so
    scale them: let them add up to about 1e-4 of the data's standard deviation, and divide the variances
    by the same factor to have them in data units squared.

    Parameters
    ----------
    covs : list of Covariance
        The covariance model.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    Estimator
        To be called with targets, a neighbourhood and samples.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.
    """
def Rotation(azimuth: float, dip: float, rake: float = 0.0) -> Ellipsoid:
    """
    The unit sphere, turned: an ellipsoid with all ranges 1.

    Parameters
    ----------
    azimuth, dip : float
        Direction of the first axis, in degrees.
    rake : float
        Turn of the other axes about the first, in degrees.

    Returns
    -------
    Ellipsoid
        Its matrix is the rotation.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.Rotation(90, 0).matrix().round(6).tolist()
    [[1.0, 0.0, 0.0], [0.0, 1.0, 0.0], [0.0, 0.0, 1.0]]
    """
def SimpleKriging(covs: list[Covariance], mean: float, max_neighbors: int = -1, max_radius: float = -1.0, max_neighbors_octant: int = -1, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> Estimator:
    """
    Simple kriging: the mean is known.

    Parameters
    ----------
    covs : list of Covariance
        The covariance model.
    mean : float
        The mean of the data, in data units.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    Estimator
        To be called with targets, a neighbourhood and samples.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.
    """
@typing.overload
def TBSIM(corners: numpy.typing.ArrayLike, cov: Covariance, seed: int, n: int = 600) -> SpatialFunction:
    """
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
    """
@typing.overload
def TBSIM(corners: numpy.typing.ArrayLike, covs: list[Covariance], seed: int, n: int = 600) -> SpatialFunction:
    """
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
    """
def cauchy_distribution(a: float, b: float) -> Distribution:
    """
    The Cauchy distribution.

    Parameters
    ----------
    a : float
        Location (the median), in data units.
    b : float
        Scale (half the interquartile range), in data units, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `b` is not above 0, or a parameter is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.PDF(gravelox.cauchy_distribution(1.0, 2.0)).q75(), 4)
    3.0
    """
def check_n_threads(n_threads: int = 0) -> int:
    """
    Resolve a requested number of threads as every function with `n_threads` does.

    Parameters
    ----------
    n_threads : int
        Threads asked for. 1 up to the hardware count stand as they are; 0, anything above that count
        and every negative number (-2 too) mean all of it.

    Returns
    -------
    int
        The number of threads that a parallel loop will use.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.check_n_threads(1)
    1
    >>> gravelox.check_n_threads(-2) == gravelox.check_n_threads(0)
    True
    """
def chi_squared_distribution(k: float) -> Distribution:
    """
    The chi-squared distribution.

    Parameters
    ----------
    k : float
        Degrees of freedom, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `k` is not above 0 or not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.chi_squared_distribution(3)).prob(0.95), 4)
    7.8147
    """
def compute_angular_distance(A: numpy.typing.ArrayLike, B: numpy.typing.ArrayLike, C: numpy.typing.ArrayLike) -> float:
    """
    The angle at a point between the lines to two others, in radians and without orientation.

    Parameters
    ----------
    A : array_like of shape (3,)
        Coordinates of the first point, in length units.
    B : array_like of shape (3,)
        Coordinates of the second point.
    C : array_like of shape (3,)
        Coordinates of the point where the angle is.

    Returns
    -------
    float
        The angle, 0 to pi / 2: lines in opposite directions make an angle of 0. It is pi / 2 where `A`
        or `B` is less than 1e-15 from `C`, and pi / 2 or NaN where squares of distances overflow.

    Raises
    ------
    ValueError
        If a coordinate is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.compute_angular_distance((1, 0, 0), (-1, 1, 0), (0, 0, 0)), 6)  # pi / 4
    0.785398
    """
def compute_angular_distance_between_clusters(anisotropy: Ellipsoid, locs: numpy.typing.ArrayLike, clusters: numpy.typing.ArrayLike, r_tol: float) -> dict[int, dict[int, float]]:
    """
    The least angle between each two clusters where they come close, in degrees.

    For labels a and b this is the least angle of `compute_angular_distance` between a point p of a and
    a point q of b within `r_tol` of each other, as a third point sees them: a point of b within `r_tol`
    of p, or the point of b whose position in b is that in a of a point of a within `r_tol` of p. The
    second rule reads positions in one cluster as positions in another. That is settled, and results
    rely on it; a position past the end of b is skipped.

    Parameters
    ----------
    anisotropy : Ellipsoid
        The map before distances are taken.
    locs : array_like of shape (n, 3)
        Locations in length units.
    clusters : array_like of int
        A label for each location, as of `find_clusters`; those below 0 are left out.
    r_tol : float
        Radius of neighbours in the space of `anisotropy`, as `Neighborhood` finds them.

    Returns
    -------
    dict of int to dict of int to float
        D[a][b] in degrees, labels in ascending order, a pair of a label with itself included. A pair
        that does not come close, or has no angle below 90 degrees, has no entry; a label without
        entries has no row. D[a][b] and D[b][a] may differ.

    Raises
    ------
    ValueError
        If `clusters` and `locs` differ in length, a coordinate or the matrix of `anisotropy` is not
        finite, `r_tol` is NaN, or the near pairs of two clusters do not fit in memory.

    Examples
    --------
    >>> import gravelox
    >>> locs = [(x, 0, 0) for x in range(10)] + [(10, y, 0) for y in range(2, 10)]
    >>> sphere = gravelox.Rotation(90, 0)
    >>> labels = [0] * 10 + [1] * 8
    >>> D = gravelox.compute_angular_distance_between_clusters(sphere, locs, labels, 3.5)
    >>> D[0][0], sorted(D[0])
    (0.0, [0, 1])
    """
def compute_covariance_error_idw(cov: list[Covariance], folds: list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]], max_distance: float, max_size: int, power_a: float, min_partition_size: int, max_partition_size: int, n_partitions: int, regularization_const: float, n_threads: int = 0, seed: int = 2131) -> float:
    """
    The rating of a covariance model: error of inverse distance estimation, times a penalty on ranges.

    Each group of samples is cross-validated with `kfold_cross_validation_using_idw` by itself, so
    errors are in units of the group's own standard deviation. The error is multiplied by
    1 + `regularization_const` P, where P is the sum of log(1 + r^2) over the ranges of all structures,
    a nugget's (of 1) included. The interpreter lock is released.

    Parameters
    ----------
    cov : list of Covariance
        The model, with a total sill of 1.
    folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
        Groups of samples, locations in length units and values in data units, as `create_folds` makes
        them.
    max_distance : float
        Samples count for each other where they are strictly nearer than this, in length units.
    max_size : int
        Most candidates of a sample, itself included; below 1 there is no limit but `max_distance`.
    power_a : float
        Exponent of the distance 1 - covariance.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive.
    n_partitions : int
        Partitions of each sample: how often it is estimated.
    regularization_const : float
        Weight of the penalty on ranges; 0 for none.
    n_threads : int
        Threads; 0 means all. The rating is a sum over threads of each one's mean absolute error: by n
        threads it is about n times as large. Compare ratings by one thread only.
    seed : int
        Seed of the partitions, the same for all groups.

    Returns
    -------
    float
        The error in standard deviations, with the penalty. Errors that are not finite are left out;
        where all are, the rating is a perfect 0.

    Raises
    ------
    ValueError
        If `folds` are empty, the locations and values of one differ in length, a coordinate is not
        finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.

    Notes
    -----
    The penalty is on numbers, not on lengths: it weighs more in feet than in metres.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def compute_ellipsoid_error_idw(ellipsoid: Ellipsoid, cov_kernel: Kernel, folds: list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]], max_distance: float, max_size: int, power_a: float, min_partition_size: int, max_partition_size: int, n_partitions: int, regularization_const: float, n_threads: int = 0, seed: int = 2131) -> float:
    """
    The rating of an ellipsoid: error of inverse distance estimation, times a penalty on ranges.

    It is `compute_covariance_error_idw` of one structure of sill 1. The interpreter lock is released.

    Parameters
    ----------
    ellipsoid : Ellipsoid
        The ellipsoid to rate, with ranges in length units.
    cov_kernel : Kernel
        The shape of the covariance.
    folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
        Groups of samples, locations in length units and values in data units, as `create_folds` makes
        them.
    max_distance : float
        Samples count for each other where they are strictly nearer than this, in length units.
    max_size : int
        Most candidates of a sample, itself included; below 1 there is no limit but `max_distance`.
    power_a : float
        Exponent of the distance 1 - covariance.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive.
    n_partitions : int
        Partitions of each sample: how often it is estimated.
    regularization_const : float
        Weight of the penalty on ranges; 0 for none.
    n_threads : int
        Threads; 0 means all. The rating grows with it: compare ratings by one thread only.
    seed : int
        Seed of the partitions.

    Returns
    -------
    float
        The error in standard deviations, with the penalty.

    Raises
    ------
    ValueError
        If `folds` are empty, the locations and values of one differ in length, a coordinate is not
        finite, a count is negative, or `max_partition_size` is `min_partition_size` less 1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def compute_exp_variogram(data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, n_centers: int = 60, angle_tol: float = 5.0, n_lags: int = 75, lag_tol: float = 0.001, bandwidth: float = 0.02, window_size: int = 2, n_directions: int = 300, tol: float = 0.01, n_threads: int = 0, seed: int = 12415) -> ExperimentalVariogram:
    """
    Experimental variogram of scattered samples, from pairs around chosen centres.

    Along each of 2 `n_directions` random directions lies a narrow search ellipsoid, three times as long
    as the samples' extent that way to each side. The neighbours of each centre in it form the pairs,
    and those whose lag is close to the direction count. Lags are random too: half-normal lengths in
    units of the extent.

    A pair counts once for each centre that sees it, so pair counts tell weights rather than distinct
    pairs. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data_values : sequence of float of length n
        Values of the samples, in data units.
    n_centers : int
        Number of centres: the sample of the highest value, and others drawn from the highest values.
        From n - 1 on every sample is a centre.
    angle_tol : float
        Greatest angle between a pair's lag and the direction, in degrees.
    n_lags : int
        Lags drawn for each direction; those without pairs are left out.
    lag_tol : float
        Least length of a lag, as a share of the samples' extent that way.
    bandwidth : float
        Half-width of the search ellipsoid, as a share of the samples' extent; not 0.
    window_size : int
        A pair goes to the first lag not shorter than its own and to this many on either side; with 0
        each pair counts for one lag.
    n_directions : int
        Half the number of directions.
    tol : float
        How far the random vector that turns a search ellipsoid about its direction has to be from
        parallel to it (1 less the cosine of their angle). From 1 on no vector is.
    n_threads : int
        Threads; 0 means all. The result does not depend on it.
    seed : int
        Accepted and not used: all draws start from one fixed seed.

    Returns
    -------
    ExperimentalVariogram
        The lags that have pairs, and all directions. Without samples there are no lags.

    Raises
    ------
    ValueError
        If lists differ in length, a number is not finite, a count is negative, `bandwidth` is 0, or no
        random vector meets `tol`.

    Examples
    --------
    Values that change along x only:

    >>> import gravelox
    >>> import numpy as np
    >>> locations = np.random.RandomState(1).uniform(0, 100, (400, 3))
    >>> values = np.sin(locations[:, 0] / 10)
    >>> variogram = gravelox.compute_exp_variogram(locations, values, bandwidth=0.1, angle_tol=20)
    >>> mean = lambda azimuth: np.mean(variogram.get_variogram(azimuth, 0)[1])
    >>> bool(mean(90) > 2 * mean(0))
    True
    """
def compute_geodesic_based_distance_matrix(locs: numpy.typing.ArrayLike, dense_nei: Neighborhood, eps: float, knn: int, dense_set: numpy.typing.ArrayLike, n_threads: int = 0) -> list[list[float]]:
    """
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
    """
def compute_geodesics(locs: numpy.typing.ArrayLike, start: int, end: int, dense_nei: Neighborhood, eps: float, knn: int, dense_set: numpy.typing.ArrayLike) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], float, list[float]]:
    """
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
    """
def compute_optimum_rotation(A: numpy.typing.ArrayLike, is_surface: bool = False, is_ppmt: bool = False) -> tuple[numpy.ndarray[numpy.float64[m, n]], numpy.ndarray[numpy.float64[m, n]], numpy.ndarray[numpy.float64[m, n]], numpy.ndarray[numpy.float64[m, n]]]:
    """
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
    """
def compute_ordinary_kriging(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, covs: list[Covariance], neighborhood: Neighborhood, max_neighbors: int, max_radius: float = -1.0, max_neighbors_octant: int = -1, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> tuple[list[float], list[float]]:
    """
    Estimates and variances of ordinary kriging, in parallel.

    The estimate is the weighted sum of the samples plus the Lagrange multiplier of the system. The
    multiplier has the unit of the covariance and grows with the sills; with sills in data units
    squared the estimates are plainly wrong. The weights do not depend on the scale of the sills, so
    scale them: let them add up to about 1e-4 of the data's standard deviation, and divide the variances
    by the same factor to have them in data units squared.

    Each target has a system of its own over its neighbours. The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to estimate.
    data_locs : array_like of shape (n, 3)
        Locations of the samples, those of the neighbourhood first.
    data : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The covariance model.
    neighborhood : Neighborhood
        A search over the samples' locations.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    n_threads : int
        Threads; 0 means all. Estimates do not depend on it.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    estimates : list of float
        One for each target, in data units. NaN without neighbours, and the sample's value with a
        single one.
    variances : list of float
        Kriging variances, in units of the sills; 0 with fewer than two neighbours, otherwise at least
        1e-10.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
        locations than `data_locs`.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(0, 0, 0), (10, 0, 0)]
    >>> scale = 1e-6  # of the sill, so that the multiplier does not show
    >>> covs = [gravelox.Covariance.spherical(scale, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
    >>> estimates, variances = gravelox.compute_ordinary_kriging(
    ...     [(5, 0, 0)], locations, [1.0, 3.0], covs, gravelox.Neighborhood(locations), 2)
    >>> round(estimates[0], 4), round(variances[0] / scale, 4)
    (2.0, 0.3906)
    """
def compute_simple_ensemble_estimation(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, local_covs: LocalCovariances, ellipsoid_search: Ellipsoid, n_neis: int, max_radius: float, max_neis_octant: int, n_cov_neis: int, lambda_e: float, alpha: float, lambda_r: float, beta: float, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> list[float]:
    """
    Estimation by many local models with weights that fall exponentially, in parallel.

    The estimate is the mean of the ordinary kriging estimates of the models around a target, each
    weighted by exp(-(distance `lambda_r`)^`alpha` - |error `lambda_e`|^`beta`), where distance is
    that of the target to the centre of a model, in real coordinates, and error the error of that model.
    The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to estimate.
    data_locs : array_like of shape (n, 3)
        Locations of the samples.
    data : sequence of float of length n
        Values of the samples, in data units.
    local_covs : LocalCovariances
        The models, their centres and their errors.
    ellipsoid_search : Ellipsoid
        The metric in which samples and centres are searched, in length units.
    n_neis : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the metric of `ellipsoid_search`, used only without `n_neis`. A negative
        radius counts by its absolute value.
    max_neis_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    n_cov_neis : int
        Models are the ones of this many nearest centres; with 0 every target is NaN.
    lambda_e : float
        Scale of the errors, in one over their unit.
    alpha : float
        Exponent of the distance.
    lambda_r : float
        Scale of the distance, in one over length units, at least 0.
    beta : float
        Exponent of the error.
    n_threads : int
        Threads; 0 means all. Estimates do not depend on it.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    list of float
        One estimate for each target, in data units. NaN without samples or models, and where all
        centres are so far away that every weight is 0; the sample's value with a single sample.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate or the ellipsoid is not finite, or `n_cov_neis` is
        negative.

    Notes
    -----
    The estimate of each model is that of `compute_ordinary_kriging`: the weighted sum of the samples
    plus the Lagrange multiplier of the system, which has the unit of the covariance. With sills in data
    units squared the estimates are plainly wrong. The weights do not depend on the scale of the sills,
    so scale them: let them add up to about 1e-4 of the data's standard deviation. `ensemble_estimation`
    can also use simple kriging, whose estimate has no multiplier.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(0, 0, 0), (20, 0, 0), (80, 0, 0), (100, 0, 0)]
    >>> scale = 1e-6  # of the sill, so that the multiplier does not show
    >>> covs = [[gravelox.Covariance.spherical(scale, gravelox.Ellipsoid(90, 30, 30, azimuth, 0, 0))]
    ...         for azimuth in (90, 0)]
    >>> local = gravelox.LocalCovariances([(10, 0, 0), (90, 0, 0)], covs, [1.0, 1.0])
    >>> search = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
    >>> estimates = gravelox.compute_simple_ensemble_estimation(
    ...     [(50, 0, 0), (20, 0, 0)], locations, [1, 3, 5, 7], local, search, 4, -1, -1, 2,
    ...     1.0, 1.0, 0.05, 1.0)
    >>> [round(estimate, 4) for estimate in estimates]
    [4.0, 3.0]
    """
def compute_simple_kriging(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, covs: list[Covariance], mean: float, neighborhood: Neighborhood, max_neighbors: int, max_radius: float = -1.0, max_neighbors_octant: int = -1, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> tuple[list[float], list[float]]:
    """
    Estimates and variances of simple kriging, in parallel.

    Each target has a system of its own over its neighbours. The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to estimate.
    data_locs : array_like of shape (n, 3)
        Locations of the samples, those of the neighbourhood first.
    data : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The covariance model.
    mean : float
        The mean of the data, in data units.
    neighborhood : Neighborhood
        A search over the samples' locations.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    n_threads : int
        Threads; 0 means all. Estimates do not depend on it.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    estimates : list of float
        One for each target, in data units. NaN without neighbours, and the sample's value with a
        single one.
    variances : list of float
        Kriging variances, in units of the sills; 0 with fewer than two neighbours, otherwise at least
        1e-10.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
        locations than `data_locs`.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(0, 0, 0), (10, 0, 0)]
    >>> covs = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
    >>> estimates, variances = gravelox.compute_simple_kriging(
    ...     [(5, 0, 0)], locations, [1.0, 3.0], covs, 2.0, gravelox.Neighborhood(locations), 2)
    >>> round(estimates[0], 6)
    2.0
    """
def compute_svd_decomposition(A: numpy.typing.ArrayLike, is_surface: bool = False) -> tuple[numpy.ndarray[numpy.float64[m, 1]], numpy.ndarray[numpy.float64[m, n]], numpy.ndarray[numpy.float64[m, n]], numpy.ndarray[numpy.float64[m, 1]]]:
    """
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
    """
@typing.overload
def compute_variogram(corners: numpy.typing.ArrayLike, locations: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, nx: int, ny: int, nz: int, n_directions: int, n_lags: int, bandwidth: float, n_threads: int = 0, seed: int = 12415, origin: numpy.typing.ArrayLike = (0, 0, 0), rotation: numpy.typing.ArrayLike = (90, 0, 0)) -> ExperimentalVariogram:
    """
    Experimental variogram of values that lie on a grid, from the variogram map of a working grid.

    Locations are laid over a working grid of `nx` x `ny` x `nz` cells, whose semivariances at all lags
    come from Fourier transforms, whatever the number of pairs. Cells without a value are missing. Lags
    are random: 2 `n_directions` random directions, always the same ones, with `n_lags` half-normal
    lengths on each, in units of the grid's extent. Each lag is the mean, weighted by pairs, of the map
    cells near it, up to half the grid away.

    Parameters
    ----------
    corners : array_like of shape (m, 3)
        Points whose box in the rotated frame is the extent of the working grid.
    locations : array_like of shape (n, 3)
        Where the values are, in metres or another length unit; those outside the grid are left out.
    data : sequence of float of length n
        Values in data units, NaN where missing. Of several in one cell the last one counts.
    nx, ny, nz : int
        Cells of the working grid, at least 1 each.
    n_directions : int
        Half the number of directions.
    n_lags : int
        Lags drawn for each direction; those without pairs are left out.
    bandwidth : float
        How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
        grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
        1 / `nx`.
    n_threads : int
        Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
        `set_fft_n_threads` says, which may change the last digits.
    seed : int
        Seed of the lengths.
    origin : array_like of shape (3,)
        Low corner of the working grid.
    rotation : array_like of shape (3,)
        Azimuth, dip and rake of the working grid, in degrees.

    Returns
    -------
    ExperimentalVariogram
        The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
        where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
        point along `directions()`.

    Raises
    ------
    ValueError
        If a size is below 1, a count negative, `corners` empty, a coordinate not finite, a value
        infinite, or `data` of another length than `locations`.

    References
    ----------
    Marcotte, D. (1996). Fast variogram computation with FFT. Computers & Geosciences 22, 1175-1186.
    """
@typing.overload
def compute_variogram(cartesian_grid: CartesianGrid, data: numpy.typing.ArrayLike, n_directions: int, n_lags: int, bandwidth: float, n_threads: int = 0, seed: int = 12415, nx: int = 200, ny: int = 200, nz: int = 200) -> ExperimentalVariogram:
    """
    Experimental variogram of the cells of a grid, from the variogram map of a working grid.

    The working grid spans the cells' locations, which are their low corners: it is shorter than the
    grid by a cell along each axis, and the last cells fall outside it. With as many working cells as
    the grid has along each axis all other cells stand apart; lags then come in steps a little shorter
    than a cell. To keep every cell in its place use the form with locations: a working grid that begins
    half a cell before the first location and ends half a cell behind the last, so that none stands on
    the border of two working cells, where rounding decides.

    Parameters
    ----------
    cartesian_grid : CartesianGrid
        The grid.
    data : sequence of float of length n
        A value for each cell in the order of ids, NaN where missing.
    n_directions : int
        Half the number of directions.
    n_lags : int
        Lags drawn for each direction; those without pairs are left out.
    bandwidth : float
        How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
        grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
        1 / `nx`.
    n_threads : int
        Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
        `set_fft_n_threads` says, which may change the last digits.
    seed : int
        Seed of the lengths.
    nx, ny, nz : int
        Cells of the working grid, at least 1 each.

    Returns
    -------
    ExperimentalVariogram
        The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
        where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
        point along `directions()`.

    Raises
    ------
    ValueError
        If a size is below 1, a count negative, a value infinite, or `data` not one for each cell.

    Examples
    --------
    A field of stripes along y, constant over 4 cells along x:

    >>> import gravelox
    >>> grid = gravelox.CartesianGrid((33, 33, 1), (33, 33, 1))
    >>> stripes = [float(grid.ijk(i)[0] // 4 % 2) for i in range(len(grid))]
    >>> variogram = gravelox.compute_variogram(grid, stripes, 100, 50, 0.03, nx=32, ny=32, nz=1)
    >>> along, across = (variogram.get_variogram(azimuth, 0)[1] for azimuth in (0, 90))
    >>> sum(across) / len(across) > 2 * sum(along) / len(along)
    True
    """
@typing.overload
def compute_variogram(block_model: BlockModel, data: numpy.typing.ArrayLike, n_directions: int, n_lags: int, bandwidth: float, n_threads: int = 0, seed: int = 12415, nx: int = 200, ny: int = 200, nz: int = 200) -> ExperimentalVariogram:
    """
    Experimental variogram of the active blocks of a model, from the variogram map of a working grid.

    It is that of the base grid with the other cells missing.

    Parameters
    ----------
    block_model : BlockModel
        The blocks.
    data : sequence of float of length n
        A value for each active block in the order of positions, NaN where missing.
    n_directions : int
        Half the number of directions.
    n_lags : int
        Lags drawn for each direction; those without pairs are left out.
    bandwidth : float
        How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
        grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
        1 / `nx`.
    n_threads : int
        Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
        `set_fft_n_threads` says, which may change the last digits.
    seed : int
        Seed of the lengths.
    nx, ny, nz : int
        Cells of the working grid, at least 1 each.

    Returns
    -------
    ExperimentalVariogram
        The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
        where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
        point along `directions()`.

    Raises
    ------
    ValueError
        If a size is below 1, a count negative, a value infinite, or `data` not one for each block.
    """
def covariance_computer(covs: list[Covariance]) -> SpatialFunction:
    """
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
    """
def create_folds(data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, max_distance: float, max_size: int, n_centers: int, seed: int = 21315) -> list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]]:
    """
    Cut groups of neighbours out of the samples, each around a centre of high value.

    The first centre is the sample of the highest value; the others are drawn from the upper half of the
    values, and one may be drawn again. Groups overlap, and not every sample need be in one. Both
    searches are as approximate as a `Neighborhood`. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data_values : sequence of float of length n
        Values of the samples, in data units.
    max_distance : float
        Greatest distance of a member to its centre, inclusive, in length units.
    max_size : int
        Candidates are this many nearest samples; below 1, or from the number of samples on, all within
        `max_distance`.
    n_centers : int
        Number of groups. Those without members are left out; where none is left, as for 0, all samples
        make one group.
    seed : int
        Seed of the centres.

    Returns
    -------
    list of tuple of (list of numpy.ndarray of shape (3,), list of float)
        Locations and values of each group, nearest to its centre first.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, or
        `n_centers` is negative.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(float(x), 0, 0) for x in range(10)]
    >>> folds = gravelox.create_folds(locations, range(10), 2.5, -1, 4)
    >>> len(folds)
    4
    >>> folds[0][1]
    [9.0, 8.0, 7.0]
    """
def create_folds_using_multiscale(n_partitions: int, min_partition_size: int, max_partition_size: int, max_distance: float, scales: numpy.typing.ArrayLike, search_ellipsoid: Ellipsoid, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, max_radius: float, max_size: int, max_neis_octant: int, seed: int = 1231255, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]]:
    """
    Cut groups of neighbours out of samples thinned at several scales.

    At each scale space is divided into cells, in the metric of an ellipsoid, and one random sample of
    each cell is kept; `create_folds` makes `n_partitions` groups of these.

    Parameters
    ----------
    n_partitions : int
        Groups at each scale: the `n_centers` of `create_folds`.
    min_partition_size : int
        Groups with fewer members are left out.
    max_partition_size : int
        Most members of a group; below 1 all within `max_distance`.
    max_distance : float
        Greatest distance of a member to its centre, inclusive, in length units.
    scales : sequence of float
        Sides of the cells in the space of `search_ellipsoid`, in multiples of its ranges.
    search_ellipsoid : Ellipsoid
        The metric of the cells.
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    max_radius : float
        Accepted and not used.
    max_size : int
        Accepted and not used.
    max_neis_octant : int
        Accepted and not used.
    seed : int
        Seed of the samples kept and of the centres.
    n_threads : int
        Accepted and not used.
    dhids : list of int
        Accepted and not used.
    max_neis_by_dhid : int
        Accepted and not used.

    Returns
    -------
    list of tuple of (list of numpy.ndarray of shape (3,), list of float)
        Locations and values of each group, scale by scale.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
        `n_partitions` is negative, or a scale is 0 or not finite.

    Notes
    -----
    Cells are counted from the origin of coordinates towards 0 on both sides: those along a coordinate
    plane are twice as wide.
    """
def create_minimum_spanning_tree(D: list[list[float]]) -> list[DistPair]:
    """
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
    """
def create_random_dense_set(pts: numpy.typing.ArrayLike, nei: Neighborhood, eps: float, max_pts: int, seed: int) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
    """
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
    """
@typing.overload
def create_random_drillholes(bottom: numpy.typing.ArrayLike, top: numpy.typing.ArrayLike, n_samples_by_dh: int, min_len: float, max_len: float, n_drillholes: int, seed: int = 121415) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[int]]:
    """
    Synthetic drill holes inside a box.

    A hole runs straight from a collar at the level of `top` towards a foot at the level of `bottom`,
    both uniform in plan. Hole ids start at 1.

    Parameters
    ----------
    bottom, top : array_like of shape (3,)
        Two opposite corners of the box, in length units.
    n_samples_by_dh : int
        Samples in a hole, at equal steps, the first at the collar.
    min_len, max_len : float
        Bounds of the share of the run from collar to foot that is sampled (1 is all of it).
    n_drillholes : int
        Number of holes; below 1 there are none.
    seed : int
        Seed of all draws.

    Returns
    -------
    locations : list of ndarray of shape (3,)
        Sample locations, hole by hole.
    dhids : list of int
        The hole id of each sample.

    Examples
    --------
    >>> import gravelox
    >>> locations, dhids = gravelox.create_random_drillholes(
    ...     bottom=(0, 0, -100), top=(500, 500, 0), n_samples_by_dh=10, min_len=0.5, max_len=1,
    ...     n_drillholes=3)
    >>> len(locations), sorted(set(dhids))
    (30, [1, 2, 3])
    """
@typing.overload
def create_random_drillholes(l1: float, l2: float, n_drillholes: int, min_azimuth: float, max_azimuth: float, min_dip: float, max_dip: float, min_length: float, max_length: float, min_dist_to_bottom: float, max_dist_to_bottom: float, min_n_samples_by_dh: int, max_n_samples_by_dh: int, deformation: Ellipsoid = ..., seed: int = 121415) -> tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[int]]:
    """
    Synthetic drill holes of a campaign over a rectangle. Hole ids start at 0.

    Parameters
    ----------
    l1, l2 : float
        Extents of the collars in x and y, from 0, in length units.
    n_drillholes : int
        Number of holes; below 1 there are none.
    min_azimuth, max_azimuth : float
        Bounds of the holes' azimuth, in degrees.
    min_dip, max_dip : float
        Bounds of the holes' dip, in degrees, positive upward.
    min_length, max_length : float
        Bounds of the holes' length, in length units.
    min_dist_to_bottom, max_dist_to_bottom : float
        Collars stand at a z from the first to the sum of both.
    min_n_samples_by_dh, max_n_samples_by_dh : int
        Bounds of the number of samples in a hole; the draw between them is truncated.
    deformation : Ellipsoid
        Its backward map is applied to the samples. The default turns the holes by 90 degrees about
        z; `Ellipsoid(1, 1, 1, 90, 0, 0)` leaves them where they are.
    seed : int
        Seed of all draws.

    Returns
    -------
    locations : list of ndarray of shape (3,)
        Sample locations, hole by hole.
    dhids : list of int
        The hole id of each sample.
    """
def create_random_orthogonal_matrix(N: int, seed: int) -> numpy.ndarray[numpy.float64[m, n]]:
    """
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
    """
def create_random_rotation(N: int, seed: int) -> numpy.ndarray[numpy.float64[m, n]]:
    """
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
    """
def create_sparse_dist_matrix(D: list[list[float]], K_neighbors: int, n_active: int, seed: int) -> list[DistPair]:
    """
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
    """
def data_distribution(data: numpy.typing.ArrayLike, weight: numpy.typing.ArrayLike = []) -> Distribution:
    """
    The distribution of samples, with or without weights.

    Samples within 1e-16 of each other count as one, with their weights summed. The table of the
    distribution is exclusive: the probability of a value is the share of the weight below it, 1e-16 for
    the least and 1 less its own share for the greatest value.

    Between the values, quantiles and probabilities are interpolated linearly. Beyond both ends they go
    on in straight lines and are not clamped: probabilities fall below 0 and rise above 1, and draws
    reach beyond the greatest value, as often as its weight tells. To have an upper tail end somewhere
    or a lower tail at all, put its end among the data with a small weight.

    Parameters
    ----------
    data : sequence of float of length n
        The samples, in data units, in any order; at least 2.
    weight : sequence of float of length n
        Their weights, by declustering for instance, which need not add up to 1; empty: all equal.

    Returns
    -------
    Distribution
        The distribution. Its density is a mass: half the weight between the neighbours of a value.

    Raises
    ------
    ValueError
        "Data must have at least 2 elements", or if a number is not finite, or weights are of another
        length, negative, or all 0.

    Examples
    --------
    >>> import gravelox
    >>> cdf = gravelox.CDF(gravelox.data_distribution([1.0, 2.0]))
    >>> round(cdf.value(2.0), 6), round(cdf.prob(0.75), 6)
    (0.5, 2.5)
    >>> weighted = gravelox.CDF(gravelox.data_distribution([1.0, 2.0], [3.0, 1.0]))
    >>> round(weighted.value(2.0), 6)
    0.75
    """
def dense_MDS(dim: int, N: int, D: list[list[float]], initial_guess: numpy.typing.ArrayLike = [], n_iterations: int = 100, debug: bool = False, n_threads: int = 0, seed: int = 213154, ntries: int = 10, eps: float = 1e-06, optimize_mean: bool = False, do_sphering: bool = False, sphering_weight: float = 1e-06) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
    """
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
    """
def ensemble_ellipsoid(w: numpy.typing.ArrayLike, ellipsoids: list[Ellipsoid]) -> Ellipsoid:
    """
    Blend ellipsoids into one, whose ranges come out reciprocal.

    The ranges and angles of the ellipsoids go into `ensemble_model` as they are. That inverts ranges,
    and so those of the result are one over the blended ranges, the longest axis of the blend being its
    shortest; the example turns it back. The interpreter lock is released.

    Parameters
    ----------
    w : sequence of float of length n
        Weights. One of 0 adds nothing; NaN comes out where those of the first two to be blended, or of
        all so far, add up to 0.
    ellipsoids : list of Ellipsoid
        The ellipsoids, n of them, in length units.

    Returns
    -------
    Ellipsoid
        The blend, with ranges in one over length units: divide each row of its matrix by its squared
        length to have it in length units.

    Raises
    ------
    ValueError
        If the lists are empty, differ in length, or hold a number that is not finite.

    Notes
    -----
    What is averaged are axes as long as their ranges, so ranges that differ by much are averaged
    plainly: 10 and 30 give 20. Each range is 1e-6 greater in the blend.

    Ellipsoids enter as `info` reads them. One whose axes are left-handed after sorting, which a rake
    other than 0 may bring about, reads as another ellipsoid, turned about its longest axis: see to it
    that Ellipsoid(ellipsoid.info()) is still the ellipsoid.

    Examples
    --------
    >>> import gravelox
    >>> ellipsoids = [gravelox.Ellipsoid(100, 50, 20, azimuth, 0, 0) for azimuth in (30, 50)]
    >>> reciprocal = gravelox.ensemble_ellipsoid([1, 1], ellipsoids)
    >>> axes = reciprocal.matrix()
    >>> blend = gravelox.Ellipsoid(axes / (axes**2).sum(axis=1, keepdims=True))
    >>> info = blend.info()
    >>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
    (98, 49, 20, 40.0)
    """
def ensemble_estimation(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, local_covs: LocalCovariances, search_ellipsoid: Ellipsoid, max_size: int, max_distance: float, max_cov_neis: int, max_neis_octant: int, power_a: float, max_weight: float, n_threads: int = 0, run_normalization: bool = True, data_nei: Neighborhood | None = None, use_sk: bool = False, sk_mean: float = 0.0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> list[float]:
    """
    Estimation by many local models: nearby ones each krige a target, and their estimates are blended.

    The estimate is the mean of the models' estimates with weights (distance error)^-`power_a`, where
    distance is that of the target to the centre of a model, in real coordinates, and error the error of
    that model. `EnsembleEstimation` is the same as an estimator. The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to estimate, in metres or another length unit.
    data_locs : array_like of shape (n, 3)
        Locations of the samples.
    data : sequence of float of length n
        Values of the samples, in data units.
    local_covs : LocalCovariances
        The models, their centres and their errors.
    search_ellipsoid : Ellipsoid
        The metric in which the nearest centres are searched, and the samples without `data_nei`, in
        length units.
    max_size : int
        Candidates are this many nearest samples; 0 and below switch to `max_distance`.
    max_distance : float
        Radius of the search for samples in its metric, used only without `max_size`. A negative radius
        counts by its absolute value.
    max_cov_neis : int
        Models are the ones of this many nearest centres; below 1 all of them.
    max_neis_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    power_a : float
        Exponent of the distance to a centre.
    max_weight : float
        Share of the estimate that goes to models whose distance times error is at most 1e-20, where
        there are others too.
    n_threads : int
        Threads; 0 means all. Estimates do not depend on it.
    run_normalization : bool
        Whether to krige (data - mean) / deviation, with the population standard deviation of the data,
        and to scale the estimates back. Data that are all equal may then give NaN.
    data_nei : Neighborhood or None
        A search over the samples' locations, `data_locs` beginning with those; None makes one with the
        search ellipsoid.
    use_sk : bool
        Whether to use simple kriging of the mean `sk_mean` in place of ordinary kriging.
    sk_mean : float
        The mean of simple kriging, in data units; with `run_normalization` in standard deviations from
        the mean of the data, so that 0 is that mean.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    list of float
        One estimate for each target, in data units. NaN without samples or models, and where weights
        add up to 1e-10 or less.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate or the ellipsoid is not finite, or `data_nei` holds more
        locations than `data_locs`.

    Notes
    -----
    A model whose error is 0 or less, or not a number, counts as centred on every target. A single
    sample is no special case: it goes through the system of each model.

    Ordinary kriging's estimate is the weighted sum of the samples plus the Lagrange multiplier of the
    system, which has the unit of the covariance. With `run_normalization` the samples' standard
    deviation is 1, and so models with a total sill of 1 give estimates that are plainly wrong. Use
    `use_sk`, whose estimate has no multiplier, or scale the sills: the weights do not depend on their
    scale. A total of 1e-4 will do with `run_normalization`, otherwise of 1e-4 of the data's standard
    deviation.

    References
    ----------
    Matheron, G. (1963). Principles of geostatistics. Economic Geology 58, 1246-1266.

    Examples
    --------
    Long ranges to the east on the one side, to the north on the other:

    >>> import gravelox
    >>> locations = [(0, 0, 0), (20, 0, 0), (80, 0, 0), (100, 0, 0)]
    >>> covs = [[gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(90, 30, 30, azimuth, 0, 0))]
    ...         for azimuth in (90, 0)]
    >>> local = gravelox.LocalCovariances([(10, 0, 0), (90, 0, 0)], covs, [1.0, 1.0])
    >>> search = gravelox.Ellipsoid(50, 50, 50, 90, 0, 0)
    >>> estimates = gravelox.ensemble_estimation(
    ...     [(50, 0, 0), (20, 0, 0)], locations, [1, 3, 5, 7], local, search, 4, -1, 2, -1, 2.0, 0.9,
    ...     use_sk=True)
    >>> [round(estimate, 6) for estimate in estimates]
    [4.0, 3.0]
    """
def ensemble_local_ellipsoids(target_locs: numpy.typing.ArrayLike, ellipsoid_locs: numpy.typing.ArrayLike, ellipsoids: list[Ellipsoid], ellipsoid_weights: numpy.typing.ArrayLike, n_neis: int = 20, max_radius: float = -1.0, max_neis_octant: int = -1, eps: float = 0.01, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> list[Ellipsoid]:
    """
    Blend the ellipsoids around each target into one, in parallel; ranges come out reciprocal.

    Each result is `ensemble_ellipsoid` of the nearby ellipsoids with the weights
    weight / (distance^3 + `eps`), so its ranges are one over the blended ranges; the example turns one
    back. The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to blend, in metres or another length unit.
    ellipsoid_locs : array_like of shape (n, 3)
        Where the ellipsoids hold.
    ellipsoids : list of Ellipsoid
        The ellipsoids, n of them, in length units.
    ellipsoid_weights : sequence of float of length n
        Weights before the distance counts, such as one over the error of each ellipsoid.
    n_neis : int
        Candidates are this many nearest ellipsoids; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in length units, used only without `n_neis`. A negative radius counts by
        its absolute value, so the default is a radius of 1.
    max_neis_octant : int
        Most ellipsoids in each octant around the target; 0 and below: no limit.
    eps : float
        Added to the cubed distance, above 0, in cubed length units: it bounds the weight of an
        ellipsoid at the target.
    n_threads : int
        Threads; 0 means all. Ellipsoids do not depend on it.
    dhids : list of int
        Drill-hole id of each ellipsoid, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most ellipsoids of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    list of Ellipsoid
        One for each target, with ranges in one over length units: divide each row of its matrix by its
        squared length to have it in length units. The unit sphere where there are no neighbours.

    Raises
    ------
    ValueError
        If lists differ in length or hold a number that is not finite, or `eps` is not finite.

    Notes
    -----
    Ellipsoids enter as `info` reads them. One whose axes are left-handed after sorting, which a rake
    other than 0 may bring about, reads as another ellipsoid, turned about its longest axis: see to it
    that Ellipsoid(ellipsoid.info()) is still the ellipsoid.

    Examples
    --------
    >>> import gravelox
    >>> ellipsoids = [gravelox.Ellipsoid(100, 50, 20, azimuth, 0, 0) for azimuth in (30, 50)]
    >>> centers = [(0, 0, 0), (200, 0, 0)]
    >>> results = gravelox.ensemble_local_ellipsoids([(100, 0, 0)], centers, ellipsoids, [1, 1])
    >>> axes = results[0].matrix()
    >>> info = gravelox.Ellipsoid(axes / (axes**2).sum(axis=1, keepdims=True)).info()
    >>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
    (98, 49, 20, 40.0)
    """
def ensemble_model(r1: numpy.typing.ArrayLike, r2: numpy.typing.ArrayLike, r3: numpy.typing.ArrayLike, azimuth: numpy.typing.ArrayLike, dip: numpy.typing.ArrayLike, rake: numpy.typing.ArrayLike, w: numpy.typing.ArrayLike) -> Ellipsoid:
    """
    Blend ellipsoids of given reciprocal ranges and angles into one.

    Axes of two ellipsoids share no order and no sign, so they are aligned before their matrices are
    averaged. The heaviest ellipsoid starts the mean; then, again and again, the one that is most like
    the mean so far joins it by weight, with its axes in the order and with the signs that differ least
    from the mean's. The interpreter lock is released.

    Parameters
    ----------
    r1, r2, r3 : sequence of float of length n
        Ranges, which are inverted on entry: ellipsoids with ranges 1 / (r + 1e-6) are blended. So give
        reciprocal ranges, in one over length units.
    azimuth, dip, rake : sequence of float of length n
        Angles in degrees.
    w : sequence of float of length n
        Weights. One of 0 adds nothing; NaN comes out where those of the first two to be blended, or of
        all so far, add up to 0.

    Returns
    -------
    Ellipsoid
        With reciprocal ranges given, the blend in length units. Its axes are sorted and made
        orthogonal.

    Raises
    ------
    ValueError
        If the lists are empty, differ in length, or hold a number that is not finite.

    Notes
    -----
    Costs the square of the number of ellipsoids.

    Examples
    --------
    Ranges of 100, 50 and 20 at two azimuths:

    >>> import gravelox
    >>> blend = gravelox.ensemble_model(
    ...     [1 / 100, 1 / 100], [1 / 50, 1 / 50], [1 / 20, 1 / 20], [30, 50], [0, 0], [0, 0], [1, 1])
    >>> info = blend.info()
    >>> round(info.r1()), round(info.r2()), round(info.r3()), round(info.azimuth(), 6)
    (102, 51, 20, 40.0)
    """
def ensemble_simulation(target_locs: numpy.typing.ArrayLike, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, local_covs: LocalCovariances, search_ellipsoid: Ellipsoid, simulator_factory: SimulatorFactory, max_size: int, max_distance: float, max_cov_neis: int, max_neis_octant: int, power_a: float, max_weight: float, seed: int, n_threads: int = 0, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> list[float]:
    """
    Blend one realisation of each local model into a field and make it honour samples, in parallel.

    The field is that of `unconditional_ensemble_simulation`. What the samples differ from it by is
    estimated by the same models, as by `ensemble_estimation` with simple kriging of mean 0 and no
    normalisation, and added. The interpreter lock is released.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to simulate, in metres or another length unit.
    data_locs : array_like of shape (n, 3)
        Locations of the samples.
    data : sequence of float of length n
        Values of the samples: normal scores, see `NScore`, or others of mean 0 whose variance the
        models' sills add up to.
    local_covs : LocalCovariances
        The models, their centres and their errors.
    search_ellipsoid : Ellipsoid
        The metric in which samples and centres are searched, in length units.
    simulator_factory : SimulatorFactory
        Makes the realisation of each model.
    max_size : int
        Candidates are this many nearest samples; 0 and below switch to `max_distance`.
    max_distance : float
        Radius of the search in the metric of `search_ellipsoid`, used only without `max_size`. A
        negative radius counts by its absolute value.
    max_cov_neis : int
        Models that estimate are the ones of this many nearest centres; below 1 all of them. The field
        has all of them at every location.
    max_neis_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    power_a : float
        Exponent of the distance to a centre.
    max_weight : float
        Share of the estimate, and of the squared weight in the field, that goes to models whose
        distance times error is at most 1e-20, where there are others too.
    seed : int
        Seed of the realisation.
    n_threads : int
        Threads; 0 means all. Values do not depend on it, white noise (a nugget) excepted.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    list of float
        One value for each target, in the units of the data; NaN without samples or models, and where
        the weights of the estimates add up to 1e-10 or less. At a sample's location the value of the
        sample, where models have no nugget.

    Raises
    ------
    ValueError
        If lists differ in length, or a coordinate or the ellipsoid is not finite.

    Notes
    -----
    White noise (a nugget) in a model is not a function of the location: each evaluation is a fresh
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
    >>> covs = [[gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(60, 40, 20, azimuth, 0, 0))]
    ...         for azimuth in (30, 120)]
    >>> local = gravelox.LocalCovariances([(20, 50, 10), (80, 50, 10)], covs, [1.0, 1.0])
    >>> search = gravelox.Ellipsoid(50, 50, 20, 90, 0, 0)
    >>> factory = gravelox.SimulatorFactory.TBSIM(corners)
    >>> locations, scores = [(20, 30, 0), (25, 35, 0)], [1.2, -0.4]
    >>> one, two = (
    ...     gravelox.ensemble_simulation(
    ...         [(20, 30, 0), (22, 33, 0)], locations, scores, local, search, factory, 2, -1, 2, -1,
    ...         2.0, 0.9, seed)
    ...     for seed in (1, 2))
    >>> round(one[0], 4), round(two[0], 4), one[1] == two[1]
    (1.2, 1.2, False)
    """
def exponential_distribution(__lambda: float) -> Distribution:
    """
    The exponential distribution.

    Python has a keyword of the name of its parameter: give it by position, or as
    `**{"lambda": 2.0}`.

    Parameters
    ----------
    lambda : float
        Rate (1 / mean), in units of 1 / data units, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `lambda` is not above 0 or not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.PDF(gravelox.exponential_distribution(2.0)).median(), 4)
    0.3466
    """
def extract_covariance_from_varmap(lags: numpy.typing.ArrayLike, variogram: numpy.typing.ArrayLike, weight: numpy.typing.ArrayLike, n_structures: int, cov_kernel: str, min_r1: float, min_r2: float, min_r3: float, max_r1: float, max_r2: float, max_r3: float, total_sill: float, n_iterations: int, b: float, cauchy_loss: float, regularization_const: float, threshold: float, seed: int, n_threads: int = 0, debug: bool = True) -> list[Covariance]:
    """
    Fit a nested covariance model with a nugget to the lags of an experimental variogram.

    Derivatives are automatic, the solver is that of Levenberg and Marquardt. A fit is local: it starts
    from axes along the grid. The interpreter lock is released.

    Parameters
    ----------
    lags : array_like of shape (n, 3)
        Lag vectors, in length units.
    variogram : sequence of float of length n
        Semivariances, in data units squared.
    weight : sequence of float of length n
        Weights, such as pair counts.
    n_structures : int
        Structures beside the nugget, at least 1.
    cov_kernel : str
        Their shape: "spherical", "gaussian" or "exponential".
    min_r1, min_r2, min_r3 : float
        Least ranges along x, y and z before the fit turns them, in length units, the same for all
        structures.
    max_r1, max_r2, max_r3 : float
        Greatest ranges, likewise. A fit starts from the middle; equal bounds hold a range.
    total_sill : float
        Sum of all sills, in data units squared; not 0.
    n_iterations : int
        Most iterations of the solver.
    b : float
        Lags are weighted by 1 / length^`b`, in units of a third of the vector of greatest ranges; 0 for
        none.
    cauchy_loss : float
        Scale of a Cauchy loss on misfits, which bounds the pull of outliers; below 1e-10 there is none.
    regularization_const : float
        Weight of a prior that prefers short ranges to long ones, shared by the structures; 0 for none.
    threshold : float
        Lags with semivariances above this multiple of `total_sill` are left out.
    seed : int
        Accepted and not used: a fit draws nothing.
    n_threads : int
        Threads; 0 means all. The result does not depend on it.
    debug : bool
        Whether to print iterations on the standard output and a report on the standard error of the
        process (not on `sys.stdout`).

    Returns
    -------
    list of Covariance
        `n_structures` structures and a nugget, whose sills add up to `total_sill`. Nothing tells of a
        fit that failed.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate or a bound is not finite, `n_structures` is below 1,
        `n_iterations` is negative, `cov_kernel` is unknown, or a least range is above its greatest.

    Notes
    -----
    Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
    back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
    round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
    There turn the lags until their structure lies along the coordinates, and set the variogram of the
    result beside them.

    All structures start from the same ranges; what tells them apart in a fit is little, so look at how
    much each differs from the others.

    References
    ----------
    Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
    of the Society for Industrial and Applied Mathematics 11, 431-441.

    Examples
    --------
    A variogram map of a known model:

    >>> import gravelox
    >>> import numpy as np
    >>> model = [gravelox.Covariance.spherical(3.0, gravelox.Ellipsoid(40, 20, 10, 90, 0, 0)),
    ...          gravelox.Covariance.nugget(1.0)]
    >>> lags = np.random.RandomState(1).normal(0, 12, (300, 3))
    >>> values = [*map(gravelox.variogram_computer(model, 4.0), lags)]
    >>> fitted = gravelox.extract_covariance_from_varmap(
    ...     lags, values, [1.0] * 300, 1, "spherical", 1, 1, 1, 80, 80, 80, 4.0, 200, 0.0, 0.0, 0.0,
    ...     1.2, 0, debug=False)
    >>> len(fitted), round(sum(structure.sill() for structure in fitted), 6)
    (2, 4.0)
    >>> bool(abs(fitted[0].ellipsoid().info().r1() - 40) < 4)
    True
    """
def extract_ellipsoid_info(T: numpy.typing.ArrayLike) -> EllipsoidInfo:
    """
    Ranges and angles of an anisotropy matrix.

    Parameters
    ----------
    T : array_like of shape (3, 3)
        A matrix whose rows are axes of length 1 / range, in any order.

    Returns
    -------
    EllipsoidInfo
        Ranges in descending order; azimuth in [0, 360), dip in [-90, 90], rake in [-180, 180]
        degrees. A vertical longest axis has rake 0.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.extract_ellipsoid_info([[0.5, 0, 0], [0, 0.1, 0], [0, 0, 1]]).r1()
    10.0
    """
def extreme_points(locations: numpy.typing.ArrayLike, n_rays: int = 600, seed: int = 121315, n_threads: int = 0) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
    """
    Outermost locations of a cloud, as a small stand-in for its hull.

    Along each of 2 `n_rays` random directions (`generate_random_sphere`) they are the location that
    lies farthest back, then the one farthest ahead; each location comes once.

    Parameters
    ----------
    locations : array_like of shape (n, 3)
        The cloud, in metres or another length unit.
    n_rays : int
        Half the number of directions; below 1 there are none.
    seed : int
        Seed of the directions.
    n_threads : int
        Threads; 0 means all. The result does not depend on it.

    Returns
    -------
    list of numpy.ndarray of shape (3,)
        The extreme locations, in the order in which the rays find them.

    Raises
    ------
    ValueError
        If a coordinate is not finite.

    Examples
    --------
    >>> import gravelox
    >>> triangle = [(0, 0, 0), (4, 0, 0), (0, 4, 0), (1, 1, 0)]
    >>> sorted(tuple(map(float, p)) for p in gravelox.extreme_points(triangle))
    [(0.0, 0.0, 0.0), (0.0, 4.0, 0.0), (4.0, 0.0, 0.0)]
    """
def extreme_value_distribution(a: float, b: float) -> Distribution:
    """
    The extreme value distribution of the greatest values (type I, Gumbel).

    Parameters
    ----------
    a : float
        Location (the mode), in data units.
    b : float
        Scale, in data units, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `b` is not above 0, or a parameter is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.extreme_value_distribution(1.0, 2.0)).value(1.0), 4)
    0.3679
    """
def find_clusters(locs: numpy.typing.ArrayLike, anisotropy: Ellipsoid, r_tol: float, angular_tol: float, support_threshold: float, min_support_size: int, n_threads: int = 0) -> list[int]:
    """
    Label points that lie on planes and lines, by the angles that triples of nearby points make.

    Neighbours are the points within `r_tol` in the space of `anisotropy`, the point itself included, as
    `Neighborhood` finds them; angles are taken on real coordinates. The angles of a point i with its
    neighbour j are those that `compute_angular_distance` gives at each neighbour of j and at each
    neighbour of i. An angle is narrow if it is strictly below `angular_tol`. The support of i with j is
    the share of narrow ones.

    A point opens a cluster if the share over all its neighbours is at least `support_threshold`. The
    cluster goes on from i to j if the share of the two is strictly above it, they have at least
    `min_support_size` narrow angles, and one at least is at a neighbour of i and one at a neighbour of
    j. So equality opens a cluster and does not carry it on. A point without any neighbour, itself
    included (an `r_tol` of 0), opens a cluster of its own.

    Parameters
    ----------
    locs : array_like of shape (n, 3)
        Locations in length units.
    anisotropy : Ellipsoid
        The map before distances are taken; `Rotation(90, 0)` for none.
    r_tol : float
        Radius of neighbours in that space; a location exactly at it is left out. Negative, it counts by
        its absolute value.
    angular_tol : float
        Tolerance in degrees, by its absolute value. All angles are narrow from above 90 on.
    support_threshold : float
        Share of narrow angles, 0 to 1. Above 1 nothing is labelled where points have neighbours.
    min_support_size : int
        Least number of narrow angles of two neighbours.
    n_threads : int
        Threads; 0 means all. The labels do not depend on it.

    Returns
    -------
    list of int
        Labels 0, 1, 2 ... in the order of the first point of each cluster; -1 for none.

    Raises
    ------
    ValueError
        If a coordinate or the matrix of `anisotropy` is not finite, `r_tol`, `angular_tol` or
        `support_threshold` is NaN, or the neighbours within `r_tol` do not fit in memory.

    Notes
    -----
    The time grows with the square of the number of neighbours: choose `r_tol` for a few dozen. Each
    neighbour of each location takes 8 bytes.

    Examples
    --------
    >>> import gravelox
    >>> import numpy as np
    >>> t = np.arange(30)
    >>> east = np.column_stack([t, 0 * t, 0 * t])
    >>> steep = np.column_stack([0 * t + 40, 0 * t, t])  # 40 m off
    >>> sphere = gravelox.Rotation(90, 0)
    >>> labels = gravelox.find_clusters(np.vstack([east, steep]), sphere, 5.0, 5.0, 0.5, 3)
    >>> labels == [0] * 30 + [1] * 30
    True
    """
def fisher_f_distribution(m: float, n: float) -> Distribution:
    """
    Fisher's F distribution.

    Parameters
    ----------
    m : float
        Degrees of freedom of the numerator, above 0 and at most 1e15.
    n : float
        Degrees of freedom of the denominator, above 0 and at most 1e15.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If a parameter is not above 0 or not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.fisher_f_distribution(5, 10)).prob(0.95), 4)
    3.3258
    """
def flood_fill_using_ball(locs: numpy.typing.ArrayLike, k_neis: int, surface_nei: Neighborhood, eps: float) -> list[int]:
    """
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
    """
def gamma_distribution(alpha: float, beta: float) -> Distribution:
    """
    The gamma distribution.

    Parameters
    ----------
    alpha : float
        Shape, above 0.
    beta : float
        Scale, in data units, above 0: the mean is alpha beta.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If a parameter is not above 0 or not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.gamma_distribution(2.0, 3.0)).value(6.0), 4)
    0.594
    """
def gaussian_distribution(mean: float = 0.0, std_dev: float = 1.0) -> Distribution:
    """
    The Gaussian distribution.

    Parameters
    ----------
    mean : float
        Mean, in data units.
    std_dev : float
        Standard deviation, in data units, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `std_dev` is not above 0, or a parameter is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.gaussian_distribution()).value(1.0), 4)
    0.8413
    """
def generate_covariances(ellipsoid: Ellipsoid, n_kernels: int, cov_kernel: Kernel, n_covs: int, seed: int, delta_angle: float, min_str_range: float, max_str_range: float, min_sill: float, max_sill: float) -> list[list[Covariance]]:
    """
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
    """
def generate_ellipsoids(min_range: float, max_range: float, n_rays: int, n_scales: int, seed: int, tol: float) -> list[Ellipsoid]:
    """
    Random ellipsoids of random ranges and rotations, as candidates of a search.

    Each frame of `generate_rotations` carries 2 `n_scales` ellipsoids, whose ranges have the
    proportions of a random direction and share a random factor.

    Parameters
    ----------
    min_range, max_range : float
        Bounds of the factor, in metres or another length unit: no range is above `max_range`.
    n_rays : int
        Half the number of directions of the frames.
    n_scales : int
        Half the number of ellipsoids for each frame; below 1 there are none.
    seed : int
        Seed of all draws.
    tol : float
        Greatest cosine of a pair of directions that makes a frame.

    Returns
    -------
    list of Ellipsoid
        The ellipsoids, shuffled.

    Examples
    --------
    >>> import gravelox
    >>> ellipsoids = gravelox.generate_ellipsoids(10.0, 50.0, 10, 4, 1, 0.05)
    >>> len(ellipsoids) == 8 * len(gravelox.generate_rotations(10, 1, 0.05))
    True
    >>> max(e.info().r1() for e in ellipsoids) < 50.1
    True
    """
def generate_random_semisphere(size: int, seed: int = 0) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
    """
    Unit vectors spread evenly over a randomly turned half sphere.

    Parameters
    ----------
    size : int
        Number of vectors; below 1 there are none.
    seed : int
        First index of the Halton sequence, and seed of the rotation.

    Returns
    -------
    list of ndarray of shape (3,)
        `size` unit vectors.

    References
    ----------
    Halton, J. H. (1960). On the efficiency of certain quasi-random sequences of points in evaluating
    multi-dimensional integrals. Numerische Mathematik 2, 84-90.

    Examples
    --------
    >>> import gravelox
    >>> len(gravelox.generate_random_semisphere(5, seed=1))
    5
    """
def generate_random_sphere(size: int, seed: int = 0) -> list[numpy.ndarray[numpy.float64[3, 1]]]:
    """
    Unit vectors spread evenly over the sphere.

    Parameters
    ----------
    size : int
        Half the number of vectors; below 1 there are none.
    seed : int
        First index of the Halton sequence, and seed of the rotation.

    Returns
    -------
    list of ndarray of shape (3,)
        2 `size` unit vectors. The second half is no mirror of the first: it has other indices.

    References
    ----------
    Halton, J. H. (1960). On the efficiency of certain quasi-random sequences of points in evaluating
    multi-dimensional integrals. Numerische Mathematik 2, 84-90.

    Examples
    --------
    >>> import gravelox
    >>> len(gravelox.generate_random_sphere(5, seed=1))
    10
    """
def generate_rotations(n_rays: int, seed: int, tol: float) -> list[numpy.ndarray[numpy.float64[3, 3]]]:
    """
    Random frames from pairs of random directions that are nearly at right angles.

    For each pair of 2 `n_rays` directions (`generate_random_sphere`) whose cosine is below `tol` in
    size there is a matrix: its rows are the first direction, what the second has at right angles to it,
    and their cross product. The second row is not scaled to length 1 again, so the matrix is a rotation
    only up to about `tol` squared.

    Parameters
    ----------
    n_rays : int
        Half the number of directions; below 1 there are none.
    seed : int
        Seed of the directions and of the shuffle.
    tol : float
        Greatest cosine of a pair; 0 gives an empty list.

    Returns
    -------
    list of numpy.ndarray of shape (3, 3)
        The frames, shuffled.

    Examples
    --------
    >>> import gravelox
    >>> frames = gravelox.generate_rotations(20, 1, 0.01)
    >>> max(float(abs(m @ m.T - [[1, 0, 0], [0, 1, 0], [0, 0, 1]]).max()) for m in frames) < 1e-3
    True
    """
def kfold_cross_validation_using_idw(data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, covs: list[Covariance], max_distance: float, max_size: int = -1, power_a: float = 3.0, min_partition_size: int = 10, max_partition_size: int = 40, n_partition_size: int = 15, n_threads: int = 0, seed: int = 123451) -> list[list[float]]:
    """
    Cross-validation errors of inverse distances in a covariance model, by random partitions.

    Data are standardised first by their mean and population standard deviation, so errors are in units
    of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
    random partition of the samples near it; it never takes part in its own estimate.

    Weights are 1 / (1 - covariance)^`power_a`. Samples whose covariance with the target is 1 or more
    are left out: with a total sill above 1 these are the nearest. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data_values : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The model, with a total sill of 1.
    max_distance : float
        Candidates of a sample are strictly nearer than this, in length units and whatever the model's
        anisotropy.
    max_size : int
        Candidates are this many nearest samples, the sample itself included; below 1 all within
        `max_distance`.
    power_a : float
        Exponent of the distance.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
        of them. Where the upper bound lies below the lower one, nearly all partitions are.
    n_partition_size : int
        Partitions of each sample: how many errors it gets, and not a size.
    n_threads : int
        Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
    seed : int
        Seed of the partitions.

    Returns
    -------
    list of list of float
        A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
        standard deviations. NaN throughout for a sample with fewer than three candidates; single ones
        are NaN where no sample of the partition has weight.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, a count is negative, or
        `max_partition_size` is `min_partition_size` less 1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.

    Examples
    --------
    >>> import gravelox
    >>> import numpy as np
    >>> locations = np.random.RandomState(1).uniform(0, 100, (200, 3))
    >>> values = np.sin(locations[:, 0] / 20)
    >>> sphere = gravelox.Ellipsoid(40, 40, 40, 90, 0, 0)
    >>> errors = gravelox.kfold_cross_validation_using_idw(
    ...     locations, values, [gravelox.Covariance.spherical(1.0, sphere)], 50.0, n_partition_size=4)
    >>> np.shape(errors)
    (200, 4)
    >>> bool(np.nanmean(np.abs(errors)) < 0.6)
    True
    """
def kfold_cross_validation_using_ok(data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, covs: list[Covariance], max_distance: float, max_size: int = -1, min_partition_size: int = 10, max_partition_size: int = 40, n_partition_size: int = 15, n_threads: int = 0, seed: int = 123451) -> list[list[float]]:
    """
    Cross-validation errors of ordinary kriging, by random partitions.

    Data are standardised first by their mean and population standard deviation, so errors are in units
    of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
    random partition of the samples near it; it never takes part in its own estimate.

    The Lagrange multiplier is part of the estimate, and so of the errors. It has the unit of the sills:
    let these add up to 1, the variance of the standardised data, and it is about -0.1 in partitions of
    ten samples under a model of short ranges, and less in larger ones and under long ranges. Sills in
    the data's own units squared make errors that tell of the sills only. The weights do not depend on
    the scale of the sills: for the errors of the weighted sum alone let them add up to 1e-4, whatever
    the unit of the data. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data_values : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The model, with sills for data of variance 1.
    max_distance : float
        Candidates of a sample are strictly nearer than this, in length units and whatever the model's
        anisotropy.
    max_size : int
        Candidates are this many nearest samples, the sample itself included; below 1 all within
        `max_distance`.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
        of them. Where the upper bound lies below the lower one, nearly all partitions are.
    n_partition_size : int
        Partitions of each sample: how many errors it gets, and not a size.
    n_threads : int
        Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
    seed : int
        Seed of the partitions.

    Returns
    -------
    list of list of float
        A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
        standard deviations. NaN throughout for a sample with fewer than three candidates.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, a count is negative, or
        `max_partition_size` is `min_partition_size` less 1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def kfold_cross_validation_using_sk(data_locs: numpy.typing.ArrayLike, data_values: numpy.typing.ArrayLike, covs: list[Covariance], max_distance: float, max_size: int = -1, min_partition_size: int = 10, max_partition_size: int = 40, n_partition_size: int = 15, n_threads: int = 0, seed: int = 123451) -> list[list[float]]:
    """
    Cross-validation errors of simple kriging, by random partitions.

    Data are standardised first by their mean and population standard deviation, so errors are in units
    of the standard deviation. Each sample is estimated `n_partition_size` times, each time from a
    random partition of the samples near it; it never takes part in its own estimate.

    The mean of the standardised data, 0, is the known mean. The scale of the sills does not matter, nor
    is there a threshold on weights: each partition of a sample with candidates has an error. The
    interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data_values : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The model.
    max_distance : float
        Candidates of a sample are strictly nearer than this, in length units and whatever the model's
        anisotropy.
    max_size : int
        Candidates are this many nearest samples, the sample itself included; below 1 all within
        `max_distance`.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive; a partition larger than the candidates is all
        of them. Where the upper bound lies below the lower one, nearly all partitions are.
    n_partition_size : int
        Partitions of each sample: how many errors it gets, and not a size.
    n_threads : int
        Threads; 0 means all. Each has an engine of its own, so errors repeat only for an equal number.
    seed : int
        Seed of the partitions.

    Returns
    -------
    list of list of float
        A row of `n_partition_size` errors for each sample: estimate minus value, with its sign, in
        standard deviations. NaN throughout for a sample with fewer than three candidates.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, a count is negative, or
        `max_partition_size` is `min_partition_size` less 1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def lognormal_distribution(m: float, s: float) -> Distribution:
    """
    The lognormal distribution.

    Parameters
    ----------
    m : float
        Mean of the logarithm.
    s : float
        Standard deviation of the logarithm, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `s` is not above 0, or a parameter is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.PDF(gravelox.lognormal_distribution(1.0, 0.5)).median(), 4)
    2.7183
    """
def mds_using_random_search(dim: int, initial_guess: list[numpy.ndarray[numpy.float32[m, 1]]], D: list[tuple[int, int, float]], max_distortions: numpy.typing.ArrayLike, n_iterations: int, n_tries_by_iteration: int, n_threads: int = 0, seed: int = 12314, debug: bool = False, max_size: int = 100, time_limit: float = 300.0, target_e: float = 1e-06) -> list[numpy.ndarray[numpy.float32[m, 1]]]:
    """
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
    """
def merge_clusters(D: dict[int, dict[int, float]], locs: numpy.typing.ArrayLike, clusters: numpy.typing.ArrayLike, ignored_ids: numpy.typing.ArrayLike, angular_tol: float, r_tol: float, ani: Ellipsoid) -> list[int]:
    """
    Merge clusters that come close to each other and whose angle is small.

    From each point in turn, whose label c has not been merged yet, a flood runs from point to point
    within `r_tol`. It takes points of a label y only if `D[c][y]` is there and strictly below
    `angular_tol`: points of c itself too only if `D[c][c]` is. Labels reached that way are merged into
    c. The result follows a merger by one step: a label whose target was merged later in turn keeps its
    first target.

    Parameters
    ----------
    D : dict of int to dict of int to float
        Angles in degrees, as of `compute_angular_distance_between_clusters`.
    locs : array_like of shape (n, 3)
        Locations in length units.
    clusters : array_like of int
        A label for each location, -1 for none.
    ignored_ids : array_like of int
        Labels that stay as they are and stop a flood.
    angular_tol : float
        Tolerance in degrees.
    r_tol : float
        Radius of neighbours in the space of `ani`, as `Neighborhood` finds them.
    ani : Ellipsoid
        The map before distances are taken.

    Returns
    -------
    list of int
        The new label of each location, one of those of `clusters`; -1 stays.

    Raises
    ------
    ValueError
        If `clusters` and `locs` differ in length, a coordinate or the matrix of `ani` is not finite, or
        `angular_tol` or `r_tol` is NaN.
    IndexError
        "invalid map<K, T> key" if a flood from a label that has no row in `D` meets a point whose label
        is neither -1 nor ignored.

    Notes
    -----
    The search is approximate: a gap is sure to be crossed only if `r_tol` is 3.4 times as wide.
    A cluster of a few points has no row in `D` if it has no angle below 90 degrees: ignore it.

    Examples
    --------
    >>> import gravelox
    >>> locs = [(x, 0, 0) for x in range(20) if x not in (9, 10)]  # a line with a gap of 3
    >>> labels = [0] * 9 + [1] * 9
    >>> sphere = gravelox.Rotation(90, 0)
    >>> D = gravelox.compute_angular_distance_between_clusters(sphere, locs, labels, 10.2)
    >>> gravelox.merge_clusters(D, locs, labels, [], 10.0, 10.2, sphere) == [0] * 18
    True
    """
def moving_window_estimation(target_locs: numpy.typing.ArrayLike, nei: Neighborhood, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, covs: list[Covariance], max_neighbors: int, max_radius: float = -1.0, max_neighbors_octant: int = -1, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1, n_threads: int = 0) -> list[float]:
    """
    A mean of the neighbours, weighted by a covariance model as a smoothing kernel.

    Parameters
    ----------
    target_locs : array_like of shape (m, 3)
        Where to estimate.
    nei : Neighborhood
        A search over the samples' locations.
    data_locs : array_like of shape (n, 3)
        Locations of the samples, those of the neighbourhood first.
    data : sequence of float of length n
        Values of the samples, in data units.
    covs : list of Covariance
        The weights: the covariance between target and sample, not inverted.
    max_neighbors : int
        Candidates are this many nearest samples; 0 and below switch to `max_radius`.
    max_radius : float
        Radius of the search in the neighbourhood's metric, used only without `max_neighbors`. A
        negative radius counts by its absolute value, so the default is a radius of 1.
    max_neighbors_octant : int
        Most samples in each octant around the target (real coordinates); 0 and below: no limit.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.
    n_threads : int
        Threads; 0 means all. Estimates do not depend on it.

    Returns
    -------
    list of float
        One mean for each target, in data units. NaN without neighbours and where the weights add up
        to 0, with a single neighbour as well.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, or the neighbourhood holds more
        locations than `data_locs`.

    Examples
    --------
    >>> import gravelox
    >>> locations = [(0, 0, 0), (10, 0, 0)]
    >>> covs = [gravelox.Covariance.gaussian(1.0, gravelox.Ellipsoid(20, 20, 20, 90, 0, 0))]
    >>> hood = gravelox.Neighborhood(locations)
    >>> gravelox.moving_window_estimation([(5, 0, 0)], hood, locations, [1, 3], covs, 2)
    [2.0]
    """
def multi_scale_cross_validation_error(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, cov: list[Covariance], range1: float, range2: float, range3: float, scales: numpy.typing.ArrayLike, max_size: int, max_radius: float, max_neis_octant: int, n_threads: int = 0, seed: int = 1231415, dhids: numpy.typing.ArrayLike = [], max_neis_by_dhid: int = -1) -> float:
    """
    Mean absolute error of simple kriging from neighbours thinned at several scales.

    Data are standardised first, and 0 is the known mean. A sample is estimated from its neighbours
    without itself; at each scale they are shuffled and the first in each cell is kept. The absolute
    errors are averaged over the scales of a sample, then over the samples.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    cov : list of Covariance
        The model.
    range1, range2, range3 : float
        Ranges along x, y and z of the ellipsoid that gives the metric of the search and of the cells,
        in length units.
    scales : sequence of float
        Sides of the cells in multiples of the ranges.
    max_size : int
        Candidates are this many nearest samples, the sample itself included; 0 and below switch to
        `max_radius`.
    max_radius : float
        Radius of the search in multiples of the ranges, used only without `max_size`. A negative radius
        counts by its absolute value.
    max_neis_octant : int
        Most samples in each octant around the sample (real coordinates); 0 and below: no limit.
    n_threads : int
        Threads; 0 means all. Each has an engine of its own, so the error repeats only for an equal
        number.
    seed : int
        Seed of the shuffles.
    dhids : list of int
        Drill-hole id of each sample, or an empty list: no limit by hole.
    max_neis_by_dhid : int
        Most samples of one hole, counted after the octant limit; 0 and below: no limit.

    Returns
    -------
    float
        The error in standard deviations. Samples with fewer than three neighbours have none; NaN if
        that is all of them.

    Raises
    ------
    ValueError
        If lists differ in length, a coordinate is not finite, there are no scales, or one is 0 or not
        finite.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def optimize_covariance(covs: list[list[Covariance]], error_function: CovarianceErrorFunction, n_iterations: int = 8000, n_iterations_without_upgrade: int = 8000, n_threads: int = 0, debug: bool = False) -> tuple[list[Covariance], float]:
    """
    Search a list of covariance models for the one of the least error, and improve it.

    A search has two phases. In the first each thread rates its share of the candidates and keeps the
    best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
    0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
    the candidates be too large rather than too small.

    Parameters
    ----------
    covs : list of list of Covariance
        The candidates, not empty. The first is rated with all threads, the others with one each.
    error_function : CovarianceErrorFunction
        The rating.
    n_iterations : int
        Most candidates that a thread rates in the first phase; of the second phase the tries of all
        threads together, plus one for each thread.
    n_iterations_without_upgrade : int
        A thread that has rated this many candidates without a better one leaves the first phase.
    n_threads : int
        Threads; 0 means all. The result repeats for an equal number only.
    debug : bool
        Whether to print each improvement, on the standard output and the standard error of the process
        (not on `sys.stdout`).

    Returns
    -------
    model : list of Covariance
        The best model; its sills and kernels are those of a candidate.
    error : float
        Its rating by one thread, or by all where none was better than the first candidate's by all.

    Raises
    ------
    ValueError
        If `covs` is empty or a number of iterations negative.

    Notes
    -----
    All of the second phase draws from one fixed seed. A nugget is left as it is. With 0 iterations no
    candidate but the first is rated.

    Examples
    --------
    The first phase takes the candidate of range 45, whose error is 15; the second shrinks it:

    >>> import gravelox
    >>> def off(model, n_threads):
    ...     return abs(model[0].ellipsoid().info().r1() - 30)
    >>> spheres = [gravelox.Ellipsoid(r, r, r, 90, 0, 0) for r in (10, 45, 80)]
    >>> models = [[gravelox.Covariance.spherical(1.0, sphere)] for sphere in spheres]
    >>> rating = gravelox.CovarianceErrorFunction.Custom(off)
    >>> model, error = gravelox.optimize_covariance(models, rating, 300, n_threads=1)
    >>> error < 5
    True
    """
def optimize_covariance_using_idw(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, ellipsoid: Ellipsoid, cov_kernel: Kernel, n_kernels: int, n_covs: int, delta_angle: float, min_str_range: float, max_str_range: float, min_sill: float, max_sill: float, min_range: float, max_range: float, power_a: float, max_distance: float, max_nei_size: int, min_partition_size: int, max_partition_size: int, n_partitions: int, regularization_const: float, n_centers: int, n_rays: int, n_scales: int, n_iterations: int, n_iterations_without_upgrade: int, tol: float, seed: int = 12315, n_threads: int = 0, debug: bool = True) -> tuple[list[Covariance], float]:
    """
    Search for the nested covariance model by which samples estimate each other best.

    Candidates are those of `generate_covariances`, rated by `compute_covariance_error_idw` on random
    groups of samples. The interpreter lock is released.

    A search has two phases. In the first each thread rates its share of the candidates and keeps the
    best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
    0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
    the candidates be too large rather than too small.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    ellipsoid : Ellipsoid
        The anisotropy to start from, in length units.
    cov_kernel : Kernel
        The shape of all structures but the nugget.
    n_kernels : int
        Structures in a model, beside the nugget.
    n_covs : int
        Number of candidates.
    delta_angle : float
        Greatest change of azimuth, dip and rake among the candidates, in degrees.
    min_str_range, max_str_range : float
        Bounds of the summed lengths of the structures' range vectors, as multiples of the largest range
        of `ellipsoid`.
    min_sill, max_sill : float
        Bounds of the sills before they are scaled to add up to 1.
    min_range, max_range : float
        Accepted and not used.
    power_a : float
        Exponent of the distance 1 - covariance.
    max_distance : float
        Reach of a group from its centre, and distance within which its samples count for each other, in
        length units.
    max_nei_size : int
        Most samples in a group; below 1 there is no limit. Within a group all samples are candidates.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive.
    n_partitions : int
        Partitions of each sample: how often it is estimated.
    regularization_const : float
        Weight of the penalty on ranges; 0 for none.
    n_centers : int
        Groups of samples that a candidate is rated on.
    n_rays : int
        Accepted and not used.
    n_scales : int
        Accepted and not used.
    n_iterations : int
        Most candidates that a thread rates in the first phase; of the second phase the tries of all
        threads together, plus one for each thread.
    n_iterations_without_upgrade : int
        A thread that has rated this many candidates without a better one leaves the first phase.
    tol : float
        Accepted and not used.
    seed : int
        Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
    n_threads : int
        Threads; 0 means all. The result repeats for an equal number only.
    debug : bool
        Whether to print each improvement, on the standard output and the standard error of the process
        (not on `sys.stdout`).

    Returns
    -------
    model : list of Covariance
        The best model: `n_kernels` structures and a nugget, with sills that add up to 1.
    error : float
        Its rating by one thread: mean absolute error in standard deviations, with the penalty.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
        count is negative, `n_covs` is below 1, or `max_partition_size` is `min_partition_size` less 1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def optimize_ellipsoid(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, cov_kernel: Kernel, min_range: float, max_range: float, parameters: EllipsoidOptimizationParameters = ...) -> tuple[Ellipsoid, float]:
    """
    Search for the ellipsoid of samples, with sizes as shares of their extent.

    It is `optimize_ellipsoid_using_idw` with lengths in units of the diagonal of the samples' box, and
    all samples within reach of each other. The interpreter lock is released.

    A search has two phases. In the first each thread rates its share of the candidates and keeps the
    best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
    0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
    the candidates be too large rather than too small.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    cov_kernel : Kernel
        The shape of the covariance, of sill 1.
    min_range, max_range : float
        Bounds of the candidates' sizes, as shares of the diagonal.
    parameters : EllipsoidOptimizationParameters
        Settings. What is left out here is not the record that a call without arguments makes: it has
        `n_rays` 600, `n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and
        `regularization_const` 0.001.

    Returns
    -------
    ellipsoid : Ellipsoid
        The best one, with ranges in length units.
    error : float
        Its rating by one thread: mean absolute error in standard deviations, with the penalty.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
        count of the settings is negative, or there is no candidate.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.

    Examples
    --------
    Values that change along y only; the best ellipsoid is longest along x and z:

    >>> import gravelox
    >>> import numpy as np
    >>> locations = np.random.RandomState(1).uniform(0, 100, (150, 3))
    >>> parameters = gravelox.EllipsoidOptimizationParameters(
    ...     n_rays=20, tol=0.05, n_iterations=60, n_threads=1)
    >>> ellipsoid, error = gravelox.optimize_ellipsoid(
    ...     locations, np.sin(locations[:, 1] / 15), gravelox.Kernel.spherical, 0.1, 0.8, parameters)
    >>> along = ellipsoid.minor_axis()
    >>> bool(abs(along[1]) > 0.7 * np.linalg.norm(along))
    True
    """
def optimize_ellipsoid_using_idw(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, cov_kernel: Kernel, min_range: float, max_range: float, power_a: float, max_distance: float, max_nei_size: int, min_partition_size: int, max_partition_size: int, n_partitions: int, regularization_const: float, n_centers: int, n_rays: int, n_scales: int, n_iterations: int, n_iterations_without_upgrade: int, tol: float, seed: int = 12315, n_threads: int = 0, debug: bool = True) -> tuple[Ellipsoid, float]:
    """
    Search for the ellipsoid by which samples estimate each other best, by inverse distance.

    Candidates are random ellipsoids, see `generate_ellipsoids`, rated by `compute_ellipsoid_error_idw`
    on random groups of samples. The interpreter lock is released.

    A search has two phases. In the first each thread rates its share of the candidates and keeps the
    best. In the second it turns that one by up to 15 degrees and multiplies its ranges by factors from
    0.1 to 1, again and again, keeping what rates better. So the second phase only shrinks ranges: let
    the candidates be too large rather than too small.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    cov_kernel : Kernel
        The shape of the covariance, of sill 1.
    min_range, max_range : float
        Bounds of the candidates' sizes, in length units; see `generate_ellipsoids`.
    power_a : float
        Exponent of the distance 1 - covariance.
    max_distance : float
        Reach of a group from its centre, and distance within which its samples count for each other, in
        length units.
    max_nei_size : int
        Most samples in a group; below 1 there is no limit. Within a group all samples are candidates.
    min_partition_size, max_partition_size : int
        Bounds of the size of a partition, both inclusive.
    n_partitions : int
        Partitions of each sample: how often it is estimated.
    regularization_const : float
        Weight of the penalty on ranges; 0 for none.
    n_centers : int
        Groups of samples that a candidate is rated on.
    n_rays : int
        Half the number of directions of the candidates' axes. The number of candidates grows with its
        square.
    n_scales : int
        Half the number of ellipsoids for each frame of axes.
    n_iterations : int
        Most candidates that a thread rates in the first phase; of the second phase the tries of all
        threads together, plus one for each thread.
    n_iterations_without_upgrade : int
        A thread that has rated this many candidates without a better one leaves the first phase.
    tol : float
        Greatest cosine of two directions that count as at right angles: a tolerance of the candidates'
        axes, and not of convergence. The number of candidates grows with it.
    seed : int
        Seed of candidates, groups and partitions. The tries of the second phase do not depend on it.
    n_threads : int
        Threads; 0 means all. The result repeats for an equal number only.
    debug : bool
        Whether to print each improvement, on the standard output and the standard error of the process
        (not on `sys.stdout`).

    Returns
    -------
    ellipsoid : Ellipsoid
        The best one, as the anisotropy of a covariance or of a search.
    error : float
        Its rating by one thread: mean absolute error in standard deviations, with the penalty.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN, a
        count is negative, there is no candidate, or `max_partition_size` is `min_partition_size` less
        1.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def optimize_ellipsoid_using_kfold(folds: list[tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]], cov_type: str, r1_max: float, r2_max: float, r3_max: float, regularization_const: float = 0.0, cauchy_loss: float = 0.0, min_partition_size: int = 15, max_partition_size: int = 25, n_partitions: int = 7, n_iterations: int = 1000, seed: int = 123145, n_threads: int = 0, debug: bool = False) -> Ellipsoid:
    """
    Fit an ellipsoid by which random parts of the samples estimate the rest, by a gradient search.

    Each group is cut `n_partitions` times into samples that estimate, by inverse distance to the power
    3 in the variogram's metric, and samples that are estimated. The sill, three ranges and three angles
    that make the squares of damped errors least are sought; the mean error of a partition counts as one
    more. Derivatives are automatic, the solver is that of Levenberg and Marquardt. A fit is local: it
    starts from axes along the grid. The interpreter lock is released.

    Parameters
    ----------
    folds : list of tuple of (array_like of shape (n, 3), sequence of float of length n)
        Groups of samples, locations in length units and values in data units, as `create_folds` makes
        them.
    cov_type : str
        The covariance: "spherical", "gaussian" or "exponential".
    r1_max, r2_max, r3_max : float
        Greatest ranges along x, y and z before the fit turns them, in length units. A fit starts from
        half of them and stays above a thousandth.
    regularization_const : float
        Weight of a prior that prefers short ranges to long ones; 0 for none.
    cauchy_loss : float
        Scale of a Cauchy loss on errors, which bounds the pull of outliers; below 1e-10 there is none.
    min_partition_size, max_partition_size : int
        Bounds of the number of samples that estimate, the upper one exclusive and not equal to the
        lower one. Where a group has fewer, all but two of it estimate.
    n_partitions : int
        Partitions of each group.
    n_iterations : int
        Most iterations of the solver.
    seed : int
        Seed of the partitions.
    n_threads : int
        Threads; 0 means all. The result does not depend on it.
    debug : bool
        Whether to print iterations on the standard output and a report on the standard error of the
        process (not on `sys.stdout`).

    Returns
    -------
    Ellipsoid
        The fit, or what it reached after `n_iterations`; nothing tells of a fit that failed. Where
        values are all equal, or a partition is just as large as its group and leaves nothing to
        estimate, it is the start: take a `min_partition_size` well below the sizes of the groups.

    Raises
    ------
    ValueError
        If `folds` are empty, the locations and values of one differ in length, a coordinate is not
        finite, a partition has no sample that estimates, `cov_type` is unknown, a greatest range is not
        above 0, a count is negative, or the two partition sizes are equal.

    Notes
    -----
    Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
    back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
    round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
    There take a search, or turn the samples until their structure lies along the coordinates, and rate
    the result with `compute_ellipsoid_error_idw`.

    References
    ----------
    Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
    of the Society for Industrial and Applied Mathematics 11, 431-441.
    """
@typing.overload
def optimize_isomorphism(source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, kernel_type_forward: str, n_centers_forward: int, min_beta_forward: float, max_beta_forward: float, kernel_type_backward: str, n_centers_backward: int, min_beta_backward: float, max_beta_backward: float, min_weight: float, max_weight: float, min_center: float, max_center: float, n_partitions: int, min_partition_size: int, max_partition_size: int, cauchy_loss: float, n_iterations: int, n_threads: int = 0, seed: int = 123145, debug: bool = False) -> Isomorphism:
    """
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
    """
@typing.overload
def optimize_isomorphism(source_data: numpy.typing.ArrayLike, target_data: numpy.typing.ArrayLike, iso_params: IsomorphismParameters = ...) -> Isomorphism:
    """
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
    """
def optimize_local_ellipsoids(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, cov_kernel: Kernel, min_range: float, max_range: float, n_centers: int, center_max_size: float, center_size: int, ellipsoid_opt_params: EllipsoidOptimizationParameters = ...) -> LocalCovariances:
    """
    Fit an ellipsoid to each of several groups of samples by a search of candidates.

    Groups are those of `create_folds` with a radius of `center_max_size` times the diagonal of the
    samples' box divided by `n_centers` (by the number itself, and not by its cube root). Each is
    searched as by `optimize_ellipsoid`, with the same seed. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    cov_kernel : Kernel
        The shape of the covariances, of sill 1.
    min_range, max_range : float
        Bounds of the candidates' sizes, as shares of the diagonal of a group's own box.
    n_centers : int
        Number of groups, at least 1.
    center_max_size : float
        Scales the radius of a group, see above.
    center_size : int
        Most samples in a group; below 1 there is no limit but the radius.
    ellipsoid_opt_params : EllipsoidOptimizationParameters
        Settings. What is left out here is not the record that a call without arguments makes: it has
        `n_rays` 600, `n_scales` 5, `n_iterations` 2000, `n_iterations_without_upgrade` 100 and
        `regularization_const` 0.001.

    Returns
    -------
    LocalCovariances
        For each group the mean of its locations, a model of one structure of sill 1, whose label reads
        "spherical" whatever the kernel, and the error as the search rated it. Two groups may share a
        centre.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
        `n_centers` is below 1, or a count of the settings is negative.

    References
    ----------
    Stone, M. (1974). Cross-validatory choice and assessment of statistical predictions. Journal of the
    Royal Statistical Society B 36, 111-147.
    """
def optimize_local_ellipsoids_using_lbfgs(data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, cov_type: str, n_centers: int, n_local_centers: int, center_max_size: float, center_size: int, local_center_size: int, max_local_range: float, ellipsoid_opt_params: EllipsoidLBFGSParameters) -> LocalCovariances:
    """
    Fit an ellipsoid to each of several groups of samples by a gradient search.

    Groups are those of `create_folds` with a radius of `center_max_size` times the diagonal of the
    samples' box divided by `n_centers` (by the number itself, and not by its cube root). Each is
    cut into groups in turn, of the same radius, which `optimize_ellipsoid_using_kfold` fits; its prior
    weighs `regularization_const` for each partition. The solver is a trust-region one, whatever the
    name. The interpreter lock is released.

    Parameters
    ----------
    data_locs : array_like of shape (n, 3)
        Locations of the samples, in metres or another length unit.
    data : sequence of float of length n
        Values of the samples, in data units.
    cov_type : str
        The covariance: "spherical", "gaussian" or "exponential".
    n_centers : int
        Number of groups, at least 1.
    n_local_centers : int
        Groups within a group; for 0 it stays whole.
    center_max_size : float
        Scales the radius of a group, see above.
    center_size : int
        Most samples in a group; below 1 there is no limit but the radius.
    local_center_size : int
        Most samples in a group of a group, and most candidates of a sample where results are rated.
    max_local_range : float
        Greatest range of an ellipsoid, in length units.
    ellipsoid_opt_params : EllipsoidLBFGSParameters
        Settings.

    Returns
    -------
    LocalCovariances
        For each group the mean of its locations, a model of one structure of sill 1, and an error: its
        rating by `compute_covariance_error_idw` on all groups, not its own alone. The errors, each with
        1e-4 added, are divided by their sum and add up to 1.

    Raises
    ------
    ValueError
        If there are no samples, lists differ in length, a coordinate is not finite, a value is NaN,
        `cov_type` is unknown, `n_centers` is below 1, a count is negative, `max_local_range` is not
        above 0, the two partition sizes are equal, or a group within a group holds too few samples for
        one to estimate another.

    Notes
    -----
    Angles of the fit are turns about the coordinate axes. An ellipsoid whose axes lie along these comes
    back as it was fitted. One that lies askew does not: turns and ranges are multiplied the other way
    round than in the fit, so that axes and ranges become others, and at 45 degrees hardly resemble it.
    There take a search, or turn the samples until their structure lies along the coordinates, and rate
    the result with `compute_ellipsoid_error_idw`.

    References
    ----------
    Marquardt, D. W. (1963). An algorithm for least-squares estimation of nonlinear parameters. Journal
    of the Society for Industrial and Applied Mathematics 11, 431-441.

    Examples
    --------
    >>> import gravelox
    >>> import numpy as np
    >>> locations = np.random.RandomState(1).uniform(0, 100, (300, 3))
    >>> values = np.sin(locations[:, 1] / 15)
    >>> parameters = gravelox.EllipsoidLBFGSParameters(n_partitions=2, n_iterations=20, n_threads=1)
    >>> local = gravelox.optimize_local_ellipsoids_using_lbfgs(
    ...     locations, values, "spherical", 3, 2, 1.0, 100, 60, 80.0, parameters)
    >>> len(local.centers), round(sum(local.errors), 6)
    (3, 1.0)
    """
def optimize_projection(source: numpy.typing.ArrayLike, target: numpy.typing.ArrayLike, kernel: str, n_centers: int, min_weight: float, max_weight: float, min_beta: float, max_beta: float, min_center: float, max_center: float, n_partitions: int, min_partition_size: int, max_partition_size: int, cauchy_loss: float, n_iterations: int, n_threads: int = 0, seed: int = 123145, debug: bool = False) -> Projection:
    """
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
    """
def optimize_rotation(locations: numpy.typing.ArrayLike, sample_size: int = 30000, n_iterations: int = 20000, n_threads: int = 0, seed: int = 12356, use_fixed_samples: bool = True, n_rays: int = 600) -> tuple[BoundingBox, Ellipsoid]:
    """
    Find the rotation that gives a cloud of points the tightest box, by random search.

    The cost of a rotation is the sum of log(length + 1) over the three sides of the box. Candidates
    are the identity and random rotations of azimuth 0 to 360, dip -90 to 0 and rake 0 to 180 degrees.
    Only the extreme points of the cloud count (`extreme_points`, with the same seed).

    Parameters
    ----------
    locations : array_like of shape (n, 3)
        The cloud, in metres or another length unit.
    sample_size : int
        How many of the extreme points the cost is taken on; all of them where they are not more.
    n_iterations : int
        Number of candidates, the identity included.
    n_threads : int
        Threads; 0 means all. Each has candidates of its own, so the result repeats for the same number
        of threads only.
    seed : int
        Seed of the search.
    use_fixed_samples : bool
        Whether every candidate is tried on the same points; otherwise each draws its own.
    n_rays : int
        The extreme points are those along this many random rays, and as many to the other side.

    Returns
    -------
    box : BoundingBox
        The box of all extreme points in the rotated frame.
    rotation : Ellipsoid
        The rotation, as an ellipsoid of ranges 1: `forward` turns a location into the frame.

    Raises
    ------
    ValueError
        If `locations` is empty or not finite, `n_rays` below 1, or another count negative.

    Examples
    --------
    A flat slab that dips by 30 degrees towards the east:

    >>> import gravelox
    >>> import numpy as np
    >>> slab = np.random.RandomState(1).uniform(-1, 1, (500, 3)) * [10, 10, 1]
    >>> tilt = gravelox.Rotation(90, -30, 0)
    >>> box, rotation = gravelox.optimize_rotation([tilt.backward(p) for p in slab], n_threads=1)
    >>> [round(float(side)) for side in sorted(box.length())]
    [2, 21, 21]
    """
def orthogonolize_axes(T: numpy.typing.ArrayLike, sort: bool = True) -> numpy.ndarray[numpy.float64[3, 3]]:
    """
    Make the rows of a matrix orthogonal, without scaling them to unit length (Gram-Schmidt).

    Parameters
    ----------
    T : array_like of shape (3, 3)
        Rows that are not zero.
    sort : bool
        Whether to turn the rows round so that they point towards +x, +y and +z, with rules for ties.

    Returns
    -------
    ndarray of shape (3, 3)
        The orthogonal rows.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.orthogonolize_axes([[1, 0, 0], [1, 1, 0], [0, 0, 2]]).tolist()
    [[1.0, 0.0, 0.0], [0.0, 1.0, 0.0], [0.0, 0.0, 2.0]]
    """
def set_fft_n_threads(n_threads: int = 0) -> None:
    """
    Set the number of threads of Fourier transforms planned from now on.

    Parameters
    ----------
    n_threads : int
        Threads, resolved by `check_n_threads`. After import it is the full hardware count.
    """
def simulate(simulator: SpatialFunction, estimator: Estimator, target_locs: numpy.typing.ArrayLike, neighborhood: Neighborhood, data_locs: numpy.typing.ArrayLike, data: numpy.typing.ArrayLike, n_threads: int = 0) -> list[float]:
    """
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
    """
def simulator(simulators: list[SpatialFunction]) -> SpatialFunction:
    """
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
    """
def smooth_variogram(vario: ExperimentalVariogram, n_lags: int, max_n_neis: int, max_r: float, bandwidth: float, power_a: float, max_weight: float, sampling_size: int, n_threads: int = 0, seed: int = 123151) -> ExperimentalVariogram:
    """
    Resample a noisy variogram at new lags along the same directions.

    Each new lag is a mean of old lags near it, weighted by pair count and by distance^-`power_a`. The
    new lengths are half-normal: |z| times the direction's greatest lag, plus 0.02 `max_r`. The
    interpreter lock is released.

    Parameters
    ----------
    vario : ExperimentalVariogram
        The variogram to smooth.
    n_lags : int
        New lags for each direction; below 1 as many as the direction has. Those left without pairs are
        dropped.
    max_n_neis : int
        Old lags that count: this many nearest; below 1 all within `max_r`.
    max_r : float
        Greatest distance of an old lag, in length units.
    bandwidth : float
        Greatest distance of an old lag from the line through the new one along its direction; may be
        infinite.
    power_a : float
        Exponent of the distance.
    max_weight : float
        Share of old lags that lie on the new one (nearer than 1e-30), where there are others too.
    sampling_size : int
        Words taken from the engine before the lengths are drawn: another number gives other lags.
    n_threads : int
        Threads; 0 means all. The result does not depend on it.
    seed : int
        Seed of the lengths.

    Returns
    -------
    ExperimentalVariogram
        The new lags with pair counts above 0 (means of the old counts, cut to whole numbers), and the
        directions of `vario`.

    Raises
    ------
    RuntimeError
        "No lags found" if all new lags stay empty, "No lags..." if there are none to fill.
    ValueError
        If `vario` has no lags to take words for, `sampling_size` is negative, or a number is not finite.

    Examples
    --------
    >>> import gravelox
    >>> lags = [(float(i), 0, 0) for i in range(1, 21)]
    >>> noisy = [i / 20 + 0.2 * (-1) ** i for i in range(1, 21)]
    >>> variogram = gravelox.ExperimentalVariogram(lags, noisy, [50] * 20, [0] * 20, [(1, 0, 0)])
    >>> smooth = gravelox.smooth_variogram(variogram, 30, 0, 4.0, 1.0, 0.5, 0.5, 10)
    >>> residuals = [value - lag[0] / 20 for lag, value in zip(smooth.lags(), smooth.variogram())]
    >>> bool(max(map(abs, residuals)) < 0.2)
    True
    """
def sort_matrix3d(T: numpy.typing.ArrayLike, orthogonalize: bool = True) -> numpy.ndarray[numpy.float64[3, 3]]:
    """
    Sort the rows of a matrix by ascending length, hence by descending range.

    Parameters
    ----------
    T : array_like of shape (3, 3)
        Rows of equal length keep their order. Equal means to the last bit: the rows of a rotated
        sphere may change places by rounding.
    orthogonalize : bool
        Whether to pass the result through `orthogonolize_axes`.

    Returns
    -------
    ndarray of shape (3, 3)
        The sorted rows.

    Examples
    --------
    >>> import gravelox
    >>> gravelox.sort_matrix3d([[2, 0, 0], [0, 1, 0], [0, 0, 3]])[0].tolist()
    [0.0, 1.0, 0.0]
    """
def sparse_MDS(dim: int, N: int, D: list[DistPair], initial_guess: numpy.typing.ArrayLike = [], n_iterations: int = 100, debug: bool = False, n_threads: int = 0, seed: int = 123124, ntries: int = 10, eps: float = 1e-06) -> list[numpy.ndarray[numpy.float64[m, 1]]]:
    """
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
    """
def student_t_distribution(n: float) -> Distribution:
    """
    Student's t distribution.

    Parameters
    ----------
    n : float
        Degrees of freedom, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `n` is not above 0.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.student_t_distribution(10)).prob(0.975), 4)
    2.2281
    """
def unconditional_ensemble_simulation(locs: numpy.typing.ArrayLike, local_covs: LocalCovariances, simulator_factory: SimulatorFactory, max_weight: float, power_a: float, seed: int, n_threads: int) -> list[float]:
    """
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
    """
def uniform_distribution(a: float, b: float) -> Distribution:
    """
    The uniform distribution.

    Parameters
    ----------
    a : float
        Lower end, in data units.
    b : float
        Upper end, in data units, above `a`.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If `a` is not below `b`, or a parameter is not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.PDF(gravelox.uniform_distribution(2.0, 4.0)).q90(), 4)
    3.8
    """
def variogram_computer(cov: list[Covariance], data_var: float) -> SpatialFunction:
    """
    Variogram of a covariance model, rescaled to the variance of the data.

    The value at a lag h is (1 - C(h) / C(0)) `data_var`, so the sills of the model tell proportions
    only.

    Parameters
    ----------
    cov : list of Covariance
        The covariance model.
    data_var : float
        Variance of the data, in data units squared: the sill of the variogram.

    Returns
    -------
    SpatialFunction
        To be called with lag vectors.

    Raises
    ------
    ValueError
        If the model is empty or its sills add up to 0.

    Examples
    --------
    >>> import gravelox
    >>> model = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(10, 10, 10, 90, 0, 0))]
    >>> variogram = gravelox.variogram_computer(model, 4.0)
    >>> variogram((0, 0, 0)), variogram((5, 0, 0)), variogram((20, 0, 0))
    (0.0, 2.75, 4.0)
    """
def weibull_distribution(a: float, b: float) -> Distribution:
    """
    The Weibull distribution.

    Parameters
    ----------
    a : float
        Shape, above 0.
    b : float
        Scale, in data units, above 0.

    Returns
    -------
    Distribution
        The distribution.

    Raises
    ------
    ValueError
        If a parameter is not above 0 or not finite.

    Examples
    --------
    >>> import gravelox
    >>> round(gravelox.CDF(gravelox.weibull_distribution(2.0, 3.0)).value(3.0), 4)
    0.6321
    """
