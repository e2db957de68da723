#!/usr/bin/env python3
"""Writes the vector sources of the game's pictures (dice, logo, buttons, pointer, icon) as SVG.

Usage: make_pictures.py OUT_DIR

Letters are the outlines of DejaVu fonts, so the pictures need no font where they are drawn, and
only what Qt SVG draws is used (paths, rounded rectangles, gradients, opacity: no clip paths,
masks or filters). The same fonts give the same bytes on every run. Coordinates follow the pixel
grid of the 1:1 pictures: a pixel's centre lies at .5.
"""

import math
import os
import sys

from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

FONT_DIR = "/usr/share/fonts/truetype/dejavu"
GREEN = "#004000"  # the board's background
INK = "#2a1808"  # the letters: very dark brown, almost black


def num(v):
    """A coordinate in few bytes and the same on every run."""
    text = f"{v:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


class Font:
    def __init__(self, file_name):
        self.font = TTFont(os.path.join(FONT_DIR, file_name))
        self.glyphs = self.font.getGlyphSet()
        self.cmap = self.font.getBestCmap()
        self.units = self.font["head"].unitsPerEm
        self.ascent = self.font["hhea"].ascent

    def glyph(self, char):
        return self.glyphs[self.cmap[ord(char)]]

    def bounds(self, char, size):
        pen = BoundsPen(self.glyphs)
        self.glyph(char).draw(pen)
        s = size / self.units
        x0, y0, x1, y1 = pen.bounds
        return x0 * s, -y1 * s, x1 * s, -y0 * s  # left, top, right, bottom below the baseline

    def path(self, char, size, x, y, stretch=1.0, left=0.0):
        """The outline of `char` at `size` px with its origin on the baseline at (x, y); widths
        are multiplied by `stretch` around the ink's `left` edge."""
        s = size / self.units
        pen = SVGPathPen(self.glyphs, ntos=num)
        self.glyph(char).draw(TransformPen(pen, (s * stretch, 0, 0, -s, x - left * (stretch - 1), y)))
        return pen.getCommands()

    def advance(self, char, size):
        return self.glyph(char).width * size / self.units

    def kerned_run(self, text, size, x, y, shift=lambda cx: 0.0):
        """One path per letter of `text`, each moved down by shift(centre of the letter)."""
        paths = []
        for char in text:
            left, _, right, _ = self.bounds(char, size)
            dy = shift(x + (left + right) / 2)
            paths.append(self.path(char, size, x, y + dy))
            x += self.advance(char, size)
        return " ".join(paths)


def svg(width, height, body, defs=""):
    defs = f"<defs>{defs}</defs>\n" if defs else ""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="0 0 {width} {height}">\n{defs}{body}</svg>\n'
    )


def write(out, name, text):
    with open(os.path.join(out, name), "w", encoding="ascii", newline="\n") as f:
        f.write(text)


# --- dice ---------------------------------------------------------------------------------------

SIZE = 64
CAP_PX = 52  # DejaVu Sans Bold at 52 px has capitals 38 px high
MAX_W = 46  # wider capitals (W, M) are narrowed to this width so they keep a margin

# Faces 1 to 4 of a letter: ivory, pale yellow, pale blue, pale pink; the blank die is ivory.
# Each has the top face's colour, its lighter centre, the side seen at the bevel, and the rim.
FACE = ["", "#fbf5e2", "#fcefb8", "#dbe7f6", "#f8dce4"]
CENTRE = ["", "#fffdf4", "#fff8d8", "#eef4fc", "#fdeef2"]
SIDE = ["", "#cdbf98", "#d4be6c", "#9fb3cf", "#cfa2b0"]
EDGE = ["", "#6f6244", "#75622a", "#4e6079", "#775060"]


def die_body(n):
    """A die without a letter: rounded body with a light upper-left and a shaded lower-right
    bevel, a slightly domed top face, a thin dark rim so neighbouring dice stay apart."""
    defs = (
        f'<linearGradient id="bevel" gradientUnits="userSpaceOnUse" x1="1" y1="1" x2="63" y2="63">'
        f'<stop offset="0" stop-color="#ffffff"/><stop offset="0.5" stop-color="{SIDE[n]}"/>'
        f'<stop offset="1" stop-color="{EDGE[n]}"/></linearGradient>'
        f'<radialGradient id="top" gradientUnits="userSpaceOnUse" cx="31" cy="31" r="36.77">'
        f'<stop offset="0" stop-color="{CENTRE[n]}"/><stop offset="1" stop-color="{FACE[n]}"/>'
        f"</radialGradient>"
    )
    body = (
        f'<rect width="64" height="64" fill="{GREEN}"/>\n'
        f'<rect x="1.5" y="1.5" width="61" height="61" rx="11" fill="url(#bevel)" '
        f'stroke="{EDGE[n]}"/>\n'
        f'<rect x="5.5" y="5.5" width="51" height="51" rx="9" fill="url(#top)"/>\n'
    )
    return defs, body


