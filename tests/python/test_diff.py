"""Differences."""

import pytest

import editoreffects
from conftest import SOURCE, effectctl, varied


def of_the_tool(left, right):
    import json
    import os
    import subprocess
    return json.loads(subprocess.run([os.environ["EFFECTCTL"], "diff", "--json", left, right], stdout=subprocess.PIPE).stdout)


def test_patches_are_those_of_the_tool(described, tmp_path):
    before, after = editoreffects.create(described["class"]), varied(described)
    left, right = tmp_path / "before.json", tmp_path / "after.bin"
    editoreffects.save(before, left)
    editoreffects.save(after, right)
    patch = editoreffects.diff(before, after)
    assert patch == of_the_tool(left, right) == editoreffects.diff(left, after) == editoreffects.diff(before, right) != []
    assert editoreffects.diff(after, right) == editoreffects.diff(before, before) == []


def test_what_is_unknown_is_compared():
    project = SOURCE / "examples" / "projects" / "from_the_future.json"
    other = project.read_bytes().replace(b'"depth": 3', b'"depth": 4')
    assert editoreffects.diff(project, other) == [{"op": "replace", "path": "/effects/0/depth", "value": 4}]
    with pytest.raises(editoreffects.MissingFileError):
        editoreffects.diff(project, "none.json")
