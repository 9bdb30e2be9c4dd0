"""Notebooks, pens and pencils.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian packages python3-cairo and python3-numpy.
"""
import math

import numpy as np

from canvas import mix, rgb
from joinery import Cut, Moved
from labels import case_lid, cover_stamp, letter
from materials import Material, Noise, blend, cloth, glaze, lacquer, matt, printed, solid, steel, step, wood
from solids import Ball, Board, Box, Lathe, Ring, Sheet, spline
from stock import BRASS, IRON, STEEL, stripes, turned
from studio import Group


def page_edges(tone=rgb("#f3ecda")):
    return Material(lambda x, y, z, n: blend(tone, rgb("#c9bb9f"), .45 * stripes(y, .013, .45,
        .004) * (np.abs(n[1]) < .5)), .85, gloss=.15)


def notebook(p, how="front"):
    w, d, h = 1.5, 2.1, .26
    base = cloth(p.c1, seed=p.key, weave=95, relief=.0018, slub=.10, plane="xz")
    stamp = cover_stamp(p)
    top = printed(stamp, lambda x, y, z, n: ((x + .45) / .9, (-z + .25) / .9 + .2 - 3 * (n[1] < .5)), base.colour, .9,
                  .15)
    top.bump, top.grain = base.bump, base.grain
    g = Group()
    g.add(Box(w, .04, d, .014), base, (0, .02, 0)).add(Box(w, .04, d, .014), top, (0, h - .02, 0))
    g.add(Box(.06, h, d, .028), base, (-w / 2 + .03, h / 2, 0))
    g.add(Box(w - .09, h - .07, d - .08, .01), page_edges(), (.0, h / 2, 0))
    g.add(Box(.05, h + .02, d + .012, .008), matt(p.c2, .6, .4), (w / 2 - .22, h / 2, 0))
    ribbon = Sheet(spline([(0, .0), (.18, -.03), (.34, -.12), (.42, -.15)]), .012, .07)
    g.add(ribbon, matt(p.c2, .5, .5), (.1, .14, d / 2 - .03), (0, -90, 0))
    if how == "open":
        return open_book(p, base).placed((0, 0, 0), (0, -14, 0))
    g = g.placed((0, 0, 0), (0, 22, 0))
    if how == "stack":
        other = Group(*[i for i in g.items])
        return g.placed((0, h, 0), (0, -34, 0)).join(other)
    return g


def open_book(p, base):
    w, d = 1.45, 2.05
    g = Group().add(Box(2 * w + .1, .035, d + .08, .012), base, (0, .018, 0))
    ruled = Material(lambda x, y, z, n: blend(rgb("#f7f1e2"), rgb("#9fb0bf"),
                                              stripes(z, .11, .06, .004) * (np.abs(x) > .16) * (np.abs(x) < w - .12)
                                              * .7 * (n[1] > .6)), .85, gloss=.15)
    for s in (1, -1):
        line = spline([(0, .05), (s * .10, .20), (s * .35, .235), (s * .8, .20), (s * w, .14)])
        poly = line + [(s * w, .04), (0, .04)]
        body = Moved(Board(poly if s > 0 else poly[::-1], d, .008), (0, 0, 0))
        g.add(body, ruled)
    g.join(pen_body_simple().placed((.75, .25, .25), (0, 0, 0)))
    return g


def pen_body_simple():
    m, b = lacquer(rgb("#26364a"), .1), steel(BRASS, rough=.12, brushed="none")
    g = Group().add(turned([(.001, -.85), (.03, -.72), (.06, -.5), (.065, .2), (.06, .75), (.03, .8), (.001, .81)]),
                    m).add(Ring(.064, .012), b, (0, .05, 0))
    return g.placed((0, .04, 0), (90, 0, 0)).placed((0, 0, 0), (0, 38, 0))


def spiralnotebook(p, how="front"):
    w, d, h = 1.5, 2.05, .16
    n1 = Noise(p.key)
    kraft = lambda x, y, z, n: solid(p.c1, len(x)) * (1 + .05 * n1(x * 45, y * 45, z * 45) + .05 * n1(x * 6, y * 60,
        z * 22))[:, None]
    stamp = cover_stamp(p)
    top = printed(stamp, lambda x, y, z, n: ((x + .40) / .9, (-z + .25) / .9 + .2 - 3 * (n[1] < .5)), kraft, .85, .2)
    g = Group()
    g.add(Box(w, .02, d, .006), Material(kraft, .85, gloss=.2), (0, .01, 0)).add(Box(w, .02, d, .006), top,
        (0, h - .01, 0))
    g.add(Box(w - .03, h - .045, d - .03, .006), page_edges(), (0, h / 2, 0))
    wire = steel(p.c2 if p.c2 != (0, 0, 0) else IRON, p.key, rough=.15, brushed="none")
    for k in range(24):
        z = -d / 2 + .09 + k * (d - .18) / 23
        g.add(Ring(.125, .014), wire, (-w / 2 + .05, h / 2, z), (90, 4, 0))
    if how == "open":
        part = Group().add(Sheet([(0, 0), (.4, .03), (.9, .10), (1.36, .30)], .012, d - .04),
                           matt(rgb("#f7f1e2"), .85, .15), (-w / 2 + .1, h, 0))
        g.join(part)
    g = g.placed((0, 0, 0), (0, 20, 0))
    if how == "stack":
        return g.placed((0, h + .1, 0), (0, -36, 0)).join(g)
    return g


