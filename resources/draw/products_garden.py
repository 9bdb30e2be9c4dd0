"""Pots, planters and garden tools.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian package python3-numpy.
"""
import math

import numpy as np

from canvas import darker, lighter, mix, rgb, rng
from joinery import Cut, Dented, Moved, Stretch
from materials import Material, Noise, blend, clay, cloth, glaze, lacquer, leather, matt, steel, step, tinned, wood
from props import plant
from solids import Ball, Board, Box, Lathe, Pillow, Ring, Rod, Spout, Wire, spline
from stock import BRASS, STEEL, dish, ear, stripes, turned
from studio import Group

SOIL = rgb("#4a3626")


def earth(r, y):
    n1 = Noise("soil")
    body = Dented(Lathe([(0, y - .08), (r, y - .08), (r, y), (0, y + .02)]), lambda x, yy,
                  z: .025 * n1(x * 14, yy * 14, z * 14))
    return body, Material(lambda x, yy, z, n: blend(SOIL, darker(SOIL, .5), .5 + .6 * n1(x * 22, yy * 22, z * 22)),
                          .95, gloss=.1)


def flowerpot(p, how="front"):
    g = Group()
    planted = how in ("planted", "scene")
    if p.has("terre"):
        m = clay(p.c1, p.key, lime=.5)
        g.add(dish([[(.05, .06), (.56, .06)], [(.58, .10), (.72, .74)], [(.80, .76), (.83, 1.06)]], .07), m)
        g.add(dish([[(.05, 0), (.70, 0)], [(.72, .02), (.80, .14)]], .05), clay(darker(p.c1, .06), p.key + "s"))
        rim, r = 1.0, .68
    else:
        m = glaze(p.c1, p.c2, p.key, rim=.96, drip=.22, pool=.35, rough=.07, foot=.06)
        g.add(turned([(.05, 0), (.48, 0), (.54, .04), (.74, .35), (.80, .68), (.76, .96), (.84, 1.06)], .06), m)
        rim, r = .92, .68
    if planted or (p.has("bleu") and how != "empty"):
        g.add(*earth(r, rim - .10))
        tone = rgb("#5f8f4d") if p.has("terre") else rgb("#4f7f56")
        g.join(plant(p.key, 1.15, tone, 24, (.36, .15) if p.has("terre") else (.46, .09)).placed((0, rim - .12, 0)))
    return g


def planter(p, how="front"):
    w, h, d = 2.8, .72, .82
    zinc = tinned(p.c1, p.key, .09)
    outer, cave = Box(w, h, d, .05), Box(w - .08, h, d - .08, .03)
    g = Group()
    g.add(Cut(outer, Moved(cave, (0, .05, 0))), zinc, (0, h / 2, 0))
    for s in (-1, 1):
        g.add(Rod((-w / 2, h - .01, s * d / 2), (w / 2, h - .01, s * d / 2), .035), zinc)
        g.add(Rod((s * w / 2, h - .01, -d / 2), (s * w / 2, h - .01, d / 2), .035), zinc)
        g.add(Ring(.13, .024), tinned(p.c2, p.key + "r"), (s * (w / 2 + .03), h * .60, 0), (0, 0, 80 * s))
        g.add(Box(w - .3, .025, .02, .01), zinc, (0, h * .30, s * d / 2))
    if how != "empty":
        g.add(Box(w - .1, .1, d - .1, .03), earth(.5, .5)[1], (0, h - .14, 0))
        r = rng("lavender", p.key)
        stem, bloom = matt(rgb("#7f9470"), .8, .2, seed="st", vary=.1, wrap=.2), matt(rgb("#7c68b0"), .8, .2,
            seed="lav", vary=.2, wrap=.25)
        stalk, spike = Rod((0, 0, 0), (0, .7, 0), .014, .010), Rod((0, .7, 0), (0, .92, 0), .044, .018)
        for _ in range(110):
            x, z = (r.random() - .5) * (w - .4), (r.random() - .5) * (d - .3)
            turn, size = (9 * r.normal(), 0, 9 * r.normal()), .75 + .45 * r.random()
            g.add(stalk, stem, (x, h - .12, z), turn, size).add(spike, bloom, (x, h - .12, z), turn, size)
    return g.placed((0, 0, 0), (0, -22, 0))


