// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginsTranslation.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include <type_traits>

namespace {

struct Identifier
{
    const char* name;
    const char** variable;
};

struct Alias
{
    const char* name;
    const char* target;
    const char** variable;
    const char** targetVariable;
};

struct Message
{
    QString id;
    QString source;
    QString translation;
    QString type;
};

#define IDENTIFIER_ROW(identifier) {#identifier, &TR_##identifier},
const Identifier identifiers[] = {APPPLUGINS_IDENTIFIERS(IDENTIFIER_ROW)};
#undef IDENTIFIER_ROW

#define ALIAS_ROW(alias, target) {#alias, #target, &TR_##alias, &TR_##target},
const Alias aliases[] = {APPPLUGINS_IDENTIFIER_ALIASES(ALIAS_ROW)};
#undef ALIAS_ROW

static_assert(std::is_same_v<decltype(TR_STR_ID_SAVE), const char*>, "variables can be redirected");
static_assert(std::is_same_v<decltype(TR_ARBID_SAVE), const char*>, "variables can be redirected");

// Taken before main(): whatever fills a table while libraries are loaded sees these values.
const char* const textAtStart = TR_STR_ID_HIGH_LEVEL;
const char* const aliasAtStart = TR_ARBID_SAVEAS;

QStringList languages()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh_CN"),
            QStringLiteral("ja")};
}

QString catalogueOf(const QString& language)
{
    return qEnvironmentVariable("MPB_TRANSLATIONS_DIR") +
           QStringLiteral("/multipulse_%1.qm").arg(language);
}

QString sourceOf(const QString& language)
{
    return qEnvironmentVariable("MPB_SOURCE_DIR") +
           QStringLiteral("/content/translations/multipulse_%1.ts").arg(language);
}

QSet<QString> allNames()
{
    QSet<QString> names;
    for (const Identifier& identifier : identifiers)
        names.insert(QLatin1String(identifier.name));
    for (const Alias& alias : aliases)
        names.insert(QLatin1String(alias.name));
    return names;
}

Message readMessage(QXmlStreamReader& xml)
{
    Message message;
    message.id = xml.attributes().value(QLatin1String("id")).toString();
    while (xml.readNextStartElement()) {
        const QString element = xml.name().toString();
        if (element == QLatin1String("translation"))
            message.type = xml.attributes().value(QLatin1String("type")).toString();
        const QString text = xml.readElementText();
        if (element == QLatin1String("source"))
            message.source = text;
        if (element == QLatin1String("translation"))
            message.translation = text;
    }
    return message;
}

QVector<Message> readSource(const QString& language)
{
    QFile file(sourceOf(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};

    QVector<Message> messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml));
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

// Installs a language's catalogue while it lives.
class Language
{
public:
    explicit Language(const QString& language)
        : m_bLoaded(m_translator.load(catalogueOf(language)))
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Language() { QCoreApplication::removeTranslator(&m_translator); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

    bool isLoaded() const { return m_bLoaded; }

private:
    QTranslator m_translator;
    bool m_bLoaded;
};

} // namespace

class TestPluginsTranslation : public QObject
{
    Q_OBJECT

private slots:
    void hasItsValuesBeforeMain();
    void holdsItsIdentifier_data();
    void holdsItsIdentifier();
    void redirectsAliases_data();
    void redirectsAliases();
    void isExported();
    void showsIdentifierWithoutTranslator();
    void sourceIsComplete_data() { addLanguages(); }
    void sourceIsComplete();
    void sourcesAgree_data() { addLanguages(); }
    void sourcesAgree();
    void catalogueIsComplete_data() { addLanguages(); }
    void catalogueIsComplete();
    void aliasesShowTheTargetsText_data() { addLanguages(); }
    void aliasesShowTheTargetsText();
    void speaksTheLanguage_data();
    void speaksTheLanguage();
    void followsRedirection();
    void leavesUnknownIdentifiers();

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : languages())
            QTest::newRow(qPrintable(language)) << language;
    }
};

