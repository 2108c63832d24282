// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanel.h"

#include "common/fontsubstitution.h"
#include "hostdialogs.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QListView>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

#include <functional>
#include <memory>

/// A host's surface on the screen, a user-data folder, and somebody who answers dialogs: each of
/// them runs an event loop of its own, in which the next answer is given.
class DialogSession
{
public:
    DialogSession()
    {
        substituteTextFont();
        surface.setGeometry(0, 0, 800, 480);
        surface.setFocusPolicy(Qt::StrongFocus);
        surface.show();
        if (!folder.isValid() || !QTest::qWaitForWindowActive(&surface))
            qFatal("no surface");
        surface.setFocus();
        HostDialogs::setScreen(&surface);
        HostDialogs::setUserDataFolder(root());
        HostDialogs::setLastFolder(QString());
    }

    /// The user-data folder; an outer folder is around it.
    QString root() const { return folder.path() + QLatin1String("/user"); }
    QString outside() const { return folder.path() + QLatin1String("/outside"); }

    /// Makes the empty folders anew.
    void clear() const
    {
        for (const QString& name : {root(), outside()}) {
            QDir(name).removeRecursively();
            QDir().mkpath(name);
        }
        HostDialogs::setUserDataFolder(root());
        HostDialogs::setLastFolder(QString());
    }

    /// Makes a file, and the folders above it.
    static void write(const QString& path, const QByteArray& content = "x")
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s", qPrintable(path));
    }

    /// Calls @p inside as soon as another dialog is in front; closes that one afterwards.
    void answer(const std::function<void()>& inside)
    {
        auto* wait = new QTimer(&surface);
        const QPointer<QDialog> before = dialog();
        QObject::connect(wait, &QTimer::timeout, wait, [wait, before, inside] {
            const QPointer<QDialog> opened = dialog();
            if (opened == nullptr || opened == before)
                return;
            wait->stop();
            wait->deleteLater();
            FrontPanel::settle();
            inside();
            if (opened != nullptr && opened->isVisible())
                opened->reject();
        });
        wait->start(0);
    }

    /// The dialog in front.
    static QDialog* dialog() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    template<typename Widget>
    static Widget* part(const char* name)
    {
        return dialog() == nullptr ? nullptr : dialog()->findChild<Widget*>(QLatin1String(name));
    }
    static QAbstractButton* button(const char* name) { return part<QAbstractButton>(name); }
    static QListView* list() { return dialog()->findChild<QListView*>(); }

    static QStringList rows()
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            names.append(list()->model()->index(row, 0).data().toString());
        return names;
    }

    /// Taps a row by its text.
    static bool tapRow(const QString& text)
    {
        const int row = rows().indexOf(text);
        if (row < 0)
            return false;
        const QModelIndex index = list()->model()->index(row, 0);
        list()->scrollTo(index);
        FrontPanel::tap(list()->viewport(), list()->visualRect(index).center());
        return true;
    }

    QTemporaryDir folder;
    QWidget surface;
};

/// The catalogues of a language, in force while it lives.
class Language
{
public:
    explicit Language(const QString& name)
    {
        const QString folder = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
        for (const char* catalogue : {"multipulse_", "kvxdialogs_"}) {
            auto translator = std::make_unique<QTranslator>();
            if (!translator->load(QLatin1String(catalogue) + name, folder))
                qFatal("%s%s", catalogue, qPrintable(name));
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
        FrontPanel::settle();
    }
    ~Language()
    {
        for (const auto& translator : m_translators)
            QCoreApplication::removeTranslator(translator.get());
    }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

    static QStringList all()
    {
        return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh_CN"),
                QStringLiteral("ja")};
    }

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
