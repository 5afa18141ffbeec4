"""Layouts and dumps: the entries of one table on one chip, from bytes and to bytes."""

from __future__ import annotations

import ctypes
import dataclasses
import functools
from dataclasses import dataclass
from typing import (TYPE_CHECKING, Any, ContextManager, Dict, Iterable, Iterator, List, Mapping,
                    Optional, Sequence, Tuple, Union, cast)

from . import _library, _show
from ._library import (Brief, Error, WrongPosition, WrongType, call, find, info, integer, text,
                       unsigned)
from ._records import (ChipName, Family, Field, FieldName, TableName, chip_name, name_of,
                       table_name)
from ._values import is_list, number_text, ports_of, raw_bytes, value_text

if TYPE_CHECKING:
    import numpy
    import pandas

#: What a field of a decoded entry holds: a number, or the ports of a bitmap in ascending order; a family
#: holds the numbers of its fields.
Value = Union[int, List[int]]
#: A decoded entry: name of a field or family -> value, and "outsideFields" if such bits are set.
Entry = Dict[str, Value]
Part = Union[Field, Family]

OUTSIDE = "outsideFields"


@dataclass(frozen=True, eq=False)
class Dump(metaclass=Brief):
    """Entries with their indexes, as load() reads them. The methods of its layout take it.
    layout     of the entries
    indexes    index of each entry in the table, or of each element of a register array
    data       bytes of the entries, without gaps
    notes      what was left out of the input, or is worth saying, one sentence each
    It is a sequence: len(dump), dump[3] is the entry at position 3 as decode() gives it, dump[3:5] a
    dump, "for entry in dump". Dumps are equal if layouts, indexes and bytes are.
    """

    layout: Layout
    indexes: Sequence[int]
    data: bytes = dataclasses.field(repr=False)
    notes: Tuple[str, ...] = ()

    def where(self, *conditions: str) -> Dump:
        """The entries for which all conditions hold; see Layout.select()."""
        return self.layout.select(self, conditions)

    def __len__(self) -> int:
        return len(self.layout._entries(self)[0])

    def __getitem__(self, position: Any) -> Any:
        indexes, raw = self.layout._entries(self)
        size = self.layout.entry_bytes
        if isinstance(position, slice):
            chosen = range(len(indexes))[position]
            return Dump(self.layout, indexes[position],
                        b"".join(raw[i * size:(i + 1) * size] for i in chosen), self.notes)
        at = integer(position, "position")
        if not -len(indexes) <= at < len(indexes):
            raise WrongPosition(f"the dump has no position {at}; it has {len(indexes)} entries")
        at %= len(indexes)
        return self.layout.decode(raw[at * size:(at + 1) * size])[0]

    def __iter__(self) -> Iterator[Entry]:
        return iter(self.layout.decode(self))

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Dump):
            return NotImplemented
        mine, theirs = self.layout._entries(self), other.layout._entries(other)
        return (self.layout._key == other.layout._key and list(mine[0]) == list(theirs[0]) and
                mine[1] == theirs[1])

    def __hash__(self) -> int:
        return hash((self.layout._key, self.layout._entries(self)[1]))

    def _repr_html_(self) -> str:
        return _show.dump(self)


#: Entries without gaps, the first of index 0; or a dump, whose entries have indexes.
Data = Union[bytes, bytearray, memoryview, "numpy.ndarray", "ctypes.Array", Dump]


@dataclass(frozen=True)
class Place(metaclass=Brief):
    """An entry that has an address: layout, index of the entry or element, instance identifier."""

    layout: Layout
    index: int
    identifier: int


