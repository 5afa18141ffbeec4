"""libvelmar for ctypes: its structures and functions as velmar.h declares them, and its errors."""

from __future__ import annotations

import contextlib
import ctypes
import json
import operator
import os
import pathlib
from ctypes import POINTER, c_char_p, c_int, c_size_t, c_uint32, c_uint64, c_void_p
from typing import Any, Dict, Iterator, List, Optional, Tuple

# velmar_code
NOT_ON_CHIP = 6
NO_ENTRY = 10
NONE = (1 << 32) - 1  # no entry, chip or table
# Numbers of velmar_field.type and velmar_table.kind
TYPES = ("U8", "U16", "U32", "U64", "Raw128", "bitmap")
KINDS = ("table", "register array")


class Brief(type):
    """help() of its classes leaves out what every Python class has."""

    def __dir__(cls) -> List[str]:
        return [name for name, value in vars(cls).items() if callable(value) and name[0] != "_"]


class Error(ValueError, metaclass=Brief):
    """What velmar refuses: the text says what is wrong, and what to do about it. A wrong type is a TypeError
    as well, and a position that is not there an IndexError.
    code         the velmar_code of velmar.h; 0 if the module refuses it, not the library
    line, entry, field
                 of what is read: line from 1, index of the entry, accessor; None where it is not known
    choices      the keywords that mend it, with the values that they may have, such as {"hex_order":
                 ("bytes", "words")}; an empty tuple for any value
    """

    def __init__(self, message: str, code: int = 0):
        super().__init__(message)
        self.code = code
        self.line: Optional[int] = None
        self.entry: Optional[int] = None
        self.field: Optional[str] = None
        self.choices: Dict[str, Tuple[str, ...]] = {}


class WrongType(Error, TypeError):
    """See Error."""


class WrongPosition(Error, IndexError):
    """See Error."""


class velmar_fault(ctypes.Structure):
    _fields_ = [("text", c_char_p), ("remedy", c_char_p), ("options", c_char_p), ("field", c_char_p),
                ("line", c_uint64), ("column", c_uint64), ("entry", c_uint32), ("code", c_uint32)]


class velmar_chip(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("index", c_uint32), ("number", c_uint32)]


class velmar_table(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("purpose", c_char_p), ("index", c_uint32), ("kind", c_uint32),
                ("field_count", c_uint32), ("unused", c_uint32)]


class velmar_field(ctypes.Structure):
    _fields_ = [("accessor", c_char_p), ("hardware_name", c_char_p), ("meaning", c_char_p),
                ("index", c_uint32), ("id", c_uint32), ("type", c_uint32), ("first_bit", c_uint32),
                ("bits", c_uint32), ("overlaps", c_uint32), ("family_letters", c_uint32),
                ("family_number", c_uint32), ("family_first", c_uint32), ("family_fields", c_uint32)]


class velmar_layout_facts(ctypes.Structure):
    _fields_ = [(name, c_uint32) for name in (
        "table", "chip", "variants", "fields", "entry_bytes", "words", "entries", "elements",
        "identifiers", "base", "element_step", "identifier_step", "access_type", "block")]


class velmar_place(ctypes.Structure):
    _fields_ = [("layout", c_void_p), ("index", c_uint32), ("identifier", c_uint32)]


class velmar_read_options(ctypes.Structure):
    _fields_ = [("size", c_size_t), ("input", c_char_p), ("hex_order", c_char_p), ("byte_order", c_char_p),
                ("origin", c_uint64), ("has_origin", c_uint32), ("has_first", c_uint32),
                ("first", c_uint32), ("stride", c_uint32), ("beyond_end", c_uint32),
                ("variant", c_uint32)]


# Buffers, layouts and dumps are void pointers here: an array, bytes and an address all go there.
_buffer, _layout, _dump, _size = c_void_p, c_void_p, c_void_p, c_size_t
_read = [_layout, c_uint32, _buffer, _size]
_options = POINTER(velmar_read_options)
_made = POINTER(c_void_p)
FUNCTIONS = {
    "velmar_last_fault": (c_int, [POINTER(velmar_fault), _size]),
    "velmar_version": (c_char_p, []),
    "velmar_chip_count": (c_uint32, []),
    "velmar_table_count": (c_uint32, []),
    "velmar_chip_info": (c_int, [c_uint32, POINTER(velmar_chip), _size]),
    "velmar_table_info": (c_int, [c_uint32, POINTER(velmar_table), _size]),
    "velmar_find_field": (c_int, [_layout, c_char_p, POINTER(c_uint32)]),
    "velmar_find_table": (c_int, [c_char_p, POINTER(c_uint32)]),
    "velmar_find_chip": (c_int, [c_char_p, POINTER(c_uint32)]),
    "velmar_layout_of": (c_int, [c_uint32, c_uint32, c_uint32, POINTER(_layout)]),
    "velmar_find_layout": (c_int, [c_char_p, c_char_p, c_uint32, POINTER(_layout)]),
    "velmar_layout_info": (c_int, [_layout, POINTER(velmar_layout_facts), _size]),
    "velmar_fields_of": (c_int, [_layout, POINTER(velmar_field), _size, _size]),
    "velmar_find_fields": (c_int, [_layout, c_char_p, _buffer, _size, POINTER(_size)]),
    "velmar_field_mask": (c_int, [_layout, _buffer, _size]),
    "velmar_encode": (c_int, [_layout, POINTER(c_char_p), _size, _buffer, _size]),
    "velmar_read_column": (c_int, _read + [_buffer, _size]),
    "velmar_read_word_column": (c_int, _read + [_buffer, _size]),
    "velmar_read_fields": (c_int, [_layout, _buffer, _size, _buffer, _size, _buffer, _size]),
    "velmar_write_column": (c_int, _read + [_buffer, _size]),
    "velmar_write_word_column": (c_int, _read + [_buffer, _size]),
    "velmar_write_fields": (c_int, [_layout, _buffer, _size, _buffer, _size, _buffer, _size]),
    "velmar_address": (c_int, [_layout, c_uint32, c_uint32, POINTER(c_uint32)]),
    "velmar_entry_at": (c_int, [c_uint32, c_uint32, c_uint32, c_uint32, POINTER(velmar_place),
                                _size]),
    "velmar_dump_read": (c_int, [_layout, _options, _buffer, _size, _made]),
    "velmar_dump_of": (c_int, [_layout, c_uint32, _buffer, _size, _buffer, _size, _made]),
    "velmar_dump_free": (None, [_dump]),
    "velmar_dump_index": (c_int, [_dump, _size, _buffer, _size]),
    "velmar_dump_bytes": (c_int, [_dump, _made, POINTER(_size)]),
    "velmar_dump_note": (c_int, [_dump, _size, POINTER(c_char_p)]),
    "velmar_select": (c_int, [_dump, POINTER(c_char_p), _size, c_char_p, c_uint32, _buffer, _size,
                              POINTER(_size)]),
    "velmar_text_free": (None, [c_void_p]),
    "velmar_entry_text": (c_int, [_layout, _buffer, _size, _made]),
    "velmar_diff": (c_int, [_dump, _dump, _made]),
    "velmar_compare": (c_int, [c_uint32, c_uint32, c_uint32, c_uint32, _made]),
    "velmar_identify": (c_int, [_buffer, _size, _options, c_uint32, c_uint32, _made]),
    "velmar_translate": (c_int, [_dump, c_uint32, _made, _made]),
}


