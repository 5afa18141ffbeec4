#!/usr/bin/env python3
"""Questions about three dumps of one switch, cell by cell: run it as a whole in the source's folder, or open
it as a notebook. Lines that begin with "#> " are what a cell prints. It needs numpy."""

# %% Load the dumps. A dump knows its table, and shows itself as a table in a notebook.
import numpy

import velmar

vlans = velmar.load("samples/egr-vlan-bcm56980.bin", "EgrVlan", "BCM56980_A0")
groups = velmar.load("samples/vlan-stg-bcm56980.bin", "VlanStg", "BCM56980_A0")
print(len(vlans), "VLANs,", len(groups), "groups")
#> 8 VLANs, 4 groups

# %% Which VLANs are in use, in which group, with which ports?
used = vlans.where("valid=1")
for index, entry in zip(used.indexes, used):
    print(index, "group", entry["stg"], "ports", velmar.ranges(entry["portBitmap"]))
#> 1 group 1 ports 20-22,156-159
#> 2 group 2 ports 40-44,156-159
#> 3 group 3 ports 60-66,156-159
#> 4 group 0 ports 80-88,156-159
#> 6 group 2 ports 120-132,156-159
#> 7 group 3 ports 140-154,156-159

# %% What are the states of all ports in each group? A family of fields is one value.
for index in groups.indexes:
    print(index, groups.layout.text(groups[index:index + 1]), end="")
#> 0 spTreePort = {0: 0-159}
#> 1 spTreePort = {0: 0  3: 1-9,11-155,157  2: 10  1: 156,158-159}
#> 2 spTreePort = {0: 0  3: 1-19,21-155,158  2: 20  1: 156-157,159}
#> 3 spTreePort = {0: 0  3: 1-29,31-155,159  2: 30  1: 156-158}

# %% Which members of each VLAN have another state than 3 in its group? Columns answer it at once.
columns = used.layout.columns(used)
states = groups.layout.columns(groups)["spTreePort"]
stuck = columns["portBitmap"] & (states[columns["stg"]] != 3)
for index, ports in zip(used.indexes, stuck):
    print(index, velmar.ranges(ports))
#> 1 156,158-159
#> 2 156-157,159
#> 3 156-158
#> 4 80-88,156-159
#> 6 156-157,159
#> 7 156-158

# %% Make the third dump: all members of VLAN 4 get state 3 in group 0. What changes?
changed = states.copy()
changed[0, vlans[4]["portBitmap"]] = 3
after = groups.layout.encode_columns({"spTreePort": changed}, base=groups)
rows = groups.layout.diff(groups, after)
print([(row["index"], len(row["fields"])) for row in rows], numpy.count_nonzero(changed != states))
#> [(0, 13)] 13

# %% In how many groups has each uplink state 3 now?
for port in range(156, 160):
    print(port, sum(entry["spTreePort"][port] == 3 for entry in after))
#> 156 1
#> 157 2
#> 158 2
#> 159 2
