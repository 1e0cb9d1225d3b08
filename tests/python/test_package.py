"""The package is complete: every member has a docstring, and the stubs tell what there is."""

import ast
import importlib.util
import inspect
import pathlib
import re

import k7deval
import pytest
from sample_sites import SOURCES

PACKAGE = pathlib.Path(k7deval.__file__).parent
CLASSES = {name: value for name, value in vars(k7deval).items() if isinstance(value, type)}
COMPILED = {name: value for name, value in CLASSES.items() if name in vars(k7deval._core)}
FUNCTIONS = {
    name: value
    for name, value in vars(k7deval).items()
    if callable(value) and not isinstance(value, type) and not name.startswith("_")
}


def is_own(name):
    return not name.startswith("_") or name in ("__init__", "__len__", "__iter__")


def stubbed():
    """The definitions of all stubs: classes by name with their members, and functions."""
    classes, functions = {}, {}
    for path in PACKAGE.glob("_*.pyi"):
        for node in ast.parse(path.read_text()).body:
            if isinstance(node, ast.ClassDef):
                classes[node.name] = node
            elif isinstance(node, ast.FunctionDef):
                functions[node.name] = node
    return classes, functions


STUB_CLASSES, STUB_FUNCTIONS = stubbed()


def stub_members(node):
    """Members by name: "read" or "set" for a property, or the names of an operation's arguments."""
    members = {}
    for entry in node.body:
        if isinstance(entry, ast.FunctionDef):
            is_property = any(ast.unparse(mark) == "property" for mark in entry.decorator_list)
            members[entry.name] = "read" if is_property else argument_names(entry)
        elif isinstance(entry, ast.AnnAssign):
            members[entry.target.id] = "set"
    return members


def argument_names(node):
    return [argument.arg for argument in node.args.args]


def documented_arguments(doc):
    """The names of the arguments in the first line of a docstring, where the binding puts them."""
    inner = re.match(r"\w+\((.*)\) ->", doc.splitlines()[0]).group(1)
    return re.findall(r"(\w+)(?=: )", inner)


def real_members(cls):
    members = {}
    for name, value in vars(cls).items():
        if not is_own(name):
            continue
        if isinstance(value, property):
            members[name] = "read" if value.fset is None else "set"
        elif callable(value) and "Initialize self" not in (value.__doc__ or ""):
            members[name] = documented_arguments(value.__doc__)
    return members


def test_the_stubs_name_all_classes_and_functions():
    assert set(STUB_CLASSES) == set(COMPILED)
    assert set(STUB_FUNCTIONS) == set(FUNCTIONS)
    exported = {
        alias.asname
        for node in ast.parse((PACKAGE / "__init__.pyi").read_text()).body
        if isinstance(node, ast.ImportFrom)
        for alias in node.names
    }
    assert exported == set(k7deval.__all__)


@pytest.mark.parametrize("name", sorted(set(COMPILED) - {"CalLimitRulesEnum"}))
def test_a_stub_has_the_members_of_its_class(name):
    assert stub_members(STUB_CLASSES[name]) == real_members(COMPILED[name])
    bases = [base.__name__ for base in COMPILED[name].__mro__[1:2] if base.__name__ in COMPILED]
    assert [ast.unparse(base) for base in STUB_CLASSES[name].bases] == bases


@pytest.mark.parametrize("name", sorted(FUNCTIONS))
def test_a_stub_has_the_arguments_of_its_function(name):
    assert argument_names(STUB_FUNCTIONS[name]) == documented_arguments(FUNCTIONS[name].__doc__)


def undocumented(owner, members):
    """Members whose docstring says no more than how they are called; a widget needs no more."""
    return [
        f"{owner}.{name}"
        for name, value in members.items()
        if not name.startswith("_") and not is_widget(value) and not explained(value)
    ]


def is_widget(value):
    result = value.fget.__doc__ if isinstance(value, property) else ""
    kind = re.search(r"-> (\w+)$", result or "", re.M)
    return kind is not None and issubclass(COMPILED.get(kind.group(1), object), k7deval.Widget)


def explained(value):
    doc = value.__doc__ or ""
    return len(doc.split("\n\n", 1)[-1].strip()) > 3 and not re.fullmatch(r"\(?.*->.*", doc.strip())


def test_everything_is_explained():
    missing = undocumented("k7deval", FUNCTIONS)
    for name, cls in COMPILED.items():
        assert cls.__doc__, name
        if name != "CalLimitRulesEnum":
            missing += undocumented(name, vars_of(cls))
    assert missing == []


def vars_of(cls):
    return {
        name: value
        for name, value in vars(cls).items()
        if isinstance(value, property) or inspect.isroutine(value)
    }


@pytest.mark.parametrize(
    "control, count",
    [
        (k7deval.ctrl7DaySetUp, 47),
        (k7deval.ctrl7DayResult, 41),
        (k7deval.ctrl7Day, 7),
        (k7deval.HistogramTool, 27),
        (k7deval.ParamSelect, 2),
        (k7deval.SingleParamSelect, 2),
    ],
)
def test_every_widget_of_a_control_is_an_attribute_under_its_name(control, count):
    parts = [name for name, value in vars_of(control).items() if is_widget(value)]
    assert len(parts) == count
    sample = (k7deval.ctrlMaxMW if control is k7deval.HistogramTool else control)()
    assert [getattr(sample, name).Name for name in parts] == parts


def test_the_stubs_of_the_controls_are_up_to_date():
    path = SOURCES / "scripts" / "make-stubs.py"
    spec = importlib.util.spec_from_file_location("make_stubs", path)
    script = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(script)
    for name, text in script.stubs().items():
        assert (script.FOLDER / name).read_text() == text, f"run {path}"


def test_a_widget_of_a_misspelt_name_is_told_by_the_right_one():
    tool = k7deval.ctrlMaxMW()
    with pytest.raises(AttributeError, match="cmbUnits") as caught:
        tool.cmbUnits
    assert (caught.value.name, caught.value.obj) == ("cmbUnits", tool)
    assert {"cmbUnit", "lblBar", "HighHours", "DIServer"} <= set(dir(tool))


def test_the_package_is_typed_and_says_where_its_classes_live():
    assert (PACKAGE / "py.typed").exists()
    assert {cls.__module__ for cls in COMPILED.values()} == {"k7deval"}
