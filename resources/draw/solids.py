"""Bodies as signed distance functions: what a turner, a potter or a joiner would make.

A body answers one question: how far is a point from its surface (below zero inside). Points come as three
float32 arrays. Outlines are polygons in the plane, turned round an axis, cut out of a board, or blown up like
a cushion; their distances are looked up in a table made once. Needs the Debian package python3-numpy.
"""
import math

import numpy as np


def spline(points, steps=12):
    """A smooth line through the points, as many short pieces."""
    p = np.array(points, np.float64)
    if len(p) < 3:
        return [tuple(q) for q in p]
    ext = np.vstack([2 * p[0] - p[1], p, 2 * p[-1] - p[-2]])
    out = []
    for i in range(1, len(ext) - 2):
        p0, p1, p2, p3 = ext[i - 1:i + 3]
        for t in np.linspace(0, 1, steps, endpoint=False):
            out.append(tuple(.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t * t
                                   + (3 * p1 - p0 - 3 * p2 + p3) * t ** 3)))
    out.append(tuple(p[-1]))
    return out


def arc(cx, cy, r, a0, a1, steps=16):
    """Points of a circle's arc; angles in degrees."""
    return [(cx + r * math.cos(math.radians(a)), cy + r * math.sin(math.radians(a))) for a in np.linspace(a0, a1,
        steps)]


def rounded_rect(w, h, r, steps=8):
    x, y = w / 2 - r, h / 2 - r
    return arc(x, y, r, 0, 90, steps) + arc(-x, y, r, 90, 180, steps) + arc(-x, -y, r, 180, 270, steps) + arc(x, -y, r,
        270, 360, steps)


TABLES = {}


class Field:
    """Distances to a polygon (or an open line) in a table, read with interpolation. Equal lines share a table."""

    def __init__(self, points, closed=True, cells=200, signed=True):
        p = np.array(points, np.float32)
        self.key = (p.tobytes(), closed, cells, signed)
        if self.key in TABLES:
            self.__dict__ = TABLES[self.key].__dict__
            return
        TABLES[self.key] = self
        low, high = p.min(0), p.max(0)
        size = float((high - low).max())
        pad = size * .12 + .02
        self.step = (size + 2 * pad) / cells
        nx = int((high[0] - low[0] + 2 * pad) / self.step) + 2
        ny = int((high[1] - low[1] + 2 * pad) / self.step) + 2
        self.x0, self.y0 = float(low[0] - pad), float(low[1] - pad)
        self.nx, self.ny = nx, ny
        self.low, self.high = low, high
        gy, gx = np.mgrid[0:ny, 0:nx].astype(np.float32)
        gx, gy = gx * self.step + self.x0, gy * self.step + self.y0
        best = np.full(gx.shape, 1e9, np.float32)
        inside = np.zeros(gx.shape, bool)
        last = len(p) if closed else len(p) - 1
        for i in range(last):
            ax, ay = p[i]
            bx, by = p[(i + 1) % len(p)]
            ex, ey = bx - ax, by - ay
            dx, dy = gx - ax, gy - ay
            length = ex * ex + ey * ey
            if length < 1e-12:
                continue
            t = np.clip((dx * ex + dy * ey) / length, 0, 1)
            best = np.minimum(best, (dx - ex * t) ** 2 + (dy - ey * t) ** 2)
            if ay != by:
                cross = ((ay > gy) != (by > gy)) & (gx < ex * (gy - ay) / (by - ay) + ax)
                inside ^= cross
        best = np.sqrt(best)
        if signed and closed:
            best[inside] *= -1
        self.table = best.ravel()

    def __call__(self, x, y):
        u = (x - self.x0) / self.step
        v = (y - self.y0) / self.step
        cu = np.clip(u, 0, self.nx - 1.001)
        cv = np.clip(v, 0, self.ny - 1.001)
        out = (u - cu) ** 2 + (v - cv) ** 2
        i, j = cu.astype(np.int32), cv.astype(np.int32)
        fu, fv = cu - i, cv - j
        k = j * self.nx + i
        t = self.table
        a = t[k] + (t[k + 1] - t[k]) * fu
        b = t[k + self.nx] + (t[k + self.nx + 1] - t[k + self.nx]) * fu
        d = a + (b - a) * fv
        if out.any():       # beyond the table: from its edge on, the two ways stand at a right angle or wider
            d = np.where(out > 0, np.sqrt(out * self.step ** 2 + np.maximum(d, 0) ** 2), d)
        return d


