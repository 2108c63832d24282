// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsetrain.h"
#include "runsequence.h"
#include "scriptedserver.h"

#include <QCoreApplication>
#include <QWidget>

#include <memory>

/// A server on the instrument's port that answers the identification queries alone: the one of each
/// show, which exec()'s reset follows, and those that end each Run and Stop.
inline std::unique_ptr<ScriptedServer> benchmarkInstrument(int shows, int runs)
{
    const ScriptedServer::Turn answer{{"MAKER,KVX7010X,0,1.0\n"}, false};
    const ScriptedServer::Turn silence{};
    const int runCommands = RunSequence::runCommands(PulseTrain()).size();
    QVector<ScriptedServer::Turn> script;
    for (int i = 0; i < shows; ++i)
        script << answer << silence;
    for (int i = 0; i < runs; ++i) {
        script += QVector<ScriptedServer::Turn>(runCommands, silence);
        script << answer << silence << silence << answer;
    }
    return std::make_unique<ScriptedServer>(script);
}

/// Returns once the widget and all in it are on the screen.
inline void paint(QWidget* widget)
{
    widget->repaint();
    QCoreApplication::processEvents();
}
