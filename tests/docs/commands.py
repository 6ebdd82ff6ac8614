#!/usr/bin/env python3
"""Runs the commands of a document: `commands.py DOCUMENT FOLDER`, the folder being that of effectctl.

The blocks marked `sh` run one after the other in one shell, in an empty folder, and the first command that fails ends
it. Every line of a block marked `text` must be among the lines that the block before it printed, tables being aligned
there as on a terminal. A block behind a comment that begins with `not run:` is left out.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"(?P<comment><!--(?:(?!-->).)*-->\n)?^```(?P<language>\w*)\n(?P<text>.*?)^```$",
                   re.MULTILINE | re.DOTALL)


def blocks(document):
    """The commands with the line that each block begins in and the lines that it must print."""
    found = []
    for match in BLOCK.finditer(document):
        language, text = match["language"], match["text"]
        if language == "sh" and not (match["comment"] or "").startswith("<!-- not run:"):
            line = document.count("\n", 0, match.start("text")) + 1
            found.append((line, text, []))
        elif language == "text":
            found[-1][2].extend(text.splitlines())
    return found


def words(line):
    """The line with its margin, and single blanks in it."""
    return re.sub(r"(?<=\S)\s+", " ", line)


def run(commands, folder):
    """What the block prints. The folder and its files remain for the next one."""
    result = subprocess.run(["bash", "-euo", "pipefail", "-c", commands], cwd=folder, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    return result.returncode, result.stdout


def main():
    path, tools = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]).resolve()
    os.environ["PATH"] = f"{tools}{os.pathsep}{os.environ['PATH']}"
    found = blocks(path.read_text(encoding="utf-8"))
    if not found:
        sys.exit(f"{path}: there is nothing to run")
    with tempfile.TemporaryDirectory() as folder:
        # Neither the content of an installation nor that of the user who runs this.
        os.environ.update(EDITOR_STOCK_DIR=folder, EDITOR_USER_DIR=folder)
        for line, commands, expected in found:
            status, output = run(commands, folder)
            if status != 0:
                sys.exit(f"{path}:{line}: ended with {status} and printed\n{output}")
            printed = {words(text) for text in output.splitlines()}
            missing = [text for text in expected if words(text) not in printed]
            if missing:
                sys.exit(f"{path}:{line}: did not print\n" + "\n".join(missing) + f"\nbut\n{output}")
    print(f"{len(found)} blocks, {sum(len(expected) for _, _, expected in found)} lines of output")


main()
