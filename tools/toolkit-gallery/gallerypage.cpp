// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "gallerypage.h"

#include "gallerylook.h"

GalleryPage::GalleryPage(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(GalleryLook::ScreenWidth, GalleryLook::PageHeight);
}
