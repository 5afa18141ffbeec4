"""What the command velmar does for the module: it reads dumps in text formats, and compares chips."""

from __future__ import annotations

import json
import os
import pathlib
import subprocess
from typing import Any, Dict, List, Optional, Sequence, Set, Union

from . import _library
from ._layout import Dump, layout
from ._library import Error, chip_name, table_name, u32


def load(path: Union[str, os.PathLike[str]], table: str, chip: Union[str, int], variant: int = 0, *,
         input: str = "auto", hex_order: Optional[str] = None, byte_order: Optional[str] = None,
         stride: Optional[int] = None, first: Optional[int] = None) -> Dump:
    """Reads a dump in any notation that the command velmar reads: raw, hex, xxd, hexdump, od, json.

    The other arguments are the options of "velmar decode": `first` is the index of the first entry of
    a partial dump, `stride` the bytes from an entry to the next. The path "-" is standard input.
    Returns a Dump: layout, indexes and bytes of the entries. Runs the command that VELMAR_COMMAND
    names, that of the library's own prefix, or "velmar" of the PATH.
    Error: what the command refuses, with its message; there is no command.
    """
    of = layout(table, chip, variant)
    options = {"input": input, "hex-order": hex_order, "byte-order": byte_order, "stride": stride,
               "first": first}
    given = [f"--{name}={value}" for name, value in options.items() if value is not None]
    text = _run({0}, "encode", of.table, f"--chip={of.chip}", f"--variant={of.variant}",
                "--format=hex", f"--base={os.fsdecode(path)}", *given)
    lines = [line.split(":") for line in text.splitlines()]
    try:
        indexes: Sequence[int] = [int(index) for index, _ in lines]
        data = b"".join(bytes.fromhex(digits) for _, digits in lines)
    except ValueError:
        lines = []
    if not lines:
        raise _foreign()
    if indexes[-1] - indexes[0] + 1 == len(indexes):
        indexes = range(indexes[0], indexes[-1] + 1)
    return Dump(of, indexes, data)


def compare(a: Union[str, int], b: Union[str, int], table: Optional[str] = None,
            variant: int = 0) -> List[Dict[str, Any]]:
    """What changes from chip a to chip b: the rows of "velmar compare --format json".

    A row is {"table": "VlanEntry", "part": "stg", "change": "moved", "old": {"offset": 42,
    "width": 6}, "new": {...}}. "change" is "added", "gone", "changed", "moved", "resized" or "moved
    and resized". "part" is a field, or in parentheses a fact of the table such as "(entries)". "old"
    and "new" are None where there is nothing, a number or a text for such a fact. Runs the command,
    as load() does. Error: what the command refuses.
    """
    tables = [] if table is None else [table_name(table)]
    text = _run({0, 1}, "compare", *tables, f"--chip={chip_name(a)}", f"--chip={chip_name(b)}",
                f"--variant={u32(variant, 'variant')}", "--format=json")
    try:
        rows: List[Dict[str, Any]] = json.loads(text)["differences"]
    except ValueError:
        raise _foreign() from None
    return rows


def _program() -> str:
    named = os.environ.get("VELMAR_COMMAND")
    if named:
        return named
    above = pathlib.Path(_library.path).parents  # PREFIX/lib, or PREFIX/lib/x86_64-linux-gnu
    for folder in list(above)[1:3] if os.sep in _library.path else []:
        if (folder / "bin" / "velmar").exists():
            return str(folder / "bin" / "velmar")
    return "velmar"


def _foreign() -> Error:
    return Error(f"{_program()} does not print what velmar prints; name the file of the command in the "
                 "environment variable VELMAR_COMMAND")


def _run(expected: Set[int], *arguments: str) -> str:
    """What the command prints. Exit code 1 is a finding, such as a difference."""
    if any("\0" in argument for argument in arguments):
        raise Error("an argument has a zero character; remove it")
    try:
        done = subprocess.run([_program(), *arguments], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)
    except OSError as error:
        raise Error(f"{error}; install the command velmar, or name its file in the environment "
                    "variable VELMAR_COMMAND") from None
    if done.returncode not in expected or done.stderr:
        message = (done.stderr.decode(errors="replace").strip() or
                   f"{_program()} ended with code {done.returncode}")
        raise Error(message[len("velmar: "):] if message.startswith("velmar: ") else message)
    return done.stdout.decode()
