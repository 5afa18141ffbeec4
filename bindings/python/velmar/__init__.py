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

chips() and tables() list what there is; layout(...).fields lists the fields. load() reads dumps in
text, such as those of xxd. All that is refused raises velmar.Error, whose text says what to do.

Numbers, checks and messages are those of the library libvelmar: the environment variable
VELMAR_LIBRARY names its file, otherwise it is looked for beside the module's own prefix, and then
where the system has its libraries. load() and compare() run the command velmar.
"""

from . import _library
from ._catalogue import Chip, Table, chips, find, tables
from ._command import compare, load
from ._layout import Dump, Field, Layout, Place, layout, ranges
from ._library import Error

__version__ = _library.library.velmar_version().decode()

__all__ = ["chips", "tables", "layout", "load", "find", "compare", "ranges",
           "Layout", "Field", "Chip", "Table", "Dump", "Place", "Error"]
