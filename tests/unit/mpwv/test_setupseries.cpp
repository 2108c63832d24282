// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupseries.h"

#include "commandrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestSetupSeries : public QObject
{
    Q_OBJECT

private slots:
    void writesAll();
    void takesEverythingBack();
    void refusesWhatIsNoFolder();
    void refusesRepeatedNames();

private:
    static SeriesFile file(int index)
    {
        return {QStringLiteral("f%1").arg(index), QByteArray::number(index)};
    }
    static QStringList namesIn(const QString& folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }
};

void TestSetupSeries::writesAll()
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath(QStringLiteral("a/b"));
    QCOMPARE(writeSeries(folder, 3, file), QString());
    QCOMPARE(namesIn(folder),
             (QStringList{QStringLiteral("f0"), QStringLiteral("f1"), QStringLiteral("f2")}));
    QCOMPARE(fileBytes(folder + QLatin1String("/f2")), QByteArray("2"));
}

void TestSetupSeries::takesEverythingBack()
{
    const QTemporaryDir folder;
    const QString taken = folder.filePath(QStringLiteral("f2"));
    QVERIFY(writeBytes(taken, "mine"));
    QCOMPARE(writeSeries(folder.path(), 4, file), taken + QLatin1String(": exists already"));
    QCOMPARE(namesIn(folder.path()), QStringList(QStringLiteral("f2")));
    QCOMPARE(fileBytes(taken), QByteArray("mine"));
}

void TestSetupSeries::refusesWhatIsNoFolder()
{
    const QTemporaryDir parent;
    const QString path = parent.filePath(QStringLiteral("file"));
    QVERIFY(writeBytes(path, "mine"));
    QCOMPARE(writeSeries(path, 1, file), path + QLatin1String(": cannot be made a folder"));
    QCOMPARE(fileBytes(path), QByteArray("mine"));
}

void TestSetupSeries::refusesRepeatedNames()
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath(QStringLiteral("new"));
    const QString reason = writeSeries(folder, 2, [](int) { return file(0); });
    QVERIFY2(reason.startsWith(QLatin1String("f0: ")), qPrintable(reason));
    QVERIFY(!QDir(folder).exists());
}

QTEST_APPLESS_MAIN(TestSetupSeries)
#include "test_setupseries.moc"
