// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "plaincombcomponents.h"

#include "cswitchlabel.h"
#include "elidingtext.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace appPlugins {

EmptyCombComponent::EmptyCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                                       const char* unitStrId)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , m_pPlaceHolder(new QLabel(this))
{
    m_pPlaceHolder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    addInput(m_pPlaceHolder, 172, 156, 32);
}

namespace {

// The frame that the style sheet gives a focused text is thin and dark, and its background is
// transparent: the blue field of a focused number shines through.
class BlueFocusLine : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (hasFocus())
            QPainter(this).fillRect(rect(), Look::focusBlue());
        QLineEdit::paintEvent(event);
    }
};

} // namespace

const QString StringCombComponent::sm_strQLineEditStyleSheet =
    QStringLiteral(
        "QLineEdit{border: %1px solid %2 ;border-radius : %3px;color:%4;padding-right:30px; "
        "background:transparent;}\n"
        "QLineEdit:focus{border: 1px solid  "
        "blue;border-radius:2px;color:rgb(255,255,255);padding-right:30px;background:transparent;}"
        "\n"
        "QLineEdit:disabled{background:transparent;border: %5px solid %6 ;border-radius : "
        "%7px;color:%8;padding-right:30px;}\n")
        .arg(QString::number(2), Look::White, QString::number(0), Look::White, QString::number(2),
             Look::DisabledGrey, QString::number(0), Look::DisabledGrey);

StringCombComponent::StringCombComponent(QWidget* parent, const char* titleStrId,
                                         bool titleCheckable, const char* unitStrId,
                                         const QRegExp& rx)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , m_pParamLineEdit(new BlueFocusLine(this))
    , m_rx(rx)
{
    m_pParamLineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pParamLineEdit->setFont(Look::textFont());
    // In line with the digits of the numbers above and below.
    m_pParamLineEdit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_pParamLineEdit->setStyleSheet(sm_strQLineEditStyleSheet);
    setFocusProxy(m_pParamLineEdit);
    connect(m_pParamLineEdit, &QLineEdit::editingFinished, this,
            &StringCombComponent::slt_editingFinished);
    addInput(m_pParamLineEdit, 172, 156, 32);
}

// A line that goes with the focus finishes editing, for a component that is gone by then.
StringCombComponent::~StringCombComponent()
{
    m_pParamLineEdit->disconnect(this);
}

bool StringCombComponent::set(QString text)
{
    if (!isAvailable() || !m_rx.exactMatch(text))
        return false;

    m_pParamLineEdit->setText(text);
    m_strValue = text;
    return true;
}

void StringCombComponent::slt_editingFinished()
{
    const QString text = m_pParamLineEdit->text();
    if (text == m_strValue || !m_pParamLineEdit->isEnabled())
        return;

    m_strValue = text;
    Q_EMIT paraChanged(m_strValue);
}

void StringCombComponent::setDisable(bool disable)
{
    CPluginCombComponentBase::setDisable(disable);
    m_pParamLineEdit->setDisabled(disable);
}

bool DummyAction()
{
    return true;
}

namespace {

// The sheet has one picture for what is focused, pressed and disabled; faint, it tells the last.
class ActionButton : public ElidingButton
{
public:
    using ElidingButton::ElidingButton;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (isEnabled())
            return ElidingButton::paintEvent(event);

        const qreal faint = 0.3;
        const QStyleOptionButton option = shownOption();
        QStylePainter painter(this);
        painter.setOpacity(faint);
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
        painter.setOpacity(1);
        painter.drawControl(QStyle::CE_PushButtonLabel, option);
    }
};

} // namespace

const QString ActionCombComponent::sm_selfStyleSheet =
    QStringLiteral("QPushButton{border-image:url(%5appPluginsPics/R_button_n.png);color:%1; }"
                   "QPushButton:focus{border-image:url(%5appPluginsPics/"
                   "R_button_d.png);color:%2;outline:none;}"
                   "QPushButton:pressed{border-image:url(%5appPluginsPics/"
                   "R_button_d.png);color:%3;outline:none;}"
                   "QPushButton:disabled{outline:none;border-image:url(%5appPluginsPics/"
                   "R_button_d.png);color:%4;}")
        .arg(Look::White, Look::White, Look::White, Look::DisabledGrey, Look::AppFolder);

ActionCombComponent::ActionCombComponent(QWidget* parent, const char* titleStrId,
                                         bool titleCheckable, const char* unitStrId,
                                         const char* buttonTextId, std::function<bool()> action)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , actionFunction(std::move(action))
    , m_pActionButton(new ActionButton(translated(buttonTextId), this))
    , m_buttonTextId(buttonTextId)
{
    m_pActionButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pActionButton->setFont(Look::textFont());
    m_pActionButton->setStyleSheet(sm_selfStyleSheet);
    setFocusProxy(m_pActionButton);
    connect(m_pActionButton, &QPushButton::clicked, this, &ActionCombComponent::execute);
    addInput(m_pActionButton, 172, 156, 32);
}

void ActionCombComponent::setButtonTextId(const char* buttonTextId)
{
    m_buttonTextId = buttonTextId;
    m_pActionButton->setText(translated(m_buttonTextId));
}

void ActionCombComponent::setActionFunction(std::function<bool()> action)
{
    actionFunction = std::move(action);
}

bool ActionCombComponent::execute()
{
    if (!isAvailable())
        return false;

    const bool done = actionFunction();
    if (done)
        Q_EMIT triggered();
    return done;
}

void ActionCombComponent::setDisable(bool disable)
{
    CPluginCombComponentBase::setDisable(disable);
    m_pActionButton->setDisabled(disable);
}

void ActionCombComponent::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_pActionButton->setText(translated(m_buttonTextId));
    CPluginCombComponentBase::changeEvent(event);
}

} // namespace appPlugins
