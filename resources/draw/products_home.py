"""Candles, cushions and blankets.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian packages python3-cairo and python3-numpy.
"""
import math

import numpy as np

from canvas import darker, rgb
from joinery import Dented, Stretch
from labels import paper_label
from materials import (
    Material, Noise, blend, cloth, glass, glaze, lacquer, matt, printed, round_label, steel, velvet, wax, wood)
from props import book, herbs
from solids import Board, Cushion, Lathe, Ring, Rod, Sheet, Wire, spline, vessel
from stock import BEECH, KRAFT, band, stripes, turned
from studio import Group

WICK = rgb("#3b322a")


def wick(g, x, y, z, burning=True, size=1.0):
    g.add(Rod((x, y - .02, z), (x + .015, y + .10 * size, z), .013 * size), matt(WICK))
    if burning:
        g.flames.append(((x + .01, y + .10 * size, z), size))
    return g


def candle(p, how="front"):
    g = Group()
    lit = how in ("front", "scene", "lit")
    amber = p.has("ambre")
    line = [(.05, 0), (.52, 0), (.58, .05), (.60, .3), (.60, 1.18), (.605, 1.22)]
    label = paper_label(["Ambre & cèdre", "bougie parfumée", "180 g"] if amber else ["Feuille de figuier",
        "bougie parfumée", "180 g"], tone=darker(p.c1, .2))
    if amber:
        g.add(turned(line, .035, .08), glass(p.c1, 12.0, rim=.4))
    else:
        g.add(turned(line, .045, .08), lacquer(p.c1, .16, 1.1))
    g.add(Lathe([(0, .09), (.555, .09), (.555, .90), (.53, .915), (0, .90)]), wax(p.c2, p.key))
    place = round_label(64, .30, .82)
    paper = Dented(Lathe([(.594, .30), (.608, .30), (.608, .82), (.594, .82)]), lambda x, y,
                   z: np.minimum(0, (z - .60 * math.cos(math.radians(32))) * 1.0))
    g.add(paper, printed(label, place, rgb("#f6f0e0"), .7, .3))
    wick(g, 0, .90, 0, lit, .9)
    if how == "lid":
        g.flames.clear()
        g.add(turned([(.05, 1.24), (.60, 1.24), (.62, 1.28), (.62, 1.36), (.58, 1.40), (.05, 1.41)]),
              wood(BEECH, seed=p.key, axis="x", scale=1.6))
    if how == "scene":
        g.join(herbs(4, p.key, rgb("#6f8a4e") if not amber else rgb("#8a7a4a")).placed((.85, 0, .62), (0, 60, 0), 1.2))
    return g.placed((0, 0, 0), (0, 8, 0))


def tapercandles(p, how="front"):
    taper = Lathe([(0, 0), (.135, 0)] + spline([(.14, .03), (.135, .8), (.115, 1.7), (.10, 2.0), (.06, 2.08),
                                                (.02, 2.12)]) + [(0, 2.12)])
    g = Group()
    if how == "front":
        spots = [(-.72, .0), (-.43, .10), (-.14, -.04), (.15, .08), (.44, -.03), (.73, .09)]
        for k, (x, z) in enumerate(spots):
            tone = p.c1 if k % 2 == 0 else p.c2
            g.add(taper, wax(tone, f"{p.key}{k}"), (x, 0, z), (0, 0, 0))
            g.add(Rod((x, 2.1, z), (x + .02, 2.26, z), .016), matt(rgb("#efe8d6")))
        return g
    spots = [(-.29, .14), (0, .14), (.29, .14), (-.145, .39), (.145, .39), (0, .64)]
    for k, (x, y) in enumerate(spots):
        tone = p.c1 if k % 2 == 0 else p.c2
        g.add(taper, wax(tone, f"{p.key}{k}"), (x, y, 1.0), (-90, 0, 0))
        g.add(Rod((x, y, -1.1), (x, y + .02, -1.28), .016), matt(rgb("#efe8d6")))
    hull = spline([(-.44, .14), (-.38, .02), (0, .0), (.38, .02), (.44, .14), (.30, .44), (.10, .74), (0, .79),
                   (-.10, .74), (-.30, .44), (-.44, .14)])
    g.add(Wire(hull, .025, flat=.22), matt(KRAFT, .8), (0, 0, .1))
    return g.placed((0, 0, 0), (0, -62, 0))


