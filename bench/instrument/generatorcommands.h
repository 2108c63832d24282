// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpicall.h"

#include <QVector>

class GeneratorModel;

/// The command tree of a generator. The commands hold a pointer to @p model, which outlives them.
///
/// Errors beyond those of the parameters themselves: -114 a channel suffix other than 1 and 2; -211
/// a trigger that finds no channel ready; -221 levels that leave the model's bounds together, or
/// the shape EFILe without a loaded file; loading a file as in WaveformStore::load(). A command
/// that fails changes nothing.
///
/// Two groups belong to the bench and not to a generator: SIMulate, the world around it, and TRACe#
/// with FORMat:BORDer, what a channel put out.
QVector<ScpiCommand> generatorCommands(GeneratorModel& model);
