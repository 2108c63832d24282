// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tabledelegates.h"

#include "hostcallbacks.h"
#include "parameteredit.h"
#include "realcombcomponent.h"
#include "stdoutcapture.h"
#include "toolkitform.h"

#include <QTableView>
#include <QtTest>

#include <memory>

using namespace appPlugins;

namespace {

QStringList g_warnings;

RealPrivate columnOf(ENUM_UNIT_TYPE type, double max, double resolution)
{
    RealPrivate column;
    column.unitType = type;
    column.dbAbsoluteMax = max;
    column.resolution = resolution;
    return column;
}

/// A view of one cell with a delegate.
struct Cell
{
    explicit Cell(QAbstractItemDelegate* delegate, const QString& text)
        : model(1, 1, nullptr)
    {
        model.setItem(0, 0, new QStandardItem(text));
        auto* view = form.add(new QTableView(&form));
        view->setModel(&model);
        view->setItemDelegate(delegate);
        view->setFixedHeight(100);
        form.start();
        view->edit(index());
    }

    QModelIndex index() const { return model.index(0, 0); }
    QString text() const { return index().data().toString(); }
    TabelRealCombComponent* editor() const { return form.findChild<TabelRealCombComponent*>(); }

    CStandardItemModel model;
    ToolkitForm form;
};

} // namespace

class TestTableDelegates : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void convertsTexts_data();
    void convertsTexts();
    void everyCellIsCentred();
    void noEditDelegateGivesNoEditor();
    void editorShowsCell_data();
    void editorShowsCell();
    void cellOutsideLimitsWarns();
    void otherEditorStoresNothing();
    void textThatReadsDifferentlyIsPrinted();
    void wrongNewValueIsPrinted();
    void editorFillsCell();
    void negativeCell_data();
    void negativeCell();
};

void TestTableDelegates::init()
{
    g_warnings.clear();
    g_warningMessage = [](QString text) {
        g_warnings.append(text);
        return 0;
    };
}

void TestTableDelegates::convertsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    const auto row = [](const char* text, double value) {
        QTest::addRow("\"%s\"", text) << QString::fromLatin1(text) << value;
    };
    row("2.000u", 2e-06);
    row("10.000u", 1e-05);
    row("1.5K", 1500);
    row("3", 3);
    row("u5", 5e-06);
    row("5u0", 5e-05);
    row("7n", 7e-09);
    row("2M", 2e6);
    row("2G", 2e9);
    row("-4m", -0.004);
    row("abc", 0);
    row("", 0);
    row("2.000us", 0);
    row("5uu", 0);
    row("5k", 0);
    row("1.0000004u", 1e-06);
    row("1.0000006u", 1.000001e-06);
}

void TestTableDelegates::convertsTexts()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QVERIFY(qAbs(RealEditDelegate::convertToDbValue(text, 1e-12) - value) <= qAbs(value) * 1e-14);
}

void TestTableDelegates::everyCellIsCentred()
{
    CStandardItemModel model(1, 2, nullptr);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("a")));
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(model.index(0, column).data(Qt::TextAlignmentRole).toInt(),
                 int(Qt::AlignHCenter | Qt::AlignVCenter));
    }
    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("a"));
    QVERIFY(!model.index(0, 1).data().isValid());
}

void TestTableDelegates::noEditDelegateGivesNoEditor()
{
    NoEditDelegate delegate;
    const Cell cell(&delegate, QStringLiteral("a"));
    QVERIFY(cell.editor() == nullptr);
    QWidget parent;
    QCOMPARE(delegate.createEditor(&parent, QStyleOptionViewItem(), cell.index()), nullptr);
}

void TestTableDelegates::editorShowsCell_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");

    QTest::newRow("micro") << QStringLiteral("2.350u") << 2.35e-6 << QStringLiteral("2.350u");
    QTest::newRow("odd place") << QStringLiteral("u5") << 5e-6 << QStringLiteral("5.000u");
    QTest::newRow("no prefix") << QStringLiteral("0.001") << 1e-3 << QStringLiteral("1.000000m");
    QTest::newRow("unreadable") << QStringLiteral("?") << 0.0 << QStringLiteral("0.000000000");
}

void TestTableDelegates::editorShowsCell()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    RealEditDelegate delegate(columnOf(UNIT_TIME, 1, 1e-9), nullptr);
    const Cell cell(&delegate, text);
    QVERIFY(cell.editor() != nullptr);
    QVERIFY(qAbs(cell.editor()->get() - value) < 1e-15);
    QTEST(cell.editor()->getStringValue(), "shown");
    QVERIFY(g_warnings.isEmpty());
    QCOMPARE(cell.text(), text);
}

