// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keyboardcontext.h"

#include <QPointer>

#include <QtGui/qpa/qplatforminputcontextplugin_p.h>

namespace {

/// Deletes, at the end of the process, the input method that the platform has left behind: Qt's vnc
/// platform never deletes the one that it asked for.
struct LeftBehind
{
    LeftBehind() = default;
    ~LeftBehind() { delete context; }
    LeftBehind(const LeftBehind&) = delete;
    LeftBehind& operator=(const LeftBehind&) = delete;

    QPointer<HostDialogs::KeyboardContext> context;
};

} // namespace

/// Makes the on-screen keyboard for the platform: QT_IM_MODULE=kvxkeyboard names it.
class KvxKeyboardPlugin : public QPlatformInputContextPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QPlatformInputContextFactoryInterface_iid FILE "kvxkeyboard.json")

public:
    QPlatformInputContext* create(const QString& key, const QStringList& parameters) override
    {
        Q_UNUSED(parameters)
        if (key.compare(QLatin1String("kvxkeyboard"), Qt::CaseInsensitive) != 0)
            return nullptr;
        static LeftBehind last;
        last.context = new HostDialogs::KeyboardContext;
        return last.context;
    }
};

#include "keyboardplugin.moc"
