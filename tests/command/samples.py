#!/usr/bin/env python3
"""The committed samples are what the example programs write now, their README describes them correctly,
and the programs write whole files or none.

usage: samples.py SOURCE_DIR BUILD_DIR"""

import os
import re
import subprocess
import sys
import tempfile

from command import build, check, finish, golden_tables, program, source

folder = os.path.join(source, "samples")
programs = [os.path.join(build, "bin", name) for name in ("program-vlans", "program-tables")]
entry_bytes = {(table.name, table.chip): table.entry_bytes for table in golden_tables()}


def files_in(path):
    files = {}
    for where, _, names in os.walk(path):
        for name in names:
            path_of_file = os.path.join(where, name)
            with open(path_of_file, "rb") as file:
                files[os.path.relpath(path_of_file, path)] = file.read()
    return files


def exit_code(program, *arguments, limit=""):
    command = ["bash", "-c", limit + 'exec "$0" "$@"', program, *arguments]
    return subprocess.run(command, capture_output=True).returncode


committed = files_in(folder)
readme = committed.pop("README.md").decode()
with tempfile.TemporaryDirectory(prefix="velmar test ") as scratch:
    check(exit_code(programs[0], os.path.join(scratch, "vlan-bcm56990.bin")) == 0, "program-vlans")
    check(exit_code(programs[1], scratch) == 0, "program-tables")
    check(exit_code(os.path.join(source, "examples", "write-snapshot"), program, scratch,
                    os.path.join(scratch, "lab-bcm56990")) == 0, "write-snapshot")
    check(exit_code(sys.executable, "-B", os.path.join(source, "examples", "write-agent-log.py"), program,
                    os.path.join(scratch, "agent-bcm56990.log")) == 0, "write-agent-log.py")
    written = files_in(scratch)
for name in written.keys() | committed.keys():
    check(written.get(name) == committed.get(name), f"samples/{name} is stale; to refresh: "
          "cmake --build --preset release --target samples")

rows = re.findall(r"^\| `(.*?)` *\| `(.*?)` *\| `(.*?)` *\| *(\d+) \| *(\d+) \|", readme, re.M)
logs = {"agent-bcm56990.log"}
check({row[0] for row in rows} | logs == {name for name in committed if os.sep not in name},
      "samples/README.md has other files")
check(committed["agent-bcm56990.log"].count(b"\n") == 200, "the log has 200 lines")
for name, table, chip, size, count in rows:
    check(entry_bytes.get((table, chip)) == int(size) and
          len(committed.get(name, b"")) == int(size) * int(count), f"samples/README.md: {name}")

for example in programs:
    check(exit_code(example, "--help") == 0, f"{example} --help")
    for words in ([], [""], ["-x"], ["a", "b"], ["/dev/null"], ["/no/such/place"]):
        check(exit_code(example, *words) == 2, f"{example} {words}")
with tempfile.TemporaryDirectory() as scratch:
    path = os.path.join(scratch, "dump.bin")
    with open(path, "w", encoding="utf-8") as file:
        file.write("old")
    check(exit_code(programs[0], path, limit="trap '' XFSZ; ulimit -f 8; ") == 2, "a full disk")
    check(files_in(scratch) == {"dump.bin": b"old"}, "a failed write leaves the old file alone")
finish()
