// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace HostDialogs {

class DialogButton;

/// The way from the user-data folder down to the one on show: home, one up, and a button for each
/// folder on the way. Where there is no room for all, the upper ones give way.
class Breadcrumb : public QWidget
{
    Q_OBJECT

public:
    explicit Breadcrumb(QWidget* parent);

    /// Shows the folders below the user-data folder.
    void setParts(const QStringList& parts);
    /// Sets the names of the buttons without a text anew.
    void retranslate();

Q_SIGNALS:
    /// A folder was chosen: 0 is the user-data folder, 1 the first below it.
    void depthChosen(int depth);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    DialogButton* addButton(int depth);
    void fit();

    QHBoxLayout* m_pLayout;
    DialogButton* m_pHome;
    DialogButton* m_pUp;
    QLabel* m_pCut;
    QVector<DialogButton*> m_crumbs;
};

} // namespace HostDialogs
