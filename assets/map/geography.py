# SPDX-License-Identifier: MIT
"""Where each territory lies: anchors, countries, cut lines, sea routes. Degrees are (lon, lat)."""

# What the warp carries exactly onto the middle of the marker, per territory.
ANCHOR = {
    1: (-148, 64.8), 2: (-122, 57.2), 3: (-104.5, 55.5), 4: (-72, 53), 5: (-40, 72),
    6: (-116, 39), 7: (-100, 39), 8: (-83, 37.5), 9: (-102, 23), 10: (-85.3, 13.6),
    11: (-69.6, 18.0), 12: (-68, 6), 13: (-73, -13), 14: (-51, -11), 15: (-62, -31),
    16: (-2, 53), 17: (-4, 40.5), 18: (3, 46), 19: (15, 63), 20: (11.5, 48.5),
    21: (20, 52), 22: (34, 39), 23: (-6, 19), 24: (16, 28.4), 25: (25, 11),
    26: (22, -7), 27: (23, -26), 28: (43, 25), 29: (100, 66), 30: (31, 51.5),
    31: (68, 52), 32: (59, 34), 33: (108, 54), 34: (122, 47.5), 35: (141.1, 35.2),
    36: (104, 34.5), 37: (77.5, 23), 38: (101.5, 17), 39: (115, 1), 40: (141, -5),
    41: (122, -25), 42: (143, -27),
}

# (lon, lat) -> pixel, for places far from any anchor.
PINS = [
    ((-167.5, 65.6), (40, 61)),      # Cape Prince of Wales
    ((-162.0, 55.2), (37, 88)),      # end of the Alaska Peninsula
    ((-156.5, 71.2), (72, 46)),      # Point Barrow
    ((-35.0, 83.5), (308, 24)),      # north of Greenland
    ((-72.0, 83.0), (258, 25)),      # north of Ellesmere Island
    ((98.0, 80.5), (497, 30)),       # Severnaya Zemlya
    ((190.0, 66.2), (692, 72)),      # East Cape
    ((-68.0, -55.5), (221, 390)),    # Cape Horn
    ((174.0, -41.0), (706, 334)),    # Cook Strait
]

# Islands drawn larger or smaller than life: countries, (west, south, east, north) that holds the island's
# middle, (centre lon, centre lat, scale, shift lon, shift lat)
_ALL = (-180, -90, 200, 90)
GROW = [
    (('CUB',), _ALL, (-79.3, 21.8, 0.95, -0.6, 0.4)),
    (('HTI', 'DOM'), _ALL, (-71.2, 18.9, 2.0, 1.5, -0.5)),
    (('JAM',), _ALL, (-77.3, 18.1, 1.6, -1.9, -0.2)),
    (('PRI',), _ALL, (-66.4, 18.2, 1.6, 4.2, -0.3)),
    (('JPN',), _ALL, (138, 37.5, 1.28, 1.8, -0.2)),
    (('RUS',), (141, 45.5, 145, 55), (143, 53, 0.9, 0.3, 0.3)),
    (('GBR', 'IRL', 'IMN'), _ALL, (-3.5, 54.0, 1.2, -0.6, 0.6)),
]

