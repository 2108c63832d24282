// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginfinder.h"
#include "trialfolder.h"

#include <QTest>

class TestPluginFinder : public QObject
{
    Q_OBJECT

private slots:
    void listsByNameWhatCanBeChosen()
    {
        const TrialFolder folder;
        const QString good = folder.add(QStringLiteral("TrialGood"));
        folder.add(QStringLiteral("TrialOrdinary"));
        folder.add(QStringLiteral("TrialForeign"));
        folder.write(QStringLiteral("Alien.so"), "rubbish");
        folder.write(QStringLiteral("libHalf.so"),
                     TrialFolder::beginning(QStringLiteral("TrialGood"), 0.5));
        folder.write(QStringLiteral("readme.txt"), "no library");

        const QVector<PluginFile> found = findPlugins(folder.path());
        QStringList told;
        for (const PluginFile& file : found)
            told.append(file.baseName() + (file.isUsable ? QString() : QStringLiteral(" broken")));
        QCOMPARE(told, QStringList({QStringLiteral("TrialGood"), QStringLiteral("Alien broken"),
                                    QStringLiteral("Half broken"),
                                    QStringLiteral("TrialForeign broken")}));
        QCOMPARE(found.first().path, good);
        QCOMPARE(found.first().name, QStringLiteral("Trial"));
    }

    void foldersAreNoPlugins()
    {
        const TrialFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("libFolder.so")));
        QVERIFY(findPlugins(folder.path()).isEmpty());
    }

    void missingFolderHasNone() { QVERIFY(findPlugins(QStringLiteral("/nowhere")).isEmpty()); }
};

QTEST_GUILESS_MAIN(TestPluginFinder)
#include "test_pluginfinder.moc"
