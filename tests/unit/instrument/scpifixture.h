// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpiinstrument.h"

#include <QByteArray>
#include <QList>

/// An instrument with a handful of commands of its own: two settings that can be asked back, a
/// query with a long reply and commands that fail.
class ScpiFixture
{
public:
    ScpiFixture()
        : instrument({"Maker,KVX70102,S1,1.0", [this] { ++resets; },
                      [this] {
                          ++triggers;
                          return takesTriggers;
                      },
                      ownCommands(), [this] { return operation; }})
    {}

    QByteArray execute(const QByteArray& message) { return instrument.execute(message); }

    /// The error queue's entries, taken out, by their numbers.
    QList<int> errors()
    {
        QList<int> numbers;
        while (!instrument.errors().isEmpty())
            numbers.append(instrument.errors().take().split(',').first().toInt());
        return numbers;
    }

    int resets = 0;
    int triggers = 0;
    int longQueries = 0;
    bool takesTriggers = true;
    quint16 operation = 0;
    QByteArray level = "0";
    QByteArray source = "EXT";
    QByteArray longReply = QByteArray(300000, 'x');
    ScpiInstrument instrument;

private:
    static ScpiCommand setting(const char* pattern, QByteArray& value)
    {
        return {pattern,
                [&value](ScpiCall& call) {
                    if (call.parameters.isEmpty())
                        call.fail(-109);
                    else
                        value = call.parameters.first().text;
                },
                [&value](ScpiCall& call) { call.reply = value; }};
    }

    QVector<ScpiCommand> ownCommands()
    {
        return {
            setting("[SOURce#]:VOLTage[:LEVel]", level),
            setting("TRIGger:SOURce", source),
            {"LONG",
             {},
             [this](ScpiCall& call) {
                 ++longQueries;
                 call.reply = longReply;
             }},
            {"EMPTy", {}, [](ScpiCall&) {}},
            {"FAIL",
             [](ScpiCall& call) {
                 call.fail(-256,
                           call.parameters.isEmpty() ? QByteArray() : call.parameters.first().text);
             },
             [](ScpiCall& call) {
                 call.reply = "never seen";
                 call.fail(-230);
             }},
            {"CHANnel#:NUMBer",
             {},
             [](ScpiCall& call) { call.reply = QByteArray::number(call.suffixes.first()); }},
        };
    }
};
