// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputplot.h"

#include "channeltrace.h"
#include "instrumentlink.h"
#include "pictureoutput.h"
#include "pulseplot.h"

#include <QSaveFile>

QString plotOutput(quint16 instrumentPort, const QString& path)
{
    InstrumentLink link(QHostAddress(QHostAddress::LocalHost), instrumentPort);
    if (!link.connectToInstrument())
        return QStringLiteral("no instrument is there: %1").arg(link.errorString());
    ChannelTrace trace;
    const QString reason = fetchTrace(link, trace);
    if (!reason.isEmpty())
        return reason;
    const PulsePlot plot = plotOfWaveform(trace.waveform, QStringLiteral("Channel 1"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(renderPlot(plot, PictureFormat::Svg, DefaultPictureSize)) < 0 || !file.commit())
        return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    return {};
}
