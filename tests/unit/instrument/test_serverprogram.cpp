// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatorfixture.h"

#include <QFile>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

QString program()
{
    return qEnvironmentVariable("MPB_BIN_DIR") + QStringLiteral("/kvx-instrument");
}

/// A run of the program to its end.
struct Run
{
    explicit Run(const QStringList& arguments)
    {
        QProcess process;
        process.start(program(), arguments);
        if (!process.waitForFinished())
            qFatal("%s", qPrintable(process.errorString()));
        code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
    }

    int code;
    QByteArray out;
    QByteArray err;
};

/// The program while it serves.
class Served
{
public:
    explicit Served(const QStringList& arguments)
    {
        process.start(program(), arguments);
        while (!process.canReadLine() && process.waitForReadyRead()) {
        }
        line = process.readLine();
    }

    int port() const { return line.mid(line.lastIndexOf(':') + 1).trimmed().toInt(); }

    QByteArray ask(const QByteArray& message)
    {
        QTcpSocket socket;
        socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(port()));
        socket.waitForConnected();
        socket.write(message);
        QByteArray reply;
        while (!reply.endsWith('\n') && socket.waitForReadyRead())
            reply += socket.readAll();
        return reply;
    }

    /// Asks the program to end; its exit code, or -1 when it ended in another way.
    int end(int signal = SIGTERM)
    {
        ::kill(pid_t(process.processId()), signal);
        process.waitForFinished();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QProcess process;
    QByteArray line;
};

const QByteArray ModelChoices = "; choose one of KVX705XX, KVX7040X, KVX7030X, KVX7020X, KVX7010X, "
                                "KVX70501, KVX70402, KVX70302, KVX70202, KVX70102";

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace

class TestServerProgram : public QObject
{
    Q_OBJECT

private slots:
    void texts();
    void failures_data();
    void failures();
    void defaultPort();
    void portTaken();
    void refuses();
    void endsOnSignals_data();
    void endsOnSignals();
    void identity_data();
    void identity();
    void tellsWhatTheChannelsDo();
    void transcriptReplaysAlike();
    void memoryTroublesStayOffTheOutput();
    void comparison();
    void replayOfNonsense();

private:
    QStringList served(const QStringList& more) const
    {
        return QStringList{QStringLiteral("--port"), QStringLiteral("0"),
                           QStringLiteral("--user-data"), m_folder.path()} +
               more;
    }

    QTemporaryDir m_folder;
};

void TestServerProgram::texts()
{
    const Run help({QStringLiteral("--help")});
    QCOMPARE(help.code, 0);
    QVERIFY(help.out.startsWith("Usage: "));
    QVERIFY(help.out.contains("--transcript <FILE>"));
    QVERIFY(help.out.contains("half-close-after=N"));
    QCOMPARE(help.err, QByteArray());

    const Run version({QStringLiteral("--version")});
    QCOMPARE(version.code, 0);
    QVERIFY(version.out.startsWith("kvx-instrument "));
    QCOMPARE(version.out.count('\n'), 1);
}

void TestServerProgram::failures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("err");

    const auto row = [](const char* arguments, const QByteArray& err) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                                 << QByteArray("kvx-instrument: ") + err + '\n';
    };
    row("--nonsense", "Unknown option 'nonsense'.");
    row("--user-data /no/such/folder",
        "--user-data /no/such/folder: not a folder that can be read");
    row("--user-data / --model KVX99999", "--model KVX99999: no such model" + ModelChoices);
    row("--user-data / --model kvx7010x", "--model kvx7010x: no such model" + ModelChoices);
    row("--user-data / --model KVX705", "--model KVX705: no such model" + ModelChoices);
    row("--user-data / --port 0 --transcript /no/such/folder/t",
        "/no/such/folder/t: No such file or directory");
    row("--user-data / --replay /no/such/file", "/no/such/file: No such file or directory");
    row("--compare /no/such/file /no/such/other", "/no/such/file: No such file or directory");
    row("--compare /dev/null /dev/null", "/dev/null: line 1: not a transcript");
}

