"""Files: what they keep, and what is wrong with them."""

import copy
import json
import os
import pickle
import random

import pytest

import editoreffects
from conftest import SOURCE

PROJECT = SOURCE / "examples" / "projects" / "from_the_future.json"
BLUR = editoreffects.create("Effect::Blur").to_json()


def test_content_and_paths_are_told_apart(tmp_path):
    path = tmp_path / "blur.json"
    path.write_text(BLUR)
    content = BLUR.encode()
    for source in (path, str(path), content, bytearray(content), memoryview(content)):
        assert editoreffects.load(source).to_json() == BLUR
    assert editoreffects.from_json(content) == editoreffects.from_json(BLUR)


def test_a_name_that_is_no_text_is_a_name(tmp_path):
    path = os.fsdecode(os.fsencode(tmp_path) + b"/\xff.json")
    editoreffects.save(editoreffects.create("Effect::Blur"), path)
    assert editoreffects.load(path).class_name == "Effect::Blur"
    with open(path, "wb") as file:
        file.write(b"{")
    with pytest.raises(editoreffects.ArchiveError, match="\ufffd.json:1:2: "):
        editoreffects.load(path)


def test_the_suffix_says_the_form(tmp_path):
    effect = editoreffects.create("Effect::Blur", intensity=0.25)
    editoreffects.save(effect, tmp_path / "a.json")
    editoreffects.save(effect, str(tmp_path / "a.bin"))
    assert (tmp_path / "a.json").read_text() == effect.to_json()
    assert (tmp_path / "a.bin").read_bytes() == effect.to_binary()
    for name in ("a", "a.txt", ".json"):
        with pytest.raises(editoreffects.ParameterError, match="ends neither in .json nor in .bin"):
            editoreffects.save(effect, tmp_path / name)
        assert not (tmp_path / name).exists()


def test_files_that_cannot_be_opened(tmp_path):
    with pytest.raises(editoreffects.MissingFileError) as raised:
        editoreffects.load(tmp_path / "none.json")
    assert isinstance(raised.value, (editoreffects.Error, FileNotFoundError))
    assert raised.value.filename == str(tmp_path / "none.json")
    with pytest.raises(editoreffects.FileError) as raised:
        editoreffects.load(tmp_path)
    assert isinstance(raised.value, OSError) and raised.value.errno == 21
    with pytest.raises(editoreffects.FileError, match="none/a.json: "):
        editoreffects.save(editoreffects.create("Effect::Blur"), tmp_path / "none" / "a.json")


def test_what_is_unknown_stays_in_a_file():
    holder = editoreffects.load(PROJECT)
    assert holder.to_json().encode() == PROJECT.read_bytes()
    unknown, opacity = holder.effects
    assert unknown is None and opacity.opacity == 0.75
    opacity.opacity = 0.5
    expected = json.loads(PROJECT.read_text())
    expected["effects"][1]["opacity"] = 0.5
    assert json.loads(holder.to_json()) == expected
    assert list(json.loads(holder.to_json())) == ["$meta", "Effect::EffectDescriptor", "effects", "savedBy"]


def test_what_is_unknown_goes_along_with_a_copy():
    holder = editoreffects.load(PROJECT)
    opacity = holder.effects[1]
    easing = {"curve": "ease-in", "from": 0.5}
    for duplicate in (copy.copy(opacity), copy.deepcopy(opacity), pickle.loads(pickle.dumps(opacity)), eval(repr(opacity))):
        assert duplicate == opacity
        duplicate.opacity = 0.25
        assert json.loads(duplicate.to_json())["easing"] == easing
        assert opacity.opacity == 0.75
    for duplicate in (copy.copy(holder), pickle.loads(pickle.dumps(holder)), eval(repr(holder))):
        assert duplicate.to_json().encode() == PROJECT.read_bytes()


def test_the_binary_form_refuses_to_lose_what_is_unknown():
    holder = editoreffects.load(PROJECT)
    for effect in (holder, holder.effects[1]):
        with pytest.raises(editoreffects.ArchiveError, match="the binary form cannot keep what is unknown"):
            effect.to_binary()


def test_an_item_keeps_its_categories(tmp_path):
    path = tmp_path / "blur.effect.json"
    item = {"categories": ["category_blur"], "effect": json.loads(BLUR), "colour": "red"}
    path.write_text(json.dumps(item, indent=1) + "\n")
    effect = editoreffects.load(path)
    effect.tag = "other"
    editoreffects.save(effect, path)
    item["effect"]["Effect::VideoEffect"]["Effect::Object"]["tag"] = "other"
    assert json.loads(path.read_text()) == item
    assert eval(repr(effect)) == effect
    with pytest.raises(editoreffects.ArchiveError, match="no place for the categories of an item"):
        effect.to_binary()


