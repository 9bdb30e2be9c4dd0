"""Banner grounds: landscapes, seasons and plants.

Needs the Debian packages python3-cairo, python3-pil and python3-numpy.
"""
import math

import numpy as np

from canvas import Canvas, cloud, darker, leaf, lighter, linden_leaf, linden_veins, mix, ramp, rgb, rng, seed_of, shade
from themes_matter import H, W, grid, half


def sky(*stops):
    y = grid()[1]
    return ramp(y / H, stops)


def start(colour):
    """A canvas of double size that already shows `colour`."""
    c = Canvas(W, H, 2)
    c.put(np.repeat(np.repeat(colour, 2, 0), 2, 1))
    return c


def ridge(seed, size, width=W):
    """A periodic outline between -1 and 1, for hills, waves and tree tops."""
    n = cloud(1, width, seed, size)[0]
    return n / (np.abs(n).max() + 1e-6)


def hill(cr, line, y, height, tone, foot=None):
    cr.move_to(0, H + 2)
    for x in range(0, W + 1, 2):
        cr.line_to(x, y - line[x % W] * height)
    cr.line_to(W, H + 2)
    cr.close_path()
    if foot is None:
        cr.set_source_rgb(*tone)
    else:
        shade(cr, 0, y - height, 0, H, (0, tone), (1, foot))
    cr.fill()


def sea():
    y = grid()[1]
    depth = np.clip((y - 30) / (H - 30), 0, 1)
    out = sky((0, rgb("#bfe0f2")), (.27, rgb("#e6f3f6")), (.275, rgb("#4f94b8")), (.6, rgb("#2f78a3")),
              (1, rgb("#215f8a")))
    swell = cloud(H, W, seed_of("sea"), 6, 9)
    glint = np.clip(swell - 1.1 + depth * .4, 0, 1) * (depth > 0)
    out = out + (glint * .28)[..., None] + (swell * .025 * (depth > 0))[..., None]
    return out


def linden():
    c = Canvas(W, H, 2, rgb("#dfe8c6"))
    r = rng("linden")
    for k in range(130):
        x, y = r.random() * W, r.random() * (H + 20) - 10
        size, angle = 22 + r.random() * 22, r.random() * 7
        depth = k / 130
        tone = mix(mix(rgb("#cddcae"), rgb("#a9c47c"), r.random()), rgb("#dfe8c6"), .65 * (1 - depth))

        def one(cr):
            linden_leaf(cr, x, y, size, angle)
            cr.set_source_rgb(*tone)
            cr.fill()
            linden_veins(cr, x, y, size, angle)
            cr.set_source_rgba(*lighter(tone, .5), .8)
            cr.set_line_width(.8)
            cr.stroke()
        c.wrapped(one)
    return half(c)


def fir(cr, x, foot, height, tone):
    cr.set_source_rgb(*tone)
    cr.rectangle(x - height * .02, foot - height * .2, height * .04, height * .3)
    cr.fill()
    for k in range(5):
        y = foot - height * (.12 + .17 * k)
        w = height * (.21 - .037 * k)
        cr.move_to(x, y - height * .26)
        cr.curve_to(x + w * .3, y - height * .1, x + w * .7, y - height * .02, x + w, y)
        cr.curve_to(x + w * .4, y - height * .02, x - w * .4, y - height * .02, x - w, y)
        cr.curve_to(x - w * .7, y - height * .02, x - w * .3, y - height * .1, x, y - height * .26)
        cr.fill()


def forest():
    c = start(sky((0, rgb("#e3ecea")), (1, rgb("#b9cfc6"))))
    r = rng("forest")
    for tone, count, low, size in ((rgb("#b4cbc2"), 60, 78, 62), (rgb("#8cae9f"), 46, 92, 58),
                                   (rgb("#5f8a76"), 40, 106, 52),
                                   (rgb("#3c6753"), 34, 122, 50)):
        for i in range(count):
            x, h = (i + r.random()) * W / count, size * (.7 + .5 * r.random())
            c.wrapped(lambda cr: fir(cr, x, low, h, tone))
        c.cr.set_source_rgb(*tone)
        c.cr.rectangle(0, low - 2, W, H)
        c.cr.fill()
    return half(c)


