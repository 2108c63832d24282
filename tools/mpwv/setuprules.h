// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "finding.h"
#include "parametertable.h"

#include <QJsonObject>

#include <functional>

/// The form of a setup document, member by member.

class FindingList
{
public:
    /// Takes a finding; those beyond MaxFindings are counted and not kept.
    void add(const QString& member, const QString& reason);
    QVector<Finding> take();

private:
    QVector<Finding> m_findings;
    int m_nLeftOut = 0;
};

/// Looks at one value, which @p member names, and adds what is odd about it.
using MemberCheck =
    std::function<void(const QString& member, const QJsonValue& value, FindingList& findings)>;

struct MemberRule
{
    QLatin1String key;
    MemberCheck check;
    bool optional = false;
};

/// An object with exactly these members.
MemberCheck objectOf(const QVector<MemberRule>& rules);

/// Any number.
MemberCheck anyNumber();
/// A whole number, @p least to @p most.
MemberCheck wholeNumber(int least, int most);
/// The one number that the editor writes there.
MemberCheck always(double expected);
/// A number in seconds within the range and on its grid.
MemberCheck seconds(const ParameterRange& range);
/// The text of a table cell: a time in engineering notation, within the range and on its grid.
MemberCheck cellText(const ParameterRange& range);

/// True when @p value is a multiple of @p step but for what arithmetic in doubles loses.
bool isOnGrid(double value, double step);

/// "12 V", "1e-06 s": as many digits as tell one value from the next step.
QString numberText(double value);
