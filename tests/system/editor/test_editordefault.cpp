// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setups.h"

#include <QDialog>
#include <QProcess>

using namespace Setups;

namespace {

const QString DefaultFile = QStringLiteral("/mnt/user-data/appPluginsDefaultSetup.json");

bool s_bDefaultFileAtQuestion = false;

int lookForTheDefaultFile(QString)
{
    s_bDefaultFileAtQuestion = QFile::exists(DefaultFile);
    return 0;
}

} // namespace

class TestEditorDefault : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetupFiles::emptyFolder(); }

    void defaultFileComesBeforeTheQuestion();
    void defaultAsks_data();
    void defaultAsks();
    void defaultUsesTheFileAsItIs_data();
    void defaultUsesTheFileAsItIs();
    void defaultReplacesAFileThatIsNoSetup();
    void defaultIsMadeOnce();
    void defaultWithoutAFile();
    void defaultIsSilentWhereOpenWarns();
};

void TestEditorDefault::defaultFileComesBeforeTheQuestion()
{
    s_bDefaultFileAtQuestion = false;
    inEditor([](const EditorHost& host) {
        host.plugin()->initCallbacks(
            {nullptr, nullptr, nullptr, nullptr, lookForTheDefaultFile, nullptr});
        FrontPanel::tap(host.button(EditorHost::Default));
        QVERIFY(s_bDefaultFileAtQuestion);
        QCOMPARE(SetupFiles::read(DefaultFile),
                 SetupFiles::bytesOf(changed(withLevels(newPulses(), 2, 0), "Gap Mode", "", 0)));
        const QStringList lines = logLinesWith("saveRes");
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().startsWith(
                     QLatin1String("warning: slt_DefaultBtnClicked g_jsonDefaultSetupValues "
                                   "saveRes true QJsonObject({\"multiple pulses\":{")),
                 qPrintable(lines.first()));
    });
}

void TestEditorDefault::defaultAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("applied");
    QTest::newRow("yes") << 1 << true;
    QTest::newRow("no") << 0 << false;
    QTest::newRow("two") << 2 << false;
    QTest::newRow("negative") << -1 << false;
}

void TestEditorDefault::defaultAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, applied);
    inEditor([&](const EditorHost& host) {
        const QJsonObject standard = withLevels(newPulses(), 2, 0);
        const QJsonObject own = changed(withLevels(newPulses(), 1, 0.25), "width/gap", "", rows(3));
        SetupFiles::openPulses(host, own);
        EditorHost::record().questionResult = answer;
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(EditorHost::record().questions,
                 QStringList(QStringLiteral("STR_ID_SUREQ_DEFAULT")));
        QCOMPARE(SetupFiles::shown(host), applied ? standard : own);
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorDefault::defaultUsesTheFileAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QJsonObject>("shown");

    const QJsonObject five =
        changed(changed(newPulses(), "pulse numbers", "value", 5), "width/gap", "", rows(5));
    QJsonObject zeros = changed(withLevels(newPulses(), 0, 0), "width/gap", "", QJsonArray());
    zeros = changed(zeros, "trigger delay", "value", 1e-06);
    zeros = changed(zeros, "trigger timer", "value", 2e-06);
    QTest::newRow("another setup") << SetupFiles::bytesOf(five) << five;
    QTest::newRow("beside other members")
        << QByteArray("{ \"a\" : [] , ") + SetupFiles::bytesOf(five).mid(1) << five;
    QTest::newRow("without pulses") << QByteArray("{\"other plug-in\":{}}") << zeros;
}

void TestEditorDefault::defaultUsesTheFileAsItIs()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QJsonObject, shown);
    QVERIFY(SetupFiles::write(DefaultFile, bytes));
    inEditor([&](const EditorHost& host) {
        EditorHost::record().questionResult = 1;
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(SetupFiles::read(DefaultFile), bytes);
        QCOMPARE(SetupFiles::shown(host), shown);
        QCOMPARE(logLinesWith("saveRes"), QStringList());
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorDefault::defaultReplacesAFileThatIsNoSetup()
{
    QVERIFY(SetupFiles::write(DefaultFile, "[]"));
    inEditor([](const EditorHost& host) {
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(SetupFiles::pulsesOf(SetupFiles::read(DefaultFile)),
                 changed(withLevels(newPulses(), 2, 0), "Gap Mode", "", 0));
    });
}

void TestEditorDefault::defaultIsMadeOnce()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    host.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Default));
        QVERIFY(QFile::remove(DefaultFile));
        EditorHost::record().questionResult = 1;
        FrontPanel::tap(host.button(EditorHost::Default));
        QVERIFY(!QFile::exists(DefaultFile));
        QCOMPARE(levels(host), QStringLiteral("1.0000 -1.0000"));
    });
    QVERIFY(SetupFiles::write(DefaultFile, SetupFiles::bytesOf(withLevels(newPulses(), 1, 0))));
    host.show();
    host.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(levels(host), QStringLiteral("0.5000 -0.5000"));
    });
}

void TestEditorDefault::defaultWithoutAFile()
{
    QVERIFY(QDir().mkdir(DefaultFile));
    inEditor([](const EditorHost& host) {
        EditorHost::record().questionResult = 1;
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(logLinesWith("open save file").size(), 1);
        QCOMPARE(logLinesWith("g_jsonDefaultSetupValues saveRes false").size(), 1);
        QCOMPARE(EditorHost::record().questions.size(), 1);
        QCOMPARE(SetupFiles::shown(host), withLevels(newPulses(), 2, 0));
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorDefault::defaultIsSilentWhereOpenWarns()
{
    const QByteArray bytes = SetupFiles::bytesOf(changed(newPulses(), "trigger delay", "value", 1));
    const QStringList warning(outOfRange("1", "1e-06", "0.00015"));
    QVERIFY(SetupFiles::write(DefaultFile, bytes));
    inEditor([&](const EditorHost& host) {
        EditorHost::record().questionResult = 1;
        FrontPanel::tap(host.button(EditorHost::Default));
        QCOMPARE(EditorHost::record().warnings, QStringList());
        QCOMPARE(host.delay()->get(), 0.00015);

        SetupFiles::open(host, DefaultFile);
        QCOMPARE(EditorHost::record().warnings, warning);

        EditorHost::record().questionResult = 0;
        FrontPanel::tap(host.button(EditorHost::Default));
        SetupFiles::open(host, DefaultFile);
        QCOMPARE(EditorHost::record().warnings, warning + warning);
    });
}

// What was read or made as the default stays for as long as the process, so each function has one
// of its own.
int main(int argc, char** argv)
{
    if (argc > 1) {
        QApplication application(argc, argv);
        TestEditorDefault test;
        return QTest::qExec(&test, argc, argv);
    }

    const QMetaObject& object = TestEditorDefault::staticMetaObject;
    int failed = 0;
    for (int i = object.methodOffset(); i < object.methodCount(); ++i) {
        const QString name = QString::fromLatin1(object.method(i).name());
        if (name == QLatin1String("init") || name.endsWith(QLatin1String("_data")))
            continue;
        if (QProcess::execute(QFile::decodeName(argv[0]), {name}) != 0)
            ++failed;
    }
    return failed;
}

#include "test_editordefault.moc"
