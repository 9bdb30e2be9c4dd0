"""Knives, boards, pots, pans and kitchen tools.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian package python3-numpy.
"""
import math

import numpy as np

from canvas import darker, lighter, mix, rgb
from joinery import Cut, Dented, Moved, Stretch
from materials import Material, Noise, blend, cast_iron, enamel, glaze, lacquer, matt, solid, steel, step, wood
from props import herbs, lemon
from solids import Ball, Board, Box, Lathe, Ring, Rod, Wire, arc, rounded_rect, spline
from stock import BEECH, BRASS, COPPER, CREAM, STEEL, ear, faded, inner, knob, lined, rivets, turned
from studio import Group


def lying(group, height, yaw=0):
    """Lays down what was drawn upright in x and y."""
    return group.placed((0, height, 0), (-90, 0, 0)).placed((0, 0, 0), (0, yaw, 0))


def blade_steel(edge_y, seed, tone=STEEL):
    n1 = Noise(seed)

    def colour(x, y, z, n):
        ground = step(edge_y(x), -y, .008)
        line = n1(x * 2, y * 90, z)
        return solid(tone, len(x)) * (.92 + .05 * line + .10 * ground)[:, None]
    return Material(colour, .13, metal=True)


def knife(p, how="front"):
    g = Group()
    c = p.c1
    if p.has("pain"):
        tip = 1.95
        low = [(x, -.13 - .025 * abs(math.sin(x * 13))) for x in np.linspace(.05, 1.8, 120)]
        blade = [(0, .22), (1.75, .20), (1.92, .10), (tip, -.02)] + low[::-1] + [(0, -.12)]
        grip, thick = [(.06, .20), (-.3, .21), (-.8, .17), (-1.15, .20), (-1.26, .12), (-1.22, -.12), (-1.0, -.09),
                       (-.6, -.13), (-.2, -.11), (.06, -.13)], .26
    elif p.has("office"):
        blade = spline([(0, .16), (.5, .15), (.9, .09), (1.18, -.02)]) + spline([(1.18, -.02), (.8, -.10), (.4, -.14),
            (.02, -.14)])
        grip, thick = [(.06, .16), (-.3, .17), (-.7, .13), (-1.0, .17), (-1.09, .05), (-1.02, -.09), (-.6, -.10),
                       (-.25, -.13), (.06, -.11)], .24
    else:
        blade = spline([(-.02, .24), (.6, .24), (1.3, .17), (1.75, .03), (1.98, -.14)]) + spline([(1.98, -.14),
            (1.5, -.25), (.9, -.31), (.3, -.32), (.03, -.32)]) + [(.02, -.10)]
        grip, thick = [(.05, .24), (-.3, .25), (-.7, .19), (-1.05, .22), (-1.28, .20), (-1.34, .02), (-1.2, -.12),
                       (-.95, -.06), (-.55, -.11), (-.15, -.10), (.05, -.14)], .27
    g.add(Board(blade, .034, .012), blade_steel(lambda x: .19 - .05 * x if not p.has("pain") else .09 + 0 * x, p.key))
    body = Board(spline(grip + grip[:1]), thick, thick * .46)
    if p.has("rouge"):
        g.add(body, lacquer(c, .12, .9))
    else:
        g.add(body, wood(c, seed=p.key, axis="x", scale=2.0, contrast=1.25 if p.has("olivier") else .9))
    g.add(Board([(.10, .235 if not p.has("office") else .15), (.10, -.30 if p.has("chef") else -.12), (-.04, -.10),
                 (-.04, .22 if not p.has("office") else .15)], .12, .05), steel(rough=.1, brushed="none"))
    rivets(g, [(-.22, .05), (-.58, .04), (-.94, .06)] if not p.has("office") else [(-.25, .03), (-.72, .03)],
           thick / 2 - .006, .042)
    g = lying(g, thick / 2)
    if how == "board":
        g = g.placed((.1, .17, .25), (0, -16, 0))
        g.join(board_group(p, 3.1, 1.7, .16, BEECH, "knife-board", plain=True))
    return g


