"""The VLAN-related tables of Ethernet switch chips: entries from bytes and to bytes, and addresses.

A dump of a table is entries without gaps, as they were read from the chip, or text such as that of xxd:

    >>> import velmar
    >>> dump = velmar.load("samples/vlan-bcm56990.bin", "VlanEntry", "BCM56990_B0")
    >>> len(dump), dump[20]["stg"], list(dump.where("stg=3").indexes)
    (8192, 2, [200, 201, 202, 203])
    >>> vlan = dump.layout
    >>> vlan.encode({"stg": 7, "valid": 1}).hex()
    '00000000001c00000400000000000000'
    >>> vlan.diff(dump, vlan.encode_columns({"stg": dump[20]["stg"]}, base=dump))[0]
    {'index': 0, 'change': 'changed', 'fields': {'stg': {'old': 0, 'new': 2}}}
    >>> hex(vlan.address(100))
    '0xc7c0064'
    >>> velmar.ranges((vlan.columns(dump)["stg"] == 3).nonzero()[0])
    '200-203'

Columns are numpy arrays; all else does without numpy, except for encode_columns() and frame().
identify() says of which table and chip a dump may be, translate() moves it to another chip. chips(),
tables() and layout(...).fields list what there is. All that is refused raises velmar.Error.
The library libvelmar does all of it: the environment variable VELMAR_LIBRARY names its file; otherwise
it is looked for beside the module's own prefix, and then where the system has its libraries.
"""

from . import _library
from ._catalogue import chips, find, tables
from ._dumps import compare, identify, load, translate
from ._layout import Data, Dump, Entry, Layout, Place, Value, layout
from ._library import Error
from ._records import Chip, Family, Field, Table
from ._values import ranges

__version__ = _library.library.velmar_version().decode()

__all__ = ["chips", "tables", "layout", "load", "find", "compare", "identify", "translate", "ranges",
           "Layout", "Field", "Family", "Chip", "Table", "Dump", "Place", "Error", "Data", "Entry",
           "Value"]
