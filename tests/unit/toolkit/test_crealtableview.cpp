// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "crealtableview.h"

#include "realtable.h"

#include <QtTest>

using namespace appPlugins;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

const QString RangeWarning =
    QStringLiteral("ARBID_ERROR_CODE_S0207(0.005) \nSTR_ID_VALID_RANGE   (2e-08 \u2014 0.00015)");

} // namespace

class TestCRealTableView : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfDefaults();
    void rowsOfTexts();
    void rowsBeforeSelection();
    void describesItsFirstColumn();
    void disablesColumn();
    void doubleTapOpensEditor();
    void secondTapOpensEditor();
    void typedValueGoesIntoCell();
    void sameNumberClosesEditor();
    void returnKeepsPrefix();
    void knobGoesIntoCellOnce();
    void keyInCell_data();
    void keyInCell();
    void knobThenTapElsewhere_data();
    void knobThenTapElsewhere();
    void typingThenTapElsewhere_data();
    void typingThenTapElsewhere();
    void cancelStaysInCell();
    void valueBeyondLimits_data();
    void valueBeyondLimits();
    void knobBeyondLimitStaysOpen();
    void grownZerosDoNotReachCell();
    void dragWithOpenEditor();
    void disabledCellStaysClosed();
    void otherKeysReachDialog();
    void cellAfterCell();
};

void TestCRealTableView::rowsOfDefaults()
{
    const RealTable real(2);
    QCOMPARE(real.model->rowCount(), 2);
    for (int row = 0; row < 2; ++row) {
        QCOMPARE(real.cell(row, 0), text("2.000u"));
        QCOMPARE(real.cell(row, 1), text("10.000u"));
        QCOMPARE(real.model->index(row, 1).data(Qt::TextAlignmentRole).toInt(),
                 int(Qt::AlignCenter));
    }
}

void TestCRealTableView::rowsOfTexts()
{
    const RealTable real(0);
    real.table->slt_insert({text("1.000u"), text("3.000u")});
    real.table->slt_insert({text("1.000u"), text("3.000u"), text("4.000u")});
    real.table->slt_insert({text("1.000u")});
    real.table->slt_insert(std::initializer_list<QString>());
    QCOMPARE(real.model->rowCount(), 4);
    QCOMPARE(real.cell(0, 0), text("1.000u"));
    QCOMPARE(real.cell(0, 1), text("3.000u"));
    for (int row = 1; row < 4; ++row) {
        QCOMPARE(real.cell(row, 0), text("2.000u"));
        QCOMPARE(real.cell(row, 1), text("10.000u"));
    }
}

void TestCRealTableView::rowsBeforeSelection()
{
    const RealTable real(3);
    real.tapCell(1, 1);
    real.table->slt_insert({text("1.000u"), text("3.000u")});
    QCOMPARE(real.cell(1, 0), text("1.000u"));
    QVERIFY(real.selected().isEmpty());
    real.tapCell(3, 0);
    real.table->slt_insert();
    QCOMPARE(real.model->rowCount(), 5);
    QCOMPARE(real.cell(1, 0), text("1.000u"));
}

void TestCRealTableView::describesItsFirstColumn()
{
    const RealTable real(0);
    RealPrivate contents;
    real.table->getDefaultRowContents(contents);
    QCOMPARE(contents.strValue, text("2.000u"));
    QCOMPARE(contents.dbAbsoluteMin, 2e-8);
}

void TestCRealTableView::disablesColumn()
{
    const RealTable real(3);
    real.table->slt_insert({text("1.000u"), text("9.000u")});
    real.table->setDisabled(true, 0, text("4.000u"));
    for (int row = 0; row < 4; ++row) {
        QVERIFY(!real.model->item(row, 0)->isEnabled());
        QVERIFY(real.model->item(row, 1)->isEnabled());
        QCOMPARE(real.cell(row, 1), text("4.000u"));
    }
    real.table->setDisabled(false, 0, QString());
    QVERIFY(real.model->item(0, 0)->isEnabled());
    QCOMPARE(real.cell(3, 1), text("4.000u"));

    real.model->setData(real.model->index(0, 1), text("7.000u"));
    real.table->setDisabled(true, 1, QString());
    QCOMPARE(real.cell(3, 1), text("7.000u"));
    QVERIFY(!real.model->item(3, 1)->isEnabled());
}