def letter(font, char):
    """The letter cut into the face: dark ink with a faint light rim below and to the right.
    Capitals are centred on the band of "H", so all share one baseline and only Q and J reach
    below it."""
    _, cap_top, _, _ = font.bounds("H", CAP_PX)
    baseline = SIZE / 2 - cap_top / 2
    left, _, right, _ = font.bounds(char, CAP_PX)
    width = right - left
    stretch = min(1.0, MAX_W / width)
    x = (SIZE - width * stretch) / 2 - left
    rim = font.path(char, CAP_PX, x + 1, baseline + 1, stretch, left)
    ink = font.path(char, CAP_PX, x, baseline, stretch, left)
    return (
        f'<path d="{rim}" fill="#ffffff" fill-opacity="0.55"/>\n'
        f'<path d="{ink}" fill="{INK}"/>\n'
    )


def make_dice(out, bold):
    for char in "ABCDEFGHIJKLMNOPQRSTUVWXYZ":
        cut = letter(bold, char)
        for n in range(1, 5):
            defs, body = die_body(n)
            write(out, f"zarMmg{char}{n}.svg", svg(SIZE, SIZE, body + cut, defs))
    # The blank die: the ivory die with a small engraved diamond in the middle, and no letter.
    defs, body = die_body(1)
    diamond = (
        '<path d="M32.5 25.5 40.5 33.5 32.5 41.5 24.5 33.5Z" fill="#ffffff" fill-opacity="0.7"/>\n'
        '<path d="M32.5 24.5 39.5 31.5 32.5 38.5 25.5 31.5Z" fill="#d9ccaa"/>\n'
        '<path d="M32.5 28.5 35.5 31.5 32.5 34.5 29.5 31.5Z" fill="#e9dfc4"/>\n'
    )
    write(out, "zarMolo.svg", svg(SIZE, SIZE, body + diamond, defs))


# --- logo and icon ------------------------------------------------------------------------------


def dice_grid(x0, y0):
    """A 3 x 3 grid of small dice with a word traced across it, its top-left die at (x0, y0)."""
    parts = []
    for r in range(3):
        for c in range(3):
            x, y = x0 + c * 12, y0 + r * 12
            colour = "#ffb020" if (r, c) in ((0, 0), (1, 1), (1, 2), (2, 2)) else "#f6efd8"
            parts.append(
                f'<rect x="{num(x + 1.5)}" y="{num(y + 1.5)}" width="10" height="10" rx="2" '
                f'fill="#062206"/>'
            )
            parts.append(
                f'<rect x="{num(x + 0.5)}" y="{num(y + 0.5)}" width="10" height="10" rx="2" '
                f'fill="{colour}"/>'
            )
    line = " ".join(
        f"{num(x0 + dx + 0.5)} {num(y0 + dy + 0.5)}" for dx, dy in ((5, 5), (17, 17), (29, 17), (29, 29))
    )
    parts.append(f'<path d="M{line}" fill="none" stroke="#c84000" stroke-width="2"/>')
    return "\n".join(parts) + "\n"


def make_logo(out, bold, serif_italic):
    """"Il Griglione" in warm yellow to orange with a dark brown outline and a shadow, on the
    board's green; "Il" in a serif italic so that its two strokes cannot be read as "ll", and at
    the top right the little grid of dice. A gentle wave makes the letters bob."""
    defs = (
        '<linearGradient id="warm" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="0" y2="84">'
        '<stop offset="0" stop-color="#fffa90"/><stop offset="0.446" stop-color="#ff7a00"/>'
        '<stop offset="0.4524" stop-color="#fffa90"/><stop offset="0.5476" stop-color="#fffa90"/>'
        '<stop offset="0.9226" stop-color="#ff5a00"/><stop offset="1" stop-color="#ff5a00"/>'
        "</linearGradient>"
    )

    def wave(cx):
        return 1.5 + 1.5 * math.sin(2 * math.pi * cx / 100)

    def title(font, size, x, top, text):
        baseline = top + font.ascent * size / font.units
        shadow = font.kerned_run(text, size, x + 2, baseline + 2, wave)
        letters = font.kerned_run(text, size, x, baseline, wave)
        return (
            f'<path d="{shadow}" fill="#000000" fill-opacity="0.6" stroke="#000000" '
            f'stroke-opacity="0.6" stroke-width="4" stroke-linejoin="round"/>\n'
            f'<path d="{letters}" fill="#3a1a00" stroke="#3a1a00" stroke-width="4" '
            f'stroke-linejoin="round"/>\n'
            f'<path d="{letters}" fill="url(#warm)"/>\n'
        )

    body = f'<rect width="160" height="84" fill="{GREEN}"/>\n' + dice_grid(119, 4)
    body += title(bold, 29, 6, 40, "Griglione") + title(serif_italic, 28, 14, 4, "Il")
    write(out, "griglione.svg", svg(160, 84, body, defs))


