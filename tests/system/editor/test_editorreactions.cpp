// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editornumbers.h"
#include "editorsession.h"

#include <QItemSelectionModel>

using namespace appPlugins;
using namespace EditorNumbers;

namespace {

bool isOpen(const EditorHost& host)
{
    return host.table()->findChild<TabelRealCombComponent*>() != nullptr;
}

void doubleTapCell(const EditorHost& host, int row, int column)
{
    const QModelIndex index = host.table()->model()->index(row, column);
    host.table()->scrollTo(index);
    FrontPanel::doubleTap(host.table()->viewport(), host.table()->visualRect(index).center());
}

void editCell(const EditorHost& host, int row, int column, const QString& number)
{
    doubleTapCell(host, row, column);
    QVERIFY(isOpen(host));
    FrontPanel::type(number);
    FrontPanel::press(Qt::Key_Return);
    QVERIFY(!isOpen(host));
}

QStringList column(const EditorHost& host, int column)
{
    QStringList texts;
    for (int row = 0; row < host.table()->model()->rowCount(); ++row)
        texts.append(host.cell(row, column));
    return texts;
}

bool setGapMode(const EditorHost& host, Uint16 mode)
{
    return QMetaObject::invokeMethod(host.editor(), "slt_GapModeParamChanged", Q_ARG(Uint16, mode));
}

} // namespace

/// What a change of one parameter does to the others.
class TestEditorReactions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countGivesTheRows();
    void lastRowsGo();
    void rowsThatComeAreDefaults();
    void countByKnob();
    void countOfTheMost();
    void fractionOfACount();

    void levelLimitsOfTheModels_data();
    void levelLimitsOfTheModels();
    void levelLimitsAreEnforced_data();
    void levelLimitsAreEnforced();
    void levelsCouple_data();
    void levelsCouple();
    void levelByKnob();

    void gapModeOn_data();
    void gapModeOn();
    void gapModeOff();
};

void TestEditorReactions::countGivesTheRows()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        for (const int count : {5, 3, 2, 4, 2}) {
            host.enter(host.count(), QString::number(count));
            QCOMPARE(host.count()->get(), double(count));
            QCOMPARE(host.table()->model()->rowCount(), count);
        }
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::lastRowsGo()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("5"));
        for (int row = 0; row < 5; ++row)
            editCell(host, row, 0, QString::number(row + 1));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("1.000u 2.000u 3.000u 4.000u 5.000u"));
        // A selected row is not the one that goes.
        host.tapCell(0, 0);
        host.enter(host.count(), QStringLiteral("3"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')), QStringLiteral("1.000u 2.000u 3.000u"));
    });
}

void TestEditorReactions::rowsThatComeAreDefaults()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        editCell(host, 1, 0, QStringLiteral("7"));
        editCell(host, 1, 1, QStringLiteral("8"));
        host.tapCell(0, 0);
        host.enter(host.count(), QStringLiteral("5"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("2.000u 7.000u 2.000u 2.000u 2.000u"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("10.000u 8.000u 10.000u 10.000u 10.000u"));
    });
}

void TestEditorReactions::countByKnob()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.count()->focusProxy());
        FrontPanel::knob(3);
        QCOMPARE(host.table()->model()->rowCount(), 5);
        FrontPanel::knob(-2);
        QCOMPARE(host.table()->model()->rowCount(), 3);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::countOfTheMost()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("30"));
        QCOMPARE(host.table()->model()->rowCount(), 30);
        QCOMPARE(host.cell(29, 1), QStringLiteral("10.000u"));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::fractionOfACount()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("4.9"));
        QCOMPARE(host.count()->get(), 4.0);
        QCOMPARE(host.table()->model()->rowCount(), 4);
    });
}

void TestEditorReactions::levelLimitsOfTheModels_data()
{
    QTest::addColumn<double>("bound");
    QTest::newRow("KVX7052C") << 2.5;
    QTest::newRow("KVX705XX") << 2.5;
    QTest::newRow("KVX7040C") << 2.5;
    QTest::newRow("KVX7030C") << 5.0;
    QTest::newRow("KVX7020C") << 5.0;
    QTest::newRow("KVX7010C") << 5.0;
    QTest::newRow("KVX9999Z") << 5.0;
    QTest::newRow("AnotherMaker") << 5.0;
}

void TestEditorReactions::levelLimitsOfTheModels()
{
    QFETCH(double, bound);
    const EditorSession session({}, QTest::currentDataTag());
    const EditorHost& host = session.host;
    QCOMPARE(limits(host.highLevel()), limits(bound, 0.001 - bound));
    QCOMPARE(limits(host.lowLevel()), limits(bound - 0.001, -bound));
    QCOMPARE(host.highLevel()->get(), 1.25);
    QCOMPARE(host.lowLevel()->get(), -1.25);
}

