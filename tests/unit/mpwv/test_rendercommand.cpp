// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"
#include "trainsamples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <unistd.h>

/// "mpwv render": waveform files of setups.
class TestRenderCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pQuiet = std::make_unique<WithoutLibraryLog>(); }
    void cleanupTestCase() { m_pQuiet.reset(); }
    void init();
    void writesWhatTheInstrumentGets_data();
    void writesWhatTheInstrumentGets();
    void goesBesideTheSetup();
    void goesToFileFolderAndStream();
    void takesAnotherLoad();
    void takesOddSetupsWithWarnings();
    void refusesWhatOpenRefuses();
    void refusesUse_data();
    void refusesUse();
    void goesOnBehindABadSetup();
    void keepsTheOrderOfMessages();
    void leavesNothingBehind();
    void drawsProgressOnATerminalOnly();
    void replacesWholeFilesOnly();

private:
    QString path(const char* name) const { return m_pFolder->filePath(QLatin1String(name)); }
    QStringList names() const;
    QByteArray expected(const QJsonObject& document) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
    std::unique_ptr<WithoutLibraryLog> m_pQuiet;
};

void TestRenderCommand::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
}

QStringList TestRenderCommand::names() const
{
    return QDir(m_pFolder->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray TestRenderCommand::expected(const QJsonObject& document) const
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("x"));
    writeTrainWaveform(QFile::encodeName(file).constData(), PulseTrain::fromDocument(document));
    return fileBytes(file);
}

void TestRenderCommand::writesWhatTheInstrumentGets_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::newRow("default") << defaultSetup();
    QTest::newRow("inverted") << withMember(defaultSetup(), SetupKey::TriggerSlope, 1);
    QTest::newRow("high impedance") << withMember(defaultSetup(), SetupKey::LoadImpedance, 10000);
    QTest::newRow("edges") << withMember(defaultSetup(), SetupKey::PulseLeading, 1e-6);
    QTest::newRow("thirty pulses")
        << withRows(defaultSetup(),
                    QVector<SetupRow>(30, {QStringLiteral("1.500u"), QStringLiteral("0.333u")}));
}

void TestRenderCommand::writesWhatTheInstrumentGets()
{
    QFETCH(QJsonObject, document);
    const CommandResult result = runWith(runRender, {QStringLiteral("-")}, jsonText(document));
    QCOMPARE(result.exitCode, int(ExitOk));
    QVERIFY(result.out == expected(document));
    QVERIFY(result.out.size() > 262000 && result.out.startsWith("QRNKVX60K"));
}

void TestRenderCommand::goesBesideTheSetup()
{
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("B.JSON"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("c.json.json"), jsonText(defaultSetup())));
    const CommandResult result =
        runWith(runRender, {path("a.json"), path("B.JSON"), path("c.json.json")});
    QCOMPARE(result.err, QByteArray());
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(names(), (QStringList{QStringLiteral("B.JSON"), QStringLiteral("B.JSON.mpwv"),
                                   QStringLiteral("a.json"), QStringLiteral("a.mpwv"),
                                   QStringLiteral("c.json.json"), QStringLiteral("c.json.mpwv")}));
    QVERIFY(fileBytes(path("a.mpwv")) == expected(defaultSetup()));
}

void TestRenderCommand::goesToFileFolderAndStream()
{
    const QByteArray bytes = expected(defaultSetup());
    const QString output = QStringLiteral("-o");
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("b.json"), jsonText(defaultSetup())));

    QCOMPARE(runWith(runRender, {path("a.json"), output, path("out")}).exitCode, int(ExitOk));
    QVERIFY(fileBytes(path("out")) == bytes);
    QCOMPARE(runWith(runRender, {path("a.json"), output, path("one/")}).exitCode, int(ExitOk));
    QVERIFY(fileBytes(path("one/a.mpwv")) == bytes);
    QCOMPARE(runWith(runRender, {path("a.json"), path("b.json"), output, path("two")}).exitCode,
             int(ExitOk));
    QVERIFY(fileBytes(path("two/a.mpwv")) == bytes && fileBytes(path("two/b.mpwv")) == bytes);
    const CommandResult streamed =
        runWith(runRender, {path("a.json"), output, QStringLiteral("-")});
    QVERIFY(streamed.out == bytes && streamed.exitCode == ExitOk);
}

void TestRenderCommand::takesAnotherLoad()
{
    const CommandResult result =
        runWith(runRender, {QStringLiteral("--load"), QStringLiteral("hi-z"), QStringLiteral("-")},
                jsonText(defaultSetup()));
    QVERIFY(result.out == expected(withMember(defaultSetup(), SetupKey::LoadImpedance, 10000)));
    QVERIFY(result.out != expected(defaultSetup()));
}

void TestRenderCommand::takesOddSetupsWithWarnings()
{
    QVERIFY(writeBytes(path("odd.json"), "{\"a\":1}"));
    const CommandResult result = runWith(runRender, {path("odd.json")});
    QCOMPARE(result.exitCode, int(ExitOk));
    const QByteArray name = "mpwv: warning: " + path("odd.json").toUtf8();
    QCOMPARE(result.err, name + ": multiple pulses: missing, reads as 0 or empty\n" + name +
                             ": a: unknown member\n" + name +
                             ": multiple pulses: the period is 0, the waveform has no points\n");
    QCOMPARE(fileBytes(path("odd.mpwv")).size(), 512);
}

void TestRenderCommand::refusesWhatOpenRefuses()
{
    QVERIFY(writeBytes(path("bad.json"), "[]"));
    const CommandResult result = runWith(runRender, {path("bad.json")});
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err, "mpwv: " + path("bad.json").toUtf8() +
                             ": not a setup: a JSON array where an object is wanted\n");
    QCOMPARE(names(), QStringList(QStringLiteral("bad.json")));
}

