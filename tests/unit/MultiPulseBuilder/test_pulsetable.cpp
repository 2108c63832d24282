// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsetable.h"

#include "cplugincombcomponent.h"
#include "hostcallbacks.h"
#include "toolkitform.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QtTest>

using namespace appPlugins;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

// 20 ns to 150 us in steps of a nanosecond.
RealPrivate g_columns[2] = {{UNIT_TIME, 2e-6, text("2.000u"), 1.5e-4, 2e-8, 1e-9},
                            {UNIT_TIME, 1e-5, text("10.000u"), 1.5e-4, 2e-8, 1e-9}};

int ignoreWarning(QString)
{
    return 0;
}

// A pulse table in a form, and what it tells of the cell that is edited.
struct PulseTable
{
    explicit PulseTable(int rows)
        : table(form.add(new CPulseTable(&form, 2, g_columns)))
        , model(qobject_cast<QStandardItemModel*>(table->model()))
        , cells(table, &CPulseTable::sgn_editorFocusIn)
        , indices(table, &CPulseTable::sgn_currentItem)
    {
        g_warningMessage = ignoreWarning;
        table->setFixedHeight(320);
        for (int row = 0; row < rows; ++row)
            table->slt_insert();
        form.start();
        cells.clear();
        indices.clear();
    }
    ~PulseTable() { g_warningMessage = nullptr; }
    PulseTable(const PulseTable&) = delete;
    PulseTable& operator=(const PulseTable&) = delete;

    CPulseTable* operator->() const { return table; }

    QString cell(int row, int column) const { return model->index(row, column).data().toString(); }

    QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }

    // One character for each row: whether the cell can be edited.
    QString enabled(int column) const
    {
        QString rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows.append(QLatin1Char(model->item(row, column)->isEnabled() ? '+' : '-'));
        return rows;
    }

    QPoint centre(int row, int column) const
    {
        return table->visualRect(model->index(row, column)).center();
    }

    void tapCell(int row, int column) const
    {
        FrontPanel::tap(table->viewport(), centre(row, column));
    }

    // Types microseconds into a cell.
    void enter(int row, int column, const char* microseconds) const
    {
        FrontPanel::doubleTap(table->viewport(), centre(row, column));
        FrontPanel::type(text(microseconds));
        FrontPanel::press(QT_KEY_MU);
    }

    bool editorIsOpen() const { return table->findChild<TabelRealCombComponent*>() != nullptr; }

    // Cells that became current since the last call.
    QVector<QPoint> takeCells()
    {
        QVector<QPoint> taken;
        for (const QList<QVariant>& arguments : cells)
            taken.append(arguments.first().toPoint());
        cells.clear();
        return taken;
    }

    QModelIndexList selected() const { return table->selectionModel()->selectedIndexes(); }

    ToolkitForm form;
    CPulseTable* table;
    QStandardItemModel* model;
    QSignalSpy cells;
    QSignalSpy indices;
};

const QPoint NoCell(-1, -1);

} // namespace

class TestPulseTable : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfDefaults();
    void rowsOfTexts();
    void textsThatDoNotFit();
    void rowsComeAtTheEnd();
    void rowsGoAtTheEnd();
    void removesNothingFromAnEmptyTable();
    void insertingAndRemovingClearTheSelection();
    void withoutItsModel_data();
    void withoutItsModel();
    void tellsOfTheTappedCell();
    void tellsOfTheCellThatIsOpened();
    void tellsOfTheFirstOfSeveral();
    void tellsOfAClearedSelection();
    void tellsOfAnIndex();
    void everyCellCanBeEdited();
    void commonGapOfTheFirstRow();
    void commonGapOfAText();
    void commonGapOfTheWidths();
    void commonGapFollowsTheFirstRow();
    void commonGapFollowsNothingElse();
    void commonGapCellsStayClosed();
    void commonGapTwice();
    void commonGapOfOneRowOrNone();
    void commonGapReachesLaterRows();
    void offKeepsTexts();
    void offTwice();
    void othersWhoFollowTheCells();
};

void TestPulseTable::rowsOfDefaults()
{
    const PulseTable pulses(2);
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("2.000u")}));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("10.000u")}));
}

// The texts are not checked against the limits.
void TestPulseTable::rowsOfTexts()
{
    const PulseTable pulses(1);
    pulses->slt_insert({text("1.000u"), text("3.000u")});
    pulses->slt_insert({text("999.000k"), text("no number")});
    pulses->slt_insert({QString(), text("4.000n")});
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("1.000u"), text("999.000k"), {}}));
    QCOMPARE(pulses.column(1),
             (QStringList{text("10.000u"), text("3.000u"), text("no number"), text("4.000n")}));
}

