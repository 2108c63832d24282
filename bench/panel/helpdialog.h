// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QTextBrowser;

/// How the front is worked by mouse and keyboard.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QTextBrowser* m_page;
};
