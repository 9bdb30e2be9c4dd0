"""The fixed small pictures of a shop: strips, title bar, buttons, arrows.

Needs the Debian packages python3-cairo, python3-pil, python3-numpy and fonts-dejavu-core.
"""
import math

import cairo
import numpy as np

from canvas import Canvas, curve, leaf, linden_leaf, linden_veins, mix, rgb, rounded, save_gif, shade

NAVY = rgb("#0a2a5c")
BAR_TOP, BAR_MIDDLE, BAR_FOOT = rgb("#e9f5fe"), rgb("#cbe6fb"), rgb("#a9d2f3")
BAR_EDGE = rgb("#5f9fd0")
SCALE = 8       # drawn large and averaged, which gives cleaner small pictures than cairo's own edges


def small(canvas):
    """Averages a canvas drawn at SCALE down to its true size."""
    colour, alpha = canvas.array()
    s = canvas.scale
    h, w = alpha.shape
    weight = alpha.reshape(h // s, s, w // s, s)
    tone = (colour * alpha[..., None]).reshape(h // s, s, w // s, s, 3).sum((1, 3))
    total = weight.sum((1, 3))
    return tone / np.maximum(total, 1e-6)[..., None], total / (s * s)


def on(colour, alpha, ground):
    return colour * alpha[..., None] + np.array(ground) * (1 - alpha[..., None])


def blackline():
    """Thin line ground of the menu strip: pale, with a fine dark line along its foot."""
    c = Canvas(8, 24, SCALE)
    c.cr.set_source_rgb(*rgb("#eff6fd"))
    c.cr.paint()
    c.cr.set_source_rgb(*NAVY)
    c.cr.rectangle(0, 23, 8, 1)
    c.cr.fill()
    return small(c)[0], 16, None


def motif():
    """A garland of small leaves on a stem, repeated along the strip."""
    c = Canvas(40, 8, SCALE, (1, 1, 1))

    def draw(cr):
        cr.set_source_rgb(*rgb("#7fb2dc"))
        cr.set_line_width(.7)
        curve(cr, [(x, 4 + 1.3 * math.sin(x / 40 * 2 * math.pi)) for x in range(-4, 46, 2)])
        cr.stroke()
        for i in range(4):
            x = 4 + 10 * i
            y = 4 + 1.3 * math.sin(x / 40 * 2 * math.pi)
            up = i % 2 == 0
            cr.set_source_rgb(*(rgb("#3f7fbd") if up else rgb("#77a95e")))
            leaf(cr, x, y, 7, 2.6, -.5 if up else .5)
            cr.fill()
    c.wrapped(draw)
    return small(c)[0], 24, None


def bar(cr, width):
    shade(cr, 0, 0, 0, 38, (0, BAR_TOP), (.5, BAR_MIDDLE), (1, BAR_FOOT))
    cr.rectangle(-1, 2, width + 2, 34)
    cr.fill()
    cr.set_source_rgb(*BAR_EDGE)
    for y in (2, 35):
        cr.rectangle(-1, y, width + 2, 1)
        cr.fill()
    cr.set_source_rgb(*rgb("#ffffff"))
    cr.rectangle(-1, 3, width + 2, 1)
    cr.fill()


def title_end(width, left):
    """End of the title bar: the same bands as its middle, cut round, with a leaf on the long side."""
    c = Canvas(width, 38, SCALE, (1, 1, 1))
    cr = c.cr
    if not left:
        cr.translate(width, 0)
        cr.scale(-1, 1)
    r = 12
    rounded(cr, 1, 2, width + 40, 34, r)
    cr.save()
    cr.clip()
    bar(cr, width + 40)
    cr.restore()
    rounded(cr, 1.5, 2.5, width + 40, 33, r - .5)
    cr.set_source_rgb(*BAR_EDGE)
    cr.set_line_width(1)
    cr.stroke()
    if not left:
        for x, y, size, angle, tone in ((17, 27, 17, -1.05, rgb("#6f9f58")), (22, 28, 12, -.25, rgb("#8db873"))):
            linden_leaf(cr, x, y, size, angle)
            cr.set_source_rgb(*tone)
            cr.fill()
            linden_veins(cr, x, y, size, angle)
            cr.set_line_width(.06 * size / 17 * 10)
            cr.set_source_rgba(1, 1, 1, .75)
            cr.stroke()
    return small(c)[0], 64, None


def title_middle():
    c = Canvas(8, 38, SCALE, (1, 1, 1))
    bar(c.cr, 8)
    return small(c)[0], 64, None


def bluebar():
    """Ground of the rows that part the products of a list; meets itself when a row is taller."""
    c = Canvas(8, 24, SCALE)
    shade(c.cr, 0, 0, 0, 24, (0, rgb("#c9e3fa")), (.5, rgb("#e4f2fe")), (1, rgb("#c9e3fa")))
    c.cr.paint()
    return small(c)[0], 32, None


def cart(cr, x, y, s, tone, wheels):
    """A shopping trolley, s pixels wide."""
    cr.save()
    cr.translate(x, y)
    cr.scale(s / 20, s / 20)
    cr.set_line_cap(cairo.LINE_CAP_ROUND)
    cr.set_line_join(cairo.LINE_JOIN_ROUND)
    cr.set_source_rgb(*tone)
    cr.move_to(4.6, 4)
    cr.line_to(19.4, 4)
    cr.line_to(17.2, 11.4)
    cr.line_to(6.6, 12)
    cr.close_path()
    cr.fill_preserve()
    cr.set_line_width(1.2)
    cr.stroke()
    cr.set_line_width(1.9)
    cr.move_to(.8, 1.2)
    cr.line_to(3.6, 1.2)
    cr.line_to(6.6, 14.4)
    cr.line_to(17.6, 14.4)
    cr.stroke()
    for wx in (8, 16):
        cr.arc(wx, 17.6, 1.8, 0, 7)
        cr.set_source_rgb(*wheels)
        cr.fill()
    cr.restore()


def button(width, height, top, foot, edge, radius):
    c = Canvas(width, height, SCALE, (1, 1, 1))
    rounded(c.cr, .5, .5, width - 1, height - 1, radius)
    shade(c.cr, 0, 0, 0, height, (0, top), (1, foot))
    c.cr.fill_preserve()
    c.cr.set_source_rgb(*edge)
    c.cr.set_line_width(1)
    c.cr.stroke()
    return c


def shopcart():
    c = button(25, 24, rgb("#ffffff"), rgb("#ffe9a8"), rgb("#c98f1b"), 4)
    cart(c.cr, 3.4, 3.6, 17.5, rgb("#1d4f91"), rgb("#123a70"))
    return small(c)[0], 64, None


def buy():
    c = button(60, 24, rgb("#ffe27a"), rgb("#f6b73c"), rgb("#b97f12"), 5)
    cr = c.cr
    cart(cr, 5, 4.5, 15, NAVY, NAVY)
    cr.set_source_rgb(*NAVY)
    cr.set_line_width(2.4)
    cr.set_line_cap(cairo.LINE_CAP_ROUND)
    cr.move_to(36, 6.5)          # a plus sign says "add" in every language of the shop
    cr.line_to(36, 17.5)
    cr.move_to(30.5, 12)
    cr.line_to(41.5, 12)
    cr.stroke()
    cr.set_line_join(cairo.LINE_JOIN_ROUND)
    cr.move_to(48, 7)
    cr.line_to(53, 12)
    cr.line_to(48, 17)
    cr.stroke()
    return small(c)[0], 64, None


def pay():
    c = button(120, 40, rgb("#fff6d6"), rgb("#ffd766"), rgb("#b88a15"), 20)
    cr = c.cr
    cr.select_font_face("DejaVu Sans", cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    cr.set_font_size(19)
    e = cr.text_extents("PayPal")
    cr.set_source_rgb(*NAVY)
    cr.move_to(60 - e.width / 2 - e.x_bearing, 26.5)
    cr.show_text("PayPal")
    return small(c)[0], 64, None


def card(cr, x, y, angle, top, foot):
    cr.save()
    cr.translate(x, y)
    cr.rotate(angle)
    rounded(cr, -21, -13, 44, 28, 3.5)
    cr.set_source_rgba(.1, .2, .4, .18)
    cr.fill()
    rounded(cr, -22, -14, 44, 28, 3.5)
    shade(cr, -22, -14, 22, 14, (0, top), (1, foot))
    cr.fill()
    rounded(cr, -17, -5, 8, 6.5, 1.2)
    shade(cr, -17, -5, -9, 2, (0, rgb("#fbe7a1")), (1, rgb("#c89b3c")))
    cr.fill()
    cr.set_source_rgba(1, 1, 1, .85)
    for i in range(4):
        cr.rectangle(-17 + i * 9, 5.4, 7, 1.5)
    cr.rectangle(-17, 9, 15, 1.2)
    cr.fill()
    cr.restore()


def cards():
    c = button(120, 40, rgb("#ffffff"), rgb("#e4eef9"), rgb("#7d9cc0"), 20)
    card(c.cr, 40, 21, -.16, rgb("#8a96a6"), rgb("#55606f"))
    card(c.cr, 82, 20.5, .12, rgb("#4d9a77"), rgb("#266a4c"))
    card(c.cr, 61, 19.5, -.02, rgb("#4a86d4"), rgb("#1d4f91"))
    return small(c)[0], 96, None


def mail():
    c = button(120, 40, rgb("#ffffff"), rgb("#e4eef9"), rgb("#7d9cc0"), 20)
    cr = c.cr
    cr.set_line_join(cairo.LINE_JOIN_ROUND)
    cr.rectangle(41, 8, 40, 25)
    cr.set_source_rgba(.1, .2, .4, .18)
    cr.fill()
    cr.rectangle(40, 7, 40, 25)
    shade(cr, 0, 7, 0, 32, (0, rgb("#fffdf6")), (1, rgb("#efe3c8")))
    cr.fill_preserve()
    cr.set_source_rgb(*rgb("#8a6a3a"))
    cr.set_line_width(1.1)
    cr.stroke()
    cr.move_to(40, 32)
    cr.line_to(55, 19)
    cr.move_to(80, 32)
    cr.line_to(65, 19)
    cr.stroke()
    cr.move_to(40, 7)
    cr.line_to(60, 23)
    cr.line_to(80, 7)
    cr.close_path()
    shade(cr, 0, 7, 0, 23, (0, rgb("#fffefa")), (1, rgb("#f3e9d2")))
    cr.fill_preserve()
    cr.set_source_rgb(*rgb("#8a6a3a"))
    cr.stroke()
    cr.arc(60, 21.5, 3.6, 0, 7)
    cr.set_source_rgb(*rgb("#b5382e"))
    cr.fill()
    return small(c)[0], 64, None


def arrow(points, width, height):
    """A dark triangle; its half-covered edge pixels are mixed with the menu's light blue."""
    c = Canvas(width, height, SCALE)
    c.cr.move_to(*points[0])
    for p in points[1:]:
        c.cr.line_to(*p)
    c.cr.close_path()
    c.cr.set_source_rgb(*NAVY)
    c.cr.fill()
    colour, alpha = small(c)
    return on(colour, alpha, mix(rgb("#78d2ff"), rgb("#ccffcc"), .35)), 8, np.where(alpha > .25, 1.0, 0.0)


PICTURES = {
    "blackline.gif": blackline,
    "motif_m.gif": motif,
    "titre_left.gif": lambda: title_end(17, True),
    "titre_motif.gif": title_middle,
    "titre_right.gif": lambda: title_end(42, False),
    "bluebar1.gif": bluebar,
    "shopcart.gif": shopcart,
    "spacer.gif": lambda: (np.ones((1, 1, 3)), 2, np.zeros((1, 1))),
    "pp.gif": pay,
    "cards.gif": cards,
    "mail.gif": mail,
    "buy.gif": buy,
    "tri.gif": lambda: arrow([(0, 0), (5, 5), (0, 10)], 5, 10),
    "trileft.gif": lambda: arrow([(5, 0), (0, 5), (5, 10)], 5, 10),
    "tridown.gif": lambda: arrow([(0, 0), (10, 0), (5, 5)], 10, 5),
}


def draw(folder):
    for name, make in PICTURES.items():
        colour, colours, alpha = make()
        save_gif(folder / name, colour, colours, alpha)
    return sorted(PICTURES)
