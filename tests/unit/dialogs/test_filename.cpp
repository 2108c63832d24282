// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filename.h"

#include <QDir>
#include <QRandomGenerator>
#include <QtTest>

using namespace HostDialogs;

Q_DECLARE_METATYPE(HostDialogs::NameFault)

class TestFileName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
    void everyFaultHasAText();
    void completes_data();
    void completes();
    void knowsSuffixes_data();
    void knowsSuffixes();
    void readsFilters_data();
    void readsFilters();
    void showsSafely_data();
    void showsSafely();
    void namesAFileInAText();
    void whatPassesIsOneComponent();
};

void TestFileName::judges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<NameFault>("fault");
    const auto row = [](const char* title, const QString& name, NameFault fault) {
        QTest::newRow(title) << name << fault;
    };
    row("plain", QStringLiteral("double_pulse.json"), NameFault::None);
    row("blanks inside", QStringLiteral("half bridge 2"), NameFault::None);
    row("umlauts", QStringLiteral("Prüfling größer"), NameFault::None);
    row("Chinese", QStringLiteral("双脉冲"), NameFault::None);
    row("beyond 16 bits", QStringLiteral("\U0001F50C.json"), NameFault::None);
    row("dash first", QStringLiteral("-rf"), NameFault::None);
    row("backslash", QStringLiteral("a\\b"), NameFault::None);
    row("shell", QStringLiteral("$(reboot);`x`"), NameFault::None);
    row("dots inside", QStringLiteral("a..b"), NameFault::None);
    row("empty", QString(), NameFault::Empty);
    row("blanks", QStringLiteral("   "), NameFault::Empty);
    row("slash", QStringLiteral("a/b"), NameFault::Slash);
    row("absolute", QStringLiteral("/etc/passwd"), NameFault::Slash);
    row("up and over", QStringLiteral("../x"), NameFault::Slash);
    row("dot", QStringLiteral("."), NameFault::Dots);
    row("dots", QStringLiteral(".."), NameFault::Dots);
    row("hidden", QStringLiteral(".app"), NameFault::Hidden);
    row("suffix alone", QStringLiteral(".json"), NameFault::Hidden);
    row("three dots", QStringLiteral("..."), NameFault::Hidden);
    row("line feed", QStringLiteral("a\nb"), NameFault::Control);
    row("null", QString::fromLatin1("a\0b", 3), NameFault::Control);
    row("delete", QStringLiteral("a\x7f"), NameFault::Control);
    row("right to left", QStringLiteral("a\u202Enosj.b"), NameFault::Control);
    row("no width", QStringLiteral("a\u200Bb"), NameFault::Control);
    row("line separator", QStringLiteral("a\u2028b"), NameFault::Control);
    row("half a pair", QString(QChar(0xD83D)) + QLatin1Char('a'), NameFault::Control);
    row("no text", QStringLiteral("a\uFFFD"), NameFault::Control);
    row("255 bytes", QString(255, QLatin1Char('a')), NameFault::None);
    row("256 bytes", QString(256, QLatin1Char('a')), NameFault::TooLong);
    row("86 characters of 3 bytes", QString(86, QChar(0x53CC)), NameFault::TooLong);
    row("85 characters of 3 bytes", QString(85, QChar(0x53CC)), NameFault::None);
}

void TestFileName::judges()
{
    QFETCH(QString, name);
    QFETCH(NameFault, fault);
    QCOMPARE(checkName(name), fault);
}

void TestFileName::everyFaultHasAText()
{
    QSet<QString> texts;
    for (NameFault fault : {NameFault::Empty, NameFault::Slash, NameFault::Dots, NameFault::Hidden,
                            NameFault::Control, NameFault::TooLong}) {
        QVERIFY(!faultText(fault).isEmpty());
        texts.insert(faultText(fault));
    }
    QCOMPARE(texts.size(), 6);
    QVERIFY(faultText(NameFault::None).isEmpty());
}

void TestFileName::completes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("completed");
    QTest::newRow("no suffix") << QStringLiteral("a") << QStringLiteral("a.mpwv");
    QTest::newRow("chosen suffix") << QStringLiteral("a.mpwv") << QStringLiteral("a.mpwv");
    QTest::newRow("other suffix") << QStringLiteral("a.json") << QStringLiteral("a.json");
    QTest::newRow("capitals") << QStringLiteral("A.JSON") << QStringLiteral("A.JSON");
    QTest::newRow("foreign suffix") << QStringLiteral("a.txt") << QStringLiteral("a.txt.mpwv");
    QTest::newRow("blanks around") << QStringLiteral("  a  ") << QStringLiteral("a.mpwv");
    QTest::newRow("nothing") << QStringLiteral("") << QStringLiteral("");
    QTest::newRow("blanks alone") << QStringLiteral("  ") << QStringLiteral("");
}

