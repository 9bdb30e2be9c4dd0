"""Surfaces, colours, seeded noise and file writing shared by all drawing scripts.

Needs the Debian packages python3-cairo, python3-pil and python3-numpy.
"""
import math
import zlib

import cairo
import numpy as np
from PIL import Image


def seed_of(*parts):
    """A number that depends on the names alone, so that every run draws the same picture."""
    return zlib.crc32("/".join(str(p) for p in parts).encode("utf-8"))


def rng(*parts):
    return np.random.Generator(np.random.PCG64(seed_of(*parts)))


def rgb(text):
    """"#rrggbb" as three numbers from 0 to 1."""
    text = text.lstrip("#")
    return tuple(int(text[i:i + 2], 16) / 255 for i in (0, 2, 4))


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def lighter(c, t):
    return mix(c, (1, 1, 1), t)


def darker(c, t):
    return mix(c, (0, 0, 0), t)


class Canvas:
    """A cairo surface that can be read as an array and wraps drawings round its left and right edge."""

    def __init__(self, width, height, scale=1, fill=None):
        self.w, self.h, self.scale = width, height, scale
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, int(width * scale), int(height * scale))
        self.cr = cairo.Context(self.surface)
        self.cr.scale(scale, scale)
        if fill is not None:
            self.cr.set_source_rgb(*fill)
            self.cr.paint()

    def wrapped(self, draw, margin=None):
        """Calls `draw(cr)` where it belongs and once more on each side, for pictures that repeat."""
        for dx in (-self.w, 0, self.w):
            self.cr.save()
            self.cr.translate(dx, 0)
            draw(self.cr)
            self.cr.restore()

    def array(self):
        """Colour (h, w, 3) and coverage (h, w), both from 0 to 1, colour not premultiplied."""
        self.surface.flush()
        data = np.frombuffer(self.surface.get_data(), np.uint8)
        data = data.reshape(self.surface.get_height(), self.surface.get_stride() // 4, 4)
        data = data[:, :self.surface.get_width()].astype(np.float32) / 255
        alpha = data[..., 3]
        colour = data[..., 2::-1] / np.maximum(alpha, 1e-6)[..., None]
        return np.clip(colour, 0, 1), alpha

    def put(self, colour):
        """Paints an array (h, w, 3) under nothing: the whole surface becomes this picture."""
        pixels = (np.clip(colour, 0, 1) * 255 + 0.5).astype(np.uint8)
        out = np.full(pixels.shape[:2] + (4,), 255, np.uint8)
        out[..., :3] = pixels[..., ::-1]
        stride = self.surface.get_stride()
        view = np.ndarray((self.surface.get_height(), self.surface.get_width(), 4), np.uint8,
                          self.surface.get_data(), strides=(stride, 4, 1))
        view[...] = out
        self.surface.mark_dirty()


def cloud(height, width, seed, size=20.0, stretch=1.0, rough=0.0):
    """Smooth noise, mean 0 and deviation 1, that repeats in both directions.

    `size` is the size of the blobs in pixels, `stretch` makes them longer along x,
    `rough` from 0 to 1 mixes in finer octaves.
    """
    fy = np.fft.fftfreq(height)[:, None]
    fx = np.fft.fftfreq(width)[None, :]
    r = np.sqrt((fx * stretch) ** 2 + fy ** 2) * size
    weight = np.exp(-r ** 2 * 2)
    if rough:
        weight = weight + rough / (1 + (r * 2) ** 2)
    white = np.random.Generator(np.random.PCG64(seed)).standard_normal((height, width))
    out = np.real(np.fft.ifft2(np.fft.fft2(white) * weight))
    return ((out - out.mean()) / (out.std() + 1e-9)).astype(np.float32)


def ramp(t, stops):
    """Colours along stops [(position, (r, g, b)), ...] for an array of positions."""
    xs = [s[0] for s in stops]
    return np.stack([np.interp(t, xs, [s[1][i] for s in stops]) for i in range(3)], -1).astype(np.float32)


def image(colour, alpha=None):
    pixels = (np.clip(colour, 0, 1) * 255 + 0.5).astype(np.uint8)
    if alpha is None:
        return Image.fromarray(pixels, "RGB")
    a = (np.clip(alpha, 0, 1) * 255 + 0.5).astype(np.uint8)
    return Image.fromarray(np.dstack([pixels, a]), "RGBA")


def save_gif(path, colour, colours=64, alpha=None):
    """Writes a GIF; where `alpha` is below one half the picture is transparent."""
    picture = image(colour)
    if alpha is None:
        picture.quantize(colours, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).save(path, optimize=True)
        return
    flat = picture.quantize(min(colours, 255), Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    index = np.array(flat)
    palette = flat.getpalette()[:3 * (int(index.max()) + 1)]
    clear = len(palette) // 3
    index[alpha < 0.5] = clear
    out = Image.fromarray(index.astype(np.uint8), "P")
    out.putpalette(palette + [255, 255, 255])
    out.save(path, transparency=clear, optimize=False)


def curve(cr, points, closed=False):
    """A smooth line through the points (Catmull-Rom turned into Bezier pieces)."""
    n = len(points)
    get = (lambda i: points[i % n]) if closed else (lambda i: points[min(max(i, 0), n - 1)])
    cr.move_to(*points[0])
    for i in range(n if closed else n - 1):
        p0, p1, p2, p3 = get(i - 1), get(i), get(i + 1), get(i + 2)
        cr.curve_to(p1[0] + (p2[0] - p0[0]) / 6, p1[1] + (p2[1] - p0[1]) / 6,
                    p2[0] - (p3[0] - p1[0]) / 6, p2[1] - (p3[1] - p1[1]) / 6, *p2)
    if closed:
        cr.close_path()


def leaf(cr, x, y, length, width, angle):
    """Outline of a pointed leaf whose stalk is at (x, y)."""
    cr.save()
    cr.translate(x, y)
    cr.rotate(angle)
    cr.move_to(0, 0)
    cr.curve_to(length * .25, -width * .75, length * .7, -width * .5, length, 0)
    cr.curve_to(length * .7, width * .5, length * .25, width * .75, 0, 0)
    cr.restore()


def linden_leaf(cr, x, y, size, angle):
    """Outline of a linden leaf: a heart, a little lopsided, with a drawn-out tip; stalk at (x, y)."""
    cr.save()
    cr.translate(x, y)
    cr.rotate(angle)
    cr.scale(size, size)
    cr.move_to(0, 0)
    cr.curve_to(-.12, -.16, -.02, -.50, .28, -.46)
    cr.curve_to(.58, -.42, .74, -.16, 1.04, .02)
    cr.curve_to(.76, .12, .56, .42, .26, .43)
    cr.curve_to(-.06, .44, -.14, .14, 0, 0)
    cr.close_path()
    cr.restore()


def linden_veins(cr, x, y, size, angle):
    cr.save()
    cr.translate(x, y)
    cr.rotate(angle)
    cr.scale(size, size)
    cr.move_to(0, 0)
    cr.curve_to(.3, -.02, .6, -.02, .96, .015)
    for t, up, down in ((.02, (.22, -.30), (.20, .29)), (.22, (.44, -.26), (.42, .25)), (.44, (.62, -.16), (.60, .16))):
        cr.move_to(t, -.005)
        cr.line_to(*up)
        cr.move_to(t, -.005)
        cr.line_to(*down)
    cr.restore()


def rounded(cr, x, y, w, h, r):
    cr.new_sub_path()
    cr.arc(x + w - r, y + r, r, -math.pi / 2, 0)
    cr.arc(x + w - r, y + h - r, r, 0, math.pi / 2)
    cr.arc(x + r, y + h - r, r, math.pi / 2, math.pi)
    cr.arc(x + r, y + r, r, math.pi, 1.5 * math.pi)
    cr.close_path()


def shade(cr, x0, y0, x1, y1, *stops):
    """Sets a straight gradient as the source; each stop is (position, colour) or (position, colour, alpha)."""
    g = cairo.LinearGradient(x0, y0, x1, y1)
    for s in stops:
        g.add_color_stop_rgba(s[0], *s[1], s[2] if len(s) > 2 else 1)
    cr.set_source(g)
