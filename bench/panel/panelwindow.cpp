// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panelwindow.h"

#include "barbutton.h"
#include "desktopkeyboard.h"
#include "frontface.h"
#include "helpdialog.h"
#include "panellanguages.h"
#include "panellook.h"
#include "screenview.h"
#include "statusstrip.h"
#include "tracearea.h"
#include "traceplot.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

const QString PlaceKey(QStringLiteral("window/place"));
const QString TraceKey(QStringLiteral("window/traceShare"));
const QString LanguageKey(QStringLiteral("language"));

const double UsualTraceShare = 0.27; // of the height

} // namespace

PanelWindow::PanelWindow(const PanelOptions& options, PanelLanguages& languages,
                         QSettings* settings)
    : m_languages(languages)
    , m_settings(settings)
    , m_screen(options.screenPort)
    , m_keypad(options.keypadPath)
    , m_relay(m_keypad)
    , m_watch(options.instrumentPort)
{
    setObjectName(QStringLiteral("panel"));
    build();
    makeMenu();
    connectLinks();
    connectKeyboard();
    retranslate();
    restorePlace();
    m_face->setFocus();
}

// The parts go before what they work on; until then focus still moves among them.
PanelWindow::~PanelWindow()
{
    disconnect(qApp, nullptr, this, nullptr);
    delete m_keyboard;
    delete takeCentralWidget();
}

void PanelWindow::build()
{
    auto* const ground = new QWidget(this);
    m_splitter = new QSplitter(Qt::Vertical, ground);
    m_splitter->setObjectName(QStringLiteral("split"));
    m_face = new FrontFace(m_screen, m_relay, m_splitter);
    m_traceArea = new TraceArea(m_watch, m_splitter);
    m_strip = new StatusStrip(ground);
    m_splitter->addWidget(m_face);
    m_splitter->addWidget(m_traceArea);
    m_splitter->setCollapsible(0, false);
    m_splitter->setHandleWidth(5);
    m_splitter->installEventFilter(this);
    connect(m_splitter, &QSplitter::splitterMoved, this,
            [this] { m_dbTraceShare = double(m_traceArea->height()) / m_splitter->height(); });
    auto* const whole = new QVBoxLayout(ground);
    whole->setContentsMargins(4, 4, 4, 0);
    whole->setSpacing(2);
    whole->addWidget(m_splitter, 1);
    whole->addWidget(m_strip);
    setCentralWidget(ground);
}

void PanelWindow::connectLinks()
{
    const auto follow = [this](StatusStrip::Link link, auto& client) {
        using Client = std::remove_reference_t<decltype(client)>;
        connect(&client, &Client::connected, this,
                [this, link] { m_strip->setLink(link, true, QString()); });
        connect(&client, &Client::gone, this,
                [this, link](const QString& reason) { m_strip->setLink(link, false, reason); });
    };
    follow(StatusStrip::Screen, m_screen);
    follow(StatusStrip::Keypad, m_keypad);
    follow(StatusStrip::Instrument, m_watch);
    connect(&m_screen, &RfbScreen::connected, this, &PanelWindow::showScreenState);
    connect(&m_screen, &RfbScreen::gone, this, &PanelWindow::showScreenState);
    connect(&m_watch, &ChannelWatch::traceChanged, this, [this] {
        if (!m_watch.trace().isEmpty())
            Q_EMIT burstShown();
    });
    connect(&m_watch, &ChannelWatch::modelChanged, this, &PanelWindow::retranslate);
    connect(&m_watch, &ChannelWatch::outputChanged, m_face, &FrontFace::setOutputOn);
    connect(m_face->screenView(), &ScreenView::painted, this, [this] {
        if (!std::exchange(m_bScreenSeen, true))
            Q_EMIT screenShown();
    });
}

void PanelWindow::connectKeyboard()
{
    m_keyboard = new DesktopKeyboard(m_relay, m_screen, this);
    connect(m_keyboard, &DesktopKeyboard::areaChanged, this, &PanelWindow::goTo);
    connect(m_strip, &StatusStrip::areaWanted, m_keyboard, &DesktopKeyboard::setArea);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { followFocus(now); });
}

void PanelWindow::start()
{
    showScreenState();
    m_screen.start();
    m_keypad.start();
    m_watch.start();
}

