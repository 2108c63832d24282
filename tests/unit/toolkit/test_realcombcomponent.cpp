// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "realcombcomponent.h"

#include "realcomponent.h"

#include <QHBoxLayout>
#include <QtTest>

#include <cmath>

using namespace appPlugins;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

ParameterTextWithOrderOfMagnitude* wholeOf(const RealComponent& real)
{
    return real->findChild<ParameterTextWithOrderOfMagnitude*>();
}

} // namespace

/// Limits, rounding and who is told of what.
class TestRealCombComponent : public QObject
{
    Q_OBJECT

private slots:
    void hasLookAndRow();
    void limitsInEitherOrder();
    void defaultIsClampedFromAboveAlone_data();
    void defaultIsClampedFromAboveAlone();
    void checkInput_data();
    void checkInput();
    void roundedLimits();
    void setShowsSilently();
    void setBeyondLimits_data();
    void setBeyondLimits();
    void setNoFiniteNumber();
    void setWithinMarginOfLimit();
    void setSameIsTrueAndSilent();
    void setWhileFocusedIsSilent();
    void setWhileTyping();
    void setWhileDisabled();
    void newLimitsPullSilently();
    void limitsWhileDisabledStay();
    void actualSetLogs();
};

void TestRealCombComponent::hasLookAndRow()
{
    const RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    QCOMPARE(
        real->styleSheet(),
        QStringLiteral("QLabel{border:none;color:rgb(255,255,255);background:#2e2e2e;}\n"
                       "QLabel:disabled{border:none;color:rgb(146,146,146);background:#2e2e2e;}\n"
                       "QLabel[bDisguiseFocus=\"true\"]{border:none;color:rgb(255,255,255);"
                       "background:rgb(52,120,247);}\n"
                       "QLabel[bDisguiseFocus=\"false\"]{border:none;color:rgb(255,255,255);"
                       "background:#2e2e2e;}"));
    QCOMPARE(real->focusProxy(), wholeOf(real));
    const auto* row = qobject_cast<QHBoxLayout*>(real->layout());
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(1)->widget(), static_cast<QWidget*>(wholeOf(real)));
    const int stretches[] = {172, 156, 32};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(row->stretch(i), stretches[i]);

    // Digits and prefix share the input three to two from then on.
    real->setCombComponentsHorLayout(1, 2, 1, 10);
    wholeOf(real)->layout()->activate();
    const double width = wholeOf(real)->contentsRect().width();
    QCOMPARE(real.digits()->width(), qRound(width * 3 / 5));
    QCOMPARE(real.prefix()->width(), qRound(width * 2 / 5));
}

void TestRealCombComponent::limitsInEitherOrder()
{
    for (const auto& limits : {qMakePair(1.0, 10.0), qMakePair(10.0, 1.0)}) {
        RealComponent real(UNIT_VOLTAGE, 5, limits.first, limits.second, 1e-4);
        double max = 0;
        double min = 0;
        real->getMaxMinValue(max, min);
        QCOMPARE(max, 10.0);
        QCOMPARE(min, 1.0);
        QVERIFY(!real->set(11));
        QCOMPARE(real->get(), 10.0);
        QVERIFY(!real->set(0));
        QCOMPARE(real->get(), 1.0);
    }
}

void TestRealCombComponent::defaultIsClampedFromAboveAlone_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("held");
    QTest::addColumn<QString>("shown");

    QTest::newRow("above") << 20.0 << 10.0 << text("10.0000");
    QTest::newRow("inside") << 5.0 << 5.0 << text("5.0000");
    QTest::newRow("below") << 0.0 << 0.0 << text("0.0000");
}

void TestRealCombComponent::defaultIsClampedFromAboveAlone()
{
    QFETCH(double, value);

    const RealComponent real(UNIT_VOLTAGE, value, 1, 10, 1e-4);
    QTEST(real->get(), "held");
    QTEST(real.shown(), "shown");
    QTEST(real->getStringValue(), "shown");
}

