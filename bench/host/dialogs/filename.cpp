// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filename.h"

#include <QtGlobal>

#include <algorithm>

namespace HostDialogs {

namespace {

// What the file systems of the instrument take as a name.
const int LongestName = 255;
// What a message takes of a name.
const int LongestShown = 40;

bool isInvisible(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return character == QChar::ReplacementCharacter;
    }
}

bool holdsInvisible(const QString& name)
{
    const QVector<uint> characters = name.toUcs4();
    // A half of a pair is no character, and may be lost on the way to UCS-4.
    return !name.isValidUtf16() || std::any_of(characters.begin(), characters.end(), isInvisible);
}

} // namespace

NameFault checkName(const QString& name)
{
    if (name.trimmed().isEmpty())
        return NameFault::Empty;
    if (name.contains(QLatin1Char('/')))
        return NameFault::Slash;
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return NameFault::Dots;
    if (name.startsWith(QLatin1Char('.')))
        return NameFault::Hidden;
    if (holdsInvisible(name))
        return NameFault::Control;
    if (name.toUtf8().size() > LongestName)
        return NameFault::TooLong;
    return NameFault::None;
}

QString faultText(NameFault fault)
{
    switch (fault) {
    case NameFault::Empty:
        return qtTrId("HOSTID_DLG_NAME_EMPTY");
    case NameFault::Slash:
        return qtTrId("HOSTID_DLG_NAME_SLASH");
    case NameFault::Dots:
        return qtTrId("HOSTID_DLG_NAME_DOTS");
    case NameFault::Hidden:
        return qtTrId("HOSTID_DLG_NAME_HIDDEN");
    case NameFault::Control:
        return qtTrId("HOSTID_DLG_NAME_CONTROL");
    case NameFault::TooLong:
        return qtTrId("HOSTID_DLG_NAME_LONG");
    case NameFault::None:
        break;
    }
    return {};
}

bool hasSuffix(const QString& name, const QStringList& suffixes)
{
    return suffixes.isEmpty() ||
           std::any_of(suffixes.begin(), suffixes.end(), [&name](const QString& suffix) {
               return name.endsWith(suffix, Qt::CaseInsensitive);
           });
}

QString completeName(const QString& typed, const QStringList& suffixes, const QString& chosen)
{
    const QString name = typed.trimmed();
    return name.isEmpty() || hasSuffix(name, suffixes) ? name : name + chosen;
}

QStringList suffixesOf(const QStringList& filters)
{
    QStringList suffixes;
    for (QString suffix : filters) {
        if (suffix.startsWith(QLatin1Char('*')))
            suffix.remove(0, 1);
        if (suffix.isEmpty() || suffix == QLatin1String(".*"))
            return {};
        suffixes.append(suffix);
    }
    suffixes.removeDuplicates();
    return suffixes;
}

QString shownName(const QString& name)
{
    QString shown;
    for (uint character : name.toUcs4()) {
        if (isInvisible(character))
            shown.append(QChar(QChar::ReplacementCharacter));
        else
            shown.append(QString::fromUcs4(&character, 1));
    }
    return shown;
}

QString withName(QString text, const QString& name)
{
    QString shown = shownName(name);
    if (shown.size() > LongestShown)
        shown = shown.left(LongestShown / 2) + QChar(0x2026) + shown.right(LongestShown / 2 - 1);
    return text.replace(QLatin1String("%1"), shown);
}

} // namespace HostDialogs
