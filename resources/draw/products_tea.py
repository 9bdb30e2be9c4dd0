"""Teapots, coffee makers, tins, mills and jars.

Each function takes a product and gives the group of bodies that shows it; `how` names a special state.
Needs the Debian packages python3-cairo and python3-numpy.
"""
import math

import numpy as np

from canvas import darker, lighter, mix, rgb, rng
from joinery import Blend, Cut, Dented, Stretch
from labels import tin_wrap
from materials import (
    Material, Noise, blend, cast_iron, enamel, glass, glaze, lacquer, matt, printed, round_label, solid, steel, step,
    wood)
from products_table import lacquer_coffee
from props import beans, tea_leaves
from solids import Ball, Board, Box, Lathe, Ring, Rod, Spout, Wire, rounded_rect, spline, vessel
from stock import ALU, BLACK, BRASS, STEEL, WHITE, knob, stripes, turned
from studio import Group


def pot_parts(body_line, wall, skin, spout, radii, material_spout=None):
    """Hollow body with its spout grown on."""
    line = spline(body_line)
    outer = Lathe([(0, line[0][1])] + line + [(0, line[-1][1])])
    cave = Lathe([(0, line[0][1] + wall)] + [(max(x - wall, 0), y + (wall if i < 3 else 0)) for i,
                                             (x, y) in enumerate(line)] + [(max(line[-1][0] - wall, 0),
                                                 line[-1][1] + .3), (0, line[-1][1] + .3)])
    pipe = Spout(spout, radii, hollow=.03)
    return Group().add(Cut(Blend(.10, outer, pipe), cave), skin)


def loop(points, r, flat=.7):
    return Wire(spline(points), r, flat=flat)


