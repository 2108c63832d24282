// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentsession.h"

#include "runsequence.h"

#include "input.h"
#include "scpiquery.h"

#include <QHostInfo>

namespace {

const QLatin1String Host("host");
const QLatin1String Port("port");

// More than any error queue holds: an instrument that always has one more error is not waited for.
const int MostErrors = 100;

bool findHost(const QString& name, QHostAddress& host)
{
    if (host.setAddress(name))
        return true;
    const QList<QHostAddress> addresses = QHostInfo::fromName(name).addresses();
    if (addresses.isEmpty())
        return false;
    host = addresses.constFirst();
    return true;
}

// The number before the comma of an entry such as 0,"No error".
std::optional<int> errorNumber(const QByteArray& entry)
{
    bool isNumber = false;
    const int number = entry.left(entry.indexOf(',')).toInt(&isNumber);
    return isNumber && entry.contains(',') ? std::optional<int>(number) : std::nullopt;
}

} // namespace

void addPlaceOptions(CommandLine& line)
{
    line.addOption({Host},
                   QStringLiteral("The instrument's address or name; 127.0.0.1 by default."),
                   QStringLiteral("HOST"));
    line.addOption({Port}, QStringLiteral("Its command server's port; 30000 by default."),
                   QStringLiteral("PORT"));
}

QString readPlace(const CommandLine& line, InstrumentPlace& place)
{
    if (line.isSet(Port)) {
        bool isNumber = false;
        const ushort port = line.value(Port).toUShort(&isNumber);
        if (!isNumber || port == 0)
            return QStringLiteral("--port: \"%1\" is no number from 1 to 65535")
                .arg(line.value(Port));
        place.port = port;
    }
    if (line.isSet(Host) && !findHost(line.value(Host), place.host))
        return QStringLiteral("--host: \"%1\" is not known").arg(line.value(Host));
    return QString();
}

InstrumentSession::InstrumentSession(const InstrumentPlace& place, Streams& streams)
    : m_place(place)
    , m_streams(streams)
    , m_link(place.host, place.port)
{}

bool InstrumentSession::fail(const QString& reason)
{
    printError(m_streams, m_place.text() + QLatin1String(": ") + reason);
    return false;
}

bool InstrumentSession::connectToInstrument()
{
    return m_link.connectToInstrument() ||
           fail(QStringLiteral("no connection to the instrument: ") + m_link.errorString());
}

bool InstrumentSession::send(const QVector<QByteArray>& commands)
{
    QByteArray failed;
    if (m_link.sendAll(commands, failed))
        return true;
    return fail(QStringLiteral("the connection was lost at the command \"%1\": %2")
                    .arg(shownCommand(failed), m_link.errorString()));
}

std::optional<QByteArray> InstrumentSession::confirm()
{
    const QByteArray reply = m_link.confirm(RunSequence::ClosingQuery);
    if (!reply.isEmpty())
        return reply;
    fail(QStringLiteral("the instrument does not confirm: no reply to the closing query: ") +
         m_link.errorString());
    return std::nullopt;
}

bool InstrumentSession::hasNoErrors()
{
    for (int count = 0; count < MostErrors; ++count) {
        QByteArray entry;
        const QString reason = askLine(m_link, "SYSTem:ERRor?\n", entry);
        if (!reason.isEmpty())
            return fail(reason);
        const std::optional<int> number = errorNumber(entry);
        const QString shown = printable(QString::fromUtf8(entry));
        if (!number)
            return fail(
                QStringLiteral("SYSTem:ERRor?: \"%1\" is no entry of an error queue").arg(shown));
        if (*number == 0)
            return count == 0;
        fail(QStringLiteral("the instrument reports ") + shown);
    }
    return fail(QStringLiteral("the instrument reports errors without an end"));
}