class Body:
    """`centre` and `radius` of a ball round the body keep far points cheap."""
    centre = (0, 0, 0)
    radius = 1.0
    key = None          # equal bodies have equal keys and are measured together
    safe = 1.0          # share of the distance that a ray may walk
    blur = .004         # width over which slopes are taken: a table's cell, or its grid shows in highlights

    def distance(self, x, y, z):
        raise NotImplementedError


class Lathe(Body):
    """A polygon of (radius, height) turned round the upright axis; `sides` makes it a prism of many faces."""

    def __init__(self, points, sides=0, cells=220, wave=None):
        mirrored = [(max(px, 0), py) for px, py in points]
        self.field = Field(mirrored, cells=cells)
        r = max(px for px, _ in mirrored)
        low, high = min(py for _, py in mirrored), max(py for _, py in mirrored)
        self.centre = (0, (low + high) / 2, 0)
        self.radius = math.hypot(r, (high - low) / 2)
        self.blur = self.field.step * 1.15
        self.key = ("lathe", self.field.key, sides, wave)
        self.sides = sides
        self.wave = wave        # (count, depth): a fluted or lobed body
        self.safe = .8 if wave else .95

    def distance(self, x, y, z):
        r = np.sqrt(x * x + z * z)
        if self.sides:
            step = 2 * math.pi / self.sides
            a = np.arctan2(z, x)
            a = (a + step / 2) % step - step / 2
            r = r * np.cos(a) + (.06 if self.sides > 4 else .01) * r * (1 - np.cos(a))
        if self.wave:
            count, depth = self.wave
            r = r * (1 + depth * np.cos(np.arctan2(z, x) * count))
        return self.field(r, y)


class Board(Body):
    """An outline in x and y with a thickness along z and rounded edges."""

    def __init__(self, outline, thick, edge=.02, holes=(), cells=200):
        self.field = outline if isinstance(outline, Field) else Field(outline, cells=cells)
        self.holes = [Field(h, cells=80) for h in holes]
        self.half, self.edge = thick / 2, edge
        self.blur = self.field.step * .8
        self.key = ("board", self.field.key, thick, edge, tuple(h.key for h in self.holes))
        low, high = self.field.low, self.field.high
        self.centre = (float(low[0] + high[0]) / 2, float(low[1] + high[1]) / 2, 0)
        self.radius = float(np.linalg.norm((high - low) / 2)) + thick / 2

    def distance(self, x, y, z):
        d = self.field(x, y)
        for h in self.holes:
            d = np.maximum(d, -h(x, y))
        d = d + self.edge
        w = np.abs(z) - self.half + self.edge
        return np.minimum(np.maximum(d, w), 0) + np.sqrt(np.maximum(d, 0) ** 2 + np.maximum(w, 0) ** 2) - self.edge


class Pillow(Body):
    """An outline blown up: thick in the middle, thin at the seam. `reach` is how far in the slope goes."""

    def __init__(self, outline, thick, reach, seam=.01, power=.5, cells=200):
        self.field = Field(outline, cells=cells)
        self.half, self.reach, self.seam, self.power = thick / 2, reach, seam, power
        self.blur = self.field.step * 1.2
        self.key = ("pillow", self.field.key, thick, reach, seam, power)
        low, high = self.field.low, self.field.high
        self.centre = (float(low[0] + high[0]) / 2, float(low[1] + high[1]) / 2, 0)
        self.radius = float(np.linalg.norm((high - low) / 2)) + thick / 2
        self.safe = .55

    def height(self, d):
        t = np.clip(-d / self.reach, 0, 1)
        return self.seam + (self.half - self.seam) * (1 - (1 - t) ** 2) ** self.power

    def distance(self, x, y, z):
        d = self.field(x, y)
        top = np.abs(z) - self.height(d)
        return np.where(d > 0, np.sqrt(d * d + np.maximum(np.abs(z) - self.seam, 0) ** 2),
                        np.maximum(top, -np.abs(d) - .02))


