#!/usr/bin/python3
"""Computes the warm and cold looks into ../Luts, as .cube files of 17 x 17 x 17 entries.

A look is a chain of the steps below, from encoded sRGB to encoded sRGB. Each step is a published formula or a plain
curve; the comment at the head of each file names the chain.
"""

import argparse
import pathlib

import numpy

SIZE = 17

LUMA = numpy.array([0.2126, 0.7152, 0.0722])  # ITU-R BT.709

# Linear sRGB to CIE XYZ (IEC 61966-2-1), and the Bradford cone responses (Lam 1985).
SRGB_TO_XYZ = numpy.array([[0.4124, 0.3576, 0.1805], [0.2126, 0.7152, 0.0722], [0.0193, 0.1192, 0.9505]])
BRADFORD = numpy.array([[0.8951, 0.2664, -0.1614], [-0.7502, 1.7135, 0.0367], [0.0389, -0.0685, 1.0296]])
D65 = (0.3127, 0.3290)


def decode(encoded):
    return numpy.where(encoded <= 0.04045, encoded / 12.92, ((encoded + 0.055) / 1.055) ** 2.4)


def encode(light):
    light = numpy.clip(light, 0, 1)
    return numpy.where(light <= 0.0031308, light * 12.92, 1.055 * light ** (1 / 2.4) - 0.055)


def daylight(kelvin):
    """Chromaticity of CIE daylight (CIE 15), 4000 K to 25000 K."""
    t = 1000 / kelvin
    if kelvin <= 7000:
        x = 0.244063 + 0.09911 * t + 2.9678 * t ** 2 - 4.6070 * t ** 3
    else:
        x = 0.237040 + 0.24748 * t + 1.9018 * t ** 2 - 2.0064 * t ** 3
    return x, -3.000 * x ** 2 + 2.870 * x - 0.275


def planckian(kelvin):
    """Chromaticity of a black body, 1667 K to 4000 K (the cubic fit of Kim et al., 2002)."""
    t = 1000 / kelvin
    x = -0.2661239 * t ** 3 - 0.2343589 * t ** 2 + 0.8776956 * t + 0.179910
    if kelvin <= 2222:
        return x, -1.1063814 * x ** 3 - 1.34811020 * x ** 2 + 2.18555832 * x - 0.20219683
    return x, -0.9549476 * x ** 3 - 1.37418593 * x ** 2 + 2.09137015 * x - 0.16748867


def _xyz(chromaticity):
    x, y = chromaticity
    return numpy.array([x / y, 1, (1 - x - y) / y])


# The steps: each takes and returns an array whose last axis is red, green, blue, encoded, from 0 to 1.


def relight(white):
    """White becomes that chromaticity, by Bradford adaptation from D65, and stays as bright as the display allows."""
    gain = BRADFORD @ _xyz(white) / (BRADFORD @ _xyz(D65))
    matrix = numpy.linalg.inv(SRGB_TO_XYZ) @ numpy.linalg.inv(BRADFORD) @ numpy.diag(gain) @ BRADFORD @ SRGB_TO_XYZ
    matrix /= (matrix @ numpy.ones(3)).max()
    return lambda rgb: encode(decode(rgb) @ matrix.T)


def _luma(rgb):
    return (rgb @ LUMA)[..., None]


def saturation(factor):
    return lambda rgb: _luma(rgb) + factor * (rgb - _luma(rgb))


def contrast(amount):
    """Towards the S curve 3 x^2 - 2 x^3; negative amounts flatten."""
    def step(rgb):
        x = numpy.clip(rgb, 0, 1)
        return x + amount * (x * x * (3 - 2 * x) - x)
    return step


def gamma(exponent):
    return lambda rgb: numpy.clip(rgb, 0, 1) ** exponent


def levels(black, white):
    """Spreads black and white to those values, each a number or a colour."""
    black, white = numpy.array(black), numpy.array(white)
    return lambda rgb: black + (white - black) * rgb


def split_tone(shadows, highlights, strength):
    """Adds one tint to the shadows and another to the highlights, weighted by (1 - luma)^2 and luma^2. The tints are
    taken without their luma, so that brightness stays."""
    tints = [numpy.array(tint) - numpy.array(tint) @ LUMA for tint in (shadows, highlights)]

    def step(rgb):
        luma = _luma(rgb)
        return rgb + strength * ((1 - luma) ** 2 * tints[0] + luma ** 2 * tints[1])
    return step