void PanelWindow::showScreenState()
{
    if (m_screen.isConnected()) {
        m_face->screenView()->setNotice(QString(), QString());
        return;
    }
    const QString reason = m_screen.goneReason();
    m_face->screenView()->setNotice(
        qtTrId(m_bScreenSeen ? "PANELID_HOST_GONE" : "PANELID_HOST_AWAITED"),
        reason.isEmpty() ? QString() : qtTrId("PANELID_RECONNECTING").arg(reason));
}

void PanelWindow::goTo(KeyboardArea area)
{
    m_strip->setArea(area);
    m_face->screenView()->setTyping(area == KeyboardArea::Screen);
    QWidget* const focus = QApplication::focusWidget();
    if (area != KeyboardArea::Trace)
        m_face->setFocus();
    else if (focus == nullptr || !m_traceArea->isAncestorOf(focus))
        m_traceArea->plot()->setFocus();
}

// A click into the trace, or Tab, takes the keyboard there; a click on the front takes it back.
void PanelWindow::followFocus(QWidget* now)
{
    if (now == nullptr || now->window() != this)
        return;
    if (m_traceArea->isAncestorOf(now))
        m_keyboard->setArea(KeyboardArea::Trace);
    else if (now == m_face && m_keyboard->area() == KeyboardArea::Trace)
        m_keyboard->setArea(KeyboardArea::Keys);
}

void PanelWindow::chooseLanguage(const QString& language)
{
    if (m_languages.install(language) && m_settings != nullptr)
        m_settings->setValue(LanguageKey, language);
}

void PanelWindow::toggleFullScreen()
{
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void PanelWindow::showHelp()
{
    if (!m_help)
        m_help = new HelpDialog(this);
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void PanelWindow::retranslate()
{
    const QString model = m_watch.model().isEmpty() ? QStringLiteral("KVX") : m_watch.model();
    setWindowTitle(QStringLiteral("%1 – %2").arg(model, qtTrId("PANELID_INSTRUMENT")));
    m_face->setModel(model);
    for (const auto& action : qAsConst(m_actions))
        action.first->setText(qtTrId(action.second));
    m_languageMenu->setTitle(qtTrId("PANELID_LANGUAGE"));
    for (QAction* action : m_languageMenu->actions())
        action->setChecked(action->data().toString() == m_languages.current());
    m_strip->retranslate();
    showScreenState();
}

void PanelWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

// All of the front and the trace, where the desktop is large enough.
QSize PanelWindow::usualSize() const
{
    const QSize wanted(m_face->sizeHint().width() + 8, m_face->sizeHint().height() + 320);
    const QScreen* const display = QApplication::primaryScreen();
    return display == nullptr ? wanted : wanted.boundedTo(display->availableSize() * 0.95);
}

void PanelWindow::restorePlace()
{
    resize(usualSize());
    if (m_settings == nullptr)
        return;
    restoreGeometry(m_settings->value(PlaceKey).toByteArray());
    const double share = m_settings->value(TraceKey, m_dbTraceShare).toDouble();
    m_dbTraceShare = share >= 0 && share <= 1 ? share : 0;
}

// The front has its shape; what it cannot use of the height goes to the trace, unless the user has
// drawn the line himself.
void PanelWindow::shareHeight()
{
    const int all = m_splitter->height() - m_splitter->handleWidth();
    const double share = m_dbTraceShare > 0 ? m_dbTraceShare : UsualTraceShare;
    int trace = qRound(all * share);
    if (!(m_dbTraceShare > 0))
        trace = qMax(trace, all - m_face->heightForWidth(m_splitter->width()));
    m_splitter->setSizes({all - trace, trace});
}

bool PanelWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_splitter && event->type() == QEvent::Resize)
        shareHeight();
    return QMainWindow::eventFilter(watched, event);
}

void PanelWindow::keepPlace()
{
    if (m_settings == nullptr)
        return;
    m_settings->setValue(PlaceKey, saveGeometry());
    m_settings->setValue(TraceKey, m_dbTraceShare);
}

void PanelWindow::closeEvent(QCloseEvent* event)
{
    keepPlace();
    QMainWindow::closeEvent(event);
}
