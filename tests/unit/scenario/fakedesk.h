// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "desk.h"

#include <QFileInfo>
#include <QStringList>
#include <QVector>

#include <functional>

/// A desk that keeps account of what is done at it and shows what it is told to.
class FakeDesk : public Desk
{
public:
    void touch(QPoint place) override { note(QStringLiteral("touch"), place); }
    void letGo(QPoint place) override { note(QStringLiteral("let go"), place); }
    void type(uint character) override
    {
        done.append(QStringLiteral("type %1").arg(QString::fromUcs4(&character, 1)));
    }
    void strikeKey(int code) override { done.append(QStringLiteral("key %1").arg(code)); }
    void turnKnob(int detents) override { done.append(QStringLiteral("turn %1").arg(detents)); }

    bool settle() override { return lost.isEmpty(); }
    bool describe(Keypad::ScreenDescription& description) override
    {
        ++looks;
        if (beforeLook)
            beforeLook(looks);
        description = screen;
        return lost.isEmpty();
    }
    bool picture(QImage& seen) override
    {
        seen = image;
        return lost.isEmpty();
    }
    QString plotOutput(const QString& path) override
    {
        if (noOutput.isEmpty())
            done.append(QStringLiteral("plot %1").arg(QFileInfo(path).fileName()));
        return noOutput;
    }
    void wait(int milliseconds) override { waited += milliseconds; }
    QString trouble() const override { return lost; }

    void show(const QString& text, const QRect& rect, bool enabled = true)
    {
        screen.items.append({text, rect, enabled, false, false, QStringLiteral("button")});
    }

    Keypad::ScreenDescription screen;
    QImage image;
    QString lost;
    QString noOutput; ///< why there is no plot
    QStringList done;
    int looks = 0;
    int waited = 0;
    std::function<void(int)> beforeLook; ///< called with the number of the look, from 1

private:
    void note(const QString& what, QPoint place)
    {
        done.append(QStringLiteral("%1 %2,%3").arg(what).arg(place.x()).arg(place.y()));
    }
};
