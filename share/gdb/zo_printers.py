# SPDX-License-Identifier: MIT
"""gdb loads this with the library. It prints handles, and what property lists hold, without running the program."""
import re

import gdb
import gdb.printing

WORD = 8
STRING = "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
READABLE = {"bool": "bool", "int": "int", STRING: "std::string"}


def at(address, type_name):
    return gdb.Value(int(address)).cast(gdb.lookup_type(type_name).pointer()).dereference()


def kind_of(any_value):
    """The type a boost::any holds, as its run-time type is called."""
    table = at(any_value["content"], "unsigned long")
    name = at(at(table - WORD, "unsigned long") + WORD, "unsigned long")
    mangled = name.cast(gdb.lookup_type("char").pointer()).string()
    told = gdb.execute(f"demangle -- _ZTS{mangled}", to_string=True)
    found = re.search(r"boost::any::holder<(.*?) ?>$", told.strip())
    return found and found[1]


def held_by(any_value):
    """What a boost::any holds, when that is readable; else None. It stands behind the pointer to the table."""
    kind = kind_of(any_value) if any_value["content"] else None
    return at(int(any_value["content"]) + WORD, READABLE[kind]) if kind in READABLE else None


def properties_of(map_value):
    """Names and values, by the standard library's own printer."""
    printer = gdb.default_visualizer(map_value)
    pairs = [value for _, value in printer.children()] if printer else []
    return [(pairs[i].format_string().strip('"'), pairs[i + 1]) for i in range(0, len(pairs) - 1, 2)]


class AnyPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        if not self.value["content"]:
            return "empty"
        held = held_by(self.value)
        return held.format_string() if held is not None else f"a {kind_of(self.value) or 'value of unknown type'}"


class HandlePrinter:
    def __init__(self, value):
        self.kind, self.address = value.type.strip_typedefs().template_argument(0), value["px"]
        self.pairs = []
        try:
            if self.address:
                self.pairs = properties_of(self.address.cast(gdb.lookup_type("_zo_object").pointer())["property_list"])
        except gdb.error:
            pass  # without the library's debug symbols only the address is known

    def to_string(self):
        held = {name: held_by(value) for name, value in self.pairs}
        texts = [f"{label} {held[name].format_string()}" for label, names in
                 (("id", ("window-id", "name")), ("title", ("window-title-text", "title")))
                 for name in names if held.get(name) is not None]
        states = [state for state in ("destroyed", "visible", "opened")
                  if any(name.endswith("-" + state) and flag for name, flag in held.items())]
        place = f"{self.kind} at {int(self.address):#x}" if self.address else f"empty handle of {self.kind}"
        return ", ".join([place, *texts, *states[:1]])

    def children(self):
        return ((f'["{name}"]', value) for name, value in self.pairs)


zo_printers = gdb.printing.RegexpCollectionPrettyPrinter("zo")
zo_printers.add_printer("handle", r"^boost::shared_ptr<_zo_\w+>$", HandlePrinter)
zo_printers.add_printer("any", r"^boost::any$", AnyPrinter)
gdb.printing.register_pretty_printer(gdb.current_objfile(), zo_printers, replace=True)
