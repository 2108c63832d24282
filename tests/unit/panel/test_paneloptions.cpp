// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "paneloptions.h"

#include <QtTest>

class TestPanelOptions : public QObject
{
    Q_OBJECT

private slots:
    void usual();
    void given();
    void refused_data();
    void refused();
    void texts();
};

void TestPanelOptions::usual()
{
    QTemporaryDir folder;
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    PanelOptions options;
    QCOMPARE(readPanelOptions({QStringLiteral("kvx-panel")}, options), QString());
    QCOMPARE(options.screenPort, quint16(5900));
    QCOMPARE(options.instrumentPort, quint16(30000));
    QCOMPARE(options.keypadPath, folder.filePath(QStringLiteral("kvx-keypad")));
    QVERIFY(options.language.isEmpty());
    QVERIFY(options.keepsSettings);
    QVERIFY(options.text.isEmpty());
}

void TestPanelOptions::given()
{
    PanelOptions options;
    const QString line = QStringLiteral("kvx-panel --screen-port 5901 --keypad run/keypad "
                                        "--instrument-port 65535 --language zh_CN --translations "
                                        "texts --no-settings");
    QCOMPARE(readPanelOptions(line.split(QLatin1Char(' ')), options), QString());
    QCOMPARE(options.screenPort, quint16(5901));
    QCOMPARE(options.instrumentPort, quint16(65535));
    QCOMPARE(options.keypadPath, QStringLiteral("run/keypad"));
    QCOMPARE(options.language, QStringLiteral("zh_CN"));
    QCOMPARE(options.translations, QStringLiteral("texts"));
    QVERIFY(!options.keepsSettings);
}

void TestPanelOptions::refused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("word");
    const auto row = [](const char* arguments, const char* word) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(word);
    };
    row("--screen-port 0", "--screen-port 0");
    row("--screen-port 65536", "65536");
    row("--screen-port x", "--screen-port x");
    row("--instrument-port -1", "--instrument-port");
    row("--language fr", "--language fr");
    row("--language=", "--language");
    row("--keypad=", "--keypad");
    row("--nonsense", "nonsense");
    row("somewhere", "somewhere");
}

void TestPanelOptions::refused()
{
    QFETCH(QString, arguments);
    QFETCH(QString, word);
    PanelOptions options;
    const QString reason = readPanelOptions(
        QStringList(QStringLiteral("kvx-panel")) + arguments.split(QLatin1Char(' ')), options);
    QVERIFY2(reason.contains(word), qPrintable(reason));
}

void TestPanelOptions::texts()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("9.8"));
    PanelOptions options;
    QCOMPARE(readPanelOptions({QStringLiteral("kvx-panel"), QStringLiteral("--version")}, options),
             QString());
    QCOMPARE(options.text, QStringLiteral("kvx-panel 9.8\n"));
    QCOMPARE(readPanelOptions({QStringLiteral("kvx-panel"), QStringLiteral("--help")}, options),
             QString());
    for (const char* const option : {"--screen-port", "--keypad", "--instrument-port", "--language",
                                     "--translations", "--no-settings"})
        QVERIFY(options.text.contains(QLatin1String(option)));
}

QTEST_GUILESS_MAIN(TestPanelOptions)
#include "test_paneloptions.moc"
