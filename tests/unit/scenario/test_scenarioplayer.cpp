// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "fakedesk.h"
#include "frontpanelkeys.h"
#include "scenarioplayer.h"
#include "transcript.h"

#include <QTemporaryDir>
#include <QtTest>

class TestScenarioPlayer : public QObject
{
    Q_OBJECT

private:
    // Plays lines at the desk and returns the report.
    QString play(const QByteArray& text, const QString& language = {})
    {
        Scenario scenario;
        scenario.fileName = "s";
        const QStringList mistakes = parseScenario(text, scenario);
        if (!mistakes.isEmpty())
            return mistakes.join('\n');
        CommandLog commands(m_folder->filePath("talk.txt"));
        m_strOut.clear();
        QTextStream out(&m_strOut);
        ScenarioPlayer player(*m_desk, commands, m_folders, out);
        const QString unready = player.begin(language);
        return unready.isEmpty() ? player.play(scenario) : unready;
    }

    void writeFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray readFile(const QString& name)
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desk = std::make_unique<FakeDesk>();
        m_desk->screen.language = "en";
        m_desk->image = QImage(80, 48, QImage::Format_RGB32);
        m_desk->image.fill(Qt::black);
        QVERIFY(QDir(m_folder->path()).mkdir("user"));
        QVERIFY(QDir(m_folder->path()).mkdir("out"));
        m_folders.translations = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
        m_folders.userData = m_folder->filePath("user");
        m_folders.output = m_folder->filePath("out");
        m_folders.pictures = m_folder->path();
        m_folders.approve = false;
    }

    void touches()
    {
        m_desk->show("Run", {10, 20, 30, 40});
        QCOMPARE(play("touch \"Run\""), QString());
        QCOMPARE(m_desk->done, QStringList({"touch 24,39", "let go 24,39"}));
    }

    void touchesAPlace()
    {
        QCOMPARE(play("touch 5,6"), QString());
        QCOMPARE(m_desk->done, QStringList({"touch 5,6", "let go 5,6"}));
    }

    void touchesByIdentifier_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* language : {"en", "de", "zh_CN", "ja"})
            QTest::newRow(language) << language;
    }

    void touchesByIdentifier()
    {
        QFETCH(QString, language);
        IdentifierTexts texts;
        QCOMPARE(texts.load(m_folders.translations, language), QString());
        m_desk->screen.language = language;
        m_desk->show(texts.text("STR_UTILITY_RUN"), {0, 0, 3, 3});
        QCOMPARE(play("touch {STR_UTILITY_RUN}"), QString());
        QCOMPARE(m_desk->done.first(), QString("touch 1,1"));
    }

    void waitsForTheText()
    {
        m_desk->beforeLook = [this](int look) {
            if (look == 4)
                m_desk->show("Run", {0, 0, 3, 3});
        };
        QCOMPARE(play("touch \"Run\""), QString());
        QVERIFY(m_desk->waited > 0);
    }

    void waitsWhileBusy()
    {
        m_desk->screen.busy = true;
        m_desk->beforeLook = [this](int look) { m_desk->screen.busy = look < 4; };
        QCOMPARE(play("key enter"), QString());
        QCOMPARE(m_desk->looks, 4);
        QCOMPARE(m_desk->done.size(), 1);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("touch \"None\"") << "\"None\" is not on the screen";
        QTest::newRow("touch \"Off\"") << "\"Off\" is disabled";
        QTest::newRow("touch \"Twice\"") << "2 times";
        QTest::newRow("expect text \"None\"") << "\"None\" is not on the screen";
        QTest::newRow("expect no text \"Off\"") << "\"Off\" is on the screen";
        QTest::newRow("expect enabled \"Off\"") << "\"Off\" is not enabled";
        QTest::newRow("expect focused \"Off\"") << "\"Off\" is not focused";
        QTest::newRow("expect checked \"Off\"") << "\"Off\" is not checked";
        QTest::newRow("expect enabled \"None\"") << "\"None\" is not on the screen";
        QTest::newRow("expect command \"*RST\"") << "\"*RST\" was not sent";
        QTest::newRow("expect file a.json") << "there is no";
        QTest::newRow("expect picture home") << "no approved picture";
        QTest::newRow("save a.json") << "there is no";
        QTest::newRow("plot channel1") << "no burst yet";
        QTest::newRow("language ja") << "speaks \"en\", not \"ja\"";
    }

    void failures()
    {
        QFETCH(QString, reason);
        m_desk->show("Off", {0, 0, 3, 3}, false);
        m_desk->noOutput = "no burst yet";
        m_desk->show("Twice", {0, 10, 3, 3});
        m_desk->show("Twice", {0, 20, 3, 3});
        const QByteArray line = QByteArray(QTest::currentDataTag()) + " within 0.01 s";
        const QString report = play("step \"A step\"\n" + line);
        QVERIFY2(report.startsWith("s:2: " + line + '\n'), qPrintable(report));
        QVERIFY2(report.contains(reason), qPrintable(report));
        QVERIFY(report.contains("step: A step"));
        QVERIFY(report.contains("\"Twice\" at 0,10,3x3"));
        QVERIFY(QFile::exists(m_folder->filePath("out/failure.png")));
        QCOMPARE(m_desk->done, QStringList());
    }

    void endsAtTheFirstFailure()
    {
        QVERIFY(!play("expect text \"None\" within 0.01 s\nturn 1").isEmpty());
        QCOMPARE(m_desk->done, QStringList());
    }

    void keysAndKnob()
    {
        QCOMPARE(play("turn -2\nkey home\nkey up 2 times\nnumber 2.5 u\ntype \"aé\""), QString());
        QStringList expected{"turn -2", QString("key %1").arg(QT_KEY_HOME)};
        expected += {QString("key %1").arg(Qt::Key_Up), QString("key %1").arg(Qt::Key_Up)};
        for (int code : {int(Qt::Key_2), int(Qt::Key_Period), int(Qt::Key_5), int(QT_KEY_MU)})
            expected.append(QString("key %1").arg(code));
        expected += {"type a", QString::fromUtf8("type é")};
        QCOMPARE(m_desk->done, expected);
    }

    void holds()
    {
        QCOMPARE(play("hold 1,2 for 0.5 s"), QString());
        QCOMPARE(m_desk->done, QStringList({"touch 1,2", "let go 1,2"}));
        QCOMPARE(m_desk->waited, 500);
    }

    void drags()
    {
        QCOMPARE(play("drag 0,0 to 80,40"), QString());
        QCOMPARE(m_desk->done.first(), QString("touch 0,0"));
        QVERIFY(m_desk->done.contains("touch 40,20"));
        QCOMPARE(m_desk->done.at(m_desk->done.size() - 2), QString("touch 80,40"));
        QCOMPARE(m_desk->done.last(), QString("let go 80,40"));
    }

    void stepsAreTold()
    {
        QCOMPARE(play("step \"First\"\nstep \"Then {STR_UTILITY_RUN}\""), QString());
        QCOMPARE(m_strOut, QString("First\nThen Run\n"));
    }

    void states()
    {
        m_desk->screen.items = {{"Run", {0, 0, 9, 9}, true, true, true, "button"},
                                {"Off", {0, 20, 9, 9}, false, false, false, "button"}};
        QCOMPARE(play("expect enabled \"Run\"\nexpect focused \"Run\"\nexpect checked \"Run\"\n"
                      "expect disabled \"Off\"\nexpect unchecked \"Off\"\n"
                      "expect text \"Off\" below \"Run\"\nexpect no text \"Run\" below \"Off\""),
                 QString());
    }

    void language()
    {
        m_desk->beforeLook = [this](int look) {
            if (look == 4) {
                m_desk->screen.language = "de";
                m_desk->show("Abbrechen", {0, 0, 9, 9});
            }
        };
        QCOMPARE(play("language de\ntouch {STR_ID_CANCEL}"), QString());
    }

    void languageThatNobodySpeaks() { QVERIFY(play("turn 1", "tlh").contains("tlh")); }

    void commands()
    {
        const QByteArray line = transcriptLine({1, 1, TranscriptEvent::Command, "OUTP1 ON \n"});
        writeFile("talk.txt", QByteArray(TranscriptTitle) + '\n' + line + '\n');
        QCOMPARE(play("expect command \"OUTP1 ON\"\nexpect no command \"OUTP1 ON\""), QString());
        QVERIFY(play("expect no command \"OUTP1 ...\"").contains("was sent"));
    }

    void pauses()
    {
        QCOMPARE(play("pause 0.5 s"), QString());
        QCOMPARE(m_desk->waited, 500);
    }

    void plots()
    {
        QCOMPARE(play("plot channel1"), QString());
        QCOMPARE(m_desk->done, QStringList("plot channel1.svg"));
    }

    void files()
    {
        writeFile("user/run.mpwv", "wave");
        QCOMPARE(play("expect file run.mpwv\nexpect no file other.mpwv\nsave run.mpwv as w.bin"),
                 QString());
        QCOMPARE(readFile("out/w.bin"), QByteArray("wave"));
        writeFile("user/run.mpwv", "second");
        QCOMPARE(play("save run.mpwv as w.bin"), QString());
        QCOMPARE(readFile("out/w.bin"), QByteArray("second"));
    }

    void pictures()
    {
        QCOMPARE(play("picture home"), QString());
        QCOMPARE(QImage(m_folder->filePath("out/home.png")).size(), m_desk->image.size());

        m_folders.approve = true;
        QCOMPARE(play("expect picture part 8,8,40x20"), QString());
        QCOMPARE(QImage(m_folder->filePath("part-en.png")).size(), QSize(40, 20));
        m_folders.approve = false;
        QCOMPARE(play("expect picture part 8,8,40x20"), QString());

        m_desk->image.fill(Qt::white);
        QVERIFY(play("expect picture part 8,8,40x20 within 0.01 s").contains("unlike"));
        QVERIFY(QFile::exists(m_folder->filePath("out/part-seen.png")));
        QVERIFY(QFile::exists(m_folder->filePath("out/part-difference.png")));
    }

    void troubleEndsIt()
    {
        m_desk->beforeLook = [this](int look) {
            if (look == 3)
                m_desk->lost = "the host is gone";
        };
        const QString report = play("expect text \"None\" within 600 s");
        QVERIFY2(report.contains("the host is gone"), qPrintable(report));
        QVERIFY(report.contains("could not be read"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeDesk> m_desk;
    ScenarioFolders m_folders;
    QString m_strOut;
};

QTEST_GUILESS_MAIN(TestScenarioPlayer)

#include "test_scenarioplayer.moc"
