# SPDX-License-Identifier: MIT
"""The title music: a march in D minor, four bars and a last chord."""

import numpy as np

from synth import add, decay, decibels, drive, exp2, finish, glide, held, high_pass, low_pass, noise, reverb, sine

RATE = 22050
LENGTH = 223645
BEAT = 60.0 / 114.0
LEAD_IN = 0.03
STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}

# Every row: beat on which it starts, then notes with their length in beats; "." is a rest.
MELODY = (
    (0, "D4:1.5 A4:.5 A4:1 G4:.5 F4:.5"),
    (4, "Bb4:1.5 A4:.25 Bb4:.25 D5:1 C5:.5 Bb4:.5"),
    (8, "A4:1.5 F4:.5 C5:1 Bb4:.5 A4:.5"),
    (12, "G4:.75 A4:.25 Bb4:.75 G4:.25 A4:.5 C#5:.5 E5:.75 C#5:.25"),
    (16, "D5:2.4"),
)
SECOND_HORN = (
    (4, "F4:1.5 F4:.25 F4:.25 Bb4:1 A4:.5 G4:.5"),
    (8, "F4:1.5 C4:.5 G4:1 G4:.5 F4:.5"),
    (12, "D4:.75 D4:.25 G4:.75 D4:.25 E4:.5 E4:.5 A4:.75 A4:.25"),
    (16, "A4:2.4"),
)
CHORDS = (
    (0, 4, "D3 A3 D4 F4"),
    (4, 2, "D3 Bb3 D4 F4"),
    (6, 2, "D3 G3 Bb3 D4"),
    (8, 2, "C3 A3 C4 F4"),
    (10, 2, "C3 G3 C4 E4"),
    (12, 2, "D3 G3 Bb3 D4"),
    (14, 2, "C#3 A3 C#4 E4"),
    (16, 3.0, "D3 A3 D4 F4"),
)
BASS = (
    (0, "D2:.75 D2:.25 D2:1 A1:1 D2:.5 C2:.5"),
    (4, "Bb1:.75 Bb1:.25 Bb1:1 G1:.75 G1:.25 G1:1"),
    (8, "F1:.75 F1:.25 F2:1 C2:.75 C2:.25 E2:1"),
    (12, "G1:.75 G1:.25 G2:1 A1:.75 A1:.25 A1:.5 C#2:.5"),
    (16, "D2:2.6"),
)
# The cellos' figure in half beats, one pair of notes for each half bar.
CELLOS = ("D3 A3", "D3 F3", "Bb2 F3", "G2 D3", "A2 F3", "G2 E3", "G2 D3", "A2 E3")
SNARE = "x.xxx.x.x.xxx.xx"
TIMPANI = ((0, "D2", 1.0), (3.5, "A1", 0.5), (4, "Bb1", 0.8), (6, "G1", 0.6), (8, "F2", 0.85), (10, "C2", 0.6),
           (12, "G1", 0.8), (16, "D2", 1.15))  # fmt: skip


def _at(beat):
    return int((LEAD_IN + beat * BEAT) * RATE)


def _pitch(name):
    """Frequency of a note such as "C#5"; A4 is 440 hertz."""
    semitone = STEPS[name[0]] + name.count("#") - name[1:].count("b") + 12 * int(name[-1])
    return 440.0 * exp2((semitone - 57) / 12.0)


def _notes(rows):
    for start, line in rows:
        for word in line.split():
            name, length = word.split(":")
            yield start, name, float(length)
            start += float(length)


def _harmonics(phase, pitch, level_of, top=9000.0):
    """Sum of the partials of `pitch` below `top` hertz; `level_of(k)` is a number or an array."""
    total = np.zeros_like(phase)
    for k in range(1, int(min(top / pitch, 40.0)) + 1):
        total += level_of(k) * sine(k * phase)
    return total


def _horn(pitch, length, seed):
    """Brass: two players slightly apart, brighter while louder, vibrato that comes in late."""
    count = int((length * BEAT + 0.1) * RATE)
    time = np.arange(count) / RATE
    shape = held(count, RATE, 0.045, 0.13, 0.25)
    bright = 0.5 + 0.33 * shape
    powers = [np.ones(count)]
    while len(powers) < 41:
        powers.append(powers[-1] * bright)
    late = np.clip((time - 0.25) * 3.0, 0.0, 1.0)
    result = np.zeros(count)
    for player, cents in enumerate((-4.0, 5.0)):
        wobble = late * 0.0035 * pitch * sine((4.9 + 0.5 * player) * time + 0.1 * seed)
        scoop = -0.012 * pitch * decay(count, RATE, 0.012)
        phase = np.cumsum(pitch * exp2(cents / 1200.0) + wobble + scoop) / RATE
        result += _harmonics(phase, pitch, lambda k: powers[k - 1] * (1.0 if k > 1 else 0.8))
    return result * shape * 0.3