def tealights(p, how="front"):
    tin_cup = turned([(.02, 0), (.205, 0), (.215, .01), (.215, .16), (.225, .17)], .012, .012)
    m = steel((.82, .83, .84), p.key, rough=.2, strength=.03)
    w = wax(p.c1, p.key)
    body = Lathe([(0, .02), (.20, .02), (.20, .135), (.19, .145), (0, .14)])
    g = Group()
    for j in range(4):
        for i in range(6):
            x, z = (i - 2.5) * .52 + .04 * math.sin(i * 3 + j), (j - 1.5) * .52 + .04 * math.cos(i + 2 * j)
            g.add(tin_cup, m, (x, 0, z)).add(body, w, (x, 0, z))
            wick(g, x, .14, z, (i, j) in ((1, 2), (4, 1), (3, 3)), .55)
    return g.placed((0, 0, 0), (0, -18, 0))


def candleglass(p, how="front"):
    ribs = dict(wave=(18, .018))
    line = [(.05, 0), (.40, 0), (.46, .04), (.56, .28), (.62, .62), (.58, .96), (.60, 1.12)]
    g = Group()
    r = Lathe(vessel(spline(line), .035, .10), **ribs)
    g.add(r, glass(p.c1, 9.0, rim=.35))
    g.add(Lathe([(0, .11), (.24, .11), (.25, .14), (.25, .46), (.23, .48), (0, .47)]),
          Material(p.c2, .4, .04, wrap=.5, gloss=.5, glow=lambda x, y, z: (blend((.30, .20, .08), (.75, .52, .22),
              (y - .1) / .4)) ** 1))
    wick(g, 0, .47, 0, True, .8)
    if how == "scene":
        other = Group(flames=[])
        for x, z, s in ((1.2, -.55, .78), (-1.15, -.7, .9)):
            g2 = Group().add(r, g.items[0].material)
            g2.add(g.items[1].body, g.items[1].material)
            wick(g2, 0, .47, 0, True, .8)
            other.join(g2.placed((x, 0, z), (0, 0, 0), s))
        g.join(other)
    return g


def candlestick(p, how="front"):
    brass = steel(p.c1, p.key, rough=.12, strength=.03)
    g = Group()
    g.add(turned([(.05, .03), (.50, .0), (.56, .03), (.74, .06), (.86, .16), (.88, .20)], .035, .05), brass)
    g.add(turned([(.24, .05), (.16, .10), (.09, .18), (.12, .26), (.09, .32), (.14, .40), (.175, .46), (.175, .62),
                  (.23, .66)]), brass)
    loop = Wire(spline([(.82, .16), (.98, .14), (1.14, .24), (1.16, .42), (1.02, .52), (.88, .46), (.84, .30)]), .035,
                flat=.5)
    g.add(loop, brass)
    g.add(Board(spline([(.96, .50), (1.20, .50), (1.24, .55), (.98, .56), (.96, .50)]), .16, .02), brass)
    g.add(Lathe([(0, .55), (.135, .55)] + spline([(.135, .6), (.13, 1.2), (.12, 1.62), (.10, 1.70),
                                                  (.04, 1.70)]) + [(0, 1.68)]), wax(p.c2, p.key))
    wick(g, 0, 1.69, 0, how != "off", .8)
    return g.placed((0, 0, 0), (0, -24, 0))


