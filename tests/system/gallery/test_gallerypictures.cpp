// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/picturedifference.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

/// Compares the gallery's pages with the approved pictures. The pages need the toolkit's pictures
/// where they are on the instrument, so the test stands in a world of its own.
class TestGalleryPictures : public QObject
{
    Q_OBJECT

private:
    static QString folder(const char* variable)
    {
        return QString::fromLocal8Bit(qgetenv(variable));
    }

    static QStringList pictureNames(const QString& path)
    {
        return QDir(path).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    }

    static bool copyFolder(const QString& from, const QString& to)
    {
        if (!QDir().mkpath(to))
            return false;
        const QFileInfoList entries =
            QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            const QString target = to + QLatin1Char('/') + entry.fileName();
            QFile::remove(target);
            if (entry.isDir() ? !copyFolder(entry.filePath(), target)
                              : !QFile::copy(entry.filePath(), target))
                return false;
        }
        return true;
    }

    QString m_approved = folder("MPB_TEST_DATA") + QStringLiteral("/gallery");
    QString m_rendered = folder("MPB_PICTURES_DIR");

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList families = QFontDatabase().families();
        for (const char* family : {"Open Sans", "Droid Sans Fallback", "DejaVu Sans"})
            QVERIFY2(families.contains(QLatin1String(family)),
                     qPrintable(QStringLiteral("the font %1 is missing: script/setup installs it")
                                    .arg(QLatin1String(family))));

        QVERIFY(copyFolder(folder("MPB_APP_DIR"), QStringLiteral("/mnt/user-data/.app")));
        QDir(m_rendered).removeRecursively();
        QProcess gallery;
        gallery.setProcessChannelMode(QProcess::MergedChannels);
        gallery.start(folder("MPB_BIN_DIR") + QStringLiteral("/toolkit-gallery"),
                      {QStringLiteral("--render"), m_rendered});
        QVERIFY(gallery.waitForFinished(120000));
        QVERIFY2(gallery.exitCode() == 0, gallery.readAll().constData());
    }

    void everyPageInEveryLanguageIsApproved()
    {
        QCOMPARE(pictureNames(m_rendered).size(), 24);
        QCOMPARE(pictureNames(m_rendered), pictureNames(m_approved));
    }

    void pageLooksAsApproved_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = pictureNames(m_rendered);
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    void pageLooksAsApproved()
    {
        QFETCH(QString, name);
        const QString renderedFile = m_rendered + QLatin1Char('/') + name;
        const QString differenceFile =
            QString(renderedFile).replace(QStringLiteral(".png"), QStringLiteral(".difference"));
        const QImage rendered(renderedFile);
        QCOMPARE(rendered.size(), QSize(800, 480));
        const QImage approved(m_approved + QLatin1Char('/') + name);
        QVERIFY2(!approved.isNull(),
                 qPrintable(QStringLiteral("%1 has no approved picture\n  new picture: %2\n"
                                           "If it looks well: script/gallery --approve")
                                .arg(name, renderedFile)));
        const PictureDifference difference = differenceOf(approved, rendered);
        if (difference.tolerable())
            return;

        QVERIFY(difference.picture.save(differenceFile, "PNG"));
        const QString report =
            QStringLiteral("%1 differs from the approved picture: mean difference %2, and %3 % of "
                           "the pixels round (%4, %5)\n"
                           "  new picture: %6\n  difference:  %7\n"
                           "If the new look is meant: script/gallery --approve")
                .arg(name)
                .arg(difference.mean, 0, 'f', 2)
                .arg(100 * difference.share, 0, 'f', 1)
                .arg(difference.worst.x())
                .arg(difference.worst.y())
                .arg(renderedFile, differenceFile);
        QFAIL(qPrintable(report));
    }
};

QTEST_MAIN(TestGalleryPictures)
#include "test_gallerypictures.moc"
