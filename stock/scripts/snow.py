"""Outlines of snow crystals about the origin, with a radius of about 100."""

import math

from canvas import moved, on_circle, polygon, union


def bar(start, end, width, end_width=None):
    """A straight branch with a pointed end."""
    end_width = width if end_width is None else end_width
    dx, dy = end[0] - start[0], end[1] - start[1]
    length = math.hypot(dx, dy)
    ux, uy = dx / length, dy / length
    nx, ny = -uy * width / 2, ux * width / 2
    ex, ey = -uy * end_width / 2, ux * end_width / 2
    return polygon([(start[0] - nx, start[1] - ny), (end[0] - ex, end[1] - ey),
                    (end[0] + ux * end_width * 0.7, end[1] + uy * end_width * 0.7),
                    (end[0] + ex, end[1] + ey), (start[0] + nx, start[1] + ny)])


def hexagon(radius, degrees=0):
    return polygon([on_circle((0, 0), radius, degrees + 60 * index) for index in range(6)])


def six_arms(*arm):
    """The shapes of the upward arm, repeated six times."""
    return union(*(moved(shape, degrees=60 * index) for index in range(6) for shape in arm))


def twigs(places, width, spread=60):
    """Pairs of side branches on the upward arm, from pairs of height and length."""
    shapes = []
    for height, length in places:
        for side in (-spread, spread):
            shapes.append(bar((0, -height), on_circle((0, -height), length, side), width, width * 0.8))
    return shapes


def dendrite(width=9):
    """A branched crystal: six arms, each with three pairs of twigs."""
    return six_arms(bar((0, 0), (0, -94), width), *twigs([(34, 24), (56, 27), (77, 17)], width * 0.8))


def stellar_plate(width=9):
    """A crystal with a hexagonal ring and arms that end in small plates."""
    plate = moved(hexagon(13), 0, -86)
    ring = bar(on_circle((0, 0), 40, -30), on_circle((0, 0), 40, 30), width * 0.8, width * 0.8)
    return six_arms(bar((0, 0), (0, -84), width), plate, *twigs([(56, 20)], width * 0.8),
                    bar((0, 0), on_circle((0, 0), 36, 30), width * 0.7), ring)
