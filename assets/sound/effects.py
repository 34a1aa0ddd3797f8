# SPDX-License-Identifier: MIT
"""The click, the gunfire and the explosion."""

import numpy as np

from synth import add, decay, drive, echo, finish, glide, high_pass, low_pass, noise, reverb, sine, smooth
from wave_file import SAMPLES_PER_BLOCK

CLICK_RATE = 11025
GUN_RATE = 11025
EXPLOSION_RATE = 8000


def _tap(pitch, half_life):
    """A small wooden bar: three partials, of which the higher ones decay faster."""
    count = int(0.09 * CLICK_RATE)
    time = np.arange(count) / CLICK_RATE
    result = np.zeros(count)
    for ratio, level in ((1.0, 1.0), (2.42, 0.4), (3.9, 0.18)):
        result += level * sine(ratio * pitch * time) * decay(count, CLICK_RATE, half_life / ratio)
    return result


def click():
    """A switch: a press, then a quieter and higher release."""
    track = np.zeros(1702)
    add(track, 6, _tap(880.0, 0.009))
    add(track, 6, high_pass(noise(60, 11), CLICK_RATE, 2500.0) * decay(60, CLICK_RATE, 0.0008), 0.35)
    add(track, 6 + int(0.052 * CLICK_RATE), _tap(1175.0, 0.007), 0.38)
    return finish(track, CLICK_RATE, 0.72, 0.0012, 0.02)


def _shot(seed, weight):
    """One shot: crack, blast and low thump. `weight` 1 is a rifle."""
    count = int(0.55 * GUN_RATE)
    hiss = noise(count, seed)
    crack = high_pass(hiss, GUN_RATE, 1400.0) * decay(count, GUN_RATE, 0.009)
    blast = low_pass(hiss, GUN_RATE, 2400.0 / weight) * decay(count, GUN_RATE, 0.02 * weight)
    tail = low_pass(noise(count, seed + 1), GUN_RATE, 1000.0 / weight) * decay(count, GUN_RATE, 0.075 * weight)
    blow = sine(glide(count, GUN_RATE, 210.0 / weight, 62.0 / weight, 0.018)) * decay(count, GUN_RATE, 0.028 * weight)
    shot = high_pass(1.3 * crack + 2.4 * blast + 1.1 * tail + 0.55 * blow, GUN_RATE, 70.0)
    shot[:6] *= smooth(6)
    return drive(1.6 * shot, 0.6)


def gunfire():
    """A short burst, distant shots in reply, one heavy gun, and an echo."""
    count = 23662
    track = np.zeros(count)
    # Blocks in which the shots fall: a block sets its step size anew, so a crack at its start keeps its edge.
    shots = (
        (0, 1.0, 1.0), (2, 1.0, 0.86), (4, 1.0, 0.95), (6, 1.0, 0.88),
        (10, 1.15, 0.42), (12, 1.15, 0.38), (14, 1.15, 0.4),
        (17, 1.9, 1.1),
    )  # fmt: skip
    for number, (block, weight, level) in enumerate(shots):
        add(track, block * SAMPLES_PER_BLOCK, _shot(100 + 2 * number, weight), level)
    hills = ((0.187, 0.34, 1500.0), (0.331, 0.24, 1000.0), (0.523, 0.17, 750.0), (0.744, 0.11, 550.0))
    answers = sum(echo(track, GUN_RATE, *hill) for hill in hills)
    valley = reverb(low_pass(track + answers, GUN_RATE, 1600.0), GUN_RATE, 1.5, 0.45)
    mix = high_pass(track + answers + 0.6 * valley, GUN_RATE, 60.0)
    return finish(drive(mix, 0.25), GUN_RATE, 0.89, 0.001, 0.4)


def explosion():
    """An impact, noise through a low pass that closes with time, and a low rumble."""
    count = 23057
    rate = EXPLOSION_RATE
    time = np.arange(count) / rate
    blow = sine(glide(count, rate, 130.0, 31.0, 0.11)) * decay(count, rate, 0.3)
    growl = sine(glide(count, rate, 210.0, 52.0, 0.16)) * decay(count, rate, 0.22)
    crack = noise(count, 31) * decay(count, rate, 0.03)
    swell = 0.6 + 0.4 * low_pass(noise(count, 32), rate, 5.0) * 9.0
    dark = 90.0 + 2600.0 * decay(count, rate, 0.17) + 260.0 * decay(count, rate, 0.8)
    fire = low_pass(noise(count, 33), rate, dark) * decay(count, rate, 0.42) * swell
    ground = low_pass(high_pass(noise(count, 34), rate, 28.0), rate, 75.0) * decay(count, rate, 0.75)
    ground *= 1.0 - decay(count, rate, 0.12)
    rubble = _rubble(count, rate)
    mix = 0.8 * blow + 0.6 * growl + 0.8 * crack + 4.2 * fire + 3.6 * ground + rubble
    mix[time < 0.004] *= smooth(int(np.sum(time < 0.004)))
    room = reverb(low_pass(mix, rate, 900.0), rate, 2.4, 0.5)
    mix = high_pass(mix + 0.45 * room, rate, 24.0)
    return finish(drive(1.5 * mix, 0.45), rate, 0.93, 0.002, 0.8)


def _rubble(count, rate):
    """Falling stones after the impact, ever fewer and quieter."""
    track = np.zeros(count)
    chance = (noise(72, 35) + 1.0) / 2.0
    for number in range(24):
        late, weight = chance[number], chance[24 + number]
        start = int(rate * (0.35 + 1.9 * late * chance[48 + number]))
        piece = low_pass(noise(int(0.08 * rate), 200 + number), rate, 1100.0 - 600.0 * weight)
        add(track, start, piece * decay(len(piece), rate, 0.005 + 0.008 * weight), 0.2 + 0.35 * weight * (1.0 - late))
    return track
