"""Doctests of the module, the examples, and the types of both."""

import ast
import doctest
import os
import pathlib
import subprocess
import sys

import pytest

import editoreffects
from conftest import SOURCE

PACKAGE = pathlib.Path(editoreffects.__file__).parent
CONFIGURATION = SOURCE / "tests" / "python" / "mypy.ini"
EXAMPLES = SOURCE / "examples" / "python"


def test_the_examples_in_the_module_are_true():
    result = doctest.testmod(editoreffects)
    assert result.failed == 0 and result.attempted >= 15


def test_the_examples_in_the_document_are_true(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    result = doctest.testfile(str(SOURCE / "docs" / "python.md"), module_relative=False)
    assert result.failed == 0 and result.attempted > 25


def test_every_public_name_is_documented():
    for name in editoreffects.__all__:
        thing = getattr(editoreffects, name)
        assert thing.__doc__, name
        if isinstance(thing, type):
            for key, member in vars(thing).items():
                assert key.startswith("_") or not callable(member) and not isinstance(member, property) or member.__doc__, (
                    f"{name}.{key}")


def names_in(body):
    return {one.name for one in body if isinstance(one, (ast.FunctionDef, ast.ClassDef)) and one.name[0] != "_"}


def test_the_stubs_name_what_there_is():
    module = editoreffects._editoreffects
    stubs = ast.parse((PACKAGE / "_editoreffects.pyi").read_text()).body
    assert names_in(stubs) == {name for name in vars(module) if name[0] != "_"}
    for stub in stubs:
        if isinstance(stub, ast.ClassDef):
            assert names_in(stub.body) == {name for name in vars(getattr(module, stub.name)) if name[0] != "_"}


@pytest.mark.parametrize("what", ["module", "examples"])
def test_types(what, tmp_path):
    paths = [PACKAGE] if what == "module" else sorted(EXAMPLES.glob("*.py"))
    assert paths
    result = subprocess.run([sys.executable, "-m", "mypy", "--config-file", str(CONFIGURATION), "--cache-dir",
                             str(tmp_path), *map(str, paths)], capture_output=True, text=True, cwd=tmp_path,
                            env={**os.environ, "MYPYPATH": "" if what == "module" else str(PACKAGE.parent)})
    assert result.returncode == 0, result.stdout + result.stderr


def example(name, *arguments):
    return subprocess.run([sys.executable, str(EXAMPLES / name), *map(str, arguments)], capture_output=True, text=True,
                          timeout=120)


def make_projects(folder, count):
    """Half of them in each form, with the resource in a nested effect; every tenth does without it."""
    for number in range(count):
        lut = editoreffects.create("Effect::Lut", resource={"name": "old" if number % 10 else "none", "type": 4})
        inner = editoreffects.create("Effect::EffectsHolder", effects=[None, lut])
        project = editoreffects.create("Effect::EffectsHolder", effects=[editoreffects.create("Effect::Blur"), inner])
        path = folder / f"{number // 100:02}" / f"{number}.{'bin' if number % 2 else 'json'}"
        path.parent.mkdir(exist_ok=True)
        editoreffects.save(project, path)


def names_of(folder):
    return [editoreffects.load(path).effects[1].effects[1].resource["name"] for path in folder.rglob("*.*")]


def test_a_resource_is_renamed_in_a_thousand_projects(tmp_path):
    make_projects(tmp_path, 1000)
    untouched = tmp_path / "00" / "10.json"
    before = untouched.stat().st_mtime_ns
    result = example("rename_resource.py", "old", "new", tmp_path)
    assert (result.returncode, result.stdout, result.stderr) == (0, "900 renamed in 900 files\n", "")
    assert sorted(names_of(tmp_path)) == ["new"] * 900 + ["none"] * 100
    assert untouched.stat().st_mtime_ns == before
    (tmp_path / "broken.json").write_text("{")
    result = example("rename_resource.py", "new", "old", tmp_path)
    assert result.returncode == 1 and result.stdout == "900 renamed in 900 files\n"
    assert result.stderr.startswith(f"{tmp_path}/broken.json:1:2: ") and result.stderr.count("\n") == 1
    assert example("rename_resource.py").returncode == 2


def test_a_cluster_does_the_same(tmp_path):
    pytest.importorskip("distributed", reason="python3-distributed is not installed")
    make_projects(tmp_path, 450)
    (tmp_path / "broken.json").write_text("{")
    result = example("rename_resource_dask.py", "old", "new", tmp_path)
    assert result.returncode == 1 and result.stdout == "405 renamed in 3 batches\n", result.stderr
    assert f"{tmp_path}/broken.json:1:2: " in result.stderr
    (tmp_path / "broken.json").unlink()
    assert sorted(names_of(tmp_path)) == ["new"] * 405 + ["none"] * 45


def test_a_table_of_all_equalizer_presets():
    result = example("equalizer_presets.py", SOURCE / "stock")
    assert (result.returncode, result.stderr) == (0, "")
    heading, *rows = result.stdout.splitlines()
    assert heading.startswith("preset,name,31 Hz,63 Hz,125 Hz,")
    assert "Acoustic,Acoustic,5.0,4.0,3.5,1.0,2.0,2.0,3.5,4.0,3.5,2.0" in rows
    assert len(rows) == len(list((SOURCE / "stock" / "AudioEffects").glob("audio_equalizer_*")))
    missing = example("equalizer_presets.py", "nowhere")
    assert missing.returncode == 1 and "nowhere" in missing.stderr and missing.stderr.count("\n") == 1
