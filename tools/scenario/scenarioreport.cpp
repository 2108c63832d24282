// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioreport.h"

#include <QStringList>

namespace {

QString itemText(const Keypad::ScreenItem& item)
{
    QStringList marks;
    if (!item.role.isEmpty())
        marks.append(item.role);
    if (!item.enabled)
        marks.append(QStringLiteral("disabled"));
    if (item.focus)
        marks.append(QStringLiteral("focused"));
    if (item.checked)
        marks.append(QStringLiteral("checked"));
    return QStringLiteral("    \"%1\" at %2,%3,%4x%5 (%6)")
        .arg(item.text)
        .arg(item.rect.x())
        .arg(item.rect.y())
        .arg(item.rect.width())
        .arg(item.rect.height())
        .arg(marks.join(QStringLiteral(", ")));
}

QStringList screenLines(const ScenarioFailure& failure)
{
    if (!failure.hasScreen)
        return {QStringLiteral("  the screen could not be read")};
    const QString busy = failure.screen.busy ? QStringLiteral(", busy") : QString();
    QStringList lines{QStringLiteral("  on the screen (%1%2):").arg(failure.screen.language, busy)};
    for (const Keypad::ScreenItem& item : failure.screen.items)
        lines.append(itemText(item));
    if (failure.screen.items.isEmpty())
        lines.append(QStringLiteral("    nothing"));
    return lines;
}

} // namespace

QString failureText(const ScenarioFailure& failure)
{
    QStringList lines{QStringLiteral("%1: %2").arg(failure.place, failure.statement)};
    if (!failure.step.isEmpty())
        lines.append(QStringLiteral("  step: %1").arg(failure.step));
    lines.append(QStringLiteral("  %1").arg(failure.reason));
    lines.append(screenLines(failure));
    if (!failure.picture.isEmpty())
        lines.append(QStringLiteral("  picture: %1").arg(failure.picture));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
