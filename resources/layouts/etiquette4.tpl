{
  "title": "Avery 3657, A4 – 40 × 48,5 × 25,4 mm",
  "page": { "width": 2100, "height": 2970, "margins": [40, 40, 40, 40] },
  "fields": { "Ean13": "", "Nom": "", "RefArticle": "", "PrixTTC": "" },
  "cells": {
    "first": [80, 215, 565, 469],
    "columns": 4,
    "rows": 10,
    "gapX": 0,
    "gapY": 0,
    "objects": [
      { "type": "text", "box": [25, 15, 460, 75], "text": "$(Nom)", "size": 7.5, "smallest": 5, "bold": true, "fit": "shrink" },
      { "type": "ean13", "box": [25, 82, 430, 188], "text": "$(Ean13)", "align": "left" },
      { "type": "text", "box": [25, 196, 245, 238], "text": "$(RefArticle)", "size": 6.5, "smallest": 5, "valign": "bottom", "fit": "shrink" },
      { "type": "text", "box": [250, 192, 460, 240], "text": "$(PrixTTC)", "when": "[0-9]", "size": 10, "smallest": 6, "bold": true, "align": "right", "valign": "bottom", "fit": "shrink" }
    ]
  }
}
