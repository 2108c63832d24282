// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "devicetable.h"

#include "hostcallbacks.h"
#include "logcapture.h"
#include "scriptedserver.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

QStringList g_warnings;

int collectWarning(QString text)
{
    g_warnings.append(text);
    return 0;
}

// The five families, written out once more.
const char* const Families[5] = {
    "KVX705XX 5 0.001 2.5 -2.5 2000000000 2000000000 1048576 1048576 2 2",
    "KVX7040X 5 0.001 2.5 -2.5 2000000000 2000000000 1048576 1048576 2 2",
    "KVX7030X 10 0.001 5 -5 1000000000 1000000000 1048576 1048576 2 2",
    "KVX7020X 10 0.001 5 -5 1000000000 1000000000 1048576 1048576 2 2",
    "KVX7010X 10 0.001 5 -5 250000000 250000000 1048576 1048576 2 2",
};

QStringList family(int row)
{
    return QString(QLatin1String(Families[row])).split(QLatin1Char(' '));
}

QStringList familyNamed(int row, const QString& name)
{
    QStringList cells = family(row);
    cells.first() = name;
    return cells;
}

QString logged(const QStringList& cells)
{
    return QStringLiteral("warning: g_currentDeviceType (\"%1\")")
        .arg(cells.join(QStringLiteral("\", \"")));
}

ScriptedServer::Turn answer(const QByteArray& reply)
{
    return {{reply}, false};
}

// Fills the table once and identifies; returns what was logged.
QStringList identify()
{
    const LogCapture log;
    if (deviceListSize() == 0)
        initDeviceList();
    else
        getCurrentDeviceType();
    return LogCapture::messages();
}

} // namespace

class TestDeviceTable : public QObject
{
    Q_OBJECT

private slots:
    void init();

    // First, while the table is still empty.
    void tableGrowsWithEachShow();

    void families();
    void replySelectsTheRow_data();
    void replySelectsTheRow();
    void onlyTheQueryIsSent();
    void onlyTheFirstReadCounts();
    void nothingListens();
    void connectionClosedWithoutReply_data();
    void connectionClosedWithoutReply();
    void silentInstrumentIsLeftAfterThirtySeconds();
    void modelTexts_data();
    void modelTexts();
    void rowOfModel_data();
    void rowOfModel();
};

void TestDeviceTable::init()
{
    g_warningMessage = collectWarning;
    g_warnings.clear();
}

void TestDeviceTable::tableGrowsWithEachShow()
{
    QCOMPARE(deviceListSize(), 0);
    QVERIFY(g_currentDeviceType.isEmpty());
    ScriptedServer server({answer("Maker,KVX7040C,1,2\n"), answer("Maker,KVX7020C,1,2\n"),
                           answer("Maker,KVX7052C,1,2\n")});
    const LogCapture log;
    initDeviceList();
    QCOMPARE(deviceListSize(), 5);
    QCOMPARE(g_currentDeviceType, familyNamed(1, QStringLiteral("KVX7040C")));
    initDeviceList();
    QCOMPARE(deviceListSize(), 10);
    QCOMPARE(g_currentDeviceType, familyNamed(3, QStringLiteral("KVX7020C")));
    initDeviceList();
    QCOMPARE(deviceListSize(), 15);
    QCOMPARE(g_currentDeviceType, familyNamed(0, QStringLiteral("KVX7052C")));
}

void TestDeviceTable::families()
{
    const QVector<QStringList> rows = deviceFamilies();
    QCOMPARE(rows.size(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(rows.at(i), family(i));
}

void TestDeviceTable::replySelectsTheRow_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char* name, const QByteArray& reply, int index, const char* model) {
        QTest::newRow(name) << reply << index << QByteArray(model);
    };
    row("top family", "Maker,KVX7052C,123,V1\n", 0, "KVX7052C");
    row("top family, other model", "Maker,KVX7059X,123,V1\n", 0, "KVX7059X");
    row("second family", "Maker,KVX7040C,123,V1\n", 1, "KVX7040C");
    row("third family", "Maker,KVX7030C,123,V1\n", 2, "KVX7030C");
    row("fourth family", "Maker,KVX7020C,123,V1\n", 3, "KVX7020C");
    row("fifth family", "Maker,KVX7010C,123,V1\n", 4, "KVX7010C");
    row("unknown model", "Maker,KVX9999Z,123,V1\n", 4, "KVX9999Z");
    row("first KVX counts", "KVX7030A KVX7040B\n", 2, "KVX7030A");
    row("KVX in the maker's name", "KVX Ltd.,KVX7040C\n", 4, "KVX Ltd.");
    row("longer than eight", "KVX7040CDEFG\n", 1, "KVX7040C");
    row("cut short within the prefix", "Maker,KVX70", 4, "KVX70");
    row("cut short behind the prefix", "Maker,KVX7040", 1, "KVX7040");
    row("six bytes are enough for the top", "Maker,KVX705", 0, "KVX705");
    row("KVX alone", "KVX", 4, "KVX");
    row("line end belongs to the text", "KVX7040\n", 1, "KVX7040\n");
    row("no KVX", "Someone else,1,2\n", 4, "Someone");
    row("no KVX, short", "abc", 4, "abc");
    row("case counts", "kvx7040c\n", 4, "kvx7040");
    row("up to a zero byte", QByteArray("KVX7020\0C,1", 11), 3, "KVX7020");
    row("zero byte in the prefix", QByteArray("KVX\0007020C", 9), 4, "KVX");
    row("rubbish", QByteArray("\x01\x02\x03", 3), 4, "\x01\x02\x03");
}

