#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The second calculation against numbers worked out by hand."""

import json
import math
import struct
import unittest

import trains
import waveforms
from doubles import divide, general_text, rounded, whole
from independent import run_commands
from trains import Train


def document(rows, **members):
    top = {
        "voltage": {"amplitude": 2, "offset": 0},
        "width/gap": [{"width": width, "gap": gap} for width, gap in rows],
    }
    top.update(members)
    return {"multiple pulses": top}


def waveform(rows, **members):
    return waveforms.waveform_file(Train(document(rows, **members)))


def runs(raw):
    """The samples as pairs of a value and how often it stands in a row."""
    result = []
    for (value,) in struct.iter_unpack("<h", raw[512:]):
        if result and result[-1][0] == value:
            result[-1][1] += 1
        else:
            result.append([value, 1])
    return [tuple(pair) for pair in result]


def commands(document_):
    return run_commands(Train(document_)).decode("ascii")


class Numbers(unittest.TestCase):
    def test_rounding(self):
        for value, step, expected in (
                (0.00005, 0.0001, 0.0001), (-0.00005, 0.0001, -0.0001), (0.00004, 0.0001, 0.0),
                (3e9, 1.0, 3e9), (2147483648.4, 1.0, 2147483648.0), (math.inf, 1e-6, math.inf),
                (-math.inf, 1e-6, -math.inf), (1e305, 1e-9, 1e305)):
            with self.subTest(value=value):
                self.assertEqual(rounded(value, step), expected)
        self.assertTrue(math.isnan(rounded(math.nan, 1.0)))

    def test_whole(self):
        for value, expected in (
                (math.nan, 0), (math.inf, 2147483647), (-math.inf, -2147483648), (2.9, 2),
                (-2.9, -2), (1e300, 2147483647)):
            with self.subTest(value=value):
                self.assertEqual(whole(value), expected)

    def test_division(self):
        self.assertEqual(divide(-1.0, 0.0), -math.inf)
        self.assertEqual(divide(1.0, -0.0), -math.inf)
        self.assertTrue(math.isnan(divide(0.0, 0.0)))

    def test_general_text(self):
        for value, digits, expected in (
                (0.0, 6, "0"), (-0.0, 6, "0"), (0.001, 6, "0.001"), (0.0001, 6, "0.0001"),
                (0.00001, 6, "1e-05"), (500.0, 6, "500"), (1e6, 6, "1e+06"),
                (1234565.0, 6, "1.23457e+06"), (100000.5, 6, "100001"), (-2.5, 20, "-2.5"),
                (0.1, 20, "0.10000000000000000555"), (1e100, 6, "1e+100"), (math.inf, 20, "inf"),
                (-math.inf, 20, "-inf"), (math.nan, 20, "nan")):
            with self.subTest(value=value, digits=digits):
                self.assertEqual(general_text(value, digits), expected)


class Reading(unittest.TestCase):
    def test_cells(self):
        for text, expected in (
                ("2.000u", 2e-06), ("10.000u", 1e-05), ("1.5K", 1500.0), ("3", 3.0), ("u5", 5e-06),
                ("letters", 0.0), ("2.000us", 0.0), ("2uu", 0.0), ("", 0.0), ("0x10n", 0.0),
                (" 7u ", 7e-06), ("inf", 0.0), ("INF", math.inf), ("1e400", math.inf)):
            with self.subTest(text=text):
                self.assertAlmostEqual(trains.cell_seconds(text), expected, delta=1e-15)

    def test_whole_members(self):
        for value, expected in (
                (2, 2), (2.0, 2), (2.5, 0), (1e10, 0), (2147483648, 0), (-2147483648, -2147483648),
                (True, 0), ("2", 0), (None, 0)):
            with self.subTest(value=value):
                self.assertEqual(trains.whole_of({"key": value}, "key"), expected)

    def test_load(self):
        for ohms, high_z in ((50, False), (75, False), (100, False), (101, True), (100.5, False)):
            train = Train(document([], **{"load impedance": ohms}))
            self.assertEqual(train.high_z, high_z, ohms)

    def test_refused(self):
        for raw in (b"", b"{}", b"[1]", b"{", b'{"a": NaN}', b'{"a": 1e400}', b'{"a": 1e-400}'):
            with self.subTest(raw=raw), self.assertRaises(trains.Refused):
                trains.parse_document(raw)
        self.assertEqual(trains.parse_document(json.dumps({"a": 1}).encode()), {"a": 1})


