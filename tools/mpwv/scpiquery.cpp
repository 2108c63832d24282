// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiquery.h"

#include "input.h"
#include "instrumentlink.h"

#include <cmath>

namespace {

// Magnitudes from here on stand for infinity and for what is not a number.
const double LargestNumber = 9.9e37;

QString failure(const QByteArray& query, const QString& reason)
{
    return QStringLiteral("%1: %2").arg(shownCommand(query), reason);
}

QString noReply(const InstrumentLink& link, const QByteArray& query)
{
    return failure(query, QStringLiteral("no reply: %1").arg(link.errorString()));
}

QString shownReply(const QByteArray& reply)
{
    return printable(QString::fromLatin1(reply.left(80)));
}

QString noEnd(const QByteArray& query, const QByteArray& reply)
{
    return failure(query, QStringLiteral("the reply has no end: \"%1\"").arg(shownReply(reply)));
}

// Reads until the reply is whole. A reply of which only a part comes counts as none.
template<typename State>
QString readWhile(InstrumentLink& link, const QByteArray& query, QByteArray& bytes, State isPartial)
{
    while (isPartial()) {
        const QByteArray piece = link.waitForReply();
        if (piece.isEmpty())
            return bytes.isEmpty() ? noReply(link, query) : noEnd(query, bytes);
        bytes += piece;
    }
    return QString();
}

} // namespace

QString askLine(InstrumentLink& link, const QByteArray& query, QByteArray& reply)
{
    if (!link.send(query))
        return failure(query, link.errorString());
    QByteArray bytes;
    QString reason = readWhile(link, query, bytes, [&bytes] {
        return !bytes.contains('\n') && bytes.size() <= MaxLineBytes;
    });
    if (!reason.isEmpty())
        return reason;
    if (!bytes.contains('\n'))
        return noEnd(query, bytes);
    reply = bytes.left(bytes.indexOf('\n')).trimmed();
    return QString();
}

QString askBlock(InstrumentLink& link, const QByteArray& query, QByteArray& data)
{
    if (!link.send(query))
        return failure(query, link.errorString());
    QByteArray bytes;
    BlockState state = BlockState::Incomplete;
    QString reason = readWhile(link, query, bytes, [&] {
        state = parseBlock(bytes, data);
        return state == BlockState::Incomplete;
    });
    if (!reason.isEmpty())
        return reason;
    if (state == BlockState::Malformed)
        return failure(
            query, QStringLiteral("the reply is no block of data: \"%1\"").arg(shownReply(bytes)));
    return QString();
}

QString askNumber(InstrumentLink& link, const QByteArray& query, double& number)
{
    QByteArray reply;
    QString reason = askLine(link, query, reply);
    if (!reason.isEmpty())
        return reason;
    bool isNumber = false;
    const double value = reply.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value) || std::fabs(value) >= LargestNumber)
        return failure(query, QStringLiteral("\"%1\" is no number").arg(shownReply(reply)));
    number = value;
    return QString();
}

QString shownCommand(const QByteArray& command)
{
    return printable(QString::fromUtf8(command.trimmed()));
}
