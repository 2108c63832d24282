# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Random setup documents: as the editor writes them, and spoilt in many ways."""

NANOSECOND = 1e-9

# Texts that a hand-edited or damaged file may hold in a cell. The letters n, u, m, K, M and G
# count wherever they stand, once; the rest has to be a number.
ODD_CELLS = (
    "", " ", "0", "3", "1e-6", ".5u", "5.u", "u5", "u", "uu", "2uu", "2un", "2nu", "n2u", "2.000us",
    "2.000 us", "2.000 u", " 2.000u ", "\t2.000u\n", "\u00a02.000u", "2.000\u2003u", "2.000\u00b5",
    "2,000u", "2.000U", "2.000k", "1.5K", "0.000001M", "1e-15G", "1e-6m", "1e3n", "+2.000u", "++2u",
    "-1.000u", "-0.100u", "\u22121.000u", "--1u", "- 1u", "0x10n", "0b1n", "1e400", "-1e400",
    "1e400u", "1e308K", "1e305", "-1e305", "1e-400", "4e-324", "inf", "INF", "-INF", "INFu", "nan",
    "NAN", "NANu", "-NAN", "infinity", "INFINITY", "seconds", "abc", "1.2.3u", "1e", "1e5.5n",
    "\uff12.000u", "1\u0000u", "0.4n", "0.5n", "0.49999999999999999n", "1.5n", "2.5n", "999.9995u",
    "2147483647n", "2147483648n", "4294967296n", "9007199254740993n", "1e22", "123456789012345678n",
    "\ud8002u", "\U0001d7d8u", "2.000u\u0000", "munKMG", "2.000000000000000000000001u", "00002u",
)
ODD_NUMBERS = (
    0, -0.0, 1, -1, 2, 3, 2.5, -2.5, 0.5, 1e-9, -1e-9, 5e-11, 4.9e-11, -1e-12, 1e-15, 1.1e-15,
    9e-16, 1e-305, 5e-324, 1e10, 1e13, 1e22, -1e22, 1e300, 1e305, 1.7e308, -1.7e308, 100, 101, 75,
    100.5, 10000, 2147483647, 2147483648, -2147483648, -2147483649, 4294967296, 9007199254740993,
    9223372036854775807, 9223372036854775808, 123456789012345678901234567890, 0.00005, 0.00015,
    2147483647.5, 214748.36475, 214748.3648, 1000.0, 999.99995, -1000, 5000, 1e-4,
)
MISTYPED = (None, True, False, "", "2", "2.000u", [], [1], {}, {"value": 1})


def cell(rng, shortest=20, longest=150000):
    """A legal time as the table shows it; most are short, as real ones are."""
    if rng.random() < 0.5:
        longest = max(shortest, min(longest, 20000))
    nanoseconds = rng.randint(shortest, longest)
    if nanoseconds < 1000:
        return f"{nanoseconds}.000n"
    return f"{nanoseconds // 1000}.{nanoseconds % 1000:03d}u"


def row(rng):
    return {"width": cell(rng), "gap": cell(rng)}


def legal(rng):
    """What the editor could have written."""
    high = rng.randint(-49990, 50000)
    low = rng.randint(-50000, high - 20) if high - 20 > -50000 else -50000
    high, low = high * 0.0001, low * 0.0001
    rows = [row(rng) for _ in range(rng.choice((2, 2, 2, 3, 5, 10, 30, rng.randint(2, 30))))]
    return {
        "multiple pulses": {
            "pulse leading": 0,
            "pulse trailing": 0,
            "voltage": {"amplitude": high - low, "offset": (high + low) * 0.5, "type": 1},
            "pulse numbers": {"maximum": 30, "minimum": 2, "value": len(rows)},
            "pulse width": {"maximum": 0.00015, "minimum": 2e-08, "default value": 2e-06},
            "pulse gap": {"maximum": 0.00015, "minimum": 2e-08, "default value": 1e-05},
            "trigger source": rng.randrange(3),
            "trigger slope": rng.randrange(2),
            "trigger delay": {
                "maximum": 0.00015, "minimum": 1e-06, "value": rng.randint(10000, 1500000) * 1e-10},
            "trigger timer": {
                "maximum": 500, "minimum": 2e-06,
                "value": rng.choice((0.001, rng.randint(20, 5000000000) * 1e-7, rng.random()))},
            "width/gap": rows,
            "load impedance": rng.choice((50, 10000)),
        }
    }


