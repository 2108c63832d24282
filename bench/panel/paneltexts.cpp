// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "paneltexts.h"

#include "frontkey.h"

namespace {

QString tableRow(const QString& first, const QString& second, const QString& third)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2&nbsp;&nbsp;</td><td>%3</td></tr>")
        .arg(first, second.toHtmlEscaped(), third.toHtmlEscaped());
}

QString labelOf(const FrontKey& key)
{
    return key.label.isEmpty() ? QString() : QStringLiteral("<b>%1</b>").arg(key.label);
}

QString keyTable()
{
    QString rows;
    for (const FrontKey& key : frontKeys())
        rows += tableRow(labelOf(key), PanelTexts::keyMeaning(key), PanelTexts::keyEquivalent(key));
    return QStringLiteral("<table>%1</table>").arg(rows);
}

} // namespace

QString PanelTexts::keyMeaning(const FrontKey& key)
{
    const QByteArray name = key.name.toUpper().toLatin1();
    if (key.name.size() == 1 && key.name.at(0).isDigit())
        return qtTrId("PANELID_KEY_DIGIT").arg(key.name);
    return qtTrId(QByteArray("PANELID_KEY_" + name).constData());
}

QString PanelTexts::keyEquivalent(const FrontKey& key)
{
    QStringList names;
    for (const int desktopKey : key.desktopKeys) {
        const QString name = desktopKeyName(desktopKey);
        if (!names.contains(name))
            names.append(name);
    }
    return names.join(QLatin1Char(' ') + qtTrId("PANELID_OR") + QLatin1Char(' '));
}

QString PanelTexts::keyHelp(const FrontKey& key)
{
    const QString help = qtTrId("PANELID_KEY_HELP_FORM").arg(keyMeaning(key), keyEquivalent(key));
    return key.name == QLatin1String("knob")
               ? help + QLatin1Char('\n') + qtTrId("PANELID_KNOB_TURN")
               : help;
}

QString PanelTexts::helpPage()
{
    return qtTrId("PANELID_HELP_TOUCH") + qtTrId("PANELID_HELP_AREAS") +
           qtTrId("PANELID_HELP_TRACE") +
           QStringLiteral("<h3>%1</h3>").arg(qtTrId("PANELID_HELP_KEYS")) + keyTable();
}
