"""Shows views and entries by their fields, in a program or in its core dump: memory is read, and
nothing in the program is called.

    print vlan                              a view, a reference to one, or *base
    velmar-decode bytes VlanEntry 56990_B0  an entry at an address, without a view

gdb loads this file with libVelmarMetaInfo.so; otherwise "source" it. Decoding is done by the Python
module velmar, in gdb's own process. The library needs no debug information, but without it gdb shows
a view inside another object only if it is named, such as "print port.view".
"""

import re

import gdb
import gdb.printing


def value_text(field, value):
    if field.type == "bitmap":
        return velmar.ranges(value)
    return f"{value:#x}" if field.type == "Raw128" else str(value)


def field_texts(layout, entry):
    """Pairs such as ("stg", "5"); a family is one, ("spTreePort", "{3: 0-7  0: 8-159}")."""
    texts = {}
    for field in layout.fields:
        text = value_text(field, entry[field.name])
        if field.family:
            texts.setdefault(field.family, {}).setdefault(text, []).append(field.number)
        else:
            texts[field.name] = text
    if "outsideFields" in entry:
        texts["outsideFields"] = f"{entry['outsideFields']:#x}"
    for name, text in texts.items():
        yield name, text if isinstance(text, str) else "{" + "  ".join(
            f"{value}: {velmar.ranges(numbers)}" for value, numbers in text.items()) + "}"


def read(layout, address):
    memory = gdb.selected_inferior().read_memory(address, layout.entry_bytes)
    return field_texts(layout, layout.decode(memory, expand=True)[0])


def class_of(view):
    """The class of an object, also of one that its type calls a base."""
    if view.address is None:
        raise velmar.Error("it is not in memory")
    pointer = gdb.lookup_type("unsigned long").pointer()
    table = int(view.address.cast(pointer).dereference())
    symbol = gdb.execute(f"info symbol {table:#x}", to_string=True)
    name = re.match(r"vtable for Velmar::(\w+) ", symbol)
    if not name and symbol.startswith("vtable for "):
        # A class of the program's own: its type says which view it is made of.
        name = re.fullmatch(r"Velmar::(\w+)", view.type.strip_typedefs().unqualified().name or "")
    if not name:
        raise velmar.Error(f"the object at {int(view.address):#x} is not a view; it may not be "
                           "constructed yet, or be overwritten")
    return name[1]


def members_of(view):
    """Address and size of the buffer, number of the chip, and variant."""
    try:
        return [int(view[name]) for name in ("buf_", "len_", "chipType_", "variant_")]
    except gdb.error:
        pass  # no debug information: the order of the members is part of the binary interface
    size = gdb.lookup_type("unsigned long").sizeof
    raw = gdb.selected_inferior().read_memory(int(view.address) + size, size + 4).tobytes()
    return [int.from_bytes(raw[:size], "little"), int.from_bytes(raw[size:size + 2], "little"),
            raw[size + 2], raw[size + 3]]


class ViewPrinter:
    """The class and chip; its children are the fields, which backtraces leave out."""

    def __init__(self, view):
        self.fields = ()
        try:
            name = class_of(view)
            address, size, chip, variant = members_of(view)
            layout = velmar.layout(name, chip, variant)
            self.text = f"{layout.table} {layout.chip}"
            if variant:
                self.text += f" variant {variant}"
            if size < layout.entry_bytes:
                raise velmar.Error(f"the buffer has {size} bytes, not {layout.entry_bytes}")
            self.fields = list(read(layout, address))
        except (velmar.Error, gdb.error) as error:
            self.text = f"{getattr(self, 'text', 'view')}: {error}"

    def to_string(self):
        return self.text

    def children(self):
        return iter(self.fields)


class Views(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("velmar")
        tables = "|".join(table.name for table in velmar.tables())
        self.names = re.compile(rf"Velmar::({tables})|AsicUtils::(Bcm)?AsicBase")

    def __call__(self, value):
        # A reference too: what it refers to has no complete type, and gdb would say only that.
        if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            value = value.referenced_value()
        name = value.type.strip_typedefs().unqualified().name
        return ViewPrinter(value) if name and self.names.fullmatch(name) else None


class DecodeBytes(gdb.Command):
    """Shows an entry in memory by its fields: velmar-decode ADDRESS TABLE CHIP [VARIANT].

    ADDRESS is an expression without spaces, such as entry, &raw[16] or 0x7ffe1230."""

    def __init__(self):
        super().__init__("velmar-decode", gdb.COMMAND_DATA, gdb.COMPLETE_EXPRESSION)

    def invoke(self, text, from_tty):
        arguments = gdb.string_to_argv(text)
        if len(arguments) not in (3, 4):
            raise gdb.GdbError("give velmar-decode ADDRESS TABLE CHIP [VARIANT]")
        try:
            value = gdb.parse_and_eval(arguments[0])
            if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
                value = value.referenced_value()
            is_array = value.type.strip_typedefs().code == gdb.TYPE_CODE_ARRAY
            address = int(value.address if is_array else value)
            layout = velmar.layout(*arguments[1:3], *map(int, arguments[3:]))
            if is_array and value.type.sizeof < layout.entry_bytes:
                raise velmar.Error(f"{arguments[0]} has {value.type.sizeof} bytes, but an entry has "
                                   f"{layout.entry_bytes}; give the address of a whole entry")
            fields = list(read(layout, address))
        except (ValueError, OverflowError, gdb.error) as error:
            raise gdb.GdbError(str(error))
        print(layout.table, layout.chip)
        for name, text in fields:
            print(f"  {name} = {text}")


try:
    import velmar
except ImportError as error:
    remedy = ("; install python3-velmar, or name the folder of the module in PYTHONPATH"
              if isinstance(error, ModuleNotFoundError) else "")
    print(f"views are not shown by their fields: {error}{remedy}")
else:
    gdb.printing.register_pretty_printer(gdb.current_objfile(), Views(), replace=True)
    DecodeBytes()
