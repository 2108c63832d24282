// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setups.h"
#include "testtranslator.h"

#include "waveformreader.h"

#include <QDialog>

using namespace appPlugins;
using namespace Setups;

namespace {

// Callbacks that name a file whatever they answer.
int s_nBrowserAnswer = 0;

int nameAFileToOpen(QWidget*, QStringList, QString& path, QString, const char*, int)
{
    path = SetupFiles::Folder + QStringLiteral("there");
    return s_nBrowserAnswer;
}

int nameAFileToSave(QWidget*, QStringList, QString& path, QString, const char*, int, QString)
{
    path = SetupFiles::Folder + QStringLiteral("a.json");
    return s_nBrowserAnswer;
}

} // namespace

class TestEditorSetups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetupFiles::emptyFolder(); }

    void opensThroughTheHostsBrowser();
    void savesThroughTheHostsBrowser();
    void doesNothingWithoutAChoice_data();
    void doesNothingWithoutAChoice();

    void refusesAnIllegalFile_data();
    void refusesAnIllegalFile();
    void refusesInTheUsersLanguage();
    void appliesAnObjectOfStrangers();

    void savesTheSetupWhole();
    void savesUnder_data();
    void savesUnder();
    void savesTheWaveformOfTheSetup_data();
    void savesTheWaveformOfTheSetup();
    void tellsTheLogOfASave();
    void overwritesALongerFile();
};

void TestEditorSetups::opensThroughTheHostsBrowser()
{
    inEditor([](const EditorHost& host) {
        FrontPanel::tap(host.button(EditorHost::Open));
        QCOMPARE(EditorHost::record().browses.size(), 1);
        const HostRecord::Browse call = EditorHost::record().browses.first();
        QVERIFY(!call.save);
        QCOMPARE(call.parent, host.editor());
        QCOMPARE(call.filters, QStringList(QStringLiteral(".json")));
        QCOMPARE(call.pathBefore, QString());
        QCOMPARE(call.start, QStringLiteral("/mnt/user-data/"));
        QCOMPARE(call.titleId, QByteArray("STR_ID_STAT_LOAD"));
        QCOMPARE(call.flag, 17);
    });
}

void TestEditorSetups::savesThroughTheHostsBrowser()
{
    inEditor([](const EditorHost& host) {
        FrontPanel::tap(host.button(EditorHost::SaveAs));
        QCOMPARE(EditorHost::record().browses.size(), 1);
        const HostRecord::Browse call = EditorHost::record().browses.first();
        QVERIFY(call.save);
        QCOMPARE(call.parent, host.editor());
        QCOMPARE(call.filters, QStringList({QStringLiteral(".json"), QStringLiteral(".mpwv")}));
        QCOMPARE(call.pathBefore, QString());
        QCOMPARE(call.start, QStringLiteral("/mnt/user-data/"));
        QCOMPARE(call.titleId, QByteArray("STR_ID_SAVE"));
        QCOMPARE(call.flag, 17);
        QCOMPARE(call.name, QStringLiteral("double_pulse"));
    });
}

void TestEditorSetups::doesNothingWithoutAChoice_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("cancelled") << 0;
    QTest::newRow("two") << 2;
    QTest::newRow("negative") << -1;
}

