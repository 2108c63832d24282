// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"

class QLabel;

namespace appPlugins {
class CUnit;
}

/// Each family of unit selectors: its prefixes, its states, and one to try the unit keys on.
class UnitsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit UnitsPage(QWidget* parent);

private:
    /// Makes a selector of one family.
    using Make = appPlugins::CUnit* (*)(QWidget* parent);

    void addHeader();
    void addFamily(const char* className, Make make);
    void addPrefixes(int row, Make make);
    void addState(int row, int column, Make make, bool focused, bool disabled);
    void addTrial(int row, Make make);

    QGridLayout* m_pGrid;
};
