// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsereference.h"

#include <QByteArray>

#include <cmath>
#include <random>
#include <vector>

/// A train in whole steps of its grids, with the document that says the same and a second
/// calculation of its samples. All times are positive.
struct TrainReference
{
    struct Row
    {
        int width; ///< nanoseconds
        int gap;   ///< nanoseconds
    };

    int delay = 0; ///< steps of 0.1 ns
    double leading = 0;
    double trailing = 0;
    int amplitude = 0; ///< steps of 0.1 mV
    int offset = 0;    ///< steps of 0.1 mV
    bool inverted = false;
    bool highZ = false;
    std::vector<Row> rows;
    std::vector<qint64> starts; ///< of each row's stretch, once samples() has run

    static TrainReference random(unsigned seed)
    {
        std::mt19937 source(seed);
        const auto count = [&source](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(source);
        };
        TrainReference train;
        train.delay = count(0, 3) == 0 ? 0 : count(10000, 1500000);
        train.leading = count(0, 1) == 0 ? 0 : count(1, 300) * 1e-9;
        train.trailing = count(0, 1) == 0 ? 0 : count(1, 300) * 1e-9;
        train.amplitude = count(0, 100000);
        train.offset = count(-50000, 50000);
        train.inverted = count(0, 1) != 0;
        train.highZ = count(0, 1) != 0;
        for (int i = count(1, 30); i > 0; --i)
            train.rows.push_back({count(20, 150000), count(20, 150000)});
        return train;
    }

    /// The members of the setup document.
    QByteArray members() const
    {
        QByteArray cells;
        for (const Row& row : rows)
            cells += (cells.isEmpty() ? "{" : ", {") + cell("width", row.width) + ", " +
                     cell("gap", row.gap) + "}";
        return "{\"trigger delay\": {\"value\": " + QByteArray::number(delay * 1e-10, 'g', 17) +
               "}, \"pulse leading\": " + QByteArray::number(leading, 'g', 17) +
               ", \"pulse trailing\": " + QByteArray::number(trailing, 'g', 17) +
               ", \"voltage\": {\"amplitude\": " + QByteArray::number(amplitude * 1e-4, 'g', 17) +
               ", \"offset\": " + QByteArray::number(offset * 1e-4, 'g', 17) +
               "}, \"trigger slope\": " + (inverted ? "1" : "0") +
               ", \"load impedance\": " + (highZ ? "10000" : "50") + ", \"width/gap\": [" + cells +
               "]}";
    }

    double fileAmplitude() const { return amplitude * 1e-4 / (highZ ? 2 : 1); }
    double fileOffset() const { return offset * 1e-4 / (highZ ? 2 : 1); }

    double period() const
    {
        double seconds = delay * 1e-10;
        for (const Row& row : rows)
            seconds += leading + row.width * 1e-9 + trailing + row.gap * 1e-9;
        return seconds;
    }

    /// The samples of all rows, one behind the other.
    std::vector<double> samples()
    {
        std::vector<double> all;
        starts.clear();
        for (size_t i = 0; i < rows.size(); ++i) {
            starts.push_back(qint64(all.size()));
            append(all, {i == 0 ? delay * 1e-10 : 0, leading, rows[i].width * 1e-9, trailing,
                         rows[i].gap * 1e-9});
        }
        return all;
    }

private:
    static QByteArray cell(const char* name, int nanoseconds)
    {
        return QByteArray("\"") + name + "\": \"" +
               QByteArray::number(nanoseconds / 1000.0, 'f', 3) + "u\"";
    }

    void append(std::vector<double>& all, const std::vector<double>& seconds) const
    {
        double cycle = 0;
        for (const double time : seconds)
            cycle += time;
        const double share = std::floor(cycle / period() * 128.0 * 1024.0);
        std::vector<double> points;
        qint64 total = 0;
        for (const double time : seconds) {
            points.push_back(std::floor(time / cycle * share));
            total += qint64(points.back());
        }

        const INFO_WFM wfm = {0, fileAmplitude(),   fileOffset(),
                              0, qint32(total - 1), qint32(total)};
        const INFO_PULSE pulse = {
            1, 0, points[2], points[1], points[3], qint32(points[0]), inverted ? 1 : 0, 0, 0};
        const PulseReference reference(wfm, pulse);
        for (qint64 i = 0; i < total; ++i)
            all.push_back(reference.at(i));
    }
};