void TestServerProgram::failures()
{
    QFETCH(QStringList, arguments);
    const Run run(arguments);
    QCOMPARE(run.code, 2);
    QTEST(run.err, "err");
    QCOMPARE(run.out, QByteArray());
}

void TestServerProgram::defaultPort()
{
    Served served({QStringLiteral("--user-data"), m_folder.path()});
    QCOMPARE(served.line, QByteArray("listening on 127.0.0.1:30000\n"));
    QCOMPARE(served.ask("*OPC?\n"), QByteArray("1\n"));
    QCOMPARE(served.end(), 0);
    QCOMPARE(served.process.readAllStandardOutput(), QByteArray());
    QCOMPARE(served.process.readAllStandardError(), QByteArray());
}

void TestServerProgram::portTaken()
{
    Served first(served({}));
    const Run second({QStringLiteral("--port"), QString::number(first.port()),
                      QStringLiteral("--user-data"), m_folder.path()});
    QCOMPARE(second.code, 4);
    QVERIFY(second.err.startsWith("kvx-instrument: port " + QByteArray::number(first.port())));
    QCOMPARE(second.out, QByteArray());
    QCOMPARE(first.end(), 0);
}

void TestServerProgram::refuses()
{
    Served served(this->served({QStringLiteral("--fault"), QStringLiteral("refuse")}));
    QVERIFY2(served.line.startsWith("refusing on 127.0.0.1:"), served.line.constData());
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(served.port()));
    QVERIFY(!socket.waitForConnected());
    QCOMPARE(socket.error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(served.end(), 0);
}

void TestServerProgram::endsOnSignals_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestServerProgram::endsOnSignals()
{
    QFETCH(int, signal);
    Served served(this->served({}));
    QTcpSocket idle;
    idle.connectToHost(QStringLiteral("127.0.0.1"), quint16(served.port()));
    QVERIFY(idle.waitForConnected());
    QCOMPARE(served.ask("*OPC?\n"), QByteArray("1\n"));
    QCOMPARE(served.end(signal), 0);
    QCOMPARE(served.process.readAllStandardError(), QByteArray());
}

void TestServerProgram::identity_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("fastest") << QByteArray("KVX705XX") << QByteArray("KVX70501");
    QTest::newRow("second") << QByteArray("KVX7040X") << QByteArray("KVX70402");
    QTest::newRow("third") << QByteArray("KVX7030X") << QByteArray("KVX70302");
    QTest::newRow("fourth") << QByteArray("KVX7020X") << QByteArray("KVX70202");
    QTest::newRow("slowest") << QByteArray("KVX7010X") << QByteArray("KVX70102");
    QTest::newRow("by its model") << QByteArray("KVX70402") << QByteArray("KVX70402");
}

void TestServerProgram::identity()
{
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, text);
    Served served(this->served({QStringLiteral("--model"), QString::fromLatin1(model)}));
    const QByteArray reply = served.ask("*IDN?\n");
    const QList<QByteArray> fields = reply.trimmed().split(',');
    QCOMPARE(fields.size(), 4);
    QCOMPARE(fields.at(1), text);
    QCOMPARE(reply.mid(reply.indexOf("KVX"), 8), text);
    for (const QByteArray& field : fields)
        QVERIFY(!field.isEmpty());
    QCOMPARE(served.end(), 0);
}

void TestServerProgram::tellsWhatTheChannelsDo()
{
    Served served(this->served({}));
    QCOMPARE(served.ask("STAT:OPER:COND?;:BURS ON;NCYC INF;:TRIG:SOUR MAN;:OUTP ON;"
                        ":STAT:OPER:COND?;*TRG;:STAT:OPER:COND?;EVEN?\n"),
             QByteArray("0;32;256;288\n"));
    QCOMPARE(served.end(), 0);
}