def night():
    out = sky((0, rgb("#0c1530")), (.6, rgb("#1b2b55")), (1, rgb("#36477a")))
    milky = cloud(H, W, seed_of("night"), 40, 3, .1)
    x, y = grid()
    band = np.exp(-((y - 42 - 18 * np.sin(x / W * 2 * math.pi)) / 26) ** 2)
    out = out + (np.clip(.045 + .03 * milky, 0, 1) * band)[..., None] * np.array([.9, .95, 1.2])
    c = start(out)
    r = rng("night")
    for _ in range(300):
        x, y, s = r.random() * W, r.random() * H, .35 + r.random() ** 5 * 1.2

        def star(cr):
            cr.arc(x, y, s, 0, 7)
            cr.set_source_rgba(1, 1, .92, .45 + .5 * s / 1.5)
            cr.fill()
            if s > 1.1:
                cr.set_line_width(.5)
                cr.move_to(x - 4, y)
                cr.line_to(x + 4, y)
                cr.move_to(x, y - 4)
                cr.line_to(x, y + 4)
                cr.stroke()
        c.wrapped(star)
    return half(c)


def autumn():
    c = Canvas(W, H, 2, rgb("#e9d3a8"))
    r = rng("autumn")
    tones = [rgb(t) for t in ("#c4692f", "#d99a3d", "#b4452d", "#8d5a2e", "#e0b45a", "#a8823c")]
    for k in range(190):
        x, y = r.random() * W, r.random() * (H + 20) - 10
        size, angle, kind = 14 + r.random() * 18, r.random() * 7, r.random()
        tone = mix(tones[int(r.integers(6))], rgb("#e9d3a8"), .62 - .42 * k / 190)

        def one(cr):
            if kind < .45:
                linden_leaf(cr, x, y, size, angle)
            else:
                leaf(cr, x, y, size * 1.25, size * .5, angle)
            cr.set_source_rgb(*tone)
            cr.fill()
            cr.set_source_rgba(*darker(tone, .3), .5)
            cr.set_line_width(.8)
            cr.move_to(x - math.cos(angle) * 5, y - math.sin(angle) * 5)
            cr.line_to(x + math.cos(angle) * size * .9, y + math.sin(angle) * size * .9)
            cr.stroke()
        c.wrapped(one)
    return half(c)


def waves():
    """Rows of overlapping arcs, as on old printed cottons."""
    c = Canvas(W, H, 2, rgb("#2f6f8f"))
    for j in range(9):
        for i in range(-1, 22):
            x, y = i * 48 + (j % 2) * 24, j * 14 + 6
            for r, tone in ((24, "#d9e8ea"), (22, "#3b7d9c"), (17, "#d9e8ea"), (15.4, "#3b7d9c"), (10, "#d9e8ea"),
                            (8.4, "#3b7d9c"), (4, "#d9e8ea")):
                c.cr.arc(x, y + 14, r, math.pi, 2 * math.pi)
                c.cr.set_source_rgb(*mix(rgb(tone), rgb("#3b7d9c"), .25))
                c.cr.fill()
    return half(c)


def meadow():
    c = start(sky((0, rgb("#dcefe0")), (1, rgb("#a8cf8e"))))
    r = rng("meadow")
    for _ in range(900):
        x, foot, tall = r.random() * W, H + 4, 25 + r.random() * 55
        lean, tone = r.normal() * 9, mix(rgb("#6fa35a"), rgb("#b7d691"), r.random())

        def blade(cr):
            cr.move_to(x - 1.2, foot)
            cr.curve_to(x - 1, foot - tall * .5, x + lean * .3, foot - tall * .8, x + lean, foot - tall)
            cr.curve_to(x + lean * .3 + 2, foot - tall * .7, x + 1.6, foot - tall * .4, x + 1.2, foot)
            cr.set_source_rgba(*tone, .8)
            cr.fill()
        c.wrapped(blade)
    for _ in range(70):
        x, y, s = r.random() * W, 30 + r.random() * 75, 2.2 + r.random() * 2
        tone = rgb(("#ffffff", "#f3c9d6", "#f6e08a", "#c9b6e4")[int(r.integers(4))])

        def flower(cr):
            for i in range(6):
                a = i * math.pi / 3
                cr.arc(x + s * math.cos(a), y + s * math.sin(a) * .8, s * .62, 0, 7)
                cr.set_source_rgb(*tone)
                cr.fill()
            cr.arc(x, y, s * .5, 0, 7)
            cr.set_source_rgb(*rgb("#e3a83a"))
            cr.fill()
        c.wrapped(flower)
    return half(c)


