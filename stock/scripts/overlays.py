#!/usr/bin/python3
"""Draws the pictures of the overlay effects into ../OverlayEffects/images: 1280 x 720, transparent where the picture
below is to show through unchanged.

Anything random comes from generators with fixed seeds: the same run gives the same bytes.
"""

import argparse
import math
import pathlib
import random

import cairo
import numpy
from PIL import Image, ImageFilter

from canvas import Canvas, ellipse, line, linear, moved, on_circle, polygon, rectangle, save_pixels, svg, union

WIDTH, HEIGHT = 1280, 720
# The lines here are wider than those of the small objects, so that twice the size is enough.
OVERSAMPLING = 2
# Soft glows and shadows over a moving picture do with steps of three in 255, in half the bytes.
LEVELS = 85


def new_canvas():
    return Canvas(WIDTH, HEIGHT, OVERSAMPLING)


# Frames


def film_frame():
    """A strip of film run sideways: perforated bands above and below, thin frame lines left and right."""
    canvas = new_canvas()
    band, gate = 96, rectangle(34, 96, WIDTH - 68, HEIGHT - 192, 22)
    base = "#0d0b0a"
    with canvas.layer():
        canvas.fill(rectangle(0, 0, WIDTH, HEIGHT), base)
        _erase(canvas, gate)
        for top in (22, HEIGHT - band + 22):
            for index in range(16):
                _erase(canvas, rectangle(14 + index * 80, top, 52, 52, 11))
    # Light comes through the holes onto their rims, and the emulsion shines faintly along the band.
    for top in (0, HEIGHT - band):
        canvas.fill(rectangle(0, top + 4, WIDTH, 3), "#5a4632aa")
        canvas.fill(rectangle(0, top + band - 7, WIDTH, 3), "#5a4632aa")
        for index in range(16):
            hole = rectangle(14 + index * 80, top + 22, 52, 52, 11)
            canvas.stroke(hole, "#6d563faa", 1.6)
    for index in range(5):
        _film_number(canvas, 150 + index * 240, 9, f"{21 + index}")
        _film_number(canvas, 150 + index * 240, HEIGHT - 19, f"{21 + index}")
        canvas.fill(polygon([(192 + index * 240, 8), (206 + index * 240, 13.5), (192 + index * 240, 19)]), "#d79a3fcc")
    with canvas.layer(blur=3):
        canvas.stroke(gate, "#000000b3", 6)
    canvas.stroke(gate, "#3a2d22", 1.5)
    return canvas.pixels()


# Which of the seven segments each digit lights: top, upper right, lower right, bottom, lower left, upper left, middle.
SEGMENTS = {"0": "1111110", "1": "0110000", "2": "1101101", "3": "1111001", "4": "0110011", "5": "1011011",
            "6": "1011111", "7": "1110000", "8": "1111111", "9": "1111011", "-": "0000001"}


def digits(canvas, x, y, text, height, paint, width):
    """Numbers as seven segments: no font is needed, so the picture is the same on every machine."""
    w, h = height * 0.5, height
    ends = [((0, 0), (w, 0)), ((w, 0), (w, h / 2)), ((w, h / 2), (w, h)), ((0, h), (w, h)), ((0, h / 2), (0, h)),
            ((0, 0), (0, h / 2)), ((0, h / 2), (w, h / 2))]
    for character in text:
        if character == ":":
            for dot in (0.28, 0.72):
                canvas.fill(ellipse(x + w * 0.25, y + h * dot, width * 0.8), paint)
            x += w * 0.9
            continue
        if character == ".":
            canvas.fill(ellipse(x, y + h, width * 0.8), paint)
            x += w * 0.6
            continue
        for lit, ((x0, y0), (x1, y1)) in zip(SEGMENTS[character], ends):
            if lit == "1":
                canvas.stroke(line((x + x0, y + y0), (x + x1, y + y1)), paint, width)
        x += w * 1.7


def _film_number(canvas, x, y, text):
    digits(canvas, x, y, text, 10, "#d79a3fdd", 1.8)


def _erase(canvas, shape):
    context = canvas.context
    context.save()
    context.set_operator(cairo.OPERATOR_CLEAR)
    shape(context)
    context.fill()
    context.restore()


