// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

/// Sends the process's standard output to a file while it lives. One at a time.
class StdoutCapture
{
public:
    StdoutCapture()
    {
        m_bOpen = m_file.open();
        std::fflush(stdout);
        m_nSaved = dup(STDOUT_FILENO);
        dup2(m_file.handle(), STDOUT_FILENO);
    }
    ~StdoutCapture() { restore(); }
    StdoutCapture(const StdoutCapture&) = delete;
    StdoutCapture& operator=(const StdoutCapture&) = delete;

    /// Ends the capture and returns what was printed.
    QByteArray text()
    {
        restore();
        m_file.seek(0);
        return m_bOpen ? m_file.readAll() : QByteArray("no capture");
    }

private:
    void restore()
    {
        if (m_nSaved < 0)
            return;
        std::fflush(stdout);
        dup2(m_nSaved, STDOUT_FILENO);
        ::close(m_nSaved);
        m_nSaved = -1;
    }

    QTemporaryFile m_file;
    bool m_bOpen = false;
    int m_nSaved = -1;
};

/// What @p action prints.
template<typename Action>
QByteArray printed(Action action)
{
    StdoutCapture capture;
    action();
    return capture.text();
}
