// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cpluginsfiles.h"

#include "logcapture.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject sampleObject()
{
    return {{QStringLiteral("zeta"), 1}, {QStringLiteral("alpha"), QStringLiteral("2.000u")}};
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

bool load(const QString& path, QJsonObject& object)
{
    return loadSetupFile(path.toUtf8().constData(), object);
}

bool save(const QString& path, const QJsonObject& object)
{
    return saveSetupFile(path.toUtf8().constData(), object);
}

} // namespace

class TestCPluginsFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void loadsObjects_data();
    void loadsObjects();
    void refusesAllElse_data();
    void refusesAllElse();
    void refusesMissingFile();
    void refusesFolder();
    void writesIndentedText();
    void truncatesLongerFile();
    void readsBackWhatItWrote_data();
    void readsBackWhatItWrote();
    void logsWhenFileCannotBeOpened_data();
    void logsWhenFileCannotBeOpened();
    void reportsFullDisk();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestCPluginsFiles::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

void TestCPluginsFiles::cleanup()
{
    m_folder.reset();
}

void TestCPluginsFiles::loadsObjects_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QJsonObject>("expected");

    const QString key = QStringLiteral("a");
    QTest::newRow("compact") << QByteArray("{\"a\":1}") << QJsonObject{{key, 1}};
    QTest::newRow("blanks around")
        << QByteArray(" \r\n\t{ \"a\" : 1 } \n") << QJsonObject{{key, 1}};
    QTest::newRow("member is null")
        << QByteArray("{\"a\":null}") << QJsonObject{{key, QJsonValue::Null}};
    QTest::newRow("empty member") << QByteArray("{\"a\":{}}") << QJsonObject{{key, QJsonObject()}};
    QTest::newRow("unknown members") << QByteArray("{\"\":[],\"a\":false}")
                                     << QJsonObject{{QString(), QJsonArray()}, {key, false}};
    QTest::newRow("last of equal names")
        << QByteArray("{\"a\":1,\"a\":2}") << QJsonObject{{key, 2}};
    QTest::newRow("beyond ASCII") << QByteArray("{\"a\":\"\xc3\xa4\"}")
                                  << QJsonObject{{key, QStringLiteral("\u00e4")}};
}

void TestCPluginsFiles::loadsObjects()
{
    QFETCH(QByteArray, content);
    QFETCH(QJsonObject, expected);
    writeFile(path(QStringLiteral("a.json")), content);

    QJsonObject object = sampleObject();
    const LogCapture log;
    QVERIFY(load(path(QStringLiteral("a.json")), object));
    QCOMPARE(object, expected);
    QCOMPARE(log.messages(), QStringList());
}

void TestCPluginsFiles::refusesAllElse_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \n");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("array") << QByteArray("[1, 2]");
    QTest::newRow("array of objects") << QByteArray("[{\"a\":1}]");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("text") << QByteArray("\"a\"");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("garbage") << QByteArray("\x00\xff\x01garbage", 10);
    QTest::newRow("cut off") << QByteArray("{\"a\":1,");
    QTest::newRow("two objects") << QByteArray("{\"a\":1}{\"b\":2}");
    QTest::newRow("trailing comma") << QByteArray("{\"a\":1,}");
    QTest::newRow("not UTF-8") << QByteArray("{\"a\":\"\xe4\xf6\"}");
    QTest::newRow("nested beyond reason") << QByteArray("{\"a\":") + QByteArray(100000, '[');
}

void TestCPluginsFiles::refusesAllElse()
{
    QFETCH(QByteArray, content);
    writeFile(path(QStringLiteral("a.json")), content);

    QJsonObject object = sampleObject();
    const LogCapture log;
    QVERIFY(!load(path(QStringLiteral("a.json")), object));
    QCOMPARE(object, sampleObject());
    QCOMPARE(log.messages(), QStringList());
}

void TestCPluginsFiles::refusesMissingFile()
{
    QJsonObject object = sampleObject();
    const LogCapture log;
    QVERIFY(!load(path(QStringLiteral("missing.json")), object));
    QCOMPARE(object, sampleObject());
    QCOMPARE(log.messages(), QStringList());
}

void TestCPluginsFiles::refusesFolder()
{
    QJsonObject object = sampleObject();
    const LogCapture log;
    QVERIFY(!load(m_folder->path(), object));
    QCOMPARE(object, sampleObject());
    QCOMPARE(log.messages(), QStringList());
}

void TestCPluginsFiles::writesIndentedText()
{
    const LogCapture log;
    QVERIFY(save(path(QStringLiteral("a.json")), sampleObject()));
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(readFile(path(QStringLiteral("a.json"))),
             QByteArray("{\n    \"alpha\": \"2.000u\",\n    \"zeta\": 1\n}\n"));
}

void TestCPluginsFiles::truncatesLongerFile()
{
    writeFile(path(QStringLiteral("a.json")), QByteArray(5000, 'x'));

    QVERIFY(save(path(QStringLiteral("a.json")), QJsonObject()));
    QCOMPARE(readFile(path(QStringLiteral("a.json"))), QByteArray("{\n}\n"));
}

void TestCPluginsFiles::readsBackWhatItWrote_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QJsonObject>("object");

    QJsonArray rows;
    for (int i = 0; i < 3000; ++i)
        rows.append(QJsonObject{{QStringLiteral("width"), QStringLiteral("2.000u")}});
    const QString key = QStringLiteral("width/gap");

    QTest::newRow("plain") << QStringLiteral("a.json") << sampleObject();
    QTest::newRow("name in UTF-8") << QStringLiteral("\u8109\u51b2 \u00b5s.json") << sampleObject();
    QTest::newRow("any extension") << QStringLiteral("a.mpwv") << sampleObject();
    QTest::newRow("more than one buffer") << QStringLiteral("a.json") << QJsonObject{{key, rows}};
    QTest::newRow("doubles") << QStringLiteral("a.json")
                             << QJsonObject{{QStringLiteral("value"), 0.1 + 0.2},
                                            {QStringLiteral("tiny"), 5e-324}};
}

void TestCPluginsFiles::readsBackWhatItWrote()
{
    QFETCH(QString, name);
    QFETCH(QJsonObject, object);

    QVERIFY(save(path(name), object));
    QJsonObject loaded;
    QVERIFY(load(path(name), loaded));
    QCOMPARE(loaded, object);
}

void TestCPluginsFiles::logsWhenFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("folder does not exist") << QStringLiteral("missing/a.json");
    QTest::newRow("name of a folder") << QStringLiteral(".");
}

void TestCPluginsFiles::logsWhenFileCannotBeOpened()
{
    QFETCH(QString, name);

    const LogCapture log;
    QVERIFY(!save(path(name), sampleObject()));
    QCOMPARE(log.messages(), QStringList{QStringLiteral("warning: Couldn't open save file.")});
}

void TestCPluginsFiles::reportsFullDisk()
{
    const QJsonObject large{{QStringLiteral("text"), QString(100000, QLatin1Char('x'))}};
    const LogCapture log;
    QVERIFY(!save(QStringLiteral("/dev/full"), large));
    QVERIFY(!save(QStringLiteral("/dev/full"), sampleObject()));
    QCOMPARE(log.messages(), QStringList());
}

QTEST_APPLESS_MAIN(TestCPluginsFiles)
#include "test_cpluginsfiles.moc"
