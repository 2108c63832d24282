// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorhost.h"
#include "logcapture.h"
#include "setupfiles.h"

#include <QAction>
#include <QProcess>
#include <QTcpSocket>
#include <QtEndian>

#include <cmath>

namespace {

const int PatienceMs = 20000;
const QString WaveformPath = QStringLiteral("/mnt/user-data/run.mpwv");

/// The simulated generator on the instrument's port, as a process of its own.
class Generator
{
public:
    Generator()
    {
        m_process.start(qEnvironmentVariable("MPB_BIN_DIR") + QStringLiteral("/kvx-instrument"),
                        QStringList());
        m_bReady = m_process.waitForStarted(PatienceMs);
        while (m_bReady && !m_process.canReadLine())
            m_bReady = m_process.waitForReadyRead(PatienceMs);
        m_bReady = m_bReady && m_process.readLine() == "listening on 127.0.0.1:30000\n";
    }
    ~Generator()
    {
        m_process.terminate();
        m_process.waitForFinished(PatienceMs);
    }
    Generator(const Generator&) = delete;
    Generator& operator=(const Generator&) = delete;

    bool isReady() const { return m_bReady; }

private:
    QProcess m_process;
    bool m_bReady = false;
};

/// Somebody else who talks to the generator.
class Client
{
public:
    Client()
    {
        m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), 30000);
        m_socket.waitForConnected(PatienceMs);
    }

    void command(const QByteArray& text)
    {
        m_socket.write(text + '\n');
        m_socket.waitForBytesWritten(PatienceMs);
    }

    QByteArray query(const QByteArray& text)
    {
        command(text);
        while (!m_socket.canReadLine() && m_socket.waitForReadyRead(PatienceMs)) {
        }
        return m_socket.readLine().trimmed();
    }

    /// The counts of a reply that is a block: "#", a digit, so many digits of a size, that many
    /// bytes.
    QVector<qint16> queryCounts(const QByteArray& text)
    {
        command(text);
        const int digits = take(2).mid(1).toInt();
        const QByteArray bytes = take(take(digits).toInt());
        take(1);
        QVector<qint16> counts(bytes.size() / 2);
        qFromBigEndian<qint16>(bytes.constData(), counts.size(), counts.data());
        return counts;
    }

private:
    QByteArray take(int size)
    {
        while (m_socket.bytesAvailable() < size && m_socket.waitForReadyRead(PatienceMs)) {
        }
        return m_socket.read(size);
    }

    QTcpSocket m_socket;
};

const int HeaderSize = 512;

QVector<qint16> countsOfFile(const QByteArray& file)
{
    QVector<qint16> counts((file.size() - HeaderSize) / 2);
    qFromLittleEndian<qint16>(file.constData() + HeaderSize, counts.size(), counts.data());
    return counts;
}

/// Start and width of each pulse in points: the stretches beyond the middle.
QVector<QPair<int, int>> pulsesOf(const QVector<qint16>& counts, bool inverted)
{
    QVector<QPair<int, int>> pulses;
    bool wasInside = false;
    for (int i = 0; i < counts.size(); ++i) {
        const bool inside = inverted ? counts.at(i) < 0 : counts.at(i) > 0;
        if (inside && !wasInside)
            pulses.append({i, 0});
        if (inside)
            ++pulses.last().second;
        wasInside = inside;
    }
    return pulses;
}

double seconds(const QJsonValue& cell)
{
    const QString text = cell.toString();
    const double number = text.chopped(1).toDouble();
    switch (text.back().toLatin1()) {
    case 'n':
        return number * 1e-9;
    case 'u':
        return number * 1e-6;
    case 'm':
        return number * 1e-3;
    default:
        return text.toDouble();
    }
}

/// Start, width and period that a setup asks for, in seconds.
struct AskedTrain
{
    explicit AskedTrain(const QJsonObject& setup)
    {
        period = setup.value(QStringLiteral("trigger delay"))
                     .toObject()
                     .value(QStringLiteral("value"))
                     .toDouble();
        for (const QJsonValue& row : setup.value(QStringLiteral("width/gap")).toArray()) {
            const double width = seconds(row.toObject().value(QStringLiteral("width")));
            pulses.append({period, width});
            period += width + seconds(row.toObject().value(QStringLiteral("gap")));
        }
    }