def woven(p, count=40, row_high=.085):
    """Colour and relief of wickerwork: rods going in front of and behind their stakes."""
    n1 = Noise(p.key)

    def wave(x, y, z):
        a = np.arctan2(z, x) / (2 * math.pi) * count
        v = y / row_high
        j = np.floor(v)
        return a, v, j, np.sin(a * math.pi + j * math.pi)

    def relief(x, y, z):
        a, v, j, s = wave(x, y, z)
        bulge = np.sqrt(np.clip(1 - ((v - j - .5) * 2) ** 2, 0, 1))
        return .028 * bulge + .022 * s * bulge

    def colour(x, y, z, n):
        a, v, j, s = wave(x, y, z)
        h = np.sin(j * 12.99) * 43758.5
        h = h - np.floor(h)
        out = blend(lighter(p.c1, .08), p.c2, .15 + .5 * h + .2 * n1(x * 30, y * 30, z * 30))
        groove = np.exp(-(np.minimum(v - j, 1 - v + j) / .13) ** 2)
        return blend(out, darker(p.c2, .6), groove * .7 + .25 * np.clip(-s, 0, 1))
    return relief, Material(colour, .55, .045, gloss=.6)


def basketpot(p, how="front"):
    relief, m = woven(p)
    body = Dented(turned([(.05, 0), (.60, 0), (.66, .04), (.76, .4), (.80, .8), (.82, 1.02)], .07), relief, .75)
    g = Group().add(body, m)
    twist = Material(lambda x, y, z, n: blend(p.c1, darker(p.c2, .2), stripes(np.arctan2(z, x), .12, .3, .03)), .55)
    g.add(Dented(Ring(.80, .05), lambda x, y, z: .012 * np.sin(np.arctan2(z, x) * 52 + np.arctan2(y,
        np.sqrt(x * x + z * z) - .8) * 2)), twist, (0, 1.03, 0))
    for s in (1, -1):
        g.join(ear(.42, .16, .04, twist, (s * .80, .86, 0), s))
    if how != "empty":
        g.add(*earth(.72, .90))
        g.join(plant(p.key, 1.25, rgb("#5b8750"), 20, (.50, .20)).placed((0, .86, 0)))
    return g


def hangingpot(p, how="front"):
    lift = 1.0
    skin = glaze(p.c1, p.c2, p.key, speckle=.6, foot=.16, rough=.25)
    g = Group().add(turned([(.05, .02), (.30, .0), (.52, .10), (.70, .36), (.74, .62), (.72, .72)], .05), skin,
                    (0, lift, 0))
    rope = Material(lambda x, y, z, n: blend(p.c2, lighter(p.c2, .4), stripes(y + x * .5 + z * .5, .05, .5, .01)), .9,
                    gloss=.15)
    n = 3
    for k in range(n):
        a = math.radians(90 + 360 / n * k)
        x, z = .73 * math.cos(a), .73 * math.sin(a)
        g.add(Rod((x, lift + .62, z), (.02 * math.cos(a), lift + 2.35, .02 * math.sin(a)), .022), rope)
        g.add(Ball(.05), wood(rgb("#b98d5a"), seed="bead", scale=4), (x, lift + .66, z))
    g.add(Ring(.10, .022), steel(BRASS, rough=.15), (0, lift + 2.42, 0), (90, 0, 0))
    up = matt(p.c2, .9)
    up.backdrop = True
    g.add(Rod((0, lift + 2.5, 0), (0, lift + 4, 0), .02), up)
    if how != "empty":
        g.add(*earth(.66, lift + .64))
        r = rng("trail", p.key)
        m = matt(rgb("#6d9a63"), .6, .5, seed="leaf", vary=.14, wrap=.2)
        outline = spline([(0, 0), (.05, .055), (.12, .05), (.17, 0), (.12, -.05), (.05, -.055), (0, 0)])
        blade = Pillow(outline, .03, .05)
        for k in range(16):
            a = r.random() * 2 * math.pi
            length, out = .35 + .75 * r.random(), .70 + .12 * r.random()
            for i in range(int(4 + length * 9)):
                t = i / (4 + length * 9)
                rad = .3 + (out - .3) * min(1, t * 3)
                y = lift + .72 + .16 * math.sin(min(t * 3, 1) * math.pi) - max(0, t - .25) * length * 1.35
                x, z = rad * math.cos(a + .15 * math.sin(t * 7)), rad * math.sin(a + .15 * math.sin(t * 7))
                g.add(blade, m, (x, y, z), (-50 + 40 * r.normal(), -math.degrees(a) + 60 * r.normal(), -40),
                      .9 + .5 * r.random())
    return g