def make_icon(out):
    """The program's icon: the logo's grid of dice on a rounded green square."""
    body = f'<rect x="0.5" y="0.5" width="39" height="39" rx="6" fill="{GREEN}"/>\n' + dice_grid(1.5, 2)
    write(out, "icona.svg", svg(40, 40, body))


# --- buttons and pointer ------------------------------------------------------------------------


def make_buttons(out):
    round_ = 'stroke-linecap="round" stroke-linejoin="round"'
    check = "M6.5 17.5 13.5 24.5 26.5 8.5"
    write(
        out,
        "okbutton.svg",
        svg(
            32,
            32,
            f'<path d="{check}" fill="none" stroke="#0b4d10" stroke-width="8" {round_}/>\n'
            f'<path d="{check}" fill="none" stroke="#2fb335" stroke-width="5" {round_}/>\n'
            f'<path d="M6.5 16.5 13.5 23.5 26 8" fill="none" stroke="#8be07f" '
            f'stroke-width="1.5" {round_}/>\n',
        ),
    )
    # A red arrow curling back to the left: undo everything traced. Dark outlines first, then the
    # red strokes over them, so the arrow's head and shaft join without a seam.
    arc = "M10.5 10.5 19.5 10.5A9 9 0 0 1 19.5 28.5L9.5 28.5"
    head = "M3 10.5 11.5 3.5 11.5 17.5Z"
    write(
        out,
        "azzera.svg",
        svg(
            32,
            32,
            f'<path d="{arc}" fill="none" stroke="#5a0c08" stroke-width="6" {round_}/>\n'
            f'<path d="{head}" fill="#5a0c08" stroke="#5a0c08" stroke-width="3" '
            f'stroke-linejoin="round"/>\n'
            f'<path d="{arc}" fill="none" stroke="#d8281c" stroke-width="3.5" {round_}/>\n'
            f'<path d="{head}" fill="#d8281c"/>\n'
            f'<path d="M12.5 9.5 19.5 9.5 23.5 10.3 26.5 12.1 28.1 14.5" fill="none" '
            f'stroke="#f07a6a"/>\n',
        ),
    )
    # The hand shown over the program's links: a white hand pointing up with a black outline.
    # The shapes are drawn once fat in black and once in white, so the outline goes round their
    # union only.
    hand = [
        (7, 1, 12, 19, 2.5),
        (12, 10, 16.5, 20, 2.2),
        (16, 11, 20.5, 21, 2.2),
        (20, 12, 24.5, 21, 2.2),
        (7, 16, 24.5, 29, 4),
        (2, 16, 10, 22, 3),
    ]

    def rects(attributes):
        return "".join(
            f'<rect x="{num(x0 + 0.5)}" y="{num(y0 + 0.5)}" width="{num(x1 - x0)}" '
            f'height="{num(y1 - y0)}" rx="{num(r)}" {attributes}/>\n'
            for x0, y0, x1, y1, r in hand
        )

    lines = "M12.5 12.5V18.5M16.5 13.5V18.5M20.5 14.5V18.5M8.5 21.5H10.5"
    write(
        out,
        "manina.svg",
        svg(
            32,
            32,
            rects('fill="#000000" stroke="#000000" stroke-width="2"')
            + rects('fill="#ffffff"')
            + f'<path d="{lines}" fill="none" stroke="#000000"/>\n',
        ),
    )


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else "."
    os.makedirs(out, exist_ok=True)
    bold = Font("DejaVuSans-Bold.ttf")
    make_dice(out, bold)
    make_logo(out, bold, Font("DejaVuSerif-BoldItalic.ttf"))
    make_icon(out)
    make_buttons(out)


if __name__ == "__main__":
    main()
