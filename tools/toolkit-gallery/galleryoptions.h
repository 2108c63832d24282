// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct GalleryOptions
{
    enum Task {
        Show,   ///< the window
        Render, ///< pictures of the pages
        Soak,   ///< random events
        Tell,   ///< nothing but text
        Refuse  ///< nothing, the command line being wrong
    };

    Task task = Show;
    QString page;     ///< one page; empty for the first one on show, for all when rendering
    QString language; ///< one language; empty for English on show, for all when rendering
    QString folder;   ///< where the pictures go
    int events = 0;   ///< length of the soak
    quint32 seed = 1;
    bool logs = false; ///< let the library's log through
    QString text;      ///< what to tell, or why the command line is refused
};

/// Reads the command line, the program's name first.
GalleryOptions parseGalleryOptions(const QStringList& arguments);
