// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostinterface/appinterface.h"

#include <QObject>

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
    /// instrument, reads the default setup and makes this plug-in the host's current one. Then it
    /// readies the editor, hidden: in the middle of the screen with the given size, as a child of
    /// the first @p parent that was ever passed. @p x and @p y are only logged. Returns 0.
    int show(int x, int y, int width, int height, QWidget* parent,
             GetIdCallback idcallback) override;

    /// Resets the instrument and runs the editor modally. Returns the dialog's result code.
    int exec() override;

    /// Rejects the editor. Returns 0.
    int close() override;

    /// The editor, made on first use; null once the application, the library or the process has
    /// ended.
    QWidget* getWindow() override;
};
