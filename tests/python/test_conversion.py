"""Conversions, the catalogue and lookup tables."""

import json
import os
import shutil
import subprocess
import sys

import pytest

import editoreffects
from conftest import SOURCE, effectctl, varied

STOCK = SOURCE / "stock"


def test_records_are_those_of_the_tool(described, tmp_path):
    effect = varied(described)
    editoreffects.save(effect, tmp_path / "effect.json")
    process = subprocess.run([os.environ["EFFECTCTL"], "convert", "--json", tmp_path / "effect.json"],
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)  # it complains of missing resources
    record = json.loads(process.stdout)[0]
    assert record.pop("file") == str(tmp_path / "effect.json")
    assert editoreffects.convert(effect) == record


def test_picture_and_sound_reach_the_record():
    request = {"class": "Effect::FixVertVideo", "video": {"frameGeometry": [1080, 1920], "duration": 7}}
    answer = subprocess.run([os.environ["EFFECTCTL"], "convert", "--batch"], input=json.dumps(request).encode(),
                            stdout=subprocess.PIPE, check=True).stdout
    record = editoreffects.convert(editoreffects.create("Effect::FixVertVideo"), width=1080, height=1920, duration=7)
    assert record == json.loads(answer)
    assert [1080, 1920] in record["settings"][0]["fields"].values()
    reverb = editoreffects.convert(editoreffects.create("Effect::AudioReverb", frequency=7000), sample_rate=8000)
    assert ["SetSlpfFrequency", 4000] in reverb["settings"][0]["calls"], "half the sample rate"


def test_an_item_finds_its_files(tmp_path):
    """Its resource path is relative to the item's folder."""
    for name in ("lut_cold_steel.effect.json", "cold_steel.cube"):
        shutil.copy(STOCK / "Luts" / name, tmp_path / name)
    effect = editoreffects.load(tmp_path / "lut_cold_steel.effect.json")
    path = effect.resourcePath
    assert not os.path.isabs(path)
    record = editoreffects.convert(effect)
    assert record["settings"][0]["calls"][0] == ["SetTable", {"size": [17, 17, 17]}] and "warnings" not in record
    assert effect.resourcePath == path


def test_the_catalogue_is_that_of_the_tool(tmp_path):
    progress = []
    catalogue = editoreffects.Catalogue(STOCK, tmp_path, progress=lambda read, found: progress.append((read, found)))
    expected = effectctl("catalogue", "--stock", STOCK, "--user", tmp_path, "--json")
    items = [{"class": item.effect.class_name, "tag": item.effect.tag, "id": item.effect.id,
              "groupId": item.effect.groupId, "categories": list(item.categories), "user": item.user, "file": item.file}
             for item in catalogue]
    assert items == [item for collection in expected["collections"] for item in collection["items"]]
    assert [item.collection for item in catalogue] == [
        collection["name"] for collection in expected["collections"] for item in collection["items"]]
    assert len(catalogue) == len(items) == progress[-1][0] == progress[-1][1] > 300
    assert catalogue.problems == []
    assert catalogue[0] == next(iter(catalogue)) and catalogue[-1:] == [catalogue[len(catalogue) - 1]]
    for item in catalogue[::10]:
        if item.effect.class_name != "Effect::EffectsHolder":
            assert not editoreffects.convert(item.effect, 1920, 1080).get("warnings"), item.file


def test_what_is_wrong_with_a_catalogue(tmp_path):
    with pytest.raises(editoreffects.MissingFileError):
        editoreffects.Catalogue(tmp_path / "none")
    (tmp_path / "Luts").mkdir()
    (tmp_path / "Luts" / "broken.effect.json").write_text("{")
    catalogue = editoreffects.Catalogue(tmp_path, tmp_path)
    assert len(catalogue) == 0 and len(catalogue.problems) == 1
    assert "broken.effect.json" in catalogue.problems[0]


def test_progress_can_end_the_reading(tmp_path):
    def stop(read, found):
        raise KeyboardInterrupt
    with pytest.raises(KeyboardInterrupt):
        editoreffects.Catalogue(STOCK, tmp_path, progress=stop)
    assert len(editoreffects.Catalogue(STOCK, tmp_path)) > 300, "and it works the next time"


def test_nothing_but_the_results_is_printed(tmp_path):
    script = ("import editoreffects\n"
              "effect = editoreffects.create('Effect::Lut', resource={'name': 'none', 'type': 4})\n"
              "print(len(editoreffects.convert(effect)['warnings']))\n")
    environment = {key: value for key, value in os.environ.items() if key != "XDG_RUNTIME_DIR"}
    result = subprocess.run([sys.executable, "-c", script], capture_output=True, env=environment, cwd=tmp_path)
    assert (result.returncode, result.stdout, result.stderr) == (0, b"1\n", b"")


def test_a_table_is_a_buffer():
    path = STOCK / "Luts" / "cold_steel.cube"
    lut = editoreffects.lut(path)
    assert {"format": lut.format, "size": list(lut.size), "title": lut.title, "file": str(path)} == effectctl(
        "lut", "--json", path)[0]
    entries = memoryview(lut)
    assert entries.readonly and entries.format == "f" and entries.shape == (17, 17, 17, 3)
    rows = [tuple(map(float, line.split())) for line in path.read_text().splitlines() if line[:1] in set("0123456789-.")]
    for red, green, blue in ((0, 0, 0), (16, 0, 0), (3, 5, 7)):
        for channel in range(3):
            assert entries[blue, green, red, channel] == pytest.approx(rows[red + 17 * (green + 17 * blue)][channel], abs=1e-6)
    assert lut.domain_min == (0, 0, 0) and lut.domain_max == (1, 1, 1)
    assert [list(curve) for curve in lut.shaper] == [[], [], []] and memoryview(lut.shaper[0]).shape == (0, 2)
    del lut
    assert entries[0, 0, 0, 0] == pytest.approx(rows[0][0], abs=1e-6), "a buffer keeps its table"


def test_a_table_of_one_dimension_with_curves(tmp_path):
    (tmp_path / "one.cube").write_text("LUT_1D_SIZE 3\n0 0 0\n0.25 0.5 0.75\n1 1 1\n")
    lut = editoreffects.lut(tmp_path / "one.cube")
    assert lut.size == (3, 1, 1) and memoryview(lut).tolist()[1] == [0.25, 0.5, 0.75]
    (tmp_path / "shaper.csp").write_text("CSPLUTV100\n3D\n\n3\n0 0.5 1\n0 0.25 1\n2\n0 1\n0 1\n2\n0 1\n0 1\n\n2 2 2\n" +
                                         "0 0 0\n" * 8)
    curve = editoreffects.lut(tmp_path / "shaper.csp").shaper[0]
    assert list(curve) == [(0, 0), (0.5, 0.25), (1, 1)] == [tuple(row) for row in memoryview(curve).tolist()]
    numpy = pytest.importorskip("numpy")
    assert numpy.asarray(curve).tolist() == [[0, 0], [0.5, 0.25], [1, 1]]
    assert numpy.asarray(lut).dtype == numpy.float32 and not numpy.asarray(lut).flags.writeable


def test_broken_tables(tmp_path):
    for content, words in ((b"", "broken.cube: "), (b"LUT_3D_SIZE 2\n0 0 0\n", "broken.cube: ")):
        (tmp_path / "broken.cube").write_bytes(content)
        with pytest.raises(editoreffects.LutError, match=words) as raised:
            editoreffects.lut(tmp_path / "broken.cube")
        assert isinstance(raised.value, ValueError)
    with pytest.raises(editoreffects.MissingFileError):
        editoreffects.lut(tmp_path / "none.cube")
