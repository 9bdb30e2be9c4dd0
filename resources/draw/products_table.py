"""Cups, bowls, plates and glasses.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian package python3-numpy.
"""
import math

import numpy as np

from canvas import darker, lighter, mix, rgb
from joinery import Blend, Cut, Dented, Stretch
from materials import Material, Noise, blend, enamel, glass, glaze, matt, solid, steel, step, wood
from props import herbs, lemon, napkin
from solids import Ball, Board, Lathe, Pillow, Rod, Wire, spline, vessel
from stock import BLACK, band, lined, row, turned
from studio import Group


def cup_handle(y0, y1, x, out, r, flat=.7):
    pts = spline([(x - .08, y1), (x + out * .55, y1 + .05), (x + out, y1 - (y1 - y0) * .28),
                  (x + out * .92, y0 + (y1 - y0) * .30), (x + out * .42, y0 + .02), (x - .08, y0)])
    return Wire(pts, r, flat=flat)


def mug(p, how="front"):
    g = Group()
    if p.has("email"):
        body = turned([(.05, 0), (.62, 0), (.66, .03), (.67, .4), (.67, 1.16), (.705, 1.19)], .028)
        skin = enamel(p.c1, p.key, edge=p.c2, edge_at=1.155)
        g.add(body, skin)
        h = cup_handle(.30, .98, .66, .34, .05, .55)
        hs = Cut(h, Lathe([(0, -1), (.64, -1), (.64, 2), (0, 2)]))
        g.add(hs, Material(lambda x, y, z, n: blend(p.c1, p.c2, step(.93, x, .02)), .05, .055, gloss=1.3))
    else:
        body = turned([(.05, 0), (.54, 0), (.63, .05), (.68, .3), (.70, .7), (.67, 1.1), (.68, 1.22)], .055)
        skin = glaze(p.c1, p.c2, p.key, rim=1.02, drip=.10, speckle=.55, foot=.10)
        g.add(body, skin)
        h = cup_handle(.34, 1.0, .66, .40, .07, .75)
        g.add(Cut(h, Lathe([(0, -1), (.63, -1), (.63, 2), (0, 2)])), skin)
    if how in ("full", "scene"):
        g.add(Lathe([(0, .98), (.62, .98), (.62, 1.02), (0, 1.02)]), lacquer_coffee())
    return g.placed((0, 0, 0), (0, -30, 0))


def lacquer_coffee(tone=rgb("#4a2a17")):
    n1 = Noise("crema")
    foam = rgb("#b98a56")

    def colour(x, y, z, n):
        r = np.sqrt(x * x + z * z)
        return blend(tone, foam, np.clip((r - .30) * 2.2, 0, .75) + .10 * n1(x * 5, y, z * 5))
    return Material(colour, .06, .05)


def cup(p, how="front"):
    one = Group()
    skin = lined(glaze(p.c1, p.c2, p.key, foot=.07, speckle=.35), glaze(p.c2, darker(p.c2, .3), p.key + "i"), .12)
    one.add(turned([(.05, 0), (.28, 0), (.36, .06), (.42, .28), (.44, .60), (.455, .66)], .035), skin)
    h = cup_handle(.16, .52, .41, .24, .042, .7)
    one.add(Cut(h, Lathe([(0, -1), (.40, -1), (.40, 2), (0, 2)])), glaze(p.c1, p.c2, p.key))
    plate = turned([(.05, 0), (.30, 0), (.40, .03), (.62, .09), (.68, .11)], .035, .04)
    saucer = Group().add(plate, glaze(p.c1, p.c2, p.key, speckle=.35))
    one = one.placed((0, .05, 0)).join(saucer)
    if how in ("full", "scene"):
        one.add(Lathe([(0, .57), (.40, .57), (.40, .60), (0, .60)]), lacquer_coffee())
    if how == "single" or how == "scene":
        return one.placed((0, 0, 0), (0, -30, 0))
    return row(one, [(-.82, -.55, -20), (.82, -.62, -38), (-.62, .80, -34), (.92, .72, -24)])


