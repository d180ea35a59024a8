"""Prints the bytes that the variogram of a grid adds to its process at the peak: a fresh process,
since a peak never goes down.

    python benchmarks/grid_variogram_memory.py 200
"""

import sys
from pathlib import Path

from grid_variogram_figures import field, variogram


def kilobytes(name):
    # Not getrusage: its peak counts the memory of the process that started this one too.
    for line in Path("/proc/self/status").read_text().splitlines():
        if line.startswith(name):
            return int(line.split()[1])
    raise RuntimeError(f"no {name} in /proc/self/status")


def main():
    call = variogram(field(int(sys.argv[1])))
    before = kilobytes("VmRSS:")
    call()
    print(1024 * (kilobytes("VmHWM:") - before))


if __name__ == "__main__":
    sys.exit(main())
