{
  "title": "A4 – 14 × 80 × 30 mm",
  "page": { "width": 2100, "height": 2970, "margins": [40, 40, 40, 40] },
  "fields": { "Ean13": "", "Nom": "", "RefArticle": "", "PrixTTC": "" },
  "cells": {
    "first": [200, 200, 1000, 500],
    "columns": 2,
    "rows": 7,
    "gapX": 100,
    "gapY": 30,
    "objects": [
      { "type": "box", "box": [0, 0, 800, 300], "pen": 1.5, "colour": "#808080" },
      { "type": "text", "box": [30, 10, 790, 50], "text": "$(Nom)", "size": 9.5, "smallest": 6, "bold": true, "fit": "shrink" },
      { "type": "text", "box": [30, 70, 510, 120], "text": "$(RefArticle)", "size": 9, "smallest": 6, "fit": "shrink" },
      { "type": "ean13", "box": [30, 140, 490, 270], "text": "$(Ean13)" },
      { "type": "text", "box": [540, 140, 770, 220], "text": "$(PrixTTC)", "when": "[0-9]", "size": 16, "smallest": 8, "bold": true, "align": "right", "valign": "middle", "fit": "shrink" }
    ]
  }
}
