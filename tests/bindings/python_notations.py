#!/usr/bin/env python3
"""Each notation of the command's test gives the same through the module: the same entries, or a refusal
with the same place and reason.

usage: python_notations.py SOURCE_DIR BUILD_DIR"""

import os
import re
import tempfile

from module import build  # finds the next ones
from command import check, finish, run
from notations import dumps, notations, targets
import velmar


def of_command(table, text):
    code, entries, error = run("encode", table.name, "--chip", table.chip, "--base", "-", "-f", "hex",
                               data=text)
    if code != 0:
        return "refused: " + re.sub(r"^velmar: (standard input[:\d]*: )?", "", error).split("; ")[0].strip()
    return [line.split(": ") for line in entries.decode().splitlines()]


def of_module(table, path):
    try:
        dump = velmar.load(path, table.name, table.chip)
    except velmar.Error as error:
        return "refused: " + re.sub(rf"^{re.escape(path)}[:\d]*: ", "", str(error)).split("; ")[0]
    size = table.entry_bytes
    return [[str(index), dump.data[i * size:][:size].hex(" ")] for i, index in enumerate(dump.indexes)]


def plain(result):
    """Without the words of a face for its options, and without the end of a text that is quoted long."""
    return re.sub(r"--[\w-]+|\b\w+(?= has no effect)", "OPTION", result) if isinstance(result, str) else result


with tempfile.TemporaryDirectory() as folder:
    path = os.path.join(folder, "dump")
    for name, (_, notation) in notations.items():
        for number, table in enumerate(targets):
            # Every table meets each kind of dump in some notation.
            kind, dump = list(dumps(table.entry_bytes).items())[(number + len(name)) % 4]
            text = notation(dump, table)
            if text is None:
                continue
            with open(path, "wb") as file:
                file.write(text)
            command, module = of_command(table, text), of_module(table, path)
            check(plain(command) == plain(module),
                  f"{name}, {table.name}, {kind}: {str(command)[:200]}, but {str(module)[:200]}")
finish()