def teapot(p, how="front"):
    g = Group()
    if p.has("fonte"):
        n1 = Noise(p.key)

        def knobs(x, y, z):
            a = np.arctan2(z, x) / (2 * math.pi) * 40
            v = (y - .1) / .085
            u = (a + .5 * (np.floor(v) % 2)) % 1 - .5
            w = v % 1 - .5
            return .028 * np.exp(-(u * u + w * w) * 14) * (y > .14) * (y < .66) * (np.sqrt(x * x + z * z) > .70)
        skin = cast_iron(p.c1, p.key, .32)
        line = [(.05, 0), (.5, 0), (.66, .06), (.92, .26), (.96, .48), (.84, .70), (.5, .84), (.40, .86)]
        parts = pot_parts(line, .05, skin, [(.82, .42), (1.12, .56), (1.26, .76), (1.38, .84)], [.17, .115, .085, .08])
        parts.items[0].body = Dented(parts.items[0].body, knobs, .75)
        g.join(parts)
        g.add(turned([(.46, .84), (.46, .88), (.32, .94), (.001, .97)]), skin)
        g.join(knob(.085, skin, (0, .95, 0)))
        bail = loop([(-.80, .70), (-.86, 1.1), (-.60, 1.52), (0, 1.68), (.60, 1.52), (.86, 1.1), (.80, .70)], .045, .6)
        g.add(bail, cast_iron(darker(p.c1, .2), p.key + "b", .4))
        wrap = loop([(-.50, 1.575), (-.25, 1.655), (0, 1.68), (.25, 1.655), (.50, 1.575)], .075, .6)
        g.add(wrap, wood(p.c2, seed=p.key, axis="x", scale=3, rough=.5))
        for s in (1, -1):
            g.add(Ring(.08, .035), skin, (s * .80, .72, 0), (90, 0, 0))
    elif p.has("gres"):
        skin = glaze(p.c1, p.c2, p.key, foot=.10, pool=.35, speckle=.35, rough=.12)
        line = [(.05, 0), (.48, 0), (.56, .06), (.76, .35), (.74, .74), (.56, 1.04), (.42, 1.12), (.40, 1.16)]
        g.join(pot_parts(line, .05, skin, [(.62, .45), (.95, .62), (1.10, .92), (1.24, 1.10)], [.16, .11, .075, .065]))
        g.join(Group().add(turned([(.43, 1.16), (.43, 1.19), (.30, 1.27), (.001, 1.31)]), skin)).join(knob(.10, skin,
            (0, 1.29, 0)))
        bail = loop([(-.48, 1.05), (-.62, 1.35), (-.42, 1.74), (0, 1.86), (.42, 1.74), (.62, 1.35), (.48, 1.05)], .045,
                    .8)
        g.add(bail, Material(lambda x, y, z, n: blend(p.c2, darker(p.c2, .4),
                                                      stripes(np.arctan2(y - 1.2, x), .10, .3, .02)), .6, gloss=.5))
    elif p.has("emaill"):
        skin = enamel(p.c1, p.key)
        trim = enamel(p.c2, p.key)
        line = [(.05, 0), (.66, 0), (.72, .05), (.70, .4), (.58, .9), (.46, 1.12), (.45, 1.16)]
        g.join(pot_parts(line, .04, skin, [(.60, .42), (.92, .60), (1.06, .95), (1.26, 1.14)], [.17, .11, .07, .055]))
        g.add(Cut(loop([(-.44, 1.06), (-.80, 1.14), (-1.04, .96), (-1.00, .58), (-.80, .36), (-.62, .34)], .05, .5),
                  Lathe([(0, -1), (.42, -1), (.42, 3), (0, 3)])), trim)
        g.add(Ring(.45, .03), trim, (0, 1.16, 0))
        g.add(turned([(.46, 1.17), (.44, 1.21), (.25, 1.31), (.001, 1.34)]), skin).join(knob(.085, trim, (0, 1.32, 0)))
    else:
        skin = glaze(p.c1, p.c2, p.key, pool=.03, rough=.06, gloss=1.3)
        line = [(.05, 0), (.40, 0), (.42, .05), (.62, .22), (.80, .55), (.74, .88), (.52, 1.08), (.42, 1.12)]
        g.join(pot_parts(line, .045, skin, [(.66, .46), (.98, .58), (1.12, .90), (1.34, 1.10)], [.17, .12, .08, .06]))
        g.add(Cut(loop([(-.56, 1.0), (-.86, 1.12), (-1.12, .98), (-1.12, .62), (-.92, .40), (-.66, .36)], .065, .75),
                  Lathe([(0, -1), (.5, -1), (.5, 3), (0, 3)])), skin)
        g.add(turned([(.45, 1.12), (.45, 1.15), (.34, 1.24), (.15, 1.30), (.001, 1.31)]),
              skin).join(knob(.09, skin, (0, 1.29, 0)))
        g.add(Ring(.44, .018), steel((.80, .80, .78), rough=.12), (0, 1.125, 0))
    g = g.placed((0, 0, 0), (0, -14, 0))
    if how == "scene":
        small = Group().add(turned([(.05, 0), (.20, 0), (.22, .05), (.30, .2), (.33, .42)], .035), skin)
        small.add(Lathe([(0, .31), (.28, .31), (.28, .34), (0, .34)]), lacquer(rgb("#a8692a"), .05))
        g.join(small.placed((-.15, 0, 1.25))).join(small.placed((.75, 0, 1.05)))
    return g


def glassteapot(p, how="front"):
    m = glass(p.c1, 1.6, rim=.5)
    line = [(.05, 0), (.62, 0), (.72, .05), (.82, .35), (.80, .68), (.62, 1.0), (.48, 1.10), (.48, 1.16)]
    g = pot_parts(line, .03, m, [(.70, .40), (1.02, .58), (1.16, .94), (1.36, 1.10)], [.15, .10, .07, .055])
    g.add(Cut(loop([(-.50, 1.04), (-.88, 1.10), (-1.10, .92), (-1.06, .58), (-.80, .36)], .055, .75),
              Lathe([(0, -1), (.46, -1), (.46, 3), (0, 3)])), m)
    tea = Lathe([(0, .05), (.64, .05)] + spline([(.66, .06), (.775, .36), (.765, .66), (.70, .80)]) + [(0, .80)])
    g.add(tea, glass(p.c2, 1.6, rim=.12))

    def sieve(x, y, z, n):
        a = (np.arctan2(z, x) / (2 * math.pi) * 46) % 1 - .5
        v = (y / .045) % 1 - .5
        dot = step(-.26, -np.sqrt(a * a + v * v), .06) * (y > .38) * (y < 1.0)
        return blend(solid((.78, .79, .80), len(x)), rgb("#3f3a36"), dot)
    g.add(Lathe(vessel(spline([(.02, .32), (.34, .32), (.36, .36), (.36, .7), (.40, 1.14)]), .02)),
          Material(sieve, .2, metal=True))
    lid_m = steel(rough=.10)
    g.add(turned([(.50, 1.16), (.50, 1.20), (.36, 1.26), (.001, 1.28)]),
          lid_m).join(knob(.085, wood(rgb("#8a5a34"), seed=p.key, axis="y"), (0, 1.27, 0)))
    g = g.placed((0, 0, 0), (0, -12, 0))
    if how == "scene":
        cup = Group().add(turned([(.05, 0), (.26, 0), (.30, .05), (.36, .3), (.38, .52)], .025),
                          glass((.92, .95, .95), 1.4))
        cup.add(Lathe([(0, .03), (.24, .03), (.335, .34), (0, .34)]), glass(p.c2, 2.2, rim=.1))
        g.join(cup.placed((.95, 0, .95)))
    return g


