// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformcheck.h"

#include "commandrun.h"
#include "rendering.h"

#include <QtTest>

class TestWaveformCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsNothingInWhatTheWriterWrites_data();
    void findsNothingInWhatTheWriterWrites();
    void finds_data();
    void finds();

private:
    QByteArray m_bytes;
};

namespace {

QByteArray bytesOf(const QJsonObject& document)
{
    const WithoutLibraryLog quiet;
    QByteArray bytes;
    Renderer().makeBytes(PulseTrain::fromDocument(document), bytes);
    return bytes;
}

QByteArray replaced(QByteArray bytes, int at, const QByteArray& part)
{
    return bytes.replace(at, part.size(), part);
}

QByteArray numberBytes(double number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

void TestWaveformCheck::initTestCase()
{
    m_bytes = bytesOf(defaultSetup());
    QCOMPARE(m_bytes.size(), 512 + 2 * 131070);
}

void TestWaveformCheck::findsNothingInWhatTheWriterWrites_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::newRow("default") << defaultSetup();
    QTest::newRow("inverted") << withMember(defaultSetup(), SetupKey::TriggerSlope, 1);
    QTest::newRow("edges") << withMember(defaultSetup(), SetupKey::PulseTrailing, 3e-7);
    QTest::newRow("largest levels")
        << withMember(defaultSetup(), SetupKey::Voltage,
                      QJsonObject{{SetupKey::Amplitude, 10}, {SetupKey::Offset, 0}});
    QTest::newRow("levels that doubles cannot hold")
        << withMember(defaultSetup(), SetupKey::Voltage,
                      QJsonObject{{SetupKey::Amplitude, 0.3}, {SetupKey::Offset, 0.1}});
}

void TestWaveformCheck::findsNothingInWhatTheWriterWrites()
{
    QFETCH(QJsonObject, document);
    for (const Finding& finding : checkWaveform(bytesOf(document)))
        QFAIL(qPrintable(finding.member + QLatin1String(": ") + finding.reason));
}

void TestWaveformCheck::finds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const QByteArray& bytes, const QStringList& lines) {
        QTest::newRow(name) << bytes << lines;
    };
    row("cut off", m_bytes.left(600),
        {QStringLiteral("size: 600 bytes instead of 262652 for 131070 points")});
    row("magic", replaced(m_bytes, 9, "x"), {QStringLiteral("magic: not a waveform file")});
    row("reserved", replaced(m_bytes, 511, "x"),
        {QStringLiteral("reserved: byte 511 of the file is not zero")});
    row("no thumbnail", replaced(m_bytes, 24, QByteArray(1, '\0')),
        {QStringLiteral("hasThumbnail: 0 instead of 1")});
    row("thumbnail", replaced(m_bytes, 28 + 2 * 17, "xy"),
        {QStringLiteral("thumbnail: 1 of 206 columns do not show the samples")});
    row("amplitude", replaced(m_bytes, 440, numberBytes(0)),
        {QStringLiteral("ampValue: 0 V is not above 0")});
    row("levels", replaced(m_bytes, 448, numberBytes(-4.5)),
        {QStringLiteral("ampValue: with the offset the levels reach 5.5 V, above 5 V, the limit of "
                        "the largest models")});
    // The base changed into its neighbour: exchanged bytes make the picture differ as well.
    row("range", replaced(m_bytes, 512 + 2 * 40000, QByteArray("\xff\x7f", 2)),
        {QStringLiteral("thumbnail: 1 of 206 columns do not show the samples"),
         QStringLiteral("samples: 1 outside -32764 to 32764, the first is 32767 at point 40000")});
    QByteArray empty = replaced(m_bytes.left(512), 20, QByteArray(4, '\0'));
    row("no points", replaced(empty, 28, QByteArray(412, '\0')),
        {QStringLiteral("points: 0, nothing can be played")});
    row("small samples",
        replaced(m_bytes.left(512), 20, QByteArray("\2\0\0\0", 4)) + QByteArray("\1\0\2\0", 4),
        {QStringLiteral("thumbnail: 206 of 206 columns do not show the samples"),
         QStringLiteral("samples: 1 to 2 do not fill the range of -32764 to 32764")});
}

void TestWaveformCheck::finds()
{
    QFETCH(QByteArray, bytes);
    QStringList lines;
    for (const Finding& finding : checkWaveform(bytes))
        lines.append(finding.member + QLatin1String(": ") + finding.reason);
    QTEST(lines, "lines");
}

QTEST_APPLESS_MAIN(TestWaveformCheck)
#include "test_waveformcheck.moc"
