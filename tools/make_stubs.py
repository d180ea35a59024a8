"""Makes stubs/gravelox-stubs from the installed module; with --check, compares instead.

The files are the same whichever Python from 3.9 on makes them.
"""

import argparse
import difflib
import re
import subprocess
import sys
import tempfile
from pathlib import Path

STUBS = Path(__file__).resolve().parent.parent / "stubs" / "gravelox-stubs"

# The generator fails on a C++ type left in a signature, which is a class bound too late. Sizes
# like [m, n] are not names to look up, and an object as a default value has no source form.
STUBGEN = [
    "pybind11_stubgen",
    "gravelox",
    "--root-suffix=-stubs",
    "--exit-code",
    "--ignore-unresolved-names=^[mn]$",
    r"--ignore-invalid-expressions=^<.* object at 0x[0-9a-f]+>$",
]

# What a parameter takes as any array or sequence; inside a callable's own signature it stays.
ARRAY = r"numpy\.ndarray\[numpy\.float64\[[^]]*\]\]"
ARRAY_LIKE = re.compile(rf"(?<=: )(?:{ARRAY}|list\[(?:{ARRAY}|float|int|bool)\])(?=,|\)| =| \|)")

# Numbers, vectors and matrices of the language, for which floats and lists do.
JET = re.compile(r"(?<=: )((?:gravelox\.algebra\.)?Jet)(?=,|\)| =)")
JETS = re.compile(
    r"(?<=: )(?:list\[)?((?:gravelox\.algebra\.)?(?:Real|Jet)(?:Vector|Matrix))\]?(?=,|\)| =)"
)


def widen_parameters(line: str) -> str:
    """Lets arrays, lists and tuples pass for points, vectors, matrices and lists of numbers."""
    parameters, arrow, result = line.rpartition(" -> ")
    if not line.lstrip().startswith("def ") or not arrow:
        return line
    parameters = ARRAY_LIKE.sub("numpy.typing.ArrayLike", parameters)
    parameters = JET.sub(r"\1 | float", parameters)
    parameters = JETS.sub(r"\1 | typing.Sequence[typing.Any] | numpy.ndarray", parameters)
    return parameters + arrow + result


def finish(text: str) -> str:
    text = "\n".join(widen_parameters(line).rstrip() for line in text.splitlines()) + "\n"
    # A keyword of the language, which the module takes by position alone; so do stubs with this.
    text = text.replace("(lambda: ", "(__lambda: ")
    if "numpy.typing." in text:
        first = (
            "import numpy" if "\nimport numpy\n" in text else "from __future__ import annotations"
        )
        text = text.replace(f"{first}\n", f"{first}\nimport numpy.typing\n", 1)
    return text


def make_stubs() -> dict[str, str]:
    """Texts of the stub files by their path under STUBS."""
    with tempfile.TemporaryDirectory() as folder:
        command = [sys.executable, "-m", *STUBGEN, f"--output-dir={folder}"]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
        if run.returncode != 0:
            sys.exit(f"{run.stdout}{run.stderr}the stubs were not made")
        made = Path(folder) / STUBS.name
        return {
            path.relative_to(made).as_posix(): finish(path.read_text(encoding="utf-8"))
            for path in sorted(made.rglob("*.pyi"))
        }


def read_stubs() -> dict[str, str]:
    return {
        path.relative_to(STUBS).as_posix(): path.read_text(encoding="utf-8")
        for path in sorted(STUBS.rglob("*.pyi"))
    }


def show_differences(old: dict[str, str], new: dict[str, str]) -> None:
    for name in sorted(old.keys() | new.keys()):
        before, after = (texts.get(name, "").splitlines() for texts in (old, new))
        print("\n".join(difflib.unified_diff(before, after, "committed", name, lineterm="")))


def write_stubs(old: dict[str, str], new: dict[str, str]) -> None:
    for name in old.keys() - new.keys():
        (STUBS / name).unlink()
    for name, text in new.items():
        (STUBS / name).parent.mkdir(parents=True, exist_ok=True)
        (STUBS / name).write_text(text, encoding="utf-8")


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="compare, do not write")
    check = parser.parse_args().check
    old, new = read_stubs(), make_stubs()
    if check and old != new:
        show_differences(old, new)
        print("the stubs are not those of the built module: run ./dev stubs")
        return 1
    if not check:
        write_stubs(old, new)
    return 0


if __name__ == "__main__":
    sys.exit(main())