def frenchpress(p, how="front"):
    g = Group()
    black = lacquer(p.c1, .25, .8)
    if p.has("inox"):
        coat = steel(mix(p.c1, STEEL, .5), p.key, rough=.15)
        line = [(.05, 0), (.56, 0), (.60, .04), (.60, .6), (.60, 1.55), (.63, 1.62)]
        g.add(turned(line, .05), coat)
        g.add(Ring(.60, .014), steel(rough=.08), (0, .16, 0)).add(Ring(.60, .014), steel(rough=.08), (0, 1.44, 0))
        spout = Stretch(Ball(.16), 1.3, .6, .7)
        g.add(spout, coat, (.62, 1.55, 0))
        grip = loop([(-.58, 1.44), (-.92, 1.46), (-1.04, 1.30), (-1.02, .50), (-.90, .34), (-.58, .36)], .055, .55)
        g.add(grip, coat)
        top = coat
    else:
        wall = glass((.93, .95, .95), 1.2, rim=.45)
        g.add(turned([(.05, .06), (.50, .06), (.54, .10), (.54, .6), (.54, 1.55), (.57, 1.62)], .02), wall)
        g.add(Lathe([(0, .09), (.515, .09), (.515, 1.10), (0, 1.10)]), lacquer(rgb("#3a2114"), .04))
        g.add(Lathe([(0, 1.10), (.515, 1.10), (.515, 1.16), (0, 1.16)]), matt(rgb("#b98e5e"), .6, seed="foam", vary=.1))
        frame = steel((.76, .77, .78), rough=.10)
        for y in (.14, 1.40):
            g.add(Lathe([(.545, y - .045), (.575, y - .045), (.575, y + .045), (.545, y + .045)]), frame)
        for a in (30, 150, 210, 330):
            x, z = .58 * math.cos(math.radians(a)), .58 * math.sin(math.radians(a))
            g.add(Rod((x, 0, z), (x, 1.40, z), .026), frame)
        g.add(Lathe([(0, .01), (.52, .01), (.54, .05), (.52, .08), (0, .08)]), frame)
        grip = loop([(-.56, 1.42), (-.88, 1.46), (-1.06, 1.28), (-1.04, .50), (-.92, .26), (-.56, .16)], .075, .6)
        g.add(grip, black)
        top = steel((.76, .77, .78), rough=.10)
    g.add(turned([(.60, 1.62), (.61, 1.68), (.50, 1.78), (.2, 1.84), (.001, 1.85)]), top)
    g.add(Rod((0, 1.8, 0), (0, 2.12, 0), .028), steel(rough=.08, brushed="none"))
    g.add(Ball(.10), black if not p.has("inox") else lacquer(BLACK, .2), (0, 2.16, 0))
    return g.placed((0, 0, 0), (0, -24, 0))


