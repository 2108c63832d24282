// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

#include <functional>

/// An application that outlives the exceptions of plug-ins: what leaves an event handler is told
/// and goes no further.
class HostApplication : public QApplication
{
    Q_OBJECT

public:
    using Handler = std::function<void(const QString& words)>;

    HostApplication(int& argc, char** argv);

    /// Who is told, from the event loop, with the exception's words or an empty text.
    void setExceptionHandler(const Handler& handler) { m_handler = handler; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void tell(const QString& words);

    Handler m_handler;
};
