# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""IEEE doubles and 32-bit whole numbers as the program calculates with them."""

import math
from decimal import ROUND_HALF_UP, Context, Decimal

LARGEST_WHOLE = 2**31 - 1
SMALLEST_WHOLE = -(2**31)


def divide(dividend, divisor):
    """IEEE division; Python raises where the standard has an infinity or no number."""
    if divisor != 0.0:
        return dividend / divisor
    if dividend == 0.0 or math.isnan(dividend):
        return math.nan
    return math.copysign(math.inf, dividend) * math.copysign(1.0, divisor)


def floor(value):
    return float(math.floor(value)) if math.isfinite(value) else value


def whole(value):
    """A double as a signed 32-bit number, towards zero.

    The board's whole numbers have no more bits: beyond their ends stand the ends, and what is no
    number counts as 0.
    """
    if math.isnan(value):
        return 0
    return int(max(SMALLEST_WHOLE, min(LARGEST_WHOLE, value)))


def rounded(value, step):
    """The multiple of step nearest to value, halves away from zero.

    A value that has no countable steps is so large that nothing is left to round: it stays.
    """
    steps = (abs(value) * 1.000000000000001 + step * 0.5) / step
    if not math.isfinite(steps):
        return value
    result = float(int(steps)) * step
    return -result if value < 0 else result


def same_as_zero(value):
    # Beyond 1e13 the comparison is one of ratios, and no ratio to zero is near 1.
    return abs(value) < 1e13 and abs(value) <= 1e-15


def general_text(value, digits):
    """A double with so many significant digits, as QString::number() writes it with 'g'.

    Unlike C's printf, halves of the exact value go away from zero and zero has no sign.
    """
    if math.isnan(value):
        return "nan"
    if math.isinf(value):
        return "inf" if value > 0 else "-inf"
    if value == 0.0:
        return "0"
    exact = Context(prec=digits, rounding=ROUND_HALF_UP).create_decimal(Decimal(abs(value)))
    sign = "-" if value < 0 else ""
    figures = "".join(map(str, exact.as_tuple().digits)).rstrip("0")
    return sign + placed_point(figures, exact.adjusted(), digits)


def placed_point(figures, exponent, digits):
    if exponent < -4 or exponent >= digits:
        fraction = "." + figures[1:] if len(figures) > 1 else ""
        mark = "-" if exponent < 0 else "+"
        return f"{figures[0]}{fraction}e{mark}{abs(exponent):02d}"
    if exponent < 0:
        return "0." + "0" * (-exponent - 1) + figures
    figures = figures.ljust(exponent + 1, "0")
    fraction = figures[exponent + 1:]
    return figures[:exponent + 1] + ("." + fraction if fraction else "")
