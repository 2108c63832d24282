// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpicall.h"

#include <QByteArray>
#include <QVector>

/// The command tree of an instrument, looked up by the mnemonics of a header. A mnemonic matches in
/// its short or its long form and nothing between; optional nodes may be left out.
class ScpiCommandSet
{
public:
    struct Match
    {
        const ScpiCommand* command = nullptr; ///< owned by the set; null when nothing matches
        QVector<int> suffixes;                ///< as ScpiCall::suffixes
        int errorNumber = 0;                  ///< -113 or -114 when nothing matches
    };

    /// Adds a command; of two that match the same header, the one added first is found.
    void add(const ScpiCommand& command);
    void add(const QVector<ScpiCommand>& commands);

    /// Looks up a header given from the root, its mnemonics in upper case. Only commands that have
    /// the form asked for (query or not) match. The suffix 0, one that is no small number and one
    /// other than 1 on a node without suffixes are -114; a suffix that is too large for the
    /// instrument is the command's own affair.
    Match find(const QVector<QByteArray>& nodes, bool isQuery) const;

    /// Whether some command begins with these mnemonics; the root, no mnemonics, does.
    bool hasPath(const QVector<QByteArray>& nodes) const;

private:
    struct Node
    {
        QByteArray shortForm;
        QByteArray longForm;
        bool isOptional = false;
        bool hasSuffix = false;
    };
    struct Entry
    {
        ScpiCommand command;
        QVector<Node> nodes;
    };

    static QVector<Node> compile(const QByteArray& pattern);
    static Node compileNode(const QByteArray& name);
    static int readSuffix(const Node& node, const QByteArray& mnemonic);
    static int matchHeader(const QVector<Node>& nodes, int node, const QVector<QByteArray>& header,
                           int mnemonic, QVector<int>& suffixes);
    static bool matchPath(const QVector<Node>& nodes, int node, const QVector<QByteArray>& header,
                          int mnemonic);

    QVector<Entry> m_entries;
};