void TestFileName::completes()
{
    QFETCH(QString, typed);
    QFETCH(QString, completed);
    const QStringList suffixes{QStringLiteral(".json"), QStringLiteral(".mpwv")};
    QCOMPARE(completeName(typed, suffixes, suffixes.last()), completed);
}

void TestFileName::knowsSuffixes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("suffixes");
    QTest::addColumn<bool>("has");
    const QStringList json{QStringLiteral(".json")};
    QTest::newRow("same") << QStringLiteral("a.json") << json << true;
    QTest::newRow("other case") << QStringLiteral("a.JSON") << json << true;
    QTest::newRow("inside") << QStringLiteral("a.json.txt") << json << false;
    QTest::newRow("without dot") << QStringLiteral("ajson") << json << false;
    QTest::newRow("none asked for") << QStringLiteral("a") << QStringList() << true;
}

void TestFileName::knowsSuffixes()
{
    QFETCH(QString, name);
    QFETCH(QStringList, suffixes);
    QTEST(hasSuffix(name, suffixes), "has");
}

void TestFileName::readsFilters_data()
{
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QStringList>("suffixes");
    QTest::newRow("suffixes") << QStringList{QStringLiteral(".json"), QStringLiteral(".mpwv")}
                              << QStringList{QStringLiteral(".json"), QStringLiteral(".mpwv")};
    QTest::newRow("patterns") << QStringList{QStringLiteral("*.json")}
                              << QStringList{QStringLiteral(".json")};
    QTest::newRow("twice") << QStringList{QStringLiteral(".json"), QStringLiteral("*.json")}
                           << QStringList{QStringLiteral(".json")};
    QTest::newRow("everything") << QStringList{QStringLiteral(".json"), QStringLiteral("*")}
                                << QStringList();
    QTest::newRow("everything with a dot") << QStringList{QStringLiteral("*.*")} << QStringList();
    QTest::newRow("none") << QStringList() << QStringList();
}

void TestFileName::readsFilters()
{
    QFETCH(QStringList, filters);
    QTEST(suffixesOf(filters), "suffixes");
}

void TestFileName::showsSafely_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QStringLiteral("a b.json") << QStringLiteral("a b.json");
    QTest::newRow("line feed") << QStringLiteral("a\nb") << QStringLiteral("a\uFFFDb");
    QTest::newRow("direction") << QStringLiteral("a\u202Eb") << QStringLiteral("a\uFFFDb");
    QTest::newRow("Hebrew") << QStringLiteral("\u05E9\u05DC.json")
                            << QStringLiteral("\u05E9\u05DC.json");
}

void TestFileName::showsSafely()
{
    QFETCH(QString, name);
    QTEST(shownName(name), "shown");
}

void TestFileName::namesAFileInAText()
{
    const QString text = QStringLiteral("<%1>");
    QCOMPARE(withName(text, QStringLiteral("a%2.json")), QStringLiteral("<a%2.json>"));
    QCOMPARE(withName(text, QStringLiteral("a\nb")), QStringLiteral("<a\uFFFDb>"));
    const QString cut = withName(text, QString(250, QLatin1Char('x')) + QStringLiteral(".json"));
    QVERIFY(cut.size() < 50);
    QVERIFY(cut.endsWith(QStringLiteral("x.json>")));
    QVERIFY(cut.contains(QChar(0x2026)));
}

// Names made of what is dangerous, at random: one that passes is one component below its folder.
void TestFileName::whatPassesIsOneComponent()
{
    const QStringList pieces{
        QStringLiteral("."),           QStringLiteral(".."), QStringLiteral("/"),
        QStringLiteral("a"),           QStringLiteral(" "),  QStringLiteral("\n"),
        QStringLiteral(".json"),       QStringLiteral("~"),  QStringLiteral("\\"),
        QStringLiteral("\u202E"),      QStringLiteral("ü"),  QStringLiteral("%2e"),
        QString(QChar(0xDC00)),        QString(QChar(0)),    QStringLiteral("\u2044"),
        QString(100, QLatin1Char('x'))};
    QRandomGenerator random(20260401);
    int passed = 0;
    for (int round = 0; round < 20000; ++round) {
        QString typed;
        for (int i = random.bounded(6); i >= 0; --i)
            typed += pieces.at(random.bounded(pieces.size()));
        const QString name =
            completeName(typed, {QStringLiteral(".json")}, QStringLiteral(".json"));
        if (checkName(name) != NameFault::None)
            continue;
        ++passed;
        const QString path = QStringLiteral("/user/folder/") + name;
        QCOMPARE(QDir::cleanPath(path), path);
        QCOMPARE(QFileInfo(path).path(), QStringLiteral("/user/folder"));
        QCOMPARE(QFile::decodeName(QFile::encodeName(path)), path);
        QVERIFY(QFile::encodeName(name).size() <= 255);
    }
    QVERIFY(passed > 100);
}

QTEST_GUILESS_MAIN(TestFileName)

#include "test_filename.moc"
