// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostinterface/appinterface.h"

#include <QObject>

/// Claims the interface in its metadata and does not have it.
class NoInterfacePlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CAppInterface_iid)
};

#include "nointerface.moc"
