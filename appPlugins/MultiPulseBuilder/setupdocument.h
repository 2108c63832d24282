// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "loadimpedance.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

/// Member names of the setup document, each spelled once.
namespace SetupKey {
const QLatin1String MultiplePulses("multiple pulses");
const QLatin1String PulseLeading("pulse leading");
const QLatin1String PulseTrailing("pulse trailing");
const QLatin1String Voltage("voltage");
const QLatin1String Amplitude("amplitude");
const QLatin1String Offset("offset");
const QLatin1String Type("type");
const QLatin1String PulseNumbers("pulse numbers");
const QLatin1String PulseWidth("pulse width");
const QLatin1String PulseGap("pulse gap");
const QLatin1String TriggerSource("trigger source");
const QLatin1String TriggerSlope("trigger slope");
const QLatin1String GapMode("Gap Mode");
const QLatin1String TriggerDelay("trigger delay");
const QLatin1String TriggerTimer("trigger timer");
const QLatin1String WidthGap("width/gap");
const QLatin1String Width("width");
const QLatin1String Gap("gap");
const QLatin1String LoadImpedance("load impedance");
const QLatin1String Maximum("maximum");
const QLatin1String Minimum("minimum");
const QLatin1String Value("value");
const QLatin1String DefaultValue("default value");
} // namespace SetupKey

/// Texts of one row of the pulse table, in engineering notation ("2.000u").
struct SetupRow
{
    QString width;
    QString gap;
};

/// What the editor shows, as it is stored: the input of a setup document.
struct SetupValues
{
    double pulseCount = 0;   ///< truncated to an integer when stored, saturating at 32 bits
    double highLevel = 0;    ///< volts
    double lowLevel = 0;     ///< volts
    double triggerDelay = 0; ///< seconds
    double triggerTimer = 0; ///< seconds
    int triggerSource = 0;
    int triggerSlope = 0;
    ::LoadImpedance load = ::LoadImpedance::Ohm50;
    QVector<SetupRow> rows;
};

/// The member "multiple pulses" of a setup document for the given values. The limits and default
/// values in it are constants of the format that no reader uses.
QJsonObject multiplePulsesFromValues(const SetupValues& values);

/// The member "multiple pulses" of the default setup: two pulses of 2 us with gaps of 10 us, levels
/// of 1 V and -1 V into 50 ohms, manual trigger, and "Gap Mode", which saved setups never carry.
QJsonObject defaultMultiplePulses();

/// The stored number of pulses, which need not be that of the rows; 0 where there is none.
int pulseCountOf(const QJsonObject& document);

/// The rows of the pulse table as they are stored; a missing text is empty.
QVector<SetupRow> rowsOf(const QJsonObject& document);
