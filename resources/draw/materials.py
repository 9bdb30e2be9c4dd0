"""What the bodies are made of: glazes, metals, wood, cloth, glass, paper.

A material answers with its colour at a point of the body's own coordinates. Needs python3-numpy (Debian).
"""
import math

import numpy as np

from canvas import darker, lighter, rgb, seed_of


class Noise:
    """Smooth random values on a lattice, the same for one seed at any place."""

    def __init__(self, *seed):
        r = np.random.Generator(np.random.PCG64(seed_of(*seed)))
        self.table = r.uniform(-1, 1, 32 * 32 * 32).astype(np.float32)

    def __call__(self, x, y, z):
        out = 0
        fl = [np.floor(c) for c in (x, y, z)]
        f = [(c - g).astype(np.float32) for c, g in zip((x, y, z), fl)]
        i = [g.astype(np.int32) & 31 for g in fl]
        j = [(k + 1) & 31 for k in i]
        f = [c * c * (3 - 2 * c) for c in f]
        t = self.table
        for zi, wz in ((i[2], 1 - f[2]), (j[2], f[2])):
            for yi, wy in ((i[1], 1 - f[1]), (j[1], f[1])):
                row = zi * 1024 + yi * 32
                out = out + wz * wy * (t[row + i[0]] * (1 - f[0]) + t[row + j[0]] * f[0])
        return out

    def rough(self, x, y, z, octaves=3):
        out, a = 0, 1.0
        for k in range(octaves):
            out = out + a * self(x * 2 ** k, y * 2 ** k, z * 2 ** k)
            a *= .5
        return out


class Material:
    def __init__(self, colour, rough=.35, f0=.04, metal=False, wrap=0.0, bump=None, grain=.006, glow=None, sheen=0.0,
                 gloss=1.0, glass=None, tint=None, backdrop=False, rim=.55):
        self.colour, self.rough, self.f0, self.metal, self.wrap = colour, rough, f0, metal, wrap
        self.bump, self.grain, self.glow, self.sheen, self.gloss = bump, grain, glow, sheen, gloss
        self.glass, self.tint, self.backdrop, self.rim = glass, tint, backdrop, rim

    def tone(self, x, y, z, n):
        if callable(self.colour):
            return np.clip(self.colour(x, y, z, n), 0, 1)
        return np.broadcast_to(np.array(self.colour, np.float32), x.shape + (3,))


def solid(c, n):
    return np.broadcast_to(np.array(c, np.float32), (n, 3))


def blend(a, b, t):
    """Mixes two colours (constant or per point) by an array from 0 to 1."""
    a, b = np.asarray(a, np.float32), np.asarray(b, np.float32)
    t = np.clip(t, 0, 1)[..., None]
    return a * (1 - t) + b * t


def step(edge, value, soft=.01):
    return np.clip((value - edge) / soft * .5 + .5, 0, 1)


# ---- ceramics and enamel

def glaze(tone, second=None, seed="glaze", speckle=0.0, rim=None, drip=None, bands=(), foot=None, rough=.10, pool=.10,
          lobes=None, gloss=1.15):
    """Fired glaze. `rim` colours what lies above a height, `drip` lets it run down in tongues, `bands` are rings
    (low, high), `foot` is the height below which the bare clay shows."""
    n1, n2 = Noise(seed, 1), Noise(seed, 2)
    second = second or darker(tone, .3)

    def colour(x, y, z, n):
        out = solid(tone, len(x)) * (1 + pool * .5 * n1.rough(x * 2.2, y * 2.2, z * 2.2, 2))[:, None]
        for low, high in bands:
            wob = .006 * n2(x * 9, y * 9, z * 9)
            out = blend(out, second, step(low, y + wob, .012) * step(-high, -y - wob, .012))
        if lobes is not None:
            out = blend(out, second, lobes(x, y, z))
        if rim is not None:
            run = 0
            if drip:
                a = np.arctan2(z, x)
                run = drip * (n2(np.cos(a) * 2.6, np.sin(a) * 2.6, y * 0 + .3) + .5 * n1(np.cos(a) * 6, np.sin(a) * 6,
                    y * 0))
            out = blend(out, second, step(rim, y + run, .014))
            if drip:
                out = blend(out, darker(second, .45), np.exp(-((y + run - rim) / .016) ** 2) * .35)
        if speckle:
            s = n1(x * 34, y * 34, z * 34) + .6 * n2(x * 61, y * 61, z * 61)
            out = blend(out, darker(second, .45), step(1.02 - speckle * .3, s, .12) * .75)
        if foot is not None:
            bare = blend(rgb("#c9ae8a"), rgb("#a98a64"), .5 + .5 * n1(x * 20, y * 20, z * 20))
            out = blend(out, bare, step(-foot, -y - .006 * n2(x * 8, y * 8, z * 8), .012))
        return out
    return Material(colour, rough, .05, gloss=gloss)


