// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "contentpaths.h"
#include "editorlook.h"
#include "frontpanelkeys.h"
#include "helpwindow.h"
#include "pluginsTranslation.h"
#include "translated.h"

#include <QAction>
#include <QCoreApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>

using appPlugins::translated;

namespace {

QAction* createAction(QObject* owner, const char* textId, const char* picture,
                      const char* disabledPicture = nullptr)
{
    QIcon icon(ContentPaths::picture(QLatin1String(picture)));
    if (disabledPicture != nullptr) {
        icon.addFile(ContentPaths::picture(QLatin1String(disabledPicture)), QSize(),
                     QIcon::Disabled);
    }
    return new QAction(icon, translated(textId), owner);
}

} // namespace

// The bar is laid out for the size that the window has while it is built, and keeps that geometry.
void MultiPulseEditor::createToolBar()
{
    createActions();

    m_pToolBar = new QToolBar(this);
    m_pToolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_pToolBar->setStyleSheet(EditorLook::toolBarStyleSheet(width(), height()));
    const QRect area = EditorLook::toolBarArea(width(), height());
    const int side = EditorLook::iconSize(area);
    m_pToolBar->setIconSize(QSize(side, side));
    m_pToolBar->setGeometry(area);
    createToolButtons();
}

void MultiPulseEditor::createActions()
{
    m_pActionOpen = createAction(this, TR_ARBID_OPEN, "open.png", "open_d.png");
    m_pActionClose = createAction(this, TR_ARBID_CLOSE, "close.png", "close_d.png");
    m_pActionSaveAs = createAction(this, TR_ARBID_SAVEAS, "save.png", "save_d.png");
    m_pActionDefault =
        createAction(this, TR_DBID_POWERON_STATE_DEFAULT_SETTING, "default.png", "default_d.png");
    m_pActionHelp = createAction(this, TR_STR_ID_HELP, "help.png");

    QIcon runIcon(ContentPaths::picture(QStringLiteral("run.png")));
    runIcon.addFile(ContentPaths::picture(QStringLiteral("stop.png")), QSize(), QIcon::Normal,
                    QIcon::On);
    m_pActionRun = new QAction(runIcon, translated(TR_STR_UTILITY_RUN), this);
    m_pActionRun->setCheckable(true);

    connect(m_pActionOpen, &QAction::triggered, this, &MultiPulseEditor::slt_OpenBtnClicked);
    connect(m_pActionClose, &QAction::triggered, this, &MultiPulseEditor::slt_closeBtnClicked);
    connect(m_pActionSaveAs, &QAction::triggered, this, &MultiPulseEditor::slt_saveAsBtnClicked);
    connect(m_pActionDefault, &QAction::triggered, this, &MultiPulseEditor::slt_DefaultBtnClicked);
    connect(m_pActionHelp, &QAction::triggered, this, &MultiPulseEditor::slt_HelpBtnClicked);
    connect(m_pActionRun, &QAction::triggered, this,
            &MultiPulseEditor::slt_runOrStopWaveformOutput);
}

void MultiPulseEditor::createToolButtons()
{
    m_pButtonOpen = addToolButton(m_pActionOpen);
    m_pButtonClose = addToolButton(m_pActionClose);
    m_pButtonSaveAs = addToolButton(m_pActionSaveAs);
    m_pButtonDefault = addToolButton(m_pActionDefault);
    m_pButtonHelp = addToolButton(m_pActionHelp);

    // Keeps Run away from the rest.
    auto* space = new QWidget(m_pToolBar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_pToolBar->addWidget(space);

    m_pButtonRun = addToolButton(m_pActionRun);
    m_pButtonRun->setCheckable(true);
}

QToolButton* MultiPulseEditor::addToolButton(QAction* action)
{
    auto* button = new QToolButton(m_pToolBar);
    button->setToolButtonStyle(m_pToolBar->toolButtonStyle());
    button->setIconSize(m_pToolBar->iconSize());
    button->setDefaultAction(action);
    m_pToolBar->addWidget(button);
    return button;
}

void MultiPulseEditor::slt_closeBtnClicked()
{
    if (!m_pButtonRun->isChecked())
        return reject();

    m_pButtonRun->click();
    if (parent() != nullptr) {
        QCoreApplication::postEvent(
            parent(), new QKeyEvent(QEvent::KeyRelease, QT_KEY_HOME, Qt::KeypadModifier));
    }
}

void MultiPulseEditor::slt_HelpBtnClicked()
{
    // Another press opens the page anew instead of a second window.
    delete m_HelpDlg;
    const QString address = ContentPaths::helpPage();
    m_HelpDlg = createHelpWindow(address);
    qDebug() << "MultiPulseEditor::slt_HelpBtnClicked" << address;
    connect(m_HelpDlg, &QObject::destroyed, this, [this] { m_HelpDlg = nullptr; });
    m_HelpDlg->show();
}
