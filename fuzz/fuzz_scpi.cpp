// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatormodel.h"
#include "scpiinstrument.h"
#include "scpisession.h"

#include <QTemporaryDir>

#include <cstddef>
#include <cstdlib>

namespace {

ScpiDevice deviceOf(GeneratorModel& model)
{
    return {"Maker,KVX70102,0,1", [&model]() { model.reset(); },
            [&model]() { return model.trigger(); }, model.commands()};
}

const QString& emptyFolder()
{
    static const QTemporaryDir folder;
    static const QString path = folder.path();
    return path;
}

// The clock stands still, so that the same bytes always mean the same.
qint64 noTime()
{
    return 0;
}

} // namespace

// What a client sent, in two pieces, to a whole generator: each reply is one line, and afterwards
// the instrument still answers.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    GeneratorModel model(emptyFolder(), QStringLiteral("KVX7010X"), noTime);
    ScpiInstrument instrument(deviceOf(model));
    ScpiSession session(instrument);

    session.feed(bytes.left(bytes.size() / 2));
    session.feed(bytes.mid(bytes.size() / 2));

    ScpiSession other(instrument);
    const QByteArray identity = other.feed("*CLS\n*IDN?\n");
    if (identity != "Maker,KVX70102,0,1\n")
        std::abort();
    return 0;
}
