"""Things that stand beside a product in its second and third picture: fruit, herbs, cloths, boxes, plants.

Needs the Debian packages python3-cairo and python3-numpy.
"""
import math

import numpy as np

from canvas import darker, lighter, mix, rgb, rng
from joinery import Dented, Stretch
from materials import Material, Noise, blend, cloth, matt, printed, solid, step, wood
from solids import Ball, Box, Lathe, Pillow, Rod, Wire, spline
from stock import KRAFT, WHITE, stripes
from studio import Group


def lemon(r=.3, half=False):
    n1 = Noise("lemon")
    skin = Material(rgb("#efc62f"), .35, .045, gloss=.7, bump=lambda x, y, z: .006 * n1(x * 40, y * 40, z * 40),
                    grain=.006)
    line = spline([(.001, -1.28), (.14, -1.2), (.35, -1.0), (.8, -.6), (1, 0), (.8, .6), (.35, 1.0), (.14, 1.18),
                   (.001, 1.26)])
    if not half:
        return Group().add(Lathe(line), skin, (0, r, 0), (0, 0, 74), r)
    part = spline([(.001, -1.28), (.14, -1.2), (.35, -1.0), (.8, -.6), (1, 0)]) + [(0, 0)]

    def flesh(x, y, z, n):
        a = np.arctan2(z, x)
        q = np.sqrt(x * x + z * z)
        wall = np.abs((a / (2 * math.pi) * 9) % 1 - .5)
        out = blend(rgb("#f6df77"), rgb("#e9c23f"), .5 + .5 * n1(x * 12, z * 12, y))
        out = blend(out, rgb("#fbf3d2"), np.maximum(step(.45, wall, .03),
                                                    np.maximum(step(.86, q, .03), step(-.1, -q, .03))))
        return blend(rgb("#efc62f"), out, (n[1] > .7) * step(-.97, -q, .01))
    return Group().add(Lathe(part), Material(flesh, .2, .05), (0, r * .96, 0), (58, 0, 0), r)


def herbs(count, seed, tone=rgb("#5f8a3f")):
    """A few sprigs with leaves, lying."""
    r = rng("herbs", seed)
    g = Group()
    m = matt(tone, .6, .5, seed="herb", vary=.12)
    stem = matt(darker(tone, .2), .7)
    outline = spline([(0, 0), (.05, .05), (.13, .055), (.22, 0), (.13, -.055), (.05, -.05), (0, 0)])
    leaf_body = Pillow(outline, .02, .06)
    for k in range(count):
        a = -30 + 60 * r.random()
        sprig = Group().add(Rod((-.35, .02, 0), (.42, .03, 0), .012, .006), stem)
        for i in range(6):
            for s in (1, -1):
                sprig.add(leaf_body, m, (-.1 + i * .09, .035, 0), (-90 + 12 * r.random(), s * (48 + 14 * r.random()),
                    0), .8 + .4 * r.random())
        g.join(sprig.placed((0, .02 * (k % 3), .05 * (k - count / 2)), (0, a, 0)))
    return g


def beans(count, seed, spread=.6):
    """Coffee beans."""
    r = rng("beans", seed)
    tone = rgb("#5c3a24")
    m = Material(lambda x, y, z, n: blend(tone, darker(tone, .6), np.exp(-((z + .02 * np.sin(x * 30)) / .012) ** 2)
                                          * (y > 0)), .28, .05, gloss=.9)
    g = Group()
    body = Stretch(Ball(.085), 1, .6, .72)
    for _ in range(count):
        a, d = r.random() * 7, r.random() ** .6 * spread
        g.add(body, m, (d * math.cos(a), .045, d * math.sin(a) * .6), (25 * r.normal(), r.random() * 360,
            20 * r.normal()))
    return g


def tea_leaves(count, seed, spread=.6):
    """Loose tea, rolled leaves."""
    r = rng("leaves", seed)
    g = Group()
    body = Wire(spline([(-.09, 0), (-.03, .018), (.04, .004), (.09, .022)]), .016)
    tones = [matt(rgb(t), .7, .4, seed="tea", vary=.1) for t in ("#4f5a34", "#6b7344", "#3d4530")]
    for k in range(count):
        a, d = r.random() * 7, r.random() ** .7 * spread
        g.add(body, tones[k % 3], (d * math.cos(a), .02 + .05 * (1 - d / spread) * r.random(), d * math.sin(a) * .6),
              (40 * r.normal(), r.random() * 360, 20 * r.normal()), .8 + .5 * r.random())
    return g


