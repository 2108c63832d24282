// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "parametertable.h"
#include "setupdocument.h"

/// A setup document with the given number of pulses, all of different width.
inline QJsonObject benchmarkSetup(int pulses)
{
    SetupValues values;
    values.pulseCount = pulses;
    values.highLevel = 2.5;
    values.lowLevel = -0.5;
    values.triggerDelay = TriggerDelayRange.defaultValue;
    values.triggerTimer = TriggerTimerRange.defaultValue;
    for (int i = 0; i < pulses; ++i) {
        values.rows.append({QStringLiteral("%1.%2u").arg(1 + i % 7).arg(100 + i),
                            QStringLiteral("%1.250u").arg(3 + i % 5)});
    }
    return {{SetupKey::MultiplePulses, multiplePulsesFromValues(values)}};
}