def polaroid_frame():
    """The white card of an instant photograph, the lower margin the widest."""
    window = rectangle(52, 46, WIDTH - 104, HEIGHT - 46 - 128, 6)
    card = rectangle(0, 0, WIDTH, HEIGHT)
    canvas = new_canvas()
    canvas.fill(card, linear((0, 0), (WIDTH, HEIGHT), "#fdfbf4", "#f4f0e4", "#e9e3d3"))
    canvas.edge(card, "#8d826a80", -6, -6, 12)
    # The card floats above the photograph: a lit bevel, and within it a shadow on the picture.
    with canvas.layer(blur=2.5):
        canvas.stroke(moved(window, -1, -1), "#b9af97", 5)
    canvas.stroke(moved(window, 1.2, 1.2), "#ffffff", 3)
    _erase(canvas, window)
    canvas.edge(window, "#000000a6", 5, 6, 7)
    pixels = canvas.pixels()
    grain = (_smooth_noise(11, 1.2) - 0.5) * 0.035
    opaque = pixels[..., 3] > 0.99
    pixels[opaque, :3] += numpy.round(grain[opaque] * 64)[:, None] / 64
    return pixels


# Shadows


def blinds_shadow():
    """The light of a low sun through a window with slatted blinds: the slats and the cross of the window are dark."""
    def on_wall(x, y):
        return 660 + x + 0.12 * y, 350 + y - 0.24 * x

    canvas = new_canvas()
    with canvas.layer(blur=7):
        for left, right in ((-520, -24), (24, 520)):
            for index in range(13):
                top, bottom = -402 + index * 62, -366 + index * 62
                canvas.fill(polygon([on_wall(left, top), on_wall(right, top), on_wall(right, bottom),
                                     on_wall(left, bottom)]), "#ffffff")
    return _tinted("#05070f", (1 - canvas.pixels()[..., 3]) * 0.72)


def _tinted(colour, alpha):
    red, green, blue = (int(colour[at:at + 2], 16) / 255 for at in (1, 3, 5))
    pixels = numpy.empty((HEIGHT, WIDTH, 4))
    pixels[..., 0], pixels[..., 1], pixels[..., 2] = red, green, blue
    pixels[..., 3] = alpha
    return pixels


def leaves_shadow():
    """Palm fronds and a leafy branch between the sun and the wall: what hangs nearer the sun is more blurred."""
    canvas = new_canvas()
    dice = random.Random(7)
    for blur, alpha, fronds in (
            (9, 0.34, [(-50, 300, 66, 560), (1330, 40, -112, 640), (820, 800, -12, 430)]),
            (3.5, 0.62, [(-60, -30, 112, 760), (1340, 760, -58, 700), (960, -90, -172, 430)])):
        with canvas.layer(blur=blur, alpha=alpha):
            for x, y, degrees, length in fronds:
                with canvas.transformed(x, y, degrees):
                    _frond(canvas, length, dice)
    return _tinted("#060a12", numpy.minimum(canvas.pixels()[..., 3], 0.72))


def _frond(canvas, length, dice):
    """A palm frond that grows upwards from the origin, its rib bent to the right."""
    def rib(part):
        return 0.22 * length * part * part, -length * part

    canvas.stroke(line(*(rib(step / 20) for step in range(21))), "#000000", length * 0.012)
    for step in range(4, 31):
        part = step / 30
        x, y = rib(part)
        reach = length * 0.42 * math.sin(math.pi * (0.12 + 0.8 * part)) * dice.uniform(0.88, 1.08)
        lean = 25 * part
        for side in (-1, 1):
            degrees = lean + side * (72 - 42 * part) + dice.uniform(-4, 4)
            blade = svg(f"M 0 0 C {-0.05 * reach} {-0.3 * reach} {-0.045 * reach} {-0.7 * reach} 0 {-reach} "
                        f"C {0.05 * reach} {-0.7 * reach} {0.05 * reach} {-0.3 * reach} 0 0 Z")
            canvas.fill(moved(blade, x, y, degrees), "#000000")


# Artsy


def _noise(seed):
    return numpy.random.Generator(numpy.random.PCG64(seed)).random((HEIGHT, WIDTH))


