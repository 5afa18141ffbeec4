#!/usr/bin/env python3
"""Dumps on pipes: memory stays within five times the input, nothing is printed of half an input, and an
interrupted command ends quietly and leaves no half-written file.

usage: streams.py SOURCE_DIR BUILD_DIR"""

import os
import re
import signal
import subprocess
import tempfile
import time

from command import check, finish, program, run

decode = [program, "decode", "VlanEntry", "--chip", "BCM56990_B0", "-"]


def peak_memory(arguments, data):
    """Peak resident bytes of a command that reads from a pipe."""
    process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE)
    try:
        process.stdin.write(data)
        process.stdin.close()
    except BrokenPipeError:
        pass
    said = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    process.stderr.close()
    check(process.returncode in (0, 1), f"{arguments} ends with {process.returncode}: {said!r}")
    return usage.ru_maxrss * 1024


def text_of(entry_format, entries):
    code, text, said = run("encode", "VlanEntry", "--chip", "BCM56990_B0", "--index",
                           f"0-{entries - 1}", "valid=1", "stg=5", "-f", entry_format)
    check(code == 0, said)
    # Without indexes, so that a piece may follow itself.
    return re.sub(rb'^\d+: |"index":\d+,"address":"\w+",', b"", text, flags=re.M)


raw = text_of("raw", 8000)
cases = (("raw", raw * 200), ("hex", text_of("hex", 8000) * 40), ("words", text_of("words", 8000) * 40),
         ("jsonl", text_of("jsonl", 8000) * 5))
floor = peak_memory(decode + ["--check"], raw)
for name, data in cases:
    peak = peak_memory(decode + ["--check"], data)
    check(peak < floor + 5 * len(data), f"{name}: {peak} bytes for {len(data)} of input")

# What is too long is refused before it is decoded, and so is an input that ends in half an entry.
for data, what in ((b"\0" * ((64 << 20) + 1), "more than 64 MiB"), (b"\0" * 1000001, "not a multiple")):
    for entry_format in ("table", "json", "jsonl", "csv"):
        code, printed, said = run(*decode[1:], "-f", entry_format, data=data)
        check(code == 2 and printed == b"" and what in said, f"{entry_format}: {code}, {said!r}")

# Ctrl-C ends it silently and removes the unfinished file.
with tempfile.TemporaryDirectory() as directory:
    out = os.path.join(directory, "out")
    process = subprocess.Popen(decode + ["-f", "jsonl", "-o", out], stdin=subprocess.PIPE,
                               stderr=subprocess.PIPE)
    process.stdin.write(b"\0" * 128000)
    process.stdin.flush()
    for _ in range(200):
        if os.listdir(directory):
            break
        time.sleep(0.02)
    check(os.listdir(directory) not in ([], ["out"]), "there is no unfinished file")
    process.send_signal(signal.SIGINT)
    check(process.wait(timeout=10) == -signal.SIGINT, f"Ctrl-C gives {process.returncode}")
    check(process.stderr.read() == b"", "Ctrl-C prints a message")
    check(os.listdir(directory) == [], f"Ctrl-C leaves {os.listdir(directory)}")
    process.stdin.close()
    process.stderr.close()
finish()
