// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostfolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

class TestHostFolders : public QObject
{
    Q_OBJECT

private slots:
    void makesAFolderForTheUserAlone()
    {
        const QTemporaryDir base;
        const QString folder = base.filePath(QStringLiteral("user-data"));
        QCOMPARE(HostFolders::make(folder), QString());
        QCOMPARE(int(QFileInfo(folder).permissions() & 0x77), 0);
        QCOMPARE(HostFolders::make(folder), QString());
    }

    void refusesOtherThings()
    {
        const QTemporaryDir base;
        const QString file = base.filePath(QStringLiteral("file"));
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        QCOMPARE(HostFolders::make(file), file + QStringLiteral(": not a folder"));
        const QString link = base.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(QStringLiteral("/nowhere"), link));
        QCOMPARE(HostFolders::make(link), link + QStringLiteral(": not a folder"));
        const QString deep = base.filePath(QStringLiteral("a/b"));
        QCOMPARE(HostFolders::make(deep), deep + QStringLiteral(": No such file or directory"));
    }

    void tellsWhoElseCanWriteUserData_data()
    {
        QTest::addColumn<int>("others");
        QTest::addColumn<bool>("isObjected");
        QTest::newRow("nobody") << 0 << false;
        QTest::newRow("readers") << int(QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                        QFile::ExeOther)
                                 << false;
        QTest::newRow("group") << int(QFile::WriteGroup) << true;
        QTest::newRow("all") << int(QFile::WriteOther) << true;
    }

    void tellsWhoElseCanWriteUserData()
    {
        QFETCH(int, others);
        QFETCH(bool, isObjected);
        const QTemporaryDir base;
        QVERIFY(QFile::setPermissions(base.path(), QFile::Permissions(others) | QFile::ReadOwner |
                                                       QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(HostFolders::make(base.path()), QString());
        QCOMPARE(HostFolders::userDataObjection(base.path()),
                 isObjected ? QStringLiteral("others can write to the folder ") + base.path()
                            : QString());
    }

    void keypadsFolderIsTheUsersOwn()
    {
        const QTemporaryDir base;
        QCOMPARE(HostFolders::keypadObjection(base.path()), QString());
        QVERIFY(QFile::setPermissions(base.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                       QFile::ExeOwner | QFile::WriteGroup));
        QVERIFY(HostFolders::keypadObjection(base.path()).contains(QLatin1String("others")));
        QVERIFY(QFile::setPermissions(base.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                       QFile::ExeOwner | QFile::WriteOther));
        QVERIFY(HostFolders::keypadObjection(base.path()).contains(QLatin1String("others")));
        QVERIFY(HostFolders::keypadObjection(QStringLiteral("/nowhere"))
                    .contains(QLatin1String("not a folder")));
    }

    void findsWhatIsThere()
    {
        const QTemporaryDir base;
        QVERIFY(QDir(base.path()).mkpath(QStringLiteral("bin")));
        const QString programs = base.filePath(QStringLiteral("bin"));
        QCOMPARE(HostFolders::plugins(programs), base.filePath(QStringLiteral("lib")));
        const QString installed = QDir::cleanPath(programs + QLatin1Char('/') +
                                                  QStringLiteral(MPB_PLUGINS_FROM_PROGRAMS));
        QVERIFY(QDir().mkpath(installed));
        QCOMPARE(HostFolders::plugins(programs), installed);
    }

    void translationsAreNamedByTheEnvironment()
    {
        QCOMPARE(HostFolders::translations(QStringLiteral("/programs")),
                 qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
        const QByteArray named = qgetenv("MPB_TRANSLATIONS_DIR");
        qunsetenv("MPB_TRANSLATIONS_DIR");
        const QTemporaryDir base;
        const QString share =
            base.filePath(QStringLiteral("share/multi-pulse-builder/translations"));
        QVERIFY(QDir().mkpath(share));
        QCOMPARE(HostFolders::translations(base.filePath(QStringLiteral("bin"))), share);
        qputenv("MPB_TRANSLATIONS_DIR", named);
    }
};

QTEST_GUILESS_MAIN(TestHostFolders)
#include "test_hostfolders.moc"
