// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setups.h"

#include "dbutils.h"
#include "frontpanelkeys.h"

#include <QAction>
#include <QDialog>
#include <QRandomGenerator>

#include <cmath>

using namespace Setups;
using namespace appPlugins;

namespace {

const int SetupsPerSeed = 100;

/// High and low level in steps of 0.1 mV.
struct Levels
{
    qint64 high;
    qint64 low;
};

double member(const QJsonObject& pulses, const char* object, const char* inner)
{
    return pulses.value(key(object)).toObject().value(key(inner)).toDouble();
}

qint64 steps(double volts)
{
    return std::llround(volts / 0.0001);
}

/// The levels that a new editor shows of a setup.
///
/// Amplitude and offset are rounded to whole steps, and so is half the amplitude: levels that lie
/// an odd number of steps apart move by a step. The offset of such levels lies between two steps;
/// it is rounded away from zero unless the noise of its subtraction takes it below.
///
/// The limits in force keep the distance to the levels of the new editor, 1.25 V and -1.25 V, and
/// are those of 50 ohms: into high impedance they widen when the levels are in place.
Levels shownByANewEditor(double amplitude, double offset, bool highZ)
{
    const qint64 newLevel = 12500;
    const qint64 distance = 10;
    const qint64 bound = 50000;
    const qint64 whole = steps(amplitude);
    const qint64 half = (whole + (whole < 0 ? -1 : 1)) / 2;
    const qint64 centre = steps(DBRound(offset, 0.0001));

    const Levels levels = {qBound(distance - newLevel, centre + half, bound),
                           qBound(-bound, centre - half, newLevel - distance)};
    if (!highZ)
        return levels;
    return {qMax(levels.high, levels.low + 2 * distance),
            qMin(levels.low, levels.high - 2 * distance)};
}

QJsonObject withLevels(const QJsonObject& pulses, const Levels& levels)
{
    const double high = double(levels.high) * 0.0001;
    const double low = double(levels.low) * 0.0001;
    return Setups::withLevels(pulses, high - low, (high + low) * 0.5);
}

/// The setup that a new editor shows of one that an editor has written.
QJsonObject shownByANewEditor(const QJsonObject& pulses)
{
    return withLevels(pulses,
                      shownByANewEditor(member(pulses, "voltage", "amplitude"),
                                        member(pulses, "voltage", "offset"),
                                        pulses.value(key("load impedance")).toInt() == 10000));
}

/// Edits an editor at random, the same way for the same seed.
class RandomUser
{
public:
    RandomUser(const EditorHost& host, quint32 seed)
        : m_host(host)
        , m_random(seed)
    {}

    void edit()
    {
        switch (below(9)) {
        case 0:
            return m_host.enter(m_host.count(), QString::number(below(34)));
        case 1:
            return m_host.enter(m_host.highLevel(), QString::number(below(13000) - 6000),
                                QT_KEY_KM);
        case 2:
            return m_host.enter(m_host.lowLevel(), QString::number(below(13000) - 6000), QT_KEY_KM);
        case 3:
            return m_host.enter(m_host.delay(), QString::number(below(170)), QT_KEY_MU);
        case 4:
            return chooseSource();
        case 5:
            return m_host.choose(m_host.load(), below(2));
        case 6:
            return turn(below(2) == 0 ? m_host.delay() : m_host.highLevel());
        case 7:
            return setAll();
        default:
            return editCell();
        }
    }

    int below(int end) { return m_random.bounded(end); }

private:
    // The timer is in sight with its source alone.
    void chooseSource()
    {
        m_host.choose(m_host.source(), below(3));
        if (m_host.source()->get() == 2)
            m_host.enter(m_host.timer(), QString::number(below(600)), QT_KEY_KM);
    }

    void turn(RealCombComponent* component)
    {
        FrontPanel::tap(component->focusProxy());
        FrontPanel::knob(below(7) - 3);
    }

    // What is tedious to type: values on every step.
    void setAll()
    {
        m_host.highLevel()->set((below(120000) - 60000) * 0.0001);
        m_host.lowLevel()->set((below(120000) - 60000) * 0.0001);
        m_host.timer()->set(m_random.generateDouble() * std::pow(10, below(10) - 6));
        m_host.delay()->set(m_random.generateDouble() * 0.0002);
        m_host.slope()->set(static_cast<Uint16>(below(3)));
        m_host.count()->set(below(40));
    }

    void editCell()
    {
        const int row = below(m_host.table()->model()->rowCount());
        const int column = below(2);
        m_host.tapCell(row, column);
        const QModelIndex cell = m_host.table()->model()->index(row, column);
        FrontPanel::doubleTap(m_host.table()->viewport(),
                              m_host.table()->visualRect(cell).center());
        FrontPanel::type(QString::number(below(170)));
        FrontPanel::press(below(2) == 0 ? QT_KEY_MU : QT_KEY_GN);
    }

