// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

namespace {

const QStringList Json{QStringLiteral(".json")};
const QStringList Both{QStringLiteral(".json"), QStringLiteral(".mpwv")};

/// What a browser came back with.
struct Answer
{
    int result;
    QString path;
};

QString hint()
{
    const auto* label = DialogSession::part<QLabel>("hint");
    return label->isVisible() ? label->text() : QString();
}

int currentRow()
{
    return DialogSession::list()->currentIndex().row();
}

QStringList crumbs()
{
    QStringList texts;
    for (const auto* button : DialogSession::dialog()->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->objectName().isEmpty())
            texts.append(button->text());
    }
    return texts;
}

} // namespace

class TestFileBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void listsFoldersFirst();
    void opensByTaps();
    void opensByDoubleTap();
    void opensByKeys();
    void cancelsWithThePathAsItWas_data();
    void cancelsWithThePathAsItWas();
    void goesUpAndHome();
    void backGoesUpFirst();
    void aSecondTapDoesNotFallThrough();
    void sortsByDate();
    void choosesAmongTypes();
    void saysThatAFolderIsEmpty();
    void dragsTheListWithoutChoosing();
    void rowsAreLargeEnough();
    void seesWhatChanges();
    void leavesAFolderThatGoes();
    void remembersTheLastFolder();
    void beginsWhereItIsTold_data();
    void beginsWhereItIsTold();
    void followsTheLanguage();
    void closesWithItsParent();

private:
    Answer open(const QStringList& filters, const std::function<void()>& inside,
                QString start = QString(), QWidget* parent = nullptr)
    {
        Answer answer{-1, QStringLiteral("as it was")};
        session.answer(inside);
        answer.result =
            HostDialogs::openFile(parent, filters, answer.path,
                                  start.isEmpty() ? session.root() : start, "STR_ID_STAT_LOAD", 17);
        return answer;
    }
    QString at(const char* name) const
    {
        return QFileInfo(session.root()).canonicalFilePath() + QLatin1Char('/') +
               QLatin1String(name);
    }

    DialogSession session;
    Language m_language{QStringLiteral("en")};
};

void TestFileBrowser::init()
{
    session.clear();
    for (const char* name : {"b.json", "a10.json", "a2.JSON", "c.mpwv", "d.txt", ".hidden.json",
                             ".app/x.json", "sub/s.json", "sub/deep/t.json", "empty/x.txt"})
        DialogSession::write(session.root() + QLatin1Char('/') + QLatin1String(name));
}

void TestFileBrowser::listsFoldersFirst()
{
    open(Json, [] {
        QCOMPARE(
            DialogSession::rows(),
            QStringList({QStringLiteral("empty"), QStringLiteral("sub"), QStringLiteral("a2.JSON"),
                         QStringLiteral("a10.json"), QStringLiteral("b.json")}));
        QVERIFY(!DialogSession::button("accept")->isEnabled());
        QVERIFY(!DialogSession::button("up")->isEnabled());
    });
}

void TestFileBrowser::opensByTaps()
{
    const Answer answer = open(Json, [] {
        QVERIFY(DialogSession::tapRow(QStringLiteral("sub")));
        QVERIFY(DialogSession::tapRow(QStringLiteral("s.json")));
        QVERIFY(DialogSession::dialog() != nullptr);
        FrontPanel::tap(DialogSession::button("accept"));
    });
    QCOMPARE(answer.result, 1);
    QCOMPARE(answer.path, at("sub/s.json"));
}

void TestFileBrowser::opensByDoubleTap()
{
    const Answer answer = open(Json, [] {
        QListView* list = DialogSession::list();
        const int row = DialogSession::rows().indexOf(QStringLiteral("a10.json"));
        FrontPanel::doubleTap(list->viewport(),
                              list->visualRect(list->model()->index(row, 0)).center());
        QVERIFY(DialogSession::dialog() == nullptr);
    });
    QCOMPARE(answer.path, at("a10.json"));
}

void TestFileBrowser::opensByKeys()
{
    const Answer answer = open(Json, [] {
        FrontPanel::knob(-2);
        QCOMPARE(currentRow(), 1);
        FrontPanel::press(Qt::Key_Return);
        QCOMPARE(DialogSession::rows(),
                 QStringList({QStringLiteral("deep"), QStringLiteral("s.json")}));
        FrontPanel::press(Qt::Key_Down);
        FrontPanel::press(Qt::Key_Down);
        FrontPanel::press(Qt::Key_Down);
        QCOMPARE(currentRow(), 1);
        FrontPanel::press(QT_KEY_KNOB);
    });
    QCOMPARE(answer.result, 1);
    QCOMPARE(answer.path, at("sub/s.json"));
}

void TestFileBrowser::cancelsWithThePathAsItWas_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("by touch") << 0;
    QTest::newRow("Cancel") << int(Qt::Key_Cancel);
    QTest::newRow("Back") << int(QT_KEY_BACK);
    QTest::newRow("Home") << int(QT_KEY_HOME);
}

