// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "chorizontalslider.h"

#include "faint.h"
#include "pluginsTranslation.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QSlider>
#include <QStyleOptionSlider>

namespace appPlugins {

namespace {

/// A text on a blue field while its slider has the focus. The field is painted below the text: a
/// style sheet for it would be parsed with every change of the focus.
class Notice : public QLabel
{
public:
    using QLabel::QLabel;

    void showFocus(bool focused)
    {
        m_bFocused = focused;
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (m_bFocused)
            QPainter(this).fillRect(rect(), Look::focusBlue());
        QLabel::paintEvent(event);
    }

private:
    bool m_bFocused = false;
};

/// The slider's look is its owner's, which may have none for the focus and for a disabled slider.
/// So the notice gets the blue field that the digits of a focused number have, and a disabled
/// slider is faint.
class NoticedSlider : public QSlider
{
public:
    NoticedSlider(Notice* notice, QWidget* parent)
        : QSlider(Qt::Horizontal, parent)
        , m_pNotice(notice)
    {}

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        m_pNotice->showFocus(true);
        QSlider::focusInEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        m_pNotice->showFocus(false);
        QSlider::focusOutEvent(event);
    }

    void paintEvent(QPaintEvent* event) override
    {
        if (isEnabled())
            return QSlider::paintEvent(event);

        QStyleOptionSlider option;
        initStyleOption(&option);
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
        drawFaint(this, [&option](QStylePainter& painter) {
            painter.drawComplexControl(QStyle::CC_Slider, option);
        });
    }

private:
    Notice* m_pNotice;
};

} // namespace

CHorizontalSlider::CHorizontalSlider(QWidget* parent, int minimum, int maximum, int value)
    : QLabel(parent)
    , m_pSlider(nullptr)
    , m_pNoticeLbl(nullptr)
    , m_pLayout(new QHBoxLayout(this))
{
    auto* notice = new Notice(this);
    m_pNoticeLbl = notice;
    m_pSlider = new NoticedSlider(notice, this);
    setFont(Look::textFont());
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_pSlider);
    m_pSlider->setFocusPolicy(Qt::ClickFocus);
    m_pSlider->setRange(minimum, maximum);
    m_pSlider->setValue(value);
    m_pSlider->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pNoticeLbl->setFont(Look::textFont());
    m_pNoticeLbl->setAlignment(Qt::AlignCenter);
    m_pNoticeLbl->setStyleSheet(
        QStringLiteral("QLabel{color:%1;background:transparent;}QLabel:disabled{color:%2;}")
            .arg(Look::White, Look::DisabledGrey));

    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->addWidget(m_pSlider);
    m_pLayout->addWidget(m_pNoticeLbl);
    setHorizontalLayoutStretch(2, 1);
    showNotice();

    connect(m_pSlider, &QSlider::valueChanged, this, &CHorizontalSlider::slt_sliderValueChanged);
}

void CHorizontalSlider::set(int value)
{
    if (value == m_pSlider->value() || !m_pSlider->isEnabled())
        return;
    m_pSlider->setValue(value);
}

int CHorizontalSlider::value() const
{
    return m_pSlider->value();
}

void CHorizontalSlider::setHorizontalLayoutStretch(int slider, int notice)
{
    m_pLayout->setStretch(0, slider);
    m_pLayout->setStretch(1, notice);
}

void CHorizontalSlider::setStyleSheet(QString styleSheet)
{
    m_pSlider->setStyleSheet(styleSheet);
}

void CHorizontalSlider::setDisabled(bool disable)
{
    m_pSlider->setDisabled(disable);
    m_pNoticeLbl->setDisabled(disable);
    QLabel::setDisabled(disable);
}

void CHorizontalSlider::slt_sliderValueChanged(int value)
{
    showNotice();
    Q_EMIT valueChanged(value);
}

void CHorizontalSlider::showNotice()
{
    const int value = m_pSlider->value();
    if (m_pSlider->maximum() == 1)
        m_pNoticeLbl->setText(translated(value == 1 ? TR_DBID_ON : TR_DBID_OFF));
    else
        m_pNoticeLbl->setText(QString::number(value));
}

void CHorizontalSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showNotice();
    QLabel::changeEvent(event);
}

} // namespace appPlugins
