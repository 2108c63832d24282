# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""From a train to samples in volts, and from samples to the bytes of a waveform file."""

import math
import struct

from doubles import divide, floor, same_as_zero, whole

POINT_BUDGET = 131072
COLUMNS = 206
MAGIC = b"QRNKVX60K"
VERSION = 20050114


def points_of(times, period):
    """Times in seconds as counts of points, each rounded down, and their sum."""
    cycle = 0.0
    for time in times:
        cycle += time
    if cycle == 0.0:
        return [0.0] * len(times), 0
    share = float(whole(floor(divide(cycle, period) * 128.0 * 1024.0)))
    counts = [floor(time / cycle * share) for time in times]
    total = 0
    for count in counts:
        total = whole(float(total) + count)
    return counts, total


class Shape:
    """One pulse within its stretch: the corners in points and the levels in volts."""

    def __init__(self, counts, amplitude, offset, inverted):
        rise = counts[1] * 1.25
        fall = counts[3] * 1.25
        flat = whole(floor(counts[2] - rise / 2 - fall / 2 + 0.5))
        self.rise = whole(floor(rise + 0.5))
        self.fall = whole(floor(fall + 0.5))
        self.delay = whole(counts[0])
        self.top_begin = self.delay + self.rise
        self.top_end = self.top_begin + max(flat, 0)
        self.end = self.top_end + self.fall
        self.base = offset + amplitude / 2 if inverted else offset - amplitude / 2
        self.height = -1.0 * amplitude if inverted else 1.0 * amplitude

    def leading(self, begin, end):
        for index in range(begin, end):
            yield self.base + self.height * float(index - self.delay) / float(self.rise)

    def trailing(self, begin, end):
        for index in range(begin, end):
            yield self.base + self.height * (1 - float(index - self.top_end) / float(self.fall))

    def values(self, begin, end):
        """The volts of the points begin to end of the stretch."""
        corners = [begin]
        for corner in (self.delay, self.top_begin, self.top_end, self.end, end):
            corners.append(min(end, max(corner, corners[-1])))
        result = [self.base] * (corners[1] - corners[0])
        result.extend(self.leading(corners[1], corners[2]))
        result.extend([self.base + self.height] * (corners[3] - corners[2]))
        result.extend(self.trailing(corners[3], corners[4]))
        result.extend([self.base] * (corners[5] - corners[4]))
        return result


class Buffer:
    """The points of a waveform, zero at first. Nothing is kept of what lies outside them."""

    def __init__(self):
        self.volts = [0.0] * POINT_BUDGET
        self.written = 0

    def add(self, start, points, shape):
        begin = max(start, 0)
        end = min(start + points, POINT_BUDGET)
        if begin >= end:
            return
        values = shape.values(begin - start, end - start)
        if begin < self.written:
            values = [old + new for old, new in zip(self.volts[begin:end], values)]
        self.volts[begin:end] = values
        self.written = max(self.written, end)


def samples_of(train):
    """The volts of all points, as the waveform file holds them."""
    buffer = Buffer()
    period = train.period()
    if same_as_zero(period):
        return []
    amplitude, offset = train.file_levels()
    start = 0
    for number, (width, gap) in enumerate(train.pulses or [(0.0, 0.0)]):
        delay = train.delay if number == 0 else 0.0
        times = [delay, train.leading, width, train.trailing, gap]
        counts, points = points_of(times, period)
        buffer.add(start, points, Shape(counts, amplitude, offset, train.slope != 0))
        start += points
    return buffer.volts[:max(start, 0)]


class Scale:
    """The middle and half the height of a waveform."""

    def __init__(self, values):
        lowest, highest = 1000.0, -1000.0
        for value in values:
            lowest = value if value < lowest else lowest
            highest = value if value > highest else highest
        self.centre = (lowest + highest) * 0.5
        self.half = (highest - lowest) * 0.5

    def normalised(self, value):
        value = value - self.centre if self.centre != 0.0 else value
        return value / self.half if self.half != 0.0 else value

    def restored(self, value):
        value = value * self.half if self.half != 0.0 else value
        return value + self.centre if self.centre != 0.0 else value


def word_of(normalised):
    """The unsigned 16 bits of a sample."""
    if not math.isfinite(normalised):
        return 0
    narrow = struct.unpack("<f", struct.pack("<f", normalised))[0]
    return int(narrow * 8191.0 * 4.0) & 0xFFFF


def exchanged(word):
    return (word & 0xFF) * 256 + (word >> 8)


def column_ends(points):
    ends = [math.floor(points / 206.0 * column) for column in range(1, COLUMNS + 1)]
    ends[-1] = points
    return ends


def stroke(words):
    """The lower and the upper end of the words of one column, on the scale of the thumbnail.

    A word below the lower end replaces it and leaves the upper end alone.
    """
    low = high = words[0]
    for word in words:
        if word < low:
            low = word
        elif word > high:
            high = word
    return low // 64, high // 64


def thumbnail(words):
    if len(words) <= COLUMNS:
        pairs = bytes(byte for word in words for byte in 2 * ((word // 64) & 0xFF,))
        return pairs.ljust(2 * COLUMNS, b"\0")
    masked = [word & 0x3FFF for word in words]
    result = bytearray()
    low, high, begin = 0, 255, 0
    for end in column_ends(len(words)):
        lower, upper = stroke(masked[begin:end])
        # Each stroke reaches the one before it, so that the outline has no holes.
        low, high = (min(lower, high), upper) if upper >= low else (lower, low)
        result += bytes((low, high))
        begin = end
    return bytes(result)


def words_by_value(values):
    """For each value the word of the first pass, for the thumbnail, and of the second, as stored.

    The first pass is undone by multiplying and adding, which does not always give the value back.
    """
    first = Scale(values)
    normal = {value: first.normalised(value) for value in values}
    again = {value: first.restored(normal[value]) for value in values}
    second = Scale(again.values())
    shown = {value: exchanged(word_of(normal[value])) for value in values}
    stored = {value: word_of(second.normalised(again[value])) for value in values}
    return shown, stored


def waveform_file(train):
    """All bytes of the waveform file."""
    volts = samples_of(train)
    shown, stored = words_by_value(set(volts))
    picture = thumbnail([shown[value] for value in volts])
    amplitude, offset = train.file_levels()
    head = struct.pack("<16sIIi", MAGIC, VERSION, len(volts), 1)
    head += picture + struct.pack("<dd", amplitude, offset)
    return head.ljust(512, b"\0") + struct.pack(
        f"<{len(volts)}H", *[stored[value] for value in volts])
