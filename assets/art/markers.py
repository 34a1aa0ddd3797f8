# SPDX-License-Identifier: MIT
"""Player markers and building icons. At scale 1 every pixel is set by hand, at scale 2 the
same design is drawn as paths. Players differ by emblem as well as by colour:
lozenge, ring, saltire, bars, chevron."""
from ink import PICTURES, PLAYERS, document, fill, rasterise

CREAM, DARK = '#f8f0da', '#0a1016'
GREEN, GREY, PALE = '#0d5c2e', '#8b8f94', '#dfe2e4'

# The middle eight pixels of a marker, and the same emblem on a grid of sixteen.
EMBLEMS = (
    (CREAM, '........ ...##... ...##... ..####.. ..####.. ...##... ...##... ........',
     'M8 1.6L12.4 8 8 14.4 3.6 8z'),
    (DARK, '........ ..####.. .##..##. .#....#. .#....#. .##..##. ..####.. ........',
     'M8 2a6 6 0 1 0 .01 0zM8 5a3 3 0 1 1 -.01 0z'),
    (DARK, '........ .#....#. ..#..#.. ...##... ...##... ..#..#.. .#....#. ........',
     'M4.4 2L8 5.6 11.6 2 14 4.4 10.4 8 14 11.6 11.6 14 8 10.4 4.4 14 2 11.6 5.6 8 2 4.4z'),
    (CREAM, '........ ........ .######. ........ ........ .######. ........ ........',
     'M2 4h12v3h-12zM2 9h12v3h-12z'),
    (CREAM, '........ ........ ...##... ..####.. .##..##. .#....#. ........ ........',
     'M8 3L14 9.4V13.2L8 7.2 2 13.2V9.4z'),
)

# Letters of the icon bitmaps: a dark line, a light edge, green, grey, pale grey; a dot is clear.
INKS = {'k': DARK, 'w': CREAM, 'g': GREEN, 'y': GREY, 'p': PALE}

# A shield stands for the defense, a works with a saw-tooth roof and a chimney for the factory.
ICONS = ('''
kkkkkkkkkk
kwwwwwwwwk
kwggggggwk
kwggggggwk
kwggggggwk
kwggggggwk
kwwggggwwk
.kwwggwwk.
..kwwwwk..
...kkkk...''', '''
.......kkk
.......kpk
.kk.kk.kpk
kppkppkkpk
kpypypyyyk
kyyyyyyyyk
kykkykkyyk
kykkykkyyk
kyyyyyyyyk
kkkkkkkkkk''', '''
.......kkk
.......kpk
.kk.kk.kpk
kppkppkkpk
kpypywwwww
kyyyywgggw
kykkywgggw
kykkywgggw
kyyyykwgw.
kkkkkk.w..''')

SHIELD = 'M1 1H19V11.5C19 15.5 15 18 10 19.4 5 18 1 15.5 1 11.5z'
WORKS = 'M1 19V8L6 4.5V8L11 4.5V8H13.5L14 1H18L19 8V19z'


def bitmap(text, colours, x0=0, y0=0):
    return ['<rect x="%d" y="%d" width="1" height="1" fill="%s"/>' % (x0 + x, y0 + y, colours[c])
            for y, row in enumerate(text.split()) for x, c in enumerate(row) if c != '.']


def rim(size, light):
    """The light rim inside the dark one; at scale 1 there is room for one pixel, so light
    falls from the upper left."""
    dark = '<rect width="%d" height="%d" fill="%s"/>' % (size, size, DARK)
    return [dark, '<rect %s fill="%s"/>' % (light, CREAM)]


def marker(index):
    colour = PLAYERS[index]
    ink, rows, path = EMBLEMS[index]
    small = rim(10, 'width="9" height="9"') + ['<rect x="1" y="1" width="8" height="8" fill="%s"/>' % colour]
    small += bitmap(rows, {'#': ink}, 1, 1)
    large = rim(20, 'x="1" y="1" width="18" height="18"')
    large += ['<g transform="translate(2 2)"><rect width="16" height="16" fill="%s"/>' % colour, fill(path, ink), '</g>']
    save('marker%d' % index, small, large)


def save(name, small, large):
    rasterise(document(10, 10, ['<g shape-rendering="crispEdges">'] + small + ['</g>']), PICTURES / (name + '.png'), 10, 10)
    rasterise(document(20, 20, large), PICTURES / (name + '@2x.png'), 20, 20)


def shield(transform=''):
    return ['<g %s>' % transform, fill(SHIELD, DARK), '<g transform="translate(10 9.6) scale(.86) translate(-10 -9.6)">',
            fill(SHIELD, CREAM), '</g><g transform="translate(10 9.4) scale(.68) translate(-10 -9.4)">', fill(SHIELD, GREEN),
            '</g></g>']


def works():
    return ['<path d="%s" fill="%s" stroke="%s" stroke-width="2" stroke-linejoin="round"/>' % (WORKS, GREY, DARK),
            fill('M2 9.4L6 6.6V9.4L11 6.6V9.4H14V2H17.2L17.6 9.4V10.6H2z', PALE),
            fill('M4 12.5h3v4h-3zM9 12.5h3v4h-3zM14 12.5h3v4h-3z', DARK)]


def main():
    for index in range(5):
        marker(index)
    small = [bitmap(text, INKS) for text in ICONS]
    save('extra0', small[0], shield())
    save('extra1', small[1], works())
    save('extra2', small[2], works() + shield('transform="translate(8.6 8.4) scale(.57)"'))


if __name__ == '__main__':
    main()
