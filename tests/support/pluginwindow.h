// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanel.h"
#include "windowmodaldialogwithmask.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

/// The host behind the dialog: two inputs, one of them on a page, and the keys that nobody took
/// before.
class HostWindow : public QWidget
{
public:
    HostWindow()
        : page(new QWidget(this))
        , field(new QLineEdit(page))
        , other(new QLineEdit(this))
    {
        field->setObjectName(QStringLiteral("host field"));
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(page);
        layout->addWidget(other);
    }

    bool start()
    {
        show();
        const bool active = QTest::qWaitForWindowActive(this);
        field->setFocus();
        FrontPanel::settle();
        return active && field->hasFocus();
    }

    QWidget* page;
    QLineEdit* field;
    QLineEdit* other;
    QList<int> pressed;
    QList<int> released;

protected:
    void keyPressEvent(QKeyEvent* event) override { pressed.append(event->key()); }
    void keyReleaseEvent(QKeyEvent* event) override { released.append(event->key()); }
};

/// A plug-in's window; the test looks into it when it starts and while it runs.
class PluginWindow : public appPlugins::WindowModalDialogWithMask
{
public:
    explicit PluginWindow(QWidget* parent)
        : appPlugins::WindowModalDialogWithMask(parent)
    {}

    /// The result of exec(); whoever leaves the window open in inside() rejects it.
    int run(const std::function<void()>& inside)
    {
        QTimer::singleShot(0, this, [this, inside] {
            FrontPanel::settle();
            inside();
            if (isVisible())
                reject();
        });
        return exec();
    }

    void executeAtStartup() override
    {
        ++startups;
        if (atStartup)
            atStartup();
    }

    QLabel* mask() const { return findChild<QLabel*>(QStringLiteral("mask")); }
    QLabel* content() const { return findChild<QLabel*>(QStringLiteral("m_pSubClassFillArea")); }

    int startups = 0;
    std::function<void()> atStartup;
};
