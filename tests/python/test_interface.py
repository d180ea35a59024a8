"""Names, arguments, defaults and docstrings of the whole module, and the examples in the docs."""

import doctest
import re
from pathlib import Path

import pytest
from module_walk import CLASSES, FUNCTIONS, OVERLOADS, members

ROOT = Path(__file__).parents[2]

LIMITS = "max_neighbors=-1, max_radius=-1, max_neighbors_octant=-1, dhids=[], max_neis_by_dhid=-1"
RUN_LIMITS = (
    "max_neighbors, max_radius=-1, max_neighbors_octant=-1, n_threads=0, dhids=[], "
    "max_neis_by_dhid=-1"
)
GRID = "origin=(0, 0, 0), rotation=(90, 0, 0)"
# A row for each class and for the functions between them; | stands between overloads.
SIGNATURES = f"""
set_fft_n_threads(n_threads=0); check_n_threads(n_threads=0)
SpatialFunction: __call__(location)
EllipsoidInfo: r1(); r2(); r3(); azimuth(); dip(); rake()
Ellipsoid: __init__(anisotropy_matrix | r1, r2, r3, azimuth, dip, rake | length, rotation | \
ellipsoid_info); info(); forward(location | locs, n_threads=0); \
backward(location | locs, n_threads=0); matrix(); inv_matrix(); \
surface(n_points=600, seed=12546); volume(n_points=600, n_lags=300, seed=12356); \
directions(n_directions=600, n_lags=300, seed=12356); major_axis(); mid_axis(); minor_axis(); \
__str__()
Rotation(azimuth, dip, rake=0); generate_random_semisphere(size, seed=0); \
generate_random_sphere(size, seed=0); extract_ellipsoid_info(T); \
sort_matrix3d(T, orthogonalize=True); orthogonolize_axes(T, sort=True); Direction(azimuth, dip)
Neighborhood: __init__(locations, ellipsoid | locations); \
find_neighbors(center, max_size | center, max_radius); nearest_neighbor(arg0)
DynamicNeighborhood: __init__( | ellipsoid | locations, ellipsoid | locations); \
find_neighbors(center, max_size | center, max_radius); nearest_neighbor(point); \
add_point(point); add_points(points); remove_point(id)
Kernel: __call__(h)
Covariance: spherical(sill, ellipsoid); gaussian(sill, ellipsoid); exponential(sill, ellipsoid); \
nugget(sill); type(); ellipsoid(); sill(); __call__(h)
covariance_computer(covs); generate_covariances(ellipsoid, n_kernels, cov_kernel, n_covs, seed, \
delta_angle, min_str_range, max_str_range, min_sill, max_sill)
CartesianGrid: __init__(length, number_of_cells, {GRID} | length, cell_size, {GRID} | \
number_of_cells, cell_size, {GRID}); cell_size(); locations(); __len__(); \
index(arg0, arg1, arg2); __call__(i, j, k | i); number_of_cells(); ijk(i); transformation(); \
corners(); bounding_box()
BlockModel: __init__(base_grid, mask); cell_size(); base_grid(); locations(); __len__(); \
full_size(); __call__(i, j, k | i); number_of_cells(); ijk(i); bounding_box()
BoundingBox: __init__(corners); corners(); lower(); upper(); length()
create_random_drillholes(bottom, top, n_samples_by_dh, min_len, max_len, n_drillholes, \
seed=121415 | l1, l2, n_drillholes, min_azimuth, max_azimuth, min_dip, max_dip, min_length, \
max_length, min_dist_to_bottom, max_dist_to_bottom, min_n_samples_by_dh, max_n_samples_by_dh, \
deformation=Ellipsoid(1, 1, 1, 0, 0, 0), seed=121415)
Estimator: __call__(target_locs, neighborhood, data_locs, data, n_threads=0)
IDW(power_a=2, max_weight=0.9, {LIMITS} | covs, power_a=2, max_weight=0.9, {LIMITS}); \
SimpleKriging(covs, mean, {LIMITS}); OrdinaryKriging(covs, {LIMITS}); \
compute_simple_kriging(target_locs, data_locs, data, covs, mean, neighborhood, {RUN_LIMITS}); \
compute_ordinary_kriging(target_locs, data_locs, data, covs, neighborhood, {RUN_LIMITS}); \
moving_window_estimation(target_locs, nei, data_locs, data, covs, max_neighbors, \
max_radius=-1, max_neighbors_octant=-1, dhids=[], max_neis_by_dhid=-1, n_threads=0)
"""


def written(argument, _, default):
    """An argument as the table writes it; whole numbers without a point."""
    return argument if default is None else re.sub(r"\.0$", "", f"{argument}={default}")


def test_signatures_and_order_of_registration():
    rows, in_class = [], True
    for name, _ in members():
        if name in CLASSES:
            rows.append([name + ":"])
        else:
            chain = (", ".join(written(*row) for row in o.arguments) for o in FUNCTIONS[name])
            if "." not in name and in_class:
                rows.append([])
            rows[-1].append(f"{name.split('.')[-1]}({' | '.join(chain)});")
        in_class = name in CLASSES or "." in name
    assert [" ".join(row).rstrip(";") for row in rows] == SIGNATURES.strip().splitlines()


def documented(text):
    """The names in the Parameters section, or None without a section."""
    section = re.search(
        r"^Parameters\n-{10}\n(.*?)(?=^\w+\n---|\Z)", text, re.DOTALL | re.MULTILINE
    )
    if not section:
        return None
    heads = re.findall(r"^(\w[\w, ]*) : \S.*\n    \S", section[1], re.MULTILINE)
    return [name for head in heads for name in head.split(", ")]


@pytest.mark.parametrize("overload", OVERLOADS, ids=lambda o: o.name)
def test_every_overload_is_documented(overload):
    first_line = overload.text.strip().partition("\n")[0]
    assert re.match(r"[A-Z].{8,98}[.:]$", first_line)
    names = [name for name, *_ in overload.arguments]
    assert documented(overload.text) == (names or None)


EXAMPLES = [(name, doc) for name, doc in members() if name in CLASSES or ">>>" in doc]


@pytest.mark.parametrize(("name", "doc"), EXAMPLES, ids=[name for name, _ in EXAMPLES])
def test_examples_in_docstrings(name, doc):
    example = doctest.DocTestParser().get_doctest(doc, {}, name, None, None)
    assert len(example.examples) > 1
    failures = []
    doctest.DocTestRunner().run(example, out=failures.append)
    assert not failures, "".join(failures)


def blocks(path):
    """(line, code) of the page's python blocks."""
    text = path.read_text()
    for match in re.finditer(r"^```python\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
        yield text.count("\n", 0, match.start()) + 1, match[1]


PAGES = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
BLOCKS = [(path, *block) for path in PAGES for block in blocks(path)]


def test_pages_have_blocks():
    assert {path.name for path, *_ in BLOCKS} >= {"README.md", "conventions.md", "estimation.md"}


@pytest.mark.parametrize(("path", "line", "code"), BLOCKS, ids=lambda v: getattr(v, "stem", ""))
def test_blocks_of_the_pages_run(path, line, code, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    exec(compile("\n" * line + code, str(path), "exec"), {"__name__": "__main__"})
