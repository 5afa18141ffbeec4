"""Values and bytes in the forms that Python has for them."""

from __future__ import annotations

from typing import Any, Iterable, List, Mapping, Optional

from ._library import Error, WrongType, integer
from ._records import Field


def ranges(ports: Iterable[Any]) -> str:
    """Ports, by their numbers or as a row of booleans, as text: "0-3,17", or "none"."""
    parts: List[List[int]] = []
    for port in sorted(set(_ports(ports, "ports"))):
        if parts and parts[-1][1] == port - 1:
            parts[-1][1] = port
        else:
            parts.append([port, port])
    return ",".join(f"{a}-{b}" if a < b else f"{a}" for a, b in parts) or "none"


def raw_bytes(data: Any, entry_bytes: Optional[int] = None) -> bytes:
    """The bytes of entries. Items and rows of other sizes are not the bytes of entries in order."""
    if type(data) is bytes:
        return data
    if isinstance(data, str):
        raise WrongType(f"{data!r} is text; give bytes, or what velmar.load() reads from a file")
    try:
        # Also of a subclass of bytes, which may say anything of its length.
        items = memoryview(data)
    except (TypeError, ValueError, BufferError):
        raise WrongType(f"{data!r} is not data; give bytes, or a numpy array of uint8") from None
    if items.format.lstrip("@=<") not in ("B", "b", "c", "I"):
        raise Error(f"the data have items of {items.itemsize} bytes and format {items.format!r}; give "
                    "bytes (numpy: uint8), or little-endian words of 32 bits (numpy: <u4)")
    if items.ndim != 1 and entry_bytes not in (None, items.itemsize * (items.shape or [0])[-1]):
        raise Error(f"the data have the shape {items.shape}, and the last number is not an entry; give "
                    f"rows of {entry_bytes} bytes")
    return items.tobytes()


def ports_of(number: int) -> List[int]:
    return [port for port, bit in enumerate(bin(number)[:1:-1]) if bit == "1"]


def is_list(value: Any) -> bool:
    return (isinstance(value, Iterable) and getattr(value, "ndim", 1) == 1 and
            not isinstance(value, (str, bytes, bytearray, memoryview, Mapping)))


def value_text(field: Field, value: Any) -> str:
    """A value as the library reads it."""
    if field.type != "bitmap":
        return number_text(field.name, value)
    ports = _ports(value, field.name, field.bits)
    for i, port in enumerate(ports):
        if port < 0 or port in ports[:i]:
            raise Error(f"{field.name}: port {port} is {'negative' if port < 0 else 'given twice'}; give "
                        "each port once, from 0 on")
    return ",".join(map(str, ports)) or "none"


def number_text(name: str, value: Any) -> str:
    number = value if type(value) is int else integer(value, name)
    if number < 0:
        raise Error(f"{name}: {number if number > -1 << 64 else 'it'} is negative; give an int from 0 on")
    # Python refuses to write thousands of decimal digits.
    return str(number) if number < 1 << 64 else f"{number:#x}"


def _ports(values: Any, name: str, width: Optional[int] = None) -> List[int]:
    """Numbers as they are; of a row of booleans, or an array of 0 and 1 of that width, the places."""
    if not is_list(values):
        raise WrongType(f"{name}: {values!r} is not ports; give a list of them, such as [0, 17], or a "
                        "row of booleans")
    items = list(values)
    booleans = [type(item).__name__ in ("bool", "bool_") for item in items]
    if any(booleans) and not all(booleans):
        raise WrongType(f"{name}: numbers and booleans are mixed; give the numbers of the ports, or a "
                        "row of booleans")
    is_bits = len(items) == width and hasattr(values, "dtype") and set(items) <= {0, 1}
    if not any(booleans) and not is_bits:
        return [integer(item, name) for item in items]
    if width not in (None, len(items)):
        raise Error(f"{name}: a row of {len(items)} booleans; give one of {width}, or the numbers of the "
                    "ports")
    return [port for port, item in enumerate(items) if item]
