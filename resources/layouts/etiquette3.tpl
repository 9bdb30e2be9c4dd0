{
  "title": "Avery L7160, A4 – 21 × 63,5 × 38,1 mm",
  "page": { "width": 2100, "height": 2970, "margins": [40, 40, 40, 40] },
  "fields": { "Ean13": "", "Nom": "", "PrixTTC": "" },
  "cells": {
    "first": [72.5, 151.5, 707.5, 532.5],
    "columns": 3,
    "rows": 7,
    "gapX": 25,
    "gapY": 0,
    "objects": [
      { "type": "text", "box": [35, 30, 600, 115], "text": "$(Nom)", "size": 9, "smallest": 6, "bold": true, "fit": "shrink" },
      { "type": "ean13", "box": [35, 130, 455, 270], "text": "$(Ean13)", "align": "left" },
      { "type": "text", "box": [35, 282, 600, 352], "text": "$(PrixTTC)", "when": "[0-9]", "size": 16, "smallest": 8, "bold": true, "align": "right", "valign": "bottom", "fit": "shrink" }
    ]
  }
}
