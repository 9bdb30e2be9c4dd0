{
  "title": "A4",
  "page": { "width": 2100, "height": 2970, "margins": [100, 100, 100, 100] },
  "fields": {
    "Nom": "", "dDescription": "", "Ean13": "", "RefArticle": "", "PrixTTC": "",
    "Marque": "", "Model": "", "copyright": "", "SSCategorie": ""
  },
  "objects": [
    { "type": "text", "box": [203, 160, 1904, 205], "text": "$(SSCategorie)", "when": "[^ /]", "size": 9, "smallest": 6, "colour": "#5a6672", "fit": "shrink" },
    { "type": "line", "box": [203, 215, 1904, 215], "pen": 6, "colour": "#17406f" },
    { "type": "text", "box": [203, 240, 1904, 400], "text": "$(Nom)", "size": 24, "smallest": 11, "bold": true, "valign": "middle", "fit": "shrink" },
    { "type": "text", "box": [203, 415, 1220, 475], "text": "$(Marque) $(Model)", "when": "[^ ]", "size": 13, "smallest": 7, "fit": "shrink" },
    { "type": "text", "box": [203, 482, 1220, 530], "text": "Ref. $(RefArticle)", "when": "[.] +[^ ]", "size": 10, "smallest": 6, "colour": "#5a6672", "fit": "shrink" },
    { "type": "text", "box": [1246, 415, 1904, 530], "text": "$(PrixTTC)", "when": "[0-9]", "size": 26, "smallest": 10, "bold": true, "colour": "#17406f", "align": "right", "valign": "middle", "fit": "shrink" },
    { "type": "line", "box": [203, 550, 1904, 550], "pen": 2, "colour": "#b0b8c0" },
    { "type": "text", "box": [203, 590, 1190, 1480], "text": "$(dDescription)", "size": 11, "smallest": 6, "html": true, "fit": "shrink" },
    { "type": "ean13", "box": [1246, 585, 1857, 745], "text": "$(Ean13)" },
    { "type": "line", "box": [203, 2790, 1904, 2790], "pen": 2, "colour": "#b0b8c0" },
    { "type": "text", "box": [203, 2805, 1904, 2850], "text": "$(copyright)", "size": 8, "smallest": 6, "colour": "#5a6672", "align": "center", "fit": "shrink" }
  ]
}
