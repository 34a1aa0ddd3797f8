# SPDX-License-Identifier: MIT
"""Writes mono WAVE files: PCM of 8 and 16 bits, and Microsoft ADPCM."""

import struct

import numpy as np

BLOCK = 256
HEADER = 7
SAMPLES_PER_BLOCK = (BLOCK - HEADER) * 2 + 2
COEFFICIENTS = ((256, 0), (512, -256), (0, 0), (192, 64), (240, 0), (460, -208), (392, -232))
ADAPTATION = (230, 230, 230, 230, 307, 409, 512, 614, 768, 614, 512, 409, 307, 230, 230, 230)


def _chunk(name, body):
    return name + struct.pack("<I", len(body)) + body + b"\0" * (len(body) % 2)


def _write(path, *chunks):
    body = b"WAVE" + b"".join(_chunk(name, content) for name, content in chunks)
    path.write_bytes(_chunk(b"RIFF", body))


def _pcm_format(rate, width):
    return struct.pack("<HHIIHH", 1, 1, rate, rate * width, width, 8 * width)


def write_pcm8(path, rate, signal):
    """Writes samples of -1 to 1 as unsigned bytes around 128."""
    body = (np.rint(signal * 127.0) + 128.0).astype(np.uint8).tobytes()
    _write(path, (b"fmt ", _pcm_format(rate, 1)), (b"data", body))


def write_pcm16(path, rate, signal):
    """Writes samples of -1 to 1 as signed 16-bit numbers."""
    body = np.rint(signal * 32767.0).astype("<i2").tobytes()
    _write(path, (b"fmt ", _pcm_format(rate, 2)), (b"data", body))


def write_adpcm(path, rate, signal):
    """Writes samples of -1 to 1 as Microsoft ADPCM; the last block may be short, and every block needs an even count."""
    samples = [int(value) for value in np.rint(signal * 32767.0)]
    starts = range(0, len(samples), SAMPLES_PER_BLOCK)
    body = b"".join(_best_block(samples[start : start + SAMPLES_PER_BLOCK]) for start in starts)
    bytes_per_second = rate * BLOCK // SAMPLES_PER_BLOCK
    form = struct.pack("<HHIIHH", 2, 1, rate, bytes_per_second, BLOCK, 4)
    form += struct.pack("<HHH", 4 + 4 * len(COEFFICIENTS), SAMPLES_PER_BLOCK, len(COEFFICIENTS))
    form += b"".join(struct.pack("<hh", *pair) for pair in COEFFICIENTS)
    _write(path, (b"fmt ", form), (b"fact", struct.pack("<I", len(samples))), (b"data", body))


def _best_block(samples):
    """Tries every predictor with every power of two as first step and keeps the block that sounds closest.

    Some decoders divide towards zero where others shift; with some predictors one of them drifts away, so the block
    is judged by what both make of it.
    """
    best = None
    for predictor, pair in enumerate(COEFFICIENTS):
        for step in (1 << power for power in range(4, 15)):
            codes = _encode(samples, pair, step)
            start = (samples[1], samples[0], pair, step)
            loss = sum(
                (value - sample) ** 2
                for predict in (_divide, _shift)
                for value, sample in zip(_decode(codes, *start, predict), samples[2:])
            )
            if best is None or loss < best[0]:
                best = (loss, predictor, step, codes)
    _, predictor, step, codes = best
    head = struct.pack("<Bhhh", predictor, step, samples[1], samples[0])
    return head + bytes(high << 4 | low for high, low in zip(codes[::2], codes[1::2]))


def _divide(total):
    return total // 256 if total >= 0 else -(-total // 256)


def _shift(total):
    return total >> 8


def _next(guess, code, step):
    """The sample that a code stands for, and the step of the code after it."""
    signed = code - 16 if code > 7 else code
    return min(max(guess + signed * step, -32768), 32767), max(16, step * ADAPTATION[code] >> 8)


def _encode(samples, pair, step):
    """Codes of a block; follows the decoder so that errors do not add up."""
    earlier, last = samples[0], samples[1]
    codes = []
    for sample in samples[2:]:
        guess = _divide(last * pair[0] + earlier * pair[1])
        code = min(max((2 * (sample - guess) + step) // (2 * step), -8), 7) & 15
        codes.append(code)
        earlier = last
        last, step = _next(guess, code, step)
    return codes


def _decode(codes, last, earlier, pair, step, predict):
    for code in codes:
        guess = predict(last * pair[0] + earlier * pair[1])
        earlier = last
        last, step = _next(guess, code, step)
        yield last
