// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "soak.h"

#include "ccombobox.h"
#include "chorizontalslider.h"
#include "cradiobutton.h"
#include "frontpanelkeys.h"
#include "parameteredit.h"
#include "parameterform.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"
#include "translated.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include <cmath>

using namespace appPlugins;

namespace {

const int HistoryLength = 200;

// Digits, knob and unit keys are pressed more often than the rest, as a user does.
const int Keys[] = {
    Qt::Key_0,      Qt::Key_1,         Qt::Key_2,      Qt::Key_5,       Qt::Key_9,
    Qt::Key_Period, Qt::Key_Minus,     QT_KEY_MINUS,   Qt::Key_Up,      Qt::Key_Up,
    Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Down,   Qt::Key_Down,    Qt::Key_Left,
    Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Right,  QT_KEY_GN,       QT_KEY_MU,
    QT_KEY_KM,      QT_KEY_X1,         QT_KEY_KNOB,    Qt::Key_Return,  Qt::Key_Enter,
    Qt::Key_Cancel, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab,     QT_KEY_HOME,
    QT_KEY_HELP,    QT_KEY_DEFAULT,    Qt::Key_A,      Qt::Key_PageDown};

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void postKey(QEvent::Type type, int key)
{
    QWidget* receiver = QApplication::focusWidget();
    if (QWidget* list = QApplication::activePopupWidget())
        receiver = list;
    if (receiver == nullptr)
        return;
    const bool printable = key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde;
    QCoreApplication::postEvent(
        receiver,
        new QKeyEvent(type, key, Qt::NoModifier, printable ? QString(QChar(key)) : QString()));
}

// The number that a text of digits and a prefix stands for, read as a person reads it.
double readNumber(const QString& digits, double factor)
{
    return digits.toDouble() * factor;
}

QString textFault(const RealCombComponent& number, const ParameterTextWithOrderOfMagnitude& editor)
{
    if (editor.isTyping())
        return {};

    const QString shown = editor.textEdit()->toPlainText();
    const double read = readNumber(shown, editor.unitLabel()->times());
    const double slack = 0.25 * number.getResolution() + 1e-14 * std::fabs(number.get());
    if (!(std::fabs(read - number.get()) <= slack))
        return QStringLiteral("shows %1 %2").arg(shown, editor.unitLabel()->text());
    if (number.getStringValue() != shown + editor.unitLabel()->text())
        return QStringLiteral("shows %1 but tells %2").arg(shown, number.getStringValue());
    return {};
}

QString numberFault(const RealCombComponent& number)
{
    if (number.checkInput(number.get()) != RealCombComponent::VALUE_OK)
        return QStringLiteral("is outside its limits");
    return textFault(number, *number.findChild<ParameterTextWithOrderOfMagnitude*>());
}

QString choiceFault(const CPluginCombComponentBase& component)
{
    bool agrees = true;
    if (const auto* list = qobject_cast<const ComboBoxCombComponent*>(&component)) {
        const auto* box = list->findChild<CComboBox*>();
        agrees = box->currentIndex() == list->get() &&
                 box->currentText() == translated(list->getSaveStrId());
    } else if (const auto* pair = qobject_cast<const BooleanCombComponent*>(&component)) {
        agrees = pair->findChild<CRadioButton*>()->checkedIndex() == pair->get();
    } else if (const auto* toggle = qobject_cast<const BooleanSliderCombComponent*>(&component)) {
        agrees = toggle->findChild<CHorizontalSlider*>()->value() == toggle->get();
    }
    return agrees ? QString() : QStringLiteral("shows another choice than it holds");
}

} // namespace

Soak::Soak(ParameterForm& form, quint32 seed)
    : m_form(form)
    , m_random(seed)
{
    connect(&form, &ParameterForm::message, this, [this] { ++m_nChanges; });
    connect(&form, &ParameterForm::rangeWarning, this, [this] { ++m_nRefusals; });
}

// Keys go to the focus, which a window has only once it is active.
bool Soak::run(int events)
{
    if (!QTest::qWaitForWindowActive(m_form.window())) {
        m_strFault = QStringLiteral("the window does not become active");
        return false;
    }
    for (m_nDone = 0; m_nDone < events; ++m_nDone) {
        act();
        settle();
        m_strFault = check();
        if (!m_strFault.isEmpty())
            return false;
    }
    return true;
}

// The form is touched often enough for every input to have its share of the keys: a text keeps
// those that a number would give back.
void Soak::act()
{
    if (m_random() % 8 == 0)
        touch();
    else
        pressKey();
}

void Soak::pressKey()
{
    const int key = Keys[m_random() % std::size(Keys)];
    note(QStringLiteral("key %1").arg(key));
    postKey(QEvent::KeyPress, key);
    settle();
    postKey(QEvent::KeyRelease, key);
}

QPoint Soak::pointIn(const QRect& area)
{
    const auto below = [this](int limit) {
        return static_cast<int>(m_random() % static_cast<unsigned>(limit));
    };
    const int x = below(area.width());
    const int y = below(area.height());
    return area.topLeft() + QPoint(x, y);
}

// Most fingers mean a number; some slide before they are lifted.
void Soak::touch()
{
    const QVector<RealCombComponent*> numbers = m_form.numbers();
    const bool anything = m_random() % 3 == 0;
    const QRect numbersArea =
        m_form.rect().intersected(numbers.first()->geometry().united(numbers.last()->geometry()));
    const QRect area = anything ? m_form.rect() : numbersArea;
    QWidget* window = m_form.window();
    const QPoint from = m_form.mapTo(window, pointIn(area));
    const QPoint to = m_random() % 4 == 0 ? m_form.mapTo(window, pointIn(area)) : from;
    note(
        QStringLiteral("touch %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));

    QWindow* screen = window->windowHandle();
    QTest::mousePress(screen, Qt::LeftButton, Qt::NoModifier, from);
    if (to != from)
        QTest::mouseMove(screen, to);
    QTest::mouseRelease(screen, Qt::LeftButton, Qt::NoModifier, to);
}

void Soak::note(const QString& event)
{
    const QWidget* focus = QApplication::focusWidget();
    m_history.append(event + QStringLiteral("   focus: ") +
                     (focus == nullptr ? QStringLiteral("none")
                                       : QLatin1String(focus->metaObject()->className())));
    if (m_history.size() > HistoryLength)
        m_history.removeFirst();
}

QString Soak::check() const
{
    const QVector<RealCombComponent*> numbers = m_form.numbers();
    for (int i = 0; i < numbers.size(); ++i) {
        const QString fault = numberFault(*numbers.at(i));
        if (!fault.isEmpty())
            return QStringLiteral("number %1 holds %2 and %3")
                .arg(i + 1)
                .arg(numbers.at(i)->get(), 0, 'g', 15)
                .arg(fault);
    }
    const QVector<CPluginCombComponentBase*> components = m_form.components();
    for (int i = 0; i < components.size(); ++i) {
        const QString fault = choiceFault(*components.at(i));
        if (!fault.isEmpty())
            return QStringLiteral("component %1 %2").arg(i + 1).arg(fault);
    }
    return {};
}