def dunes():
    c = start(sky((0, rgb("#f6e7cf")), (1, rgb("#f0d5ab"))))
    for k, (y, tone, foot) in enumerate(((34, "#ecca98", "#dfb478"), (58, "#e2b67c", "#cf9d5f"),
                                         (82, "#d3a162", "#b98247"))):
        line = ridge(seed_of("dunes", k), 150)
        hill(c.cr, line, y, 20, rgb(tone), rgb(foot))
    y = grid()[1]
    ripple = np.sin(y * 1.5 + cloud(H, W, seed_of("ripple"), 40, 2) * 2.2) * np.clip((y - 40) / 60, 0, 1)
    return half(c) * (1 + .02 * ripple)[..., None]


def mountains():
    c = start(sky((0, rgb("#8fb3d9")), (.45, rgb("#f0d9cf")), (1, rgb("#f6e6d4"))))
    for k, (y, tone, size, high) in enumerate(((52, "#b9bfd6", 34, 26), (70, "#8f9dc0", 40, 24),
                                               (88, "#64789f", 46, 20), (104, "#43577d", 52, 16))):
        line = np.abs(ridge(seed_of("mount", k), size)) * 1.6 - .7 + .12 * ridge(seed_of("mount-f", k), 6)
        hill(c.cr, line, y, high, rgb(tone), mix(rgb(tone), rgb("#f2e2d6"), .35))
    return half(c)


def snow():
    c = start(sky((0, rgb("#c9dcea")), (1, rgb("#eef5f9"))))
    hill(c.cr, ridge(seed_of("snow1"), 130), 88, 9, rgb("#e3eef5"), rgb("#f4f9fb"))
    hill(c.cr, ridge(seed_of("snow2"), 100), 104, 8, rgb("#f5fafc"), rgb("#ffffff"))
    r = rng("snow")
    for _ in range(110):
        x, y, s, soft = r.random() * W, r.random() * H, 1 + r.random() * 2.4, r.random()

        def flake(cr):
            if s > 2.4:
                cr.set_source_rgba(1, 1, 1, .95)
                cr.set_line_width(.9)
                for i in range(6):
                    a = i * math.pi / 3 + soft
                    for t, spread in ((1, 0), (.65, .35), (.65, -.35)):
                        cr.move_to(x + s * 2.6 * (t - .65 if spread else 0) * math.cos(a), y)
                        cr.move_to(x + math.cos(a) * s * (1.6 if spread else 0),
                                   y + math.sin(a) * s * (1.6 if spread else 0))
                        cr.line_to(x + math.cos(a + spread) * s * 2.8, y + math.sin(a + spread) * s * 2.8)
                cr.stroke()
            else:
                cr.arc(x, y, s, 0, 7)
                cr.set_source_rgba(1, 1, 1, .5 + .4 * soft)
                cr.fill()
        c.wrapped(flake)
    return half(c)


def lavender():
    c = start(sky((0, rgb("#f3e6e8")), (.28, rgb("#f8efe2")), (1, rgb("#cdbedd"))))
    hill(c.cr, ridge(seed_of("lav1"), 110), 36, 10, rgb("#b9c3cf"), rgb("#cfd3da"))
    hill(c.cr, ridge(seed_of("lav2"), 140), 42, 5, rgb("#a9b89a"), rgb("#b9c3a4"))
    r = rng("lavender")
    y = 45.0
    while y < H + 10:
        s = 1 + (y - 45) / 16
        tone = mix(rgb("#b6a3d3"), rgb("#7d63ad"), min(1, (y - 45) / 60))
        for i in range(int(W / (2.6 * s))):
            x, t, jump = (i + r.random()) * 2.6 * s, r.random(), r.normal() * s * .5

            def tuft(cr):
                cr.save()
                cr.translate(x, y + jump)
                cr.scale(1, 2.2)
                cr.arc(0, 0, s * .9, 0, 7)
                cr.restore()
                cr.set_source_rgb(*mix(tone, rgb("#d9cdee"), t * .6))
                cr.fill()
            c.wrapped(tuft)
        c.cr.set_source_rgba(*rgb("#6f7f5a"), .25)
        c.cr.rectangle(0, y + s * 2, W, s * .9)
        c.cr.fill()
        y += 3.4 * s
    return half(c)