def napkin(w=2.2, d=1.6, tone=rgb("#d9cfbd"), stripe=None, seed="napkin", backdrop=True):
    """A folded linen cloth lying flat."""
    n1 = Noise(seed)
    pattern = (lambda u, v: stripes(u, 4.0, .02, shift=.9) + stripes(u, 4.0, .02, shift=1.05)) if stripe else None
    m = cloth(tone, stripe or tone, seed, pattern, weave=60, plane="xz")
    m.backdrop = backdrop
    body = Dented(Box(w, .05, d, .022), lambda x, y, z: .012 * n1(x * 1.6, 0 * y, z * 1.6))
    upper = Dented(Box(w * .99, .045, d * .5, .02), lambda x, y, z: .014 * n1(x * 1.4 + 3, 0 * y, z * 1.4))
    return Group().add(body, m, (0, .02, 0)).add(upper, m, (.01, .06, d * .24))


def carton(w, h, d, label=None, tone=KRAFT, seed="carton"):
    """A gift box of kraft board with its lid and a printed label on the front."""
    n1 = Noise(seed)
    plain = Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .05 * n1(x * 40, y * 40, z * 40) + .03 * n1(x * 4,
        y * 4, z * 4))[:, None], .8, .04, gloss=.25)
    g = Group().add(Box(w, h, d, .02), plain, (0, h / 2, 0))
    g.add(Box(w + .05, h * .22, d + .05, .02), plain, (0, h * .89 + .02, 0))
    if label is not None:
        lh = h * .55
        lw = min(w * .8, lh * label.shape[1] / label.shape[0])
        lh = lw * label.shape[0] / label.shape[1]
        place = lambda x, y, z, n: (x / lw + .5, y / lh + .5)
        g.add(Box(lw, lh, .012, .004), printed(label, place, WHITE, .7, .3), (0, h * .40, d / 2 + .003))
    return g


def plant(seed="plant", tall=1.0, tone=rgb("#5d8a4a"), count=26, leaf=(.34, .12), spread=.5):
    """Leaves on arching stems growing from the origin."""
    r = rng("plant", seed)
    g = Group()
    m = Material(lambda x, y, z, n: blend(tone, lighter(tone, .3), np.exp(-(y / .008) ** 2) * .8 + .25
                                          * (x / leaf[0])), .42, .045, gloss=.7, wrap=.2)
    stem = matt(mix(tone, rgb("#7a6a3a"), .3), .7)
    w = leaf[1]
    outline = spline([(0, 0), (leaf[0] * .25, w * .42), (leaf[0] * .6, w * .42), (leaf[0], 0),
                      (leaf[0] * .6, -w * .42), (leaf[0] * .25, -w * .42), (0, 0)])
    blade = Pillow(outline, .02, .05)
    stalk = Rod((0, 0, 0), (0, 1, 0), .016, .009)
    for _ in range(count):
        yaw, lean = r.random() * 360, 10 + 55 * r.random()
        length = tall * (.5 + .5 * r.random())
        a = math.radians(lean)
        top = (math.sin(a) * length, math.cos(a) * length, 0)
        sprig = Group().add(stalk, stem, (0, 0, 0), (0, 0, -lean), length)
        for t, s in ((1.0, 0), (.8, 1), (.8, -1), (.6, 1), (.6, -1)):
            sprig.add(blade, m, tuple(c * t for c in top), (-60 + 30 * r.random(), s * 55,
                90 - lean * 1.25 - 25 + 10 * s), .75 + .45 * r.random())
        g.join(sprig.placed((0, 0, 0), (0, yaw, 0)))
    return g


def book(w, h, d, tone, seed):
    """A closed book lying flat."""
    cover = cloth(tone, seed=seed, weave=90, relief=.003, slub=.06, plane="xz")
    pages = Material(lambda x, y, z, n: blend(rgb("#f3ecdc"), rgb("#cdbfa5"), .35 * stripes(y, .016, .5, .004)), .8,
                     gloss=.2)
    return (Group().add(Box(w, .035, d, .012), cover, (0, .018, 0)).add(Box(w, .035, d, .012), cover, (0, h - .018, 0))
            .add(Box(.05, h, d, .02), cover, (-w / 2 + .02, h / 2, 0)).add(Box(w - .08, h - .05, d - .08, .01), pages,
                (0, h / 2, 0)))


def tabletop(tone=rgb("#b58a5c"), seed="table"):
    """Planks for the ground of a scene."""
    base = wood(tone, seed=seed, axis="x", scale=.7, rough=.5)

    def colour(x, y, z, n):
        k = np.floor(z / 1.3 + .37)
        out = base.colour(x + k * 3.7, y + k * 1.3, z, n)
        gap = np.abs((z / 1.3 + .37) % 1 - .5)
        shade = 1 + .08 * np.sin(k * 5.1)
        return out * np.asarray(shade)[:, None] * (1 - .55 * np.clip((gap - .492) / .006, 0, 1))[:, None]
    return Material(colour, .5)


def linen_top(tone=rgb("#e4ddd0"), seed="cloth"):
    return cloth(tone, seed=seed, weave=50, plane="xz", slub=.07)


def stone_top(tone=rgb("#c9c6c0"), seed="stone"):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .05 * n1.rough(x * 3, y, z * 3) + .03 * n1(x * 50, y,
        z * 50))[:, None], .6)
