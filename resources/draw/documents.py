"""Leaflets that the sample shop encloses with its products, one A4 page each, from documents.tsv.

Needs the Debian packages python3-cairo, python3-numpy and fonts-dejavu-core.
"""
import csv
import math

import cairo

from canvas import linden_leaf, linden_veins, mix, rgb, rounded, seed_of

WIDTH, HEIGHT = 595.28, 841.89
GREEN, INK, PALE = rgb("#4f7434"), rgb("#2b2f28"), rgb("#eef3e6")
SHOP = "La Remise aux Tilleuls"


def face(cr, size, bold=False, italic=False, family="DejaVu Sans"):
    cr.select_font_face(family, cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
                        cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
    cr.set_font_size(size)


def broken(cr, text, width):
    """The lines of a paragraph in the current face."""
    lines, line = [], ""
    for word in text.split(" "):
        longer = f"{line} {word}" if line else word
        if line and cr.text_extents(longer).x_advance > width:
            lines.append(line)
            line = word
        else:
            line = longer
    return lines + [line]


def branch(cr, x, y, size, seed):
    """A small linden branch in the corner of the page, a little different on each leaflet."""
    cr.save()
    cr.translate(x, y)
    cr.rotate(-.15 + .3 * (seed % 100) / 100)
    cr.set_source_rgb(*mix(GREEN, (1, 1, 1), .35))
    cr.set_line_width(1.6)
    cr.move_to(0, 0)
    cr.curve_to(-size * .4, size * .15, -size * .8, size * .1, -size * 1.3, size * .4)
    cr.stroke()
    for k in range(5):
        t = .15 + .2 * k
        px, py = -size * 1.3 * t, size * .4 * t * t + size * .06
        tone = mix(GREEN, (1, 1, 1), .30 + .12 * ((k + seed) % 3))
        angle = math.pi - .9 if k % 2 else math.pi + .7
        linden_leaf(cr, px, py, size * .42, angle)
        cr.set_source_rgb(*tone)
        cr.fill()
        linden_veins(cr, px, py, size * .42, angle)
        cr.set_source_rgba(1, 1, 1, .8)
        cr.set_line_width(.7)
        cr.stroke()
    cr.restore()


def leaflet(path, title, lines):
    surface = cairo.PDFSurface(str(path), WIDTH, HEIGHT)
    # a fixed date keeps the file the same from one run to the next
    surface.set_metadata(cairo.PDFMetadata.CREATE_DATE, "2026-01-01T00:00:00Z")
    surface.set_metadata(cairo.PDFMetadata.TITLE, title)
    surface.set_metadata(cairo.PDFMetadata.AUTHOR, SHOP)
    page(cairo.Context(surface), title, lines)
    surface.finish()


def page(cr, title, lines):
    left, right = 62, WIDTH - 62
    cr.rectangle(0, 0, WIDTH, 132)
    cr.set_source_rgb(*PALE)
    cr.fill()
    cr.rectangle(0, 132, WIDTH, 2.5)
    cr.set_source_rgb(*GREEN)
    cr.fill()
    branch(cr, WIDTH - 8, 22, 92, seed_of(title))
    face(cr, 10.5, italic=True, family="DejaVu Serif")
    cr.set_source_rgb(*GREEN)
    cr.move_to(left, 48)
    cr.show_text(SHOP)
    face(cr, 24, bold=True, family="DejaVu Serif")
    cr.set_source_rgb(*INK)
    y = 86
    for line in broken(cr, title, right - left - 90):
        cr.move_to(left, y)
        cr.show_text(line)
        y += 29
    y = 182
    for number, paragraph in enumerate(lines, 1):
        cr.new_path()
        cr.arc(left + 11, y - 4, 12, 0, 7)
        cr.set_source_rgb(*GREEN)
        cr.fill()
        face(cr, 11, bold=True)
        e = cr.text_extents(str(number))
        cr.move_to(left + 11 - e.width / 2 - e.x_bearing, y)
        cr.set_source_rgb(1, 1, 1)
        cr.show_text(str(number))
        face(cr, 12.5)
        cr.set_source_rgb(*INK)
        for line in broken(cr, paragraph, right - left - 40):
            cr.move_to(left + 38, y)
            cr.show_text(line)
            y += 19
        y += 17
    y += 6
    rounded(cr, left, y, right - left, 58, 6)
    cr.set_source_rgb(*PALE)
    cr.fill()
    face(cr, 10.5)
    cr.set_source_rgb(*INK)
    cr.move_to(left + 18, y + 25)
    cr.show_text("Une question ? Écrivez-nous depuis la page « Contact » de la boutique :")
    cr.move_to(left + 18, y + 42)
    cr.show_text("nous répondons du mardi au samedi.")
    face(cr, 8.5)
    cr.set_source_rgb(*mix(INK, (1, 1, 1), .45))
    cr.move_to(left, HEIGHT - 40)
    cr.show_text(f"{SHOP}, fiche conseil. Conservez-la avec le produit.")
    cr.show_page()


def draw(table, folder):
    names = []
    with open(table, encoding="utf-8", newline="") as f:
        for row in csv.reader(f, delimiter="\t", quoting=csv.QUOTE_NONE):
            if len(row) < 3 or not row[0].strip().endswith(".pdf"):
                continue
            name = row[0].strip()
            leaflet(folder / name, row[1].strip(), [s.strip() for s in row[2].split(" | ") if s.strip()])
            names.append(name)
    return names
