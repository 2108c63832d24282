// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filerowdelegate.h"

#include "dialoglook.h"
#include "filemodel.h"
#include "glyphs.h"

#include <QLocale>
#include <QPainter>

namespace HostDialogs {

namespace {

const int RowHeight = 48;
const int Margin = 12;
const int GlyphSize = 26;
const int DateWidth = 150;
const int SizeWidth = 84;

QColor textColour(const QStyleOptionViewItem& option, bool reachable)
{
    if (option.state.testFlag(QStyle::State_Selected))
        return DialogLook::Text;
    return reachable ? DialogLook::Text : DialogLook::Faint;
}

void paintBackground(QPainter& painter, const QStyleOptionViewItem& option)
{
    if (option.state.testFlag(QStyle::State_Selected))
        painter.fillRect(option.rect, DialogLook::Focus);
    painter.fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1,
                     DialogLook::Line);
}

void paintFacts(QPainter& painter, const QStyleOptionViewItem& option, const FileEntry& entry)
{
    painter.setPen(option.state.testFlag(QStyle::State_Selected) ? DialogLook::Text
                                                                 : DialogLook::Faint);
    painter.setFont(DialogLook::textFont(14));
    QRect place = option.rect.adjusted(0, 0, -Margin, 0);
    if (!entry.folder && entry.reachable)
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, sizeText(entry.size));
    place.adjust(0, 0, -SizeWidth, 0);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter,
                     entry.changed.toString(qtTrId("HOSTID_DLG_DATE_FORMAT")));
}

} // namespace

FileRowDelegate::FileRowDelegate(const FileModel* files, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_pFiles(files)
{}

QSize FileRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {200, RowHeight};
}

void FileRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    const FileEntry entry = m_pFiles->entry(index.row());
    const QRect& row = option.rect;
    painter->save();
    paintBackground(*painter, option);
    const QColor colour = textColour(option, entry.reachable);
    drawGlyph(*painter, QRectF(row.left() + Margin, row.top(), GlyphSize, row.height()),
              entry.folder ? Glyph::Folder : Glyph::File, colour);
    painter->setPen(colour);
    paintName(*painter, option, index.data().toString());
    paintFacts(*painter, option, entry);
    painter->restore();
}

// From left to right in every script, so that the suffix of a file stays behind its name.
void FileRowDelegate::paintName(QPainter& painter, const QStyleOptionViewItem& option,
                                const QString& name) const
{
    const int left = Margin + GlyphSize + Margin;
    const QRect place = option.rect.adjusted(left, 0, -(DateWidth + SizeWidth + 2 * Margin), 0);
    painter.setFont(option.font);
    painter.setLayoutDirection(Qt::LeftToRight);
    const QString shown =
        QFontMetrics(option.font).elidedText(name, Qt::ElideMiddle, place.width());
    painter.drawText(
        place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
        shown);
}

QString sizeText(qint64 bytes)
{
    const char* const units[] = {"B", "kB", "MB", "GB", "TB"};
    double number = static_cast<double>(bytes);
    int unit = 0;
    while (number >= 999.5 && unit < 4) {
        number /= 1000;
        ++unit;
    }
    const QLocale locale(qtTrId("HOSTID_DLG_LOCALE"));
    const int decimals = unit > 0 && number < 9.95 ? 1 : 0;
    return locale.toString(number, 'f', decimals) + QLatin1Char(' ') + QLatin1String(units[unit]);
}

} // namespace HostDialogs
