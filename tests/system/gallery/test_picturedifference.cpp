// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/picturedifference.h"

#include <QPainter>
#include <QTest>

class TestPictureDifference : public QObject
{
    Q_OBJECT

private:
    static QImage page()
    {
        QImage picture(200, 100, QImage::Format_RGB32);
        picture.fill(QColor(0x1e, 0x1e, 0x1e));
        return picture;
    }

    // A frame with lines 2 pixels wide, as the inputs have.
    static QImage withFrame(const QRect& frame, const QColor& colour = Qt::white)
    {
        QImage picture = page();
        QPainter painter(&picture);
        painter.fillRect(frame, colour);
        painter.fillRect(frame.adjusted(2, 2, -2, -2), QColor(0x2e, 0x2e, 0x2e));
        return picture;
    }

private Q_SLOTS:
    void samePicturesDoNotDiffer()
    {
        const QImage picture = withFrame({20, 20, 120, 40});
        const PictureDifference difference = differenceOf(picture, picture);
        QCOMPARE(difference.mean, 0.0);
        QCOMPARE(difference.share, 0.0);
        QVERIFY(difference.tolerable());
    }

    void aPaletteMakesNoDifference()
    {
        const QImage picture = withFrame({20, 20, 120, 40});
        QVERIFY(
            differenceOf(picture, picture.convertToFormat(QImage::Format_Indexed8)).tolerable());
    }

    void oneShiftedPixelIsTolerable()
    {
        const PictureDifference difference =
            differenceOf(withFrame({20, 20, 120, 40}), withFrame({21, 20, 120, 40}));
        QVERIFY(difference.mean > 0);
        QCOMPARE(difference.share, 0.0);
        QVERIFY(difference.tolerable());
    }

    void anotherPlaceIsNot()
    {
        const PictureDifference difference =
            differenceOf(withFrame({20, 20, 120, 40}), withFrame({20, 24, 120, 40}));
        QVERIFY(!difference.tolerable());
    }

    void anotherColourIsNot()
    {
        const QRect frame(20, 20, 120, 40);
        QVERIFY(
            !differenceOf(withFrame(frame), withFrame(frame, QColor(52, 120, 247))).tolerable());
    }

    void aSmallChangeIsFound()
    {
        const QImage approved = withFrame({20, 20, 120, 40});
        QImage rendered = approved;
        QPainter(&rendered).fillRect(100, 30, 8, 10, QColor(52, 120, 247));
        const PictureDifference difference = differenceOf(approved, rendered);
        QVERIFY(!difference.tolerable());
        QVERIFY(QRect(80, 20, 40, 40).contains(difference.worst));
        QCOMPARE(difference.picture.pixelColor(104, 35), QColor(Qt::red));
        QVERIFY(difference.picture.pixelColor(10, 10) != QColor(Qt::red));
    }

    void anotherSizeIsADifference()
    {
        const PictureDifference difference = differenceOf(page(), page().copy(0, 0, 100, 100));
        QCOMPARE(difference.share, 1.0);
        QVERIFY(!difference.tolerable());
        QVERIFY(!differenceOf(QImage(), QImage()).tolerable());
    }
};

QTEST_APPLESS_MAIN(TestPictureDifference)
#include "test_picturedifference.moc"