class Wire(Body):
    """A bent round bar lying in the plane z = 0; `flat` squeezes it along z, `taper` thins it along its way."""

    def __init__(self, points, radius, closed=False, flat=1.0, cells=160):
        self.field = Field(points, closed=closed, cells=cells, signed=False)
        self.r, self.flat = radius, flat
        self.blur = self.field.step * .9
        self.key = ("wire", self.field.key, radius, flat)
        low, high = self.field.low, self.field.high
        self.centre = (float(low[0] + high[0]) / 2, float(low[1] + high[1]) / 2, 0)
        self.radius = float(np.linalg.norm((high - low) / 2)) + radius * max(1, 1 / flat)
        self.safe = min(1.0, 1 / flat) * .95

    def distance(self, x, y, z):
        d = self.field(x, y)
        return np.sqrt(d * d + (z * self.flat) ** 2) - self.r


class Spout(Body):
    """A round pipe along points in the plane z = 0 with a radius for each point, hollow at its end if asked."""

    def __init__(self, points, radii, hollow=0.0, steps=4):
        p = spline([(px, py, r) for (px, py), r in zip(points, radii)], steps)
        self.pieces = [(np.array(a, np.float32), np.array(b, np.float32)) for a, b in zip(p[:-1], p[1:])]
        q = np.array([s[:2] for s in p])
        mid = (q.min(0) + q.max(0)) / 2
        self.centre = (float(mid[0]), float(mid[1]), 0)
        self.radius = float(np.abs(q - mid).max()) * 1.42 + max(radii)
        self.hollow = hollow
        self.safe = .9
        a, b = np.array(p[-2][:2]), np.array(p[-1][:2])
        self.way = (b - a) / np.linalg.norm(b - a)
        self.end = b

    def distance(self, x, y, z):
        best = None
        for (ax, ay, ar), (bx, by, br) in self.pieces:
            ex, ey = bx - ax, by - ay
            dx, dy = x - ax, y - ay
            t = np.clip((dx * ex + dy * ey) / (ex * ex + ey * ey), 0, 1)
            d = np.sqrt((dx - ex * t) ** 2 + (dy - ey * t) ** 2 + z * z) - (ar + (br - ar) * t)
            best = d if best is None else np.minimum(best, d)
        if self.hollow:
            cut = (x - self.end[0]) * self.way[0] + (y - self.end[1]) * self.way[1]
            best = np.maximum(np.maximum(best, -(best + self.hollow)), cut)
        return best


class Box(Body):
    def __init__(self, w, h, d, edge=.02):
        self.half, self.edge = (w / 2, h / 2, d / 2), edge
        self.key = ("box", w, h, d, edge)
        self.radius = math.sqrt(w * w + h * h + d * d) / 2

    def distance(self, x, y, z):
        e = self.edge
        a, b, c = (np.abs(v) - h + e for v, h in zip((x, y, z), self.half))
        out = np.sqrt(np.maximum(a, 0) ** 2 + np.maximum(b, 0) ** 2 + np.maximum(c, 0) ** 2)
        return out + np.minimum(np.maximum(a, np.maximum(b, c)), 0) - e


class Ball(Body):
    def __init__(self, r):
        self.radius = r
        self.key = ("ball", r)

    def distance(self, x, y, z):
        return np.sqrt(x * x + y * y + z * z) - self.radius


class Rod(Body):
    """A round bar between two points, with rounded ends; the radius may change along it."""

    def __init__(self, a, b, r, r2=None):
        self.a, self.b = np.array(a, np.float32), np.array(b, np.float32)
        self.r, self.dr = r, (r2 if r2 is not None else r) - r
        self.key = ("rod", tuple(a), tuple(b), r, r2)
        self.centre = tuple(float(v) for v in (self.a + self.b) / 2)
        self.radius = float(np.linalg.norm(self.b - self.a)) / 2 + max(r, r2 or 0)
        self.safe = .95

    def distance(self, x, y, z):
        e = self.b - self.a
        dx, dy, dz = x - self.a[0], y - self.a[1], z - self.a[2]
        t = np.clip((dx * e[0] + dy * e[1] + dz * e[2]) / float(e @ e), 0, 1)
        return np.sqrt((dx - e[0] * t) ** 2 + (dy - e[1] * t) ** 2 + (dz - e[2] * t) ** 2) - self.r - self.dr * t


