"""What the helpers of the examples say they do, and how the block model ends on bad files."""

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


def test_bad_files_end_the_block_model_with_one_line(tmp_path):
    path = tmp_path / "samples.csv"
    command = [sys.executable, EXAMPLES / "block_model.py", path, "--out", tmp_path]
    for text, message in (
        (None, "cannot be read"),
        ("x,y,grade\n1,2,3\n", 'no column "value"'),
        ("x,y,value\n1,2,much\n", '"much" is not a number'),
    ):
        if text:
            path.write_text(text)
        ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)
        assert (ended.returncode, ended.stderr.count("\n")) == (2, 1)
        assert message in ended.stderr
