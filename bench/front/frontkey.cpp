// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontkey.h"

#include "frontpanelkeys.h"

#include <QMap>

#include <algorithm>

namespace {

FrontKey key(const char* name, int code, const char* label, const QVector<int>& desktopKeys)
{
    return {QString::fromLatin1(name), code, QString::fromUtf8(label), desktopKeys};
}

FrontKey digit(int number)
{
    const QString text = QString::number(number);
    return {text, Qt::Key_0 + number, text, {Qt::Key_0 + number}};
}

QVector<FrontKey> makeKeys()
{
    QVector<FrontKey> keys;
    for (int number = 0; number <= 9; ++number)
        keys.append(digit(number));
    keys << key("point", Qt::Key_Period, ".", {Qt::Key_Period, Qt::Key_Comma})
         << key("minus", QT_KEY_MINUS, "+/−", {Qt::Key_Minus})
         << key("backspace", Qt::Key_Backspace, "", {Qt::Key_Backspace})
         << key("enter", Qt::Key_Return, "Enter", {Qt::Key_Return, Qt::Key_Enter})
         << key("cancel", Qt::Key_Cancel, "Cancel", {Qt::Key_Escape})
         << key("left", Qt::Key_Left, "", {Qt::Key_Left})
         << key("right", Qt::Key_Right, "", {Qt::Key_Right})
         << key("up", Qt::Key_Up, "", {Qt::Key_Up}) << key("down", Qt::Key_Down, "", {Qt::Key_Down})
         << key("knob", QT_KEY_KNOB, "", {Qt::Key_Space})
         << key("gn", QT_KEY_GN, "G/n", {Qt::Key_G, Qt::Key_N})
         << key("mu", QT_KEY_MU, "M/µ", {Qt::Key_M}) << key("km", QT_KEY_KM, "k/m", {Qt::Key_K})
         << key("x1", QT_KEY_X1, "x1", {Qt::Key_X})
         << key("home", QT_KEY_HOME, "Home", {Qt::Key_Home})
         << key("back", QT_KEY_BACK, "Back", {Qt::Key_B})
         << key("default", QT_KEY_DEFAULT, "Default", {Qt::Key_D})
         << key("utility", QT_KEY_UTLITY, "Utility", {Qt::Key_U})
         << key("manual", QT_KEY_MANUAL, "Manual", {Qt::Key_T})
         << key("help", QT_KEY_HELP, "Help", {Qt::Key_H})
         << key("channel1", QT_KEY_CH1ON, "CH1", {Qt::Key_O});
    return keys;
}

template<typename Predicate>
const FrontKey* findKey(Predicate isWanted)
{
    const QVector<FrontKey>& keys = frontKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), isWanted);
    return found == keys.end() ? nullptr : &*found;
}

} // namespace

const QVector<FrontKey>& frontKeys()
{
    static const QVector<FrontKey> keys = makeKeys();
    return keys;
}

const FrontKey* frontKeyByName(const QString& name)
{
    return findKey([&name](const FrontKey& candidate) { return candidate.name == name; });
}

const FrontKey* frontKeyByCode(int code)
{
    return findKey([code](const FrontKey& candidate) { return candidate.code == code; });
}

const FrontKey* frontKeyOfDesktop(int desktopKey)
{
    return findKey([desktopKey](const FrontKey& candidate) {
        return candidate.desktopKeys.contains(desktopKey);
    });
}

QString desktopKeyName(int desktopKey)
{
    static const QMap<int, QString> names = {
        {Qt::Key_Backspace, QStringLiteral("Backspace")},
        {Qt::Key_Return, QStringLiteral("Enter")},
        {Qt::Key_Enter, QStringLiteral("Enter")},
        {Qt::Key_Escape, QStringLiteral("Esc")},
        {Qt::Key_Space, QStringLiteral("Space")},
        {Qt::Key_Home, QStringLiteral("Home")},
        {Qt::Key_Left, QStringLiteral("←")},
        {Qt::Key_Right, QStringLiteral("→")},
        {Qt::Key_Up, QStringLiteral("↑")},
        {Qt::Key_Down, QStringLiteral("↓")},
        {Qt::Key_Minus, QStringLiteral("−")},
    };
    const auto name = names.constFind(desktopKey);
    return name == names.constEnd() ? QString(QChar(desktopKey)) : *name;
}
