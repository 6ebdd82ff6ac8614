"""The drawing surface that all stock images share.

An image is drawn with cairo at four times its size and brought down by averaging, which gives cleaner edges than
cairo's own antialiasing where many thin shapes meet. Coordinates are pixels of the finished image, y down, and the
light comes from the top left.

A *shape* is a function that adds a path to a context (`shape(context)`), so that the same outline can be filled,
stroked, used as a clip or shaded by its edge. A *paint* is a colour ("#rrggbb" or "#rrggbbaa") or a cairo pattern.
"""

import contextlib
import math
import re

import cairo
import numpy
from PIL import Image, ImageFilter

OVERSAMPLING = 4


def colour(text):
    """Turns "#rrggbb" or "#rrggbbaa" into red, green, blue, alpha from 0 to 1."""
    digits = text.lstrip("#")
    channels = [int(digits[at:at + 2], 16) / 255 for at in range(0, len(digits), 2)]
    return tuple(channels) if len(channels) == 4 else (*channels, 1.0)


def _with_stops(pattern, stops):
    """Stops are colours, spread evenly, or pairs of position and colour."""
    for index, stop in enumerate(stops):
        position, text = stop if isinstance(stop, tuple) else (index / (len(stops) - 1), stop)
        pattern.add_color_stop_rgba(position, *colour(text))
    return pattern


def linear(start, end, *stops):
    return _with_stops(cairo.LinearGradient(*start, *end), stops)


def radial(centre, radius, *stops, focus=None):
    """`focus` is where the first stop lies, the centre if none is given: a ball is lit from a focus off its centre."""
    return _with_stops(cairo.RadialGradient(*(focus or centre), 0, *centre, radius), stops)


def set_paint(context, paint):
    if isinstance(paint, str):
        context.set_source_rgba(*colour(paint))
    else:
        context.set_source(paint)


class Canvas:
    def __init__(self, width=256, height=256, oversampling=OVERSAMPLING):
        self.width, self.height, self.oversampling = width, height, oversampling
        self.context = self._new_context()

    def _new_context(self):
        surface = cairo.ImageSurface(
            cairo.FORMAT_ARGB32, self.width * self.oversampling, self.height * self.oversampling)
        context = cairo.Context(surface)
        context.scale(self.oversampling, self.oversampling)
        context.set_line_cap(cairo.LINE_CAP_ROUND)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        return context

    def fill(self, shape, paint):
        shape(self.context)
        set_paint(self.context, paint)
        self.context.fill()

    def stroke(self, shape, paint, width):
        shape(self.context)
        set_paint(self.context, paint)
        self.context.set_line_width(width)
        self.context.stroke()

    @contextlib.contextmanager
    def transformed(self, x=0, y=0, degrees=0, scale=1, scale_y=None):
        """Draws inside with the origin at (x, y), turned clockwise and scaled."""
        self.context.save()
        self.context.translate(x, y)
        self.context.rotate(math.radians(degrees))
        self.context.scale(scale, scale if scale_y is None else scale_y)
        yield
        self.context.restore()

    @contextlib.contextmanager
    def layer(self, blur=0, alpha=1, inside=None, operator=cairo.OPERATOR_OVER):
        """Draws inside on a transparent layer, which is then blurred (a standard deviation in pixels of the finished
        image), clipped to the shape `inside` and laid over the canvas."""
        below = self.context
        self.context = self._new_context()
        self.context.set_matrix(below.get_matrix())
        yield
        surface, self.context = self.context.get_target(), below
        if blur:
            surface = _blurred(surface, blur * self.oversampling)
        below.save()
        if inside:
            inside(below)
            below.clip()
        below.identity_matrix()
        below.set_operator(operator)
        below.set_source_surface(surface)
        below.paint_with_alpha(alpha)
        below.restore()

    def edge(self, shape, paint, dx, dy, blur):
        """Shades a shape from its rim inwards: the paint lies where the shape, moved by (dx, dy), no longer covers
        itself, so that a positive dx and dy light or darken the upper left rim."""
        with self.layer(blur=blur, inside=shape):
            set_paint(self.context, paint)
            self.context.paint()
            self.context.translate(dx, dy)
            shape(self.context)
            self.context.set_operator(cairo.OPERATOR_CLEAR)
            self.context.fill()

    def solid(self, shape, paint, shade="#00000066", light="#ffffff99", depth=5):
        """A filled shape with a soft light rim at the upper left and a dark one at the lower right."""
        self.fill(shape, paint)
        self.edge(shape, shade, -depth, -depth, depth * 0.9)
        self.edge(shape, light, depth * 0.7, depth * 0.7, depth * 0.7)

    def glow(self, shape, paint, blur, width=None):
        """The blurred shape, or its blurred outline where a width is given."""
        with self.layer(blur=blur):
            if width is None:
                self.fill(shape, paint)
            else:
                self.stroke(shape, paint, width)

    def pixels(self):
        """Red, green, blue, alpha of the finished image, not multiplied by alpha, as a height x width x 4 array of
        floats from 0 to 1."""
        large = _premultiplied(self.context.get_target())
        size = self.oversampling
        small = large.reshape(self.height, size, self.width, size, 4).mean(axis=(1, 3)) / 255
        alpha = small[..., 3:]
        plain = numpy.divide(small[..., :3], alpha, out=numpy.zeros_like(small[..., :3]), where=alpha > 0)
        # What shows of a colour is its product with alpha: the finer part of a faint pixel's colour is rounding noise,
        # which can't be seen and can't be compressed.
        step = 2 ** numpy.floor(numpy.log2(1 / numpy.maximum(alpha, 1 / 64))) / 255
        plain = numpy.minimum(numpy.rint(plain / step) * step, 1)
        return numpy.concatenate([plain, alpha], axis=2)

    def save(self, path):
        save_pixels(self.pixels(), path)


