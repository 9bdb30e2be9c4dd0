"""The list of products to draw, and small parts that many of them share.

Needs the Debian package python3-numpy.
"""
import csv

import numpy as np

from canvas import rgb, rng, seed_of
from materials import Material, Noise, blend, steel, step
from solids import Board, Lathe, Rod, Wire, spline, vessel
from studio import Group

OAK, WALNUT, BEECH, OLIVE = rgb("#b98d5a"), rgb("#6a4730"), rgb("#d6b07a"), rgb("#b1894f")
BLACK, IRON, CREAM, WHITE = rgb("#1f1f21"), rgb("#3a3a3c"), rgb("#f1e9d8"), rgb("#f6f4ef")
BRASS, COPPER, STEEL, ALU = rgb("#d3ac57"), rgb("#c9794a"), (.78, .80, .82), (.80, .81, .82)
KRAFT = rgb("#b98f5e")


class Product:
    def __init__(self, row):
        number, self.key, self.group, self.family, self.name, self.kind, c1, c2, pictures, small = [c.strip()
            for c in row[:10]]
        self.number, self.pictures, self.small = int(number), int(pictures), small.lower() in ("yes", "oui", "1")
        self.c1, self.c2 = rgb(c1), rgb(c2)
        self.r = rng(self.key)

    def has(self, *words):
        return any(w in self.key for w in words)

    def pick(self, what, n):
        """One of n variations, always the same for this product."""
        return seed_of(self.key, what) % n


def read(path):
    with open(path, encoding="utf-8", newline="") as f:
        rows = [r for r in csv.reader(f, delimiter="\t", quoting=csv.QUOTE_NONE) if r and r[0].strip().isdigit()]
    return [Product(r) for r in rows]


def turned(outer, wall=None, floor=None, **kw):
    """A body turned on the wheel from its outer line: hollow with `wall`, else massive."""
    line = spline(outer)
    if wall:
        return Lathe(vessel(line, wall, floor), **kw)
    return Lathe([(0, line[0][1])] + line + [(0, line[-1][1])], **kw)


def dish(outer, wall, floor=None, **kw):
    """The same from a line with corners: pieces of `outer` are splines, or straight when they have two points."""
    line = []
    for piece in outer:
        line += spline(piece) if len(piece) > 2 else [tuple(q) for q in np.linspace(piece[0], piece[1], 14)]
    clean = [line[0]]
    for q in line[1:]:
        if abs(q[0] - clean[-1][0]) + abs(q[1] - clean[-1][1]) > 1e-4:
            clean.append(q)
    return Lathe(vessel(clean, wall, floor), **kw)


def inner(x, y, z, n, low=.25):
    """1 on the inside of a hollow turned body, 0 outside."""
    side = n[0] * x + n[2] * z
    return ((side < -.02 * np.sqrt(x * x + z * z)) | ((n[1] > .6) & (y < low))).astype(np.float32)


def lined(outside, inside, low=.25):
    """A material with another one's colour on the inside of a vessel."""
    def colour(x, y, z, n):
        return blend(outside.tone(x, y, z, n), inside.tone(x, y, z, n), inner(x, y, z, n, low))
    return Material(colour, outside.rough, outside.f0, gloss=outside.gloss, bump=outside.bump, grain=outside.grain)


def faded(tone, low_tone, y0, y1, seed="fade", rough=.07, gloss=1.3):
    """Enamel that runs from one colour at height y0 to another at y1."""
    n1 = Noise(seed)

    def colour(x, y, z, n):
        return blend(low_tone, tone, (y - y0) / (y1 - y0) + .04 * n1(x * 4, y * 4, z * 4))
    return Material(colour, rough, .055, gloss=gloss)


def band(x, low, high, soft=.01):
    return step(low, x, soft) * step(-high, -x, soft)


def stripes(value, period, share, soft=.006, shift=0.0):
    """1 on stripes that cover `share` of each period."""
    q = np.abs((value + shift) / period % 1 - .5) * period
    return np.clip((share * period / 2 - q) / soft * .5 + .5, 0, 1)


def handle_slab(outline, thick, material, edge=None):
    return Board(outline, thick, thick * .45 if edge is None else edge), material


def rivets(group, points, depth, r=.035, tone=BRASS):
    m = steel(tone, rough=.12, brushed="none")
    for x, y in points:
        group.add(Rod((x, y, -depth), (x, y, depth), r), m)
    return group


def knob(r=.12, material=None, at=(0, 0, 0), neck=.5):
    """A small turned knob on a lid."""
    line = [(r * neck, 0), (r * neck, r * .45), (r, r * .85), (r * 1.02, r * 1.25), (r * .7, r * 1.6), (.001, r * 1.7)]
    return Group().add(turned(line), material, at)


def ear(width, depth, r, material, at, side=1):
    """A loop handle standing out level from a pot's side."""
    pts = spline([(0, -width / 2), (depth * .7, -width * .46), (depth, -width * .25), (depth, width * .25),
                  (depth * .7, width * .46), (0, width / 2)])
    g = Group().add(Wire(pts, r), material, turn=(90, 0, 0))
    return g.placed(at, (0, 0 if side > 0 else 180, 0))


def row(group, places, scale=1.0):
    """Copies of a group at (x, z, turn) or (x, z, turn, scale)."""
    out = Group()
    for place in places:
        x, z, turn = place[:3]
        out.join(group.placed((x, 0, z), (0, turn, 0), place[3] if len(place) > 3 else scale))
    return out
