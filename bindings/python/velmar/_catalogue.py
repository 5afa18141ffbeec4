"""Lists of chips and tables, and the entries of an address."""

from __future__ import annotations

import ctypes
from typing import List, Optional

from . import _library
from ._layout import Place, layout
from ._library import Error, call, info, library, unsigned
from ._records import Chip, ChipName, Table, find_chip


def chips() -> List[Chip]:
    """All chips, in ascending order of their numbers."""
    every = [info("velmar_chip_info", _library.velmar_chip, index)
             for index in range(library.velmar_chip_count())]
    return [Chip(chip.name.decode(), chip.number) for chip in every]


def tables(chip: Optional[ChipName] = None) -> List[Table]:
    """All tables, or those that a chip has."""
    every = [info("velmar_table_info", _library.velmar_table, index)
             for index in range(library.velmar_table_count())]
    return [Table(table.name.decode(), _library.KINDS[table.kind], table.purpose.decode())
            for table in every if chip is None or _is_on(table.index, chip)]


def find(address: int, chip: ChipName, variant: int = 0) -> List[Place]:
    """All entries of a chip that have an S-channel address: several, one or none."""
    of_chip = find_chip(chip)
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


def _is_on(table: int, chip: ChipName) -> bool:
    of_chip = find_chip(chip)
    try:
        call("velmar_layout_of", table, of_chip, 0, ctypes.byref(ctypes.c_void_p()))
    except Error as error:
        if error.code == _library.NOT_ON_CHIP:
            return False
        raise
    return True
