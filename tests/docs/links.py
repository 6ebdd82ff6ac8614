#!/usr/bin/env python3
"""Every relative link of every document below a folder leads to a file, and to a heading of it where it names one:
`links.py FOLDER`."""

import pathlib
import re
import sys

LINK = re.compile(r"\[[^\]\n]*\]\(\s*<?([^)>\s]+)>?[^)]*\)")
CODE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.MULTILINE | re.DOTALL)
OUTSIDE = re.compile(r"^[a-z][a-z0-9+.-]*:", re.IGNORECASE)
SKIPPED = re.compile(r"^(build|build-.*|\..*)$")


def documents(folder):
    for path in sorted(folder.iterdir()):
        if path.is_dir() and not SKIPPED.match(path.name):
            yield from documents(path)
        elif path.suffix == ".md":
            yield path


def anchors(path):
    """The anchors that the headings of a document have on the usual hosts."""
    text = re.sub(r"^```.*?^```$", "", path.read_text(encoding="utf-8"), flags=re.MULTILINE | re.DOTALL)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).strip().replace(" ", "-")
            for heading in re.findall(r"^#+ +(.*?) *#*$", text, re.MULTILINE)}


def problems(path):
    # A code span as the text of a link must not hide the link.
    text = CODE.sub(lambda code: re.sub(r"[^\n]", "x", code[0]), path.read_text(encoding="utf-8"))
    for match in LINK.finditer(text):
        link = match[1]
        if OUTSIDE.match(link):
            continue
        name, _, anchor = link.partition("#")
        target = path.parent / name if name else path
        line = text.count("\n", 0, match.start()) + 1
        if not target.exists():
            yield f"{path}:{line}: {link} leads nowhere"
        elif anchor and anchor not in anchors(target):
            yield f"{path}:{line}: {name or 'this document'} has no heading {anchor}"


def main():
    found = list(documents(pathlib.Path(sys.argv[1])))
    dead = [problem for path in found for problem in problems(path)]
    if not found:
        dead = ["there is no document"]
    for problem in dead:
        print(problem)
    print(f"{len(found)} documents, {len(dead)} dead links")
    sys.exit(1 if dead else 0)


main()