def bleach_bypass(amount):
    """Silver left in the print: the picture's own luma laid over it in overlay mode, mixed in by the amount."""
    def step(rgb):
        luma = _luma(rgb)
        overlay = numpy.where(luma < 0.5, 2 * luma * rgb, 1 - 2 * (1 - luma) * (1 - rgb))
        return rgb + amount * (overlay - rgb)
    return step


def toned_print(exponents, amount):
    """A monochrome print in a toning bath: luma raised to an exponent for each channel, mixed in by the amount."""
    return lambda rgb: rgb + amount * (_luma(rgb) ** numpy.array(exponents) - rgb)


TEAL, ORANGE = (0.0, 0.55, 0.65), (1.0, 0.62, 0.20)

# File name: title, formula for the comment, steps.
LOOKS = {
    "warm_golden_hour.cube": (
        "Golden hour",
        "relight to CIE daylight 4300 K (Bradford); S curve 0.15; saturation 1.12; black level 0.015",
        [relight(daylight(4300)), contrast(0.15), saturation(1.12), levels(0.015, 1.0)]),
    "warm_candlelight.cube": (
        "Candlelight",
        "relight to a black body of 3200 K (Bradford); gamma 1.12; S curve 0.25; saturation 0.92",
        [relight(planckian(3200)), gamma(1.12), contrast(0.25), saturation(0.92)]),
    "warm_amber_film.cube": (
        "Amber film",
        "S curve 0.35; split tone teal shadows, orange highlights 0.22; saturation 1.05; levels 0.03 to 0.98",
        [contrast(0.35), split_tone(TEAL, ORANGE, 0.22), saturation(1.05), levels(0.03, 0.98)]),
    "warm_sepia_print.cube": (
        "Sepia print",
        "toned print, luma to the powers 0.78, 1.00, 1.38, mixed 0.92; white to the paper's 0.99, 0.95, 0.85; "
        "black level 0.04",
        [toned_print((0.78, 1.00, 1.38), 0.92), levels(0.04, (0.99, 0.95, 0.85))]),
    "cold_moonlight.cube": (
        "Moonlight",
        "relight to CIE daylight 12000 K (Bradford); saturation 0.55; gamma 1.2; S curve 0.2; "
        "split tone blue shadows 0.10",
        [relight(daylight(12000)), saturation(0.55), gamma(1.2), contrast(0.2),
         split_tone((0.10, 0.30, 1.0), (0.5, 0.5, 0.5), 0.10)]),
    "cold_nordic.cube": (
        "Nordic",
        "relight to CIE daylight 8000 K (Bradford); saturation 0.80; S curve -0.2; levels 0.05 to 1",
        [relight(daylight(8000)), saturation(0.80), contrast(-0.2), levels(0.05, 1.0)]),
    "cold_steel.cube": (
        "Steel",
        "saturation 0.60; S curve 0.45; split tone teal shadows, pale blue highlights 0.16",
        [saturation(0.60), contrast(0.45), split_tone(TEAL, (0.45, 0.6, 0.8), 0.16)]),
    "cold_bleach.cube": (
        "Cold bleach",
        "bleach bypass 0.7; relight to CIE daylight 7500 K (Bradford); saturation 0.75",
        [bleach_bypass(0.7), relight(daylight(7500)), saturation(0.75)]),
}


def table(steps):
    """The entries in file order: red runs fastest."""
    axis = numpy.linspace(0, 1, SIZE)
    blue, green, red = numpy.meshgrid(axis, axis, axis, indexing="ij")
    rgb = numpy.stack([red, green, blue], axis=-1).reshape(-1, 3)
    for step in steps:
        rgb = step(rgb)
    return numpy.clip(rgb, 0, 1) + 0.0  # without the negative zeros


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path, help="where the tables go, such as stock")
    folder = parser.parse_args().folder / "Luts"
    folder.mkdir(parents=True, exist_ok=True)
    for name, (title, formula, steps) in LOOKS.items():
        lines = [f'TITLE "{title}"', f"# {formula}", "# sRGB to sRGB. Made by stock/scripts/luts.py.",
                 f"LUT_3D_SIZE {SIZE}", "DOMAIN_MIN 0.0 0.0 0.0", "DOMAIN_MAX 1.0 1.0 1.0", ""]
        lines += ["{:.6f} {:.6f} {:.6f}".format(*entry) for entry in table(steps)]
        (folder / name).write_text("\n".join(lines) + "\n", encoding="ascii", newline="\n")


if __name__ == "__main__":
    main()
