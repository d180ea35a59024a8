"""What the helpers of the examples say they do, a run over samples, and ends on bad files."""

import re
import subprocess
import sys
from pathlib import Path

import gravelox
import numpy as np
import pytest
from oracles.estimation import limited, structures

EXAMPLES = Path(__file__).parents[2] / "examples"


@pytest.mark.filterwarnings("ignore")  # what matplotlib warns of is not this project's to mend
def test_neighbors_are_counted_and_scaled_sills_change_no_weight(rng, monkeypatch):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.blocks import count_neighbors
    from support.samples import Samples
    from support.scaled_kriging import Limits, krige

    targets = rng.integers(0, 20, (30, 3)) * 1.0
    locations = rng.integers(0, 20, (90, 3)) + np.array([0, 0, 0.5])
    values, holes = rng.lognormal(3, 1, 90), rng.integers(0, 20, 90).astype(np.int32)
    samples = Samples(locations, values, holes, ("x", "y", "z"), "grade")
    search, limits = gravelox.Neighborhood(locations), Limits(24, 3, 2)
    used = [limited(search.find_neighbors(t, 24), locations, t, 3, holes, 2) for t in targets]
    counted = count_neighbors(targets, samples, search, limits)
    assert counted.tolist() == [*map(len, used)]

    covs = structures([("nugget", 9, (1, 1, 1), (0, 0, 0)), ("gaussian", 50, (9, 7, 5), (0, 0, 0))])
    rest, caps = (covs, search, 24, -1.0, 3), {"dhids": holes, "max_neis_by_dhid": 2}
    unscaled, zeros = (
        gravelox.compute_ordinary_kriging(targets, locations, data, *rest, **caps)
        for data in (values, np.zeros(90))
    )
    estimates, variances = krige(targets, samples, covs, search, limits)
    # The multipliers, which are the estimates of zeros, are as large as data; scaled they vanish.
    assert np.allclose(estimates, np.subtract(unscaled, zeros)[0], atol=1e-3 * np.std(values))
    assert np.allclose(variances, unscaled[1], rtol=1e-6)


@pytest.mark.filterwarnings("ignore")
@pytest.mark.parametrize("flat", [True, False])
def test_axes_and_ranges_of_a_known_structure_are_found(rng, monkeypatch, flat):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.directional import Lags, along, angles, principal_axes
    from support.nested import fit

    azimuth, dip, rake = true = (70, 0, 0) if flat else (70, -20, 15)
    ranges = (90.0, 40.0, 20.0)
    model = [gravelox.Covariance.spherical(0.8, gravelox.Ellipsoid(*ranges, *true))]
    model.append(gravelox.Covariance.nugget(0.2))
    variogram = gravelox.variogram_computer(model, 5.0)
    vectors = rng.normal(0, 30, (20000, 3)) * (1, 1, not flat)
    lags = Lags(vectors, np.array([variogram(v) for v in vectors]), rng.integers(1, 9, 20000))

    axes = principal_axes(lags, 20, flat)
    assert np.allclose(gravelox.Rotation(*angles(axes)).matrix(), axes)
    frame = gravelox.Rotation(azimuth, dip, rake).matrix()
    assert np.abs(np.sum(axes * frame, axis=1)).min() > np.cos(np.radians(6))
    curves = [along(lags, axis, 120, 4) for axis in frame[: 2 if flat else 3]]
    fitted = gravelox.variogram_computer(fit(curves, frame, 5.0).structures(5.0), 5.0)
    for curve in curves:
        at = np.linspace(2, 100, 50)[:, None] * curve.axis
        assert np.allclose([*map(fitted, at)], [*map(variogram, at)], atol=0.04 * 5)
        exact = [variogram(v) for v in curve.smooth.vectors]
        assert np.abs(curve.smooth.values - exact).mean() < 0.08 * 5


def test_variography_of_stripes(tmp_path, rng):
    places = rng.uniform(0, 1000, (400, 2))
    across = places @ (np.cos(np.radians(60)), -np.sin(np.radians(60)))  # alike along N60E
    rows = np.column_stack([places, 10 + 3 * np.sin(across / 120) + rng.normal(0, 0.3, 400)])
    np.savetxt(tmp_path / "s.csv", rows, delimiter=",", header="x,y,value", comments="")
    command = [sys.executable, EXAMPLES / "variography.py", tmp_path / "s.csv", "--log"]
    ended = subprocess.run(
        [*command, "--out", tmp_path], capture_output=True, text=True, timeout=120, check=True
    )
    azimuth = re.search(r"^first +azimuth (\d+), dip 0 ", ended.stdout, re.MULTILINE)
    assert azimuth
    assert abs(int(azimuth[1]) - 60) < 10
    for name in ("variogram.png", "variogram_map.png"):
        assert (tmp_path / name).read_bytes()[:4] == b"\x89PNG"


def test_bad_files_end_the_examples_with_one_line(tmp_path):
    path = tmp_path / "samples.csv"
    on_line = "x,y,value\n" + "".join(f"{i},0,{i % 3}\n" for i in range(20))
    for script, text, message in (
        ("block_model.py", None, "cannot be read"),
        ("block_model.py", "x,y,grade\n1,2,3\n", 'no column "value"'),
        ("block_model.py", "x,y,value\n1,2,much\n", '"much" is not a number'),
        ("variography.py", "x,y,value\n1,2,much\n", '"much" is not a number'),
        ("variography.py", on_line, "found them in line"),
    ):
        if text:
            path.write_text(text)
        command = [sys.executable, EXAMPLES / script, path, "--out", tmp_path]
        ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)
        assert (ended.returncode, ended.stderr.count("\n")) == (2, 1)
        assert message in ended.stderr