def _path() -> str:
    """The library: the one that is named, that of the module's own prefix, or the system's."""
    named = os.environ.get("VELMAR_LIBRARY")
    if named:
        return named
    name = "libvelmar.so.0"
    above = pathlib.Path(__file__).resolve().parents  # PREFIX/lib/python3/dist-packages/velmar
    for folder in [above[3], above[3].with_name("lib64")] if len(above) > 4 else []:
        if (folder / name).exists():
            return str(folder / name)
    return name


def _loaded(path: str) -> ctypes.CDLL:
    try:
        library = ctypes.CDLL(path)
        for name, (result, arguments) in FUNCTIONS.items():
            function = getattr(library, name)
            function.restype, function.argtypes = result, arguments
    except (OSError, AttributeError) as error:
        raise ImportError(f"velmar: {error}; install libvelmar0, or name the file of the library in "
                          "the environment variable VELMAR_LIBRARY") from None
    return library


library = _loaded(_path())


def call(function: str, *arguments: Any, source: str = "") -> None:
    """Calls a function that returns a velmar_code. Raises its fault; `source` is what was read."""
    if getattr(library, function)(*arguments) == 0:
        return
    fault = velmar_fault()
    library.velmar_last_fault(ctypes.byref(fault), ctypes.sizeof(fault))
    place = f"{source}:" if source else ""
    if fault.line:
        place += f"{fault.line}:" if source else f"line {fault.line}:"
    message = fault.text.decode() + (f"; {fault.remedy.decode()}" if fault.remedy else "")
    error = Error(f"{place} {message}" if place else message, fault.code)
    error.line = fault.line or None
    error.entry = None if fault.entry == NONE else fault.entry
    error.field = fault.field.decode() or None
    for option in filter(None, fault.options.decode().split(";")):
        name, _, choices = option.partition("=")
        error.choices[name] = tuple(filter(None, choices.split("|")))
    raise error


@contextlib.contextmanager
def made(function: str, *arguments: Any, free: str = "velmar_dump_free",
         source: str = "") -> Iterator[c_void_p]:
    """What a function makes; it is freed at the end."""
    result = c_void_p()
    call(function, *arguments, ctypes.byref(result), source=source)
    try:
        yield result
    finally:
        getattr(library, free)(result)


def made_text(function: str, *arguments: Any, source: str = "") -> bytes:
    """The text that a function makes."""
    with made(function, *arguments, free="velmar_text_free", source=source) as result:
        return ctypes.string_at(result.value or 0)


def document(function: str, *arguments: Any, source: str = "") -> Any:
    """The JSON document that a function makes."""
    return json.loads(made_text(function, *arguments, source=source))


def info(function: str, structure: type, *arguments: Any) -> Any:
    """The structure that a function gives."""
    facts = structure()
    call(function, *arguments, ctypes.byref(facts), ctypes.sizeof(facts))
    return facts


def find(function: str, *arguments: Any) -> int:
    """The index, or the address, that a function finds."""
    found = c_uint32()
    call(function, *arguments, ctypes.byref(found))
    return found.value


def text(value: Any, what: str = "text") -> bytes:
    """A text as C takes it."""
    if not isinstance(value, str):
        raise WrongType(f"{value!r} is not a {what}; give a str")
    if "\0" in value:
        raise Error(f"{value!r} has a zero character; remove it")
    return value.encode(errors="backslashreplace")


def integer(value: Any, what: str) -> int:
    """Any integer, such as those of numpy."""
    try:
        return operator.index(value)
    except TypeError:
        raise WrongType(f"{what}: {value!r} is not a number; give an int") from None


def unsigned(value: Any, what: str, bits: int = 32) -> int:
    """A number as C takes it: ctypes would cut off what is too much, without a word."""
    number = integer(value, what)
    if not 0 <= number < 1 << bits:
        shown = number if abs(number) < 1 << 64 else f"of {number.bit_length()} bits"
        raise Error(f"{what} {shown} is not a number of {bits} bits; give 0 to {(1 << bits) - 1}")
    return number