void TestRenderCommand::refusesUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const QString a = QStringLiteral("a.json");
    const QString o = QStringLiteral("-o");
    const QString standard = QStringLiteral("-");
    QTest::newRow("no setup") << QStringList() << QStringLiteral("too few arguments");
    QTest::newRow("unknown option")
        << QStringList{QStringLiteral("--odd"), a} << QStringLiteral("Unknown option 'odd'.");
    QTest::newRow("wrong load") << QStringList{QStringLiteral("--load"), QStringLiteral("75"), a}
                                << QStringLiteral("--load: \"75\" is neither 50 nor hi-z");
    QTest::newRow("wrong jobs") << QStringList{QStringLiteral("-j"), QStringLiteral("0"), a}
                                << QStringLiteral("--jobs: not a number from 1 to 1024");
    QTest::newRow("two to standard output")
        << QStringList{a, QStringLiteral("b.json"), o, standard}
        << QStringLiteral("one setup only can go to the standard output");
    QTest::newRow("standard input twice") << QStringList{standard, standard, o, QStringLiteral("x")}
                                          << QStringLiteral("the standard input can be read once "
                                                            "only");
    QTest::newRow("same output") << QStringList{QStringLiteral("x/a.json"),
                                                QStringLiteral("y/a.json"), o,
                                                QStringLiteral("out")}
                                 << QStringLiteral(
                                        "x/a.json and y/a.json would both become out/a.mpwv");
    QTest::newRow("over the setup")
        << QStringList{a, o, a} << QStringLiteral("a.json is a setup and would be overwritten");
    QTest::newRow("same setup twice")
        << QStringList{a, QStringLiteral("./a.json")}
        << QStringLiteral("a.json and ./a.json would both become ./a.mpwv");
}

void TestRenderCommand::refusesUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);
    const QString home = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_pFolder->path()));
    QVERIFY(writeBytes(QStringLiteral("a.json"), jsonText(defaultSetup())));
    const CommandResult result = runWith(runRender, arguments, jsonText(defaultSetup()));
    QVERIFY(QDir::setCurrent(home));

    QCOMPARE(result.exitCode, int(ExitUsage));
    QCOMPARE(result.err, "mpwv: render: " + complaint.toUtf8() +
                             "\nmpwv: \"mpwv render --help\" tells how it is used\n");
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(names(), QStringList(QStringLiteral("a.json")));
    QCOMPARE(fileBytes(path("a.json")), jsonText(defaultSetup()));
}

void TestRenderCommand::goesOnBehindABadSetup()
{
    QVERIFY(writeBytes(path("a.json"), "{"));
    QVERIFY(writeBytes(path("b.json"), jsonText(defaultSetup())));
    const CommandResult result = runWith(runRender, {path("a.json"), path("b.json")});
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err.count('\n'), 1);
    QVERIFY(fileBytes(path("b.mpwv")) == expected(defaultSetup()));
}

void TestRenderCommand::keepsTheOrderOfMessages()
{
    QStringList arguments = {QStringLiteral("-j"), QStringLiteral("4")};
    QByteArray err;
    for (int i = 0; i < 200; ++i) {
        const QString missing = path(qPrintable(QStringLiteral("%1.json").arg(i)));
        arguments.append(missing);
        err += "mpwv: " + missing.toUtf8() + ": No such file or directory\n";
    }
    const CommandResult result = runWith(runRender, arguments);
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err, err);
}

void TestRenderCommand::leavesNothingBehind()
{
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(QDir(m_pFolder->path()).mkdir(QStringLiteral("a.mpwv")));
    const CommandResult result = runWith(runRender, {path("a.json")});
    QCOMPARE(result.exitCode, int(ExitOutput));
    QCOMPARE(result.err, "mpwv: " + path("a.mpwv").toUtf8() + ": is a folder\n");

    const CommandResult full =
        runWith(runRender, {path("a.json"), QStringLiteral("-o"), QStringLiteral("/dev/full")});
    QCOMPARE(full.exitCode, int(ExitOutput));
    QCOMPARE(full.err, QByteArray("mpwv: /dev/full: No space left on device\n"));

    const CommandResult nothing =
        runWith(runRender, {path("x.json"), path("y.json"), QStringLiteral("-o"), path("new")});
    QCOMPARE(nothing.exitCode, int(ExitInput));
    QCOMPARE(names(), (QStringList{QStringLiteral("a.json"), QStringLiteral("a.mpwv")}));
}

void TestRenderCommand::drawsProgressOnATerminalOnly()
{
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("b.json"), jsonText(defaultSetup())));
    const QStringList arguments = {path("a.json"), path("b.json")};
    QCOMPARE(runWith(runRender, arguments).err, QByteArray());
    QCOMPARE(runWith(runRender, arguments, QByteArray(), true).err,
             "\r[" + QByteArray(20, '#') + QByteArray(20, ' ') + "] 1/2\r[" + QByteArray(40, '#') +
                 "] 2/2\r\033[K");
}

// A reader that has the old file open keeps the old file, and a link to it is no way to write to
// it.
void TestRenderCommand::replacesWholeFilesOnly()
{
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("a.mpwv"), "old"));
    QCOMPARE(::link(QFile::encodeName(path("a.mpwv")).constData(),
                    QFile::encodeName(path("kept")).constData()),
             0);
    QCOMPARE(runWith(runRender, {path("a.json")}).exitCode, int(ExitOk));
    QCOMPARE(fileBytes(path("kept")), QByteArray("old"));
    QVERIFY(fileBytes(path("a.mpwv")) == expected(defaultSetup()));
}

QTEST_GUILESS_MAIN(TestRenderCommand)
#include "test_rendercommand.moc"