void TestPulseTable::textsThatDoNotFit()
{
    const PulseTable pulses(0);
    pulses->slt_insert({text("1.000u"), text("3.000u"), text("4.000u")});
    pulses->slt_insert({text("1.000u")});
    pulses->slt_insert(std::initializer_list<QString>());
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("2.000u"), text("2.000u")}));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("10.000u"), text("10.000u")}));
}

// Not before the selected row, where the rows of other tables come.
void TestPulseTable::rowsComeAtTheEnd()
{
    const PulseTable pulses(3);
    pulses.tapCell(1, 0);
    pulses->slt_insert({text("5.000u"), text("6.000u")});
    QCOMPARE(pulses.cell(3, 0), text("5.000u"));
    pulses.tapCell(0, 1);
    pulses->slt_insert();
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("2.000u"), text("2.000u"),
                                            text("5.000u"), text("2.000u")}));
}

void TestPulseTable::rowsGoAtTheEnd()
{
    const PulseTable pulses(0);
    for (const char* width : {"1.000u", "2.000u", "3.000u", "4.000u"})
        pulses->slt_insert({text(width), text("9.000u")});
    pulses.tapCell(1, 0);
    pulses->slt_remove();
    QCOMPARE(pulses.column(0), (QStringList{text("1.000u"), text("2.000u"), text("3.000u")}));
    pulses->slt_remove();
    QCOMPARE(pulses.column(0), (QStringList{text("1.000u"), text("2.000u")}));
}

void TestPulseTable::removesNothingFromAnEmptyTable()
{
    const PulseTable pulses(1);
    pulses->slt_remove();
    pulses->slt_remove();
    QCOMPARE(pulses.model->rowCount(), 0);
    pulses->slt_insert();
    QCOMPARE(pulses.model->rowCount(), 1);
}

void TestPulseTable::insertingAndRemovingClearTheSelection()
{
    PulseTable pulses(3);
    const QVector<std::function<void()>> changes = {
        [&] { pulses->slt_insert(); },
        [&] {
            pulses->slt_insert({text("1.000u"), text("3.000u")});
        },
        [&] { pulses->slt_insert({text("1.000u")}); },
        [&] { pulses->slt_remove(); },
    };
    for (const auto& change : changes) {
        pulses.tapCell(2, 1);
        QCOMPARE(pulses.selected().size(), 1);
        pulses.takeCells();
        change();
        QVERIFY(pulses.selected().isEmpty());
        QCOMPARE(pulses.takeCells(), QVector<QPoint>{NoCell});
    }
}

void TestPulseTable::withoutItsModel_data()
{
    QTest::addColumn<bool>("other");
    QTest::newRow("no model") << false;
    QTest::newRow("another kind of model") << true;
}

void TestPulseTable::withoutItsModel()
{
    QFETCH(bool, other);

    const PulseTable pulses(2);
    QStringListModel lines({text("one"), text("two")});
    pulses->setModel(other ? &lines : nullptr);
    pulses->slt_insert();
    pulses->slt_insert({text("1.000u"), text("3.000u")});
    pulses->setDisabled(true, 1, text("7.000u"));
    pulses->setDisabled(false, 1, QString());
    QCOMPARE(lines.stringList(), (QStringList{text("one"), text("two")}));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("10.000u")}));
    QCOMPARE(pulses.enabled(1), text("++"));
    pulses->setModel(pulses.model);
}

void TestPulseTable::tellsOfTheTappedCell()
{
    PulseTable pulses(5);
    for (const QPoint& cell : {QPoint(3, 0), QPoint(0, 1), QPoint(4, 1), QPoint(4, 0)}) {
        pulses.indices.clear();
        pulses.tapCell(cell.x(), cell.y());
        // The selection goes before it comes.
        const QVector<QPoint> told = pulses.takeCells();
        QVERIFY(!told.isEmpty());
        QCOMPARE(told.last(), cell);
        QCOMPARE(told.count(cell) + told.count(NoCell), told.size());
        QCOMPARE(pulses.indices.count(), told.size());
        QCOMPARE(pulses.indices.last().first().toModelIndex(),
                 pulses.model->index(cell.x(), cell.y()));
    }
}