def cushion(p, how="front"):
    """A filled cushion leaning back, with piping round its seam."""
    def side(ax, ay, bx, by, n=10):
        out = []
        for t in np.linspace(0, 1, n, endpoint=False):
            x, y = ax + (bx - ax) * t, ay + (by - ay) * t
            pull = 1 - .075 * math.sin(math.pi * t)
            out.append((x * (pull if abs(x) > abs(y) else 1), y * (pull if abs(y) >= abs(x) else 1)))
        return out
    w = 1.0
    pts = side(-w, -w, w, -w) + side(w, -w, w, w) + side(w, w, -w, w) + side(-w, w, -w, -w)
    outline = spline(pts + pts[:1], 4)
    n1 = Noise(p.key)
    folds = lambda x, y, z: .014 * n1(x * 2.4, y * 2.4, z * 2.4) + .011 * np.sin((np.abs(x) + np.abs(y)) * 26 + 3
        * n1(x * 2, y * 2, z)) * np.exp(-((np.maximum(np.abs(x), np.abs(y)) - .98) / .16) ** 2)
    body = Dented(Cushion(w, .78), folds)
    if p.has("velours"):
        m = velvet(p.c1, p.key)
        trim = velvet(p.c2, p.key + "t")
    elif p.has("rayures"):
        pat = lambda u, v: stripes(u, .40, .32, .012) + stripes(u + .135, .40, .045, .01) + stripes(u - .135, .40,
            .045, .01)
        m = cloth(p.c1, p.c2, p.key, pat)
        trim = cloth(p.c2, seed=p.key)
    else:
        m = cloth(p.c1, seed=p.key, slub=.16)
        trim = cloth(p.c2, seed=p.key)
    g = Group().add(body, m).add(Wire(outline, .034, closed=True), trim)
    if how == "pair":
        g = g.placed((.0, .92, 0), (-14, 0, 0))
        return g.join(Group().add(body, m).add(Wire(outline, .034, closed=True), trim).placed((1.15, .92, -.75),
            (-16, -24, 3)))
    if how == "flat":
        return Group().add(body, m).add(Wire(outline, .034, closed=True), trim).placed((0, .36, 0),
            (-90, 0, 0)).placed((0, 0, 0), (0, 32, 0))
    return g.placed((0, .92, 0), (-14, -20 + 6 * p.pick("turn", 3), 0))


def wool(p):
    """What a blanket is woven of."""
    if p.has("nid"):
        n1 = Noise(p.key)
        cell = .105

        def bump(x, y, z):
            u, v = np.abs(x / cell % 1 - .5), np.abs((z / cell) % 1 - .5)
            return .055 * np.maximum(u, v) ** 1.5
        return Material(lambda x, y, z, n: blend(p.c2, p.c1, .35 + 1.3 * np.maximum(np.abs(x / cell % 1 - .5),
            np.abs(z / cell % 1 - .5))), .95, .03, gloss=.1, wrap=.15, sheen=.08, bump=bump, grain=.01)
    if p.has("mohair"):
        n1, n2 = Noise(p.key), Noise(p.key, 2)

        def colour(x, y, z, n):
            check = stripes(x, .62, .5, .05) * .5 + stripes(z, .62, .5, .05) * .5
            out = blend(p.c1, p.c2, check * .8)
            return out * (1 + .16 * n1(x * 9, y * 20, z * 60) + .10 * n2(x * 60, y * 20, z * 9))[:, None]
        return Material(colour, .95, .03, gloss=.08, wrap=.25, sheen=.35, bump=lambda x, y,
                        z: .012 * n1(x * 30, y * 30, z * 70), grain=.008)
    n1, n2 = Noise(p.key), Noise(p.key, 2)

    def colour(x, y, z, n):
        v = n1(x * 50, y * 30, z * 50) * .5 + n2(x * 14, y * 14, z * 90) * .5
        out = blend(p.c1, p.c2, .4 + .55 * v)
        return blend(out, darker(p.c1, .5), band(np.abs(z), .92, 1.0, .02) * .85 + band(np.abs(z), .80, .83,
            .015) * .85)
    herring = lambda x, y, z: .006 * np.sin(z * 120 + np.abs((x / .16) % 1 - .5) * 24)
    return Material(colour, .95, .03, gloss=.1, wrap=.15, sheen=.15, bump=herring, grain=.005)


