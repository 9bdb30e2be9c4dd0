"""Printed things: labels, tin wrappers, covers. Drawn flat here, wrapped round bodies elsewhere.

Needs the Debian packages python3-cairo, python3-numpy and fonts-dejavu-core.
"""
import math

import cairo
import numpy as np

from canvas import Canvas, curve, darker, leaf, lighter, linden_leaf, linden_veins, rgb, rounded

INK = rgb("#3a322a")


def picture(canvas):
    colour, alpha = canvas.array()
    return np.dstack([colour, alpha]).astype(np.float32)


def text(cr, s, x, y, size, tone=INK, family="DejaVu Serif", bold=False, italic=False, spread=0.0):
    """One line of text, centred on x."""
    cr.select_font_face(family, cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
                        cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
    cr.set_font_size(size)
    cr.set_source_rgb(*tone)
    widths = [cr.text_extents(c).x_advance + spread * size for c in s]
    cr_x = x - (sum(widths) - spread * size) / 2
    for c, w in zip(s, widths):
        cr.move_to(cr_x, y)
        cr.show_text(c)
        cr_x += w


def fitted(cr, s, x, y, size, width, **kw):
    """The same, made smaller until it fits."""
    cr.select_font_face(kw.get("family", "DejaVu Serif"), cairo.FONT_SLANT_NORMAL,
                        cairo.FONT_WEIGHT_BOLD if kw.get("bold") else cairo.FONT_WEIGHT_NORMAL)
    cr.set_font_size(size)
    have = cr.text_extents(s).x_advance + kw.get("spread", 0) * size * len(s)
    text(cr, s, x, y, size * min(1, width / max(have, 1)), **kw)


def linden_mark(cr, x, y, size, tone):
    """The mark of the house: a linden leaf with its veins."""
    linden_leaf(cr, x, y, size, -math.pi / 2)
    cr.set_source_rgb(*tone)
    cr.fill()
    linden_veins(cr, x, y, size, -math.pi / 2)
    cr.set_source_rgba(*lighter(tone, .75), .9)
    cr.set_line_width(size * .03)
    cr.stroke()


def paper_label(lines, tone=rgb("#5f7a45"), w=420, h=300):
    """The plain label of the house: border, leaf, a title and smaller lines."""
    c = Canvas(w, h, 1, rgb("#f6f0e0"))
    cr = c.cr
    cr.set_source_rgb(*tone)
    cr.set_line_width(4)
    rounded(cr, 12, 12, w - 24, h - 24, 10)
    cr.stroke()
    cr.set_line_width(1.4)
    rounded(cr, 20, 20, w - 40, h - 40, 7)
    cr.stroke()
    linden_mark(cr, w / 2, h * .42, h * .24, tone)
    fitted(cr, lines[0], w / 2, h * .60, h * .13, w * .82, bold=True, tone=darker(tone, .35))
    for i, s in enumerate(lines[1:]):
        fitted(cr, s, w / 2, h * (.72 + .11 * i), h * .075, w * .8, italic=True, tone=INK)
    return picture(c)


def tin_wrap(p, what):
    if what == "the":
        c = Canvas(1000, 500, 1)
        cr = c.cr
        gold = p.c2
        cr.set_source_rgb(*gold)
        cr.set_line_width(5)
        for y in (18, 330):
            cr.move_to(0, y)
            cr.line_to(1000, y)
        cr.stroke()

        def branch(x, y, flip):
            cr.save()
            cr.translate(x, y)
            cr.scale(flip, 1)
            cr.set_source_rgb(*gold)
            cr.set_line_width(4)
            curve(cr, [(0, 150), (40, 90), (110, 50), (190, 10)])
            cr.stroke()
            for t, a in ((.2, -1.5), (.35, .2), (.5, -1.4), (.65, .3), (.8, -1.2), (.98, -.4)):
                px, py = 190 * t, 150 - 140 * t ** .8
                leaf(cr, px, py, 52, 22, a)
                cr.fill()
            cr.restore()
        branch(300, 120, -1)
        branch(700, 120, 1)
        cr.arc(500, 190, 96, 0, 7)
        cr.set_source_rgb(*gold)
        cr.fill()
        cr.arc(500, 190, 86, 0, 7)
        cr.set_source_rgb(*darker(p.c1, .15))
        cr.fill()
        cr.set_source_rgb(*lighter(gold, .2))
        text(cr, "THÉ", 500, 212, 62, lighter(gold, .3), bold=True, spread=.06)
        return picture(c)
    c = Canvas(900, 500, 1)
    cr = c.cr
    pale = p.c2
    for k in range(13):
        for j in range(3):
            linden_leaf(cr, 30 + k * 72 + (j % 2) * 36, 90 + j * 190, 62, -1.2 + .5 * ((k + j) % 3))
            cr.set_source_rgba(*lighter(p.c1, .35), .55)
            cr.fill()
    rounded(cr, 210, 130, 480, 300, 150)
    cr.set_source_rgb(*pale)
    cr.fill()
    rounded(cr, 224, 144, 452, 272, 136)
    cr.set_source_rgb(*darker(p.c1, .4))
    cr.set_line_width(4)
    cr.stroke()
    text(cr, "Biscuits", 450, 270, 78, darker(p.c1, .5), bold=True)
    text(cr, "aux tilleuls", 450, 340, 46, darker(p.c1, .4), italic=True)
    return picture(c)


def cover_stamp(p):
    """What is stamped on a notebook's cover."""
    c = Canvas(400, 400, 1)
    cr = c.cr
    tone = p.c2
    if p.kind == "spiralnotebook":
        cr.set_source_rgb(*darker(p.c1, .72))
        cr.set_line_width(4)
        rounded(cr, 60, 120, 280, 150, 8)
        cr.stroke()
        text(cr, "CARNET", 200, 190, 46, darker(p.c1, .72), family="DejaVu Sans", bold=True, spread=.12)
        cr.set_line_width(2.5)
        for y in (215, 240):
            cr.move_to(95, y)
            cr.line_to(305, y)
        cr.stroke()
        return picture(c)
    linden_leaf(cr, 200, 290, 150, -math.pi / 2)
    cr.set_source_rgb(*tone)
    cr.set_line_width(6)
    cr.stroke()
    linden_veins(cr, 200, 290, 150, -math.pi / 2)
    cr.set_line_width(4)
    cr.stroke()
    cr.move_to(200, 290)
    cr.line_to(200, 345)
    cr.stroke()
    return picture(c)


def case_lid(p):
    """The lid of a box of colour pencils."""
    c = Canvas(800, 464, 1)
    cr = c.cr
    tones = [rgb(t) for t in ("#e3b23c", "#d9772b", "#7fa650", "#3f8fb0", "#6b57a5", "#d4718f")]
    for k, tone in enumerate(tones):
        x = 90 + k * 124
        for a in range(6):
            leaf(cr, x, 150 + 40 * (k % 2), 74, 40, a * math.pi / 3 + k)
            cr.set_source_rgb(*tone)
            cr.fill()
        cr.arc(x, 150 + 40 * (k % 2), 17, 0, 7)
        cr.set_source_rgb(*rgb("#fff6dc"))
        cr.fill()
    cr.set_source_rgb(1, 1, 1)
    text(cr, "24 crayons de couleur", 400, 340, 52, (1, 1, 1), bold=True)
    text(cr, "bois de cèdre", 400, 400, 34, lighter(p.c1, .7), italic=True)
    return picture(c)


def letter():
    """A sheet with a few lines in a running hand."""
    c = Canvas(500, 600, 1)
    cr = c.cr
    cr.set_source_rgba(.13, .20, .38, .9)
    cr.set_line_width(2.6)
    cr.set_line_cap(cairo.LINE_CAP_ROUND)
    r = np.random.Generator(np.random.PCG64(21))
    for j in range(10):
        y = 90 + j * 46
        x, end = 60.0, 440 if j not in (0, 9) else 220
        while x < end:
            letters = int(3 + r.random() * 7)
            pts = []
            for k in range(letters):
                tall = (9, 9, 22, 9, 9, 9, -14)[int(r.integers(7))]
                for t in np.linspace(0, 2 * math.pi, 9)[:-1]:
                    # a slanted loop for each letter; the hand moves on while it turns
                    rise = tall * (1 - math.cos(t)) / 2
                    pts.append((x + 10.5 * (k + t / (2 * math.pi)) - 3.4 * math.sin(t) + rise * .28, y - rise))
            curve(cr, pts)
            cr.stroke()
            x += letters * 10.5 + 14
    return picture(c)
