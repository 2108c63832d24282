// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// One key of the instrument's front, or the press of its knob.
struct FrontKey
{
    QString name;  ///< as scripts write it: "gn", "enter", "7"
    int code = 0;  ///< what the host's screen gets: a Qt key code, or one of frontpanelkeys.h
    QString label; ///< what stands on the key; empty where a sign or a lamp stands on it
    /// Keys of a desktop's keyboard that stand for it, Qt::Key values; the first is the one to
    /// tell.
    QVector<int> desktopKeys;
};

/// All of them, each once.
const QVector<FrontKey>& frontKeys();

/// The key of that name or code; null where there is none.
const FrontKey* frontKeyByName(const QString& name);
const FrontKey* frontKeyByCode(int code);

/// The front key that a desktop's key stands for; null for a key that stands for none.
const FrontKey* frontKeyOfDesktop(int desktopKey);

/// A desktop's key as keyboards name it: "G", "Esc", "Page Up".
QString desktopKeyName(int desktopKey);
