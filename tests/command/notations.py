#!/usr/bin/env python3
"""Dumps in the notations in which people save and paste them: each gives the bytes of the dump or is
refused, and the options that the refusals propose then give them.

usage: notations.py SOURCE_DIR BUILD_DIR [--table]"""

import base64
import functools
import gzip
import json
import lzma
import os
import random
import re
import subprocess
import sys
import tempfile

from command import check, finish, golden_tables, run

random.seed(12)
targets = [("VlanMplsEntry", "BCM56980_A0"), ("VlanEntry", "BCM56980_A0"),
           ("VlanEntry", "BCM56990_B0"), ("VlanProfile2Entry", "BCM56990_B0")]
targets = [table for table in golden_tables() if (table.name, table.chip) in targets]
address = 0x7ffe1000


def dumps(size, count=17):
    few = bytearray(size * count)
    for bit in (3, size * 8 * 9 + 17, size * 8 * 12 + 30):
        few[bit // 8] |= 1 << bit % 8
    characters = [random.randrange(65, 91) for _ in range(size * count)]
    return {"zero": bytes(size * count), "few bits": bytes(few),
            "random": random.randbytes(size * count), "ASCII": bytes(characters)}


def tool(*command):
    return lambda dump, table: subprocess.run(command, input=dump, stdout=subprocess.PIPE,
                                              check=True).stdout


def each(entry_text):
    """A line for each entry, from its index, bytes and words."""
    def notation(dump, table):
        lines = []
        size = table.entry_bytes
        for index in range(len(dump) // size):
            entry = dump[index * size:][:size]
            words = [int.from_bytes(entry[at:at + 4], "little") for at in range(0, size, 4)]
            lines.append(entry_text(index, entry, words))
        return "\n".join(lines).encode()
    return notation


def after(change, notation):
    return lambda dump, table: change(notation(dump, table))


def logged(prefix, notation):
    """The notation with a prefix before each line, from the number of the line."""
    return after(lambda text: "\n".join(prefix(number) + line for number, line in enumerate(
        text.decode().splitlines())).encode(), notation)


def swapped(dump):
    return b"".join(dump[at:at + 4][::-1] for at in range(0, len(dump), 4))


def numbers(form, separator, words=False):
    return each(lambda i, entry, w: separator.join(form.format(n) for n in (w if words else entry)))


def memory(lead, width, gap, order="little"):
    """Lines of 16 bytes in groups, with a text column, as kernels and boot loaders print memory."""
    def line(at, piece):
        groups = " ".join(f"{int.from_bytes(piece[i:i + width], order):0{2 * width}x}"
                          for i in range(0, len(piece), width))
        text = "".join(chr(byte) if 32 <= byte < 127 else "." for byte in piece)
        return f"{lead(at)}: {groups:<{32 + 16 // width - 1}}{gap}{text}"
    return lambda dump, table: "\n".join(line(at, dump[at:at + 16])
                                         for at in range(0, len(dump), 16)).encode()


sizes = {"b": 1, "h": 2, "w": 4, "g": 8}


@functools.lru_cache(maxsize=None)
def examined(dump):
    """What gdb prints of an array with these bytes, for each of its sizes and as a value."""
    with tempfile.TemporaryDirectory() as directory:
        binary = os.path.join(directory, "program")
        code = f"unsigned char table[] = {{{','.join(map(str, dump))}}};"
        subprocess.run(["gcc", "-g", "-nostdlib", "-static", "-x", "c", "-", "-o", binary, "-Wl,-e,table",
                        f"-Wl,--section-start=.data={address:#x}"], input=code.encode(), check=True)
        commands = [f"x/{len(dump) // size}x{name} &table" for name, size in sizes.items()] + ["p/x table"]
        arguments = [part for command in commands for part in ("-ex", command, "-ex", "echo ====\\n")]
        output = subprocess.run(["gdb", "-batch", "-nx", *arguments, binary], stdout=subprocess.PIPE,
                                check=True).stdout
    return dict(zip([*sizes, "p"], output.split(b"====\n")))


def debugger(size):
    """Nothing for a dump that is not a multiple of the size: gdb prints no part of a number."""
    return lambda dump, table: None if len(dump) % sizes.get(size, 1) else examined(dump)[size]


def if_hexadecimal(text):
    return "right" if re.search(b"[a-f]", text) else "refused|--hex-order words"


plain, indexed = numbers("{:02x}", " "), each(lambda i, e, w: f"{i}: " + " ".join(map("{:08x}".format, w)))
xxd = tool("xxd")
with_origin = f"--origin {address:#x}"
# What is expected: "right"; options that are needed; "refused"; a choice of these after "|"; or a function
# of the text that tells it.
notations = {
    "raw": ("right", lambda dump, table: dump),
    "raw of a big-endian host": ("--byte-order big --input raw", lambda dump, table: swapped(dump)),
    "bytes": ("right", plain),
    "BYTES,": ("right", numbers("{:02X}", ",")),
    "0x bytes;": ("right", numbers("0x{:02x}", "; ")),
    "bytes:": ("right", numbers("{:02x}", ":")),
    "{0x bytes}": ("right", each(lambda i, e, w: "{" + ", ".join(map("0x{:02X}".format, e)) + "},")),
    "[bytes]": ("right", each(lambda i, e, w: f"[{e.hex(' ')}]")),
    "\\x bytes": ("right", each(lambda i, e, w: '"' + "".join(map("\\x{:02x}".format, e)) + '"')),
    "words": ("right", numbers("{:08x}", "\t", True)),
    "words, not padded": (if_hexadecimal, numbers("{:x}", " ", True)),
    "0x words": ("right", numbers("0x{:08X}", ", ", True)),
    "0x words, not padded": ("right", numbers("0x{:x}", " ", True)),
    "0x words of the other byte order": ("--byte-order big", lambda dump, table:
                                         numbers("0x{:08x}", " ", True)(swapped(dump), table)),
    "index: words": ("right", indexed),
    "0x index: words": ("right", each(lambda i, e, w: f"{i:#x}: " + " ".join(map("{:08x}".format, w)))),
    "[index] bytes": ("right", each(lambda i, e, w: f"[0x{i:x}] {e.hex(' ')}")),
    "NAME[index]: 0x words": ("right", each(lambda i, e, w: f"T.x0[{i}]: " + " ".join(map(hex, w)))),
    "address: 0x words": (with_origin, each(lambda i, e, w: f"{address + len(e) * i:#x}: " +
                                            " ".join(map("{:#010x}".format, w)))),
    # The first entries may have such indexes too.
    "0x offset: 0x words": ("--input xxd", each(lambda i, e, w: f"{len(e) * i:#x}: " +
                                                " ".join(map("{:#010x}".format, w)))),
    "0x offset: bytes": ("--input xxd", each(lambda i, e, w: f"{len(e) * i:#x}: {e.hex(' ')}")),
    "offset: bytes": ("--input xxd|refused", each(lambda i, e, w: f"{len(e) * i:x}: {e.hex(' ')}")),
    "entry without blanks": ("right", each(lambda i, e, w: e.hex() if len(e) > 4 else e.hex(" "))),
    "0x word a line": ("right", each(lambda i, e, w: "\n".join(map("{:#010x}".format, w)))),
    "0x number a line": ("right", each(lambda i, e, w: "0x" + e[::-1].hex())),
    "words of 16 bits": ("--hex-order words", each(lambda i, e, w: " ".join(
        e[at:at + 2][::-1].hex() for at in range(0, len(e), 2)))),
    "CSV": ("right", lambda dump, table: run("decode", table.name, "--chip", table.chip, "--input", "raw",
                                             "-f", "csv", "-", data=dump)[1]),
    "JSON list of decimals": ("refused", lambda dump, table: json.dumps(list(dump)).encode()),
    "decimal bytes": ("refused", numbers("{}", " ")),
    "base64": ("refused", lambda dump, table: base64.encodebytes(dump)),
    "gzip": ("refused", lambda dump, table: gzip.compress(dump, mtime=0)),
    "xz": ("refused", lambda dump, table: lzma.compress(dump)),
    "Python bytes": ("right", lambda dump, table: ("b'" + "".join(map("\\x{:02x}".format, dump)) +
                                                   "'").encode()),
    "UTF-16": ("refused", after(lambda text: text.decode().encode("utf-16"), xxd)),
    "UTF-16 without a mark": ("refused", after(lambda text: text.decode().encode("utf-16-be"), plain)),
    "xxd | UTF-8 mark": ("right", after(lambda text: b"\xef\xbb\xbf" + text, xxd)),
    "bytes, no-break spaces": ("right", after(lambda text: text.replace(b" ", b"\xc2\xa0"), plain)),
    "xxd -R": ("right", after(lambda text: re.sub(rb"(?m)^(\w+)", b"\x1b[1;32m\\1\x1b[0m", text), xxd)),
    "bytes, CRLF, comments": ("right", after(lambda text: b"# vlan\r\n" + text.replace(
        b"\n", b" # ok\r\n\r\n"), plain)),
    "bytes in a session": ("right", after(lambda text: b"$ show vlan 5\n" + text + b"\nsw.0>", plain)),
    "xxd in a session": ("right", after(lambda text: b"root@switch:~# xxd d\n" + text + b"root@switch:~# ",
                                        xxd)),
    "bytes, text between": ("refused", after(lambda text: text.replace(b"\n", b"\nand then\n"), plain)),
    "gdb p/x": ("refused", debugger("p")),  # it shortens equal bytes and long arrays
    "lldb memory read": (with_origin, memory(lambda at: f"{address + at:#x}", 1, "  ")),
    "md.b in a session": (with_origin, after(lambda text: b"=> md.b 7ffe1000\n" + text + b"\n=> ", memory(
        lambda at: f"{address + at:08x}", 1, "    "))),
    "md.l of a big-endian processor": (f"{with_origin} --hex-order bytes", memory(
        lambda at: f"{address + at:08x}", 4, "    ", "big")),
    "hexdump -e": ("refused", tool("hexdump", "-e", '16/1 "%02x " "\\n"')),  # a "*" without offset
}
for name, options in (("b", ""), ("h", " --hex-order words"), ("w", ""), ("g", "")):
    notations[f"gdb x/x{name}"] = ("right" + options.replace(" ", "|", 1), debugger(name))
    notations[f"gdb x/x{name} without symbols"] = (with_origin + options, after(
        lambda text: text and re.sub(rb" <\S+>", b"", text), debugger(name)))
for name, width, expected in (("b", 1, ""), ("w", 2, " --hex-order words"), ("l", 4, " --hex-order words")):
    notations[f"md.{name}"] = ("--origin 0x80001000" + expected, memory(
        lambda at: f"{0x80001000 + at:08x}", width, "    "))
for width, expected in ((1, "right"), (4, "--hex-order words")):
    notations[f"hex dump of a kernel, {width}"] = (expected, memory(
        lambda at: f"[   12.{345678 + at // 9:06}] vlan: {at:08x}", width, "  "))

prefixes = {
    "ISO 8601": lambda n: f"2026-11-22T06:{12 + n // 60}:{n % 60:02}.{123 + n}+00:00 ",
    "ISO 8601, level, process": lambda n: f"2026-11-22 06:{12 + n // 60}:{n % 60:02},{123 + n} INFO daemon: ",
    "syslog": lambda n: f"Nov 22 06:{12 + n // 60}:{n % 60:02} host daemon[99]: ",
    "dmesg": lambda n: f"[   12.{345678 + 7 * n:06}] ",
    "dmesg, level": lambda n: f"<6>[{n + 95:5}.345678] ",
    "[host]": lambda n: "[host] ",
    "level": lambda n: "INFO ",
    "<level>": lambda n: "<6>",
    "process": lambda n: "daemon[99]: ",
}
between = after(lambda text: text.replace(b"\n", b"\nlink is up\n", 1), plain)
for name, prefix in prefixes.items():
    for kind, expected, notation in (("bytes", "right", plain), ("index: words", "right", indexed),
                                     ("xxd", "right", xxd), ("bytes, text between", "refused", between)):
        notations[f"log of {kind}, {name}"] = (expected, logged(prefix, notation))
for name, prefix in (("a host of hex digits", lambda n: "[dead] "),
                     ("a prefix on some lines", lambda n: prefixes["dmesg"](n) * (n % 2)),
                     ("two kinds of prefix", lambda n: prefixes["dmesg" if n % 2 else "syslog"](n))):
    notations[f"log of bytes, {name}"] = ("refused", logged(prefix, plain))

for line in ("xxd", "xxd -c 8", "xxd -c 12", "xxd -c 20", "xxd -g1", "xxd -g2", "xxd -a", "xxd -u",
             "xxd -d", "xxd -d -g1", "xxd -i", "xxd -p", "hexdump -C", "hexdump -v -C",
             "od -A x -t x1", "od -A x -t x1z", "od -A d -t x1", "od -A d -v -t x1z",
             "od -A o -v -t x1", "od -t x1", "od -A n -v -t x1"):
    notations[line] = ("right", tool(*line.split()))
for line in ("xxd -g4", "xxd -g8", "od -A x --endian=big -t x4"):
    notations[line] = ("--hex-order bytes", tool(*line.split()))
for line in ("xxd -e", "xxd -e -g2", "hexdump -v", "hexdump", "hexdump -x", "od -A x -t x2",
             "od -A x -t x4", "od -A d -t x4", "od -A n -v -t x2"):
    notations[line] = ("--hex-order words", tool(*line.split()))
# Digits in lines of another length may have been cut by a terminal; a "*" without offset says no number.
for line in ("xxd -p -c 32", "xxd -p -c 40", "od -A n -t x1", "xxd -b", "od", "od -v", "od -t u1",
             "od -A n -v -t u1", "od -t d4", "od -c", "hexdump -b", "hexdump -d", "hexdump -c"):
    notations[line] = ("refused", tool(*line.split()))

VALUE = "raw|hexdump|hex|xxd|od|json|csv|bytes|words|int|big|little|0x[0-9a-f]+|ADDRESS"


def proposed(message, origin):
    """The options that a message proposes, such as "--hex-order bytes or words", one by one."""
    for option, values in re.findall(rf"(--input|--hex-order|--byte-order|--origin)"
                                     rf"((?:(?:,? or|,|) (?:{VALUE})\b)*)", message):
        named = re.findall(VALUE, values)
        if option == "--origin" and named in ([], ["ADDRESS"]):
            named = [origin] if origin else []
        yield from ([option, value] for value in named)


def outcome(table, dump, text, told):
    """right, refused, the options that make it right, or WRONG and why."""
    origin = "".join(re.findall(r"--origin (\w+)", told))

    def read(options):
        return run("encode", table.name, "--chip", table.chip, "--base", "-", "-f", "raw", *options,
                   data=text)

    def follow(given):
        """Reads with options; if that is refused, also with each option that the message proposes."""
        code, result, error = read(given)
        if code == 0:
            return (" ".join(given) or "right") if result == dump else "WRONG"
        if code != 2 or result or error.count("\n") != 1 or "; " not in error:
            return f"WRONG message: {error}"
        results = [follow(given + option) for option in proposed(error, origin) if option[0] not in given]
        wrong = [found for found in results if found.startswith("WRONG")]
        good = [found for found in results if found != "refused" and found not in wrong]
        # What is proposed under a condition ("if ...") or beside the right one is for other dumps.
        if wrong and not good and "if " not in error:
            return f"WRONG remedy: {error}"
        return good[0] if good else "refused"

    if told.startswith("--byte-order"):  # nothing in a dump shows it
        code, result, error = read(told.split())
        return told if (code, result) == (0, dump) else f"WRONG {error}"
    return follow([])


def is_as(result, expected):
    """Whether no other options are needed than one of the expectations names."""
    def parts(text):
        return set(re.findall(r"refused|--\S+ \S+", text))
    return any(parts(result) <= parts(choice) for choice in expected.split("|"))


if __name__ == "__main__":
    rows = []
    for name, (expectation, notation) in notations.items():
        for table in targets:
            for kind, dump in dumps(table.entry_bytes).items():
                text = notation(dump, table)
                if text is None:
                    continue
                expected = expectation(text) if callable(expectation) else expectation
                where = f"{name}, {table.name} on {table.chip} ({table.entry_bytes} bytes), {kind}"
                result = outcome(table, dump, text, expected)
                rows.append((where, expected, result))
                check(not result.startswith("WRONG"), f"{where}: {result}")
                # Characters of ASCII may be decimal numbers, zeros after a "*" may have an offset of any base.
                # Zeros are the same in any order.
                is_open = kind in ("ASCII", "zero") and (result != "refused" or "hexdump" in name)
                check(result.startswith("WRONG") or is_as(result, expected) or is_open,
                      f"{where}: {result}, expected {expected}")
    if "--table" in sys.argv:
        for row in rows:
            print("\t".join(cell.strip() for cell in row))
    finish()
