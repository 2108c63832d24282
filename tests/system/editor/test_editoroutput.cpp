// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"
#include "setupfiles.h"

using namespace Output;

namespace {

QJsonObject value(double number)
{
    return {{QStringLiteral("value"), number}};
}

/// A setup of a train with these cells, "width gap" each.
QJsonObject setup(const QStringList& cells, double delay = 1e-5)
{
    QJsonArray rows;
    for (const QString& row : cells) {
        rows.append(QJsonObject{{QStringLiteral("width"), row.section(QLatin1Char(' '), 0, 0)},
                                {QStringLiteral("gap"), row.section(QLatin1Char(' '), 1, 1)}});
    }
    return {{QStringLiteral("pulse numbers"), value(cells.size())},
            {QStringLiteral("voltage"),
             QJsonObject{{QStringLiteral("amplitude"), 2}, {QStringLiteral("offset"), 0}}},
            {QStringLiteral("trigger delay"), value(delay)},
            {QStringLiteral("trigger source"), 0},
            {QStringLiteral("trigger slope"), 0},
            {QStringLiteral("trigger timer"), value(0.001)},
            {QStringLiteral("load impedance"), 50},
            {QStringLiteral("width/gap"), rows}};
}

const QStringList DefaultCells = {QStringLiteral("2.000u 10.000u"),
                                  QStringLiteral("2.000u 10.000u")};

} // namespace

/// What Run and Stop send to an instrument that answers, and what others see meanwhile.
class TestEditorOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allBytesOfASession();
    void triggersAndLoads_data();
    void triggersAndLoads();
    void timerPeriods_data();
    void timerPeriods();
    void trains_data();
    void trains();
    void everyRunSendsTheSame();
    void flagsAreClearUntilRun();
    void whileItRuns();
    void whileItStops();
    void waveformIsTheTrain();
    void toldInTheLog();
};

void TestEditorOutput::allBytesOfASession()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.pressRun();
    });
    const QByteArray all = "*IDN?\n*RST\n" + joined(runCommands()) + joined(stopCommands());
    QVERIFY(session.server.waitForGone(4));
    QCOMPARE(session.server.received(), all);
    QCOMPARE(session.server.accepted(), 4);
    // A write each; the first went before anybody looked.
    QCOMPARE(session.takeSent(), QByteArrayList{"*RST\n"} + runCommands() + stopCommands());
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(EditorHost::record().criticals.isEmpty());
}

void TestEditorOutput::triggersAndLoads_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("slope");
    QTest::addColumn<int>("ohms");
    for (int source : {0, 1, 2}) {
        for (int slope : {0, 1}) {
            for (int ohms : {50, 10000})
                QTest::addRow("source %d, slope %d, %d ohms", source, slope, ohms)
                    << source << slope << ohms;
        }
    }
}