void TestCRealTableView::doubleTapOpensEditor()
{
    const RealTable real(5);
    real.doubleTapCell(2, 0);
    QCOMPARE(real.editors().size(), 1);
    QCOMPARE(real.shown(), text("2.000u"));
    QVERIFY(real.editors().first()->hasFocus());
    QCOMPARE(real.editors().first()->geometry(), real.table->visualRect(real.model->index(2, 0)));
    QCOMPARE(real.changes.count(), 0);
}

void TestCRealTableView::secondTapOpensEditor()
{
    const RealTable real(5);
    real.tapCell(2, 1);
    QVERIFY(real.editors().isEmpty());
    real.tapCell(2, 1);
    QTRY_COMPARE(real.editors().size(), 1);
    QCOMPARE(real.shown(), text("10.000u"));
}

void TestCRealTableView::typedValueGoesIntoCell()
{
    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::type(text("2.35"));
    QCOMPARE(real.cell(2, 0), text("2.000u"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(real.cell(2, 0), text("2.350u"));
    QVERIFY(real.editors().isEmpty());
    QCOMPARE(real.changes.count(), 1);
    QVERIFY(real.form.hasFocus());
    QVERIFY(RealTable::warnings().isEmpty());
}

void TestCRealTableView::sameNumberClosesEditor()
{
    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::type(text("2"));
    FrontPanel::press(QT_KEY_MU);
    QVERIFY(real.editors().isEmpty());
    QCOMPARE(real.cell(2, 0), text("2.000u"));
    QVERIFY(RealTable::warnings().isEmpty());
}

void TestCRealTableView::returnKeepsPrefix()
{
    const RealTable real(5);
    real.doubleTapCell(0, 1);
    FrontPanel::type(text("20"));
    FrontPanel::press(Qt::Key_Return);
    QCOMPARE(real.cell(0, 1), text("20.000u"));
    QVERIFY(real.editors().isEmpty());
}

void TestCRealTableView::knobGoesIntoCellOnce()
{
    for (int key : {int(QT_KEY_KNOB), int(Qt::Key_Return)}) {
        const RealTable real(5);
        real.doubleTapCell(2, 0);
        FrontPanel::knob(5);
        QCOMPARE(real.shown(), text("7.000u"));
        QCOMPARE(real.changes.count(), 0);
        FrontPanel::press(key);
        QCOMPARE(real.cell(2, 0), text("7.000u"));
        QCOMPARE(real.changes.count(), 1);
        QVERIFY(real.editors().isEmpty());
    }
}

void TestCRealTableView::keyInCell_data()
{
    QTest::addColumn<QVector<int>>("before");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<bool>("open");

    const QVector<int> opened;
    const QVector<int> turned{Qt::Key_Up};
    const QVector<int> typing{Qt::Key_5, Qt::Key_0};
    const auto row = [](const QVector<int>& before, int key, const char* cell, bool open) {
        QTest::addRow("%d keys, then %d", before.size(), key)
            << before << key << text(cell) << open;
    };
    for (int key :
         {int(Qt::Key_7), int(Qt::Key_Period), int(Qt::Key_Minus), int(QT_KEY_MINUS),
          int(Qt::Key_Backspace), int(Qt::Key_Delete), int(Qt::Key_Left), int(Qt::Key_Right),
          int(Qt::Key_Up), int(Qt::Key_Down), int(Qt::Key_Cancel), int(QT_KEY_HELP)}) {
        for (const QVector<int>& before : {opened, turned, typing})
            row(before, key, "2.000u", true);
    }
    for (int key : {int(QT_KEY_GN), int(QT_KEY_MU), int(QT_KEY_KM), int(QT_KEY_X1),
                    int(QT_KEY_KNOB), int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        row(opened, key, "2.000u", false);
        row(turned, key, "3.000u", false);
    }
    row(typing, QT_KEY_GN, "50n", false);
    row(typing, QT_KEY_MU, "50.000u", false);
    row(typing, QT_KEY_KM, "150.000u", false);
    row(typing, QT_KEY_X1, "150.000u", false);
    row(typing, QT_KEY_KNOB, "50.000u", false);
    row(typing, Qt::Key_Return, "50.000u", false);
    row(typing, Qt::Key_Enter, "2.000u", false);
}

void TestCRealTableView::keyInCell()
{
    QFETCH(QVector<int>, before);
    QFETCH(int, key);
    QFETCH(bool, open);

    const RealTable real(5);
    real.doubleTapCell(2, 0);
    for (int first : before)
        FrontPanel::press(first);
    FrontPanel::press(key);
    QTRY_COMPARE(real.editors().size(), open ? 1 : 0);
    QTEST(real.cell(2, 0), "cell");
    QCOMPARE(RealTable::warnings().isEmpty(), real.cell(2, 0) != text("150.000u"));

    // What was typed and not confirmed goes with the focus; what the knob turned stays.
    const QString shown = open && before.size() < 2 ? real.shown() : QString();
    real.tapCell(3, 1);
    QVERIFY(real.editors().isEmpty());
    if (open && (key == Qt::Key_Up || key == Qt::Key_Down) && !shown.isEmpty())
        QCOMPARE(real.cell(2, 0), shown);
}

void TestCRealTableView::knobThenTapElsewhere_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("cell in the same row") << text("row");
    QTest::newRow("cell in the same column") << text("column");
    QTest::newRow("number of the form") << text("number");
    QTest::newRow("title of the form's number") << text("title");
}

namespace {

void tapElsewhere(const RealTable& real, const QString& where)
{
    if (where == QLatin1String("row"))
        real.tapCell(2, 1);
    else if (where == QLatin1String("column"))
        real.tapCell(4, 0);
    else if (where == QLatin1String("number"))
        FrontPanel::tap(real.number->findChild<ParameterTextEdit*>()->viewport());
    else
        FrontPanel::tap(real.number, QPoint(5, 5));
}

} // namespace

void TestCRealTableView::knobThenTapElsewhere()
{
    QFETCH(QString, where);

    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::knob(1);
    tapElsewhere(real, where);
    QCOMPARE(real.cell(2, 0), text("3.000u"));
    QVERIFY(real.editors().isEmpty());
    FrontPanel::knob(1);
    QCOMPARE(real.cell(2, 0), text("3.000u"));
}

void TestCRealTableView::typingThenTapElsewhere_data()
{
    knobThenTapElsewhere_data();
}

void TestCRealTableView::typingThenTapElsewhere()
{
    QFETCH(QString, where);

    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::type(text("9"));
    tapElsewhere(real, where);
    QCOMPARE(real.cell(2, 0), text("2.000u"));
    QVERIFY(real.editors().isEmpty());
}

void TestCRealTableView::cancelStaysInCell()
{
    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::type(text("9"));
    FrontPanel::press(Qt::Key_Cancel);
    QCOMPARE(real.shown(), text("2.000u"));
    QCOMPARE(real.editors().size(), 1);
    FrontPanel::press(QT_KEY_KNOB);
    QCOMPARE(real.cell(2, 0), text("2.000u"));
    QVERIFY(real.editors().isEmpty());
}

void TestCRealTableView::valueBeyondLimits_data()
{
    QTest::addColumn<bool>("modal");
    QTest::newRow("message that returns at once") << false;
    QTest::newRow("message box") << true;
}

void TestCRealTableView::valueBeyondLimits()
{
    QFETCH(bool, modal);

    const RealTable real(5);
    RealTable::modalWarnings() = modal;
    real.doubleTapCell(2, 0);
    FrontPanel::type(text("5"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(RealTable::warnings(), QStringList{RangeWarning});
    QTRY_VERIFY(real.editors().isEmpty());
    QCOMPARE(real.cell(2, 0), text("150.000u"));

    real.doubleTapCell(2, 0);
    FrontPanel::type(text("5"));
    FrontPanel::press(QT_KEY_GN);
    QTRY_VERIFY(real.editors().isEmpty());
    QCOMPARE(real.cell(2, 0), text("20n"));
    QCOMPARE(RealTable::warnings().size(), 2);
}

void TestCRealTableView::knobBeyondLimitStaysOpen()
{
    for (bool modal : {false, true}) {
        const RealTable real(1);
        RealTable::modalWarnings() = modal;
        real.model->setData(real.model->index(0, 0), text("149.500u"));
        real.doubleTapCell(0, 0);
        for (int i = 0; i < 2; ++i)
            FrontPanel::press(Qt::Key_Right);
        FrontPanel::knob(1);
        QCOMPARE(RealTable::warnings().size(), 1);
        QCOMPARE(real.shown(), text("150.000u"));
        QTRY_VERIFY(real.editors().value(0) != nullptr && real.editors().first()->hasFocus());
        FrontPanel::press(QT_KEY_KNOB);
        QCOMPARE(real.cell(0, 0), text("150.000u"));
    }
}

void TestCRealTableView::grownZerosDoNotReachCell()
{
    const RealTable real(5);
    real.doubleTapCell(2, 0);
    FrontPanel::press(Qt::Key_Left);
    QCOMPARE(real.shown(), text("02.000u"));
    real.tapCell(3, 0);
    QCOMPARE(real.cell(2, 0), text("2.000u"));
}

void TestCRealTableView::dragWithOpenEditor()
{
    const RealTable real(30);
    real.doubleTapCell(4, 0);
    FrontPanel::knob(1);
    FrontPanel::drag(real.table->viewport(), real.centre(3, 1), real.centre(3, 1) - QPoint(0, 40));
    QCOMPARE(real.table->verticalScrollBar()->value(), 40);
    QCOMPARE(real.editors().size(), 1);
    QCOMPARE(real.editors().first()->geometry(), real.table->visualRect(real.model->index(4, 0)));
    FrontPanel::press(QT_KEY_KNOB);
    QCOMPARE(real.cell(4, 0), text("3.000u"));
}

void TestCRealTableView::disabledCellStaysClosed()
{
    const RealTable real(3);
    real.table->setDisabled(true, 1, QString());
    real.doubleTapCell(1, 1);
    QVERIFY(real.editors().isEmpty());
    real.doubleTapCell(1, 0);
    QCOMPARE(real.editors().size(), 1);
}

void TestCRealTableView::otherKeysReachDialog()
{
    const RealTable real(3);
    real.doubleTapCell(1, 0);
    FrontPanel::press(QT_KEY_HELP);
    FrontPanel::press(Qt::Key_Escape);
    QCOMPARE(real.form.pressed, (QVector<int>{QT_KEY_HELP, Qt::Key_Escape}));
    QCOMPARE(real.editors().size(), 1);
}

void TestCRealTableView::cellAfterCell()
{
    const RealTable real(6);
    for (int row = 1; row < 5; ++row) {
        for (int column = 0; column < 2; ++column) {
            real.doubleTapCell(row, column);
            QCOMPARE(real.editors().size(), 1);
            FrontPanel::type(QString::number(10 * row + column));
            FrontPanel::press(QT_KEY_MU);
        }
    }
    for (int row = 1; row < 5; ++row) {
        for (int column = 0; column < 2; ++column)
            QCOMPARE(real.cell(row, column), QString::number(10 * row + column) + text(".000u"));
    }
    QVERIFY(real.editors().isEmpty());
    QCOMPARE(real.changes.count(), 8);
}

QTEST_MAIN(TestCRealTableView)
#include "test_crealtableview.moc"
