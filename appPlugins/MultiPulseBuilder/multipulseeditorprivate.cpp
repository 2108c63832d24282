// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "dbutils.h"
#include "devicetable.h"
#include "multipulseeditor.h"
#include "parametertable.h"
#include "realcombcomponent.h"

#include <QDebug>
#include <QPointF>

namespace {

// Between high and low level, at the instrument's terminals into 50 ohms and into an open load.
const double LevelDistance = 0.001;
const double LevelDistanceHighZ = 0.002;

double deviceLimit(DeviceColumn column)
{
    return g_currentDeviceType.value(column).toDouble();
}

// The four quantities, each with its range as (minimum, maximum).
void logLevels(QDebug log, const MultiPulseEditorPrivate& model)
{
    log << "\n m_dbAmplitude" << model.m_dbAmplitude
        << QPointF(model.m_dbMinAmplitude, model.m_dbMaxAmplitude) << "\n m_dbOffset"
        << model.m_dbOffset << QPointF(model.m_dbMinOffset, model.m_dbMaxOffset)
        << "\n m_dbHighLevel" << model.m_dbHighLevel
        << QPointF(model.m_dbMinHighLevel, model.m_dbMaxHighLevel) << "\n m_dbLowLevel"
        << model.m_dbLowLevel << QPointF(model.m_dbMinLowLevel, model.m_dbMaxLowLevel)
        << "\n++++++++++++++++++++++++++++++++++++++++++\n";
}

} // namespace

MultiPulseEditorPrivate::MultiPulseEditorPrivate()
    : m_dbMaxAmplitude(deviceLimit(DeviceMaxAmplitude))
    , m_dbMinAmplitude(deviceLimit(DeviceMinAmplitude))
    , m_dbOffsetMinusConst(deviceLimit(DeviceOffsetMinus))
    , m_dbOffsetPlusConst(deviceLimit(DeviceOffsetPlus))
{}

double MultiPulseEditorPrivate::halfAmplitude() const
{
    return DBRound(m_dbAmplitude * 0.5, LevelResolution);
}

bool MultiPulseEditorPrivate::highZ() const
{
    return q_ptr->m_nLoadImp == 1;
}

void MultiPulseEditorPrivate::levelsFromAmplitudeAndOffset()
{
    const double half = halfAmplitude();
    m_dbHighLevel = half + m_dbOffset;
    m_dbLowLevel = m_dbOffset - half;
}

void MultiPulseEditorPrivate::amplitudeAndOffsetFromLevels()
{
    m_dbAmplitude = m_dbHighLevel - m_dbLowLevel;
    m_dbOffset = (m_dbLowLevel + m_dbHighLevel) * 0.5;
}

// The offset's range stays that of a 50-ohm load, whatever the load is.
void MultiPulseEditorPrivate::limitLevels(double boundFactor, double distance)
{
    const double half = halfAmplitude();
    m_dbMaxOffset = m_dbOffsetPlusConst - half;
    m_dbMinOffset = half + m_dbOffsetMinusConst;
    m_dbMaxHighLevel = boundFactor * m_dbOffsetPlusConst;
    m_dbMinHighLevel = m_dbLowLevel + distance;
    m_dbMaxLowLevel = m_dbHighLevel - distance;
    m_dbMinLowLevel = boundFactor * m_dbOffsetMinusConst;
}

void MultiPulseEditorPrivate::handHighRangeOver()
{
    q_ptr->m_pHighLevel->setMaxMinValue(m_dbMaxHighLevel, m_dbMinHighLevel);
}

void MultiPulseEditorPrivate::handLowRangeOver()
{
    q_ptr->m_pLowLevel->setMaxMinValue(m_dbMaxLowLevel, m_dbMinLowLevel);
}

void MultiPulseEditorPrivate::initMembers()
{
    const double half = halfAmplitude();
    m_dbMaxHighLevel = m_dbOffsetPlusConst;
    m_dbMaxOffset = m_dbOffsetPlusConst - half;
    m_dbMinLowLevel = m_dbOffsetMinusConst;
    m_dbMinOffset = half + m_dbOffsetMinusConst;
    m_dbMinHighLevel = m_dbOffsetMinusConst + LevelDistance;
    m_dbMaxLowLevel = m_dbOffsetPlusConst - LevelDistance;
    levelsFromAmplitudeAndOffset();
    logLevels(qInfo() << "MultiPulseEditorPrivate::initMembers()", *this);
}

