// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostinterface/appinterface.h"

#include <QMap>
#include <QString>

#include <functional>
#include <memory>

class QPluginLoader;
class QWidget;

/// What became of a plug-in that was to be run.
struct PluginResult
{
    enum Outcome {
        Finished,  ///< it was run, and is closed again
        NotLoaded, ///< the file is no plug-in, or one for another interface
        Failed     ///< its constructor or an operation of it raised an exception
    };

    Outcome outcome = Finished;
    QString reason; ///< the loader's or the exception's words; may be empty for a Failed one
};

/// Loads plug-ins and runs them on the screen, one at a time. A plug-in that was loaded stays
/// loaded, so that its window and settings are the same the next time.
class PluginRunner
{
public:
    /// Plug-ins run on @p surface, whose size they get, with these callbacks.
    PluginRunner(QWidget* surface, const STRUCT_SHARED_POINTERS& callbacks);
    ~PluginRunner();
    PluginRunner(const PluginRunner&) = delete;
    PluginRunner& operator=(const PluginRunner&) = delete;

    /// Runs the plug-in in the file @p path until it is closed; @p shown is called once it is
    /// loaded and prepared, before its window comes up. Does nothing while one is open.
    PluginResult run(const QString& path, const std::function<void()>& shown);

    bool isOpen() const { return m_pOpen != nullptr; }

    /// The window of the open plug-in; null if none is open or it has none.
    QWidget* window() const;

    /// Asks the open plug-in to close its window; run() returns once it has.
    void close();

private:
    CAppInterface* load(const QString& path, PluginResult& result);
    void runLoaded(CAppInterface& plugin, const std::function<void()>& shown);

    QWidget* m_pSurface;
    STRUCT_SHARED_POINTERS m_callbacks;
    QMap<QString, std::shared_ptr<QPluginLoader>> m_loaders;
    CAppInterface* m_pOpen = nullptr;
};