void TestFileBrowser::cancelsWithThePathAsItWas()
{
    QFETCH(int, key);
    const Answer answer = open(Json, [key] {
        DialogSession::tapRow(QStringLiteral("b.json"));
        if (key == 0)
            FrontPanel::tap(DialogSession::button("refuse"));
        else
            FrontPanel::press(key);
        QVERIFY(DialogSession::dialog() == nullptr);
    });
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.path, QStringLiteral("as it was"));
    QCOMPARE(HostDialogs::lastFolder(), QString());
}

void TestFileBrowser::goesUpAndHome()
{
    open(Json, [] {
        DialogSession::tapRow(QStringLiteral("sub"));
        DialogSession::tapRow(QStringLiteral("deep"));
        QCOMPARE(crumbs(), QStringList({QStringLiteral("User data"), QStringLiteral("sub"),
                                        QStringLiteral("deep")}));
        FrontPanel::tap(DialogSession::button("up"));
        QCOMPARE(DialogSession::rows().last(), QStringLiteral("s.json"));
        QCOMPARE(currentRow(), 0);
        DialogSession::tapRow(QStringLiteral("deep"));
        FrontPanel::tap(DialogSession::button("home"));
        QVERIFY(DialogSession::rows().contains(QStringLiteral("b.json")));
        QVERIFY(!DialogSession::button("up")->isEnabled());
        QCOMPARE(crumbs(), QStringList(QStringLiteral("User data")));
    });
}

void TestFileBrowser::backGoesUpFirst()
{
    open(Json, [] {
        DialogSession::tapRow(QStringLiteral("sub"));
        FrontPanel::press(QT_KEY_BACK);
        QVERIFY(DialogSession::rows().contains(QStringLiteral("b.json")));
        QCOMPARE(currentRow(), 1);
        FrontPanel::press(QT_KEY_BACK);
        QVERIFY(DialogSession::dialog() == nullptr);
    });
}

// Two quick taps on a folder: the second meets another list.
void TestFileBrowser::aSecondTapDoesNotFallThrough()
{
    open(Json, [] {
        QListView* list = DialogSession::list();
        const QPoint second = list->visualRect(list->model()->index(1, 0)).center();
        FrontPanel::doubleTap(list->viewport(), second);
        QVERIFY(DialogSession::dialog() != nullptr);
        QCOMPARE(DialogSession::rows().last(), QStringLiteral("s.json"));
        QCOMPARE(currentRow(), -1);
    });
}

void TestFileBrowser::sortsByDate()
{
    QFile file(session.root() + QLatin1String("/b.json"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(3600),
                             QFileDevice::FileModificationTime));
    file.close();
    open(Json, [] {
        QCOMPARE(DialogSession::rows().last(), QStringLiteral("b.json"));
        FrontPanel::tap(DialogSession::button("sort by date"));
        QCOMPARE(DialogSession::rows().at(2), QStringLiteral("b.json"));
        FrontPanel::tap(DialogSession::button("sort by name"));
        QCOMPARE(DialogSession::rows().last(), QStringLiteral("b.json"));
    });
}

void TestFileBrowser::choosesAmongTypes()
{
    open(Both, [] {
        QVERIFY(DialogSession::rows().contains(QStringLiteral("b.json")));
        QVERIFY(DialogSession::rows().contains(QStringLiteral("c.mpwv")));
        const auto filters =
            DialogSession::dialog()->findChildren<QAbstractButton*>(QStringLiteral("filter"));
        QCOMPARE(filters.size(), 2);
        FrontPanel::tap(filters.at(1));
        QVERIFY(!DialogSession::rows().contains(QStringLiteral("b.json")));
        QVERIFY(DialogSession::rows().contains(QStringLiteral("c.mpwv")));
        FrontPanel::tap(DialogSession::button("all types"));
        QVERIFY(DialogSession::rows().contains(QStringLiteral("b.json")));
    });
    open(Json, [] { QVERIFY(DialogSession::button("filter") == nullptr); });
    open({}, [] { QVERIFY(DialogSession::rows().contains(QStringLiteral("d.txt"))); });
}

void TestFileBrowser::saysThatAFolderIsEmpty()
{
    open(Json, [] {
        QVERIFY(hint().isEmpty());
        DialogSession::tapRow(QStringLiteral("empty"));
        QVERIFY(!hint().isEmpty());
        QVERIFY(DialogSession::rows().isEmpty());
        FrontPanel::press(Qt::Key_Return);
        QVERIFY(DialogSession::dialog() != nullptr);
    });
}

