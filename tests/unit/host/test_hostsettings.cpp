// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostsettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

class TestHostSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_strProblem.clear();
    }

    void areEmptyAtFirst()
    {
        QVERIFY(file().load(m_strProblem) == HostSettings());
        QVERIFY(m_strProblem.isEmpty());
    }

    void comeBack_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("plain") << "/mnt/user-data/setups";
        QTest::newRow("odd") << "/mnt/user-data/ä 漢字; [x]=%y\\\"#";
        QTest::newRow("none") << QString();
    }

    void comeBack()
    {
        QFETCH(QString, folder);
        const HostSettings settings{QStringLiteral("ja"), folder, QStringLiteral("libTrial.so")};
        QCOMPARE(file().save(settings), QString());
        QVERIFY(file().load(m_strProblem) == settings);
        QVERIFY(m_strProblem.isEmpty());
    }

    void belongToTheUserAlone()
    {
        QCOMPARE(file().save({}), QString());
        const QFileInfo folder(m_folder->filePath(QStringLiteral(".host")));
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                            QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY((folder.permissions() & others) == 0);
        QCOMPARE(QDir(folder.filePath()).entryList(QDir::Files),
                 QStringList(QStringLiteral("settings.ini")));
    }

    void nonsenseIsToldAndNotUsed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("rubbish") << QByteArray("\x7f\x45\x4c\x46 rubbish\nmore of it\n");
        QTest::newRow("language") << QByteArray("[General]\nlanguage=tlh\nfolder=/x\n");
        QTest::newRow("plug-in elsewhere") << QByteArray("[General]\nplugin=../../evil.so\n");
    }

    void nonsenseIsToldAndNotUsed()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral(".host")));
        write(bytes);
        QVERIFY(file().load(m_strProblem) == HostSettings());
        QVERIFY2(m_strProblem.startsWith(file().path()), qPrintable(m_strProblem));
        // The next settings are kept all the same.
        QCOMPARE(file().save({QStringLiteral("de"), QString(), QString()}), QString());
        QCOMPARE(file().load(m_strProblem).language, QStringLiteral("de"));
    }

    void linkInPlaceOfTheFolderIsRefused()
    {
        const QTemporaryDir elsewhere;
        QVERIFY(QFile::link(elsewhere.path(), m_folder->filePath(QStringLiteral(".host"))));
        QVERIFY(file().save({}).contains(QLatin1String("link")));
        QVERIFY(QDir(elsewhere.path()).isEmpty());
    }

    void whatCannotBeWrittenIsTold()
    {
        const HostSettingsFile nowhere(m_folder->filePath(QStringLiteral("missing/folder")));
        QVERIFY(!nowhere.save({}).isEmpty());
    }

private:
    HostSettingsFile file() const { return HostSettingsFile(m_folder->path()); }

    void write(const QByteArray& bytes) const
    {
        QFile target(file().path());
        QVERIFY(target.open(QIODevice::WriteOnly));
        QCOMPARE(target.write(bytes), qint64(bytes.size()));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strProblem;
};

QTEST_GUILESS_MAIN(TestHostSettings)
#include "test_hostsettings.moc"
