// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "thumbnailpicture.h"

#include <QtTest>

class TestThumbnailPicture : public QObject
{
    Q_OBJECT

private slots:
    void pictureOfFocus_data();
    void pictureOfFocus();
    void pictureOfCell_data();
    void pictureOfCell();
    void everyCellOfEveryTrain();
    void unmarked_data();
    void unmarked();
    void path();
};

void TestThumbnailPicture::pictureOfFocus_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QString>("two");
    QTest::addColumn<QString>("more");

    const auto row = [](const char* focus, const char* two, const char* more) {
        QTest::newRow(*focus == '\0' ? "empty" : focus)
            << QString::fromLatin1(focus) << QString::fromLatin1(two) << QString::fromLatin1(more);
    };
    row("Amplitude", "d_ampl.png", "m_ampl.png");
    row("HighLevel", "d_high.png", "m_high.png");
    row("Offset", "d_offset.png", "m_offset.png");
    row("LowLevel", "d_low.png", "m_low.png");
    row("TriggerDelay", "d_delay.png", "m_delay.png");
    row("", "d_.png", "m_.png");
    row("highlevel", "d_.png", "m_.png");
    row("HIGHLEVEL", "d_.png", "m_.png");
    row("HighLevel ", "d_.png", "m_.png");
    row("High", "d_.png", "m_.png");
    row("TriggerTimer", "d_.png", "m_.png");
}

void TestThumbnailPicture::pictureOfFocus()
{
    QFETCH(QString, focus);
    for (const int count : {-1, 0, 1, 2})
        QTEST(ThumbnailPicture::forFocus(focus, count), "two");
    for (const int count : {3, 5, 30})
        QTEST(ThumbnailPicture::forFocus(focus, count), "more");
}

void TestThumbnailPicture::pictureOfCell_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QPoint>("cell");
    QTest::addColumn<QString>("picture");

    const auto row = [](int count, int cellRow, int column, const char* picture) {
        QTest::addRow("%d pulses, row %d, column %d", count, cellRow, column)
            << count << QPoint(cellRow, column) << QString::fromLatin1(picture);
    };
    row(2, 0, 0, "d_w1.png");
    row(2, 1, 0, "d_w2.png");
    row(2, 0, 1, "d_g1.png");
    row(2, 1, 1, "d_g2.png");
    row(2, 2, 0, "d_.png");
    row(2, 2, 1, "d_.png");
    row(2, -1, -1, "d_.png");
    row(2, -1, 0, "d_.png");
    row(2, 0, -1, "d_.png");
    row(2, 0, 2, "d_.png");
    // Fewer than two rows may stand in the table of a document; the last-row pictures do not apply.
    row(1, 0, 0, "d_w1.png");
    row(1, 1, 1, "d_g2.png");
    row(0, -1, 0, "d_.png");

    row(3, 0, 0, "m_w1.png");
    row(3, 1, 0, "m_w2.png");
    row(3, 2, 0, "m_wN.png");
    row(3, 0, 1, "m_g1.png");
    row(3, 1, 1, "m_.png");
    row(3, 2, 1, "m_gN.png");
    row(3, 3, 0, "m_.png");
    row(3, -1, -1, "m_.png");
    row(3, 2, 2, "m_.png");
    row(3, 2, -1, "m_.png");

    row(5, 1, 0, "m_w2.png");
    row(5, 2, 0, "m_.png");
    row(5, 2, 1, "m_.png");
    row(5, 3, 0, "m_.png");
    row(5, 3, 1, "m_.png");
    row(5, 4, 0, "m_wN.png");
    row(5, 4, 1, "m_gN.png");
    row(5, 5, 0, "m_.png");
    row(5, -1, -1, "m_.png");

    row(30, 0, 0, "m_w1.png");
    row(30, 1, 0, "m_w2.png");
    row(30, 0, 1, "m_g1.png");
    row(30, 1, 1, "m_.png");
    row(30, 28, 0, "m_.png");
    row(30, 28, 1, "m_.png");
    row(30, 29, 0, "m_wN.png");
    row(30, 29, 1, "m_gN.png");
    row(30, 30, 0, "m_.png");
}

void TestThumbnailPicture::pictureOfCell()
{
    QFETCH(int, count);
    QFETCH(QPoint, cell);
    QTEST(ThumbnailPicture::forCell(cell, count), "picture");
}

// Each picture stands for just one cell of a train of three and more; the unmarked one for the
// rest.
void TestThumbnailPicture::everyCellOfEveryTrain()
{
    for (int count = 3; count <= 30; ++count) {
        QMap<QString, int> shown;
        for (int row = 0; row < count; ++row) {
            for (int column = 0; column < 2; ++column)
                ++shown[ThumbnailPicture::forCell(QPoint(row, column), count)];
        }
        QCOMPARE(shown.take(QStringLiteral("m_.png")), 2 * count - 5);
        QCOMPARE(shown.keys(), (QStringList{QStringLiteral("m_g1.png"), QStringLiteral("m_gN.png"),
                                            QStringLiteral("m_w1.png"), QStringLiteral("m_w2.png"),
                                            QStringLiteral("m_wN.png")}));
        QCOMPARE(shown.values(), (QList<int>{1, 1, 1, 1, 1}));
    }
}

void TestThumbnailPicture::unmarked_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("picture");
    for (const int count : {-1, 0, 2})
        QTest::addRow("%d", count) << count << QStringLiteral("d_.png");
    for (const int count : {3, 5, 30})
        QTest::addRow("%d", count) << count << QStringLiteral("m_.png");
}

void TestThumbnailPicture::unmarked()
{
    QFETCH(int, count);
    QTEST(ThumbnailPicture::unmarked(count), "picture");
}

void TestThumbnailPicture::path()
{
    QCOMPARE(ThumbnailPicture::path(QStringLiteral("m_w1.png")),
             QStringLiteral("/mnt/user-data/.app/libDoublePulsePluginPics/m_w1.png"));
}

QTEST_APPLESS_MAIN(TestThumbnailPicture)

#include "test_thumbnailpicture.moc"
