# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""What a setup document says, read as the program reads it."""

import json
import math
import re
import unicodedata

from doubles import divide, rounded

LEVEL_STEP = 0.0001
DELAY_STEP = 1e-10
TIMER_STEP = 1e-07
CELL_STEP = 1e-9
FREQUENCY_STEP = 1e-6
PREFIXES = {"n": 1e-09, "u": 1e-06, "m": 0.001, "K": 1000.0, "M": 1000000.0, "G": 1000000000.0}


class Refused(Exception):
    """The bytes are not a setup document: not JSON, not an object, or an empty one."""


def json_double(text):
    """A JSON number with a fraction or an exponent; one outside the range of doubles is no JSON."""
    value = float(text)
    digits = re.split("[eE]", text)[0]
    if math.isinf(value) or (value == 0.0 and re.search("[1-9]", digits)):
        raise Refused("number out of range")
    # Whole numbers are kept as integers, which have no negative zero.
    return value if value != 0.0 else 0.0


def json_integer(text):
    value = json_double(text)
    number = int(text)
    return number if -2**63 <= number < 2**63 else value


def json_constant(text):
    raise Refused(text + " is not JSON")


def parse_document(raw):
    """The object that the bytes of a setup file hold."""
    try:
        document = json.loads(
            raw.decode("utf-8"),
            parse_float=json_double,
            parse_int=json_integer,
            parse_constant=json_constant,
        )
    except ValueError as error:
        raise Refused(str(error)) from error
    if not isinstance(document, dict) or not document:
        raise Refused("not an object with members")
    return document


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def number_of(parent, key):
    value = parent.get(key)
    return float(value) if is_number(value) else 0.0


def whole_of(parent, key):
    """A whole number of 32 bits; anything else counts as 0, a fraction included."""
    value = parent.get(key)
    if not is_number(value) or value != int(value) or not -2**31 <= value < 2**31:
        return 0
    return int(value)


def object_of(parent, key):
    value = parent.get(key)
    return value if isinstance(value, dict) else {}


def text_of(parent, key):
    value = parent.get(key)
    return value if isinstance(value, str) else ""


def is_blank(character):
    return character in "\t\n\v\f\r\x85" or unicodedata.category(character) in ("Zs", "Zl", "Zp")


def trimmed(text):
    begin, end = 0, len(text)
    while begin < end and is_blank(text[begin]):
        begin += 1
    while end > begin and is_blank(text[end - 1]):
        end -= 1
    return text[begin:end]


NUMBER = re.compile(r"[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?")


def text_double(text):
    """The number that a text is, as QString::toDouble() reads it; 0 for any other text."""
    text = trimmed(text).replace("\u2212", "-")
    special = {"inf": math.inf, "+inf": math.inf, "-inf": -math.inf, "nan": math.nan}
    if text.lower() in special and text.isascii():
        return special[text.lower()]
    return float(text) if NUMBER.fullmatch(text) else 0.0


def cell_seconds(text):
    """The seconds of a table cell such as "2.000u"."""
    found = re.search("[munKMG]", text)
    if not found:
        return rounded(text_double(text), CELL_STEP)
    rest = text[:found.start()] + text[found.end():]
    return rounded(text_double(rest) * PREFIXES[found.group()], CELL_STEP)


class Train:
    """What a document says, in seconds and volts at the load."""

    def __init__(self, document, high_z=None):
        top = object_of(document, "multiple pulses")
        voltage = object_of(top, "voltage")
        self.amplitude = rounded(number_of(voltage, "amplitude"), LEVEL_STEP)
        self.offset = rounded(number_of(voltage, "offset"), LEVEL_STEP)
        self.delay = rounded(number_of(object_of(top, "trigger delay"), "value"), DELAY_STEP)
        self.timer = rounded(number_of(object_of(top, "trigger timer"), "value"), TIMER_STEP)
        self.leading = number_of(top, "pulse leading")
        self.trailing = number_of(top, "pulse trailing")
        self.source = whole_of(top, "trigger source")
        self.slope = whole_of(top, "trigger slope")
        self.high_z = whole_of(top, "load impedance") > 100 if high_z is None else high_z
        self.pulses = [read_row(row) for row in read_rows(top)]

    def period(self):
        total = self.delay + 0.0
        for width, gap in self.pulses:
            total += self.leading + width + self.trailing + gap
        return total

    def frequency(self):
        return rounded(divide(1.0, self.period()), FREQUENCY_STEP)

    def file_levels(self):
        share = 0.5 if self.high_z else 1.0
        return self.amplitude * share, self.offset * share


def read_rows(top):
    rows = top.get("width/gap")
    return rows if isinstance(rows, list) else []


def read_row(row):
    row = row if isinstance(row, dict) else {}
    return cell_seconds(text_of(row, "width")), cell_seconds(text_of(row, "gap"))
