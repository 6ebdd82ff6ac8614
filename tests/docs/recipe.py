#!/usr/bin/env python3
"""Follows docs/adding-an-effect.md in a copy of the sources: `recipe.py SOURCES BUILD [--whole]`, BUILD being a tree of
Ninja with everything built.

The three pieces of the page are put in their files, and the library, as far as they change it, is compiled and linked
with the tests. Then the tests that the page's table names fail, and no others, each naming what is missing. With the
rows and files that the page asks for, all of them pass.

Only the objects that depend on the three pieces by more than a declaration are compiled anew; the others are those of
the build tree. With --whole the copy, a repository of its own then, is built from nothing and all of its tests are run.
"""

import concurrent.futures
import fnmatch
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

NAME = "Vibrance"
PIECES = ["effects/ColorCorrection.h", "effects/ColorCorrection.def",
          "collection/Effects/conversions/ColorCorrection.cpp"]
# In front of what the snippets of the page go: the last such line of the file.
PLACES = {
    "effects/ColorCorrection.h": "} // namespace Effect",
    "effects/ColorCorrection.def": "",
    "collection/Effects/conversions/ColorCorrection.cpp": "}\n\n} // namespace Effect::Factory",
    "platform/Settings/include/Settings/SettingsColor.h": "} // namespace Quoril::Proc\n",
    "platform/Settings/src/SettingsColor.cpp": "} // namespace Quoril::Proc\n",
    "tests/effects/IdentityTest.cpp": '        {"AddNoize", ',
    "tests/collection/Effects/DispatchTest.cpp": "        row<AutoContrast>(",
    "tests/collection/Effects/NumbersTest.cpp": '        {OF(WhiteBalance, color), "red"',
    "tests/platform/Settings/ClassesTest.cpp": "// Geometry\n",
}
# What the pieces change but for declarations.
LIBRARY = ["effects/Identity.cpp", "effects/ColorCorrection.cpp", "serialization/ColorCorrection.cpp",
           "collection/Effects/conversions/ColorCorrection.cpp"]
SETTINGS = ["platform/Settings/src/SettingsColor.cpp"]
# The programs of the tests that concern every class, with the sources that list the classes or name a place in the
# source tree.
PROGRAMS = {
    "SettingsTests": ["tests/platform/Settings/ClassesTest.cpp"],
    "EffectsTests": ["tests/effects/IdentityTest.cpp"],
    "SerializationTests": ["tests/serialization/AllClassesTest.cpp", "tests/serialization/GoldenTest.cpp",
                           "tests/serialization/TranslationTest.cpp"],
    "CollectionTests": ["tests/collection/Effects/DispatchTest.cpp", "tests/collection/Effects/NumbersTest.cpp"],
    "SchemaProofTests": [],
    "StockTests": ["tests/stock/StockTest.cpp"],
}
SHARED_LIBRARIES = ["lib/libEditorEffectsSettings.so", "lib/libEditorEffects.so"]


def run(command, **options):
    """The output of a command, which must not fail."""
    result = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    if result.returncode != 0:
        sys.exit(f"{shlex.join(command)}\nended with {result.returncode}:\n{result.stdout}")
    return result.stdout


