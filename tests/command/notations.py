#!/usr/bin/env python3
"""Dumps in the notations in which people save and paste them: each gives the bytes of the dump or is
refused, and an option that the refusal proposes then gives them.

usage: notations.py SOURCE_DIR BUILD_DIR [--table]"""

import base64
import json
import random
import re
import subprocess
import sys

from command import check, finish, golden_tables, run

random.seed(12)
targets = [("VlanMplsEntry", "BCM56980_A0"), ("VlanEntry", "BCM56980_A0"),
           ("VlanEntry", "BCM56990_B0"), ("VlanProfile2Entry", "BCM56990_B0")]
targets = [table for table in golden_tables() if (table.name, table.chip) in targets]


def dumps(size, count=17):
    few = bytearray(size * count)
    for bit in (3, size * 8 * 9 + 17, size * 8 * 12 + 30):
        few[bit // 8] |= 1 << bit % 8
    letters = [random.randrange(65, 91) for _ in range(size * count)]
    return {"zero": bytes(size * count), "few bits": bytes(few),
            "random": random.randbytes(size * count), "ASCII": bytes(letters)}


def tool(*command):
    return lambda dump, size: subprocess.run(command, input=dump, stdout=subprocess.PIPE,
                                             check=True).stdout


def each(entry_text):
    """A line for each entry, from its index, bytes and words."""
    def notation(dump, size):
        lines = []
        for index in range(len(dump) // size):
            entry = dump[index * size:][:size]
            words = [int.from_bytes(entry[at:at + 4], "little") for at in range(0, size, 4)]
            lines.append(entry_text(index, entry, words))
        return "\n".join(lines).encode()
    return notation


def after(change, notation):
    return lambda dump, size: change(notation(dump, size))


def swapped(dump):
    return b"".join(dump[at:at + 4][::-1] for at in range(0, len(dump), 4))


def numbers(form, separator, words=False):
    return each(lambda i, entry, w: separator.join(form.format(n) for n in (w if words else entry)))


plain = numbers("{:02x}", " ")
xxd, canonical = tool("xxd"), tool("hexdump", "-C")
# What is expected: "right"; an option that is needed; "refused".
notations = {
    "raw": ("right", lambda dump, size: dump),
    "raw of a big-endian host": ("--byte-order big --input raw", lambda dump, size: swapped(dump)),
    "bytes": ("right", plain),
    "BYTES,": ("right", numbers("{:02X}", ",")),
    "0x bytes;": ("right", numbers("0x{:02x}", "; ")),
    "bytes:": ("right", numbers("{:02x}", ":")),
    "{0x bytes}": ("right", each(lambda i, e, w: "{" + ", ".join(map("0x{:02X}".format, e)) + "},")),
    "[bytes]": ("right", each(lambda i, e, w: f"[{e.hex(' ')}]")),
    "\\x bytes": ("right", each(lambda i, e, w: '"' + "".join(map("\\x{:02x}".format, e)) + '"')),
    "words": ("right", numbers("{:08x}", "\t", True)),
    "0x words": ("right", numbers("0x{:08X}", ", ", True)),
    "0x words, not padded": ("right", numbers("0x{:x}", " ", True)),
    "0x words of the other byte order": ("--byte-order big", lambda dump, size:
                                         numbers("0x{:08x}", " ", True)(swapped(dump), size)),
    "index: words": ("right", each(lambda i, e, w: f"{i}: " + " ".join(map("{:08x}".format, w)))),
    "[index] bytes": ("right", each(lambda i, e, w: f"[0x{i:x}] {e.hex(' ')}")),
    "NAME[index]: 0x words": ("right", each(lambda i, e, w: f"T.x0[{i}]: " + " ".join(map(hex, w)))),
    "address: 0x words": ("refused", each(lambda i, e, w: f"{0x7ffe1000 + len(e) * i:#x}: " +
                                          " ".join(map("{:#010x}".format, w)))),
    "entry without blanks": ("right", each(lambda i, e, w: e.hex() if len(e) > 4 else e.hex(" "))),
    "0x word a line": ("right", each(lambda i, e, w: "\n".join(map("{:#010x}".format, w)))),
    "0x number a line": ("right", each(lambda i, e, w: "0x" + e[::-1].hex())),
    "words of 16 bits": ("--hex-order words", each(lambda i, e, w: " ".join(
        e[at:at + 2][::-1].hex() for at in range(0, len(e), 2)))),
    "JSON list of decimals": ("refused", lambda dump, size: json.dumps(list(dump)).encode()),
    "decimal bytes": ("refused", numbers("{}", " ")),
    "base64": ("refused", lambda dump, size: base64.encodebytes(dump)),
    "Python bytes": ("right", lambda dump, size: ("b'" + "".join(map("\\x{:02x}".format, dump)) +
                                                  "'").encode()),
    "UTF-16": ("refused", after(lambda text: text.decode().encode("utf-16"), xxd)),
    "UTF-16 without a mark": ("refused", after(lambda text: text.decode().encode("utf-16-be"), plain)),
    "xxd | UTF-8 mark": ("right", after(lambda text: b"\xef\xbb\xbf" + text, xxd)),
    "bytes, no-break spaces": ("right", after(lambda text: text.replace(b" ", b"\xc2\xa0"), plain)),
    "xxd -R": ("right", after(lambda text: re.sub(rb"(?m)^(\w+)", b"\x1b[1;32m\\1\x1b[0m", text), xxd)),
    "bytes, CRLF, comments": ("right", after(lambda text: b"# vlan\r\n" + text.replace(
        b"\n", b" # ok\r\n\r\n"), plain)),
    "bytes in a session": ("right", after(lambda text: b"$ show vlan 5\n" + text + b"\nbcm.0>", plain)),
    "xxd in a session": ("right", after(lambda text: b"root@switch:~# xxd d\n" + text + b"root@switch:~# ",
                                        xxd)),
    "bytes, text between": ("refused", after(lambda text: text.replace(b"\n", b"\nand then\n"), plain)),
}
for line in ("xxd", "xxd -c 8", "xxd -c 12", "xxd -c 20", "xxd -g1", "xxd -g2", "xxd -a", "xxd -u",
             "xxd -d", "xxd -d -g1", "xxd -i", "xxd -p", "xxd -p -c 32", "hexdump -C", "hexdump -v -C",
             "od -A x -t x1", "od -A x -t x1z", "od -A d -t x1", "od -A d -v -t x1z",
             "od -A o -v -t x1", "od -t x1", "od -A n -v -t x1"):
    notations[line] = ("right", tool(*line.split()))
for line in ("xxd -g4", "xxd -g8", "od -A x --endian=big -t x4"):
    notations[line] = ("--hex-order bytes", tool(*line.split()))
for line in ("xxd -e", "hexdump -v", "hexdump", "hexdump -x", "od -A x -t x2", "od -A x -t x4",
             "od -A d -t x4", "od -A n -v -t x2"):
    notations[line] = ("--hex-order words", tool(*line.split()))
for line in ("xxd -b", "od", "od -v", "od -t u1", "od -A n -v -t u1", "od -t d4", "od -c", "hexdump -b",
             "hexdump -d", "hexdump -c"):
    notations[line] = ("refused", tool(*line.split()))

OPTIONS = r"--(?:input (?:raw|hex|xxd|json)|hex-order (?:bytes|words|int)|byte-order big)"


def outcome(table, dump, text, told):
    """right, refused, an option that makes it right, or WRONG and why."""
    def read(*options):
        return run("encode", table.name, "--chip", table.chip, "--base", "-", "-f", "raw", *options,
                   data=text)
    code, result, error = read()
    if told.startswith("--byte-order"):  # nothing in a dump shows it
        return told if read(*told.split())[:2] == (0, dump) else f"WRONG {error}"
    if code == 0:
        return "right" if result == dump else "WRONG"
    if code != 2 or error.count("\n") != 1 or "; " not in error:
        return f"WRONG message: {error}"
    error = error.replace("bytes or words", "bytes or --hex-order words")
    options = re.findall(OPTIONS, error)
    results = {option: read(*option.split()) for option in options}
    good = [option for option in options if results[option][:2] == (0, dump)]
    # What is proposed under a condition ("if ...") or beside the right one is for other dumps.
    if not good and any(results[option][0] == 0 for option in options) and "if " not in error:
        return f"WRONG remedy: {error}"
    return good[0] if good else "refused"


rows = []
for name, (expected, notation) in notations.items():
    for table in targets:
        for kind, dump in dumps(table.entry_bytes).items():
            where = f"{name}, {table.name} on {table.chip} ({table.entry_bytes} bytes), {kind}"
            result = outcome(table, dump, notation(dump, table.entry_bytes), expected)
            rows.append((where, expected, result))
            check(not result.startswith("WRONG"), f"{where}: {result}")
            # Letters in ASCII may be decimal numbers, zeros after a "*" may have an offset of any base.
            # Zeros are the same in any order.
            is_open = kind in ("ASCII", "zero") and (result != "refused" or "hexdump" in name)
            check(result in (expected, "right") or is_open, f"{where}: {result}")
if "--table" in sys.argv:
    for row in rows:
        print("\t".join(cell.strip() for cell in row))
finish()
