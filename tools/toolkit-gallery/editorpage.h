// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "apptypes.h"
#include "gallerypage.h"

class PageGrid;

/// The numeric editor for each kind of quantity, in each of its states.
class EditorPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit EditorPage(QWidget* parent);

private:
    /// One row: a quantity, and the keys of a number on the way into it.
    struct Quantity
    {
        const char* name;
        ENUM_UNIT_TYPE unitType;
        double value;
        double resolution;
        const char* typed;
    };

    void addQuantity(PageGrid& grid, const Quantity& quantity);

    static const Quantity Quantities[];
};
