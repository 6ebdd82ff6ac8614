#!/usr/bin/env python3
"""Spreads the conversion of 10,000 files over local workers as docs/scale.md does, with a restart, and compares the
records with those of one process: `scale.py EFFECTCTL EXAMPLES`. Ends with 77 where an engine is missing."""

import importlib.util
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

COUNT = 10000
BATCH = 200
SKIPPED = 77
CLASSES = ["Effect::Blur", "Effect::AudioReverb", "Effect::Opacity", "Effect::Crop", "Effect::TiltShift"]


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def run(*command, folder, **more):
    return subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL if "input" not in more else None,
                          stdout=subprocess.PIPE, text=True, check=True, **more).stdout


def make_presets(effectctl, folder):
    """A file for each number, which is in its intensity."""
    documents = [json.loads(run(effectctl, "show", "--json", "--class", name, folder=folder)) for name in CLASSES]
    for number in range(COUNT):
        document = documents[number % len(documents)]
        base = document
        while "Effect::Object" not in base:
            base = next(value for key, value in base.items() if key.startswith("Effect::"))
        base["Effect::Object"]["intensity"] = number / COUNT
        path = folder / "presets" / f"{number % 100:02}" / f"{number}.json"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(json.dumps(document), encoding="utf-8")


def records(text, folder):
    """By file, relative to the folder. A file that occurs twice is an error."""
    found = {}
    for line in text.splitlines():
        record = json.loads(line)
        name = os.path.relpath(os.path.join(folder, record["file"]), folder)
        assert name not in found, f"{name} was converted twice"
        found[name] = record | {"file": name}
    return found


def timed(what, action):
    start = time.monotonic()
    result = action()
    print(f"{what}: {COUNT / (time.monotonic() - start):.0f} files a second")
    return result


def with_parallel(effectctl, folder):
    files = sorted(str(path.relative_to(folder)) for path in (folder / "presets").rglob("*.json"))

    def parallel(some):
        return run("parallel", "--will-cite", "-0", "-j2", f"-n{BATCH}", "--joblog", "jobs.log",
                   "--resume", effectctl, "convert", "--jsonl", folder=folder, input="\0".join(some) + "\0")

    # As if it had been interrupted.
    begun = parallel(files[:20 * BATCH])
    assert len(begun.splitlines()) == 20 * BATCH
    rest = parallel(files)
    assert len(rest.splitlines()) == COUNT - 20 * BATCH, "the restart did not go on where it was"
    return records(begun + rest, folder)


def with_dask(effectctl, examples, folder):
    environment = os.environ | {"PATH": f"{pathlib.Path(effectctl).parent}{os.pathsep}{os.environ['PATH']}"}

    def convert():
        return run(sys.executable, str(examples / "convert_with_dask.py"), "presets", "records", folder=folder,
                   env=environment)

    assert convert() == f"{COUNT // BATCH} of {COUNT // BATCH} batches converted\n"
    for lost in sorted((folder / "records").iterdir())[3:5]:
        lost.unlink()
    assert convert() == f"2 of {COUNT // BATCH} batches converted\n"
    return records("".join(path.read_text(encoding="utf-8") for path in (folder / "records").iterdir()), folder)


def main():
    effectctl, examples = str(pathlib.Path(sys.argv[1]).resolve()), pathlib.Path(sys.argv[2]).resolve()
    if not shutil.which("parallel"):
        skip("there is no GNU parallel")
    if not importlib.util.find_spec("distributed"):
        skip("there is no dask.distributed")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        make_presets(effectctl, folder)
        single = timed("one process",
                       lambda: records(run(effectctl, "convert", "--jsonl", "presets", folder=folder), folder))
        assert len(single) == COUNT
        assert timed("GNU parallel", lambda: with_parallel(effectctl, folder)) == single, "GNU parallel differs"
        assert timed("dask", lambda: with_dask(effectctl, examples, folder)) == single, "dask differs"


main()
