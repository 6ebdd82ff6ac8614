"""Every class: its parameters as attributes and items, and both archives."""

import copy
import json
import keyword
import pickle

import pytest

import editoreffects
from conftest import EFFECTS, NAMES, SOURCE, effectctl, other, varied


def test_there_are_as_many_as_the_tool_lists():
    assert NAMES == [info["class"] for info in effectctl("list", "--json") if info["id"] is not None]
    assert len(NAMES) == 84


def test_descriptions_are_those_of_the_tool():
    assert editoreffects.classes() == effectctl("describe", "--json")
    assert editoreffects.describe("Effect::Frame") == effectctl("describe", "Effect::Frame", "--json")[0]


@pytest.mark.parametrize("names", [[], ["Effect::Mask"]], ids=["any", "one"])
def test_schemas_are_those_of_the_tool(names):
    assert editoreffects.schema(*names) == json.loads(effectctl("schema", *names))


def test_keys_can_be_attributes(described):
    names = set(dir(editoreffects.Effect)) - set(dir(object))
    for parameter in described["parameters"]:
        assert parameter["key"].isidentifier() and not keyword.iskeyword(parameter["key"])
        assert parameter["key"] not in names


def test_a_new_effect_has_the_defaults_of_the_tool(described):
    effect = editoreffects.create(described["class"])
    assert effect.class_name == described["class"]
    assert json.loads(effect.to_json()) == effectctl("show", "--class", described["class"], "--json")
    assert repr(effect) == f"editoreffects.create('{described['class']}')"
    assert list(effect) == list(effect.parameters()) == [parameter["key"] for parameter in described["parameters"]]


def test_every_parameter_can_be_set(described):
    for parameter in described["parameters"]:
        key = parameter["key"]
        effect = editoreffects.create(described["class"])
        before = effect[key]
        value = other(parameter, before)
        assert before != value
        setattr(effect, key, value)
        assert getattr(effect, key) == effect[key] == effect[parameter["pointer"]] == effect.parameters()[key] == value
        assert type(getattr(effect, key)) is type(value)
        assert effect != editoreffects.create(described["class"])
        assert effect == editoreffects.create(described["class"], **{key: value})


def test_archives_are_those_of_the_tool(described, tmp_path):
    effect = varied(described)
    editoreffects.save(effect, tmp_path / "own.json")
    editoreffects.save(effect, tmp_path / "own.bin")
    effectctl("archive", tmp_path / "own.json", tmp_path / "its.bin")
    effectctl("archive", tmp_path / "own.bin", tmp_path / "its.json")
    assert (tmp_path / "own.bin").read_bytes() == (tmp_path / "its.bin").read_bytes() == effect.to_binary()
    assert json.loads((tmp_path / "its.json").read_text()) == json.loads(effect.to_json())
    for name in ("own.json", "own.bin", "its.json"):
        loaded = editoreffects.load(tmp_path / name)
        assert loaded == effect
        assert loaded.parameters() == effect.parameters()
    assert editoreffects.from_json(effect.to_json()) == editoreffects.from_binary(effect.to_binary()) == effect


@pytest.mark.parametrize("kind", ["default", "varied"])
def test_golden_archives_come_back_as_they_were(described, kind):
    stem = SOURCE / "tests" / "golden" / f"{described['class'].replace('::', '.')}.{kind}"
    text, binary = stem.with_name(stem.name + ".json"), stem.with_name(stem.name + ".bin")
    fromText, fromBinary = editoreffects.load(text), editoreffects.load(binary)
    assert fromText == fromBinary
    assert fromText.to_json().encode() == text.read_bytes()
    assert fromBinary.to_binary() == binary.read_bytes()
    assert fromText.to_binary().endswith(binary.read_bytes()), "behind a header"
    for effect in (fromText, fromBinary):
        assert eval(repr(effect)) == effect
        assert copy.copy(effect) == copy.deepcopy(effect) == pickle.loads(pickle.dumps(effect)) == effect


def test_a_change_after_loading_is_written(described):
    stem = SOURCE / "tests" / "golden" / f"{described['class'].replace('::', '.')}.varied"
    for suffix in (".json", ".bin"):
        effect = editoreffects.load(stem.with_name(stem.name + suffix))
        expected = effect.parameters()
        expected["intensity"] = effect.intensity = effect.intensity + 0.5
        for again in (editoreffects.from_json(effect.to_json()), editoreffects.from_binary(effect.to_binary())):
            assert again == effect
            assert again.parameters() == expected


def test_every_class_is_varied():
    assert len(EFFECTS) == 84 and all(varied(described) for described in EFFECTS)
