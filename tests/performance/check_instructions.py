"""Counts the instructions of the hot paths with callgrind and compares them with the committed ones.

The same binary on the same inputs gives the same counts, so the limit can be narrow. After an
intended change, refresh the committed counts, so that they show up in the review.

usage: check_instructions.py [--refresh] PROGRAM COMMITTED"""

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
        # Bind symbols at start-up: the first call must not cost more than the others.
        subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}", program],
                       check=True, capture_output=True, env={**os.environ, "LD_BIND_NOW": "1"})
        listing = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100",
                                  profile], check=True, capture_output=True, text=True).stdout
    counts = re.findall(r"^\s*([\d,]+).*?:hot_(\w+)", listing, re.MULTILINE)
    return {name: int(count.replace(",", "")) / CALLS for count, name in counts}


program, committed_file = sys.argv[-2], pathlib.Path(sys.argv[-1])
if not shutil.which("valgrind"):
    print("skipped: valgrind is not installed")
    sys.exit(SKIPPED)
measured = measure(program)
if "--refresh" in sys.argv:
    committed_file.write_text("".join(f"{name}\t{count:.1f}\n" for name, count in sorted(measured.items())))
    sys.exit(0)
committed = {name: float(count) for name, count in
             (line.split("\t") for line in committed_file.read_text().splitlines())}
failed = False
for name in sorted(committed.keys() | measured.keys()):
    before, now = committed.get(name, 0), measured.get(name, 0)
    is_wrong = not before or not now or now > LIMIT * before
    failed |= is_wrong
    print(f"{name:16} {before:7.1f} -> {now:7.1f} {'differs from the committed count' * is_wrong}")
if failed:
    print(f"If this is intended, refresh the counts and commit them:\n  {REFRESH}")
sys.exit(failed)
