"""Layouts and dumps for people: pandas frames, and HTML for notebooks."""

from __future__ import annotations

from html import escape
from typing import TYPE_CHECKING, Any, Dict, Iterable, List, Tuple

from ._library import Error
from ._records import Family, Field
from ._values import ranges

if TYPE_CHECKING:
    import pandas

    from ._layout import Dump, Layout

_MOST = 20  # entries in HTML


def frame(own: Layout, data: Any, fields: Any, is_long: bool) -> pandas.DataFrame:
    import pandas
    indexes = pandas.Index(list(own._entries(data)[0]), name="index")
    alone: Dict[str, Any] = {}
    families: List[Tuple[Family, Any]] = []
    for name, column in own.columns(data, fields).items():
        part = own._by_name[name]
        if isinstance(part, Family):
            families.append((part, column))
        elif part.type == "bitmap":
            alone[name] = [ranges(row) for row in column]
        elif column.ndim > 1:
            alone[name] = [int.from_bytes(row.tobytes(), "little") for row in column]
        else:
            alone[name] = column
        if isinstance(part, Family) and not is_long:
            alone.update({field.name: column[:, i] for i, field in enumerate(part.fields)})
    rows = pandas.DataFrame(alone, index=indexes)
    if not is_long:
        return rows
    if not families:
        raise Error(f"{own.table} has no family among these fields; leave out long")
    ports = [pandas.Series(column.reshape(-1), name=family.name, index=pandas.MultiIndex.from_product(
        [indexes, family.numbers], names=["index", "port"])) for family, column in families]
    return rows.join(pandas.concat(ports, axis=1), how="right")


def layout(own: Layout) -> str:
    """A bit diagram, the highest bit of a word first, and a table of the fields."""
    head = f"{own.table} on {own.chip}: {own.purpose}, {own.entry_bytes} bytes"
    diagram = "".join(_word(own, word) for word in reversed(range(own.words)))
    fields = _table(("bits", "name", "hardware name", "id", "type", "meaning"), (
        (_bits(field), field.name, field.hardware_name, field.id, field.type, field.meaning)
        for field in own.fields))
    return f"<p>{escape(head)}</p><table>{diagram}</table>{fields}"


def dump(own: Dump) -> str:
    """A table of the first entries."""
    first = own[:_MOST]
    size = first.layout.entry_bytes
    entries = [dict(line.split(" = ", 1) for line in first.layout.text(
        first.data[i * size:(i + 1) * size]).splitlines()) for i in range(len(first))]
    names = list(dict.fromkeys(name for entry in entries for name in entry))
    rows = ((index, *(entry.get(name, "") for name in names))
            for index, entry in zip(first.indexes, entries))
    head = f"{own.layout.table} on {own.layout.chip}: {len(own)} entries"
    rest = f"<p>{len(own) - _MOST} more entries</p>" if len(own) > _MOST else ""
    return f"<p>{escape(head)}</p>{_table(('index', *names), rows)}{rest}"


def _word(own: Layout, word: int) -> str:
    """A row of 32 bits. Fields that share bits with one that is drawn stand in the table alone."""
    cells: List[Tuple[int, int, str]] = []
    free = 32 * word
    for field in sorted(own.fields, key=lambda field: field.first_bit):
        begin, end = max(field.first_bit, 32 * word), min(field.first_bit + field.bits, 32 * (word + 1))
        if begin >= end or begin < free:
            continue
        if begin > free:
            cells.append((free, begin, ""))
        cells.append((begin, end, field.name))
        free = end
    if free < 32 * (word + 1):
        cells.append((free, 32 * (word + 1), ""))
    drawn = "".join(f'<td colspan="{end - begin}" title="bits {end - 1}:{begin}" style="border:1px solid">'
                    f"{escape(name)}</td>" for begin, end, name in reversed(cells))
    return f"<tr><th>{32 * word + 31}</th>{drawn}<th>{32 * word}</th></tr>"


def _bits(field: Field) -> str:
    last = field.first_bit + field.bits - 1
    return f"{last}:{field.first_bit}" if field.bits > 1 else str(last)


def _table(names: Iterable[str], rows: Iterable[Iterable[Any]]) -> str:
    head = "".join(f"<th>{escape(name)}</th>" for name in names)
    body = "".join("<tr>" + "".join(f"<td>{escape(str(cell))}</td>" for cell in row) + "</tr>"
                   for row in rows)
    return f"<table><thead><tr>{head}</tr></thead><tbody>{body}</tbody></table>"
