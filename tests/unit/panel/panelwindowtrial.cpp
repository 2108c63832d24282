// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panelwindowtrial.h"

#include "statusstrip.h"
#include "traceplot.h"

#include <QSignalSpy>
#include <QtTest>

void PanelWindowTrial::open()
{
    m_languages.install(QStringLiteral("en"));
    m_bench = std::make_unique<FakeBench>();
    makeWindow();
}

void PanelWindowTrial::close()
{
    m_window.reset();
    m_bench.reset();
}

void PanelWindowTrial::makeWindow(QSettings* settings)
{
    m_window = std::make_unique<PanelWindow>(m_bench->options(), m_languages, settings);
    QSignalSpy shown(m_window.get(), &PanelWindow::screenShown);
    m_window->start();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_COMPARE(shown.size(), 1);
    for (const StatusStrip::Link link :
         {StatusStrip::Screen, StatusStrip::Keypad, StatusStrip::Instrument})
        QTRY_VERIFY(m_window->strip()->isUp(link));
}

void PanelWindowTrial::expectKeys(const QByteArray& lines)
{
    QTRY_VERIFY(m_bench->keypad.received().size() >= lines.size());
    QCOMPARE(m_bench->keypad.takeReceived(), lines);
}

void PanelWindowTrial::giveBurst()
{
    QVector<qint16> counts(1000, 0);
    std::fill(counts.begin() + 250, counts.begin() + 750, qint16(2000));
    m_bench->instrument.setState(1, true, 0, counts);
    QTRY_COMPARE(plot()->trace().counts.size(), size_t(1000));
}
