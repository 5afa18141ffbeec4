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
import gdb.xmethod


def read(layout, address):
    """Pairs such as ("stg", "5") or ("spTreePort", "{3: 0-7  0: 8-159}")."""
    memory = gdb.selected_inferior().read_memory(address, layout.entry_bytes)
    return [tuple(line.split(" = ", 1)) for line in layout.text(memory).splitlines()]


def pointer_at(address):
    """A word of the program."""
    size = gdb.lookup_type("unsigned long").sizeof
    return int.from_bytes(gdb.selected_inferior().read_memory(address, size).tobytes(), "little")


def class_of(view):
    """The class of an object, also of one that its type calls a base."""
    if view.address is None:
        raise velmar.Error("it is not in memory")
    table = pointer_at(int(view.address))
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
            self.fields = read(layout, address)
        except (velmar.Error, gdb.error) as error:
            self.text = f"{getattr(self, 'text', 'view')}: {error}"

    def to_string(self):
        return self.text

    def children(self):
        return iter(self.fields)

    def whole(self):
        """All of it as one text."""
        fields = ", ".join(f"{name} = {text}" for name, text in self.fields)
        return f"{self.text} = {{{fields}}}" if fields else self.text


class HolderPrinter:
    """An object with a view as a member, whose type gdb does not know: the other members as gdb has them."""

    def __init__(self, holder):
        self.holder = holder

    def to_string(self):
        return None

    def children(self):
        for field in self.holder.type.strip_typedefs().fields():
            if not hasattr(field, "bitpos"):
                continue  # static
            member = self.holder[field]
            name = f"<{field.name}>" if field.is_base_class else field.name
            yield name, ViewPrinter(member).whole() if is_unknown_view(field.type) else member


class VectorPrinter:
    """A vector of views whose type gdb does not know."""

    def __init__(self, vector):
        try:
            self.views = elements(vector)
            self.text = f"std::vector of length {len(self.views)}"
        except (velmar.Error, gdb.error) as error:
            self.views, self.text = [], f"std::vector: {error}"

    def to_string(self):
        return self.text

    def children(self):
        return ((f"[{i}]", ViewPrinter(view).whole()) for i, view in enumerate(self.views))


class BitmapPrinter:
    """Ports as ranges."""

    def __init__(self, bitmap):
        self.bitmap = bitmap

    def to_string(self):
        try:
            count, heap = int(self.bitmap["wordCount_"]), self.bitmap["heap_"]
            words = heap if heap else self.bitmap["inline_"].address
            if count > 1 << 16 or words is None:
                return f"{count} words of ports; it may not be constructed yet, or be overwritten"
            memory = gdb.selected_inferior().read_memory(int(words), 4 * count).tobytes()
        except gdb.error as error:
            return str(error)
        bits = int.from_bytes(memory, "little")
        return velmar.ranges([port for port in range(32 * count) if bits >> port & 1])


def elements(vector):
    """The views of a vector. How far they are apart is what repeats the pointer that each begins with."""
    part = vector["_M_impl"]
    begin, end = int(part["_M_start"]), int(part["_M_finish"])
    if begin == end:
        return []
    table = pointer_at(begin)
    word = gdb.lookup_type("unsigned long").sizeof
    for step in range(2 * word, min(end - begin, 1 << 10) + 1, word):
        places = range(begin, end, step)
        if (end - begin) % step == 0 and all(pointer_at(at) == table for at in places):
            kind = part["_M_start"].type
            return [gdb.Value(at).cast(kind).dereference() for at in places]
    raise velmar.Error("gdb does not know the size of its views; compile the program with "
                       "-femit-class-debug-always")


def bare(kind):
    return kind.strip_typedefs().unqualified()


def is_view(kind):
    return bool(VIEWS.fullmatch(bare(kind).name or ""))


def is_unknown_view(kind):
    """Whether the program's debug information leaves the class to the library, which has none."""
    return is_view(kind) and not bare(kind).fields()