def pen(p, how="front"):
    g = Group()
    if p.has("plume"):
        brass = steel(p.c1, p.key, rough=.14, strength=.05)
        black = lacquer(p.c2, .08)
        barrel = [(.001, 1.5), (.06, 1.47), (.115, 1.35), (.125, .8), (.125, .12), (.11, .10)]
        g.add(turned(barrel[::-1]), brass)
        g.add(turned([(.075, -.36), (.085, -.30), (.10, .0), (.108, .12)]), black)
        g.add(Ring(.108, .016), steel(BRASS, rough=.1), (0, .11, 0))
        nib = spline([(0, -.86), (-.045, -.66), (-.085, -.46), (-.06, -.30), (.06, -.30), (.085, -.46), (.045, -.66),
                      (0, -.86)])
        gold = Material(lambda x, y, z, n: blend(solid(BRASS, len(x)), rgb("#3a2f20"),
                                                 np.maximum(step(-.006, -np.abs(x), .006) * (y < -.50),
                                                     step(-.022, -np.sqrt(x * x + (y + .50) ** 2), .008))), .12,
                                                     metal=True)
        g.add(Board(nib, .03, .012), gold, (0, 0, .05))
        g.add(turned([(.001, -.84), (.02, -.7), (.05, -.46), (.07, -.34)]), black, (0, 0, .0))
        cap = Group().add(turned([(.14, 0), (.145, .02), (.14, .5), (.13, .95), (.09, 1.04), (.001, 1.06)], None),
                          brass)
        cap.add(Ring(.145, .018), steel(BRASS, rough=.1), (0, .04, 0))
        clip = Board(spline([(-.03, 0), (-.035, .6), (-.03, .68), (.03, .68), (.035, .6), (.03, 0), (0, -.06),
                             (-.03, 0)]), .03, .012)
        cap.add(clip, steel(BRASS, rough=.1, brushed="none"), (0, .22, .165)).add(Ball(.035), steel(BRASS, rough=.1),
            (0, .22, .16))
        g = g.placed((0, .13, 0), (-90, 0, 0)).placed((0, 0, 0), (0, -58, 0))
        if how != "closed":
            g.join(cap.placed((0, .15, 0), (-90, 0, 0)).placed((-.15, 0, .75), (0, -72, 0)))
    else:
        w = wood(p.c1, seed=p.key, axis="y", scale=3.2, contrast=1.2, rough=.3, gloss=1.0)
        chrome = steel(mix(p.c2, STEEL, .5), p.key, rough=.06, brushed="none")
        g.add(turned([(.08, -.52), (.115, -.35), (.125, .1), (.12, .62)]), w)
        g.add(turned([(.12, .66), (.125, .9), (.115, 1.3), (.10, 1.42)]), w)
        g.add(turned([(.12, .61), (.132, .62), (.132, .67), (.12, .68)]), chrome)
        g.add(turned([(.001, -.92), (.018, -.90), (.022, -.82), (.055, -.66), (.085, -.50), (.08, -.48)]), chrome)
        g.add(turned([(.10, 1.40), (.11, 1.44), (.08, 1.50), (.05, 1.52), (.045, 1.62), (.001, 1.64)]), chrome)
        clip = Board(spline([(-.03, 0), (-.035, .5), (-.03, .58), (.03, .58), (.035, .5), (.03, 0), (0, -.06),
                             (-.03, 0)]), .03, .012)
        g.add(clip, chrome, (0, .82, .16)).add(Box(.06, .06, .10, .01), chrome, (0, 1.36, .12))
        g = g.placed((0, .13, 0), (-90, 0, 0)).placed((0, 0, 0), (0, -54, 0))
    if how == "case":
        box = Cut(Box(2.9, .30, .62, .05), Moved(Box(2.7, .3, .44, .04), (0, .08, 0)))
        felt = matt(rgb("#2f3a46"), .95, .05)
        tray = Group().add(box, wood(rgb("#7a5233"), seed="case", scale=1.2),
                           (0, .15, 0)).add(Box(2.68, .04, .42, .01), felt, (0, .14, 0))
        core = pen(p, "closed").placed((0, 0, 0), (0, 58 if p.has("plume") else 54, 0)).placed((.30, .12, 0),
            (0, 90, 0))
        return tray.join(core).placed((0, 0, 0), (0, 18, 0))
    if how == "scene":
        page = printed(letter(), lambda x, y, z, n: (x / 2.4 + .5, -z / 3.0 + .5), rgb("#fbf7ec"), .9, .1)
        sheet = Group().add(Box(2.4, .012, 3.0, .003), page, (0, .006, 0))
        return g.placed((.15, .02, -.2)).join(sheet.placed((-.25, 0, .1), (0, 10, 0)))
    return g


