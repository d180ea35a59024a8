"""Checks which file under src/ includes what: folders may look down only, by a fixed table."""

import re
import sys
from collections.abc import Iterator
from pathlib import Path

SRC = Path(__file__).resolve().parent.parent / "src"

# Folder: the folders that it may include beside itself. A new entry is a decision, not a repair.
LAYERS = {
    "common": set[str](),
    "spatial": {"common"},
    "spectra": {"common"},
    "distributions": {"common"},
    "language": {"common", "spatial"},
    "variography": {"common", "spatial", "spectra"},
    "estimation": {"common", "spatial", "variography"},
    "simulation": {"common", "spatial", "spectra", "variography", "estimation"},
    "optimization": {"common", "spatial", "variography", "estimation"},
    "projection": {"common", "spatial", "variography", "optimization"},
    "multivariate": {"common", "distributions"},
    "detection": {"common", "spatial"},
}
LAYERS["module"] = set(LAYERS)

# Two sources that see different casters for one type break the one-definition rule, and no
# compiler tells; so one header brings the binding library in, and every source has it first.
CASTERS = "module/casters.hpp"

# Heavy libraries stay out of public headers, but for these includes: in any header, or in one.
LIBRARIES = ("Eigen/", "boost/", "ceres/", "fftw3", "glog/", "nanoflann")
PUBLIC = {"Eigen/Core": "", "ceres/jet.h": "common/number.hpp"}

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)


def is_public_header(name: str) -> bool:
    path = Path(name)
    return path.suffix == ".hpp" and len(path.parts) == 2 and not path.stem.endswith("_detail")


def complaints(name: str, includes: list[str]) -> Iterator[str]:
    """What is wrong with the includes of one file, named by its path under src/."""
    folder = name.split("/")[0]
    if folder not in LAYERS:
        yield f"folder {folder} is not in the table of layers"
        return
    if folder == "module" and name.endswith(".cpp") and includes[:1] != [CASTERS]:
        yield f"the first include has to be {CASTERS}"
    for include in includes:
        lower = include.split("/")[0]
        if lower in LAYERS and lower != folder and lower not in LAYERS[folder]:
            yield f"{folder} may not include {include}"
        if include.startswith("pybind11/") and name != CASTERS:
            yield f"{include} belongs in {CASTERS} alone"
        heavy = include.startswith(LIBRARIES) and PUBLIC.get(include) not in ("", name)
        if heavy and is_public_header(name) and folder != "module":
            yield f"a public header may not include {include}"


def main() -> int:
    count = 0
    for path in sorted(SRC.rglob("*.[ch]pp")):
        name = path.relative_to(SRC).as_posix()
        for complaint in complaints(name, INCLUDE.findall(path.read_text(encoding="utf-8"))):
            print(f"src/{name}: {complaint}")
            count += 1
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
