// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class KeyNavigation;
class TextLabel;
class TouchButton;

/// A page that covers the whole screen, whatever is open below, and gets every touch until it is
/// closed: by its button, or with Back, Home or Cancel.
class OverlayPage : public QDialog
{
    Q_OBJECT

public:
    /// @p titleId names the title and must outlive the page. The key @p ownKey closes it as well.
    OverlayPage(const char* titleId, int ownKey, QWidget* surface);

    /// Shows the page above everything else.
    void open() override;

protected:
    /// The inputs besides the close button, for knob and arrow keys.
    void setInputs(const QVector<QWidget*>& inputs);

    /// Where the page's own content goes.
    QRect contentArea() const;

    /// Sets the texts. Called at a change of language, for the title here.
    virtual void retranslate();

    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool closes(const QKeyEvent& event) const;

    const char* m_titleId;
    int m_nOwnKey;
    bool m_bKeyDown = false;
    TextLabel* m_pTitle;
    TouchButton* m_pClose;
    KeyNavigation* m_pNavigation;
};