def _smooth_noise(seed, deviation, deviation_y=None):
    """Noise blurred to grains of that size and stretched back to 0 to 1."""
    spectrum = numpy.fft.rfft2(_noise(seed))
    fy = numpy.fft.fftfreq(HEIGHT)[:, None]
    fx = numpy.fft.rfftfreq(WIDTH)[None, :]
    tall = deviation if deviation_y is None else deviation_y
    # A Gaussian of deviation s has the spectrum exp(-2 (pi s f)^2).
    spectrum *= numpy.exp(-2 * math.pi ** 2 * ((fx * deviation) ** 2 + (fy * tall) ** 2))
    smooth = numpy.fft.irfft2(spectrum, s=(HEIGHT, WIDTH))
    smooth = (smooth - smooth.mean()) / smooth.std()
    return numpy.clip(0.5 + smooth / 6, 0, 1)


def canvas_texture():
    """A painter's canvas in plain weave: threads over and under, lit from the top left, as light and shade alone."""
    y, x = numpy.mgrid[0:HEIGHT, 0:WIDTH].astype(float)
    pitch = 12.0
    u, v = x / pitch, y / pitch
    over = (numpy.floor(u) + numpy.floor(v)) % 2 == 0
    across, along = u % 1 - 0.5, v % 1 - 0.5
    # The thread on top is a bump that falls off to its sides and dips at its ends, where it goes under its neighbour.
    warp = numpy.cos(across * math.pi) * (0.55 + 0.45 * numpy.cos(along * 2 * math.pi * 0.5))
    weft = numpy.cos(along * math.pi) * (0.55 + 0.45 * numpy.cos(across * 2 * math.pi * 0.5))
    height = numpy.where(over, warp, weft * 0.92)
    thickness = 0.75 + 0.5 * numpy.where(over, _smooth_noise(21, 0.8, 30), _smooth_noise(22, 30, 0.8))
    height = height * thickness
    slope = sum(numpy.roll(height, 1, axis) - numpy.roll(height, -1, axis) for axis in (0, 1))
    light = -slope * 0.24 + (height - height.mean()) * 0.20
    # Few levels of shade look the same under a picture and keep the file small.
    light = numpy.round(light * 20) / 20
    pixels = numpy.zeros((HEIGHT, WIDTH, 4))
    pixels[..., :3] = (light > 0)[..., None]
    pixels[..., 3] = numpy.clip(numpy.abs(light) * 1.2, 0, 0.5)
    return pixels


def brush_window():
    """Rough white paper with the picture painted into it: the strokes are open, their ends torn by the bristles."""
    dice = random.Random(5)
    strokes = 9
    paint = numpy.zeros((HEIGHT, WIDTH), bool)
    for index in range(strokes):
        paint |= _brush_stroke(index, 76 + index * (HEIGHT - 152) / (strokes - 1),
                               1 - abs(index - (strokes - 1) / 2) / strokes, dice)
    opening = _blurred(paint, 0.9)

    grain = _smooth_noise(31, 2.2) * 0.6 + _smooth_noise(32, 7) * 0.4
    relief = numpy.roll(grain, 1, (0, 1)) - numpy.roll(grain, -1, (0, 1))
    # Few tones of paper look the same and keep the file small.
    tone = numpy.round((0.955 + 0.3 * relief) * 50) / 50
    rim = numpy.round(_blurred(opening, 5) * 12) / 12
    pixels = numpy.empty((HEIGHT, WIDTH, 4))
    for channel, (paper, dark) in enumerate(((1.0, 0.30), (0.985, 0.26), (0.945, 0.22))):
        pixels[..., channel] = tone * paper * (1 - dark * rim)
    pixels[..., 3] = 1 - opening
    return pixels


def _brush_stroke(index, centre, reach, dice):
    """Where a stroke from left to right leaves paint; `reach`, up to 1, says how far it runs towards the edges."""
    bristles = 60
    half = 52 + dice.uniform(-5, 9)
    tilt, sag = dice.uniform(-0.022, 0.022), dice.uniform(-14, 14)
    start, end = 150 - 88 * reach + dice.uniform(-38, 38), WIDTH - 150 + 88 * reach + dice.uniform(-38, 38)
    lead, trail, load = (numpy.array([dice.random() for _ in range(bristles)]) for _ in range(3))

    x = numpy.arange(WIDTH)[None, :]
    y = numpy.arange(HEIGHT)[:, None] - centre - tilt * (x - WIDTH / 2) - sag * numpy.sin(x / WIDTH * math.pi)
    bristle = numpy.clip(((y + half) / (2 * half) * bristles).astype(int), 0, bristles - 1)
    # Each bristle touches down and lifts off at a place of its own, the outer ones later and earlier, and carries a
    # load of paint of its own, which runs dry over the last third of the stroke.
    first = start + 46 * (0.5 - lead[bristle]) + 0.014 * y * y
    last = end + 150 * (trail[bristle] - 0.72) - 0.014 * y * y
    wet = 0.12 + numpy.clip((last - x) / 420, 0, 1) * (0.62 + 0.75 * load[bristle])
    covered = _smooth_noise(200 + index, 46, 0.9) < 0.38 + 0.62 * wet
    inside = numpy.abs(y) < half + 20 * (_smooth_noise(300 + index, 40, 2) - 0.5)
    return inside & (x > first) & (x < last) & covered


