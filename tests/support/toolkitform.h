// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanel.h"
#include "logcapture.h"

#include <QDialog>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <memory>

/// A dialog as a plug-in shows one: it holds widgets of the toolkit in a column and notes the keys
/// that reach it. While it lives it takes the log, in which the toolkit notes what the user does.
class ToolkitForm : public QDialog
{
public:
    ToolkitForm()
    {
        // Room for a finger to slide off.
        (new QVBoxLayout(this))->setContentsMargins(40, 40, 40, 40);
        resize(480, 120);
    }

    /// A warning that nobody expects goes on to the test's log, where it fails the test.
    ~ToolkitForm() override
    {
        const QStringList unexpected = unexpectedWarnings();
        m_log.reset();
        for (const QString& line : unexpected)
            qWarning("%s", qPrintable(line));
    }
    ToolkitForm(const ToolkitForm&) = delete;
    ToolkitForm& operator=(const ToolkitForm&) = delete;

    template<typename Widget>
    Widget* add(Widget* widget)
    {
        widget->setMinimumHeight(40);
        layout()->addWidget(widget);
        return widget;
    }

    /// Shows the form; the focus is at the form itself.
    bool start()
    {
        show();
        const bool active = QTest::qWaitForWindowActive(this);
        setFocus();
        FrontPanel::settle();
        return active;
    }

    /// Lines of the log that warn of something else than what the toolkit always notes.
    static QStringList unexpectedWarnings()
    {
        static const QRegularExpression noted(QStringLiteral(
            "^(debug: .*|warning: (eventFilter \\d+ released|eventFilter knob press|"
            "actualSet valueLL .*|slt_editingFinished (paraChanged|don't emit paraChanged) .*|"
            "mouseMoveEvent QPoint.*|This plugin does not support .*))$"));
        QStringList unexpected;
        for (const QString& line : LogCapture::messages()) {
            if (!noted.match(line).hasMatch())
                unexpected.append(line);
        }
        return unexpected;
    }

    QVector<int> pressed;
    QVector<int> released;

protected:
    void keyPressEvent(QKeyEvent* event) override { pressed.append(event->key()); }
    void keyReleaseEvent(QKeyEvent* event) override { released.append(event->key()); }

private:
    std::unique_ptr<LogCapture> m_log = std::make_unique<LogCapture>();
};
