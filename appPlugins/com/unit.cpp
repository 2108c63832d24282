// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unit.h"

#include "frontpanelkeys.h"
#include "toolkitlook.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace appPlugins {

const QString CUnit::m_strSelfStyleSheet =
    QStringLiteral(
        "QLabel{border:none;color:%1;background:transparent;}"
        "QLabel:disabled{border:none;color:%2;background:transparent;}"
        "QLabel[bDisguiseFocus=\"true\"]{border:none;color:%1;background:%3;}"
        "QLabel[bDisguiseFocus=\"true\"]:disabled{border:none;color:%2;background:%3;}"
        "QLabel[bDisguiseFocus=\"false\"]{border:none;color:%1;background:transparent;}"
        "QLabel[bDisguiseFocus=\"false\"]:disabled{border:none;color:%2;background:transparent;}")
        .arg(Look::White, Look::DisabledGrey, Look::FocusBlue);

CUnit::CUnit(QWidget* parent)
    : QLabel(parent)
    , m_parent(parent)
{
    setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    setStyleSheet(m_strSelfStyleSheet);
    setBDisguiseFocus(false);
    setFont(Look::textFont());
    setPrefixes({{"k", 1e3}, {"", 1}}, 1);
}

void CUnit::setPrefixes(std::initializer_list<Prefix> prefixes, int baseIndex)
{
    for (QString& label : m_unitLabels)
        label.clear();
    m_nUnitCounts = 0;
    for (const Prefix& prefix : prefixes) {
        m_unitLabels[m_nUnitCounts] = QLatin1String(prefix.label);
        m_unitPower[m_nUnitCounts] = prefix.power;
        ++m_nUnitCounts;
    }
    m_baseIndex = baseIndex;
    m_unitIndex = 0;
    setText(getUnitString());
}

QString CUnit::getUnitString() const
{
    return m_unitLabels[m_unitIndex];
}

double CUnit::times() const
{
    return m_unitPower[m_unitIndex];
}

void CUnit::setUnitIndex(int index)
{
    if (index == m_unitIndex)
        return;

    m_unitIndex = index;
    setText(getUnitString());
}

void CUnit::setToBase()
{
    setUnitIndex(m_baseIndex);
}

// As much as the digits ask for: a hint that is lower would cut the field's colour off above the
// prefix, which stands at the bottom of the row.
QSize CUnit::sizeHint() const
{
    const int digitsHeight = 192;
    return {QLabel::sizeHint().width(), digitsHeight};
}

// The text stands at the bottom of what the margin leaves: on the line of the digits, which are in
// the middle of theirs.
void CUnit::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    setContentsMargins(0, 0, 0, qMax(0, (height() - fontMetrics().height()) / 2));
}

void CUnit::setBDisguiseFocus(bool disguise)
{
    if (disguise == m_bDisguiseFocus)
        return;

    m_bDisguiseFocus = disguise;
    // A style sheet looks at properties only when it is applied.
    setStyleSheet(m_strSelfStyleSheet);
}

void CUnit::confirm(int index)
{
    if (index == Cancels)
        return cancelEntry();

    setUnitIndex(index);
    Q_EMIT unitSelected();
}

void CUnit::cancelEntry()
{
    if (m_parent == nullptr)
        return;
    QCoreApplication::postEvent(
        m_parent, new QKeyEvent(QEvent::KeyPress, Qt::Key_Cancel, Qt::KeypadModifier, QString()));
}

void CUnit::selectByKey(QKeyEvent* event, const KeyMap& keys)
{
    switch (event->key()) {
    case QT_KEY_GN:
        return confirm(keys.gn);
    case QT_KEY_MU:
        return confirm(keys.mu);
    case QT_KEY_KM:
        return confirm(keys.km);
    case QT_KEY_X1:
        return confirm(keys.x1);
    case QT_KEY_KNOB:
    case Qt::Key_Return:
        return confirm(m_unitIndex);
    default:
        return cancelEntry();
    }
}

void CUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {Cancels, Cancels, 0, 1});
}

CFrequencyUnit::CFrequencyUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"G", 1e9}, {"M", 1e6}, {"k", 1e3}, {"", 1}, {"m", 1e-3}, {"u", 1e-6}}, 3);
}

void CFrequencyUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {0, 1, 2, 3});
}

CVoltUnit::CVoltUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"", 1}, {"m", 1e-3}}, 0);
}

void CVoltUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {Cancels, Cancels, 1, 0});
}

CTimeUnit::CTimeUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"", 1}, {"m", 1e-3}, {"u", 1e-6}, {"n", 1e-9}}, 0);
}

void CTimeUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {3, 2, 1, 0});
}

CPercentUnit::CPercentUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"", 1}}, 0);
}

void CPercentUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {Cancels, Cancels, Cancels, 0});
}

CRateUnit::CRateUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"G", 1e9}}, 0);
}

void CRateUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {0, Cancels, Cancels, 0});
}

CPhaseUnit::CPhaseUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"", 1}}, 0);
}

void CPhaseUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {Cancels, Cancels, Cancels, 0});
}

CPointUnit::CPointUnit(QWidget* parent)
    : CUnit(parent)
{
    setPrefixes({{"M", 1e6}, {"k", 1e3}, {"", 1}}, 2);
}

void CPointUnit::keyPressEvent(QKeyEvent* event)
{
    selectByKey(event, {Cancels, 0, 1, 2});
}

} // namespace appPlugins
