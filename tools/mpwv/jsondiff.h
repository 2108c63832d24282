// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QStringList>

/// Lines that tell in which members two setup documents differ: "MEMBER: 1 -> 2", with "-" where
/// one of them lacks the member.
QStringList differingMembers(const QJsonObject& left, const QJsonObject& right);
