// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pictureapproval.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestPictureApproval : public QObject
{
    Q_OBJECT

private:
    static QImage filled(QRgb colour)
    {
        QImage picture(40, 40, QImage::Format_RGB32);
        picture.fill(colour);
        return picture;
    }

private Q_SLOTS:
    void approvedOnce()
    {
        const QTemporaryDir folder;
        PictureApproval approval(folder.path(), "home", "de");
        QVERIFY(approval.compare(filled(qRgb(9, 9, 9))).contains("home-de.png"));
        QCOMPARE(approval.approve(filled(qRgb(9, 9, 9))), QString());
        QVERIFY(QFile::exists(folder.filePath("home-de.png")));
        QCOMPARE(approval.compare(filled(qRgb(9, 9, 9))), QString());
    }

    void difference()
    {
        const QTemporaryDir folder;
        PictureApproval approval(folder.path(), "home", "de");
        QCOMPARE(approval.approve(filled(qRgb(0, 0, 0))), QString());
        QVERIFY(approval.compare(filled(qRgb(255, 255, 255))).contains("unlike"));
        QCOMPARE(approval.difference().size(), QSize(40, 40));
    }

    void otherSize()
    {
        const QTemporaryDir folder;
        PictureApproval approval(folder.path(), "home", "de");
        QCOMPARE(approval.approve(filled(qRgb(0, 0, 0))), QString());
        QVERIFY(!approval.compare(QImage(20, 20, QImage::Format_RGB32)).isEmpty());
    }

    void oneForEveryLanguage()
    {
        const QTemporaryDir folder;
        QVERIFY(filled(qRgb(7, 7, 7)).save(folder.filePath("plot.png")));
        for (const char* language : {"en", "ja"}) {
            PictureApproval approval(folder.path(), "plot", language);
            QCOMPARE(approval.compare(filled(qRgb(7, 7, 7))), QString());
        }
        PictureApproval approval(folder.path(), "plot", "en");
        QCOMPARE(approval.approve(filled(qRgb(90, 0, 0))), QString());
        QVERIFY(!QFile::exists(folder.filePath("plot-en.png")));
    }

    void folderThatIsNone()
    {
        PictureApproval approval("/nowhere/at/all", "home", "en");
        QVERIFY(!approval.approve(filled(0)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPictureApproval)

#include "test_pictureapproval.moc"
