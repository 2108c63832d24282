// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QDialog>
#include <QPointer>

class QKeyEvent;
class QLabel;

namespace appPlugins {

/// The window of a plug-in: a frameless dialog that covers the whole screen, so that nothing of the
/// host behind it can be touched, with a dark content area in its middle.
///
/// A derived class puts its widgets on m_pSubClassFillArea and does what each run begins with in
/// executeAtStartup(). The host sizes the content with setGeometry() and runs the dialog with
/// exec(). Its parent is a plain surface of the screen's size without a layout.
///
/// Keys that reach the dialog itself act on release: Home, Back, Default, Utility, Help and Cancel
/// reject it, and Manual does nothing; these are answered false, so that they go on to the host's
/// surface whose child the dialog is. Every other key, and every press, is answered true and ends
/// here.
class APPPLUGINS_EXPORT WindowModalDialogWithMask : public QDialog
{
    Q_OBJECT

public:
    /// A mask as large as the desktop and an empty content area, which has the dialog's focus.
    explicit WindowModalDialogWithMask(QWidget* parent);
    /// The widgets on the content area go with it.
    ~WindowModalDialogWithMask() override;

    /// Gives the content area @p w by @p h pixels in the middle of the screen; @p x and @p y are
    /// logged and move nothing.
    void setGeometry(int x, int y, int w, int h);

    /// Whether the dialog has been finished or closed. It is never reset here: a dialog that runs
    /// again clears it itself if it has to.
    bool getFinished() const { return m_bFinished; }

public Q_SLOTS:
    /// Runs the dialog above the host's window and returns its result code. The host's widget that
    /// has the focus gets it back when the dialog hides, if it is visible then.
    int exec() override;

    /// What each run begins with, called by exec() before the dialog is shown. Does nothing here.
    virtual void executeAtStartup();

    /// Notes that the dialog has finished, with whatever result.
    void setFinished(int result);

protected:
    /// Keys, and what the dialog does when it hides or is closed.
    bool event(QEvent* event) override;

    QLabel* m_pSubClassFillArea = nullptr; ///< the content area
    QPointer<QWidget> m_focusPtr;          ///< the host's widget that had the focus
    QLabel* m_pMaskLabel = nullptr;        ///< transparent, as large as the desktop
    bool m_bFinished = false;              ///< finished or closed

private:
    void createMask();
    void createFillArea();
    bool keyReleased(QKeyEvent* event);
};

} // namespace appPlugins