def _strings(pitch, length, attack, release):
    """Bowed section: three detuned saws behind a low pass."""
    count = int((length * BEAT + release) * RATE)
    time = np.arange(count) / RATE
    total = np.zeros(count)
    for part, cents in enumerate((-7.0, 0.5, 8.0)):
        phase = pitch * exp2(cents / 1200.0) * time + 0.37 * part + pitch * 0.01
        total += _harmonics(phase, pitch, lambda k: 1.0 / k, 6000.0)
    return low_pass(total, RATE, 1500.0 + pitch) * held(count, RATE, attack, release) * 0.3


def _bass(pitch, length):
    """Plucked and bowed bass with enough partials to be heard on small speakers."""
    count = int((length * BEAT + 0.06) * RATE)
    phase = pitch * np.arange(count) / RATE
    soft = _harmonics(phase, pitch, lambda k: (0.7 if k == 1 else 1.2) / (k * k), 1200.0)
    bite = _harmonics(phase, pitch, lambda k: 1.0 / k, 1800.0) * decay(count, RATE, 0.09)
    return (soft + 0.5 * bite) * held(count, RATE, 0.008, 0.09, 0.4)


def _timpani(pitch, seed):
    """Kettledrum: the partials of a loaded skin and the felt of the stick."""
    count = int(1.5 * RATE)
    total = np.zeros(count)
    for ratio, level, half_life in ((1.0, 1.0, 0.26), (1.5, 0.55, 0.17), (1.99, 0.35, 0.12), (2.44, 0.22, 0.08)):
        phase = glide(count, RATE, ratio * pitch * 1.05, ratio * pitch, 0.03)
        total += level * sine(phase) * decay(count, RATE, half_life)
    stick = low_pass(noise(count, seed), RATE, 500.0) * decay(count, RATE, 0.014)
    return (total + 2.5 * stick) * held(count, RATE, 0.002, 0.3, 0.0)


def _snare(seed):
    """Field drum: shell, wires and a little of the room."""
    count = int(0.3 * RATE)
    time = np.arange(count) / RATE
    shell = (sine(188.0 * time) + 0.6 * sine(331.0 * time)) * decay(count, RATE, 0.025)
    wires = high_pass(low_pass(noise(count, seed), RATE, 6500.0), RATE, 900.0) * decay(count, RATE, 0.034)
    return (0.5 * shell + 1.2 * wires) * held(count, RATE, 0.001, 0.05, 0.0)


def _cymbal(seed):
    """A pair of cymbals: metallic partials under bright noise."""
    count = int(2.2 * RATE)
    hiss = high_pass(noise(count, seed), RATE, 3200.0) * decay(count, RATE, 0.32)
    return hiss * held(count, RATE, 0.004, 1.0, 0.0)


def _brass_track():
    track = np.zeros(LENGTH)
    for number, (start, name, length) in enumerate(_notes(MELODY)):
        add(track, _at(start), _horn(_pitch(name), length * 0.94, number), 0.62)
    for number, (start, name, length) in enumerate(_notes(SECOND_HORN)):
        add(track, _at(start), _horn(_pitch(name), length * 0.94, number + 50), 0.36)
    return track


def _string_track():
    track = np.zeros(LENGTH)
    for start, length, names in CHORDS:
        for name in names.split():
            add(track, _at(start), _strings(_pitch(name), length, 0.12, 0.3), 0.085)
    for half, names in enumerate(CELLOS):
        root, fifth = names.split()
        for place, name in enumerate((root, root, fifth, root)):
            add(track, _at(2 * half + place / 2), _strings(_pitch(name), 0.32, 0.012, 0.09), 0.26)
    return track


def _bass_track():
    track = np.zeros(LENGTH)
    for start, name, length in _notes(BASS):
        add(track, _at(start), _bass(_pitch(name), length * 0.92), 0.25)
    return track


def _drum_track():
    track = np.zeros(LENGTH)
    for bar in range(4):
        for place, mark in enumerate(SNARE):
            if mark == "x":
                accent = 1.0 if place in (4, 12) else 0.42 + 0.1 * (place % 4 == 0)
                add(track, _at(4 * bar + place / 4), _snare(300 + 16 * bar + place), 0.3 * accent)
    for place in range(12):
        add(track, _at(14.5 + place / 8), _snare(400 + place), 0.05 + 0.015 * place)
    add(track, _at(16), _snare(420), 0.34)
    for start, name, level in TIMPANI:
        add(track, _at(start), _timpani(_pitch(name), 500 + int(2 * start)), 0.3 * level)
    for place in range(16):
        add(track, _at(14 + place / 8), _timpani(_pitch("A1"), 540 + place), 0.03 + 0.009 * place)
    for start, level in ((0, 0.13), (8, 0.09), (16, 0.2)):
        add(track, _at(start), _cymbal(600 + start), level)
    return track


def theme():
    """The whole piece at 22,050 hertz, mixed, with reverb and silence at both ends."""
    brass, strings, bass, drums = _brass_track(), _string_track(), _bass_track(), _drum_track()
    dry = brass + strings + bass + drums
    send = high_pass(0.9 * brass + strings + 0.15 * bass + 0.7 * drums, RATE, 180.0)
    mix = dry + decibels(-9.0) * reverb(send, RATE, 1.7, 0.4)
    return finish(drive(mix, 0.22), RATE, 0.92, 0.002, 0.6)
