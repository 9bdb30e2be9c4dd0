"""The logo of the sample shop: a linden leaf and the shop's name on a white rounded plate, so that it reads on
every banner.

Needs the Debian packages python3-cairo, python3-pil, python3-numpy and fonts-dejavu-core.
"""

from assets import SCALE, small
from canvas import Canvas, linden_leaf, linden_veins, rgb, rounded, save_gif, shade
from labels import fitted

LEAF, DARK, INK = rgb("#6c9a45"), rgb("#3f6a2a"), rgb("#2f3b26")


def draw(path):
    c = Canvas(142, 66, SCALE)
    cr = c.cr
    rounded(cr, .5, .5, 141, 65, 9)
    cr.set_source_rgb(1, 1, 1)
    cr.fill()
    rounded(cr, 1.5, 1.5, 139, 63, 8)
    cr.set_source_rgb(*rgb("#b9cfa2"))
    cr.set_line_width(1)
    cr.stroke()
    for x, y, size, angle, tone, foot in ((22, 48, 31, -1.92, LEAF, DARK), (27, 52, 24, -.72, rgb("#9cc06e"), LEAF)):
        linden_leaf(cr, x, y, size, angle)
        shade(cr, 10, 14, 44, 56, (0, tone), (1, foot))
        cr.fill()
        linden_veins(cr, x, y, size, angle)
        cr.set_source_rgba(1, 1, 1, .85)
        cr.set_line_width(.8)
        cr.stroke()
    cr.set_source_rgb(*DARK)
    cr.set_line_width(1.4)
    cr.move_to(24, 47)
    cr.curve_to(24, 52, 23, 56, 21, 60)
    cr.stroke()
    fitted(cr, "La Remise", 93, 30, 17.5, 84, bold=True, tone=INK)
    fitted(cr, "aux Tilleuls", 93, 49, 15.5, 84, tone=DARK, bold=True)
    colour, alpha = small(c)
    # the plate's corners are cut hard: a GIF knows no half-covered pixels
    save_gif(path, colour * alpha[..., None] + (1 - alpha[..., None]), 63, (alpha > .4).astype(float))