def mokapot(p, how="front"):
    """The stove-top pot of eight faces: boiler below, waist, jug above."""
    g = Group()
    metal = steel(ALU, p.key, rough=.20, brushed="none")
    upper = metal if not p.has("verte") else lacquer(p.c1, .18, 1.0)
    low = Lathe([(0, 0), (.58, 0), (.62, .03), (.46, .74), (.46, .78), (0, .78)], sides=8)
    ring = Lathe([(0, .78), (.50, .78), (.52, .82), (.52, .90), (.50, .93), (0, .93)])
    jug = Lathe([(0, .93), (.45, .93), (.47, .97), (.60, 1.66), (0, 1.66)], sides=8)
    lip = Board([(.30, 1.20), (.52, 1.26), (.82, 1.66), (.30, 1.66)], .20, .08)
    g.add(low, metal).add(ring, metal).add(Blend(.05, jug, lip), upper)
    cover = Lathe([(0, 1.66), (.63, 1.66), (.63, 1.70), (.42, 1.78), (.16, 1.88), (0, 1.90)], sides=8)
    g.add(cover, metal)
    dark = lacquer(p.c2 if not p.has("verte") else BLACK, .3, .7)
    g.add(turned([(.05, 1.88), (.06, 1.94), (.10, 2.02), (.08, 2.08), (.001, 2.09)]), dark)
    outline = spline([(-.54, 1.60), (-.86, 1.66), (-1.12, 1.54), (-1.08, 1.30), (-1.02, .86), (-.94, .84), (-.92, 1.2),
                      (-.90, 1.40), (-.80, 1.46), (-.52, 1.44)])
    g.add(Board(outline, .15, .06), dark)
    g.add(Rod((0, .42, .50), (0, .42, .62), .05), steel(BRASS, rough=.12, brushed="none"), turn=(0, 40, 0))
    g = g.placed((0, 0, 0), (0, -20, 0))
    if how == "scene":
        cup = Group().add(turned([(.05, 0), (.22, 0), (.28, .05), (.33, .25), (.34, .44)], .035),
                          glaze(WHITE, p.c1, "espresso"))
        cup.add(Lathe([(0, .34), (.30, .34), (.30, .37), (0, .37)]), lacquer_coffee())
        cup.add(turned([(.05, -.06), (.26, -.06), (.5, .0), (.52, .02)], .03), glaze(WHITE, p.c1, "saucer"))
        g.join(cup.placed((.62, .06, 1.0)))
        g.join(beans(28, p.key, .5).placed((-.55, 0, 1.15)))
    return g


def dripper(p, how="front"):
    skin = glaze(p.c1, darker(p.c1, .1), p.key, pool=.04, rough=.07, gloss=1.3)

    def ribs(x, y, z):
        a = np.arctan2(z, x) + y * 1.1
        return .012 * np.cos(a * 20) * (y > .18) * (y < .78)
    cone = Dented(turned([(.10, .10), (.20, .14), (.44, .50), (.68, .86), (.71, .92)], .045, .10), lambda x, y,
                  z: ribs(x, y, z) * 1.0, .8)
    g = Group().add(cone, skin)
    g.add(turned([(.05, 0), (.62, 0), (.66, .03), (.60, .07), (.20, .12), (.15, .16)]), skin)
    g.add(Cut(loop([(.56, .78), (.88, .82), (1.00, .60), (.86, .38), (.42, .36)], .055, .7),
              Lathe([(0, 0), (.2, 0), (.66, .92), (0, .92)])), skin)
    if how in ("scene", "used"):
        paper = matt(rgb("#efe7d6"), .9, .2, seed="filter", vary=.03, wrap=.4)
        g.add(Lathe(vessel(spline([(.12, .22), (.40, .56), (.66, .95), (.74, 1.08)]), .012)), paper)
        g.add(Lathe([(0, .3), (.42, .62), (.46, .70), (0, .66)]), matt(p.c2, .8, .3, seed="grounds", vary=.2))
        mugg = Group()
        mugg.add(turned([(.05, 0), (.50, 0), (.54, .04), (.54, .5), (.54, .95)], .03), glass((.93, .95, .95), 1.4))
        mugg.add(Lathe([(0, .04), (.50, .04), (.505, .5), (0, .5)]), glass(p.c2, 1.6, rim=.1))
        return g.placed((0, .95, 0)).join(mugg).placed((0, 0, 0), (0, -22, 0))
    return g.placed((0, 0, 0), (0, -22, 0))


