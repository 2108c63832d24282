// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostdialogs.h"

#include "filebrowser.h"
#include "hostscreen.h"
#include "messagebox.h"

#include <QDebug>

namespace HostDialogs {

namespace {

struct Folders
{
    QString userData = QStringLiteral("/mnt/user-data");
    QString last;
};

Folders& folders()
{
    static Folders instance;
    return instance;
}

// Where the user was before, if that is below the place that the plug-in asks for. A plug-in names
// the instrument's own folder, which need not be the one that this host works in.
QString firstFolder(const QString& start)
{
    const QString asked = UserFolder(folders().userData).nearestFolder(start);
    const QString& last = folders().last;
    return !last.isEmpty() && UserFolder(asked).contains(last) ? last : asked;
}

int browse(FileBrowser::Request request, QWidget* parent, QString& path, int flag)
{
    qDebug("HostDialogs::browse title=%s, flag=%d", request.titleId.constData(), flag);
    request.userData = folders().userData;
    request.start = firstFolder(request.start);
    FileBrowser browser(request);
    // The answer has nobody left to go to.
    if (parent != nullptr)
        QObject::connect(parent, &QObject::destroyed, &browser, &FileBrowser::reject);
    if (browser.run() != 1)
        return 0;
    path = browser.path();
    folders().last = browser.folder();
    return 1;
}

int show(MessageKind kind, const QString& text)
{
    return MessageBox(kind, text).run();
}

} // namespace

void setScreen(QWidget* surface)
{
    setScreenSurface(surface);
}

void setUserDataFolder(const QString& folder)
{
    folders().userData = folder;
}

void setLastFolder(const QString& folder)
{
    folders().last = folder;
}

QString lastFolder()
{
    return folders().last;
}

// The types are those of the plug-ins' callbacks.
// NOLINTBEGIN(performance-unnecessary-value-param)

int openFile(QWidget* parent, QStringList filters, QString& path, QString start,
             const char* titleId, int flag)
{
    return browse({FileBrowser::Open, {}, filters, start, titleId, {}}, parent, path, flag);
}

int saveFile(QWidget* parent, QStringList filters, QString& path, QString start,
             const char* titleId, int flag, QString name)
{
    return browse({FileBrowser::Save, {}, filters, start, titleId, name}, parent, path, flag);
}

int critical(QString text)
{
    return show(MessageKind::Critical, text);
}

int warning(QString text)
{
    return show(MessageKind::Warning, text);
}

int question(QString text)
{
    return show(MessageKind::Question, text);
}

int information(QString text)
{
    return show(MessageKind::Information, text);
}

// NOLINTEND(performance-unnecessary-value-param)

} // namespace HostDialogs