def plaid(p, how="front"):
    n1 = Noise(p.key)
    m = wool(p)
    thick = .15 if not p.has("mohair") else .18
    puff = lambda x, y, z: .022 * n1(x * 2.2, y * 4, z * 1.8)
    r = np.random.Generator(np.random.PCG64(12))
    g = Group()
    if how == "rolled":
        pts = []
        for a in np.linspace(0, 7.2 * math.pi, 190):
            rad = .06 + a / (2 * math.pi) * thick * 1.08
            pts.append((rad * math.cos(a), rad * math.sin(a)))
        top = max(math.hypot(*q) for q in pts) + thick / 2
        g.add(Dented(Sheet(pts, thick, 1.9), puff), m, (0, top, 0), (0, 90, 0))
        for x in (-.45, .45):
            g.add(Stretch(Ring(top * .955, .05), 1, 1.5, 1), matt(rgb("#b8763e") if not p.has("gris")
                else rgb("#7a4a2c"), .5), (x, top, 0), (0, 0, 90))
        return g.placed((0, 0, 0), (0, -28, 0))
    w, layers = 1.15, 4
    pts = []
    for k in range(layers):
        y = thick / 2 + k * (thick + .004)
        a, b = (-w, w) if k % 2 == 0 else (w, -w)
        pts += [(a * (1 - .10 * (k == 0)), y), (a * .5, y + .004), (0, y), (b * .5, y + .004), (b, y)]
        if k < layers - 1:
            s = 1 if b > 0 else -1
            pts += [(b + s * thick * .52, y + thick * .5 + .006)]
    body = Dented(Sheet(spline(pts, 5), thick, 2.0, edge=.06), puff)
    g.add(body, m)
    if not p.has("nid"):
        last = thick / 2 + (layers - 1) * (thick + .004)
        fringe = matt(p.c1 if p.has("gris") else p.c2, .9, .1, seed=p.key, vary=.1, wrap=.2)
        side = -1 if layers % 2 == 0 else 1
        strand = Wire(spline([(0, 0), (.09, -.03), (.15, -.14), (.17, -.30)]), .021)
        for k in range(46):
            z = -.96 + k * 1.92 / 45
            turn = (0, 0, 5 * r.normal()) if side > 0 else (0, 180, 0)
            g.add(strand, fringe, (side * w, last, z), (6 * r.normal(), turn[1] + 8 * r.normal(), turn[2]),
                  .9 + .2 * r.random())
        g = g.placed((0, 0, 0), (0, 55, 0))
    else:
        g = g.placed((0, 0, 0), (0, 52, 0))
    if how == "scene":
        top = layers * (thick + .004)
        g.join(book(1.0, .16, .72, rgb("#6a4a3a"), "novel").placed((.05, top, .1), (0, 34, 0)))
        cup = Group().add(turned([(.05, 0), (.24, 0), (.28, .05), (.29, .3), (.29, .52)], .03),
                          glaze(rgb("#e9e2d2"), p.c1, "tea-cup", speckle=.4))
        cup.add(Lathe([(0, .43), (.26, .43), (.26, .46), (0, .46)]), lacquer(rgb("#8a4d22"), .05))
        g.join(cup.placed((.05, top + .16, .1)))
    return g


KINDS = {"candle": candle, "tapercandles": tapercandles, "tealights": tealights, "candleglass": candleglass,
         "candlestick": candlestick,
         "cushion": cushion, "plaid": plaid}