def is_vector(kind):
    name = bare(kind).name or ""
    return name.startswith("std::vector<Velmar::") and is_unknown_view(kind.strip_typedefs().template_argument(0))


class Printers(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("velmar")

    def __call__(self, value):
        # A reference too: what it refers to has no complete type, and gdb would say only that.
        if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            value = value.referenced_value()
        kind = bare(value.type)
        if is_view(kind):
            return ViewPrinter(value)
        if kind.code != gdb.TYPE_CODE_STRUCT:
            return None
        fields = kind.fields()
        if kind.name == "Oru::PerUnitBitmap":
            return BitmapPrinter(value) if {"wordCount_", "heap_", "inline_"} <= {
                field.name for field in fields} else None
        if is_vector(kind):
            return VectorPrinter(value)
        return HolderPrinter(value) if any(is_unknown_view(field.type) for field in fields) else None


class VectorMethods(gdb.xmethod.XMethodMatcher):
    """What the C++ library's own script makes of such a vector needs the size of a view."""

    class Worker(gdb.xmethod.XMethodWorker):
        def __init__(self, name, kind):
            self.name, self.kind = name, kind

        def get_arg_types(self):
            return gdb.lookup_type("unsigned long") if self.name in ("operator[]", "at") else None

        def get_result_type(self, *_):
            return gdb.lookup_type("unsigned long") if self.name == "size" else self.kind

        def __call__(self, vector, index=0):
            try:
                views = elements(vector)
            except (velmar.Error, gdb.error) as error:
                gdb.write(f"{error}\n")
                views = []
            if self.name == "size":
                return len(views)
            at = len(views) - 1 if self.name == "back" else int(index)
            # gdb says itself what is wrong with address 0; a failure here would be a Python text.
            return views[at] if 0 <= at < len(views) else (
                gdb.Value(0).cast(self.kind.pointer()).dereference())

    def __init__(self):
        super().__init__("velmar")
        self.methods = [gdb.xmethod.XMethod(name)
                        for name in ("operator[]", "at", "front", "back", "size")]

    def match(self, class_type, method_name):
        known = any(method.name == method_name and method.enabled for method in self.methods)
        if not known or not is_vector(class_type):
            return None
        return self.Worker(method_name, class_type.strip_typedefs().template_argument(0))


def show_locals():
    """What "info locals" leaves out."""
    block = gdb.selected_frame().block()
    while block and not block.is_static and not block.is_global:
        for symbol in block:
            if symbol.is_variable and not symbol.is_argument and is_unknown_view(symbol.type):
                view = symbol.value(gdb.selected_frame())
                gdb.write(f"{symbol.name} = {ViewPrinter(view).whole()}\n")
        if block.function:
            return
        block = block.superblock


def variant_of(text):
    if not text.isdigit():
        raise velmar.Error(f"the variant {text} is not a number; give 0 to 255")
    return int(text)


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
            layout = velmar.layout(*arguments[1:3], *map(variant_of, arguments[3:]))
            if is_array and value.type.sizeof < layout.entry_bytes:
                raise velmar.Error(f"{arguments[0]} has {value.type.sizeof} bytes, but an entry has "
                                   f"{layout.entry_bytes}; give the address of a whole entry")
            fields = read(layout, address % (1 << 64))
        except (velmar.Error, gdb.error) as error:
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
    VIEWS = re.compile("Velmar::({})|AsicUtils::(Bcm)?AsicBase".format(
        "|".join(table.name for table in velmar.tables())))
    # Those of the program come before those of the C++ library, which do not know the views.
    place = gdb.current_objfile() or next(iter(gdb.objfiles()), None)
    gdb.printing.register_pretty_printer(place, Printers(), replace=True)
    gdb.xmethod.register_xmethod_matcher(place, VectorMethods(), replace=True)
    DecodeBytes()
    gdb.execute("define info hookpost-locals\npython show_locals()\nend")
