"""How each kind of product is shown: the plain picture first, then another side of it, then a scene.

Needs the Debian packages python3-cairo and python3-numpy.
"""
import importlib

from canvas import rgb
from labels import paper_label
from props import beans, carton, herbs, lemon, linen_top, stone_top, tabletop
from studio import View

ROOMS = ("kitchen", "table", "tea", "home", "lamps", "garden", "paper")
BUILD = {}
for room in ROOMS:
    BUILD.update(importlib.import_module("products_" + room).KINDS)

DEFAULT = [("front", dict(pitch=18)), ("front", dict(pitch=42)), ("front", dict(pitch=14, scene="oak"))]
OAK = dict(scene="oak")
EVENING = dict(scene="evening")

# kind or product key: what is shown in picture 1, 2 and 3
SHOTS = {
    "knife": [("front", dict(pitch=62, yaw=32, fill=.82)), ("board", dict(pitch=38, yaw=24, fill=.86))],
    "board": [("front", dict(pitch=40, yaw=30)), ("used", dict(pitch=34, yaw=-22))],
    "knifeblock": [("front", dict(pitch=16)), ("front", dict(pitch=44, yaw=24, zoom=1.5, at=(-.05, .45))),
                   ("front", dict(pitch=12, yaw=8, prop="lemon", **OAK))],
    "casserole": [("front", dict(pitch=20)), ("open", dict(pitch=40)), ("front", dict(pitch=16, prop="herbs", **OAK))],
    "saucepan": [("front", dict(pitch=28)), ("lid", dict(pitch=16, yaw=62))],
    "pan": [("front", dict(pitch=36)), ("used", dict(pitch=52, yaw=-14))],
    "pot": [("front", dict(pitch=18)), ("open", dict(pitch=34))],
    "spatula": [("front", dict(pitch=64, yaw=34, fill=.84))],
    "whisk": [("front", dict(pitch=26, yaw=22, fill=.86)), ("front", dict(pitch=30, yaw=-48, zoom=1.75,
        at=(.40, -.05)))],
    "ladle": [("front", dict(pitch=22, fill=.84)), ("front", dict(pitch=34, yaw=-28, zoom=1.75, at=(-.42, -.10)))],
    "rollingpin": [("front", dict(pitch=34, yaw=-8, fill=.84))],
    "colander": [("front", dict(pitch=22)), ("used", dict(pitch=38, yaw=12))],
    "ovendish": [("front", dict(pitch=34)), ("used", dict(pitch=32, yaw=34, scene="linen"))],
    "mug": [("front", dict(pitch=20)), ("full", dict(pitch=50, yaw=18)),
            ("scene", dict(pitch=16, yaw=6, prop="beans", **OAK))],
    "mug-email-blanc": [("front", dict(pitch=20)), ("full", dict(pitch=18, yaw=70, pair=(1.55, -.55, -34),
        scene="linen"))],
    "cup": [("front", dict(pitch=26)), ("scene", dict(pitch=30, prop="beans", scene="stone"))],
    "bowl": [("front", dict(pitch=24)), ("full", dict(pitch=48, scene="linen"))],
    "bol-nouilles-noir": [("front", dict(pitch=26))],
    "plate": [("front", dict(pitch=44)), ("scene", dict(pitch=46, **OAK))],
    "assiette-creuse-lin": [("front", dict(pitch=36)), ("stack", dict(pitch=18))],
    "assiette-dessert-ocre": [("front", dict(pitch=50)), ("stack", dict(pitch=20))],
    "platter": [("front", dict(pitch=42)), ("front", dict(pitch=30, yaw=30, zoom=1.9, at=(.38, .05))),
                ("scene", dict(pitch=40, scene="linen"))],
    "plateau-ardoise": [("front", dict(pitch=34, yaw=20))],
    "glass": [("front", dict(pitch=22)), ("scene", dict(pitch=16, scene="stone"))],
    "wineglass": [("front", dict(pitch=12)), ("scene", dict(pitch=10, **OAK))],
    "flute": [("front", dict(pitch=12))],
    "carafe": [("front", dict(pitch=12)), ("scene", dict(pitch=14, prop="lemon", scene="stone"))],
    "carafe-decanter": [("front", dict(pitch=10))],
    "teapot": [("front", dict(pitch=18)), ("front", dict(pitch=24, yaw=196, box=("Théière", "fonte, 0,8 litre"))),
               ("scene", dict(pitch=18, **OAK))],
    "theiere-gres-celadon": [("front", dict(pitch=18)), ("scene", dict(pitch=24, scene="linen"))],
    "theiere-porcelaine-blanche": [("front", dict(pitch=18)), ("scene", dict(pitch=16, **OAK))],
    "theiere-emaillee-jaune": [("front", dict(pitch=16)), ("front", dict(pitch=20, yaw=200,
        box=("Théière émaillée", "1,2 litre")))],
    "glassteapot": [("front", dict(pitch=16)), ("scene", dict(pitch=18, **OAK))],
    "frenchpress": [("front", dict(pitch=14)), ("front", dict(pitch=14, yaw=16, prop="beans", **OAK))],
    "cafetiere-piston-inox": [("front", dict(pitch=14)), ("front", dict(pitch=18, yaw=158,
        box=("Cafetière à piston", "isotherme, inox, 1 litre")))],
    "mokapot": [("front", dict(pitch=14)), ("scene", dict(pitch=18, **OAK)),
                ("front", dict(pitch=16, yaw=190, box=("Cafetière italienne", "6 tasses")))],
    "cafetiere-italienne-verte": [("front", dict(pitch=14)), ("scene", dict(pitch=22, scene="stone"))],
    "dripper": [("front", dict(pitch=24)), ("used", dict(pitch=22, prop="beans", **OAK))],
    "tin": [("front", dict(pitch=16)), ("scene", dict(pitch=22, scene="stone"))],
    "boite-biscuits-tilleul": [("front", dict(pitch=24)), ("open", dict(pitch=40))],
    "grinder": [("front", dict(pitch=18)), ("front", dict(pitch=26, yaw=20, zoom=1.8, at=(.05, .38))),
                ("scene", dict(pitch=20, **OAK))],
    "peppermill": [("front", dict(pitch=14)), ("scene", dict(pitch=22, **OAK))],
    "jar": [("front", dict(pitch=16)), ("scene", dict(pitch=14, scene="stone"))],
    "candle": [("front", dict(pitch=20)), ("lid", dict(pitch=18, box=("Feuille de figuier", "cire végétale, 180 g")))],
    "bougie-ambre": [("front", dict(pitch=20)), ("scene", dict(pitch=16, **EVENING))],
    "tapercandles": [("front", dict(pitch=10))],
    "candleglass": [("front", dict(pitch=20)), ("scene", dict(pitch=14, **EVENING))],
    "candlestick": [("front", dict(pitch=18)), ("front", dict(pitch=14, yaw=30, **EVENING))],
    "cushion": [("front", dict(pitch=10)), ("front", dict(pitch=14, yaw=-14, zoom=2.0, at=(.36, .34)))],
    "coussin-velours-vert": [("front", dict(pitch=10)), ("flat", dict(pitch=44))],
    "coussin-rayures-marine": [("front", dict(pitch=10)), ("pair", dict(pitch=12, scene="linen"))],
    "plaid": [("front", dict(pitch=28)), ("rolled", dict(pitch=22)), ("scene", dict(pitch=26, **OAK))],
    "plaid-coton-nid-abeille": [("front", dict(pitch=30)), ("front", dict(pitch=40, yaw=10, zoom=2.1, at=(-.12, .10)))],
    "tablelamp": [("front", dict(pitch=8)), ("scene", dict(pitch=10, **EVENING))],
    "desklamp": [("front", dict(pitch=10)), ("front", dict(pitch=16, yaw=-40, zoom=1.9, at=(.25, .50))),
                 ("scene", dict(pitch=14, **OAK))],
    "floorlamp": [("front", dict(pitch=8, fill=.86)), ("scene", dict(pitch=12, scene="floor", fill=.88))],
    "pendantlamp": [("front", dict(pitch=6, hang=True)), ("front", dict(pitch=-16, hang=True, scene="dusk"))],
    "lantern": [("front", dict(pitch=12)), ("front", dict(pitch=12, yaw=62, **EVENING))],
    "flowerpot": [("front", dict(pitch=20)), ("planted", dict(pitch=14, scene="terrace"))],
    "pot-emaille-bleu": [("front", dict(pitch=18)), ("empty", dict(pitch=30, yaw=120))],
    "planter": [("front", dict(pitch=22)), ("empty", dict(pitch=30, yaw=40))],
    "basketpot": [("front", dict(pitch=18))],
    "hangingpot": [("front", dict(pitch=8, hang=True, fill=.84)), ("empty",
        dict(pitch=26, yaw=40, hang=True, zoom=1.7, at=(0, -.55)))],
    "trowel": [("front", dict(pitch=56, yaw=-42, fill=.86)), ("front", dict(pitch=40, yaw=64, zoom=1.8,
        at=(-.42, .0)))],
    "handrake": [("front", dict(pitch=48, yaw=-48, fill=.84)), ("front",
        dict(pitch=34, yaw=58, zoom=1.8, at=(-.40, -.02)))],
    "secateur": [("front", dict(pitch=62, yaw=32, fill=.84)), ("front",
        dict(pitch=50, yaw=-30, zoom=1.9, at=(.36, -.18))), ("scene", dict(pitch=52, yaw=12, scene="terrace"))],
    "wateringcan": [("front", dict(pitch=16)), ("scene", dict(pitch=16, scene="terrace"))],
    "sprayer": [("front", dict(pitch=14)), ("scene", dict(pitch=14, **OAK))],
    "notebook": [("front", dict(pitch=50)), ("open", dict(pitch=46, **OAK))],
    "spiralnotebook": [("front", dict(pitch=50)), ("stack", dict(pitch=40))],
    "pen": [("front", dict(pitch=50, fill=.84)), ("case", dict(pitch=40)),
            ("scene", dict(pitch=50, yaw=20, zoom=1.2, **OAK))],
    "pencilset": [("front", dict(pitch=52)), ("used", dict(pitch=16))],
    "crayons-couleur-lot24": [("front", dict(pitch=50, fill=.84)), ("fan", dict(pitch=62, fill=.88))],
}

