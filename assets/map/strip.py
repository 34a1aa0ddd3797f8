# SPDX-License-Identifier: MIT
"""The strip below the map: a dark ground for the program's command plates and, under the rule, its roster."""
import looks


def draw():
    out = ['<defs><linearGradient id="strip" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#0f1b2a"/>'
           '<stop offset="1" stop-color="#070c14"/></linearGradient><clipPath id="inside">'
           '<rect y="430" width="750" height="57"/></clipPath></defs>',
           '<rect y="428" width="750" height="97" fill="url(#strip)"/>',
           '<g clip-path="url(#inside)" fill="none" stroke="#7fa9c6" stroke-width=".6">']
    for x in (46, 704):
        for ring in range(1, 12):
            out.append('<circle cx="%g" cy="461" r="%g" stroke-opacity="%.3f"/>' % (x, ring * 8, .26 - .021 * ring))
        for angle in range(0, 360, 30):
            out.append('<path d="M0 -8V-56" transform="translate(%g 461) rotate(%d)" stroke-opacity=".09"/>'
                       % (x, angle))
    out.append('</g><path d="M0 428.4H750" stroke="#04070b" stroke-width="1.6"/>'
               '<path d="M0 429.8H750" stroke="{0}" stroke-opacity=".6" stroke-width=".8"/>'
               '<path d="M24 487.5H726" stroke="{0}" stroke-opacity=".3" stroke-width=".6"/>'
               '<path d="M4 513V521H12M746 513V521H738" fill="none" stroke="{0}" stroke-opacity=".5"/>'
               .format(looks.BRASS))
    return out
