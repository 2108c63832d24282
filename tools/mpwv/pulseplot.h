// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputwaveform.h"
#include "tracemeasure.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QVector>

/// A pulse train drawn for people: volts against seconds, with the widths and gaps of its pulses.

/// A labelled stretch of the abscissa.
struct PlotMark
{
    enum Kind { Delay, Pulse, Gap };
    Kind kind = Pulse;
    int number = 0;  ///< of the pulse, from 1; a gap has that of the pulse before it
    double from = 0; ///< seconds, or points where the waveform has no time base
    double to = 0;
    QString text;
};

struct PulsePlot
{
    QString title;
    QString subtitle;
    OutputWaveform waveform;
    Polarity polarity = Polarity::Positive;
    QVector<PlotMark> marks; ///< in the order of their places
};

/// The plot of a setup's train and what its waveform file plays, labelled with the times that the
/// setup asks for. Times of 0 have no mark; a pulse to which rounding leaves no point says so.
PulsePlot plotOfTrain(const PulseTrain& train, const OutputWaveform& waveform,
                      const QString& title);

/// The plot of a waveform whose train is not known, labelled with what is measured in it.
PulsePlot plotOfWaveform(const OutputWaveform& waveform, const QString& title);

/// The same for a waveform whose polarity is known.
PulsePlot plotOfWaveform(const OutputWaveform& waveform, Polarity polarity, const QString& title);

enum class PictureFormat { Svg, Png };

/// Smallest and largest side of a picture in pixels.
const int MinPictureSide = 200;
const int MaxPictureSide = 10000;

/// The picture, @p size in pixels, as the bytes of its file. Where the labels would collide, the
/// pulses are numbered and a table below names their times. Needs a QApplication, on any platform.
QByteArray renderPlot(const PulsePlot& plot, PictureFormat format, const QSize& size);