void TestEditorOutput::triggersAndLoads()
{
    QFETCH(int, source);
    QFETCH(int, slope);
    QFETCH(int, ohms);
    QJsonObject document = setup(DefaultCells);
    document.insert(QStringLiteral("trigger source"), source);
    document.insert(QStringLiteral("trigger slope"), slope);
    document.insert(QStringLiteral("load impedance"), ohms);

    QByteArrayList expected = runCommands();
    expected[10] = ohms == 50 ? "OUTput1:IMPedance 50\n" : "OUTput1:IMPedance 10000\n";
    if (source == 2) {
        expected[12] = "TRIGger:SOURce TIMER\n";
        expected[13] = "TRIGger:TIMER 0.001\n";
    } else if (slope == 1) {
        expected[13] = "TRIGger:SLOPE NEGative \n";
    }

    OutputSession session;
    session.host.exec([&] {
        SetupFiles::openPulses(session.host, document);
        session.takeSent();
        session.pressRun();
        QCOMPARE(session.takeSent(), expected);
        QCOMPARE(stateOf(session.host), running());
        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutput::timerPeriods_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("shortest") << 2e-6 << QByteArray("2e-06");
    QTest::newRow("longest") << 500.0 << QByteArray("500");
    QTest::newRow("six digits") << 1.2345678 << QByteArray("1.23457");
    QTest::newRow("on its grid") << 0.00012344 << QByteArray("0.0001234");
}

void TestEditorOutput::timerPeriods()
{
    QFETCH(double, seconds);
    QFETCH(QByteArray, sent);
    QJsonObject document = setup(DefaultCells);
    document.insert(QStringLiteral("trigger source"), 2);
    document.insert(QStringLiteral("trigger timer"), value(seconds));
    OutputSession session;
    session.host.exec([&] {
        SetupFiles::openPulses(session.host, document);
        session.takeSent();
        session.pressRun();
        QCOMPARE(session.takeSent().value(13), "TRIGger:TIMER " + sent + "\n");
        session.pressRun();
    });
}

void TestEditorOutput::trains_data()
{
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<double>("delay");
    QTest::addColumn<QByteArray>("hertz");
    const auto many = [](int count, const char* row) {
        QStringList cells;
        for (int i = 0; i < count; ++i)
            cells.append(QLatin1String(row));
        return cells;
    };
    QTest::newRow("two") << DefaultCells << 1e-5 << QByteArray("29411.764705999998114");
    QTest::newRow("three unlike") << QStringList{QStringLiteral("8.000u 2.000u"),
                                                 QStringLiteral("3.500u 10.000u"),
                                                 QStringLiteral("20.000n 150.000u")}
                                  << 1e-6 << QByteArray("5730.002292000000125");
    QTest::newRow("thirty shortest")
        << many(30, "20.000n 20.000n") << 1e-6 << QByteArray("454545.45454499998596");
    QTest::newRow("thirty longest")
        << many(30, "150.000u 150.000u") << 0.00015 << QByteArray("109.28961699999999269");
}

void TestEditorOutput::trains()
{
    QFETCH(QStringList, cells);
    QFETCH(double, delay);
    QFETCH(QByteArray, hertz);
    QByteArrayList expected = runCommands();
    expected[11] = "SOURce1:FREQuency:FIXed " + hertz + "\n";
    OutputSession session;
    session.host.exec([&] {
        SetupFiles::openPulses(session.host, setup(cells, delay));
        session.takeSent();
        session.pressRun();
        QCOMPARE(session.takeSent(), expected);
        session.pressRun();
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutput::everyRunSendsTheSame()
{
    OutputSession session;
    session.host.exec([&] {
        session.takeSent();
        for (int round = 0; round < 3; ++round) {
            session.pressRun();
            QCOMPARE(session.takeSent(), runCommands());
            QCOMPARE(stateOf(session.host), running());
            session.pressRun();
            QCOMPARE(session.takeSent(), stopCommands());
            QCOMPARE(stateOf(session.host), stopped());
            QVERIFY(session.flagsAreClear());
        }
    });
}

void TestEditorOutput::flagsAreClearUntilRun()
{
    OutputSession session;
    QVector<QPair<bool, bool>> seen;
    session.host.exec([] {});
    session.takeSent();
    session.whenSent = [&](int, const QByteArray&) { seen.append(flagsFromOutside()); };
    session.host.show();
    session.host.exec([] {});
    QCOMPARE(session.takeSent(), (QByteArrayList{"*IDN?\n", "*RST\n"}));
    QCOMPARE(seen, (QVector<QPair<bool, bool>>{NoneSet, NoneSet}));
}

void TestEditorOutput::whileItRuns()
{
    OutputSession session;
    session.host.exec([&] {
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
        int looks = 0;
        session.whenSent = [&](int, const QByteArray& command) {
            const QByteArray where = "at " + command;
            QVERIFY2(flagsFromOutside() == BothSet, where.constData());
            QVERIFY2(waveformExists(), where.constData());
            QCOMPARE(disabledControls(session.host), lockedControls());
            QVERIFY2(session.host.action(EditorHost::Run)->isChecked(), where.constData());
            // The text changes when all commands have left.
            QCOMPARE(session.host.action(EditorHost::Run)->text(),
                     command == "*IDN? \n" ? StopText : RunText);
            ++looks;
        };
        session.pressRun();
        QCOMPARE(looks, runCommands().size());
        session.whenSent = nullptr;
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(waveformExists());
        QCOMPARE(flagsFromOutside(), NoneSet);
        session.pressRun();
    });
}

void TestEditorOutput::whileItStops()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        int looks = 0;
        session.whenSent = [&](int, const QByteArray& command) {
            const QByteArray where = "at " + command;
            const bool isLast = command == "*IDN? \n";
            QVERIFY2(flagsFromOutside() == BothSet, where.constData());
            QVERIFY2(waveformExists() == (command == "OUTP1 OFF \n"), where.constData());
            QVERIFY2(!session.host.action(EditorHost::Run)->isChecked(), where.constData());
            QCOMPARE(disabledControls(session.host), isLast ? QStringList() : lockedControls());
            QCOMPARE(session.host.action(EditorHost::Run)->text(), isLast ? RunText : StopText);
            ++looks;
        };
        session.pressRun();
        QCOMPARE(looks, stopCommands().size());
        session.whenSent = nullptr;
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
        QCOMPARE(flagsFromOutside(), NoneSet);
    });
}

// The file of a run is the one that Save as puts beside a setup.
void TestEditorOutput::waveformIsTheTrain()
{
    const QString saved = QStringLiteral("/mnt/user-data/saved.json");
    OutputSession session;
    session.host.exec([&] {
        SetupFiles::openPulses(session.host, setup({QStringLiteral("8.000u 2.000u"),
                                                    QStringLiteral("3.500u 10.000u")}));
        SetupFiles::saveAs(session.host, saved);
        session.pressRun();
        const QByteArray waveform = SetupFiles::read(WaveformPath);
        QVERIFY(waveform.size() > 2 * 131000);
        QVERIFY(waveform == SetupFiles::read(QStringLiteral("/mnt/user-data/saved.mpwv")));
        session.pressRun();
    });
}

void TestEditorOutput::toldInTheLog()
{
    OutputSession session;
    session.host.exec([&] {
        QVERIFY(LogCapture::messages().contains(QStringLiteral("info: App sent *RST")));
        const QStringList wanted = {
            QStringLiteral("info: MultiPulseEditor::slt_runOrStopWaveformOutput is checked"),
            QStringLiteral("debug: \"OUTput1:IMPedance 50\\n\""),
            QStringLiteral("debug: freq 29411.8"), Unlocked};
        const auto told = [](int first, const QStringList& lines) {
            QStringList found;
            for (const QString& message : LogCapture::messages().mid(first)) {
                if (lines.contains(message))
                    found.append(message);
            }
            return found;
        };
        const int beforeRun = LogCapture::messages().size();
        session.pressRun();
        QCOMPARE(told(beforeRun, wanted), wanted);

        const QStringList wantedAtStop = {
            QStringLiteral("info: MultiPulseEditor::slt_runOrStopWaveformOutput is not checked"),
            Unlocked};
        const int beforeStop = LogCapture::messages().size();
        session.pressRun();
        QCOMPARE(told(beforeStop, wantedAtStop), wantedAtStop);
        QCOMPARE(OutputSession::logged(QStringLiteral("error cmd")), QStringList());
    });
}

QTEST_MAIN(TestEditorOutput)
#include "test_editoroutput.moc"