def tin(p, how="front"):
    g = Group()
    if p.has("biscuit"):
        w, h, d = 1.7, .95, 1.2
        pic = tin_wrap(p, "biscuits")
        front = lambda x, y, z, n: ((x + w / 2) / w - 3 * (n[2] < .5), (y + h / 2) / h)
        shell = Box(w, h, d, .12)
        metal = printed(pic, front, p.c1, .22, .9)
        g.add(shell, metal, (0, h / 2, 0))
        lid_m = Material(lambda x, y, z, n: blend(p.c1, p.c2, stripes(x + z, .18, .18, .012) * (n[1] > .8)), .2, .05,
                         gloss=1.0)
        cover = Group().add(Box(w + .05, .26, d + .05, .11), lid_m)
        if how == "open":
            g.add(Box(w - .14, .05, d - .14, .02), matt(rgb("#efe6d0")), (0, h + .005, 0))
            r = np.random.Generator(np.random.PCG64(3))
            for k in range(15):
                a, b = k % 5, k // 5
                g.add(Dented(turned([(.05, 0), (.16, 0), (.18, .03), (.17, .07), (.05, .08)], wave=(14, .05)),
                             lambda x, y, z: 0 * x),
                      matt(rgb("#d8a45c"), .7, .3, seed="biscuit", vary=.12),
                      (-.62 + a * .31, h + .03 + .02 * r.random(), -.36 + b * .36),
                      (12 * r.normal(), 0, 12 * r.normal()))
            g.join(cover.placed((.35, .13, 1.25), (0, 14, 0)))
        else:
            g.join(cover.placed((0, h - .02, 0)))
        return g.placed((0, 0, 0), (0, -28, 0))
    if p.has("laqu"):
        pic = tin_wrap(p, "the")
        shell = turned([(.05, 0), (.50, 0), (.53, .03), (.53, .6), (.53, 1.32), (.50, 1.35)])
        place = round_label(250, .06, 1.30)
        g.add(shell, printed(pic, place, p.c1, .06, 1.25))
        g.add(turned([(.545, 1.02), (.55, 1.04), (.55, 1.38), (.50, 1.44), (.001, 1.45)]), lacquer(p.c1))
        g.add(Ring(.55, .012), steel(p.c2, rough=.12, brushed="none"), (0, 1.03, 0))
        g.join(knob(.075, steel(p.c2, rough=.12), (0, 1.44, 0)))
    else:
        m = steel(p.c1, p.key, rough=.14, strength=.06)
        shell = turned([(.05, 0), (.54, 0), (.57, .03), (.57, .6), (.57, 1.1)])
        g.add(shell, m)
        for y in (.12, .16, .92, .96):
            g.add(Ring(.57, .010), m, (0, y, 0))
        g.add(turned([(.59, 1.08), (.60, 1.10), (.60, 1.30), (.56, 1.34), (.001, 1.35)]), m)
        g.join(knob(.10, wood(rgb("#6a4730"), seed=p.key, axis="y", scale=3), (0, 1.34, 0)))
        plate = Board(rounded_rect(.42, .26, .04), .02, .006)
        g.add(plate, steel(p.c2, "plate", rough=.2, brushed="x"), (0, .56, .575))
    if how == "scene":
        g.join(tea_leaves(110, p.key, .55).placed((.45, 0, .95)))
    return g


def grinder(p, how="front"):
    """A wooden box mill with a crank and a drawer."""
    w = wood(p.c1, seed=p.key, axis="y", scale=1.4, contrast=1.1)
    dark = cast_iron(p.c2, p.key, .3)
    g = Group()
    g.add(Box(1.1, .10, 1.1, .04), w, (0, .06, 0)).add(Box(.98, .80, .98, .03), w,
                                                       (0, .50, 0)).add(Box(1.12, .10, 1.12, .04), w, (0, .94, 0))
    g.add(Box(.66, .34, .04, .015), wood(lighter(p.c1, .12), seed=p.key + "d", scale=1.4), (0, .32, .49))
    g.join(knob(.07, steel(BRASS, rough=.15), (0, 0, 0)).placed((0, .32, .51), (90, 0, 0)))
    dome = turned([(.50, .98), (.48, 1.05), (.40, 1.18), (.22, 1.30), (.12, 1.34)])
    g.add(dome, steel(BRASS, p.key, rough=.18))
    g.add(Rod((0, 1.3, 0), (0, 1.56, 0), .05), dark)
    arm = Wire(spline([(0, 0), (.2, .05), (.5, .02), (.78, .10)]), .04, flat=.6)
    g.add(arm, dark, (0, 1.54, 0))
    g.add(turned([(.04, 0), (.05, .05), (.10, .14), (.11, .26), (.07, .34), (.001, .35)]), w, (.78, 1.64, 0))
    g.add(Ball(.06), steel(BRASS, rough=.12), (0, 1.58, 0))
    g = g.placed((0, 0, 0), (0, -34, 0))
    if how == "scene":
        g.join(beans(70, p.key, .8).placed((.55, 0, 1.0)))
    return g


