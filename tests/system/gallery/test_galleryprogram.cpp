// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// The gallery as a program: its options, exit codes and texts, and a short soak.
class TestGalleryProgram : public QObject
{
    Q_OBJECT

private:
    struct Run
    {
        int exitCode;
        QString out;
        QString err;
    };

    static Run run(const QStringList& arguments)
    {
        QProcess program;
        program.start(QString::fromLocal8Bit(qgetenv("MPB_BIN_DIR")) +
                          QStringLiteral("/toolkit-gallery"),
                      arguments);
        if (!program.waitForFinished(-1) || program.exitStatus() != QProcess::NormalExit)
            return {-1, {}, program.errorString()};
        return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
                QString::fromUtf8(program.readAllStandardError())};
    }

private Q_SLOTS:
    void helpNamesEveryOption()
    {
        const Run result = run({QStringLiteral("--help")});
        QCOMPARE(result.exitCode, 0);
        for (const char* option : {"--page", "--language", "--render", "--soak", "--seed", "--log"})
            QVERIFY2(result.out.contains(QLatin1String(option)), option);
    }

    void refusesAWrongCommandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");
        QTest::newRow("page") << QStringList{QStringLiteral("--page"), QStringLiteral("x")}
                              << QStringLiteral("there is no page \"x\"");
        QTest::newRow("language") << QStringList{QStringLiteral("--language"), QStringLiteral("fr")}
                                  << QStringLiteral("there is no language \"fr\"");
        QTest::newRow("events") << QStringList{QStringLiteral("--soak"), QStringLiteral("many")}
                                << QStringLiteral("--soak and --seed want whole numbers");
        QTest::newRow("negative") << QStringList{QStringLiteral("--soak"), QStringLiteral("-1")}
                                  << QStringLiteral("--soak and --seed want whole numbers");
        QTest::newRow("seed") << QStringList{QStringLiteral("--seed"), QStringLiteral("1.5")}
                              << QStringLiteral("--soak and --seed want whole numbers");
        QTest::newRow("argument") << QStringList{QStringLiteral("file")}
                                  << QStringLiteral("unexpected \"file\"");
    }

    void refusesAWrongCommandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, reason);
        const Run result = run(arguments);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.err, QStringLiteral("toolkit-gallery: ") + reason + QLatin1Char('\n'));
        QCOMPARE(result.out, QString());
    }

    void rendersOnePageInOneLanguage()
    {
        const QTemporaryDir folder;
        const Run result =
            run({QStringLiteral("--render"), folder.path(), QStringLiteral("--page"),
                 QStringLiteral("units"), QStringLiteral("--language"), QStringLiteral("ja")});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList(QStringLiteral("units-ja.png")));
    }

    void saysWhereItCannotWrite()
    {
        const Run result =
            run({QStringLiteral("--render"), QStringLiteral("/proc/no-such-folder")});
        QCOMPARE(result.exitCode, 1);
        QVERIFY(result.err.contains(
            QStringLiteral("toolkit-gallery: /proc/no-such-folder: cannot be made")));
    }

    void soakEndsWithoutAFault()
    {
        const Run result = run({QStringLiteral("--soak"), QStringLiteral("20000"),
                                QStringLiteral("--seed"), QStringLiteral("7")});
        QVERIFY2(result.exitCode == 0, qPrintable(result.out));
        const QRegularExpression report(
            QStringLiteral("^20000 events with seed 7: (\\d+) changes, (\\d+) values out of range, "
                           "no fault\n$"));
        const QRegularExpressionMatch match = report.match(result.out);
        QVERIFY2(match.hasMatch(), qPrintable(result.out));
        // A monkey that hits nothing finds nothing.
        QVERIFY(match.captured(1).toInt() > 400);
        QVERIFY(match.captured(2).toInt() > 40);
    }

    void theSameSeedGivesTheSameEvents()
    {
        const QStringList arguments = {QStringLiteral("--soak"), QStringLiteral("2000"),
                                       QStringLiteral("--seed"), QStringLiteral("3")};
        const Run first = run(arguments);
        QCOMPARE(first.exitCode, 0);
        QCOMPARE(run(arguments).out, first.out);
    }
};

QTEST_GUILESS_MAIN(TestGalleryProgram)
#include "test_galleryprogram.moc"