void TestPluginsTranslation::hasItsValuesBeforeMain()
{
    QCOMPARE(textAtStart, "STR_ID_HIGH_LEVEL");
    QCOMPARE(aliasAtStart, "STR_ID_SAVE_AS");
}

void TestPluginsTranslation::holdsItsIdentifier_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(identifiers)); ++i)
        QTest::newRow(identifiers[i].name) << i;
}

void TestPluginsTranslation::holdsItsIdentifier()
{
    QFETCH(int, index);
    QCOMPARE(*identifiers[index].variable, identifiers[index].name);
}

void TestPluginsTranslation::redirectsAliases_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("target");

    const auto add = [](const char* name, const char* value, const char* target) {
        QTest::newRow(name) << QByteArray(value) << QByteArray(target);
    };
    add("ARBID_CANCEL", TR_ARBID_CANCEL, "STR_ID_CANCEL");
    add("ARBID_OK", TR_ARBID_OK, "STR_ID_OK");
    add("ARBID_RESAMPLE_LINEAR", TR_ARBID_RESAMPLE_LINEAR, "DBID_SWEEP_TYPE_LINEAR");
    add("ARBID_INTERPOLATE_LINEAR", TR_ARBID_INTERPOLATE_LINEAR, "DBID_SWEEP_TYPE_LINEAR");
    add("ARBID_AMPLITUDE", TR_ARBID_AMPLITUDE, "DBID_AMPLITUDE_VPP");
    add("ARBID_FILE", TR_ARBID_FILE, "DBID_FUNCTION_FILE");
    add("ARBID_SAVE", TR_ARBID_SAVE, "STR_ID_SAVE");
    add("ARBID_SAVEAS", TR_ARBID_SAVEAS, "STR_ID_SAVE_AS");
    add("ARBID_RESAMPLE", TR_ARBID_RESAMPLE, "ARBID_RESAMPLE_TITLE");
    add("ARBID_TABLE", TR_ARBID_TABLE, "STR_ID_EDIT_GRAPH_OR_TABLE_TABLE");
    add("ARBID_BACK", TR_ARBID_BACK, "STR_ID_HELP_BACK");
    add("ARBID_CUT", TR_ARBID_CUT, "STR_ID_EDIT_CUT");
    add("ARBID_PASTE", TR_ARBID_PASTE, "STR_ID_EDIT_PASTE");
    add("ARBID_INVERT", TR_ARBID_INVERT, "STR_ID_INVERT");
    add("ARBID_EXIT", TR_ARBID_EXIT, "STR_ID_HELP_EXIT");
}

void TestPluginsTranslation::redirectsAliases()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, target);
    QCOMPARE(value, target);
    QCOMPARE(int(std::size(aliases)), 15);
}

void TestPluginsTranslation::isExported()
{
    QLibrary library(qEnvironmentVariable("MPB_LIB_DIR") + QStringLiteral("/libappPlugins.so"));
    QVERIFY2(library.load(), qPrintable(library.errorString()));

    const auto valueOf = [&library](const char* name) {
        const auto variable = library.resolve((QByteArray("TR_") + name).constData());
        return variable == nullptr ? "missing" : *reinterpret_cast<const char**>(variable);
    };
    for (const Identifier& identifier : identifiers)
        QCOMPARE(valueOf(identifier.name), identifier.name);
    for (const Alias& alias : aliases)
        QCOMPARE(valueOf(alias.name), alias.target);
}

void TestPluginsTranslation::showsIdentifierWithoutTranslator()
{
    QCOMPARE(qtTrId(TR_STR_UTILITY_RUN), QStringLiteral("STR_UTILITY_RUN"));
    for (const Identifier& identifier : identifiers)
        QCOMPARE(qtTrId(*identifier.variable), QString::fromLatin1(identifier.name));
    for (const Alias& alias : aliases)
        QCOMPARE(qtTrId(*alias.variable), QString::fromLatin1(alias.target));
}

