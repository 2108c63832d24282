// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostapplication.h"

#include <exception>

HostApplication::HostApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{}

bool HostApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        tell(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        tell(QString());
    }
    return false;
}

void HostApplication::tell(const QString& words)
{
    QMetaObject::invokeMethod(
        this,
        [this, words] {
            if (m_handler)
                m_handler(words);
        },
        Qt::QueuedConnection);
}