void TestDeviceTable::replySelectsTheRow()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, row);
    QFETCH(QByteArray, name);
    ScriptedServer server({answer(reply)});
    const QStringList log = identify();

    QCOMPARE(g_currentDeviceType, familyNamed(row, QString::fromLatin1(name)));
    QVERIFY(g_warnings.isEmpty());
    QCOMPARE(log.size(), 2);
    QVERIFY2(log.first().startsWith(QLatin1String("warning: device type \"")),
             qPrintable(log.first()));
    if (name.size() == 8 && name.endsWith('C'))
        QCOMPARE(log.last(), logged(familyNamed(row, QString::fromLatin1(name))));
    QVERIFY(server.waitForGone(1));
}

void TestDeviceTable::onlyTheQueryIsSent()
{
    ScriptedServer server({answer("Maker,KVX7020C\n")});
    const QStringList log = identify();
    QVERIFY(server.waitForGone(1));
    QCOMPARE(server.received(), QByteArray("*IDN?\n"));
    QCOMPARE(log, (QStringList{QStringLiteral("warning: device type \"KVX7020C\""),
                               logged(familyNamed(3, QStringLiteral("KVX7020C")))}));
}

void TestDeviceTable::onlyTheFirstReadCounts()
{
    ScriptedServer server({{{"Maker,KVX7", "040C,1,2\n"}, false}});
    identify();
    QCOMPARE(g_currentDeviceType, familyNamed(4, QStringLiteral("KVX7")));
}

void TestDeviceTable::nothingListens()
{
    g_currentDeviceType = QStringList(QStringLiteral("old"));
    const QStringList log = identify();
    QCOMPARE(g_currentDeviceType, family(4));
    QCOMPARE(g_warnings, QStringList(QStringLiteral(
                             "TcpSocket connect error! port:30000, reason:Connection refused")));
    QCOMPARE(log, QStringList());
}

void TestDeviceTable::connectionClosedWithoutReply_data()
{
    QTest::addColumn<int>("manner");
    QTest::newRow("at once") << int(ScriptedServer::CloseOnConnect);
    QTest::newRow("after the query") << int(ScriptedServer::Serve);
}

void TestDeviceTable::connectionClosedWithoutReply()
{
    QFETCH(int, manner);
    g_currentDeviceType = QStringList(QStringLiteral("old"));
    ScriptedServer server({{{}, true}}, ScriptedServer::Manner(manner));
    const QStringList log = identify();
    QCOMPARE(g_currentDeviceType, family(4));
    QVERIFY(g_warnings.isEmpty());
    // Whether the query still could leave decides if the row is logged.
    if (manner == ScriptedServer::Serve || !log.isEmpty())
        QCOMPARE(log, QStringList(logged(family(4))));
}

void TestDeviceTable::silentInstrumentIsLeftAfterThirtySeconds()
{
    ScriptedServer server({}, ScriptedServer::ListenOnly);
    QElapsedTimer timer;
    timer.start();
    const QStringList log = identify();
    QVERIFY2(timer.elapsed() >= 29900 && timer.elapsed() < 45000,
             qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(g_currentDeviceType, family(4));
    QVERIFY(g_warnings.isEmpty());
    QCOMPARE(log, QStringList(logged(family(4))));
}

void TestDeviceTable::modelTexts_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("model");
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("whole") << QByteArray("M,KVX7010C,1") << QByteArray("KVX7010C");
    QTest::newRow("short") << QByteArray("M,KVX70") << QByteArray("KVX70");
    QTest::newRow("absent") << QByteArray("0123456789") << QByteArray("0123456");
    QTest::newRow("zero byte kept") << QByteArray("KVX\0abcdef", 10) << QByteArray("KVX\0abcd", 8);
}

void TestDeviceTable::modelTexts()
{
    QFETCH(QByteArray, reply);
    QTEST(modelText(reply), "model");
}

void TestDeviceTable::rowOfModel_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<int>("row");
    QTest::newRow("705") << QByteArray("KVX70500") << 0;
    QTest::newRow("7040") << QByteArray("KVX70401") << 1;
    QTest::newRow("7030") << QByteArray("KVX70301") << 2;
    QTest::newRow("7020") << QByteArray("KVX70201") << 3;
    QTest::newRow("7010") << QByteArray("KVX70101") << 4;
    QTest::newRow("7060") << QByteArray("KVX70601") << 4;
    QTest::newRow("not at the start") << QByteArray("xKVX7040") << 4;
    QTest::newRow("empty") << QByteArray() << 4;
}

void TestDeviceTable::rowOfModel()
{
    QFETCH(QByteArray, model);
    QTEST(deviceRowIndex(model), "row");
}

QTEST_GUILESS_MAIN(TestDeviceTable)

#include "test_devicetable.moc"