def pencil(tone, wood_tone, lead, seed, length=2.3, metal_end=False):
    g = Group()
    body = Lathe([(0, 0), (.088, 0), (.088, length), (0, length)], sides=6)
    g.add(body, lacquer(tone, .2, .9))
    # the sharpened end: bare wood in waves up to the paint, then the lead
    cone_body = Lathe([(0, -.36), (.018, -.36), (.088, .0), (.088, .02), (0, .02)])
    point = Material(lambda x, y, z, n: blend(solid(lead, len(x)), wood_tone, step(-.255, y, .008)), .7, gloss=.3)
    g.add(cone_body, point)
    g.add(Lathe([(0, length - .002), (.07, length - .002), (.07, length + .004), (0, length + .004)], sides=6),
          matt(wood_tone, .7))
    g.add(Lathe([(0, length), (.03, length), (.03, length + .008), (0, length + .008)]), matt(lead, .5))
    if metal_end:
        g.add(Lathe([(.0, length - .22), (.091, length - .22), (.091, length - .19), (0, length - .19)], sides=6),
              lacquer(rgb("#d9b45a"), .2))
    return g


RAINBOW = ["#b02a2a", "#c9452c", "#d9772b", "#e39a2f", "#edc53b", "#d6cf45", "#a3bd43", "#6fa043", "#3f8a4c",
           "#2f7a5f", "#2f8082", "#3aa0b8",
           "#3b83c0", "#2e5ea8", "#34408f", "#4c3a8e", "#6f3d90", "#96408c", "#b8497f", "#d4718f", "#8a5a3a",
           "#5d3f2c", "#7f8285", "#2b2b2d"]


def pencilset(p, how="front"):
    g = Group()
    if p.has("graphite"):
        for k in range(6):
            tone = mix(p.c1, rgb("#1d2b24"), .12 * k)
            one = pencil(tone, p.c2, rgb("#3b3d40"), f"{p.key}{k}", metal_end=True)
            if how == "front":
                g.join(one.placed((0, .08, 0), (-90, 0, 0)).placed((-.62 + k * .25, 0, .08 * math.sin(k * 2.3)),
                    (0, -1.5 + 1.1 * math.sin(k * 1.7), 0)))
            else:
                a, lean = k * 60, 11
                g.join(one.placed((0, .42, 0), (180, 0, 0)).placed((0, 2.3, 0)).placed((0, 0, 0),
                    (0, 0, -lean)).placed((.10, 0, 0), (0, a, 0)))
        if how != "front":
            g.add(turned([(.05, 0), (.48, 0), (.50, .04), (.50, 1.0), (.505, 1.08)], .05),
                  glaze(rgb("#e9e2d2"), rgb("#7a8a94"), "pencil-cup", speckle=.6, foot=.08))
            return g
        return g.placed((0, 0, 0), (0, 32, 0))
    count = 24
    if how == "fan":
        for k in range(count):
            tone = rgb(RAINBOW[k])
            one = pencil(tone, rgb("#d9b98a"), tone, f"{p.key}{k}", 1.9)
            g.join(one.placed((0, .09, 0), (90, 0, 0)).placed((0, 0, -3.55)).placed((0, 0, 0),
                (0, -76 + 152 * k / (count - 1), 0)))
        return g
    w, d = 5.0, 2.9
    tin_m = lacquer(p.c1, .15)
    g.add(Cut(Box(w, .30, d, .06), Moved(Box(w - .12, .3, d - .12, .04), (0, .06, 0))), tin_m, (0, .15, 0))
    for k in range(count):
        tone = rgb(RAINBOW[k])
        one = pencil(tone, rgb("#d9b98a"), tone, f"{p.key}{k}", 2.25)
        g.join(one.placed((0, .16, 0), (-90, 0, 0)).placed((-w / 2 + .26 + k * (w - .52) / 23, 0, 1.05)))
    pic = case_lid(p)
    lid_m = printed(pic, lambda x, y, z, n: (x / (w - .2) + .5, -z / (d - .2) + .5 - 3 * (n[1] < .5)), p.c1, .14, 1.0)
    g.add(Box(w + .04, .10, d + .04, .05), lid_m, (0, .10, -d - .25), (0, 0, 0))
    return g.placed((0, 0, 0), (0, 16, 0))


KINDS = {"notebook": notebook, "spiralnotebook": spiralnotebook, "pen": pen, "pencilset": pencilset}
