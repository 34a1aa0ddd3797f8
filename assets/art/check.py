#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks the pictures: sizes, the contrast of every text colour on the grounds, the markers'
colours and their difference in grey, the black edges of the title picture."""
import collections
import sys

from PIL import Image, ImageChops

from icons import ICON_SIZES, SAVED_GAME
from ink import ICONS, PICTURES, PLAYERS

GROUNDS = {'frmBuy': (391, 138), 'frmSell': (348, 135), 'frmTransport': (391, 110), 'frmAttack': (414, 189),
           'frmUpgrade': (258, 277), 'frmReport': (499, 220), 'frmStatus': (320, 340), 'frmSave': (300, 96),
           'frmSelect': (360, 140), 'frmLoad': (340, 260), 'frm2': (400, 250)}
SIZES = dict(GROUNDS, gameover=(692, 381), earth=(220, 100), **{'marker%d' % i: (10, 10) for i in range(5)},
             **{'extra%d' % i: (10, 10) for i in range(3)})
WHITE, GREEN, TEAL = (255, 255, 255), (0, 255, 0), (0, 128, 128)

# Where the teal status lines stand: x, y, width, height.
TEAL_LINES = {'frmBuy': [(8, 4, 375, 20)], 'frmSell': [(8, 4, 332, 20)], 'frmTransport': [(130, 4, 253, 20)],
              'frmAttack': [(127, 4, 279, 21), (123, 118, 283, 19)], 'frmUpgrade': [(8, 4, 242, 36)]}
BUDGET = 900_000              # bytes for all grounds together


def luminance(colour):
    parts = [v / 255 for v in colour[:3]]
    parts = [v / 12.92 if v <= .04045 else ((v + .055) / 1.055) ** 2.4 for v in parts]
    return .2126 * parts[0] + .7152 * parts[1] + .0722 * parts[2]


def colour_contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + .05) / (darker + .05)


def worst_contrast(image, text):
    """The lowest contrast of a text colour with any pixel of the image."""
    behind = max(luminance(c) for _, c in image.convert('RGB').getcolors(1 << 24))
    return (luminance(text) + .05) / (behind + .05)


def load(name, scale):
    return Image.open(PICTURES / (name + ('@2x' if scale == 2 else '') + '.png'))


def check(faults):
    def need(holds, fault):
        if not holds:
            faults.append(fault)

    spent = 0
    lowest = collections.defaultdict(lambda: 99.0)
    for name, (width, height) in SIZES.items():
        for scale in (1, 2):
            image = load(name, scale)
            need(image.size == (width * scale, height * scale), '%s at scale %d is %s' % (name, scale, image.size))
            if name not in GROUNDS:
                continue
            spent += (PICTURES / (name + ('@2x' if scale == 2 else '') + '.png')).stat().st_size
            for text, least in ((WHITE, 4.5), (GREEN, 4.5)):
                value = worst_contrast(image, text)
                lowest[text] = min(lowest[text], value)
                need(value >= least, '%s at scale %d: %s only %.2f' % (name, scale, text, value))
            for x, y, w, h in TEAL_LINES.get(name, []):
                part = image.crop(tuple(scale * v for v in (x, y, x + w, y + h)))
                value = worst_contrast(part, TEAL)
                lowest[TEAL] = min(lowest[TEAL], value)
                need(value >= 4.3, '%s at scale %d: teal only %.2f at %d,%d' % (name, scale, value, x, y))
    need(spent <= BUDGET, 'the grounds weigh %d bytes' % spent)
    for scale in (1, 2):
        greys = []
        for index, colour in enumerate(PLAYERS):
            image = load('marker%d' % index, scale).convert('RGB')
            most = max(image.getcolors())[1]
            need('#%02X%02X%02X' % most == colour, 'marker%d is mostly %s' % (index, most))
            # The emblem's mask: the pixels that differ from the marker's colour in lightness.
            inside = image.crop(tuple(scale * v for v in (1, 1, 9, 9)))
            greys.append([abs(luminance(c) - luminance(most)) > .04 for c in inside.getdata()])
            need(any(greys[-1]), 'marker%d has no emblem in grey' % index)
            emblem = max(colour_contrast(c, most) for _, c in inside.getcolors())
            need(emblem >= 4.5, 'the emblem of marker%d: contrast only %.2f' % (index, emblem))
        for a in range(5):
            for b in range(a):
                share = sum(p != q for p, q in zip(greys[a], greys[b])) / len(greys[a])
                need(share >= .18, 'markers %d and %d differ in %.0f%% only' % (a, b, 100 * share))
        earth = load('earth', scale).convert('RGB')
        frame = earth.crop((0, 0, 208 * scale, 100 * scale))
        edge = frame.copy()
        edge.paste((0, 0, 0), (scale, scale, frame.width - scale, frame.height - scale))
        need(ImageChops.lighter(edge, edge).getbbox() is None, 'the title picture touches the edge of its frame')
        banner = load('gameover', scale).convert('RGBA').getchannel('A')
        need(banner.getextrema() == (255, 255), 'what lies under the game-over banner is seen')
    for size in ICON_SIZES:
        for icon in ('vorlund', SAVED_GAME):
            image = Image.open(ICONS / ('%s-%d.png' % (icon, size)))
            need(image.size == (size, size), 'icon %s %d has another size' % (icon, size))
    print('contrast at worst: white %.2f, green %.2f, teal on its lines %.2f; grounds %d bytes'
          % (lowest[WHITE], lowest[GREEN], lowest[TEAL], spent))


if __name__ == '__main__':
    found = []
    check(found)
    print('\n'.join(found))
    sys.exit(1 if found else 0)