void TestServerProgram::transcriptReplaysAlike()
{
    const QString path = m_folder.filePath(QStringLiteral("first"));
    Served served(this->served({QStringLiteral("--transcript"), path}));
    QCOMPARE(served.ask("SOUR1:FREQ 31250;FREQ?;NONSENSE?\n"), QByteArray("31250\n"));
    served.ask(QByteArray(70000, 'x') + "\nTRIG:SOUR TIM;:TRIG:TIM 0.001;:OUTP1 ON;*OPC?\n");
    served.ask("SYST:ERR?;ERR?;ERR?\n");
    QCOMPARE(served.end(), 0);
    QCOMPARE(contentOf(path).count(" ! "), 1);

    const Run replay(
        {QStringLiteral("--user-data"), m_folder.path(), QStringLiteral("--replay"), path});
    QCOMPARE(replay.code, 0);
    QVERIFY(replay.out.contains(" < 31250\\n\n"));
    const QString second = m_folder.filePath(QStringLiteral("second"));
    QFile file(second);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(replay.out) == replay.out.size());
    file.close();
    const Run compared({QStringLiteral("--compare"), path, second});
    QCOMPARE(compared.out, QByteArray());
    QCOMPARE(compared.code, 0);
}

// The waveforms leave room for the last one, but not in one stretch.
void TestServerProgram::memoryTroublesStayOffTheOutput()
{
    writeBytes(m_folder.filePath(QStringLiteral("half.mpwv")),
               waveformBytes(QVector<qint16>(524288), 1, 0));
    writeBytes(m_folder.filePath(QStringLiteral("full.mpwv")),
               waveformBytes(QVector<qint16>(1048576), 1, 0));
    const QString path = m_folder.filePath(QStringLiteral("loads"));
    Served served(this->served({QStringLiteral("--transcript"), path}));
    QCOMPARE(served.ask("FUNC:EFIL 'M:/half.mpwv';:SOUR2:FUNC:EFIL 'M:/full.mpwv';"
                        ":FUNC:EFIL 'M:/full.mpwv';:SOUR2:FUNC:EFIL 'M:/full.mpwv';"
                        ":SYST:ERR?\n"),
             QByteArray("0,\"No error\"\n"));
    QCOMPARE(served.end(), 0);
    QCOMPARE(served.process.readAllStandardOutput(), QByteArray());
    QVERIFY(served.process.readAllStandardError().contains("no enough memory!"));

    const Run replay(
        {QStringLiteral("--user-data"), m_folder.path(), QStringLiteral("--replay"), path});
    QCOMPARE(replay.code, 0);
    QVERIFY(replay.err.contains("no enough memory!"));
    const QList<QByteArray> lines = replay.out.split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(1).contains(" > FUNC:EFIL"));
    QVERIFY(lines.at(2).endsWith(" < 0,\"No error\"\\n"));
    QCOMPARE(lines.last(), QByteArray());
}

void TestServerProgram::comparison()
{
    const auto write = [this](const char* name, const QByteArray& lines) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s", name);
        file.write("# kvx-instrument transcript 1\n" + lines);
        return file.fileName();
    };
    const QString a = write("a", "0.000000001 1 > *OPC?\\n\n0.000000001 1 < 1\\n\n");
    const QString b = write("b", "0.000000009 2 > *OPC?\\n\n0.000000009 2 < 0\\n\n");
    QCOMPARE(Run({QStringLiteral("--compare"), a, a}).code, 0);
    const Run run({QStringLiteral("--compare"), a, b});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.out, QByteArray("event 2 differs:\n  < 1\\n\n  < 0\\n\n"));
}

void TestServerProgram::replayOfNonsense()
{
    QFile file(m_folder.filePath(QStringLiteral("nonsense")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("# kvx-instrument transcript 1\nnonsense\n");
    file.close();
    const Run run({QStringLiteral("--user-data"), m_folder.path(), QStringLiteral("--replay"),
                   file.fileName()});
    QCOMPARE(run.code, 2);
    QCOMPARE(run.err, "kvx-instrument: " + file.fileName().toLocal8Bit() +
                          ": line 2: not an event of a transcript\n");
    QCOMPARE(run.out, QByteArray());
}

QTEST_GUILESS_MAIN(TestServerProgram)
#include "test_serverprogram.moc"
