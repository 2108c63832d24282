// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "errorqueue.h"

#include "scpitext.h"

namespace {

struct ErrorText
{
    int number;
    const char* text;
};

const ErrorText errorTexts[] = {
    {0, "No error"},
    {-100, "Command error"},
    {-101, "Invalid character"},
    {-102, "Syntax error"},
    {-103, "Invalid separator"},
    {-104, "Data type error"},
    {-105, "GET not allowed"},
    {-108, "Parameter not allowed"},
    {-109, "Missing parameter"},
    {-110, "Command header error"},
    {-111, "Header separator error"},
    {-112, "Program mnemonic too long"},
    {-113, "Undefined header"},
    {-114, "Header suffix out of range"},
    {-120, "Numeric data error"},
    {-121, "Invalid character in number"},
    {-123, "Exponent too large"},
    {-124, "Too many digits"},
    {-128, "Numeric data not allowed"},
    {-130, "Suffix error"},
    {-131, "Invalid suffix"},
    {-134, "Suffix too long"},
    {-138, "Suffix not allowed"},
    {-140, "Character data error"},
    {-141, "Invalid character data"},
    {-144, "Character data too long"},
    {-148, "Character data not allowed"},
    {-150, "String data error"},
    {-151, "Invalid string data"},
    {-158, "String data not allowed"},
    {-160, "Block data error"},
    {-161, "Invalid block data"},
    {-168, "Block data not allowed"},
    {-170, "Expression error"},
    {-171, "Invalid expression"},
    {-178, "Expression data not allowed"},
    {-200, "Execution error"},
    {-201, "Invalid while in local"},
    {-210, "Trigger error"},
    {-211, "Trigger ignored"},
    {-213, "Init ignored"},
    {-220, "Parameter error"},
    {-221, "Settings conflict"},
    {-222, "Data out of range"},
    {-223, "Too much data"},
    {-224, "Illegal parameter value"},
    {-225, "Out of memory"},
    {-226, "Lists not same length"},
    {-230, "Data corrupt or stale"},
    {-231, "Data questionable"},
    {-240, "Hardware error"},
    {-241, "Hardware missing"},
    {-250, "Mass storage error"},
    {-251, "Missing mass storage"},
    {-252, "Missing media"},
    {-253, "Corrupt media"},
    {-254, "Media full"},
    {-255, "Directory full"},
    {-256, "File name not found"},
    {-257, "File name error"},
    {-258, "Media protected"},
    {-300, "Device-specific error"},
    {-310, "System error"},
    {-311, "Memory error"},
    {-315, "Configuration memory lost"},
    {-321, "Out of memory"},
    {-330, "Self-test failed"},
    {-350, "Queue overflow"},
    {-360, "Communication error"},
    {-363, "Input buffer overrun"},
    {-365, "Time out error"},
    {-400, "Query error"},
    {-410, "Query INTERRUPTED"},
    {-420, "Query UNTERMINATED"},
    {-430, "Query DEADLOCKED"},
    {-440, "Query UNTERMINATED after indefinite response"},
    {-500, "Power on"},
    {-600, "User request"},
    {-700, "Request control"},
    {-800, "Operation complete"},
};

const char* findText(int number)
{
    for (const ErrorText& entry : errorTexts) {
        if (entry.number == number)
            return entry.text;
    }
    return nullptr;
}

QByteArray printable(QByteArray text)
{
    for (char& c : text) {
        if (c < ' ' || c > '~')
            c = '.';
    }
    return text;
}

} // namespace

QByteArray ErrorQueue::standardText(int number)
{
    const char* text = number > 0 ? nullptr : findText(number);
    if (text == nullptr && number < 0)
        text = findText(number / 100 * 100);
    return text == nullptr ? "Device-specific error" : text;
}

void ErrorQueue::push(int number, const QByteArray& detail)
{
    if (m_entries.size() >= Capacity) {
        m_entries.removeLast();
        number = QueueOverflow;
    }
    QByteArray text = standardText(number);
    if (!detail.isEmpty() && number != QueueOverflow)
        text += ';' + printable(detail);
    m_entries.enqueue(QByteArray::number(number) + ',' +
                      ScpiText::quoted(text.left(MaxTextLength)));
}

QByteArray ErrorQueue::take()
{
    return m_entries.isEmpty() ? QByteArrayLiteral("0,\"No error\"") : m_entries.dequeue();
}
