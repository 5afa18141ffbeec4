#!/usr/bin/env python3
"""Bad rows do not compile, and the errors say why: each fault of faults.tsv is made in a copy of a source,
which must then fail in at most 15 lines that contain the sentence and names of the last columns.

usage: bad_rows.py SOURCE_DIR COMPILER [OPTION ...]"""

import concurrent.futures
import csv
import os
import pathlib
import subprocess
import sys
import tempfile

root, compiler = pathlib.Path(sys.argv[1]), sys.argv[2:]
MOST_LINES = 15


def compile_with(file, text, source):
    """Compiles `source` with `text` in place of a file; returns the compiler's output."""
    with tempfile.TemporaryDirectory() as scratch:
        place = pathlib.Path(scratch, file)
        place.parent.mkdir(parents=True)
        place.write_text(text)
        main = place if source == file else root / source
        return subprocess.run(
            [*compiler, "-std=c++17", "-fsyntax-only", "-I", scratch, "-I", f"{scratch}/platform/include",
             "-I", root, "-I", root / "include", "-I", root / "platform/include", main],
            capture_output=True, text=True, env={**os.environ, "LC_ALL": "C"}).stderr


def complaint(fault):
    """What is wrong with the compiler's report of a fault; None if it is right."""
    file, before, after, source, *expected = fault
    text = (root / file).read_text()
    if text.count(before) != 1:
        return f"{file}: {before!r} occurs {text.count(before)} times"
    said = compile_with(file, text.replace(before, after), source or file)
    missing = [words for words in expected if words not in said]
    lines = said.count("\n")
    if not missing and lines <= MOST_LINES:
        return None
    return f"{file}: {before!r} -> {after!r}: {lines} lines, without {missing}:\n{said[:2000]}"


def main():
    with open(os.path.join(os.path.dirname(__file__), "faults.tsv"), encoding="utf-8") as file:
        faults = [row for row in csv.reader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
                  if row and not row[0].startswith("#")]
    sound = "tables/VlanEntry.cpp"
    said = compile_with(sound, (root / sound).read_text(), sound)
    if said:
        sys.exit(f"{sound} does not compile as it is:\n{said}")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        complaints = [words for words in pool.map(complaint, faults) if words]
    print("\n".join(complaints) or f"{len(faults)} faults refused")
    sys.exit(1 if complaints else 0)


main()