void TestRealCombComponent::checkInput_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("error");

    const int ok = RealCombComponent::VALUE_OK;
    const int over = RealCombComponent::VALUE_OVERMAX;
    const int under = RealCombComponent::VALUE_UNDERMIN;
    QTest::newRow("maximum") << 5.0 << ok;
    QTest::newRow("a hair above") << 5.0 + 4e-15 << ok;
    QTest::newRow("more than the margin above") << 5.0 + 8e-15 << over;
    QTest::newRow("minimum") << -5.0 << ok;
    QTest::newRow("a hair below") << -5.0 - 4e-15 << ok;
    QTest::newRow("more than the margin below") << -5.0 - 8e-15 << under;
    QTest::newRow("zero") << 0.0 << ok;
    QTest::newRow("a step above") << 5.0001 << over;
    QTest::newRow("infinite") << HUGE_VAL << over;
}

void TestRealCombComponent::checkInput()
{
    QFETCH(double, value);

    const RealComponent real(UNIT_VOLTAGE, 0, -5, 5, 1e-4);
    QTEST(int(real->checkInput(value)), "error");
    QCOMPARE(int(RealCombComponent::VALUE_OK), 0);
    QCOMPARE(int(RealCombComponent::VALUE_UNDERMIN), 1);
    QCOMPARE(int(RealCombComponent::VALUE_OVERMAX), 2);
}

void TestRealCombComponent::roundedLimits()
{
    RealComponent real(UNIT_VOLTAGE, 0, -4.99996, 5.00004, 1e-4);
    double max = 0;
    double min = 0;
    real->getRoundedMaxMin(max, min);
    QCOMPARE(max, 5.0);
    QCOMPARE(min, -5.0);
    QVERIFY(!real->set(7));
    QCOMPARE(real->get(), 5.0);
    QCOMPARE(real->round(0.00005), 0.0001);
    QCOMPARE(real->round(-0.00005), -0.0001);
}

void TestRealCombComponent::setShowsSilently()
{
    RealComponent real(UNIT_TIME, 1e-5, 1e-6, 0.00015, 1e-10);
    QVERIFY(real->set(2.35e-6));
    QCOMPARE(real.shown(), text("2.3500u"));
    QVERIFY(real->set(2.00004e-6));
    QCOMPARE(real.shown(), text("2.0000u"));
    QCOMPARE(real->get(), 2e-6);
    QVERIFY(real.isSilent());
}

void TestRealCombComponent::setBeyondLimits_data()
{
    QTest::addColumn<bool>("focused");
    QTest::newRow("without focus") << false;
    QTest::newRow("with focus") << true;
}

void TestRealCombComponent::setBeyondLimits()
{
    QFETCH(bool, focused);

    RealComponent real(UNIT_EMPTY, 7, 2, 30, 1);
    if (focused)
        real.focusOn(0);
    QVERIFY(!real->set(31.2));
    QCOMPARE(real.illegalValues(), QVector<double>{31});
    QCOMPARE(real.shown(), text("30"));
    QCOMPARE(real->get(), 30.0);
    QVERIFY(!real->set(1));
    QCOMPARE(real.illegalValues(), (QVector<double>{31, 1}));
    QCOMPARE(real.shown(), text("2"));
    // A count is cut to a whole number by its owner: no margin may be left in it.
    QCOMPARE(static_cast<int>(real->get()), 2);
    QVERIFY(real.changes().isEmpty());
}

void TestRealCombComponent::setNoFiniteNumber()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    QVERIFY(!real->set(std::nan("")));
    QCOMPARE(real->get(), 1.0);
    QCOMPARE(real.shown(), text("1.0000"));
    QVERIFY(real.isSilent());

    QVERIFY(!real->set(HUGE_VAL));
    QCOMPARE(real->get(), 5.0);
    QCOMPARE(real.shown(), text("5.0000"));
    QVERIFY(!real->set(-HUGE_VAL));
    QCOMPARE(real->get(), -5.0);
    QCOMPARE(real.shown(), text("-5.0000"));
    QCOMPARE(real.illegal.count(), 2);
}

