// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QtPlugin>

/// A sound plug-in that does not implement the host's interface.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.Foreign")
};

#include "foreignplugin.moc"
