// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace {

QString readSource(const QString& name)
{
    QFile file(qEnvironmentVariable("MPB_SOURCE_DIR") + QStringLiteral("/bench/host/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll());
}

QSet<QString> usedIdentifiers()
{
    QSet<QString> identifiers;
    auto matches = QRegularExpression(QStringLiteral("\"(HOSTID_\\w+)\""))
                       .globalMatch(readSource(QStringLiteral("hosttext.h")));
    while (matches.hasNext())
        identifiers.insert(matches.next().captured(1));
    return identifiers;
}

QMap<QString, QString> catalogueOf(const QString& language)
{
    QXmlStreamReader xml(readSource(QStringLiteral("translations/kvxhost_%1.ts").arg(language)));
    QMap<QString, QString> texts;
    QString identifier;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("message"))
            identifier = xml.attributes().value(QLatin1String("id")).toString();
        else if (xml.isStartElement() && xml.name() == QLatin1String("translation"))
            texts.insert(identifier, xml.readElementText());
    }
    return texts;
}

/// The marks for values in a text, in order: "%1%2".
QString marksOf(const QString& text)
{
    QStringList marks;
    auto matches = QRegularExpression(QStringLiteral("%\\d")).globalMatch(text);
    while (matches.hasNext())
        marks.append(matches.next().captured());
    marks.sort();
    return marks.join(QString());
}

} // namespace

class TestHostText : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsThereInEveryLanguage_data() { languages(); }

    void everyTextIsThereInEveryLanguage()
    {
        QFETCH(QString, language);
        const QMap<QString, QString> english = catalogueOf(QStringLiteral("en"));
        const QMap<QString, QString> texts = catalogueOf(language);
        QCOMPARE(texts.keys(), english.keys());
        const QSet<QString> used = usedIdentifiers();
        QVERIFY(used.size() > 40);
        for (const QString& identifier : used) {
            QVERIFY2(!texts.value(identifier).isEmpty(), qPrintable(identifier));
            QCOMPARE(marksOf(texts.value(identifier)), marksOf(english.value(identifier)));
        }
    }

    void nothingIsTranslatedInVain()
    {
        const QSet<QString> used = usedIdentifiers();
        for (const QString& identifier : catalogueOf(QStringLiteral("en")).keys())
            QVERIFY2(used.contains(identifier) ||
                         identifier.startsWith(QLatin1String("HOSTID_PLUGIN_")),
                     qPrintable(identifier));
    }

    void installs_data() { languages(); }

    void installs()
    {
        QFETCH(QString, language);
        Languages installed(qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
        QCOMPARE(installed.install(language), QString());
        QCOMPARE(installed.current(), language);
        QCOMPARE(qtTrId("HOSTID_SETTINGS"),
                 catalogueOf(language).value(QStringLiteral("HOSTID_SETTINGS")));
        // The plug-in's and the dialogs' as well.
        QVERIFY(qtTrId("STR_ID_HIGH_LEVEL") != QLatin1String("STR_ID_HIGH_LEVEL"));
        QVERIFY(!Languages::nameOf(language).isEmpty());
    }

    void oneLanguageReplacesAnother()
    {
        {
            Languages installed(qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
            installed.install(QStringLiteral("de"));
            installed.install(QStringLiteral("ja"));
            QCOMPARE(qtTrId("HOSTID_SETTINGS"), QStringLiteral("設定"));
            installed.install(QStringLiteral("de"));
            QCOMPARE(qtTrId("HOSTID_SETTINGS"), QStringLiteral("Einstellungen"));
        }
        QCOMPARE(qtTrId("HOSTID_SETTINGS"), QStringLiteral("HOSTID_SETTINGS"));
    }

    void missingCataloguesAreTold()
    {
        Languages installed(QStringLiteral("/nowhere"));
        const QString problem = installed.install(QStringLiteral("de"));
        QVERIFY2(problem.startsWith(QLatin1String("/nowhere: cannot read multipulse_de.qm")),
                 qPrintable(problem));
        QCOMPARE(installed.current(), QStringLiteral("de"));
    }

    void desktopsLanguageIsOneOfThem()
    {
        QVERIFY(Languages::all().contains(Languages::ofDesktop()));
    }

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : Languages::all())
            QTest::newRow(qPrintable(language)) << language;
    }
};

QTEST_GUILESS_MAIN(TestHostText)
#include "test_hosttext.moc"
