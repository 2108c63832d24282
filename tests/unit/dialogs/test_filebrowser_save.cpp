// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"
#include "keyboarddriver.h"

#include <QInputMethod>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

namespace {

/// What a browser came back with, and what it said on the way.
struct Answer
{
    int result = -1;
    QString path;
    QStringList boxes;
};

using KeyboardDriver::touch;

QLineEdit* field()
{
    return DialogSession::part<QLineEdit>("name");
}

void typeName(const QString& name)
{
    field()->setFocus();
    field()->selectAll();
    FrontPanel::press(Qt::Key_Backspace);
    field()->insert(name);
}

} // namespace

class TestFileBrowserSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void savesUnderTheSuggestion();
    void completesTheSuffix_data();
    void completesTheSuffix();
    void asksBeforeReplacing_data();
    void asksBeforeReplacing();
    void takesTheNameOfATappedFile();
    void refusesBadNames_data();
    void refusesBadNames();
    void makesAFolder();
    void refusesAFolderThatIsThere();
    void noNewFolderWithABadName();
    void refusesALinkThatLeadsOut();
    void refusesAFolderThatBecameALink();
    void refusesAFileThatBecameALink();
    void looksAgainAfterTheQuestion();
    void whateverIsTypedStaysInside();
    void theFirstCancelIsForTheKeyboard_data();
    void theFirstCancelIsForTheKeyboard();
    void worksByKeysAlone();
    void replacesAFileChosenByKnob();
    void typesOnTheScreen();

private:
    /// Saves and lets @p inside act; boxes that come up are noted and answered with @p yes.
    Answer save(const std::function<void()>& inside, bool yes = true,
                const std::function<void()>& atBox = {})
    {
        Answer answer;
        QTimer boxes;
        QObject::connect(&boxes, &QTimer::timeout, &boxes, [&] {
            const auto* text = DialogSession::part<QLabel>("text");
            if (text == nullptr)
                return;
            answer.boxes.append(text->text());
            if (atBox)
                atBox();
            auto* button = DialogSession::button(yes ? "accept" : "refuse");
            FrontPanel::tap(button->isVisible() ? button : DialogSession::button("accept"));
        });
        boxes.start(0);
        session.answer(inside);
        answer.result = HostDialogs::saveFile(
            &session.surface, {QStringLiteral(".json"), QStringLiteral(".mpwv")}, answer.path,
            session.root(), "STR_ID_SAVE", 17, QStringLiteral("double_pulse"));
        return answer;
    }
    Answer saveAs(const QString& name, bool yes = true, const std::function<void()>& atBox = {})
    {
        return save(
            [&name] {
                typeName(name);
                FrontPanel::press(Qt::Key_Return);
                QTRY_VERIFY(DialogSession::part<QLabel>("text") == nullptr);
            },
            yes, atBox);
    }
    QString base() const { return QFileInfo(session.root()).canonicalFilePath(); }
    QString at(const QString& name) const { return base() + QLatin1Char('/') + name; }

    DialogSession session;
    Language m_language{QStringLiteral("en")};
};

void TestFileBrowserSave::init()
{
    session.clear();
    DialogSession::write(at(QStringLiteral("there.json")));
    DialogSession::write(at(QStringLiteral("sub/s.json")));
    DialogSession::write(session.outside() + QLatin1String("/secret.json"));
}

void TestFileBrowserSave::savesUnderTheSuggestion()
{
    const Answer answer = save([] {
        QCOMPARE(field()->text(), QStringLiteral("double_pulse"));
        FrontPanel::tap(DialogSession::button("accept"));
    });
    QCOMPARE(answer.result, 1);
    QCOMPARE(answer.path, at(QStringLiteral("double_pulse.json")));
    QCOMPARE(answer.boxes, QStringList());
    QVERIFY(!QFile::exists(answer.path));
}

void TestFileBrowserSave::completesTheSuffix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("second");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* typed, bool second, const char* name) {
        QTest::addRow("%s %d", typed, second)
            << QString::fromLatin1(typed) << second << QString::fromLatin1(name);
    };
    row("a", false, "a.json");
    row("a", true, "a.mpwv");
    row("a.json", true, "a.json");
    row("A.JSON", false, "A.JSON");
    row("x.json.json", false, "x.json.json");
    row("a.b", false, "a.b.json");
    row("  a b ", false, "a b.json");
    row("$(touch x);'\"", false, "$(touch x);'\".json");
}

