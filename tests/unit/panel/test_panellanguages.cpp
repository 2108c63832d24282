// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panellanguages.h"

#include "frontkey.h"
#include "paneltexts.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

QString sourceFolder()
{
    return qEnvironmentVariable("MPB_SOURCE_DIR") + QStringLiteral("/bench/panel");
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QSet<QString> usedIdentifiers()
{
    static const QRegularExpression form(QStringLiteral("\"(PANELID_[A-Z0-9_]+[A-Z0-9])\""));
    QSet<QString> used;
    QDirIterator files(sourceFolder(), {QStringLiteral("*.cpp")}, QDir::Files);
    while (files.hasNext()) {
        auto matches = form.globalMatch(QString::fromUtf8(contentOf(files.next())));
        while (matches.hasNext())
            used.insert(matches.next().captured(1));
    }
    for (const FrontKey& key : frontKeys()) {
        if (key.name.size() > 1 || !key.name.at(0).isDigit())
            used.insert(QStringLiteral("PANELID_KEY_") + key.name.toUpper());
    }
    return used;
}

QHash<QString, QString> textsOf(const QString& language)
{
    QHash<QString, QString> texts;
    const QByteArray bytes =
        contentOf(sourceFolder() + QStringLiteral("/translations/kvxpanel_%1.ts").arg(language));
    QXmlStreamReader reader(bytes);
    QString identifier;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("message"))
            identifier = reader.attributes().value(QLatin1String("id")).toString();
        else if (reader.isStartElement() && reader.name() == QLatin1String("translation"))
            texts.insert(identifier, reader.readElementText());
    }
    return texts;
}

} // namespace

class TestPanelLanguages : public QObject
{
    Q_OBJECT

private slots:
    void locales_data();
    void locales();
    void folders();
    void everyText_data();
    void everyText();
    void placeholders_data();
    void placeholders();
    void installs();
    void missingTexts();
    void keyHelps_data();
    void keyHelps();
};

void TestPanelLanguages::locales_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    const auto row = [](const char* locale, const char* language) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromLatin1(language);
    };
    row("de_AT", "de");
    row("de", "de");
    row("zh_TW", "zh_CN");
    row("ja_JP", "ja");
    row("en_GB", "en");
    row("fr_FR", "en");
    row("C", "en");
}

void TestPanelLanguages::locales()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QCOMPARE(PanelLanguages::ofLocale(locale), language);
}

void TestPanelLanguages::folders()
{
    const QByteArray told = qgetenv("MPB_TRANSLATIONS_DIR");
    QCOMPARE(PanelLanguages::defaultFolder(QStringLiteral("/opt/bin")), QString::fromUtf8(told));
    qunsetenv("MPB_TRANSLATIONS_DIR");
    QCOMPARE(PanelLanguages::defaultFolder(QStringLiteral("/opt/bin")),
             QStringLiteral("/opt/share/multi-pulse-builder/translations"));
    qputenv("MPB_TRANSLATIONS_DIR", told);
}

void TestPanelLanguages::everyText_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : PanelLanguages::all())
        QTest::newRow(qPrintable(language)) << language;
}

void TestPanelLanguages::everyText()
{
    QFETCH(QString, language);
    const QHash<QString, QString> texts = textsOf(language);
    const QSet<QString> used = usedIdentifiers();
    QVERIFY(used.size() > 60);
    const QStringList known = texts.keys();
    QCOMPARE(QSet<QString>(known.begin(), known.end()), used);
    for (auto text = texts.constBegin(); text != texts.constEnd(); ++text)
        QVERIFY2(!text.value().trimmed().isEmpty(), qPrintable(text.key()));
}

void TestPanelLanguages::placeholders_data()
{
    everyText_data();
}

void TestPanelLanguages::placeholders()
{
    QFETCH(QString, language);
    const QHash<QString, QString> english = textsOf(QStringLiteral("en"));
    const QHash<QString, QString> texts = textsOf(language);
    for (auto text = english.constBegin(); text != english.constEnd(); ++text) {
        for (const char* const place : {"%1", "%2", "%3"}) {
            const QString mark = QString::fromLatin1(place);
            QVERIFY2(text.value().count(mark) == texts.value(text.key()).count(mark),
                     qPrintable(text.key()));
        }
    }
}

void TestPanelLanguages::installs()
{
    PanelLanguages languages(PanelLanguages::defaultFolder(QString()));
    const QStringList menus = {QStringLiteral("Menu"), QStringLiteral("Menü"),
                               QStringLiteral("菜单"), QStringLiteral("メニュー")};
    for (int i = 0; i < menus.size(); ++i) {
        QVERIFY(languages.install(PanelLanguages::all().at(i)));
        QCOMPARE(languages.current(), PanelLanguages::all().at(i));
        QCOMPARE(qtTrId("PANELID_MENU"), menus.at(i));
    }
    QVERIFY(!languages.install(QStringLiteral("fr")));
    QCOMPARE(languages.current(), QStringLiteral("ja"));
}

void TestPanelLanguages::missingTexts()
{
    QTemporaryDir empty;
    PanelLanguages languages(empty.path());
    QVERIFY(!languages.install(QStringLiteral("de")));
    QCOMPARE(languages.current(), QString());
}

void TestPanelLanguages::keyHelps_data()
{
    everyText_data();
}

// Each help names what the key does and its equivalents on the keyboard.
void TestPanelLanguages::keyHelps()
{
    QFETCH(QString, language);
    PanelLanguages languages(PanelLanguages::defaultFolder(QString()));
    QVERIFY(languages.install(language));
    const QString page = PanelTexts::helpPage();
    for (const FrontKey& key : frontKeys()) {
        const QString help = PanelTexts::keyHelp(key);
        QVERIFY2(!help.contains(QLatin1String("PANELID")), qPrintable(help));
        QVERIFY2(help.contains(PanelTexts::keyMeaning(key)), qPrintable(help));
        for (const int desktopKey : key.desktopKeys)
            QVERIFY2(help.contains(desktopKeyName(desktopKey)), qPrintable(help));
        QVERIFY2(page.contains(PanelTexts::keyMeaning(key).toHtmlEscaped()), qPrintable(key.name));
    }
    QVERIFY(!page.contains(QLatin1String("PANELID")));
}

QTEST_GUILESS_MAIN(TestPanelLanguages)
#include "test_panellanguages.moc"
