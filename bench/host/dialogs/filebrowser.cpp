// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filebrowser.h"

#include "breadcrumb.h"
#include "dialogbutton.h"
#include "dialoglook.h"
#include "filelist.h"
#include "filemodel.h"
#include "filename.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QVBoxLayout>

// What a browser consists of, and its texts.

namespace HostDialogs {

namespace {

const int Margin = 12;
const int Spacing = 6;
const int NameHeight = 46;
const int ButtonHeight = 60;
const int ButtonWidth = 170;
// Changes of a folder come in swarms.
const int ReloadDelay = 150;

} // namespace

FileBrowser::FileBrowser(const Request& request)
    : m_request(request)
    , m_userFolder(request.userData)
    , m_suffixes(suffixesOf(request.filters))
    , m_pFiles(new FileModel(this))
    , m_pList(new FileList(m_pFiles, panel()))
    , m_pWay(new Breadcrumb(panel()))
{
    setObjectName(QStringLiteral("file browser"));
    build();
    m_reload.setSingleShot(true);
    m_reload.setInterval(ReloadDelay);
    connect(&m_reload, &QTimer::timeout, this, &FileBrowser::reload);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reload,
            QOverload<>::of(&QTimer::start));
    connect(m_pWay, &Breadcrumb::depthChosen, this, &FileBrowser::goToDepth);
    connect(m_pList, &FileList::tapped, this, &FileBrowser::rowTapped);
    connect(m_pList, &FileList::doubleTapped, this, &FileBrowser::rowEntered);
    connect(m_pList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FileBrowser::selectionChanged);

    filterBy(m_request.mode == Save && !m_suffixes.isEmpty() ? 0 : -1);
    sortBy(false);
    enter(m_request.start);
    if (m_pName != nullptr)
        m_pName->setFocus();
    else
        m_pList->setFocus();
}

DialogButton* FileBrowser::addButton(const char* name, QHBoxLayout* row, int stretch)
{
    auto* button = new DialogButton(panel());
    button->setObjectName(QLatin1String(name));
    row->addWidget(button, stretch);
    return button;
}

void FileBrowser::build()
{
    auto* rows = new QVBoxLayout(panel());
    rows->setContentsMargins(Margin, 8, Margin, Margin);
    rows->setSpacing(Spacing);
    const auto addRow = [rows](QLayout* row) { rows->addLayout(row); };
    auto* titleRow = new QHBoxLayout;
    auto* nameRow = new QHBoxLayout;
    auto* pathRow = new QHBoxLayout;
    auto* buttonRow = new QHBoxLayout;
    addRow(titleRow);
    addRow(nameRow);
    addRow(pathRow);
    rows->addWidget(m_pList, 1);
    addRow(buttonRow);
    for (QHBoxLayout* row : {titleRow, nameRow, pathRow})
        row->setSpacing(Spacing);
    buildTitleRow(titleRow);
    if (m_request.mode == Save)
        buildNameRow(nameRow);
    buildPathRow(pathRow);
    buildButtonRow(buttonRow);
    orderFocus();
}

// Right of the list come the buttons that end the browser, and only then the rest.
void FileBrowser::orderFocus()
{
    QWidget* last = m_pList;
    const auto next = [&last](QWidget* widget) {
        if (widget == nullptr)
            return;
        QWidget::setTabOrder(last, widget);
        last = widget;
    };
    next(m_pAccept);
    next(m_pCancel);
    next(m_pAllTypes);
    for (DialogButton* button : qAsConst(m_filterButtons))
        next(button);
    next(m_pName);
    for (DialogButton* button :
         m_pWay->findChildren<DialogButton*>(QRegularExpression(QStringLiteral("home|up"))))
        next(button);
    next(m_pNewFolder);
    next(m_pSortName);
    next(m_pSortDate);
}

void FileBrowser::buildTitleRow(QHBoxLayout* row)
{
    m_pTitle = new QLabel(panel());
    m_pTitle->setFont(DialogLook::textFont(20, true));
    m_pTitle->setMinimumHeight(44);
    m_pTitle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    row->addWidget(m_pTitle, 1);
    if (m_suffixes.size() > 1)
        buildFilters(row);
}

