"""Counts the instructions of the hot paths with callgrind and compares them with the committed ones.

The same binary on the same inputs gives the same counts, so the limit can be narrow. Where a change
is meant, refresh the committed counts and let the review see them.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

LIMIT = 1.05
CALLS = 1000
SKIPPED = 77
REFRESH = "cmake --build --preset release --target refresh-instructions"


def measure(program):
    """Instructions of one call, by hot path, in the order of the program."""
    with tempfile.TemporaryDirectory() as folder:
        profile = pathlib.Path(folder) / "profile"
        # Symbols bound at start: the first call of each must not cost more than the next.
        subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}", program],
                       check=True, capture_output=True, env={**os.environ, "LD_BIND_NOW": "1"})
        listing = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100",
                                  profile], check=True, capture_output=True, text=True).stdout
    counts = re.findall(r"^\s*([\d,]+).*?:hot_(\w+)", listing, re.MULTILINE)
    return {name: int(count.replace(",", "")) / CALLS for count, name in counts}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("committed", type=pathlib.Path)
    parser.add_argument("--refresh", action="store_true", help="write the committed counts anew")
    options = parser.parse_args()

    if not shutil.which("valgrind"):
        print("skipped: valgrind is not installed")
        return SKIPPED
    measured = measure(options.program)
    if options.refresh:
        lines = [f"{name}\t{count:.1f}\n" for name, count in sorted(measured.items())]
        options.committed.write_text("".join(lines))
        return 0

    rows = [line.split("\t") for line in options.committed.read_text().splitlines()]
    committed = {name: float(count) for name, count in rows}
    failed = sorted(committed.keys() ^ measured.keys())
    for name in failed:
        print(f"{name}: only {'committed' if name in committed else 'measured'}")
    for name in sorted(committed.keys() & measured.keys()):
        grown = measured[name] > LIMIT * committed[name]
        failed += [name] * grown
        print(f"{name:16} {committed[name]:7.1f} -> {measured[name]:7.1f} {'too many' * grown}")
    if not failed:
        return 0
    print(f"Where this is meant, refresh the counts and commit them:\n  {REFRESH}")
    return 1


if __name__ == "__main__":
    sys.exit(main())
