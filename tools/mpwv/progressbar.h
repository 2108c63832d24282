// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

class QIODevice;

/// A line on a terminal that shows how much is done. It gives way to messages and vanishes at the
/// end; where there is no terminal it draws nothing.
class ProgressBar
{
public:
    ProgressBar(QIODevice* terminal, bool isTerminal, int total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Takes the line away, so that a message can be written.
    void clear();
    /// Draws the line where it changes.
    void show(int done);

private:
    QIODevice* m_pTerminal;
    int m_nTotal;
    int m_nShown = -1; ///< per mille; -1 for no line
};