class Copy:
    """The copy of the sources, with what is built of it."""

    def __init__(self, sources, build, root):
        self.sources, self.build, self.root = sources, build, root
        self.page = (sources / "docs/adding-an-effect.md").read_text(encoding="utf-8")
        self.objects = root / "objects"
        self.replaced = {}  # outputs of the build tree, and those that take their places
        files = run(["git", "-C", str(sources), "ls-files", "--cached", "--others", "--exclude-standard", "-z"])
        for name in filter(None, files.split("\0")):
            if (sources / name).is_file():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy2(sources / name, root / name)
        targets = [f"bin/tests/{program}" for program in PROGRAMS] + ["bin/make-reference"]
        self.commands = {}
        for line in run(["ninja", "-C", str(build), "-t", "commands", *targets]).splitlines():
            words = shlex.split(line)
            if "-o" in words:
                self.commands[words[words.index("-o") + 1]] = words

    def insert(self, name, text):
        path = self.root / name
        content = path.read_text(encoding="utf-8")
        at = content.rindex(PLACES[name]) if PLACES[name] else len(content)
        path.write_text(content[:at] + text + content[at:], encoding="utf-8")

    def here(self, word):
        """The word of a command with places in the sources turned into those of the copy. The other libraries'
        headers may be in a precompiled one, so they stay where they are."""
        kept = rf"(?!{re.escape(str(self.build)[len(str(self.sources)):])}(?:/|$))" if \
            self.build.is_relative_to(self.sources) else ""
        word = re.sub(rf"{re.escape(str(self.sources))}{kept}(?!/platform/(?!Settings))(?=[/\"\\]|$)", str(self.root),
                      word)
        source = self.build / word
        if word.startswith("..") and source.resolve().is_relative_to(self.sources):
            return str(self.root / source.resolve().relative_to(self.sources))
        return self.replaced.get(word, word)

    def output_of(self, source, program):
        """The object that the command of that program makes of the source."""
        folder = "EditorEffectsObjects" if program is None else program
        found = [output for output, words in self.commands.items()
                 if f"{folder}.dir" in output and str(self.sources / source) in
                 {str((self.build / word).resolve()) for word in words if word.endswith(".cpp")}]
        if len(found) != 1:
            sys.exit(f"{source}: the build tree has {len(found)} objects of it for {folder}")
        return found[0]

    def make(self, output):
        """Compiles or links the output anew."""
        made = self.objects / output
        made.parent.mkdir(parents=True, exist_ok=True)
        words = [word for word in self.commands[output] if word not in (":", "&&", "-MD")]
        for option in ("-MF", "-MT"):
            if option in words:
                at = words.index(option)
                del words[at:at + 2]
        words = [str(made) if word == output else self.here(word) for word in words]
        run(words, cwd=self.build)
        return output, str(made)

    def rebuild(self, outputs):
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            self.replaced.update(pool.map(self.make, outputs))

    def link_shared(self, name):
        """Links a shared library anew, and gives it the name by which programs load it."""
        shared = next(output for output in self.commands if output.startswith(f"{name}."))
        self.rebuild([shared])
        made = pathlib.Path(self.replaced[shared])
        (made.parent / (pathlib.Path(name).name + ".1")).symlink_to(made.name)

    def compile(self, library, programs):
        outputs = [self.output_of(source, None) for source in library]
        if library:
            outputs += [self.output_of(source, "Settings") for source in SETTINGS]
        outputs += [self.output_of(source, program) for program, sources in programs.items() for source in sources]
        self.rebuild(outputs)
        if library:
            for name in SHARED_LIBRARIES:
                self.link_shared(name)
        self.rebuild([f"bin/tests/{program}" for program in programs])

    def environment(self, **more):
        return {**os.environ, "QT_QPA_PLATFORM": "offscreen", **more,
                "LD_LIBRARY_PATH": str(self.objects / "lib")}

    def failures(self, program, **environment):
        """The tests of the program that fail, with what they print."""
        report = self.root / f"{program}.json"
        subprocess.run([self.replaced[f"bin/tests/{program}"], f"--gtest_output=json:{report}"],
                       env=self.environment(**environment), cwd=self.root, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=600)
        if not report.exists():
            sys.exit(f"{program} crashed")
        suites = json.loads(report.read_text(encoding="utf-8"))["testsuites"]
        report.unlink()
        return {f"{suite['name']}.{test['name']}": "\n".join(one["failure"] for one in test["failures"])
                for suite in suites for test in suite["testsuite"] if "failures" in test}


def snippets(page):
    """The files that the page names ahead of a block of C++, with the blocks."""
    return re.findall(r"\bin `([\w/.]+)`[^\n]*\n\n```cpp\n(.*?)```", page, re.DOTALL)


def asked(page):
    """The patterns of the tests in the page's table that GoogleTest runs."""
    table = page.split("| test | asks for |")[1].split("\n\n")[0]
    rows = re.findall(r"^\| (`.*?) \|", table, re.MULTILINE)
    patterns = [pattern for row in rows for pattern in re.findall(r"`([^`]+)`", row)]
    return [pattern for pattern in patterns if not pattern.startswith(("docs.", "Boundary."))]


