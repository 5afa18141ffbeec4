#!/usr/bin/env python3
"""Dumps as streams: memory does not grow with the input, a pipe shows its entries at once, and an
interrupted command ends quietly and leaves no half-written file.

usage: streams.py SOURCE_DIR BUILD_DIR"""

import os
import re
import signal
import subprocess
import tempfile
import time

from command import check, finish, program

decode = [program, "decode", "VlanEntry", "--chip", "BCM56990_B0", "-"]


def peak_memory(arguments, piece, count):
    """Peak resident bytes of a command that reads `piece` so many times."""
    process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    with process.stdin as pipe:
        for _ in range(count):
            pipe.write(piece)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    check(process.returncode in (0, 1), f"{arguments} ends with {process.returncode}")
    return usage.ru_maxrss * 1024


def text_of(entry_format, entries):
    encode = [program, "encode", "VlanEntry", "--chip", "BCM56990_B0", "--index", f"0-{entries - 1}",
              "valid=1", "stg=5", "-f", entry_format]
    text = subprocess.run(encode, stdout=subprocess.PIPE, check=True).stdout
    if entry_format == "raw":
        return text
    # Without indexes, so that a piece may follow itself.
    return re.sub(rb'^\d+: |"index":\d+,"address":"\w+",', b"", text, flags=re.M)


# Raw: 2 million entries, which only --check takes, because they lie beyond the end of the table. Text
# and JSON: tens of thousands. None may take more memory than a small dump.
slack = 2 << 20
for entry_format, options, count in (("raw", ["--check", "--where", "stg=6"], 250),
                                     ("raw", ["--check", "-f", "csv"], 40),
                                     ("hex", ["--check"], 20), ("jsonl", ["--check"], 8)):
    piece = text_of(entry_format, 8000)
    few = peak_memory(decode + options, piece, 1)
    many = peak_memory(decode + options, piece, count)
    check(many < few + slack, f"{entry_format}: {few} bytes for a piece, {many} for {count}")

# A document is one array, however long.
document = text_of("json", 8000)
head, entries = document.split(b"[", 1)
body = entries[:entries.rindex(b"]")].rstrip()
ten_times = head + b"[" + b",".join([body] * 10) + b"]}"
few = peak_memory(decode + ["--check"], document, 1)
many = peak_memory(decode + ["--check"], ten_times, 1)
check(many < few + slack, f"json: {few} bytes for a document, {many} for ten times it")

# A pipe is decoded as it arrives: the first entry is printed before the second is sent.
process = subprocess.Popen(decode + ["-f", "jsonl", "--input", "hex"], stdin=subprocess.PIPE,
                           stdout=subprocess.PIPE)
for index in range(2):
    process.stdin.write(b"00 " * 16 + b"\n")
    process.stdin.flush()
    line = process.stdout.readline()
    check(f'"index":{index},'.encode() in line, f"a pipe gives {line!r}")
process.stdin.close()
check(process.wait(timeout=10) == 0, "a pipe ends badly")
process.stdout.close()

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
