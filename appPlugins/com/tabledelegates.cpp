// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tabledelegates.h"

#include "dbutils.h"
#include "engineeringtext.h"
#include "hostcallbacks.h"
#include "rangewarning.h"
#include "realcombcomponent.h"

#include <cstdio>

namespace appPlugins {

CStandardItemModel::CStandardItemModel(int rows, int columns, QObject* parent)
    : QStandardItemModel(rows, columns, parent)
{}

QVariant CStandardItemModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignHCenter | Qt::AlignVCenter);
    return QStandardItemModel::data(index, role);
}

QWidget* NoEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    Q_UNUSED(parent)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return nullptr;
}

RealEditDelegate::RealEditDelegate(const RealPrivate& column, QObject* parent)
    : QStyledItemDelegate(parent)
    , unitType(column.unitType)
    , defaultValue(column.dbValue)
    , absoluteMax(column.dbAbsoluteMax)
    , absoluteMin(column.dbAbsoluteMin)
    , resolution(column.resolution)
{}

double RealEditDelegate::convertToDbValue(const QString& strValue, double dResolution)
{
    return engineeringTextToDouble(strValue, dResolution);
}

QWidget* RealEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    auto* editor = new TabelRealCombComponent(parent, "", false, "", unitType, defaultValue,
                                              absoluteMax, absoluteMin, resolution);
    // The whole cell belongs to the input.
    editor->setCombComponentsHorLayout(0, 1, 0, 0);
    connect(editor, &RealCombComponent::sgnRealParameterIllegal, this,
            &RealEditDelegate::slt_popWarningMessage);
    connect(editor, QOverload<double>::of(&CPluginCombComponentBase::paraChanged), this,
            &RealEditDelegate::slt_finishedEditing);
    // Queued: while the focus moves, the view must not take the editor away.
    connect(editor, &RealCombComponent::sgn_editorFocusOut, this, &RealEditDelegate::slt_editorLeft,
            Qt::QueuedConnection);
    m_pEditor = editor;
    return editor;
}

void RealEditDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (m_pEditor == editor)
        m_pEditor = nullptr;
    QStyledItemDelegate::destroyEditor(editor, index);
}

void RealEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* component = qobject_cast<RealCombComponent*>(editor))
        component->set(convertToDbValue(index.data(Qt::EditRole).toString(), resolution));
}

void RealEditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    QString text;
    if (auto* component = qobject_cast<RealCombComponent*>(editor)) {
        component->redraw();
        text = component->getStringValue();
        if (!DBSameValue(component->get(), convertToDbValue(text, resolution))) {
            std::printf("%s() error, get(%e) not the same as getStringValue(%s)!\n", "setModelData",
                        component->get(), qUtf8Printable(text));
        }
    }
    model->setData(index, text, Qt::EditRole);
}

void RealEditDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    Q_UNUSED(index)
    editor->setGeometry(option.rect);
}

bool RealEditDelegate::eventFilter(QObject* watched, QEvent* event)
{
    return QStyledItemDelegate::eventFilter(watched, event);
}

void RealEditDelegate::slt_popWarningMessage(double value)
{
    g_warningMessage(rangeWarning(value, absoluteMin, absoluteMax));
    // The limit takes the value's place after this; by then the focus may be gone already.
    QMetaObject::invokeMethod(this, &RealEditDelegate::slt_editorLeft, Qt::QueuedConnection);
}

void RealEditDelegate::slt_finishedEditing(double newValue)
{
    const auto* component = qobject_cast<RealCombComponent*>(m_pEditor);
    if (component == nullptr)
        return;

    if (component->get() != newValue) {
        std::printf("<RealEditDelegate> %s() newValue(%e) is error!\n", "slt_finishedEditing",
                    newValue);
    }
    finishEditing();
}

// An editor without the focus would stay over its cell, with a value that the cell does not have. A
// value outside the limits is about to be replaced: the user is just being told of it.
void RealEditDelegate::slt_editorLeft()
{
    const auto* component = qobject_cast<RealCombComponent*>(m_pEditor);
    if (component == nullptr ||
        component->checkInput(component->get()) != RealCombComponent::VALUE_OK)
        return;

    const QWidget* focus = component->window()->focusWidget();
    if (focus == nullptr || !component->isAncestorOf(focus))
        finishEditing();
}

void RealEditDelegate::finishEditing()
{
    const QPointer<QWidget> editor = m_pEditor;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, QAbstractItemDelegate::NoHint);
}

} // namespace appPlugins
