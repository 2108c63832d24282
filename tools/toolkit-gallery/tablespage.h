// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"

namespace appPlugins {
class CRealTableView;
}

/// The tables: one to try on the left, states on the right.
class TablesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TablesPage(QWidget* parent);

private:
    void addLive();
    QWidget* createButtons();
    void addStates();

    appPlugins::CRealTableView* m_pTable;
    QGridLayout* m_pLayout;
};