def wheat():
    c = start(sky((0, rgb("#f7ecd0")), (1, rgb("#e6c983"))))
    r = rng("wheat")
    for k in range(150):
        x, top, lean = r.random() * W, 12 + r.random() * 55, r.normal() * 16
        tone = mix(mix(rgb("#c99b45"), rgb("#e3bf6c"), r.random()), rgb("#f0dba6"), .55 * (1 - k / 150))

        def ear(cr):
            cr.set_source_rgb(*tone)
            cr.set_line_width(1.1)
            cr.move_to(x, H + 4)
            cr.curve_to(x, 70, x + lean * .4, top + 30, x + lean, top)
            cr.stroke()
            for i in range(8):
                t = i / 8
                px, py = x + lean * (1 - t * .28), top + t * 26
                for side in (-1, 1):
                    leaf(cr, px, py, 8, 3.4, -math.pi / 2 + side * .55 + lean * .01)
                    cr.fill()
            for i in (-1, 0, 1):
                cr.set_line_width(.5)
                cr.move_to(x + lean, top)
                cr.line_to(x + lean + i * 5 + lean * .2, top - 13)
                cr.stroke()
        c.wrapped(ear)
    return half(c)


def sunset():
    out = sky((0, rgb("#5f6fa3")), (.45, rgb("#d99a94")), (.8, rgb("#f4c58d")), (1, rgb("#f9dfa8")))
    y = grid()[1]
    n = cloud(H, W, seed_of("sunset"), 20, 4, .12)
    veil = np.clip(n - .3, 0, 1.4) * .5
    light = ramp(y / H, [(0, rgb("#b9a3bd")), (.5, rgb("#f3c3ac")), (1, rgb("#fff0cf"))])
    return out * (1 - veil[..., None]) + light * veil[..., None]


def bokeh():
    c = start(sky((0, rgb("#2b1f2c")), (1, rgb("#4a2f33"))))
    r = rng("bokeh")
    tones = [rgb(t) for t in ("#f2b35e", "#e58b54", "#f6d48a", "#c96a6a", "#9a86c9")]
    for _ in range(90):
        x, y, s, a = r.random() * W, r.random() * H, 6 + r.random() ** 2 * 22, .06 + r.random() * .16
        tone = tones[int(r.integers(5))]

        def disc(cr):
            cr.arc(x, y, s, 0, 7)
            cr.set_source_rgba(*tone, a)
            cr.fill_preserve()
            cr.set_source_rgba(*tone, a * .8)
            cr.set_line_width(1)
            cr.stroke()
        c.wrapped(disc)
    return half(c)


def bamboo():
    c = start(sky((0, rgb("#e8efd6")), (1, rgb("#d3e0b8"))))
    r = rng("bamboo")
    for layer in range(3):
        count = (26, 20, 13)[layer]
        for i in range(count):
            x = (i + .8 * r.random()) * W / count
            w = (5, 8, 12)[layer] * (.8 + .4 * r.random())
            tone = (rgb("#c3d49f"), rgb("#a5bf7b"), rgb("#86a85c"))[layer]
            shift = r.random() * 40

            def stalk(cr):
                shade(cr, x, 0, x + w, 0, (0, darker(tone, .12)), (.35, lighter(tone, .3)), (1, darker(tone, .2)))
                cr.rectangle(x, -2, w, H + 4)
                cr.fill()
                for k in range(4):
                    y = k * 40 - 20 + shift
                    cr.rectangle(x - .8, y, w + 1.6, 1.6)
                    cr.set_source_rgba(*darker(tone, .35), .7)
                    cr.fill()
                    if layer < 2 and k % 2:
                        for a in (.5, 2.5, .15):
                            leaf(cr, x + w / 2, y, 24, 5, a)
                            cr.set_source_rgba(*darker(tone, .1), .8)
                            cr.fill()
            c.wrapped(stalk)
    return half(c)
