// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "crealtableview.h"
#include "frontpanel.h"
#include "parameteredit.h"
#include "realcombcomponent.h"
#include "toolkitlook.h"

#include <QDialog>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

// What the user waits for, beside the widgets that Qt has for the same: each step begins with an
// event in the queue and ends with the paint event that shows what became of it.

using namespace appPlugins;

namespace {

const int Rows = 30;

/// Sees the paint events of one widget.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }

    /// Handles events until the widget has painted itself.
    void wait()
    {
        m_painted = false;
        while (!m_painted)
            QCoreApplication::processEvents();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted = true;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_painted = false;
};

/// A dialog, on show and active, that holds one widget of a parameter row's size.
class Form : public QDialog
{
public:
    explicit Form(QWidget* input)
    {
        (new QVBoxLayout(this))->addWidget(input);
        resize(320, 60);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window does not become active");
    }
};

/// One detent of the knob, up to the paint event that shows the new number.
void turnKnob(benchmark::State& state, QWidget* painted, const std::function<double()>& value)
{
    PaintWatch watch(painted);
    QCoreApplication::processEvents();
    const double before = value();
    for (auto _ : state) {
        FrontPanel::post(QEvent::KeyPress, Qt::Key_Up);
        watch.wait();
        FrontPanel::post(QEvent::KeyRelease, Qt::Key_Up);
    }
    if (!(value() > before))
        state.SkipWithError("the knob turns nothing");
}

void knobOfComponent(benchmark::State& state)
{
    auto* number = new RealCombComponent(nullptr, "", false, "", UNIT_TIME, 1e-3, 0, 1000, 1e-12);
    const Form form(number);
    auto* digits = number->findChild<ParameterTextEdit*>();
    digits->setFocus();
    QTextCursor cursor = digits->textCursor();
    cursor.setPosition(8);
    digits->setTextCursor(cursor);
    turnKnob(state, digits->viewport(), [number] { return number->get(); });
}
BENCHMARK(knobOfComponent)->Unit(benchmark::kMicrosecond);

void knobOfSpinBox(benchmark::State& state, const char* styleSheet)
{
    auto* number = new QDoubleSpinBox;
    number->setFont(Look::textFont());
    number->setDecimals(9);
    number->setMaximum(1000);
    number->setSingleStep(1e-6);
    number->setValue(1);
    number->setStyleSheet(QLatin1String(styleSheet));
    const Form form(number);
    number->setFocus();
    turnKnob(state, number->findChild<QLineEdit*>(), [number] { return number->value(); });
}
const char g_spinBoxStyleSheet[] =
    "QDoubleSpinBox{background:transparent;border:none;color:rgb(255,255,255);}"
    "QDoubleSpinBox:disabled{background:transparent;border:none;color:rgb(146,146,146);}"
    "QDoubleSpinBox:focus{background:rgb(52,120,247);border:none;color:rgb(255,255,255);}";
BENCHMARK_CAPTURE(knobOfSpinBox, stock, "")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(knobOfSpinBox, styled, g_spinBoxStyleSheet)->Unit(benchmark::kMicrosecond);

std::unique_ptr<QTableView> toolkitTable()
{
    RealPrivate columns[] = {{UNIT_TIME, 2e-6, QStringLiteral("2.000u"), 1.5e-4, 2e-8, 1e-9},
                             {UNIT_TIME, 1e-5, QStringLiteral("10.000u"), 1.5e-4, 2e-8, 1e-9}};
    auto table = std::make_unique<CRealTableView>(nullptr, 2, columns);
    for (int row = 0; row < Rows; ++row)
        table->slt_insert();
    return table;
}

std::unique_ptr<QTableView> stockTable()
{
    auto table = std::make_unique<QTableView>();
    auto* model = new QStandardItemModel(0, 2, table.get());
    for (int row = 0; row < Rows; ++row) {
        model->appendRow({new QStandardItem(QStringLiteral("2.000u")),
                          new QStandardItem(QStringLiteral("10.000u"))});
    }
    table->setModel(model);
    return table;
}

/// As tall as the instrument's screen has room for.
void showTable(QTableView& table)
{
    table.resize(320, 400);
    PaintWatch watch(table.viewport());
    table.show();
    watch.wait();
}

using TableMaker = std::unique_ptr<QTableView> (*)();

void openTable(benchmark::State& state, TableMaker make)
{
    for (auto _ : state) {
        std::unique_ptr<QTableView> table = make();
        showTable(*table);
        state.PauseTiming();
        table.reset();
        FrontPanel::settle();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(openTable, toolkit, toolkitTable)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(openTable, stock, stockTable)->Unit(benchmark::kMicrosecond);

void pressKey(int key)
{
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        FrontPanel::post(type, key);
        QCoreApplication::processEvents();
    }
}

/// Opens the editor of a cell, types a number of three keys over what is there and confirms it, up
/// to the paint event that shows it. @p edits counts the changes of cells.
void typeIntoCell(QTableView& table, const QPoint& cell, char lastDigit, int commitKey,
                  const int& edits)
{
    const int before = edits;
    QTest::mouseDClick(table.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       FrontPanel::inWindow(table.viewport(), cell));
    QCoreApplication::processEvents();
    for (int key : {int(Qt::Key_3), int(Qt::Key_Period), int(lastDigit)})
        pressKey(key);
    PaintWatch watch(table.viewport());
    FrontPanel::post(QEvent::KeyPress, commitKey);
    FrontPanel::post(QEvent::KeyRelease, commitKey);
    do
        watch.wait();
    while (edits == before);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void editCell(benchmark::State& state, TableMaker make, int commitKey)
{
    const std::unique_ptr<QTableView> table = make();
    showTable(*table);
    if (!QTest::qWaitForWindowActive(table.get()))
        qFatal("the window does not become active");
    const QModelIndex cell = table->model()->index(3, 0);
    const QPoint middle = table->visualRect(cell).center();
    int edits = 0;
    QObject::connect(table->model(), &QAbstractItemModel::dataChanged, [&edits] { ++edits; });
    int rounds = 0;
    for (auto _ : state)
        typeIntoCell(*table, middle, static_cast<char>('1' + rounds++ % 9), commitKey, edits);
    if (edits != rounds || !cell.data().toString().startsWith(QLatin1String("3.")))
        state.SkipWithError("the number does not reach the cell");
}
BENCHMARK_CAPTURE(editCell, toolkit, toolkitTable, int(QT_KEY_MU))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(editCell, stock, stockTable, int(Qt::Key_Return))->Unit(benchmark::kMicrosecond);

void discardLog(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(discardLog);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