// A file to save has one type; files to open may be looked at all together.
void FileBrowser::buildFilters(QHBoxLayout* row)
{
    if (m_request.mode == Open) {
        m_pAllTypes = addButton("all types", row);
        m_pAllTypes->setCheckable(true);
        connect(m_pAllTypes, &DialogButton::clicked, this, [this] { filterBy(-1); });
    }
    for (int i = 0; i < m_suffixes.size(); ++i) {
        DialogButton* const button = addButton("filter", row);
        button->setCheckable(true);
        button->setText(shownName(m_suffixes.at(i)));
        connect(button, &DialogButton::clicked, this, [this, i] { filterBy(i); });
        m_filterButtons.append(button);
    }
}

void FileBrowser::buildNameRow(QHBoxLayout* row)
{
    m_pNameLabel = new QLabel(panel());
    m_pNameLabel->setFont(DialogLook::textFont());
    m_pName = new QLineEdit(m_request.name, panel());
    m_pName->setObjectName(QStringLiteral("name"));
    m_pName->setFont(DialogLook::textFont(18));
    m_pName->setFixedHeight(NameHeight);
    m_pName->setContextMenuPolicy(Qt::NoContextMenu);
    row->addWidget(m_pNameLabel);
    row->addWidget(m_pName, 1);
    connect(m_pName, &QLineEdit::textChanged, this, &FileBrowser::selectionChanged);
}

void FileBrowser::buildPathRow(QHBoxLayout* row)
{
    row->addWidget(m_pWay, 1);
    if (m_request.mode == Save) {
        m_pNewFolder = addButton("new folder", row);
        m_pNewFolder->setGlyph(Glyph::NewFolder);
        connect(m_pNewFolder, &DialogButton::clicked, this, &FileBrowser::createFolder);
    }
    m_pSortName = addButton("sort by name", row);
    m_pSortDate = addButton("sort by date", row);
    for (DialogButton* button : {m_pSortName, m_pSortDate})
        button->setCheckable(true);
    connect(m_pSortName, &DialogButton::clicked, this, [this] { sortBy(false); });
    connect(m_pSortDate, &DialogButton::clicked, this, [this] { sortBy(true); });
}

void FileBrowser::buildButtonRow(QHBoxLayout* row)
{
    row->setSpacing(14);
    row->addStretch(1);
    m_pAccept = addButton("accept", row);
    m_pCancel = addButton("refuse", row);
    for (DialogButton* button : {m_pCancel, m_pAccept}) {
        button->setFixedHeight(ButtonHeight);
        button->setMinimumWidth(ButtonWidth);
    }
    connect(m_pCancel, &DialogButton::clicked, this, &FileBrowser::reject);
    connect(m_pAccept, &DialogButton::clicked, this, &FileBrowser::accept);

    m_pHint = new QLabel(m_pList);
    m_pHint->setObjectName(QStringLiteral("hint"));
    m_pHint->setFont(DialogLook::textFont());
    m_pHint->setAlignment(Qt::AlignCenter);
    m_pHint->setWordWrap(true);
    m_pHint->setStyleSheet(QStringLiteral("color:rgb(146,146,146);"));
    (new QVBoxLayout(m_pList))->addWidget(m_pHint);
}

QRect FileBrowser::panelPlace(const QRect& screen) const
{
    return screen.adjusted(8, 8, -8, -8);
}

void FileBrowser::retranslate()
{
    const bool saves = m_request.mode == Save;
    m_pTitle->setText(qtTrId(m_request.titleId.isEmpty()
                                 ? (saves ? "HOSTID_DLG_SAVE" : "HOSTID_DLG_OPEN")
                                 : m_request.titleId.constData()));
    m_pAccept->setText(saves ? qtTrId("HOSTID_DLG_SAVE") : qtTrId("HOSTID_DLG_OPEN"));
    m_pCancel->setText(qtTrId("HOSTID_DLG_CANCEL"));
    m_pSortName->setText(qtTrId("HOSTID_DLG_SORT_NAME"));
    m_pSortDate->setText(qtTrId("HOSTID_DLG_SORT_DATE"));
    m_pHint->setText(qtTrId("HOSTID_DLG_EMPTY_FOLDER"));
    m_pWay->retranslate();
    if (m_pAllTypes != nullptr)
        m_pAllTypes->setText(qtTrId("HOSTID_DLG_ALL_TYPES"));
    if (saves) {
        m_pNameLabel->setText(qtTrId("HOSTID_DLG_NAME"));
        m_pName->setAccessibleName(qtTrId("HOSTID_DLG_NAME"));
        m_pNewFolder->setAccessibleName(qtTrId("HOSTID_DLG_NEW_FOLDER"));
    }
}

} // namespace HostDialogs
