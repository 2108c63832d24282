// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "apptypes.h"

#include <QObject>

class MultiPulseEditor;

/// The level model of the editor: amplitude, offset, high level and low level, coupled, with the
/// range that each may take. All numbers are volts at the load.
///
/// It takes every value that it is given, and hands the ranges that follow from it to the editor's
/// high- and low-level components, which enforce them.
class MultiPulseEditorPrivate : public QObject
{
    Q_OBJECT

public:
    /// Reads the limits of the instrument from g_currentDeviceType, once; a missing column reads as
    /// 0. The ranges are set by initMembers().
    MultiPulseEditorPrivate();

    /// Derives both levels and all ranges from amplitude and offset.
    void initMembers();

    /// Hands the ranges to the components; into a high-impedance load they are doubled first. Runs
    /// once after initMembers(): a second run would double again.
    void initHighLowLimits();

    /// Takes the amplitude of a setup and shows the levels that follow, with the limits of a 50-ohm
    /// load.
    void util_amplitudeChanged(const double& amplitude);

    /// Takes the offset of a setup and shows the levels that follow; ranges stay.
    void util_offsetChanged(const double& offset);

    /// Takes the levels of the components into high impedance or back to 50 ohms: the values are
    /// doubled or halved, and the limits are those of the new load.
    void rescaleLevels(bool toHighZ);

    /// Doubles the outer limits for the high-impedance load of a setup, whatever the load was, and
    /// hands the ranges to the components.
    void widenForHighZ();

    /// Clamps @p value into a range that is rounded to 0.1 mV and widened by the safety margins.
    void validate(double& value, double min, double max);

public Q_SLOTS:
    /// The user has set a level: the other one is read from its component. Hands the new ranges
    /// over, and sets neither component's value.
    void slt_highLevelChanged(const double& high);
    void slt_lowLevelChanged(const double& low);

public:
    MultiPulseEditor* q_ptr = nullptr; ///< the editor whose components show the levels

    const double m_dbMaxAmplitude; ///< Vpp; a constant of the instrument, applied by nobody here
    const double m_dbMinAmplitude; ///< Vpp; likewise
    const double m_dbOffsetMinusConst; ///< negative level bound
    const double m_dbOffsetPlusConst;  ///< positive level bound
    double m_dbAmplitude = 2.5;
    double m_dbOffset = 0;
    double m_dbMaxOffset = 0;
    double m_dbMinOffset = 0;
    double m_dbHighLevel = 0;
    double m_dbMaxHighLevel = 0;
    double m_dbMinHighLevel = 0;
    double m_dbLowLevel = 0;
    double m_dbMaxLowLevel = 0;
    double m_dbMinLowLevel = 0;

private:
    double halfAmplitude() const;
    bool highZ() const;
    void levelsFromAmplitudeAndOffset();
    void amplitudeAndOffsetFromLevels();
    void limitLevels(double boundFactor, double distance);
    void doubleLimits();
    void handHighRangeOver();
    void handLowRangeOver();
};
