// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "traceview.h"

#include <qwt_plot.h>

class QRubberBand;
class QwtPlotCurve;
class QwtPlotMarker;
class QwtPlotTextLabel;
class SiScaleDraw;

/// Draws what channel 1 puts out, with two cursors. The wheel zooms at the pointer (with Ctrl the
/// voltage, with Shift it moves along), a drag zooms into what it frames, a double click shows all;
/// a cursor is dragged along. With the keyboard's focus: Left and Right move the active cursor (by
/// ten with Shift), 1 and 2 choose it, plus and minus zoom, Up and Down zoom the voltage, Page Up
/// and Page Down move along, Home shows all. The cost of a picture does not depend on the number of
/// samples but for one pass over those that are seen.
class TracePlot : public QwtPlot
{
    Q_OBJECT

public:
    enum Source {
        Live, ///< what is put out now
        Past, ///< the output is off: its level, and the last burst in grey
        Gone  ///< nobody knows: the last burst in grey
    };

    explicit TracePlot(QWidget* parent = nullptr);
    ~TracePlot() override;

    /// @p trace is copied. A view that shows all goes on to do so.
    void setTrace(const OutputTrace& trace);
    void setSource(Source source);

    /// In the middle of the plot; an empty text takes it away.
    void setNotice(const QString& text);
    QString notice() const { return m_strNotice; }

    const OutputTrace& trace() const { return m_trace; }
    const TraceView& view() const { return m_view; }
    void setView(const TraceView& view);
    void showAll();
    bool isAllShown() const { return m_bAll; }

    /// Zooms the time by @p factor around the active cursor, if it is seen, or the middle.
    void zoom(double factor);

    void setCursorsShown(bool areShown);
    bool areCursorsShown() const { return m_bCursors; }
    double cursor(int index) const { return m_dbCursors[index]; }
    void setCursor(int index, double seconds);
    int activeCursor() const { return m_nActive; }
    void setActiveCursor(int index);

    void retranslate();

Q_SIGNALS:
    void cursorsChanged();
    void viewChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void makeItems();
    void dressAxes();
    void applyView();
    void refreshCurves();
    void showCursors();
    void placeCursors();
    void nameAxis(int axis, SiScaleDraw* scale, double from, double to, const char* title,
                  const QString& unit);
    bool cursorKey(int key, int step);
    bool viewKey(int key);

    double timeAt(double x) const;
    int cursorAt(double x) const;
    void press(QMouseEvent& event);
    void drag(const QPoint& place);
    void release(const QPoint& place);
    void turnWheel(QWheelEvent& event);

    enum Grip { None, Cursor, Frame, Way };

    OutputTrace m_trace;
    Source m_source = Live;
    TraceView m_whole;
    TraceView m_view;
    bool m_bAll = true;
    bool m_bCursors = true;
    bool m_bCursorsPlaced = false; // by the user
    double m_dbCursors[2] = {0, 0};
    int m_nActive = 0;
    QString m_strNotice;
    SiScaleDraw* m_timeScale;
    SiScaleDraw* m_voltsScale;
    QwtPlotCurve* m_now;
    QwtPlotCurve* m_past;
    QwtPlotMarker* m_trigger;
    QwtPlotMarker* m_markers[2];
    QwtPlotTextLabel* m_noticeLabel;

    Grip m_grip = None;
    QPoint m_gripPlace;
    QRubberBand* m_frame;
};
