{
  "title": "Avery L7163, A4 – 14 × 99,1 × 38,1 mm",
  "page": { "width": 2100, "height": 2970, "margins": [40, 40, 40, 40] },
  "fields": { "Ean13": "", "Nom": "", "dDescription": "", "RefArticle": "", "PrixTTC": "" },
  "cells": {
    "first": [46.5, 151.5, 1037.5, 532.5],
    "columns": 2,
    "rows": 7,
    "gapX": 25,
    "gapY": 0,
    "objects": [
      { "type": "text", "box": [45, 30, 946, 85], "text": "$(Nom)", "size": 11, "smallest": 6, "bold": true, "fit": "shrink" },
      { "type": "text", "box": [45, 88, 946, 198], "text": "$(dDescription)", "size": 8, "smallest": 6, "html": true, "fit": "shrink" },
      { "type": "ean13", "box": [45, 212, 485, 352], "text": "$(Ean13)", "align": "left" },
      { "type": "text", "box": [520, 212, 946, 252], "text": "$(RefArticle)", "size": 8, "smallest": 6, "align": "right", "fit": "shrink", "colour": "#404040" },
      { "type": "text", "box": [520, 262, 946, 352], "text": "$(PrixTTC)", "when": "[0-9]", "size": 20, "smallest": 9, "bold": true, "align": "right", "valign": "bottom", "fit": "shrink" }
    ]
  }
}
