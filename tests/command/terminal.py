#!/usr/bin/env python3
"""On a terminal: tables fit its width without losing anything, colours are used unless they are
forbidden, raw bytes are refused, and long work shows a counter that goes away.

usage: terminal.py SOURCE_DIR BUILD_DIR"""

import fcntl
import os
import pty
import re
import struct
import subprocess
import termios
import time

from command import check, finish, program, run

columns = 70


def on_terminal(*arguments, feed=None, stdin_too=False, stdout_too=True, width=columns,
                **environment):
    """What the command writes to a terminal; `feed` writes to its standard input meanwhile."""
    ours, theirs = pty.openpty()
    fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 24, width, 0, 0))
    variables = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    process = subprocess.Popen([program, *arguments], stderr=theirs,
                               stdin=theirs if stdin_too else subprocess.PIPE,
                               stdout=theirs if stdout_too else subprocess.DEVNULL,
                               env={**variables, "TERM": "xterm", **environment})
    os.close(theirs)
    if feed:
        feed(process.stdin)
    if process.stdin:
        process.stdin.close()
    text = b""
    while True:
        try:
            piece = os.read(ours, 65536)
        except OSError:
            piece = b""
        if not piece:
            break
        text += piece
    os.close(ours)
    return process.wait(timeout=20), text.decode().replace("\r\n", "\n")


def plain(text):
    return re.sub(r"\x1b\[[0-9;]*[mK]", "", text)


def squeezed(text):
    return sorted(re.findall(r"\S", text))


wide = ("EgrVlanEntry", "--chip", "BCM56980_A0")
full = "ff " * 51 + "00\n"
for arguments in (("tables",), ("fields", "bitmap"), ("layout", "VlanEntry", "--chip", "33"),
                  ("compare", "VlanProfile2Entry", "--chip", "56980", "--chip", "33")):
    _, text = on_terminal(*arguments, "--color", "never")
    check(max(map(len, text.splitlines())) <= columns, f"{arguments}: wider than the terminal")
    check(squeezed(text) == squeezed(run(*arguments)[1].decode()), f"{arguments}: letters are lost")
code, text = on_terminal("decode", *wide, feed=lambda pipe: pipe.write(full.encode()))
piped = run("decode", *wide, data=full.encode())[1].decode()
lines = plain(text).splitlines()
check(code == 0 and max(map(len, lines[1:])) <= columns, "decode: wider than the terminal")
check(squeezed(plain(text)) == squeezed(piped), "decode: letters are lost")

_, text_of_80 = on_terminal("tables", "--color", "never", width=0)
check(columns < max(map(len, text_of_80.splitlines())) <= 80, "a terminal of unknown width has 80")

check("\x1b[" in text and "\x1b" not in piped, "colours on a terminal only")
for arguments, environment in ((("--color", "never"), {}), ((), {"NO_COLOR": "1"}),
                               ((), {"TERM": "dumb"})):
    check("\x1b" not in on_terminal("chips", *arguments, **environment)[1],
          f"colours in spite of {arguments} {environment}")
check("\x1b" in on_terminal("chips", "--color", "always", NO_COLOR="1")[1], "--color always")

code, text = on_terminal("encode", "VlanEntry", "--chip", "33", "stg=1", "-f", "raw")
check(code == 2 and "-o FILE" in text, f"raw bytes on a terminal: {text!r}")

code, text = on_terminal("decode", "VlanEntry", "--chip", "33", stdin_too=True)
check(code == 2 and "no FILE given" in text, f"waits for a terminal's input: {text!r}")


def slow(pipe):
    for _ in range(14):
        pipe.write(bytes(16 * 4096))
        pipe.flush()
        time.sleep(0.1)


code, text = on_terminal("decode", "VlanEntry", "--chip", "33", "--nonzero", "-", feed=slow,
                         stdout_too=False)
check(code == 0 and re.search(r"\r\d+ entries", text), f"no counter: {text!r}")
check(text.endswith("\r\x1b[K"), f"the counter stays: {text[-40:]!r}")
quick = on_terminal("decode", "VlanEntry", "--chip", "33", "--nonzero", "-", stdout_too=False,
                    feed=lambda pipe: pipe.write(bytes(16)))
check(quick == (0, ""), f"a counter for quick work: {quick}")
finish()
