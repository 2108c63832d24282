// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadprotocol.h"

#include <QtTest>

using Keypad::Command;
using Keypad::Reply;

Q_DECLARE_METATYPE(Command::Kind)

class TestKeypadProtocol : public QObject
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void badCommands_data();
    void badCommands();
    void longestLine();
    void replies();
    void badReplies_data();
    void badReplies();
    void screenThereAndBack();
    void textsStayOnOneLine();
    void linesInPieces();
    void overlongLine();
    void usualPath();
};

void TestKeypadProtocol::commands_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Command::Kind>("kind");
    QTest::addColumn<int>("value");
    QTest::newRow("press") << QByteArray("press 705\n") << Command::Press << 705;
    QTest::newRow("release") << QByteArray("release 48\n") << Command::Release << 48;
    QTest::newRow("Qt key") << QByteArray("press 16777220\n") << Command::Press << 16777220;
    QTest::newRow("clockwise") << QByteArray("turn 1\n") << Command::Turn << 1;
    QTest::newRow("counter-clockwise") << QByteArray("turn -100\n") << Command::Turn << -100;
    QTest::newRow("furthest") << QByteArray("turn 100\n") << Command::Turn << 100;
    QTest::newRow("describe") << QByteArray("describe\n") << Command::Describe << 0;
}

void TestKeypadProtocol::commands()
{
    QFETCH(QByteArray, line);
    QFETCH(Command::Kind, kind);
    QFETCH(int, value);
    for (const QByteArray& form : {line, line.chopped(1)}) {
        Command command{Command::Describe, -1};
        QCOMPARE(Keypad::parseCommand(form, command), QString());
        QCOMPARE(command.kind, kind);
        QCOMPARE(command.value, value);
    }
    QCOMPARE(Keypad::commandLine({kind, value}), line);
}

void TestKeypadProtocol::badCommands_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("word");
    const auto row = [](const char* name, const QByteArray& line, const char* word) {
        QTest::newRow(name) << line << QString::fromLatin1(word);
    };
    row("empty", "\n", "no command");
    row("other word", "push 5\n", "no command");
    row("upper case", "PRESS 5\n", "no command");
    row("no number", "press\n", "no command");
    row("blank alone", "press \n", "number");
    row("letters", "press abc\n", "number");
    row("two numbers", "press 5 6\n", "number");
    row("fraction", "turn 1.5\n", "number");
    row("plus", "turn +1\n", "number");
    row("hexadecimal", "press 0x10\n", "number");
    row("leading zero", "press 07\n", "number");
    row("too large for a number", "press 99999999999\n", "number");
    row("no key", "press 0\n", "key");
    row("negative key", "release -5\n", "key");
    row("no detent", "turn 0\n", "detents");
    row("too far", "turn 101\n", "detents");
    row("too far back", "turn -101\n", "detents");
    row("carriage return", "describe\r\n", "no command");
    row("more behind", "describe all\n", "no command");
    row("not UTF-8", "\xff\xfe\n", "no command");
}

void TestKeypadProtocol::badCommands()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, word);
    Command command{Command::Turn, 42};
    const QString reason = Keypad::parseCommand(line, command);
    QVERIFY2(reason.contains(word), qPrintable(reason));
    QCOMPARE(command.kind, Command::Turn);
    QCOMPARE(command.value, 42);
}

void TestKeypadProtocol::longestLine()
{
    Command command;
    const QByteArray line = QByteArray("press ").leftJustified(Keypad::MaxCommandBytes + 1, '1');
    QVERIFY(Keypad::parseCommand(line, command).contains(QLatin1String("256")));
}

void TestKeypadProtocol::replies()
{
    Reply reply;
    QCOMPARE(Keypad::parseReply(Keypad::helloLine(QStringLiteral("1.2.3")), reply), QString());
    QCOMPARE(reply.kind, Reply::Hello);
    QCOMPARE(reply.text, QStringLiteral("1.2.3"));
    QCOMPARE(Keypad::parseReply(Keypad::errorLine(QStringLiteral("no key 0")), reply), QString());
    QCOMPARE(reply.kind, Reply::Error);
    QCOMPARE(reply.text, QStringLiteral("no key 0"));
    QCOMPARE(Keypad::helloLine(QStringLiteral("1.2.3")), QByteArray("hello kvx-host 1.2.3\n"));
}

