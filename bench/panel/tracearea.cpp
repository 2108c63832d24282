// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracearea.h"

#include "barbutton.h"
#include "channelwatch.h"
#include "cursorreadout.h"
#include "panellook.h"
#include "traceplot.h"
#include "tracereadout.h"
#include "tracesaving.h"

#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>

namespace {

const double ButtonZoom = 1.5;

QLabel* makeLabel(const QString& name, const QColor& colour, bool isBold, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(name);
    label->setFont(PanelLook::font(isBold ? 15 : 13, isBold));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
    return label;
}

void setTexts(QWidget* widget, const char* text, const char* help)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(widget))
        button->setText(qtTrId(text));
    widget->setToolTip(qtTrId(help));
    widget->setAccessibleName(qtTrId(help));
    widget->updateGeometry();
}

} // namespace

TraceArea::TraceArea(ChannelWatch& watch, QWidget* parent)
    : QWidget(parent)
    , m_watch(watch)
    , m_plot(new TracePlot(this))
    , m_readout(new TraceReadout(this))
    , m_title(makeLabel(QStringLiteral("traceTitle"), PanelLook::Channel1, true, this))
    , m_state(makeLabel(QStringLiteral("traceState"), PanelLook::DimText, false, this))
    , m_message(makeLabel(QStringLiteral("traceMessage"), PanelLook::DimText, false, this))
{
    setObjectName(QStringLiteral("traceArea"));
    makeButtons();
    layOut();
    connect(m_plot, &TracePlot::cursorsChanged, this, &TraceArea::showReadout);
    connect(&watch, &ChannelWatch::traceChanged, this, &TraceArea::takeTrace);
    connect(&watch, &ChannelWatch::outputChanged, this, &TraceArea::showState);
    connect(&watch, &ChannelWatch::gone, this, &TraceArea::showState);
    connect(&watch, &ChannelWatch::connected, this, &TraceArea::showState);
    retranslate();
}

void TraceArea::makeButtons()
{
    m_zoomIn = new BarButton(QStringLiteral("zoomIn"), this);
    m_zoomOut = new BarButton(QStringLiteral("zoomOut"), this);
    m_all = new BarButton(QStringLiteral("zoomAll"), this);
    m_cursors = new BarButton(QStringLiteral("cursors"), this);
    m_picture = new BarButton(QStringLiteral("savePicture"), this);
    m_csv = new BarButton(QStringLiteral("saveCsv"), this);
    m_cursors->setCheckable(true);
    m_cursors->setChecked(m_plot->areCursorsShown());
    connect(m_zoomIn, &BarButton::clicked, this, [this] { m_plot->zoom(1 / ButtonZoom); });
    connect(m_zoomOut, &BarButton::clicked, this, [this] { m_plot->zoom(ButtonZoom); });
    connect(m_all, &BarButton::clicked, m_plot, &TracePlot::showAll);
    connect(m_cursors, &BarButton::toggled, m_plot, &TracePlot::setCursorsShown);
    connect(m_cursors, &BarButton::toggled, m_readout, &QWidget::setVisible);
    connect(m_picture, &BarButton::clicked, this, &TraceArea::askForPicture);
    connect(m_csv, &BarButton::clicked, this, &TraceArea::askForCsv);
}

void TraceArea::layOut()
{
    auto* const bar = new QHBoxLayout;
    bar->setSpacing(6);
    bar->addWidget(m_title);
    bar->addSpacing(8);
    bar->addWidget(m_state);
    bar->addStretch();
    bar->addWidget(m_message);
    bar->addSpacing(8);
    for (BarButton* button : {m_zoomIn, m_zoomOut, m_all, m_cursors, m_picture, m_csv})
        bar->addWidget(button);
    auto* const below = new QHBoxLayout;
    below->setSpacing(12);
    below->addWidget(m_plot, 1);
    below->addWidget(m_readout);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(14, 8, 14, 6);
    whole->setSpacing(6);
    whole->addLayout(bar);
    whole->addLayout(below, 1);
}

void TraceArea::takeTrace()
{
    m_plot->setTrace(m_watch.trace());
    m_csv->setEnabled(!m_watch.trace().isEmpty());
    showState();
}

