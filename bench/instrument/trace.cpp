// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "trace.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

int Trace::shownCycles() const
{
    if (isEmpty())
        return 0;
    if (std::isinf(cycles))
        return 1;
    const double fitting = std::max(1, MaxTraceSamples / cycle.size());
    return int(std::min(cycles, fitting));
}

double Trace::volts(int index) const
{
    return levelOffset + cycle.at(index % cycle.size()) * levelScale;
}

QByteArray definiteLengthBlock(const QByteArray& data)
{
    const QByteArray length = QByteArray::number(data.size());
    return "#" + QByteArray::number(length.size()) + length + data;
}

QByteArray traceBlock(const Trace& trace, ByteOrder order)
{
    const int cycleBytes = trace.cycle.size() * int(sizeof(qint16));
    QByteArray bytes(cycleBytes, Qt::Uninitialized);
    if (order == ByteOrder::Normal)
        qToBigEndian<qint16>(trace.cycle.constData(), trace.cycle.size(), bytes.data());
    else
        qToLittleEndian<qint16>(trace.cycle.constData(), trace.cycle.size(), bytes.data());
    return definiteLengthBlock(bytes.repeated(trace.shownCycles()));
}
