#!/usr/bin/env python3
"""Dumps on pipes: memory stays within five times the input, nothing is printed of half an input, and an
interrupted command ends quietly and leaves no half-written file.

usage: streams.py SOURCE_DIR BUILD_DIR"""

import os
import re
import signal
import stat
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

# A whole table as JSON, for encode.
document = run("encode", "VlanEntry", "--chip", "BCM56990_B0", "--index", "0-8191", "valid=1", "stg=5",
               "-f", "json")[1]
encode = [program, "encode", "VlanEntry", "--chip", "BCM56990_B0", "-f", "raw"]
peak = peak_memory(encode + ["@-"], document)
check(peak < peak_memory(encode, b"") + 5 * len(document), f"encode @-: {peak} bytes for {len(document)}")

# A signal ends it silently and removes the unfinished file.
for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT, signal.SIGPIPE):
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
        process.send_signal(number)
        check(process.wait(timeout=10) == -number, f"{number.name} gives {process.returncode}")
        check(process.stderr.read() == b"", f"{number.name} prints a message")
        check(os.listdir(directory) == [], f"{number.name} leaves {os.listdir(directory)}")
        process.stdin.close()
        process.stderr.close()

# A result replaces a file: its mode and owner stay, and a link stays a link, wherever it leads.
with tempfile.TemporaryDirectory() as directory:
    os.mkdir(os.path.join(directory, "folder"))
    os.chmod(directory, 0o755)

    def path(name):
        return os.path.join(directory, name)

    for name, links, exists in (("file", (), True), ("new", (), False), ("link", ("folder/far",), True),
                                ("dangling", ("folder/later",), False),
                                ("chain", ("next", "folder/last"), False),
                                ("absolute", (path("folder/there"),), True)):
        link = name
        for target in links:
            os.symlink(target, path(link))
            link = target
        if exists:
            with open(path(link), "wb") as file:
                file.write(b"before")
            os.chmod(path(link), 0o640)
            if os.geteuid() == 0:
                os.chown(path(link), 12, 34)
        code, _, said = run("chips", "-o", path(name))
        check(code == 0, f"{name}: {said}")
        status = os.lstat(path(link))
        check(stat.S_ISREG(status.st_mode) and status.st_size > 100, f"{name}: {status}")
        check(all(os.path.islink(path(each)) for each in (name, *links)[:-1]), f"{name}: a link is gone")
        if exists:
            check(stat.S_IMODE(status.st_mode) == 0o640, f"{name}: {status}")
            check(os.geteuid() != 0 or (status.st_uid, status.st_gid) == (12, 34), f"{name}: {status}")

    # Standard output under its name is appended to as the shell wants it.
    with open(path("log"), "wb") as file:
        file.write(b"kept\n")
    with open(path("log"), "ab") as file:
        subprocess.run([program, "chips", "-o", "/dev/stdout"], stdout=file, check=True)
    with open(path("log"), "rb") as file:
        check(re.match(rb"kept\nchip ", file.read()), "-o /dev/stdout replaces what it appends to")

    # A folder that takes no new files: the remedy writes the file itself.
    with open(path("folder/own"), "wb"):
        pass
    os.chmod(path("folder/own"), 0o666)
    os.chmod(path("folder"), 0o555)
    user = {"user": 65534} if os.geteuid() == 0 else {}
    try:
        code, _, said = run("chips", "-o", path("folder/own"), **user)
        check(code == 2 and f"{path('folder/')} takes no new file" in said and "redirect" in said, said)
        code, _, said = run("chips", "-o", path("folder/other"), **user)
        check(code == 2 and "choose another file with -o" in said, said)
    except PermissionError:
        print("nobody may not run the command: a folder without new files is not checked")
    os.chmod(path("folder"), 0o755)
finish()
