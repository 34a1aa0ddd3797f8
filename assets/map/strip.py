"""The strip below the map: a dark ground for the program's command plates, and the legend."""
import looks

TOP, BOTTOM = 428, 525
CAPTION = '#c6cfd8'


def panel():
    out = ['<defs><linearGradient id="strip" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#101c2b"/>'
           '<stop offset="1" stop-color="#080e17"/></linearGradient><clipPath id="inside">'
           '<rect x="0" y="428" width="750" height="97"/></clipPath></defs>',
           '<rect x="0" y="428" width="750" height="97" fill="url(#strip)"/>']
    rings = ''.join('<circle cx="%g" cy="%g" r="%g"/>' % (x, y, r)
                    for x, y in ((52, 462), (698, 462)) for r in range(8, 420, 9))
    out.append('<g clip-path="url(#inside)" fill="none" stroke="#8fb4cc" stroke-opacity=".05" stroke-width=".6">'
               + rings + '</g>')
    out.append('<path d="M0 428.6H750" stroke="#05080d" stroke-width="1.6"/>'
               '<path d="M0 430.2H750M0 522.6H750" stroke="%s" stroke-opacity=".55" stroke-width=".8"/>'
               '<path d="M20 491.5H730" stroke="%s" stroke-opacity=".25" stroke-width=".6"/>'
               % (looks.BRASS, looks.BRASS))
    return out


def draw():
    out = panel()
    y = 507
    def caption(x, words):
        out.append(looks.text(x, y + 3.2, words, 9, CAPTION))
    out.append(looks.badge(34, y, 7))
    caption(42, 'territory')
    out.append(looks.derrick(112, y, 1.05))
    caption(120, 'oil field')
    out.append(looks.route('M190 %gH214' % y))
    out.append(looks.landing(190, y) + looks.landing(214, y))
    caption(220, 'sea route')
    return out
