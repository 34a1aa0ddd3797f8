# SPDX-License-Identifier: MIT
"""The program's icon and the one of its saved games. From 48 pixels up the drawing is
scaled; the smaller ones are drawn anew on their own pixel grids, each with the letter and the marker alone."""
from earth import Chart
from ink import CREAM, ICONS, document, fill, rasterise, stroke

ICON_SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 256, 512)
SAVED_GAME = 'application-x-vorlund-saved-game'  # desktops derive this name from the MIME type
RED, BORDER = '#e0281e', '#0b1622'

SEA = ('<linearGradient id="sea" x2="0" y2="1"><stop offset="0" stop-color="#3c627d"/>'
       '<stop offset="1" stop-color="#1d344b"/></linearGradient>')

# size -> tile corner, the letter, the marker's square (x, y, side): all on whole pixels where it shows.
SMALL = {
    16: (2.5, 'M1.5 5H5L8 11.5 11 5H14.5L9.8 14H6.2z', (6, 2, 4)),
    22: (3.5, 'M2 7H6.8L11 15.8 15.2 7H20L13.3 19.5H8.7z', (8, 2, 6)),
    24: (4, 'M2 7H7.2L12 17 16.8 7H22L14.4 21.5H9.6z', (9, 2, 6)),
    32: (5.5, 'M3 10H10L16 23.4 22 10H29L19.4 29H12.6z', (12, 3, 8)),
}

# size -> the sheet (left, top, right, bottom), its folded corner, the tile (x, y, width, height), letter and marker.
SMALL_SAVED_GAME = {
    16: ((1, 0, 15, 16), 4, (3, 5, 10, 9), 'M4 8H6.5L8 11.5 9.5 8H12L9.4 13H6.6z', (7, 6, 2)),
    22: ((3, 1, 19, 21), 5, (5, 7, 12, 12), 'M6 11H9L11 15 13 11H16L12.6 18H9.4z', (9, 8, 4)),
    24: ((3, 1, 21, 23), 6, (5, 8, 14, 13), 'M6 11H9.5L12 17 14.5 11H18L13.8 20H10.2z', (10, 9, 4)),
    32: ((5, 1, 27, 31), 7, (8, 11, 16, 17), 'M9 15H13L16 22 19 15H23L18 27H14z', (14, 12, 4)),
}
PAPER, FOLD, PAPER_EDGE = '#f7efd9', '#d9c898', '#5d4d2c'


def small(size):
    corner, letter, (x, y, side) = SMALL[size]
    return document(size, size, [
        '<defs>' + SEA + '</defs>',
        '<rect width="%d" height="%d" rx="%s" fill="%s"/>' % (size, size, corner, BORDER),
        '<rect x="1" y="1" width="%d" height="%d" rx="%s" fill="url(#sea)"/>' % (size - 2, size - 2, corner - 1),
        fill(letter, CREAM),
        '<rect x="%d" y="%d" width="%d" height="%d" fill="%s"/>' % (x, y, side, side, RED)])


LETTER = 'M13 38H49L64 80 79 38H115V43.5L106 46.5 77 112H51L22 46.5 13 43.5z'


def tile():
    view = Chart(12, 30, 64, 66, 1.05)
    land = view.land(128, 128, 5, 1.1)
    return ['<defs>', SEA, '<clipPath id="tile"><rect x="6" y="6" width="116" height="116" rx="20"/></clipPath></defs>',
            '<rect x="4" y="4" width="120" height="120" rx="22" fill="%s"/>' % BORDER,
            '<g clip-path="url(#tile)"><rect x="6" y="6" width="116" height="116" fill="url(#sea)"/>',
            stroke(view.graticule(128, 128, 20), '#ffffff', 1, .09),
            stroke(land, '#7aa3b6', 4, .16), fill(land, '#d9c48e', .2, 'fill-rule="evenodd"'), '</g>',
            '<rect x="9" y="9" width="110" height="110" rx="17.5" fill="none" stroke="#cdb376" stroke-width="1.6"/>',
            fill(LETTER, BORDER, 1, 'transform="translate(2 3)"'), fill(LETTER, CREAM),
            stroke(LETTER, BORDER, 2),
            '<rect x="50" y="12.5" width="28" height="28" rx="1.5" fill="%s"/>' % BORDER,
            '<rect x="52" y="14.5" width="24" height="24" fill="#f8f0da"/>',
            '<rect x="54.5" y="17" width="19" height="19" fill="%s"/>' % RED,
            fill('M64 19.5L69 26.5 64 33.5 59 26.5z', '#f8f0da')]


def small_saved_game(size):
    (left, top, right, bottom), fold, tile_box, letter, (x, y, side) = SMALL_SAVED_GAME[size]
    left, top, right, bottom = left + .5, top + .5, right - .5, bottom - .5  # the centre line of the outline
    edge = 'stroke="%s" stroke-linejoin="bevel"' % PAPER_EDGE
    return document(size, size, [
        '<defs>' + SEA + '</defs>',
        '<path d="M%s %sH%sL%s %sV%sH%sz" fill="%s" %s/>'
        % (left, top, right - fold, right, top + fold, bottom, left, PAPER, edge),
        '<path d="M%s %sV%sH%sz" fill="%s" %s/>' % (right - fold, top, top + fold, right, FOLD, edge),
        '<rect x="%d" y="%d" width="%d" height="%d" rx="1" fill="url(#sea)"/>' % tile_box,
        fill(letter, CREAM),
        '<rect x="%d" y="%d" width="%d" height="%d" fill="%s"/>' % (x, y, side, side, RED)])


def saved_game():
    """A sheet of paper with a sea route and the program's tile."""
    edge = 'stroke="%s" stroke-width="3" stroke-linejoin="round"' % PAPER_EDGE
    return ['<path d="M26 5H84L106 27V123H26z" fill="%s" %s/>' % (PAPER, edge),
            '<path d="M84 5V27H106z" fill="%s" %s/>' % (FOLD, edge),
            stroke('M40 40Q58 22 92 44', '#8c1d1f', 3, 1, 'stroke-dasharray="7 5"'),
            '<circle cx="40" cy="40" r="4" fill="#8c1d1f"/><circle cx="92" cy="44" r="4" fill="#8c1d1f"/>',
            '<g transform="translate(35 53) scale(.484)">', *tile(), '</g>']


def main():
    ICONS.mkdir(parents=True, exist_ok=True)
    program, saved = document(128, 128, tile()), document(128, 128, saved_game())
    (ICONS / 'vorlund.svg').write_text(program)
    (ICONS / (SAVED_GAME + '.svg')).write_text(saved)
    for size in ICON_SIZES:
        for name, drawn, large in (('vorlund', small, program), (SAVED_GAME, small_saved_game, saved)):
            drawing = drawn(size) if size in SMALL else large
            rasterise(drawing, ICONS / ('%s-%d.png' % (name, size)), size, size)


if __name__ == '__main__':
    main()