@dataclass(frozen=True, init=False, eq=False, repr=False)
class Layout(metaclass=Brief):
    """A table on a chip: the place of every field in an entry, and the addresses. See layout().
    table, purpose       class name such as "VlanEntry", and its contents in a few words
    chip, variant        name such as "BCM56990_B0"; table variant
    kind                 "table" or "register array"
    fields, families     tuples of Field and of Family, in the order of the table
    entry_bytes, words   size of an entry in bytes, and in words of 32 bits
    entries, elements, identifiers
                         how many a table has: of entries or elements one is 1
    base, element_step, identifier_step
                         S-channel address of the first entry; what an element, an identifier add to it
    access_type, block   S-channel access code; pipeline block: 1 ingress, 2 egress

    An entry is `entry_bytes` bytes as they were read from the chip: bit n is bit n % 8 of byte n // 8.
    Data are whole entries without gaps, at most as many as the table has: bytes, or an array of bytes or
    of little-endian words of 32 bits, whose rows are entries if it has several dimensions; or a Dump.
    Names of fields are accessors, hardware names or identifiers, and may stand for several fields:
    "spTreePort", which is a family, "spTreePort0-3", "*Ptr".
    """

    table: str
    chip: str
    variant: int
    purpose: str
    kind: str
    fields: Tuple[Field, ...]
    families: Tuple[Family, ...]
    entry_bytes: int
    words: int
    entries: int
    elements: int
    identifiers: int
    base: int
    element_step: int
    identifier_step: int
    access_type: int
    block: int
    _handle: int
    _key: Tuple[int, int]
    _reserved: int
    _parts: Tuple[Part, ...]
    _by_index: Mapping[int, Field]
    _by_name: Mapping[str, Part]
    _members: Mapping[str, Any]

    def __init__(self, table: TableName, chip: ChipName, variant: int = 0):
        made = ctypes.c_void_p()
        variant = unsigned(variant, "variant")
        call("velmar_find_layout", text(name_of(table, "table")), text(name_of(chip, "chip")), variant,
             ctypes.byref(made))
        handle = made.value or 0
        facts = info("velmar_layout_info", _library.velmar_layout_facts, handle)
        of_table = info("velmar_table_info", _library.velmar_table, facts.table)
        of_chip = info("velmar_chip_info", _library.velmar_chip, facts.chip)
        own = vars(self)
        own.update({name: getattr(facts, name) for name, _ in facts._fields_})
        own.update(table=of_table.name.decode(), purpose=of_table.purpose.decode(),
                   kind=_library.KINDS[of_table.kind], chip=of_chip.name.decode(), variant=variant,
                   fields=_fields_of(handle, facts.fields), _handle=handle, _key=(handle, variant))
        own["families"] = tuple(_families(self.fields))
        families = {family.name: family for family in self.families}
        parts = {field.family or field.name: families.get(field.family, field) for field in self.fields}
        own["_members"] = {name: (ctypes.c_uint32 * len(family.fields))(
            *(field.index for field in family.fields)) for name, family in families.items()}
        own.update(_parts=tuple(parts.values()), _reserved=self._reserved_bits(),
                   _by_index={field.index: field for field in self.fields},
                   _by_name={**parts, **{field.name: field for field in self.fields}})

    def __repr__(self) -> str:
        variant = f", {self.variant}" if self.variant else ""
        return f"velmar.layout({self.table!r}, {self.chip!r}{variant})"

    def __reduce__(self) -> Any:
        return layout, (self.table, self.chip, self.variant)

    def _repr_html_(self) -> str:
        return _show.layout(self)

    def field(self, name: FieldName) -> Field:
        """The one field of a name or identifier, such as "fidId", "FID_ID" or 90."""
        found = self._by_name.get(name_of(name, "field"))
        if isinstance(found, Field):
            return found
        return self._by_index[find("velmar_find_field", self._handle, text(name_of(name, "field")))]

    def decode(self, data: Data, expand: bool = False) -> List[Entry]:
        """A dict for each entry: name -> int; for a bitmap a sorted list of ports; for a family a list
        of ints, or with `expand` each of its fields by itself. If bits outside all fields are set, it
        also has "outsideFields": an int with those bits at their places. encode() makes the same bytes.
        """
        _, raw = self._entries(data)
        parts = self.fields if expand else self._parts
        names = [part.name for part in parts]
        entries = [dict(zip(names, row)) for row in zip(*(self._values(part, raw) for part in parts))]
        for entry, outside in zip(entries, self._outside(raw)):
            if outside:
                entry[OUTSIDE] = outside
        return entries

    def columns(self, data: Data, fields: Union[FieldName, Iterable[FieldName], None] = None,
                dtype: Optional[str] = None,
                expand: bool = False) -> Dict[str, numpy.ndarray[Any, Any]]:
        """A numpy array for each field and family, or for the named ones: name -> column of n entries.
          field up to 63 bits   (n,)       int64, of 64 bits uint64; dtype="smallest": uint8 to uint64
          wider field           (n, words) uint32, the lowest bits first
          bitmap                (n, ports) bool: column[i, p] says whether entry i has port p
          family                (n, fields) uint8; with `expand` each field by itself
        Bits outside all fields are in no column; decode() shows them. ImportError: there is no numpy.
        """
        import numpy
        if dtype not in (None, "smallest"):
            raise Error(f"dtype has no choice {dtype!r}; give \"smallest\" or None")
        _, raw = self._entries(data)
        if fields is None:
            chosen: Iterable[Part] = self.fields if expand else self._parts
        elif isinstance(fields, str) or not is_list(fields):
            chosen = self._named(cast(FieldName, fields), expand)
        else:
            names = cast(Iterable[FieldName], fields)
            chosen = [part for name in names for part in self._named(name, expand)]
        return {part.name: self._column(numpy, part, raw, dtype) for part in chosen}

    def encode(self, values: Mapping[Any, Any], base: Optional[Data] = None) -> bytes:
        """The bytes of an entry with these values, which are as those of decode(). Fields that are not
        given stay as in `base`, an entry, or are zero. Fields that share bits must agree.
        values: name -> int; for a bitmap the ports in any order, or a row of booleans; for a name of
        several fields one int, or a list with one for each. Of a port that is named twice the last value
        counts: {"spTreePort*": 1, "spTreePort0-3": 3}. "outsideFields" sets the bits outside all fields.
        """
        if not isinstance(values, Mapping):
            raise WrongType(f"{values!r} is not a dict; give field names with their values")
        raw = bytes(self.entry_bytes) if base is None else self._entries(base)[1]
        if len(raw) != self.entry_bytes:
            raise Error(f"the base has {len(raw)} bytes; give one entry of {self.entry_bytes} bytes")
        texts: Dict[Any, bytes] = {}
        for name, value in values.items():
            if name == OUTSIDE:
                texts[name] = f"{OUTSIDE}={number_text(OUTSIDE, value or 0)}".encode()
                continue
            known = self._by_name.get(name) if isinstance(name, str) else None
            given = [(known, value)] if isinstance(known, Field) else self._given(name, value)
            for field, one in given:
                key = field.name if field.family else (name, field.name)
                texts[key] = f"{field.name}={value_text(field, one)}".encode()
        entry = ctypes.create_string_buffer(raw, self.entry_bytes)
        array = (ctypes.c_char_p * len(texts))(*texts.values())
        call("velmar_encode", self._handle, array, len(texts), entry, self.entry_bytes)
        return entry.raw

    def encode_columns(self, columns: Mapping[Any, Any], base: Optional[Data] = None) -> Any:
        """The bytes of many entries with these columns: name -> array as columns() gives it, or one
        number for all entries. Other fields stay as in `base`, entries, or are zero. A Dump with the same
        indexes if the base is one.
        """
        import numpy
        if not isinstance(columns, Mapping):
            raise WrongType(f"{columns!r} is not a dict; give field names with their columns")
        given = [(part, numpy.asarray(value)) for name, value in columns.items()
                 for part in self._named(name)]
        indexes: Sequence[int]
        if base is None:
            count = max((array.shape[0] for _, array in given if array.ndim), default=None)
            if count is None:
                raise Error("there is no column that says how many entries there are; give an array, "
                            "or base")
            raw = bytes(count * self.entry_bytes)
        else:
            indexes, raw = self._entries(base)
        entries = numpy.frombuffer(raw, numpy.uint8).copy()
        written: Dict[str, Tuple[Part, numpy.ndarray[Any, Any]]] = {}
        for part, array in given:
            if isinstance(part, Field) and not part.family and part.name in written:
                raise Error(f"{part.name} is given twice; give it once")
            written[part.name] = part, self._write_column(numpy, part, array, entries)
        for part, column in written.values():
            if isinstance(part, Field) and part.overlaps and not numpy.array_equal(
                    self._column(numpy, part, entries.tobytes(), None), column):
                raise Error(f"{part.name} shares bits with another field and their values disagree; give "
                            "one of them, or values that agree")
        changed = entries.tobytes()
        return Dump(self, indexes, changed, base.notes) if isinstance(base, Dump) else changed

    def frame(self, data: Data, fields: Union[FieldName, Iterable[FieldName], None] = None,
              long: bool = False) -> pandas.DataFrame:
        """A pandas frame: a row for each entry, by its index; bitmaps are texts such as "0-3,17", each
        field of a family is a column. `long`: a row for each entry and port of the families instead.
        """
        return _show.frame(self, data, fields, long)

    def text(self, entry: Data) -> str:
        """An entry for people: lines such as "stg = 5", "spTreePort = {3: 0-7  0: 8-159}"."""
        _, raw = self._entries(entry)
        return _library.made_text("velmar_entry_text", self._handle, raw, len(raw)).decode()

    def diff(self, old: Data, new: Data) -> List[Dict[str, Any]]:
        """What changed between two data, matched by index, as rows of "velmar diff --format json":
        {"index": 20, "change": "changed", "fields": {"stg": {"old": 2, "new": 7}}} for an entry that
        differs, with values as decode(expand=True) gives them, also "outsideFields". For an entry that
        only one has, "change" is "only in OLD" or "only in NEW", and there are no "fields".
        """
        if self._entries(old) == self._entries(new):
            return []
        with self._as_dump(old) as before, self._as_dump(new) as after:
            rows: List[Dict[str, Any]] = _library.document("velmar_diff", before,
                                                           after)["entries"]
        for row in rows:
            for value in row.get("fields", {}).values():
                value.update({side: _plain(value[side]) for side in ("old", "new")})
        return rows

    def select(self, data: Data, where: Union[str, Iterable[str]] = (), *,
               indexes: Optional[str] = None, nonzero: bool = False) -> Dump:
        """The entries that fit: conditions that must all hold, or one; `indexes` such as "5,100-199", which
        the data must have; `nonzero`: entries that are not zero.
        Conditions: "stg=2-5,9", "fidId>=0x10"; for a bitmap "portBitmap~20-22" (it has these ports) and
        "!~" (none of them); for a family "any spTreePort=2"; index, nonzero, reserved; not, and, or, ( ).
        """
        if not isinstance(where, str) and not is_list(where):
            raise WrongType(f"{where!r} is not a condition; give a text such as \"stg=3\", or a list")
        conditions = [text(each, "condition") for each in ([where] if isinstance(where, str) else where)]
        own, raw = self._entries(data)
        positions, count = (ctypes.c_uint32 * len(own))(), ctypes.c_size_t()
        with self._as_dump(data) as handle:
            call("velmar_select", handle, (ctypes.c_char_p * len(conditions))(*conditions),
                 len(conditions), None if indexes is None else text(indexes), bool(nonzero), positions,
                 len(own), ctypes.byref(count))
        size, found = self.entry_bytes, positions[:count.value]
        return Dump(self, [own[i] for i in found],
                    b"".join(raw[size * i:size * (i + 1)] for i in found),
                    data.notes if isinstance(data, Dump) else ())

    def address(self, index: int, identifier: int = 0) -> int:
        """The S-channel address of an entry, or of an element of a register array."""
        return find("velmar_address", self._handle, unsigned(index, "index"),
                    unsigned(identifier, "identifier"))

    def _reserved_bits(self) -> int:
        mask = ctypes.create_string_buffer(self.entry_bytes)
        call("velmar_field_mask", self._handle, mask, self.entry_bytes)
        return int.from_bytes(mask.raw, "little") ^ (1 << 8 * self.entry_bytes) - 1

    def _named(self, name: FieldName, expand: bool = False) -> Sequence[Part]:
        """The parts that a name stands for; all fields of a family are the family."""
        known = name if isinstance(name, str) else name_of(name, "field")
        found = self._by_name.get(known)
        if found is None:
            indexes, count = (ctypes.c_uint32 * len(self.fields))(), ctypes.c_size_t()
            call("velmar_find_fields", self._handle, text(known), indexes, len(indexes),
                 ctypes.byref(count))
            fields = [self._by_index[index] for index in indexes[:count.value]]
            found = self._by_name.get(fields[0].family)
            if not isinstance(found, Family) or list(found.fields) != fields:
                return fields
        return found.fields if expand and isinstance(found, Family) else [found]

    def _given(self, name: FieldName, value: Any) -> Iterable[Tuple[Field, Any]]:
        """The fields of a name, each with its value."""
        fields = cast(Sequence[Field], self._named(name, expand=True))
        is_family = len({field.family for field in fields}) == 1 and fields[0].family
        if not is_family or not is_list(value):
            return ((field, value) for field in fields)
        values = list(value)
        if len(values) != len(fields):
            raise Error(f"{name}: {len(values)} values; give {len(fields)}, one for each field")
        return zip(fields, values)

    def _entries(self, data: Data) -> Tuple[Sequence[int], bytes]:
        """Indexes and bytes of whole entries."""
        if isinstance(data, Dump) and data.layout._handle != self._handle:
            raise Error(f"the dump is of {data.layout.table} on {data.layout.chip}, not of "
                        f"{self.table} on {self.chip}; use its own layout")
        raw = raw_bytes(data.data if isinstance(data, Dump) else data, self.entry_bytes)
        count, rest = divmod(len(raw), self.entry_bytes)
        limit = self.entries * self.elements
        if rest or count > limit:  # the library refuses it
            call("velmar_dump_of", self._handle, self.variant, None, count, raw, len(raw),
                 ctypes.byref(ctypes.c_void_p()))
        if not isinstance(data, Dump):
            return range(count), raw
        indexes = data.indexes
        if type(indexes) is not range:
            if not is_list(indexes):
                raise WrongType(f"{indexes!r} are not indexes; give a list of them")
            indexes = tuple(integer(index, "index") for index in indexes)
        if len(indexes) != count or len(set(indexes)) != count:
            raise Error("the dump has not one index for each entry; give each entry once")
        for index in (min(indexes, default=0), max(indexes, default=0)):
            if not 0 <= index < limit:
                raise Error(f"the dump has the index {index}; give indexes from 0 to {limit - 1}")
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

    def _move(self, verb: str, part: Part, data: Any, size: int, values: Any, count: int) -> None:
        """Reads or writes a column of the shape and type of _form()."""
        if isinstance(part, Family):
            own = self._members[part.name]
            call(f"velmar_{verb}_fields", self._handle, own, len(own), data, size, values, count)
        else:
            function = "word_column" if _is_words(part) else "column"
            call(f"velmar_{verb}_{function}", self._handle, part.index, data, size, values, count)

    def _values(self, part: Part, raw: bytes) -> Sequence[Value]:
        entries = len(raw) // self.entry_bytes
        if isinstance(part, Field) and not _is_words(part):
            numbers = (ctypes.c_uint64 * entries)()
            self._move("read", part, raw, len(raw), numbers, entries)
            return numbers[:]
        (_, items), kind = _form(part, entries)
        column = ctypes.create_string_buffer(entries * items * (1 if kind == "uint8" else 4))
        self._move("read", part, raw, len(raw), column, entries * items)
        size = len(column) // max(entries, 1)
        rows = (column.raw[i * size:(i + 1) * size] for i in range(entries))
        if isinstance(part, Family):
            return [list(row) for row in rows]
        wide = (int.from_bytes(row, "little") for row in rows)
        return [ports_of(number) for number in wide] if part.type == "bitmap" else list(wide)

    def _outside(self, raw: bytes) -> Iterable[int]:
        size = self.entry_bytes
        if self._reserved == 0:
            return ()
        return (int.from_bytes(raw[i:i + size], "little") & self._reserved
                for i in range(0, len(raw), size))

    def _column(self, numpy: Any, part: Part, raw: bytes, dtype: Optional[str]) -> Any:
        shape, kind = _form(part, len(raw) // self.entry_bytes)
        column = numpy.empty(shape, kind)
        self._move("read", part, raw, len(raw), column.ctypes.data, column.size)
        if isinstance(part, Family):
            return column
        if part.type == "bitmap":
            bits = numpy.unpackbits(column.view(numpy.uint8), axis=1, count=part.bits,
                                    bitorder="little")
            return bits.view(bool)
        if part.bits > 64 or part.bits == 64 and dtype is None:
            return column
        if dtype is None:
            return column.view(numpy.int64)
        return column.astype(numpy.min_scalar_type((1 << part.bits) - 1))

    def _write_column(self, numpy: Any, part: Part, given: Any, entries: Any) -> Any:
        """Writes a column; returns it as it is read again."""
        shape, kind = _form(part, entries.size // self.entry_bytes)
        form, most = shape, numpy.iinfo(kind).max
        is_bitmap = isinstance(part, Field) and part.type == "bitmap"
        if isinstance(part, Field) and is_bitmap:
            form, most = (shape[0], part.bits), 1
        if given.ndim and given.shape != form:
            raise Error(f"{part.name}: an array of the shape {given.shape}; give one of {form}, or a number")
        if given.dtype.kind not in "biu" and given.size:
            raise WrongType(f"{part.name}: an array of {given.dtype}; give one of integers")
        # What is too large for a field of up to 64 bits, the library says.
        lowest = given.min() if given.size and given.dtype.kind == "i" else 0
        highest = given.max() if given.size and kind != "uint64" else 0
        if lowest < 0 or highest > most:
            raise Error(f"{part.name}: {min(lowest, 0) or highest} does not fit; give 0 to {most} at most")
        column = given if given.ndim else numpy.broadcast_to(given, form)
        if is_bitmap:
            values = numpy.zeros(shape, kind)
            packed = numpy.packbits(column.astype(bool), axis=1, bitorder="little")
            values.view(numpy.uint8)[:, :packed.shape[1]] = packed
        else:
            same = column.view(kind) if column.dtype == numpy.int64 and kind == "uint64" else column
            values = numpy.ascontiguousarray(same, kind)
        self._move("write", part, entries.ctypes.data, entries.size, values.ctypes.data, values.size)
        return column


def layout(table: TableName, chip: ChipName, variant: int = 0) -> Layout:
    """The layout of a table on a chip, such as layout("VlanEntry", "BCM56990_B0"); it cannot be changed.
    Names, here and elsewhere, may be in any case, without underscores and without "Entry", and be what
    tables(), chips() and fields list; a chip also has a number.
    """
    return _layout(table_name(table), chip_name(chip), unsigned(variant, "variant"))


@functools.lru_cache(maxsize=None)
def _layout(table: str, chip: str, variant: int) -> Layout:
    return Layout(table, chip, variant)


def _fields_of(handle: int, count: int) -> Tuple[Field, ...]:
    every = (_library.velmar_field * count)()
    call("velmar_fields_of", handle, every, ctypes.sizeof(_library.velmar_field), count)
    return tuple(
        Field(each.accessor.decode(), each.hardware_name.decode(), each.meaning.decode(), each.index,
              each.id, _library.TYPES[each.type], each.first_bit, each.bits, bool(each.overlaps),
              each.accessor.decode()[:each.family_letters],
              each.family_number if each.family_letters else None)
        for each in every)


def _families(fields: Iterable[Field]) -> Iterator[Family]:
    names = dict.fromkeys(field.family for field in fields if field.family)
    for name in names:
        own = tuple(field for field in fields if field.family == name)
        yield Family(name, tuple(cast(int, field.number) for field in own), own)


def _form(part: Part, entries: int) -> Tuple[Tuple[int, ...], str]:
    """Shape and type of a column as the library takes it."""
    if isinstance(part, Family):
        return (entries, len(part.fields)), "uint8"
    return ((entries, (part.bits + 31) // 32), "uint32") if _is_words(part) else ((entries,), "uint64")


def _is_words(field: Field) -> bool:
    return field.bits > 64 or field.type == "bitmap"


def _plain(value: Mapping[str, Any]) -> Value:
    """A value of a document as decode() gives it."""
    return cast(Value, value["ports"]) if "ports" in value else int(value["hex"], 16)