class Waveforms(unittest.TestCase):
    def test_half_and_half(self):
        raw = waveform([("1.000u", "1.000u")])
        self.assertEqual(runs(raw), [(32764, 65536), (-32764, 65536)])
        self.assertEqual(len(raw), 512 + 262144)
        self.assertEqual(raw[:16], b"QRNKVX60K" + bytes(7))
        self.assertEqual(raw[16:20].hex(), "c2f03101")
        self.assertEqual(struct.unpack_from("<dd", raw, 440), (2.0, 0.0))
        self.assertEqual(raw[456:512], bytes(56))

    def test_inverted(self):
        raw = waveform([("1.000u", "1.000u")], **{"trigger slope": 1})
        self.assertEqual(runs(raw), [(-32764, 65536), (32764, 65536)])

    def test_high_impedance_halves_levels(self):
        raw = waveform([("1.000u", "1.000u")], **{
            "load impedance": 10000, "voltage": {"amplitude": 3, "offset": -1}})
        self.assertEqual(struct.unpack_from("<dd", raw, 440), (1.5, -0.5))

    def test_edges_longer_than_the_width_leave_no_top(self):
        edges = {"pulse leading": 3, "pulse trailing": 3}
        volts = waveforms.samples_of(Train(document([("1", "1")], **edges)))
        # Each edge has 3/8 of the points, and a quarter more as a whole ramp.
        rise = 49152 + 12288
        self.assertEqual(volts.count(1.0), 1)
        self.assertEqual(volts.index(1.0), rise)
        self.assertEqual(volts[0], -1.0)
        self.assertEqual(volts[rise // 2], 0.0)
        self.assertEqual(volts[2 * rise:], [-1.0] * (131072 - 2 * rise))

    def test_no_time_no_points(self):
        for rows in ([], [("0", "0")]):
            raw = waveform(rows)
            self.assertEqual(len(raw), 512)
            self.assertEqual(raw[20:24], bytes(4))

    def test_empty_table_with_edges_fills_the_budget(self):
        raw = waveform(
            [], **{"trigger delay": {"value": 1e-6}, "pulse leading": 1e-6})
        self.assertEqual(runs(raw), [(0, 131072)])

    def test_constant(self):
        raw = waveform([("1.000u", "1.000u")], voltage={"amplitude": 0, "offset": 3})
        self.assertEqual(runs(raw), [(0, 131072)])


class Thumbnails(unittest.TestCase):
    def test_few_points_stand_each_in_a_column(self):
        picture = waveforms.thumbnail([0xFFFF, 0x0040] + [0] * 98)
        self.assertEqual(picture[:4], bytes((255, 255, 1, 1)))
        self.assertEqual(picture[4:], bytes(408))

    def test_strokes_reach_the_one_before(self):
        words = [0x0000] * 103 * 2 + [0x3FFF] * 103 * 2
        picture = waveforms.thumbnail(words)
        self.assertEqual(picture[102 * 2:105 * 2], bytes((0, 0, 0, 255, 255, 255)))

    def test_a_word_below_the_lower_end_leaves_the_upper_one(self):
        self.assertEqual(waveforms.stroke([128, 64, 128]), (1, 2))
        self.assertEqual(waveforms.stroke([128, 64]), (1, 2))


class Commands(unittest.TestCase):
    def test_frequency(self):
        for rows, members, expected in (
                ([("1.000u", "1.000u")], {}, "500000"), ([], {}, "inf"),
                ([], {"trigger delay": {"value": -1e-12}}, "inf"),
                ([("INF", "1u")], {}, "0"), ([("INF", "-INF")], {}, "nan")):
            with self.subTest(rows=rows):
                self.assertIn(f"FREQuency:FIXed {expected}\n", commands(document(rows, **members)))

    def test_trigger(self):
        manual = commands(document([], **{"trigger source": 0, "trigger slope": 7}))
        self.assertIn("TRIGger:SOURce EXTERNAL \nTRIGger:SLOPE NEGative \nOUTP1 ON \n", manual)
        timer = commands(document([], **{
            "trigger source": 2, "trigger timer": {"value": 0.00123456789}}))
        self.assertIn("TRIGger:SOURce TIMER\nTRIGger:TIMER 0.0012346\nOUTP1 ON \n", timer)

    def test_impedance(self):
        high = commands(document([], **{"load impedance": 101}))
        self.assertIn("OUTput1:IMPedance 10000\n", high)


if __name__ == "__main__":
    unittest.main()
