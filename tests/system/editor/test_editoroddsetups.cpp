// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setups.h"

#include "waveformreader.h"

using namespace appPlugins;
using namespace Setups;

class TestEditorOddSetups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetupFiles::emptyFolder(); }

    void survives_data();
    void survives();
    void survivesAFileOfFiftyMegabytes();
    void opensTenThousandRows();
};

void TestEditorOddSetups::survives_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* tag, const char* member, const char* inner,
                        const QJsonValue& value) {
        QTest::newRow(tag) << SetupFiles::bytesOf(changed(newPulses(), member, inner, value));
    };
    for (const char* const member : {"voltage", "pulse numbers", "trigger delay", "trigger timer",
                                     "trigger source", "width/gap", "load impedance"}) {
        row(member, member, "", QJsonArray({QJsonArray(), QJsonObject(), 5}));
        QJsonObject less = newPulses();
        less.remove(key(member));
        QTest::newRow(qPrintable(QStringLiteral("no ") + key(member))) << SetupFiles::bytesOf(less);
    }
    for (const double value : {1e308, -1e308, 1e-308, 4294967296.0, -0.0}) {
        const QByteArray tag = QByteArray::number(value);
        row(("amplitude " + tag).constData(), "voltage", "amplitude", value);
        row(("offset " + tag).constData(), "voltage", "offset", value);
        row(("delay " + tag).constData(), "trigger delay", "value", value);
        row(("timer " + tag).constData(), "trigger timer", "value", value);
        row(("count " + tag).constData(), "pulse numbers", "value", value);
        row(("load " + tag).constData(), "load impedance", "", value);
    }
    row("texts of odd numbers", "width/gap", "",
        QJsonArray({Setups::row("nan", "inf"), Setups::row("1e308", "1e308G"),
                    Setups::row("-1e308", "-5"), Setups::row("", "u"),
                    Setups::row("1e-320", "0x10")}));
    row("long texts", "width/gap", "",
        QJsonArray({QJsonObject{{key("width"), QString(1000000, QLatin1Char('9'))},
                                {key("gap"), QString(1000000, QLatin1Char('u'))}}}));
    QTest::newRow("pulses of another kind") << QByteArray("{\"multiple pulses\": [1, 2, 3]}");
    QTest::newRow("number beyond a double")
        << QByteArray("{\"multiple pulses\": {\"voltage\": {\"amplitude\": 1e999}}}");
    QTest::newRow("member twice") << QByteArray(
        "{\"multiple pulses\": {\"trigger slope\": 1, \"trigger slope\": 0}}");
    QTest::newRow("broken text") << QByteArray("{\"multiple pulses\": {\"width/gap\": [{\"width\": "
                                               "\"\xff\\ud800\"}]}}");
    QTest::newRow("nested deep") << "{\"multiple pulses\": {\"width/gap\": " +
                                        QByteArray(900, '[') + QByteArray(900, ']') + "}}";
}

void TestEditorOddSetups::survives()
{
    QFETCH(QByteArray, bytes);
    inEditor([&](const EditorHost& host) {
        SetupFiles::openBytes(host, bytes);
        for (RealCombComponent* component :
             {static_cast<RealCombComponent*>(host.count()), host.highLevel(), host.lowLevel(),
              host.delay(), host.timer()})
            QCOMPARE(component->checkInput(component->get()), RealCombComponent::VALUE_OK);

        SetupFiles::saveAs(host, SetupFiles::Folder + QStringLiteral("a.json"));
        WaveformFile file;
        QCOMPARE(readWaveform(SetupFiles::Folder + QStringLiteral("a.mpwv"), file), QString());
        const QJsonObject saved =
            SetupFiles::pulsesOf(SetupFiles::read(SetupFiles::Folder + QStringLiteral("a.json")));
        QCOMPARE(saved.keys(), newPulses().keys());
        // Levels without bounds bound those of the next setup, and no more than that.
        SetupFiles::openPulses(host, newPulses());
        SetupFiles::openPulses(host, newPulses());
        QCOMPARE(SetupFiles::shown(host), newPulses());
    });
}

void TestEditorOddSetups::survivesAFileOfFiftyMegabytes()
{
    const int size = 50 * 1024 * 1024;
    inEditor([&](const EditorHost& host) {
        SetupFiles::openBytes(host, SetupFiles::bytesOf(changed(newPulses(), "note", "",
                                                                QString(size, QLatin1Char('x')))));
        QCOMPARE(SetupFiles::shown(host), newPulses());
        QCOMPARE(EditorHost::record().warnings, QStringList());
        SetupFiles::openBytes(host, QByteArray(size, '['));
        QCOMPARE(EditorHost::record().warnings,
                 QStringList(QStringLiteral("DBERR_STR_ID_ILLEGALFILEFORMAT")));
    });
}

void TestEditorOddSetups::opensTenThousandRows()
{
    const int count = 10000;
    const QJsonObject pulses = changed(newPulses(), "width/gap", "", rows(count));
    const QString path = SetupFiles::Folder + QStringLiteral("opened");
    QVERIFY(SetupFiles::write(path, SetupFiles::bytesOf(pulses)));
    inEditor([&](const EditorHost& host) {
        QBENCHMARK_ONCE
        {
            SetupFiles::open(host, path);
        }
        QCOMPARE(host.table()->model()->rowCount(), count);
        QCOMPARE(SetupFiles::shown(host), pulses);
    });
}

QTEST_MAIN(TestEditorOddSetups)
#include "test_editoroddsetups.moc"
