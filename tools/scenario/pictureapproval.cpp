// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pictureapproval.h"

#include "common/picturedifference.h"

#include <QDir>

PictureApproval::PictureApproval(const QString& folder, const QString& name,
                                 const QString& language)
    : m_strPath(QDir(folder).filePath(QStringLiteral("%1-%2.png").arg(name, language)))
{
    const QString common = QDir(folder).filePath(QStringLiteral("%1.png").arg(name));
    if (QFile::exists(common))
        m_strPath = common;
}

QString PictureApproval::compare(const QImage& seen)
{
    const QImage approved(m_strPath);
    if (approved.isNull())
        return QStringLiteral("there is no approved picture %1").arg(m_strPath);
    const PictureDifference difference = differenceOf(approved, seen);
    m_difference = difference.picture;
    if (difference.tolerable())
        return {};
    return QStringLiteral("the screen looks unlike %1: mean difference %2, worst at %3,%4")
        .arg(m_strPath)
        .arg(difference.mean, 0, 'f', 2)
        .arg(difference.worst.x())
        .arg(difference.worst.y());
}

QString PictureApproval::approve(const QImage& seen)
{
    return seen.save(m_strPath) ? QString() : QStringLiteral("cannot write %1").arg(m_strPath);
}
