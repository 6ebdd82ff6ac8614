#!/usr/bin/env python3
"""Releases a project of three files with script/release, whose long steps are replaced: `release.py SOURCES`."""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile

SOURCES = pathlib.Path(sys.argv[1])
STEPS = {
    # The steps leave a trace, and fail when they are asked to.
    "test": 'grep --quiet "VERSION $EXPECTED" CMakeLists.txt || exit 1\n[[ ${FAIL:-} != test ]]',
    "abi-diff": 'if [[ ${1:-} == --update ]]; then echo "$EXPECTED" >abi/interface.tar.xz; exit; fi\n'
                '[[ ${FAIL:-} != abi-diff ]]',
    "package": '[[ ${FAIL:-} != package ]] || exit 1\n'
               'mkdir -p build-package/packages; echo deb >"build-package/packages/tool_$EXPECTED.deb"',
}
CMAKE_LISTS = "cmake_minimum_required(VERSION 3.25)\nproject(Toy\n  VERSION 1.1.0\n  LANGUAGES NONE)\n"
CHANGELOG = "# Changelog\n\n## Unreleased\n\n- A change.\n\n## 1.1.0 (2020-02-29)\n\n- An older one.\n"
FIRST_CHANGELOG = "# Changelog\n\n## Unreleased\n\n- Everything.\n"


class Project:
    def __init__(self, folder, changelog=CHANGELOG):
        self.root = folder
        (folder / "script").mkdir()
        (folder / "abi").mkdir()
        for name in ["lib.sh", "release"]:
            shutil.copy(SOURCES / "script" / name, folder / "script" / name)
        for name, body in STEPS.items():
            (folder / "script" / name).write_text(f'#!/usr/bin/env bash\ncd "$(dirname "$0")/.."\n{body}\n')
            (folder / "script" / name).chmod(0o755)
        (folder / "CMakeLists.txt").write_text(CMAKE_LISTS)
        (folder / "CHANGELOG.md").write_text(changelog)
        (folder / "abi/interface.tar.xz").write_text("1.1.0\n")
        (folder / ".gitignore").write_text("/build*/\n")
        self.git("init", "--quiet")
        self.git("add", ".")
        self.git("commit", "--quiet", "--message", "Begin")

    def git(self, *arguments):
        return subprocess.run(["git", *arguments], cwd=self.root, check=True, text=True, stdout=subprocess.PIPE).stdout

    def read(self, name):
        return (self.root / name).read_text()

    def release(self, *arguments, failing=""):
        # Run from elsewhere, as it may be.
        environment = {**os.environ, "EXPECTED": arguments[-1], "FAIL": failing}
        return subprocess.run([self.root / "script/release", *arguments], cwd="/", env=environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)


@contextlib.contextmanager
def project(*arguments):
    with tempfile.TemporaryDirectory() as folder:
        yield Project(pathlib.Path(folder), *arguments)


def check(condition, what, run):
    if not condition:
        sys.exit(f"{what}; the script ended with {run.returncode} and said:\n{run.stdout}")


def refuses(toy, text, *arguments, failing=""):
    before = toy.git("status", "--porcelain"), toy.git("rev-parse", "HEAD")
    run = toy.release(*arguments, failing=failing)
    check(run.returncode != 0 and text in run.stdout, f"{arguments} should be refused with {text!r}", run)
    after = toy.git("status", "--porcelain"), toy.git("rev-parse", "HEAD")
    check(before == after, f"{arguments}, refused, should leave the checkout as it was, not {after}", run)
    check(toy.git("tag") == "", f"{arguments}, refused, should leave no tag", run)


def refusals():
    with project() as toy:
        for version in ["1.2", "v1.2.0", "1.2.0-rc1", "1.02.0", "1.1000.0", ""]:
            refuses(toy, "three numbers", version)
        for version in ["1.1.0", "1.0.9", "0.9.0"]:
            refuses(toy, "is not newer than the last release, 1.1.0", version)
        for step, text in [("test", "the tests fail"), ("abi-diff", "the binary interface of 1.1.0 is not kept"),
                           ("package", "there are no packages")]:
            refuses(toy, text, "1.2.0", failing=step)
        (toy.root / "CHANGELOG.md").write_text(CHANGELOG + "\n")
        refuses(toy, "not committed", "1.2.0")
        toy.git("checkout", "--quiet", ".")
        (toy.root / "new").write_text("")
        refuses(toy, "that git does not know", "1.2.0")
    with project("# Changelog\n\n## Unreleased\n\n## 1.1.0 (2020-02-29)\n\n- An older one.\n") as toy:
        refuses(toy, "has nothing under the heading Unreleased", "1.2.0")
    with project(FIRST_CHANGELOG) as toy:
        refuses(toy, "older than the version in CMakeLists.txt, 1.1.0", "1.0.9")


def dry_run():
    with project() as toy:
        run = toy.release("--dry-run", "1.10.0")
        check(run.returncode == 0, "a dry run should end well", run)
        for line in ["-  VERSION 1.1.0", "+  VERSION 1.10.0", "+## 1.10.0 ("]:
            check(line in run.stdout, f"a dry run should show {line}", run)
        check(toy.git("status", "--porcelain") == "" and toy.git("tag") == "", "a dry run should change nothing", run)


def release():
    with project() as toy:
        run = toy.release("1.10.0")
        check(run.returncode == 0, "1.10.0 should be released", run)
        check(toy.read("CMakeLists.txt") == CMAKE_LISTS.replace("1.1.0", "1.10.0"), "the version should be set", run)
        check(re.fullmatch(r"# Changelog\n\n## Unreleased\n\n## 1\.10\.0 \(20\d\d-\d\d-\d\d\)\n\n- A change\.\n\n"
                           r"## 1\.1\.0 \(2020-02-29\)\n\n- An older one\.\n", toy.read("CHANGELOG.md")),
              f"the changelog should be dated, and is\n{toy.read('CHANGELOG.md')}", run)
        check(toy.read("abi/interface.tar.xz") == "1.10.0\n", "the interface should be described", run)
        check(toy.git("status", "--porcelain") == "", "everything should be committed", run)
        check(toy.git("log", "-1", "--format=%s", "v1.10.0") == "Release 1.10.0\n", "the commit should be tagged", run)
        results = toy.root / "build-release/1.10.0"
        names = sorted(path.name for path in results.iterdir())
        check(names == ["SHA256SUMS", "editoreffects-1.10.0.tar.xz", "interface.tar.xz", "tool_1.10.0.deb"],
              f"the results should be complete, and are {names}", run)
        subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"], cwd=results, check=True)
        with tarfile.open(results / "editoreffects-1.10.0.tar.xz") as archive:
            text = archive.extractfile("editoreffects-1.10.0/CMakeLists.txt").read().decode()
        check(text == toy.read("CMakeLists.txt"), "the source archive should be of the release", run)
        run = toy.release("1.10.0")
        check(run.returncode != 0 and "there is a tag v1.10.0" in run.stdout, "it should not be released twice", run)
    with project(FIRST_CHANGELOG) as toy:
        # The version that the sources already have; there is no interface to keep yet.
        run = toy.release("1.1.0", failing="abi-diff")
        check(run.returncode == 0, "the first version should be released", run)


for name in ["AUTHOR", "COMMITTER"]:
    os.environ[f"GIT_{name}_NAME"] = "Tester"
    os.environ[f"GIT_{name}_EMAIL"] = "tester@example.invalid"
os.environ["GIT_CONFIG_GLOBAL"] = os.devnull
refusals()
dry_run()
release()
print("script/release works")
