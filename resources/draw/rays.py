"""Rays that look for bodies: where they meet one, how the surface slopes there, what lies in its shade.

All work on many rays at once; equal bodies are measured together. Needs the Debian package python3-numpy.
"""
import numpy as np

from solids import unturn

EPS = 1.2e-3        # a ray this close to a surface has met it


def nearest(items, x, y, z, which=False, within=.12):
    """Distance to the nearest item, and its number if asked. Balls round the items spare most of the work:
    beyond `within` the distance to the ball stands for the distance to the body."""
    best = np.full(x.shape, 1e3, np.float32)
    number = np.full(x.shape, -1, np.int16) if which else None
    for k, item in enumerate(items):
        c = item.centre
        ball = np.sqrt((x - c[0]) ** 2 + (y - c[1]) ** 2 + (z - c[2]) ** 2) - item.radius
        near = ball < np.minimum(best, within)
        far = ~near & (ball < best)
        best[far] = ball[far]
        if near.any():
            d = item.distance(x[near], y[near], z[near])
            if not which:
                d = np.where(d > 0, d * item.body.safe, d)
            closer = d < best[near]
            index = np.flatnonzero(near)[closer]
            best[index] = d[closer]
            if which:
                number[index] = k
    return (best, number) if which else best


class Crowd:
    """The items of a scene, equal bodies together, so that a body is asked once for all its places."""

    def __init__(self, items):
        self.lots = []
        by_key = {}
        for k, item in enumerate(items):
            by_key.setdefault(item.body.key or id(item.body), []).append(item)
        for lot in by_key.values():
            self.lots.append((lot[0].body,
                              np.array([i.centre for i in lot], np.float32),
                              np.array([i.radius for i in lot], np.float32),
                              np.array([i.m for i in lot], np.float32), np.array([i.t for i in lot], np.float32),
                              np.array([i.s for i in lot], np.float32)))

    @staticmethod
    def measure(lot, who, p):
        """Distances of points p to the places `who` of one body."""
        body, _, _, m, t, s = lot
        if len(s) == 1:
            q = [c - t[0, i] for i, c in enumerate(p)]
            q = unturn(m[0], *q)
            return body.distance(*(c / s[0] for c in q)) * s[0]
        q = [c - t[who, i] for i, c in enumerate(p)]
        m = m[who]
        size = s[who]
        x, y, z = (m[:, 0, i] * q[0] + m[:, 1, i] * q[1] + m[:, 2, i] * q[2] for i in range(3))
        return body.distance(x / size, y / size, z / size) * size


CROWDS = {}


def crowd(items):
    key = tuple(id(i) for i in items)
    if key not in CROWDS:
        if len(CROWDS) > 40:
            CROWDS.clear()
        CROWDS[key] = (Crowd(items), list(items))
    return CROWDS[key][0]


def lowest(h, ray, value):
    """h[ray] = min(h[ray], value) where `ray` is sorted and may repeat."""
    if not len(ray):
        return
    first = np.flatnonzero(np.concatenate([[True], ray[1:] != ray[:-1]]))
    least = np.minimum.reduceat(value, first)
    at = ray[first]
    h[at] = np.minimum(h[at], least)


LOT = 20000         # rays walked at a time, which bounds the memory of scenes with many items


def along(items, o, d, t0, t1, steps=110, both=False):
    """Walks rays until they meet a surface. Gives the way walked, infinite where nothing was met. With `both`
    a surface counts from either side."""
    n = d[0].shape[0]
    t = np.array(np.broadcast_to(t0, n), np.float32)
    out = np.full(n, np.inf, np.float32)
    lots = crowd(items).lots
    for first in range(0, n, LOT):
        part = slice(first, min(first + LOT, n))
        walk(lots, [c[part] for c in o], [c[part] for c in d], t[part], t1[part], out[part], steps, both)
    return out


