// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "overlaypage.h"

#include <QVector>

/// What the keys of the front panel do.
class HelpPage : public OverlayPage
{
    Q_OBJECT

public:
    explicit HelpPage(QWidget* surface);

protected:
    void retranslate() override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Entry
    {
        const char* textId;
        TextLabel* cap;
        TextLabel* meaning;
    };

    void addEntry(const QString& cap, const char* textId);

    QVector<Entry> m_entries;
};