def end_grain(tone, dark, seed, cell=.26):
    n1 = Noise(seed)
    n2 = Noise(seed, 2)

    def colour(x, y, z, n):
        i, j = np.floor(x / cell), np.floor(y / cell + .5 * (np.floor(x / cell) % 2))
        u, v = x - (i + .5) * cell, y - (j + .5 - .5 * (i % 2)) * cell
        h = np.sin(i * 12.9 + j * 78.2) * 43758.5
        h = h - np.floor(h)
        k = np.sin(i * 3.7 + j * 17.3) * 9157.1
        k = k - np.floor(k)
        ring = np.sqrt((u + .3 - .5 * k) ** 2 + (v + .34 * h - .1) ** 2) * 42 + .8 * n1(x * 5, y * 5, z)
        out = blend(lighter(tone, .12), dark, .15 + .32 * (ring % 1) ** 2 + .45 * h + .1 * n2(x * 60, y * 60, z * 60))
        joint = np.minimum(cell / 2 - np.abs(u), cell / 2 - np.abs(v))
        out = blend(out, darker(dark, .4), np.exp(-(joint / .007) ** 2) * .6)
        side = np.abs(n[2]) < .5
        strip = blend(tone, dark, .3 + .4 * (np.sin(np.floor(x / cell) * 5.3 + np.floor(y / cell) * 3.1) * .5 + .5)
                      + .15 * n2(x * 70, y * 70, z * 4))
        return np.where(side[:, None], strip, out)
    return Material(colour, .5, .045, gloss=.6)


def board_group(p, w, h, thick, tone, seed, plain=False, groove=False, material=None, hole=True):
    body = Board(rounded_rect(w, h, .16), thick, .035)
    if hole:
        cut = Moved(Board(rounded_rect(.16, .5, .079), thick * 2, .02), (-w / 2 + .24, 0, 0))
        body = Cut(body, cut)
    if groove:
        body = Cut(body, Moved(Wire(rounded_rect(w - .44, h - .28, .1) + rounded_rect(w - .44, h - .28, .1)[:1], .05),
                               (.08 if hole else 0, 0, thick / 2 + .01)))
    return lying(Group().add(body, material or wood(tone, seed=seed, scale=1.3, rough=.5, gloss=.6)), thick / 2)


def bamboo(tone, dark, seed):
    n1 = Noise(seed)

    def colour(x, y, z, n):
        i = np.floor(y / .17)
        h = np.sin(i * 12.9) * 43758.5
        h = h - np.floor(h)
        fibre = n1(x * 2, y * 80, z * 80)
        out = blend(lighter(tone, .15), dark, .15 + .55 * h + .16 * fibre)
        knot = np.abs((x + h * 3) % 1.1 - .5)
        out = blend(out, darker(dark, .2), np.exp(-(knot / .012) ** 2) * .5)
        return blend(out, darker(dark, .25), np.exp(-((y / .17 - i - .02) / .03) ** 2) * .4)
    return Material(colour, .45, .045, gloss=.7)


def board(p, how="front"):
    if p.has("bout"):
        g = board_group(p, 2.3, 1.6, .34, p.c1, p.key, material=end_grain(p.c1, p.c2, p.key), hole=False)
    else:
        g = board_group(p, 2.5, 1.55, .16, p.c1, p.key, groove=True, material=bamboo(p.c1, p.c2, p.key))
    if how == "used":
        top = .34 if p.has("bout") else .16
        g.join(lemon(.30).placed((.45, top, -.12)))
        g.join(lemon(.27, half=True).placed((-.05, top, .28), (0, 30, 0)))
        g.join(herbs(7, "board").placed((-.5, top, -.25), (0, 20, 0)))
    return g


def knifeblock(p, how="front"):
    g = Group()
    body = Cut(Board(spline([(-.62, .02), (.55, .02)]) + [(.66, .12), (.20, 1.42), (.10, 1.47), (-.80, 1.05),
                                                          (-.84, .95)], .72, .05))
    g.add(body, wood(p.c1, seed=p.key, axis="y", scale=1.4, contrast=1.2))
    grip = spline([(-.10, 0), (-.12, .3), (-.09, .62), (-.11, .78), (0, .82), (.10, .76), (.08, .4), (.10, 0),
                   (-.10, 0)])
    m = lacquer(p.c2, .25, .7)
    shine = steel(rough=.1, brushed="none")
    for along, side, size in ((.18, .18, .92), (.18, -.18, .86), (.47, .18, .80), (.47, -.18, .74), (.76, 0, .68)):
        x, y = .10 - .90 * along, 1.47 - .42 * along
        h = Group().add(Board(grip, .2, .09), m)
        h.add(Rod((0, .18, -.1), (0, .18, .1), .03), shine).add(Rod((0, .52, -.1), (0, .52, .1), .03), shine)
        h.add(Board([(-.1, -.06), (.1, -.06), (.1, .015), (-.1, .015)], .17, .02), shine)
        g.join(h.placed((0, .04, 0), (0, 0, 0), size).placed((x, y, side), (0, 0, 25)))
    return g.placed((0, 0, 0), (0, -38 if how != "side" else 12, 0))