    QVector<QPair<double, double>> pulses;
    double period;
};

} // namespace

/// The editor and the simulated generator: what is built in the window is played.
class TestEditorPlays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void channelPlaysTheTrain_data();
    void channelPlaysTheTrain();
};

void TestEditorPlays::channelPlaysTheTrain_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("ohms");
    QTest::newRow("double-pulse.json") << QByteArray("EXT") << QByteArray("10000");
    QTest::newRow("multi-pulse.json") << QByteArray("EXT") << QByteArray("50");
    QTest::newRow("active-low.json") << QByteArray("EXT") << QByteArray("50");
    QTest::newRow("short-circuit.json") << QByteArray("EXT") << QByteArray("50");
    QTest::newRow("thirty-pulses.json") << QByteArray("TIM") << QByteArray("50");
}

void TestEditorPlays::channelPlaysTheTrain()
{
    QFETCH(QByteArray, source);
    const QString example = qEnvironmentVariable("MPB_SOURCE_DIR") + QLatin1String("/examples/") +
                            QLatin1String(QTest::currentDataTag());
    const QJsonObject setup = SetupFiles::pulsesOf(SetupFiles::read(example));
    const bool inverted = setup.value(QStringLiteral("trigger slope")).toInt() != 0;
    const AskedTrain asked(setup);
    QVERIFY(!asked.pulses.isEmpty());

    const LogCapture log;
    const Generator generator;
    QVERIFY(generator.isReady());
    EditorHost host;
    host.show();
    host.exec([&] {
        Client client;
        QCOMPARE(client.query("OUTP1?"), QByteArray("0"));
        SetupFiles::open(host, example);
        FrontPanel::tap(host.button(EditorHost::Run));
        QVERIFY(host.action(EditorHost::Run)->isChecked());

        QCOMPARE(client.query("OUTP1?"), QByteArray("1"));
        QCOMPARE(client.query("OUTP2?"), QByteArray("0"));
        QCOMPARE(client.query("BURS?"), QByteArray("1"));
        QCOMPARE(client.query("FUNC?"), QByteArray("EFIL"));
        QCOMPARE(client.query("TRIG:SOUR?"), source);
        QCOMPARE(client.query("OUTP1:IMP?").toDouble(),
                 setup.value(QStringLiteral("load impedance")).toDouble());
        // It is sent in whole microhertz.
        QVERIFY(std::fabs(client.query("FREQ?").toDouble() - 1 / asked.period) < 1e-6);

        client.command("*TRG");
        QTRY_VERIFY(client.query("TRAC1:COUN?").toInt() > 0);
        const QVector<qint16> played = client.queryCounts("TRAC1:DATA?");
        QCOMPARE(played, countsOfFile(SetupFiles::read(WaveformPath)));
        const double step = client.query("TRAC1:TIM:STEP?").toDouble();
        QVERIFY(std::fabs(step * played.size() - asked.period) < 1e-6 * asked.period);

        const QVector<QPair<int, int>> pulses = pulsesOf(played, inverted);
        QCOMPARE(pulses.size(), asked.pulses.size());
        for (int i = 0; i < pulses.size(); ++i) {
            // Whole points: each time of the train loses less than one.
            const double tolerance = (4 * pulses.size() + 4) * step;
            QVERIFY(std::fabs(pulses.at(i).first * step - asked.pulses.at(i).first) < tolerance);
            QVERIFY(std::fabs(pulses.at(i).second * step - asked.pulses.at(i).second) <
                    3 * step + 1e-3 * asked.pulses.at(i).second);
        }
        QCOMPARE(client.query("SYST:ERR?").left(2), QByteArray("0,"));

        FrontPanel::tap(host.button(EditorHost::Run));
        QCOMPARE(client.query("OUTP1?"), QByteArray("0"));
        QCOMPARE(client.query("BURS?"), QByteArray("0"));
        QCOMPARE(client.query("SYST:ERR?").left(2), QByteArray("0,"));
        QVERIFY(!QFile::exists(WaveformPath));
        QVERIFY(!host.discardKeys() && !host.blockScpi());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

QTEST_MAIN(TestEditorPlays)
#include "test_editorplays.moc"