void TestEditorReactions::levelLimitsAreEnforced_data()
{
    levelLimitsOfTheModels_data();
}

void TestEditorReactions::levelLimitsAreEnforced()
{
    QFETCH(double, bound);
    EditorSession session({}, QTest::currentDataTag());
    const EditorHost& host = session.host;
    const QString limit = QString::number(bound);
    session.exec([&] {
        host.enter(host.highLevel(), limit, QT_KEY_X1);
        host.enter(host.lowLevel(), QLatin1Char('-') + limit, QT_KEY_X1);
        QCOMPARE(host.highLevel()->get(), bound);
        QCOMPARE(host.lowLevel()->get(), -bound);
        QVERIFY(EditorHost::record().warnings.isEmpty());

        host.enter(host.highLevel(), QString::number(bound + 0.1), QT_KEY_X1);
        host.enter(host.lowLevel(), QString::number(-bound - 0.1), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings.size(), 2);
        QCOMPARE(host.highLevel()->get(), bound);
        QCOMPARE(host.lowLevel()->get(), -bound);

        host.choose(host.load(), 1);
        QCOMPARE(limits(host.highLevel()), limits(2 * bound, 0.002 - 2 * bound));
        QCOMPARE(limits(host.lowLevel()), limits(2 * bound - 0.002, -2 * bound));
        QCOMPARE(host.highLevel()->get(), 2 * bound);
    });
}

void TestEditorReactions::levelsCouple_data()
{
    QTest::addColumn<bool>("highZ");
    QTest::addColumn<double>("bound");
    QTest::addColumn<double>("distance");
    QTest::newRow("50 ohms") << false << 5.0 << 0.001;
    QTest::newRow("high impedance") << true << 10.0 << 0.002;
}

void TestEditorReactions::levelsCouple()
{
    QFETCH(bool, highZ);
    QFETCH(double, bound);
    QFETCH(double, distance);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        if (highZ)
            host.choose(host.load(), 1);
        const double low = highZ ? -2.5 : -1.25;
        host.enter(host.highLevel(), QStringLiteral("2"), QT_KEY_X1);
        QCOMPARE(limits(host.highLevel()), limits(bound, low + distance));
        QCOMPARE(limits(host.lowLevel()), limits(2 - distance, -bound));
        QCOMPARE(host.lowLevel()->get(), low);

        host.enter(host.lowLevel(), QStringLiteral("-1"), QT_KEY_X1);
        QCOMPARE(limits(host.highLevel()), limits(bound, -1 + distance));
        QCOMPARE(limits(host.lowLevel()), limits(2 - distance, -bound));
        QCOMPARE(host.highLevel()->get(), 2.0);

        // As close as the levels may come.
        host.enter(host.lowLevel(), QString::number(2 - distance), QT_KEY_X1);
        QCOMPARE(host.lowLevel()->get(), 2 - distance);
        QCOMPARE(limits(host.highLevel()), limits(bound, 2));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::levelByKnob()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.highLevel()->focusProxy());
        FrontPanel::knob(2);
        const double high = host.highLevel()->get();
        QVERIFY(high > 1.25);
        QCOMPARE(limits(host.lowLevel()), limits(high - 0.001, -5));
        FrontPanel::tap(host.lowLevel()->focusProxy());
        FrontPanel::knob(-2);
        const double low = host.lowLevel()->get();
        QVERIFY(low < -1.25);
        QCOMPARE(limits(host.highLevel()), limits(5, low + 0.001));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::gapModeOn_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("65535") << 65535;
}

void TestEditorReactions::gapModeOn()
{
    QFETCH(int, mode);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("4"));
        editCell(host, 0, 1, QStringLiteral("7"));
        editCell(host, 2, 1, QStringLiteral("9"));
        QVERIFY(setGapMode(host, Uint16(mode)));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("7.000u 7.000u 7.000u 7.000u"));

        host.tapCell(1, 1);
        QVERIFY(!host.table()->selectionModel()->hasSelection());
        doubleTapCell(host, 1, 1);
        QVERIFY(!isOpen(host));

        editCell(host, 0, 1, QStringLiteral("5"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("5.000u 5.000u 5.000u 5.000u"));
        editCell(host, 2, 0, QStringLiteral("3"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("2.000u 2.000u 3.000u 2.000u"));
    });
}

void TestEditorReactions::gapModeOff()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("3"));
        QVERIFY(setGapMode(host, 1));
        editCell(host, 0, 1, QStringLiteral("5"));
        QVERIFY(setGapMode(host, 0));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')), QStringLiteral("5.000u 5.000u 5.000u"));
        editCell(host, 0, 1, QStringLiteral("6"));
        editCell(host, 2, 1, QStringLiteral("8"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')), QStringLiteral("6.000u 5.000u 8.000u"));
    });
}

QTEST_MAIN(TestEditorReactions)
#include "test_editorreactions.moc"