void TestPulseTable::tellsOfTheCellThatIsOpened()
{
    PulseTable pulses(3);
    pulses.tapCell(1, 1);
    pulses.takeCells();
    pulses.tapCell(1, 1);
    QTRY_VERIFY(pulses.editorIsOpen());
    const QVector<QPoint> told = pulses.takeCells();
    QVERIFY(!told.isEmpty());
    QCOMPARE(told.last(), QPoint(1, 1));
}

void TestPulseTable::tellsOfTheFirstOfSeveral()
{
    PulseTable pulses(4);
    pulses->setSelectionMode(QAbstractItemView::ExtendedSelection);
    pulses->selectionModel()->select(
        QItemSelection(pulses.model->index(1, 0), pulses.model->index(3, 1)),
        QItemSelectionModel::ClearAndSelect);
    QCOMPARE(pulses.takeCells(), QVector<QPoint>{QPoint(1, 0)});
}

void TestPulseTable::tellsOfAClearedSelection()
{
    PulseTable pulses(4);
    pulses.tapCell(3, 0);
    pulses.takeCells();
    pulses.indices.clear();
    pulses->clearSelection();
    QCOMPARE(pulses.takeCells(), QVector<QPoint>{NoCell});
    QCOMPARE(pulses.indices.count(), 1);
    QVERIFY(!pulses.indices.first().first().toModelIndex().isValid());

    pulses->clearSelection();
    QVERIFY(pulses.takeCells().isEmpty());
}

void TestPulseTable::tellsOfAnIndex()
{
    PulseTable pulses(2);
    pulses->slt_editorFocusIn(pulses.model->index(1, 1));
    pulses->slt_editorFocusIn(QModelIndex());
    QCOMPARE(pulses.takeCells(), (QVector<QPoint>{QPoint(1, 1), NoCell}));
    QCOMPARE(pulses.indices.count(), 0);
}

void TestPulseTable::everyCellCanBeEdited()
{
    const PulseTable pulses(3);
    QCOMPARE(pulses.enabled(0), text("+++"));
    QCOMPARE(pulses.enabled(1), text("+++"));
    pulses.enter(0, 1, "20");
    pulses.enter(2, 0, "3");
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("2.000u"), text("3.000u")}));
    QCOMPARE(pulses.column(1), (QStringList{text("20.000u"), text("10.000u"), text("10.000u")}));
}

void TestPulseTable::commonGapOfTheFirstRow()
{
    const PulseTable pulses(4);
    pulses.enter(0, 1, "20");
    pulses.enter(2, 1, "30");
    pulses->setDisabled(true, 1, QString());
    QCOMPARE(pulses.column(1),
             (QStringList{text("20.000u"), text("20.000u"), text("20.000u"), text("20.000u")}));
    QCOMPARE(pulses.enabled(1), text("+---"));
    QCOMPARE(pulses.enabled(0), text("++++"));
    QCOMPARE(pulses.cell(2, 0), text("2.000u"));
}

void TestPulseTable::commonGapOfAText()
{
    const PulseTable pulses(3);
    pulses->setDisabled(true, 1, text("7.000u"));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("7.000u"), text("7.000u")}));
    QCOMPARE(pulses.enabled(1), text("+--"));
}

// The first row's gap goes into the widths as well: the text is always a gap.
void TestPulseTable::commonGapOfTheWidths()
{
    const PulseTable pulses(3);
    pulses->setDisabled(true, 0, QString());
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("10.000u"), text("10.000u")}));
    QCOMPARE(pulses.enabled(0), text("+--"));
    QCOMPARE(pulses.enabled(1), text("+++"));

    // A change of the first gap goes into the gaps, whichever column is disabled.
    pulses.enter(0, 1, "8");
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("10.000u"), text("10.000u")}));
    QCOMPARE(pulses.column(1), (QStringList{text("8.000u"), text("8.000u"), text("8.000u")}));

    pulses->setDisabled(true, 0, text("1.000u"));
    QCOMPARE(pulses.column(0), (QStringList{text("2.000u"), text("1.000u"), text("1.000u")}));
}

void TestPulseTable::commonGapFollowsTheFirstRow()
{
    const PulseTable pulses(4);
    pulses->setDisabled(true, 1, QString());
    pulses.enter(0, 1, "33");
    QCOMPARE(pulses.column(1),
             (QStringList{text("33.000u"), text("33.000u"), text("33.000u"), text("33.000u")}));
    pulses.enter(0, 1, "44");
    QCOMPARE(pulses.column(1),
             (QStringList{text("44.000u"), text("44.000u"), text("44.000u"), text("44.000u")}));
    QCOMPARE(pulses.column(0),
             (QStringList{text("2.000u"), text("2.000u"), text("2.000u"), text("2.000u")}));
}