def walk(lots, o, d, t, end, found, steps, both):
    spans = []
    for body, centre, radius, *_ in lots:
        q = [o[i][:, None] - centre[:, i] for i in range(3)]
        b = q[0] * d[0][:, None] + q[1] * d[1][:, None] + q[2] * d[2][:, None]
        disc = b * b - (q[0] * q[0] + q[1] * q[1] + q[2] * q[2] - (radius + np.float32(.01)) ** 2)
        root = np.sqrt(np.maximum(disc, 0))
        enter = np.where(disc > 0, -b - root, np.inf).astype(np.float32)
        leave = np.where(disc > 0, root - b, -np.inf).astype(np.float32)
        some = np.flatnonzero((leave > t[:, None]).any(1) & (t < end))
        spans.append([some, enter[some], leave[some]])
    live = np.zeros(len(t), bool)
    for some, *_ in spans:
        live[some] = True
    for _ in range(steps):
        index = np.flatnonzero(live)
        if not len(index):
            break
        h = np.full(len(t), np.inf, np.float32)
        p = [o[k] + d[k] * t for k in range(3)]
        for lot, span in zip(lots, spans):
            keep = live[span[0]]
            if not keep.all():
                span[0], span[1], span[2] = span[0][keep], span[1][keep], span[2][keep]
            some, enter, leave = span
            if not len(some):
                continue
            tl = t[some]
            if enter.shape[1] == 1:
                te, go = enter[:, 0], leave[:, 0] > tl
                wait = go & (te > tl)
                at = some[wait]
                h[at] = np.minimum(h[at], te[wait] - tl[wait] + EPS)
                ray = some[go & ~wait]
                who = None
            else:
                go = leave > tl[:, None]
                wait = go & (enter > tl[:, None])
                ahead = np.where(wait, enter, np.inf).min(1) - tl + EPS
                h[some] = np.minimum(h[some], ahead)
                row, who = np.nonzero(go & ~wait)
                ray = some[row]
            if len(ray):
                e = Crowd.measure(lot, who, [c[ray] for c in p]) * lot[0].safe
                lowest(h, ray, np.abs(e) if both else e)
        hl = h[index]
        met = hl < EPS
        found[index[met]] = t[index[met]]
        t[index] += np.maximum(hl, EPS * .6)
        live[index[met]] = False
        live &= t < end


class Kin:
    """Equal bodies of one material, so that points on any of them are treated in one go."""

    def __init__(self, items, members):
        self.body, self.material = items[members[0]].body, items[members[0]].material
        self.row = np.full(len(items), -1, np.int32)
        self.row[members] = np.arange(len(members))
        self.lot = (self.body, None, None, np.array([items[k].m for k in members], np.float32),
                    np.array([items[k].t for k in members], np.float32),
                    np.array([items[k].s for k in members], np.float32))

    def choose(self, number):
        """Which points lie on one of these bodies, and on which."""
        who = np.where(number >= 0, self.row[np.maximum(number, 0)], -1)
        sel = np.flatnonzero(who >= 0)
        return sel, who[sel]

    def turn(self, who, v):
        """Scene direction or slope v (3, n) in the body's own axes."""
        m = self.lot[3][who]
        return np.stack([m[:, 0, i] * v[0] + m[:, 1, i] * v[1] + m[:, 2, i] * v[2] for i in range(3)])

    def unturn(self, who, v):
        m = self.lot[3][who]
        return np.stack([m[:, i, 0] * v[0] + m[:, i, 1] * v[1] + m[:, i, 2] * v[2] for i in range(3)])

    def local(self, who, p):
        t, s = self.lot[4][who], self.lot[5][who]
        q = self.turn(who, [c - t[:, i] for i, c in enumerate(p)])
        return q[0] / s, q[1] / s, q[2] / s


KINS = {}


def kins(items):
    key = tuple(id(i) for i in items)
    if key not in KINS:
        if len(KINS) > 40:
            KINS.clear()
        groups = {}
        for k, item in enumerate(items):
            groups.setdefault((item.body.key or id(item.body), id(item.material)), []).append(k)
        KINS[key] = ([Kin(items, members) for members in groups.values()], list(items))
    return KINS[key][0]


def normals(items, number, x, y, z, eps=.004):
    """Slope of each point's own item, from samples on either side."""
    out = np.zeros((3,) + x.shape, np.float32)
    for kin in kins(items):
        sel, who = kin.choose(number)
        if not len(sel):
            continue
        p = x[sel], y[sel], z[sel]
        n = np.zeros((3, len(sel)), np.float32)
        e = max(eps, kin.body.blur) * np.clip(kin.lot[5][who], .35, 1.5)
        for k in range(3):
            for s in (1, -1):
                n[k] += s * Crowd.measure(kin.lot, who, [c + s * e if i == k else c for i, c in enumerate(p)])
        out[:, sel] = n / np.maximum(np.sqrt((n * n).sum(0)), 1e-9)
    return out