void TestTableDelegates::cellOutsideLimitsWarns()
{
    RealEditDelegate delegate(columnOf(UNIT_TIME, 0.5, 1e-9), nullptr);
    const Cell cell(&delegate, QStringLiteral("0.75"));
    QCOMPARE(g_warnings,
             QStringList{QStringLiteral(
                 "ARBID_ERROR_CODE_S0207(0.75) \nSTR_ID_VALID_RANGE   (0 \u2014 0.5)")});
    QCOMPARE(cell.editor()->get(), 0.5);
}

void TestTableDelegates::otherEditorStoresNothing()
{
    RealEditDelegate delegate(columnOf(UNIT_TIME, 1, 1e-9), nullptr);
    CStandardItemModel model(1, 1, nullptr);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("2.000u")));
    QWidget other;
    delegate.setModelData(&other, &model, model.index(0, 0));
    QCOMPARE(model.index(0, 0).data().toString(), QString());
}

void TestTableDelegates::textThatReadsDifferentlyIsPrinted()
{
    // The editor's kilo is a small letter, the cell's a capital one.
    RealEditDelegate delegate(columnOf(UNIT_FREQUENCY, 1e6, 1), nullptr);
    Cell cell(&delegate, QStringLiteral("1.5K"));
    QCOMPARE(cell.editor()->getStringValue(), QStringLiteral("1.500k"));
    const QByteArray output =
        printed([&] { delegate.setModelData(cell.editor(), &cell.model, cell.index()); });
    QCOMPARE(output, QByteArray("setModelData() error, get(1.500000e+03) not the same as "
                                "getStringValue(1.500k)!\n"));
    QCOMPARE(cell.text(), QStringLiteral("1.500k"));
}

void TestTableDelegates::wrongNewValueIsPrinted()
{
    RealEditDelegate delegate(columnOf(UNIT_TIME, 1, 1e-9), nullptr);
    const Cell cell(&delegate, QStringLiteral("2.000u"));
    const QByteArray output = printed([&] { delegate.slt_finishedEditing(3e-6); });
    QCOMPARE(output,
             QByteArray("<RealEditDelegate> slt_finishedEditing() newValue(3.000000e-06) is "
                        "error!\n"));
    FrontPanel::settle();
    QVERIFY(cell.editor() == nullptr);
    QCOMPARE(printed([&] { delegate.slt_finishedEditing(3e-6); }), QByteArray());
}

void TestTableDelegates::editorFillsCell()
{
    RealEditDelegate delegate(columnOf(UNIT_TIME, 1, 1e-9), nullptr);
    const Cell cell(&delegate, QStringLiteral("2.000u"));
    const auto* view = cell.form.findChild<QTableView*>();
    QCOMPARE(cell.editor()->geometry(), view->visualRect(cell.index()));
}

void TestTableDelegates::negativeCell_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<QString>("cell");

    const int down = Qt::Key_Down;
    const int up = Qt::Key_Up;
    QTest::newRow("typed") << QStringLiteral("1.0000")
                           << QVector<int>{Qt::Key_Minus, Qt::Key_2, QT_KEY_X1}
                           << QStringLiteral("-2.0000");
    QTest::newRow("knob over zero")
        << QStringLiteral("1.0000") << QVector<int>{down, down, QT_KEY_KNOB}
        << QStringLiteral("-1.0000");
    QTest::newRow("knob back over zero")
        << QStringLiteral("-1.0000") << QVector<int>{up, up, QT_KEY_KNOB}
        << QStringLiteral("1.0000");
    QTest::newRow("typed below the limit")
        << QStringLiteral("-1.0000") << QVector<int>{Qt::Key_Minus, Qt::Key_9, QT_KEY_X1}
        << QStringLiteral("-5.0000");
    QTest::newRow("typed in milli")
        << QStringLiteral("-1.0000") << QVector<int>{QT_KEY_MINUS, Qt::Key_9, QT_KEY_KM}
        << QStringLiteral("-9.0m");
}

void TestTableDelegates::negativeCell()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, keys);

    RealPrivate column = columnOf(UNIT_VOLTAGE, 5, 1e-4);
    column.dbAbsoluteMin = -5;
    RealEditDelegate delegate(column, nullptr);
    const Cell cell(&delegate, text);
    FrontPanel::tap(cell.editor()->findChild<ParameterTextEdit*>()->viewport(), QPoint(1, 10));
    for (int key : keys)
        FrontPanel::press(key);
    QTRY_VERIFY(cell.editor() == nullptr);
    QTEST(cell.text(), "cell");
}

QTEST_MAIN(TestTableDelegates)
#include "test_tabledelegates.moc"
