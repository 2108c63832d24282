// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "screendescription.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QApplication>
#include <QHeaderView>
#include <QMap>
#include <QScreen>
#include <QTextEdit>
#include <QWidget>

#include <algorithm>

namespace {

using Items = QVector<Keypad::ScreenItem>;

QString roleWord(QAccessible::Role role)
{
    static const QMap<QAccessible::Role, QString> words = {
        {QAccessible::StaticText, QStringLiteral("text")},
        {QAccessible::PushButton, QStringLiteral("button")},
        {QAccessible::ButtonMenu, QStringLiteral("button")},
        {QAccessible::ButtonDropDown, QStringLiteral("button")},
        {QAccessible::CheckBox, QStringLiteral("checkbox")},
        {QAccessible::RadioButton, QStringLiteral("radio")},
        {QAccessible::EditableText, QStringLiteral("edit")},
        {QAccessible::SpinBox, QStringLiteral("edit")},
        {QAccessible::ComboBox, QStringLiteral("choice")},
        {QAccessible::MenuItem, QStringLiteral("menuitem")},
        {QAccessible::PageTab, QStringLiteral("tab")},
        {QAccessible::ColumnHeader, QStringLiteral("header")},
        {QAccessible::RowHeader, QStringLiteral("header")},
        {QAccessible::ProgressBar, QStringLiteral("progress")},
    };
    return words.value(role);
}

bool showsValue(QAccessible::Role role)
{
    return role == QAccessible::EditableText || role == QAccessible::SpinBox ||
           role == QAccessible::ComboBox || role == QAccessible::ProgressBar;
}

/// Whether @p point of the screen shows @p widget, or a part of it, and nothing above it.
bool isOnTop(const QWidget* widget, const QPoint& point)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen->geometry().contains(point))
        return false;
    const QWidget* hit = QApplication::widgetAt(point);
    if (hit == nullptr)
        return false;
    // A widget that lets touches through is never hit itself.
    while (widget->testAttribute(Qt::WA_TransparentForMouseEvents) && !widget->isWindow())
        widget = widget->parentWidget();
    return hit == widget || widget->isAncestorOf(hit);
}

/// Whether no ancestor cuts the middle of @p rect, in @p widget's pixels, away.
bool isInside(const QWidget* widget, const QRect& rect)
{
    return widget->visibleRegion().contains(rect.center()) ||
           widget->testAttribute(Qt::WA_TransparentForMouseEvents);
}

Keypad::ScreenItem itemAt(const QWidget* widget, const QRect& rect, const QString& text,
                          const QString& role)
{
    Keypad::ScreenItem item;
    item.text = text.simplified();
    item.rect = QRect(widget->mapToGlobal(rect.topLeft()), rect.size());
    item.enabled = widget->isEnabled();
    item.focus = widget->hasFocus();
    item.role = role;
    return item;
}

void addIfSeen(const QWidget* widget, const QRect& rect, const Keypad::ScreenItem& item,
               Items& items)
{
    if (!item.text.isEmpty() && isInside(widget, rect) && isOnTop(widget, item.rect.center()))
        items.append(item);
}

void addCell(const QAbstractItemView* view, const QModelIndex& index, Items& items)
{
    const QRect rect = view->visualRect(index);
    if (!rect.isValid() || view->indexWidget(index) != nullptr)
        return;
    Keypad::ScreenItem item =
        itemAt(view->viewport(), rect, index.data().toString(), QStringLiteral("cell"));
    item.enabled = item.enabled && (index.flags() & Qt::ItemIsEnabled) != 0;
    item.focus = view->hasFocus() && view->currentIndex() == index;
    item.checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    addIfSeen(view->viewport(), rect, item, items);
}

void addCells(const QAbstractItemView* view, Items& items)
{
    const QAbstractItemModel* model = view->model();
    const QModelIndex root = view->rootIndex();
    if (model == nullptr)
        return;
    for (int row = 0; row < model->rowCount(root); ++row) {
        for (int column = 0; column < model->columnCount(root); ++column)
            addCell(view, model->index(row, column, root), items);
    }
}

