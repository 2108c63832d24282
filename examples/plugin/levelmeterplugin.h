// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostinterface/appinterface.h"

#include <QObject>
#include <QPointer>

class LevelMeter;

/// The one object that a host's plug-in loader obtains.
class LevelMeterPlugin : public QObject, public CAppInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CAppInterface_iid)
    Q_INTERFACES(CAppInterface)

public:
    /// Takes the window along unless its parent has done so.
    ~LevelMeterPlugin() override;

    /// Keeps the callbacks that are not null.
    void initCallbacks(STRUCT_SHARED_POINTERS sharedPointers) override;

    using CAppInterface::show;

    /// Makes the window on first use and gives it its size; it is shown by exec().
    int show(int x, int y, int width, int height, QWidget* parent,
             GetIdCallback idcallback) override;

    /// Runs the window; 1 when its Close button ended it, 0 for a key.
    int exec() override;

    /// Ends exec().
    int close() override;

    /// The window; null before the first show().
    QWidget* getWindow() override;

private:
    QPointer<LevelMeter> m_window;
};