void TestPluginsTranslation::sourceIsComplete()
{
    QFETCH(QString, language);

    QSet<QString> names;
    const QVector<Message> messages = readSource(language);
    for (const Message& message : messages) {
        QVERIFY2(!names.contains(message.id), qPrintable(message.id));
        names.insert(message.id);
        QVERIFY2(message.type.isEmpty(), qPrintable(message.id));
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.id));
        QVERIFY2(message.translation != message.id, qPrintable(message.id));
    }
    QCOMPARE(names - allNames(), QSet<QString>());
    QCOMPARE(allNames() - names, QSet<QString>());
}

// The source text is the English one everywhere: a changed text shows up in each language's file.
void TestPluginsTranslation::sourcesAgree()
{
    QFETCH(QString, language);

    const QVector<Message> english = readSource(QStringLiteral("en"));
    const QVector<Message> messages = readSource(language);
    QCOMPARE(messages.size(), english.size());
    QVERIFY(!messages.isEmpty());
    for (int i = 0; i < messages.size(); ++i) {
        QCOMPARE(messages[i].id, english[i].id);
        QCOMPARE(messages[i].source, english[i].translation);
    }
}

void TestPluginsTranslation::catalogueIsComplete()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY2(installed.isLoaded(), qPrintable(catalogueOf(language)));

    const QVector<Message> messages = readSource(language);
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages)
        QCOMPARE(qtTrId(message.id.toLatin1().constData()), message.translation);
    for (const Identifier& identifier : identifiers) {
        const QString text = qtTrId(*identifier.variable);
        QVERIFY2(text != QLatin1String(identifier.name), identifier.name);
        QVERIFY2(!text.trimmed().isEmpty(), identifier.name);
    }
}

void TestPluginsTranslation::aliasesShowTheTargetsText()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isLoaded());

    for (const Alias& alias : aliases) {
        const QString text = qtTrId(*alias.targetVariable);
        QCOMPARE(qtTrId(*alias.variable), text);
        QCOMPARE(qtTrId(alias.name), text);
        QVERIFY2(text != QLatin1String(alias.target), alias.target);
    }
}

void TestPluginsTranslation::speaksTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("highLevel");
    QTest::addColumn<QString>("warning");

    QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("High Level")
                        << QStringLiteral("Value out of range (31) \nValid range   (2");
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("High-Pegel")
                        << QStringLiteral(
                               "Wert außerhalb des Bereichs (31) \nGültiger Bereich   (2");
    QTest::newRow("zh_CN") << QStringLiteral("zh_CN") << QStringLiteral("高电平")
                           << QStringLiteral("数值超出范围 (31) \n有效范围   (2");
    QTest::newRow("ja") << QStringLiteral("ja") << QStringLiteral("ハイレベル")
                        << QStringLiteral("値が範囲外です (31) \n有効範囲   (2");
}

// The warning is put together from two texts and the numbers, so that the blank at the first one's
// end matters.
void TestPluginsTranslation::speaksTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, highLevel);
    QFETCH(QString, warning);
    const Language installed(language);

    QCOMPARE(qtTrId(TR_STR_ID_HIGH_LEVEL), highLevel);
    QCOMPARE(qtTrId(TR_ARBID_ERROR_CODE_S0207) + QStringLiteral("(31) \n") +
                 qtTrId(TR_STR_ID_VALID_RANGE) + QStringLiteral("   (2"),
             warning);
}

void TestPluginsTranslation::followsRedirection()
{
    const Language english(QStringLiteral("en"));
    QCOMPARE(qtTrId(TR_STR_UTILITY_RUN), QStringLiteral("Run"));

    const char* const before = TR_STR_UTILITY_RUN;
    TR_STR_UTILITY_RUN = TR_STR_ID_SWEEP_STOP;
    const QString redirected = qtTrId(TR_STR_UTILITY_RUN);
    TR_STR_UTILITY_RUN = before;
    QCOMPARE(redirected, QStringLiteral("Stop"));
}

void TestPluginsTranslation::leavesUnknownIdentifiers()
{
    const Language english(QStringLiteral("en"));
    QCOMPARE(qtTrId("STR_ID_NOT_IN_THE_CATALOGUE"), QStringLiteral("STR_ID_NOT_IN_THE_CATALOGUE"));
}

QTEST_GUILESS_MAIN(TestPluginsTranslation)
#include "test_pluginstranslation.moc"
