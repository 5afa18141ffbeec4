"""Lists of chips and tables, and the entries of an address."""

from __future__ import annotations

import ctypes
from dataclasses import dataclass
from typing import List, Optional, Union

from . import _library
from ._layout import Place, layout
from ._library import Error, call, find as _index, info, library, text, unsigned


@dataclass(frozen=True)
class Chip:
    """A chip: name such as "BCM56990_B0"; number, which never changes."""

    name: str
    number: int


@dataclass(frozen=True)
class Table:
    """A table: class name such as "VlanEntry"; kind, "table" or "register array"; purpose."""

    name: str
    kind: str
    purpose: str


def chips() -> List[Chip]:
    """All chips, in ascending order of their numbers."""
    every = [info("velmar_chip_info", _library.velmar_chip, index)
             for index in range(library.velmar_chip_count())]
    return [Chip(chip.name.decode(), chip.number) for chip in every]


def tables(chip: Optional[Union[str, int]] = None) -> List[Table]:
    """All tables, or those that a chip has. Error: unknown chip."""
    every = [info("velmar_table_info", _library.velmar_table, index)
             for index in range(library.velmar_table_count())]
    return [Table(table.name.decode(), _library.KINDS[table.kind], table.purpose.decode())
            for table in every if chip is None or _is_on(table.index, chip)]


def find(address: int, chip: Union[str, int], variant: int = 0) -> List[Place]:
    """All entries of a chip that have an S-channel address: several tables may have one address.

    Empty if there is none. Error: unknown chip, variant above 255.
    """
    of_chip = _index("velmar_find_chip", text(str(chip)))
    places: List[Place] = []
    while True:
        try:
            place = info("velmar_entry_at", _library.velmar_place, of_chip, unsigned(variant, "variant"),
                         unsigned(address, "address"), len(places))
        except Error as error:
            if error.code == _library.NO_ENTRY:
                return places
            raise
        facts = info("velmar_layout_info", _library.velmar_layout_facts, place.layout)
        name = info("velmar_table_info", _library.velmar_table, facts.table).name.decode()
        places.append(Place(layout(name, chip, variant), place.index, place.identifier))


def _is_on(table: int, chip: Union[str, int]) -> bool:
    of_chip = _index("velmar_find_chip", text(str(chip)))
    try:
        call("velmar_layout_of", table, of_chip, 0, ctypes.byref(ctypes.c_void_p()))
    except Error as error:
        if error.code == _library.NOT_ON_CHIP:
            return False
        raise
    return True
