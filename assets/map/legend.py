# SPDX-License-Identifier: MIT
"""What the signs on the map mean: a small table on the empty sea."""
import looks

CAPTION = '#c9d6de'
LEFT, TOP, ROW = (404, 481), 345, 14        # the signs' middles, the first row's middle, between rows
# The program's own pictures: name, left edge, middle.
PICTURES = (('extra1', LEFT[1] - 5, TOP + ROW), ('extra0', LEFT[1] - 5, TOP + 2 * ROW))


def draw():
    def caption(column, row, words):
        return looks.text(LEFT[column] + 16, TOP + row * ROW + 3.2, words, 9, CAPTION, more='fill-opacity=".85"')

    (a, b), (first, second, third) = LEFT, (TOP + row * ROW for row in range(3))
    return [looks.badge(a, first, 7), caption(0, 0, 'territory'), looks.derrick(a, second), caption(0, 1, 'oil field'),
            looks.route('M%g %gH%g' % (a - 9, third, a + 9)), looks.landing(a - 9, third), looks.landing(a + 9, third),
            caption(0, 2, 'sea route'), looks.count(b, first, '12/3'), caption(1, 0, 'troops / tanks'), caption(1, 1, 'factory'),
            caption(1, 2, 'defense')]