void TraceArea::showState()
{
    const bool isConnected = m_watch.isConnected();
    const bool isOn = m_watch.isOutputOn();
    m_bEverConnected = m_bEverConnected || isConnected;
    if (!isConnected) {
        m_plot->setSource(TracePlot::Gone);
        m_plot->setNotice(
            qtTrId(m_bEverConnected ? "PANELID_INSTRUMENT_GONE" : "PANELID_INSTRUMENT_AWAITED"));
        m_state->clear();
        return;
    }
    m_plot->setSource(isOn ? TracePlot::Live : TracePlot::Past);
    m_plot->setNotice(QString());
    const bool isPlayed = !m_watch.trace().isEmpty();
    if (isOn)
        m_state->setText(qtTrId(isPlayed ? "PANELID_OUTPUT_ON" : "PANELID_OUTPUT_ON_IDLE"));
    else
        m_state->setText(qtTrId(isPlayed ? "PANELID_OUTPUT_OFF_LAST" : "PANELID_OUTPUT_OFF"));
}

void TraceArea::showReadout()
{
    m_readout->display(readCursors(m_plot->trace(), m_plot->cursor(0), m_plot->cursor(1)));
}

void TraceArea::retranslate()
{
    m_title->setText(qtTrId("PANELID_TRACE_TITLE"));
    setTexts(m_zoomIn, "PANELID_ZOOM_IN", "PANELID_ZOOM_IN_HELP");
    setTexts(m_zoomOut, "PANELID_ZOOM_OUT", "PANELID_ZOOM_OUT_HELP");
    setTexts(m_all, "PANELID_ZOOM_ALL", "PANELID_ZOOM_ALL_HELP");
    setTexts(m_cursors, "PANELID_CURSORS", "PANELID_CURSORS_HELP");
    setTexts(m_picture, "PANELID_SAVE_PICTURE", "PANELID_SAVE_PICTURE_HELP");
    setTexts(m_csv, "PANELID_SAVE_CSV", "PANELID_SAVE_CSV_HELP");
    setAccessibleName(qtTrId("PANELID_TRACE_TITLE"));
    m_csv->setEnabled(!m_watch.trace().isEmpty());
    m_message->clear();
    m_readout->retranslate();
    m_plot->retranslate();
    showState();
    showReadout();
}

QFileDialog* TraceArea::makeDialog(const QString& title, const QStringList& filters,
                                   const QString& suffix)
{
    auto* const dialog = new QFileDialog(this, title);
    dialog->setObjectName(QStringLiteral("saveDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(filters);
    dialog->setDefaultSuffix(suffix);
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.contains(QLatin1String("*.svg"))   ? QStringLiteral("svg")
                                 : filter.contains(QLatin1String("*.png")) ? QStringLiteral("png")
                                                                           : QStringLiteral("csv"));
    });
    return dialog;
}

void TraceArea::askForPicture()
{
    QFileDialog* const dialog =
        makeDialog(qtTrId("PANELID_SAVE_PICTURE_TITLE"),
                   {qtTrId("PANELID_PNG_FILES") + QStringLiteral(" (*.png)"),
                    qtTrId("PANELID_SVG_FILES") + QStringLiteral(" (*.svg)")},
                   QStringLiteral("png"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& path) { tell(path, savePicture(*m_plot, path)); });
    dialog->open();
}

void TraceArea::askForCsv()
{
    QFileDialog* const dialog = makeDialog(
        qtTrId("PANELID_SAVE_CSV_TITLE"),
        {qtTrId("PANELID_CSV_FILES") + QStringLiteral(" (*.csv)")}, QStringLiteral("csv"));
    // What was on show when it was asked for, whatever is played meanwhile.
    const OutputTrace trace = m_plot->trace();
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, trace](const QString& path) { tell(path, saveCsv(trace, path)); });
    dialog->open();
}

void TraceArea::tell(const QString& path, const QString& reason)
{
    const QString name = QFileInfo(path).fileName();
    m_message->setText(reason.isEmpty() ? qtTrId("PANELID_SAVED").arg(name)
                                        : qtTrId("PANELID_NOT_SAVED").arg(name, reason));
    QPalette palette = m_message->palette();
    palette.setColor(QPalette::WindowText, reason.isEmpty() ? PanelLook::Good : PanelLook::Warning);
    m_message->setPalette(palette);
}

void TraceArea::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
