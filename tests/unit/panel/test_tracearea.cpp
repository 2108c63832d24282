// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracearea.h"

#include "barbutton.h"
#include "mousemove.h"
#include "panelwindowtrial.h"
#include "traceplot.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

class TestTraceArea : public QObject, private PanelWindowTrial
{
    Q_OBJECT

private slots:
    void initTestCase() { dropPlatformWarnings(); }
    void init() { open(); }
    void cleanup() { close(); }
    void traceNumbers();
    void cursorsByKeyboard();
    void cursorsByMouse();
    void zoomByWheelFrameAndKeys();
    void outputOff();
    void csvFile();
    void pictureFiles_data();
    void pictureFiles();
    void fileThatCannotBeWritten();
    void manySamples();

private:
    QString readout(const char* name) const;
    QPoint plotPoint(double share) const;
    void turnPlotWheel(int angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void saveAs(const QString& path);
};

QString TestTraceArea::readout(const char* name) const
{
    return m_window->findChild<QLabel*>(QStringLiteral("readout_") + QLatin1String(name))->text();
}

QPoint TestTraceArea::plotPoint(double share) const
{
    return {qRound(plot()->canvas()->width() * share), plot()->canvas()->height() / 2};
}

void TestTraceArea::turnPlotWheel(int angle, Qt::KeyboardModifiers modifiers)
{
    const QPointF place = plotPoint(0.5);
    QWheelEvent event(place, plot()->canvas()->mapToGlobal(place.toPoint()), QPoint(),
                      QPoint(0, angle), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot()->canvas(), &event);
}

void TestTraceArea::traceNumbers()
{
    giveBurst();
    QTRY_VERIFY(m_window->findChild<QLabel*>(QStringLiteral("traceState"))
                    ->text()
                    .startsWith(QLatin1String("On")));
    plot()->setCursor(0, 100e-6);
    plot()->setCursor(1, 350e-6);
    QCOMPARE(readout("t1"), QStringLiteral("100 µs"));
    QCOMPARE(readout("V1"), QStringLiteral("0 V"));
    QCOMPARE(readout("t2"), QStringLiteral("350 µs"));
    QCOMPARE(readout("V2"), QStringLiteral("2 V"));
    QCOMPARE(readout("dt"), QStringLiteral("250 µs"));
    QCOMPARE(readout("1/dt"), QStringLiteral("4 kHz"));
    QCOMPARE(readout("dV"), QStringLiteral("2 V"));
}

void TestTraceArea::cursorsByKeyboard()
{
    giveBurst();
    plot()->setFocus();
    QTest::keyClick(plot(), Qt::Key_2);
    QCOMPARE(plot()->activeCursor(), 1);
    const double before = plot()->cursor(1);
    const double pixel = plot()->view().seconds() / plot()->canvas()->width();
    QTest::keyClick(plot(), Qt::Key_Right);
    QCOMPARE(plot()->cursor(1), before + pixel);
    QTest::keyClick(plot(), Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(plot()->cursor(1), before + pixel - 10 * pixel);
    QCOMPARE(m_bench->keypad.received(), QByteArray());
}

void TestTraceArea::cursorsByMouse()
{
    giveBurst();
    plot()->setCursor(0, plot()->view().from + plot()->view().seconds() * 0.25);
    QTest::mousePress(plot()->canvas(), Qt::LeftButton, Qt::NoModifier, plotPoint(0.25));
    moveMouse(plot()->canvas(), plotPoint(0.5));
    QTest::mouseRelease(plot()->canvas(), Qt::LeftButton, Qt::NoModifier, plotPoint(0.5));
    const double middle = plot()->view().from + plot()->view().seconds() / 2;
    QVERIFY(qAbs(plot()->cursor(0) - middle) < plot()->view().seconds() / 200);
    QVERIFY(plot()->isAllShown());
    QTest::mouseClick(m_window->findChild<BarButton*>(QStringLiteral("cursors")), Qt::LeftButton);
    QVERIFY(!plot()->areCursorsShown());
}

void TestTraceArea::zoomByWheelFrameAndKeys()
{
    giveBurst();
    const TraceView all = plot()->view();
    turnPlotWheel(120);
    QVERIFY(plot()->view().seconds() < all.seconds());
    QCOMPARE(plot()->view().volts(), all.volts());
    turnPlotWheel(120, Qt::ControlModifier);
    QVERIFY(plot()->view().volts() < all.volts());
    QTest::mouseDClick(plot()->canvas(), Qt::LeftButton);
    QCOMPARE(plot()->view().seconds(), all.seconds());
    QTest::mousePress(plot()->canvas(), Qt::LeftButton, Qt::NoModifier, plotPoint(0.4));
    moveMouse(plot()->canvas(), plotPoint(0.6));
    QTest::mouseRelease(plot()->canvas(), Qt::LeftButton, Qt::NoModifier, plotPoint(0.6));
    QVERIFY(qAbs(plot()->view().seconds() / all.seconds() - 0.2) < 0.01);
    plot()->setFocus();
    QTest::keyClick(plot(), Qt::Key_Home);
    QCOMPARE(plot()->view().seconds(), all.seconds());
    QTest::keyClick(plot(), Qt::Key_Plus);
    const double zoomed = plot()->view().seconds();
    QVERIFY(zoomed < all.seconds());
    QTest::keyClick(plot(), Qt::Key_PageDown);
    QVERIFY(plot()->view().from > all.from);
    // A new burst leaves the view alone.
    m_bench->instrument.setState(2, true, 0, {1, 2, 3});
    QTRY_COMPARE(plot()->trace().counts.size(), size_t(3));
    QCOMPARE(plot()->view().seconds(), zoomed);
    QTest::mouseClick(m_window->findChild<BarButton*>(QStringLiteral("zoomAll")), Qt::LeftButton);
    QVERIFY(plot()->view().seconds() < 1e-5);
}

void TestTraceArea::outputOff()
{
    const auto* const state = m_window->findChild<QLabel*>(QStringLiteral("traceState"));
    QCOMPARE(state->text(), QStringLiteral("Off"));
    giveBurst();
    const QImage live = plot()->grab().toImage();
    QVector<qint16> counts(1000, 0);
    std::fill(counts.begin() + 250, counts.begin() + 750, qint16(2000));
    m_bench->instrument.setState(1, false, 0, counts);
    QTRY_COMPARE(state->text(), QStringLiteral("Off – grey: the last burst"));
    QVERIFY(plot()->grab().toImage() != live);
}

void TestTraceArea::saveAs(const QString& path)
{
    QTRY_VERIFY(m_window->findChild<QFileDialog*>() != nullptr);
    auto* const dialog = m_window->findChild<QFileDialog*>();
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(name != nullptr);
    name->selectAll();
    QTest::keyClicks(name, path);
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(m_window->findChild<QFileDialog*>() == nullptr);
}

void TestTraceArea::csvFile()
{
    auto* const button = m_window->findChild<BarButton*>(QStringLiteral("saveCsv"));
    QVERIFY(!button->isEnabled());
    giveBurst();
    QTRY_VERIFY(button->isEnabled());
    const QString path = m_bench->folder.filePath(QStringLiteral("burst.csv"));
    QTest::mouseClick(button, Qt::LeftButton);
    saveAs(path.chopped(4));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 1002);
    QCOMPARE(lines.at(0), QByteArray("time_s,volts"));
    QCOMPARE(lines.at(250).split(',').value(1), QByteArray("0"));
    QCOMPARE(lines.at(251).split(',').value(1), QByteArray("2"));
    QCOMPARE(m_window->findChild<QLabel*>(QStringLiteral("traceMessage"))->text(),
             QStringLiteral("Saved: burst.csv"));
}

void TestTraceArea::pictureFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("png") << QStringLiteral("trace.png") << QByteArray("\x89PNG");
    QTest::newRow("svg") << QStringLiteral("trace.svg") << QByteArray("<?xml");
}

