// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace HostDialogs {

/// What a box is about.
enum class MessageKind { Critical, Warning, Question, Information };

/// The picture of a box, drawn at the widget's size.
class MessageIcon : public QWidget
{
    Q_OBJECT

public:
    MessageIcon(MessageKind kind, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MessageKind m_kind;
};

} // namespace HostDialogs
