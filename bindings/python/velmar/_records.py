"""What the module knows of chips, tables and fields, and names of them in any form."""

from __future__ import annotations

import dataclasses
import operator
from dataclasses import dataclass
from typing import Any, Optional, Tuple, Union

from . import _library
from ._library import Brief, WrongType, find, info, text


@dataclass(frozen=True)
class Chip(metaclass=Brief):
    """A chip: name such as "BCM56990_B0"; number, which never changes."""

    name: str
    number: int


@dataclass(frozen=True)
class Table(metaclass=Brief):
    """A table: class name such as "VlanEntry"; kind, "table" or "register array"; purpose."""

    name: str
    kind: str
    purpose: str


@dataclass(frozen=True)
class Field(metaclass=Brief):
    """A field of a layout: `bits` bits of the entry, from bit `first_bit` on.
    name, hardware_name, meaning
                     accessor such as "fidId", which is the key in entries; "FID_ID"; a few words
    index, id        in the table's list of fields, the same on every chip; identifier, never changes
    type             "U8", "U16", "U32", "U64", "Raw128" or "bitmap"
    overlaps         whether it shares bits with another field of the chip
    family, number   "spTreePort" and 3 for spTreePort3; "" and None for a field alone
    """

    name: str
    hardware_name: str
    meaning: str
    index: int
    id: int
    type: str
    first_bit: int
    bits: int
    overlaps: bool
    family: str
    number: Optional[int]


@dataclass(frozen=True)
class Family(metaclass=Brief):
    """A field for each port: name such as "spTreePort", which is the key in entries; numbers, the ports;
    fields. Item i of a family's values is that of port numbers[i]."""

    name: str
    numbers: Tuple[int, ...]
    fields: Tuple[Field, ...] = dataclasses.field(repr=False)


#: Names in any case, numbers, or what the module lists.
ChipName = Union[str, int, Chip]
TableName = Union[str, Table]
FieldName = Union[str, int, Field, Family]


def name_of(value: Any, what: str) -> str:
    if isinstance(value, (Chip, Table, Field, Family)):
        return value.name
    if isinstance(value, str):
        return value
    try:
        return str(operator.index(value))
    except TypeError:
        raise WrongType(f"{value!r} is not a {what}; give its name, such as a str") from None


def find_chip(chip: ChipName) -> int:
    return find("velmar_find_chip", text(name_of(chip, "chip")))


def find_table(table: TableName) -> int:
    return find("velmar_find_table", text(name_of(table, "table")))


def chip_name(chip: ChipName) -> str:
    return str(info("velmar_chip_info", _library.velmar_chip, find_chip(chip)).name.decode())


def table_name(table: TableName) -> str:
    return str(info("velmar_table_info", _library.velmar_table, find_table(table)).name.decode())
