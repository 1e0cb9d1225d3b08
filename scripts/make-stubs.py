#!/usr/bin/env python3
"""Writes the type stubs of the Python module that can be read off the module itself.

    PYTHONPATH=<build>/python scripts/make-stubs.py

The controls say what widgets and results they have, and the bindings what operations; from these
hosts/python/k7deval/_controls.pyi is made, and __init__.pyi from all stubs of the folder. The other
stubs are written by hand, and tests/python/test_package.py holds them to the module.
"""

import ast
import pathlib
import re

import k7deval

FOLDER = pathlib.Path(__file__).parent.parent / "hosts" / "python" / "k7deval"

# Where the binding knows no more than that it is an object.
RETURNED = {"ParamSelect.GetSelection": "list[int] | EmptyType"}

CONTROLS = [
    value
    for value in vars(k7deval._core).values()
    if isinstance(value, type)
    and issubclass(value, k7deval.Control)
    and value is not k7deval.Control
]


def python_type(text):
    """A type as the stubs write it."""
    text = re.sub(r"\bk7deval\._core\.", "", text)
    text = re.sub(r"\bdatetime\.datetime\b", "datetime", text)
    text = re.sub(r"\b(List|list)\b", "list", text)
    text = re.sub(r"\bOptional\[(\w+(?:\[[^\[\]]*\])?)\]", r"\1 | None", text)
    return re.sub(r"\bobject\b", "Any", text)


def signature(function):
    """The arguments and the result of an operation, from the first line of its docstring."""
    line = function.__doc__.splitlines()[0]
    arguments, result = re.match(r"\w+\((.*)\) -> (.*)$", line).groups()
    arguments = re.sub(r"\bself: [\w.]+", "self", arguments)
    # An array is taken from any sequence.
    return re.sub(r"\blist\[", "Sequence[", python_type(arguments)), python_type(result)


def operation(owner, name, function):
    arguments, result = signature(function)
    result = RETURNED.get(f"{owner}.{name}", result)
    return [f"    def {name}({arguments}) -> {result}: ..."]


def attribute(name, member):
    kind = python_type(re.search(r"-> (.*)$", member.fget.__doc__, re.M).group(1))
    if member.fset is not None:
        return [f"    {name}: {kind}"]
    return ["    @property", f"    def {name}(self) -> {kind}: ..."]


def lines_of_class(cls):
    base = cls.__mro__[1].__name__
    lines = [f"class {cls.__name__}({base}):"]
    for name, member in vars(cls).items():
        if isinstance(member, property):
            lines += attribute(name, member)
        elif name == "__init__" and "Initialize self" not in member.__doc__:
            lines += operation(cls.__name__, name, member)
        elif callable(member) and not name.startswith("_"):
            lines += operation(cls.__name__, name, member)
    return lines


def names_defined_in(text):
    """The classes and functions of a stub."""
    nodes = ast.parse(text).body
    return [node.name for node in nodes if isinstance(node, (ast.ClassDef, ast.FunctionDef))]


def names_by_module():
    """What the package exports, by the stub it stands in."""
    stubs = {path.stem: path.read_text() for path in FOLDER.glob("_[a-z]*.pyi")}
    names = {module: names_defined_in(text) for module, text in stubs.items()}
    names["_controls"] = [cls.__name__ for cls in CONTROLS]
    # What is written in Python needs no stub.
    names["_values"] = list(set(k7deval.__all__) - set(vars(k7deval._core)))
    return {module: sorted(names[module], key=str.lower) for module in sorted(names)}


def import_of(module, entries):
    return [f"from .{module} import (", *(f"    {entry}," for entry in entries), ")"]


def controls_stub():
    body = []
    for cls in CONTROLS:
        body += ["", *lines_of_class(cls)]
    used = set(re.findall(r"\w+", "\n".join(body)))
    lines = ['"""The controls, as they describe themselves: made by scripts/make-stubs.py."""', ""]
    for module, name in (("collections.abc", "Sequence"), ("datetime", "datetime")):
        if name in used:
            lines.append(f"from {module} import {name}")
    lines += ["from typing import Any", ""]
    for module, names in names_by_module().items():
        entries = [name for name in names if name in used]
        # A property that is called DIServer is not the class.
        if entries and module not in ("_controls", "_data"):
            lines += import_of(module, entries)
    return "\n".join([*lines, "", *body]) + "\n"


def package_stub():
    lines = [
        '"""Evaluation screens for continuous emissions monitoring data, driven from Python.',
        "",
        "The stubs are split by family; at run time all of it is in the one module. This page is made",
        "by scripts/make-stubs.py.",
        '"""',
        "",
    ]
    for module, names in names_by_module().items():
        lines += import_of(module, [f"{name} as {name}" for name in names])
    return "\n".join(lines) + "\n"


def stubs():
    """What the generated stubs have to be, by file."""
    return {"_controls.pyi": controls_stub(), "__init__.pyi": package_stub()}


if __name__ == "__main__":
    for name, text in stubs().items():
        (FOLDER / name).write_text(text)