# Territory -> whole countries (ISO 3166 alpha-3) or states ("USA-WA").
REGION = {
    1: 'USA-AK',
    2: 'CAN-BC CAN-YT CAN-AB CAN-NT',
    3: 'CAN-SK CAN-MB CAN-ON CAN-NU',
    4: 'CAN-QC CAN-NL CAN-NB CAN-NS CAN-PE SPM',
    5: 'GRL ISL',
    6: 'USA-WA USA-OR USA-CA USA-NV USA-ID USA-UT USA-AZ',
    7: 'USA-MT USA-WY USA-CO USA-NM USA-ND USA-SD USA-NE USA-KS USA-OK USA-TX '
       'USA-MN USA-IA USA-MO USA-AR USA-LA',
    8: 'USA-WI USA-IL USA-MI USA-IN USA-OH USA-KY USA-TN USA-MS USA-AL USA-GA '
       'USA-FL USA-SC USA-NC USA-VA USA-WV USA-MD USA-DE USA-DC USA-PA USA-NJ '
       'USA-NY USA-CT USA-RI USA-MA USA-VT USA-NH USA-ME',
    9: 'MEX',
    10: 'GTM BLZ SLV HND NIC CRI PAN',
    11: 'CUB JAM HTI DOM PRI BHS CYM TCA VIR',
    12: 'COL VEN ECU GUY SUR TTO',
    13: 'PER BOL',
    14: 'BRA',
    15: 'ARG CHL URY PRY FLK',
    16: 'GBR IRL IMN FRO',
    17: 'ESP PRT AND',
    18: 'FRA BEL NLD LUX MCO',
    19: 'NOR SWE FIN DNK ALA',
    20: 'DEU AUT CHE LIE ITA SMR VAT CZE SVN HUN MLT',
    21: 'POL SVK LTU LVA EST',
    22: 'TUR GRC BGR ROU SRB XKX BIH MNE MKD ALB HRV CYP XNC GEO ARM AZE',
    23: 'MAR ESH MRT SEN GMB GNB GIN SLE LBR CIV MLI BFA GHA TGO BEN NGA NER',
    24: 'DZA TUN LBY EGY',
    25: 'TCD SDN SSD CAF CMR GNQ GAB ETH ERI DJI SOM XSO KEN UGA',
    26: 'COD COG AGO ZMB TZA RWA BDI MWI',
    27: 'ZAF NAM BWA ZWE MOZ LSO SWZ MDG',
    28: 'SAU YEM OMN ARE QAT BHR KWT IRQ SYR JOR ISR PSE LBN',
    30: 'UKR BLR MDA',
    31: 'KAZ',
    32: 'IRN AFG PAK TKM UZB TJK KGZ',
    34: 'PRK KOR',
    35: 'JPN',
    36: 'MNG TWN HKG MAC',
    37: 'IND LKA NPL BTN BGD XSI',
    38: 'MMR THA LAO VNM KHM SGP',
    39: 'BRN TLS PHL',
    40: 'PNG SLB',
    41: 'AUS-WA AUS-NT',
    42: 'AUS-SA AUS-QL AUS-NS AUS-VI AUS-TS AUS-CT AUS-JB NZL',
}

# Shapes that the data leave without an id, by a point inside.
UNNAMED = {(46.1, 9.7): 'XSO', (20.9, 42.6): 'XKX', (33.8, 35.3): 'XNC', (77.3, 35.4): 'XSI'}

