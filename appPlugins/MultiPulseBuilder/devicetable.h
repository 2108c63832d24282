// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

/// The instrument's model families and the row of the one that is connected.
///
/// A row's columns are texts: 0 family name, 1 and 2 maximum and minimum amplitude (volts
/// peak-to-peak), 3 and 4 positive and negative level bound (volts), 5 and 6 sampling rate (samples
/// per second), 7 and 8 waveform length (points), 9 and 10 the number 2.
enum DeviceColumn {
    DeviceName = 0,
    DeviceMaxAmplitude = 1,
    DeviceMinAmplitude = 2,
    DeviceOffsetPlus = 3,
    DeviceOffsetMinus = 4,
    DeviceSamplingRate = 5,
    DeviceWaveformLength = 7,
};

/// Row of the connected instrument; empty until getCurrentDeviceType() has run once. Its column 0
/// is the model text of the instrument's reply.
extern QStringList g_currentDeviceType;

/// Appends the five rows to the device table, which is never cleared (rows are looked up by their
/// fixed indices 0 to 4), and identifies the instrument.
void initDeviceList();

/// Asks the instrument for its identity and selects g_currentDeviceType; blocks for 90 seconds at
/// the worst. Where nobody answers, the last row is taken: with a warning to the user when no
/// connection could be made, silently otherwise. The device table must have been filled.
void getCurrentDeviceType();

/// Number of rows that the device table holds now.
int deviceListSize();

/// The five families in table order.
QVector<QStringList> deviceFamilies();

/// The eight bytes from the first "KVX" of an identification reply; fewer where it ends earlier,
/// and the reply's first seven bytes where "KVX" does not occur.
QByteArray modelText(const QByteArray& reply);

/// Index of the family row that a model text selects; 4, the default row, for an unknown model.
int deviceRowIndex(const QByteArray& model);
