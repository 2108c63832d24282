// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unit.h"

#include "toolkitform.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace appPlugins;

namespace {

enum Family { Plain, Frequency, Volt, Time, Percent, Rate, Phase, Point };

const int Cancels = -1;

/// The widget that a selector answers to: it notes the keys that it gets.
class Owner : public QWidget
{
public:
    using QWidget::QWidget;
    QVector<int> keys;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys.append(event->key());
        modifiers = event->modifiers();
        QVERIFY(event->text().isEmpty());
    }
};

CUnit* createUnit(int family, QWidget* owner)
{
    switch (family) {
    case Frequency:
        return new CFrequencyUnit(owner);
    case Volt:
        return new CVoltUnit(owner);
    case Time:
        return new CTimeUnit(owner);
    case Percent:
        return new CPercentUnit(owner);
    case Rate:
        return new CRateUnit(owner);
    case Phase:
        return new CPhaseUnit(owner);
    case Point:
        return new CPointUnit(owner);
    default:
        return new CUnit(owner);
    }
}

void pressAndWork(CUnit* unit, int key)
{
    QCoreApplication::postEvent(unit, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    FrontPanel::settle();
}

} // namespace

class TestUnit : public QObject
{
    Q_OBJECT

private slots:
    void prefixes_data();
    void prefixes();
    void keys_data();
    void keys();
    void otherKeysCancel_data();
    void otherKeysCancel();
    void indexIsSetSilently();
    void baseIsShown_data();
    void baseIsShown();
    void hasLook();
    void disguiseFocus_data();
    void disguiseFocus();
    void disabledTakesNoKeys();
};

void TestUnit::prefixes_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QVector<double>>("powers");
    QTest::addColumn<int>("baseIndex");

    const QString none;
    const QString giga = QStringLiteral("G");
    const QString mega = QStringLiteral("M");
    const QString kilo = QStringLiteral("k");
    const QString milli = QStringLiteral("m");
    const QString micro = QStringLiteral("u");
    const QString nano = QStringLiteral("n");
    QTest::newRow("plain") << int(Plain) << QStringList{kilo, none} << QVector<double>{1e3, 1} << 1;
    QTest::newRow("frequency") << int(Frequency)
                               << QStringList{giga, mega, kilo, none, milli, micro}
                               << QVector<double>{1e9, 1e6, 1e3, 1, 1e-3, 1e-6} << 3;
    QTest::newRow("volt") << int(Volt) << QStringList{none, milli} << QVector<double>{1, 1e-3} << 0;
    QTest::newRow("time") << int(Time) << QStringList{none, milli, micro, nano}
                          << QVector<double>{1, 1e-3, 1e-6, 1e-9} << 0;
    QTest::newRow("percent") << int(Percent) << QStringList{none} << QVector<double>{1} << 0;
    QTest::newRow("rate") << int(Rate) << QStringList{giga} << QVector<double>{1e9} << 0;
    QTest::newRow("phase") << int(Phase) << QStringList{none} << QVector<double>{1} << 0;
    QTest::newRow("point") << int(Point) << QStringList{mega, kilo, none}
                           << QVector<double>{1e6, 1e3, 1} << 2;
}

void TestUnit::prefixes()
{
    QFETCH(int, family);
    QFETCH(QStringList, labels);
    QFETCH(QVector<double>, powers);

    QWidget owner;
    CUnit* unit = createUnit(family, &owner);
    QCOMPARE(unit->unitIndex(), 0);
    QCOMPARE(unit->unitCounts(), labels.size());
    QTEST(unit->baseIndex(), "baseIndex");
    for (int i = 0; i < labels.size(); ++i) {
        unit->setUnitIndex(i);
        QCOMPARE(unit->getUnitString(), labels[i]);
        QCOMPARE(unit->text(), labels[i]);
        QCOMPARE(unit->times(), powers[i]);
        QCOMPARE(unit->timesOf(i), powers[i]);
    }
}

