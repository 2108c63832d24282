// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "thumbnail.h"

#include "commandrun.h"
#include "pulsetrain.h"
#include "rendering.h"

#include <QtTest>

class TestThumbnail : public QObject
{
    Q_OBJECT

private slots:
    void isTheWritersOwn();
    void drawsStrokes();
};

void TestThumbnail::isTheWritersOwn()
{
    const WithoutLibraryLog quiet;
    Input input;
    input.document = withMember(defaultSetup(), SetupKey::PulseLeading, 1e-6);
    appPlugins::WaveformFile file;
    QCOMPARE(waveformOf(input, file), QString());
    const Thumbnail thumbnail = thumbnailOf(file.samples);
    QVERIFY(std::equal(thumbnail.cbegin(), thumbnail.cend(), file.header.thumbnail));
    QVERIFY(std::count(thumbnail.cbegin(), thumbnail.cend(), 0) < 412);
    QCOMPARE(thumbnailOf({}), Thumbnail());
}

// Low in the first three columns, whole in the next three, high in all others.
void TestThumbnail::drawsStrokes()
{
    Thumbnail thumbnail;
    for (size_t column = 0; column < 206; ++column) {
        thumbnail[2 * column] = column < 6 ? 0 : 255;
        thumbnail[2 * column + 1] = column < 3 ? 0 : 255;
    }
    const QStringList lines = thumbnailText(thumbnail.data());
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines.first(), QLatin1String(" ") + QChar(0x2588) + QString(67, QChar(0x2580)));
    QCOMPARE(lines.at(3), QLatin1String(" ") + QChar(0x2588) + QString(67, QLatin1Char(' ')));
    QCOMPARE(lines.last(), QString(QChar(0x2584)) + QChar(0x2588) + QString(67, QLatin1Char(' ')));
}

QTEST_APPLESS_MAIN(TestThumbnail)
#include "test_thumbnail.moc"
