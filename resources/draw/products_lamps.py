"""Lamps and lanterns.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian package python3-numpy.
"""
import math

import numpy as np

from canvas import darker, rgb
from joinery import Dented, Stretch
from materials import Material, Noise, blend, cloth, glass, glaze, lacquer, matt, steel, wood
from props import book
from solids import Ball, Box, Lathe, Ring, Rod, Wire, spline
from stock import BLACK, BRASS, turned
from studio import Group


def shade_cloth(tone, seed, low, high, lit=True):
    """A lampshade of linen with the bulb's light behind it."""
    base = cloth(tone, seed=seed, weave=120, relief=.0012, slub=.08)

    def glow(x, y, z):
        t = np.clip((y - low) / (high - low), 0, 1)
        v = .10 + .50 * np.exp(-((t - .42) / .38) ** 2)
        return v[:, None] * np.array([1.0, .86, .62], np.float32)
    return Material(base.colour, .95, .03, gloss=.1, wrap=.3, bump=base.bump, grain=.004, glow=glow if lit else None)


def cone(r0, r1, y0, y1, wall=.02):
    return Lathe([(r0 - wall, y0), (r0, y0), (r1, y1), (r1 - wall, y1)])


def tablelamp(p, how="front"):
    g = Group()
    skin = glaze(p.c1, darker(p.c1, .3), p.key, rim=.98, drip=.22, pool=.3, foot=.09, rough=.12)
    g.add(turned([(.05, 0), (.36, 0), (.40, .05), (.52, .22), (.60, .50), (.50, .82), (.26, 1.04), (.13, 1.16),
                  (.12, 1.24)]), skin)
    brass = steel(BRASS, rough=.14)
    g.add(turned([(.13, 1.23), (.14, 1.27), (.05, 1.31), (.05, 1.45)]), brass)
    g.add(cone(.86, .60, 1.36, 2.28), shade_cloth(p.c2, p.key, 1.36, 2.28))
    for r, y in ((.86, 1.36), (.60, 2.28)):
        g.add(Ring(r - .01, .014), cloth(darker(p.c2, .12), seed=p.key), (0, y, 0))
    g.bulbs.append(((0, 1.75, 0), 3.0))
    if how == "scene":
        g.join(book(1.1, .16, .8, rgb("#8a4a3a"), "b1").placed((1.15, 0, .55), (0, 14, 0))).join(book(.95, .13, .7,
            rgb("#d2c3a0"), "b2").placed((1.18, .16, .55), (0, -6, 0)))
    return g


def desklamp(p, how="front"):
    coat = lacquer(p.c1, .22, 1.0)
    brass = steel(p.c2, rough=.12, brushed="none")
    g = Group()
    g.add(turned([(.05, 0), (.55, 0), (.58, .03), (.57, .08), (.50, .12), (.12, .15), (.05, .15)]), coat)
    a, b, c = (0, .14, 0), (-.50, 1.22, 0), (.52, 1.95, 0)
    for z in (-.06, .06):
        g.add(Rod((a[0], a[1], z), (b[0], b[1], z), .026), coat)
        g.add(Rod((b[0], b[1], z), (c[0], c[1], z), .024), coat)
    for q, r in ((a, .09), (b, .095), (c, .085)):
        g.add(Stretch(Ball(r), 1, 1, 1.15), brass, q)
    spring = steel((.7, .71, .72), rough=.15, brushed="none")
    for k in range(14):
        t = .14 + k * .022
        x, y = a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t
        g.add(Ring(.05, .011), spring, (x, y, 0), (0, 0, 25))
    head = Group()
    line = spline([(.46, -.62), (.44, -.50), (.36, -.26), (.20, -.06), (.09, .0), (.085, .06), (.085, .20)])
    shell = Lathe(line + [(0, .20), (0, .18), (.06, .18)] + [(max(x - .022, .01), y - .012) for x, y in line[::-1]])

    def paint(x, y, z, n):
        within = (n[0] * x + n[2] * z) < 0
        return blend(p.c1, rgb("#f4efe2"), within.astype(np.float32))
    head.add(shell, Material(paint, .2, .05, gloss=1.0))
    head.add(Ball(.15), Material(rgb("#fff6dc"), .3, glow=lambda x, y, z: np.ones((len(x), 3)) * np.array([1.0, .90,
        .68])), (0, -.42, 0))
    head.add(Ring(.462, .014), brass, (0, -.62, 0))
    g.join(head.placed((c[0] + .06, c[1] - .02, 0), (0, 0, 38)))
    g = g.placed((0, 0, 0), (0, -24, 0))
    if how == "scene":
        g.join(book(1.15, .14, .85, rgb("#a8552f"), "d1").placed((1.25, 0, .75), (0, 16, 0)))
    return g


