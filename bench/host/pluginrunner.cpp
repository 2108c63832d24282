// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginrunner.h"

#include <QDebug>
#include <QJsonObject>
#include <QPluginLoader>
#include <QWidget>

#include <exception>

// Plug-ins find it in the program.
CAppInterface* CAppInterface::current = nullptr;

namespace {

QString interfaceOf(const QPluginLoader& loader)
{
    return loader.metaData().value(QLatin1String("IID")).toString();
}

// A symbol that is missing has to be missed here: called later, it would end the process.
std::shared_ptr<QPluginLoader> makeLoader(const QString& path)
{
    auto loader = std::make_shared<QPluginLoader>(path);
    loader->setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    return loader;
}

// The user may have closed the window; a plug-in that has failed may have left it on the screen.
void closeIfOpen(CAppInterface& plugin)
{
    try {
        QWidget* window = plugin.getWindow();
        if (window == nullptr || !window->isVisible())
            return;
        plugin.close();
        window->hide();
    } catch (...) {
        qWarning() << "PluginRunner: the plug-in failed while it was closed";
    }
}

} // namespace

PluginRunner::PluginRunner(QWidget* surface, const STRUCT_SHARED_POINTERS& callbacks)
    : m_pSurface(surface)
    , m_callbacks(callbacks)
{}

PluginRunner::~PluginRunner() = default;

// Code of a plug-in for another interface is never run: its metadata are read before it is loaded.
CAppInterface* PluginRunner::load(const QString& path, PluginResult& result)
{
    std::shared_ptr<QPluginLoader> loader = m_loaders.value(path);
    if (loader == nullptr)
        loader = makeLoader(path);
    const QString interface = interfaceOf(*loader);
    if (!interface.isEmpty() && interface != QLatin1String(CAppInterface_iid)) {
        result = {PluginResult::NotLoaded,
                  QStringLiteral("%1: interface %2 instead of %3")
                      .arg(path, interface, QLatin1String(CAppInterface_iid))};
        return nullptr;
    }
    QObject* instance = loader->instance();
    auto* plugin = qobject_cast<CAppInterface*>(instance);
    if (plugin != nullptr)
        m_loaders.insert(path, loader);
    else
        result = {PluginResult::NotLoaded,
                  instance == nullptr
                      ? loader->errorString()
                      : QStringLiteral("%1: no %2").arg(path, QLatin1String(CAppInterface_iid))};
    return plugin;
}

PluginResult PluginRunner::run(const QString& path, const std::function<void()>& shown)
{
    PluginResult result;
    if (isOpen())
        return result;
    try {
        m_pOpen = load(path, result);
        if (m_pOpen != nullptr)
            runLoaded(*m_pOpen, shown);
    } catch (const std::exception& exception) {
        result = {PluginResult::Failed, QString::fromLocal8Bit(exception.what())};
    } catch (...) {
        result = {PluginResult::Failed, QString()};
    }
    close();
    m_pOpen = nullptr;
    return result;
}

void PluginRunner::runLoaded(CAppInterface& plugin, const std::function<void()>& shown)
{
    plugin.initCallbacks(m_callbacks);
    plugin.show(0, 0, m_pSurface->width(), m_pSurface->height(), m_pSurface, [] {});
    shown();
    plugin.exec();
}

QWidget* PluginRunner::window() const
{
    return m_pOpen == nullptr ? nullptr : m_pOpen->getWindow();
}

void PluginRunner::close()
{
    if (m_pOpen != nullptr)
        closeIfOpen(*m_pOpen);
}
