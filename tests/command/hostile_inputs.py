#!/usr/bin/env python3
"""Hostile input: the command answers with an exit code of its own and one line that names what is wrong,
in bounded time and memory, and an output file appears whole or not at all.

usage: hostile_inputs.py SOURCE_DIR BUILD_DIR"""

import os
import resource
import tempfile

from command import check, finish, program, run, source

vlan = ("VlanEntry", "--chip", "BCM56990_B0")
megabytes = 1 << 20


with open(program, "rb") as file:
    # An address sanitizer maps more than any limit.
    is_sanitized = b"__asan_init" in file.read()


def limit_memory():
    if is_sanitized:
        return
    resource.setrlimit(resource.RLIMIT_AS, (256 * megabytes, 256 * megabytes))


def refused(arguments, data, *words):
    """An exit code of the command's own, and one line that names what is wrong, with a remedy."""
    code, _, errors = run(*arguments, data=data, timeout=20, preexec_fn=limit_memory)
    check(code == 2 and errors.count("\n") == 1 and errors.startswith("velmar: ") and
          ";" in errors and all(word in errors for word in words),
          f"velmar {' '.join(arguments)[:200]} < {data[:60]!r}: exit {code}, {errors[:300]!r}")


decode = ("decode", *vlan, "-")
hex16 = b"00 " * 16

# What is too long to be typed; transcripts/refusals.txt has the rest.
for data, *words in (
        (b"[" * 100000, "object"),
        (b'{"a":' * 100000, "nested"),
        (b'{"a":"' + b"x" * 2 * megabytes, "1 MiB"),
        (b"0" * megabytes + b"\n", ":1:", "--hex-order"),
        (b"0" * (megabytes + 1) + b"\n", ":1:", "longer")):
    refused(decode, data, *words)
refused(("chips", "-o", "x" * 5000), b"", "too long")

# What looks broken and is not.
skipping = b"0000000:" + b"0000 " * 8 + b"\n*\n00020000: " + b"0000 " * 8
check(run(*decode, "-f", "csv", data=skipping)[1].count(b"\n") == 8194, "zeros that xxd skips")
check(run(*decode, "--stride", "20", data=hex16 + b"\n" + hex16 + b"ff " * 4)[0] == 0,
      "lines of text hold an entry, or a stride")
for data in (b"\x80" + b"0" * 15, b"0X00 " * 16, b"0" * 16 + b": " + b"0000 " * 8):
    check(run(*decode, data=data)[0] == 0, f"{data} is an entry")

# An entry that takes more memory than there is.
if not is_sanitized:
    code, _, errors = run(*decode, data=b'{"a":"' + b"x" * 1000000 + b'"}', preexec_fn=lambda: (
        resource.setrlimit(resource.RLIMIT_DATA, (4 * megabytes, 4 * megabytes))))
    check(code == 2 and "out of memory" in errors, f"no memory: exit {code}, {errors!r}")

# A failure leaves the output file as it was, and nothing beside it.
with tempfile.TemporaryDirectory() as directory:
    out = os.path.join(directory, "out")
    arguments = (*decode, "-o", out, "-f", "jsonl")
    bad = hex16 + b"\nnothing\n"
    check(run(*arguments, data=bad)[0] == 2, "bad input")
    check(os.listdir(directory) == [], "a failure leaves a file")
    check(run(*arguments, data=hex16)[0] == 0, "good input")
    with open(out, "rb") as file:
        before = file.read()
    check(run(*arguments, data=bad)[0] == 2, "bad input")
    with open(out, "rb") as file:
        check(before == file.read() != b"", "a failure changes the file")
    check(os.listdir(directory) == ["out"], "a failure leaves a file")

    # A file of a wrong size is refused before any of it is shown.
    with open(out, "wb") as file:
        file.write(b"\1" * (16 * 8192 + 1))
    for form in ("auto", "raw"):
        code, shown, _ = run("decode", *vlan, out, "--input", form)
        check(code == 2 and not shown, f"--input {form} shows a file of a wrong size")
    if os.path.exists("/dev/full"):
        full = os.path.join(directory, "full")
        os.system(f"'{program}' chips > /dev/full 2> '{full}'")
        with open(full, encoding="utf-8") as file:
            check("cannot write" in file.read(), "a full device is not reported")
finish()
