// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "wholefile.h"

#include "commandrun.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class TestWholeFile : public QObject
{
    Q_OBJECT

private slots:
    void appearsWhenCommitted();
    void vanishesOtherwise();
    void followsTheUmask();
    void writesDevicesInPlace();
    void takesLongNames();
    void tellsWhyNot();

private:
    static QStringList namesIn(const QTemporaryDir& folder)
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    }
};

void TestWholeFile::appearsWhenCommitted()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a"));
    QVERIFY(writeBytes(path, "old"));
    WholeFile whole(path);
    QCOMPARE(whole.open(), QString());
    QVERIFY(!whole.isInPlace());
    QVERIFY(writeBytes(whole.workPath(), "new"));
    QCOMPARE(fileBytes(path), QByteArray("old"));
    QCOMPARE(whole.commit(), QString());
    QCOMPARE(fileBytes(path), QByteArray("new"));
    QCOMPARE(namesIn(folder), QStringList(QStringLiteral("a")));
}

void TestWholeFile::vanishesOtherwise()
{
    const QTemporaryDir folder;
    {
        WholeFile whole(folder.filePath(QStringLiteral("a")));
        QCOMPARE(whole.open(), QString());
        QCOMPARE(namesIn(folder).size(), 1);
    }
    QCOMPARE(namesIn(folder), QStringList());
}

void TestWholeFile::followsTheUmask()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a"));
    const mode_t old = ::umask(026);
    WholeFile whole(path);
    QCOMPARE(whole.open(), QString());
    QCOMPARE(whole.commit(), QString());
    ::umask(old);
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0640);
}

void TestWholeFile::writesDevicesInPlace()
{
    WholeFile whole(QStringLiteral("/dev/null"));
    QCOMPARE(whole.open(), QString());
    QVERIFY(whole.isInPlace());
    QCOMPARE(whole.workPath(), QStringLiteral("/dev/null"));
    QCOMPARE(whole.commit(), QString());
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
}

void TestWholeFile::takesLongNames()
{
    const QTemporaryDir folder;
    const QString name(255, QLatin1Char('x'));
    WholeFile whole(folder.filePath(name));
    QCOMPARE(whole.open(), QString());
    QCOMPARE(whole.commit(), QString());
    QCOMPARE(namesIn(folder), QStringList(name));
}

void TestWholeFile::tellsWhyNot()
{
    QCOMPARE(WholeFile(QStringLiteral("/tmp")).open(), QStringLiteral("is a folder"));
    QCOMPARE(WholeFile(QStringLiteral("/nowhere/a")).open(),
             QStringLiteral("No such file or directory"));
}

QTEST_APPLESS_MAIN(TestWholeFile)
#include "test_wholefile.moc"