# Countries that are divided: cells (territory, closed lon/lat polygon), first hit
# wins; cell edges that lie inside the country become borders.
_NRUS_S = [  # southern edge of Northern Russia, west to east
    (28.0, 63.6), (33.5, 62.6), (41.0, 61.6), (50.0, 61.2), (59.3, 61.0),
    (68.0, 60.3), (77.0, 60.0), (86.5, 60.4), (97.0, 60.8), (107.0, 60.6),
    (116.0, 60.0), (121.0, 59.2), (129.0, 58.4), (136.0, 58.0), (143.0, 57.6),
]
_URAL = [(59.3, 61.0), (59.0, 58.0), (57.5, 55.5), (58.5, 53.0), (57.0, 50.0)]
_WE = [(86.5, 60.4), (85.0, 57.0), (87.0, 54.0), (87.5, 49.0), (87.5, 47.0)]
_EM = [(121.0, 59.2), (119.0, 56.5), (117.5, 53.0), (116.7, 49.83), (116.7, 48.0)]
CELLS = {
    'RUS': [
        (21, [(19, 54), (19, 56), (23, 56), (23, 54)]),           # Kaliningrad
        (29, _NRUS_S + [(160, 50.0), (200, 50), (200, 85), (28, 85)]),
        (30, [(25, 40), (25, 63.6)] + _NRUS_S[:5] + _URAL[1:] + [(49, 40)]),
        (31, _URAL[:1] + _NRUS_S[5:8] + _WE[1:] + [(57, 47)] + _URAL[:0:-1]),
        (33, _WE[:1] + _NRUS_S[8:12] + _EM[1:] + [(87.5, 47)] + _WE[3:0:-1]),
        (34, _EM[:1] + _NRUS_S[12:] + [(160, 50), (160, 40), (116.7, 40)] + _EM[:0:-1]),
    ],
    'CHN': [
        (34, [(115.4, 49.9), (115.5, 48.0), (118.0, 47.2), (119.2, 46.2), (119.6, 44.5),
              (118.4, 42.6), (119.6, 40.3), (120.6, 39.0), (125, 37), (140, 40), (140, 60),
              (115, 60)]),
        (36, [(60, 10), (60, 60), (140, 60), (140, 10)]),
    ],
    'IDN': [
        (40, [(129.3, 2), (129.3, -2.4), (131.0, -2.6), (131.5, -5.0), (133.6, -8.5),
              (133.6, -12), (150, -12), (150, 2)]),
        (39, [(90, -15), (90, 10), (150, 10), (150, -15)]),
    ],
    'MYS': [
        (38, [(95, 0), (95, 10), (106, 10), (106, 0)]),
        (39, [(106, 0), (106, 10), (125, 10), (125, 0)]),
    ],
    'CAN-NU': [   # the eastern Arctic goes with Quebec
        (4, [(-91.5, 77), (-95.9, 79), (-96, 82), (-92, 84), (-50, 84), (-50, 60), (-78, 60),
             (-79.5, 64.6), (-84.3, 66.2), (-85.8, 69.5), (-90, 71), (-91.5, 74)]),
        (3, [(-140, 50), (-140, 85), (-50, 85), (-50, 50)]),
    ],
    'HUN': [      # the north-eastern tip, so that 20, 21, 22 and 30 meet in a point
        (22, [(22.0, 48.55), (22.9, 47.8), (23.5, 47.8), (23.5, 48.55)]),
        (20, [(10, 40), (10, 50), (25, 50), (25, 40)]),
    ],
    'FRA': [
        (12, [(-60, 0), (-60, 10), (-48, 10), (-48, 0)]),         # French Guiana
        (18, [(-10, 40), (-10, 60), (12, 60), (12, 40)]),
    ],
    'ESP': [
        (17, [(-10, 34), (-10, 45), (6, 45), (6, 34)]),
    ],
}
# Sea routes: pair -> (near its end on the first, near its end on the second, bend). Each end snaps to the
# nearest coast of its territory. 1-29 goes round the map's edge and has pixels for its ends.
ROUTE_ROUND = ((30, 61), (705, 72))
ROUTE = {
    (4, 5): ((-61.0, 57.0), (-49.0, 61.3), -0.12),
    (5, 16): ((-14.0, 64.6), (-6.5, 58.8), 0.12),
    (8, 11): ((-80.6, 25.1), (-80.2, 23.4), 0.0),
    (10, 11): ((-84.3, 15.9), (-83.0, 22.0), -0.15),
    (11, 12): ((-62.0, 18.0), (-63.5, 10.8), 0.1),
    (14, 23): ((-35.0, -6.0), (-13.0, 8.5), -0.1),
    (16, 18): ((1.8, 53.0), (5.0, 53.2), 0.0),
    (17, 23): ((-9.5, 38.3), (-11.0, 31.2), 0.3),
    (17, 24): ((-0.6, 37.8), (4.0, 36.9), 0.0),
    (19, 21): ((16.4, 56.8), (18.6, 54.8), 0.0),
    (20, 24): ((13.0, 37.6), (13.5, 32.8), 0.0),
    (22, 24): ((25.0, 35.0), (25.5, 31.6), 0.0),
    (25, 28): ((47.0, 11.2), (47.5, 13.6), 0.0),
    (34, 35): ((129.0, 35.2), (132.0, 34.2), 0.0),
    (38, 39): ((104.2, 1.5), (109.5, 1.6), -0.15),
    (39, 40): ((128.2, -0.2), (131.2, -0.9), -0.15),
    (39, 41): ((125.0, -9.6), (126.5, -14.0), 0.0),
    (40, 42): ((149.0, -10.0), (146.5, -18.5), -0.15),
}