def bowl(p, how="front"):
    if p.has("breton"):
        body = turned([(.05, 0), (.46, 0), (.50, .08), (.62, .16), (.86, .42), (.92, .78), (.93, .86)], .05)
        skin = glaze(p.c1, p.c2, p.key, bands=[(.62, .70), (.73, .75), (.55, .575)], pool=.05)
        g = Group().add(body, skin)
        for s in (1, -1):
            pts = spline([(0, -.16), (.13, -.20), (.21, -.10), (.21, .10), (.13, .20), (0, .16)])
            ear_body = Board(pts + pts[:1], .08, .035)
            g.items += Group().add(ear_body, glaze(p.c2, p.c2, p.key), turn=(90, 0, 0)).placed((s * .90, .62, 0),
                (0, 0 if s > 0 else 180, 0)).items
    elif p.has("nouilles"):
        body = turned([(.05, 0), (.50, 0), (.52, .12), (.60, .18), (.95, .48), (1.12, .88), (1.13, .92)], .05)
        g = Group().add(body, glaze(p.c1, p.c2, p.key, rim=.865, speckle=.75, rough=.22, pool=.3))
        if how != "empty":
            stick = Rod((-1.5, 0, 0), (1.5, 0, 0), .035, .02)
            w = lambda k: wood(rgb("#8a4a2a"), seed=p.key + str(k), scale=2)
            g.add(stick, w(1), (.10, .97, -.12), (0, 24, 2)).add(stick, w(2), (.14, .97, .10), (0, 18, 2))
    else:
        body = turned([(.05, 0), (.42, 0), (.46, .07), (.62, .12), (.86, .32), (.98, .66), (1.0, .74)], .05)
        g = Group().add(body, glaze(p.c1, p.c2, p.key, rim=.71, foot=.06, pool=.45, lobes=None, rough=.08))
    if how in ("full", "scene"):
        milk = Lathe([(0, .50), (.86, .50), (.86, .55), (0, .55)])
        g.add(milk, Material(rgb("#f7f2e6"), .1, .05))
        r = np.random.Generator(np.random.PCG64(4))
        for k in range(70):
            a, d = r.random() * 6.3, r.random() ** .5 * .70
            tone = (rgb("#c98f45"), rgb("#a86f30"), rgb("#d9ab62"), rgb("#3f4a8a"))[k % 4 if k % 9 else 3]
            g.add(Stretch(Ball(.075), 1, .5, .8), matt(tone, seed="oat", vary=.1),
                  (d * math.cos(a), .57, d * math.sin(a)), (20 * r.normal(), 360 * r.random(), 20 * r.normal()))
    return g.placed((0, 0, 0), (0, -16, 0))


def plate(p, how="front"):
    if p.has("creuse"):
        line = [(.05, 0), (.55, 0), (.58, .04), (.78, .20), (.86, .27), (1.18, .36), (1.2, .37)]
    elif p.has("dessert"):
        line = [(.05, 0), (.62, 0), (.66, .03), (.92, .10), (1.02, .20), (1.03, .24)]
    else:
        line = [(.05, 0), (.75, 0), (.79, .03), (1.02, .06), (1.20, .12), (1.34, .20), (1.35, .22)]
    body = turned(line, .045, .05)
    edge = line[-1][0]
    if p.has("dessert"):
        n1 = Noise(p.key)

        def colour(x, y, z, n):
            r = np.sqrt(x * x + z * z)
            out = blend(lighter(p.c1, .1), darker(p.c1, .25), .4 + .35 * n1.rough(x * 2.5, y, z * 2.5))
            out = blend(out, p.c2, band(r, edge - .10, edge - .045, .02) + .8 * band(r, edge - .2, edge - .185, .008))
            return out
        skin = Material(colour, .09, .05, gloss=1.2)
    else:
        n1, n2 = Noise(p.key), Noise(p.key, 2)

        def colour(x, y, z, n):
            r = np.sqrt(x * x + z * z)
            out = blend(p.c1, darker(p.c1, .12), .5 + .5 * n1.rough(x * 3, y, z * 3))
            s = n1(x * 40, y * 40, z * 40) + .6 * n2(x * 70, y * 70, z * 70)
            out = blend(out, darker(p.c2, .3), step(.86, s, .14) * .8)
            return blend(out, darker(p.c2, .12), step(edge - .04, r + .012 * n2(x * 7, y, z * 7), .02) * .85)
        skin = Material(colour, .20, .05, gloss=1.0)
    one = Group().add(body, skin)
    if how == "stack":
        g = Group()
        gap = .075 if not p.has("creuse") else .10
        for k in range(6):
            g.join(one.placed((.012 * math.sin(k * 2.1), k * gap, .012 * math.cos(k * 1.7))))
        return g
    if how == "scene":
        g = one.placed((0, .08, 0)).join(napkin(3.6, 2.6, rgb("#c9c3b4"), seed="plate-napkin").placed((0, 0, 0),
            (0, 12, 0)))
        fork(g, -edge - .32)
        fork(g, edge + .28, blade=True)
        g.join(herbs(3, p.key).placed((0, .16, 0), (0, 40, 0), 1.1))
        return g
    return one


