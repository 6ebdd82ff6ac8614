#!/usr/bin/env python3
"""Renames a resource in projects: rename_resource.py OLD NEW PATH...

PATH is a file, or a folder of which all `.json` and `.bin` files are projects. A file that does not refer to the resource
is not written, and what this version does not know stays in the others. A file that cannot be read is reported, and the
status is 1 then.
"""

from __future__ import annotations

import pathlib
import sys
from typing import Iterator, List

import editoreffects
from editoreffects import Effect


def files_in(path: pathlib.Path) -> Iterator[pathlib.Path]:
    """The projects that an argument names."""
    if path.is_dir():
        yield from sorted(file for file in path.rglob("*") if file.suffix in (".json", ".bin"))
    else:
        yield path


def effects_in(effect: Effect) -> Iterator[Effect]:
    """The effect, and those that it holds."""
    yield effect
    if "effects" in effect:
        for held in effect.effects:
            if held is not None:  # the class is unknown to this version
                yield from effects_in(held)


def rename(effect: Effect, old: str, new: str) -> int:
    """Renames the resource in an effect and in those that it holds, and returns how often."""
    renamed = 0
    for one in effects_in(effect):
        if one.resource["name"] == old:
            one.resource = {"name": new}  # the type stays
            renamed += 1
    return renamed


def rename_in_file(path: pathlib.Path, old: str, new: str) -> int:
    """Does so in a file, which is written only if anything has changed."""
    effect = editoreffects.load(path)
    renamed = rename(effect, old, new)
    if renamed:
        editoreffects.save(effect, path)
    return renamed


def main(arguments: List[str]) -> int:
    if len(arguments) < 3:
        print("usage: rename_resource.py OLD NEW PATH...", file=sys.stderr)
        return 2
    old, new, *paths = arguments
    files = renamed = 0
    status = 0
    for path in paths:
        for file in files_in(pathlib.Path(path)):
            try:
                count = rename_in_file(file, old, new)
            except editoreffects.Error as error:
                print(error, file=sys.stderr)
                status = 1
                continue
            files += count > 0
            renamed += count
    print(f"{renamed} renamed in {files} files")
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
