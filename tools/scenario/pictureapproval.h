// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

/// An approved picture: NAME-LANGUAGE.png in a folder, or NAME.png where one serves every language.
class PictureApproval
{
public:
    /// Looks for the file.
    PictureApproval(const QString& folder, const QString& name, const QString& language);

    /// Compares what is seen with it, leniently as to how text is drawn. Returns what is wrong, or
    /// nothing.
    QString compare(const QImage& seen);

    /// Makes what is seen the approved picture. Returns what is wrong, or nothing.
    QString approve(const QImage& seen);

    /// The approved picture with what the last comparison found in red; null where there is none.
    const QImage& difference() const { return m_difference; }

private:
    QString m_strPath;
    QImage m_difference;
};