void TestFileBrowserSave::completesTheSuffix()
{
    QFETCH(QString, typed);
    QFETCH(bool, second);
    QFETCH(QString, name);
    const Answer answer = save([&] {
        const auto filters =
            DialogSession::dialog()->findChildren<QAbstractButton*>(QStringLiteral("filter"));
        FrontPanel::tap(filters.at(second ? 1 : 0));
        typeName(typed);
        FrontPanel::press(Qt::Key_Return);
    });
    QCOMPARE(answer.path, at(name));
}

void TestFileBrowserSave::asksBeforeReplacing_data()
{
    QTest::addColumn<bool>("yes");
    QTest::newRow("replace") << true;
    QTest::newRow("keep") << false;
}

void TestFileBrowserSave::asksBeforeReplacing()
{
    QFETCH(bool, yes);
    const Answer answer = saveAs(QStringLiteral("there"), yes, [] {
        QCOMPARE(DialogSession::dialog()->focusWidget(), DialogSession::button("refuse"));
    });
    QCOMPARE(answer.boxes.size(), 1);
    QVERIFY(answer.boxes.first().contains(QStringLiteral("there.json")));
    QCOMPARE(answer.result, yes ? 1 : 0);
    QCOMPARE(answer.path, yes ? at(QStringLiteral("there.json")) : QString());
}

void TestFileBrowserSave::takesTheNameOfATappedFile()
{
    const Answer answer = save([] {
        QVERIFY(DialogSession::tapRow(QStringLiteral("there.json")));
        QCOMPARE(field()->text(), QStringLiteral("there.json"));
        QVERIFY(DialogSession::tapRow(QStringLiteral("sub")));
        FrontPanel::tap(DialogSession::button("accept"));
    });
    QCOMPARE(answer.path, at(QStringLiteral("sub/there.json")));
    QCOMPARE(HostDialogs::lastFolder(), at(QStringLiteral("sub")));
}

void TestFileBrowserSave::refusesBadNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* title, const QString& name, const char* reason) {
        QTest::newRow(title) << name << qtTrId(reason);
    };
    row("empty", QString(), "HOSTID_DLG_NAME_EMPTY");
    row("blank", QStringLiteral(" "), "HOSTID_DLG_NAME_EMPTY");
    row("dots", QStringLiteral(".."), "HOSTID_DLG_NAME_DOTS");
    row("dot", QStringLiteral("."), "HOSTID_DLG_NAME_DOTS");
    row("path out", QStringLiteral("../outside/secret.json"), "HOSTID_DLG_NAME_SLASH");
    row("path in", QStringLiteral("sub/s.json"), "HOSTID_DLG_NAME_SLASH");
    row("absolute", QStringLiteral("/etc/passwd"), "HOSTID_DLG_NAME_SLASH");
    row("hidden", QStringLiteral(".app"), "HOSTID_DLG_NAME_HIDDEN");
    row("suffix alone", QStringLiteral(".json"), "HOSTID_DLG_NAME_HIDDEN");
    row("direction", QStringLiteral("a\u202Eb"), "HOSTID_DLG_NAME_CONTROL");
    row("too long with its suffix", QString(251, QLatin1Char('a')), "HOSTID_DLG_NAME_LONG");
    row("too long", QString(100, QChar(0x53CC)), "HOSTID_DLG_NAME_LONG");
}

void TestFileBrowserSave::refusesBadNames()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const Answer answer = saveAs(name);
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.path, QString());
    QCOMPARE(answer.boxes, QStringList(reason));
}

void TestFileBrowserSave::makesAFolder()
{
    const Answer answer = save([this] {
        session.answer([] {
            QVERIFY(DialogSession::part<QLineEdit>("name")->hasFocus());
            FrontPanel::type(QStringLiteral("2026 06"));
            FrontPanel::press(Qt::Key_Return);
        });
        FrontPanel::tap(DialogSession::button("new folder"));
        QTRY_VERIFY(QFileInfo(at(QStringLiteral("2026 06"))).isDir());
        FrontPanel::tap(DialogSession::button("accept"));
    });
    QCOMPARE(answer.path, at(QStringLiteral("2026 06/double_pulse.json")));
}

