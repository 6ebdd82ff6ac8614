#!/usr/bin/python3
"""Draws the objects that fly over the picture into ../FlyingObjects.

256 x 256 pixels, transparent around the object, light from the top left. Objects that travel sideways (the paper
plane, the cupid) face left, since that is where their presets send them.
"""

import argparse
import math
import pathlib

from canvas import (Canvas, ellipse, flipped, heart, line, linear, mirrored, moved, on_circle, polygon, radial,
                    rectangle, rounded, spline, star_points, svg, union)
from snow import dendrite, stellar_plate

CENTRE = (128, 128)


# Leaves and flowers


def maple_leaf(canvas):
    half = [(0, -116), (15, -84), (20, -64), (37, -78), (33, -42), (30, -16), (50, -40), (54, -56), (66, -46),
            (104, -56), (92, -30), (116, -12), (88, 4), (70, 16), (84, 46), (50, 46), (30, 58), (4, 54)]
    outline = mirrored(half)

    def leaf(context):
        """Straight from tip to notch would look cut out of card: each side sags a little towards the middle."""
        context.new_path()
        context.move_to(*outline[0])
        for (x0, y0), (x1, y1) in zip(outline, outline[1:] + outline[:1]):
            mx, my = (x0 + x1) / 2 * 0.93, ((y0 + y1) / 2 - 10) * 0.93 + 10
            context.curve_to((x0 + 2 * mx) / 3, (y0 + 2 * my) / 3, (x1 + 2 * mx) / 3, (y1 + 2 * my) / 3, x1, y1)
        context.close_path()

    with canvas.transformed(128, 130, degrees=14, scale=0.98):
        stem = svg("M -3 46 C -2 72 2 92 16 116 L 23 112 C 10 92 5 72 4 46 Z")
        canvas.fill(stem, linear((0, 50), (20, 116), "#b3401c", "#7a2a12"))
        canvas.fill(leaf, radial((0, 30), 150, (0, "#ffd65c"), (0.28, "#fba52c"), (0.6, "#ec5f1c"), (1, "#b81f16")))
        canvas.edge(leaf, "#7d0d0acc", -5, -5, 7)
        canvas.edge(leaf, "#ffe28a99", 4, 4, 4)
        with canvas.layer(blur=9, inside=leaf):
            canvas.fill(ellipse(46, -6, 20, 12, 30), "#9e1b1466")
            canvas.fill(ellipse(-52, 12, 16, 10), "#ffd75c66")
            canvas.fill(ellipse(-12, -56, 12, 22), "#ffc04d66")
        veins = [((0, 52), (0, -104)), ((0, 44), (94, -46)), ((0, 44), (-94, -46)), ((0, 48), (70, 42)),
                 ((0, 48), (-70, 42))]
        branches = [((0, -16), (28, -62)), ((0, -16), (-28, -62)), ((0, 8), (20, -14)), ((0, 8), (-20, -14)),
                    ((44, 2), (52, -42)), ((-44, 2), (-52, -42)), ((50, -4), (104, -12)), ((-50, -4), (-104, -12))]
        for colour, offset in (("#8e1b0f66", 1.4), ("#ffe39ad9", 0)):
            with canvas.transformed(offset, offset), canvas.layer(inside=leaf):
                for start, end in veins:
                    canvas.fill(_vein(start, end, 4.4), colour)
                for start, end in branches:
                    canvas.fill(_vein(start, end, 2.6), colour)


