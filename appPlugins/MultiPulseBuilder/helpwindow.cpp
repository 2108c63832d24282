// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "helpwindow.h"

#include "editorlook.h"
#include "pluginsTranslation.h"
#include "translated.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScroller>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

QWidget* createHelpWindow(const QString& path)
{
    auto* window = new QWidget;
    window->setAttribute(Qt::WA_DeleteOnClose);
    // The instrument's screen frames no windows: the sheet draws a border.
    window->setAttribute(Qt::WA_StyledBackground);
    window->setObjectName(QStringLiteral("help"));
    window->setStyleSheet(EditorLook::helpStyleSheet());

    auto* title = new QLabel(QStringLiteral("Double Pulse Help"), window);
    auto* browser = new QTextBrowser(window);
    browser->resize(500, 500);
    // A finger scrolls the page.
    QScroller::grabGesture(browser->viewport(), QScroller::LeftMouseButtonGesture);
    browser->setSource(QUrl::fromLocalFile(path));
    auto* close = new QPushButton(appPlugins::translated(TR_ARBID_CLOSE), window);
    QObject::connect(close, &QPushButton::clicked, window, &QWidget::close);

    auto* layout = new QVBoxLayout(window);
    layout->setSpacing(EditorLook::Spacing);
    layout->addWidget(title);
    layout->addWidget(browser);
    layout->addWidget(close);

    window->resize(680, 432);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    window->move(screen.center() - window->rect().center());
    return window;
}