void TestUnit::keys_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QVector<int>>("indices"); // of GN, MU, KM, X1

    QTest::newRow("plain") << int(Plain) << QVector<int>{Cancels, Cancels, 0, 1};
    QTest::newRow("frequency") << int(Frequency) << QVector<int>{0, 1, 2, 3};
    QTest::newRow("volt") << int(Volt) << QVector<int>{Cancels, Cancels, 1, 0};
    QTest::newRow("time") << int(Time) << QVector<int>{3, 2, 1, 0};
    QTest::newRow("percent") << int(Percent) << QVector<int>{Cancels, Cancels, Cancels, 0};
    QTest::newRow("rate") << int(Rate) << QVector<int>{0, Cancels, Cancels, 0};
    QTest::newRow("phase") << int(Phase) << QVector<int>{Cancels, Cancels, Cancels, 0};
    QTest::newRow("point") << int(Point) << QVector<int>{Cancels, 0, 1, 2};
}

void TestUnit::keys()
{
    QFETCH(int, family);
    QFETCH(QVector<int>, indices);

    const int keys[] = {QT_KEY_GN, QT_KEY_MU, QT_KEY_KM, QT_KEY_X1};
    for (int i = 0; i < indices.size(); ++i) {
        Owner owner;
        CUnit* unit = createUnit(family, &owner);
        unit->setToBase();
        QSignalSpy selected(unit, &CUnit::unitSelected);
        pressAndWork(unit, keys[i]);
        const bool cancels = indices[i] == Cancels;
        QCOMPARE(unit->unitIndex(), cancels ? unit->baseIndex() : indices[i]);
        QCOMPARE(unit->text(), unit->getUnitString());
        QCOMPARE(selected.count(), cancels ? 0 : 1);
        QCOMPARE(owner.keys, cancels ? QVector<int>{Qt::Key_Cancel} : QVector<int>());
    }
    for (int key : {int(QT_KEY_KNOB), int(Qt::Key_Return)}) {
        Owner owner;
        CUnit* unit = createUnit(family, &owner);
        unit->setUnitIndex(unit->unitCounts() - 1);
        QSignalSpy selected(unit, &CUnit::unitSelected);
        pressAndWork(unit, key);
        QCOMPARE(unit->unitIndex(), unit->unitCounts() - 1);
        QCOMPARE(selected.count(), 1);
        QVERIFY(owner.keys.isEmpty());
    }
}

void TestUnit::otherKeysCancel_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("digit") << int(Qt::Key_5);
    QTest::newRow("enter of the keypad") << int(Qt::Key_Enter);
    QTest::newRow("left") << int(Qt::Key_Left);
    QTest::newRow("home") << int(QT_KEY_HOME);
    QTest::newRow("cancel") << int(Qt::Key_Cancel);
}

void TestUnit::otherKeysCancel()
{
    QFETCH(int, key);

    for (int family = Plain; family <= Point; ++family) {
        Owner owner;
        CUnit* unit = createUnit(family, &owner);
        QSignalSpy selected(unit, &CUnit::unitSelected);
        pressAndWork(unit, key);
        QCOMPARE(owner.keys, QVector<int>{Qt::Key_Cancel});
        QCOMPARE(owner.modifiers, Qt::KeypadModifier);
        QCOMPARE(selected.count(), 0);
        QCOMPARE(unit->unitIndex(), 0);
    }
    const std::unique_ptr<CUnit> alone(new CUnit(nullptr));
    pressAndWork(alone.get(), key);
    QCOMPARE(alone->unitIndex(), 0);
}

void TestUnit::indexIsSetSilently()
{
    QWidget owner;
    CTimeUnit unit(&owner);
    QSignalSpy selected(&unit, &CUnit::unitSelected);
    unit.setUnitIndex(2);
    QCOMPARE(unit.text(), QStringLiteral("u"));
    // The label's text tells whether the same index touches it.
    unit.setText(QStringLiteral("?"));
    unit.setUnitIndex(2);
    QCOMPARE(unit.text(), QStringLiteral("?"));
    unit.setUnitIndex(1);
    QCOMPARE(unit.text(), QStringLiteral("m"));
    QCOMPARE(selected.count(), 0);
}

