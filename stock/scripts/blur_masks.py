#!/usr/bin/python3
"""Draws the bokeh apertures into ../BlurMasks: the shape that a point of light takes when it is out of focus.

White and light grey on transparent. The grey rises towards the rim, as it does in the discs of a real lens, so that
overlapping points of light stay apart.
"""

import argparse
import pathlib

from canvas import Canvas, ellipse, flipped, heart, moved, on_circle, polygon, radial, rounded, star_points, svg, union
from snow import dendrite

CENTRE = (128, 128)


def bang():
    """The burst of a comic strip: spikes of uneven length with hollow flanks."""
    outer = [124, 98, 118, 94, 126, 100, 114, 98, 125, 94, 119, 100]
    count = len(outer)
    tips = [on_circle(CENTRE, radius, index * 360 / count + 6) for index, radius in enumerate(outer)]
    notches = [on_circle(CENTRE, 66 if index % 2 else 61, (index + 0.5) * 360 / count + 6) for index in range(count)]
    return polygon([point for pair in zip(tips, notches) for point in pair])


def blossom():
    """A cherry blossom: five petals, each with its notch."""
    petal = svg("M 0 0 C -22 -18 -62 -52 -44 -92 C -38 -106 -22 -114 -10 -116 L 0 -101 L 10 -116 "
                "C 22 -114 38 -106 44 -92 C 62 -52 22 -18 0 0 Z")
    return union(*(moved(petal, *CENTRE, degrees=72 * index) for index in range(5)))


def bokeh():
    return ellipse(*CENTRE, 116)


def butterfly():
    upper = svg("M 0 -14 C 16 -66 56 -108 96 -100 C 124 -92 118 -36 96 -10 C 76 10 34 10 0 4 Z")
    lower = svg("M 0 2 C 36 2 76 8 86 36 C 94 66 70 102 46 100 C 24 98 8 52 0 26 Z")
    feeler = svg("M 0 -36 C 4 -62 14 -82 30 -94 C 36 -98 40 -90 34 -87 C 20 -76 10 -60 5 -34 Z")
    right = [upper, lower, feeler]
    shapes = [ellipse(0, 8, 8, 48), *right, *map(flipped, right)]
    return union(*(moved(shape, *CENTRE, scale=1.05) for shape in shapes))


def clover():
    """Four heart-shaped leaves on a curved stalk."""
    leaf = svg("M 0 -3 C -10 -22 -56 -40 -52 -76 C -48 -104 -14 -104 0 -84 C 14 -104 48 -104 52 -76 "
               "C 56 -40 10 -22 0 -3 Z")
    stalk = svg("M 3 0 C 4 40 14 96 34 122 Q 28 134 16 132 C 0 100 -5 40 -3 0 Z")
    return union(*(moved(leaf, 128, 112, degrees=90 * index + 45, scale=1.08) for index in range(4)),
                 moved(stalk, 128, 112))


def diamonds():
    """The diamond of the card suit, its sides slightly hollow."""
    return svg("M 128 8 Q 162 78 220 128 Q 162 178 128 248 Q 94 178 36 128 Q 94 78 128 8 Z")


def heart_aperture():
    return heart((128, 132), 236)


def ice():
    return moved(dendrite(width=12), *CENTRE, scale=1.2)


def star():
    return rounded(star_points((128, 136), 126, 54, 5), 7)


MASKS = {
    "bang.png": bang,
    "blossom.png": blossom,
    "bokeh.png": bokeh,
    "butterfly.png": butterfly,
    "clover.png": clover,
    "diamonds.png": diamonds,
    "heart.png": heart_aperture,
    "ice.png": ice,
    "star.png": star,
}


def draw(shape, softness):
    canvas = Canvas()
    with canvas.layer(blur=softness):
        canvas.fill(shape, radial(CENTRE, 125, (0, "#bcbcbc"), (0.6, "#cccccc"), (1, "#e4e4e4")))
        canvas.edge(shape, "#ffffff", 0, 0, 4)
        with canvas.layer(blur=1, inside=shape):
            canvas.stroke(shape, "#ffffff", 5)
    return canvas


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path, help="where the images go, such as stock")
    folder = parser.parse_args().folder / "BlurMasks"
    folder.mkdir(parents=True, exist_ok=True)
    for name, shape in MASKS.items():
        # The round disc is that of a lens wide open, which has no blades and so no hard edge.
        draw(shape(), softness=3 if shape is bokeh else 0).save(folder / name)


if __name__ == "__main__":
    main()
