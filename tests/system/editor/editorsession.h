// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorhost.h"
#include "logcapture.h"
#include "scriptedserver.h"

#include <QDialog>
#include <QDirIterator>
#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>
#include <QVector>

#include <functional>

/// What an instrument answers to the editor: one turn for each line, with a reply where the editor
/// waits for one.
namespace InstrumentScript {

using Script = QVector<ScriptedServer::Turn>;

inline Script quiet(int lines)
{
    return Script(lines);
}

inline Script answer(const QByteArray& reply)
{
    return {{{reply}, false}};
}

/// The host shows the plug-in.
inline Script identify(const QByteArray& model)
{
    return answer("Maker," + model + ",0001,V1.0\n");
}

/// The host runs the plug-in.
inline Script reset()
{
    return quiet(1);
}

/// The output is switched on: fifteen commands and the closing query.
inline Script run()
{
    return quiet(15) + answer("ready\n");
}

/// The output is switched off: two commands and the closing query.
inline Script stop()
{
    return quiet(2) + answer("ready\n");
}

} // namespace InstrumentScript

/// The plug-in shown by its host, with an instrument of a model that answers it. It takes the log.
struct EditorSession
{
    explicit EditorSession(const InstrumentScript::Script& script = {},
                           const QByteArray& model = "KVX7010C",
                           EditorHost::Segment segment = EditorHost::WithSegment)
        : server(InstrumentScript::identify(model) + InstrumentScript::reset() + script)
        , host(segment)
    {
        host.show();
        server.waitForGone(1);
    }

    /// Runs the window as EditorHost::exec() does, @p inside once the reset has been served: of two
    /// clients that come at once the server would leave one waiting.
    int exec(const std::function<void()>& inside)
    {
        ++m_nResets;
        return host.exec([&] {
            server.waitForGone(1 + m_nResets);
            inside();
        });
    }

    LogCapture log;
    ScriptedServer server;
    EditorHost host;

private:
    int m_nResets = 0;
};

/// Notes the keys that reach a widget, and leaves them to it.
class KeyWitness : public QObject
{
public:
    explicit KeyWitness(QObject* watched) { watched->installEventFilter(this); }

    QVector<int> pressed;
    QVector<int> released;
    Qt::KeyboardModifiers modifiers; ///< of the last one

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        Q_UNUSED(watched)
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto* key = static_cast<const QKeyEvent*>(event);
            (event->type() == QEvent::KeyPress ? pressed : released).append(key->key());
            modifiers = key->modifiers();
        }
        return false;
    }
};

/// The pictures that are installed beside the plug-in.
namespace InstalledContent {

const QString AppFolder = QStringLiteral("/mnt/user-data/.app/");
const QString PictureFolder = AppFolder + QStringLiteral("libDoublePulsePluginPics/");

/// Puts the built content into its place; false if a file cannot be copied.
inline bool install()
{
    const QDir source(qEnvironmentVariable("MPB_APP_DIR"));
    int copied = 0;
    QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString target = AppFolder + source.relativeFilePath(files.next());
        QFile::remove(target);
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(files.filePath(), target))
            return false;
        ++copied;
    }
    return copied > 0;
}

} // namespace InstalledContent

inline QPoint screenPlace(const QWidget* widget)
{
    return widget->mapToGlobal(QPoint());
}