void TestPulseTable::commonGapFollowsNothingElse()
{
    const PulseTable pulses(3);
    pulses->setDisabled(true, 1, text("7.000u"));
    pulses.enter(0, 0, "5");
    pulses.enter(2, 0, "6");
    QCOMPARE(pulses.column(0), (QStringList{text("5.000u"), text("2.000u"), text("6.000u")}));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("7.000u"), text("7.000u")}));

    pulses.model->setData(pulses.model->index(1, 1), text("1.000u"));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("1.000u"), text("7.000u")}));
}

void TestPulseTable::commonGapCellsStayClosed()
{
    PulseTable pulses(3);
    pulses->setDisabled(true, 1, QString());
    pulses.enter(1, 1, "20");
    QVERIFY(!pulses.editorIsOpen());
    QVERIFY(pulses.selected().isEmpty());
    QVERIFY(!pulses.takeCells().contains(QPoint(1, 1)));
    QCOMPARE(pulses.cell(1, 1), text("10.000u"));
}

void TestPulseTable::commonGapTwice()
{
    const PulseTable pulses(3);
    pulses->setDisabled(true, 1, QString());
    pulses->setDisabled(true, 1, text("7.000u"));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("7.000u"), text("7.000u")}));
    const QSignalSpy changes(pulses.model, &QStandardItemModel::dataChanged);
    pulses.enter(0, 1, "8");
    QCOMPARE(pulses.column(1), (QStringList{text("8.000u"), text("8.000u"), text("8.000u")}));
    // The gap that was entered and one copy for each other row.
    QCOMPARE(changes.count(), 3);
}

void TestPulseTable::commonGapOfOneRowOrNone()
{
    const PulseTable pulses(0);
    pulses->setDisabled(true, 1, QString());
    pulses->slt_insert();
    QCOMPARE(pulses.enabled(1), text("+"));
    pulses->setDisabled(true, 1, text("7.000u"));
    QCOMPARE(pulses.enabled(1), text("+"));
    QCOMPARE(pulses.column(1), QStringList{text("10.000u")});
}

// They come with the default gap and can be edited; the next change of the first gap takes them in.
void TestPulseTable::commonGapReachesLaterRows()
{
    const PulseTable pulses(2);
    pulses->setDisabled(true, 1, text("7.000u"));
    pulses->slt_insert();
    QCOMPARE(pulses.enabled(1), text("+-+"));
    QCOMPARE(pulses.cell(2, 1), text("10.000u"));
    pulses.enter(0, 1, "8");
    QCOMPARE(pulses.column(1), (QStringList{text("8.000u"), text("8.000u"), text("8.000u")}));
}

void TestPulseTable::offKeepsTexts()
{
    const PulseTable pulses(3);
    pulses->setDisabled(true, 1, text("7.000u"));
    pulses->setDisabled(false, 1, text("ignored"));
    QCOMPARE(pulses.enabled(1), text("+++"));
    QCOMPARE(pulses.column(1), (QStringList{text("10.000u"), text("7.000u"), text("7.000u")}));

    pulses.enter(0, 1, "8");
    pulses.enter(1, 1, "9");
    QCOMPARE(pulses.column(1), (QStringList{text("8.000u"), text("9.000u"), text("7.000u")}));
}

void TestPulseTable::offTwice()
{
    const PulseTable pulses(3);
    pulses->setDisabled(false, 1, QString());
    pulses->setDisabled(false, 1, QString());
    QCOMPARE(pulses.enabled(1), text("+++"));
    pulses.enter(0, 1, "8");
    QCOMPARE(pulses.column(1), (QStringList{text("8.000u"), text("10.000u"), text("10.000u")}));
}

void TestPulseTable::othersWhoFollowTheCells()
{
    const PulseTable pulses(3);
    QStringList told;
    QObject::connect(pulses.model, &QStandardItemModel::itemChanged, pulses.model,
                     [&](const QStandardItem* item) { told.append(item->text()); });
    pulses->setDisabled(false, 1, QString());
    told.clear();
    pulses.enter(0, 1, "8");
    QCOMPARE(told, QStringList{text("8.000u")});

    // On, the table alone follows; others do not come back with off.
    pulses->setDisabled(true, 1, QString());
    told.clear();
    pulses.enter(0, 1, "9");
    pulses->setDisabled(false, 1, QString());
    pulses.enter(0, 1, "10");
    QVERIFY(told.isEmpty());
}

QTEST_MAIN(TestPulseTable)

#include "test_pulsetable.moc"
