// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"

class PageGrid;

/// The small widgets in each of their states.
class SmallPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SmallPage(QWidget* parent);

private:
    void addTitles(PageGrid& grid);
    void addRadioButtons(PageGrid& grid);
    void addStacks(PageGrid& grid);
    void addSliders(PageGrid& grid);
    void addImageButtons(PageGrid& grid);
    void addCombos(PageGrid& grid);
};
