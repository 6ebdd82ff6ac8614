"""Findings."""

import json

import pytest

import editoreffects
from conftest import SOURCE, effectctl


def of_the_tool(path):
    import os
    import subprocess
    printed = subprocess.run([os.environ["EFFECTCTL"], "check", "--json", path], stdout=subprocess.PIPE).stdout
    return [{**finding, "file": one["file"]} for one in json.loads(printed) for finding in one["findings"]]


def test_findings_are_those_of_the_tool(tmp_path):
    blur = editoreffects.create("Effect::Blur")
    editoreffects.save(blur, tmp_path / "good.bin")
    (tmp_path / "key.json").write_text(blur.to_json().replace('"tag"', '"tagg"'))
    (tmp_path / "cut.json").write_text(blur.to_json()[:-9])
    (tmp_path / "class.effect.json").write_text('{"effect": {"$meta": {"class": "Effect::Blurr"}}}')
    findings = editoreffects.check(tmp_path)
    assert findings == of_the_tool(tmp_path)
    assert [(finding["file"], finding["severity"], finding["code"]) for finding in findings if finding["suggestion"]] == [
        (str(tmp_path / "class.effect.json"), "error", "unknown-class"), (str(tmp_path / "key.json"), "warning", "unknown-key")]
    assert editoreffects.check(tmp_path / "key.json") == editoreffects.check(f"{tmp_path}/k*.json") != []
    assert editoreffects.check(tmp_path / "good.bin") == []


@pytest.mark.parametrize("name", ["none.json", "-"])
def test_a_file_that_cannot_be_read_is_a_finding(name, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    finding, = editoreffects.check(name)
    assert (finding["severity"], finding["code"]) == ("error", "unreadable")


def test_the_stock_has_none():
    assert editoreffects.check(SOURCE / "stock") == []
    assert effectctl("check", SOURCE / "stock").endswith(b"0 errors, 0 warnings, 0 notes\n")