def tool_handle(p, length=1.3):
    line = [(.06, 0), (.085, .05), (.075, .25), (.10, .6), (.115, .9), (.10, length - .14), (.06, length - .02),
            (.001, length)]
    return turned(line), wood(p.c1, seed=p.key, axis="y", scale=2.4)


def trowel(p, how="front"):
    m = tinned(mix(p.c2, STEEL, .4), p.key, .05)
    g = Group()
    outline = spline([(-.12, .0), (-.28, -.10), (-.33, -.5), (-.26, -.9), (0, -1.32), (.26, -.9), (.33, -.5),
                      (.28, -.10), (.12, 0)])
    curved = Dented(Board(outline + outline[:1], .05, .018), lambda x, y, z: 0 * x)

    class Bent(type(curved)):
        """The blade bent into a gutter."""
        def distance(self, x, y, z):
            return self.body.distance(x, y, z - .55 * x * x - .04 * np.cos(y * 2))
    scoop = Bent(curved.body, curved.relief, .75)
    g.add(scoop, m)
    g.add(Wire(spline([(0, -.18), (.0, .04), (.06, .14), (.05, .30)]), .055), m, (0, 0, 0), (0, 90, 0))
    g.add(turned([(.06, .24), (.085, .27), (.08, .42), (.06, .44)]), m, (0, 0, -.04))
    h, w = tool_handle(p)
    g.add(h, w, (0, .40, -.04))
    cord_m = leather(rgb("#6a4430"))
    g.add(Wire(spline([(0, 0), (.12, .16), (.10, .34), (0, .38), (-.08, .30), (0, 0)]), .02), cord_m, (0, 1.62, -.04))
    return lying(g)


def lying(g, yaw=0, lift=.14):
    return g.placed((0, lift, 0), (-90, 0, 0)).placed((0, 0, 0), (0, yaw, 0))


def handrake(p, how="front"):
    m = tinned(mix(p.c2, STEEL, .3), p.key, .05)
    g = Group()
    for k in (-1, 0, 1):
        pts = spline([(0, .30), (0, .1), (.02, -.25), (.05, -.62), (.16, -.92), (.34, -1.02)])
        g.items += Group().add(Wire(pts, .042, flat=.75), m).placed((0, 0, 0), (0, -90, 0)).placed((0, 0, 0),
            (0, 0, k * 17)).placed((k * .02, 0, 0)).items
    g.add(turned([(.06, .20), (.10, .22), (.09, .42), (.06, .44)]), m)
    h, w = tool_handle(p, 1.35)
    g.add(h, w, (0, .40, 0))
    return lying(g, lift=.16)


def secateur(p, how="front"):
    metal = steel((.72, .73, .75), p.key, rough=.14, brushed="x")
    dark = steel((.45, .46, .48), p.key + "d", rough=.25, brushed="none")
    grip = lacquer(p.c1, .25, .8)
    g = Group()
    blade = spline([(0, .10), (.30, .30), (.70, .40), (1.05, .30), (1.22, .10)]) + spline([(1.22, .10), (.9, .12),
        (.55, .06), (.2, -.10), (0, -.12)])
    hook = spline([(0, .02), (.30, -.22), (.70, -.26), (1.0, -.10), (1.12, .10)]) + spline([(1.12, .10), (.9, .06),
        (.62, -.04), (.35, .02), (.1, .12)])
    g.add(Board(blade, .07, .02), metal, (0, 0, .035)).add(Board(hook, .10, .03), dark, (0, 0, -.05))
    for s in (1, -1):
        neck = spline([(.12, -.10 * s), (.02, .12 * s), (-.3, .14 * s), (-.5, .20 * s), (-.52, .34 * s),
                       (-.25, .30 * s), (0, .22 * s), (.15, .1 * s)])
        g.add(Board(neck, .12, .04), dark, (0, 0, -.02 * s))
        h = spline([(-.35, .16 * s), (-.8, .18 * s), (-1.35, .22 * s), (-1.72, .36 * s), (-1.80, .50 * s),
                    (-1.66, .54 * s), (-1.2, .42 * s), (-.75, .40 * s), (-.4, .36 * s), (-.30, .26 * s),
                    (-.35, .16 * s)])
        g.add(Board(h, .22, .10), grip, (0, 0, -.01 * s))
    g.add(Rod((0, 0, -.14), (0, 0, .13), .11), steel(BRASS, rough=.12, brushed="none"))
    g.add(Rod((0, 0, .1), (0, 0, .18), .05), dark)
    for k in range(9):
        g.add(Ring(.07, .015), metal, (-.42, -.14 + k * .035, 0))
    g = lying(g, lift=.12)
    if how == "scene":
        rose(g)
    return g