class Ring(Body):
    """A torus round the upright axis."""

    def __init__(self, big, small):
        self.big, self.small = big, small
        self.radius = big + small
        self.key = ("ring", big, small)

    def distance(self, x, y, z):
        return np.sqrt((np.sqrt(x * x + z * z) - self.big) ** 2 + y * y) - self.small


def rotation(ax, ay, az):
    a, b, c = (math.radians(v) for v in (ax, ay, az))
    rx = np.array([[1, 0, 0], [0, math.cos(a), -math.sin(a)], [0, math.sin(a), math.cos(a)]])
    ry = np.array([[math.cos(b), 0, math.sin(b)], [0, 1, 0], [-math.sin(b), 0, math.cos(b)]])
    rz = np.array([[math.cos(c), -math.sin(c), 0], [math.sin(c), math.cos(c), 0], [0, 0, 1]])
    return rz @ ry @ rx


def unturn(m, x, y, z):
    """The point before the rotation `m`, by hand: quicker than a matrix product on three arrays."""
    return (m[0, 0] * x + m[1, 0] * y + m[2, 0] * z,
            m[0, 1] * x + m[1, 1] * y + m[2, 1] * z,
            m[0, 2] * x + m[1, 2] * y + m[2, 2] * z)


def vessel(outer, wall, floor=None, lip=True):
    """Closed profile of a hollow turned body from its outer line (foot to rim)."""
    o = np.array(outer, np.float64)
    t = np.gradient(o, axis=0)
    t /= np.maximum(np.linalg.norm(t, axis=1), 1e-9)[:, None]
    inner = o + np.stack([-t[:, 1], t[:, 0]], 1) * wall
    floor = o[0][1] + wall if floor is None else floor
    inner = [(max(float(a), 0), float(b)) for a, b in inner if b > floor and a > 0]
    top, end = o[-1], np.array(inner[-1])
    rim = []
    if lip:
        across, centre = (top - end) / 2, (top + end) / 2
        rim = [tuple(centre + across * math.cos(a) + t[-1] * wall * .5 * math.sin(a)) for a in np.linspace(.3,
            math.pi - .3, 6)]
    foot = inner[0]
    return [(0, o[0][1])] + [tuple(p) for p in o] + rim + inner[::-1] + [(foot[0] * .92, floor), (0, floor)]


class Sheet(Body):
    """A cloth or a leaf of paper: a line in x and y with a thickness, as wide as `width` along z."""

    def __init__(self, points, thick, width, cells=240, edge=.01):
        self.field = Field(points, closed=False, cells=cells, signed=False)
        self.r, self.half, self.edge = thick / 2, width / 2, edge
        self.blur = self.field.step * .9
        low, high = self.field.low, self.field.high
        self.centre = (float(low[0] + high[0]) / 2, float(low[1] + high[1]) / 2, 0)
        self.radius = math.hypot(float(np.linalg.norm((high - low) / 2)) + thick, width / 2)
        self.safe = .95

    def distance(self, x, y, z):
        d = self.field(x, y) - self.r + self.edge
        w = np.abs(z) - self.half + self.edge
        return np.minimum(np.maximum(d, w), 0) + np.sqrt(np.maximum(d, 0) ** 2 + np.maximum(w, 0) ** 2) - self.edge


class Cushion(Body):
    """A filled square bag of half side `w`: flat towards the seam, its corners drawn out a little."""
    safe = .6

    def __init__(self, w, thick, seam=.02, pull=.075):
        self.w, self.half, self.seam, self.pull = w, thick / 2, seam, pull
        self.radius = w * 1.42 + thick / 2

    def distance(self, x, y, z):
        u, v = x / self.w, y / self.w
        a = np.abs(u) / (1 - self.pull * np.clip(1 - v * v, 0, 1))
        b = np.abs(v) / (1 - self.pull * np.clip(1 - u * u, 0, 1))
        rise = np.clip(1 - np.clip(a, 0, 1) ** 2.6, 0, 1) * np.clip(1 - np.clip(b, 0, 1) ** 2.6, 0, 1)
        side = np.maximum(np.maximum(a, b) - 1, 0) * self.w
        top = np.abs(z) - self.seam - (self.half - self.seam) * rise ** .6
        return np.where(side > 0, np.sqrt(side * side + np.maximum(np.abs(z) - self.seam, 0) ** 2), top)
