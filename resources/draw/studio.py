"""A small photographer's studio: camera, softboxes, a seamless ground, and rays that look for bodies.

The camera stands in front of the scene (towards +z) and looks down a little; the ground is y = 0. Each ray walks
along the distance function of the scene. Light comes from one large softbox on the left, a narrow one on the
right, and the bright room; mirror-like surfaces see the same softboxes.
Needs the Debian package python3-numpy.
"""
import math

import numpy as np

from rays import along
from solids import rotation, unturn

KEY = np.array([-.50, .74, .46], np.float32) / np.float32(math.sqrt(.50 ** 2 + .74 ** 2 + .46 ** 2))


def linear(c):
    return np.asarray(c, np.float32) ** 2.2


def display(c):
    """Linear light to screen values, with a soft shoulder so that highlights keep their shape."""
    a = .72
    c = np.where(c < a, c, a + (1 - a) * np.tanh((c - a) / (1 - a) * .9))
    return np.clip(c, 0, 1) ** (1 / 2.2)


class Item:
    """A body with its material, placed in the scene."""

    def __init__(self, body, material, m=None, t=(0, 0, 0), s=1.0):
        self.body, self.material = body, material
        self.m = np.eye(3) if m is None else m
        self.t, self.s = np.array(t, np.float64), s
        self.centre = self.m @ np.array(body.centre) * s + self.t
        self.radius = body.radius * s

    def local(self, x, y, z):
        x, y, z = unturn(self.m, x - self.t[0], y - self.t[1], z - self.t[2])
        return x / self.s, y / self.s, z / self.s

    def distance(self, x, y, z):
        return self.body.distance(*(v.astype(np.float32) for v in self.local(x, y, z))) * self.s


class Group:
    """Items that belong together; `flames` are points where a candle burns, `bulbs` where a lamp shines."""

    def __init__(self, *items, flames=(), bulbs=()):
        self.items, self.flames, self.bulbs = list(items), list(flames), list(bulbs)

    def add(self, body, material, shift=(0, 0, 0), turn=(0, 0, 0), scale=1.0):
        self.items.append(Item(body, material, rotation(*turn), shift, scale))
        return self

    def join(self, other):
        self.items += other.items
        self.flames += other.flames
        self.bulbs += other.bulbs
        return self

    def placed(self, shift=(0, 0, 0), turn=(0, 0, 0), scale=1.0):
        m, t = rotation(*turn), np.array(shift, np.float64)
        move = lambda points: [(tuple(m @ np.array(p) * scale + t), size * scale) for p, size in points]
        out = Group(flames=move(self.flames), bulbs=move(self.bulbs))
        for i in self.items:
            out.items.append(Item(i.body, i.material, m @ i.m, m @ i.t * scale + t, i.s * scale))
        return out


def box_light(r, centre, w, h, soft):
    """A rectangular light seen in direction `r`; `soft` blurs its edges for rougher surfaces."""
    c = np.array(centre, np.float32)
    c /= np.linalg.norm(c)
    u = np.cross([0, 1, 0], c)
    u /= np.linalg.norm(u)
    v = np.cross(c, u)
    f = np.tensordot(c, r, 1)
    a = np.abs(np.tensordot(u, r, 1)) / np.maximum(f, .05)
    b = np.abs(np.tensordot(v, r, 1)) / np.maximum(f, .05)
    e = lambda q, s: np.clip((s + soft - q) / (2 * soft), 0, 1)
    g = e(a, w) * e(b, h) * (f > .05)
    return g * g * (3 - 2 * g) * min(1.0, (w * h) / ((w + soft * .7) * (h + soft * .7)))


