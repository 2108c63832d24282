// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sitext.h"

#include <qwt_scale_draw.h>
#include <qwt_text.h>

/// A scale with plain numbers, the same in every locale.
class PlainScaleDraw : public QwtScaleDraw
{
public:
    QwtText label(double value) const override { return trimmedNumber(value, 6); }
};

/// The scale at the right side, which names the levels.
class LevelScaleDraw : public QwtScaleDraw
{
public:
    explicit LevelScaleDraw(const QString& unit)
        : m_strUnit(unit)
    {
        enableComponent(QwtAbstractScaleDraw::Backbone, false);
        enableComponent(QwtAbstractScaleDraw::Ticks, false);
    }

    QwtText label(double value) const override
    {
        return trimmedNumber(value, 4) + QLatin1Char(' ') + m_strUnit;
    }

private:
    QString m_strUnit;
};