void addSections(const QHeaderView* header, Items& items)
{
    const bool isAcross = header->orientation() == Qt::Horizontal;
    for (int section = 0; header->model() != nullptr && section < header->count(); ++section) {
        const int start = header->sectionViewportPosition(section);
        const int size = header->sectionSize(section);
        const QRect rect = isAcross ? QRect(start, 0, size, header->viewport()->height())
                                    : QRect(0, start, header->viewport()->width(), size);
        const QString text = header->model()->headerData(section, header->orientation()).toString();
        addIfSeen(header->viewport(), rect,
                  itemAt(header->viewport(), rect, text, QStringLiteral("header")), items);
    }
}

// Of a long text the lines that are in sight, one by one.
void addLines(QTextEdit* edit, Items& items)
{
    const QRect view = edit->viewport()->rect();
    QTextCursor cursor = edit->cursorForPosition(QPoint(0, 0));
    cursor.movePosition(QTextCursor::StartOfLine);
    bool goesOn = true;
    while (goesOn) {
        QTextCursor line = cursor;
        line.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
        const QRect rect = edit->cursorRect(cursor).united(edit->cursorRect(line));
        if (rect.top() > view.bottom())
            return;
        addIfSeen(
            edit->viewport(), rect & view,
            itemAt(edit->viewport(), rect & view, line.selectedText(), QStringLiteral("text")),
            items);
        goesOn = cursor.movePosition(QTextCursor::Down);
    }
}

Keypad::ScreenItem itemOf(const QWidget* widget, QAccessibleInterface& told)
{
    const QAccessible::Role role = told.role();
    const QString text = told.text(showsValue(role) ? QAccessible::Value : QAccessible::Name);
    Keypad::ScreenItem item = itemAt(widget, QRect(), text, roleWord(role));
    item.rect = told.rect();
    const QAccessible::State state = told.state();
    item.enabled = !state.disabled;
    item.focus = state.focused;
    item.checked = state.checked;
    return item;
}

// Parts of a widget that are no widgets themselves: entries of a menu, tabs.
void addParts(const QWidget* widget, QAccessibleInterface& told, Items& items)
{
    for (int i = 0; i < told.childCount(); ++i) {
        QAccessibleInterface* part = told.child(i);
        if (part == nullptr || part->object() == nullptr || part->object()->isWidgetType())
            continue;
        const Keypad::ScreenItem item = itemOf(widget, *part);
        const QRect rect(widget->mapFromGlobal(item.rect.topLeft()), item.rect.size());
        if (!item.role.isEmpty() && part->state().invisible == 0)
            addIfSeen(widget, rect, item, items);
    }
}

void addTold(QWidget* widget, Items& items)
{
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    if (told == nullptr)
        return;
    const Keypad::ScreenItem item = itemOf(widget, *told);
    if (!item.role.isEmpty())
        addIfSeen(widget, widget->rect(), item, items);
    addParts(widget, *told, items);
}

void addWidget(QWidget* widget, Items& items)
{
    if (!widget->isVisible())
        return;
    auto* edit = qobject_cast<QTextEdit*>(widget);
    if (const auto* header = qobject_cast<QHeaderView*>(widget))
        addSections(header, items);
    else if (const auto* view = qobject_cast<QAbstractItemView*>(widget))
        addCells(view, items);
    else if (edit != nullptr && edit->isReadOnly())
        addLines(edit, items);
    else
        addTold(widget, items);
    for (QObject* child : widget->children()) {
        auto* part = qobject_cast<QWidget*>(child);
        if (part != nullptr && !part->isWindow())
            addWidget(part, items);
    }
}

} // namespace

QVector<Keypad::ScreenItem> visibleTexts()
{
    Items items;
    for (QWidget* window : QApplication::topLevelWidgets())
        addWidget(window, items);
    return inReadingOrder(items);
}

// Lines go by the middles: a tall text begins beside many lines and belongs to that of its middle.
QVector<Keypad::ScreenItem> inReadingOrder(QVector<Keypad::ScreenItem> items)
{
    std::stable_sort(items.begin(), items.end(), [](const auto& a, const auto& b) {
        return a.rect.center().y() < b.rect.center().y();
    });
    for (auto line = items.begin(); line != items.end();) {
        const int bottom = line->rect.bottom();
        const auto end = std::find_if(line + 1, items.end(), [bottom](const auto& item) {
            return item.rect.center().y() > bottom;
        });
        std::stable_sort(
            line, end, [](const auto& a, const auto& b) { return a.rect.left() < b.rect.left(); });
        line = end;
    }
    return items;
}