void TestFileBrowserSave::refusesAFolderThatIsThere()
{
    const Answer answer = save([this] {
        session.answer([] {
            FrontPanel::type(QStringLiteral("sub"));
            FrontPanel::tap(DialogSession::button("accept"));
        });
        FrontPanel::tap(DialogSession::button("new folder"));
        QTRY_COMPARE(DialogSession::dialog()->objectName(), QStringLiteral("file browser"));
    });
    QCOMPARE(answer.boxes.size(), 1);
    QVERIFY(answer.boxes.first().contains(QStringLiteral("sub")));
}

void TestFileBrowserSave::noNewFolderWithABadName()
{
    const Answer answer = save([this] {
        session.answer([] {
            QDialog* const dialog = DialogSession::dialog();
            typeName(QStringLiteral("../up"));
            FrontPanel::press(Qt::Key_Return);
            QTRY_COMPARE(DialogSession::dialog(), dialog);
            FrontPanel::press(Qt::Key_Cancel);
        });
        FrontPanel::tap(DialogSession::button("new folder"));
        QTRY_COMPARE(DialogSession::dialog()->objectName(), QStringLiteral("file browser"));
    });
    QCOMPARE(answer.boxes, QStringList(qtTrId("HOSTID_DLG_NAME_SLASH")));
    QVERIFY(!QFile::exists(session.folder.path() + QLatin1String("/up")));
}

void TestFileBrowserSave::refusesALinkThatLeadsOut()
{
    QVERIFY(QFile::link(session.outside() + QLatin1String("/secret.json"),
                        at(QStringLiteral("link.json"))));
    QVERIFY(QFile::link(session.outside() + QLatin1String("/new.json"),
                        at(QStringLiteral("new.json"))));
    for (const char* name : {"link", "new"}) {
        const Answer answer = saveAs(QLatin1String(name));
        QCOMPARE(answer.result, 0);
        QCOMPARE(answer.boxes.size(), 1);
        QVERIFY(answer.boxes.first().contains(QStringLiteral("leads out")));
    }
}

void TestFileBrowserSave::refusesAFolderThatBecameALink()
{
    const Answer answer = save([this] {
        DialogSession::tapRow(QStringLiteral("sub"));
        QDir(at(QStringLiteral("sub"))).removeRecursively();
        QVERIFY(QFile::link(session.outside(), at(QStringLiteral("sub"))));
        FrontPanel::tap(DialogSession::button("accept"));
        QTRY_COMPARE(DialogSession::dialog()->objectName(), QStringLiteral("file browser"));
        QVERIFY(!DialogSession::rows().contains(QStringLiteral("secret.json")));
    });
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.boxes.size(), 1);
}

void TestFileBrowserSave::refusesAFileThatBecameALink()
{
    QString path;
    QString said;
    session.answer([&] {
        DialogSession::tapRow(QStringLiteral("there.json"));
        QVERIFY(QFile::remove(at(QStringLiteral("there.json"))));
        QVERIFY(QFile::link(session.outside() + QLatin1String("/secret.json"),
                            at(QStringLiteral("there.json"))));
        session.answer([&said] {
            said = DialogSession::part<QLabel>("text")->text();
            FrontPanel::press(Qt::Key_Return);
        });
        FrontPanel::tap(DialogSession::button("accept"));
        QTRY_VERIFY(!said.isEmpty());
        QTRY_COMPARE(DialogSession::rows(), QStringList(QStringLiteral("sub")));
    });
    QCOMPARE(HostDialogs::openFile(nullptr, {QStringLiteral(".json")}, path, session.root(),
                                   nullptr, 17),
             0);
    QVERIFY(path.isEmpty());
    QVERIFY(said.contains(QStringLiteral("leads out")));
}

void TestFileBrowserSave::looksAgainAfterTheQuestion()
{
    bool swapped = false;
    const Answer answer = saveAs(QStringLiteral("there"), true, [&] {
        if (swapped)
            return;
        swapped = QFile::remove(at(QStringLiteral("there.json"))) &&
                  QFile::link(session.outside() + QLatin1String("/secret.json"),
                              at(QStringLiteral("there.json")));
    });
    QVERIFY(swapped);
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.boxes.size(), 2);
    QVERIFY(answer.boxes.last().contains(QStringLiteral("leads out")));
}

