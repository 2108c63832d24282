// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorparts.h"
#include "editorsession.h"

#include "cstackedcombocomponents.h"

#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>

using namespace appPlugins;
using namespace EditorParts;

namespace {

const QString MainStyleSheet = QStringLiteral(
    "QLabel[objectName=\"title\"]{color:rgb(255,255,255);padding-left:15px;"
    "background-color:#1e1e1e;}\n"
    "QLabel[objectName=\"parameterContainer\"]{border:2px solid rgb(255,255,255);}\n"
    "QLabel[objectName=\"bottom\"]{background:#2e2e2e;}\n"
    "QLabel[objectName=\"multipulse thumbnail\"]{border:none; color:#000000; "
    "background-color:transparent;}\n"
    "QLabel[objectName=\"multipulse table\"]{border:none; background-color:#2e2e2e;}\n"
    "QToolBar{background-color: #1e1e1e;}\n"
    "QLabel{background-color:#2e2e2e;}\n");

QString cornerText(const QTableView* table)
{
    return table->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text();
}

} // namespace

/// What an editor shows when it is new.
class TestEditorWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void coversTheScreen();
    void partsAreNamed();
    void titleLooksAsPrescribed();
    void tableHasAFrame();
    void titlesAndUnits();
    void numbersStartWithTheirRanges_data();
    void numbersStartWithTheirRanges();
    void choicesStartAtTheFirst();
    void sourceSelectsThePageOfTheStack();

    void tableAtStart();
    void scrollBarOnlyWhereRowsDoNotFit();
};

void TestEditorWindow::initTestCase()
{
    QVERIFY(InstalledContent::install());
}

void TestEditorWindow::coversTheScreen()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QCOMPARE(host.exec([&] {
        QCOMPARE(host.editor()->geometry(), QRect(0, 0, 800, 481));
        const auto* content =
            host.editor()->findChild<QWidget*>(QStringLiteral("m_pSubClassFillArea"));
        QCOMPARE(content->geometry(), QRect(0, 0, 800, 480));
        QCOMPARE(host.toolBar()->geometry(), QRect(0, 411, 640, 70));
    }),
             0);
    QCOMPARE(EditorHost::record().warnings.size(), 2);
}

void TestEditorWindow::partsAreNamed()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QWidget* content = label(host, "m_pSubClassFillArea");
    QCOMPARE(content->parentWidget(), label(host, "mask"));
    for (const char* name :
         {"title", "parameterContainer", "multipulse table", "multipulse thumbnail"}) {
        QVERIFY2(label(host, name) != nullptr, name);
        QCOMPARE(label(host, name)->parentWidget(), content);
    }
    QWidget* panel = label(host, "parameterContainer");
    for (const QWidget* component :
         QVector<QWidget*>{host.count(), host.highLevel(), host.lowLevel(), host.delay(),
                           host.timer(), host.source(), host.slope(), host.load()})
        QVERIFY(panel->isAncestorOf(component));
    for (const QWidget* unnamed :
         QVector<QWidget*>{host.count(), host.timer(), host.source(), host.slope(), host.load()})
        QCOMPARE(unnamed->objectName(), QString());
    QVERIFY(label(host, "multipulse table")->isAncestorOf(host.table()));
    QVERIFY(host.editor()->isEnabled());
}

void TestEditorWindow::titleLooksAsPrescribed()
{
    const EditorSession session;
    const QLabel* title = label(session.host, "title");
    QCOMPARE(title->text(), QStringLiteral("STR_ID_MULTIPLE_PULSES"));
    QCOMPARE(title->font().family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(title->font().pixelSize(), 16);
    QCOMPARE(title->font().weight(), 63);
    QCOMPARE(title->styleSheet(), MainStyleSheet);
    QCOMPARE(label(session.host, "parameterContainer")->styleSheet(), MainStyleSheet);
}

void TestEditorWindow::tableHasAFrame()
{
    EditorSession session;
    const QLabel* frame = label(session.host, "multipulse table");
    QCOMPARE(frame->focusPolicy(), Qt::NoFocus);
    QCOMPARE(frame->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    session.exec([&] { QCOMPARE(session.host.table()->geometry(), frame->rect()); });
}

void TestEditorWindow::titlesAndUnits()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    const auto compare = [](const QWidget* component, const char* title, const char* unit) {
        QCOMPARE(titleOf(component), QString(QLatin1String(title)));
        QCOMPARE(unitOf(component), QString(QLatin1String(unit)));
        QVERIFY(component->findChildren<QPushButton*>().isEmpty());
    };
    compare(host.count(), "STR_ID_PULSES_NUMS", "");
    compare(host.highLevel(), "STR_ID_HIGH_LEVEL", "V");
    compare(host.lowLevel(), "STR_ID_LOW_LEVEL", "V");
    compare(host.delay(), "STR_ID_TRIG_DELAY", "ARBID_UNIT_S");
    compare(host.source(), "DBID_TRIGGER_SOURCE", "");
    compare(host.editor()->findChild<EmptyCombComponent*>(), "", "");
    compare(host.slope(), "DBID_TRIGGER_SLOPE", "");
    compare(host.timer(), "SEQID_TIMER", "ARBID_UNIT_S");
    compare(host.load(), "STR_ID_STAT_LOAD", "");
}

void TestEditorWindow::numbersStartWithTheirRanges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, double start, double maximum, double minimum,
                        double resolution, const char* shown) {
        QTest::newRow(name) << QString(QLatin1String(name)) << start << maximum << minimum
                            << resolution << QString(QLatin1String(shown));
    };
    row("count", 2, 30, 2, 1, "2");
    row("high level", 1.25, 5, -4.999, 1e-4, "1.2500");
    row("low level", -1.25, 4.999, -5, 1e-4, "-1.2500");
    row("delay", 1e-5, 1.5e-4, 1e-6, 1e-10, "10.0000u");
    row("timer", 1e-3, 500, 2e-6, 1e-7, "1.0000m");
}

