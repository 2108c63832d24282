// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QStringList>
#include <QWidget>

/// A widget that writes down the keys that it gets, and takes them unless told otherwise.
class KeyRecorder : public QWidget
{
public:
    explicit KeyRecorder(QWidget* parent = nullptr)
        : QWidget(parent)
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    QStringList keys; ///< "+KEY" pressed, "-KEY" released, with the text behind it if it has one
    bool takes = true;

protected:
    void keyPressEvent(QKeyEvent* event) override { note(QLatin1Char('+'), event); }
    void keyReleaseEvent(QKeyEvent* event) override { note(QLatin1Char('-'), event); }

private:
    void note(QChar sign, QKeyEvent* event)
    {
        QString entry = sign + QString::number(event->key());
        if (!event->text().isEmpty())
            entry += QLatin1Char(' ') + event->text();
        keys.append(entry);
        event->setAccepted(takes);
    }
};