def floorlamp(p, how="front"):
    w = wood(p.c1, seed=p.key, axis="y", scale=3)
    g = Group()
    top = 1.75
    for k in range(3):
        a = math.radians(100 + 120 * k)
        g.add(Rod((.66 * math.cos(a), .03, .66 * math.sin(a)), (.07 * math.cos(a), top, .07 * math.sin(a)), .038,
                  .034), w)
    g.add(turned([(.05, top - .06), (.12, top - .05), (.13, top + .02), (.06, top + .06), (.03, top + .2)]),
          steel(BRASS, rough=.14))
    g.add(Ring(.22, .016), steel(BRASS, rough=.14), (0, 1.15, 0))
    g.add(cone(.56, .50, top + .08, top + .78), shade_cloth(p.c2, p.key, top + .08, top + .78))
    for r, y in ((.56, top + .08), (.50, top + .78)):
        g.add(Ring(r - .008, .012), cloth(darker(p.c2, .12), seed=p.key), (0, y, 0))
    if how == "scene":
        seat = cloth(rgb("#8f9a8c"), seed="chair", weave=60)
        arm = Group().add(Dented(Box(1.5, .34, 1.3, .14), lambda x, y, z: .03 * np.cos(x * 1.6) * np.cos(z * 1.8)
                                 * (y > 0)), seat, (0, .55, 0))
        arm.add(Box(1.7, 1.0, .3, .14), seat, (0, .88, -.62)).add(Box(.28, .62, 1.35, .13), seat,
            (-.88, .64, 0)).add(Box(.28, .62, 1.35, .13), seat, (.88, .64, 0))
        for x in (-.7, .7):
            for z in (-.5, .5):
                arm.add(Rod((x, 0, z), (x * .95, .42, z * .95), .035, .05), w)
        g.join(arm.placed((-1.55, 0, .25), (0, 22, 0)))
    return g


def pendantlamp(p, how="front"):
    n1 = Noise(p.key)
    lift = 1.4
    line = spline([(1.02, 0), (1.0, .16), (.86, .48), (.58, .74), (.26, .88), (.12, .92)])

    def weave(x, y, z, n):
        a = np.arctan2(z, x) / (2 * math.pi) * 44
        v = y / .055
        over = (np.floor(a) + np.floor(v)) % 2
        u, w = a % 1 - .5, v % 1 - .5
        gap = np.clip((np.maximum(np.abs(u), np.abs(w) * 1.1) - .40) / .08, 0, 1)
        tone = blend(p.c1, darker(p.c1, .28), over * .5 + .25 * n1(x * 30, y * 30, z * 30))
        return blend(tone, darker(p.c1, .72), gap * .8)

    def glow(x, y, z):
        a = np.arctan2(z, x) / (2 * math.pi) * 44
        v = y / .055
        gap = np.clip((np.maximum(np.abs(a % 1 - .5), np.abs(v % 1 - .5)) - .38) / .10, 0, 1)
        t = np.exp(-((y - .35) / .4) ** 2)
        return (gap * t * .95 + .06)[:, None] * np.array([1.0, .80, .45], np.float32)
    bump = lambda x, y, z: .012 * np.abs(np.sin(np.arctan2(z, x) * 22) * np.sin(y / .055 * math.pi))
    shell = Lathe(line + [(x - .03, y - .02) for x, y in line[::-1]])
    g = Group().add(shell, Material(weave, .6, .045, gloss=.6, bump=bump, grain=.008, glow=glow), (0, lift, 0))
    g.add(Ring(1.0, .035), wood(darker(p.c1, .15), seed=p.key, scale=4), (0, lift, 0))
    g.add(Ring(.13, .03), wood(darker(p.c1, .15), seed=p.key, scale=4), (0, lift + .92, 0))
    g.add(turned([(.03, lift + .90), (.09, lift + .92), (.10, lift + 1.12), (.04, lift + 1.18)]),
          steel(BRASS, rough=.14))
    g.add(Ball(.20), Material(rgb("#fff6dc"), .3, glow=lambda x, y, z: np.ones((len(x), 3)) * np.array([1.0, .90,
        .68])), (0, lift + .18, 0))
    g.bulbs.append(((0, lift + .1, 0), 1.2))
    line_m = matt(rgb("#4a3b2c"), .7)
    line_m.backdrop = True
    g.add(Rod((0, lift + 1.15, 0), (0, lift + 3.4, 0), .018), line_m)
    return g


