#!/usr/bin/env python3
"""Does what docs/adding-an-effect.md says to a copy of the sources, and has the compiler check the result:
`recipe.py SOURCES BUILD`. How each source is compiled is in the build tree's compile_commands.json."""

import json
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

# Where the page's three pieces go: in front of the last such line of the file.
PLACES = {"effects/ColorCorrection.h": "} // namespace Effect",
          "effects/ColorCorrection.def": "",
          "collection/Effects/conversions/ColorCorrection.cpp": "}\n\n} // namespace Effect::Factory"}
COMPILED = ["effects/Identity.cpp", "serialization/ColorCorrection.cpp", "serialization/Schema.cpp",
            "collection/Effects/conversions/ColorCorrection.cpp", "collection/Effects/SettingsFactory.cpp"]
ENGINE_HEADER = "platform/Settings/include/Settings/SettingsColor.h"
ENGINE_END = "} // namespace Quoril::Proc\n"
# The page mentions the engine's class without showing it.
ENGINE_CLASS = """class SETTINGS_EXPORT SettingsEffectVibrance final : public Settings
{
    SETTINGS_CLASS(SettingsEffectVibrance)
    SETTING(Amount, double)
};
"""


def insert(path, text, place):
    """Puts text in front of the last such place, or at the end."""
    content = path.read_text(encoding="utf-8")
    at = content.rindex(place) if place else len(content)
    path.write_text(content[:at] + text + content[at:], encoding="utf-8")


def follow(page, root):
    for name, text in re.findall(r", in `([\w/.]+)`[^\n]*\n\n```cpp\n(.*?)```", page, re.DOTALL):
        insert(root / name, text, PLACES[name])
        yield name
    insert(root / ENGINE_HEADER, ENGINE_CLASS, ENGINE_END)


def command(entry, sources, root):
    """The entry's command for the copy, and only to check."""
    words = shlex.split(entry["command"])
    at = words.index("-o")
    del words[at:at + 2]
    words = [word.replace(f"-I{sources}/platform/Settings/include", f"-I{root}/platform/Settings/include")
             if word.startswith("-I") else word for word in words]
    words = [f"-I{root}" if word == f"-I{sources}" else word for word in words]
    words = [str(root / pathlib.Path(word).relative_to(sources)) if word == entry["file"] else word for word in words]
    return words + ["-fsyntax-only"]


def main():
    sources, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    page = (sources / "docs/adding-an-effect.md").read_text(encoding="utf-8")
    # Tests compile some of the sources a second time.
    entries = {entry["file"]: entry for entry in json.loads((build / "compile_commands.json").read_text())
               if "EditorEffectsObjects.dir" in entry["command"]}
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name in ["effects", "serialization", "collection", "utils", "platform/Settings"]:
            shutil.copytree(sources / name, root / name)
        edited = list(follow(page, root))
        if set(edited) != set(PLACES):
            sys.exit(f"the page should show these three files to edit: {list(PLACES)}, and shows {edited}")
        for name in COMPILED:
            entry = entries[str(sources / name)]
            result = subprocess.run(command(entry, sources, root), cwd=entry["directory"], text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            if result.returncode != 0:
                sys.exit(f"{name} does not compile:\n{result.stdout}")
            print(name)


main()