def _premultiplied(surface):
    """The bytes of a cairo surface as an array of red, green, blue, alpha."""
    surface.flush()
    data = numpy.frombuffer(surface.get_data(), numpy.uint8)
    return data.reshape(surface.get_height(), surface.get_stride() // 4, 4)[:, :surface.get_width(), [2, 1, 0, 3]]


def _blurred(surface, deviation):
    image = Image.fromarray(numpy.ascontiguousarray(_premultiplied(surface)), "RGBA")
    blurred = numpy.array(image.filter(ImageFilter.GaussianBlur(deviation)))
    # Rounding each channel by itself may leave a colour above its alpha, which cairo takes for a wrap-around.
    blurred[..., :3] = numpy.minimum(blurred[..., :3], blurred[..., 3:])
    data = bytearray(numpy.ascontiguousarray(blurred[..., [2, 1, 0, 3]]).tobytes())
    return cairo.ImageSurface.create_for_data(
        data, cairo.FORMAT_ARGB32, surface.get_width(), surface.get_height(), surface.get_width() * 4)


def save_pixels(pixels, path):
    """Writes red, green, blue, alpha from 0 to 1 as an eight-bit RGBA file. Never a palette or grey file: the host
    hands the decoded bytes on as they are, so every stock image must decode to 32 bits a pixel."""
    data = numpy.rint(numpy.clip(pixels, 0, 1) * 255).astype(numpy.uint8)
    data[data[..., 3] == 0] = 0  # what can't be seen costs no bytes
    Image.fromarray(data, "RGBA").save(path, optimize=True)


# Shapes


def svg(text):
    """A shape from path data as SVG writes it: absolute M, L, C, Q and Z."""
    steps = re.findall(r"([MLCQZ])([^MLCQZ]*)", text)
    numbers = [[float(word) for word in re.split(r"[\s,]+", values.strip()) if word] for _, values in steps]

    def add(context):
        context.new_path()
        for (command, _), values in zip(steps, numbers):
            count = {"M": 2, "L": 2, "C": 6, "Q": 4, "Z": 0}[command]
            if command == "Z":
                context.close_path()
                continue
            for at in range(0, len(values), count):
                part = values[at:at + count]
                if command == "M":
                    context.move_to(*part)
                elif command == "L":
                    context.line_to(*part)
                elif command == "C":
                    context.curve_to(*part)
                else:
                    _quadratic_to(context, *part)
    return add


def _quadratic_to(context, cx, cy, x, y):
    x0, y0 = context.get_current_point()
    context.curve_to(x0 + 2 / 3 * (cx - x0), y0 + 2 / 3 * (cy - y0), x + 2 / 3 * (cx - x), y + 2 / 3 * (cy - y), x, y)


def ellipse(cx, cy, rx, ry=None, degrees=0):
    def add(context):
        context.new_path()
        context.save()
        context.translate(cx, cy)
        context.rotate(math.radians(degrees))
        context.scale(rx, rx if ry is None else ry)
        context.arc(0, 0, 1, 0, 2 * math.pi)
        context.restore()
        context.close_path()
    return add


def rectangle(x, y, width, height, radius=0):
    if not radius:
        return polygon([(x, y), (x + width, y), (x + width, y + height), (x, y + height)])
    return rounded([(x, y), (x + width, y), (x + width, y + height), (x, y + height)], radius)


def polygon(points, closed=True):
    def add(context):
        context.new_path()
        for point in points:
            context.line_to(*point)
        if closed:
            context.close_path()
    return add


def line(*points):
    return polygon(points, closed=False)


def rounded(points, radius):
    """A polygon whose corners are arcs that leave the sides `radius` before the corner."""
    def add(context):
        context.new_path()
        for index, corner in enumerate(points):
            before, after = points[index - 1], points[(index + 1) % len(points)]
            context.line_to(*_towards(corner, before, radius))
            _quadratic_to(context, *corner, *_towards(corner, after, radius))
        context.close_path()
    return add


def _towards(point, other, distance):
    length = math.dist(point, other)
    part = min(distance / length, 0.5)
    return point[0] + (other[0] - point[0]) * part, point[1] + (other[1] - point[1]) * part


def spline(points, closed=True):
    """A smooth curve through the points (Catmull-Rom)."""
    count = len(points)

    def at(index):
        return points[index % count] if closed else points[max(0, min(index, count - 1))]

    def add(context):
        context.new_path()
        context.move_to(*points[0])
        for index in range(count if closed else count - 1):
            (x0, y0), (x1, y1), (x2, y2), (x3, y3) = (at(index + step) for step in (-1, 0, 1, 2))
            context.curve_to(x1 + (x2 - x0) / 6, y1 + (y2 - y0) / 6, x2 - (x3 - x1) / 6, y2 - (y3 - y1) / 6, x2, y2)
        if closed:
            context.close_path()
    return add


def moved(shape, x=0, y=0, degrees=0, scale=1, scale_y=None):
    def add(context):
        context.save()
        context.translate(x, y)
        context.rotate(math.radians(degrees))
        context.scale(scale, scale if scale_y is None else scale_y)
        shape(context)
        context.restore()
    return add


def flipped(shape):
    """The mirror image about x = 0, walked in the direction of the original, so that the two may overlap in one path
    without cutting holes into each other."""
    def add(context):
        shape(context)
        contours = []
        for kind, coordinates in context.copy_path_flat():
            if kind == cairo.PATH_MOVE_TO:
                contours.append([])
            if coordinates:
                contours[-1].append(coordinates)
        context.new_path()
        for contour in contours:
            context.new_sub_path()
            for x, y in reversed(contour):
                context.line_to(-x, y)
            context.close_path()
    return add


def union(*shapes):
    """Several paths as one: every shape starts a path, so they are joined from copies. All must run clockwise."""
    def add(context):
        copies = []
        for shape in shapes:
            shape(context)
            copies.append(context.copy_path())
        context.new_path()
        for copy in copies:
            context.append_path(copy)
    return add


def mirrored(half):
    """The outline of a figure that is symmetric about x = 0, from the points of its right half, top to bottom."""
    return half + [(-x, y) for x, y in reversed(half) if x != 0]


def on_circle(centre, radius, degrees):
    """The point at that angle, clockwise from the top."""
    return (centre[0] + radius * math.sin(math.radians(degrees)), centre[1] - radius * math.cos(math.radians(degrees)))


def star_points(centre, outer, inner, count, degrees=0):
    return [on_circle(centre, inner if index % 2 else outer, degrees + index * 180 / count)
            for index in range(2 * count)]


def heart(centre, size):
    """A heart about `size` wide and high."""
    path = svg("M 0 -0.27 C -0.10 -0.46 -0.50 -0.52 -0.50 -0.16 C -0.50 0.12 -0.16 0.28 0 0.46 "
               "C 0.16 0.28 0.50 0.12 0.50 -0.16 C 0.50 -0.52 0.10 -0.46 0 -0.27 Z")
    return moved(path, *centre, scale=size)