def expect_what_the_page_asks_for(page, failures):
    patterns = asked(page)
    problems = [f"{pattern} does not fail" for pattern in patterns if not fnmatch.filter(failures, pattern)]
    for test, output in failures.items():
        if not any(fnmatch.fnmatch(test, pattern) for pattern in patterns):
            problems.append(f"{test} fails, and the page does not say so:\n{output}")
        if NAME not in test + output and "script/make-translations" not in output:
            problems.append(f"{test} does not name what is missing:\n{output}")
    if problems:
        sys.exit("\n".join(problems))


def add_files(copy):
    """What the page asks for besides rows: golden archives, an item, a translation and the page of all effects."""
    copy.failures("SerializationTests", EDITOREFFECTS_UPDATE_GOLDEN="1", GTEST_FILTER="*GoldenTest*")
    golden = json.loads((copy.root / f"tests/golden/Effect.{NAME}.default.json").read_text(encoding="utf-8"))
    stock = copy.root / "stock/VideoEffects"
    item = json.loads((stock / "auto_contrast.effect.json").read_text(encoding="utf-8"))
    (stock / "vibrance.effect.json").write_text(json.dumps({**item, "effect": golden}, indent=2), encoding="utf-8")
    german = copy.root / "translations/editoreffects_de.ts"
    texts = set(re.findall(r'(?:description|label|text)\("([^"]+)"', dict(snippets(copy.page))[PIECES[0]]))
    messages = "".join(f"<message><source>{text}</source><translation>x</translation></message>" for text in texts)
    german.write_text(german.read_text(encoding="utf-8").replace("</context>", messages + "</context>"),
                      encoding="utf-8")


def test_all(copy):
    """What is left of the page's table, and then everything that CI runs of the tests."""
    shutil.rmtree(copy.objects)
    for arguments in (["init", "--quiet"], ["add", "--all"],
                      ["-c", "user.name=x", "-c", "user.email=x", "commit", "--quiet", "--message", f"Add {NAME}"]):
        run(["git", *arguments], cwd=copy.root)
    environment = {name: value for name, value in os.environ.items() if name != "EDITOREFFECTS_CMAKE_FLAGS"}
    run(["script/make-reference"], cwd=copy.root, env=environment)
    run(["script/test", "-R", "^Boundary"], cwd=copy.root, env={**environment, "EDITOREFFECTS_UPDATE_GOLDEN": "1"})
    # This test would follow the page once more.
    print(run(["script/test", "-LE", "recipe"], cwd=copy.root, env=environment))


def main():
    sources, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    with tempfile.TemporaryDirectory() as folder:
        copy = Copy(sources, build, pathlib.Path(folder).resolve())
        parts = snippets(copy.page)
        files = [name for name, _ in parts]
        if files[:len(PIECES)] != PIECES or set(files) != set(PLACES):
            sys.exit(f"the page should show these files to edit: {list(PLACES)}, and shows {files}")
        rows = [(name, text) for name, text in parts if name.startswith("tests/")]
        for name, text in parts:
            if (name, text) not in rows:
                copy.insert(name, text)
        copy.compile(LIBRARY, PROGRAMS)
        failures = {}
        for program in PROGRAMS:
            failures.update(copy.failures(program))
        expect_what_the_page_asks_for(copy.page, failures)
        print(f"{len(failures)} tests ask for something")

        for name, text in rows:
            copy.insert(name, text)
        copy.compile([], {program: [source for source in edited if source in files]
                          for program, edited in PROGRAMS.items()})
        add_files(copy)
        # The compiled translation is that of the build tree.
        left = {test: output for program in PROGRAMS for test, output in
                copy.failures(program, GTEST_FILTER="-GermanTranslation.Reaches*").items()}
        for test, output in left.items():
            print(f"{test} still fails:\n{output}")
        reference = run([copy.make("bin/make-reference")[1], "--stock", str(copy.root / "stock")],
                        env=copy.environment())
        if f"### Effect::{NAME}\n" not in reference:
            sys.exit("the page of all effects does not have it")
        if not left and "--whole" in sys.argv:
            test_all(copy)
        sys.exit(1 if left else 0)


main()