def rose(g):
    """Cut stems with leaves and one bloom beside the blades."""
    green = matt(rgb("#4f7a45"), .6, .5, seed="rose", vary=.1)
    g.add(Rod((-.9, .06, -1.0), (1.3, .10, -.72), .035, .03), green)
    outline = spline([(0, 0), (.10, .10), (.25, .11), (.42, 0), (.25, -.11), (.10, -.10), (0, 0)])
    for x, a in ((-.5, 40), (-.1, -50), (.3, 35), (.65, -45)):
        g.add(Pillow(outline, .03, .08), green, (x, .10, -.92 + (x + .9) * .12), (-80, a, 0), 1.1)
    petal = matt(rgb("#d98a92"), .6, .35, seed="petal", vary=.06, wrap=.3)
    bloom = Group()
    for ring, (n, r, tilt, s) in enumerate(((5, .17, 35, 1.0), (5, .11, 58, .85), (4, .05, 75, .7))):
        for k in range(n):
            a = 360 / n * k + ring * 31
            piece = Stretch(Ball(.20), 1, .9, .16)
            bloom.items += Group().add(piece, petal, (0, .06, r), (-90 + tilt + 35, 0, 0), s).placed((0, 0, 0),
                (0, a, 0)).items
    bloom.add(Ball(.10), petal, (0, .10, 0))
    g.join(bloom.placed((1.45, .22, -.70), (0, 0, -75)))


def wateringcan(p, how="front"):
    zinc = tinned(p.c1, p.key, .09)
    dark = tinned(p.c2, p.key + "d", .06)
    g = Group()
    g.add(turned([(.05, 0), (.58, 0), (.60, .03), (.58, .5), (.55, 1.10)], .03), zinc)
    for y in (.06, .12, 1.02):
        g.add(Ring(.59 - .045 * y, .018), zinc, (0, y, 0))
    half_top = Lathe([(0, 1.08), (.56, 1.08), (.56, 1.11), (0, 1.12)])
    g.add(Cut(half_top, _shifted(Box(1.0, 1, 2, .02), (-.58, 1.1, 0))), zinc)
    g.add(Spout([(.48, .22), (.85, .62), (1.20, 1.10), (1.42, 1.36)], [.12, .09, .075, .07], hollow=.02), zinc)
    rose_head = Lathe([(0, .16), (.07, 0), (.09, 0), (.24, .20), (.24, .23), (0, .26)])

    def sieve(x, y, z, n):
        r = np.sqrt(x * x + z * z)
        k = np.round(r / .045)
        a = np.arctan2(z, x) * np.maximum(k, 1) * .95
        dot = np.sqrt(((r / .045 - k)) ** 2 + ((a % 1 - .5) * 1.0) ** 2)
        return blend(dark.tone(x, y, z, n), rgb("#26292b"), step(-.24, -dot, .08) * (n[1] > .7))
    g.add(rose_head, Material(sieve, .35, metal=True), (1.40, 1.33, 0), (0, 0, -48))
    g.add(Rod((.50, .98, 0), (1.02, .86, 0), .03), zinc)
    g.add(Wire(spline([(-.54, .30), (-.92, .42), (-1.10, .80), (-.98, 1.22), (-.62, 1.50), (-.10, 1.56), (.30, 1.40),
                       (.50, 1.10)]), .045, flat=.55), dark)
    g = g.placed((0, 0, 0), (0, -16, 0))
    if how == "scene":
        pot = flowerpot(p_like("pot-terre-cuite", rgb("#b8683f")), "planted")
        g.join(pot.placed((-.15, 0, -1.9), (0, 0, 0), .85))
    return g


def _shifted(body, shift):
    return Moved(body, shift)


class p_like:
    """Just enough of a product to borrow another one's drawing for a scene."""
    def __init__(self, key, c1, c2=(1, 1, 1)):
        self.key, self.c1, self.c2 = key, c1, c2

    def has(self, *words):
        return any(w in self.key for w in words)


