"""The VLAN-related tables of Ethernet switch chips: entries from bytes and to bytes, and addresses.

A dump of a table is entries without gaps, as they were read from the chip:

    >>> import velmar
    >>> vlan = velmar.layout("VlanEntry", "BCM56990_B0")
    >>> data = open("samples/vlan-bcm56990.bin", "rb").read()
    >>> vlan.decode(data)[20]["stg"]
    2
    >>> [index for index, entry in enumerate(vlan.decode(data)) if entry["stg"] == 3]
    [200, 201, 202, 203]
    >>> changed = vlan.encode({"stg": 7}, base=data[20 * vlan.entry_bytes:21 * vlan.entry_bytes])
    >>> vlan.diff(data[:16 * 21], data[:16 * 20] + changed)
    [{'index': 20, 'change': 'changed', 'fields': {'stg': {'old': 2, 'new': 7}}}]
    >>> hex(vlan.address(100))
    '0xc7c0064'

With numpy, whole columns are faster and easier to question:

    >>> stg = vlan.columns(data)["stg"]
    >>> (stg == 3).nonzero()[0].tolist()
    [200, 201, 202, 203]

load() reads dumps in text, too, such as those of xxd, and only the entries that are asked for:

    >>> list(velmar.load("samples/vlan-bcm56990.bin", "vlan", "56990_b0", where="stg=3").indexes)
    [200, 201, 202, 203]

identify() says of which table and chip a dump may be, and translate() moves it to another chip.
chips() and tables() list what there is; layout(...).fields lists the fields. All that is refused
raises velmar.Error, whose text says what to do.

All of it is done by the library libvelmar: the environment variable VELMAR_LIBRARY names its file,
otherwise it is looked for beside the module's own prefix, and then where the system has its
libraries.
"""

from . import _library
from ._catalogue import Chip, Table, chips, find, tables
from ._dumps import compare, identify, load, translate
from ._layout import Dump, Field, Layout, Place, layout, ranges
from ._library import Error

__version__ = _library.library.velmar_version().decode()

__all__ = ["chips", "tables", "layout", "load", "find", "compare", "identify", "translate", "ranges",
           "Layout", "Field", "Chip", "Table", "Dump", "Place", "Error"]
