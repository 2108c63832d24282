// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostinterface/appinterface.h"

#include <QJsonObject>
#include <QObject>

/// The default setup document, read again each time the host shows the plug-in. Empty until a
/// default setup file has been read.
extern QJsonObject g_jsonDefaultSetupValues;

/// The shared default-setup file of all application plug-ins.
const char DefaultSetupPath[] = "/mnt/user-data/appPluginsDefaultSetup.json";

/// The one object that the host's plug-in loader obtains.
class MultiPulseBuilderPlugin : public QObject, public CAppInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CAppInterface_iid)
    Q_INTERFACES(CAppInterface)

public:
    ~MultiPulseBuilderPlugin() override;

    /// Stores each non-null callback; a null one keeps what was stored before, so that a host may
    /// send a partial table later. Logs at warning level which of them are there.
    void initCallbacks(STRUCT_SHARED_POINTERS sharedPointers) override;

    using CAppInterface::show;

    /// Invokes @p idcallback (an empty one throws std::bad_function_call), identifies the
    /// instrument, reads the default setup and makes this plug-in the host's current one. Returns
    /// 0.
    int show(int x, int y, int width, int height, QWidget* parent,
             GetIdCallback idcallback) override;

    /// Null: there is no window.
    QWidget* getWindow() override;
};
