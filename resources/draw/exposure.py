"""Light on surfaces, glass, flames: turns a scene and a view into a finished picture.

Needs the Debian packages python3-cairo, python3-pil and python3-numpy.
"""

import cairo
import numpy as np

from canvas import Canvas, rgb
from rays import along, hollow, kins, nearest, normals, shadow
from studio import KEY, Camera, display, linear, surroundings

FILL = np.array([.80, .25, .54], np.float32)
WARM = np.array([1.0, .62, .25], np.float32)


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


class Picture:
    def __init__(self, group, view):
        self.view = view
        self.solid = [i for i in group.items if not i.material.glass]
        self.glass = [i for i in group.items if i.material.glass]
        self.flames = group.flames
        self.points = group.flames + group.bulbs if view.dim < .8 else group.flames
        self.shine = 1.0 if view.dim > .8 else 1.5
        self.items = group.items
        focus = [i for i in (view.frame.items if view.frame else group.items) if not i.material.backdrop]
        self.camera = Camera(view, focus)
        self.camera.fit(focus, view)
        self.camera.near, self.camera.far = .2, self.camera.far + 12
        c = np.mean([i.centre for i in focus], 0)
        self.middle = c
        self.reach = max(float(np.linalg.norm(i.centre - c)) + i.radius for i in group.items) + 1.2
        self.ground = linear(rgb(view.ground))
        self.light = linear(rgb(view.light)) * view.dim

    # ---- surfaces

    def lit(self, albedo, n, p, sh, ao, wrap=0.0):
        """Diffuse light on points with normals n."""
        key = np.clip((dot(KEY, n) + wrap) / (1 + wrap), 0, 1)
        fill = np.clip(dot(FILL, n), 0, 1)
        up = n[1] * .5 + .5
        sky = .26 + .22 * up
        bounce = (1 - up)[:, None] * self.ground * .22
        light = (.64 * key * sh + (.12 * fill + sky) * ao)[:, None] * self.light + bounce * ao[:, None]
        for pos, size in self.points:
            q = [np.float32(pos[k]) + (.12 * size if k == 1 else 0) - p[k] for k in range(3)]
            far = np.sqrt(dot(q, q)) + 1e-3
            lamp = np.clip(dot(q, n) / far * .7 + .3, 0, 1) * .5 * size / (.25 * size + far * far)
            light = light + np.minimum(lamp, 1.6)[:, None] * WARM
        return albedo * light

    def surface(self, p, d, number, items):
        n = normals(items, number, *p)
        # a point just past a silhouette may lean away from the camera; it is shown edge on
        n -= np.stack(d) * np.maximum(dot(n, d), 0)
        n /= np.maximum(np.sqrt((n * n).sum(0)), 1e-6)
        ao = hollow(self.solid, p, n)
        start = [p[k] + n[k] * .006 for k in range(3)]
        facing = dot(KEY, n) > -.35
        sh = np.zeros(p[0].shape, np.float32)
        if facing.any():
            s = [c[facing] for c in start]
            sh[facing] = shadow(self.solid, *s, KEY)
            if self.glass:
                sh[facing] *= .72 + .28 * shadow(self.glass, *s, KEY)
        out = np.zeros(p[0].shape + (3,), np.float32)
        for kin in kins(items):
            sel, who = kin.choose(number)
            if not len(sel):
                continue
            mat = kin.material
            q = [c[sel] for c in p]
            local = kin.local(who, q)
            m = n[:, sel]
            if mat.bump is not None:
                m = self.bumped(kin, who, local, m)
            albedo = linear(mat.tone(*local, kin.turn(who, m)))
            v = [-c[sel] for c in d]
            ndv = np.clip(dot(m, v), 0, 1)
            a, s = ao[sel], sh[sel]
            r = np.stack([2 * ndv * m[i] - v[i] for i in range(3)]).astype(np.float32)
            see = surroundings(r, mat.rough, self.ground, *((1.15, .55) if mat.metal else (3.6, 1.0))) * self.light
            graze = (1 - ndv) ** 5
            dark = np.clip(a * a + .12, 0, 1)[:, None] * (.55 + .45 * s)[:, None]
            if mat.metal:
                hit = self.reflected(q, m, r) if mat.rough < .25 else None
                if hit is not None:
                    see = np.where(hit[0][:, None], hit[1], see)
                f = albedo + (1 - albedo) * graze[:, None] * .7
                col = see * f * (.35 + .65 * dark) + albedo * .10 * a[:, None]
            else:
                f = (mat.f0 + (1 - mat.f0) * graze * (1 - mat.rough) ** 2)[:, None] * mat.gloss
                col = self.lit(albedo, m, q, s, a, mat.wrap) * (1 - f) + see * f * dark
                if mat.sheen:
                    col += albedo ** .6 * (mat.sheen * (1 - ndv) ** 3 * a)[:, None]
            if mat.glow is not None:
                col = col + linear(np.clip(mat.glow(*local) * self.shine, 0, 1.3))
            out[sel] = col
        return out

    def reflected(self, p, n, r):
        """What a polished surface sees of the scene itself."""
        o = [p[k] + n[k] * .02 for k in range(3)]
        far = np.full(o[0].shape, self.reach * 1.5, np.float32)
        t = along(self.solid, o, list(r), 0, far, 40)
        met = np.isfinite(t)
        if not met.any():
            return None
        q = [(o[k] + r[k] * np.where(met, t, 0))[met] for k in range(3)]
        number = nearest(self.solid, *q, which=True)[1]
        slope = normals(self.solid, number, *q)
        colour = np.zeros((len(q[0]), 3), np.float32)
        for kin in kins(self.solid):
            sel, who = kin.choose(number)
            if not len(sel):
                continue
            m = slope[:, sel]
            tone = linear(kin.material.tone(*kin.local(who, [c[sel] for c in q]), kin.turn(who, m)))
            colour[sel] = tone * (.38 + .18 * m[1] + .30 * np.clip(dot(KEY, m), 0, 1))[:, None]
        out = np.zeros(p[0].shape + (3,), np.float32)
        out[met] = colour
        return met, out

    @staticmethod
    def bumped(kin, who, local, n):
        mat = kin.material
        e = mat.grain
        base = mat.bump(*local)
        slope = np.stack([(mat.bump(*(c + (e if i == k else 0) for k, c in enumerate(local))) - base) / e
                          for i in range(3)])
        slope = kin.unturn(who, slope)
        m = n - slope + n * (slope * n).sum(0)
        return m / np.maximum(np.sqrt((m * m).sum(0)), 1e-6)

    # ---- ground

    def floor(self, p, u, v):
        n = p[0].shape[0]
        sh, ao = np.ones(n, np.float32), np.ones(n, np.float32)
        away = np.sqrt((p[0] - self.middle[0]) ** 2 + (p[2] - self.middle[2]) ** 2)
        near = away < self.reach + self.middle[1] * 1.2
        if near.any():
            q = [c[near] for c in p]
            up = [np.zeros_like(q[0]), np.ones_like(q[0]), np.zeros_like(q[0])]
            sh[near] = shadow(self.solid, *q, KEY, soft=5.0)
            ao[near] = hollow(self.solid, q, up, (.05, .14, .32, .7, 1.3))
            if self.glass:
                sh[near] *= .70 + .30 * shadow(self.glass, *q, KEY, soft=5.0)
                ao[near] *= .75 + .25 * hollow(self.glass, q, up, (.05, .14, .32))
        if self.view.table is not None:
            mat = self.view.table
            one = [np.zeros_like(p[0]), np.ones_like(p[0]), np.zeros_like(p[0])]
            albedo = linear(mat.tone(*p, np.array(one)))
            col = self.lit(albedo, one, p, sh, ao)
            back = np.clip((-p[2] - 1.8 - self.view.distance * .12) / 2.2, 0, 1)[:, None]
            return col * (1 - back) + self.wall(u, v) * back
        col = self.seamless(u, v) * ((.58 + .42 * sh) * (.32 + .68 * ao))[:, None]
        for pos, size in self.points:
            far = (p[0] - pos[0]) ** 2 + (p[2] - pos[2]) ** 2 + pos[1] ** 2 * .5
            col += (.16 * size / (.6 * size + far) * ao)[:, None] * WARM
        return col

    def seamless(self, u, v):
        r = np.sqrt((u * .75) ** 2 + ((v - .15) * .85) ** 2)
        return self.ground * (1.06 - .22 * np.clip(r, 0, 1.4) ** 2)[:, None] * self.light

    def wall(self, u, v):
        if self.view.wall is None:
            return self.seamless(u, v)
        top, foot = (linear(rgb(c)) for c in self.view.wall)
        t = np.clip(v * .5 + .5, 0, 1)[:, None]
        glow = np.exp(-((u + .75) ** 2 * 1.4 + (v - .55) ** 2 * 1.6))[:, None]
        return (foot * (1 - t) + top * t) * (.82 + .5 * glow) * self.light

    # ---- rays

    def trace(self, u, v):
        """Linear light for picture points, and the number of the item that each ray meets."""
        o, d = self.camera.rays(u, v)
        down = d[1] < -1e-4
        tg = np.where(down, -o[1] / np.where(down, d[1], -1), np.inf).astype(np.float32)
        tg[tg > 200] = np.inf
        far = np.minimum(np.full(u.shape, self.camera.far, np.float32), tg)
        t = along(self.solid, o, d, self.camera.near, far)
        col = np.zeros(u.shape + (3,), np.float32)
        ident = np.full(u.shape, -2, np.int16)
        met = np.isfinite(t)
        if met.any():
            p = [(o[k] + d[k] * np.where(met, t, 0))[met] for k in range(3)]
            number = nearest(self.solid, *p, which=True)[1]
            number[number < 0] = 0
            col[met] = self.surface(p, [c[met] for c in d], number, self.solid)
            ident[met] = number
        flat = ~met & np.isfinite(tg)
        if flat.any():
            p = [(o[k] + d[k] * np.where(flat, tg, 0))[flat] for k in range(3)]
            col[flat] = self.floor(p, u[flat], v[flat])
            ident[flat] = -1
        rest = ~met & ~flat
        if rest.any():
            col[rest] = self.wall(u[rest], v[rest])
        if self.glass:
            col, ident = self.through(o, d, np.where(met, t, tg), col, ident)
        return col, ident

    def through(self, o, d, depth, col, ident):
        """Adds the glass between the camera and what lies behind: tint by thickness, mirror images on each face."""
        for item in self.glass:
            mat = item.material
            lot = [item]
            far = np.minimum(depth, self.camera.far).astype(np.float32)
            t = along(lot, o, d, self.camera.near, far)
            live = np.flatnonzero(np.isfinite(t))
            if not len(live):
                continue
            pass_on = np.ones((len(live), 3), np.float32)
            swallow = np.asarray(mat.glass, np.float32)
            mirror = np.zeros((len(live), 3), np.float32)
            t = t[live]
            ray = [c[live] for c in d]
            eye = [c[live] for c in o]
            end = far[live]
            inside = np.zeros(len(live), bool)
            going = np.ones(len(live), bool)
            thick = np.zeros(len(live), np.float32)
            for face in range(6):
                g = np.flatnonzero(going)
                if not len(g):
                    break
                p = [eye[k][g] + ray[k][g] * t[g] for k in range(3)]
                n = normals(lot, np.zeros(len(g), np.int16), *p)
                rd = [c[g] for c in ray]
                back = dot(n, rd) > 0
                n[:, back] *= -1
                ndv = np.clip(-dot(n, rd), 0, 1)
                f = mat.f0 + (1 - mat.f0) * (1 - ndv) ** 5
                r = np.stack([rd[k] + 2 * ndv * n[k] for k in range(3)]).astype(np.float32)
                see = surroundings(r, mat.rough, self.ground, 3.4) * self.light
                strength = (f * mat.gloss * (1 if face == 0 else .45))[:, None]
                pass_on[g] *= (1 - mat.rim * (1 - ndv) ** 2.5)[:, None]
                left = pass_on[g] * np.exp(-thick[g][:, None] * swallow)
                mirror[g] += left * see * strength
                pass_on[g] *= 1 - np.minimum(strength, 1)
                if mat.tint is not None and face == 0:
                    paint = mat.tint(*item.local(*p), n)
                    if paint is not None:
                        body, cover = paint
                        ao = np.ones(len(g), np.float32)
                        lit = self.lit(linear(body), n, p, ao, ao, .3)
                        mirror[g] += left * lit * cover[:, None]
                        pass_on[g] *= 1 - cover[:, None]
                step = np.full(len(g), .010, np.float32)
                ahead = t[g] + step
                inside[g] = nearest(lot, *(eye[k][g] + rd[k] * ahead for k in range(3))) < 0
                limit = end[g]
                t2 = along_face(lot, [c[g] for c in eye], rd, t[g] + step, limit)
                passed = np.where(np.isfinite(t2), t2, limit) - t[g]
                inner = inside[g]
                thick[g[inner]] += np.minimum(passed[inner], 3)
                stop = ~np.isfinite(t2)
                going[g[stop]] = False
                t[g] = np.where(stop, t[g], t2)
            pass_on *= np.exp(-thick[:, None] * swallow)
            col[live] = col[live] * pass_on + mirror
            ident[live] = 100 + ident[live]
        return col, ident

    # ---- the whole picture

    def develop(self):
        """The finished picture as an array of screen values."""
        size = self.view.size
        g = (np.arange(size, dtype=np.float32) + .5) / size * 2 - 1
        u, v = np.meshgrid(g, -g)
        col, ident = self.trace(u.ravel(), v.ravel())
        shown = display(col).reshape(size, size, 3)
        ident = ident.reshape(size, size)
        luma = shown @ np.array([.3, .6, .1], np.float32)
        rough = np.zeros((size, size), bool)
        for axis in (0, 1):
            for s in (1, -1):
                rough |= np.abs(luma - np.roll(luma, s, axis)) > .022
                rough |= ident != np.roll(ident, s, axis)
        ys, xs = np.nonzero(rough)
        total = np.zeros((len(xs), 3), np.float32)
        cell = 2 / size
        parts = [-.34, 0, .34]
        for oy in parts:
            for ox in parts:
                total += display(self.trace(u[ys, xs] + np.float32(ox * cell), v[ys, xs] + np.float32(oy * cell))[0])
        shown[ys, xs] = total / 9
        return self.burn(shown)

    def burn(self, shown):
        """Flames, drawn over the picture with their glow."""
        size = self.view.size
        for pos, scale in self.flames:
            x, y = self.camera.project(pos)
            x, y = (x + 1) * size / 2, (1 - y) * size / 2
            tall = scale * .42 / self.camera.k / np.linalg.norm(self.camera.target - self.camera.eye) * size / 2
            gy, gx = np.mgrid[0:size, 0:size]
            d = np.sqrt((gx - x) ** 2 + (gy - (y - tall * .5)) ** 2) / tall
            glow = .34 * np.exp(-d * d * .55) + .13 * np.exp(-d * .45)
            shown = 1 - (1 - shown) * (1 - glow[..., None] * np.array([1, .72, .34]))
            c = Canvas(size, size, 2)
            cr = c.cr
            w = tall * .19
            grad = cairo.LinearGradient(0, y, 0, y - tall)
            for s, tone in ((0, (.35, .45, .95, .35)), (.18, (1, .72, .25, .9)), (.45, (1, .93, .62, 1)),
                            (.8, (1, .95, .72, 1)), (1, (1, .8, .4, .8))):
                grad.add_color_stop_rgba(s, *tone)
            cr.move_to(x, y)
            cr.curve_to(x - w * 1.5, y - tall * .12, x - w, y - tall * .55, x + w * .12, y - tall)
            cr.curve_to(x + w * .7, y - tall * .6, x + w * 1.6, y - tall * .15, x, y)
            cr.set_source(grad)
            cr.fill()
            tone, cover = c.array()
            tone = (tone * cover[..., None]).reshape(size, 2, size, 2, 3).mean((1, 3))
            cover = cover.reshape(size, 2, size, 2).mean((1, 3))[..., None]
            shown = shown * (1 - cover) + tone
        return np.clip(shown, 0, 1)


def along_face(items, o, d, t0, t1):
    return along(items, o, d, t0, t1, 70, both=True)
