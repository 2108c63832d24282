// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "messageicon.h"
#include "screendialog.h"

class QLabel;
class QScrollArea;

namespace HostDialogs {

class DialogButton;

/// A message with one button, or a question with two. A text that is too long for the screen is
/// scrolled by finger, arrows or knob.
class MessageBox : public ScreenDialog
{
    Q_OBJECT

public:
    /// @p text is plain: nothing in it is taken as markup.
    MessageBox(MessageKind kind, const QString& text);

    /// Two buttons with these texts instead of the kind's own; the second, which refuses, has the
    /// focus at first. The identifiers must outlive the box.
    void setChoice(const char* acceptTextId, const char* refuseTextId);

protected:
    QRect panelPlace(const QRect& screen) const override;
    void retranslate() override;
    void arrowPressed(int key) override;

private:
    void build(const QString& text);
    DialogButton* addButton(bool accepts);
    bool isScrolled() const;

    MessageKind m_kind;
    QLabel* m_pTitle;
    QLabel* m_pText;
    QScrollArea* m_pScroll;
    DialogButton* m_pAccept;
    DialogButton* m_pRefuse;
    const char* m_acceptTextId;
    const char* m_refuseTextId;
};

} // namespace HostDialogs
