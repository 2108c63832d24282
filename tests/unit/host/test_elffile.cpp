// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "elffile.h"
#include "trialfolder.h"

#include <QTest>

#include <elf.h>

Q_DECLARE_METATYPE(ElfKind)

class TestElfFile : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<ElfKind>("kind");
        const QByteArray plugin = TrialFolder::beginning(QStringLiteral("TrialGood"), 1);
        QTest::newRow("plug-in") << plugin << ElfKind::Plugin;
        QTest::newRow("plug-in of another interface")
            << TrialFolder::beginning(QStringLiteral("TrialForeign"), 1) << ElfKind::Plugin;
        QTest::newRow("library") << TrialFolder::beginning(QStringLiteral("TrialOrdinary"), 1)
                                 << ElfKind::Library;
        QTest::newRow("nothing") << QByteArray() << ElfKind::Damaged;
        QTest::newRow("text") << QByteArray("not a library\n") << ElfKind::Damaged;
        QTest::newRow("header alone") << plugin.left(sizeof(Elf64_Ehdr)) << ElfKind::Damaged;
        QTest::newRow("part of the header") << plugin.left(20) << ElfKind::Damaged;
        QTest::newRow("half") << plugin.left(plugin.size() / 2) << ElfKind::Damaged;
        QTest::newRow("all but a byte") << plugin.left(plugin.size() - 1) << ElfKind::Damaged;
        QByteArray other = plugin;
        other[int(offsetof(Elf64_Ehdr, e_machine))] = char(EM_68K);
        QTest::newRow("another machine") << other << ElfKind::Damaged;
        QByteArray wild = plugin;
        wild.replace(int(offsetof(Elf64_Ehdr, e_shoff)), 8, QByteArray(8, char(0xff)));
        QTest::newRow("tables beyond the end") << wild << ElfKind::Damaged;
        QByteArray names = plugin;
        names.replace(int(offsetof(Elf64_Ehdr, e_shstrndx)), 2, QByteArray(2, char(0xff)));
        QTest::newRow("no names") << names << ElfKind::Damaged;
    }

    void kinds()
    {
        QFETCH(QByteArray, bytes);
        const TrialFolder folder;
        QTEST(elfKind(folder.write(QStringLiteral("file.so"), bytes)), "kind");
    }

    void missingFile() { QCOMPARE(elfKind(QStringLiteral("/nowhere.so")), ElfKind::Damaged); }
};

QTEST_GUILESS_MAIN(TestElfFile)
#include "test_elffile.moc"