def clay(tone, seed="clay", pale=None, lime=.0):
    """Unglazed earthenware, dry, with the potter's fine rings."""
    n1, n2 = Noise(seed), Noise(seed, 2)

    def colour(x, y, z, n):
        v = .5 + .28 * n1.rough(x * 2, y * 2, z * 2) + .10 * n2(x * 42, y * 42, z * 42)
        out = blend(darker(tone, .08), lighter(tone, .10), v)
        if lime:
            out = blend(out, rgb("#e9ddcf"), step(.35, n2.rough(x * 2, y * 2.4, z * 2), .5) * lime)
        return out
    return Material(colour, .9, .03, gloss=.25, bump=lambda x, y, z: .0016 * n2(x * .6, y * 26,
        z * .6) + .0008 * n1(x * 60, y * 60, z * 60), grain=.006)


def enamel(tone, seed="enamel", edge=None, edge_at=None, low=None):
    """Enamelled steel: smooth, glossy, with a coloured edge above `edge_at` (or below `low`)."""
    n1 = Noise(seed)

    def colour(x, y, z, n):
        out = solid(tone, len(x)) * (1 + .012 * n1(x * 3, y * 3, z * 3))[:, None]
        if edge is not None and edge_at is not None:
            out = blend(out, edge, step(edge_at, y + .004 * n1(x * 6, y * 6, z * 6), .008))
        if edge is not None and low is not None:
            out = blend(out, edge, step(-low, -y, .008))
        return out
    return Material(colour, .05, .055, gloss=1.3)


def cast_iron(tone, seed="iron", rough=.5):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .08 * n1(x * 30, y * 30, z * 30))[:, None], rough,
                    .05, gloss=.7,
                    bump=lambda x, y, z: .0022 * n1(x * 55, y * 55, z * 55), grain=.004)


# ---- metals

def steel(tone=(.76, .78, .80), seed="steel", rough=.16, brushed="turned", strength=.05):
    """Metal with the fine marks of its finishing: round the axis, along x, or none."""
    n1 = Noise(seed)
    way = {"turned": lambda x, y, z: n1(x * .5, y * 90 + 7, z * .5) + .6 * n1(np.sqrt(x * x + z * z) * 90, y * .5,
        x * 0),
           "x": lambda x, y, z: n1(x * 1.5, y * 120, z * 120), "y": lambda x, y, z: n1(x * 120, y * 1.5, z * 120),
           "z": lambda x, y, z: n1(x * 120, y * 120, z * 1.5), "none": lambda x, y, z: x * 0}[brushed]
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + strength * way(x, y, z))[:, None], rough, metal=True)


def tinned(tone, seed="zinc", spangle=.10):
    """Zinc and aged metal: cloudy, half dull."""
    n1, n2 = Noise(seed), Noise(seed, 2)

    def colour(x, y, z, n):
        v = n1.rough(x * 5, y * 5, z * 5) + .5 * np.sign(n2(x * 9, y * 9, z * 9)) * .4
        return solid(tone, len(x)) * (1 + spangle * v)[:, None]
    return Material(colour, .34, metal=True)


def hammered(tone, seed="hammered", size=9.0, depth=.012):
    n1 = Noise(seed)
    return Material(tone, .14, metal=True, bump=lambda x, y, z: depth * np.abs(n1(x * size, y * size, z * size)),
                    grain=.012)


# ---- wood

def wood(tone, dark=None, seed="wood", axis="x", scale=1.0, rough=.45, gloss=.8, contrast=1.0):
    """Long grain along an axis: rings that wander, fibres, fine pores."""
    n1, n2 = Noise(seed, 1), Noise(seed, 2)
    dark = dark or darker(tone, .35)
    off = np.random.Generator(np.random.PCG64(seed_of(seed))).uniform(-.6, .6, 3)

    def colour(x, y, z, n):
        a, b, c = {"x": (x, y, z), "y": (y, x, z), "z": (z, x, y)}[axis]
        a, b, c = (q * scale for q in (a, b, c))
        wob = .16 * n1(a * .9, b * 1.3, c * 1.3) + .05 * n1(a * 2.2, b * 4, c * 4)
        r = np.sqrt((b + off[0] + wob) ** 2 + (c + off[1] + .8 + wob) ** 2)
        ring = (r * 9 + .2 * n2(a * .5, b * 3, c * 3)) % 1
        ring = ring ** 1.6 * (1 - step(.90, ring, .1))
        fibre = n2(a * 3, b * 60, c * 60)
        pore = step(.62, n1(a * 7, b * 95, c * 95), .2)
        v = .12 + (.58 * ring + .16 * fibre + .22 * pore + .12 * n1(a * .8, b, c)) * contrast
        return blend(lighter(tone, .10), dark, v)
    return Material(colour, rough, .045, gloss=gloss, bump=lambda x, y,
                    z: .0012 * n2(x * (3 if axis == "x" else 70), y * (3 if axis == "y" else 70),
                                  z * (3 if axis == "z" else 70)), grain=.005)


# ---- cloth, paper, wax, leather

