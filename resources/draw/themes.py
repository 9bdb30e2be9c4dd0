"""The thirty banner grounds of the shop, topbkg1.gif to topbkg30.gif.

Every picture meets itself at its left and right edge, so that it covers a page of any width. The upper 83 rows
are what a page shows as a rule; the rows below serve narrow screens, where the banner grows. A merchant's logo
and a search field lie on it: contrasts stay low and nothing stands out alone.

Needs the Debian packages python3-cairo, python3-pil and python3-numpy.
"""
import themes_matter as matter
import themes_nature as nature
from canvas import save_gif

THEMES = [nature.sea, nature.linden, matter.slate, matter.linen, nature.forest, matter.brick, nature.night,
          nature.autumn, matter.tiles, nature.waves, matter.paper, matter.wood, nature.meadow, nature.dunes,
          nature.mountains, nature.snow, matter.parquet, nature.lavender, matter.marble, matter.tartan, matter.dots,
          matter.blueprint, matter.knit, nature.wheat, nature.sunset, matter.copper, nature.bokeh, nature.bamboo,
          matter.terrazzo, matter.chalkboard]


def draw(folder, numbers=None):
    names = []
    for number, theme in enumerate(THEMES, 1):
        if numbers and number not in numbers:
            continue
        names.append(f"topbkg{number}.gif")
        save_gif(folder / names[-1], theme(), 48)
    return names