@pytest.mark.parametrize("content, code, pointer, offset, place", [
    (b"", "no-json", None, 0, (1, 1)),
    (b"{", "truncated", None, 1, (1, 2)),
    (b"[]", "wrong-type", "", 0, (1, 1)),
    (b"\xff", "no-json", None, 0, (1, 1)),
    (b'{"$meta": {"class": "Effect::Blur"},\n "Effect::VideoEffect": {"Effect::Object": {"intensity": true}}}',
     "wrong-type", "/Effect::VideoEffect/Effect::Object/intensity", 81, (2, 45)),
    (b'{"$meta": {"class": "Effect::AudioEcho::Echo"}}', "damaged", "", None, None),
    (editoreffects.create("Effect::Blur").to_binary()[:100], "truncated", None, 100, None),
], ids=["empty", "cut", "array", "no-utf-8", "type", "no-effect", "binary"])
def test_broken_content(content, code, pointer, offset, place, tmp_path):
    (tmp_path / "broken").write_bytes(content)
    for source in (content, tmp_path / "broken"):
        with pytest.raises(editoreffects.ArchiveError) as raised:
            editoreffects.load(source)
        error = raised.value
        assert isinstance(error, ValueError)
        assert error.code == code and error.pointer == pointer
        if offset is not None:
            assert error.offset == offset
        if place:
            assert (error.line, error.column) == place
        named = source is not content
        assert error.file == (str(source) if named else None)
        assert str(error).startswith(str(source)) == named
        again = pickle.loads(pickle.dumps(error))
        assert type(again) is type(error) and str(again) == str(error) and vars(again) == vars(error)


def test_an_unknown_class():
    with pytest.raises(editoreffects.UnknownClass) as raised:
        editoreffects.from_json('{"$meta": {"class": "Effect::Blurr"}}')
    assert isinstance(raised.value, KeyError)
    assert str(raised.value) == 'the class "Effect::Blurr" is unknown, at /$meta/class; did you mean "Effect::Blur"?'
    assert raised.value.pointer == "/$meta/class" and raised.value.offset == 11
    for name in ("Effect::Blurr", "Effect::Frame", ""):
        with pytest.raises(editoreffects.UnknownClass, match=name):
            editoreffects.create(name)
    for call in (editoreffects.describe, editoreffects.schema):
        with pytest.raises(editoreffects.UnknownClass, match='did you mean "Effect::Blur"'):
            call("Effect::Blurr")


def test_the_form_that_is_asked_for():
    binary = editoreffects.create("Effect::Blur").to_binary()
    with pytest.raises(editoreffects.ArchiveError, match="this is a binary archive, and no JSON"):
        editoreffects.from_json(binary)
    with pytest.raises(editoreffects.ArchiveError, match="this is no binary archive"):
        editoreffects.from_binary(BLUR.encode())


@pytest.mark.parametrize("suffix", [".json", ".bin"])
def test_damaged_bytes_end_in_an_error_or_an_effect(suffix):
    """Bytes that are changed, cut and inserted at random, over archives of every form of field."""
    generator = random.Random(20)
    outcomes = {"read": 0, "refused": 0}
    for name in ("EffectsHolder", "AudioEqualizer", "PictureInPicture", "Mask", "ShaderISF"):
        content = (SOURCE / "tests" / "golden" / f"Effect.{name}.varied{suffix}").read_bytes()
        for _ in range(150):
            broken = bytearray(content)
            for _ in range(generator.randint(1, 3)):
                position = generator.randrange(len(broken))
                choice = generator.randrange(3)
                if choice == 0:
                    broken[position] = generator.randrange(256)
                elif choice == 1:
                    del broken[position:position + generator.randint(1, 40)]
                else:
                    broken[position:position] = bytes(generator.randrange(256) for _ in range(4))
            try:
                effect = editoreffects.load(broken)
                repr(effect)
                effect.intensity = 0.5
                effect.to_json()
                copy.copy(effect)
                outcomes["read"] += 1
            except editoreffects.Error:
                outcomes["refused"] += 1
    assert outcomes["refused"] > 100 and sum(outcomes.values()) == 750


def test_a_deep_document_is_refused():
    text = '{"$meta": {"class": "Effect::EffectsHolder"}, "effects": [' * 5000
    with pytest.raises(editoreffects.Error):
        editoreffects.from_json(text + "]}" * 5000)
