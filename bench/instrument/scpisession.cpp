// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpisession.h"

#include "scpiinstrument.h"

QByteArray ScpiSession::execute(const ScpiFramer::Message& message)
{
    if (!message.isOverrun)
        return m_instrument.execute(message.bytes);
    m_instrument.reportError(-363);
    return QByteArray();
}

QByteArray ScpiSession::feed(const QByteArray& bytes)
{
    append(bytes);
    QByteArray replies;
    ScpiFramer::Message message;
    while (next(message))
        replies += execute(message);
    return replies;
}
