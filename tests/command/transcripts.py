#!/usr/bin/env python3
"""Runs the sessions in transcripts/ as a user would type them, and compares all their output, in order,
with the recorded text. A line "[exit N]" ends the output of a command that does not succeed.

usage: transcripts.py SOURCE_DIR BUILD_DIR [--refresh]"""

import difflib
import glob
import os
import re
import subprocess
import sys
import tempfile

from command import build, check, finish, source

folder = os.path.join(source, "tests", "command", "transcripts")
paths = sorted(glob.glob(os.path.join(folder, "*.txt")))


def session(text, directory):
    """The session with the current output of its commands. Lines before the first command of a
    block, such as comments, stay."""
    environment = dict(os.environ, PATH=os.path.join(build, "bin") + ":" + os.environ["PATH"])
    environment.pop("NO_COLOR", None)
    result = []
    copying = True
    for line in text.splitlines():
        if line.startswith("$ "):
            done = subprocess.run(["bash", "-c", line[2:]], cwd=directory, env=environment,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                  stdin=subprocess.DEVNULL, timeout=60)
            result += [line, *done.stdout.decode(errors="replace").splitlines()]
            if done.returncode != 0:
                result.append(f"[exit {done.returncode}]")
            if done.returncode == 2:
                # A refusal is one line, with a remedy.
                shape = rb'velmar: .*; .*\n|{"format":"velmar-fault".*; .*}\n|Usage[\s\S]*'
                check(re.fullmatch(shape, done.stdout), f"{line}: {done.stdout!r}")
            copying = False
        elif line.startswith("# "):
            # A comment begins a new block, with an empty line before it.
            if result:
                result.append("")
            result.append(line)
            copying = True
        elif copying and line:
            result.append(line)
    return "\n".join(result) + "\n"


def has_terminals():
    try:
        for descriptor in os.openpty():
            os.close(descriptor)
        return True
    except OSError:
        print("no terminal: terminal.txt is not checked")
        return False


check(len(paths) >= 5, "transcripts are missing")
if not has_terminals():
    paths = [path for path in paths if not path.endswith("terminal.txt")]
for path in paths:
    with open(path, encoding="utf-8") as file:
        expected = file.read()
    with tempfile.TemporaryDirectory() as directory:
        os.symlink(os.path.join(source, "samples"), os.path.join(directory, "samples"))
        printed = session(expected, directory)
    if "--refresh" in sys.argv:
        with open(path, "w", encoding="utf-8") as file:
            file.write(printed)
        continue
    name = os.path.basename(path)
    difference = difflib.unified_diff(expected.splitlines(), printed.splitlines(), name,
                                      "what the command prints", lineterm="")
    check(expected == printed, "\n".join(difference) +
          "\nto accept it: cmake --build --preset release --target refresh")
finish()