def _blurred(plane, deviation):
    """A plane of values from 0 to 1, blurred."""
    image = Image.fromarray(numpy.rint(plane * 255.0).astype(numpy.uint8))
    return numpy.asarray(image.filter(ImageFilter.GaussianBlur(deviation))) / 255


# Cyberpunk

CYAN, MAGENTA, AMBER = "#27f3ff", "#ff2bd6", "#ffd23f"


def neon(canvas, shape, colour, width, glow=7):
    """A glowing tube: a wide and a narrow halo, the colour, and a core that is nearly white."""
    canvas.glow(shape, colour + "66", glow * 1.6, width * 3.2)
    canvas.glow(shape, colour + "b3", glow * 0.5, width * 1.8)
    canvas.stroke(shape, colour, width)
    canvas.stroke(shape, "#ffffffb3", width * 0.4)


def hud():
    """The display of a visor: corner brackets, a reticle, gauges and read-outs."""
    canvas = new_canvas()
    neon(canvas, _in_all_corners(line((40, 150), (40, 62), (62, 40), (240, 40))), CYAN, 3)
    canvas.stroke(_in_all_corners(line((54, 120), (54, 70), (70, 54), (130, 54))), CYAN + "80", 1.5)

    centre = (WIDTH / 2, HEIGHT / 2)
    neon(canvas, union(*(_arc(centre, 120, start, start + 62) for start in (14, 104, 194, 284))), CYAN, 2.4)
    neon(canvas, union(*(_arc(centre, 146, start, start + 26) for start in (-13, 167))), MAGENTA, 5)
    canvas.stroke(union(*(line(on_circle(centre, 96, at * 5), on_circle(centre, 104 if at % 6 else 110, at * 5))
                             for at in range(72))), CYAN + "99", 1.4)
    neon(canvas, union(*(line(on_circle(centre, 22, at), on_circle(centre, 70, at)) for at in (0, 90, 180, 270))),
         CYAN, 1.8)
    canvas.fill(ellipse(*centre, 3.4), MAGENTA)

    # Altitude ladders beside the reticle.
    for side in (-1, 1):
        x = centre[0] + side * 330
        ladder = [line((x, centre[1] - 150), (x, centre[1] + 150))]
        for step in range(-10, 11):
            length = 24 if step % 5 == 0 else 12
            ladder.append(line((x, centre[1] + step * 15), (x + side * length, centre[1] + step * 15)))
        canvas.stroke(union(*ladder), CYAN + "a6", 1.6)
        pointer = centre[1] - side * 45
        neon(canvas, polygon([(x - side * 6, pointer), (x - side * 20, pointer - 8), (x - side * 20, pointer + 8)]),
             MAGENTA, 2)
        digits(canvas, x + side * 46 - (34 if side < 0 else 0), pointer - 10, "704" if side < 0 else "318", 18,
               CYAN + "d9", 2)

    _bars(canvas, 76, HEIGHT - 150)
    _wave(canvas, WIDTH - 330, HEIGHT - 120)
    digits(canvas, 80, 84, "20:77:13", 26, CYAN, 3)
    canvas.fill(rectangle(80, 124, 150, 5, 2), CYAN + "40")
    canvas.fill(rectangle(80, 124, 96, 5, 2), MAGENTA)
    digits(canvas, WIDTH - 216, 84, "35.689", 26, AMBER, 3)
    for index, length in enumerate((110, 74, 128, 52)):
        canvas.fill(rectangle(WIDTH - 76 - length, 126 + index * 12, length, 5, 2),
                    (AMBER if index == 0 else CYAN) + "a6")
    hazard = rectangle(centre[0] - 130, HEIGHT - 52, 260, 16)
    with canvas.layer(inside=hazard):
        for index in range(-1, 14):
            x = centre[0] - 130 + index * 22
            canvas.fill(polygon([(x, HEIGHT - 36), (x + 11, HEIGHT - 36), (x + 25, HEIGHT - 52),
                                 (x + 14, HEIGHT - 52)]), AMBER + "d9")
    canvas.stroke(hazard, AMBER, 1.6)
    return canvas.pixels()


