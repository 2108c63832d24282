// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects what is logged while it lives, one entry a message ("warning: text"), instead of
/// letting the test's log have it. One at a time.
class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler(&LogCapture::collect);
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    static QStringList messages() { return lines(); }

private:
    static QStringList& lines()
    {
        static QStringList list;
        return list;
    }

    static void collect(QtMsgType type, const QMessageLogContext&, const QString& text)
    {
        static const char* const names[] = {"debug", "warning", "critical", "fatal", "info"};
        lines().append(QLatin1String(names[type]) + QLatin1String(": ") + text);
    }

    QtMessageHandler m_previous;
};