def peppermill(p, how="front"):
    w = wood(p.c1, seed=p.key, axis="y", scale=1.8, contrast=1.2, rough=.3, gloss=1.0)
    g = Group()
    g.add(turned([(.05, 0), (.34, 0), (.37, .05), (.36, .16), (.28, .34), (.22, .62), (.25, .88), (.30, 1.06),
                  (.29, 1.12), (.05, 1.13)]), w)
    g.add(Ring(.27, .03), steel(rough=.1), (0, 1.15, 0))
    g.add(turned([(.05, 1.16), (.28, 1.17), (.31, 1.24), (.33, 1.4), (.26, 1.6), (.12, 1.68), (.05, 1.70)]), w)
    g.add(turned([(.05, 1.68), (.06, 1.72), (.09, 1.78), (.06, 1.84), (.001, 1.85)]), steel(rough=.08))
    if how == "scene":
        r = np.random.Generator(np.random.PCG64(9))
        for _ in range(60):
            a, d = r.random() * 6.3, r.random() ** .6 * .7
            g.add(Ball(.035 + .012 * r.random()), matt(rgb("#2d2420"), .6, .4, seed="pepper", vary=.2),
                  (.35 + d * math.cos(a), .035, .65 + d * math.sin(a) * .7))
    return g


def jar(p, how="front"):
    m = glass(p.c1, 1.6, rim=.5)
    g = Group().add(turned([(.05, 0), (.52, 0), (.60, .06), (.62, .2), (.62, 1.1), (.56, 1.24), (.52, 1.30),
                            (.54, 1.38)], .03, .06), m)
    cork = matt(p.c2, .85, .25, seed="cork", vary=.14)
    g.add(turned([(.05, 1.26), (.47, 1.26), (.49, 1.30), (.54, 1.36), (.58, 1.40), (.58, 1.54), (.54, 1.58),
                  (.05, 1.59)]), cork)
    # almonds, packed in layers along the glass and heaped on top
    r = rng("almonds")
    skin = Material(lambda x, y, z, n: blend(rgb("#b57f4a"), rgb("#8a5a30"),
                                             .5 + .5 * np.sin(np.arctan2(y, z) * 9) * .6), .6, .04, gloss=.5)
    nut = Stretch(Ball(.115), 1, .62, .42)
    for j in range(9):
        for i in range(22):
            a = 2 * math.pi * (i + .5 * (j % 2) + .3 * r.random()) / 22
            g.add(nut, skin, (.50 * math.cos(a), .13 + j * .085 + .02 * r.normal(), .50 * math.sin(a)),
                  (40 * r.normal(), -math.degrees(a) + 90 + 20 * r.normal(), 50 * r.normal()))
    for _ in range(60):
        a, d = r.random() * 2 * math.pi, r.random() ** .5 * .46
        g.add(nut, skin, (d * math.cos(a), .90 + .05 * (.46 - d) + .02 * r.normal(), d * math.sin(a)),
              (30 * r.normal(), 360 * r.random(), 30 * r.normal()))
    g.add(Lathe([(0, .08), (.44, .08), (.44, .86), (0, .88)]), matt(rgb("#6e4624")))
    if how == "scene":
        return g.join(g.placed((1.25, 0, -.5), (0, 40, 0), .78))
    return g


KINDS = {"teapot": teapot, "glassteapot": glassteapot, "frenchpress": frenchpress, "mokapot": mokapot,
         "dripper": dripper, "tin": tin,
         "grinder": grinder, "peppermill": peppermill, "jar": jar}