def lid(outer, material, knob_material, at, size=.13):
    line = spline(outer)
    top = line[-1][1]
    g = Group().add(Lathe([(0, line[0][1] - .02)] + line + [(0, top)]), material)
    return g.join(knob(size, knob_material, (0, top - .02, 0))).placed((0, at, 0))


def casserole(p, how="front"):
    g = Group()
    deep = darker(p.c1, .45)
    coat = faded(p.c1, deep, .02, .5, p.key)
    inside = enamel(CREAM, p.key)
    pot = turned([(.05, 0), (.82, 0), (.97, .07), (1.01, .3), (1.02, .86)], .065)
    cover = [(1.03, 0), (1.04, .05), (.92, .13), (.55, .24), (.2, .29), (.001, .30)]
    sx = 1.28 if p.has("ovale") else 1.0
    g.items += Group().add(Stretch(pot, sx, 1, 1), lined(coat, inside)).items
    for s in (1, -1):
        g.join(ear(.62, .26, .06, coat, (s * .97 * sx, .68, 0), s))
    top = Group()
    line = spline(cover)
    lid_body = Lathe([(0, -.06), (.94, -.06), (.95, 0)] + line)
    tone = Material(lambda x, y, z, n: blend(p.c1, deep, .75 - np.sqrt((x / sx) ** 2 + z * z) * .1 - y * 2.4), .07,
                    .055, gloss=1.3)
    top.add(Stretch(lid_body, sx, 1, 1), tone)
    ring = steel(BRASS if p.has("ovale") else STEEL, rough=.12)
    top.join(knob(.15, ring, (0, .27, 0)))
    if how == "open":
        g.join(top.placed((1.3 * sx + .35, .08, .85), (0, 20, 0)))
        soup = Lathe([(0, .45), (.94, .45), (.94, .5), (0, .5)])
        n1 = Noise("stew")
        broth = Material(lambda x, y, z, n: blend(rgb("#c9762f"), rgb("#8f3f1c"), .5 + .6 * n1.rough(x * 5, y, z * 5)),
                         .15, .05,
                         bump=lambda x, y, z: .02 * n1(x * 7, y, z * 7), grain=.02)
        g.add(Stretch(soup, sx, 1, 1), broth)
        r = np.random.Generator(np.random.PCG64(5))
        for k in range(16):
            a, d = r.random() * 6.3, r.random() ** .5 * .75
            g.add(Stretch(Ball(.11), 1, .6, 1), matt(rgb(("#e08a2e", "#7d9c4a", "#d9a25a", "#a5472a")[k % 4]),
                                                     seed="veg"), (d * math.cos(a) * sx, .50, d * math.sin(a)))
    else:
        g.join(top.placed((0, .86, 0)))
    return g.placed((0, 0, 0), (0, -22, 0))


def long_handle(material, length=1.5, at=.8, y=.62, r=.07, rise=.16, flat=True):
    g = Group()
    pts = spline([(0, 0), (.25, .10), (length * .6, rise * .8), (length, rise)])
    g.add(Wire(pts, r, flat=.6), material)
    return g.placed((at, y, 0))


def pan_body(rim, low, height, wall=.045):
    return turned([(.05, 0), (low - .06, 0), (low, .03), ((low + rim) / 2 + .01, height * .5), (rim, height)], wall)


def copper_coat(p):
    return steel(p.c1, p.key, rough=.12, strength=.04)


def saucepan(p, how="front"):
    body = turned([(.05, 0), (.72, 0), (.80, .05), (.81, .3), (.82, .80), (.86, .84)], .035)
    g = Group().add(body, steel(mix(p.c1, STEEL, .5), p.key, rough=.14))
    grip = steel(rough=.18, brushed="none")
    h = Group().add(Board(spline([(0, -.07), (.5, -.05), (1.1, -.08), (1.45, -.07), (1.52, 0), (1.45, .07), (1.1, .08),
                                  (.5, .05), (0, .07)]), .10, .045,
                          holes=[arc(1.38, 0, .035, 0, 350)]), grip)
    g.join(h.placed((0, 0, 0), (-90, 0, 0)).placed((0, 0, 0), (0, 0, 9)).placed((.79, .60, 0)))
    if how == "open":
        g.add(Lathe([(0, .3), (.775, .3), (.775, .36), (0, .36)]), lacquer(rgb("#e9e2d0"), .08))
    elif how == "lid" or p.pick("lid", 2) == 0:
        cover = lid([(.85, 0), (.85, .03), (.6, .1), (.2, .14), (.001, .14)], steel(STEEL, "lid", rough=.12),
                    lacquer(p.c2, .3, .7), .84, .11)
        g.join(cover)
    return g.placed((0, 0, 0), (0, -32, 0))


