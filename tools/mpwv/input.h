// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"

#include "pulsetrain.h"
#include "waveformreader.h"

#include <QJsonObject>
#include <QString>

/// Reading what the user names: setup documents and waveform files, "-" for the standard input.

/// Largest setup document that is read, in bytes; what is larger is refused.
const qint64 MaxSetupBytes = qint64(64) * 1024 * 1024;

/// One input, told apart by its first bytes: a waveform file begins with the format's magic.
struct Input
{
    enum Kind { Setup, Waveform };
    Kind kind = Setup;
    QJsonObject document;          ///< of a setup
    appPlugins::WaveformFile file; ///< of a waveform file
};

/// Reads @p path (or the standard input for "-"). Returns an empty text and fills @p input, or the
/// reason for the user, which names the file, and in a JSON text the place.
QString readInput(const QString& path, Streams& streams, Input& input);

/// Reads a setup document as the editor's Open does: any non-empty JSON object is taken. Returns as
/// readInput() does; a waveform file is refused.
QString readSetup(const QString& path, Streams& streams, QJsonObject& document);

/// Reads the bytes of @p path (or the standard input for "-"), at most MaxSetupBytes. Returns as
/// readInput() does.
QString readBytes(const QString& path, Streams& streams, QByteArray& bytes);

/// True when @p bytes begin as a waveform file does.
bool isWaveform(const QByteArray& bytes);

/// Takes a setup document from its text as readSetup() does; @p path only names it in the reason.
QString parseSetup(const QString& path, const QByteArray& bytes, QJsonObject& document);

/// Writes @p bytes to @p path ("-" for the standard output) whole or not at all: a file appears
/// under its name only when it is complete. Returns an empty text or the reason.
QString writeOutput(const QString& path, const QByteArray& bytes, Streams& streams);

/// One text for all names of a file, whether it exists or not.
QString fileIdentity(const QString& path);

/// Why @p output must not be written while @p input is what it is made of: both are one file. Empty
/// where they are not; a pipe, a device or "-" is never overwritten.
QString overwriteReason(const QString& input, const QString& output);

/// The "--load" option: "50" or "hi-z", in letters of any case. False for any other text.
bool parseLoad(const QString& text, LoadImpedance& load);

/// A number with an optional prefix letter of "[nuµmkKMG]" and then, also optional, @p unit: "2u",
/// "0.5m", "2us" where the unit is "s". False for anything else.
bool parseEngineering(const QString& text, double& value, const QString& unit = QString());

/// The prefix letters of parseEngineering(), for a complaint about a text that it does not take.
QString prefixHint();

/// @p value with @p unit in engineering notation for people: "2.000 us", "125.000 kHz"; from a
/// million millions on with an exponent instead, "1.000e+15 s".
QString engineeringText(double value, const QString& unit);

/// Prints "mpwv: TEXT" on the error stream.
void printError(Streams& streams, const QString& text);

/// @p text on one line, safe for a terminal: control characters as "\u000a", shortened where it is
/// very long.
QString printable(const QString& text);
