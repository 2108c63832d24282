// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "glyphs.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QtTest>

using namespace HostDialogs;

namespace {

QImage drawn(Glyph glyph, const QRectF& place, const QColor& colour)
{
    QImage image(60, 40, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawGlyph(painter, place, glyph, colour);
    return image;
}

} // namespace

class TestGlyphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOneIsDrawnInItsPlace();
    void noTwoAreTheSame();
    void hasTheColourItIsTold();
};

void TestGlyphs::everyOneIsDrawnInItsPlace()
{
    const QRect square(20, 10, 20, 20);
    for (int i = 1; i <= static_cast<int>(Glyph::Space); ++i) {
        const QImage image = drawn(static_cast<Glyph>(i), QRectF(10, 10, 40, 20), Qt::white);
        int inside = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() == 0)
                    continue;
                QVERIFY2(square.contains(x, y), qPrintable(QString::number(i)));
                ++inside;
            }
        }
        QVERIFY2(inside > 20, qPrintable(QString::number(i)));
    }
}

void TestGlyphs::noTwoAreTheSame()
{
    QSet<QByteArray> pictures;
    const int last = static_cast<int>(Glyph::Space);
    for (int i = 0; i <= last; ++i) {
        const QImage image = drawn(static_cast<Glyph>(i), QRectF(0, 0, 40, 40), Qt::white);
        pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                   static_cast<int>(image.sizeInBytes())));
    }
    QCOMPARE(pictures.size(), last + 1);
}

void TestGlyphs::hasTheColourItIsTold()
{
    const QImage image = drawn(Glyph::ShiftLocked, QRectF(0, 0, 40, 40), Qt::red);
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::red));
}

QTEST_GUILESS_MAIN(TestGlyphs)

#include "test_glyphs.moc"