    const EditorHost& m_host;
    QRandomGenerator m_random;
};

/// Opens a setup in a new editor, which need not be on the screen, and returns what it shows.
QJsonObject openedAnew(EditorHost& host, const QJsonObject& pulses, int times = 1)
{
    const QString path = SetupFiles::Folder + QStringLiteral("opened");
    delete host.editor();
    host.show();
    SetupFiles::write(path, SetupFiles::bytesOf(pulses));
    SetupFiles::answerBrowser(path);
    for (int time = 0; time < times; ++time)
        host.action(EditorHost::Open)->trigger();
    host.action(EditorHost::SaveAs)->trigger();
    return SetupFiles::pulsesOf(SetupFiles::read(path));
}

/// Setups that an editor wrote in the course of many edits.
QVector<QJsonObject> writtenSetups(EditorHost& host, quint32 seed)
{
    QVector<QJsonObject> written;
    host.show();
    host.exec([&] {
        RandomUser user(host, seed);
        for (int i = 0; i < SetupsPerSeed; ++i) {
            for (int edits = 1 + user.below(3); edits > 0; --edits)
                user.edit();
            written.append(SetupFiles::shown(host));
        }
    });
    return written;
}

} // namespace

class TestSetupProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetupFiles::emptyFolder(); }

    void readsBackWhatItWrote_data();
    void readsBackWhatItWrote();
    void movesLevels_data();
    void movesLevels();
    void showsLevelsFromTheSecondTimeOn_data();
    void showsLevelsFromTheSecondTimeOn();
};

void TestSetupProperty::readsBackWhatItWrote_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 2u, 3u, 4u})
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

// All members come back as they were, number for number. The levels come back where the setup is
// one that the way of opening can show, and otherwise as that way moves them.
void TestSetupProperty::readsBackWhatItWrote()
{
    QFETCH(quint32, seed);
    const LogCapture log;
    EditorHost host;
    const QVector<QJsonObject> written = writtenSetups(host, seed);
    QCOMPARE(written.size(), SetupsPerSeed);
    int same = 0;
    for (const QJsonObject& pulses : written) {
        const QJsonObject expected = shownByANewEditor(pulses);
        QCOMPARE(openedAnew(host, pulses), expected);
        if (expected == pulses)
            ++same;
    }
    // Either case has to occur, or half of this tests nothing.
    QVERIFY2(same > 10 && same < SetupsPerSeed - 10, qPrintable(QString::number(same)));
}

void TestSetupProperty::movesLevels_data()
{
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::addColumn<int>("load");
    QTest::addColumn<QString>("shown");

    QTest::newRow("even number of steps") << 1.0002 << 0.0 << 50 << key("1.0002 0.0000");
    QTest::newRow("odd number of steps") << 1.0001 << 0.0 << 50 << key("1.0002 0.0000");
    QTest::newRow("odd, below zero") << 0.0 << -1.0001 << 50 << key("0.0000 -1.0002");
    QTest::newRow("odd, offset of zero") << 0.0501 << -0.05 << 50 << key("0.0502 -0.0500");
    QTest::newRow("odd, offset a hair below half a step")
        << 1.2501 << -1.25 << 50 << key("1.2501 -1.2501");
    QTest::newRow("high level at its limit") << -1.249 << -3.0 << 50 << key("-1.2490 -3.0000");
    QTest::newRow("high level below it") << -2.0 << -3.0 << 50 << key("-1.2490 -3.0000");
    QTest::newRow("low level at its limit") << 3.0 << 1.249 << 50 << key("3.0000 1.2490");
    QTest::newRow("low level above it") << 3.0 << 2.0 << 50 << key("3.0000 1.2490");
    QTest::newRow("all that 50 ohms allow") << 5.0 << -5.0 << 50 << key("5.0000 -5.0000");
    QTest::newRow("the same into high impedance") << 5.0 << -5.0 << 10000 << key("5.0000 -5.0000");
    QTest::newRow("high level of high impedance") << 6.0 << 1.0 << 10000 << key("5.0000 1.0000");
    QTest::newRow("low level of high impedance") << 0.0 << -8.0 << 10000 << key("0.0000 -5.0000");
}

// Every setup here is one that an editor can be brought to by its keys.
void TestSetupProperty::movesLevels()
{
    QFETCH(double, high);
    QFETCH(double, low);
    QFETCH(int, load);
    QFETCH(QString, shown);
    const LogCapture log;
    EditorHost host;
    QJsonObject written;
    host.show();
    host.exec([&] {
        host.choose(host.load(), load == 50 ? 0 : 1);
        // Each level stays above or below the other one on its way.
        const bool highFirst = high > host.lowLevel()->get();
        for (const bool isHigh : {highFirst, !highFirst})
            host.enter(isHigh ? host.highLevel() : host.lowLevel(),
                       QString::number(isHigh ? high : low), QT_KEY_X1);
        written = SetupFiles::shown(host);
        QCOMPARE(member(written, "voltage", "amplitude"), high - low);
        QCOMPARE(written.value(key("load impedance")).toInt(), load);
    });
    openedAnew(host, written);
    QCOMPARE(levels(host), shown);
}

void TestSetupProperty::showsLevelsFromTheSecondTimeOn_data()
{
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::newRow("below the levels of a new editor") << -2.0 << -3.0;
    QTest::newRow("above them") << 3.0 << 2.0;
    QTest::newRow("as narrow as can be") << 4.9 << 4.898;
}

// The limits keep the distance to the levels of the setup before, which are then the same.
void TestSetupProperty::showsLevelsFromTheSecondTimeOn()
{
    QFETCH(double, high);
    QFETCH(double, low);
    const LogCapture log;
    EditorHost host;
    const QJsonObject pulses = withLevels(newPulses(), Levels{steps(high), steps(low)});
    host.show();
    QVERIFY(openedAnew(host, pulses) != pulses);
    QCOMPARE(openedAnew(host, pulses, 2), pulses);
}

QTEST_MAIN(TestSetupProperty)
#include "test_setupproperty.moc"