def pan(p, how="front"):
    if p.has("cuiv"):
        outside = copper_coat(p)
        body = turned([(.05, 0), (.98, 0), (1.06, .05), (1.08, .2), (1.10, .48)], .045)
        inside = steel(STEEL, p.key, rough=.2)
        mat = Material(lambda x, y, z, n: blend(outside.tone(x, y, z, n), inside.tone(x, y, z, n),
                                                inner(x, y, z, n, .2)), .14, metal=True)
        g = Group().add(body, mat)
        grip = Board(spline([(0, -.06), (.5, -.05), (1.2, -.075), (1.5, -.06), (1.56, 0), (1.5, .06), (1.2, .075),
                             (.5, .05), (0, .06)]), .09, .03, holes=[arc(1.42, 0, .035, 0, 350)])
        h = Group().add(grip, cast_iron(rgb("#4a4038"), rough=.45))
        g.join(h.placed((0, 0, 0), (-90, 0, 0)).placed((0, 0, 0), (0, 0, 12)).placed((1.06, .34, 0)))
        for z in (-.1, 0, .1):
            g.add(Ball(.03), steel(COPPER, rough=.1, brushed="none"), (1.09, .36, z))
    else:
        n1 = Noise(p.key)
        iron = Material(lambda x, y, z, n: blend(p.c1, p.c2, .3 + .4 * n1.rough(x * 3, y * 3, z * 3)), .30, metal=True)
        g = Group().add(pan_body(1.12, .84, .30), iron)
        grip = Board(spline([(0, -.12), (.25, -.05), (1.1, -.07), (1.6, -.07), (1.68, 0), (1.6, .07), (1.1, .07),
                             (.25, .05), (0, .12)]), .05, .015, holes=[arc(1.55, 0, .04, 0, 350)])
        h = Group().add(grip, iron)
        g.join(h.placed((0, 0, 0), (-90, 0, 0)).placed((0, 0, 0), (0, 0, 15)).placed((1.0, .2, 0)))
    if how == "used":
        white = lacquer(rgb("#f8f5ec"), .2, .7)
        yolk = lacquer(rgb("#efa21f"), .08)
        for x, z, s in ((-.3, .1, 1), (.32, -.15, .92)):
            blob = spline([(.34 * s * (1 + .16 * math.sin(a * 3 + x * 9)) * math.cos(a),
                            .34 * s * (1 + .16 * math.sin(a * 3 + x * 9)) * math.sin(a)) for a in np.linspace(0,
                                2 * math.pi, 14)])
            egg = Group().add(Board(blob, .06, .028), white).add(Stretch(Ball(.13), 1, 1, .7), yolk, (0, 0, .03))
            g.join(egg.placed((x, .08, z), (-90, 0, 0)))
    return g.placed((0, 0, 0), (0, -35, 0))


def pot(p, how="front"):
    body = turned([(.05, 0), (.92, 0), (1.0, .06), (1.0, .4), (1.0, 1.0), (1.04, 1.05)], .035)
    mat = steel(mix(p.c1, STEEL, .5), p.key, rough=.13)
    g = Group().add(body, mat)
    grip = steel(rough=.12, brushed="none")
    for s in (1, -1):
        g.join(ear(.56, .24, .045, grip, (s * .98, .80, 0), s))
    cover = lid([(1.03, 0), (1.03, .04), (.8, .13), (.3, .20), (.001, .21)], steel(STEEL, "lid", rough=.10),
                steel(rough=.1, brushed="none"), 0, .13)
    if how == "open":
        g.join(cover.placed((1.75, .06, .55)))
        g.add(Lathe([(0, .5), (.96, .5), (.96, .56), (0, .56)]), lacquer(rgb("#c9b27a"), .06))
    else:
        g.join(cover.placed((0, 1.05, 0)))
    return g.placed((0, 0, 0), (0, -18, 0))


