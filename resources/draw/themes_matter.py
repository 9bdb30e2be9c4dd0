"""Banner grounds: materials and patterns.

Needs the Debian packages python3-cairo, python3-pil and python3-numpy.
"""
import math

import cairo
import numpy as np

from canvas import Canvas, cloud, curve, darker, leaf, lighter, mix, ramp, rgb, rng, seed_of

W, H = 960, 110


def grid(width=W, height=H):
    y, x = np.mgrid[0:height, 0:width].astype(np.float32)
    return x, y


def tinted(tone, value):
    """One colour lit by an array of brightness around 1."""
    return np.array(tone, np.float32) * value[..., None]


def slate():
    n = cloud(H, W, seed_of("slate"), 26, 2.5, .12)
    f = cloud(H, W, seed_of("slate2"), 5, 3)
    ridge = n - np.roll(n, 1, 0) * .75 - np.roll(n, 1, 1) * .25
    return tinted(rgb("#5a6672"), .96 + .04 * n + .75 * ridge + .02 * f)


def linen():
    warp = cloud(H, W, seed_of("linen-v"), 1.6, .12)
    weft = cloud(H, W, seed_of("linen-h"), 1.6, 14)
    x, y = grid()
    weave = np.sin(x * math.pi / 2) * np.sin(y * math.pi / 2)
    return tinted(rgb("#d8cdb8"), .98 + .022 * warp + .03 * weft + .02 * weave)


def brick():
    c = Canvas(W, H, 1, rgb("#d9d3c9"))
    r = rng("brick")
    for row in range(5):
        for col in range(16):
            tone = mix(rgb("#b9694e"), rgb("#a4533f"), r.random())
            tone = mix(tone, rgb("#cf8a6c"), r.random() * .5)
            x, y = col * 60 + (row % 2) * 30, row * 22

            def one(cr, x=x, y=y, tone=tone):
                cr.rectangle(x + 1.5, y + 1.5, 57, 19)
                cr.set_source_rgb(*tone)
                cr.fill()
                cr.set_line_width(1)
                cr.set_source_rgba(*lighter(tone, .5), .6)
                cr.move_to(x + 2, y + 2)
                cr.line_to(x + 58, y + 2)
                cr.stroke()
                cr.set_source_rgba(*darker(tone, .4), .6)
                cr.move_to(x + 2, y + 20)
                cr.line_to(x + 58, y + 20)
                cr.stroke()
            c.wrapped(one)
    colour = c.array()[0]
    return colour * (.98 + .02 * cloud(H, W, seed_of("brick2"), 8, 1, .2))[..., None] * .92 + .05


