// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadprotocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace {

const QByteArray HelloWord("hello kvx-host ");
const QByteArray ScreenWord("screen ");
const QByteArray ErrorWord("error ");

QByteArray withoutEnd(QByteArray line)
{
    if (line.endsWith('\n'))
        line.chop(1);
    return line;
}

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

QString shown(const QByteArray& line)
{
    QString text = QString::fromUtf8(line.left(40));
    for (QChar& character : text) {
        if (!character.isPrint())
            character = QLatin1Char('?');
    }
    return text;
}

// Decimal digits with a minus in front or none, as they are written and not otherwise.
bool readNumber(const QByteArray& text, int& number)
{
    bool isNumber = false;
    number = text.toInt(&isNumber);
    return isNumber && QByteArray::number(number) == text;
}

QString readValue(const QByteArray& line, const QByteArray& text, Keypad::Command& command)
{
    int value = 0;
    if (!readNumber(text, value))
        return QStringLiteral("\"%1\" has no number").arg(shown(line));
    const bool isTurn = command.kind == Keypad::Command::Turn;
    if (isTurn && (value == 0 || qAbs(value) > Keypad::MaxTurn))
        return QStringLiteral("the knob turns by 1 to %1 detents").arg(Keypad::MaxTurn);
    if (!isTurn && value <= 0)
        return QStringLiteral("there is no key %1").arg(value);
    command.value = value;
    return QString();
}

QJsonObject jsonOf(const Keypad::ScreenItem& item)
{
    return {{QStringLiteral("text"), item.text},       {QStringLiteral("x"), item.rect.x()},
            {QStringLiteral("y"), item.rect.y()},      {QStringLiteral("w"), item.rect.width()},
            {QStringLiteral("h"), item.rect.height()}, {QStringLiteral("enabled"), item.enabled},
            {QStringLiteral("focus"), item.focus},     {QStringLiteral("checked"), item.checked},
            {QStringLiteral("role"), item.role}};
}

Keypad::ScreenItem itemOf(const QJsonObject& json)
{
    const auto number = [&json](const char* name) {
        return json.value(QLatin1String(name)).toInt();
    };
    Keypad::ScreenItem item;
    item.text = json.value(QLatin1String("text")).toString();
    item.rect = QRect(number("x"), number("y"), number("w"), number("h"));
    item.enabled = json.value(QLatin1String("enabled")).toBool(true);
    item.focus = json.value(QLatin1String("focus")).toBool();
    item.checked = json.value(QLatin1String("checked")).toBool();
    item.role = json.value(QLatin1String("role")).toString();
    return item;
}

QString readScreen(const QByteArray& text, Keypad::ScreenDescription& screen)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject())
        return QStringLiteral("the screen's description: %1").arg(error.errorString());
    const QJsonObject json = document.object();
    if (!json.value(QLatin1String("items")).isArray())
        return QStringLiteral("the screen's description has no items");
    screen = {};
    screen.language = json.value(QLatin1String("language")).toString();
    screen.busy = json.value(QLatin1String("busy")).toBool();
    const QJsonArray items = json.value(QLatin1String("items")).toArray();
    for (const QJsonValue& item : items)
        screen.items.append(itemOf(item.toObject()));
    return QString();
}

} // namespace

QString Keypad::parseCommand(const QByteArray& wholeLine, Command& command)
{
    const QByteArray line = withoutEnd(wholeLine);
    if (line.size() > MaxCommandBytes)
        return QStringLiteral("a line may have %1 bytes").arg(MaxCommandBytes);
    const struct
    {
        QByteArray word;
        Command::Kind kind;
    } words[] = {
        {"press ", Command::Press}, {"release ", Command::Release}, {"turn ", Command::Turn}};
    if (line == "describe") {
        command = {Command::Describe, 0};
        return QString();
    }
    for (const auto& candidate : words) {
        if (!line.startsWith(candidate.word))
            continue;
        Command read{candidate.kind, 0};
        QString reason = readValue(line, line.mid(candidate.word.size()), read);
        if (reason.isEmpty())
            command = read;
        return reason;
    }
    return QStringLiteral("\"%1\" is no command").arg(shown(line));
}

QString Keypad::parseReply(const QByteArray& wholeLine, Reply& reply)
{
    const QByteArray line = withoutEnd(wholeLine);
    if (line.startsWith(ScreenWord)) {
        ScreenDescription screen;
        QString reason = readScreen(line.mid(ScreenWord.size()), screen);
        if (reason.isEmpty())
            reply = {Reply::Screen, QString(), screen};
        return reason;
    }
    if (line.startsWith(HelloWord))
        reply = {Reply::Hello, QString::fromUtf8(line.mid(HelloWord.size())), {}};
    else if (line.startsWith(ErrorWord))
        reply = {Reply::Error, QString::fromUtf8(line.mid(ErrorWord.size())), {}};
    else
        return QStringLiteral("\"%1\" is no reply").arg(shown(line));
    return QString();
}

QByteArray Keypad::commandLine(const Command& command)
{
    const QByteArray number = QByteArray::number(command.value);
    switch (command.kind) {
    case Command::Press:
        return "press " + number + '\n';
    case Command::Release:
        return "release " + number + '\n';
    case Command::Turn:
        return "turn " + number + '\n';
    case Command::Describe:
        break;
    }
    return "describe\n";
}

QByteArray Keypad::helloLine(const QString& version)
{
    return HelloWord + oneLine(version).toUtf8() + '\n';
}

QByteArray Keypad::screenLine(const ScreenDescription& screen)
{
    QJsonArray items;
    for (const ScreenItem& item : screen.items)
        items.append(jsonOf(item));
    const QJsonObject json{{QStringLiteral("language"), screen.language},
                           {QStringLiteral("busy"), screen.busy},
                           {QStringLiteral("items"), items}};
    return ScreenWord + QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray Keypad::errorLine(const QString& text)
{
    return ErrorWord + oneLine(text).toUtf8() + '\n';
}

bool Keypad::LineBuffer::takeLine(QByteArray& line)
{
    const int end = m_bytes.indexOf('\n');
    if (end < 0)
        return false;
    line = m_bytes.left(end);
    m_bytes.remove(0, end + 1);
    return true;
}

bool Keypad::LineBuffer::isOverlong() const
{
    const int end = m_bytes.indexOf('\n');
    return (end < 0 ? m_bytes.size() : end) > m_nMaxLineBytes;
}

QString Keypad::defaultSocketPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/kvx-keypad");
}
