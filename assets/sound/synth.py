# SPDX-License-Identifier: MIT
"""Building blocks of the sounds: oscillators, envelopes, noise, filters, reverb.

Only additions, multiplications and divisions act on samples. The sine and exponential functions of the C library and
of numpy differ in the last bit between processors, but the recordings must be the same everywhere.
"""

import random

import numpy as np

TURN = 6.283185307179586


def sine(turns):
    """Sine of an angle in turns (1.0 is a full circle), for a number or an array."""
    turns = np.asarray(turns, dtype=float)
    turns = turns - np.rint(turns)
    turns = np.where(turns > 0.25, 0.5 - turns, np.where(turns < -0.25, -0.5 - turns, turns))
    angle = turns * TURN
    square = angle * angle
    result = np.zeros_like(angle)
    for order in (15, 13, 11, 9, 7, 5, 3):
        result = (result - 1.0) * square / (order * (order - 1.0))
    return angle * (1.0 + result)


def exp2(exponent):
    """Two to the power of a number, by the series around the nearest whole exponent."""
    whole = int(np.floor(exponent + 0.5))
    x = (exponent - whole) * 0.6931471805599453
    result = 1.0
    for order in range(18, 0, -1):
        result = 1.0 + x * result / order
    return result * 2.0**whole


def decibels(level):
    """Amplitude factor of a level in decibels."""
    return exp2(level * 0.16609640474436813)


def noise(count, seed):
    """White noise in [-1, 1); the generator behind it is the same in every Python."""
    source = random.Random(seed)
    return np.array([2.0 * source.random() - 1.0 for _ in range(count)])


def decay(count, rate, half_life):
    """Exponential decay from 1, halving every `half_life` seconds."""
    return np.cumprod(np.concatenate(([1.0], np.full(count - 1, exp2(-1.0 / (half_life * rate))))))


def smooth(count):
    """Rise from 0 to 1 without a corner at either end."""
    x = np.arange(count) / max(count, 1)
    return x * x * (3.0 - 2.0 * x)


def held(count, rate, attack, release, sag=0.15):
    """Envelope of a held note: a soft rise, a slight sag, a soft fall that ends at the note's end. Times in seconds."""
    rise = min(int(attack * rate), count // 2)
    fall = min(int(release * rate), count - rise)
    shape = 1.0 - sag * np.arange(count) / count
    shape[:rise] *= smooth(rise)
    shape[count - fall :] *= smooth(fall)[::-1]
    return shape


def glide(count, rate, start, end, half_life):
    """Phase in turns of a tone that falls from `start` to `end` hertz."""
    return np.cumsum(end + (start - end) * decay(count, rate, half_life)) / rate


def low_pass(signal, rate, cutoff):
    """Two-pole low pass without resonance; `cutoff` in hertz is a number or one value for each sample."""
    cutoff = np.broadcast_to(np.asarray(cutoff, dtype=float), signal.shape)
    step = (TURN * cutoff / rate) / (1.0 + TURN * cutoff / rate)
    result = np.empty_like(signal)
    first = second = 0.0
    for index, (value, part) in enumerate(zip(signal.tolist(), step.tolist())):
        first += part * (value - first)
        second += part * (first - second)
        result[index] = second
    return result


def high_pass(signal, rate, cutoff):
    """What the low pass of the same cutoff leaves out."""
    return signal - low_pass(signal, rate, cutoff)


def echo(signal, rate, delay, level, cutoff):
    """One reflection, `delay` seconds late, darker than the source."""
    offset = int(delay * rate)
    result = np.zeros_like(signal)
    result[offset:] = level * low_pass(signal, rate, cutoff)[: len(signal) - offset]
    return result


def reverb(signal, rate, seconds, damping):
    """Hall: damped combs of mutually prime delays, then all-passes. `seconds` is the time to fall by 60 decibels."""
    result = np.zeros_like(signal)
    samples = signal.tolist()
    for milliseconds in (29.7, 33.1, 37.1, 41.1, 43.7, 47.9):
        delay = int(milliseconds * rate / 1000.0)
        feedback = decibels(-60.0 * delay / rate / seconds)
        line = [0.0] * delay
        wet = np.empty_like(signal)
        dark = 0.0
        for index, value in enumerate(samples):
            place = index % delay
            late = line[place]
            dark = late + damping * (dark - late)
            line[place] = value + feedback * dark
            wet[index] = late
        result += wet
    for milliseconds in (5.0, 1.7):
        delay = int(milliseconds * rate / 1000.0)
        line = [0.0] * delay
        wet = np.empty_like(signal)
        for index, value in enumerate(result.tolist()):
            place = index % delay
            late = line[place]
            line[place] = value + 0.6 * late
            wet[index] = late - 0.6 * line[place]
        result = wet
    return result / 6.0


def add(track, start, signal, level=1.0):
    """Mixes `signal` into `track` from sample `start`, cut at the track's end."""
    end = min(start + len(signal), len(track))
    track[start:end] += level * signal[: end - start]


def drive(signal, amount):
    """Soft saturation: loud peaks are rounded, quiet samples stay as they are."""
    return signal / (1.0 + amount * np.abs(signal))


def finish(signal, rate, peak, fade_in, fade_out):
    """Fades both ends to silence (seconds) and sets the peak (0 to 1)."""
    rise, fall = max(int(fade_in * rate), 1), int(fade_out * rate)
    result = signal.copy()
    result[:rise] *= smooth(rise)
    result[-fall:] *= smooth(fall)[::-1]
    return result * (peak / np.max(np.abs(result)))
