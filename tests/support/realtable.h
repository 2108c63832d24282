// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "crealtableview.h"
#include "hostcallbacks.h"
#include "parameteredit.h"
#include "realcombcomponent.h"
#include "tabledelegates.h"
#include "toolkitform.h"

#include <QScrollBar>
#include <QSignalSpy>

/// A table of widths and gaps in a form, beside a number that can take the focus. Warnings of the
/// host go into a list; with modalWarnings they are boxes that the user closes at once.
struct RealTable
{
    explicit RealTable(int rows)
        : table(form.add(new appPlugins::CRealTableView(&form, 2, columns().data())))
        , number(form.add(new appPlugins::RealCombComponent(&form, "NUMBER", false, nullptr,
                                                            UNIT_VOLTAGE, 1, 0, 5, 1e-4)))
        , model(qobject_cast<QStandardItemModel*>(table->model()))
        , changes(model, &QStandardItemModel::dataChanged)
    {
        warnings().clear();
        modalWarnings() = false;
        g_warningMessage = &RealTable::warn;
        table->setFixedHeight(250);
        for (int i = 0; i < rows; ++i)
            table->slt_insert();
        form.start();
    }
    ~RealTable() { g_warningMessage = nullptr; }
    RealTable(const RealTable&) = delete;
    RealTable& operator=(const RealTable&) = delete;

    /// 20 ns to 150 us in steps of a nanosecond.
    static QVector<appPlugins::RealPrivate> columns()
    {
        appPlugins::RealPrivate width;
        width.unitType = UNIT_TIME;
        width.dbValue = 2e-6;
        width.strValue = QStringLiteral("2.000u");
        width.dbAbsoluteMax = 0.00015;
        width.dbAbsoluteMin = 2e-8;
        width.resolution = 1e-9;
        appPlugins::RealPrivate gap = width;
        gap.dbValue = 1e-5;
        gap.strValue = QStringLiteral("10.000u");
        return {width, gap};
    }

    QString cell(int row, int column) const { return model->index(row, column).data().toString(); }

    QPoint centre(int row, int column) const
    {
        return table->visualRect(model->index(row, column)).center();
    }

    void tapCell(int row, int column) const
    {
        FrontPanel::tap(table->viewport(), centre(row, column));
    }

    void doubleTapCell(int row, int column) const
    {
        FrontPanel::doubleTap(table->viewport(), centre(row, column));
    }

    QModelIndexList selected() const { return table->selectionModel()->selectedIndexes(); }

    QList<appPlugins::TabelRealCombComponent*> editors() const
    {
        return table->findChildren<appPlugins::TabelRealCombComponent*>();
    }

    /// Digits and prefix of the open editor.
    QString shown() const
    {
        const appPlugins::TabelRealCombComponent* editor = editors().value(0);
        if (editor == nullptr)
            return QString();
        return editor->findChild<appPlugins::ParameterTextEdit*>()->toPlainText() +
               editor->findChild<appPlugins::CUnit*>()->text();
    }

    static QStringList& warnings()
    {
        static QStringList list;
        return list;
    }

    static bool& modalWarnings()
    {
        static bool modal = false;
        return modal;
    }

    static int warn(QString text)
    {
        warnings().append(text);
        if (modalWarnings()) {
            QWidget* below = QApplication::activeWindow();
            QDialog box;
            QTimer::singleShot(0, &box, &QDialog::accept);
            box.exec();
            // No window manager gives the focus back here.
            below->activateWindow();
        }
        return 0;
    }

    ToolkitForm form;
    appPlugins::CRealTableView* table;
    appPlugins::RealCombComponent* number;
    QStandardItemModel* model;
    QSignalSpy changes;
};