void TestRealCombComponent::setWithinMarginOfLimit()
{
    RealComponent real(UNIT_VOLTAGE, 0, -5, 5, 1e-4);
    QVERIFY(real->set(5 + 4e-15));
    QCOMPARE(real.shown(), text("5.0000"));
    QVERIFY(real->set(-5 - 4e-15));
    QCOMPARE(real.shown(), text("-5.0000"));
    QVERIFY(real.isSilent());
}

void TestRealCombComponent::setSameIsTrueAndSilent()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    QVERIFY(real->set(5));
    QVERIFY(real->set(5 + 1e-16));
    real.focusOn(2);
    QVERIFY(real->set(5));
    QCOMPARE(real.digits()->textCursor().position(), 2);
    QVERIFY(real.isSilent());
}

void TestRealCombComponent::setWhileFocusedIsSilent()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    real.focusOn(2);
    QVERIFY(real->set(7.5));
    QCOMPARE(real.shown(), text("7.5000"));
    QCOMPARE(real->get(), 7.5);
    QVERIFY(real.isSilent());
    FrontPanel::knob(1);
    QCOMPARE(real.changes(), QVector<double>{7.6});
}

void TestRealCombComponent::setWhileTyping()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    real.focusOn(0);
    FrontPanel::type(text("9"));
    QVERIFY(real->set(7));
    QCOMPARE(real.shown(), text("7.0000"));
    FrontPanel::press(QT_KEY_X1);
    QCOMPARE(real.shown(), text("7.0000"));
    QVERIFY(real.isSilent());
}

void TestRealCombComponent::setWhileDisabled()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    real->setDisable(true);
    QVERIFY(!real->isAvailable());
    QVERIFY(!real->set(7));
    QVERIFY(!real->set(70));
    QCOMPARE(real->get(), 5.0);
    QCOMPARE(real.shown(), text("5.0000"));
    QVERIFY(real.isSilent());
    real->setDisable(false);
    QVERIFY(real->set(7));
    QCOMPARE(real.shown(), text("7.0000"));
}

void TestRealCombComponent::newLimitsPullSilently()
{
    for (bool focused : {false, true}) {
        RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
        if (focused)
            real.focusOn(0);
        real->setMaxMinValue(1, 2);
        QCOMPARE(real->get(), 2.0);
        QCOMPARE(real.shown(), text("2.0000"));
        real->setMaxMinValue(9, 3);
        QCOMPARE(real->get(), 3.0);
        QCOMPARE(real.shown(), text("3.0000"));
        QVERIFY(real.isSilent());
    }
}

void TestRealCombComponent::limitsWhileDisabledStay()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    real->setDisable(true);
    real->setMaxMinValue(1, 2);
    real->setDisable(false);
    double max = 0;
    double min = 0;
    real->getMaxMinValue(max, min);
    QCOMPARE(max, 10.0);
    QCOMPARE(min, 0.0);
    QCOMPARE(real->get(), 5.0);
}

void TestRealCombComponent::actualSetLogs()
{
    RealComponent real(UNIT_VOLTAGE, 5, 0, 10, 1e-4);
    real->actualSet(2.5);
    const QStringList log = LogCapture::messages();
    QVERIFY(log.contains(text("debug: actualSet value 2.5 m_dbValue 5")));
    QVERIFY(log.contains(text("warning: actualSet valueLL 25000 valueDB 25000")));
    const int warnings = log.filter(text("warning")).size();
    real->actualSet(2.5);
    QCOMPARE(LogCapture::messages().filter(text("warning")).size(), warnings);
    QCOMPARE(real.shown(), text("2.5000"));
}

QTEST_MAIN(TestRealCombComponent)
#include "test_realcombcomponent.moc"