void TestTraceArea::pictureFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, beginning);
    giveBurst();
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    saveAs(m_bench->folder.filePath(name));
    QFile file(m_bench->folder.filePath(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.startsWith(beginning));
    if (name.endsWith(QLatin1String("png")))
        QCOMPARE(QImage::fromData(bytes).size(), plot()->size() * 2);
    else
        QVERIFY(bytes.contains("polyline"));
}

void TestTraceArea::fileThatCannotBeWritten()
{
    giveBurst();
    const QString path = m_bench->folder.filePath(QStringLiteral("folder.csv"));
    QVERIFY(QDir().mkpath(path + QStringLiteral("/inside")));
    auto* const message = m_window->findChild<QLabel*>(QStringLiteral("traceMessage"));
    QTest::keyClick(m_window.get(), Qt::Key_E, Qt::ControlModifier);
    QTRY_VERIFY(m_window->findChild<QFileDialog*>() != nullptr);
    Q_EMIT m_window->findChild<QFileDialog*>()->fileSelected(path);
    QVERIFY(message->text().startsWith(QLatin1String("Not saved: folder.csv")));
    QVERIFY(QFileInfo(path).isDir());
}

void TestTraceArea::manySamples()
{
    QVector<qint16> counts(1000000);
    for (int i = 0; i < counts.size(); ++i)
        counts[i] = qint16((qint64(i) * 7919) % 2001);
    m_bench->instrument.setState(1, true, 0, counts);
    QTRY_COMPARE(plot()->trace().counts.size(), size_t(1000000));
    plot()->setCursor(1, 0.5);
    const qint64 millivolts = (qint64(500000) * 7919) % 2001;
    QCOMPARE(readout("V2"), QStringLiteral("%1 V").arg(double(millivolts) / 1000));
}

QTEST_MAIN(TestTraceArea)
#include "test_tracearea.moc"
