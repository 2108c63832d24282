// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"

#include "componentspage.h"
#include "desktopkeys.h"
#include "editorpage.h"
#include "gallerylook.h"
#include "gallerytexts.h"
#include "hostcallbacks.h"
#include "keylegend.h"
#include "languages.h"
#include "smallpage.h"
#include "statespage.h"
#include "tabbutton.h"
#include "tablespage.h"
#include "translated.h"
#include "unitspage.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

// The callbacks are plain functions, which know no window.
QPointer<GalleryWindow>& shownWindow()
{
    static QPointer<GalleryWindow> window;
    return window;
}

int showInWindow(QString text)
{
    const QString message = std::move(text);
    if (GalleryWindow* window = shownWindow())
        window->showMessage(message);
    return 0;
}

const int LanguageButtonWidth = 100;

} // namespace

GalleryWindow::GalleryWindow(Languages& languages)
    : m_languages(languages)
    , m_pLanguageButton(new TabButton(nullptr, this))
    , m_pStack(new QStackedWidget(this))
    , m_pMessage(new QLabel(this))
{
    shownWindow() = this;
    g_warningMessage = showInWindow;
    setObjectName(QStringLiteral("gallery"));
    setWindowTitle(QStringLiteral("toolkit-gallery"));
    setStyleSheet(GalleryLook::WindowStyle);
    setFixedSize(GalleryLook::ScreenWidth, GalleryLook::ScreenHeight);
    setFocusPolicy(Qt::ClickFocus);
    m_pMessage->setFixedHeight(GalleryLook::MessageHeight);
    m_pMessage->setFont(GalleryLook::font(13));

    addPages();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createTabs());
    layout->addWidget(m_pStack);
    layout->addWidget(m_pMessage);
    layout->addWidget(new KeyLegend(this));
    showPage(0);
    showLanguage();
}

// An input that loses the focus tells the window, which is whole only here.
GalleryWindow::~GalleryWindow()
{
    hide();
    g_warningMessage = nullptr;
}

QStringList GalleryWindow::pageNames()
{
    return {QStringLiteral("units"),      QStringLiteral("editor"), QStringLiteral("small"),
            QStringLiteral("components"), QStringLiteral("states"), QStringLiteral("tables")};
}

void GalleryWindow::addPages()
{
    m_pComponents = new ComponentsPage(this);
    addPage(new UnitsPage(this));
    addPage(new EditorPage(this));
    addPage(new SmallPage(this));
    addPage(m_pComponents);
    addPage(new StatesPage(this));
    addPage(new TablesPage(this));
}

void GalleryWindow::addPage(GalleryPage* page)
{
    m_pages.append(page);
    m_pStack->addWidget(page);
    connect(page, &GalleryPage::message, this, &GalleryWindow::showMessage);
}

QWidget* GalleryWindow::createTabs()
{
    auto* bar = new QWidget(this);
    bar->setFixedHeight(GalleryLook::TabHeight);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    int index = 0;
    for (const char* textId : {GalleryText::Units, GalleryText::Editor, GalleryText::Small,
                               GalleryText::Components, GalleryText::States, GalleryText::Tables})
        layout->addWidget(createTab(textId, index++));
    m_pLanguageButton->setFixedWidth(LanguageButtonWidth);
    connect(m_pLanguageButton, &QPushButton::clicked, this, &GalleryWindow::nextLanguage);
    layout->addWidget(m_pLanguageButton);
    return bar;
}

QPushButton* GalleryWindow::createTab(const char* textId, int index)
{
    auto* tab = new TabButton(textId, this);
    tab->setCheckable(true);
    tab->setAutoExclusive(true);
    connect(tab, &QPushButton::clicked, this, [this, index] { showPage(index); });
    m_tabs.append(tab);
    return tab;
}

void GalleryWindow::showPage(int index)
{
    m_pStack->setCurrentIndex(index);
    m_tabs.at(index)->setChecked(true);
    setFocus();
    showMessage(QString());
}

bool GalleryWindow::showPage(const QString& name)
{
    const int index = pageNames().indexOf(name);
    if (index < 0)
        return false;
    showPage(index);
    return true;
}

void GalleryWindow::stepPage(int step)
{
    const int count = m_pages.size();
    showPage((m_pStack->currentIndex() + step + count) % count);
}

void GalleryWindow::stepInput(int step)
{
    const QVector<QWidget*> inputs = m_pages.at(m_pStack->currentIndex())->inputs();
    if (inputs.isEmpty())
        return;

    const int count = inputs.size();
    int current = step > 0 ? -1 : count;
    for (int i = 0; i < count; ++i) {
        if (inputs.at(i)->hasFocus())
            current = i;
    }
    inputs.at((current + step + count) % count)->setFocus(Qt::TabFocusReason);
}

void GalleryWindow::nextLanguage()
{
    const QStringList all = Languages::all();
    m_languages.install(all.at((all.indexOf(m_languages.current()) + 1) % all.size()));
}

void GalleryWindow::showMessage(const QString& text)
{
    m_strMessage = text.simplified();
    const bool none = m_strMessage.isEmpty();
    m_pMessage->setText(none ? appPlugins::translated(GalleryText::Hint) : m_strMessage);
    m_pMessage->setStyleSheet(
        QString(GalleryLook::MessageStyle)
            .arg(none ? GalleryLook::HintColour : GalleryLook::MessageColour));
}

void GalleryWindow::connectKeys(const DesktopKeys& keys)
{
    connect(&keys, &DesktopKeys::pageWanted, this, &GalleryWindow::stepPage);
    connect(&keys, &DesktopKeys::inputWanted, this, &GalleryWindow::stepInput);
    connect(&keys, &DesktopKeys::nextLanguageWanted, this, &GalleryWindow::nextLanguage);
}

ParameterForm* GalleryWindow::form() const
{
    return m_pComponents->form();
}

void GalleryWindow::showLanguage()
{
    m_pLanguageButton->setText(Languages::nameOf(m_languages.current()));
}

void GalleryWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        showLanguage();
        showMessage(m_strMessage);
    }
    QDialog::changeEvent(event);
}

// A dialog would close at a key that the front panel has for something else.
void GalleryWindow::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}
