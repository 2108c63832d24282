// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ctableview.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

using appPlugins::CTableView;

namespace {

const char* g_titles[] = {"WIDTHS", "GAPS"};

struct Table
{
    explicit Table(int rows)
        : table(form.add(new CTableView(&form, 2)))
        , model(qobject_cast<QStandardItemModel*>(table->model()))
    {
        table->setFixedHeight(250);
        for (int i = 0; i < rows; ++i)
            table->slt_insert();
        form.start();
    }

    QString corner() const
    {
        for (const QLabel* label : table->findChildren<QLabel*>()) {
            if (label->geometry().topLeft() == QPoint(0, 0))
                return label->text();
        }
        return QString();
    }

    QString title(int column) const { return model->headerData(column, Qt::Horizontal).toString(); }

    /// Row and column of each selected cell.
    QVector<QPoint> selected() const
    {
        QVector<QPoint> cells;
        for (const QModelIndex& index : table->selectionModel()->selectedIndexes())
            cells.append(QPoint(index.row(), index.column()));
        return cells;
    }

    void drag(int from, int to) const
    {
        FrontPanel::drag(table->viewport(), QPoint(20, from), QPoint(20, to));
    }

    QScrollBar* bar() const { return table->verticalScrollBar(); }

    ToolkitForm form;
    CTableView* table;
    QStandardItemModel* model;
};

} // namespace

class TestCTableView : public QObject
{
    Q_OBJECT

private slots:
    void isSetUp();
    void headerTexts();
    void inserts();
    void insertWithSeveralSelected();
    void removes();
    void clears();
    void tapSelects();
    void fingerMoves_data();
    void fingerMoves();
    void scrollingStopsAtTheEnds();
    void moveWithoutPressBeginsThere();
    void movesAreLogged();
    void followsLanguage();
};