def fork(g, x, blade=False):
    m = steel(rough=.1, brushed="none")
    if blade:
        outline = spline([(-.06, -.9), (.06, -.9), (.05, 0), (.085, .3), (.07, .8), (0, .98), (-.055, .8), (-.05, 0),
                          (-.06, -.9)])
        body = Board(outline, .045, .02)
    else:
        outline = spline([(-.05, -.9), (.05, -.9), (.03, .2), (.11, .42), (.12, .6), (-.12, .6), (-.11, .42),
                          (-.03, .2), (-.05, -.9)])
        body = Board(outline, .04, .018)
    part = Group().add(body, m)
    if not blade:
        for k in range(4):
            part.add(Rod((-.09 + k * .06, .58, 0), (-.09 + k * .06, .95, .01), .022, .012), m)
    g.join(part.placed((x, .14, 0), (-90, 0, 0)))


def platter(p, how="front"):
    if p.has("ardoise"):
        n1 = Noise(p.key)
        w, d = 2.7, 1.7
        r = np.random.Generator(np.random.PCG64(11))
        edge = []
        for ax, ay, bx, by in ((-1, -1, 1, -1), (1, -1, 1, 1), (1, 1, -1, 1), (-1, 1, -1, -1)):
            for t in np.linspace(0, 1, 22, endpoint=False):
                edge.append(((ax + (bx - ax) * t) * w / 2 + .018 * r.normal(),
                             (ay + (by - ay) * t) * d / 2 + .018 * r.normal()))
        slab = Dented(Board(edge, .10, .02), lambda x, y, z: .010 * n1(x * 2, y * 3, z * 9))
        skin = Material(lambda x, y, z, n: blend(p.c1, p.c2, .35 + .4 * n1.rough(x * 3, y * 3, z * 12)), .55, .045,
                        gloss=.8,
                        bump=lambda x, y, z: .006 * n1.rough(x * 9, y * 9, z * 30), grain=.006)
        g = Group().add(slab, skin, (0, .08, 0), (-90, 0, 0))
        for x in (-1, 1):
            for z in (-1, 1):
                g.add(Ball(.05), matt(BLACK), (x * 1.15, .03, z * .7))
        if how != "empty":
            wedge = Board([(0, 0), (.95, .12), (.9, -.30)], .34, .03)
            rind = Material(lambda x, y, z, n: blend(rgb("#f4e3b0"), rgb("#d9a94a"), step(.85, x, .02)), .5, gloss=.5,
                            wrap=.25)
            g.add(wedge, rind, (-.1, .30, .1), (-90, 25, 0))
            white = Material(lambda x, y, z, n: blend(rgb("#f5f1e4"), rgb("#fbf3d0"),
                                                      band(y, .04, .24) * (np.abs(n[1]) < .3)), .7, gloss=.3, wrap=.25)
            g.add(turned([(.05, 0), (.42, 0), (.45, .04), (.45, .22), (.42, .26), (.05, .26)]), white,
                  (-.78, .13, -.12))
            r2 = np.random.Generator(np.random.PCG64(2))
            for k in range(12):
                g.add(Ball(.095), lacquer_grape(), (.85 + .26 * r2.random(), .20 + .12 * (k > 7),
                                                    -.25 + .34 * r2.random()))
    else:
        body = Stretch(turned([(.05, 0), (.70, 0), (.74, .03), (.86, .10), (.95, .15), (1.24, .20), (1.26, .215)],
                              .045, .05), 1.32, 1, .92)
        n1 = Noise(p.key)

        def colour(x, y, z, n):
            r = np.sqrt((x / 1.32) ** 2 + (z / .92) ** 2)
            a = np.arctan2(z / .92, x / 1.32)
            out = solid(p.c1, len(x)) * (1 + .03 * n1.rough(x * 3, y, z * 3))[:, None]
            k = 26
            u = (a / (2 * math.pi) * k) % 1 - .5
            petal = step(.30, .5 - np.sqrt((u * 1.3) ** 2 + ((r - 1.11) / .17) ** 2), .05)
            out = blend(out, p.c2, np.maximum(petal * .75, band(r, 1.225, 1.3, .01)))
            return blend(out, p.c2, band(r, .955, .975, .008) * .8)
        g = Group().add(body, Material(colour, .08, .05, gloss=1.2))
        if how in ("scene", "used"):
            g.join(lemon(.22, True).placed((.55, .07, .05), (0, 30, 0))).join(lemon(.22, True).placed((.85, .07, -.25),
                (0, 100, 0)))
            fish(g, p)
            g.join(herbs(4, "fish").placed((-.2, .10, .42), (0, 10, 0)))
    return g.placed((0, 0, 0), (0, -12, 0))


