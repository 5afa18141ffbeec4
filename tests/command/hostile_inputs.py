#!/usr/bin/env python3
"""Broken, hostile and random input of every kind: the command answers with an exit code of its own and
one line that names what is wrong, in bounded time and memory, and an output file appears whole or not
at all.

usage: hostile_inputs.py SOURCE_DIR BUILD_DIR"""

import os
import random
import resource
import tempfile

from command import check, finish, program, run, source

random.seed(4)
vlan = ("VlanEntry", "--chip", "BCM56990_B0")
megabytes = 1 << 20


with open(program, "rb") as file:
    # An address sanitizer maps more than any limit.
    is_sanitized = b"__asan_init" in file.read()


def limit_memory():
    if is_sanitized:
        return
    resource.setrlimit(resource.RLIMIT_AS, (256 * megabytes, 256 * megabytes))


def attempt(arguments, data=b""):
    """An exit code of the command's own, and for a failure one line with a remedy."""
    code, _, errors = run(*arguments, data=data, timeout=20, preexec_fn=limit_memory)
    what = f"velmar {' '.join(arguments)[:200]} < {data[:60]!r}: exit {code}, {errors[:300]!r}"
    check(code in (0, 1, 2) and "exception" not in errors, what)
    if code == 2:
        lines = errors.splitlines()
        check(len(lines) == 1 and lines[0].startswith("velmar: ") and ";" in lines[0], what)
    return code, errors


def refused(arguments, data, *words):
    code, errors = attempt(arguments, data)
    check(code == 2 and all(word in errors for word in words),
          f"velmar {' '.join(arguments)} < {data[:60]!r}: exit {code}, {errors!r}, wanted {words}")


decode = ("decode", *vlan, "-")
hex16 = b"00 " * 16

# Text of each format, broken in every way that has a place to name.
for data, *words in (
        (b"", "empty"),
        (b"\0" * 17, "17 bytes", "multiple of 16"),
        (b"00 11\n", ":1:", "2 bytes"),
        (hex16 + b"\n" + hex16 + b"00\n", ":2:", "17 bytes"),
        (hex16 + b"\n\nxyz\n", ":3:", "xyz"),
        (b"# only a comment\n", "no entry"),
        (b"0123 4567 89ab cdef 0123 4567 89ab cdef\n", ":1:", "--hex-order"),
        (b"five: " + hex16, ":1:", "five"),
        (b"4294967296: " + hex16, ":1:", "not an entry index"),
        (b"99999999999999999999: " + hex16, ":1:", "index"),
        (b"00000000: " + b"0011 " * 7 + b"0011  ................\n00000020: 00\n", ":2:", "0x20"),
        (b"00000000: " + b"0011 " * 8 + b"\n0000001z: 00\n", ":2:", "not a line of xxd"),
        (b"00000000: " + b"0011 " * 8 + b"\n00000000000000010: 00\n", ":2:", "not a line of xxd"),
        (b"00000000: " + b"4142 " * 8 + b" XBABABABABABABAB\n", ":1:", "text column"),
        (b"00000008: " + b"0011 " * 8 + b"\n", ":1:", "0x8"),
        (b"00000000: " + b"00112233 " * 4 + b"\n", "--hex-order"),
        (b"00000000: " + b"4142 " * 8 + b" BABABABABABABABA\n", ":1:", "--hex-order"),
        (b"00000000: " + b"0000 " * 8 + b"\n*\nffffffffffffffff: 00\n", ":3:"),
        (b"00000000: " + b"0000 " * 8 + b"\n*\n", ":3:"),
        (b"00000000: 0011\n", "2 bytes", "multiple of 16"),
        (b"{", "ends early"),
        (b'{"a":"\\', "ends early"),
        (b"[", "ends early"),
        (b'{"entries":[', "ends early"),
        (b'{"entries":[{"index":0,"fields":{}}', "ends early"),
        (b'{"entries":5}', "array"),
        (b'{"entries":[],"entries":[]}', "second array"),
        (b'{"entries":[{"fields":{}}{"fields":{}}]}', "comma"),
        (b'{"table":"VlanEntry","chip":"BCM56980_A0","entries":[]}', "BCM56980_A0"),
        (b'{"index":0,"fields":{"stg":64}}', ":1:", "0x3f"),
        (b'\n\n{"index":0,"fields":{"no\\u0066ield":1}}', ":3:", "nofield"),
        (b'{"index":0,"fields":{"stg":-1}}', "negative"),
        (b'{"index":0,"fields":{"stg":1.5}}', "fractional"),
        (b'{"index":0,"fields":{"stg":null}}', "stg"),
        (b'{"index":0,"fields":{"stg":{"hex":"0x1","decimal":2}}}', "disagree"),
        (b'{"index":0,"fields":{"stg":{}}}', "stg"),
        (b'{"index":0,"fields":{"stg":{"binary":1}}}', "hex, decimal and ports only"),
        (b'{"index":0,"fields":[]}', "fields"),
        (b'{"index":-1,"fields":{}}', "index"),
        (b'{"index":4294967296,"fields":{}}', ":1:", "index"),
        (b'{"index":0,"fields":{},"outsideFields":"0x1"}', "inside fields"),
        (b'{"index":0,"fields":{},"typo":1}', "typo"),
        (b'{"index":0,"fields":{"stg":"\xff\xfe"}}', ":1:"),
        (b'{"index":0 "fields":{}}', ":1: parse error"),
        (b'{"stg":5}', "fields"),
        (b"[" * 100000, "object"),
        (b'{"a":' * 100000, "nested"),
        (b'{"a":"' + b"x" * 2 * megabytes, "1 MiB"),
        (b"0" * megabytes + b"\n", ":1:", "--hex-order"),
        (b"0" * (megabytes + 1) + b"\n", ":1:", "longer")):
    refused(decode, data, *words)