void TestFileBrowser::dragsTheListWithoutChoosing()
{
    for (int i = 0; i < 40; ++i)
        DialogSession::write(session.root() + QStringLiteral("/many%1.json").arg(i));
    open(Json, [] {
        QListView* list = DialogSession::list();
        FrontPanel::drag(list->viewport(), {100, 200}, {100, 100});
        QCOMPARE(list->verticalScrollBar()->value(), 100);
        QCOMPARE(currentRow(), -1);
        FrontPanel::knob(-30);
        QCOMPARE(currentRow(), 29);
        QVERIFY(list->viewport()->rect().contains(list->visualRect(list->currentIndex()).center()));
    });
}

void TestFileBrowser::rowsAreLargeEnough()
{
    open(Json, [] {
        const QListView* list = DialogSession::list();
        QVERIFY(list->visualRect(list->model()->index(0, 0)).height() >= 44);
    });
}

void TestFileBrowser::seesWhatChanges()
{
    open(Json, [this] {
        DialogSession::tapRow(QStringLiteral("b.json"));
        DialogSession::write(session.root() + QLatin1String("/a.json"));
        QTRY_VERIFY(DialogSession::rows().contains(QStringLiteral("a.json")));
        QCOMPARE(DialogSession::rows().at(currentRow()), QStringLiteral("b.json"));
        QVERIFY(QFile::remove(session.root() + QLatin1String("/b.json")));
        QTRY_VERIFY(!DialogSession::rows().contains(QStringLiteral("b.json")));
        QCOMPARE(currentRow(), -1);
        QVERIFY(!DialogSession::button("accept")->isEnabled());
    });
}

void TestFileBrowser::leavesAFolderThatGoes()
{
    open(Json, [this] {
        DialogSession::tapRow(QStringLiteral("sub"));
        DialogSession::tapRow(QStringLiteral("deep"));
        QDir(session.root() + QLatin1String("/sub")).removeRecursively();
        QTRY_VERIFY(DialogSession::rows().contains(QStringLiteral("b.json")));
        QCOMPARE(crumbs(), QStringList(QStringLiteral("User data")));
    });
}

void TestFileBrowser::remembersTheLastFolder()
{
    open(Json, [] {
        DialogSession::tapRow(QStringLiteral("sub"));
        DialogSession::tapRow(QStringLiteral("s.json"));
        FrontPanel::press(Qt::Key_Return);
    });
    QCOMPARE(HostDialogs::lastFolder() + QLatin1Char('/'), at("sub/"));
    open(Json, [] { QCOMPARE(DialogSession::rows().last(), QStringLiteral("s.json")); });
}

void TestFileBrowser::beginsWhereItIsTold_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("lastRow");
    const QString home = QStringLiteral("b.json");
    QTest::newRow("root") << QString() << QString() << home;
    QTest::newRow("folder") << QStringLiteral("/sub/") << QString() << QStringLiteral("s.json");
    QTest::newRow("last below") << QString() << QStringLiteral("/sub") << QStringLiteral("s.json");
    QTest::newRow("last beside") << QStringLiteral("/empty") << QStringLiteral("/sub") << QString();
    QTest::newRow("last outside") << QString() << QStringLiteral("/..") << home;
    QTest::newRow("last hidden") << QString() << QStringLiteral("/.app") << home;
    QTest::newRow("last gone") << QString() << QStringLiteral("/gone") << home;
    QTest::newRow("outside") << QStringLiteral("/../outside") << QString() << home;
    QTest::newRow("outside, last below the root")
        << QStringLiteral("/../outside") << QStringLiteral("/sub") << QStringLiteral("s.json");
    QTest::newRow("gone") << QStringLiteral("/sub/gone") << QString() << QStringLiteral("s.json");
}

void TestFileBrowser::beginsWhereItIsTold()
{
    QFETCH(QString, start);
    QFETCH(QString, last);
    QFETCH(QString, lastRow);
    HostDialogs::setLastFolder(last.isEmpty() ? last : session.root() + last);
    open(
        Json,
        [&] { QCOMPARE(DialogSession::rows().value(DialogSession::rows().size() - 1), lastRow); },
        session.root() + start);
}

void TestFileBrowser::followsTheLanguage()
{
    open(Json, [] {
        QCOMPARE(DialogSession::button("accept")->text(), QStringLiteral("Open"));
        const Language german(QStringLiteral("de"));
        QCOMPARE(DialogSession::button("accept")->text(), QStringLiteral("Öffnen"));
        QCOMPARE(DialogSession::button("refuse")->text(), QStringLiteral("Abbrechen"));
        QCOMPARE(crumbs(), QStringList(QStringLiteral("Eigene Dateien")));
    });
}

void TestFileBrowser::closesWithItsParent()
{
    auto* parent = new QWidget;
    const Answer answer = open(
        Json,
        [parent] {
            delete parent;
            FrontPanel::settle();
            QVERIFY(DialogSession::dialog() == nullptr);
        },
        QString(), parent);
    QCOMPARE(answer.result, 0);
}

QTEST_MAIN(TestFileBrowser)

#include "test_filebrowser.moc"