def lantern(p, how="front"):
    coat = lacquer(p.c1, .4, .7)
    g = Group()
    w, h = .52, 1.25
    g.add(Box(1.24, .09, 1.24, .03), coat, (0, .10, 0)).add(Box(1.14, .05, 1.14, .02), coat, (0, .17, 0))
    for x in (-1, 1):
        for z in (-1, 1):
            g.add(Ball(.06), coat, (x * .52, .05, z * .52))
            g.add(Box(.07, h, .07, .015), coat, (x * w, .17 + h / 2, z * w))
    for y in (.20, .17 + h):
        for a in (0, 90):
            for s in (-1, 1):
                g.add(Box(2 * w, .06, .07, .015), coat, (0, y, s * w) if a == 0 else (s * w, y, 0), (0, a, 0))
    for a in (0, 90):
        for s in (-1, 1):
            g.add(Box(2 * w, .02, .025, .008), coat, (0, .85, s * w) if a == 0 else (s * w, .85, 0), (0, a, 0))
            g.add(Box(.02, h, .025, .008), coat, (0, .8, s * w) if a == 0 else (s * w, .8, 0), (0, a, 0))
    pane = glass((.94, .97, .97), .6, rim=.15)
    for s in (1,):
        g.add(Box(2 * w - .06, h - .04, .012, .003), pane, (0, .17 + h / 2, s * w))
        g.add(Box(.012, h - .04, 2 * w - .06, .003), pane, (s * w, .17 + h / 2, 0))
    roof = Lathe([(0, 0), (.92, 0), (.92, .04), (.28, .34), (.24, .52), (.12, .58), (0, .59)], sides=4)
    g.add(roof, coat, (0, .19 + h, 0))
    g.add(Wire(spline([(-.20, 0), (-.26, .22), (-.16, .44), (0, .52), (.16, .44), (.26, .22), (.20, 0)]), .028,
               flat=.8), coat, (0, .60 + h, 0))
    g.add(Lathe([(0, .19), (.26, .19), (.265, .22), (.265, .72), (.24, .74), (0, .73)]),
          Material(rgb("#f4ead2"), .4, .04, wrap=.5, gloss=.5, glow=lambda x, y,
                   z: blend((.16, .10, .04), (.55, .38, .16), (y - .2) / .5)))
    g.add(Rod((0, .72, 0), (.01, .82, 0), .014), matt(BLACK))
    g.flames.append(((.01, .82, 0), .85))
    return g.placed((0, 0, 0), (0, -32, 0))


KINDS = {"tablelamp": tablelamp, "desklamp": desklamp, "floorlamp": floorlamp, "pendantlamp": pendantlamp,
         "lantern": lantern}
