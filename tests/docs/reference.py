#!/usr/bin/env python3
"""Compares docs/reference.md with what the tool says and with what archives hold: `reference.py PAGE EFFECTCTL GOLDEN`.

The page must have a section for each class of `effectctl list --json`, with the same base, identity, keys and defaults,
and each key of the golden archives must be in the section of the class that it belongs to, and each key of the page in
the archives."""

import json
import pathlib
import re
import subprocess
import sys

ROOT = "Effect::Object"  # no class of its own in an archive, but a section of the page


def cells(line):
    """The cells of a table's row, without the code marks; a bar in a cell has a backslash before it."""
    found = re.split(r"(?<!\\)\|", line)[1:-1]
    return [cell.strip().replace("\\|", "|") for cell in found]


def plain(cell):
    """The text of a cell: `code` without its marks, and nothing for "none"."""
    return "" if cell == "none" else cell[1:-1] if cell.startswith("`") else cell


class Section:
    """What the page says of a class."""

    def __init__(self, text):
        self.facts, self.defaults = {}, {}
        for line in text.splitlines():
            row = cells(line) if line.startswith("|") else []
            if len(row) == 2 and row[0] and not row[0].startswith("---"):
                self.facts[row[0]] = row[1]
            elif len(row) == 7 and row[1].startswith("`"):
                assert plain(row[1]) not in self.defaults, f"{row[1]} has two rows"
                self.defaults[plain(row[1])] = row[4]


def sections(page):
    parts = re.split(r"^### (.+)$", page, flags=re.MULTILINE)
    return {name: Section(text) for name, text in zip(parts[1::2], parts[2::2])}


def matches(cell, value):
    """Whether the cell of a default shows the value: as JSON, a number with the name of a choice, or a colour."""
    text = plain(cell)
    if re.fullmatch(r"#[0-9a-f]{8}", text):
        return int(text[1:], 16) == value
    if isinstance(value, int) and not isinstance(value, bool) and re.fullmatch(r"-?\d+ \w+", text):
        return int(text.split()[0]) == value
    return json.dumps(json.loads(text), sort_keys=True) == json.dumps(value, sort_keys=True)


def compare_facts(section, entry):
    facts = section.facts
    expected = {"base": entry["base"] or "", "identifier": entry["id"], "tag": entry["tag"],
                "default tag": entry["defaultTag"],
                "group": entry["groupId"] if entry["groupId"] != entry["id"] else "none, its own identifier",
                "settings identifier": entry["processingSettingsId"]}
    for fact, value in expected.items():
        # An effect's settings go by its own identifier where there is no such row.
        shown = plain(facts.get(fact, entry["id"] if fact == "settings identifier" else "no row"))
        if shown != value:
            yield f"{fact} is {shown!r}, and {value!r} in the list"
    kind = ["audio" if entry["type"] else "video"]
    kind += ["with an intensity"] if entry["hasIntensity"] else []
    kind += ["two inputs"] if entry["isTwoInput"] else []
    if facts.get("kind") != ", ".join(kind):
        yield f"kind is {facts.get('kind')!r}, and {', '.join(kind)!r} in the list"
    if entry["impl"] == 0 and not facts.get("settings", "").startswith("none"):
        yield "has settings, and is a descriptor in the list"
    intensity = re.match(r"-?\d+(\.\d+)?", facts.get("intensity", ""))
    if entry["hasIntensity"] and (not intensity or float(intensity[0]) != entry["intensity"]):
        yield f"intensity is {facts.get('intensity')!r}, and {entry['intensity']} in the list"


def compare_list(page, listed):
    yield from (f"{entry['class']} is not on the page" for entry in listed if entry["class"] not in page)
    for name in page.keys() - {entry["class"] for entry in listed} - {ROOT}:
        yield f"{name} is not in the list"
    for entry in (entry for entry in listed if entry["class"] in page):
        section = page[entry["class"]]
        if entry["id"]:
            yield from (f"{entry['class']}: {problem}" for problem in compare_facts(section, entry))
        for key in entry["fields"].keys() ^ section.defaults.keys():
            yield f"{entry['class']}: {key} is only {'in the list' if key in entry['fields'] else 'on the page'}"
        for key in entry["fields"].keys() & section.defaults.keys():
            if not matches(section.defaults[key], entry["fields"][key]):
                yield f"{entry['class']}: the default of {key} is {section.defaults[key]}, and " \
                      f"{json.dumps(entry['fields'][key])} in the list"


def keys_of_classes(value, name, found):
    """Adds the own keys of the objects in a document to those of their classes."""
    if isinstance(value, list):
        for element in value:
            keys_of_classes(element, None, found)
    elif isinstance(value, dict):
        name = value.get("$meta", {}).get("class", name)
        for key, child in value.items():
            is_base = key.startswith("Effect::")
            if name and key != "$meta" and not is_base:
                found.setdefault(name, set()).add(key)
            keys_of_classes(child, key if is_base else None, found)


def compare_archives(page, folder):
    found = {}
    files = sorted(folder.glob("*.json"))
    for file in files:
        keys_of_classes(json.loads(file.read_text(encoding="utf-8")), None, found)
    if not files:
        yield f"{folder}: there are no archives"
    for name, section in page.items():
        keys = found.pop(name, set())
        for key in keys ^ section.defaults.keys():
            yield f"{name}: {key} is only {'in the archives' if key in keys else 'on the page'}"
    yield from (f"{name} is in the archives and not on the page" for name in found if name.startswith("Effect::"))


def main():
    page = sections(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    listed = json.loads(subprocess.run([sys.argv[2], "list", "--json"], check=True, capture_output=True).stdout)
    problems = [*compare_list(page, listed), *compare_archives(page, pathlib.Path(sys.argv[3]))]
    print(*problems, sep="\n")
    print(f"{len(page)} sections, {len(listed)} classes, {len(problems)} differences")
    sys.exit(1 if problems or not listed else 0)


main()
