// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cplugincombcomponent.h"
#include "cradiobutton.h"
#include "realtable.h"
#include "stepcount.h"

#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>

using namespace appPlugins;

namespace {

const char* g_choices[] = {"ZERO", "ONE"};

/// Steps that a user reads off: digits and prefix, counted by hand.
long long stepsShown(const RealCombComponent& component)
{
    const CUnit* unit = component.findChild<CUnit*>();
    QString digits = component.findChild<ParameterTextEdit*>()->toPlainText();
    const int point = digits.indexOf(QLatin1Char('.'));
    int shift = qRound(-std::log10(component.getResolution()) + std::log10(unit->times()));
    if (point >= 0)
        shift -= digits.size() - 1 - point;
    digits.remove(QLatin1Char('.'));
    long long steps = digits.toLongLong();
    for (; shift > 0; --shift)
        steps *= 10;
    for (; shift < 0; ++shift)
        steps /= 10;
    return steps;
}

/// A form of numbers of all kinds, a choice and a table, beaten by a monkey that the seed makes
/// repeatable.
class Monkey
{
public:
    explicit Monkey(quint32 seed)
        : m_random(seed)
    {
        add(UNIT_VOLTAGE, 1, -5, 5, 1e-4, "HighLevel");
        add(UNIT_VOLTAGE, -1, -5, 0.0005, 1e-4, "LowLevel");
        add(UNIT_TIME, 1e-5, 1e-6, 0.00015, 1e-10, "TriggerDelay");
        add(UNIT_TIME, 1e-3, 2e-6, 500, 1e-7, "Timer");
        add(UNIT_FREQUENCY, 1e3, 1e-6, 8e7, 1e-6, "Frequency");
        add(UNIT_RATE, 1e9, 1e6, 1e9, 1, "Rate");
        add(UNIT_POINTS, 100, 2, 131072, 1, "Points");
        m_numbers.append(m_real.form.add(new IntegerCombComponent(
            &m_real.form, "COUNT", false, nullptr, UNIT_EMPTY, 2, 30, 2, 1)));
        m_choice = m_real.form.add(
            new BooleanCombComponent(&m_real.form, "CHOICE", false, nullptr, 0, g_choices));
        m_real.form.resize(480, 800);
        FrontPanel::settle();
    }

    void act()
    {
        const int what = m_random.bounded(100);
        if (what < 80)
            key();
        else if (what < 90)
            tap();
        else if (what < 94)
            program();
        else
            burst();
    }

    /// What is wrong; empty when all is well.
    QString complaint() const
    {
        for (const RealCombComponent* number : m_numbers) {
            const QString found = complaintOf(*number);
            if (!found.isEmpty())
                return found;
        }
        for (int row = 0; row < m_real.model->rowCount(); ++row) {
            for (int column = 0; column < 2; ++column) {
                const double value =
                    RealEditDelegate::convertToDbValue(m_real.cell(row, column), 1e-9);
                if (value < 2e-8 - 1e-15 || value > 0.00015 + 1e-15)
                    return QStringLiteral("cell ") + m_real.cell(row, column);
            }
        }
        return m_real.editors().size() > 1 ? QStringLiteral("several editors") : QString();
    }

private:
    void add(ENUM_UNIT_TYPE type, double value, double min, double max, double resolution,
             const char* name)
    {
        m_numbers.append(m_real.form.add(new RealCombComponent(&m_real.form, name, false, nullptr,
                                                               type, value, max, min, resolution)));
        m_numbers.last()->setObjectName(QLatin1String(name));
    }

    static QString complaintOf(const RealCombComponent& number)
    {
        const QString held = number.objectName() + QStringLiteral(" %1 ").arg(number.get());
        if (number.checkInput(number.get()) != RealCombComponent::VALUE_OK)
            return held + QStringLiteral("is outside its limits");
        const auto* whole = number.findChild<ParameterTextWithOrderOfMagnitude*>();
        if (whole->getValue() != stepCount(number.get(), number.getResolution()))
            return held + QStringLiteral("is %1 steps").arg(whole->getValue());
        if (!whole->isTyping() && stepsShown(number) != whole->getValue())
            return held + QStringLiteral("shows ") + whole->getStringValue();
        return QString();
    }

    int anyKey()
    {
        static const int keys[] = {
            Qt::Key_0,      Qt::Key_1,         Qt::Key_2,      Qt::Key_5,      Qt::Key_9,
            Qt::Key_Period, Qt::Key_Minus,     QT_KEY_MINUS,   Qt::Key_Up,     Qt::Key_Up,
            Qt::Key_Down,   Qt::Key_Down,      Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Right,
            QT_KEY_GN,      QT_KEY_MU,         QT_KEY_KM,      QT_KEY_X1,      QT_KEY_KNOB,
            Qt::Key_Enter,  Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Cancel,
            QT_KEY_HELP};
        return keys[m_random.bounded(int(sizeof keys / sizeof *keys))];
    }

    void key() { FrontPanel::press(anyKey()); }

    void burst()
    {
        QVector<int> keys;
        for (int i = m_random.bounded(8); i >= 0; --i)
            keys.append(anyKey());
        FrontPanel::burst(keys);
    }

    void tap()
    {
        const int target = m_random.bounded(m_numbers.size() + 3);
        if (target < m_numbers.size()) {
            QWidget* digits = m_numbers[target]->findChild<ParameterTextEdit*>()->viewport();
            FrontPanel::tap(digits, QPoint(m_random.bounded(digits->width()), 10));
        } else if (target == m_numbers.size()) {
            const auto buttons = m_choice->findChildren<QPushButton*>();
            FrontPanel::tap(buttons[m_random.bounded(buttons.size())]);
        } else {
            m_real.doubleTapCell(m_random.bounded(3) + 1, m_random.bounded(2));
        }
    }

    void program()
    {
        RealCombComponent* number = m_numbers[m_random.bounded(m_numbers.size())];
        double max = 0;
        double min = 0;
        number->getMaxMinValue(max, min);
        const double share = m_random.generateDouble() * 1.4 - 0.2;
        number->set(min + share * (max - min));
        number->setDisable(m_random.bounded(10) == 0);
    }

    QRandomGenerator m_random;
    RealTable m_real{5};
    QVector<RealCombComponent*> m_numbers;
    BooleanCombComponent* m_choice = nullptr;
};

} // namespace

/// Whatever is pressed, tapped and set: values stay inside their limits, and what is shown is what
/// is held. MPB_MONKEY_EVENTS makes it more than the usual events per seed.
class TestMonkey : public QObject
{
    Q_OBJECT

private slots:
    void invariants_data();
    void invariants();
};

void TestMonkey::invariants_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestMonkey::invariants()
{
    QFETCH(quint32, seed);

    bool ok = false;
    const int given = qEnvironmentVariableIntValue("MPB_MONKEY_EVENTS", &ok);
    const int events = ok ? given : 1500;
    Monkey monkey(seed);
    for (int i = 0; i < events; ++i) {
        monkey.act();
        const QString complaint = monkey.complaint();
        QVERIFY2(complaint.isEmpty(), qPrintable(QStringLiteral("event %1: ").arg(i) + complaint));
    }
    QVERIFY(ToolkitForm::unexpectedWarnings().isEmpty());
}

QTEST_MAIN(TestMonkey)
#include "test_monkey.moc"