def _in_all_corners(shape):
    return union(shape, moved(shape, WIDTH, 0, scale=-1, scale_y=1), moved(shape, 0, HEIGHT, scale=1, scale_y=-1),
                 moved(shape, WIDTH, HEIGHT, scale=-1, scale_y=-1))


def _arc(centre, radius, start, end):
    return line(*(on_circle(centre, radius, start + (end - start) * step / 40) for step in range(41)))


def _bars(canvas, x, y):
    for index, level in enumerate((6, 9, 4, 11, 8, 3, 7, 10, 5, 6, 2)):
        for step in range(level):
            colour = MAGENTA if step > 7 else CYAN
            canvas.fill(rectangle(x + index * 16, y + 70 - step * 8, 11, 5), colour + "cc")


def _wave(canvas, x, y):
    canvas.stroke(rectangle(x, y - 40, 254, 80), CYAN + "66", 1.4)
    canvas.stroke(union(*(line((x + column * 25.4, y - 40), (x + column * 25.4, y + 40)) for column in range(1, 10)),
                           line((x, y), (x + 254, y))), CYAN + "33", 1)
    points = [(x + step * 2.54, y - 27 * math.sin(step * 0.33) * math.exp(-((step - 50) / 26) ** 2)
               - 5 * math.sin(step * 1.1)) for step in range(101)]
    neon(canvas, line(*points), MAGENTA, 2)


def neon_grid():
    """A neon grid that runs to the horizon below, and a banded sun half sunk behind it."""
    canvas = new_canvas()
    horizon, middle = 452, WIDTH / 2
    sun = ellipse(middle, horizon, 170)
    sky = rectangle(0, 0, WIDTH, horizon)
    with canvas.layer(inside=sky):
        canvas.glow(sun, "#ff2b9c80", 26)
        with canvas.layer(alpha=0.88):
            canvas.fill(sun, linear((0, horizon - 170), (0, horizon), "#ffe14d", "#ff8a3d", "#ff2b9c", "#b01fd6"))
            for index in range(7):
                _erase(canvas, rectangle(middle - 180, horizon - 14 - index * 19, 360, 10 - index * 1.2))
    ground = rectangle(0, horizon, WIDTH, HEIGHT - horizon)
    canvas.fill(ground, linear((0, horizon), (0, HEIGHT), "#2a0a55d9", "#12042bb3", "#08021480"))
    lines = []
    for index in range(-64, 65):
        lines.append(line((middle + index * 16, horizon), (middle + index * 150, HEIGHT + 20)))
    for index in range(1, 15):
        # A floor seen in perspective: equal steps in depth lie at 1 / depth below the horizon.
        y = horizon + (HEIGHT - horizon + 20) / (1 + (14 - index) * 0.62)
        lines.append(line((-10, y), (WIDTH + 10, y)))
    with canvas.layer(inside=ground):
        for shape_width, blur, colour in ((5, 6, MAGENTA + "99"), (2.2, 0, MAGENTA), (0.8, 0, "#ffd6f7cc")):
            with canvas.layer(blur=blur):
                for shape in lines:
                    canvas.stroke(shape, colour, shape_width)
        canvas.fill(rectangle(0, horizon, WIDTH, 60), linear((0, horizon), (0, horizon + 60), "#ff2bd6b3", "#ff2bd600"))
    neon(canvas, line((0, horizon), (WIDTH, horizon)), CYAN, 3, 10)
    return canvas.pixels()


OVERLAYS = {
    "frame_film.png": film_frame,
    "frame_polaroid.png": polaroid_frame,
    "shadow_blinds.png": blinds_shadow,
    "shadow_leaves.png": leaves_shadow,
    "artsy_canvas.png": canvas_texture,
    "artsy_brush.png": brush_window,
    "cyberpunk_hud.png": hud,
    "cyberpunk_grid.png": neon_grid,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path, help="where the images go, such as stock")
    folder = parser.parse_args().folder / "OverlayEffects" / "images"
    folder.mkdir(parents=True, exist_ok=True)
    for name, draw in OVERLAYS.items():
        save_pixels(numpy.rint(draw() * LEVELS) / LEVELS, folder / name)


if __name__ == "__main__":
    main()
