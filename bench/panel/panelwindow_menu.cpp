// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panelwindow.h"

#include "barbutton.h"
#include "panellanguages.h"
#include "statusstrip.h"
#include "tracearea.h"

#include <QMenu>

// Shortcuts are of the window, so that they work while the menu is closed.
QAction* PanelWindow::addMenuAction(const char* textId, const QKeySequence& keys)
{
    QAction* const action = m_menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(textId));
    action->setShortcut(keys);
    addAction(action);
    m_actions.append({action, textId});
    return action;
}

void PanelWindow::makeMenu()
{
    m_menu = new QMenu(this);
    m_menu->setObjectName(QStringLiteral("panelMenu"));
    connect(addMenuAction("PANELID_MENU_PICTURE", QKeySequence::Save), &QAction::triggered,
            m_traceArea, &TraceArea::askForPicture);
    connect(addMenuAction("PANELID_MENU_CSV", QKeySequence(Qt::CTRL | Qt::Key_E)),
            &QAction::triggered, m_traceArea, &TraceArea::askForCsv);
    m_menu->addSeparator();
    makeLanguageMenu();
    connect(addMenuAction("PANELID_MENU_FULL_SCREEN", QKeySequence(Qt::Key_F11)),
            &QAction::triggered, this, &PanelWindow::toggleFullScreen);
    m_menu->addSeparator();
    connect(addMenuAction("PANELID_MENU_HELP", QKeySequence(Qt::Key_F1)), &QAction::triggered, this,
            &PanelWindow::showHelp);
    connect(addMenuAction("PANELID_MENU_QUIT", QKeySequence(Qt::CTRL | Qt::Key_Q)),
            &QAction::triggered, this, &PanelWindow::close);
    m_strip->menuButton()->setMenu(m_menu);
    QAction* const open = new QAction(this);
    open->setShortcut(QKeySequence(Qt::Key_F10));
    connect(open, &QAction::triggered, m_strip->menuButton(), &QToolButton::showMenu);
    addAction(open);
}

void PanelWindow::makeLanguageMenu()
{
    m_languageMenu = m_menu->addMenu(QString());
    m_languageMenu->setObjectName(QStringLiteral("languageMenu"));
    for (const QString& language : PanelLanguages::all()) {
        QAction* const action = m_languageMenu->addAction(PanelLanguages::nameOf(language));
        action->setCheckable(true);
        action->setData(language);
        connect(action, &QAction::triggered, this, [this, language] {
            chooseLanguage(language);
            retranslate();
        });
    }
}
