// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGridLayout>
#include <QVector>
#include <QWidget>

/// A page of the gallery: one family of widgets. Pages are as large as the screen's part between
/// tabs and messages and are built once.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent);

    /// The inputs that the Tab key walks through, in order.
    QVector<QWidget*> inputs() const { return m_inputs; }

Q_SIGNALS:
    /// Something that the page wants to tell: a signal that a widget emitted, say.
    void message(const QString& text);

protected:
    /// Adds an input to the Tab key's walk.
    void addInput(QWidget* input) { m_inputs.append(input); }

private:
    QVector<QWidget*> m_inputs;
};
