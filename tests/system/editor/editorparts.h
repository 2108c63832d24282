// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorhost.h"

#include "cplugincombcomponent.h"
#include "cswitchlabel.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QStringList>
#include <QTableView>
#include <QVector>

/// What is to be seen of an editor: its parts and their texts.
namespace EditorParts {

/// In the order of the tool bar.
const QVector<EditorHost::Action> AllActions = {EditorHost::Open,   EditorHost::Close,
                                                EditorHost::SaveAs, EditorHost::Default,
                                                EditorHost::Help,   EditorHost::Run};

/// Likewise, while the output is stopped.
const QStringList ActionTextIds = {
    QStringLiteral("ARBID_OPEN"),     QStringLiteral("ARBID_CLOSE"),
    QStringLiteral("STR_ID_SAVE_AS"), QStringLiteral("DBID_POWERON_STATE_DEFAULT_SETTING"),
    QStringLiteral("STR_ID_HELP"),    QStringLiteral("STR_UTILITY_RUN")};

/// Editors of this process, shown or not.
inline int editorCount()
{
    int count = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (qstrcmp(widget->metaObject()->className(), "MultiPulseEditor") == 0)
            ++count;
    }
    return count;
}

inline QLabel* label(const EditorHost& host, const char* name)
{
    return host.editor()->findChild<QLabel*>(QLatin1String(name));
}

inline QString titleOf(const QWidget* component)
{
    return component->findChild<appPlugins::CSwitchLabel*>()->findChild<QLabel*>()->text();
}

/// The unit is the row's one plain label.
inline QString unitOf(const QWidget* component)
{
    for (const QLabel* part :
         component->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part->metaObject() == &QLabel::staticMetaObject)
            return part->text();
    }
    return QStringLiteral("no label");
}

inline QStringList choices(const appPlugins::ComboBoxCombComponent* component)
{
    const auto* box = component->findChild<QComboBox*>();
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

inline QString headerText(const QTableView* table, int column)
{
    return table->model()->headerData(column, Qt::Horizontal).toString();
}

inline QStringList actionTexts(const EditorHost& host)
{
    QStringList texts;
    for (const EditorHost::Action action : AllActions)
        texts.append(host.action(action)->text());
    return texts;
}

} // namespace EditorParts