# what the ground and the room look like: table top, wall colours above and below, light
SCENES = {
    "oak": lambda: dict(table=tabletop(), wall=("#e4ddd2", "#b9ab98"), ground="#d8c4a8"),
    "linen": lambda: dict(table=linen_top(), wall=("#eeebe4", "#d5cec2"), ground="#e6dfd2"),
    "stone": lambda: dict(table=stone_top(), wall=("#dfe4e4", "#b7bdbd"), ground="#cfccc6"),
    "floor": lambda: dict(table=tabletop(rgb("#c7a070"), "parquet"), wall=("#e9e4da", "#d6cdbf"), ground="#d8c4a8"),
    "terrace": lambda: dict(table=stone_top(rgb("#b9b0a2"), "terrace"), wall=("#cfdcc4", "#93a781"), ground="#c4bcae"),
    "evening": lambda: dict(table=tabletop(rgb("#7d5436"), "dark"), wall=("#5a4a44", "#35291f"), ground="#8a6a4a",
                            light="#d9d2dc", dim=.42),
    "dusk": lambda: dict(ground="#8f8478", wall=("#8f8478", "#6f6458"), light="#e6dfd6", dim=.60),
}


def beside(name, p):
    """A small thing next to the product, in the places that the product's own width leaves free."""
    if name == "lemon":
        return lemon(.27).placed((1.25, 0, .75), (0, 20, 0)).join(lemon(.25, True).placed((.72, 0, 1.05), (0, 40, 0)))
    if name == "herbs":
        return herbs(6, p.key).placed((1.15, 0, 1.15), (0, -30, 0), 1.2)
    return beans(40, p.key, .55).placed((.85, 0, .95))


