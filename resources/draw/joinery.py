"""Bodies made of other bodies: stretched, cut, grown together, moved, dented.

Needs the Debian package python3-numpy.
"""
import numpy as np

from solids import Body, rotation, unturn


class Stretch(Body):
    """A body pulled along the axes."""

    def __init__(self, body, sx=1.0, sy=1.0, sz=1.0):
        self.body, self.s = body, (sx, sy, sz)
        self.centre = tuple(c * s for c, s in zip(body.centre, self.s))
        self.radius = body.radius * max(self.s)
        self.safe, self.blur = body.safe, body.blur
        self.key = ("stretch", body.key, self.s) if body.key else None

    def distance(self, x, y, z):
        sx, sy, sz = self.s
        return self.body.distance(x / sx, y / sy, z / sz) * min(self.s)


class Cut(Body):
    """A body with others taken away."""

    def __init__(self, body, *others):
        self.body, self.others = body, others
        self.centre, self.radius = body.centre, body.radius
        self.safe, self.blur = min([body.safe] + [o.safe for o in others]), body.blur

    def distance(self, x, y, z):
        d = self.body.distance(x, y, z)
        for o in self.others:
            d = np.maximum(d, -o.distance(x, y, z))
        return d


class Blend(Body):
    """Bodies grown together with a soft seam of width `k`."""

    def __init__(self, k, *bodies):
        self.k, self.bodies = k, bodies
        c = np.mean([b.centre for b in bodies], 0)
        self.centre = tuple(float(v) for v in c)
        self.radius = max(float(np.linalg.norm(np.array(b.centre) - c)) + b.radius for b in bodies)
        self.safe, self.blur = min(b.safe for b in bodies) * .95, max(b.blur for b in bodies)

    def distance(self, x, y, z):
        d = None
        for b in self.bodies:
            e = b.distance(x, y, z)
            if d is None:
                d = e
                continue
            h = np.maximum(self.k - np.abs(d - e), 0) / self.k
            d = np.minimum(d, e) - h * h * self.k * .25
        return d


class Moved(Body):
    """A body turned (degrees round x, y, z in that order) and shifted inside a larger one."""

    def __init__(self, body, shift=(0, 0, 0), turn=(0, 0, 0)):
        self.body, self.shift = body, shift
        self.m = rotation(*turn)
        self.centre = tuple(float(v) for v in self.m @ np.array(body.centre) + np.array(shift))
        self.radius, self.safe, self.blur = body.radius, body.safe, body.blur

    def distance(self, x, y, z):
        return self.body.distance(*unturn(self.m, x - self.shift[0], y - self.shift[1], z - self.shift[2]))


class Dented(Body):
    """A body whose surface is moved by `relief(x, y, z)`, for weaves, folds and hammer marks."""

    def __init__(self, body, relief, safe=.7):
        self.body, self.relief = body, relief
        self.centre, self.radius = body.centre, body.radius + .05
        self.safe, self.blur = body.safe * safe, body.blur

    def distance(self, x, y, z):
        return self.body.distance(x, y, z) - self.relief(x, y, z)