void TestEditorSetups::doesNothingWithoutAChoice()
{
    QFETCH(int, answer);
    s_nBrowserAnswer = answer;
    inEditor([](const EditorHost& host) {
        const auto before = everything(host);
        QVERIFY(SetupFiles::write(SetupFiles::Folder + QStringLiteral("there"),
                                  SetupFiles::bytesOf(withLevels(newPulses(), 1, 0))));
        host.plugin()->initCallbacks(
            {nameAFileToOpen, nameAFileToSave, nullptr, nullptr, nullptr, nullptr});
        FrontPanel::tap(host.button(EditorHost::Open));
        FrontPanel::tap(host.button(EditorHost::SaveAs));
        QCOMPARE(everything(host), before);
        QCOMPARE(SetupFiles::inFolder(), QStringList(QStringLiteral("there")));
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorSetups::refusesAnIllegalFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \n");
    QTest::newRow("text") << QByteArray("multiple pulses");
    QTest::newRow("waveform file") << QByteArray("QRNKVX60K\0\0\0\0\0\0\0", 16);
    QTest::newRow("array") << QByteArray("[{\"multiple pulses\": {}}]");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("number") << QByteArray("5");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("cut off") << QByteArray(NewSetup, sizeof(NewSetup) / 2);
    QTest::newRow("more behind it") << QByteArray(NewSetup) + "{}";
    QTest::newRow("not a number") << QByteArray("{\"multiple pulses\": {\"trigger slope\": NaN}}");
    QTest::newRow("nested too deep")
        << "{\"multiple pulses\": " + QByteArray(100000, '[') + QByteArray(100000, ']') + "}";
}

void TestEditorSetups::refusesAnIllegalFile()
{
    QFETCH(QByteArray, bytes);
    inEditor([&](const EditorHost& host) {
        SetupFiles::openPulses(host, withLevels(newPulses(), 1, 0.2));
        const auto before = everything(host);
        const QString path = SetupFiles::Folder + QStringLiteral("a.json");
        QVERIFY(SetupFiles::write(path, bytes));
        SetupFiles::open(host, path);
        QCOMPARE(EditorHost::record().warnings,
                 QStringList(QStringLiteral("DBERR_STR_ID_ILLEGALFILEFORMAT")));
        QCOMPARE(everything(host), before);
        QCOMPARE(SetupFiles::read(path), bytes);
    });
}

void TestEditorSetups::refusesInTheUsersLanguage()
{
    const TestTranslator language(QStringLiteral("> "));
    inEditor([](const EditorHost& host) {
        const QStringList message(QStringLiteral("> DBERR_STR_ID_ILLEGALFILEFORMAT"));
        SetupFiles::open(host, SetupFiles::Folder + QStringLiteral("missing.json"));
        QCOMPARE(EditorHost::record().warnings, message);
        SetupFiles::open(host, SetupFiles::Folder);
        QCOMPARE(EditorHost::record().warnings, message + message);
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(EditorHost::record().questions,
                 QStringList(QStringLiteral("> STR_ID_SUREQ_DEFAULT")));
    });
}

void TestEditorSetups::appliesAnObjectOfStrangers()
{
    inEditor([](const EditorHost& host) {
        SetupFiles::openPulses(host, changed(newPulses(), "trigger source", "", 2));
        SetupFiles::openBytes(host, "{\"other plug-in\": 1}");
        QCOMPARE(EditorHost::record().warnings,
                 QStringList({outOfRange("0", "2", "30"), outOfRange("0", "1e-06", "0.00015"),
                              outOfRange("0", "2e-06", "500")}));
        const QMap<QString, QString> zeros = {
            {key("count"), key("2")},     {key("levels"), key("0.0000 0.0000")},
            {key("delay"), key("1e-06")}, {key("source"), key("0")},
            {key("page"), key("0")},      {key("slope"), key("0")},
            {key("timer"), key("2e-06")}, {key("load"), key("0")},
            {key("table"), QString()}};
        QCOMPARE(everything(host), zeros);
        QCOMPARE(SetupFiles::shown(host).value(key("width/gap")), QJsonValue(QJsonArray()));
    });
}

void TestEditorSetups::savesTheSetupWhole()
{
    inEditor([](const EditorHost& host) {
        const QString path = SetupFiles::Folder + QStringLiteral("a.json");
        SetupFiles::saveAs(host, path);
        QCOMPARE(SetupFiles::read(path), QByteArray(NewSetup));
    });
}

void TestEditorSetups::savesUnder_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("written");

    const QStringList none;
    const auto plain = [&](const char* tag, const char* name, const QStringList& written) {
        QTest::newRow(tag) << none << QString::fromUtf8(name) << written;
    };
    plain("setup", "a.json", {key("a.json"), key("a.mpwv")});
    plain("capitals", "A.JSON", {key("A.JSON")});
    plain("one capital", "a.Json", {key("a.Json")});
    plain("twice", "x.json.json", {key("x.json.json"), key("x.mpwv.mpwv")});
    plain("ending alone", ".json", {key(".json"), key(".mpwv")});
    plain("waveform ending", "a.mpwv", {key("a.mpwv")});
    plain("no ending", "double_pulse", {key("double_pulse")});
    plain("ending inside", "a.json.bak", {key("a.json.bak")});
    plain("no dot", "ajson", {key("ajson")});
    plain("blanks", "a b.json", {key("a b.json"), key("a b.mpwv")});
    plain("umlauts", "\u00dcbergr\u00f6\u00dfe \u8109\u51b2.json",
          {QStringLiteral("\u00dcbergr\u00f6\u00dfe \u8109\u51b2.json"),
           QStringLiteral("\u00dcbergr\u00f6\u00dfe \u8109\u51b2.mpwv")});
    plain("missing folder", "missing/a.json", {});
    QTest::newRow("folder is replaced too")
        << QStringList({key("a.json"), key("a.mpwv")}) << QStringLiteral("a.json/b.json")
        << QStringList(
               {key("a.json/"), key("a.json/b.json"), key("a.mpwv/"), key("a.mpwv/b.mpwv")});
    QTest::newRow("replaced folder is missing")
        << QStringList(key("a.json")) << QStringLiteral("a.json/b.json")
        << QStringList({key("a.json/"), key("a.json/b.json")});
    QTest::newRow("setup cannot be written")
        << QStringList(key("a.json")) << QStringLiteral("a.json")
        << QStringList({key("a.json/"), key("a.mpwv")});
    QTest::newRow("waveform cannot be written")
        << QStringList(key("a.mpwv")) << QStringLiteral("a.json")
        << QStringList({key("a.json"), key("a.mpwv/")});
}

void TestEditorSetups::savesUnder()
{
    QFETCH(QStringList, folders);
    QFETCH(QString, name);
    QFETCH(QStringList, written);
    for (const QString& folder : folders)
        QVERIFY(QDir(SetupFiles::Folder).mkdir(folder));
    inEditor([&](const EditorHost& host) {
        SetupFiles::saveAs(host, SetupFiles::Folder + name);
        QCOMPARE(SetupFiles::inFolder(), written);
        const bool saved = written.contains(name);
        QCOMPARE(SetupFiles::read(SetupFiles::Folder + name), QByteArray(saved ? NewSetup : ""));
        QCOMPARE(EditorHost::record().warnings, QStringList());
        QCOMPARE(EditorHost::record().criticals, QStringList());
        QCOMPARE(EditorHost::record().informations, QStringList());
    });
}

void TestEditorSetups::savesTheWaveformOfTheSetup_data()
{
    QTest::addColumn<QJsonObject>("pulses");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("first");

    const int low = -WaveformFullScale;
    const QJsonObject pulses = withLevels(newPulses(), 2, 0.5);
    // 34 us in two stretches: 22 us with the delay and 12 us, each count rounded down.
    const int points = (38550 + 7710 + 38550) + (7710 + 38550);
    QTest::newRow("50 ohms") << pulses << 2.0 << 0.5 << points << low;
    QTest::newRow("high impedance") << withLoad(pulses, 10000) << 1.0 << 0.25 << points << low;
    QTest::newRow("negative slope")
        << changed(pulses, "trigger slope", "", 1) << 2.0 << 0.5 << points << -low;
    QTest::newRow("no rows") << changed(pulses, "width/gap", "", QJsonArray()) << 2.0 << 0.5
                             << 131072 << 0;
}

void TestEditorSetups::savesTheWaveformOfTheSetup()
{
    QFETCH(QJsonObject, pulses);
    QFETCH(double, amplitude);
    QFETCH(double, offset);
    QFETCH(int, points);
    QFETCH(int, first);
    inEditor([&](const EditorHost& host) {
        SetupFiles::openPulses(host, pulses);
        SetupFiles::saveAs(host, SetupFiles::Folder + QStringLiteral("a.json"));
        WaveformFile file;
        QCOMPARE(readWaveform(SetupFiles::Folder + QStringLiteral("a.mpwv"), file), QString());
        QCOMPARE(file.header.ampValue, amplitude);
        QCOMPARE(file.header.offsetValue, offset);
        QCOMPARE(int(file.header.points), points);
        QCOMPARE(int(file.samples.front()), first);
    });
}

void TestEditorSetups::tellsTheLogOfASave()
{
    inEditor([](const EditorHost& host) {
        SetupFiles::saveAs(host, QStringLiteral("/mnt/user-data/a.json"));
        QCOMPARE(logLinesWith("slt_saveAsBtnClicked"),
                 QStringList(QStringLiteral("warning: slt_saveAsBtnClicked saveSetupFile true "
                                            "\"/mnt/user-data/a.json\"")));
        QCOMPARE(logLinesWith("open save file"), QStringList());
    });
    inEditor([](const EditorHost& host) {
        SetupFiles::saveAs(host, QStringLiteral("/mnt/user-data/missing/a.json"));
        QCOMPARE(logLinesWith("slt_saveAsBtnClicked"),
                 QStringList(QStringLiteral("warning: slt_saveAsBtnClicked saveSetupFile false "
                                            "\"/mnt/user-data/missing/a.json\"")));
        QCOMPARE(logLinesWith("open save file"),
                 QStringList(QStringLiteral("warning: Couldn't open save file.")));
    });
}

void TestEditorSetups::overwritesALongerFile()
{
    inEditor([](const EditorHost& host) {
        const QString path = SetupFiles::Folder + QStringLiteral("a.json");
        QVERIFY(SetupFiles::write(path, QByteArray(100000, 'x')));
        SetupFiles::saveAs(host, path);
        QCOMPARE(SetupFiles::read(path), QByteArray(NewSetup));
    });
}

QTEST_MAIN(TestEditorSetups)
#include "test_editorsetups.moc"
