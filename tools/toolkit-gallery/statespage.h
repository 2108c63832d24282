// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"
#include "photo.h"

class PageGrid;

namespace appPlugins {
class CPluginCombComponentBase;
}

/// Each kind of component with the focus and disabled.
class StatesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit StatesPage(QWidget* parent);

private:
    using Make = appPlugins::CPluginCombComponentBase* (*)(QWidget* parent);

    void addKind(PageGrid& grid, const char* className, Make make);
};