def shadow(items, x, y, z, direction, soft=6.0, reach=7.0, steps=46):
    """Share of the softbox that a point sees."""
    n = x.shape[0]
    out = np.ones(n, np.float32)
    lots = crowd(items).lots
    for first in range(0, n, LOT):
        part = slice(first, min(first + LOT, n))
        shade(lots, x[part], y[part], z[part], direction, soft, reach, steps, out[part])
    return out * out * (3 - 2 * out)


def shade(lots, x, y, z, direction, soft, reach, steps, res):
    spans = []
    for body, centre, radius, *_ in lots:
        q = [centre[:, i] - c[:, None] for i, c in enumerate((x, y, z))]
        tc = q[0] * direction[0] + q[1] * direction[1] + q[2] * direction[2]
        off = np.sqrt(np.maximum(q[0] ** 2 + q[1] ** 2 + q[2] ** 2 - tc * tc, 0))
        cand = (tc > -radius) & (off - radius < (np.maximum(tc, 0) + radius) / soft * 1.05)
        some = np.flatnonzero(cand.any(1))
        spans.append([some, np.where(cand, tc, np.nan)[some], off[some]])
    live = np.zeros(len(x), bool)
    for some, *_ in spans:
        live[some] = True
    t = np.full(len(x), .02, np.float32)
    for _ in range(steps):
        index = np.flatnonzero(live)
        if not len(index):
            break
        h = np.full(len(x), 1e3, np.float32)
        within = np.maximum(t / soft * 1.05, .1)
        for lot, span in zip(lots, spans):
            keep = live[span[0]]
            if not keep.all():
                span[:] = [v[keep] for v in span]
            some, tc, off = span
            if not len(some):
                continue
            tl = t[some][:, None]
            ball = np.sqrt((tc - tl) ** 2 + off * off) - lot[2]
            close = ball < within[some][:, None]
            far = np.nanmin(np.where(close, np.float32(1e3), ball), 1, initial=1e3)
            h[some] = np.minimum(h[some], far)
            row, who = np.nonzero(close)
            if len(row):
                ray = some[row]
                tr = t[ray]
                lowest(h, ray, Crowd.measure(lot, who, [x[ray] + direction[0] * tr, y[ray] + direction[1] * tr,
                                                        z[ray] + direction[2] * tr]))
        hl, tl = h[index], t[index]
        res[index] = np.minimum(res[index], np.clip(soft * hl / tl, 0, 1))
        t[index] = tl + np.clip(hl * .7, .02, .16 + .05 * tl)
        live &= (res > .004) & (t < reach)


def hollow(items, p, n, sizes=(.03, .08, .18, .38, .7)):
    """How open the surroundings of a point are, from 0 to 1."""
    out = np.ones(p[0].shape, np.float32)
    lots = crowd(items).lots
    for first in range(0, len(out), LOT):
        part = slice(first, first + LOT)
        q, m = [c[part] for c in p], [c[part] for c in n]
        dark = np.zeros(q[0].shape, np.float32)
        near = []
        for body, centre, radius, *_ in lots:
            ball = np.sqrt(sum((q[i][:, None] - centre[:, i]) ** 2 for i in range(3))) - radius
            near.append(np.nonzero(ball < 2 * sizes[-1]) + (centre, radius))
        weight = 1.0
        for s in sizes:
            r = [q[k] + m[k] * s for k in range(3)]
            h = np.minimum(np.maximum(r[1], 0) + s * .35, s)
            for lot, (ray, who, centre, radius) in zip(lots, near):
                if not len(ray):
                    continue
                c = [v[ray] for v in r]
                ball = np.sqrt(sum((c[i] - centre[who, i]) ** 2 for i in range(3))) - radius[who]
                close = ball < h[ray]
                if close.any():
                    lowest(h, ray[close], Crowd.measure(lot, who[close], [v[close] for v in c]))
            dark += weight * np.clip(s - h, 0, None) / s
            weight *= .72
        out[part] = np.clip(1 - dark * .42, 0, 1)
    return out
