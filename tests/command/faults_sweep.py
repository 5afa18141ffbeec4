#!/usr/bin/env python3
"""Makes every system call of seven typical runs fail once. The run must refuse with one line, or print
all that it should; it leaves no temporary file, and the file that it writes is as before or complete.

usage: faults_sweep.py SOURCE_DIR BUILD_DIR"""

import collections
import os
import re
import subprocess
import sys
import tempfile

from command import check, finish, program, source

dump = os.path.join(source, "samples", "vlan-bcm56990.bin")
table = ["VlanEntry", "--chip", "BCM56990_B0"]
with open(dump, "rb") as file:
    changed = file.read()[:-1] + b"\1"
document = b'{"valid": 1, "stg": 3}\n'
errors = {"write": "ENOSPC", "mmap": "ENOMEM", "rename": "EXDEV", "openat": "EMFILE"}
interruptible = ("read", "write", "openat", "poll", "ioctl", "close")
# Calls that cannot fail with an error number; brk() gives the old end of the heap instead.
excluded = ("exit_group", "umask", "brk")
runs = {"help": ["--help"], "version": ["--version"],
        "decode": ["decode", *table, dump],
        "decode -o": ["decode", *table, dump, "-o", "out"],
        "encode": ["encode", *table, "@-"],
        "diff": ["diff", *table, dump, "other"],
        "export -o": ["export", "-o", "out"]}


def run(arguments, *strace):
    """One run under strace, over a file that is there: what it did, and what the file has then."""
    with tempfile.TemporaryDirectory() as directory:
        calls, work = os.path.join(directory, "calls"), os.path.join(directory, "work")
        os.mkdir(work)
        for name, text in ("other", changed), ("out", b"as before"):
            with open(os.path.join(work, name), "wb") as file:
                file.write(text)
        done = subprocess.run(["strace", "-f", "-qq", "-o", calls, *strace, program, *arguments],
                              cwd=work, input=document, capture_output=True, timeout=60)
        with open(os.path.join(work, "out"), "rb") as file:
            content = file.read()
        left = sorted(os.listdir(work))
        check(left == ["other", "out"], f"{arguments} {strace}: leaves {left}")
        with open(calls, encoding="utf-8", errors="replace") as file:
            return done, content, file.read().splitlines()


def calls_of_main(lines):
    """The system calls, each with its number among those of its name; the loader's are left out."""
    counts, started = collections.Counter(), False
    for line in lines:
        name = line.split("(")[0].split()[-1]
        counts[name] += 1
        # The first that main() does is to install its signal handlers.
        started = started or "rt_sigaction(SIGINT" in line
        if started and re.fullmatch(r"\w+", name) and name not in excluded:
            yield name, counts[name]


for title, arguments in runs.items():
    (expected, complete, lines), outcomes = run(arguments), collections.Counter()
    check(expected.returncode in (0, 1) and not expected.stderr, f"{title}: {expected}")
    for call, number in calls_of_main(lines):
        for error in [errors.get(call, "EIO")] + ["EINTR"] * (call in interruptible):
            fault = f"inject={call}:error={error}:when={number}"
            done, content, trace = run(arguments, "-e", fault)
            # The name of a temporary file takes as many random numbers as it needs.
            comes = "(INJECTED)" in "".join(trace) or call == "getrandom"
            check(comes, f"{title}: {fault}: not reached")
            refuses = (done.returncode == 2 and content == b"as before"
                       and re.fullmatch(rb"velmar: .*; .*\n", done.stderr))
            succeeds = (done.returncode, done.stdout, done.stderr, content) == (
                expected.returncode, expected.stdout, b"", complete)
            check(refuses or succeeds, f"{title}: {fault}: {done.returncode} {done.stderr!r} {content[:20]!r}")
            outcomes["refused" if refuses else "complete" if succeeds else "wrong"] += 1
    print(f"{title}: {sum(outcomes.values())} faults,", dict(outcomes))
finish()
