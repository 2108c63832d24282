// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpicommandset.h"

#include "scpitext.h"

#include <algorithm>

namespace {

const int NoMatch = -113;
const int BadSuffix = -114;
const int MaxSuffixDigits = 6;

int lettersOf(const QByteArray& mnemonic)
{
    int length = mnemonic.size();
    while (length > 0 && ScpiText::isDigit(mnemonic.at(length - 1)))
        --length;
    return length;
}

} // namespace

void ScpiCommandSet::add(const ScpiCommand& command)
{
    m_entries.append(Entry{command, compile(command.pattern)});
}

void ScpiCommandSet::add(const QVector<ScpiCommand>& commands)
{
    for (const ScpiCommand& command : commands)
        add(command);
}

ScpiCommandSet::Match ScpiCommandSet::find(const QVector<QByteArray>& nodes, bool isQuery) const
{
    Match match;
    match.errorNumber = NoMatch;
    for (const Entry& entry : m_entries) {
        if (!(isQuery ? entry.command.query : entry.command.set))
            continue;
        QVector<int> suffixes;
        const int result = matchHeader(entry.nodes, 0, nodes, 0, suffixes);
        if (result == 0)
            return Match{&entry.command, suffixes, 0};
        match.errorNumber = std::min(match.errorNumber, result);
    }
    return match;
}

bool ScpiCommandSet::hasPath(const QVector<QByteArray>& nodes) const
{
    return std::any_of(m_entries.cbegin(), m_entries.cend(), [&nodes](const Entry& entry) {
        return matchPath(entry.nodes, 0, nodes, 0);
    });
}

QVector<ScpiCommandSet::Node> ScpiCommandSet::compile(const QByteArray& pattern)
{
    QVector<Node> nodes;
    QByteArray name;
    bool isOptional = false;
    const auto finishNode = [&] {
        if (!name.isEmpty()) {
            nodes.append(compileNode(name));
            nodes.last().isOptional = isOptional;
        }
        name.clear();
    };
    for (const char c : pattern) {
        if (c == '[' || c == ']' || c == ':') {
            finishNode();
            isOptional = c == '[' || (isOptional && c == ':');
        } else {
            name.append(c);
        }
    }
    finishNode();
    return nodes;
}

ScpiCommandSet::Node ScpiCommandSet::compileNode(const QByteArray& name)
{
    Node node;
    for (const char c : name) {
        if (c == '#') {
            node.hasSuffix = true;
            continue;
        }
        node.longForm.append(c);
        if (c < 'a' || c > 'z')
            node.shortForm.append(c);
    }
    node.longForm = node.longForm.toUpper();
    return node;
}

/// The suffix with which the mnemonic names the node, 1 by default; an error number when it does
/// not name it.
int ScpiCommandSet::readSuffix(const Node& node, const QByteArray& mnemonic)
{
    if (mnemonic == node.shortForm || mnemonic == node.longForm)
        return 1;
    const int letters = lettersOf(mnemonic);
    const QByteArray name = mnemonic.left(letters);
    if (letters == mnemonic.size() || (name != node.shortForm && name != node.longForm))
        return NoMatch;
    const int suffix =
        mnemonic.size() - letters > MaxSuffixDigits ? 0 : mnemonic.mid(letters).toInt();
    const bool isLegal = node.hasSuffix ? suffix >= 1 : suffix == 1;
    return isLegal ? suffix : BadSuffix;
}

int ScpiCommandSet::matchHeader(const QVector<Node>& nodes, int node,
                                const QVector<QByteArray>& header, int mnemonic,
                                QVector<int>& suffixes)
{
    if (node == nodes.size())
        return mnemonic == header.size() ? 0 : NoMatch;

    const int collected = suffixes.size();
    const int suffix =
        mnemonic < header.size() ? readSuffix(nodes.at(node), header.at(mnemonic)) : NoMatch;
    int result = NoMatch;
    if (suffix != NoMatch) {
        if (nodes.at(node).hasSuffix)
            suffixes.append(suffix);
        result = matchHeader(nodes, node + 1, header, mnemonic + 1, suffixes);
        if (result == 0)
            return suffix == BadSuffix ? BadSuffix : 0;
        suffixes.resize(collected);
    }
    if (!nodes.at(node).isOptional)
        return result;
    if (nodes.at(node).hasSuffix)
        suffixes.append(1);
    const int without = matchHeader(nodes, node + 1, header, mnemonic, suffixes);
    return without == 0 ? 0 : std::min(result, without);
}

bool ScpiCommandSet::matchPath(const QVector<Node>& nodes, int node,
                               const QVector<QByteArray>& header, int mnemonic)
{
    if (mnemonic == header.size())
        return true;
    if (node == nodes.size())
        return false;
    if (readSuffix(nodes.at(node), header.at(mnemonic)) > 0 &&
        matchPath(nodes, node + 1, header, mnemonic + 1))
        return true;
    return nodes.at(node).isOptional && matchPath(nodes, node + 1, header, mnemonic);
}
