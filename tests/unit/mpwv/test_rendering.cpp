// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rendering.h"

#include "commandrun.h"
#include "trainsamples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestRendering : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pQuiet = std::make_unique<WithoutLibraryLog>(); }
    void cleanupTestCase() { m_pQuiet.reset(); }
    void makesTheSameBytesEverywhere();
    void usesItsBufferAgain();
    void tellsWhyNothingIsWritten();
    void takesWaveformsAsTheyAre();

private:
    std::unique_ptr<WithoutLibraryLog> m_pQuiet;
};

void TestRendering::makesTheSameBytesEverywhere()
{
    const QTemporaryDir folder;
    const PulseTrain train = PulseTrain::fromDocument(defaultSetup());
    const QString direct = folder.filePath(QStringLiteral("direct"));
    const QString whole = folder.filePath(QStringLiteral("whole"));
    QVERIFY(writeTrainWaveform(QFile::encodeName(direct).constData(), train));

    Renderer renderer;
    QByteArray bytes;
    QCOMPARE(renderer.writeFile(train, whole), QString());
    QCOMPARE(renderer.makeBytes(train, bytes), QString());
    QVERIFY(fileBytes(direct).size() > 262000);
    QVERIFY(fileBytes(whole) == fileBytes(direct));
    QVERIFY(bytes == fileBytes(direct));
}

// What a train leaves in the buffer must not show in the next one, which is shorter.
void TestRendering::usesItsBufferAgain()
{
    const PulseTrain train = PulseTrain::fromDocument(defaultSetup());
    const PulseTrain shorter = PulseTrain::fromDocument(withRows(
        defaultSetup(), QVector<SetupRow>(30, {QStringLiteral("1.000u"), QStringLiteral("1.1u")})));
    Renderer fresh;
    Renderer used;
    QByteArray expected;
    QByteArray bytes;
    QCOMPARE(used.makeBytes(train, bytes), QString());
    QCOMPARE(used.makeBytes(shorter, bytes), QString());
    QCOMPARE(fresh.makeBytes(shorter, expected), QString());
    QVERIFY(bytes == expected);
}

void TestRendering::tellsWhyNothingIsWritten()
{
    const PulseTrain train = PulseTrain::fromDocument(defaultSetup());
    Renderer renderer;
    QCOMPARE(renderer.writeFile(train, QStringLiteral("/nowhere/x.mpwv")),
             QStringLiteral("No such file or directory"));
    QCOMPARE(renderer.writeFile(train, QStringLiteral("/dev/full")),
             QStringLiteral("No space left on device"));
}

void TestRendering::takesWaveformsAsTheyAre()
{
    Input input;
    input.kind = Input::Waveform;
    input.file.samples = {1, 2, 3};
    appPlugins::WaveformFile file;
    QCOMPARE(waveformOf(input, file), QString());
    QCOMPARE(file.samples, (std::vector<qint16>{1, 2, 3}));

    input.kind = Input::Setup;
    input.document = defaultSetup();
    QCOMPARE(waveformOf(input, file), QString());
    QCOMPARE(int(file.samples.size()), 131070);
    QCOMPARE(file.header.ampValue, 2.0);
}

QTEST_APPLESS_MAIN(TestRendering)
#include "test_rendering.moc"
