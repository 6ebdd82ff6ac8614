"""What the tests of the Python module have in common."""

import json
import os
import pathlib
import subprocess

import pytest

import editoreffects

SOURCE = pathlib.Path(os.environ["EDITOR_SOURCE_DIR"])
EFFECTS = [described for described in editoreffects.classes() if described["id"] is not None]
NAMES = [described["class"] for described in EFFECTS]


def effectctl(*arguments):
    """What the tool prints, which is an independent reader and writer of the same files."""
    result = subprocess.run([os.environ["EFFECTCTL"], *map(str, arguments)], stdout=subprocess.PIPE, check=True)
    return json.loads(result.stdout) if "--json" in arguments else result.stdout


def other(parameter, value):
    """A value that the parameter takes and that differs from `value`, by the parameter's description."""
    kind = parameter["kind"]
    if kind == "boolean":
        return not value
    if kind in ("integer", "time", "real"):
        step = 0.375 if kind == "real" else 3
        return value - step if parameter["maximum"] is not None and value + step > parameter["maximum"] else value + step
    if kind == "text":
        return "other \u00e4\u4e16\U0001f600"
    if kind == "colour":
        return "#80102030"
    if kind == "enumeration":
        return next(choice["name"] for choice in parameter["choices"] if choice["name"] != value)
    if kind == "transform":
        return ((0.5, 0.0, 0.25), (0.0, -2.0, 0.0), (0.125, 3.0, 1.0))
    if kind == "resource":
        return {"name": "other", "type": 3}
    if kind == "list" and parameter["elements"] is not None and parameter["type"].startswith("std::deque<std::unique_ptr"):
        return [editoreffects.create("Effect::Blur", intensity=0.25), None]
    record = {element["key"]: other(element, first(element)) for element in parameter["elements"]}
    return [record, record] if kind == "list" else record


def first(parameter):
    """A value of an element's parameter, whose description has no default where it has no object."""
    simple = {"boolean": False, "integer": 0, "time": 0, "real": 0.0, "text": ""}
    return simple.get(parameter["kind"])


def varied(described):
    """An effect whose parameters are all off their defaults."""
    effect = editoreffects.create(described["class"])
    for parameter in described["parameters"]:
        effect[parameter["key"]] = other(parameter, effect[parameter["key"]])
    return effect


@pytest.fixture(params=EFFECTS, ids=NAMES)
def described(request):
    return request.param
