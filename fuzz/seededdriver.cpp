// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <random>

// Runs a fuzz target without libFuzzer, for compilers that have none: every file of a corpus as it
// stands, then a fixed number of seeded mutations of each. The same seed makes the same inputs.

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace {

using Random = std::mt19937;

int below(Random& random, int limit)
{
    return static_cast<int>(random() % static_cast<unsigned>(limit));
}

void mutateOnce(QByteArray& bytes, Random& random)
{
    const int at = below(random, bytes.size() + 1);
    switch (below(random, 5)) {
    case 0:
        bytes.insert(at, static_cast<char>(random()));
        break;
    case 1:
        bytes.remove(at, 1 + below(random, 8));
        break;
    case 2:
        bytes.insert(at, bytes.mid(below(random, bytes.size() + 1), below(random, 64)));
        break;
    case 3:
        bytes.truncate(at);
        break;
    default:
        if (at < bytes.size())
            bytes[at] = static_cast<char>(bytes.at(at) ^ (1 << below(random, 8)));
    }
}

void run(const QByteArray& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

int runMutations(const QByteArray& seedInput, int count, Random& random)
{
    for (int i = 0; i < count; ++i) {
        QByteArray bytes = seedInput;
        for (int changes = 1 + below(random, 6); changes > 0; --changes)
            mutateOnce(bytes, random);
        run(bytes);
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s CORPUS MUTATIONS_PER_FILE\n", argv[0]);
        return 2;
    }
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});

    const QDir corpus(QString::fromLocal8Bit(argv[1]));
    Random random(20261120);
    int runs = 0;
    for (const QString& name : corpus.entryList(QDir::Files, QDir::Name)) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        run(bytes);
        runs += 1 + runMutations(bytes, std::atoi(argv[2]), random);
    }
    std::printf("%d inputs\n", runs);
    return runs > 0 ? 0 : 1;
}
