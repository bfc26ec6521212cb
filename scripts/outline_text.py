#!/usr/bin/python3
"""Prints the outlines of texts as SVG paths, for the numerals of the style pictures.

    outline_text.py FONT HEIGHT TEXT...

Each TEXT becomes one <path>, named n1, n2 and so on, with y downwards. The paths share one scale:
HEIGHT is the height of the bounding box of all texts, whose vertical centre is y = 0, so that a
row of texts has one baseline. The ink of each text is centred on x = 0.
Needs python3-fonttools.
"""

import sys

from fontTools.misc.transform import Transform
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont


def draw(font, text, pen, transform):
    """Draws the glyphs of text side by side, in the order of its characters, without shaping."""
    glyphs, names, x = font.getGlyphSet(), font.getBestCmap(), 0
    for character in text:
        glyph = glyphs[names[ord(character)]]
        glyph.draw(TransformPen(pen, transform.translate(x, 0)))
        x += glyph.width


def bounds(font, text):
    pen = BoundsPen(font.getGlyphSet())
    draw(font, text, pen, Transform())
    return pen.bounds


def one_decimal(number):
    text = f"{number:.1f}"
    text = text[:-2] if text.endswith(".0") else text
    return "0" if text == "-0" else text


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    font, height, texts = TTFont(sys.argv[1]), float(sys.argv[2]), sys.argv[3:]
    boxes = [bounds(font, text) for text in texts]
    bottom, top = min(box[1] for box in boxes), max(box[3] for box in boxes)
    scale = height / (top - bottom)
    for number, (text, (left, _, right, _)) in enumerate(zip(texts, boxes), 1):
        to_picture = Transform(scale, 0, 0, -scale, -scale * (left + right) / 2,
                               scale * (bottom + top) / 2)
        pen = SVGPathPen(None, ntos=one_decimal)
        draw(font, text, pen, to_picture)
        print(f'<path id="n{number}" d="{pen.getCommands()}"/>')


main()
