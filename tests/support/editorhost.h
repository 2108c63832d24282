// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanel.h"

#include "cplugincombcomponent.h"
#include "hostinterface/appinterface.h"
#include "hostinterface/kvxsharedmemory.h"

#include <QPluginLoader>
#include <QSharedMemory>
#include <QTableView>

#include <functional>
#include <memory>

class QAction;
class QLabel;
class QToolBar;
class QToolButton;

/// What the plug-in asked of its host, and what it is answered.
struct HostRecord
{
    struct Browse
    {
        bool save;
        QWidget* parent;
        QStringList filters;
        QString pathBefore;
        QString start;
        QByteArray titleId;
        int flag;
        QString name; ///< suggested name; the save browser's alone
    };

    QVector<Browse> browses;
    QStringList warnings;
    QStringList criticals;
    QStringList questions;
    QStringList informations;

    int browserResult = 0;
    QString browserPath;
    int questionResult = 0;
    /// Called inside a warning box, while the plug-in waits for it.
    std::function<void()> whileWarning;
};

/// A host of the plug-in's file: the instrument's screen as a bare surface, the callbacks, the flag
/// segment. The editor is found and driven as a user finds and drives it. It needs a screen of 800
/// by 480 and a world of its own; an instrument stands on the port if the test puts one there.
class EditorHost
{
public:
    enum Segment { WithSegment, WithoutSegment };

    /// Loads the plug-in and hands the callbacks over; nothing is shown yet.
    explicit EditorHost(Segment segment = WithSegment);
    /// Lets what is queued happen. The plug-in stays loaded, as Qt has it by default, and so does
    /// an editor that no show() has given a parent.
    ~EditorHost();

    /// Has the plug-in show its window on the whole screen.
    void show();
    /// Runs the window and @p inside in it, once it is on the screen; then closes it unless that is
    /// done. Returns the result of the plug-in's exec().
    int exec(const std::function<void()>& inside);

    CAppInterface* plugin() const { return m_plugin; }
    QWidget* surface() const { return m_surface.get(); }
    QDialog* editor() const;

    appPlugins::IntegerCombComponent* count() const;
    appPlugins::RealCombComponent* highLevel() const;
    appPlugins::RealCombComponent* lowLevel() const;
    appPlugins::RealCombComponent* delay() const;
    appPlugins::RealCombComponent* timer() const;
    appPlugins::ComboBoxCombComponent* source() const;
    appPlugins::ComboBoxCombComponent* slope() const;
    appPlugins::ComboBoxCombComponent* load() const;
    QTableView* table() const;
    QLabel* thumbnail() const;
    QToolBar* toolBar() const;
    enum Action { Open, Close, SaveAs, Default, Help, Run };
    QAction* action(Action which) const;
    QToolButton* button(Action which) const;

    /// Text of a cell of the table.
    QString cell(int row, int column) const;
    /// Taps a cell.
    void tapCell(int row, int column) const;
    /// Types a number into a parameter and confirms it: "2.5" and a key (Return, a unit key).
    void enter(QWidget* component, const QString& number, int confirm = Qt::Key_Return) const;
    /// Chooses an entry of a choice as a user does: by its list.
    void choose(appPlugins::ComboBoxCombComponent* component, int index) const;

    /// The first bytes of the host's segment.
    bool discardKeys() const;
    bool blockScpi() const;
    void setDiscardKeys(bool discard);

    static HostRecord& record();

private:
    KVXSharedMemory* flags() const;

    QSharedMemory m_segment;
    std::unique_ptr<QWidget> m_surface;
    QPluginLoader m_loader;
    CAppInterface* m_plugin = nullptr;
};
