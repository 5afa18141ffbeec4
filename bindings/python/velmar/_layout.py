"""Layouts: the entries of one table on one chip, from bytes and to bytes."""

from __future__ import annotations

import ctypes
import dataclasses
import functools
import operator
from dataclasses import dataclass
from typing import (TYPE_CHECKING, Any, ContextManager, Dict, Iterable, List, Mapping, Optional,
                    Sequence, Tuple, Union, cast)

from . import _library
from ._library import Error, call, chip_name, find, info, shown, table_name, text, unsigned

if TYPE_CHECKING:
    import numpy

#: What a field of a decoded entry holds: a number, or the ports of a bitmap in ascending order.
Value = Union[int, List[int]]
#: A decoded entry: field name -> value, and "outsideFields" if such bits are set.
Entry = Dict[str, Value]

OUTSIDE = "outsideFields"


@dataclass(frozen=True)
class Field:
    """A field of a layout: `bits` bits of the entry, from bit `first_bit` on.

    name                 accessor such as "fidId": the key in decoded entries
    hardware_name, meaning
                         such as "FID_ID", and a few words
    index, id            in the table's list of fields, the same on every chip; identifier, which
                         never changes
    type                 "U8", "U16", "U32", "U64", "Raw128" or "bitmap"
    overlaps             whether it shares bits with another field of the chip
    family, number       "spTreePort" and 3 for spTreePort3; "" and None for a field alone
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
class Dump:
    """Entries with their indexes, as load() reads them. The methods of its layout take it.

    layout     of the entries
    indexes    index of each entry in the table, or of each element of a register array
    data       bytes of the entries, without gaps; of a raw dump without a stride all bytes that were
               read, not copied
    notes      what was left out of the input, or is worth saying, one sentence each
    """

    layout: Layout
    indexes: Sequence[int]
    data: bytes = dataclasses.field(repr=False)
    notes: Tuple[str, ...] = ()


#: Entries without gaps, the first of index 0; or a dump, whose entries have indexes.
Data = Union[bytes, bytearray, memoryview, "numpy.ndarray", Dump]


@dataclass(frozen=True)
class Place:
    """An entry that has an address: layout, index of the entry or element, instance identifier."""

    layout: Layout
    index: int
    identifier: int


class Layout:
    """A table on a chip: the place of every field in an entry, and the addresses. See layout().

    table, purpose       class name such as "VlanEntry", and its contents in a few words
    chip, variant        name such as "BCM56990_B0"; table variant
    kind                 "table" or "register array"
    fields               tuple of Field, in the order of the table
    entry_bytes, words   size of an entry in bytes, and in words of 32 bits
    entries, elements    number of entries of a table, or of elements of a register array; the other
                         is 1
    identifiers          number of instance identifiers
    base, element_step, identifier_step
                         S-channel address of the first entry; what an element, and an identifier,
                         add to it
    access_type, block   S-channel access code; pipeline block: 1 ingress, 2 egress

    An entry is `entry_bytes` bytes as they were read from the chip: bit n of the entry is bit n % 8 of
    byte n // 8. Data are such entries without gaps, in bytes, bytearray, memoryview or a numpy array, or
    a Dump; text is for load(). Items of an array are bytes, or little-endian words of 32 bits. They must
    be whole entries, at most as many as the table has, otherwise Error is raised.
    """

    def __init__(self, table: str, chip: Union[str, int], variant: int = 0):
        handle = ctypes.c_void_p()
        call("velmar_find_layout", text(table), text(str(chip)), unsigned(variant, "variant"),
             ctypes.byref(handle))
        self._handle = handle
        facts = info("velmar_layout_info", _library.velmar_layout_facts, handle)
        of_table = info("velmar_table_info", _library.velmar_table, facts.table)
        of_chip = info("velmar_chip_info", _library.velmar_chip, facts.chip)
        self.table: str = of_table.name.decode()
        self.purpose: str = of_table.purpose.decode()
        self.kind: str = _library.KINDS[of_table.kind]
        self.chip: str = of_chip.name.decode()
        self.variant = variant
        self.entry_bytes: int = facts.entry_bytes
        self.words: int = facts.words
        self.entries: int = facts.entries
        self.elements: int = facts.elements
        self.identifiers: int = facts.identifiers
        self.base: int = facts.base
        self.element_step: int = facts.element_step
        self.identifier_step: int = facts.identifier_step
        self.access_type: int = facts.access_type
        self.block: int = facts.block
        self.fields: Tuple[Field, ...] = tuple(self._own_fields(of_table.field_count))
        self._by_index = {field.index: field for field in self.fields}
        self._by_name = {field.name: field for field in self.fields}
        self._reserved = self._reserved_bits()

    def __repr__(self) -> str:
        variant = f", {self.variant}" if self.variant else ""
        return f"velmar.layout({self.table!r}, {self.chip!r}{variant})"

    def __reduce__(self) -> Any:
        return layout, (self.table, self.chip, self.variant)

    def field(self, name: str) -> Field:
        """The field of an accessor, hardware name or identifier, such as "fidId", "FID_ID" or "90".

        Error: no field has the name, a family of fields has it, or only other chips have the field.
        """
        if name in self._by_name:
            return self._by_name[name]
        return self._by_index[find("velmar_find_field", self._handle, text(name))]

    def decode(self, data: Data) -> List[Entry]:
        """A dict for each entry of the data: field name -> int, for a bitmap -> sorted list of ports.

        If an entry has bits set outside all fields, its dict also has "outsideFields": an int with
        those bits at their places in the entry. encode() makes the same bytes of each dict again.
        """
        _, raw = self._entries(data)
        columns = [self._values(field, raw) for field in self.fields]
        entries = [dict(zip(self._by_name, row)) for row in zip(*columns)]
        for entry, outside in zip(entries, self._outside(raw)):
            if outside:
                entry[OUTSIDE] = outside
        return entries

    def columns(self, data: Data,
                fields: Optional[Iterable[str]] = None) -> Dict[str, numpy.ndarray[Any, Any]]:
        """A numpy array for each field, or for each of the named ones: field name -> column.

        Item i of a column is of entry i of the data. Shapes, with n entries:
          field up to 63 bits   (n,)       int64; of 64 bits uint64
          wider field           (n, words) uint32, the lowest bits first
          bitmap                (n, ports) bool: column[i, p] says whether entry i has port p
        Bits outside all fields are in no column; decode() shows them. ImportError: there is no numpy.
        """
        if isinstance(fields, str):
            fields = [fields]
        chosen = self.fields if fields is None else [self.field(name) for name in fields]
        import numpy
        _, raw = self._entries(data)
        if not chosen:
            self._numbers(self.fields[0], raw)  # refuses what is not whole entries
        # One piece of memory: the system gives many small ones anew each time, which takes longer than
        # to read the fields.
        count = sum(_is_number(field) for field in chosen)
        rows = iter(numpy.empty((count, len(raw) // self.entry_bytes), numpy.uint64))
        return {field.name: self._number_column(field, raw, next(rows)) if _is_number(field) else
                self._word_column(field, raw) for field in chosen}

    def encode(self, values: Mapping[str, Any], base: Optional[Data] = None) -> bytes:
        """The bytes of an entry with these values, which are as those of decode().

        values: field name -> int, for a bitmap -> the ports in any order; names as field() takes them.
        "outsideFields" sets the bits outside all fields.
        base: an entry; fields that are not given stay as they are there. Without it they are zero.
        To encode a list of entries: b"".join(map(layout.encode, entries)).
        Error: unknown field, value or port that the field does not have, fields that share bits and
        disagree, bits of "outsideFields" inside fields, base that is not one entry.
        """
        if not isinstance(values, Mapping):
            raise TypeError(f"{values!r} is not a dict; give field names with their values")
        raw = bytes(self.entry_bytes) if base is None else self._entries(base)[1]
        if len(raw) != self.entry_bytes:
            raise Error(f"the base has {len(raw)} bytes; give one entry of {self.entry_bytes} bytes")
        entry = ctypes.create_string_buffer(raw, self.entry_bytes)
        given: Dict[str, int] = {}
        for name, value in values.items():
            if name == OUTSIDE:
                continue
            field = self.field(name)
            number = _number(field, value)
            if given.get(field.name, number) != number:
                raise Error(f"{field.name} is given twice, with two values; give it once")
            self._write(field, entry, number)
            given[field.name] = number
            if field.overlaps:
                self._check_shared(field, entry.raw, given)
        outside = values.get(OUTSIDE)
        return entry.raw if outside is None else self._with_outside(entry.raw, outside)

    def diff(self, old: Data, new: Data) -> List[Dict[str, Any]]:
        """What changed between two data, as rows like those of "velmar diff --format json".

        A row for each entry that differs: {"index": 20, "change": "changed", "fields": {"stg":
        {"old": 2, "new": 7}}}, with values as decode() gives them; "outsideFields" is among the fields
        if such bits differ. For an entry that only one has, "change" is "only in OLD" or "only in
        NEW", and there are no "fields". Entries are matched by index.
        """
        with self._as_dump(old) as before, self._as_dump(new) as after:
            rows: List[Dict[str, Any]] = _library.document("velmar_diff", before,
                                                           after)["entries"]
        for row in rows:
            for value in row.get("fields", {}).values():
                value.update({side: _plain(value[side]) for side in ("old", "new")})
        return rows

    def select(self, data: Data, where: Union[str, Iterable[str]] = (), *,
               indexes: Optional[str] = None, nonzero: bool = False) -> Dump:
        """The entries of the data that fit, with their indexes.

        where: conditions that must all hold, or one: "stg=3", "fidId>=0x10", "stg!=1,2", for a bitmap
        "portBitmap~20-22" (it has these ports) and "!~" (none of them), for a family "spTreePort0-3=2".
        indexes: those that are taken, such as "5,100-199". nonzero: only entries that are not zero.
        Error: no condition, unknown field, value that the field does not have, and an index that the
        data do not have.
        """
        conditions = [text(each) for each in ([where] if isinstance(where, str) else where)]
        own, raw = self._entries(data)
        positions, count = (ctypes.c_uint32 * len(own))(), ctypes.c_size_t()
        with self._as_dump(data) as handle:
            call("velmar_select", handle, (ctypes.c_char_p * len(conditions))(*conditions),
                 len(conditions), None if indexes is None else text(indexes), nonzero, positions,
                 len(own), ctypes.byref(count))
        size, found = self.entry_bytes, positions[:count.value]
        return Dump(self, [own[i] for i in found],
                    b"".join(raw[size * i:size * (i + 1)] for i in found),
                    data.notes if isinstance(data, Dump) else ())

    def address(self, index: int, identifier: int = 0) -> int:
        """The S-channel address of an entry, or of an element of a register array.

        Error: the table does not have the entry, the element or the identifier.
        """
        return find("velmar_address", self._handle, unsigned(index, "index"),
                    unsigned(identifier, "identifier"))

    def _own_fields(self, count: int) -> Iterable[Field]:
        for index in range(count):
            try:
                facts = info("velmar_layout_field", _library.velmar_field, self._handle, index)
            except Error as error:
                if error.code != _library.NOT_ON_CHIP:
                    raise
                continue
            name = facts.accessor.decode()
            yield Field(name, facts.hardware_name.decode(), facts.meaning.decode(), index, facts.id,
                        _library.TYPES[facts.type], facts.first_bit, facts.bits,
                        bool(facts.overlaps), name[:facts.family_letters],
                        facts.family_number if facts.family_letters else None)

    def _reserved_bits(self) -> int:
        mask = ctypes.create_string_buffer(self.entry_bytes)
        call("velmar_field_mask", self._handle, mask, self.entry_bytes)
        return int.from_bytes(mask.raw, "little") ^ (1 << 8 * self.entry_bytes) - 1

    def _entries(self, data: Data) -> Tuple[Sequence[int], bytes]:
        """Indexes and bytes. The library checks their number when it reads them."""
        indexes: Optional[Sequence[int]] = None
        if isinstance(data, Dump):
            if data.layout._handle.value != self._handle.value:
                raise Error(f"the dump is of {data.layout.table} on {data.layout.chip}, not of "
                            f"{self.table} on {self.chip}; use its own layout")
            indexes, data = data.indexes, data.data
        raw = _raw(data)
        count = len(raw) // self.entry_bytes
        if indexes is None:
            return range(count), raw
        if len(indexes) != count or len(set(indexes)) != count:
            raise Error("the dump has not one index for each entry; give each entry once")
        limit = self.entries * self.elements
        wrong = [index for index in indexes if not (isinstance(index, int) and 0 <= index < limit)]
        if wrong:
            raise Error(f"the dump has the index {wrong[0]!r}; give indexes from 0 to {limit - 1}")
        return indexes, raw

    def _as_dump(self, data: Data) -> ContextManager[ctypes.c_void_p]:
        """The data as a dump of the library."""
        indexes, raw = self._entries(data)
        array = None if indexes == range(len(indexes)) else (
            ctypes.c_uint32 * len(indexes))(*indexes)
        return _library.made("velmar_dump_of", self._handle, self.variant, array, len(indexes), raw,
                             len(raw))

    def _from_dump(self, handle: ctypes.c_void_p, raw: bytes = b"") -> Dump:
        """A dump of the library as one of the module; it may borrow the bytes that were read."""
        data, size, note = ctypes.c_void_p(), ctypes.c_size_t(), ctypes.c_char_p()
        call("velmar_dump_bytes", handle, ctypes.byref(data), ctypes.byref(size))
        count = size.value // self.entry_bytes
        notes: List[str] = []
        call("velmar_dump_note", handle, 0, ctypes.byref(note))
        while note.value is not None:
            notes.append(note.value.decode())
            call("velmar_dump_note", handle, len(notes), ctypes.byref(note))
        is_borrowed = size.value == len(raw) and data.value == ctypes.cast(raw, ctypes.c_void_p).value
        known = min(count, 1) if is_borrowed else count  # the entries of a raw dump follow each other
        array = (ctypes.c_uint32 * known)()
        call("velmar_dump_index", handle, 0, array, known)
        follow = range(array[0], array[0] + count) if count else range(0)
        indexes = follow if is_borrowed or array[:] == list(follow) else array[:]
        if is_borrowed:
            return Dump(self, indexes, raw, tuple(notes))
        return Dump(self, indexes, ctypes.string_at(data.value or 0, size.value), tuple(notes))

    def _numbers(self, field: Field, raw: bytes) -> List[int]:
        """A column of numbers of any width."""
        count = len(raw) // self.entry_bytes
        if field.bits <= 64:
            numbers = (ctypes.c_uint64 * count)()
            call("velmar_read_column", self._handle, field.index, raw, len(raw), numbers, count)
            return numbers[:]
        size = 4 * _words(field)
        words = ctypes.create_string_buffer(size * count)
        call("velmar_read_word_column", self._handle, field.index, raw, len(raw), words,
             count * _words(field))
        column = words.raw
        return [int.from_bytes(column[i:i + size], "little")
                for i in range(0, size * count, size)]

    def _values(self, field: Field, raw: bytes) -> Sequence[Value]:
        numbers = self._numbers(field, raw)
        if field.type == "bitmap":
            return [_ports(number) for number in numbers]
        return numbers

    def _outside(self, raw: bytes) -> Iterable[int]:
        size = self.entry_bytes
        if self._reserved == 0:
            return ()
        return (int.from_bytes(raw[i:i + size], "little") & self._reserved
                for i in range(0, len(raw), size))

    def _number_column(self, field: Field, raw: bytes,
                       row: numpy.ndarray[Any, Any]) -> numpy.ndarray[Any, Any]:
        call("velmar_read_column", self._handle, field.index, raw, len(raw), row.ctypes.data, row.size)
        return row if field.bits == 64 else row.view("int64")

    def _word_column(self, field: Field, raw: bytes) -> numpy.ndarray[Any, Any]:
        import numpy
        words = numpy.empty((len(raw) // self.entry_bytes, _words(field)), numpy.uint32)
        call("velmar_read_word_column", self._handle, field.index, raw, len(raw),
             words.ctypes.data, words.size)
        if field.type != "bitmap":
            return words
        bits = numpy.unpackbits(words.view(numpy.uint8), axis=1, count=field.bits,
                                bitorder="little")
        return bits.view(bool)

    def _write(self, field: Field, entry: Any, number: int) -> None:
        size = (field.bits + 7) // 8
        where = self._handle, field.index, entry, self.entry_bytes
        if field.bits <= 64 and number < 1 << 64:
            call("velmar_write", *where, number)
        elif number < 1 << 8 * size:
            call("velmar_write_bytes", *where, number.to_bytes(size, "little"), size)
        else:
            raise Error(f"{field.name}: value {number:#x} does not fit; the field has "
                        f"{field.bits} bits")

    def _check_shared(self, field: Field, raw: bytes, given: Mapping[str, int]) -> None:
        for name, number in given.items():
            other = self._by_name[name]
            if other.overlaps and self._numbers(other, raw)[0] != number:
                raise Error(f"{name} and {field.name} share bits and their values disagree; give one "
                            "of them, or values that agree")

    def _with_outside(self, raw: bytes, outside: Any) -> bytes:
        bits = _index(OUTSIDE, outside)
        if bits & ~self._reserved:
            raise Error(f"{OUTSIDE}: {bits:#x} has bits inside fields or beyond the entry; set the "
                        "fields instead")
        number = int.from_bytes(raw, "little") & ~self._reserved | bits
        return number.to_bytes(self.entry_bytes, "little")


def layout(table: str, chip: Union[str, int], variant: int = 0) -> Layout:
    """The layout of a table on a chip, such as layout("VlanEntry", "BCM56990_B0").

    Names may be in any case, without underscores and without "Entry"; a chip also by its number.
    Error: unknown name, the chip does not have the table, or the table does not have the variant.
    """
    return _layout(table_name(table), chip_name(chip), unsigned(variant, "variant"))


def ranges(ports: Iterable[int]) -> str:
    """Ports as text, such as "0-3,17"; "none" if there are none."""
    parts: List[List[int]] = []
    for port in sorted(set(ports)):
        if parts and parts[-1][1] == port - 1:
            parts[-1][1] = port
        else:
            parts.append([port, port])
    return ",".join(f"{a}-{b}" if a < b else f"{a}" for a, b in parts) or "none"


@functools.lru_cache(maxsize=None)
def _layout(table: str, chip: str, variant: int) -> Layout:
    return Layout(table, chip, variant)


def _raw(data: Data) -> bytes:
    """The bytes of entries. Items of other sizes are not bytes of an entry in order."""
    if isinstance(data, bytes):
        return data
    if isinstance(data, str):
        raise TypeError(f"{data!r} is text; give bytes, or what velmar.load() reads from a file")
    try:
        items = memoryview(cast(bytes, data))
    except TypeError:
        raise TypeError(f"{data!r} is not data; give bytes, or a numpy array of uint8") from None
    if items.format not in ("B", "b", "c", "I", "<I"):
        raise Error(f"the data have items of {items.itemsize} bytes and format {items.format!r}; give "
                    "bytes (numpy: uint8), or little-endian words of 32 bits (numpy: <u4)")
    return items.tobytes()


def _plain(value: Mapping[str, Any]) -> Value:
    """A value of a document as decode() gives it."""
    return cast(Value, value["ports"]) if "ports" in value else int(value["hex"], 16)


def _is_number(field: Field) -> bool:
    return field.bits <= 64 and field.type != "bitmap"


def _words(field: Field) -> int:
    return (field.bits + 31) // 32


def _ports(number: int) -> List[int]:
    return [port for port, bit in enumerate(bin(number)[:1:-1]) if bit == "1"]


def _index(name: str, value: Any) -> int:
    try:
        number = operator.index(value)
    except TypeError:
        raise Error(f"{name}: {value!r} is not a number; give an int") from None
    if number < 0:
        raise Error(f"{name}: {shown(number)} is negative; give an int from 0 on")
    return number


def _number(field: Field, value: Any) -> int:
    """A value as a number; for a bitmap the bit of each port."""
    if field.type != "bitmap":
        return _index(field.name, value)
    is_list = isinstance(value, Iterable) and getattr(value, "ndim", 1) == 1
    if isinstance(value, (str, bytes, bytearray, memoryview, Mapping)) or not is_list:
        raise Error(f"{field.name}: {value!r} is not ports; give a list of them, such as [0, 17]")
    number = 0
    for port in value:
        # A row of a column has a bool for each port: that is another form.
        if type(port).__name__ in ("bool", "bool_"):
            raise Error(f"{field.name}: {port} is not a port; give the numbers of the ports")
        port = _index(field.name, port)
        if port >= field.bits:
            raise Error(f"{field.name}: there is no port {shown(port)}; the field has ports 0 to "
                        f"{field.bits - 1}")
        number |= 1 << port
    return number