void TestCTableView::isSetUp()
{
    const Table table(3);
    QCOMPARE(table.model->columnCount(), 2);
    QCOMPARE(table.table->focusPolicy(), Qt::NoFocus);
    QVERIFY(!table.table->isCornerButtonEnabled());
    QCOMPARE(table.table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(int(table.table->editTriggers()), 6);
    QCOMPARE(table.table->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table.table->selectionBehavior(), QAbstractItemView::SelectItems);
    QCOMPARE(table.table->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(table.table->verticalHeader()->width(), 50);
    QCOMPARE(table.table->horizontalHeader()->height(), 32);
    QCOMPARE(table.table->rowHeight(1), 36);
    QCOMPARE(table.table->columnWidth(0) + table.table->columnWidth(1),
             table.table->viewport()->width());
    for (const QHeaderView* header :
         {table.table->horizontalHeader(), table.table->verticalHeader()}) {
        QVERIFY(!header->sectionsClickable());
        QVERIFY(!header->sectionsMovable());
        QCOMPARE(header->defaultAlignment(), Qt::AlignCenter);
        QCOMPARE(header->textElideMode(), Qt::ElideMiddle);
    }
}

void TestCTableView::headerTexts()
{
    const Table table(1);
    QCOMPARE(table.corner(), QStringLiteral("Index"));
    table.table->setHorizontalHeaderData("N", g_titles);
    QCOMPARE(table.corner(), QStringLiteral("N"));
    QCOMPARE(table.title(0), QStringLiteral("WIDTHS"));
    QCOMPARE(table.title(1), QStringLiteral("GAPS"));
}

void TestCTableView::inserts()
{
    const Table table(2);
    table.model->setData(table.model->index(0, 0), 10);
    table.model->setData(table.model->index(1, 0), 11);
    table.table->setCurrentIndex(table.model->index(1, 1));
    table.table->slt_insert();
    QCOMPARE(table.model->rowCount(), 3);
    QVERIFY(!table.model->index(1, 0).data().isValid());
    QCOMPARE(table.model->index(2, 0).data().toInt(), 11);
    table.table->clearSelection();
    table.table->slt_insert();
    QCOMPARE(table.model->rowCount(), 4);
    QCOMPARE(table.model->index(2, 0).data().toInt(), 11);
}

void TestCTableView::insertWithSeveralSelected()
{
    const Table table(3);
    table.table->setSelectionMode(QAbstractItemView::MultiSelection);
    table.table->selectAll();
    table.table->slt_insert();
    QCOMPARE(table.model->rowCount(), 3);
    table.table->slt_remove();
    QCOMPARE(table.model->rowCount(), 2);
}

void TestCTableView::removes()
{
    const Table table(3);
    for (int row = 0; row < 3; ++row)
        table.model->setData(table.model->index(row, 0), row);
    table.table->setCurrentIndex(table.model->index(0, 1));
    table.table->slt_remove();
    QCOMPARE(table.model->rowCount(), 2);
    QCOMPARE(table.model->index(0, 0).data().toInt(), 1);
    table.table->clearSelection();
    table.table->slt_remove();
    QCOMPARE(table.model->rowCount(), 1);
    QCOMPARE(table.model->index(0, 0).data().toInt(), 1);
    for (int i = 0; i < 2; ++i)
        table.table->slt_remove();
    QCOMPARE(table.model->rowCount(), 0);
}

void TestCTableView::clears()
{
    const Table table(3);
    table.table->setHorizontalHeaderData("N", g_titles);
    table.table->setCurrentIndex(table.model->index(1, 1));
    table.table->slt_clear();
    QCOMPARE(table.model->rowCount(), 0);
    QCOMPARE(table.model->columnCount(), 2);
    QVERIFY(table.selected().isEmpty());
    QCOMPARE(table.corner(), QStringLiteral("N"));
    QCOMPARE(table.title(1), QStringLiteral("GAPS"));
    table.table->slt_insert();
    QCOMPARE(table.model->rowCount(), 1);

    const Table untitled(1);
    untitled.table->slt_clear();
    QCOMPARE(untitled.model->columnCount(), 2);
    QCOMPARE(untitled.corner(), QStringLiteral("Index"));
}

void TestCTableView::tapSelects()
{
    const Table table(30);
    FrontPanel::tap(table.table->viewport(), QPoint(20, 90));
    QCOMPARE(table.selected(), QVector<QPoint>{QPoint(2, 0)});
    FrontPanel::tap(table.table->viewport(), QPoint(table.table->viewport()->width() - 20, 130));
    QCOMPARE(table.selected(), QVector<QPoint>{QPoint(3, 1)});
    QVERIFY(!table.table->hasFocus());

    const Table few(1);
    FrontPanel::tap(few.table->viewport(), QPoint(20, 150));
    QVERIFY(few.selected().isEmpty());
}

void TestCTableView::fingerMoves_data()
{
    QTest::addColumn<int>("barValue");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("barAfter");
    QTest::addColumn<int>("row"); // -1: none is selected

    QTest::newRow("4 px: a tap") << 100 << 90 << 94 << 100 << 5;
    QTest::newRow("5 px: nothing") << 100 << 90 << 95 << 100 << -1;
    QTest::newRow("6 px scroll") << 100 << 90 << 96 << 94 << -1;
    QTest::newRow("10 px scroll") << 100 << 90 << 100 << 90 << -1;
    QTest::newRow("20 px scroll") << 100 << 90 << 110 << 80 << -1;
    QTest::newRow("21 px scroll") << 100 << 90 << 111 << 79 << -1;
    QTest::newRow("-5 px: a tap") << 100 << 90 << 85 << 100 << 5;
    QTest::newRow("-10 px: scroll and a tap") << 100 << 90 << 80 << 110 << 5;
    QTest::newRow("-20 px: scroll and a tap") << 100 << 90 << 70 << 120 << 5;
    QTest::newRow("-21 px: a drag") << 100 << 90 << 69 << 121 << -1;
    QTest::newRow("-50 px: a drag") << 100 << 90 << 40 << 150 << -1;
    QTest::newRow("just below the header band") << 0 << 33 << 33 << 0 << 0;
    QTest::newRow("the band belongs to the view") << 0 << 32 << 32 << 0 << 0;
    QTest::newRow("no scrolling from the band") << 100 << 20 << 70 << 100 << 4;
}

void TestCTableView::fingerMoves()
{
    QFETCH(int, barValue);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, row);

    const Table table(30);
    table.bar()->setValue(barValue);
    table.drag(from, to);
    QTEST(table.bar()->value(), "barAfter");
    QCOMPARE(table.selected(), row < 0 ? QVector<QPoint>() : QVector<QPoint>{QPoint(row, 0)});
}

void TestCTableView::scrollingStopsAtTheEnds()
{
    const Table table(10);
    table.drag(40, 200);
    QCOMPARE(table.bar()->value(), 0);
    for (int i = 0; i < 4; ++i)
        table.drag(200, 40);
    QCOMPARE(table.bar()->value(), table.bar()->maximum());
    QCOMPARE(table.bar()->maximum(), 10 * 36 - table.table->viewport()->height());
}

void TestCTableView::moveWithoutPressBeginsThere()
{
    const Table table(30);
    table.bar()->setValue(100);
    // As after a press that another widget got; the press point is still the view's origin, in the
    // header band, so that only the base view sees the move.
    QTest::mouseMove(table.form.windowHandle(),
                     FrontPanel::inWindow(table.table->viewport(), QPoint(20, 150)));
    FrontPanel::settle();
    QCOMPARE(table.bar()->value(), 100);
    QVERIFY(LogCapture::messages().filter(QStringLiteral("mouseMoveEvent")).isEmpty());
}

void TestCTableView::movesAreLogged()
{
    const Table table(30);
    table.drag(90, 103);
    QVERIFY(LogCapture::messages().contains(
        QStringLiteral("warning: mouseMoveEvent QPoint(20,103) 13")));
}

void TestCTableView::followsLanguage()
{
    const Table table(1);
    table.table->setHorizontalHeaderData("N", g_titles);
    const TestTranslator german(QStringLiteral("de:"));
    FrontPanel::settle();
    QCOMPARE(table.corner(), QStringLiteral("de:N"));
    QCOMPARE(table.title(0), QStringLiteral("de:WIDTHS"));
}

QTEST_MAIN(TestCTableView)
#include "test_ctableview.moc"
