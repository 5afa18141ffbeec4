#!/usr/bin/env python3
"""Lists the VLANs whose member ports changed between two dumps of a table, and draws them port by VLAN.

    ./examples/changed-members.py old.bin new.bin picture.png
    ./examples/changed-members.py old.txt new.txt picture.png --table VlanEntry --chip BCM56960_A0

A dump is in any notation that the command velmar reads. A VLAN that one dump does not have has no
members there. The picture, which is left out if none is named, needs matplotlib."""

import argparse

import numpy

import velmar


def members(dump, field, count):
    """An array of bool: [VLAN, port]."""
    table = numpy.zeros((count, dump.layout.field(field).bits), bool)
    table[list(dump.indexes)] = dump.layout.columns(dump, field)[field]
    return table


def draw(path, title, vlans, old, new):
    import matplotlib
    matplotlib.use("Agg")
    from matplotlib import pyplot
    from matplotlib.colors import ListedColormap
    from matplotlib.patches import Patch

    kinds = {"not a member": "#f4f4f4", "member before and after": "#9db4c8", "left": "#c8452d",
             "joined": "#2d8a4e"}
    picture = numpy.select([old & new, old & ~new, ~old & new], [1, 2, 3])
    # Beyond a hundred VLANs their rows get thin, and not each has its number.
    step = -(-len(vlans) // 100)
    figure, axes = pyplot.subplots(figsize=(12, 1.6 + 0.3 * min(len(vlans), 100)),
                                   layout="constrained")
    axes.pcolormesh(picture, cmap=ListedColormap(list(kinds.values())), vmin=-0.5, vmax=3.5,
                    edgecolors="white", linewidth=0.4 if step == 1 else 0)
    axes.set_yticks(numpy.arange(0, len(vlans), step) + 0.5, vlans[::step])
    axes.invert_yaxis()
    axes.set_xticks(numpy.arange(0, old.shape[1], 16) + 0.5, range(0, old.shape[1], 16))
    axes.set_title(title, loc="left")
    axes.set(xlabel="port", ylabel="VLAN")
    axes.legend(handles=[Patch(facecolor=colour, edgecolor="#cccccc", label=kind)
                         for kind, colour in kinds.items()],
                loc="lower right", bbox_to_anchor=(1, 1), ncols=len(kinds), frameon=False)
    figure.savefig(path, dpi=120)


parser = argparse.ArgumentParser(description="Lists the VLANs whose member ports changed.")
parser.add_argument("old")
parser.add_argument("new")
parser.add_argument("picture", nargs="?")
parser.add_argument("--table", default="EgrVlanEntry")
parser.add_argument("--chip", default="BCM56980_A0")
parser.add_argument("--field", default="portBitmap")
given = parser.parse_args()

dumps = [velmar.load(path, given.table, given.chip) for path in (given.old, given.new)]
count = 1 + max(index for dump in dumps for index in dump.indexes)
old, new = (members(dump, given.field, count) for dump in dumps)
vlans = numpy.flatnonzero((old != new).any(axis=1))
for vlan in vlans:
    left = velmar.ranges(numpy.flatnonzero(old[vlan] & ~new[vlan]))
    joined = velmar.ranges(numpy.flatnonzero(new[vlan] & ~old[vlan]))
    print(f"VLAN {vlan}: left {left}; joined {joined}")
print(f"{len(vlans)} of {count} VLANs changed")
if given.picture and len(vlans):
    title = f"Members that changed: {given.table} on {given.chip}"
    draw(given.picture, title, vlans, old[vlans], new[vlans])