// Random names into a folder with traps: what comes back is inside, or nothing does.
void TestFileBrowserSave::whateverIsTypedStaysInside()
{
    QVERIFY(QFile::link(session.outside(), at(QStringLiteral("out"))));
    QVERIFY(QFile::link(session.outside() + QLatin1String("/new.json"),
                        at(QStringLiteral("new.json"))));
    const QStringList pieces{
        QStringLiteral(".."),     QStringLiteral("/"),     QStringLiteral("out"),
        QStringLiteral("new"),    QStringLiteral(".json"), QStringLiteral("there"),
        QStringLiteral("a"),      QStringLiteral("\t"),    QStringLiteral(" "),
        QStringLiteral("\u2066"), QStringLiteral("ß"),     QStringLiteral("\\")};
    QRandomGenerator random(7);
    int accepted = 0;
    for (int round = 0; round < 60; ++round) {
        QString name;
        for (int i = random.bounded(4); i >= 0; --i)
            name += pieces.at(random.bounded(pieces.size()));
        const Answer answer = saveAs(name);
        QCOMPARE(answer.result == 1, !answer.path.isEmpty());
        if (answer.result != 1) {
            QVERIFY(!answer.boxes.isEmpty());
            continue;
        }
        ++accepted;
        QCOMPARE(QFileInfo(answer.path).path(), base());
        QCOMPARE(QDir::cleanPath(answer.path), answer.path);
        QVERIFY(!QFileInfo(answer.path).isSymLink());
    }
    QVERIFY(accepted > 5);
}

void TestFileBrowserSave::theFirstCancelIsForTheKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Cancel") << int(Qt::Key_Cancel);
    QTest::newRow("Back") << int(QT_KEY_BACK);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestFileBrowserSave::theFirstCancelIsForTheKeyboard()
{
    QFETCH(int, key);
    const Answer answer = save([key] {
        FrontPanel::tap(field());
        QVERIFY(QGuiApplication::inputMethod()->isVisible());
        FrontPanel::press(key);
        QVERIFY(!QGuiApplication::inputMethod()->isVisible());
        QVERIFY(DialogSession::dialog() != nullptr);
        FrontPanel::press(key);
        QVERIFY(DialogSession::dialog() == nullptr);
    });
    QCOMPARE(answer.result, 0);
}

void TestFileBrowserSave::worksByKeysAlone()
{
    const Answer answer = save([] {
        FrontPanel::press(Qt::Key_Down);
        FrontPanel::press(Qt::Key_Return);
        QCOMPARE(DialogSession::rows(), QStringList(QStringLiteral("s.json")));
        FrontPanel::press(Qt::Key_Right);
        QVERIFY(DialogSession::button("accept")->hasFocus());
        FrontPanel::press(Qt::Key_Left);
        FrontPanel::press(Qt::Key_Return);
    });
    QCOMPARE(answer.path, at(QStringLiteral("sub/double_pulse.json")));
}

void TestFileBrowserSave::replacesAFileChosenByKnob()
{
    const Answer answer = save([] {
        FrontPanel::knob(-2);
        FrontPanel::press(QT_KEY_KNOB);
        QTRY_VERIFY(DialogSession::part<QLabel>("text") == nullptr);
    });
    QCOMPARE(answer.boxes.size(), 1);
    QCOMPARE(answer.path, at(QStringLiteral("there.json")));
}

// The field gets its keyboard by touch, and the keyboard's Enter saves.
void TestFileBrowserSave::typesOnTheScreen()
{
    const Answer answer = save([] {
        QVERIFY(field()->hasFocus());
        QVERIFY(!QGuiApplication::inputMethod()->isVisible());
        FrontPanel::tap(field());
        QVERIFY(QGuiApplication::inputMethod()->isVisible());
        field()->selectAll();
        QVERIFY(touch({QStringLiteral("Backspace"), QStringLiteral("Shift"), QStringLiteral("Q")}));
        QVERIFY(touch("1_.x"));
        QCOMPARE(field()->text(), QStringLiteral("Q1_.x"));
        QVERIFY(touch({QStringLiteral("Enter")}));
    });
    QCOMPARE(answer.path, at(QStringLiteral("Q1_.x.json")));
    QVERIFY(!QGuiApplication::inputMethod()->isVisible());
}

QTEST_MAIN(TestFileBrowserSave)

#include "test_filebrowser_save.moc"