def lacquer_grape():
    return Material(rgb("#4a2746"), .18, .05, gloss=.8, wrap=.2)


def fish(g, p):
    n1 = Noise("fish")
    outline = spline([(-1.0, 0), (-.75, .16), (-.3, .25), (.2, .2), (.55, .07), (.8, .22), (.76, 0), (.8, -.2),
                      (.55, -.06), (.2, -.18), (-.3, -.22), (-.75, -.14), (-1.0, 0)])

    def colour(x, y, z, n):
        back = blend(rgb("#c9cdd0"), rgb("#5a6670"), step(.05, y + .03 * n1(x * 5, y * 5, z), .2))
        scale = .06 * np.sin(x * 60) * np.sin(y * 60 + x * 30)
        out = back * (1 + scale)[:, None]
        eye = np.sqrt((x + .82) ** 2 + (y - .04) ** 2)
        return blend(blend(out, rgb("#e6dca8"), step(-.042, -eye, .01)), rgb("#161616"), step(-.024, -eye, .01))
    g.add(Pillow(outline, .26, .22), Material(colour, .2, .05), (-.25, .17, -.05), (-90, 8, 0), 1.0)


def tumbler(p, n):
    """One drinking glass of a set."""
    if p.has("dores", "the"):
        gold = p.c2

        def paint(x, y, z, n):
            a = np.arctan2(z, x)
            u = (a / (2 * math.pi) * 10) % 1 - .5
            arch = step(-.20, -np.sqrt((u * .52) ** 2 + ((y - .52) / 1.25) ** 2), .02) - step(-.155,
                -np.sqrt((u * .52) ** 2 + ((y - .52) / 1.25) ** 2), .02)
            cover = np.clip(arch + band(y, .92, 1.0, .01) + band(y, .20, .225, .01) + band(y, .82, .845,
                .01) + (np.sqrt((u * .5) ** 2 + (y - .52) ** 2) < .035), 0, 1) * .95
            return solid(gold, len(x)), cover
        body = turned([(.05, 0), (.27, 0), (.31, .04), (.31, .3), (.35, .7), (.385, 1.0)], .028, .09)
        return Group().add(body, glass(mix(p.c1, (1, 1, 1), .25), 5.5, tint=paint, rim=.4))
    # recycled glass with its bubbles
    r = np.random.Generator(np.random.PCG64(40 + n))
    spots = [(r.random() * 2 * math.pi, .15 + .75 * r.random(), .010 + .016 * r.random()) for _ in range(26)]

    def paint(x, y, z, nn):
        a = np.arctan2(z, x)
        cover = np.zeros(len(x), np.float32)
        for sa, sy, s in spots:
            da = (a - sa + math.pi) % (2 * math.pi) - math.pi
            d = np.sqrt((da * .42) ** 2 + ((y - sy) * .8) ** 2)
            cover = np.maximum(cover, np.exp(-((d - s) / (s * .35)) ** 2) * .45)
        return solid(lighter(p.c1, .55), len(x)), cover
    body = turned([(.05, 0), (.33, 0), (.38, .05), (.40, .3), (.43, .72), (.45, 1.0)], .035, .12)
    return Group().add(body, glass(mix(p.c1, p.c2, .3), 3.0, tint=paint))


