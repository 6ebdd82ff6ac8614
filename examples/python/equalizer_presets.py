#!/usr/bin/env python3
"""Writes a table of all equalizer presets of the catalogue as CSV: equalizer_presets.py [STOCK_FOLDER]

A row is a preset, a column the gain of a band in decibels, empty where the preset has no such band.
"""

from __future__ import annotations

import csv
import sys
from typing import List

import editoreffects


def main(arguments: List[str]) -> int:
    if len(arguments) > 1:
        print("usage: equalizer_presets.py [STOCK_FOLDER]", file=sys.stderr)
        return 2
    try:
        catalogue = editoreffects.Catalogue(arguments[0] if arguments else None)
    except editoreffects.Error as error:
        print(error, file=sys.stderr)
        return 1
    equalizers = [item.effect for item in catalogue if item.effect.class_name == "Effect::AudioEqualizer"]
    rows = [{band["centralFrequency"]: band["gain"] for band in effect.multiband} for effect in equalizers]
    frequencies = sorted(set().union(*rows))
    table = csv.writer(sys.stdout, lineterminator="\n")
    table.writerow(["preset", "name", *(f"{frequency} Hz" for frequency in frequencies)])
    for effect, gains in zip(equalizers, rows):
        table.writerow([effect.preset, effect.presetName, *(gains.get(frequency, "") for frequency in frequencies)])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