void TestKeypadProtocol::badReplies_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("empty") << QByteArray("\n");
    QTest::newRow("other greeting") << QByteArray("hello world\n");
    QTest::newRow("no JSON") << QByteArray("screen {\n");
    QTest::newRow("list") << QByteArray("screen []\n");
    QTest::newRow("no items") << QByteArray("screen {\"language\":\"de\"}\n");
    QTest::newRow("items no list") << QByteArray("screen {\"items\":5}\n");
}

void TestKeypadProtocol::badReplies()
{
    QFETCH(QByteArray, line);
    Reply reply;
    reply.text = QStringLiteral("untouched");
    QVERIFY(!Keypad::parseReply(line, reply).isEmpty());
    QCOMPARE(reply.text, QStringLiteral("untouched"));
}

void TestKeypadProtocol::screenThereAndBack()
{
    Keypad::ScreenDescription screen;
    screen.language = QStringLiteral("zh_CN");
    screen.busy = true;
    screen.items.append({QStringLiteral("运行 \"1\"\nµ"), QRect(1, 2, 30, 40), false, true, true,
                         QStringLiteral("button")});
    screen.items.append(
        {QStringLiteral("2.5000"), QRect(-5, 0, 1, 1), true, false, false, QStringLiteral("text")});
    const QByteArray line = Keypad::screenLine(screen);
    QCOMPARE(line.count('\n'), 1);
    Reply reply;
    QCOMPARE(Keypad::parseReply(line, reply), QString());
    QCOMPARE(reply.kind, Reply::Screen);
    QCOMPARE(reply.screen.language, screen.language);
    QCOMPARE(reply.screen.busy, true);
    QCOMPARE(reply.screen.items.size(), 2);
    for (int i = 0; i < 2; ++i) {
        const Keypad::ScreenItem& read = reply.screen.items.at(i);
        const Keypad::ScreenItem& sent = screen.items.at(i);
        QCOMPARE(read.text, sent.text);
        QCOMPARE(read.rect, sent.rect);
        QCOMPARE(read.enabled, sent.enabled);
        QCOMPARE(read.focus, sent.focus);
        QCOMPARE(read.checked, sent.checked);
        QCOMPARE(read.role, sent.role);
    }
}

void TestKeypadProtocol::textsStayOnOneLine()
{
    QCOMPARE(Keypad::errorLine(QStringLiteral("two\nlines\r")), QByteArray("error two lines \n"));
}

void TestKeypadProtocol::linesInPieces()
{
    Keypad::LineBuffer lines(16);
    QByteArray line("untouched");
    lines.append("press ");
    QVERIFY(!lines.takeLine(line));
    QCOMPARE(line, QByteArray("untouched"));
    lines.append("5\nturn 1\nrel");
    QVERIFY(lines.takeLine(line));
    QCOMPARE(line, QByteArray("press 5"));
    QVERIFY(lines.takeLine(line));
    QCOMPARE(line, QByteArray("turn 1"));
    QVERIFY(!lines.takeLine(line));
    lines.clear();
    lines.append("\n");
    QVERIFY(lines.takeLine(line));
    QCOMPARE(line, QByteArray());
}

void TestKeypadProtocol::overlongLine()
{
    Keypad::LineBuffer lines(4);
    lines.append("1234");
    QVERIFY(!lines.isOverlong());
    lines.append("\n12345678");
    QVERIFY(!lines.isOverlong());
    QByteArray line;
    QVERIFY(lines.takeLine(line));
    QVERIFY(lines.isOverlong());
    lines.append("\n");
    QVERIFY(lines.isOverlong());
}

void TestKeypadProtocol::usualPath()
{
    QTemporaryDir folder;
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    QCOMPARE(Keypad::defaultSocketPath(), folder.filePath(QStringLiteral("kvx-keypad")));
}

QTEST_GUILESS_MAIN(TestKeypadProtocol)
#include "test_keypadprotocol.moc"