def cloth(tone, second=None, seed="cloth", pattern=None, weave=105.0, relief=.0022, slub=.10, sheen=.06, plane="xy"):
    """Woven cloth; `pattern(u, v)` says where the second colour shows."""
    n1, n2 = Noise(seed, 1), Noise(seed, 2)
    pick = {"xy": (0, 1), "xz": (0, 2), "zy": (2, 1)}[plane]

    def uv(x, y, z):
        p = (x, y, z)
        return p[pick[0]], p[pick[1]]

    def colour(x, y, z, n):
        u, v = uv(x, y, z)
        out = solid(tone, len(x))
        if pattern is not None:
            out = blend(out, second, pattern(u, v))
        thread = n1(u * 3, v * weave, z * 2) * .5 + n2(u * weave, v * 3, z * 2) * .5
        return out * (1 + slub * thread + .04 * n1(x * 3, y * 3, z * 3))[:, None]

    def bump(x, y, z):
        u, v = uv(x, y, z)
        return relief * (np.sin(u * weave * 1.6) * np.sin(v * weave * 1.6) + .8 * n1(u * 5, v * weave,
            z) + .8 * n2(u * weave, v * 5, z))
    return Material(colour, .95, .03, gloss=.12, wrap=.12, sheen=sheen, bump=bump, grain=.004)


def velvet(tone, seed="velvet"):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .10 * n1.rough(x * 2.5, y * 2.5, z * 2.5))[:, None],
                    .9, .03, gloss=.1, sheen=.5,
                    bump=lambda x, y, z: .004 * n1(x * 60, y * 60, z * 60), grain=.006)


def wax(tone, seed="wax"):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .02 * n1(x * 4, y * 4, z * 4))[:, None], .38, .04,
                    wrap=.45, gloss=.6)


def leather(tone, seed="leather"):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + .07 * n1.rough(x * 5, y * 5, z * 5))[:, None], .5,
                    .045, gloss=.6,
                    bump=lambda x, y, z: .005 * np.abs(n1(x * 26, y * 26, z * 26)) + .003 * n1(x * 60, y * 60, z * 60),
                    grain=.006)


def matt(tone, rough=.8, gloss=.3, seed="matt", vary=.02, wrap=0.0):
    n1 = Noise(seed)
    return Material(lambda x, y, z, n: solid(tone, len(x)) * (1 + vary * n1.rough(x * 8, y * 8, z * 8))[:, None],
                    rough, .04, gloss=gloss, wrap=wrap)


def lacquer(tone, rough=.06, gloss=1.2):
    return Material(tone, rough, .05, gloss=gloss)


def glass(tone=(.86, .93, .93), strength=1.6, gloss=1.0, tint=None, rough=.02, rim=.55):
    """Clear or coloured glass; what it swallows grows with the thickness a ray meets."""
    absorb = [strength * -math.log(max(c, .02)) + .25 for c in tone]
    return Material(tone, rough, .045, glass=absorb, gloss=gloss, tint=tint, rim=rim)


# ---- printed pictures wrapped round bodies

def printed(picture, place, ground, rough=.6, gloss=.5, metal=False, wrap=0.0):
    """`picture` is an array (h, w, 4); `place(x, y, z, n)` gives u, v from 0 to 1 (outside: nothing printed)."""
    h, w = picture.shape[:2]

    def colour(x, y, z, n):
        base = ground(x, y, z, n) if callable(ground) else solid(ground, len(x))
        u, v = place(x, y, z, n)
        on = (u > 0) & (u < 1) & (v > 0) & (v < 1)
        fx = np.clip(u, 0, 1) * (w - 1.001)
        fy = (1 - np.clip(v, 0, 1)) * (h - 1.001)
        i, j = fx.astype(np.int32), fy.astype(np.int32)
        a, b = (fx - i)[:, None], (fy - j)[:, None]
        i, j = np.clip(i, 0, w - 2), np.clip(j, 0, h - 2)
        q = (picture[j, i] * (1 - a) + picture[j, i + 1] * a) * (1 - b) + (picture[j + 1, i] * (1 - a) + picture[j + 1,
            i + 1] * a) * b
        cover = (q[:, 3] * on)[:, None]
        return base * (1 - cover) + q[:, :3] * cover
    return Material(colour, rough, .04, gloss=gloss, metal=metal, wrap=wrap)


def round_label(radius_angle, low, high, turn=0.0):
    """Places a label on a turned body: `radius_angle` degrees wide, between two heights, facing the camera."""
    def place(x, y, z, n):
        a = np.degrees(np.arctan2(x, z)) - turn
        return a / radius_angle + .5, (y - low) / (high - low)
    return place


def flat_label(x0, x1, y0, y1, axis="z"):
    def place(x, y, z, n):
        if axis == "z":
            return (x - x0) / (x1 - x0), (y - y0) / (y1 - y0) - 2 * (n[2] < .5)
        if axis == "y":
            return (x - x0) / (x1 - x0), (-z - y0) / (y1 - y0) - 2 * (n[1] < .5)
        return (z - x0) / (x1 - x0), (y - y0) / (y1 - y0) - 2 * (n[0] < .5)
    return place
