#!/usr/bin/env python3
"""Counts instructions per effect and compares them with those on record.

    instruction_counts.py PROGRAM RECORD

Fails when a case takes more than 5 % above its record. Counts do not depend on the machine's load, and hardly on its
processor. After a change that is worth its cost, or that lowered the counts, EDITOREFFECTS_UPDATE_GOLDEN=1 writes the
record anew.
"""

import concurrent.futures
import os
import re
import subprocess
import sys

TOLERANCE = 1.05
EFFECTS = 1000


def count(program, case):
    """Instructions per effect."""
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", "--collect-atstart=no",
               "--toggle-collect=counted", program, case]
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    collected = re.search(r"Collected : (\d+)", result.stderr)
    if result.returncode != 0 or not collected or collected[1] == "0":
        sys.exit(f"{' '.join(command)} failed:\n{result.stderr}")
    return round(int(collected[1]) / EFFECTS)


def main():
    program, record = sys.argv[1:]
    with open(record, encoding="utf-8") as file:
        lines = file.read().splitlines()
    comments = [line for line in lines if line.startswith("#")]
    expected = {case: int(number) for case, number in (line.split() for line in lines if not line.startswith("#"))}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        counts = dict(zip(expected, pool.map(lambda case: count(program, case), expected)))
    for case, number in counts.items():
        print(f"{case:<14}{number:>8} instructions an effect, {number / max(expected[case], 1):.3f} of the record")
    if os.environ.get("EDITOREFFECTS_UPDATE_GOLDEN"):
        with open(record, "w", encoding="utf-8") as file:
            file.write("\n".join(comments + [f"{case} {number}" for case, number in counts.items()]) + "\n")
        return
    slower = [case for case, number in counts.items() if number > expected[case] * TOLERANCE]
    if slower:
        sys.exit(f"more than 5 % above the record: {', '.join(slower)}")


if __name__ == "__main__":
    main()