def spatula(p, how="front"):
    head = [(1.0, .28), (1.75, .30), (1.80, .22), (1.62, -.24), (1.5, -.28), (1.05, -.20)]
    line = spline([(-1.7, .06), (-1.2, .075), (-.2, .055), (.6, .07), (.92, .22)] + head + [(.85, -.10), (.5, -.06),
        (-.2, -.055), (-1.2, -.075), (-1.7, -.06), (-1.76, 0), (-1.7, .06)], 8)
    body = Board(line, .11, .05)
    cut = Moved(Board(arc(-1.58, 0, .035, 0, 350), .4, .01), (0, 0, 0))
    g = Group().add(Cut(body, cut), wood(p.c1, p.c2, seed=p.key, scale=1.8))
    return lying(g, .055)


def whisk(p, how="front"):
    m = steel((.84, .85, .86), p.key, rough=.10, brushed="none")
    g = Group()
    loop = spline([(.0, .05), (.5, .20), (1.05, .40), (1.45, .36), (1.66, .12), (1.70, 0)])
    loop = loop + [(x, -y) for x, y in loop[::-1]]
    for k in range(5):
        g.items += Group().add(Wire(loop, .013, cells=260), m, turn=(k * 36, 0, 0)).items
    inner_loop = [(x * .93, y * .72) for x, y in loop]
    for k in range(3):
        g.items += Group().add(Wire(inner_loop, .013, cells=260), m, turn=(18 + k * 60, 0, 0)).items
    grip = turned([(.06, 0), (.075, .1), (.085, .5), (.095, 1.0), (.09, 1.3), (.05, 1.38), (.001, 1.40)])
    g.add(grip, steel((.80, .81, .83), p.key + "g", rough=.2), turn=(0, 0, 90))
    g.add(Ring(.075, .02), m, (0, 0, 0), (0, 0, 90)).add(Ring(.07, .018), m, (-1.47, 0, 0), (90, 0, 0))
    return g.placed((0, .40, 0), (0, 0, -12)).placed((0, -.02, 0))


def ladle(p, how="front"):
    shell = enamel(p.c1, p.key, edge=p.c2, edge_at=-.02)
    bowl = turned([(.02, -.34), (.25, -.31), (.42, -.20), (.50, 0)], .035, -.30)
    g = Group().add(bowl, shell)
    pts = spline([(.48, -.05), (.60, .35), (.66, .9), (.62, 1.5), (.60, 1.95), (.72, 2.06), (.82, 1.95), (.80, 1.84)])
    g.add(Wire(pts, .05, flat=.75), enamel(p.c1, p.key))
    g.add(Ball(.055), enamel(p.c2), (.80, 1.83, 0))
    return g.placed((0, .34, 0), (0, 0, 0)).placed((0, 0, 0), (0, 18, 0)).placed((0, .0, 0),
        (0, 0, -64)).placed((0, .30, 0))


def rollingpin(p, how="front"):
    roll = turned([(.02, -1.1), (.26, -1.09), (.29, -1.02), (.29, 0), (.29, 1.02), (.26, 1.09), (.02, 1.1)])
    grip = turned([(.05, 1.08), (.08, 1.14), (.11, 1.35), (.12, 1.55), (.08, 1.72), (.001, 1.76)])
    m = wood(p.c1, p.c2, seed=p.key, axis="y", scale=1.2, contrast=.8)
    h = wood(darker(p.c1, .06), p.c2, seed=p.key + "h", axis="y", scale=1.6)
    g = Group().add(roll, m).add(grip, h).add(grip, h, turn=(180, 0, 0))
    return g.placed((0, .29, 0), (0, 0, 90)).placed((0, 0, 0), (0, -24, 0))


def holes(x, y, z, low=.12, high=.80):
    a = np.arctan2(z, x)
    r = np.sqrt(x * x + z * z)
    ring = np.round((y - low) / .12)
    yy = np.abs(y - low - ring * .12)
    count = 26.0
    aa = (a / (2 * math.pi) * count + .5 * (ring % 2)) % 1 - .5
    d = np.sqrt((aa * 2 * math.pi / count * r) ** 2 + (yy * 1.15) ** 2)
    return np.clip((.030 - d) / .008, 0, 1) * (y > low - .05) * (y < high)


