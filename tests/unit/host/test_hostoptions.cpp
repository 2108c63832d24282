// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostoptions.h"
#include "keypadprotocol.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

class TestHostOptions : public QObject
{
    Q_OBJECT

private slots:
    void defaults()
    {
        HostOptions options;
        QCOMPARE(read({}, options), QString());
        QVERIFY(!options.isText);
        QCOMPARE(options.screenPort, quint16(5900));
        QCOMPARE(options.keypadPath, Keypad::defaultSocketPath());
        QCOMPARE(options.userData, QStringLiteral("/mnt/user-data"));
        QCOMPARE(options.instrumentPort, quint16(30000));
        QCOMPARE(options.language, QString());
        QVERIFY(options.pluginFolder.startsWith(QLatin1Char('/')));
        QCOMPARE(options.translations, qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
    }

    void everything()
    {
        HostOptions options;
        QCOMPARE(read({QStringLiteral("--screen-port=0"), QStringLiteral("--keypad"),
                       QStringLiteral("/run/k"), QStringLiteral("--plugins"), QStringLiteral("/p"),
                       QStringLiteral("--user-data"), QStringLiteral("/u"),
                       QStringLiteral("--instrument-port"), QStringLiteral("65535"),
                       QStringLiteral("--language"), QStringLiteral("zh_CN"),
                       QStringLiteral("--translations"), QStringLiteral("/t")},
                      options),
                 QString());
        QCOMPARE(options.screenPort, quint16(0));
        QCOMPARE(options.keypadPath, QStringLiteral("/run/k"));
        QCOMPARE(options.pluginFolder, QStringLiteral("/p"));
        QCOMPARE(options.userData, QStringLiteral("/u"));
        QCOMPARE(options.instrumentPort, quint16(65535));
        QCOMPARE(options.language, QStringLiteral("zh_CN"));
        QCOMPARE(options.translations, QStringLiteral("/t"));
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QStringList& arguments, const char* error) {
            QTest::newRow(name) << arguments << QString::fromLatin1(error);
        };
        row("port", {QStringLiteral("--screen-port=x")}, "--screen-port x: not a port");
        row("large port", {QStringLiteral("--screen-port=65536")},
            "--screen-port 65536: not a port");
        row("negative port", {QStringLiteral("--screen-port=-1")}, "--screen-port -1: not a port");
        row("no instrument", {QStringLiteral("--instrument-port=0")},
            "--instrument-port 0: not a port");
        row("language", {QStringLiteral("--language=fr")},
            "--language fr: choose one of en, de, zh_CN, ja");
        row("no keypad", {QStringLiteral("--keypad=")}, "--keypad: no path");
        row("argument", {QStringLiteral("more")}, "unexpected argument more");
        row("option", {QStringLiteral("--unheard-of")}, "Unknown option 'unheard-of'.");
        row("value", {QStringLiteral("--plugins")}, "Missing value after '--plugins'.");
    }

    void errors()
    {
        QFETCH(QStringList, arguments);
        HostOptions options;
        QTEST(read(arguments, options), "error");
    }

    void texts()
    {
        HostOptions options;
        QCOMPARE(read({QStringLiteral("--version")}, options), QString());
        QVERIFY(options.isText);
        QCOMPARE(options.text, QStringLiteral("kvx-host 1.2\n"));
        QCOMPARE(read({QStringLiteral("--help")}, options), QString());
        for (const char* option : {"--screen-port", "--keypad", "--plugins", "--user-data",
                                   "--instrument-port", "--language", "--translations"})
            QVERIFY2(options.text.contains(QLatin1String(option)), option);
    }

    void manualNamesEveryOption()
    {
        HostOptions options;
        read({QStringLiteral("--help")}, options);
        QFile manual(qEnvironmentVariable("MPB_SOURCE_DIR") + QStringLiteral("/docs/kvx-host.1"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QString pages = QString::fromUtf8(manual.readAll());
        const QRegularExpression option(QStringLiteral("--([a-z-]+)"));
        auto matches = option.globalMatch(options.text);
        QVERIFY(matches.hasNext());
        while (matches.hasNext()) {
            const QString name = matches.next().captured(1);
            QVERIFY2(pages.contains(QStringLiteral(".It Fl -%1").arg(name)), qPrintable(name));
        }
    }

private:
    static QString read(const QStringList& arguments, HostOptions& options)
    {
        return readHostOptions(QStringList(QStringLiteral("kvx-host")) + arguments,
                               QStringLiteral("1.2"), options);
    }
};

QTEST_GUILESS_MAIN(TestHostOptions)
#include "test_hostoptions.moc"
