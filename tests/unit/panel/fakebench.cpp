// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "fakebench.h"

#include <QDataStream>
#include <QtEndian>

#include <memory>

namespace {

const quint16 Width = 800;
const quint16 Height = 480;

QByteArray screenBytes()
{
    QByteArray bytes("RFB 003.003\n");
    QDataStream out(&bytes, QIODevice::Append);
    out << quint32(1) << Width << Height;
    out << quint8(32) << quint8(24) << quint8(0) << quint8(1);
    out << quint16(255) << quint16(255) << quint16(255);
    out << quint8(16) << quint8(8) << quint8(0) << quint8(0) << quint8(0) << quint8(0);
    out << quint32(0);
    out << quint8(0) << quint8(0) << quint16(1);
    out << quint16(0) << quint16(0) << Width << Height << qint32(0);
    return bytes + QByteArray("\x30\x20\x10\x00", 4).repeated(Width * Height);
}

quint16 number16(const QByteArray& bytes, int place)
{
    return qFromBigEndian<quint16>(bytes.constData() + place);
}

QByteArray blockOf(const QVector<qint16>& counts)
{
    QByteArray data(counts.size() * 2, '\0');
    qToBigEndian<qint16>(counts.constData(), counts.size(), data.data());
    const QByteArray length = QByteArray::number(data.size());
    return '#' + QByteArray::number(length.size()) + length + data;
}

} // namespace

FakeKeypad::FakeKeypad(const QString& path)
{
    QLocalServer::removeServer(path);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
        QLocalSocket* const client = m_server.nextPendingConnection();
        QObject::connect(client, &QLocalSocket::readyRead, client,
                         [this, client] { m_received += client->readAll(); });
        client->write(Keypad::helloLine(QStringLiteral("test")));
    });
    if (!m_server.listen(path))
        qFatal("keypad: %s", qPrintable(m_server.errorString()));
}

FakeScreen::FakeScreen(quint16 port)
{
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        QTcpSocket* const client = m_server.nextPendingConnection();
        const auto bytes = std::make_shared<QByteArray>();
        const auto isGreeted = std::make_shared<bool>(false);
        QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, bytes, isGreeted] {
            *bytes += client->readAll();
            const int greeting = 12 + 1; // version, and whether it shares
            if (!*isGreeted && bytes->size() >= greeting) {
                bytes->remove(0, greeting);
                *isGreeted = true;
            }
            if (*isGreeted)
                take(*bytes);
        });
        client->write(screenBytes());
    });
    if (!m_server.listen(QHostAddress(QHostAddress::LocalHost), port))
        qFatal("screen: %s", qPrintable(m_server.errorString()));
}

void FakeScreen::take(QByteArray& bytes)
{
    for (int size = takeMessage(bytes); size > 0; size = takeMessage(bytes))
        bytes.remove(0, size);
}

// The bytes of the first message; 0 while it is not whole.
int FakeScreen::takeMessage(const QByteArray& bytes)
{
    if (bytes.size() < 4)
        return 0;
    const int type = bytes.at(0);
    const int size = type == 0   ? 20
                     : type == 2 ? 4 + 4 * number16(bytes, 2)
                     : type == 3 ? 10
                     : type == 4 ? 8
                     : type == 5 ? 6
                                 : -1;
    if (size < 0)
        qFatal("screen: message %d", type);
    if (bytes.size() < size)
        return 0;
    if (type == 4)
        m_events.append(QStringLiteral("%1 %2")
                            .arg(bytes.at(1) ? QStringLiteral("down") : QStringLiteral("up"))
                            .arg(qFromBigEndian<quint32>(bytes.constData() + 4), 0, 16));
    else if (type == 5)
        m_events.append(QStringLiteral("pointer %1 %2 %3")
                            .arg(number16(bytes, 2))
                            .arg(number16(bytes, 4))
                            .arg(int(bytes.at(1))));
    return size;
}

FakeInstrument::FakeInstrument(quint16 port)
{
    answer("*IDN?", "MAKER,KVX70102,1,1.0");
    setState(0, false, 0, {});
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        QTcpSocket* const client = m_server.nextPendingConnection();
        const auto bytes = std::make_shared<QByteArray>();
        QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, bytes] {
            *bytes += client->readAll();
            take(*client, *bytes);
        });
    });
    if (!m_server.listen(QHostAddress(QHostAddress::LocalHost), port))
        qFatal("instrument: %s", qPrintable(m_server.errorString()));
}

void FakeInstrument::take(QTcpSocket& client, QByteArray& bytes)
{
    for (int end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n')) {
        const QByteArray line = bytes.left(end);
        bytes.remove(0, end + 1);
        m_lines.append(line);
        if (m_answers.contains(line))
            client.write(m_answers.value(line) + '\n');
    }
}

void FakeInstrument::setState(int sequence, bool isOn, double idle, const QVector<qint16>& counts)
{
    const QByteArray level = QByteArray::number(idle);
    const QByteArray nothing = "9.91E+37";
    const bool isPlayed = !counts.isEmpty();
    answer("TRACe1:SEQuence?;:TRACe1:POINts?;:OUTPut1?;:TRACe1:LEVel:IDLE?",
           QByteArray::number(sequence) + ';' + QByteArray::number(counts.size()) + ';' +
               (isOn ? '1' : '0') + ';' + level);
    answer("FORMat:BORDer?;:TRACe1:POINts?;TIMe:STEP?;:TRACe1:TIMe:STARt?;:TRACe1:LEVel:SCALe?;"
           ":TRACe1:LEVel:OFFSet?;:TRACe1:LEVel:IDLE?",
           "NORM;" + QByteArray::number(counts.size()) + ';' + (isPlayed ? "1E-6" : nothing) + ';' +
               (isPlayed ? "0" : nothing) + ';' + (isPlayed ? "1E-3" : nothing) + ';' +
               (isPlayed ? "0" : nothing) + ';' + level);
    answer("TRACe1:DATA?", blockOf(counts));
}

PanelOptions FakeBench::options() const
{
    PanelOptions options;
    options.screenPort = screen.port();
    options.keypadPath = folder.filePath(QStringLiteral("keypad"));
    options.instrumentPort = instrument.port();
    options.keepsSettings = false;
    return options;
}

namespace {

QtMessageHandler g_usualHandler = nullptr;

void handleAllButGaps(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.contains(QLatin1String("This plugin does not support")))
        g_usualHandler(type, context, text);
}

} // namespace

void dropPlatformWarnings()
{
    g_usualHandler = qInstallMessageHandler(handleAllButGaps);
}
