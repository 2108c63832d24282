// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadprotocol.h"
#include "scenariokeys.h"
#include "scenariooptions.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

class TestScenarioOptions : public QObject
{
    Q_OBJECT

private:
    static ScenarioOptions parse(const QStringList& arguments)
    {
        return parseScenarioOptions(QStringList("kvx-scenario") + arguments);
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit()); }

    void defaults()
    {
        const ScenarioOptions options = parse({"dir/a.scenario"});
        QCOMPARE(options.task, ScenarioOptions::Play);
        QCOMPARE(options.files, QStringList({"dir/a.scenario"}));
        QCOMPARE(options.screenPort, quint16(5900));
        QCOMPARE(options.keypad, Keypad::defaultSocketPath());
        QCOMPARE(options.transcript, QString());
        QCOMPARE(options.language, QString());
        QCOMPARE(options.folders.userData, QString("/mnt/user-data"));
        QCOMPARE(options.folders.output, QDir::currentPath());
        QCOMPARE(options.folders.pictures, QString("dir/pictures"));
        QCOMPARE(options.folders.translations, qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
        QVERIFY(!options.folders.approve);
    }

    void everything()
    {
        const ScenarioOptions options = parse({"--screen-port",
                                               "5901",
                                               "--keypad",
                                               "k",
                                               "--transcript",
                                               "t",
                                               "--user-data",
                                               "u",
                                               "--language",
                                               "ja",
                                               "--translations",
                                               "q",
                                               "--output",
                                               "o",
                                               "--pictures",
                                               "p",
                                               "--approve",
                                               "--check",
                                               "a",
                                               "-"});
        QCOMPARE(options.task, ScenarioOptions::Check);
        QCOMPARE(options.files, QStringList({"a", "-"}));
        QCOMPARE(options.screenPort, quint16(5901));
        QCOMPARE(options.keypad, QString("k"));
        QCOMPARE(options.transcript, QString("t"));
        QCOMPARE(options.language, QString("ja"));
        QCOMPARE(options.folders.userData, QString("u"));
        QCOMPARE(options.folders.translations, QString("q"));
        QCOMPARE(options.folders.output, QString("o"));
        QCOMPARE(options.folders.pictures, QString("p"));
        QVERIFY(options.folders.approve);
    }

    void refuses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no file") << QStringList();
        QTest::newRow("unknown option") << QStringList{"--nonsense", "a"};
        QTest::newRow("no number") << QStringList{"--screen-port", "x", "a"};
        QTest::newRow("port 0") << QStringList{"--screen-port", "0", "a"};
        QTest::newRow("no instrument") << QStringList{"--instrument-port", "0", "a"};
        QTest::newRow("too large") << QStringList{"--screen-port", "65536", "a"};
        QTest::newRow("no value") << QStringList{"a", "--output"};
    }

    void refuses()
    {
        QFETCH(QStringList, arguments);
        const ScenarioOptions options = parse(arguments);
        QCOMPARE(options.task, ScenarioOptions::Refuse);
        QVERIFY(!options.text.isEmpty());
    }

    void tells()
    {
        QVERIFY(parse({"--help"}).text.contains("--approve"));
        QVERIFY(parse({"--version"}).text.startsWith("kvx-scenario "));
        QCOMPARE(parse({"--help"}).task, ScenarioOptions::Tell);
    }

    void manualPageNamesEveryOptionAndKey()
    {
        QFile page(qEnvironmentVariable("MPB_SOURCE_DIR") + "/docs/kvx-scenario.1");
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString manual = QString::fromUtf8(page.readAll());
        const QString help = parse({"--help"}).text;
        QRegularExpressionMatchIterator options =
            QRegularExpression(" --([a-z-]+)").globalMatch(help);
        int count = 0;
        while (options.hasNext()) {
            const QString option = options.next().captured(1);
            if (option == "help-all")
                continue;
            ++count;
            QVERIFY2(manual.contains(".It Fl -" + option), qPrintable(option));
        }
        QVERIFY(count >= 12);
        const QStringList keys = frontKeyNames();
        for (const QString& key : keys) {
            if (key.size() > 1)
                QVERIFY2(manual.contains(QRegularExpression("\\b" + key + "\\b")), qPrintable(key));
        }
    }

private:
    QTemporaryDir m_runtime;
};

QTEST_GUILESS_MAIN(TestScenarioOptions)

#include "test_scenariooptions.moc"
