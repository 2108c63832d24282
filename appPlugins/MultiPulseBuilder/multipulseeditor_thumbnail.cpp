// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "thumbnailpicture.h"

#include <QLabel>
#include <QPixmap>

void MultiPulseEditor::slt_UpdateThumbnailImage(const QString& focusName)
{
    showThumbnail(ThumbnailPicture::forFocus(focusName, pulseCount()));
}

void MultiPulseEditor::slt_UpdateThumbnailImage()
{
    slt_UpdateThumbnailImage(QString());
}

void MultiPulseEditor::slt_UpdateThumbnailImage(QPoint cell)
{
    showThumbnail(ThumbnailPicture::forCell(cell, pulseCount()));
}

// A picture that is missing leaves an empty place and no message.
void MultiPulseEditor::showThumbnail(const QString& fileName)
{
    m_pMultiPulseThumbnail->setPixmap(QPixmap(ThumbnailPicture::path(fileName)));
}