refused((*decode, "--hex-order", "int"), b"5:\n", ":1:", "no digits")
skipping = b"0000000:" + b"0000 " * 8 + b"\n*\n00020000: " + b"0000 " * 8
check(run(*decode, "-f", "csv", data=skipping)[1].count(b"\n") == 8194, "zeros that xxd skips")
check(run(*decode, "--stride", "20", data=hex16 + b"\n" + hex16 + b"ff " * 4)[0] == 0,
      "lines of text hold an entry, or a stride")
for data in (b"\x80" + b"0" * 15, b"0X00 " * 16, b"0" * 16 + b": " + b"0000 " * 8):
    check(run(*decode, data=data)[0] == 0, f"{data} is an entry")

# Options and documents that do not go with what is read.
overlaps = ("IngVpVlanMembership", "--chip", "21")
ecc = ("IngVpVlanMembershipEcc", "--chip", "21")
overlapping = b'\n{"index":0,"fields":{"vlan":1,"hashLsb":2}}'
for arguments, data, *words in (
        ((*decode, "--hex-order", "int"), b"1" * 33, ":1:", "16 bytes"),
        ((*decode, "--hex-order", "bytes"), b"123\n", ":1:", "3 digits", "whole bytes"),
        ((*decode, "--hex-order", "words"), b"1234\n", ":1:", "4 digits", "32-bit words"),
        ((*decode, "--input", "xxd", "--hex-order", "int"), b"", "bytes or words"),
        (("decode", *overlaps, "-"), overlapping, ":2:", "share bits"),
        (("encode", *overlaps, "@-"), overlapping, ":2:", "share bits"),
        (("encode", *ecc, "eccp=0x80", "parity=0"), b"", "share bits"),
        (("encode", *ecc, "parity=0", "eccp=0x80"), b"", "share bits"),
        (("encode", *ecc, "eccData=0x1000000000000000000000"), b"", "is 0x3" + 20 * "f" + "\n"),
        (("encode", *vlan, "@-"), b'{"stg":1}\n{"stg":2}', ":2:", "second object"),
        (("encode", *vlan, "@-", "--whole"), b'{"index":8192,"fields":{}}', "8192 is beyond"),
        (("encode", *vlan, "@-", "--whole"),
         b'{"index":5,"fields":{}}{"index":4,"fields":{}}', "entry 4 comes after entry 5"),
        (("encode", *vlan, "@-", "--base", os.path.join(source, "samples", "vlan-bcm56990.bin")),
         b'{"index":8192,"fields":{}}', ":1:", "entry 8192 is not in")):
    refused(arguments, data, *words)

