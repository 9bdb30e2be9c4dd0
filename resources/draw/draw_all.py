#!/usr/bin/env python3
"""Draws every delivered picture: the shop's fixed pictures and banners, the sample's products, logo and leaflets.

    draw_all.py [assets] [themes] [logo] [documents] [pictures] [--only KEY ...] [--jobs N]

Without a name everything is drawn; the product pictures take about an hour on two processors. The results are
kept in the tree beside resources/draw, so that a build needs none of this. The same scripts give the same bytes.

Needs the Debian packages python3-cairo, python3-pil, python3-numpy and fonts-dejavu-core.
"""
import argparse
import io
import multiprocessing
import os
import sys
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
sys.dont_write_bytecode = True

from PIL import Image     # noqa: E402  (the path above comes first)

import assets             # noqa: E402
import documents          # noqa: E402
import logo               # noqa: E402
import stock              # noqa: E402
import themes             # noqa: E402
import views              # noqa: E402
from canvas import image  # noqa: E402
from exposure import Picture  # noqa: E402

IMG, SAMPLE = HERE.parent / "img", HERE.parent / "sample"
LIMIT = 35000       # a product picture stays below this, or a page of thumbnails grows slow


def save(picture, path, quality=82):
    """Writes a JPEG, with a lower quality where fine texture would make it too large."""
    while True:
        out = io.BytesIO()
        picture.save(out, "JPEG", quality=quality, optimize=True, subsampling=2 if quality < 82 else 0)
        if out.tell() <= LIMIT or quality <= 60:
            break
        quality -= 4
    path.write_bytes(out.getvalue())
    return out.tell()


def photograph(job):
    product, index, folder = job
    started = time.time()
    group, view = views.shot(product, index)
    picture = image(Picture(group, view).develop())
    path = folder / f"{product.key}-{index + 1}.jpg"
    size = save(picture, path)
    if index == 0 and product.small:
        save(picture.resize((180, 180), Image.Resampling.LANCZOS), folder / f"{product.key}-small.jpg", 86)
    return path.name, size, time.time() - started


def pictures(only, jobs):
    folder = SAMPLE / "pictures"
    folder.mkdir(parents=True, exist_ok=True)
    todo = [(p, i, folder) for p in stock.read(SAMPLE / "products.tsv") for i in range(p.pictures)
            if not only or p.key in only or p.kind in only]
    unknown = sorted({p.kind for p, _, _ in todo} - set(views.BUILD))
    if unknown:
        sys.exit(f"no drawing for: {', '.join(unknown)}")
    with multiprocessing.Pool(jobs) as pool:
        for n, (name, size, took) in enumerate(pool.imap_unordered(photograph, todo, chunksize=1), 1):
            print(f"{n}/{len(todo)} {name} {size // 1000} kB {took:.0f} s", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    names = ("assets", "themes", "logo", "documents", "pictures")
    parser.add_argument("what", nargs="*", choices=names + ((),), default=(), metavar="NAME")
    parser.add_argument("--only", nargs="*", default=[], help="keys or kinds of the products to draw")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    args = parser.parse_args()
    what = args.what or names
    IMG.mkdir(parents=True, exist_ok=True)
    if "assets" in what:
        print("img:", *assets.draw(IMG))
    if "themes" in what:
        print("img:", *themes.draw(IMG))
    if "logo" in what:
        (SAMPLE / "pictures").mkdir(parents=True, exist_ok=True)
        logo.draw(SAMPLE / "pictures" / "logo.gif")
    if "documents" in what:
        (SAMPLE / "documents").mkdir(parents=True, exist_ok=True)
        print("documents:", *documents.draw(SAMPLE / "documents.tsv", SAMPLE / "documents"))
    if "pictures" in what:
        pictures(set(args.only), args.jobs)


if __name__ == "__main__":
    main()
