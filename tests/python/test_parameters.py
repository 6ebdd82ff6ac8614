"""Parameters: the values that they give and take."""

import array
import math
import pickle

import pytest

import editoreffects


def test_values_of_each_kind():
    crop = editoreffects.create("Effect::Crop")
    assert crop.transform == ((1, 0, 0), (0, 1, 0), (0, 0, 1)) and crop.range is None
    assert crop.resource == {"name": "", "type": 0}
    crop.range = {"start": 2_000_000, "length": 500_000}
    assert crop.range == {"start": 2_000_000, "length": 500_000}
    crop.range = None
    assert crop.range is None and crop == editoreffects.create("Effect::Crop")
    balance = editoreffects.create("Effect::WhiteBalance", color="#8000c8ff")
    assert balance.color == "#8000c8ff"
    balance.color = 0xFF00C800
    assert balance.color == "#00c800"
    equalizer = editoreffects.create("Effect::AudioEqualizer")
    assert equalizer.preset == "Neutral" and equalizer.multiband == []
    choice = editoreffects.describe("Effect::AudioEqualizer")["parameters"][-2]["choices"][-1]
    equalizer.preset = choice["value"]
    assert equalizer.preset == choice["name"]


def test_an_enumeration_without_a_name_is_its_number():
    bokeh = editoreffects.create("Effect::BokehBlur", preset=12345)
    assert bokeh.preset == 12345
    assert eval(repr(bokeh)) == bokeh


def test_a_part_of_a_resource_leaves_the_rest():
    effect = editoreffects.create("Effect::Lut", resource={"name": "a", "type": "Blob"})
    effect.resource = {"name": "b"}
    assert effect.resource == {"name": "b", "type": 4}


def test_lists_of_records_are_copies():
    echo = editoreffects.create("Effect::AudioEcho")
    echo.echos = [{"delay": 10}, {"delay": 20}]
    taken = echo.echos
    taken[0]["delay"] = 99
    assert [one["delay"] for one in echo.echos] == [10, 20]
    echo.echos = taken
    assert [one["delay"] for one in echo.echos] == [99, 20]


@pytest.mark.parametrize("text", ["", "\0", "\u00e4\u4e16\U0001f600", "\ud800", "a\udc00b"])
def test_texts_need_not_be_unicode(text):
    effect = editoreffects.create("Effect::Blur", tag=text)
    assert effect.tag == text
    assert editoreffects.from_json(effect.to_json()).tag == text
    assert editoreffects.from_binary(effect.to_binary()).tag == text


def test_a_text_that_is_null_is_none():
    effect = editoreffects.create("Effect::Blur", tag=None)
    assert effect.tag is None and effect != editoreffects.create("Effect::Blur", tag="")
    assert editoreffects.from_json(effect.to_json()).tag is None


def test_numbers_that_are_not_finite_are_read_only():
    text = editoreffects.create("Effect::Blur", intensity=0.25).to_json()
    effect = editoreffects.from_json(text.replace("0.25", '"-Infinity"'))
    assert effect.intensity == -math.inf
    assert eval(repr(effect)) == effect
    effect = editoreffects.from_json(text.replace("0.25", '"NaN"'))
    assert math.isnan(effect.intensity) and effect == editoreffects.from_json(effect.to_json())


def test_arrays_are_values():
    effect = editoreffects.create("Effect::Crop", transform=array.array("d", [1, 2, 3, 4, 5, 6, 7, 8, 9]))
    assert effect.transform == ((1, 2, 3), (4, 5, 6), (7, 8, 9))
    numpy = pytest.importorskip("numpy")
    effect.transform = numpy.arange(9, dtype="float32").reshape(3, 3) / 2
    assert effect.transform == ((0, 0.5, 1), (1.5, 2, 2.5), (3, 3.5, 4))
    effect.intensity = numpy.float32(0.5)
    assert effect.intensity == 0.5
    assert editoreffects.create("Effect::BokehBlur", preset=numpy.int16(12345)).preset == 12345


@pytest.mark.parametrize("name, key, value, words", [
    ("Effect::Blur", "intensity", "strong", '"strong" is given, allowed is a finite number'),
    ("Effect::Blur", "intensity", True, "true is given"),
    ("Effect::Blur", "intensity", None, "null is given"),
    ("Effect::Blur", "intensity", math.nan, "NaN is given"),
    ("Effect::Blur", "intensity", math.inf, "Infinity is given"),
    ("Effect::Blur", "intensity", 10 ** 400, "Infinity is given"),
    ("Effect::AudioEqualizer", "preset", "Neutrall", "Neutrall"),
    ("Effect::AudioEqualizer", "preset", 2 ** 31, "2147483648 is given"),
    ("Effect::AudioEqualizer", "preset", -2 ** 70, "is given"),
    ("Effect::AudioEqualizer", "multiband", [{"no": 1}], 'there is no key "no"'),
    ("Effect::AudioEqualizer", "multiband", "text", "an array of objects"),
    ("Effect::Crop", "transform", ((1, 2), (3, 4)), "9 finite numbers"),
    ("Effect::Crop", "range", {"start": 1.5}, "1.5 is given"),
    ("Effect::WhiteBalance", "color", "#00c80", "#rrggbb"),
    ("Effect::EffectsHolder", "effects", ["Effect::Blur"], 'element 0 of parameter "effects"'),
    ("Effect::EffectsHolder", "effects", "Effect::Blur", "an array of objects"),
    ("Effect::Blur", "tag", 7, "a text"),
    ("Effect::Blur", "tag", b"text", None),
])
def test_values_that_are_refused(name, key, value, words):
    effect = editoreffects.create(name)
    if words is None:
        setattr(effect, key, value)  # bytes that are UTF-8 are a text
        return
    for change in (lambda: setattr(effect, key, value), lambda: effect.__setitem__(key, value),
                   lambda: editoreffects.create(name, **{key: value})):
        with pytest.raises(editoreffects.ParameterError) as raised:
            change()
        assert words in str(raised.value) and f'"{key}"' in str(raised.value)
        assert isinstance(raised.value, ValueError)
    assert effect == editoreffects.create(name)


