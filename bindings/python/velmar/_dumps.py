"""Dumps in files and in any notation, and what is known of them: tables, chips and differences."""

from __future__ import annotations

import ctypes
import os
import sys
from typing import Any, Dict, Iterable, List, Optional, Tuple, Union

from . import _library
from ._layout import Dump, layout
from ._library import Error, WrongType, text, unsigned
from ._records import ChipName, TableName, find_chip, find_table
from ._values import raw_bytes

_LONGEST = 64 << 20  # bytes of a dump

Path = Union[str, "os.PathLike[str]"]


def load(path: Path, table: TableName, chip: ChipName, variant: int = 0, *,
         where: Union[str, Iterable[str]] = (), input: str = "auto",
         hex_order: Optional[str] = None, byte_order: Optional[str] = None,
         stride: Optional[int] = None, first: Optional[int] = None,
         origin: Optional[int] = None) -> Dump:
    """Reads a dump of at most 64 MiB in any notation. The path "-" is standard input.
    where        conditions, as Layout.select() takes them: only the entries that fit
    input        "raw", "hex", "xxd", "hexdump", "od", "json" or "csv"; "auto" recognizes it
    hex_order    hexadecimal digits are "bytes" (the first byte first), "words" (the first word first)
                 or "int" (one number for each entry, the highest digit first); None: by their groups
    byte_order   the byte of each 32-bit word that comes first: "little" (None) the lowest, "big"
    stride       bytes from an entry to the next; None: those of an entry
    first        index of the first entry of a partial dump
    origin       address of entry 0, for a dump whose lines begin with addresses
    What may be read in several ways is refused: `choices` of the Error are the keywords that say which.
    """
    of = layout(table, chip, variant)
    options = _options(input, hex_order, byte_order, stride, first, origin)
    options.variant = of.variant
    name, raw = _contents(path)
    with _library.made("velmar_dump_read", of._handle, options, raw, len(raw),
                       source=name) as handle:
        dump = of._from_dump(handle, raw)
    return dump if where == () else of.select(dump, where)


def identify(data: Union[Path, bytes, bytearray, memoryview], table: Optional[TableName] = None,
             chip: Optional[ChipName] = None, **options: Any) -> List[Dict[str, Any]]:
    """The tables and chips that a dump fits, the likeliest first; empty if none fits.
    data: a path, as load() takes it, or the bytes of a dump. A table or chip that is given is the only
    one that is tried; options as for load(). A row is {"table": "VlanEntry", "chips": ["BCM56990_B0"],
    "entries": 8192, "tableEntries": 8192, "reason": "..."}.
    """
    own = _options(**options)
    of_table = _library.NONE if table is None else find_table(table)
    of_chip = _library.NONE if chip is None else find_chip(chip)
    name, raw = _contents(data) if isinstance(data, (str, os.PathLike)) else ("", raw_bytes(data))
    fits: List[Dict[str, Any]] = _library.document(
        "velmar_identify", raw, len(raw), own, of_table, of_chip,
        source=name)["fits"]
    return fits


def compare(a: ChipName, b: ChipName, table: Optional[TableName] = None,
            variant: int = 0) -> List[Dict[str, Any]]:
    """What changes from chip a to chip b: the rows of "velmar compare --format json":
    {"table": "VlanEntry", "part": "stg", "change": "moved", "old": {"offset": 42, "width": 6}, "new":
    {...}}. "change" may also be "added", "gone", "changed", "resized" or "moved and resized". "part" is
    a field, or a fact of the table such as "(entries)"; then "old" and "new" are numbers or texts.
    """
    of_table = _library.NONE if table is None else find_table(table)
    chips = [find_chip(chip) for chip in (a, b)]
    rows: List[Dict[str, Any]] = _library.document("velmar_compare", *chips, of_table,
                                                   unsigned(variant, "variant"))["differences"]
    return rows


def translate(dump: Dump, chip: ChipName) -> Tuple[Dump, List[Dict[str, Any]]]:
    """Moves the entries of a dump to another chip, each field to its place there.
    Returns the dump of the other chip and what it does not hold: {"field": "portBitmap", "reason":
    "...", "entries": [5, 7]} for each field that is lost. Fields that only the other chip has are zero. A
    dump of bytes: layout.select(data).
    """
    if not isinstance(dump, Dump):
        raise WrongType(f"{dump!r} is not a dump; give layout.select(data)")
    to = layout(dump.layout.table, chip, dump.layout.variant)
    moved = ctypes.c_void_p()
    with dump.layout._as_dump(dump) as handle:
        document = _library.document("velmar_translate", handle,
                                     find_chip(chip), ctypes.byref(moved))
    try:
        return to._from_dump(moved), document["losses"]
    finally:
        _library.library.velmar_dump_free(moved)


def _options(input: str = "auto", hex_order: Optional[str] = None, byte_order: Optional[str] = None,
             stride: Optional[int] = None, first: Optional[int] = None,
             origin: Optional[int] = None) -> _library.velmar_read_options:
    size = ctypes.sizeof(_library.velmar_read_options)
    options = _library.velmar_read_options(size, text(input), *(
        None if name is None else text(name) for name in (hex_order, byte_order)))
    if stride is not None:
        options.stride = unsigned(stride, "stride")
        if stride == 0:
            raise Error("stride 0 repeats one entry; give the bytes from an entry to the next")
    if first is not None:
        options.has_first, options.first = 1, unsigned(first, "first")
    if origin is not None:
        options.has_origin, options.origin = 1, unsigned(origin, "origin", 64)
    return options


def _contents(path: Path) -> Tuple[str, bytes]:
    """The name for messages, and what the file holds."""
    try:
        name = os.fsdecode(path)
    except TypeError:
        raise WrongType(f"{path!r} is not a path; give a str") from None
    try:
        if name == "-":
            name, raw = "standard input", sys.stdin.buffer.read(_LONGEST + 1)
        else:
            with open(path, "rb") as file:
                # What is known to be short is read in one piece: room for the most takes time.
                size = os.fstat(file.fileno()).st_size
                raw = file.read(None if 0 < size <= _LONGEST else _LONGEST + 1)
    except (OSError, ValueError) as error:
        reason = getattr(error, "strerror", None) or error
        raise Error(f"{name}: cannot open: {reason}; check the path") from None
    return name, raw