def surroundings(r, rough, ground, lamps=1.0, room_light=1.0):
    """Light that comes from direction `r` (3, n): floor, dim room behind the camera, bright wall, softboxes.
    Metals see a darker room (`room_light`), which gives them their contrast."""
    soft = .05 + 1.1 * rough
    y = r[1]
    up = np.clip(y * .5 + .5, 0, 1)
    wall = .34 + .40 * np.clip(-r[2] * .6 + .4, 0, 1) + .10 * up
    room = wall - .26 * np.clip(r[2], 0, 1) ** (1 + 1.5 * (1 - rough))
    edge = np.clip((y + .04 + soft * .3) / (.08 + soft * .6), 0, 1)
    room = room * (room_light + (1 - room_light) * np.clip(-r[2] * 1.2 - .1, 0, 1))
    tone = ground[:, None] * (.62 + .1 * np.clip(-r[2], 0, 1)) * (1 - edge) + room * edge
    lamp = (2.6 * box_light(r, (-.72, .34, .60), .30, .80, soft)
            + 1.3 * box_light(r, (.93, .16, .30), .10, .85, soft)
            + .8 * box_light(r, (-.35, 1, -.25), .62, .34, soft)
            + .7 * box_light(r, (-.8, .1, -.65), .10, .9, soft))
    return (tone + lamp * lamps).T


class View:
    """Where the camera stands and how the picture is filled."""

    def __init__(self, pitch=16, fill=.76, distance=9.0, ground="#f1efeb", light="#ffffff", table=None, wall=None,
                 lift=.02, zoom=1.0, at=(0, 0), size=520, frame=None, dim=1.0):
        self.pitch, self.fill, self.distance, self.lift = pitch, fill, distance, lift
        self.ground, self.light, self.table, self.wall = ground, light, table, wall
        self.zoom, self.at, self.size, self.frame, self.dim = zoom, at, size, frame, dim


class Camera:
    def __init__(self, view, items):
        a = math.radians(view.pitch)
        balls = [(i.centre, i.radius) for i in items]
        low = np.min([c - r for c, r in balls], 0)
        high = np.max([c + r for c, r in balls], 0)
        self.target = (low + high) / 2
        self.span = float(np.linalg.norm(high - low)) / 2
        dist = max(view.distance, self.span * 3.2)
        self.eye = self.target + dist * np.array([0, math.sin(a), math.cos(a)])
        self.forward = np.array([0, -math.sin(a), -math.cos(a)])
        self.right = np.array([1.0, 0, 0])
        self.up = np.cross(self.right, self.forward)
        self.near, self.far = max(.1, dist - self.span * 1.25), dist + self.span * 1.6
        self.k = self.span / dist * 1.05
        self.mx = self.my = 0.0

    def rays(self, u, v):
        """Rays through picture points; u and v run from -1 to 1, v upwards."""
        a = (u * self.k + self.mx)
        b = (v * self.k + self.my)
        d = [self.forward[i] + self.right[i] * a + self.up[i] * b for i in range(3)]
        n = np.sqrt(d[0] ** 2 + d[1] ** 2 + d[2] ** 2)
        d = [(c / n).astype(np.float32) for c in d]
        o = [np.full(u.shape, e, np.float32) for e in self.eye]
        return o, d

    def project(self, p):
        q = np.array(p) - self.eye
        f = q @ self.forward
        return ((q @ self.right) / f - self.mx) / self.k, ((q @ self.up) / f - self.my) / self.k

    def fit(self, items, view):
        """Looks with few rays where the items are seen and moves and zooms the picture to them."""
        for n in (64, 72):
            g = (np.arange(n) + .5) / n * 2 - 1
            u, v = np.meshgrid(g, -g)
            u, v = u.ravel(), v.ravel()
            o, d = self.rays(u, v)
            far = np.full(u.shape, self.far, np.float32)
            seen = np.isfinite(along(items, o, d, self.near, far, 60))
            if not seen.any():
                return
            a, b = u[seen] * self.k + self.mx, v[seen] * self.k + self.my
            pad = self.k / n
            x0, x1, y0, y1 = a.min() - pad, a.max() + pad, b.min() - pad, b.max() + pad
            half = max(x1 - x0, y1 - y0) / 2
            self.k = half / view.fill
            self.mx, self.my = (x0 + x1) / 2, (y0 + y1) / 2
        self.k /= view.zoom
        self.mx += view.at[0] * self.k
        self.my += (view.at[1] + view.lift) * self.k