def colander(p, how="front"):
    body = turned([(.05, .10), (.45, .12), (.78, .30), (.98, .62), (1.04, .94), (1.10, .97)], .035)
    dark = rgb("#1d2733")
    coat, inside = enamel(p.c1, p.key), enamel(p.c2, p.key)

    def colour(x, y, z, n):
        out = blend(coat.tone(x, y, z, n), inside.tone(x, y, z, n), inner(x, y, z, n, .16))
        h = holes(x, y, z, .30, .80)
        return blend(out, dark, h)
    g = Group().add(body, Material(colour, .05, .055, gloss=1.2))
    g.add(turned([(.46, 0), (.50, 0), (.47, .08), (.44, .14)], .03), enamel(p.c1, p.key))
    for s in (1, -1):
        g.join(ear(.52, .22, .045, enamel(p.c1, p.key), (s * 1.03, .84, 0), s))
    if how == "used":
        for k in range(9):
            d = .25 + .35 * (k % 2)
            g.add(Ball(.26), lacquer(rgb(("#b5322a", "#c9482f", "#a82822")[k % 3]), .1),
                  (d * math.cos(k * .7), .72 + .1 * (k % 3), d * math.sin(k * .7)))
    return g.placed((0, 0, 0), (0, -14, 0))


def grater(p, how="front"):
    plate = Board(rounded_rect(1.9, .42, .06), .03, .01)

    def bump(x, y, z):
        u, v = x / .07 % 1 - .5, (y / .07 + .5 * (np.floor(x / .07) % 2)) % 1 - .5
        return .02 * np.exp(-(u * u + v * v) * 22) * (np.abs(x) < .85) * (np.abs(y) < .17)
    g = Group().add(plate, Material(STEEL, .14, metal=True, bump=bump, grain=.006), (.9, 0, 0))
    grip = Board(spline([(-.05, -.13), (-.5, -.12), (-1.0, -.15), (-1.18, 0), (-1.0, .15), (-.5, .12), (-.05, .13),
                         (0, 0), (-.05, -.13)]), .2, .09)
    g.add(grip, wood(p.c2, seed=p.key, scale=2))
    return lying(g, .1)


def ovendish(p, how="front"):
    w, d, h, wall = 2.3, 1.5, .55, .09
    outer = Dented(Box(w, h, d, .20), lambda x, y, z: np.clip(y, -.3, .3) * .14, .85)
    cave = Moved(Dented(Box(w - 2 * wall, h, d - 2 * wall, .16), lambda x, y, z: np.clip(y, -.3, .3) * .14, .85),
                 (0, wall + .02, 0))
    n1 = Noise(p.key)

    def colour(x, y, z, n):
        out = blend(p.c1, darker(p.c1, .3), .4 * n1.rough(x * 3, y * 3, z * 3) + .2)
        run = .09 * n1(x * 3, 1 + y * 0, z * 3) + .05 * n1(x * 8, y * 0, z * 8)
        glazed = step(.02, y + run, .012)
        inside = (n[0] * x / w ** 2 + n[2] * z / d ** 2 < -.02) | ((n[1] > .6) & (y < .1))
        cream = blend(p.c2, darker(p.c2, .25), .25 + .3 * n1(x * 6, y * 6, z * 6))
        return blend(out, cream, np.maximum(glazed, inside))
    top = Moved(Box(w * 2, .3, d * 2, .01), (0, h / 2 + .13, 0))
    g = Group().add(Cut(outer, cave, top), Material(colour, .14, .05, gloss=1.1), (0, h / 2, 0))
    m = glaze(p.c1, p.c2, p.key)
    for s in (1, -1):
        g.join(ear(.6, .2, .07, m, (s * (w / 2 - .02), .42, 0), s))
    if how == "used":
        crust = Dented(Box(w - .25, .14, d - .25, .06), lambda x, y, z: .03 * n1(x * 6, y * 6, z * 6))
        tone = Material(lambda x, y, z, n: blend(rgb("#e8b24f"), rgb("#9c5a22"), .5 + .7 * n1.rough(x * 4, y, z * 4)),
                        .4, gloss=.6)
        g.add(crust, tone, (0, .36, 0))
    return g.placed((0, 0, 0), (0, -20, 0))


KINDS = {"knife": knife, "board": board, "knifeblock": knifeblock, "casserole": casserole, "saucepan": saucepan,
         "pan": pan, "pot": pot,
         "spatula": spatula, "whisk": whisk, "ladle": ladle, "rollingpin": rollingpin, "colander": colander,
         "grater": grater, "ovendish": ovendish}