def _vein(start, end, width):
    """A line that tapers to nothing."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    length = math.hypot(dx, dy)
    nx, ny = -dy / length * width / 2, dx / length * width / 2
    return polygon([(start[0] + nx, start[1] + ny), end, (start[0] - nx, start[1] - ny)])


def rose(canvas):
    for degrees in (-58, 62, 178):
        with canvas.transformed(128, 126, degrees):
            leaf = svg("M 0 -60 C -34 -78 -34 -104 0 -126 C 34 -104 34 -78 0 -60 Z")
            canvas.solid(leaf, linear((-30, -90), (30, -90), "#5fae4a", "#2c7a35"), depth=4)
            canvas.stroke(line((0, -62), (0, -120)), "#d8f0b8aa", 1.6)
            for height in (-76, -90, -104):
                for side in (-1, 1):
                    canvas.stroke(line((0, height), (side * 15, height - 10)), "#d8f0b866", 1)

    # Rings of petals from the outside in; each ring is smaller, darker at its foot and turned against the last.
    rings = [(5, 92, 74, 8, "#f0507a", "#c51d4e"), (5, 74, 66, 44, "#ee4470", "#b91846"),
             (4, 57, 58, 14, "#ea3a67", "#ac143f"), (3, 42, 50, 60, "#e2305d", "#9d1037")]
    for count, reach, width, turn, light, dark in rings:
        for index in range(count):
            with canvas.transformed(128, 126, turn + index * 360 / count):
                petal = svg(f"M 0 8 C {-width * 0.62} {-reach * 0.1} {-width * 0.86} {-reach * 0.86} "
                            f"{-width * 0.3} {-reach * 0.97} C {-width * 0.12} {-reach * 1.02} "
                            f"{width * 0.1} {-reach * 1.02} {width * 0.34} {-reach * 0.95} "
                            f"C {width * 0.86} {-reach * 0.8} {width * 0.62} {-reach * 0.1} 0 8 Z")
                canvas.glow(petal, "#5c002266", 4)
                canvas.fill(petal, radial((0, 0), reach, (0, "#7d0a2c"), (0.45, dark), (0.85, light), (1, "#ff86a2")))
                with canvas.layer(blur=1.1, inside=petal):
                    canvas.stroke(petal, "#ffb3c2cc", 3)
    heart_of_rose = ellipse(128, 126, 24)
    canvas.glow(heart_of_rose, "#5c002299", 4)
    canvas.fill(heart_of_rose, radial((124, 120), 28, "#d62a56", "#8e0c31"))
    spiral = [(128 + (3 + 0.052 * angle) * math.cos(math.radians(angle)),
               126 + (3 + 0.052 * angle) * math.sin(math.radians(angle))) for angle in range(0, 400, 15)]
    with canvas.layer(inside=heart_of_rose):
        canvas.stroke(moved(spline(spiral, closed=False), 1.5, 2), "#6d0524", 5)
        canvas.stroke(spline(spiral, closed=False), "#ff7f9b", 3)


def daisy(canvas):
    petal = svg("M 0 -20 C -20 -48 -25 -96 -12 -113 Q -6 -119 0 -112 Q 6 -119 12 -113 C 25 -96 20 -48 0 -20 Z")
    for count, turn, scale, near, far in ((9, 20, 1.03, "#d07aa8", "#f3bcd8"), (9, 0, 1, "#e58dbb", "#fff1f8")):
        for index in range(count):
            with canvas.transformed(*CENTRE, degrees=turn + index * 360 / count, scale=scale):
                canvas.glow(petal, "#5a1c4055", 3)
                canvas.fill(petal, linear((0, -20), (0, -116), (0, near), (0.5, far), (1, "#ffffff")))
                canvas.edge(petal, "#c45c9488", -3, 0, 3)
                for x in (-5, 0, 5):
                    canvas.stroke(svg(f"M {x * 0.3} -34 Q {x * 1.4} -70 {x} -98"), "#cc6fa05c", 1.2)
    disc = ellipse(*CENTRE, 31)
    canvas.glow(disc, "#5a1c4099", 5)
    canvas.fill(disc, radial(CENTRE, 32, "#fff08a", "#ffc928", "#e08a10", focus=(118, 116)))
    for index in range(90):
        # The sunflower spiral: each floret turns by the golden angle.
        x, y = on_circle(CENTRE, 3.05 * math.sqrt(index), index * 137.508)
        canvas.fill(ellipse(x + 0.5, y + 0.7, 1.7), "#a8590cc0")
        canvas.fill(ellipse(x, y, 1.4), "#ffe87a")


# Things in the air


def balloon(canvas):
    string = svg("M 128 196 C 134 208 120 216 126 226 C 131 234 124 240 127 250")
    canvas.stroke(string, "#55555f", 3)
    canvas.stroke(moved(string, -0.5, -0.3), "#f4f4f8", 1.7)
    knot = svg("M 128 182 L 139 197 Q 128 193 117 197 Z")
    canvas.solid(knot, linear((116, 190), (140, 190), "#e33a3f", "#9d1420"), depth=2)
    skin = svg("M 128 188 C 84 170 52 130 52 86 C 52 40 86 8 128 8 C 170 8 204 40 204 86 C 204 130 172 170 128 188 Z")
    canvas.fill(skin, radial((122, 90), 112, (0, "#ff8a7c"), (0.35, "#f44a48"), (0.75, "#d8232f"), (1, "#a80f22"),
                             focus=(96, 56)))
    canvas.edge(skin, "#6e0016aa", -10, -12, 14)
    with canvas.layer(blur=5, inside=skin):
        canvas.stroke(svg("M 190 100 C 186 130 166 156 142 172"), "#ff9d8ecc", 7)
    with canvas.layer(blur=3):
        canvas.fill(ellipse(90, 52, 15, 27, 32), "#ffffffd9")
    canvas.fill(ellipse(76, 88, 4.5, 8, 10), "#ffffff99")


def hot_air_balloon(canvas):
    top, mouth = 8, 178
    half = [(0, top), (46, 18), (80, 50), (88, 88), (70, 128), (38, 162), (24, mouth)]
    envelope = moved(_spline_with_flat_foot(half), 128, 0)
    for x in (-20, -7, 7, 20):
        canvas.stroke(line((128 + x * 1.1, mouth), (128 + x * 0.95, 216)), "#6d4a2c", 1.8)
    canvas.fill(ellipse(128, mouth, 23, 6), "#5d2230")

    colours = ["#e8423c", "#f9b52e", "#2f9fd0", "#fff4df", "#e8423c", "#fff4df", "#2f9fd0", "#f9b52e", "#e8423c"]
    with canvas.layer(inside=envelope):
        # The gores of a sphere seen from the side: their seams lie at the sines of even angles.
        edges = [math.sin(math.radians(-90 + index * 180 / 9)) for index in range(10)]
        for left, right, colour in zip(edges, edges[1:], colours):
            canvas.fill(_gore(half, left, right), colour)
        for edge in edges[1:-1]:
            canvas.stroke(moved(spline([(edge * x, y) for x, y in half], closed=False), 128, 0), "#5a1c1c4d", 1.3)
        band = svg("M 30 96 Q 128 124 226 96 L 226 116 Q 128 146 30 116 Z")
        canvas.fill(band, "#fff4dfee")
        for index in range(-4, 5):
            x = 128 + 82 * math.sin(math.radians(index * 21))
            y = 119 - 0.0021 * (x - 128) ** 2
            width = 7.5 * math.cos(math.radians(index * 21))
            canvas.fill(polygon([(x, y - 8), (x + width, y), (x, y + 8), (x - width, y)]), "#e8423c")
    canvas.edge(envelope, "#3b0d2ab3", -16, -14, 18)
    with canvas.layer(blur=10, inside=envelope):
        canvas.fill(ellipse(88, 54, 20, 34, 26), "#ffffffb3")
    skirt = svg("M 104 176 Q 128 184 152 176 L 147 188 Q 128 195 109 188 Z")
    canvas.solid(skirt, "#b82f30", depth=2)

    basket = svg("M 106 212 L 150 212 L 146 243 Q 145 248 140 248 L 116 248 Q 111 248 110 243 Z")
    canvas.fill(basket, linear((106, 0), (150, 0), "#d09a58", "#b07838", "#7c4d20"))
    with canvas.layer(inside=basket):
        for row in range(6):
            for column in range(9):
                x, y = 104 + column * 6 + row % 2 * 3, 215 + row * 6
                canvas.stroke(line((x, y), (x + 3.2, y)), "#5f381580", 1.6)
    canvas.edge(basket, "#3f200a99", -4, -4, 4)
    canvas.solid(rectangle(103, 208, 50, 8, 4), linear((103, 0), (153, 0), "#a8683a", "#6e3d1a"), depth=2)


def _spline_with_flat_foot(half):
    """The outline of a figure of revolution from the points of its right half: smooth but for its straight foot."""
    def add(context):
        spline([(-x, y) for x, y in reversed(half[1:])] + half, closed=False)(context)
        context.close_path()
    return add


def _gore(half, left, right):
    """The strip of a figure of revolution between two seams, given as parts of its half width."""
    def add(context):
        there = spline([(128 + left * x, y) for x, y in half], closed=False)
        back = spline([(128 + right * x, y) for x, y in reversed(half)], closed=False)
        there(context)
        first = context.copy_path()
        back(context)
        second = list(context.copy_path())
        context.new_path()
        context.append_path(first)
        for kind, coordinates in second[1:]:
            if not coordinates:
                continue
            if len(coordinates) == 2:
                context.line_to(*coordinates)
            else:
                context.curve_to(*coordinates)
        context.close_path()
    return add


def paper_plane(canvas):
    """A dart seen from above its side: the far wing, the trough between the folds, the near wing."""
    nose, far_tip, far_fold, near_fold, near_tip = (6, 150), (236, 40), (212, 116), (198, 158), (228, 236)
    keel = polygon([nose, near_fold, (182, 206)])
    trough = polygon([nose, far_fold, (204, 148), near_fold])
    far_wing = polygon([nose, far_tip, far_fold])
    near_wing = polygon([nose, near_fold, near_tip])

    canvas.fill(far_wing, linear((130, 80), (150, 140), "#ffffff", "#d3e0ef"))
    canvas.fill(trough, linear((40, 150), (212, 130), "#a9bdd6", "#6682a8"))
    canvas.edge(trough, "#3c577fb3", 0, 6, 6)
    canvas.fill(keel, "#54709a")
    canvas.fill(near_wing, linear((120, 150), (150, 212), "#ffffff", "#eef4fb", "#c3d4e8"))
    for wing in (far_wing, near_wing):
        canvas.edge(wing, "#6f8cb880", -2, -2, 3)
    # The creases of the folds that led to the dart.
    canvas.stroke(line((54, 134), (228, 74)), "#9db3cf8c", 1.4)
    canvas.stroke(line((58, 158), (212, 192)), "#9db3cf8c", 1.4)
    canvas.stroke(line(nose, far_fold), "#ffffffcc", 1.2)
    canvas.stroke(line(nose, near_fold), "#ffffff", 1.6)


def umbrella(canvas):
    with canvas.transformed(128, 128, degrees=12):
        _umbrella(canvas)


def _umbrella(canvas):
    shaft = line((0, -70), (0, 78))
    canvas.stroke(shaft, linear((-4, 0), (4, 0), "#d9dde4", "#737985"), 6)
    crook = svg("M 0 72 L 0 92 C 0 118 36 118 36 94")
    canvas.stroke(crook, "#57300f", 11)
    canvas.stroke(moved(crook, -1.4, -1.2), "#a4672c", 5)

    ribs = [-112, -58, 0, 58, 112]
    top = (0, -92)
    dome = svg("M -112 14 C -112 -60 -62 -92 0 -92 C 62 -92 112 -60 112 14 Q 85 -8 58 14 Q 29 -10 0 14 "
               "Q -29 -10 -58 14 Q -85 -8 -112 14 Z")
    inside = svg("M -112 14 Q -85 -8 -58 14 Q -29 -10 0 14 Q 29 -10 58 14 Q 85 -8 112 14 "
                 "Q 80 -22 0 -24 Q -80 -22 -112 14 Z")
    canvas.fill(inside, "#5b1d54")
    colours = ["#f2427a", "#ffd0dd", "#f2427a", "#ffd0dd"]
    with canvas.layer(inside=dome):
        canvas.fill(rectangle(-120, -100, 120, 130), colours[0])
        canvas.fill(rectangle(0, -100, 120, 130), colours[-1])
        for left, right, colour in list(zip(ribs, ribs[1:], colours))[1:-1]:
            panel = svg(f"M {top[0]} {top[1]} Q {left * 1.12} -70 {left} 20 L {right} 20 "
                        f"Q {right * 1.12} -70 {top[0]} {top[1]} Z")
            canvas.fill(panel, colour)
        for rib in ribs[1:-1]:
            canvas.stroke(svg(f"M 0 -92 Q {rib * 1.12} -70 {rib} 16"), "#8a1546aa", 1.6)
    canvas.edge(dome, "#5a0a3fb3", -12, -8, 14)
    with canvas.layer(blur=9, inside=dome):
        canvas.fill(ellipse(-48, -52, 34, 15, -38), "#ffffffb3")
    for rib in ribs:
        canvas.fill(ellipse(rib, 15, 3.2), "#c9ced8")
    canvas.fill(rectangle(-3.5, -108, 7, 19, 3), linear((-4, 0), (4, 0), "#d9dde4", "#737985"))


# Things to give


def gift_box(canvas):
    left = polygon([(34, 116), (128, 150), (128, 248), (42, 208)])
    right = polygon([(222, 116), (128, 150), (128, 248), (214, 208)])
    canvas.fill(left, linear((34, 116), (128, 248), "#39b2c9", "#1f86a6"))
    canvas.fill(right, linear((128, 150), (222, 220), "#1c7c9b", "#125a78"))
    with canvas.layer(inside=left):
        canvas.fill(polygon([(70, 100), (96, 100), (96, 250), (72, 250)]),
                    linear((70, 0), (96, 0), "#ffe184", "#f2b530"))
    with canvas.layer(inside=right):
        canvas.fill(polygon([(160, 100), (186, 100), (184, 250), (160, 250)]),
                    linear((160, 0), (186, 0), "#e09d22", "#c17f12"))
    with canvas.layer(blur=5, inside=union(left, flipped(moved(left, -256)))):
        canvas.fill(polygon([(20, 80), (128, 120), (236, 80), (236, 124), (128, 166), (20, 124)]), "#04304a99")

    lid_left = polygon([(24, 84), (128, 122), (128, 156), (28, 116)])
    lid_right = polygon([(232, 84), (128, 122), (128, 156), (228, 116)])
    lid_top = polygon([(24, 84), (128, 52), (232, 84), (128, 122)])
    canvas.fill(lid_left, linear((24, 90), (128, 150), "#45c4da", "#2799b6"))
    canvas.fill(lid_right, linear((128, 130), (232, 100), "#1f8aaa", "#146883"))
    canvas.fill(lid_top, linear((60, 60), (190, 110), "#7fe0ee", "#44bdd4"))
    for face, band, paint in (
            (lid_left, [(66, 80), (97, 80), (97, 160), (67, 160)], linear((66, 0), (97, 0), "#ffea9e", "#f7c040")),
            (lid_right, [(159, 80), (190, 80), (189, 160), (159, 160)],
             linear((159, 0), (190, 0), "#e8a628", "#c98716")),
            (lid_top, [(64, 99), (96, 111), (194, 74), (164, 62)], linear((64, 105), (194, 66), "#ffe9a0", "#f6c64c")),
            (lid_top, [(192, 99), (160, 111), (62, 74), (92, 62)], linear((62, 66), (192, 105), "#fff2bf", "#f9cf5c"))):
        with canvas.layer(inside=face):
            canvas.fill(polygon(band), paint)
    canvas.stroke(line((24, 84), (128, 122), (232, 84)), "#ffffff8c", 1.4)

    knot = (128, 82)
    with canvas.layer(blur=5, inside=lid_top):
        canvas.fill(ellipse(132, 92, 50, 13), "#0b456699")
    for tail in (svg("M 124 82 C 104 96 86 104 64 104 L 72 116 L 58 126 C 92 128 118 112 134 88 Z"),
                 svg("M 132 82 C 152 96 170 104 192 104 L 184 116 L 198 126 C 164 128 138 112 122 88 Z")):
        canvas.solid(tail, linear((128, 84), (128, 126), "#c98513", "#f6c043"), depth=3)
    loop = svg("M 0 0 C -22 -46 -62 -72 -84 -58 C -106 -42 -72 2 0 0 Z")
    hollow = svg("M -12 -8 C -30 -38 -58 -54 -70 -46 C -82 -36 -56 -10 -12 -8 Z")
    for mirror in (1, -1):
        with canvas.transformed(*knot, scale=mirror, scale_y=1):
            canvas.solid(loop, linear((-90, -60), (0, 0), "#ffe994", "#f2af22"), shade="#8a4d0099", depth=4)
            canvas.fill(hollow, linear((-70, -46), (-12, -8), "#a8660a", "#7b4400"))
            canvas.edge(hollow, "#ffd867aa", -4, -6, 4)
    canvas.solid(rectangle(114, 68, 28, 28, 10), linear((114, 68), (142, 96), "#ffeda6", "#eda71a"),
                 shade="#8a4d00aa", depth=4)


def love_letter(canvas):
    with canvas.transformed(128, 128, degrees=-8):
        body = rectangle(-110, -72, 220, 148, 10)
        canvas.fill(body, linear((-110, -72), (110, 76), "#fff6ea", "#f7dccb"))
        with canvas.layer(inside=body):
            left = polygon([(-114, -76), (4, 24), (-114, 80)])
            for side, paint in ((left, linear((-110, 0), (0, 10), "#fbe6d6", "#f3cfba")),
                                (flipped(left), linear((110, 0), (0, 10), "#f6d8c6", "#eec3ac"))):
                canvas.fill(side, paint)
            low = svg("M -114 80 L -14 -4 Q 0 -14 14 -4 L 114 80 Z")
            canvas.glow(low, "#8c4a3680", 4)
            canvas.fill(low, linear((0, -10), (0, 76), "#fff3e6", "#fbe0cf"))
            flap = svg("M -112 -76 L -14 18 Q 0 30 14 18 L 112 -76 Z")
            with canvas.transformed(0, 5):
                canvas.glow(flap, "#8c4a36b3", 6)
            canvas.fill(flap, linear((0, -72), (0, 26), "#fffaf2", "#fae2d2"))
            canvas.edge(flap, "#d99f86aa", 0, -2, 2)
        canvas.edge(body, "#b0705a99", -3, -3, 4)
        canvas.stroke(body, "#d9a78f80", 1.2)
        seal = heart((0, 16), 62)
        with canvas.transformed(2, 4):
            canvas.glow(seal, "#6e1b2699", 4)
        _glossy_heart(canvas, seal, (0, 16), 62)


def _glossy_heart(canvas, shape, centre, size):
    x, y = centre
    canvas.fill(shape, radial((x, y), size * 0.66, (0, "#ff7a86"), (0.4, "#f5364f"), (0.8, "#d41336"), (1, "#a0062a"),
                              focus=(x - size * 0.2, y - size * 0.2)))
    canvas.edge(shape, "#6d0020aa", -size * 0.05, -size * 0.06, size * 0.06)
    with canvas.layer(blur=size * 0.025, inside=shape):
        canvas.stroke(svg(f"M {x + size * 0.40} {y - size * 0.02} C {x + size * 0.36} {y + size * 0.14} "
                          f"{x + size * 0.20} {y + size * 0.22} {x + size * 0.08} {y + size * 0.34}"),
                      "#ff9fa6b3", size * 0.035)
    with canvas.layer(blur=size * 0.016):
        canvas.fill(ellipse(x - size * 0.26, y - size * 0.22, size * 0.14, size * 0.075, -42), "#ffffffd9")
    canvas.fill(ellipse(x - size * 0.385, y - size * 0.06, size * 0.022, size * 0.045, -8), "#ffffffa6")


def glossy_heart(canvas):
    _glossy_heart(canvas, heart((128, 134), 236), (128, 134), 236)


def gold_star(canvas):
    centre, points = (128, 136), star_points((128, 136), 126, 55, 5)
    outline = rounded(points, 6)
    with canvas.layer(inside=outline):
        for index, tip in enumerate(points):
            if index % 2:
                continue
            # Each point is a ridge: its left flank takes the light, its right one the shade.
            canvas.fill(polygon([centre, points[index - 1], tip]), "#ffe066" if index in (0, 8, 2) else "#f2ae1c")
            canvas.fill(polygon([centre, tip, points[index + 1]]), "#f4b221" if index in (0, 8, 2) else "#d98e0e")
    canvas.edge(outline, "#8a4a00aa", -4, -4, 5)
    canvas.edge(outline, "#fffbd0", 3, 3, 2.5)
    with canvas.layer(blur=14, inside=outline):
        canvas.fill(ellipse(104, 104, 34, 26, -36), "#ffffff99")


# Creatures


def bunny(canvas):
    fur = ("#ffffff", "#f3eef2", "#d6cad8")
    shade = "#7d6a8c80"

    def furry(shape, centre, radius):
        canvas.fill(shape, radial(centre, radius, *fur, focus=(centre[0] - radius * 0.3, centre[1] - radius * 0.35)))
        canvas.edge(shape, shade, -4, -4, 6)

    furry(ellipse(178, 212, 18), (178, 212), 20)
    for side in (-1, 1):
        with canvas.transformed(128 + side * 24, 86, degrees=side * 12):
            ear = svg("M -15 0 C -24 -36 -18 -80 0 -82 C 18 -80 24 -36 15 0 Z")
            furry(ear, (0, -30), 60)
            inner = svg("M -7 -2 C -13 -34 -9 -66 0 -68 C 9 -66 13 -34 7 -2 Z")
            canvas.fill(inner, linear((0, -68), (0, 0), "#ffc3d0", "#f591a8"))
            canvas.edge(inner, "#c8587680", 2, 3, 3)
    body = svg("M 128 132 C 168 132 184 178 180 206 C 177 236 156 246 128 246 C 100 246 79 236 76 206 "
               "C 72 178 88 132 128 132 Z")
    furry(body, (128, 195), 66)
    with canvas.layer(blur=5, inside=body):
        canvas.fill(ellipse(128, 204, 30, 32), "#ffffffe6")
    head = svg("M 128 70 C 164 70 186 92 186 118 C 186 146 160 158 128 158 "
               "C 96 158 70 146 70 118 C 70 92 92 70 128 70 Z")
    with canvas.transformed(0, 5), canvas.layer(blur=5, inside=moved(body, 0, -5)):
        canvas.fill(head, "#7d6a8c80")
    furry(head, (128, 114), 64)

    for side in (-1, 1):
        x = 128 + side * 25
        canvas.fill(ellipse(x, 110, 8.5, 11.5), radial((x, 108), 12, "#5a3b36", "#201417"))
        canvas.fill(ellipse(x - 2.5, 105, 3.2, 3.8), "#ffffff")
        canvas.fill(ellipse(x + 2.8, 114.5, 1.8), "#ffffffb3")
        with canvas.layer(blur=3):
            canvas.fill(ellipse(128 + side * 42, 129, 11, 7), "#ff8fa6b3")
        for rise in (-4, 3):
            canvas.stroke(line((128 + side * 30, 133 + rise * 0.5), (128 + side * 62, 132 + rise * 2.6)),
                          "#9a8aa0aa", 1.2)
    canvas.fill(svg("M 119 124 Q 128 119 137 124 Q 134 132 128 133 Q 122 132 119 124 Z"),
                linear((119, 120), (137, 133), "#ff9fb4", "#e5587a"))
    canvas.fill(rectangle(122.5, 140, 11, 9, 2), "#ffffff")
    canvas.stroke(line((128, 141), (128, 148)), "#c9bfcd", 1)
    canvas.stroke(svg("M 110 136 Q 119 146 128 136 Q 137 146 146 136"), "#8b6f7e", 2.2)
    canvas.stroke(line((128, 132), (128, 137)), "#8b6f7e", 2)

    for side in (-1, 1):
        with canvas.transformed(128 + side * 34, 236, degrees=side * 10):
            foot = ellipse(0, 0, 25, 16)
            furry(foot, (0, 0), 26)
            canvas.fill(ellipse(0, 3, 9, 6.5), "#f7a5b8")
            for toe in (-11, 0, 11):
                canvas.fill(ellipse(toe, -7 - (2 if toe == 0 else 0), 3.6, 3.2), "#f7a5b8")
    _carrot(canvas)
    for side in (-1, 1):
        furry(ellipse(128 + side * 24, 184, 13, 17, side * 38), (128 + side * 24, 184), 18)


def _carrot(canvas):
    with canvas.transformed(128, 190, degrees=58):
        for degrees in (-30, 0, 30):
            with canvas.transformed(0, -24, degrees):
                canvas.solid(svg("M 0 4 C -8 -8 -7 -22 0 -30 C 7 -22 8 -8 0 4 Z"), "#59b548", depth=2)
        root = svg("M 0 46 C -12 20 -20 -12 -14 -22 C -9 -30 9 -30 14 -22 C 20 -12 12 20 0 46 Z")
        canvas.solid(root, linear((-16, 0), (16, 0), "#ffa94a", "#ef6c16"), depth=3)
        for y, left in ((-10, True), (2, False), (14, True)):
            canvas.stroke(line((-12, y), (-4, y + 1)) if left else line((11, y), (4, y + 1)), "#c4500b", 1.5)


def ghost(canvas):
    sheet = svg("M 128 10 C 188 10 212 58 214 112 C 222 116 240 118 246 132 C 250 144 232 156 214 152 "
                "C 216 190 220 216 224 240 C 210 248 200 232 190 226 C 178 222 172 246 158 246 "
                "C 146 246 142 226 128 226 C 114 226 110 246 98 246 C 84 246 78 222 66 226 "
                "C 56 232 46 248 32 240 C 36 216 40 190 42 152 C 24 156 6 144 10 132 C 16 118 34 116 42 112 "
                "C 44 58 68 10 128 10 Z")
    canvas.fill(sheet, linear((128, 10), (128, 248), (0, "#ffffff"), (0.55, "#eef2ff"), (0.8, "#d3dcfae6"),
                              (1, "#aebcf099")))
    canvas.edge(sheet, "#6c78c4b3", -10, -8, 12)
    canvas.edge(sheet, "#ffffff", 4, 4, 4)
    with canvas.layer(blur=6, inside=sheet):
        for x, lean in ((84, -8), (128, 0), (172, 8)):
            canvas.stroke(line((x, 160), (x + lean, 232)), "#7d8bd66b", 9)
    for side in (-1, 1):
        x = 128 + side * 28
        canvas.fill(ellipse(x, 92, 15, 21), radial((x, 90), 22, "#3a3560", "#17142c"))
        canvas.fill(ellipse(x - 5, 83, 5, 6.5), "#ffffff")
        canvas.fill(ellipse(x + 5, 101, 2.6), "#ffffffb3")
        with canvas.layer(blur=4):
            canvas.fill(ellipse(128 + side * 54, 116, 12, 7), "#ff9cc0b3")
    mouth = svg("M 111 122 Q 128 128 145 122 Q 146 152 128 154 Q 110 152 111 122 Z")
    canvas.fill(mouth, "#17142c")
    with canvas.layer(inside=mouth):
        canvas.fill(ellipse(128, 152, 13, 10), "#f0668a")


def cupid(canvas):
    skin = ("#ffe3cf", "#fbc8a8", "#e89f7c")
    shade = "#b0563a80"

    def fleshy(shape, centre, radius):
        canvas.fill(shape, radial(centre, radius, *skin, focus=(centre[0] - radius * 0.35, centre[1] - radius * 0.35)))
        canvas.edge(shape, shade, -3, -3, 4)

    _wing(canvas, 170, 128, 24, 1.05, "#e3e9f6", "#aebfe0")

    # The far arm holds the bow, the near one, drawn last, the string; the legs trail behind.
    fleshy(svg("M 124 128 C 108 130 70 138 40 145 Q 28 148 30 156 Q 33 164 44 162 C 76 160 106 160 128 156 Z"),
           (90, 144), 60)
    fleshy(svg("M 158 176 C 178 178 196 172 214 164 C 226 158 240 166 236 176 C 232 184 222 180 214 186 "
               "C 200 198 176 206 160 202 Z"), (190, 182), 44)
    torso = svg("M 118 120 C 138 108 164 122 176 148 C 188 174 182 204 160 208 C 134 212 112 190 108 160 "
                "C 106 142 108 128 118 120 Z")
    fleshy(torso, (140, 160), 52)
    fleshy(svg("M 146 188 C 164 184 180 194 192 208 C 200 218 214 216 220 224 C 224 234 212 242 202 238 "
               "C 184 234 158 226 146 212 Z"), (176, 212), 42)
    cloth = svg("M 116 182 C 136 190 164 178 181 162 C 190 176 188 196 178 206 C 168 222 140 220 128 206 "
                "C 120 198 116 190 116 182 Z")
    canvas.solid(cloth, linear((116, 170), (186, 214), "#ffffff", "#c9d7f2"), shade="#5d74aa99", depth=5)
    for fold in ("M 130 192 Q 150 196 180 176", "M 134 202 Q 156 206 182 190"):
        canvas.stroke(svg(fold), "#8a9cc8aa", 1.6)

    _bow_and_arrow(canvas)
    for finger in range(4):
        fleshy(ellipse(33 + finger * 0.5, 143 + finger * 5.2, 6, 3.4), (33, 143 + finger * 5.2), 7)

    _wing(canvas, 160, 144, 6, 1.3, "#ffffff", "#c9d6ef")

    _cherub_head(canvas, fleshy)

    fleshy(svg("M 132 132 C 144 128 154 138 150 150 C 146 164 130 172 112 168 C 102 166 100 152 110 150 "
               "C 120 150 126 146 132 132 Z"), (128, 150), 30)


def _wing(canvas, x, y, degrees, scale, light, dark):
    feather = svg("M 0 6 C -8 -4 -11 -38 -5 -50 Q 0 -58 5 -50 C 11 -38 8 -4 0 6 Z")
    with canvas.transformed(x, y, degrees, scale):
        for count, start, step, length, reach in ((7, 26, 10, 1.55, 10), (6, 26, 11, 1.1, 6), (5, 28, 12, 0.7, 2)):
            for index in reversed(range(count)):
                with canvas.transformed(reach * 0.6, -reach * 0.6, start + index * step,
                                        scale=1.25, scale_y=length * (1.0 - 0.055 * index)):
                    canvas.glow(feather, "#4a5c9159", 2)
                    canvas.fill(feather, linear((0, 0), (0, -56), dark, light))


def _bow_and_arrow(canvas):
    bow = svg("M 84 78 C 70 84 66 92 60 108 C 52 128 36 132 32 152 C 36 172 52 176 60 196 C 66 212 70 220 84 226")
    canvas.stroke(line((84, 78), (112, 158), (84, 226)), "#fff6dd", 1.6)
    canvas.stroke(bow, "#8a4b10", 8)
    canvas.stroke(moved(bow, -1, -1), "#f4b93e", 4.5)
    canvas.stroke(line((112, 158), (28, 153)), "#8a4b10", 4.5)
    canvas.stroke(line((112, 157), (28, 152)), "#e9a63a", 2)
    for at in (0, 7, 14):
        canvas.fill(polygon([(114 - at, 158), (121 - at, 149), (114 - at, 148), (107 - at, 157.5)]), "#ff6f91")
        canvas.fill(polygon([(114 - at, 158), (121 - at, 168), (114 - at, 168), (107 - at, 157.5)]), "#d83c66")
    with canvas.transformed(20, 152, degrees=92):
        _glossy_heart(canvas, heart((0, 0), 30), (0, 0), 30)


def _cherub_head(canvas, fleshy):
    with canvas.transformed(122, 76, degrees=-6):
        for x, y, radius in ((34, -16, 18), (40, 6, 17), (34, 24, 14), (22, -34, 18), (0, -40, 18)):
            canvas.solid(ellipse(x, y, radius), radial((x - 5, y - 5), radius * 1.2, "#ffe79a", "#f6bd3e", "#cf8a1c"),
                         shade="#8a520066", depth=3)
        face = svg("M -2 -38 C 24 -38 40 -18 38 6 C 36 30 18 44 -4 44 C -28 44 -42 28 -42 6 C -42 -18 -26 -38 -2 -38 Z")
        fleshy(face, (-2, 2), 46)
        fleshy(ellipse(30, 10, 8, 10), (30, 10), 11)
        for x, y, radius in ((-22, -32, 13), (-4, -38, 15), (16, -34, 16), (30, -20, 14), (-8, -27, 9), (33, -4, 9)):
            canvas.solid(ellipse(x, y, radius), radial((x - 4, y - 5), radius * 1.25, "#fff0b0", "#f9c850", "#dd9a26"),
                         shade="#8a520080", depth=3)
        for x, width in ((-26, 5), (4, 5.6)):
            canvas.fill(ellipse(x, 2, width, 7.5), radial((x, 0), 8, "#3d6ea8", "#16263f"))
            canvas.fill(ellipse(x - 1.6, -1.2, 1.9, 2.4), "#ffffff")
            canvas.stroke(svg(f"M {x - 6} -10 Q {x} -14 {x + 6} -10"), "#b97a24", 2.2)
        with canvas.layer(blur=2.5):
            canvas.fill(ellipse(-30, 16, 7, 5), "#ff7d7dcc")
            canvas.fill(ellipse(14, 17, 9, 6), "#ff7d7dcc")
        canvas.stroke(svg("M -15 8 Q -20 14 -13 15"), "#c9714f", 2)
        canvas.stroke(svg("M -20 24 Q -10 33 2 24"), "#b3473f", 2.6)


# Snow


def _ice(canvas, shape, depth):
    canvas.glow(shape, "#2f7fd066", 4)
    canvas.fill(shape, radial(CENTRE, 122, (0, "#ffffff"), (0.5, "#d8f0ff"), (1, "#8fcdf7")))
    canvas.edge(shape, "#2d7fc8cc", -depth, -depth, depth * 0.8)
    canvas.edge(shape, "#ffffff", depth * 0.7, depth * 0.7, depth * 0.5)


def branched_snowflake(canvas):
    _ice(canvas, moved(dendrite(width=10), *CENTRE, scale=1.18), 2)


def plate_snowflake(canvas):
    _ice(canvas, moved(stellar_plate(width=9), *CENTRE, scale=1.18), 2)


OBJECTS = {
    "leaf2.png": maple_leaf,
    "baloon.png": balloon,
    "bunny.png": bunny,
    "cupid2.png": cupid,
    "gift box.png": gift_box,
    "ghost2.png": ghost,
    "heart.png": glossy_heart,
    "envelope2.png": love_letter,
    "paper plane.png": paper_plane,
    "umbrella.png": umbrella,
    "rose2.png": rose,
    "flower1.png": daisy,
    "star.png": gold_star,
    "air baloon.png": hot_air_balloon,
    "snowflake3.png": branched_snowflake,
    "snowflake2.png": plate_snowflake,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path, help="where the images go, such as stock")
    folder = parser.parse_args().folder / "FlyingObjects"
    folder.mkdir(parents=True, exist_ok=True)
    for name, draw in OBJECTS.items():
        canvas = Canvas()
        draw(canvas)
        canvas.save(folder / name)


if __name__ == "__main__":
    main()
