// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

namespace {

QSet<QString> identifiersIn(const QString& folder, const QStringList& patterns)
{
    static const QRegularExpression identifier(QStringLiteral("\"(HOSTID_DLG_[A-Z_]+)\""));
    QSet<QString> found;
    for (const QFileInfo& info : QDir(folder).entryInfoList(patterns, QDir::Files)) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto matches = identifier.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            found.insert(matches.next().captured(1));
    }
    return found;
}

QString sources()
{
    return qEnvironmentVariable("MPB_SOURCE_DIR") + QLatin1String("/bench/host/dialogs");
}

} // namespace

class TestDialogTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIdentifierHasAText_data();
    void everyIdentifierHasAText();
    void everyTextIsUsed_data();
    void everyTextIsUsed();
};

void TestDialogTexts::everyIdentifierHasAText_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "zh_CN", "ja"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestDialogTexts::everyIdentifierHasAText()
{
    QFETCH(QString, language);
    QTranslator catalogue;
    QVERIFY(catalogue.load(QLatin1String("kvxdialogs_") + language,
                           qEnvironmentVariable("MPB_TRANSLATIONS_DIR")));
    const QSet<QString> used = identifiersIn(sources(), {QStringLiteral("*.cpp")});
    QVERIFY(used.size() > 30);
    for (const QString& identifier : used) {
        const QString text = catalogue.translate("", qPrintable(identifier));
        QVERIFY2(!text.isEmpty() && text != identifier, qPrintable(identifier));
    }
}

void TestDialogTexts::everyTextIsUsed_data()
{
    everyIdentifierHasAText_data();
}

void TestDialogTexts::everyTextIsUsed()
{
    QFETCH(QString, language);
    const QSet<QString> used = identifiersIn(sources(), {QStringLiteral("*.cpp")});
    const QSet<QString> given =
        identifiersIn(sources() + QLatin1String("/translations"),
                      {QLatin1String("kvxdialogs_") + language + QLatin1String(".ts")});
    QCOMPARE(given, used);
}

QTEST_GUILESS_MAIN(TestDialogTexts)

#include "test_dialogtexts.moc"
