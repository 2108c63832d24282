// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// Resident memory of the loaded plug-in with its editor shown, above that of a host that shows an
// empty screen. It needs a world of its own and the content in it.

#include "benchinstrument.h"
#include "editorhost.h"

#include <QApplication>
#include <QDialog>
#include <QFile>

#include <cstdio>

namespace {

struct Resident
{
    double rss = 0; ///< KiB in memory
    double pss = 0; ///< the same, a page shared among n processes counted as one n-th
};

// Under an emulator the process holds the emulator too. The emulated program's memory is the 4 GiB
// from where the emulator was told to put it.
bool isOfProgram(quint64 address)
{
    static const quint64 base = qEnvironmentVariable("QEMU_GUEST_BASE").toULongLong(nullptr, 0);
    return base == 0 || (address >= base && address < base + (quint64(1) << 32));
}

Resident residentMemory()
{
    QFile file(QStringLiteral("/proc/self/smaps"));
    Resident sum;
    if (!file.open(QIODevice::ReadOnly))
        return sum;
    bool counted = false;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        bool isAddress = false;
        const quint64 address = words.first().split('-').first().toULongLong(&isAddress, 16);
        if (isAddress && words.first().contains('-'))
            counted = isOfProgram(address);
        else if (counted && words.first() == "Rss:")
            sum.rss += words.value(1).toDouble();
        else if (counted && words.first() == "Pss:")
            sum.pss += words.value(1).toDouble();
    }
    return sum;
}

void print(const char* what, const Resident& before, const Resident& after)
{
    std::printf("%s: %.1f MiB resident above %.1f MiB of an empty host (%.1f above %.1f, shared "
                "pages divided)\n",
                what, (after.rss - before.rss) / 1024, before.rss / 1024,
                (after.pss - before.pss) / 1024, before.pss / 1024);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const auto server = benchmarkInstrument(1, 0);
    {
        QWidget empty;
        empty.setGeometry(0, 0, 800, 480);
        empty.show();
        paint(&empty);
    }
    const Resident before = residentMemory();
    EditorHost host;
    host.show();
    host.exec([&] {
        paint(host.editor());
        print("plug-in with its editor shown", before, residentMemory());
    });
    return 0;
}