# --- ways to spoil one: each changes the members of "multiple pulses" in place -------------------


def edges(rng, top):
    """Edge times, which the editor leaves at zero, up to some longer than every pulse."""
    for key in ("pulse leading", "pulse trailing"):
        if rng.random() < 0.8:
            top[key] = rng.choice((1e-9, 1e-8, 1e-7, 1e-6, 1e-5, 3e-4)) * rng.uniform(0.1, 9)


def negative_edges(rng, top):
    key = rng.choice(("pulse leading", "pulse trailing"))
    top[key] = -rng.choice((1e-9, 1e-8, 1e-7, 1e-6)) * rng.uniform(0.1, 9)


def row_count(rng, top):
    count = rng.choice((0, 1, 2, 29, 30, 31, 100, 400))
    top["width/gap"] = [row(rng) for _ in range(count)]


def no_rows(rng, top):
    top["width/gap"] = []
    if rng.random() < 0.5:
        edges(rng, top)
    if rng.random() < 0.5:
        top["trigger delay"] = {"value": rng.choice(ODD_NUMBERS)}


def zero_period(rng, top):
    top["trigger delay"] = {"value": rng.choice((0, 0.0, 1e-12, -1e-12, 4e-11))}
    zero = rng.choice(("0", "", "0.000u", "abc", "2.000us", "0.4n"))
    top["width/gap"] = [{"width": zero, "gap": zero} for _ in range(rng.randrange(4))]
    if rng.random() < 0.3:
        top["pulse leading"] = rng.choice((1e-305, 1e-320, 1e-16, -1e-16, 9e-16, 2e-15))


def zero_groups(rng, top):
    for pulse in rows_of(top):
        if rng.random() < 0.4:
            pulse["width"] = pulse["gap"] = "0.000u"
    if rng.random() < 0.5:
        top["trigger delay"] = {"value": 0}


def rows_of(top):
    rows = top.get("width/gap")
    return [pulse for pulse in rows if isinstance(pulse, dict)] if isinstance(rows, list) else []


def odd_cells(rng, top):
    for pulse in rows_of(top):
        for key in ("width", "gap"):
            if rng.random() < 0.3:
                pulse[key] = rng.choice(ODD_CELLS)


def scrambled_cells(rng, top):
    """The figures of legal cells with a letter, blank or sign put in anywhere."""
    for pulse in rows_of(top):
        key = rng.choice(("width", "gap"))
        text = str(pulse.get(key, "")) or "2.000u"
        position = rng.randrange(len(text) + 1)
        pulse[key] = text[:position] + rng.choice("munKMGkUs -+.eE0 ") + text[position:]


def negative_cells(rng, top):
    for pulse in rows_of(top):
        if rng.random() < 0.4:
            pulse[rng.choice(("width", "gap"))] = "-" + cell(rng, 1, 3000)


def missing(rng, top):
    for _ in range(rng.randint(1, 4)):
        holder = rng.choice([top] + [part for part in top.values() if isinstance(part, dict)])
        if holder:
            del holder[rng.choice(sorted(holder))]
    for pulse in rows_of(top):
        if pulse and rng.random() < 0.1:
            del pulse[rng.choice(sorted(pulse))]


def mistyped(rng, top):
    for _ in range(rng.randint(1, 3)):
        if top:
            top[rng.choice(sorted(top))] = rng.choice(MISTYPED)
    rows = top.get("width/gap")
    if rows and isinstance(rows, list) and rng.random() < 0.5:
        rows[rng.randrange(len(rows))] = rng.choice(MISTYPED + (5, {"width": 2e-6, "gap": None}))