void TestUnit::baseIsShown_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QString>("label");
    for (int family = Plain; family <= Point; ++family)
        QTest::addRow("family %d", family)
            << family << (family == Rate ? QStringLiteral("G") : QString());
}

void TestUnit::baseIsShown()
{
    QFETCH(int, family);

    QWidget owner;
    CUnit* unit = createUnit(family, &owner);
    unit->setUnitIndex(unit->unitCounts() - 1);
    unit->setToBase();
    QTEST(unit->text(), "label");
    QCOMPARE(unit->times(), family == Rate ? 1e9 : 1.0);
}

void TestUnit::hasLook()
{
    QWidget owner;
    const CUnit unit(&owner);
    QCOMPARE(unit.alignment(), Qt::AlignLeft | Qt::AlignBottom);
    QCOMPARE(unit.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(unit.font().family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(unit.font().pixelSize(), 16);
    QCOMPARE(unit.font().weight(), 75);
    QCOMPARE(unit.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(unit.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(
        unit.styleSheet(),
        QStringLiteral("QLabel{border:none;color:rgb(255,255,255);background:transparent;}"
                       "QLabel:disabled{border:none;color:rgb(146,146,146);background:transparent;}"
                       "QLabel[bDisguiseFocus=\"true\"]{border:none;color:rgb(255,255,255);"
                       "background:rgb(52,120,247);}"
                       "QLabel[bDisguiseFocus=\"true\"]:disabled{border:none;color:rgb(146,146,146)"
                       ";background:rgb(52,120,247);}"
                       "QLabel[bDisguiseFocus=\"false\"]{border:none;color:rgb(255,255,255);"
                       "background:transparent;}"
                       "QLabel[bDisguiseFocus=\"false\"]:disabled{border:none;color:rgb(146,146,"
                       "146);background:transparent;}"));
    QVERIFY(!unit.getBDisguiseFocus());
    QCOMPARE(unit.property("bDisguiseFocus"), QVariant(false));
}

void TestUnit::disguiseFocus_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("textColor");
    QTest::newRow("enabled") << true << QColor(255, 255, 255);
    QTest::newRow("disabled") << false << QColor(146, 146, 146);
}

void TestUnit::disguiseFocus()
{
    QFETCH(bool, enabled);

    const QColor black(0, 0, 0);
    const QColor blue(52, 120, 247);
    QWidget owner;
    owner.setStyleSheet(QStringLiteral("QWidget{background:rgb(0,0,0);}"));
    owner.resize(60, 40);
    CTimeUnit unit(&owner);
    unit.setGeometry(0, 0, 60, 40);
    unit.setUnitIndex(1);
    unit.setEnabled(enabled);
    const auto corner = [&] { return owner.grab().toImage().pixelColor(55, 5); };
    QCOMPARE(corner(), black);
    unit.setProperty("bDisguiseFocus", true);
    QCOMPARE(corner(), blue);
    QTEST(unit.palette().color(unit.foregroundRole()), "textColor");
    unit.setProperty("bDisguiseFocus", false);
    QCOMPARE(corner(), black);
}

void TestUnit::disabledTakesNoKeys()
{
    Owner owner;
    CTimeUnit unit(&owner);
    unit.setDisabled(true);
    QSignalSpy selected(&unit, &CUnit::unitSelected);
    pressAndWork(&unit, QT_KEY_KM);
    QCOMPARE(unit.unitIndex(), 0);
    QCOMPARE(selected.count(), 0);
    QVERIFY(!owner.keys.contains(Qt::Key_Cancel));
}

QTEST_MAIN(TestUnit)
#include "test_unit.moc"
