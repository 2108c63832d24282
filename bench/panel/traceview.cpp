// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceview.h"

#include <algorithm>
#include <cmath>

namespace {

const double TimeMargin = 0.04;
const double LevelMargin = 0.15;
const double FinestShare = 1e-7; // of the whole: some samples of the longest trace
const double WidestShare = 100;

void widen(double& from, double& to, double margin)
{
    const double more = (to - from) * margin;
    from -= more;
    to += more;
}

void zoom(double& from, double& to, double factor, double fixed, double whole)
{
    const double length = to - from;
    const double wanted = qBound(whole * FinestShare, length * factor, whole * WidestShare);
    const double share = qBound(0.0, (fixed - from) / length, 1.0);
    const double place = from + share * length;
    from = place - share * wanted;
    to = from + wanted;
}

} // namespace

TraceView TraceView::all(const OutputTrace& trace)
{
    TraceView view;
    if (!trace.isEmpty()) {
        view.from = std::min(0.0, trace.start);
        view.to = trace.end();
    }
    widen(view.from, view.to, TimeMargin);
    trace.levels(view.low, view.high);
    view.low = std::min(view.low, 0.0);
    view.high = std::max(view.high, 0.0);
    const double least = 1e-3;
    if (view.volts() < least) {
        view.low = -1;
        view.high = 1;
    }
    widen(view.low, view.high, LevelMargin);
    return view;
}

void TraceView::zoomTime(double factor, double time, const TraceView& whole)
{
    zoom(from, to, factor, time, whole.seconds());
}

void TraceView::zoomVolts(double factor, double level, const TraceView& whole)
{
    zoom(low, high, factor, level, whole.volts());
}

void TraceView::pan(double share, const TraceView& whole)
{
    const double length = seconds();
    const double least = std::min(whole.from, whole.to - length);
    const double most = std::max(whole.from, whole.to - length);
    from = qBound(least, from + share * length, most);
    to = from + length;
}