def odd_numbers(rng, top):
    places = (
        ("voltage", "amplitude"), ("voltage", "offset"), ("trigger delay", "value"),
        ("trigger timer", "value"), ("pulse leading",), ("pulse trailing",), ("trigger source",),
        ("trigger slope",), ("load impedance",))
    for place in rng.sample(places, rng.randint(1, 3)):
        holder = top if len(place) == 1 else top.get(place[0])
        if isinstance(holder, dict):
            holder[place[-1]] = rng.choice(ODD_NUMBERS)


def odd_levels(rng, top):
    amplitude = rng.choice(
        (0, 0.0001, -2, 1e-5, -1e-5, 3.00005, 2000, 2500, 1e6, rng.random() * 20))
    offset = rng.choice((0, 5000, -5000, 1001, -1001, 0.00005, rng.uniform(-1, 1), 1e9))
    top["voltage"] = {"amplitude": amplitude, "offset": offset, "type": 1}


def swallowed(rng, top):
    """So many rows that each gets a handful of points or none: a waveform of few points."""
    text = "1.000n"
    rows = [{"width": text, "gap": text} for _ in range(rng.randint(40000, 46000))]
    for pulse in rng.sample(rows, rng.randint(0, 4)):
        pulse["gap"] = f"{rng.randint(2, 90)}.000n"
    top["width/gap"] = rows
    top["pulse leading"] = top["pulse trailing"] = 1e-9
    top["trigger delay"] = {"value": rng.choice((0, 1e-9, 2e-8))}


def cancelling(rng, top):
    """Times of both signs whose sum is much smaller than each."""
    size = rng.choice((1, 1000, 1000000))
    text = cell(rng, 100 * size, 1000 * size)
    rows = [{"width": text, "gap": "1.000u"}, {"width": "-" + text, "gap": "1.000u"}]
    rng.shuffle(rows)
    top["width/gap"] = rows + ([row(rng)] if rng.random() < 0.5 else [])


ODD_WAYS = (
    edges, edges, negative_edges, row_count, no_rows, zero_period, zero_groups, odd_cells,
    odd_cells, scrambled_cells, negative_cells, missing, mistyped, odd_numbers, odd_numbers,
    odd_levels, cancelling)


def spoilt(rng, ways):
    document = legal(rng)
    for way in ways:
        way(rng, document["multiple pulses"])
    return document, ", ".join(way.__name__.replace("_", " ") for way in ways)


def odd(rng):
    """A document spoilt in one to three ways, and the names of the ways."""
    document, kind = spoilt(rng, rng.sample(ODD_WAYS, rng.choice((1, 1, 2, 3))))
    if rng.random() < 0.03:
        document = {"multiple pulses": rng.choice((None, [], 3, "x")), "more": 1}
    elif rng.random() < 0.05:
        document["another plug-in"] = {"value": 3}
    return document, kind


def random_document(rng, number):
    """A document and what it is, one in three as the editor writes it."""
    # A waveform of few points takes a large document, so these are rare, but one is always there.
    if number % 250 == 0:
        return spoilt(rng, [swallowed])
    if rng.random() < 0.33:
        return legal(rng), "legal"
    return odd(rng)


# Nothing of these may become a waveform.
REFUSED = (
    b"", b" ", b"{}", b"[]", b"[{\"multiple pulses\": {}}]", b"3", b"null", b"\"text\"", b"{",
    b"{]", b"{\"multiple pulses\": {}", b"{\"multiple pulses\": {},}",
    b"{\"multiple pulses\": 1e400}",
    b"{\"multiple pulses\": 1e-400}", b"{\"a\": NaN}", b"{\"a\": 0x1}", b"{'a': 1}", b"{\"a\": 01}",
    b"{\"a\": +1}", b"{\"a\": \"\xff\"}", b"{\"a\": 1} rest", b"\x00",
)