def tiles():
    """Cement tiles: a quarter-circle star that meets its neighbours."""
    size = 55
    c = Canvas(W // 16 * 16, H, 2, rgb("#eef3f5"))
    cr = c.cr
    for i in range(-1, W // size + 2):
        for j in range(3):
            x, y = i * 60, j * size
            cr.save()
            cr.translate(x, y)
            cr.scale(60 / size, 1)
            blue, pale = rgb("#6e97b5"), rgb("#b9d0dd")
            for cx, cy in ((0, 0), (size, 0), (0, size), (size, size)):
                cr.set_source_rgb(*pale)
                cr.arc(cx, cy, 21, 0, 7)
                cr.fill()
                cr.set_source_rgb(*blue)
                cr.arc(cx, cy, 13, 0, 7)
                cr.fill()
                cr.set_source_rgb(*rgb("#eef3f5"))
                cr.arc(cx, cy, 6, 0, 7)
                cr.fill()
            for k in range(4):
                leaf(cr, size / 2, size / 2, 20, 8, math.pi / 4 + k * math.pi / 2)
                cr.set_source_rgb(*blue)
                cr.fill()
                leaf(cr, size / 2, size / 2, 15, 5, k * math.pi / 2)
                cr.set_source_rgb(*rgb("#d7b46a"))
                cr.fill()
            cr.set_source_rgb(*rgb("#dfe6ea"))
            cr.set_line_width(1.2)
            cr.rectangle(0, 0, size, size)
            cr.stroke()
            cr.restore()
    return half(c) * .93 + .05


def half(c):
    """Averages a canvas drawn at double size."""
    a = c.array()[0]
    return a.reshape(a.shape[0] // 2, 2, a.shape[1] // 2, 2, 3).mean((1, 3))


def paper():
    c = Canvas(W, H, 1, (1, 1, 1))
    r = rng("paper")
    for _ in range(420):
        x, y, a, n = r.random() * W, r.random() * H, r.random() * 7, 6 + r.random() * 14
        bend = r.normal() * 4
        tone = mix(rgb("#8b6a42"), rgb("#fff3dc"), float(r.random() > .5))

        def fibre(cr):
            cr.set_source_rgba(*tone, .35)
            cr.set_line_width(.8)
            dx, dy = math.cos(a) * n, math.sin(a) * n
            curve(cr, [(x, y), (x + dx / 2 - dy / n * bend, y + dy / 2 + dx / n * bend), (x + dx, y + dy)])
            cr.stroke()
        c.wrapped(fibre)
    n = cloud(H, W, seed_of("paper2"), 3, 1, .3)
    return c.array()[0] * tinted(rgb("#c9a877"), 1 + .018 * n)


def wood():
    """Oiled planks: long grain, a few knots, dark joints."""
    x, y = grid()
    out = np.zeros((H, W, 3), np.float32)
    r = rng("wood")
    for k in range(4):
        top, foot = int(k * 27.5), int((k + 1) * 27.5)
        yy, xx = y[top:foot], x[top:foot]
        field = cloud(H, W, seed_of("wood", k), 34, 9)[top:foot]
        v = yy * .55 + field * 3.2
        for _ in range(2):
            kx, ky = r.random() * W, top + 6 + r.random() * 16
            dx = (xx - kx + W / 2) % W - W / 2
            v = v + 5 * np.exp(-((dx / 26) ** 2 + ((yy - ky) / 7) ** 2))
        rings = .5 + .5 * np.sin(v * 2.1)
        fine = cloud(H, W, seed_of("wood-f", k), 1.5, 22)[top:foot]
        base = mix(rgb("#a9794a"), rgb("#8f6238"), r.random())
        out[top:foot] = np.array(base) * (.92 + .13 * rings + .025 * fine)[..., None]
        out[top] *= .55
        out[foot - 1] *= 1.07
    return out


def parquet():
    c = Canvas(W, H, 2, rgb("#7a5a3c"))
    a = 20
    for i in range(-4, W // a + 6):
        for j in range(-4, 10):
            if (i + j) % 2:
                continue
            for flip in (0, 1):
                tone = mix(rgb("#c49a6c"), rgb("#a87c50"), seed_of("pq", i % (W // a), j, flip) % 100 / 100)
                x, y = i * a, j * a
                pts = [(x, y), (x + a, y + a), (x + a, y + 2 * a), (x, y + a)] if flip else \
                      [(x, y), (x - a, y + a), (x - a, y + 2 * a), (x, y + a)]
                c.cr.move_to(*pts[0])
                for p in pts[1:]:
                    c.cr.line_to(*p)
                c.cr.close_path()
                c.cr.set_source_rgb(*(tone if flip else darker(tone, .12)))
                c.cr.fill_preserve()
                c.cr.set_source_rgba(*rgb("#6d4c2e"), .7)
                c.cr.set_line_width(.9)
                c.cr.stroke()
    return half(c) * (1 + .02 * cloud(H, W, seed_of("parquet2"), 3, 4))[..., None]


def marble():
    n = cloud(H, W, seed_of("marble"), 70, 1.6, .05)
    m = cloud(H, W, seed_of("marble2"), 60, 2, .06)
    vein = np.exp(-np.abs(n - .1) * 16) * .6 + np.exp(-np.abs(m + .3) * 22) * .45
    base = ramp(np.clip(.5 + .25 * m, 0, 1), [(0, rgb("#eef0f1")), (1, rgb("#fbfbfa"))])
    return base - vein[..., None] * (1 - np.array(rgb("#8f9aa3"))) * .85


def tartan():
    """Wool tartan woven from one set of bands in both directions."""
    green, navy, red, cream = rgb("#2f5545"), rgb("#233a57"), rgb("#9c3a36"), rgb("#e3d6b4")
    sett = [(green, 26), (navy, 12), (green, 4), (navy, 12), (red, 4), (navy, 22), (cream, 2), (navy, 22), (green, 16)]
    line = np.concatenate([np.tile(np.array(c, np.float32), (n, 1)) for c, n in sett])
    x, y = grid()
    ix = x.astype(int) % len(line)
    iy = y.astype(int) % len(line)
    warp, weft = line[ix], line[iy]
    twill = ((x + y) % 4 < 2)[..., None]
    out = np.where(twill, warp * .62 + weft * .38, warp * .38 + weft * .62)
    return out * (1 + .03 * cloud(H, W, seed_of("tartan"), 2, 1))[..., None]


def dots():
    c = Canvas(W, H, 2, rgb("#f3dfe0"))
    for i in range(-1, 42):
        for j in range(6):
            x, y = i * 24 + (j % 2) * 12, j * 22 + 5
            c.cr.arc(x, y, 4.2, 0, 7)
            c.cr.set_source_rgb(*(rgb("#fbf4f2") if (i + 2 * j) % 5 else rgb("#d99aa2")))
            c.cr.fill()
    return half(c)


def blueprint():
    c = Canvas(W, H, 2, rgb("#2a4f86"))
    cr = c.cr
    for step, alpha, width in ((10, .12, .6), (60, .3, .9)):
        cr.set_source_rgba(1, 1, 1, alpha)
        cr.set_line_width(width)
        for x in range(0, W + 1, step):
            cr.move_to(x, 0)
            cr.line_to(x, H)
        for y in range(0, H + 1, step if step == 10 else 55):
            cr.move_to(0, y)
            cr.line_to(W, y)
        cr.stroke()
    cr.set_source_rgba(1, 1, 1, .32)
    cr.set_line_width(1)
    for k in range(4):
        x = 120 + k * 240
        cr.arc(x, 55, 34, 0, 7)
        cr.stroke()
        cr.arc(x, 55, 20, 0, 7)
        cr.set_dash([4, 3])
        cr.stroke()
        cr.set_dash([8, 3, 2, 3])
        cr.move_to(x - 48, 55)
        cr.line_to(x + 48, 55)
        cr.move_to(x, 8)
        cr.line_to(x, 102)
        cr.stroke()
        cr.set_dash([])
        cr.rectangle(x + 84, 30, 72, 50)
        cr.move_to(x + 84, 80)
        cr.line_to(x + 156, 30)
        cr.stroke()
    return half(c)


def knit():
    """Stocking stitch: columns of small V shapes."""
    x, y = grid()
    col = (x % 12) / 12
    v = np.abs(col - .5) * 2
    row = ((y + v * -5) % 10) / 10
    ridge = np.abs(np.sin(row * math.pi)) ** .8 * (.55 + .45 * np.abs(np.sin(np.clip(v, 0, 1) * math.pi)) ** .6)
    n = cloud(H, W, seed_of("knit"), 1.4, 1)
    return tinted(rgb("#c8bfb0"), .72 + .3 * ridge + .02 * n)


def copper():
    """Hammered copper: overlapping shallow dents lit from above."""
    x, y = grid()
    r = rng("copper")
    height = np.full((H, W), 9e9, np.float32)
    for _ in range(520):
        px, py = r.random() * W, r.random() * H
        dx = (x - px + W / 2) % W - W / 2
        dy = (y - py + H / 2) % H - H / 2
        height = np.minimum(height, dx * dx + dy * dy)
    gx = np.roll(height, -1, 1) - np.roll(height, 1, 1)
    gy = np.roll(height, -1, 0) - np.roll(height, 1, 0)
    light = np.clip(.5 - .0045 * gy - .002 * gx, 0, 1)
    return ramp(light, [(0, rgb("#7d4a2c")), (.4, rgb("#a9643c")), (.7, rgb("#bd774a")), (1, rgb("#e6b48b"))])


def terrazzo():
    c = Canvas(W, H, 2, rgb("#ece7df"))
    r = rng("terrazzo")
    tones = [rgb(t) for t in ("#b88d78", "#8aa39b", "#d9b38a", "#76848f", "#c9c2b6", "#a7705f")]
    for _ in range(420):
        x, y, s = r.random() * W, r.random() * H, 2 + r.random() ** 2 * 9
        n, a = int(r.integers(4, 7)), r.random() * 7
        pts = [(x + s * (.6 + .5 * r.random()) * math.cos(a + k * 2 * math.pi / n),
                y + s * (.6 + .5 * r.random()) * math.sin(a + k * 2 * math.pi / n)) for k in range(n)]
        tone = mix(tones[int(r.integers(6))], rgb("#ece7df"), .25)

        def chip(cr):
            cr.move_to(*pts[0])
            for p in pts[1:]:
                cr.line_to(*p)
            cr.close_path()
            cr.set_source_rgb(*tone)
            cr.fill()
        c.wrapped(chip)
    return half(c)


def chalkboard():
    n = cloud(H, W, seed_of("board"), 50, 3, .12)
    c = Canvas(W, H, 2)
    c.put(np.repeat(np.repeat(tinted(rgb("#2f3b38"), 1 + .05 * n), 2, 0), 2, 1))
    cr = c.cr
    cr.set_line_cap(cairo.LINE_CAP_ROUND)

    def garland(cr):
        cr.set_source_rgba(.95, .97, .93, .5)
        cr.set_line_width(1.3)
        for k in range(8):
            x = k * 120
            pts = [(x + t * 120, 20 + 46 * math.sin(t * math.pi) ** .9) for t in np.linspace(0, 1, 13)]
            curve(cr, pts)
            cr.stroke()
            for i in range(1, 12):
                px, py = pts[i]
                leaf(cr, px, py, 15, 6, (-.9 if i % 2 else .9) + (0 if i < 6 else .4))
                cr.stroke()
            cr.arc(x, 18, 3.4, 0, 7)
            cr.stroke()
    c.wrapped(garland)
    return half(c)
