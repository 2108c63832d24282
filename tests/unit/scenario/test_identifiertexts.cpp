// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "identifiertexts.h"

#include <QTemporaryDir>
#include <QtTest>

class TestIdentifierTexts : public QObject
{
    Q_OBJECT

private:
    static QString folder() { return qEnvironmentVariable("MPB_TRANSLATIONS_DIR"); }

private Q_SLOTS:
    void everyLanguage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("en") << "Run";
        QTest::newRow("de") << QString();
        QTest::newRow("zh_CN") << QString();
        QTest::newRow("ja") << QString();
    }

    void everyLanguage()
    {
        QFETCH(QString, text);
        IdentifierTexts texts;
        const QString language = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(texts.load(folder(), language), QString());
        QCOMPARE(texts.language(), language);
        QVERIFY(texts.contains("STR_UTILITY_RUN"));
        QVERIFY(texts.text("STR_UTILITY_RUN") != "STR_UTILITY_RUN");
        if (!text.isEmpty())
            QCOMPARE(texts.text("STR_UTILITY_RUN"), text);
    }

    void unknownIdentifierStaysItself()
    {
        IdentifierTexts texts;
        QCOMPARE(texts.load(folder(), "en"), QString());
        QVERIFY(!texts.contains("NONE_OF_OURS"));
        QCOMPARE(texts.text("NONE_OF_OURS"), QString("NONE_OF_OURS"));
    }

    void noCatalogues()
    {
        IdentifierTexts texts;
        QVERIFY(texts.load(folder(), "tlh").contains("tlh"));
        QVERIFY(!texts.contains("STR_UTILITY_RUN"));
    }

    void damagedCatalogue()
    {
        const QTemporaryDir damaged;
        QFile file(damaged.filePath("broken_en.qm"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no catalogue at all");
        file.close();
        IdentifierTexts texts;
        QVERIFY(texts.load(damaged.path(), "en").contains("broken_en.qm"));
    }
};

QTEST_GUILESS_MAIN(TestIdentifierTexts)

#include "test_identifiertexts.moc"
