// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpicommandset.h"

#include <QTest>

namespace {

void nothing(ScpiCall&) {}

/// Commands that are told apart by their patterns.
ScpiCommandSet exampleSet()
{
    ScpiCommandSet set;
    set.add({
        {"*IDN", {}, nothing},
        {"SYSTem:ERRor[:NEXT]", {}, nothing},
        {"OUTPut#[:STATe]", nothing, nothing},
        {"[SOURce#]:BURSt[:STATe]", nothing, nothing},
        {"[SOURce#]:BURSt:NCYCles", nothing, nothing},
        {"[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", nothing, nothing},
        {"TRIGger[:SEQuence]:SOURce", nothing, nothing},
        {"A#:B#:C", nothing, {}},
    });
    return set;
}

QVector<QByteArray> split(const QByteArray& header)
{
    return header.isEmpty() ? QVector<QByteArray>() : header.split(':').toVector();
}

} // namespace

class TestScpiCommandSet : public QObject
{
    Q_OBJECT

private slots:
    void found_data();
    void found();
    void notFound_data();
    void notFound();
    void firstAddedIsFound();
    void formsMayBeApart();
    void hasPath_data();
    void hasPath();
};

void TestScpiCommandSet::found_data()
{
    using Suffixes = QVector<int>;
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<Suffixes>("suffixes");

    const auto row = [](const char* header, const char* pattern, const Suffixes& suffixes) {
        QTest::newRow(header) << QByteArray(header) << QByteArray(pattern) << suffixes;
    };
    row("OUTP", "OUTPut#[:STATe]", {1});
    row("OUTPUT", "OUTPut#[:STATe]", {1});
    row("OUTP2", "OUTPut#[:STATe]", {2});
    row("OUTPUT2:STAT", "OUTPut#[:STATe]", {2});
    row("OUTP:STATE", "OUTPut#[:STATe]", {1});
    row("OUTP999999", "OUTPut#[:STATe]", {999999});
    row("OUTP01", "OUTPut#[:STATe]", {1});
    row("BURS", "[SOURce#]:BURSt[:STATe]", {1});
    row("SOUR:BURST", "[SOURce#]:BURSt[:STATe]", {1});
    row("SOURCE2:BURS:STAT", "[SOURce#]:BURSt[:STATe]", {2});
    row("BURS:NCYC", "[SOURce#]:BURSt:NCYCles", {1});
    row("SOUR2:BURST:NCYCLES", "[SOURce#]:BURSt:NCYCles", {2});
    row("VOLT", "[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", {1});
    row("VOLT:AMPL", "[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", {1});
    row("VOLT:LEV:AMPL", "[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", {1});
    row("SOUR2:VOLTAGE:LEVEL:IMMEDIATE:AMPLITUDE",
        "[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", {2});
    row("TRIG:SOUR", "TRIGger[:SEQuence]:SOURce", {});
    row("TRIG:SEQ:SOUR", "TRIGger[:SEQuence]:SOURce", {});
    row("TRIG1:SOUR", "TRIGger[:SEQuence]:SOURce", {});
}

void TestScpiCommandSet::found()
{
    QFETCH(QByteArray, header);
    const ScpiCommandSet set = exampleSet();
    const ScpiCommandSet::Match match = set.find(split(header), false);
    QVERIFY(match.command != nullptr);
    QTEST(QByteArray(match.command->pattern), "pattern");
    QTEST(match.suffixes, "suffixes");
    QCOMPARE(match.errorNumber, 0);
    QVERIFY(set.find(split(header), true).command == match.command);
}

void TestScpiCommandSet::notFound_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<bool>("isQuery");
    QTest::addColumn<int>("error");

    const auto row = [](const char* header, bool isQuery, int error) {
        QTest::newRow(header) << QByteArray(header) << isQuery << error;
    };
    row("", false, -113);
    row("NONSENSE", true, -113);
    row("*NONSENSE", true, -113);
    row("IDN", true, -113);
    row("*IDN2", true, -114);
    row("*IDN", false, -113);
    row("SYST", true, -113);
    row("SYSTE:ERR", true, -113);
    row("SYST:ERRO", true, -113);
    row("SYST:ERR:NEXT:NEXT", true, -113);
    row("SYST:ERR", false, -113);
    row("SYST2:ERR", true, -114);
    row("SYST:ERR2", true, -114);
    row("OUTP0", false, -114);
    row("OUTP1000000", false, -114);
    row("OUTP99999999999999999999", false, -114);
    row("SOUR0:BURS", false, -114);
    row("BURS2", false, -114);
    row("TRIG2:SOUR", false, -114);
    row("OUTP2X", false, -113);
    row("SOUR", false, -113);
    row("SOUR2", false, -113);
    row("OUTP0:NONSENSE", false, -113);
    row("A:B", false, -113);
    row("A:B:C", true, -113);
}

void TestScpiCommandSet::notFound()
{
    QFETCH(QByteArray, header);
    QFETCH(bool, isQuery);
    const ScpiCommandSet set = exampleSet();
    const ScpiCommandSet::Match match = set.find(split(header), isQuery);
    QVERIFY(match.command == nullptr);
    QTEST(match.errorNumber, "error");
}

void TestScpiCommandSet::firstAddedIsFound()
{
    ScpiCommandSet set;
    set.add({{"FIRst[:STATe]", nothing, {}}});
    set.add({{"FIRst", nothing, {}}});
    QCOMPARE(QByteArray(set.find({"FIR"}, false).command->pattern), QByteArray("FIRst[:STATe]"));

    const QVector<int> suffixes{3, 4};
    QCOMPARE(exampleSet().find({"A3", "B4", "C"}, false).suffixes, suffixes);
}

void TestScpiCommandSet::formsMayBeApart()
{
    ScpiCommandSet set;
    set.add({{"FORM", nothing, {}}, {"FORM", {}, nothing}});
    const ScpiCommand* const command = set.find({"FORM"}, false).command;
    const ScpiCommand* const query = set.find({"FORM"}, true).command;
    QVERIFY(command != nullptr && query != nullptr && command != query);
}

void TestScpiCommandSet::hasPath_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<bool>("exists");

    QTest::newRow("root") << QByteArray() << true;
    QTest::newRow("node") << QByteArray("SYST") << true;
    QTest::newRow("two nodes") << QByteArray("SYSTEM:ERR") << true;
    QTest::newRow("with suffix") << QByteArray("SOUR2") << true;
    QTest::newRow("optional node left out") << QByteArray("BURS") << true;
    QTest::newRow("optional node") << QByteArray("TRIG:SEQ") << true;
    QTest::newRow("unknown") << QByteArray("NONSENSE") << false;
    QTest::newRow("unknown below known") << QByteArray("SYST:NONSENSE") << false;
    QTest::newRow("too deep") << QByteArray("SYST:ERR:NEXT:NEXT") << false;
    QTest::newRow("bad suffix") << QByteArray("SYST2") << false;
}

void TestScpiCommandSet::hasPath()
{
    QFETCH(QByteArray, path);
    QTEST(exampleSet().hasPath(split(path)), "exists");
}

QTEST_APPLESS_MAIN(TestScpiCommandSet)
#include "test_scpicommandset.moc"