void TestEditorWindow::numbersStartWithTheirRanges()
{
    QFETCH(QString, name);
    QFETCH(double, start);
    QFETCH(double, maximum);
    QFETCH(double, minimum);
    QFETCH(double, resolution);
    QFETCH(QString, shown);
    const EditorSession session;
    const EditorHost& host = session.host;
    const RealCombComponent* number = QHash<QString, RealCombComponent*>{
        {QStringLiteral("count"), host.count()},
        {QStringLiteral("high level"), host.highLevel()},
        {QStringLiteral("low level"), host.lowLevel()},
        {QStringLiteral("delay"), host.delay()},
        {QStringLiteral("timer"),
         host.timer()}}.value(name);

    double max = 0;
    double min = 0;
    number->getMaxMinValue(max, min);
    QCOMPARE(number->get(), start);
    QCOMPARE(max, maximum);
    QCOMPARE(min, minimum);
    QCOMPARE(number->getResolution(), resolution);
    QCOMPARE(number->getStringValue(), shown);
}

void TestEditorWindow::choicesStartAtTheFirst()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QCOMPARE(choices(host.source()), (QStringList{QStringLiteral("STR_ID_MANUAL"),
                                                  QStringLiteral("DBID_TRIGGER_SOURCE_EXTERNAL"),
                                                  QStringLiteral("SEQID_TIMER")}));
    QCOMPARE(choices(host.slope()), (QStringList{QStringLiteral("DBID_TRIGGER_SLOPE_POSITIVE"),
                                                 QStringLiteral("DBID_TRIGGER_SLOPE_NEGATIVE")}));
    QCOMPARE(choices(host.load()),
             (QStringList{QStringLiteral("STR_ID_50"), QStringLiteral("STR_ID_HI_Z")}));
    for (const ComboBoxCombComponent* choice : {host.source(), host.slope(), host.load()}) {
        QCOMPARE(int(choice->get()), 0);
        QCOMPARE(choice->findChild<QComboBox*>()->currentIndex(), 0);
    }
}

void TestEditorWindow::sourceSelectsThePageOfTheStack()
{
    EditorSession session;
    const EditorHost& host = session.host;
    const auto* stack =
        host.editor()->findChild<CStackedComboComponents*>()->findChild<QStackedWidget*>();
    QCOMPARE(stack->count(), 3);
    QVERIFY(qobject_cast<EmptyCombComponent*>(stack->widget(0)) != nullptr);
    QCOMPARE(stack->widget(1), host.slope());
    QCOMPARE(stack->widget(2), host.timer());
    session.exec([&] {
        QVERIFY(!host.slope()->isVisible() && !host.timer()->isVisible());
        host.choose(host.source(), 1);
        QVERIFY(host.slope()->isVisible() && !host.timer()->isVisible());
        host.choose(host.source(), 2);
        QVERIFY(!host.slope()->isVisible() && host.timer()->isVisible());
        host.choose(host.source(), 0);
        QCOMPARE(stack->currentIndex(), 0);
        QVERIFY(!host.slope()->isVisible() && !host.timer()->isVisible());
    });
}

void TestEditorWindow::tableAtStart()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QCOMPARE(cornerText(host.table()), QStringLiteral("N"));
    QCOMPARE(host.table()->model()->columnCount(), 2);
    QCOMPARE(headerText(host.table(), 0), QStringLiteral("STR_ID_WIDTHS"));
    QCOMPARE(headerText(host.table(), 1), QStringLiteral("STR_ID_GAPS"));
    QCOMPARE(host.table()->model()->rowCount(), 2);
    for (const int row : {0, 1}) {
        QCOMPARE(host.cell(row, 0), QStringLiteral("2.000u"));
        QCOMPARE(host.cell(row, 1), QStringLiteral("10.000u"));
    }
}

void TestEditorWindow::scrollBarOnlyWhereRowsDoNotFit()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        const QScrollBar* bar = host.table()->verticalScrollBar();
        const int rowHeight = host.table()->rowHeight(0);
        const int fitting = host.table()->viewport()->height() / rowHeight;
        QVERIFY(fitting > 2);
        QVERIFY(!bar->isVisible());
        QVERIFY(!host.table()->horizontalScrollBar()->isVisible());

        host.enter(host.count(), QString::number(fitting));
        QCOMPARE(host.table()->model()->rowCount(), fitting);
        QVERIFY(!bar->isVisible());
        host.enter(host.count(), QString::number(fitting + 1));
        QVERIFY(bar->isVisible());
        QVERIFY(!host.table()->horizontalScrollBar()->isVisible());
    });
}

QTEST_MAIN(TestEditorWindow)
#include "test_editorwindow.moc"
