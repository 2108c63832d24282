// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenariotext.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>

/// Where something stands relative to a text on the screen.
struct ScreenRelation
{
    enum Side { RightOf, LeftOf, Below, Above };

    Side side = RightOf;
    ScenarioText landmark;
};

/// What a scenario points at: a place in pixels, or something that shows a text, or that stands
/// beside one, or both.
struct ScreenTarget
{
    bool isPlace = false;
    QPoint place;
    bool hasText = false;
    ScenarioText text;
    QVector<ScreenRelation> relations; ///< all of them hold
};

/// One line of a scenario.
struct Statement
{
    enum Kind {
        Step,            ///< tells what follows: text
        Language,        ///< waits for the screen's language and reads identifiers in it: name
        Touch,           ///< taps: target
        Hold,            ///< touches for some time: target, seconds
        Drag,            ///< touches, slides and lets go: target, destination
        Turn,            ///< turns the knob: count, clockwise positive
        Key,             ///< presses a key of the front panel: name, count
        Type,            ///< types on a keyboard: text
        Number,          ///< enters a number with the front panel's keys: keys
        ExpectText,      ///< target is on the screen
        ExpectNoText,    ///< it is not
        ExpectState,     ///< target is on the screen and in a state: state
        ExpectPicture,   ///< the screen looks as approved: name, area (empty: all of it)
        ExpectCommand,   ///< the instrument was sent: text
        ExpectNoCommand, ///< it was not
        ExpectFile,      ///< the user-data folder has: name
        ExpectNoFile,    ///< it has not
        Picture,         ///< leaves a picture of the screen: name
        Pause,           ///< rests: seconds
        Plot,            ///< leaves a plot of what channel 1 put out: name
        Save             ///< copies from the user-data folder: name, destinationName
    };
    enum State { Enabled, Disabled, Focused, Checked, Unchecked };

    static constexpr double DefaultSeconds = 10; ///< time that an expectation has

    int line = 0;   ///< in the file, from 1
    QString source; ///< the line itself, without blanks round it
    Kind kind = Step;
    ScreenTarget target;
    ScreenTarget destination;
    ScenarioText text;
    QString name;
    QString destinationName;
    QStringList keys;
    State state = Enabled;
    int count = 1;
    QRect area;
    double seconds = DefaultSeconds; ///< time limit; the duration of Hold and Pause
};
