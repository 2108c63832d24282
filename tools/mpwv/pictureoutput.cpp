// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pictureoutput.h"

#include <QRegularExpression>

std::optional<PictureFormat> formatOfName(const QString& path)
{
    if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return PictureFormat::Svg;
    if (path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return PictureFormat::Png;
    return std::nullopt;
}

std::optional<QSize> parsePictureSize(const QString& text)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9]{1,6})x([0-9]{1,6})")));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const int least = qMin(size.width(), size.height());
    const int most = qMax(size.width(), size.height());
    if (least < MinPictureSide || most > MaxPictureSide)
        return std::nullopt;
    return size;
}