void MultiPulseEditorPrivate::initHighLowLimits()
{
    if (highZ()) {
        qInfo() << "MultiPulseEditorPrivate::initHighLowLimits HighZ double all here";
        doubleLimits();
    }
    qDebug() << "MultiPulseEditorPrivate::initHighLowLimits highs" << m_dbMinHighLevel
             << m_dbMaxHighLevel;
    handHighRangeOver();
    qDebug() << "MultiPulseEditorPrivate::initHighLowLimits lows" << m_dbMinLowLevel
             << m_dbMaxLowLevel;
    handLowRangeOver();
}

// The distances to the other level are taken from the levels before the change.
void MultiPulseEditorPrivate::util_amplitudeChanged(const double& amplitude)
{
    m_dbAmplitude = amplitude;
    limitLevels(1, LevelDistance);

    const double half = halfAmplitude();
    handHighRangeOver();
    m_dbHighLevel = half + m_dbOffset;
    q_ptr->m_pHighLevel->set(m_dbHighLevel);
    handLowRangeOver();
    m_dbLowLevel = m_dbOffset - half;
    q_ptr->m_pLowLevel->set(m_dbLowLevel);
    logLevels(qWarning() << "MultiPulseEditorPrivate::util_amplitudeChanged", *this);
}

void MultiPulseEditorPrivate::util_offsetChanged(const double& offset)
{
    m_dbOffset = offset;
    levelsFromAmplitudeAndOffset();
    q_ptr->m_pHighLevel->set(m_dbHighLevel);
    q_ptr->m_pLowLevel->set(m_dbLowLevel);
    logLevels(qWarning() << "util_offsetChanged", *this);
}

void MultiPulseEditorPrivate::slt_highLevelChanged(const double& high)
{
    m_dbHighLevel = high;
    m_dbLowLevel = q_ptr->m_pLowLevel->get();
    amplitudeAndOffsetFromLevels();
    limitLevels(highZ() ? 2 : 1, highZ() ? LevelDistanceHighZ : LevelDistance);
    handHighRangeOver();
    handLowRangeOver();
    logLevels(qInfo() << "slt_highLevelChanged", *this);
}

// One millivolt is added to the least offset here and not for the high level; it is meant so.
void MultiPulseEditorPrivate::slt_lowLevelChanged(const double& low)
{
    m_dbLowLevel = low;
    m_dbHighLevel = q_ptr->m_pHighLevel->get();
    amplitudeAndOffsetFromLevels();
    limitLevels(highZ() ? 2 : 1, highZ() ? LevelDistanceHighZ : LevelDistance);
    m_dbMinOffset += 0.001;
    handHighRangeOver();
    handLowRangeOver();
    logLevels(qInfo() << "slt_lowLevelChanged", *this);
}

// The order keeps every value inside the limits that are in force when it is set: limits that widen
// come first, limits that narrow come last.
void MultiPulseEditorPrivate::rescaleLevels(bool toHighZ)
{
    const double factor = toHighZ ? 2 : 0.5;
    const double maxminFactor = toHighZ ? 2 : 1;
    m_dbHighLevel *= factor;
    m_dbLowLevel *= factor;
    amplitudeAndOffsetFromLevels();
    limitLevels(maxminFactor, maxminFactor * LevelDistance);

    if (toHighZ) {
        handHighRangeOver();
        handLowRangeOver();
    }
    q_ptr->m_pHighLevel->set(m_dbHighLevel);
    q_ptr->m_pLowLevel->set(m_dbLowLevel);
    if (!toHighZ) {
        handHighRangeOver();
        handLowRangeOver();
    }
}

void MultiPulseEditorPrivate::doubleLimits()
{
    m_dbMaxHighLevel *= 2;
    m_dbMinLowLevel *= 2;
    m_dbMinHighLevel = q_ptr->m_pLowLevel->get() + LevelDistanceHighZ;
    m_dbMaxLowLevel = q_ptr->m_pHighLevel->get() - LevelDistanceHighZ;
}

void MultiPulseEditorPrivate::widenForHighZ()
{
    doubleLimits();
    handHighRangeOver();
    handLowRangeOver();
}

void MultiPulseEditorPrivate::validate(double& value, double min, double max)
{
    const double smin = limitMinusSafety(DBRound(min, LevelResolution));
    const double smax = limitPlusSafety(DBRound(max, LevelResolution));
    if (smin > value)
        value = smin;
    else if (smax < value)
        value = smax;
    qWarning() << "MultiPulseEditorPrivate"
               << "validate"
               << "value" << value << QPointF(smin, smax);
}
