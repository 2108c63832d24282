// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiframer.h"

#include "scpitext.h"

#include <algorithm>

void ScpiFramer::append(const QByteArray& bytes)
{
    for (const char c : bytes)
        take(c);
}

bool ScpiFramer::next(Message& message)
{
    if (m_complete.isEmpty())
        return false;
    message = m_complete.dequeue();
    return true;
}

void ScpiFramer::take(char c)
{
    if (c == '\n' && m_state != BlockData) {
        finish();
        return;
    }
    if (m_current.bytes.size() >= MaxMessageLength) {
        m_current.isOverrun = true;
        m_current.bytes.clear();
    }
    if (!m_current.isOverrun)
        m_current.bytes.append(c);
    advance(c);
}

void ScpiFramer::advance(char c)
{
    switch (m_state) {
    case Quoted:
        // A doubled quote leaves the string and enters it again at once, which is as good.
        if (c == m_quote)
            m_state = Parameter;
        break;
    case BlockStart:
        advanceBlockStart(c);
        break;
    case BlockLength:
        advanceBlockLength(c);
        break;
    case BlockData:
        if (--m_nBlockBytes == 0)
            m_state = Parameter;
        break;
    default:
        advanceOutside(c);
    }
}

void ScpiFramer::advanceOutside(char c)
{
    if (c == ';') {
        m_state = Header;
        m_bHeaderSeen = false;
    } else if (ScpiText::isQuote(c)) {
        m_state = Quoted;
        m_quote = c;
    } else if (c == '#' && m_state == Gap) {
        m_state = BlockStart;
    } else if (ScpiText::isBlank(c) || c == ',') {
        m_state = m_bHeaderSeen ? Gap : m_state;
    } else {
        m_state = m_state == Header ? Header : Parameter;
        m_bHeaderSeen = true;
    }
}

void ScpiFramer::advanceBlockStart(char c)
{
    const bool isDefinite = c >= '1' && c <= '9';
    if (!isDefinite) {
        m_state = Parameter;
        advanceOutside(c);
        return;
    }
    m_state = BlockLength;
    m_nLengthDigits = c - '0';
    m_nBlockBytes = 0;
}

void ScpiFramer::advanceBlockLength(char c)
{
    if (!ScpiText::isDigit(c)) {
        m_state = Parameter;
        advanceOutside(c);
        return;
    }
    m_nBlockBytes = m_nBlockBytes * 10 + (c - '0');
    if (--m_nLengthDigits == 0)
        m_state = m_nBlockBytes > 0 ? BlockData : Parameter;
}

void ScpiFramer::finish()
{
    const bool isEmpty =
        std::all_of(m_current.bytes.cbegin(), m_current.bytes.cend(), ScpiText::isBlank);
    if (m_current.isOverrun || !isEmpty)
        m_complete.enqueue(m_current);
    m_current = Message();
    m_state = Header;
    m_bHeaderSeen = false;
}