def glassware(p, how="front"):
    if how in ("single", "scene"):
        g = tumbler(p, 0)
        if p.has("the"):
            g.add(Lathe([(0, .10), (.27, .10), (.345, .78), (0, .78)]), glass((.80, .48, .12), 3.2, rim=.1))
        else:
            g.add(Lathe([(0, .13), (.355, .13), (.39, .68), (0, .68)]), glass((.82, .93, .96), 1.2, rim=.2))
        if how == "scene":
            g.join(tumbler(p, 1).placed((.95, 0, -.55)))
        return g
    places = [(-1.05, -.45), (0, -.55), (1.05, -.45), (-.58, .55), (.45, .50), (1.4, .48)]
    g = Group()
    for k, (x, z) in enumerate(places):
        g.join(tumbler(p, k).placed((x, 0, z), (0, 60 * k, 0)))
    return g


def stem_glass(bowl_line, stem_y, foot_r, wall, material):
    cup_part = Lathe(vessel(spline(bowl_line), wall, stem_y + .05))
    foot = Lathe([(0, 0), (foot_r, 0), (foot_r, .02)] + spline([(foot_r * .6, .05), (.08, .12), (.035, .3),
        (.03, stem_y * .6), (.05, stem_y - .02), (.09, stem_y + .02)]) + [(0, stem_y + .03)])
    return Group().add(Blend(.03, cup_part, foot), material)


def wineglass(p, how="front"):
    m = glass((.93, .96, .96), 1.4, rim=.5)
    line = [(.02, .80), (.18, .84), (.36, 1.0), (.44, 1.24), (.40, 1.5), (.33, 1.72), (.36, 1.84)]
    one = stem_glass(line, .80, .40, .022, m)
    if how in ("single", "scene", "full"):
        wine = Lathe([(0, .85)] + spline([(.14, .855), (.33, 1.01), (.415, 1.22), (.415, 1.24)]) + [(0, 1.24)])
        full = Group().join(one).add(wine, glass(p.c2, 5.0, rim=.2))
        if how == "scene":
            return full.join(one.placed((1.05, 0, -.5)))
        return full
    return row(one, [(-1.0, -.25, 0), (-.32, .42, 0), (.36, -.30, 0), (1.02, .38, 0)])


def flute(p, how="front"):
    m = glass(p.c1, 2.4, rim=.5)
    line = [(.02, .66), (.12, .70), (.20, .9), (.22, 1.3), (.20, 1.75), (.21, 1.86)]
    one = stem_glass(line, .66, .34, .024, m)
    fizz = Lathe([(0, .72)] + spline([(.10, .73), (.175, .92), (.195, 1.3), (.185, 1.5)]) + [(0, 1.5)])
    full = Group().join(one).add(fizz, glass(p.c2, 2.2, rim=.15))
    g = Group()
    for k, (x, z) in enumerate(((-1.0, -.3), (-.62, .42), (-.12, -.35), (.28, .40), (.72, -.30), (1.1, .38))):
        g.join((full if k in (1, 3, 5) else one).placed((x, 0, z)))
    return g


def carafe(p, how="front"):
    cork = matt(p.c2, seed="cork", vary=.14)
    if p.has("decanter"):
        m = glass((.92, .95, .95), 1.2, rim=.5)
        line = [(.05, 0), (.92, 0), (1.06, .06), (1.10, .16), (.92, .42), (.45, .74), (.24, 1.05), (.20, 1.5),
                (.24, 1.9), (.34, 2.06)]
        g = Group().add(Lathe(vessel(spline(line), .03, .06)), m)
        g.add(Lathe([(0, .065), (.9, .065)] + spline([(.90, .07), (1.03, .14), (1.04, .2), (.88, .40),
                                                      (.80, .46)]) + [(0, .46)]), glass(p.c2, 2.2, rim=.15))
        return g
    m = glass(p.c1, 1.9, rim=.5)
    line = [(.05, 0), (.54, 0), (.62, .05), (.64, .3), (.62, .8), (.50, 1.15), (.32, 1.45), (.28, 1.7), (.34, 1.95)]
    g = Group().add(Lathe(vessel(spline(line), .03, .09)), m)
    if how == "scene":
        g.add(Lathe([(0, .10), (.55, .10)] + spline([(.56, .1), (.60, .3), (.58, .8), (.50, 1.06)]) + [(0, 1.06)]),
              glass((.80, .93, .96), .8, rim=.2))
    g.add(turned([(.20, 1.72), (.27, 1.80), (.30, 1.96), (.30, 2.10), (.26, 2.14), (.02, 2.15)]), cork)
    return g


KINDS = {"mug": mug, "cup": cup, "bowl": bowl, "plate": plate, "platter": platter, "glass": glassware,
         "wineglass": wineglass,
         "flute": flute, "carafe": carafe}