def sprayer(p, how="front"):
    brass = steel(p.c1, p.key, rough=.13, strength=.04)
    light = steel(p.c2, p.key + "l", rough=.10, brushed="none")
    g = Group()
    g.add(turned([(.05, 0), (.46, 0), (.50, .04), (.52, .3), (.50, .62), (.36, .86), (.20, .98), (.17, 1.02),
                  (.17, 1.14)]), brass)
    g.add(Ring(.51, .02), light, (0, .10, 0)).add(Ring(.185, .025), light, (0, 1.02, 0))
    g.add(turned([(.05, 1.12), (.21, 1.13), (.21, 1.26), (.12, 1.30), (.11, 1.50), (.05, 1.52)]), light)
    g.add(Rod((0, 1.42, 0), (.46, 1.42, 0), .055, .045), light)
    g.add(turned([(.03, 0), (.075, .01), (.075, .10), (.03, .12)]), light, (.44, 1.42, 0), (0, 0, -90))
    g.add(Rod((0, 1.5, 0), (0, 1.74, 0), .03), light)
    g.add(turned([(.03, 1.72), (.10, 1.75), (.13, 1.80), (.10, 1.86), (.001, 1.88)]),
          wood(rgb("#6a4430"), seed=p.key, axis="y", scale=4))
    g.add(Wire(spline([(-.17, 1.20), (-.42, 1.14), (-.50, .94), (-.40, .74)]), .035, flat=.6), light)
    g.add(Board(spline([(.10, 1.40), (.30, 1.30), (.34, 1.05), (.29, 1.03), (.22, 1.22), (.06, 1.32), (.10, 1.40)]),
                .08, .03), light)
    g = g.placed((0, 0, 0), (0, -22, 0))
    if how == "scene":
        g.join(plant("spray", 1.0, rgb("#5c8a52"), 16, (.42, .16)).placed((-1.1, .46, -.55)))
        g.add(turned([(.05, 0), (.36, 0), (.40, .04), (.48, .5), (.5, .56)], .05), clay(rgb("#b8683f"), "spraypot"),
              (-1.1, 0, -.55)).add(*earth(.42, .5), (-1.1, 0, -.55))
    return g


def glove(p, flip):
    outline = spline([(-.40, -1.0), (-.42, -.5), (-.46, -.1), (-.80, .20), (-.86, .36), (-.74, .44), (-.44, .26),
                      (-.40, .55), (-.40, .95), (-.28, 1.02), (-.19, .92), (-.17, .58),
                      (-.13, .60), (-.11, 1.12), (.02, 1.22), (.11, 1.10), (.11, .60), (.15, .60), (.18, 1.02),
                      (.29, 1.08), (.37, .98), (.37, .56), (.40, .54), (.44, .80), (.54, .84), (.60, .74), (.58, .40),
                      (.50, -.1), (.44, -.5), (.46, -1.0), (-.40, -1.0)], 6)
    n1 = Noise(p.key, flip)
    body = Dented(Pillow(outline, .30, .15, .02), lambda x, y, z: .018 * n1(x * 4, y * 4, z * 4))
    skin, cuff = leather(p.c1, p.key), cloth(p.c2, seed=p.key, plane="xy")

    def tone(x, y, z, n):
        out = skin.tone(x, y, z, n)
        out = blend(out, darker(p.c1, .5), np.exp(-((y + .48) / .012) ** 2) * .8)
        for fx in (-.15, .13, .385):
            out = blend(out, darker(p.c1, .35), np.exp(-((x - fx + .0 * y) / .02) ** 2) * (y > .1) * (y < .6) * .5)
        return blend(out, cuff.tone(x, y, z, n), step(.52, -y, .01))
    g = Group().add(body, Material(tone, .55, .045, gloss=.45, bump=skin.bump, grain=.006))
    g.add(Stretch(Ball(.06), 1, .4, 1), matt(darker(p.c2, .3)), (.0, -.98, 0))
    return g


def gloves(p, how="front"):
    g = glove(p, 0).placed((0, .15, 0), (-90, 0, 0)).placed((-.45, 0, 0), (0, 14, 0))
    g.join(glove(p, 1).placed((0, 0, 0), (0, 180, 0)).placed((0, .17, 0), (-88, 0, 0)).placed((.62, .0, .25),
        (0, -20, 0)))
    return g


KINDS = {"flowerpot": flowerpot, "planter": planter, "basketpot": basketpot, "hangingpot": hangingpot,
         "trowel": trowel, "handrake": handrake,
         "secateur": secateur, "wateringcan": wateringcan, "sprayer": sprayer, "gloves": gloves}