def shot(p, index):
    """The group and the view for picture `index`, counted from 0."""
    plan = SHOTS.get(p.key) or SHOTS.get(p.kind) or DEFAULT
    how, opts = plan[min(index, len(plan) - 1)]
    opts = dict(opts)
    g = BUILD[p.kind](p, how)
    yaw = opts.pop("yaw", 0)
    if yaw:
        g = g.placed((0, 0, 0), (0, yaw, 0))
    pair = opts.pop("pair", None)
    if pair:
        x, z, turn = pair
        g = g.join(BUILD[p.kind](p).placed((x, 0, z), (0, turn, 0)))
    box = opts.pop("box", None)
    if box:
        top = max(float(i.centre[1] + i.radius * .7) for i in g.items)
        side = min(float(i.centre[0] - i.radius) for i in g.items)
        h = min(top * .82, 1.7)
        label = paper_label([box[0], box[1]])
        g = g.join(carton(1.5, h, 1.3, label).placed((side * .55 - .75, 0, -1.25), (0, 16, 0)))
    prop = opts.pop("prop", None)
    if prop:
        g = g.join(beside(prop, p))
    if opts.pop("hang", False) and "fill" not in opts:
        opts["fill"] = .70
    scene = opts.pop("scene", None)
    if scene:
        opts = {**SCENES[scene](), **opts}
        opts.setdefault("fill", .72)
    return g, View(**opts)
