// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"

class ParameterForm;
class QVBoxLayout;

/// The parameter components: a form to try on the left, states on the right.
class ComponentsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ComponentsPage(QWidget* parent);

    ParameterForm* form() const { return m_pForm; }

private:
    void addNumberStates();
    void addChoiceStates();
    void addState(QWidget* state);

    ParameterForm* m_pForm;
    QVBoxLayout* m_pStates;
};
