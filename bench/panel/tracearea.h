// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class BarButton;
class ChannelWatch;
class QFileDialog;
class QLabel;
class TracePlot;
class TraceReadout;

/// What channel 1 puts out: the plot with its buttons, what its cursors read, and ways to keep it.
class TraceArea : public QWidget
{
    Q_OBJECT

public:
    explicit TraceArea(ChannelWatch& watch, QWidget* parent = nullptr);

    TracePlot* plot() const { return m_plot; }

    /// Opens a dialog that asks for a file's name, and writes the file when it has got one.
    void askForPicture();
    void askForCsv();

    /// Sets all texts again.
    void retranslate();

    QSize sizeHint() const override { return {900, 270}; }
    QSize minimumSizeHint() const override { return {480, 150}; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeButtons();
    void layOut();
    void takeTrace();
    void showState();
    void showReadout();
    QFileDialog* makeDialog(const QString& title, const QStringList& filters,
                            const QString& suffix);
    void tell(const QString& path, const QString& reason);

    ChannelWatch& m_watch;
    TracePlot* m_plot;
    TraceReadout* m_readout;
    QLabel* m_title;
    QLabel* m_state;
    QLabel* m_message;
    BarButton* m_zoomIn;
    BarButton* m_zoomOut;
    BarButton* m_all;
    BarButton* m_cursors;
    BarButton* m_picture;
    BarButton* m_csv;
    bool m_bEverConnected = false;
};