# Command lines.
for arguments, *words in (
        ((), "Usage"),
        (("decod",), "did you mean decode"),
        (("decode",), "missing"),
        (("decode", "VlanEntry"), "--chip is missing"),
        (("decode", "VlanEntri", "--chip", "33", "-"), "did you mean VlanEntry"),
        (("decode", "VlanEntry", "--chip", "BCM56991", "-"), "did you mean"),
        (("decode", "VlanEntry", "--chip", "289", "-"), "unknown chip"),
        (("decode", "VlanEntry", "--chip", "56996", "-"), "BCM56996_A0 or BCM56996_B0"),
        (("decode", "Vlan2Entry", "--chip", "33", "-"), "exists on"),
        ((*decode, "--variant", "1"), "variant"),
        ((*decode, "--variant", "256"), "255"),
        ((*decode, "--index", "9-1"), "backwards"),
        ((*decode, "--index", "x"), "index"),
        ((*decode, "--index", "4294967296"), '"4294967296" is not'),
        ((*decode, "--fields", "vfi"), "exists on"),
        ((*decode, "--fields", "stq"), "did you mean stg"),
        ((*decode, "--where", "stg"), "FIELD=VALUE"),
        ((*decode, "--where", "stg=64"), "0x3f"),
        ((*decode, "--stride", "15"), "at least 16"),
        ((*decode, "--stride", "99999999"), "65536"),
        ((*decode, "--format", "xml"), "jsonl"),
        ((*decode, "--chp", "33"), "did you mean --chip"),
        ((*decode, "-f", "csv", "-f", "json"), "--format is given twice"),
        ((*decode, "--nonzero=1"), "takes no value"),
        ((*decode, "--index"), "without its LIST"),
        ((*decode, "--chip", "33"), "give it once"),
        (("decode", *vlan, "a", "b"), "more than one"),
        (("decode", *vlan, "/nonexistent/dump"), "/nonexistent/dump"),
        (("decode", *vlan, "/"), "/:", "directory"),
        (("decode", *vlan, "-", "-o", "/nonexistent/out"), "/nonexistent/out"),
        (("chips", "-o", "x" * 5000), "too long"),
        (("chips", "-o", "/dev/full"), "/dev/full: cannot write"),
        (("chips", "33"), "unexpected argument"),
        (("encode", *vlan, "stg=64"), "0x3f"),
        (("encode", *vlan, "stg="), "not a number"),
        (("encode", *vlan, "stg=99999999999999999999"), "more than 64 bits"),
        (("encode", *vlan, "=5"), "FIELD=VALUE"),
        (("encode", *vlan, "stg=1", "stg=2"), "twice"),
        (("encode", *vlan, "--index", "8192", "stg=1"), "8191"),
        (("encode", *vlan, "--base", "-", "@-"), "standard input"),
        (("encode", *vlan, "--base", "-", "--index", "5", "stg=1"), "no entry has an index in 5"),
        (("compare", "Vlan2Entry", "--chip", "33", "--chip", "34"), "exists on"),
        (("encode", *vlan, "@/nonexistent"), "/nonexistent"),
        (("encode", "VlanEntry", "--chip", "56960", "portBitmap=136"), "0 to 135"),
        (("encode", "VlanEntry", "--chip", "56960", "portBitmap=9-4"), "backwards"),
        (("encode", "VlanEntry", "--chip", "56960", "portBitmap=1,0xg"), '"0xg" is not a port'),
        (("encode", "VlanEntry", "--chip", "56960", "portBitmap=0xg1"), '"0xg1" is not a port'),
        (("encode", "VlanEntry", "--chip", "56960", "portBitmap=0-99999999999"), "0 to 135"),
        (("encode", "IngVpVlanMembership", "--chip", "21", "vlan=1", "hashLsb=2"), "share bits"),
        (("diff", *vlan, "a"), "two"),
        (("diff", *vlan, "-", "-"), "standard input"),
        (("compare", "--chip", "33"), "twice"),
        (("addr", "--chip", "33"), "TABLE"),
        (("addr", *vlan), "--index"),
        (("addr", *vlan, "--index", "8192"), "8191"),
        (("addr", *vlan, "--array", "0"), "--index"),
        (("addr", *vlan, "--array", "0", "--index", "0"), "exclude"),
        (("addr", *vlan, "--find", "0", "--index", "0"), "--find excludes"),
        (("addr", *vlan, "--index", "0", "--identifier", "1"), "--identifier"),
        (("addr", "IgmpMldPktControl", "--chip", "6", "--array", "64"), "63"),
        (("addr", "--chip", "33", "--find", "0x100000000"), "--find"),
        (("fields", "nothinglikeit"), "no field"),
        (("layout", *vlan, "--diagram", "-f", "json"), "--diagram")):
    if words == ["Usage"]:
        check(run()[0] == 2 and "Usage" in run()[2], "velmar alone explains itself")
    else:
        refused(arguments, b"\0" * 16, *words)

# An entry that takes more memory than there is.
if not is_sanitized:
    code, _, errors = run(*decode, data=b'{"a":"' + b"x" * 1000000 + b'"}', preexec_fn=lambda: (
        resource.setrlimit(resource.RLIMIT_DATA, (4 * megabytes, 4 * megabytes))))
    check(code == 2 and "out of memory" in errors, f"no memory: exit {code}, {errors!r}")

# Random bytes, and good input with random bytes changed, as every format.
samples = [hex16 + b"\n", b"00000000: " + b"0011 " * 8 + b" ................\n",
           run(*decode, "-f", "json", data=b"\1" * 16)[1], b"\1" * 32]
for round_number in range(150):
    data = bytearray(random.choice(samples) if round_number % 3 else random.randbytes(64))
    for _ in range(random.randrange(4)):
        data[random.randrange(len(data))] = random.randrange(256)
    form = random.choice(("auto", "raw", "hex", "xxd", "json"))
    attempt((*decode, "--input", form), bytes(data))

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