def test_objects_that_are_no_values():
    effect = editoreffects.create("Effect::Blur")
    endless = []
    endless.append(endless)
    for value in (object(), 1j, {1, 2}, endless):
        with pytest.raises((editoreffects.ParameterError, TypeError, RecursionError)):
            effect.intensity = value
    assert effect == editoreffects.create("Effect::Blur")


def test_unknown_parameters():
    effect = editoreffects.create("Effect::Blur")
    assert not hasattr(effect, "intensityy") and "intensityy" not in effect and "intensity" in effect
    for act in (lambda: effect.intensityy, lambda: effect["intensityy"], lambda: setattr(effect, "intensityy", 1),
                lambda: effect.__setitem__("intensityy", 1), lambda: editoreffects.create("Effect::Blur", intensityy=1)):
        with pytest.raises(editoreffects.UnknownParameter) as raised:
            act()
        assert isinstance(raised.value, AttributeError) and isinstance(raised.value, KeyError)
        assert str(raised.value) == 'Effect::Blur has no parameter "intensityy"; did you mean "intensity"?'
        assert str(pickle.loads(pickle.dumps(raised.value))) == str(raised.value)
    with pytest.raises(editoreffects.ParameterError, match="cannot be deleted"):
        del effect.intensity
    with pytest.raises(TypeError):
        effect[0]


def test_effects_are_compared_by_value():
    one, two = editoreffects.create("Effect::Blur"), editoreffects.create("Effect::Blur")
    assert one == two and not one != two
    two.intensity = 0.0
    one.intensity = -0.0
    assert one == two
    two.intensity = 0.5
    assert one != two
    assert one != editoreffects.create("Effect::Sharpen") and one != "Effect::Blur" and one is not None
    with pytest.raises(TypeError):
        hash(one)


@pytest.mark.parametrize("kind", [editoreffects.Effect, editoreffects.Lut, editoreffects.Curve])
def test_objects_cannot_be_made_or_derived_by_hand(kind):
    for act in (lambda: kind(), lambda: kind.__new__(kind), lambda: object.__new__(kind), lambda: type("Own", (kind,), {})):
        with pytest.raises(TypeError):
            act()


def test_the_effects_of_a_holder_are_its_own():
    holder = editoreffects.create("Effect::EffectsHolder")
    blur = editoreffects.create("Effect::Blur", intensity=0.25)
    holder.effects = [blur, None, editoreffects.create("Effect::EffectsHolder", effects=[blur])]
    blur.intensity = 1.0
    assert [one and one.class_name for one in holder.effects] == ["Effect::Blur", None, "Effect::EffectsHolder"]
    assert holder.effects[0] is holder.effects[0]
    assert holder.effects[0].intensity == 0.25, "what is assigned is copied"
    holder.effects[0].intensity = 0.5
    inner = holder.effects[2].effects[0]
    inner.intensity = 0.75
    again = editoreffects.from_json(holder.to_json())
    assert again == holder and again.effects[0].intensity == 0.5 and again.effects[2].effects[0].intensity == 0.75
    assert eval(repr(holder)) == holder


def test_an_effect_outlives_its_holder():
    holder = editoreffects.create("Effect::EffectsHolder", effects=[editoreffects.create("Effect::Blur", intensity=0.25)])
    blur = holder.effects[0]
    del holder
    assert blur.intensity == 0.25


def test_effects_that_leave_a_holder_go_on_by_themselves():
    effects = [editoreffects.create("Effect::Blur", intensity=number / 8) for number in range(4)]
    holder = editoreffects.create("Effect::EffectsHolder", effects=effects)
    held = holder.effects
    with pytest.raises(editoreffects.ParameterError):
        holder.effects = [held[3], "nothing"]
    assert holder.effects == held and holder.effects[3] is held[3], "nothing has changed"
    holder.effects = [held[3], held[1]]
    assert [one.intensity for one in holder.effects] == [0.375, 0.125]
    assert [one.intensity for one in held] == [0, 0.125, 0.25, 0.375]
    held[3].intensity = 5.0
    assert [one.intensity for one in holder.effects] == [0.375, 0.125]


def test_bytes_need_not_be_utf_8():
    keys = [(one["class"], parameter["key"]) for one in editoreffects.classes() for parameter in one["parameters"]
            if parameter["type"] == "std::string"]
    assert keys, "there is a class with such a parameter"
    for name, key in keys:
        effect = editoreffects.create(name, **{key: b"\xff\x00\xfe"})
        assert effect[key] == b"\xff\x00\xfe"
        assert editoreffects.from_json(effect.to_json())[key] == b"\xff\x00\xfe"
        effect[key] = b"text"
        assert effect[key] == "text"
