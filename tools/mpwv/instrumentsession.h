// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "commandline.h"

#include "instrumentlink.h"

#include <QByteArray>
#include <QHostAddress>
#include <QVector>

#include <optional>

/// Where the instrument's command server is.
struct InstrumentPlace
{
    QHostAddress host = QHostAddress(QHostAddress::LocalHost);
    quint16 port = InstrumentLink::DefaultPort;

    QString text() const { return QStringLiteral("%1:%2").arg(host.toString()).arg(port); }
};

/// The options "--host" and "--port".
void addPlaceOptions(CommandLine& line);

/// Reads the two options; a host may be an address or a name. Returns an empty text and fills
/// @p place, or the complaint.
QString readPlace(const CommandLine& line, InstrumentPlace& place);

/// One connection of a command of the tool to the instrument. What fails is printed on the error
/// stream, with the place and the command that it failed at.
class InstrumentSession
{
public:
    InstrumentSession(const InstrumentPlace& place, Streams& streams);

    bool connectToInstrument();
    bool send(const QVector<QByteArray>& commands);

    /// Asks the closing query; the reply, or nothing when none came.
    std::optional<QByteArray> confirm();

    /// Empties the instrument's error queue and prints its entries. True when it was empty.
    bool hasNoErrors();

    /// Prints a failure that is no complaint of the link itself. Returns false.
    bool fail(const QString& reason);

    InstrumentLink& link() { return m_link; }

private:
    InstrumentPlace m_place;
    Streams& m_streams;
    InstrumentLink m_link;
};
